// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Grafico.h"
#include "frequency/Analisis.h"
#include "frequency/Diagramas.h"

// The pictures of the fits as charts: curves with places of their own on one axis of numbers.
namespace frequency {

struct CurvaDeGrafico {
    forms::TipoSerie tipo = forms::TipoSerie::Linea2D;
    std::string leyenda{};
    std::vector<Punto> puntos{};
};

/// A name that fits a legend and a heading: "Log-normal 2".
std::string NombreCorto(const Ley& ley);

/// Makes the rows of a chart of the places of all curves, each place a row; `categoria` names one by its x.
void PonCurvas(forms::Grafico& g, const std::vector<CurvaDeGrafico>& curvas,
               const std::function<std::string(double x)>& categoria);

/// What is drawn of an analysis. `enMano`: the law whose band is drawn, the only one drawn where `sola`;
/// null: none.
struct PedidoDePapel {
    Ejes ejes = Ejes::DeGumbel;
    const AjusteDeLey* enMano = nullptr;
    bool sola = false;
    double posicion = Cunnane;
};
forms::Grafico GraficoDePapel(const Analisis& a, const PedidoDePapel& pedido);
forms::Grafico GraficoDeDiagrama(const Analisis& a, const AjusteDeLey* enMano);

}  // namespace frequency
