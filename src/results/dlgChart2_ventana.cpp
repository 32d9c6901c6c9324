// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart2_ventana.h"

#include <QGuiApplication>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <utility>

#include "forms/Lamina_ventana.h"
#include "model/Siro.h"
#include "results/dlgChart1.h"

namespace results {

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
    : Ventana(alrededor, {"dlgChart2", TituloDlgChart2, RotulosDeGraficos}, padre), f(registro)
{
    Sigue(f.abierta);
    QLabel* const titulo = EnNegrita(Texto("lblTitulo", f.lblTitulo));
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setWordWrap(true);
    franja = new checks::Franja(entorno, checks::Alcance::Corrida);
    AlMostrar([this] { franja->Sigue(f.llenados); });
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgChart2);
    QWidget* const componentes =
        Listado("lstCompos", f.lstCompos, f.lstComposIndice, forms::Flechas::Eligen, [this](int indice) {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    componentes->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    VisibleSi(componentes, [this] { return f.vista.lista; });
    setLayout(EnPila({franja,
                      titulo,
                      {EnFila({{Grafico, 1}, componentes}), 1},
                      Mandos(),
                      Texto("lblNota", f.lblNota),
                      Botones()}));
}

QLayout* dlgChart2_ventana::Mandos()
{
    Pp.unidad = " mm";
    Pp.mueve = sldPp_Mueve;
    PonMando(Pp, "sldPp", "lblPp", "lblValorPp");
    Dur.unidad = " min";
    Dur.mueve = sldDur_Mueve;
    PonMando(Dur, "sldDur", "lblDur", "lblValorDur");
    AlMostrar([this] {
        MuestraMando(Pp, f.sldPp, f.lblPp);
        MuestraMando(Dur, f.sldDur, f.lblDur);
    });
    return EnFila({Pp.rotulo,
                   {Pp.deslizador, 1},
                   Pp.valor,
                   Hueco(fontMetrics().averageCharWidth() * 2),
                   Dur.rotulo,
                   {Dur.deslizador, 1},
                   Dur.valor});
}

void dlgChart2_ventana::PonMando(Mando& mando, std::string_view deslizador, std::string_view rotulo,
                                 std::string_view valor)
{
    mando.deslizador = Nombra(new QSlider(Qt::Horizontal), deslizador);
    mando.rotulo = Nombra(new QLabel, rotulo);
    mando.rotulo->setBuddy(mando.deslizador);
    mando.valor = Nombra(new QLabel, valor);
    mando.valor->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000 min")));
    connect(mando.deslizador, &QSlider::valueChanged, this,
            [this, &mando](int cuanto) { Pide(mando, cuanto); });
}

QLayout* dlgChart2_ventana::Botones()
{
    const auto boton = [this](std::string_view control, std::function<void()> rutina) {
        return VisibleSi(Boton(control, std::move(rutina)), [this] { return f.vista.comandos; });
    };
    return EnFila({boton("cmdHsMin", [this] { cmdHsMin(f, entorno.s); }),
                   boton("cmdXmas", [this] { cmdXmas(f); }), boton("cmdXmenos", [this] { cmdXmenos(f); }),
                   Observado(), Hueco(), boton("cmdImprimir", [this] { Imprime(); }),
                   boton("OKButton", [this] { OKButton(f); })});
}

/// On show where the component has something observed.
QLayout* dlgChart2_ventana::Observado()
{
    QComboBox* const eventos = Desplegable("cmbObservado", f.cmbObservado, f.cmbObservadoIndice,
                                           [this](int i) { cmbObservado_Click(f, i); });
    const auto hay = [this] { return f.vista.comandos && !f.cmbObservado.empty(); };
    return EnFila({Hueco(fontMetrics().averageCharWidth()), VisibleSi(Rotulo("cmbObservado", eventos), hay),
                   VisibleSi(eventos, hay)});
}

void dlgChart2_ventana::TomaObservado()
{
    if (!f.abierta) return;
    PonObservado(f);
    Muestra();
}

void dlgChart2_ventana::Abre()
{
    const bool estaba = f.abierta;
    if (!estaba) franja->Olvida();
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
    OKButton(f);
}

void dlgChart2_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    Grafico->PonTema(f.lblTitulo, f.componente);
    Ventana::Muestra();
}

void dlgChart2_ventana::MuestraMando(Mando& mando, const Deslizador& estado, const std::string& rotulo) const
{
    forms::Pon(*mando.rotulo, rotulo);
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
            model::Tormenta entrada = entorno.s.Tormenta;
            const bool completa = mando->mueve(f, entorno.s, valor);
            entrada.PpTormenta = entorno.s.Tormenta.PpTormenta;
            entrada.DurTormenta = entorno.s.Tormenta.DurTormenta;
            TrasCorrer(entrada, completa);
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
