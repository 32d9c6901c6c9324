// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Entorno_ventana.h"
#include "results/dlgChart3_ventana.h"
#include "results/dlgTablaSalePDR2_ventana.h"
#include "results/dlgTablaSalePDR_ventana.h"

namespace results {

/// The windows of a series' results and the records behind them, which outlive them.
struct VentanasDeSerie {
    explicit VentanasDeSerie(forms::Entorno& entorno)
        : ventanaAbaco(entorno, abaco),
          ventanaTablaCompleta(entorno, tablaCompleta),
          ventanaTablaComponente(entorno, tablaComponente)
    {
    }
    VentanasDeSerie(const VentanasDeSerie&) = delete;
    VentanasDeSerie& operator=(const VentanasDeSerie&) = delete;

    dlgChart3 abaco{};
    dlgTablaSalePDR tablaCompleta{};
    dlgTablaSalePDR2 tablaComponente{};
    dlgChart3_ventana ventanaAbaco;
    dlgTablaSalePDR_ventana ventanaTablaCompleta;
    dlgTablaSalePDR2_ventana ventanaTablaComponente;
};

}  // namespace results
