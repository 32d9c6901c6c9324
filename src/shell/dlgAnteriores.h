// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Lista.h"
#include "forms/Rotulo.h"
#include "model/Anteriores.h"
#include "shell/ComparaVersiones.h"

// Rules of the window of a project's previous versions: their list, what one of them differs in, how it comes
// back.
namespace shell {

inline constexpr std::string_view TituloDlgAnteriores = "Versiones anteriores";

// clang-format off
inline constexpr auto RotulosDlgAnteriores = std::to_array<forms::FilaRotulo>({
    {"cmbProyecto",    "&Proyecto:", "Los proyectos de los que hay versiones, también los que ya no están"},
    {"tblVersiones",   "Versiones", "Cada una es lo que el proyecto tenía hasta que un guardado lo reemplazó; se guardan las diez últimas"},
    {"cmbContra",      "&Diferencias con:", "Con qué se compara la versión elegida"},
    {"tblDiferencias", "Diferencias", "Componentes con sus campos, y renglones de los demás archivos"},
    {"lblEntonces",    "Como estaba:"},
    {"lblAhora",       "Como está ahora:"},
    {"cmdTraer",       "&Traer de vuelta", "Pone los archivos de la versión elegida en lugar de los de ahora, que quedan como una versión más"},
    {"cmdAparte",      "Abrir &aparte...", "Escribe la versión elegida en otra carpeta y la abre allí"},
    {"cmdCopiar",      "C&opiar las diferencias", "Copia la tabla de diferencias"},
    {"OKButton",       "&Cerrar"},
});
// clang-format on

struct dlgAnteriores {
    bool abierta = false;
    forms::Lista cmbProyecto{};                         ///< paths of projects
    std::vector<model::FichaDeVersion> fichas{};        ///< of the project's versions, the newest first
    std::vector<std::optional<VersionLeida>> leidas{};  ///< of each; none: damaged
    VersionLeida ahora{};                               ///< the project as it is; no file: it isn't there
    std::size_t elegida = 0;                            ///< place of the version chosen; their number: none
    forms::Lista cmbContra{{"lo de ahora", "la versión que la precede"}, 0};
    forms::Cuadro tblVersiones{}, tblDiferencias{};
    std::string lblQueHacer{};  ///< why there is no version, or why this one can't be read

    [[nodiscard]] std::string Proyecto() const { return cmbProyecto.Elegido(); }
    /// The version chosen; nullptr: none, or a damaged one.
    [[nodiscard]] const VersionLeida* Elegida() const
    {
        return elegida < leidas.size() && leidas[elegida] ? &*leidas[elegida] : nullptr;
    }
};

/// Date and time of the machine, "23/11/2026 02:25".
std::string Momento(std::int64_t segundos);

/// Opening: the project in hand, its versions, the newest chosen.
void Abre(dlgAnteriores& f, const model::Siro& s, const model::Anteriores& anteriores);
void cmbProyecto_Click(dlgAnteriores& f, const model::Anteriores& anteriores);
/// Another version is chosen, another one to compare with.
void Elige(dlgAnteriores& f, std::size_t cual);

/// Asks, settles an unsaved drawing, and puts the version chosen in the place of the project's files; one
/// that is in hand is read again. Returns whether it was done; faults are told.
bool cmdTraer(dlgAnteriores& f, model::Siro& s, const model::Anteriores& anteriores);

/// Asks for a folder, writes the version chosen there and opens it. Returns whether it was done; faults are
/// told.
bool cmdAparte(dlgAnteriores& f, model::Siro& s, const model::Anteriores& anteriores);

/// The table of differences with what they are of above it.
forms::Planilla ComoPlanilla(const dlgAnteriores& f);

void OKButton(dlgAnteriores& f);

}  // namespace shell
