// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart1_ventana.h"

#include "forms/Lamina_ventana.h"

namespace results {

dlgChart1_ventana::dlgChart1_ventana(forms::Entorno& alrededor, dlgChart1& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgChart1", TituloDlgChart1, RotulosDeGraficos}, padre), f(registro)
{
    Sigue(f.abierta);
    franja = new checks::Franja(entorno, checks::Alcance::Tormenta);
    AlMostrar([this] { franja->Sigue(f.llenados); });
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart1);
    setLayout(
        EnPila({franja,
                {Grafico, 1},
                EnFila({Boton("cmdHsMin", [this] { cmdHsMin(f, entorno.s); }), Hueco(),
                        Boton("cmdImprimir", [this] { forms::ImprimeConLamina(entorno, *this, *Grafico); }),
                        Boton("OKButton", [this] { OKButton(f); })})}));
}

void dlgChart1_ventana::Abre()
{
    franja->Olvida();
    results::Abre(f, entorno.s);
    Presenta();
}

void dlgChart1_ventana::Muestra(const Hietograma& pedido)
{
    if (!f.abierta) franja->Olvida();
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
    Ventana::Muestra();
}

void dlgChart1_ventana::AlCerrar()
{
    OKButton(f);
}

}  // namespace results
