// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "study/Taller.h"

// Rain of a day spread over shorter durations, and rain of a point over an area: a row for each way.
namespace frequency::idf {

/// A coefficient that a way asks for, with its bounds.
struct Pedido {
    std::string_view simbolo, que;
    double menor = 0, mayor = 0;
    double siFalta = 0;  ///< what it is where nobody tells it; 0: it must be told
};

/// What a way works from: its coefficients in the order in which it asks for them, ratios by duration.
struct Datos {
    std::array<double, 2> c{};
    std::vector<study::Razon> razones{};
};

struct Desagregacion {
    std::string_view clave;  ///< as the command line names it
    std::string_view nombre;
    std::array<Pedido, 2> pide;
    std::size_t cuantos;  ///< coefficients that it asks for
    bool pideRazones;     ///< it is nothing without ratios
    bool deDiaria;        ///< starts from a day's reading: the step to 24 hours is inside
    /// Depth of a duration [min] as a part of that of 24 hours, or of a day's reading; not a number: none.
    double (*parte)(const Datos& datos, double duracion);
    double menor, mayor;  ///< durations that it is meant for [min]
    std::string_view formula;
    std::string_view fuente;
    std::string_view limites;
};

std::span<const Desagregacion> Desagregaciones();
const Desagregacion* DesagregacionDeClave(std::string_view clave);  ///< none: null

/// A ratio between the given ones, a line of logarithms; not a number outside them. They rise by duration.
double RazonDe(std::span<const study::Razon> razones, double duracion);

/// A station of the DIT model with its coefficients.
struct EstacionDit {
    std::string_view nombre;
    double A, B, C;
    std::string_view fuente;
};
std::span<const EstacionDit> EstacionesDit();

struct Reduccion {
    std::string_view clave, nombre;
    double (*factor)(double area, double propio);  ///< area [km2]; the user's own factor
    std::string_view formula, fuente;
    bool propia;  ///< the user's factor, the coefficient KA, is all of it
};

std::span<const Reduccion> Reducciones();
const Reduccion* ReduccionDeClave(std::string_view clave);  ///< none: null

}  // namespace frequency::idf
