// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "engine/Calcula.h"
#include "model/SiroDeclarado.h"

// A series of storms over a project, one after another or on several threads, and the file of its results.
namespace engine {

/// Name of the file of a series' results, in DirTrabajo.
inline constexpr std::string_view ArchivoTablaQDR = "SaleTablasQDRs_tem.txt";

/// How a series ended.
enum class FinSerie { Completa, SinTormentas, TormentaNula };

/// Runs the storms SerieP, SerieD, SerieR one after another with the Slate off and keeps peaks, volumes and
/// coefficients; then writes the table. `hilos`: threads to use, 0 for all cores; results, messages and their
/// order are those of one thread. `mira` is told of each storm but the last, which is run as a single one.
FinSerie CorreSeriePDR(model::Siro& s, int hilos = 1, const MiraTormenta& mira = {});

/// Loads storm IndSerie into PpTormenta, DurTormenta, RecTormenta and sets SaltarTormenta by the flags of the
/// configuration and by PasoPp.
void SaltaTormenta(model::Siro& s);

/// Writes SaleTablasQDRs_tem.txt and tells so. A failure is told and never thrown.
void GuardaTablaQDR(model::Siro& s);

}  // namespace engine
