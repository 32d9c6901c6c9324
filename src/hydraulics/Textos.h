// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "hydraulics/CompActual.h"
#include "hydraulics/Interpola.h"

// What the lookups say to the user.
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

/// A lookup by its two names; both are the same where a Lago has none.
struct Busqueda {
    Funcion deRepresa, deLago;
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
double ValorOConsulta(const CompActual& c, Busqueda busqueda, const Lectura& lectura);

/// Tells that the bisection doesn't come to an end, and ends the program.
void TerminaSinFin(const CompActual& c, Busqueda busqueda);

}  // namespace hydraulics
