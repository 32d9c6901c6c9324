// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "calibration/Puntajes.h"
#include "engine/Calcula.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

// A number that a run is looked at for.
namespace calibration {

/// What may be measured, by its key.
struct ClaseDeMedida {
    std::string_view clave;     ///< pico, tiempo, volumen, nivel, puntaje
    std::string_view nombre;    ///< of a list, "Pico"
    std::string_view conLetra;  ///< within a sentence, "el pico"
    std::string_view unidad;    ///< "m3/s"; empty: that of the score
};
std::span<const ClaseDeMedida> ClasesDeMedida();

/// A measure made ready for the runs of a model, which outlives it. A plain value: any thread may read it.
struct MedidaPuesta {
    study::Medida medida{};
    std::string motivo{};              ///< why it can't be taken, a sentence; empty: it can
    std::string nombre{};              ///< "el pico de r-Quelmar"
    std::string unidad{};              ///< "-" where it has none
    std::size_t lluvia = 0;            ///< the storm of the model that is run for it
    double paso = 0;                   ///< of the flows [min]
    int represa = 0, lago = 0;         ///< whose level it is, by number; 0: no level
    const Puntaje* puntaje = nullptr;  ///< none: no score
    study::Observacion observacion{};  ///< of the score, in m3/s
};
/// An empty component is the first outfall, of a level the first Represa or else Lago, of a score the event's
/// first observation.
MedidaPuesta PonMedida(const study::Medida& medida, const runs::Modelo& modelo,
                       std::span<const study::Evento> eventos);

/// The number of a run: the greatest outflow [m3/s], when it is first reached [min], the volume of the output
/// steps from 1 on as the Slate sums it [m3], the highest level [m], a score. None where the run has no such
/// component or the score isn't defined.
std::optional<double> Mide(const MedidaPuesta& medida, const engine::Calculo& calculo);

}  // namespace calibration
