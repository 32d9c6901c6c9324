// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Entorno_ventana.h"
#include "model/Anfitrion.h"

// Boxes, questions, requests and the choice of a file, as the desktop shows them.
namespace forms {

/// Name of the program, the title of a box that has none of its own.
inline constexpr char NombrePrograma[] = "SIRO";

/// Fills in what of the host needs no window of its own: boxes, questions, requests, the choice of a file,
/// the clock, the end of the program. Their buttons read "Aceptar", "Cancelar", "Sí", "No" whatever the
/// desktop's language.
void PonCajas(model::Anfitrion& anfitrion, Entorno& entorno);

}  // namespace forms
