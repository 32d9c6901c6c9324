// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The buttons of ToolbarUEHs, the bar of the graphic editor.
namespace editor {

enum class Boton : std::uint8_t {
    Selecciona,
    UEH,
    Cauce,
    Represa,
    LAGO,
    LongArea,
    BorraTodo,
    SUEH,
    GuardaUEHs,
    Salir,
};

/// A button, its key, and whether it sets the mode.
struct FilaBoton {
    Boton boton;
    std::string_view clave;
    bool modo;
    std::string_view ayuda;  ///< what its tip says
};

// clang-format off
inline constexpr auto BotonesUEHs = std::to_array<FilaBoton>({
    {Boton::Selecciona, "btn_toolbarSelecciona", true,  "Seleccionar y mover"},
    {Boton::UEH,        "btn_toolbarUEH",        true,  "Agregar UHE"},
    {Boton::Cauce,      "btn_toolbarCauce",      true,  "Dibujar Cauce, de aguas abajo hacia aguas arriba"},
    {Boton::Represa,    "btn_toolbarRepresa",    true,  "Agregar Represa"},
    {Boton::LAGO,       "btn_toolbarLAGO",       true,  "Agregar Lago/Laguna"},
    {Boton::LongArea,   "btn_toolbarLongArea",   true,  "Medir longitud o área"},
    {Boton::BorraTodo,  "btn_toolbarBorraTodo",  false, "Borrar todos los componentes"},
    {Boton::SUEH,       "btn_toolbarSUEH",       false, ""},
    {Boton::GuardaUEHs, "btn_toolbarGuardaUEHs", false, "Guardar"},
    {Boton::Salir,      "btn_toolbarSalir",      false, "Salir"},
});
// clang-format on
inline constexpr std::size_t NroBotones = BotonesUEHs.size();
static_assert([] {
    for (std::size_t i = 0; i < NroBotones; ++i)
        if (BotonesUEHs[i].boton != static_cast<Boton>(i)) return false;
    return static_cast<std::size_t>(Boton::Salir) + 1 == NroBotones;
}());

}  // namespace editor
