// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart3_ventana.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Lamina_ventana.h"
#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/dlgChart1.h"
#include "results/dlgChart2.h"

namespace results {

using forms::ListaParaElegir;
using forms::Pon;
using forms::Q;

namespace {

constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar
constexpr int NroMagnitudes = 3;

QLabel* Rotulo(const char* nombre)
{
    auto* const rotulo = new QLabel;
    rotulo->setObjectName(QString::fromUtf8(nombre));
    rotulo->setTextFormat(Qt::PlainText);
    return rotulo;
}

/// A list that is picked from by the arrows too, and its caption.
ListaParaElegir* Lista(const char* nombre, QLabel& leyenda)
{
    auto* const lista = new ListaParaElegir;
    lista->setObjectName(QString::fromUtf8(nombre));
    lista->setFixedWidth(lista->fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    lista->conFlechas = true;
    leyenda.setBuddy(lista);
    return lista;
}

}  // namespace

dlgChart3_ventana::dlgChart3_ventana(forms::Entorno& alrededor, dlgChart3& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgChart3"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgChart3));
    Construye();
    Conecta();
}

void dlgChart3_ventana::Construye()
{
    lblTitulo = results::Rotulo("lblTitulo");
    lblTitulo->setAlignment(Qt::AlignCenter);
    QFont fuerte = font();
    fuerte.setBold(true);
    lblTitulo->setFont(fuerte);
    lblNota = results::Rotulo("lblNota");
    lblNotaVelmir = results::Rotulo("lblNotaVelmir");
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart3);

    auto* const centro = new QHBoxLayout;
    centro->addWidget(Grafico, 1);
    centro->addWidget(ConstruyeListas());
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(lblTitulo);
    pila->addLayout(centro, 1);
    pila->addWidget(lblNota);
    pila->addWidget(lblNotaVelmir);
    pila->addLayout(ConstruyeBotones());
}

/// A widget of its own: hidden it takes no part in the layout, while rows without anything to show would keep
/// the chart low.
QWidget* dlgChart3_ventana::ConstruyeListas()
{
    auto* const leyendaPQEC = new QLabel(QStringLiteral("&Magnitud:"));
    lstPQEC = Lista("lstPQEC", *leyendaPQEC);
    lstPQEC->setFixedHeight(NroMagnitudes * (fontMetrics().height() + 4) + 2 * lstPQEC->frameWidth() + 4);
    auto* const leyendaCompos = new QLabel(QStringLiteral("Compo&nente:"));
    lstCompos = Lista("lstCompos", *leyendaCompos);
    listas = new QWidget;
    auto* const pila = new QVBoxLayout(listas);
    pila->setContentsMargins({});
    pila->addWidget(leyendaPQEC);
    pila->addWidget(lstPQEC);
    pila->addWidget(leyendaCompos);
    pila->addWidget(lstCompos, 1);
    return listas;
}

QBoxLayout* dlgChart3_ventana::ConstruyeBotones()
{
    const auto boton = [](std::string_view leyenda, const char* nombre) {
        auto* const b = new QPushButton(Q(leyenda));
        b->setObjectName(QString::fromUtf8(nombre));
        return b;
    };
    cmdXmas = boton(LeyendaXmas, "cmdXmas");
    cmdXmenos = boton(LeyendaXmenos, "cmdXmenos");
    cmdImprimir = boton(LeyendaImprimir, "cmdImprimir");
    OKButton = boton(LeyendaCerrar, "OKButton");
    auto* const fila = new QHBoxLayout;
    fila->addWidget(cmdXmas);
    fila->addWidget(cmdXmenos);
    fila->addStretch(1);
    fila->addWidget(cmdImprimir);
    fila->addWidget(OKButton);
    return fila;
}

void dlgChart3_ventana::Conecta()
{
    lstCompos->AlElegir = [this](int indice) {
        Suceso([&] {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    };
    lstPQEC->AlElegir = [this](int indice) {
        Suceso([&] {
            f.lstPQECIndice = indice;
            lstPQEC_Click(f, entorno.s);
        });
    };
    AlPulsar(*cmdXmas, [this] { results::cmdXmas(f); });
    AlPulsar(*cmdXmenos, [this] { results::cmdXmenos(f); });
    AlPulsar(*cmdImprimir, [this] { Imprime(); });
    AlPulsar(*OKButton, [this] { results::OKButton(f); });
}

void dlgChart3_ventana::Abre()
{
    results::Abre(f, entorno.s);
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgChart3_ventana::AlCerrar()
{
    results::OKButton(f);
}

void dlgChart3_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    Grafico->PonTema(f.Grafico.titulo, f.Grafico.titulo);
    Pon(*lblTitulo, f.lblTitulo);
    Pon(*lblNota, f.lblNota);
    Pon(*lblNotaVelmir, f.lblNotaVelmir);
    Pon(*lstCompos, f.lstCompos, f.lstComposIndice);
    Pon(*lstPQEC, f.lstPQEC, f.lstPQECIndice);
    for (QPushButton* const boton : {cmdXmas, cmdXmenos, cmdImprimir, OKButton})
        boton->setVisible(f.vista.comandos);
    listas->setVisible(f.vista.listas);
    if (!f.abierta && isVisible()) close();
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
