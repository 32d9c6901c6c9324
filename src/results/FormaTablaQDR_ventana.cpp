// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/FormaTablaQDR_ventana.h"

#include <QHBoxLayout>
#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/ImpresionTabla_ventana.h"
#include "forms/Procedencia.h"
#include "forms/Textos_ventana.h"
#include "results/TablaQDR_ventana.h"
#include "results/dlgChart1.h"

namespace results {

FormaTablaQDR_ventana::FormaTablaQDR_ventana(forms::Entorno& alrededor, std::string_view nombre,
                                             std::string_view titulo, FormaTablaQDR& registro, QWidget* antes,
                                             QWidget* padre)
    : Ventana(alrededor, {nombre}, padre), f(registro)
{
    setWindowTitle(forms::Q(titulo));
    tabla = new VistaQDR(entorno, f.MSFlexGridTablaSaleQDR, titulo);
    tabla->Componente = [this] { return Componente(); };
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    cmdAplicarCambios = BotonDeTabla(LeyendaActualizar, "cmdAplicarCambios");
    cmdImprimir = BotonDeTabla(LeyendaImprimirTabla, "cmdImprimir");
    OKButton = BotonDeTabla(LeyendaCerrar, "OKButton");
    AlPulsar(*cmdAplicarCambios, [this] { Llena(); });
    AlPulsar(*cmdImprimir, [this] { Imprime(); });
    AlPulsar(*OKButton, [this] { results::OKButton(f); });
    entorno.AlActivarse(*this, [this] {
        if (!f.abierta) return;
        Llena();
        Muestra();
    });

    auto* const centro = new QHBoxLayout;
    if (antes != nullptr) centro->addWidget(antes);
    centro->addWidget(tabla, 1);
    auto* const botones = new QHBoxLayout;
    botones->addWidget(cmdAplicarCambios);
    botones->addStretch(1);
    botones->addWidget(cmdImprimir);
    botones->addWidget(OKButton);
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(centro, 1);
    pila->addLayout(botones);
}

void FormaTablaQDR_ventana::Abre()
{
    AbreForma();
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void FormaTablaQDR_ventana::AlCerrar()
{
    results::OKButton(f);
}

void FormaTablaQDR_ventana::Muestra()
{
    tabla->Muestra();
    if (!f.abierta && isVisible()) close();
}

void FormaTablaQDR_ventana::Imprime()
{
    forms::ImprimePlanilla(
        entorno, forms::NombreDeArchivo({.titulo = forms::DeQ(windowTitle()), .componente = Componente()}),
        ComoPlanilla(f.MSFlexGridTablaSaleQDR));
}

}  // namespace results
