// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Rotulo.h"
#include "results/FormaDeGrafico.h"
#include "results/dlgResumen.h"

// Rules of the window that shows the hydrographs of several components of a run on one chart.
namespace results {

inline constexpr std::string_view TituloDlgComparar = "Comparar hidrogramas";
inline constexpr int MaxCurvas = 12;  ///< on one chart: more can't be told apart

inline constexpr auto RotulosDlgComparar = std::to_array<forms::FilaRotulo>({
    {"chkSale", "&Salida", "Muestra el caudal que sale de cada componente elegido"},
    {"chkEntra", "&Entrada", "Muestra el caudal que entra a cada componente elegido; las UEHs no tienen"},
    {"lstCompos", "C&omponentes:", "Un clic o la barra espaciadora elige y deja de elegir", "Componentes"},
    {"cmdRepresas", "Entrada y salida de las &represas"},
    {"cmdSalida", "Salida de la c&uenca"},
    {"cmdNinguno", "&Ninguno", "Deja de elegir todos los componentes"},
    {"cmdHsMin", "Ver t [Horas] / Ver t [Minutos]"},
    {"cmdImprimir", "&Imprimir"},
    {"OKButton", "&Cerrar"},
});

struct dlgComparar : FormaDeGrafico {
    Corrida corrida{};                     ///< none: nothing has been run
    std::vector<std::string> lstCompos{};  ///< that have hydrographs, in the order of computation
    std::vector<bool> elegidos{};          ///< by item
    bool chkSale = true, chkEntra = false;
    bool MinutosEjeX = false;  ///< the time axis is in minutes; otherwise in hours
    std::string lblTitulo{};   ///< which storm
    std::string lblNota{};     ///< what couldn't be shown, or what to do
    bool hayRepresas = false, haySalida = false;
};

/// Takes a run. What was chosen stays chosen where the run has it; with nothing chosen, the outfalls are.
void Pon(dlgComparar& f, Corrida corrida);

/// Chooses these components and none else, as many as have room, by their outflow.
void Compara(dlgComparar& f, const std::vector<std::string>& componentes);

/// An item was ticked or not. One whose curves have no room isn't taken, and the note says so.
void lstCompos_Tilda(dlgComparar& f, std::size_t item, bool elegido);

/// The same of the curves of all components chosen.
void chkSale_Click(dlgComparar& f, bool marcada);
void chkEntra_Click(dlgComparar& f, bool marcada);

/// Inflow and outflow of the Represas; where they have no room, of those with the greatest inflow.
void cmdRepresas(dlgComparar& f);
/// Outflow of the outfalls.
void cmdSalida(dlgComparar& f);
void cmdNinguno(dlgComparar& f);
void cmdHsMin(dlgComparar& f);

}  // namespace results
