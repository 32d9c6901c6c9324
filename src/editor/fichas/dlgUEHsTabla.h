// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the overview of all parameters: one grid, which can't be edited, of reaches, UEHs, Lagos and
// Represas.
namespace editor {

inline constexpr std::string_view TituloDlgUEHsTabla =
    "Tabla de datos de Entradas: Parámetros Físicos de las UHEs";
inline constexpr auto RotulosDlgUEHsTabla = std::to_array<forms::FilaRotulo>({
    {"lblProyecto", "Proyecto:"},
    {"lblTitulo", "Título:"},
    {"lblFileProyecto", "Archivo de Proyecto:"},
    {"MSFlexGridTablaUEHs", "Parámetros de la red"},
    {"cmdActualizar", "&Actualizar cambios"},
    {"OKButton", "&Cerrar"},
});

struct dlgUEHsTabla {
    bool abierta = false;
    std::string lblProyecto{}, lblTitulo{}, lblFileProyecto{};
    /// A row of titles ahead of each kind of component; a Represa has a row per outflow function.
    forms::Grilla MSFlexGridTablaUEHs{};
};

/// Opening and every activation: reads components and tables anew from disk and builds the grid.
void Abre(dlgUEHsTabla& f, model::Siro& s);

/// The same by command: what other forms have saved, not what is in memory.
void cmdActualizar(dlgUEHsTabla& f, model::Siro& s);

void OKButton(dlgUEHsTabla& f);

}  // namespace editor
