// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "frequency/Ley.h"
#include "frequency/idf/AjusteDeFamilia.h"
#include "frequency/idf/Desagregacion.h"
#include "model/Configuracion.h"

// Intensity and depth for any duration and recurrence, from what the user chose in the workshop.
namespace frequency::idf {

/// A law of one duration's maxima, as it was taken.
struct LeyDeDuracion {
    double duracion = 0;  ///< [min]
    const Ley* ley = nullptr;
    Parametros p{};
    double p0 = 0;             ///< the part of the years that is without rain
    double factor = 1;         ///< of its quantiles, from a day's reading to 24 hours or back
    bool recomendada = false;  ///< nobody chose it
    std::size_t anios = 0;
};

/// The curves, or why there are none. Texts are Spanish sentences with their full stop.
struct Curvas {
    std::vector<std::string> errores{};            ///< empty: there are curves
    std::vector<std::string> avisos{};             ///< what is to be known of them
    std::vector<LeyDeDuracion> leyes{};            ///< by duration; none where the coefficients are typed
    const Desagregacion* desagregacion = nullptr;  ///< null where the maxima are of several durations
    Datos datos{};                                 ///< of it
    std::vector<Punto> puntos{};                   ///< that the family was fitted to
    AjusteDeFamilia ajuste{};  ///< without a family the curves are those of the disaggregation
    const Reduccion* reduccion = nullptr;
    double area = 0, factorPropio = 1;
};

/// Maxima, fits and disaggregation of a station, a family's fit, and all that is to be said of them. The
/// tables' durations and recurrences are those of model/Configuracion.h.
Curvas Calcula(const study::Idf& pedido, std::span<const study::Estacion> estaciones);

/// Intensity [mm/h] over the area, for a duration [min] and a recurrence [years, above 1]; not a number where
/// there is none.
double Intensidad(const Curvas& curvas, double duracion, double recurrencia);
/// Depth [mm] of the same.
double Lamina(const Curvas& curvas, double duracion, double recurrencia);
/// What a point's depth is multiplied by; 1 without a reduction.
double FactorAreal(const Curvas& curvas);

/// Depths [mm] of the tables of storms: a row per duration of model::Duraciones, a column per recurrence of
/// model::Recurrencias.
using TablaDeLaminas = std::array<std::array<double, model::Recurrencias.size()>, model::Duraciones.size()>;
TablaDeLaminas TablaDe(const Curvas& curvas);

/// Where depth doesn't grow with duration or with recurrence, a sentence each; none: it grows everywhere.
/// Cells that aren't numbers are passed over.
std::vector<std::string> Cruces(const TablaDeLaminas& tabla);

}  // namespace frequency::idf
