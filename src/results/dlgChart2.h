// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Memoria.h"
#include "forms/Grafico.h"
#include "model/SiroDeclarado.h"
#include "results/FormaDeGrafico.h"
#include "results/Observado.h"

// Rules of the chart of the hydrographs, "Hidrograma": a component picked from a list with its rain, its
// inflow or its water level, and two sliders that run the storm in hand again with another depth or duration.
namespace results {

inline constexpr std::string_view TituloDlgChart2 = "Hidrograma";

struct Deslizador {
    int minimo, maximo, pasoChico, pasoGrande;
    int valor = minimo;

    /// Takes a value, the nearest bound in place of one outside.
    void Pon(int nuevo);
    bool operator==(const Deslizador&) const = default;
};

/// Controls that are hidden and shown together.
struct VistaChart2 {
    bool comandos = true;       ///< cmdHsMin, cmdXmas, cmdXmenos, cmdImprimir, OKButton
    bool lista = true;          ///< lstCompos
    bool deslizadores = true;   ///< sldPp, sldDur, lblPp, lblDur
    bool graficoAncho = false;  ///< the chart takes the whole width
    bool operator==(const VistaChart2&) const = default;
};

struct dlgChart2 : FormaDeGrafico {
    bool MinutosEjeX = false;                  ///< the time axis is in minutes; otherwise in hours
    std::int16_t ultimoN = 0, ultimoPaso = 0;  ///< rows, and step [min], of the last drawing
    std::vector<std::string> lstCompos{};      ///< Secuencia from 1 on
    int lstComposIndice = -1;                  ///< item selected, from 0; -1: none
    Deslizador sldDur{.minimo = 5, .maximo = 2880, .pasoChico = 1, .pasoGrande = 5};  ///< [min]
    Deslizador sldPp{.minimo = 0, .maximo = 999, .pasoChico = 1, .pasoGrande = 5};    ///< [mm]
    std::string lblPp{}, lblDur{}, lblTitulo{}, lblNota{};
    std::string componente{};  ///< name of the one that is drawn
    VistaChart2 vista{}, vistaGuardada{};
    ObservadosDe Observados{};                ///< set from outside; none: there are none
    std::vector<std::string> cmbObservado{};  ///< what of it may be shown; empty: the component has none
    int cmbObservadoIndice = 0;
    std::optional<std::string> observado{};  ///< event that was picked, "": none; nothing: the first one
    bool conObservado = false;               ///< it is the chart's last series
    engine::Memoria memoria{.VariasCorridas = true};  ///< what the sliders' runs have in common
};

/// Opening. Without results, without components or in a series the window closes itself. One that is open
/// stays as it is: a new run refreshes it only through its own controls, but its sliders come and go with
/// what the storm in hand is.
void Abre(dlgChart2& f, model::Siro& s);

/// Draws the component IndComp, 1 where that is none; without results closes the window.
void Redibuja(dlgChart2& f, model::Siro& s);

/// Fills the chart; N = 0 leaves it as it is. Steps that aren't multiples of one another are told and leave
/// it as it is, and so does a fault.
void AlGraficoPp(dlgChart2& f, const model::Siro& s, std::int16_t N, std::int16_t paso);

/// A component was picked; with none selected nothing happens.
void lstCompos_Click(dlgChart2& f, model::Siro& s);

/// A slider was moved: the storm in hand takes its value and runs, with nothing reloaded from disk. Ends the
/// program where the storm has neither depth nor duration left. Returns whether the run went to its end.
bool sldDur_Mueve(dlgChart2& f, model::Siro& s, int valor);
/// No lower than PasoPp, though that is minutes and this is millimetres: kept as it stands.
bool sldPp_Mueve(dlgChart2& f, model::Siro& s, int valor);

/// Shows the readings of the component on show anew, as they are now or as they were picked. The rest of the
/// chart stays.
void PonObservado(dlgChart2& f);
void cmbObservado_Click(dlgChart2& f, int indice);

void cmdHsMin(dlgChart2& f, const model::Siro& s);

/// What is printed is the chart alone; afterwards every control is as it was.
void AntesDeImprimir(dlgChart2& f);
void DespuesDeImprimir(dlgChart2& f);

/// The command of the menu. Returns whether the chart has something to show; IndComp is brought back to 1
/// where it is no component.
bool mnuHidrogramas(model::Siro& s);

}  // namespace results
