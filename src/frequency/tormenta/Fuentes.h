// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/tormenta/Diseno.h"
#include "model/SiroDeclarado.h"
#include "study/Taller.h"

// Where the storm of a study comes from: its curves of intensity, a recorded storm of the project.
namespace frequency {

/// Makes the curves of a study, or says why it can't.
void PonCurvas(FuentesDeTormenta& fuentes, const study::Idf& idf,
               const std::vector<study::Estacion>& estaciones);

/// Reads the recorded storm where the pattern is one.
void PonGrabada(FuentesDeTormenta& fuentes, const study::TormentaDeDiseno& t, const model::Siro& s);

}  // namespace frequency
