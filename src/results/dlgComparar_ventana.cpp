// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgComparar_ventana.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <utility>

#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {

using forms::Q;

dlgComparar_ventana::dlgComparar_ventana(forms::Entorno& alrededor, dlgComparar& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgComparar", TituloDlgComparar, RotulosDlgComparar}, padre), f(registro)
{
    Sigue(f.abierta);
    franja = new checks::Franja(entorno, checks::Alcance::Corrida);
    QLabel* const titulo = EnNegrita(Texto("lblTitulo", f.lblTitulo));
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setWordWrap(true);
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgComparar);
    QLabel* const nota = Texto("lblNota", f.lblNota);
    nota->setWordWrap(true);
    VisibleSi(nota, [this] { return !f.lblNota.empty() && !imprimiendo; });
    auto* const costado = new QWidget;
    costado->setLayout(Costado());
    costado->layout()->setContentsMargins(0, 0, 0, 0);
    VisibleSi(costado, [this] { return !imprimiendo; });
    setLayout(EnPila({franja, titulo, {EnFila({{Grafico, 1}, costado}), 1}, nota, Botones()}));
    AlMostrar([this] {
        Grafico->Muestra(f.Grafico);
        Grafico->PonTema(f.lblTitulo);
        if (f.corrida != nullptr) Grafico->PonOrigen(ProyectoDe(*f.corrida), f.corrida->cuando);
    });
}

QLayout* dlgComparar_ventana::Costado()
{
    lista = Lista();
    return EnPila(
        {EnFila({Casilla(
                     "chkSale", [this] { return f.chkSale; }, [this](bool si) { chkSale_Click(f, si); }),
                 Casilla(
                     "chkEntra", [this] { return f.chkEntra; }, [this](bool si) { chkEntra_Click(f, si); }),
                 Hueco()}),
         Rotulo("lstCompos", lista),
         {lista, 1},
         HabilitadoSi(Boton("cmdRepresas", [this] { cmdRepresas(f); }), [this] { return f.hayRepresas; }),
         HabilitadoSi(Boton("cmdSalida", [this] { cmdSalida(f); }), [this] { return f.haySalida; }),
         Boton("cmdNinguno", [this] { cmdNinguno(f); })});
}

/// Items that are ticked by a click on the box, or by the blank.
QListWidget* dlgComparar_ventana::Lista()
{
    auto* const nueva = Nombra(new QListWidget, "lstCompos");
    connect(nueva, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        const auto lugar = static_cast<std::size_t>(lista->row(item));
        const bool elegido = item->checkState() == Qt::Checked;
        Suceso([&] { lstCompos_Tilda(f, lugar, elegido); });
    });
    nueva->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);  // as wide as the buttons below it
    AlMostrar([this] { MuestraLista(); });
    return nueva;
}

void dlgComparar_ventana::MuestraLista()
{
    const QSignalBlocker silencio(lista);
    if (lista->count() != static_cast<int>(f.lstCompos.size())) {
        lista->clear();
        lista->addItems(Q(f.lstCompos));
    }
    for (std::size_t i = 0; i < f.lstCompos.size(); ++i) {
        QListWidgetItem& item = *lista->item(static_cast<int>(i));
        item.setText(Q(f.lstCompos[i]));
        item.setCheckState(f.elegidos[i] ? Qt::Checked : Qt::Unchecked);
    }
    lista->viewport()->update();
}

QLayout* dlgComparar_ventana::Botones()
{
    const auto boton = [this](std::string_view control, std::function<void()> rutina) {
        return VisibleSi(Boton(control, std::move(rutina)), [this] { return !imprimiendo; });
    };
    return EnFila({boton("cmdHsMin", [this] { cmdHsMin(f); }), Hueco(),
                   boton("cmdImprimir", [this] { Imprime(); }), boton("OKButton", [this] { OKButton(f); })});
}

void dlgComparar_ventana::PonCorrida(Corrida corrida)
{
    Pon(f, std::move(corrida));
    if (f.corrida != nullptr)
        franja->Toma(f.corrida->sello);
    else
        franja->Suelta();
}

void dlgComparar_ventana::Abre(Corrida corrida)
{
    f.abierta = true;
    PonCorrida(std::move(corrida));
    Muestra();
    entorno.Presenta(*this);
}

void dlgComparar_ventana::Compara(Corrida corrida, const std::vector<std::string>& componentes)
{
    f.abierta = true;
    PonCorrida(std::move(corrida));
    results::Compara(f, componentes);
    Muestra();
    entorno.Presenta(*this);
}

void dlgComparar_ventana::Toma(Corrida corrida)
{
    if (!f.abierta || corrida == f.corrida) return;
    PonCorrida(std::move(corrida));
    Muestra();
}

void dlgComparar_ventana::AlCerrar()
{
    OKButton(f);
}

/// The chart alone, with its title.
void dlgComparar_ventana::Imprime()
{
    imprimiendo = true;
    Muestra();
    layout()->activate();
    forms::ImprimeConLamina(entorno, *this, *Grafico);
    imprimiendo = false;
    Muestra();
}

}  // namespace results
