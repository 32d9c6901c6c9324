// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FajaDeLeyenda_ventana.h"

#include <algorithm>

namespace forms {

FajaDeLeyenda::FajaDeLeyenda(QCustomPlot& superficie, QCPTextElement& titulo, bool compacta)
    : plano(superficie), tituloLeyenda(titulo)
{
    constexpr double LoMenos = 0.001;
    constexpr QMargins BordeInferior(0, 0, 0, 6);
    QCPLegend* const leyenda = plano.legend;
    plano.plotLayout()->addElement(1, 0, this);
    leyenda->layout()->take(leyenda);
    leyenda->setFillOrder(foColumnsFirst);
    leyenda->setBorderPen(Qt::NoPen);
    leyenda->setBrush(Qt::NoBrush);
    leyenda->setMargins({0, 0, 0, 0});
    const int entreSeries = compacta ? 10 : 24;
    leyenda->setColumnSpacing(entreSeries);
    setMargins(BordeInferior);
    addElement(0, 0, &tituloLeyenda);
    tituloLeyenda.setTextFlags(Qt::AlignRight | Qt::AlignVCenter);
    addElement(0, 1, leyenda);
    addElement(0, 2, new QCPLayoutElement(&plano));
    setColumnStretchFactor(1, LoMenos);
}

void FajaDeLeyenda::update(UpdatePhase fase)
{
    if (fase == upPreparation) Reparte();
    QCPLayoutGrid::update(fase);
}

/// The last row needn't be full: the cells without an entry are left out.
QList<QCPLayoutElement*> FajaDeLeyenda::Entradas() const
{
    QList<QCPLayoutElement*> entradas = plano.legend->elements(false);
    entradas.removeAll(nullptr);
    return entradas;
}

/// Entries that a row has room for, each taken as wide as the widest.
int FajaDeLeyenda::CabenPorFila() const
{
    constexpr int Bordes = 12;  // of the surface, both together [pixels]
    const QCPLegend& leyenda = *plano.legend;
    const QCPLayoutElement& rotulo = tituloLeyenda;
    int ancho = 1;
    for (const QCPLayoutElement* const entrada : Entradas())
        ancho = std::max(ancho, entrada->minimumOuterSizeHint().width());
    const int libre =
        plano.viewport().width() - rotulo.minimumOuterSizeHint().width() - 2 * columnSpacing() - Bordes;
    return std::max(1, (libre + leyenda.columnSpacing()) / (ancho + leyenda.columnSpacing()));
}

/// Rows of equal length, as few as will do.
void FajaDeLeyenda::Reparte()
{
    QCPLegend& leyenda = *plano.legend;
    const auto cuantas = static_cast<int>(Entradas().size());
    if (cuantas == 0) return;
    const int caben = CabenPorFila();
    const int filas = (cuantas + caben - 1) / caben;
    const int porFila = (cuantas + filas - 1) / filas;
    if (porFila == leyenda.wrap()) return;
    leyenda.setWrap(porFila);
    leyenda.setFillOrder(foColumnsFirst);  // puts them in their new places
}

}  // namespace forms
