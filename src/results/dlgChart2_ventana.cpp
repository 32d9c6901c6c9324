// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart2_ventana.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "forms/Lamina_ventana.h"
#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/dlgChart1.h"

namespace results {

using forms::Pon;
using forms::Q;

namespace {

constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar

/// The wait sign, while the object lives.
class Espera {
  public:
    Espera() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Espera() { QGuiApplication::restoreOverrideCursor(); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;
};

}  // namespace

dlgChart2_ventana::dlgChart2_ventana(forms::Entorno& alrededor, dlgChart2& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgChart2"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgChart2));
    Construye();
    lstCompos->AlElegir = [this](int indice) {
        Suceso([&] {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    };
    for (Mando* const mando : {&Pp, &Dur})
        connect(mando->deslizador, &QSlider::valueChanged, this,
                [this, mando](int valor) { Pide(*mando, valor); });
    AlPulsar(*cmdHsMin, [this] { results::cmdHsMin(f, entorno.s); });
    AlPulsar(*cmdXmas, [this] { results::cmdXmas(f); });
    AlPulsar(*cmdXmenos, [this] { results::cmdXmenos(f); });
    AlPulsar(*cmdImprimir, [this] { Imprime(); });
    AlPulsar(*OKButton, [this] { results::OKButton(f); });
}

void dlgChart2_ventana::Construye()
{
    lblTitulo = new QLabel;
    lblTitulo->setObjectName(QStringLiteral("lblTitulo"));
    lblTitulo->setTextFormat(Qt::PlainText);
    lblTitulo->setAlignment(Qt::AlignCenter);
    lblTitulo->setWordWrap(true);
    QFont fuerte = font();
    fuerte.setBold(true);
    lblTitulo->setFont(fuerte);
    lblNota = new QLabel;
    lblNota->setObjectName(QStringLiteral("lblNota"));
    lblNota->setTextFormat(Qt::PlainText);

    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart2);
    lstCompos = new forms::ListaParaElegir;
    lstCompos->conFlechas = true;
    lstCompos->setObjectName(QStringLiteral("lstCompos"));
    lstCompos->setAccessibleName(QStringLiteral("Componente"));
    lstCompos->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));

