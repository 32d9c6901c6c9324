// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "checks/Verifica.h"
#include "empirical/Formulas.h"
#include "model/Configuracion.h"
#include "report/Documento.h"
#include "study/Estudio.h"

// What a memoria is made from, and what the user chose of it: plain values.
namespace report {

struct Datos {
    /// Of a single storm; null: none was run.
    std::shared_ptr<const checks::UltimaCorrida> tormenta{};
    /// Of a series; null: none was run.
    std::shared_ptr<const checks::UltimaCorrida> serie{};
    model::Configuracion configuracion{};
    std::string archivoConf{};   ///< of the project, with its path
    std::string tormentaReal{};  ///< file of the recorded storm that was run, without its path; empty: none
    study::Estudio estudio{};
    /// Intervals of the recorded storm that the study's pattern is, as frequency::FuentesDeTormenta has them.
    std::vector<double> grabada{};
    std::vector<checks::Caso> casos{};  ///< of Verifica, the engine's suffice; none: it wasn't run
    std::string version{};              ///< of the program
    /// What has changed since the runs, in words, as checks::QueDifiere tells it; empty: they still hold.
    std::string cambios{};
};

struct Eleccion {
    std::string titulo{};     ///< empty: that of the project
    std::string autor{};      ///< empty: the operator of the configuration
    std::string comitente{};  ///< whom it is handed to; empty: not told
    char decimal = ',';       ///< or '.'
    std::string miles{};      ///< between thousands of numbers with five digits or more; empty: nothing
    Hoja hoja = Hoja::A4;
    std::vector<std::string> sinCapitulos{};  ///< by their keys, {red} in the template: left out
    /// Whose hydrographs, heights and abaci are shown; empty: those of the outfalls, the Represas and the
    /// Lagos, twelve at most.
    std::vector<std::string> componentes{};
    /// For the times of concentration; S is the basin's own where it is 0. None: without them.
    std::optional<empirical::DatosTc> tc{};
    std::string logo{};  ///< bytes of a picture
};

/// Components of the storm's run that have a hydrograph, in the order of computation.
std::vector<const checks::ComponenteCorrido*> EnOrden(const Datos& datos);
/// Their names: what Eleccion::componentes may hold.
std::vector<std::string> ComponentesConHidrograma(const Datos& datos);

}  // namespace report
