// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "model/Potencia.h"

namespace model {

double Potencia(double base, double exponente)
{
    if (base == 0 && exponente < 0) throw Falla{NumeroFalla::Argumento};
    if (base < 0 && exponente != std::floor(exponente)) throw Falla{NumeroFalla::Argumento};
    const double potencia = PotenciaRedondeada(base, exponente);
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
    return PotenciaRedondeada(10, n);
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

// --- text to number ---

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
    // An exponent beyond any text's length decides alone, also where its type doesn't hold it.
    constexpr long long Desmedido = 1'000'000'000'000;
    long long e = 0;
    const auto [fin, error] = std::from_chars(exponente.data(), exponente.data() + exponente.size(), e);
    if (error != std::errc{} || e > Desmedido) return !negativo;
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
