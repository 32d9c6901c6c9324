// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "rainfall/dlgPp.h"

// What each form of the rain makes of the controls of the storm dialog.
namespace rainfall {

/// A set of controls, a bit each.
using Conjunto = std::uint64_t;
static_assert(NroControles <= 64);

consteval Conjunto De(std::initializer_list<std::string_view> controles)
{
    Conjunto c = 0;
    for (const std::string_view control : controles) {
        const std::size_t i = forms::LugarDe(ControlesDlgPp, control);
        if (i == NroControles) throw control;  // it doesn't build then
        c |= Conjunto{1} << i;
    }
    return c;
}

inline void Pon(dlgPp& f, Conjunto controles, bool EstadoControl::*que, bool valor)
{
    for (std::size_t i = 0; i < NroControles; ++i)
        if ((controles >> i & 1U) != 0) f.estados[i].*que = valor;
}

inline constexpr Conjunto Validez = De({"lblValidez", "lblDurMin", "lblDurMax"});
inline constexpr Conjunto Vistas = De({"cmdVerGrafico", "cmdVerTablaPt"});

// With each form these are disabled and hidden first.
inline constexpr Conjunto Deshabilitados =
    De({"txtPp", "txtDur", "cmbRec", "optTablaPDR", "cmdBorraPDR", "cmbPDR", "cmdTablaPDR"});
inline constexpr Conjunto Marcos =
    De({"Frame2", "Frame3", "Frame4", "Frame5", "Frame7", "Label9_0", "Label9_1"});

/// A form; a control that is named nowhere stays as it is.
struct FilaForma {
    Conjunto habilita, deshabilita, muestra, oculta;
};

// clang-format off
/// The index is FormaPp.
inline constexpr auto FilasForma = std::to_array<FilaForma>({
    {.habilita = De({"optformaPp", "txtPp", "txtDur", "cmbRec", "cmdPDR", "cmbPasoPp"}) | Vistas,
     .deshabilita = De({"cmdPpPerso"}),
     .muestra = De({"Frame2", "Frame4", "Frame5", "Label9_0", "Label9_1"}), .oculta = Validez},
    {.habilita = De({"cmdBorraPDR", "cmbPDR", "cmbPasoPp"}) | Vistas,
     .deshabilita = De({"cmdPDR", "cmdPpPerso"}),
     .muestra = De({"Frame2", "Frame4", "Frame5", "Label9_0", "Label9_1"}), .oculta = 0},
    {.habilita = De({"optTablaPDR", "cmbPasoPp"}),
     .deshabilita = De({"cmdPDR", "cmdPpPerso"}) | Vistas,
     .muestra = De({"Frame2", "Frame3", "Frame5", "Label9_0", "Label9_1"}), .oculta = 0},
    {.habilita = De({"cmdCargaPDRnoUniforme", "cmbRec", "cmbPasoPp"}),
     .deshabilita = De({"cmdPpPerso"}) | Vistas,
     .muestra = De({"Frame2", "Frame5", "Label9_1"}), .oculta = Validez},
    {.habilita = 0,
     .deshabilita = De({"cmbPasoPp"}) | Vistas,
     .muestra = De({"Frame2", "Frame7", "Label9_0"}), .oculta = 0},
});
// clang-format on
static_assert(FilasForma.size() == FormasPp.size());

}  // namespace rainfall
