// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "results/TablaQDR.h"

// Rules of the table of a series' results for every component.
namespace results {

inline constexpr std::string_view TituloDlgTablaSalePDR =
    "Serie de Tormentas Sintéticas: Resumen de Qpico, Escorrentía y Coef. Esc.";

struct dlgTablaSalePDR {
    bool abierta = false;
    TablaQDR MSFlexGridTablaSaleQDR{};
    VistaTablaQDR vista{}, vistaGuardada{};
};

void Abre(dlgTablaSalePDR& f, model::Siro& s);

/// The window came to the front: the table follows the boxes of the configuration.
void AlActivar(dlgTablaSalePDR& f, model::Siro& s);

/// Fills the table again.
void cmdAplicarCambios(dlgTablaSalePDR& f, model::Siro& s);

/// A heading was clicked.
void AlPulsarEncabezado(dlgTablaSalePDR& f, int columna);

void OKButton(dlgTablaSalePDR& f);

/// What is printed is the grid alone; afterwards every control is as it was.
void AntesDeImprimir(dlgTablaSalePDR& f);
void DespuesDeImprimir(dlgTablaSalePDR& f);

}  // namespace results
