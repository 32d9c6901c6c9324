// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart3_ventana.h"

#include "forms/Lamina_ventana.h"
#include "results/dlgChart1.h"

namespace results {

namespace {

constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar
constexpr int NroMagnitudes = 3;

}  // namespace

dlgChart3_ventana::dlgChart3_ventana(forms::Entorno& alrededor, dlgChart3& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgChart3", TituloDlgChart3, RotulosDeGraficos}, padre), f(registro)
{
    Sigue(f.abierta);
    QLabel* const titulo = EnNegrita(Texto("lblTitulo", f.lblTitulo));
    titulo->setAlignment(Qt::AlignCenter);
    franja = new checks::Franja(entorno, checks::Alcance::Serie);
    AlMostrar([this] { franja->Sigue(f.llenados); });
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart3);
    setLayout(EnPila({franja,
                      titulo,
                      {EnFila({{Grafico, 1}, Listas()}), 1},
                      Texto("lblNota", f.lblNota),
                      Texto("lblNotaVelmir", f.lblNotaVelmir),
                      Botones()}));
}

/// A widget of its own: hidden it takes no part in the layout, while rows without anything to show would keep
/// the chart low.
QWidget* dlgChart3_ventana::Listas()
{
    QListWidget* const magnitudes =
        Listado("lstPQEC", f.lstPQEC, f.lstPQECIndice, forms::Flechas::Eligen, [this](int indice) {
            f.lstPQECIndice = indice;
            lstPQEC_Click(f, entorno.s);
        });
    magnitudes->setFixedHeight(NroMagnitudes * (fontMetrics().height() + 4) + 2 * magnitudes->frameWidth() +
                               4);
    QListWidget* const componentes =
        Listado("lstCompos", f.lstCompos, f.lstComposIndice, forms::Flechas::Eligen, [this](int indice) {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    for (QListWidget* const lista : {magnitudes, componentes})
        lista->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    QLayout* const pila = EnPila(
        {Rotulo("lstPQEC", magnitudes), magnitudes, Rotulo("lstCompos", componentes), {componentes, 1}});
    pila->setContentsMargins({});
    auto* const listas = new QWidget;
    listas->setLayout(pila);
    return VisibleSi(listas, [this] { return f.vista.listas; });
}

QLayout* dlgChart3_ventana::Botones()
{
    const auto boton = [this](std::string_view control, std::function<void()> rutina) {
        return VisibleSi(Boton(control, std::move(rutina)), [this] { return f.vista.comandos; });
    };
    return EnFila({boton("cmdXmas", [this] { cmdXmas(f); }), boton("cmdXmenos", [this] { cmdXmenos(f); }),
                   Hueco(), boton("cmdImprimir", [this] { Imprime(); }),
                   boton("OKButton", [this] { OKButton(f); })});
}

void dlgChart3_ventana::Abre()
{
    if (!f.abierta) franja->Olvida();
    results::Abre(f, entorno.s);
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgChart3_ventana::AlCerrar()
{
    OKButton(f);
}

void dlgChart3_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    Grafico->PonTema(f.Grafico.titulo, f.Grafico.titulo);
    Ventana::Muestra();
}

void dlgChart3_ventana::Imprime()
{
    AntesDeImprimir(f);
    Muestra();
    layout()->activate();
    forms::ImprimeConLamina(entorno, *this, *Grafico);
    DespuesDeImprimir(f);
    Muestra();
}

}  // namespace results
