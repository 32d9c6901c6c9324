// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frequency/Analisis.h"

// The two pictures that a law is chosen by, as numbers: whoever paints them decides nothing.
namespace frequency {

struct Punto {
    double x = 0, y = 0;
};

/// What a law looks like in a picture. A law without a shape is one point of the diagram of L-moments.
struct Curva {
    const Ley* ley = nullptr;
    std::vector<Punto> puntos{};  ///< by x
};

/// L-skew t3 and L-kurtosis t4 of a law, by integrating its quantile: Hosking 1990, equation 2.2.
RazonesL RazonesDe(const Ley& ley, const Parametros& p);

/// L-skew (x) against L-kurtosis (y): Hosking 1990; Hosking and Wallis 1997, section 2.7. Log-Pearson III has
/// no curve of its own: it fills a part of the plane.
struct DiagramaL {
    std::vector<Curva> leyes{};
    Punto muestra{};
    std::vector<Punto> nube{};    ///< samples of one law, where there was a bootstrap
    std::vector<Punto> elipse{};  ///< closed: 90 % of them, were they normal
};

/// The cloud is that of `deNube`; null: none.
DiagramaL DiagramaDe(const Analisis& a, const AjusteDeLey* deNube);

/// The scale of F on which a law is a straight line: Gumbel's variate -ln(-ln F) with depths as they are, the
/// normal one with their logarithms.
enum class Ejes : std::uint8_t { DeGumbel, DeLogNormal };

/// x of a probability of not being exceeded, 0 < F < 1.
double Reducida(Ejes ejes, double F);

/// A law on the paper, and its band at the recurrences of the tables; no bootstrap, no band.
struct CurvaDePapel {
    Curva curva{};
    std::vector<Punto> banda5{}, banda95{};
};

struct MarcaDePapel {
    double x = 0;
    std::string rotulo{};  ///< the recurrence [years]
};

/// Reduced variate (x) against depth (y) [mm]. Over logarithms what isn't above 0 is left out.
struct PapelDeProbabilidad {
    Ejes ejes = Ejes::DeGumbel;
    std::vector<Punto> datos{};  ///< the sample by its plotting positions
    std::vector<int> anios{};    ///< of each point
    std::vector<CurvaDePapel> leyes{};
    std::vector<MarcaDePapel> marcas{};  ///< by x
};

/// The laws that have parameters. `posicion`: a of (i - a) / (n + 1 - 2a), 0 to 0.5.
PapelDeProbabilidad PapelDe(const Analisis& a, Ejes ejes, double posicion = Cunnane);

}  // namespace frequency
