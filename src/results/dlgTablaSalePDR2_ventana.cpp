// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR2_ventana.h"

#include <QHBoxLayout>
#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Impresion_ventana.h"
#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/TablaQDR_ventana.h"
#include "results/dlgChart1.h"

namespace results {

using forms::Pon;
using forms::Q;

namespace {

constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar

}  // namespace

dlgTablaSalePDR2_ventana::dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro,
                                                   QWidget* padre)
    : Ventana(alrededor, "dlgTablaSalePDR2", padre), f(registro)
{
    setWindowTitle(Q(TituloDlgTablaSalePDR2));
    tabla = new VistaQDR(entorno, f.MSFlexGridTablaSaleQDR, TituloDlgTablaSalePDR2);
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    lstCompos = new forms::ListaParaElegir;
    lstCompos->setObjectName(QStringLiteral("lstCompos"));
    lstCompos->setAccessibleName(QStringLiteral("Componente"));
    lstCompos->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    lstCompos->conFlechas = true;
    lstCompos->AlElegir = [this](int indice) {
        Suceso([&] {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    };
    cmdAplicarCambios = BotonDeTabla(LeyendaActualizar, "cmdAplicarCambios");
    cmdImprimir = BotonDeTabla(LeyendaImprimirTabla, "cmdImprimir");
    OKButton = BotonDeTabla(LeyendaCerrar, "OKButton");
    AlPulsar(*cmdAplicarCambios, [this] { results::cmdAplicarCambios(f, entorno.s); });
    AlPulsar(*cmdImprimir, [this] { Imprime(); });
    AlPulsar(*OKButton, [this] { results::OKButton(f); });
    entorno.AlActivarse(*this, [this] {
        if (!f.abierta) return;
        AlActivar(f, entorno.s);
        Muestra();
    });

    auto* const botones = new QHBoxLayout;
    botones->addWidget(cmdAplicarCambios);
    botones->addStretch(1);
    botones->addWidget(cmdImprimir);
    botones->addWidget(OKButton);
    auto* const pila = new QVBoxLayout(this);
    auto* const centro = new QHBoxLayout;
    centro->addWidget(lstCompos);
    centro->addWidget(tabla, 1);
    pila->addLayout(centro, 1);
    pila->addLayout(botones);
}

void dlgTablaSalePDR2_ventana::Abre()
{
    results::Abre(f, entorno.s);
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgTablaSalePDR2_ventana::AlCerrar()
{
    results::OKButton(f);
}

void dlgTablaSalePDR2_ventana::Muestra()
{
    tabla->Muestra();
    tabla->MuestraBarras(f.vista.barras);
    Pon(*lstCompos, f.lstCompos, f.lstComposIndice);
    for (QPushButton* const boton : {cmdAplicarCambios, cmdImprimir, OKButton})
        boton->setVisible(f.vista.botones);
    if (!f.abierta && isVisible()) close();
}

void dlgTablaSalePDR2_ventana::Imprime()
{
    AntesDeImprimir(f);
    Muestra();
    layout()->activate();
    forms::ImprimeVentana(entorno, *this);
    DespuesDeImprimir(f);
    Muestra();
}

}  // namespace results
