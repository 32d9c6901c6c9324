// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp_ventana.h"

#include <QRegularExpression>
#include <type_traits>
#include <utility>

#include "rainfall/dlgDisPpPer_ventana.h"
#include "rainfall/dlgPpReal_ventana.h"
#include "rainfall/dlgTablaPpUEHs_ventana.h"
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {

using forms::Q;

// --- the form's parts ---

dlgPp_ventana::dlgPp_ventana(forms::Entorno& alrededor, dlgPp& registro, QWidget* padre)
    : Formulario(alrededor, {"dlgPp", TituloDlgPp, ControlesDlgPp}, padre), f(registro)
{
    Sigue(f.abierta);
    ConectaVentanas();
    QWidget* const formas = MarcoDeFormas();
    QWidget* const tormenta = MarcoDeTormenta();
    // The three stand in one place: each form shows one of them or none.
    auto* const lugar = new QGridLayout;
    for (QWidget* marco : {MarcoDeLista(), MarcoDeTablas(), MarcoDeTormentaReal()})
        lugar->addWidget(marco, 0, 0);
    setLayout(EnPila({formas,
                      {EnFila({{EnPila({tormenta, {lugar, 1}}), 1},
                               {EnPila({MarcoDeDistribuciones(), MarcoDePasos(), Hueco()}), 1}}),
                       1},
                      Botones()}));
    setTabOrder(optformaPp.back(), findChild<QPushButton*>(QStringLiteral("cmdCargaPDRnoUniforme")));
    for (QPushButton* const boton : findChildren<QPushButton*>())
        boton->setAutoDefault(true);  // Enter presses the one that has the focus
    SigueEstados();
    entorno.AlActivarse(*this, [this] {
        rainfall::AlActivarse(f, entorno.s);
        Muestra();
    });
}

void dlgPp_ventana::SigueEstados()
{
    for (const forms::FilaRotulo& fila : ControlesDlgPp) {
        const bool deCampo = fila.control.starts_with("txt") || fila.control.starts_with("cmb");
        const QString nombres = QStringLiteral("^%1%2(_\\d)?$")
                                    .arg(deCampo ? QStringLiteral("(rotulo_)?") : QString(), Q(fila.control));
        for (QWidget* const w : findChildren<QWidget*>(QRegularExpression(nombres))) {
            HabilitadoSi(w, [this, control = fila.control] { return f.Habilitado(control); });
            VisibleSi(w, [this, control = fila.control] { return f.Visible(control); });
        }
    }
}

dlgPp_ventana::~dlgPp_ventana() = default;

void dlgPp_ventana::ConectaVentanas()
{
    const auto conecta = [this](std::function<void()>& abre, auto& ventana, auto& registro) {
        abre = [this, &ventana, &registro] {
            using Ventana = typename std::remove_reference_t<decltype(ventana)>::element_type;
            if (!ventana) {
                ventana = std::make_unique<Ventana>(entorno, registro, f, this);
                ventana->AlMostrarse = [this] { MuestraDetras(); };
            }
            ventana->Abre();
        };
    };
    conecta(AbreDisPer, ventanaDisPer, disPer);
    conecta(AbreTablasPDRs, ventanaTablasPDRs, tablasPDRs);
    conecta(AbrePpUEHs, ventanaPpUEHs, ppUEHs);
    AbrePpReal = [this] {
        if (!ventanaPpReal) {
            ventanaPpReal = std::make_unique<dlgPpReal_ventana>(entorno, ppReal, f, this);
            ventanaPpReal->AbreHietograma = [this](const PedidoHietograma& p) { AbreHietograma(p); };
            ventanaPpReal->AlMostrarse = [this] {
                f.FilePpReal.PonItems(ppReal.FilePpReal.items);
                MuestraDetras();
            };
        }
        ventanaPpReal->Abre();
    };
}

QWidget* dlgPp_ventana::MarcoDeFormas()
{
    const auto titulo = [this](std::string_view control) { return ConservaLugar(EnNegrita(Texto(control))); };
    optformaPp =
        Opciones("optformaPp", FormasPp, f.optformaPp, [this](int i) { optformaPp_Click(f, entorno.s, i); });
    QPushButton* const carga = Boton("cmdCargaPDRnoUniforme", [this] { AbreOtra(AbrePpUEHs); });
    // Column 0 sets the options of synthetic storms in under their headings.
    QGridLayout* const rejilla = EnRejilla({{titulo("Label9_0")},
                                            {Hueco(), optformaPp[0]},
                                            {Hueco(), optformaPp[1]},
                                            {Hueco(), optformaPp[2]},
                                            {titulo("Label9_1")},
                                            {Hueco(), optformaPp[3], carga, Hueco()},
                                            {optformaPp[4]}},
                                           {0, 0, 0, 1});
    rejilla->setColumnMinimumWidth(0, fontMetrics().averageCharWidth());
    auto* const marco = new QGroupBox(Q(MarcoFormas));
    marco->setLayout(rejilla);
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeTormenta()
{
    return ConservaLugar(Marco(
        "Frame2",
        EnRejilla(
            {Renglon("txtPp", Campo("txtPp", f.txtPp, [this] { return AlSalir(f, entorno.s, "txtPp"); })),
             Renglon("txtDur", Campo("txtDur", f.txtDur, [this] { return AlSalir(f, entorno.s, "txtDur"); })),
             Renglon("cmbRec", CampoConLista("cmbRec", f.itemsRec, f.cmbRec))},
            {0, 1})));
}

QWidget* dlgPp_ventana::MarcoDeLista()
{
    QComboBox* const lista = Desplegable("cmbPDR", f.cmbPDR, [this] { cmbPDR_Click(f, entorno.s); });
    return ConservaLugar(Marco(
        "Frame4", EnPila({Rotulo("cmbPDR", lista), lista, Boton("cmdPDR", [this] { cmdPDR(f, entorno.s); }),
                          Boton("cmdBorraPDR", [this] { cmdBorraPDR(f, entorno.s); }), Hueco()})));
}

QWidget* dlgPp_ventana::MarcoDeTablas()
{
    forms::Partes partes;
    for (QRadioButton* const opcion :
         Opciones("optTablaPDR", TablasPDR, f.optTablaPDR, [this](int i) { optTablaPDR_Click(f, i); }))
        partes.emplace_back(opcion);
    partes.emplace_back(Boton("cmdTablaPDR", [this] { AbreOtra(AbreTablasPDRs); }));
    partes.push_back(Hueco());
    return ConservaLugar(Marco("Frame3", EnPila(partes)));
}

QWidget* dlgPp_ventana::MarcoDeTormentaReal()
{
    QWidget* const archivos = Listado("FilePpReal", f.FilePpReal, forms::Flechas::Eligen,
                                      [this] { FilePpReal_Click(f, entorno.s); });
    return ConservaLugar(Marco("Frame7", EnRejilla({{Rotulo("FilePpReal", archivos)},
                                                    {{archivos, 1}},
                                                    Dato("lblMiFilePpReal", f.lblMiFilePpReal),
                                                    Dato("lblNumPer", f.lblNumPer),
                                                    {Boton("cmdPpReal", [this] { AbreOtra(AbrePpReal); })}},
                                                   {0, 1})));
}

QWidget* dlgPp_ventana::MarcoDeDistribuciones()
{
    forms::Partes partes;
    for (QRadioButton* const opcion : Opciones("optDistriPp", DistribucionesPp, f.optDistriPp,
                                               [this](int i) { optDistriPp_Click(f, entorno.s, i); }))
        partes.emplace_back(opcion);
    partes.emplace_back(Validez());
    partes.emplace_back(Boton("cmdPpPerso", [this] { AbreOtra(AbreDisPer); }), 0, Qt::AlignLeft);
    return ConservaLugar(Marco("Frame5", EnPila(partes)));
}

/// The two limits stand below their words in the heading, which is one text.
QLayout* dlgPp_ventana::Validez()
{
    QLabel* const titulo = ConservaLugar(Texto("lblValidez"));
    QLabel* const minima = ConservaLugar(Texto("lblDurMin", f.lblDurMin));
    QLabel* const maxima = ConservaLugar(Texto("lblDurMax", f.lblDurMax));
    const QString texto = titulo->text();
    const QFontMetrics letra(titulo->font());
    const int hastaMin = letra.horizontalAdvance(texto.left(texto.indexOf(Q("Min "))));
    const int hastaMaxima = letra.horizontalAdvance(texto.left(texto.indexOf(Q("Máxima"))));
    minima->setFixedWidth(hastaMaxima - hastaMin);
    QLayout* const limites = EnFila({Hueco(hastaMin), minima, {maxima, 1}});
    QLayout* const pila = EnPila({titulo, limites});
    for (QLayout* const junto : {limites, pila})
        junto->setSpacing(0);
    return pila;
}

QWidget* dlgPp_ventana::MarcoDePasos()
{
    auto* const marco = new QGroupBox(Q(MarcoPasos));
    marco->setLayout(
        EnRejilla({Renglon("cmbPasoPp", CampoConLista("cmbPasoPp", f.itemsPaso, f.cmbPasoPp,
                                                      [this] { return AlSalir(f, entorno.s, "cmbPasoPp"); })),
                   Renglon("cmbPasoQ", CampoConLista("cmbPasoQ", f.itemsPaso, f.cmbPasoQ,
                                                     [this] { return AlSalir(f, entorno.s, "cmbPasoQ"); }))},
                  {0, 1}));
    return marco;
}

QLayout* dlgPp_ventana::Botones()
{
    QPushButton* const acepta = Boton("OKButton", [this] { OKButton(f, entorno.s); });
    acepta->setDefault(true);
    const auto grafico = [this] {
        if (const auto pedido = cmdVerGrafico(f, entorno.s)) AbreHietograma(*pedido);
    };
    return EnFila({Boton("cmdVerGrafico", grafico),
                   Boton("cmdVerTablaPt", [this] { cmdVerTablaPt(f, entorno.s); }), Hueco(),
                   Boton("cmdAplicar", [this] { cmdAplicar(f, entorno.s); }), acepta,
                   BotonSinRevisar("CancelButton", [this] { AlCerrar(); })});
}

// --- life ---

void dlgPp_ventana::AbreOtra(const std::function<void()>& abre)
{
    abre();
    AlVolver(f, entorno.s);
}

void dlgPp_ventana::Abre()
{
    rainfall::Abre(f, entorno.s);
    Muestra();
    for (QRadioButton* opcion : optformaPp)
        if (opcion->isChecked()) opcion->setFocus();
    entorno.Ejecuta(*this);
}

void dlgPp_ventana::MuestraDetras()
{
    MuestraValidez(f, entorno.s);
    Muestra();
}

void dlgPp_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

}  // namespace rainfall
