// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Numeros.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <system_error>

namespace model {

double Potencia(double base, double exponente)
{
    if (base == 0 && exponente < 0) throw Falla{NumeroFalla::Argumento};
    if (base < 0 && exponente != std::floor(exponente)) throw Falla{NumeroFalla::Argumento};
    const double potencia = std::pow(base, exponente);
    if (!std::isfinite(potencia)) throw Falla{NumeroFalla::Desbordamiento};
    return potencia;
}

namespace {

/// Powers of ten that a 64-bit float holds exactly.
constexpr std::array<double, 23> DiezA = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                          1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double PotenciaDeDiez(int n)
{
    if (n >= 0 && n < static_cast<int>(DiezA.size())) return DiezA[static_cast<std::size_t>(n)];
    return std::pow(10.0, n);
}

}  // namespace

double Redondea(double x, int decimales)
{
    const double potencia = PotenciaDeDiez(decimales);
    const double redondeado = std::nearbyint(x * potencia) / potencia;
    // A product outside the type comes of a number that has no decimals left to round.
    return std::isfinite(redondeado) ? redondeado : x;
}

float Redondea(float x, int decimales)
{
    return static_cast<float>(Redondea(double{x}, decimales));
}

float Trunca2(float x)
{
    const float centesimos = std::floor(Simple(x * 100.0F));
    return centesimos / 100.0F;
}

// --- number to text ---------------------------------------------------------------------------------

namespace {

template <std::size_t N, std::uint64_t Base>
constexpr std::array<std::uint64_t, N> TablaDePotencias()
{
    std::array<std::uint64_t, N> tabla{};
    std::uint64_t potencia = 1;
    for (std::uint64_t& lugar : tabla) {
        lugar = potencia;
        potencia *= Base;
    }
    return tabla;
}

constexpr auto CincoA = TablaDePotencias<28, 5>();
constexpr auto DiezEnteroA = TablaDePotencias<20, 10>();

/// "00" to "99" in a row, so that digits are written two at a time.
constexpr std::array<char, 200> Pares = [] {
    std::array<char, 200> pares{};
    for (std::size_t i = 0; i < 100; ++i) {
        pares[2 * i] = static_cast<char>('0' + i / 10);
        pares[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pares;
}();

void PonPar(char* p, std::uint32_t n)
{
    std::memcpy(p, &Pares[std::size_t{2} * n], 2);
}

void PonOcho(char* p, std::uint32_t n)
{
    const std::uint32_t alto = n / 10000;
    const std::uint32_t bajo = n % 10000;
    PonPar(p, alto / 100);
    PonPar(p + 2, alto % 100);
    PonPar(p + 4, bajo / 100);
    PonPar(p + 6, bajo % 100);
}

/// floor(log10(2^e)), good for every exponent of a 64-bit float.
constexpr int DecimalDeBinario(int e)
{
    return (e * 315653) >> 20;
}

/// A number rounded to so many significant digits: the digits as one whole number, and the power of ten of
/// the first of them.
struct Decimal {
    std::uint64_t cifras;
    int orden;
};

/// Takes the digits cut off, and whether what lies behind them rounds them up.
template <int Cifras>
Decimal Redondeado(std::uint64_t cortadas, bool sube, int orden)
{
    const std::uint64_t cifras = cortadas + (sube ? 1 : 0);
    if (cifras == DiezEnteroA[Cifras]) return {DiezEnteroA[Cifras - 1], orden + 1};
    return {cifras, orden};
}

/// Lays out digits as %G does: no zeros at the end, exponent form below 1E-04 and from 10^Cifras up.
/// `c` holds `Cifras` digits and as many bytes of any kind behind them, since pieces of one fixed length
/// are copied quickest.
template <int Cifras>
char* Compone(char* p, const char* c, int orden)
{
    int n = Cifras;
    while (c[n - 1] == '0')
        --n;
    if (orden >= 0 && orden < Cifras) {
        std::memcpy(p, c, Cifras);
        if (n <= orden + 1) return p + orden + 1;
        p[orden + 1] = '.';
        std::memcpy(p + orden + 2, c + orden + 1, Cifras);
        return p + n + 1;
    }
    if (orden < 0 && orden >= -4) {
        std::memcpy(p, "0.000", 5);
        p += 1 - orden;
        std::memcpy(p, c, Cifras);
        return p + n;
    }
    *p++ = c[0];
    if (n > 1) *p++ = '.';
    std::memcpy(p, c + 1, Cifras - 1);
    p += n - 1;
    *p++ = 'E';
    *p++ = orden < 0 ? '-' : '+';
    PonPar(p, static_cast<std::uint32_t>(std::abs(orden)));
    return p + 2;
}

/// The way for the magnitudes that the quick ways leave out.
char* EscribeDeBiblioteca(char* p, double x, int cifras)
{
    char* fin = std::to_chars(p, p + LargoNumero, x, std::chars_format::general, cifras).ptr;
    std::replace(p, fin, 'e', 'E');
    return fin;
}

// A float is mantissa·2^e. Its first 7 digits are floor(mantissa·2^e·10^k) for the right k, and
// 10^k = 5^k·2^k, so that one product of whole numbers and one shift give them exactly, with the bits
// behind them for the rounding. 24 bits times 5^17 fill a 64-bit word: that reaches down to 1E-11.
constexpr int Cifras32 = 7;
constexpr int BinarioMinimo32 = -36;
constexpr int BinarioEntero32 = 23;  ///< from here up a float is a whole number
constexpr int BinarioMaximo32 = 62;

Decimal DecimalConFraccion(std::uint64_t mantisa, int binario)
{
    int orden = DecimalDeBinario(binario);
    int k = Cifras32 - 1 - orden;
    int s = BinarioEntero32 - binario - k;
    std::uint64_t producto = mantisa * CincoA[static_cast<std::size_t>(k)];
    if ((producto >> s) >= DiezEnteroA[Cifras32]) {  // the next power of ten lies between 2^binario and x
        ++orden;
        --k;
        ++s;
        producto = mantisa * CincoA[static_cast<std::size_t>(k)];
    }
    const std::uint64_t cifras = producto >> s;
    const std::uint64_t mitad = std::uint64_t{1} << (s - 1);
    const std::uint64_t resto = producto & (2 * mitad - 1);
    return Redondeado<Cifras32>(cifras, resto > mitad || (resto == mitad && (cifras & 1) != 0), orden);
}

Decimal DecimalEntero(std::uint64_t mantisa, int binario)
{
    const std::uint64_t n = mantisa << (binario - BinarioEntero32);
    int orden = DecimalDeBinario(binario);
    if (n >= DiezEnteroA[static_cast<std::size_t>(orden) + 1]) ++orden;
    if (orden < Cifras32) return {n * DiezEnteroA[static_cast<std::size_t>(Cifras32 - 1 - orden)], orden};
    const std::uint64_t divisor = DiezEnteroA[static_cast<std::size_t>(orden - (Cifras32 - 1))];
    const std::uint64_t cifras = n / divisor;
    const std::uint64_t doble = 2 * (n % divisor);
    return Redondeado<Cifras32>(cifras, doble > divisor || (doble == divisor && (cifras & 1) != 0), orden);
}

/// Whole number of 128 bits, as far as a product and its digits need one.
struct Ancho {
    std::uint64_t alto;
    std::uint64_t bajo;
};

Ancho Producto(std::uint64_t a, std::uint64_t b)
{
    constexpr std::uint64_t Mitad = 0xFFFFFFFF;
    const std::uint64_t bajos = (a & Mitad) * (b & Mitad);
    const std::uint64_t cruce1 = (a >> 32) * (b & Mitad);
    const std::uint64_t cruce2 = (a & Mitad) * (b >> 32);
    const std::uint64_t medio = (bajos >> 32) + (cruce1 & Mitad) + (cruce2 & Mitad);
    return {(a >> 32) * (b >> 32) + (cruce1 >> 32) + (cruce2 >> 32) + (medio >> 32),
            (medio << 32) | (bajos & Mitad)};
}

/// n / 2^s, 0 < s < 128, where it fits one word.
std::uint64_t Corre(const Ancho& n, int s)
{
    return s >= 64 ? n.alto >> (s - 64) : (n.alto << (64 - s)) | (n.bajo >> s);
}

/// Whether any of the lowest s bits is set, 0 <= s < 128.
bool HayBitsDebajo(const Ancho& n, int s)
{
    if (s >= 64) return n.bajo != 0 || (n.alto & ((std::uint64_t{1} << (s - 64)) - 1)) != 0;
    return (n.bajo & ((std::uint64_t{1} << s) - 1)) != 0;
}

// The same for 64-bit floats: 53 bits times 5^27 are 116 bits, which reaches down to 1E-13.
constexpr int Cifras64 = 15;
constexpr int BinarioMinimo64 = -43;
constexpr int BinarioEntero64 = 52;
constexpr int BinarioMaximo64 = 48;  ///< below 10^15, so that k isn't negative

Decimal DecimalAncho(std::uint64_t mantisa, int binario)
{
    int orden = DecimalDeBinario(binario);
    int k = Cifras64 - 1 - orden;
    int s = BinarioEntero64 - binario - k;
    Ancho producto = Producto(mantisa, CincoA[static_cast<std::size_t>(k)]);
    if (Corre(producto, s) >= DiezEnteroA[Cifras64]) {
        ++orden;
        --k;
        ++s;
        producto = Producto(mantisa, CincoA[static_cast<std::size_t>(k)]);
    }
    const std::uint64_t cifras = Corre(producto, s);
    const bool mitad = (Corre(producto, s - 1) & 1) != 0;
    return Redondeado<Cifras64>(cifras, mitad && (HayBitsDebajo(producto, s - 1) || (cifras & 1) != 0),
                                orden);
}

}  // namespace

char* EscribeNumero(char* p, float x)
{
    const auto bits = std::bit_cast<std::uint32_t>(x);
    if ((bits << 1) == 0) {
        *p = '0';
        return p + 1;
    }
    const int binario = static_cast<int>((bits >> 23) & 0xFF) - 127;
    if (binario < BinarioMinimo32 || binario > BinarioMaximo32) return EscribeDeBiblioteca(p, x, Cifras32);
    *p = '-';
    p += bits >> 31;

    const std::uint64_t mantisa = (bits & 0x7FFFFF) | 0x800000;
    const Decimal d =
        binario < BinarioEntero32 ? DecimalConFraccion(mantisa, binario) : DecimalEntero(mantisa, binario);
    std::array<char, 2 * (Cifras32 + 1)> texto{};
    PonOcho(texto.data(), static_cast<std::uint32_t>(d.cifras));  // a zero stands before the seven
    return Compone<Cifras32>(p, texto.data() + 1, d.orden);
}

char* EscribeNumero(char* p, double x)
{
    const auto bits = std::bit_cast<std::uint64_t>(x);
    if ((bits << 1) == 0) {
        *p = '0';
        return p + 1;
    }
    const int binario = static_cast<int>((bits >> 52) & 0x7FF) - 1023;
    if (binario < BinarioMinimo64 || binario > BinarioMaximo64) return EscribeDeBiblioteca(p, x, Cifras64);
    *p = '-';
    p += bits >> 63;

    const std::uint64_t mantisa = (bits & 0xFFFFFFFFFFFFF) | 0x10000000000000;
    const Decimal d = DecimalAncho(mantisa, binario);
    std::array<char, 2 * (Cifras64 + 1)> texto{};
    PonOcho(texto.data(), static_cast<std::uint32_t>(d.cifras / 100000000));
    PonOcho(texto.data() + 8, static_cast<std::uint32_t>(d.cifras % 100000000));
    return Compone<Cifras64>(p, texto.data() + 1, d.orden);
}

char* EscribeNumero(char* p, std::int32_t x)
{
    return std::to_chars(p, p + LargoNumero, x).ptr;
}

namespace {

template <typename T>
std::string ATexto(T x)
{
    std::array<char, LargoNumero> texto;
    return {texto.data(), EscribeNumero(texto.data(), x)};
}

}  // namespace

std::string NumeroATexto(float x)
{
    return ATexto(x);
}
std::string NumeroATexto(double x)
{
    return ATexto(x);
}
std::string NumeroATexto(std::int32_t x)
{
    return ATexto(x);
}

// --- text to number ---------------------------------------------------------------------------------

namespace {

bool EsBlanco(char c)
{
    return c == ' ' || c == '\t';
}
bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view SinBlancos(std::string_view texto)
{
    while (!texto.empty() && EsBlanco(texto.front()))
        texto.remove_prefix(1);
    while (!texto.empty() && EsBlanco(texto.back()))
        texto.remove_suffix(1);
    return texto;
}

/// Length of the number that a text begins with; 0 where there is none.
std::size_t LargoDelNumero(std::string_view t, bool comaEsPunto)
{
    std::size_t i = 0;
    const auto salta = [&] {
        const std::size_t desde = i;
        while (i < t.size() && EsCifra(t[i]))
            ++i;
        return i - desde;
    };
    const auto signo = [&] { i += (i < t.size() && (t[i] == '+' || t[i] == '-')) ? 1 : 0; };

    signo();
    std::size_t cifras = salta();
    if (i < t.size() && (t[i] == '.' || (comaEsPunto && t[i] == ','))) {
        ++i;
        cifras += salta();
    }
    if (cifras == 0) return 0;
    const std::size_t sinExponente = i;
    if (i == t.size() || std::string_view("EeDd").find(t[i]) == std::string_view::npos) return sinExponente;
    ++i;
    signo();
    return salta() > 0 ? i : sinExponente;
}

/// Whether a number that no 64-bit float holds lies beyond the largest, and not below the smallest.
/// `t`: checked form without sign, E as exponent letter.
bool EsDemasiadoGrande(std::string_view t)
{
    const std::size_t letra = std::min(t.find_first_of("Ee"), t.size());
    const std::string_view mantisa = t.substr(0, letra);
    const std::size_t primera = mantisa.find_first_of("123456789");
    if (primera == std::string_view::npos) return false;
    if (letra == t.size()) return primera < mantisa.find('.');
    const bool negativo = letra + 1 < t.size() && t[letra + 1] == '-';
    std::string_view exponente = t.substr(letra + 1);
    if (!exponente.empty() && !EsCifra(exponente.front())) exponente.remove_prefix(1);
    // Where the exponent itself overflows it decides alone; texts of a million digits are no numbers.
    long long e = 0;
    const auto [fin, error] = std::from_chars(exponente.data(), exponente.data() + exponente.size(), e);
    if (error != std::errc{}) return !negativo;
    const auto punto = static_cast<long long>(std::min(mantisa.find('.'), mantisa.size()));
    return punto - static_cast<long long>(primera) + (negativo ? -e : e) > 0;
}

/// Value of a text of the checked form.
double Valor(std::string_view t)
{
    const bool negativo = t.front() == '-';
    if (!EsCifra(t.front()) && t.front() != '.') t.remove_prefix(1);

    // from_chars knows no D; such numbers are rare enough for a copy.
    std::string copia;
    const std::size_t letra = t.find_first_of("Dd");
    if (letra != std::string_view::npos) {
        copia = t;
        copia[letra] = 'E';
        t = copia;
    }
    double x = 0;
    const auto [fin, error] = std::from_chars(t.data(), t.data() + t.size(), x);
    if (error == std::errc::result_out_of_range) {
        if (EsDemasiadoGrande(t)) throw Falla{NumeroFalla::Desbordamiento};
        x = 0;
    }
    if (!std::isfinite(x)) throw Falla{NumeroFalla::Desbordamiento};
    return negativo ? -x : x;
}

}  // namespace

double Val(std::string_view texto)
{
    const std::string_view t = SinBlancos(texto);
    const std::size_t largo = LargoDelNumero(t, false);
    return largo == 0 ? 0 : Valor(t.substr(0, largo));
}

std::optional<double> NumeroEntero(std::string_view texto)
{
    const std::string_view t = SinBlancos(texto);
    if (t.empty() || LargoDelNumero(t, false) != t.size()) return std::nullopt;
    return Valor(t);
}

bool EsNumerico(std::string_view texto)
{
    const std::string_view t = SinBlancos(texto);
    return !t.empty() && LargoDelNumero(t, true) == t.size();
}

}  // namespace model
