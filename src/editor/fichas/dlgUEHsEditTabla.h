// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the tabular editor: the numeric data of all reaches and all UEHs at once, in two grids. Its limits
// differ in places from those of the forms of one component, on purpose.
namespace editor {

inline constexpr std::string_view TituloDlgUEHsEditTabla =
    "Tabla de Edición de datos entrada: Parámetros Físicos UHEs";
inline constexpr std::string_view AyudaGrillasEditTabla =
    "Las celdas de datos con fondo blanco pueden modificarse desde esta tabla";
inline constexpr auto RotulosDlgUEHsEditTabla = std::to_array<forms::FilaRotulo>({
    {"lblProyecto", "Proyecto:"},
    {"lblFileProyecto", "Archivo de Proyecto:"},
    {"MSFlexGridEditCauces", "Cauces", AyudaGrillasEditTabla},
    {"MSFlexGridEditUEHs", "UEHs", AyudaGrillasEditTabla},
    {"OKButton", "&Aceptar"},
    {"cmdCancel", "&Cancel"},  // kept as it stands
});
/// Share of the screen's width and height that the window takes.
inline constexpr double AnchoEditTabla = 0.97;
inline constexpr double AltoEditTabla = 0.95;

struct dlgUEHsEditTabla {
    bool abierta = false;
    std::string lblProyecto{}, lblFileProyecto{};
    forms::Grilla MSFlexGridEditCauces{}, MSFlexGridEditUEHs{};
    std::vector<forms::FilaGrilla> caucesLeidos{}, UEHsLeidas{};  ///< rows of the grids as they were read
};

/// Opening and every activation: reads the components anew from disk and fills both grids, the cursor of each
/// in its first cell that can be edited.
void Abre(dlgUEHsEditTabla& f, model::Siro& s);

/// Takes the cells into the components in memory, each text by its leading number, asks whether to save them,
/// and closes. After a No memory and disk differ. A number outside its type is told and leaves the form open.
void OKButton(dlgUEHsEditTabla& f, model::Siro& s);

void cmdCancel(dlgUEHsEditTabla& f);

/// Whether the grids hold what hasn't been taken into the components.
bool SinAplicar(const dlgUEHsEditTabla& f);

}  // namespace editor
