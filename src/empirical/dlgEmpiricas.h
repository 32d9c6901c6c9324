// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "empirical/Formulas.h"
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

/// The text of a field was changed, or the field left. S is put between 1 and 10000 where it is zero or
/// above, the slope between 0 and 100; what depends on the field is computed.
void txtSup_Change(dlgEmpiricas& f);
void txtSup_AlSalir(dlgEmpiricas& f);
void txtLcauceP_Change(dlgEmpiricas& f);
void txtcauceH_Change(dlgEmpiricas& f);
void txtPendiCP_Change(dlgEmpiricas& f);
void txtPendiCP_AlSalir(dlgEmpiricas& f);

void btnCerrar(dlgEmpiricas& f);

/// Works out all peak discharges, where S is above 0, and then the times of concentration. A fault leaves 0,
/// a formula out of its range nothing.
void CalculaQp(dlgEmpiricas& f);

/// Works out the times of concentration. One of 0 or at fault leaves nothing.
void CalculaTc(dlgEmpiricas& f);

/// A field: object name and caption, text, and what happens when it is changed and left.
struct CampoEmpirico {
    forms::FilaRotulo rotulo;
    std::string dlgEmpiricas::*texto;
    void (*alCambiar)(dlgEmpiricas& f);
    void (*alSalir)(dlgEmpiricas& f);
};

// clang-format off
inline constexpr auto CamposEmpiricos = std::to_array<CampoEmpirico>({
    {{"txtSup", "Superficie S[Km2]:"},                    &dlgEmpiricas::txtSup,     txtSup_Change,     txtSup_AlSalir},
    {{"txtLcauceP", "Longitud Cauce Principal  L[Km]:"},      &dlgEmpiricas::txtLcauceP, txtLcauceP_Change, txtLcauceP_Change},
    {{"txtcauceH", "Desnivel Máximo H[m]:"},                 &dlgEmpiricas::txtcauceH,  txtcauceH_Change,  txtcauceH_Change},
    {{"txtPendiCP", "Pendiente media cauce mñas largo [%]:"}, &dlgEmpiricas::txtPendiCP, txtPendiCP_Change, txtPendiCP_AlSalir},
});
// clang-format on

/// Data and results for a spreadsheet: captions and values parted by tabs, lines ended by CR LF.
std::string ComoTexto(const dlgEmpiricas& f);

}  // namespace empirical
