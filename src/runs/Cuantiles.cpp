// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Cuantiles.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <system_error>

namespace runs {

namespace {

// A 32-bit float: a sign, 8 bits of exponent, 23 of mantissa.
constexpr std::uint32_t SinSigno = 0x7FFFFFFF, Mantissa = 0x7FFFFF;
constexpr int BitsDeMantissa = 23, BitsDeRejilla = 9, Quitados = BitsDeMantissa - BitsDeRejilla;
constexpr std::uint32_t MenorExponente = 107;  // of 2^-20
constexpr std::uint32_t PrimerGrado = MenorExponente << BitsDeRejilla;
constexpr int BitsDeCasilla = 7, CuartosDePotencia = BitsDeRejilla - BitsDeCasilla;

/// Where a value is counted, and what it adds to the page's sum.
struct Lugar {
    int pagina;  ///< 0: below a millionth
    std::size_t casilla;
    std::int64_t unidades;
};

Lugar LugarDe(float x)
{
    const auto bits = std::bit_cast<std::uint32_t>(x);
    const std::uint32_t m = bits & SinSigno;
    const std::uint32_t g = (m + (1U << (Quitados - 1))) >> Quitados;
    if (g < PrimerGrado) return {0, 0, std::llround(std::ldexp(double{x}, 44))};
    const std::uint32_t grado = g - PrimerGrado;
    const auto pagina = static_cast<int>(grado >> BitsDeCasilla) + 1;
    const std::size_t casilla = grado & ((1U << BitsDeCasilla) - 1);
    // one that was rounded up to a power of 2 has the exponent below it
    const std::uint32_t propio = m >> BitsDeMantissa, dePagina = g >> BitsDeRejilla;
    const std::int64_t unidades = std::int64_t{(m & Mantissa) | (Mantissa + 1)}
                                  << (propio == dePagina ? 1 : 0);
    return bits == m ? Lugar{pagina, casilla, unidades} : Lugar{-pagina, casilla, -unidades};
}

/// Power of 2 of the units of a page's sum.
int UnidadDe(int pagina)
{
    if (pagina == 0) return -44;
    return static_cast<int>(MenorExponente) + ((std::abs(pagina) - 1) >> CuartosDePotencia) - 127 - 24;
}

double ValorDe(int pagina, std::size_t casilla)
{
    if (pagina == 0) return 0;
    const int grado = ((std::abs(pagina) - 1) << BitsDeCasilla) + static_cast<int>(casilla);
    const int exponente = static_cast<int>(MenorExponente) + (grado >> BitsDeRejilla) - 127;
    constexpr int Uno = 1 << BitsDeRejilla;
    const double x = std::ldexp(Uno + (grado & (Uno - 1)), exponente - BitsDeRejilla);
    return pagina > 0 ? x : -x;
}

template <typename Entero>
void Pon(std::string& texto, Entero x)
{
    char cifras[24];
    const auto fin = std::to_chars(cifras, cifras + sizeof cifras, x).ptr;
    texto.append(cifras, fin) += ' ';
}

/// Whole numbers of a text, one after another; false from the first that isn't there on.
class Lectura {
  public:
    explicit Lectura(std::string_view texto) : p(texto.data()), fin(p + texto.size()) {}
    template <typename Entero>
    bool operator()(Entero& x)
    {
        while (p != fin && *p == ' ')
            ++p;
        const auto [hasta, error] = std::from_chars(p, fin, x);
        if (error != std::errc{}) return false;
        p = hasta;
        return true;
    }
    bool Acaba()
    {
        while (p != fin && *p == ' ')
            ++p;
        return p == fin;
    }

