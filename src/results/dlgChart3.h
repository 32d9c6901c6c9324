// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Grafico.h"
#include "model/SiroDeclarado.h"
#include "results/FormaDeGrafico.h"

// Rules of the abacus of a series: for a component, peak, runoff or runoff coefficient against the duration
// of the storm, a curve per recurrence.
namespace results {

inline constexpr std::string_view TituloDlgChart3 =
    "Serie de Tormentas Sintéticas: Resumen de Qpico, Escorrentía y Coef.Esc.";

/// Controls that are hidden and shown together.
struct VistaChart3 {
    bool comandos = true;  ///< cmdXmas, cmdXmenos, cmdImprimir, OKButton
    bool listas = true;    ///< lstCompos, lstPQEC
    bool operator==(const VistaChart3&) const = default;
};

/// Row of the chart: duration; series: recurrence. The highest cell of a curve, its critical duration, is
/// marked.
struct dlgChart3 : FormaDeGrafico {
    std::vector<std::string> lstCompos{};  ///< names of Secuencia; of the UEHs alone where only they count
    int lstComposIndice = -1;              ///< item selected, from 0; -1: none
    std::vector<std::string> lstPQEC{};    ///< magnitudes
    int lstPQECIndice = -1;
    std::int16_t componente = 0;  ///< place in Secuencia of the one on show: tables move IndComp meanwhile
    std::vector<std::int16_t> ListaD{};  ///< durations of the storms that pass, by first appearance [min]
    std::vector<std::int16_t> ListaR{};  ///< their recurrences, likewise [years]
    bool Excluida = false;               ///< the storm looked at last is left out
    std::string Notas{};                 ///< shown nowhere
    std::string lblTitulo{}, lblNota{}, lblNotaVelmir{};
    VistaChart3 vista{}, vistaGuardada{};
};

/// Opening. Without a series the window stays empty, without components it closes itself.
void Abre(dlgChart3& f, model::Siro& s);

/// Gathers ListaD and ListaR from the storms that pass the filter; none for a series of less than two.
/// Moves IndSerie and the storm in hand.
void Inicializa(dlgChart3& f, model::Siro& s);

/// Fills the chart with the first NroD durations, each times `paso`, for the component IndComp; NroD = 0
/// leaves it as it is. A cell that no storm fills, or for which the run left no result, is empty. Of two
/// storms of equal duration and recurrence the later one stands. Throws Falla 9 beyond ListaD.
/// Moves IndSerie and the storm in hand.
void AlGraficoPp(dlgChart3& f, model::Siro& s, std::int16_t NroD, std::int16_t paso);

/// A component was picked; with none selected nothing happens.
void lstCompos_Click(dlgChart3& f, model::Siro& s);

/// A magnitude was picked: runoff and coefficient offer the UEHs alone and pick the last one.
void lstPQEC_Click(dlgChart3& f, model::Siro& s);

/// What is printed is the chart alone; afterwards every control is as it was.
void AntesDeImprimir(dlgChart3& f);
void DespuesDeImprimir(dlgChart3& f);

}  // namespace results
