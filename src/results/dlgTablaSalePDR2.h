// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "results/TablaQDR.h"

// Rules of the table of a series' results for a component picked from a list.
namespace results {

inline constexpr std::string_view TituloDlgTablaSalePDR2 =
    "Serie de Tormentas Sintéticas: Resumen Qp-D-R - E-D-R - CE-D-R por Componente";

struct dlgTablaSalePDR2 : FormaTablaQDR {
    std::vector<std::string> lstCompos{};  ///< Secuencia from 1 on
    int lstComposIndice = -1;              ///< item selected, from 0; -1: none
};

/// Opening. Without components the window closes itself.
void Abre(dlgTablaSalePDR2& f, model::Siro& s);

/// Fills the table again, also as the window comes to the front: it follows the boxes of the configuration.
/// The component is the one that has the selected name by now, the first one where none has. Without
/// components the window closes itself.
void cmdAplicarCambios(dlgTablaSalePDR2& f, model::Siro& s);

/// A component was picked; with none selected nothing happens.
void lstCompos_Click(dlgTablaSalePDR2& f, model::Siro& s);

}  // namespace results
