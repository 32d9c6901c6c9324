// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "rainfall/ImportaTormenta.h"
#include "rainfall/dlgPp.h"

// Rules of the form that shows a record of rain as it would become a storm, and lets the user pick its step.
namespace rainfall {

inline constexpr std::string_view TituloDlgImportaTormenta = "Importar una tormenta registrada";

// clang-format off
inline constexpr auto LeyendasDlgImportaTormenta = std::to_array<forms::FilaRotulo>({
    {"lblArchivo",        "Archivo:"},
    {"lblRegistro",       "Registro:"},
    {"cmbPaso",           "&Paso t [min]:", "Cada lámina se reparte por igual desde la lectura anterior; el total se conserva"},
    {"lblResultado",      "Resultado:"},
    {"grillaDudosos",     "Renglones dudosos del archivo"},
    {"grillaImportada",   "Vista previa: tormenta Pp[mm] - t [min]"},
    {"laminaImportada",   "Hietograma de la vista previa"},
    {"OKButton",          "&Importar"},
    {"CancelButton",      "&Cancelar"},
});
// clang-format on

struct dlgImportaTormenta {
    bool abierta = false;
    bool aceptada = false;
    std::string lblArchivo{}, lblRegistro{}, lblResultado{};
    std::string cmbPaso{};  ///< [min]
    std::vector<std::string> itemsPaso{};
    bool puedeImportar = false;  ///< the step does; otherwise lblResultado tells why not
    forms::Grilla grillaImportada{};
    forms::Grilla grillaDudosos{};  ///< lines of the record that need a look, and what is made of each
    forms::RegistroLluvia registro{};
    TormentaImportada tormenta{};
};

/// Lets the user choose a file and reads it. Returns false where there is nothing to show: the choice was
/// cancelled, or the file is no record, which is told.
bool Abre(dlgImportaTormenta& f, const model::Siro& s);

/// Another step was picked or is being typed.
void cmbPaso_Change(dlgImportaTormenta& f);

void OKButton(dlgImportaTormenta& f);
void CancelButton(dlgImportaTormenta& f);

/// Hyetograph of what would be imported.
forms::Grafico Vista(const dlgImportaTormenta& f);

}  // namespace rainfall
