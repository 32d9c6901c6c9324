// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the Slate, the window that shows the tables of a run as the engine builds them.
namespace results {

inline constexpr std::string_view TituloFrmPp = "Pizarra de Variables y Salidas";
inline constexpr std::string_view TituloGuardaPizarra = "Guardar el texto de la Pizarra";
inline constexpr std::string_view FiltroTexto = "Texto |*.txt";
inline constexpr std::string_view NombrePizarra = "Pizarra.txt";

// clang-format off
inline constexpr auto RotulosFrmPp = std::to_array<forms::FilaRotulo>({
    {"txtBuscar",         "&Texto:"},
    {"cmdBuscaAnterior",  "A&nterior", "Mayúsculas+F3"},
    {"cmdBuscaSiguiente", "Sig&uiente", "F3"},
    {"cmdCierraBusqueda", "Ce&rrar búsqueda", "Esc"},
    {"cmdBuscar",         "&Buscar...", "Busca un texto en la Pizarra (Ctrl+F)"},
    {"cmdGuardar",        "&Guardar...", "Guarda el texto en un archivo (Ctrl+S)"},
    {"CmdImprimir",       "&Imprimir", "Imprime la ventana tal como se ve (Ctrl+P)"},
    {"cmdCerrar",         "&Cerrar"},
});
// clang-format on

/// A stretch of the Slate's text. A character outside the basic plane of Unicode counts as one.
struct Hallazgo {
    std::size_t linea = 0;    ///< from 0
    std::size_t columna = 0;  ///< first character, from 0
    std::size_t largo = 0;    ///< characters; 0: nothing found
    bool operator==(const Hallazgo&) const = default;
};

/// Search in the text, which takes capital and small letters for the same, accented ones too.
struct Busqueda {
    bool abierta = false;     ///< its line is on show
    std::string buscado{};    ///< what is looked for, as typed
    std::string aviso{};      ///< what came of it, where that needs telling
    Hallazgo hallado{};       ///< to be shown as the selection
    std::size_t desde = 0;    ///< first byte of what was found last
    std::uint64_t veces = 0;  ///< grows with each search, so that the same place is shown again
};

struct frmPp {
    bool abierta = false;
    std::string Text1{};           ///< UTF-8, lines ended by CR LF
    std::size_t caracteres = 0;    ///< length of Text1, CR and LF one each
    std::uint64_t reemplazos = 0;  ///< how often Text1 began anew; between two of them it only grows
    Busqueda busqueda{};
};

/// Opening sets the switch of the text and the tick of the menu entry.
void Abre(frmPp& f, model::Siro& s);
/// Closing, by its button, by the frame or by the menu, clears both. The text stays.
void Cierra(frmPp& f, model::Siro& s);
void cmdCerrar(frmPp& f, model::Siro& s);

// --- text ---

/// Puts a text in place of the one that is there.
void PonTexto(frmPp& f, std::string_view texto);
void AgregaTexto(frmPp& f, std::string_view texto);
/// The whole text of a run, of which Text1 holds the first part: the rest is appended. A text that is
/// shorter than what is there replaces it.
void AmpliaTexto(frmPp& f, std::string_view texto);

/// How long the text is, for the line below it.
std::string RotuloLargo(const frmPp& f);

/// Asks for a file and writes the text to it, as Windows-1252. A fault is told.
void GuardaTexto(const frmPp& f, const model::Siro& s);

// --- search ---

/// Opens the line of the search; the text that is selected, where it lies in one line, is what is looked for.
void AbreBusqueda(frmPp& f, std::string_view seleccionado);
void CierraBusqueda(frmPp& f);
/// What is looked for is being typed: finds it at the place found last or behind it.
void txtBuscar_Change(frmPp& f, std::string_view texto);
/// The next and the previous place. Beyond either end the search goes on at the other and says so.
void BuscaSiguiente(frmPp& f);
void BuscaAnterior(frmPp& f);

}  // namespace results
