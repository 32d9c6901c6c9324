// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "engine/Memoria.h"
#include "model/SiroDeclarado.h"

// The main process: a storm, once its hyetograph stands, through the network in memory.
namespace engine {

/// Name of the file of a run's text, in DirTrabajo.
inline constexpr std::string_view ArchivoPizarra = "SalePizarra1_tem.txt";

/// Runs the storm in hand through the network in memory: rain to runoff on the UEHs, then the reaches, Lagos
/// and Represas in the order of computation. Fills the result arrays and TextoPizarra; with GuardaTexto the
/// text also goes to SalePizarra1_tem.txt. A check that fails shows its message and ends the run; a fault is
/// reported and the run goes on at the next statement. Returns false where a check ended the run.
bool ProcesoPrincipal(model::Siro& s, bool GuardaTexto);

/// How a run among several is made.
struct ModoCorrida {
    bool GuardaTexto = false;
    bool ConTexto = true;      ///< TextoPizarra is built; off, it keeps what the Slate's box holds
    bool ConVolumenes = true;  ///< VolEntra and VolSale are worked out; off, they keep what they held
};

/// The same for whoever makes several runs of one network: what doesn't depend on the storm is worked out
/// once and kept in `memoria`. Gives the same bits.
bool ProcesoPrincipal(model::Siro& s, ModoCorrida modo, Memoria& memoria);

}  // namespace engine
