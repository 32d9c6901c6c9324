// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "study/Ajuste.h"

// How close a simulated series comes to an observed one. S simulated, O observed, both in m3/s; every sum is
// one by weights: a pair of weight 2 counts as the same pair twice, one of weight 0 not at all.
namespace calibration {

/// A simulated value beside the observed one of the same time.
struct Par {
    double minuto = 0;  ///< [min since the storm's start]
    double simulado = 0;
    double observado = 0;
    double peso = 1;  ///< 0 or more
    int ventana = 0;  ///< the part of the time it belongs to: peaks are looked for in each
};

/// A score by its key.
struct Puntaje {
    std::string_view clave;    ///< "nse"
    std::string_view nombre;   ///< "Nash-Sutcliffe"
    std::string_view formula;  ///< a line
    std::string_view unidad;   ///< "-" where it has none
    double mejor;              ///< that of two equal series
    bool masEsMejor;           ///< false: the nearer to the best one, from either side, the better
    std::string_view fuente;   ///< author, year, title, pages
    /// None where it isn't defined: no pair with a weight, a divisor of 0, a value that is no number.
    std::optional<double> (*valor)(std::span<const Par>);
};

/// All of them: nse, log_nse, kge, kge2012, kge_np, rsr, mae, rmse, volumen, pico, tiempo_pico.
std::span<const Puntaje> Puntajes();
/// Null where there is none of that key.
const Puntaje* PuntajeDe(std::string_view clave);

/// What a search makes small: the distance to the best value; infinite where the score isn't defined, so that
/// it is never the best and never a NaN.
double Perdida(const Puntaje& puntaje, std::optional<double> valor);

/// A score as text, "0.912" or "no está definido"; errors with their sign.
std::string Texto(const Puntaje& puntaje, std::optional<double> valor);

/// What the pairs say in one line, without a full stop: "sobrestima el volumen 6 %, el pico llega 20 min
/// tarde". What rounds to nothing is left out; empty where there is nothing to compare.
std::string EnPalabras(std::span<const Par> pares);

// --- pairs ---

/// Values at 0, paso, 2 paso ... [min], as a run leaves them.
struct SerieSimulada {
    std::span<const float> valores{};
    double paso = 0;  ///< [min], above 0
};

struct Emparejados {
    std::vector<Par> pares{};  ///< with a weight above 0, by time
    int fuera = 0;             ///< observations at times that the run doesn't reach
    int sinPeso = 0;           ///< in a window of weight 0, or in none where there are windows
    int sinValor = 0;          ///< that are no number
};

/// The window that a time belongs to: of those that hold it the last one listed; -1 where none does.
int VentanaDe(std::span<const study::Ventana> ventanas, double minuto);

/// A simulated series at the times of an observed one: between two steps along the straight line, or, where
/// observations are averages, the mean of that line over the minutes before each. `puntos` are the
/// observation's in the series' unit. Nothing is filled in: where nothing was observed there is no pair.
Emparejados Empareja(const SerieSimulada& simulada, const study::Observacion& observacion,
                     std::span<const study::Punto> puntos);

/// How many, in a sentence: "48 pares; 3 observaciones fuera del tiempo calculado."
std::string CuantosPares(const Emparejados& e);

}  // namespace calibration
