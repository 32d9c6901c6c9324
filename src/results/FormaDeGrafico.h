// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Grafico.h"

namespace results {

/// What the forms of the charts hold alike.
struct FormaDeGrafico {
    bool abierta = false;
    forms::Grafico Grafico{};
    int llenados = 0;  ///< how often the chart has been filled since the form opened
};

/// More and fewer divisions of the time axis.
inline void cmdXmas(FormaDeGrafico& f)
{
    MasDivisiones(f.Grafico.escala);
}
inline void cmdXmenos(FormaDeGrafico& f)
{
    MenosDivisiones(f.Grafico.escala);
}

inline void OKButton(FormaDeGrafico& f)
{
    f.abierta = false;
}

}  // namespace results
