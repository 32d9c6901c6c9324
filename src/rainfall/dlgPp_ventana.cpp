// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp_ventana.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <type_traits>
#include <utility>

#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "rainfall/dlgDisPpPer_ventana.h"
#include "rainfall/dlgPpReal_ventana.h"
#include "rainfall/dlgTablaPpUEHs_ventana.h"
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {

using forms::Pon;
using forms::Q;

namespace {

/// What a form hides keeps its place, so that nothing jumps as the user goes through the forms.
void ConservaLugar(QWidget& widget)
{
    QSizePolicy politica = widget.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politica);
}

}  // namespace

// --- the form's parts ---

dlgPp_ventana::dlgPp_ventana(forms::Entorno& alrededor, dlgPp& registro, QWidget* padre)
    : Formulario(alrededor, {"dlgPp", TituloDlgPp, ControlesDlgPp}, padre), f(registro)
{
    ConectaVentanas();

    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(MarcoDeFormas());
    auto* const partes = new QHBoxLayout;
    pila->addLayout(partes, 1);

    auto* const izquierda = new QVBoxLayout;
    izquierda->addWidget(MarcoDeTormenta());
    // The three stand in one place: each form shows one of them or none.
    auto* const lugar = new QGridLayout;
    for (QWidget* marco : {MarcoDeLista(), MarcoDeTablas(), MarcoDeTormentaReal()})
        lugar->addWidget(marco, 0, 0);
    izquierda->addLayout(lugar, 1);
    partes->addLayout(izquierda, 1);

    auto* const derecha = new QVBoxLayout;
    derecha->addWidget(MarcoDeDistribuciones());
    derecha->addWidget(MarcoDePasos());
    derecha->addStretch(1);
    partes->addLayout(derecha, 1);
    pila->addLayout(Botones());

    AlPulsarOpciones();
    entorno.AlActivarse(*this, [this] {
        rainfall::AlActivarse(f, entorno.s);
        Muestra();
    });
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
    auto* const marco = new QGroupBox(Q(MarcoFormas), this);
    Opciones("optformaPp", FormasPp, optformaPp, *marco);
    auto* const cargaUEH = Boton("cmdCargaPDRnoUniforme", *marco, [this] { AbreOtra(AbrePpUEHs); });

    // Column 0 sets the options of synthetic storms in under their headings.
    auto* const grilla = new QGridLayout(marco);
    grilla->setColumnMinimumWidth(0, fontMetrics().averageCharWidth());
    grilla->setColumnStretch(3, 1);
    int fila = 0;
    const auto titulo = [&](std::string_view control) {
        QLabel* const rotulo = Rotulo(control, *marco);
        QFont negrita = rotulo->font();
        negrita.setBold(true);
        rotulo->setFont(negrita);
        rainfall::ConservaLugar(*rotulo);
        grilla->addWidget(rotulo, fila++, 0, 1, -1);
    };
    titulo("Label9_0");
    for (const std::size_t i : {0U, 1U, 2U})
        grilla->addWidget(optformaPp[i], fila++, 1, 1, -1);
    titulo("Label9_1");
    grilla->addWidget(optformaPp[3], fila, 1);
    grilla->addWidget(cargaUEH, fila++, 2);
    grilla->addWidget(optformaPp[4], fila, 0, 1, -1);
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeTormenta()
{
    QGroupBox* const marco = Marco("Frame2");
    auto* const grilla = new QGridLayout(marco);
    const auto campo = [&](std::string_view control, std::string& texto) {
        auto* const linea = Toma(control, new QLineEdit(marco));
        forms::Refleja(*linea, texto);
        Renglon(*grilla, control, *linea);
        return linea;
    };
    txtPp = campo("txtPp", f.txtPp);
    txtDur = campo("txtDur", f.txtDur);
    cmbRec = ListaConTextoDe("cmbRec", *marco, f.cmbRec);
    Renglon(*grilla, "cmbRec", *cmbRec);
    campos.Agrega(*txtPp, [this] { return AlSalir(f, entorno.s, "txtPp"); });
    campos.Agrega(*txtDur, [this] { return AlSalir(f, entorno.s, "txtDur"); });
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeLista()
{
    QGroupBox* const marco = Marco("Frame4");
    auto* const pila = new QVBoxLayout(marco);
    cmbPDR = Toma("cmbPDR", new QComboBox(marco));
    QLabel* const rotulo = Toma("cmbPDR", new QLabel(Q(Fila("cmbPDR").leyenda), marco));
    rotulo->setObjectName(QStringLiteral("rotuloPDR"));
    rotulo->setBuddy(cmbPDR);
    pila->addWidget(rotulo);
    pila->addWidget(cmbPDR);
    pila->addWidget(Boton("cmdPDR", *marco, [this] { cmdPDR(f, entorno.s); }));
    pila->addWidget(Boton("cmdBorraPDR", *marco, [this] { cmdBorraPDR(f, entorno.s); }));
    pila->addStretch(1);
    connect(cmbPDR, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbPDR.indice = i;
            cmbPDR_Click(f, entorno.s);
        });
    });
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeTablas()
{
    QGroupBox* const marco = Marco("Frame3");
    auto* const pila = new QVBoxLayout(marco);
    Opciones("optTablaPDR", TablasPDR, optTablaPDR, *marco);
    for (QRadioButton* opcion : optTablaPDR)
        pila->addWidget(opcion);
    pila->addWidget(Boton("cmdTablaPDR", *marco, [this] { AbreOtra(AbreTablasPDRs); }));
    pila->addStretch(1);
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeTormentaReal()
{
    QGroupBox* const marco = Marco("Frame7");
    auto* const grilla = new QGridLayout(marco);
    FilePpReal = Toma("FilePpReal", new forms::ListaParaElegir(marco));
    FilePpReal->conFlechas = true;
    FilePpReal->AlElegir = [this](int i) {
        Suceso([this, i] {
            f.FilePpReal.indice = i;
            FilePpReal_Click(f, entorno.s);
        });
    };
    auto* const rotulo = new QLabel(Q(Fila("FilePpReal").leyenda), marco);
    rotulo->setBuddy(FilePpReal);
    grilla->addWidget(rotulo, 0, 0, 1, 2);
    grilla->addWidget(FilePpReal, 1, 0, 1, 2);
    int fila = 2;
    const auto dato = [&](std::string_view control) {
        auto* const valor = Toma(control, new QLabel(marco));
        grilla->addWidget(new QLabel(Q(Fila(control).leyenda), marco), fila, 0);
        grilla->addWidget(valor, fila++, 1);
        return valor;
    };
    lblMiFilePpReal = dato("lblMiFilePpReal");
    lblNumPer = dato("lblNumPer");
    grilla->addWidget(Boton("cmdPpReal", *marco, [this] { AbreOtra(AbrePpReal); }), fila, 0, 1, 2);
    grilla->setRowStretch(1, 1);
    grilla->setColumnStretch(1, 1);
    return marco;
}

QWidget* dlgPp_ventana::MarcoDeDistribuciones()
{
    QGroupBox* const marco = Marco("Frame5");
    auto* const pila = new QVBoxLayout(marco);
    Opciones("optDistriPp", DistribucionesPp, optDistriPp, *marco);
    for (QRadioButton* opcion : optDistriPp)
        pila->addWidget(opcion);
    pila->addLayout(Validez(*marco));
    pila->addWidget(Boton("cmdPpPerso", *marco, [this] { AbreOtra(AbreDisPer); }), 0, Qt::AlignLeft);
    return marco;
}

/// The two limits stand below their words in the heading, which is one text.
QLayout* dlgPp_ventana::Validez(QWidget& padre)
{
    QLabel* const titulo = Rotulo("lblValidez", padre);
    lblDurMin = Toma("lblDurMin", new QLabel(&padre));
    lblDurMax = Toma("lblDurMax", new QLabel(&padre));
    for (QLabel* rotulo : {titulo, lblDurMin, lblDurMax})
        rainfall::ConservaLugar(*rotulo);

    const QString texto = titulo->text();
    const QFontMetrics letra(titulo->font());
    const int hastaMin = letra.horizontalAdvance(texto.left(texto.indexOf(Q("Min "))));
    const int hastaMaxima = letra.horizontalAdvance(texto.left(texto.indexOf(Q("Máxima"))));
    lblDurMin->setFixedWidth(hastaMaxima - hastaMin);
    auto* const limites = new QHBoxLayout;
    limites->setSpacing(0);
    limites->addSpacing(hastaMin);
    limites->addWidget(lblDurMin);
    limites->addWidget(lblDurMax, 1);
    auto* const pila = new QVBoxLayout;
    pila->setSpacing(0);
    pila->addWidget(titulo);
    pila->addLayout(limites);
    return pila;
}

QWidget* dlgPp_ventana::MarcoDePasos()
{
    auto* const marco = new QGroupBox(Q(MarcoPasos), this);
    auto* const grilla = new QGridLayout(marco);
    cmbPasoPp = ListaConTextoDe("cmbPasoPp", *marco, f.cmbPasoPp);
    Renglon(*grilla, "cmbPasoPp", *cmbPasoPp);
    cmbPasoQ = ListaConTextoDe("cmbPasoQ", *marco, f.cmbPasoQ);
    Renglon(*grilla, "cmbPasoQ", *cmbPasoQ);
    campos.Agrega(*cmbPasoPp, [this] { return AlSalir(f, entorno.s, "cmbPasoPp"); });
    campos.Agrega(*cmbPasoQ, [this] { return AlSalir(f, entorno.s, "cmbPasoQ"); });
    return marco;
}

QLayout* dlgPp_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    fila->addWidget(Boton("cmdVerGrafico", *this, [this] {
        if (const auto pedido = cmdVerGrafico(f, entorno.s)) AbreHietograma(*pedido);
    }));
    fila->addWidget(Boton("cmdVerTablaPt", *this, [this] { cmdVerTablaPt(f, entorno.s); }));
    fila->addStretch(1);
    fila->addWidget(Boton("cmdAplicar", *this, [this] { cmdAplicar(f, entorno.s); }));
    QPushButton* const acepta = Boton("OKButton", *this, [this] { OKButton(f, entorno.s); });
    acepta->setDefault(true);
    fila->addWidget(acepta);
    auto* const cancela = Toma("CancelButton", new QPushButton(this));
    cancela->setText(Q(Fila("CancelButton").leyenda));
    connect(cancela, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    fila->addWidget(cancela);
    return fila;
}

// --- controls ---

template <typename T>
T* dlgPp_ventana::Toma(std::string_view control, T* widget)
{
    if (widget->objectName().isEmpty()) widget->setObjectName(Q(control));
    if (!Fila(control).ayuda.empty()) widget->setToolTip(Q(Fila(control).ayuda));
    mostrados.push_back({control, widget});
    return widget;
}

QGroupBox* dlgPp_ventana::Marco(std::string_view control)
{
    auto* const marco = Toma(control, new QGroupBox(Q(Fila(control).leyenda), this));
    rainfall::ConservaLugar(*marco);
    return marco;
}

QLabel* dlgPp_ventana::Rotulo(std::string_view control, QWidget& padre)
{
    return Toma(control, new QLabel(Q(Fila(control).leyenda), &padre));
}

QPushButton* dlgPp_ventana::Boton(std::string_view control, QWidget& padre, std::function<void()> rutina)
{
    auto* const boton = Toma(control, new QPushButton(Q(Fila(control).leyenda), &padre));
    AlPulsar(*boton, std::move(rutina));
    return boton;
}

/// A field with its label, which is available when the field is.
void dlgPp_ventana::Renglon(QGridLayout& grilla, std::string_view control, QWidget& campo)
{
    auto* const rotulo = new QLabel(Q(Fila(control).leyenda), campo.parentWidget());
    rotulo->setObjectName(QStringLiteral("rotulo_") + campo.objectName());
    rotulo->setBuddy(&campo);
    const int fila = grilla.rowCount();
    grilla.addWidget(Toma(control, rotulo), fila, 0);
    grilla.addWidget(&campo, fila, 1);
    grilla.setColumnStretch(1, 1);
}

QComboBox* dlgPp_ventana::ListaConTextoDe(std::string_view control, QWidget& padre, std::string& texto)
{
    auto* const lista = Toma(control, new QComboBox(&padre));
    lista->setEditable(true);
    lista->setInsertPolicy(QComboBox::NoInsert);
    lista->setCompleter(nullptr);  // it would make "10" of a "1"
    forms::Refleja(*lista, texto);
    return lista;
}

template <std::size_t N>
void dlgPp_ventana::Opciones(std::string_view control, const std::array<std::string_view, N>& leyendas,
                             std::array<QRadioButton*, N>& opciones, QWidget& padre)
{
    for (std::size_t i = 0; i < N; ++i) {
        opciones[i] = new QRadioButton(Q(leyendas[i]), &padre);
        opciones[i]->setObjectName(QStringLiteral("%1_%2").arg(Q(control)).arg(i));
        Toma(control, opciones[i]);
    }
}

void dlgPp_ventana::AlPulsarOpciones()
{
    for (std::size_t i = 0; i < optformaPp.size(); ++i)
        AlPulsar(*optformaPp[i], [this, i] { optformaPp_Click(f, entorno.s, static_cast<int>(i)); });
    for (std::size_t i = 0; i < optDistriPp.size(); ++i)
        AlPulsar(*optDistriPp[i], [this, i] { optDistriPp_Click(f, entorno.s, static_cast<int>(i)); });
    for (std::size_t i = 0; i < optTablaPDR.size(); ++i)
        AlPulsar(*optTablaPDR[i], [this, i] { optTablaPDR_Click(f, static_cast<int>(i)); });
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

void dlgPp_ventana::Muestra()
{
    Pon(*txtPp, f.txtPp);
    Pon(*txtDur, f.txtDur);
    Pon(*cmbRec, f.itemsRec, f.cmbRec);
    Pon(*cmbPasoPp, f.itemsPaso, f.cmbPasoPp);
    Pon(*cmbPasoQ, f.itemsPaso, f.cmbPasoQ);
    Pon(*cmbPDR, f.cmbPDR.items, f.cmbPDR.indice);
    Pon(*FilePpReal, f.FilePpReal.items, f.FilePpReal.indice);
    Pon(*lblDurMin, f.lblDurMin);
    Pon(*lblDurMax, f.lblDurMax);
    Pon(*lblNumPer, f.lblNumPer);
    Pon(*lblMiFilePpReal, f.lblMiFilePpReal);
    forms::PonOpciones(optformaPp, f.optformaPp);
    forms::PonOpciones(optDistriPp, f.optDistriPp);
    forms::PonOpciones(optTablaPDR, f.optTablaPDR);
    for (const Mostrado& m : mostrados) {
        m.widget->setEnabled(f.Habilitado(m.control));
        m.widget->setVisible(f.Visible(m.control));
    }
    if (!f.abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace rainfall