  private:
    const char *p, *fin;
};

}  // namespace

Cuantiles::Pagina& Cuantiles::De(int cual)
{
    if (ultima < paginas.size() && paginas[ultima].cual == cual) return paginas[ultima];
    auto p = std::ranges::lower_bound(paginas, cual, {}, &Pagina::cual);
    if (p == paginas.end() || p->cual != cual) {
        p = paginas.insert(p, Pagina{});
        p->cual = cual;
    }
    ultima = static_cast<std::size_t>(p - paginas.begin());
    return *p;
}

void Cuantiles::Suma(float valor, Peso peso)
{
    if (peso == 0) return;
    const Lugar l = LugarDe(valor);
    Pagina& p = De(l.pagina);
    p.cuenta[l.casilla] += peso;
    p.suma += l.unidades * std::int64_t{peso};
    total += peso;
    menor = std::min(menor, valor);
    mayor = std::max(mayor, valor);
}

void Cuantiles::Junta(const Cuantiles& otro)
{
    for (const Pagina& suya : otro.paginas) {
        Pagina& mia = De(suya.cual);
        mia.suma += suya.suma;
        for (std::size_t i = 0; i < Casillas; ++i)
            mia.cuenta[i] += suya.cuenta[i];
    }
    total += otro.total;
    menor = std::min(menor, otro.menor);
    mayor = std::max(mayor, otro.mayor);
}

double Cuantiles::Media() const
{
    if (total == 0) return SinValor;
    double suma = 0;
    for (const Pagina& p : paginas)
        suma += std::ldexp(static_cast<double>(p.suma), UnidadDe(p.cual));
    return std::clamp(suma / static_cast<double>(total), double{menor}, double{mayor});
}

double Cuantiles::Cuantil(double p) const
{
    double valor = SinValor;
    Varios(&p, &valor, 1);
    return valor;
}

void Cuantiles::Varios(const double* p, double* valores, std::size_t cuantos) const
{
    std::fill_n(valores, cuantos, SinValor);
    std::size_t van = 0;
    std::uint64_t suma = 0;
    // A share of the total that is a whole number mustn't be missed by a rounding.
    const auto falta = [&] {
        const double parte = p[van] * static_cast<double>(total);
        return std::max(1.0, std::ceil(parte - 1e-9 * std::max(1.0, parte)));
    };
    for (const Pagina& pagina : paginas)
        for (std::size_t i = 0; i < Casillas; ++i) {
            const std::size_t casilla = pagina.cual < 0 ? Casillas - 1 - i : i;
            suma += pagina.cuenta[casilla];
            for (; van < cuantos && pagina.cuenta[casilla] > 0 && static_cast<double>(suma) >= falta(); ++van)
                valores[van] = std::clamp(ValorDe(pagina.cual, casilla), double{menor}, double{mayor});
        }
}

void Cuantiles::Escribe(std::string& texto) const
{
    Pon(texto, total);
    Pon(texto, std::bit_cast<std::uint32_t>(menor));
    Pon(texto, std::bit_cast<std::uint32_t>(mayor));
    Pon(texto, paginas.size());
    for (const Pagina& p : paginas) {
        Pon(texto, p.cual);
        Pon(texto, p.suma);
        Pon(texto, Casillas - static_cast<std::size_t>(std::ranges::count(p.cuenta, std::uint64_t{0})));
        for (std::size_t i = 0; i < Casillas; ++i)
            if (p.cuenta[i] > 0) {
                Pon(texto, i);
                Pon(texto, p.cuenta[i]);
            }
    }
    texto.back() = '\n';
}

bool Cuantiles::Lee(std::string_view texto)
{
    *this = {};
    Lectura lee(texto);
    std::uint32_t bitsMenor = 0, bitsMayor = 0;
    std::size_t nPaginas = 0;
    if (!lee(total) || !lee(bitsMenor) || !lee(bitsMayor) || !lee(nPaginas)) return false;
    menor = std::bit_cast<float>(bitsMenor);
    mayor = std::bit_cast<float>(bitsMayor);
    if (total > 0 && !(menor <= mayor)) return false;
    std::uint64_t contados = 0;
    for (std::size_t n = 0; n < nPaginas; ++n) {
        int cual = 0;
        std::int64_t suma = 0;
        std::size_t llenas = 0;
        if (!lee(cual) || !lee(suma) || !lee(llenas) || (n > 0 && cual <= paginas.back().cual)) return false;
        Pagina& p = De(cual);
        p.suma = suma;
        for (std::size_t i = 0; i < llenas; ++i) {
            std::size_t casilla = 0;
            std::uint64_t cuenta = 0;
            if (!lee(casilla) || !lee(cuenta) || casilla >= Casillas || cuenta == 0) return false;
            contados += p.cuenta[casilla] = cuenta;
        }
    }
    return contados == total && lee.Acaba();
}

}  // namespace runs