    auto* const centro = new QHBoxLayout;
    centro->addWidget(Grafico, 1);
    centro->addWidget(lstCompos);
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(lblTitulo);
    pila->addLayout(centro, 1);
    pila->addLayout(ConstruyeMandos());
    pila->addWidget(lblNota);
    pila->addLayout(ConstruyeBotones());
}

QBoxLayout* dlgChart2_ventana::ConstruyeMandos()
{
    Pp.unidad = " mm";
    Pp.mueve = sldPp_Mueve;
    PonMando(Pp, "Pp", AyudaSldPp);
    Dur.unidad = " min";
    Dur.mueve = sldDur_Mueve;
    PonMando(Dur, "Dur", AyudaSldDur);
    auto* const fila = new QHBoxLayout;
    for (const Mando* const mando : {&Pp, &Dur}) {
        fila->addWidget(mando->rotulo);
        fila->addWidget(mando->deslizador, 1);
        fila->addWidget(mando->valor);
        if (mando == &Pp) fila->addSpacing(fontMetrics().averageCharWidth() * 2);
    }
    return fila;
}

void dlgChart2_ventana::PonMando(Mando& mando, const char* nombre, std::string_view ayuda)
{
    const auto conNombre = [&](const char* prefijo) {
        return QString::fromUtf8(prefijo) + QString::fromUtf8(nombre);
    };
    mando.deslizador = new QSlider(Qt::Horizontal);
    mando.deslizador->setObjectName(conNombre("sld"));
    mando.deslizador->setToolTip(Q(ayuda));
    mando.deslizador->setAccessibleName(Q(ayuda));
    mando.rotulo = new QLabel;
    mando.rotulo->setObjectName(conNombre("lbl"));
    mando.rotulo->setBuddy(mando.deslizador);
    mando.valor = new QLabel;
    mando.valor->setObjectName(conNombre("lblValor"));
    mando.valor->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000 min")));
}

QBoxLayout* dlgChart2_ventana::ConstruyeBotones()
{
    const auto boton = [](std::string_view leyenda, const char* nombre) {
        auto* const b = new QPushButton(Q(leyenda));
        b->setObjectName(QString::fromUtf8(nombre));
        return b;
    };
    cmdHsMin = boton(LeyendaHsMin, "cmdHsMin");
    cmdXmas = boton(LeyendaXmas, "cmdXmas");
    cmdXmenos = boton(LeyendaXmenos, "cmdXmenos");
    cmdImprimir = boton(LeyendaImprimir, "cmdImprimir");
    OKButton = boton(LeyendaCerrar, "OKButton");
    auto* const fila = new QHBoxLayout;
    for (QPushButton* const b : {cmdHsMin, cmdXmas, cmdXmenos})
        fila->addWidget(b);
    fila->addStretch(1);
    fila->addWidget(cmdImprimir);
    fila->addWidget(OKButton);
    return fila;
}

void dlgChart2_ventana::Abre()
{
    const bool estaba = f.abierta;
    results::Abre(f, entorno.s);
    if (!estaba) {
        Pp.pedido.reset();
        Dur.pedido.reset();
    }
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void dlgChart2_ventana::AlCerrar()
{
    results::OKButton(f);
}

void dlgChart2_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    Grafico->PonTema(f.lblTitulo, f.componente);
    Pon(*lblTitulo, f.lblTitulo);
    Pon(*lblNota, f.lblNota);
    Pon(*lstCompos, f.lstCompos, f.lstComposIndice);
    MuestraMando(Pp, f.sldPp, f.lblPp);
    MuestraMando(Dur, f.sldDur, f.lblDur);
    for (QPushButton* const boton : {cmdHsMin, cmdXmas, cmdXmenos, cmdImprimir, OKButton})
        boton->setVisible(f.vista.comandos);
    lstCompos->setVisible(f.vista.lista);
    if (!f.abierta && isVisible()) close();
}

void dlgChart2_ventana::MuestraMando(Mando& mando, const Deslizador& estado, const std::string& rotulo) const
{
    Pon(*mando.rotulo, rotulo);
    const QSignalBlocker silencio(*mando.deslizador);
    mando.deslizador->setRange(estado.minimo, estado.maximo);
    mando.deslizador->setSingleStep(estado.pasoChico);
    mando.deslizador->setPageStep(estado.pasoGrande);
    // What the user has moved meanwhile stays where he has it.
    if (!mando.pedido) mando.deslizador->setValue(estado.valor);
    mando.valor->setText(QString::number(mando.deslizador->value()) + Q(mando.unidad));
    for (QWidget* const w : std::initializer_list<QWidget*>{mando.rotulo, mando.deslizador, mando.valor})
        w->setVisible(f.vista.deslizadores);
}

// --- the runs of the sliders ---

void dlgChart2_ventana::Pide(Mando& mando, int valor)
{
    mando.pedido = valor;
    mando.valor->setText(QString::number(valor) + Q(mando.unidad));
    if (corriendo || std::exchange(programada, true)) return;
    // Behind the events that are waiting: of several moves the last one is run.
    QTimer::singleShot(0, this, [this] { CorrePedidos(); });
}

void dlgChart2_ventana::CorrePedidos()
{
    programada = false;
    for (Mando* const mando : {&Pp, &Dur}) {
        if (!mando->pedido || !f.abierta || entorno.Terminando()) continue;
        const int valor = *std::exchange(mando->pedido, std::nullopt);
        corriendo = true;
        Suceso([&] {
            const Espera espera;
            mando->mueve(f, entorno.s, valor);
        });
        corriendo = false;
    }
    // Moved while a box of the run was on show.
    if ((Pp.pedido || Dur.pedido) && f.abierta && !std::exchange(programada, true))
        QTimer::singleShot(0, this, [this] { CorrePedidos(); });
}

void dlgChart2_ventana::Imprime()
{
    AntesDeImprimir(f);
    Muestra();
    layout()->activate();
    forms::ImprimeConLamina(entorno, *this, *Grafico);
    DespuesDeImprimir(f);
    Muestra();
}

}  // namespace results
