// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "forms/Rotulo.h"

// The controls of the storm dialog, which of them can be used and are shown, and what each form of the rain
// makes of that.
namespace rainfall {

/// Controls of the dialog. An indexed control that is enabled as a whole is one of them. A caption is that of
/// a button, a frame or a label, or of the label beside a field; none where there are several or where the
/// record gives the text.
// clang-format off
inline constexpr auto ControlesDlgPp = std::to_array<forms::FilaRotulo>({
    {"optformaPp",            ""},
    {"txtPp",                 "&Precipitación Pp [mm]:"},
    {"txtDur",                "&Duración D [min]:"},
    {"cmbRec",                "&Recurrencia R [años]:"},
    {"cmbPDR",                "&Lista de tormentas archivadas:"},
    {"optDistriPp",           ""},
    {"optTablaPDR",           ""},
    {"cmbPasoPp",             "Paso de &entrada (Precipitación) [min]:"},
    {"cmbPasoQ",              "Paso de &salida (Caudales) [min]:"},
    {"FilePpReal",            "Archi&vos de tormentas:"},
    {"cmdAplicar",            "&Aplicar"},
    {"OKButton",              "&Aceptar"},
    {"CancelButton",          "&Cancelar"},
    {"cmdVerGrafico",         "&Gráfico P-t"},
    {"cmdVerTablaPt",         "Ver Tabla P-t"},
    {"cmdPDR",                "Cargar Tormenta a Lista b)"},
    {"cmdBorraPDR",           "Eliminar de Lista una tormenta ( P-t )"},
    {"cmdTablaPDR",           "Cargar Tabla Pp-D-R"},
    {"cmdPpPerso",            "Cargar Tabla Personalizada "},
    {"cmdPpReal",             "Cargar lluvia Real (P-t)"},
    {"cmdCargaPDRnoUniforme", "Cargar datos",
     "Abre la Tabla para carga de datos de lluvia por SubCuenca o UEH (Lluvias No uniformes en el área)"},
    {"Frame2",                "a) Lluvia (Pp), Duración (D) y Recurrencia (R)"},
    {"Frame3",                "c) Tabla de Pp-D-R"},
    {"Frame4",                "b) Lista archivada"},
    {"Frame5",                "Distribución temporal"},
    {"Frame7",                "Lluvias Reales"},
    {"lblValidez",            "Validez: Duración [minutos]    Min        -    Máxima"},
    {"lblDurMin",             ""},
    {"lblDurMax",             ""},
    {"Label9_0",              "Lluvias Sintéticas de distribución areal UNIFORME"},
    {"Label9_1",              "Lluvias Sintéticas de distribución areal NO UNIFORME"},
    {"lblNumPer",             "Intervalos:"},
    {"lblMiFilePpReal",       "Tormenta:"},
});
// clang-format on

inline constexpr std::size_t NroControles = ControlesDlgPp.size();

/// Captions of optformaPp; the index is FormaPp.
inline constexpr auto FormasPp = std::to_array<std::string_view>({
    "a) Ingresar una lluvia (Pp), de Duración (D) y Recurrencia(R) y asignar una distribución temporal tipo",
    "b) Cargar una tormenta  Pp-D-R desde Lista archivada",
    "c) Cargar una tabla de Pp-D-R desde archivo",
    "d) Cargar una Pp-D-R por cada UEH",
    "Lluvias Reales",
});

/// What a control shows of itself beside its text.
struct EstadoControl {
    bool habilitado = true;
    bool visible = true;
    bool operator==(const EstadoControl&) const = default;
};

using EstadosDePp = std::array<EstadoControl, NroControles>;

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

inline void Pon(EstadosDePp& estados, Conjunto controles, bool EstadoControl::*que, bool valor)
{
    for (std::size_t i = 0; i < NroControles; ++i)
        if ((controles >> i & 1U) != 0) estados[i].*que = valor;
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
