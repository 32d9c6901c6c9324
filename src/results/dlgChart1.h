// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "results/FormaDeGrafico.h"

// Rules of the chart of the hyetograph, "Hietograma".
namespace results {

inline constexpr std::string_view TituloDlgChart1 = "Hietograma";

// clang-format off
/// Captions in the windows of the three charts.
inline constexpr auto RotulosDeGraficos = std::to_array<forms::FilaRotulo>({
    {"cmdHsMin",    "Ver t [Horas] / Ver t [Minutos]"},
    {"cmdXmas",     "+DivideEjeX"},
    {"cmdXmenos",   "-DivideEjeX"},
    {"cmdImprimir", "&Imprimir"},
    {"OKButton",    "&Cerrar"},
    {"sldDur",      "Variador de Duración de Tormenta [min]", "Variador de Duración de Tormenta [min]"},
    {"sldPp",       "Variador de Pp[mm]", "Variador de Pp[mm]"},
    {"lstPQEC",     "&Magnitud:"},
    {"lstCompos",   "Compo&nente:", "", "Componente"},
    {"cmbObservado", "O&bservado:", "Evento cuyos caudales observados en este componente se muestran como puntos"},
});
// clang-format on

/// The hyetograph to be shown; its depths are Tormenta::PpReal.
struct Hietograma {
    std::int16_t N = 0;     ///< blocks
    std::int16_t paso = 0;  ///< length of a block [min]
    std::string titulo{};
    float P = 0;         ///< [mm]
    std::int16_t D = 0;  ///< [min]
    bool operator==(const Hietograma&) const = default;
};

struct dlgChart1 : FormaDeGrafico {
    bool MinutosEjeX = false;  ///< the time axis is in minutes; otherwise in hours
    Hietograma pedido{};       ///< what was asked for last
};

/// Opening, with nothing asked for yet: the axis turns from hours to minutes. In a series, which has no
/// single hyetograph, the window closes itself.
void Abre(dlgChart1& f, const model::Siro& s);

/// Shows a hyetograph, opening the window first where it is closed.
void Muestra(dlgChart1& f, const model::Siro& s, const Hietograma& pedido);

/// Fills the chart; N = 0 leaves it as it is. A fault is told and leaves it as it is too.
void AlGraficoPp(dlgChart1& f, const model::Siro& s, std::int16_t N, std::int16_t paso);

void cmdHsMin(dlgChart1& f, const model::Siro& s);

/// The command of the menu: builds the hyetograph of the storm in hand. Returns what the chart has to show;
/// nothing without a storm, without blocks, or with blocks of half a minute or less.
/// notas: those of the real storm, the title in that form of the rain.
std::optional<Hietograma> mnuGraficoPp(model::Siro& s, std::string_view notas);

/// The storm in hand has a depth, a duration and blocks that last more than half a minute.
bool HayTormentaConBloques(const model::Siro& s);

}  // namespace results
