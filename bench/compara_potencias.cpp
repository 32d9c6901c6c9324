// SPDX-License-Identifier: GPL-3.0-or-later

// Powers of random arguments of the kinds that occur, and of any kind, against MPFR, whose own power is
// rounded correctly:
//
//   compara_potencias [COUNT of each kind] [SEED]
//
// A line per kind: how many were compared, how many differ, how many of the C library's pow differ, how many
// were left undecided by the first approximation, and its largest error in parts of its bound. Exit status 1
// where a power differs or an error is beyond its bound.

#include <mpfr.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "model/Potencia.h"

namespace {

using Azar = std::mt19937_64;

/// A float of `digitos` decimals from 0 to `hasta`, widened.
double DecimalSimple(Azar& azar, double hasta, int digitos)
{
    const double unidad = std::pow(10, digitos);
    const std::uint64_t n = azar() % static_cast<std::uint64_t>(hasta * unidad) + 1;
    return static_cast<float>(static_cast<double>(n) / unidad);
}

double Uniforme(Azar& azar, double desde, double hasta)
{
    return desde + (hasta - desde) * std::ldexp(static_cast<double>(azar() >> 11), -53);
}

double CualquierPositivo(Azar& azar)
{
    return std::bit_cast<double>(azar() % 0x7ff0000000000000U);
}

struct Argumentos {
    double x, y;
};

struct Clase {
    const char* nombre;
    Argumentos (*sortea)(Azar& azar);
};

constexpr auto Clases = std::to_array<Clase>({
    {"t^b",
     [](Azar& azar) -> Argumentos {
         const double t = static_cast<double>(azar() % 200000 + 1) / 2;
         return {t, DecimalSimple(azar, 1, static_cast<int>(azar() % 4) + 1)};
     }},
    {"h^e",
     [](Azar& azar) -> Argumentos {
         const double h = static_cast<float>(Uniforme(azar, 0, 300));
         return {h, azar() % 2 == 0 ? static_cast<float>(Uniforme(azar, 0.5, 4))
                                    : 0.5 + DecimalSimple(azar, 3.5, static_cast<int>(azar() % 3) + 1)};
     }},
    {"(h - Hmin)^e, 64 bits",
     [](Azar& azar) -> Argumentos {
         const auto h = static_cast<float>(Uniforme(azar, 0, 300));
         const auto minimo = static_cast<float>(Uniforme(azar, 0, 1));
         return {std::fabs(double{h} - minimo) + 0x1p-30, static_cast<float>(Uniforme(azar, 0.1, 4))};
     }},
    {"whole exponents",
     [](Azar& azar) -> Argumentos {
         const double n = static_cast<double>(azar() % 41) - 20;
         return {static_cast<float>(Uniforme(azar, 0, 300)), n == 0 ? 2 : n};
     }},
    {"slopes and areas",
     [](Azar& azar) -> Argumentos {
         constexpr auto Exponentes =
             std::to_array({0.5, 0.6, 0.75, 0.385, 0.77, 2.0 / 3, 5.0 / 6, 3.0, -0.25});
         return {Uniforme(azar, 0, 10000), Exponentes[azar() % Exponentes.size()]};
     }},
    {"0.01^(-t/K)",
     [](Azar& azar) -> Argumentos {
         return {Uniforme(azar, 0.001, 1), -Uniforme(azar, 0, 20)};
     }},
    {"near 1",
     [](Azar& azar) -> Argumentos {
         const double d = std::ldexp(Uniforme(azar, -1, 1), -static_cast<int>(azar() % 50));
         const double y = std::ldexp(Uniforme(azar, -1, 1), static_cast<int>(azar() % 62));
         return {1 + d > 0 && d != 0 ? 1 + d : 1.5, y};
     }},
    {"any, power in range",
     [](Azar& azar) -> Argumentos {
         const double x = CualquierPositivo(azar);
         return {x, Uniforme(azar, -746, 746) / std::log(x)};
     }},
    {"any",
     [](Azar& azar) -> Argumentos {
         const double y = CualquierPositivo(azar);
         return {CualquierPositivo(azar), azar() % 2 == 0 ? y : -y};
     }},
});

class Juez {
  public:
    Juez()
    {
        mpfr_inits2(53, x, y, redonda, nullptr);
        mpfr_inits2(200, fina, suma, nullptr);
        mpfr_set_emin(-1073);
        mpfr_set_emax(1024);
    }
    ~Juez() { mpfr_clears(x, y, redonda, fina, suma, nullptr); }
    Juez(const Juez&) = delete;
    Juez& operator=(const Juez&) = delete;

