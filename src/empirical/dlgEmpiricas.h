// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "empirical/Formulas.h"
#include "forms/CampoNumerico.h"
#include "forms/Rotulo.h"

// Rules of the calculator of peak discharges and times of concentration. It touches neither project nor disk,
// shows no message, and puts right in place what a field can't hold.
namespace empirical {

inline constexpr std::string_view TituloDlgEmpiricas =
    "Fórmulas Empiricas de Caudal Máximo y Tiempo de Concentración";
inline constexpr std::string_view LeyendaBtnCerrar = "&Cerrar";
inline constexpr std::string_view LeyendaLblSup = "Superficie [Km2]";

// Captions of the frames.
inline constexpr std::string_view MarcoDatosQp = "Datos para cálculo rápido de Qp, Caudal Pico [m3/s]";
inline constexpr std::string_view MarcoQp = "Estimaciones empíricas de Qp, Caudal Pico, [m3/s]";
inline constexpr std::string_view LineaQp = "En función de la superficie de la cuenca...";
inline constexpr std::string_view MarcoDatosTc = "Datos para estimar Tc, Tiempo de Concentración";
inline constexpr std::string_view MarcoTc = "Estimaciones empíricas de Tc, Tiempo de Concentración [min]";

struct dlgEmpiricas {
    bool abierta = false;
    std::string txtSup = "1";                     ///< S [km2]
    std::string txtLcauceP = "1";                 ///< L [km]
    std::string txtcauceH = "100";                ///< H [m]
    std::string txtPendiCP = "1";                 ///< i [%]
    std::string lblSup{};                         ///< repeats txtSup among the data of Tc
    std::array<std::string, NroFormulasQp> Qp{};  ///< results in the order of FormulasQp() [m3/s]
    std::array<std::string, NroFormulasTc> Tc{};  ///< results in the order of FormulasTc() [min]
    bool operator==(const dlgEmpiricas&) const = default;
};

/// Opening: nothing is computed before the first change.
void Abre(dlgEmpiricas& f);

/// The text of a field was changed: S is put between 1 and 10000 where it is zero or above, the slope between
/// 0 and 100; what depends on the field is computed.
void AlCambiar(dlgEmpiricas& f, std::string_view control);
/// The field was left: the same, but that only an S of zero is corrected.
void AlSalir(dlgEmpiricas& f, std::string_view control);

void btnCerrar(dlgEmpiricas& f);

/// Works out all peak discharges, where S is above 0, and then the times of concentration. A fault leaves 0,
/// a formula out of its range nothing.
void CalculaQp(dlgEmpiricas& f);

/// Works out the times of concentration. One of 0 or at fault leaves nothing.
void CalculaTc(dlgEmpiricas& f);

// clang-format off
/// Captions of the fields.
inline constexpr auto RotulosEmpiricos = std::to_array<forms::FilaRotulo>({
    {"txtSup",     "Superficie S[Km2]:"},
    {"txtLcauceP", "Longitud Cauce Principal  L[Km]:"},
    {"txtcauceH",  "Desnivel Máximo H[m]:"},
    {"txtPendiCP", "Pendiente media cauce mñas largo [%]:"},
});

/// The fields, what they are cut to, and which of the data they are; the same order.
inline constexpr auto CamposEmpiricos = std::to_array<forms::CampoNumerico<dlgEmpiricas, double DatosTc::*>>({
    {{.control = "txtSup", .minimo = -forms::SinLimite, .maximo = 10000},
     &dlgEmpiricas::txtSup, &DatosTc::S},
    {{.control = "txtLcauceP", .minimo = -forms::SinLimite, .maximo = forms::SinLimite},
     &dlgEmpiricas::txtLcauceP, &DatosTc::L},
    {{.control = "txtcauceH", .minimo = -forms::SinLimite, .maximo = forms::SinLimite},
     &dlgEmpiricas::txtcauceH, &DatosTc::H},
    {{.control = "txtPendiCP", .maximo = 100},
     &dlgEmpiricas::txtPendiCP, &DatosTc::i},
});
// clang-format on

/// Data and results for a spreadsheet: captions and values parted by tabs, lines ended by CR LF.
std::string ComoTexto(const dlgEmpiricas& f);

}  // namespace empirical
