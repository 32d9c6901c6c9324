// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Historia.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "shell/Diario.h"

// What a program that ended by itself had in hand and not saved: looked at, brought back, given up.
namespace shell {

inline constexpr std::string_view TituloDlgRecuperar = "Trabajo sin guardar";

// clang-format off
inline constexpr auto RotulosDlgRecuperar = std::to_array<forms::FilaRotulo>({
    {"lstTrabajos",   "&Trabajos:",        "Lo que quedó sin guardar cuando el programa se cortó, un renglón por vez"},
    {"lblProyecto",   "Proyecto:"},
    {"lblCuando",     "Último cambio:"},
    {"lblRed",        "Dibujo:"},
    {"lblFormas",     "Ventanas:"},
    {"lblArchivos",   "Archivos:"},
    {"VistaGuardada", "Como está guardado"},
    {"VistaHallada",  "Como se recupera"},
    {"txtFormas",     "&Lo escrito en las ventanas:"},
    {"cmdCopiar",     "&Copiar",           "Copia lo escrito en las ventanas, para pegarlo donde haga falta"},
    {"OKButton",      "&Recuperar",        "Abre el proyecto y pone el trabajo en el editor, sin guardarlo"},
    {"cmdDescartar",  "&Descartar...",     "Lo tira a la papelera"},
    {"CancelButton",  "&Más tarde",        "Lo deja como está; se ofrece otra vez al abrir el proyecto"},
});
// clang-format on

/// Something unsaved, looked at beside what is saved.
struct TrabajoHallado {
    DiarioHallado hallado{};
    std::optional<editor::RedGuardada> red{};       ///< of a drawing that wasn't saved
    std::optional<editor::RedGuardada> guardada{};  ///< as the project's files have it
    editor::Diferencia diferencia{};
    std::vector<std::string> cambiados{};  ///< files of the project that have changed since
};

/// Reads the project's files beside a journal.
TrabajoHallado Mira(const model::Siro& s, DiarioHallado hallado);

/// Whether all of it is in the project's files: the program ended between the save and its last look.
bool EstaGuardado(const TrabajoHallado& trabajo);

struct dlgRecuperar {
    bool abierta = false;
    std::vector<TrabajoHallado> trabajos{};
    std::vector<std::string> lstTrabajos{};  ///< a line each
    int elegido = -1;                        ///< from 0
    std::string lblProyecto{}, lblCuando{}, lblRed{}, lblFormas{}, lblArchivos{};
    std::string txtFormas{};                 ///< what the forms held
    std::optional<TrabajoHallado> pedido{};  ///< what the user wants back, once the form is closed

    [[nodiscard]] const TrabajoHallado* EnMano() const
    {
        return elegido < 0 ? nullptr : &trabajos[static_cast<std::size_t>(elegido)];
    }
    [[nodiscard]] bool SePuede() const { return EnMano() != nullptr && EnMano()->hallado.dano.empty(); }
};

/// Opens it on the newest; with none it stays closed.
void Abre(dlgRecuperar& f, std::vector<TrabajoHallado> trabajos);
void lstTrabajos_Click(dlgRecuperar& f, int linea);
/// Asks for the one in hand and closes.
void OKButton(dlgRecuperar& f);
/// Asks, and puts it into the trash, or among those given up where there is none.
void cmdDescartar(dlgRecuperar& f, const model::Siro& s);
void CancelButton(dlgRecuperar& f);

}  // namespace shell
