// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart1_ventana.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {

using forms::Q;

dlgChart1_ventana::dlgChart1_ventana(forms::Entorno& alrededor, dlgChart1& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgChart1"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgChart1));
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart1);
    const auto boton = [](std::string_view leyenda, const char* nombre) {
        auto* const b = new QPushButton(Q(leyenda));
        b->setObjectName(QString::fromUtf8(nombre));
        return b;
    };
    cmdHsMin = boton(LeyendaHsMin, "cmdHsMin");
    cmdImprimir = boton(LeyendaImprimir, "cmdImprimir");
    OKButton = boton(LeyendaCerrar, "OKButton");
    AlPulsar(*cmdHsMin, [this] { results::cmdHsMin(f, entorno.s); });
    AlPulsar(*cmdImprimir, [this] { forms::ImprimeConLamina(entorno, *this, *Grafico); });
    AlPulsar(*OKButton, [this] { results::OKButton(f); });

    auto* const botones = new QHBoxLayout;
    botones->addWidget(cmdHsMin);
    botones->addStretch(1);
    botones->addWidget(cmdImprimir);
    botones->addWidget(OKButton);
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(Grafico, 1);
    pila->addLayout(botones);
}

void dlgChart1_ventana::Abre()
{
    results::Abre(f, entorno.s);
    Presenta();
}

void dlgChart1_ventana::Muestra(const Hietograma& pedido)
{
    results::Muestra(f, entorno.s, pedido);
    Presenta();
}

void dlgChart1_ventana::Presenta()
{
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgChart1_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    if (!f.abierta && isVisible()) close();
}

void dlgChart1_ventana::AlCerrar()
{
    results::OKButton(f);
}

}  // namespace results
