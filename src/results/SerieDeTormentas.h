// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/Resultados.h"
#include "model/SiroDeclarado.h"

// What the windows of the results share: the component on show, the storms of a series.
namespace results {

/// Names of the components of the last run: Secuencia from 1 on.
std::vector<std::string> Componentes(const model::Resultados& r);

/// Name of the component IndComp. Throws Falla 9 where Secuencia has none.
const std::string& NombreComponente(const model::Siro& s);

/// IndComp becomes 1 where it is no component.
void AcotaIndComp(model::Siro& s);

/// Takes an item of a list of components as IndComp: the first of that name.
void TomaComponente(model::Siro& s, const std::vector<std::string>& lista, std::size_t item);

/// Takes storm IndSerie of the series as the storm in hand and tells whether the windows leave it out: a
/// duration below PasoPp, or a duration or recurrence whose box in the configuration isn't ticked. A value
/// without a box passes. Excluida keeps its value for a storm of depth or duration 0. Throws Falla 9 for a
/// storm outside the series.
///
/// The boxes as they stand decide here, the flags in a run: the two may differ for R 500 and R 5000.
void FiltroTormenta(model::Siro& s, bool& Excluida);

/// The storm in hand has no depth or no duration.
bool TormentaNula(const model::Siro& s);

/// Path of the project's configuration file.
std::string ArchivoDeProyecto(const model::Siro& s);

}  // namespace results
