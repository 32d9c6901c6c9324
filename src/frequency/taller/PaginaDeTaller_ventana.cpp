// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/PaginaDeTaller_ventana.h"

#include <QSplitter>

namespace frequency {

PaginaDeTaller::PaginaDeTaller(forms::Entorno& alrededor, dlgTaller& taller,
                               std::span<const forms::FilaRotulo> filas, std::string_view nombre)
    : Constructor(alrededor, filas), f(taller)
{
    setObjectName(forms::Q(nombre));
}

void PaginaDeTaller::Muestra()
{
    if (tomado != TallerDe(f) || estacionTomada != f.estacion || serieTomada != f.serie) {
        tomado = TallerDe(f);
        estacionTomada = f.estacion;
        serieTomada = f.serie;
        Toma();
    }
    Constructor::Muestra();
}

void PaginaDeTaller::DejaChico(QWidget& grafico)
{
    constexpr int Ancho = 16, Alto = 10;  // [heights of a letter]
    grafico.setMinimumSize(Ancho * grafico.fontMetrics().height(), Alto * grafico.fontMetrics().height());
}

QSplitter* PaginaDeTaller::LadoALado(QWidget* tabla, QWidget* grafico, int parteDeTabla, int parteDeGrafico)
{
    auto* const barra = new QSplitter(Qt::Horizontal);
    barra->setObjectName(QStringLiteral("barra"));
    barra->addWidget(tabla);
    barra->addWidget(grafico);
    barra->setStretchFactor(0, parteDeTabla);
    barra->setStretchFactor(1, parteDeGrafico);
    barra->setChildrenCollapsible(false);
    constexpr int Ancho = 1000;  // shares of what there is
    barra->setSizes({parteDeTabla * Ancho, parteDeGrafico * Ancho});
    return barra;
}

}  // namespace frequency
