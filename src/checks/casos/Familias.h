// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

// The cases by families, a file each: to add one is to add a row and the function that runs it.
namespace checks::casos {

/// What a case's run gives: columns of one length.
struct Comparacion {
    std::vector<double> x, impreso, nuestro;
};

/// One figure of the source at a place of a curve, whose steps count from 0: the rest of the curve is shown,
/// and not compared.
inline Comparacion UnaCifra(std::vector<double> nuestro, std::size_t lugar, double impreso)
{
    Comparacion c;
    c.impreso.assign(nuestro.size(), std::numeric_limits<double>::quiet_NaN());
    c.impreso.at(lugar) = impreso;
    for (std::size_t k = 0; k < nuestro.size(); ++k)
        c.x.push_back(static_cast<double>(k));
    c.nuestro = std::move(nuestro);
    return c;
}

/// A case before it is run; `Caso` tells what its texts are.
struct FilaDeCaso {
    std::string_view nombre, fuente, entrada, magnitud, eje;
    double tolerancia;
    std::string_view porque;
    bool recalculado;
    Comparacion (*corre)();
};

std::span<const FilaDeCaso> EmbalsesDeLibro();  ///< level pool, Runge-Kutta, linear reservoir of the books
std::span<const FilaDeCaso> Tramos();           ///< reaches: Muskingum of the books, direct routing
std::span<const FilaDeCaso> UEHs();             ///< translation, infiltration, recession
std::span<const FilaDeCaso> Almacenamiento();   ///< storage and height of bodies with a known volume
std::span<const FilaDeCaso> Convergencia();     ///< the pool's methods against the continuous solution
std::span<const FilaDeCaso> BalanceDeRedes();   ///< what enters and what leaves random networks

}  // namespace checks::casos
