// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "results/TablaQDR.h"

// Rules of the table of a series' results for every component.
namespace results {

inline constexpr std::string_view TituloDlgTablaSalePDR =
    "Serie de Tormentas Sintéticas: Resumen de Qpico, Escorrentía y Coef. Esc.";

struct dlgTablaSalePDR : FormaTablaQDR {};

void Abre(dlgTablaSalePDR& f, model::Siro& s);

/// Fills the table again, also as the window comes to the front: it follows the boxes of the configuration.
void cmdAplicarCambios(dlgTablaSalePDR& f, model::Siro& s);

}  // namespace results
