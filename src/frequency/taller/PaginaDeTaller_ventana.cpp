// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/PaginaDeTaller_ventana.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
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

QWidget* PaginaDeTaller::EnColumna(const forms::Partes& partes, int letras)
{
    auto* const dentro = new QWidget;
    auto* const pila = EnPila(partes);
    pila->setContentsMargins(0, 0, 0, 0);
    dentro->setLayout(pila);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarElecciones"));
    lugar->setWidgetResizable(true);
    lugar->setFrameShape(QFrame::NoFrame);
    lugar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lugar->setWidget(dentro);
    lugar->setFixedWidth(letras * fontMetrics().averageCharWidth() +
                         lugar->verticalScrollBar()->sizeHint().width());
    return lugar;
}

QWidget* PaginaDeTaller::SobreAvisos(QWidget* grafico, const std::string& avisos)
{
    QLabel* const texto = Texto("lblAvisos", avisos);
    texto->setWordWrap(true);
    texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
    texto->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarAvisos"));
    lugar->setWidgetResizable(true);
    lugar->setWidget(texto);
    constexpr int Renglones = 4;
    lugar->setFixedHeight(Renglones * fontMetrics().lineSpacing());
    auto* const lado = new QWidget;
    auto* const pila = EnPila({{grafico, 1}, lugar});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

}  // namespace frequency