    double Potencia(const Argumentos& de)
    {
        mpfr_set_d(x, de.x, MPFR_RNDN);
        mpfr_set_d(y, de.y, MPFR_RNDN);
        const int sentido = mpfr_pow(redonda, x, y, MPFR_RNDN);
        mpfr_subnormalize(redonda, sentido, MPFR_RNDN);
        return mpfr_get_d(redonda, MPFR_RNDN);
    }

    /// The error of the approximation in parts of its bound, of the arguments last handed in.
    double Parte(const model::PotenciaAproximada& p)
    {
        mpfr_pow(fina, x, y, MPFR_RNDN);
        mpfr_mul_2si(fina, fina, -p.escala, MPFR_RNDN);
        mpfr_set_d(suma, p.alto, MPFR_RNDN);
        mpfr_add_d(suma, suma, p.bajo, MPFR_RNDN);
        mpfr_sub(fina, fina, suma, MPFR_RNDN);
        return std::fabs(mpfr_get_d(fina, MPFR_RNDN)) / p.cota;
    }

  private:
    mpfr_t x, y, redonda, fina, suma;
};

bool Compara(const Clase& clase, long cuantas, std::uint64_t semilla)
{
    Azar azar{semilla};
    Juez juez;
    long difieren = 0;
    long difiereLaBiblioteca = 0;
    long sinDecidir = 0;
    double mayorParte = 0;
    for (long i = 0; i < cuantas; ++i) {
        const Argumentos de = clase.sortea(azar);
        const double esperada = juez.Potencia(de);
        if (model::PotenciaRedondeada(de.x, de.y) != esperada) {
            if (++difieren <= 5) std::printf("  %a ^ %a is %a\n", de.x, de.y, esperada);
        }
        if (std::pow(de.x, de.y) != esperada) ++difiereLaBiblioteca;
        if (std::fabs(de.y) < 0x1p-65 || std::fabs(de.y) > 0x1p63 || de.x == 1) continue;
        const model::PotenciaAproximada p = model::AproximaPotencia(de.x, de.y);
        if (p.escala == std::numeric_limits<int>::max()) continue;
        if (p.alto + (p.bajo - p.cota) != p.alto + (p.bajo + p.cota)) ++sinDecidir;
        if (i % 16 == 0) mayorParte = std::max(mayorParte, juez.Parte(p));
    }
    std::printf("%-24s %10ld compared %3ld differ, library %8ld, undecided %6ld, error %.3f of its bound\n",
                clase.nombre, cuantas, difieren, difiereLaBiblioteca, sinDecidir, mayorParte);
    std::fflush(stdout);
    return difieren == 0 && mayorParte <= 1;
}

}  // namespace

int main(int cuantasPalabras, char** palabras)
{
    const long cuantas = cuantasPalabras > 1 ? std::atol(palabras[1]) : 1'000'000;
    const std::uint64_t semilla = cuantasPalabras > 2 ? std::strtoull(palabras[2], nullptr, 10) : 1;
    bool bien = cuantas > 0;
    for (const Clase& clase : Clases)
        bien = Compara(clase, cuantas, semilla) && bien;
    return bien ? 0 : 1;
}
