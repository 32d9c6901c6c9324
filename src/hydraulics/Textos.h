// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "hydraulics/Interpola.h"
#include "model/Siro.h"

namespace hydraulics {

/// The lookups that speak to the user.
enum class Funcion {
    SdeHRepresa,
    SdeHLago,
    HdeSRepresa,
    HdeSLago,
    AdeHRepresa,
    AdeHLago,
    HdeARepresa,
    QdeHRepresa,
    QdeHLago,
    HdeQalmaRepresa,
    HdeQalmaLago,
};

/// What is wrong: the argument lies above or below the table, or the bisection doesn't come to an end.
enum class Caso { Encima, Debajo, SinFin };

/// Words of a box: first text + name of the component + second text.
struct TextoConsulta {
    Funcion funcion;
    Caso caso;
    std::string_view primero;
    std::string_view segundo;
    std::string_view titulo;
};

/// Returns the words for a case; a lookup has Encima and Debajo, an inverse of the outflow has SinFin.
const TextoConsulta& TextoDe(Funcion funcion, Caso caso);

/// Returns a reading from inside the table as it stands. For one from outside it asks whether to go on:
/// Yes gives 0, No ends the program.
double ValorOConsulta(const model::Siro& s, Funcion funcion, const std::string& nombre,
                      const Lectura& lectura);

/// Tells that the bisection doesn't come to an end, and ends the program.
void TerminaSinFin(const model::Siro& s, Funcion funcion, const std::string& nombre);

}  // namespace hydraulics
