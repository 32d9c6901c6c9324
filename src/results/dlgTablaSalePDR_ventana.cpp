// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR_ventana.h"

#include <QHBoxLayout>
#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Impresion_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/TablaQDR_ventana.h"
#include "results/dlgChart1.h"

namespace results {

using forms::Q;

dlgTablaSalePDR_ventana::dlgTablaSalePDR_ventana(forms::Entorno& alrededor, dlgTablaSalePDR& registro,
                                                 QWidget* padre)
    : Ventana(alrededor, "dlgTablaSalePDR", padre), f(registro)
{
    setWindowTitle(Q(TituloDlgTablaSalePDR));
    tabla = new VistaQDR(entorno, f.MSFlexGridTablaSaleQDR, TituloDlgTablaSalePDR);
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
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
    pila->addWidget(tabla, 1);
    pila->addLayout(botones);
}

void dlgTablaSalePDR_ventana::Abre()
{
    results::Abre(f, entorno.s);
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgTablaSalePDR_ventana::AlCerrar()
{
    results::OKButton(f);
}

void dlgTablaSalePDR_ventana::Muestra()
{
    tabla->Muestra();
    tabla->MuestraBarras(f.vista.barras);
    for (QPushButton* const boton : {cmdAplicarCambios, cmdImprimir, OKButton})
        boton->setVisible(f.vista.botones);
    if (!f.abierta && isVisible()) close();
}

void dlgTablaSalePDR_ventana::Imprime()
{
    AntesDeImprimir(f);
    Muestra();
    layout()->activate();
    forms::ImprimeVentana(entorno, *this);
    DespuesDeImprimir(f);
    Muestra();
}

}  // namespace results
