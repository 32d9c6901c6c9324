// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgRepresas_ventana.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "forms/Textos_ventana.h"

namespace editor {

using forms::Q;

namespace {

constexpr int ColumnaDeCampos = 1;  ///< of the grid of functions; before it their captions

QString Indexado(std::string_view control, int funcion)
{
    return QStringLiteral("%1_%2").arg(Q(control)).arg(funcion);
}

}  // namespace

dlgRepresas_ventana::dlgRepresas_ventana(forms::Entorno& alrededor, dlgRepresas& registro, QWidget* padre)
    : FichaEmbalse_ventana(alrededor, {"dlgRepresas", TituloDlgRepresas, RotulosDlgRepresas}, registro, padre)
{
    auto* const pila = new QVBoxLayout(this);
    auto* const cuerpo = new QHBoxLayout;
    pila->addLayout(cuerpo, 1);
    cuerpo->addWidget(ListaDeComponentes("lstRepresas", f.lstRepresas,
                                         [this](int linea) { lstRepresas_Click(f, entorno.s, linea); }));
    cuerpo->addLayout(Propiedades());
    auto* const descarga = new QVBoxLayout;
    descarga->addWidget(MarcoDeSeleccion());
    descarga->addWidget(MarcoDeFunciones());
    descarga->addStretch(1);
    cuerpo->addLayout(descarga, 1);
    Cierre(*pila, [this] { OKButton(f, entorno.s); });
}

QLayout* dlgRepresas_ventana::Propiedades()
{
    auto* const grilla = new QGridLayout;
    Identidad(*grilla,
              {"lblNroRepresa", "lblNombreRepresa", "txtNombreRepresa", f.lblNroRepresa, f.lblNombreRepresa,
               f.txtNombreRepresa},
              [this] { txtNombreRepresa_Cambia(f, entorno.s); });
    Destinos(*grilla, "lblDrenaCauceAA", &f.lblDrenaCauceAA);
    Metodo(*grilla);
    auto* const coeficientes = new QHBoxLayout;
    Coeficiente(*coeficientes, CamposDlgRepresas, "txtRepresa_k", {"lblRepresaCofk", f.lblRepresaCofk}, 'k');
    Coeficiente(*coeficientes, CamposDlgRepresas, "txtRepresa_n", {"lblRepresaCofn", f.lblRepresaCofn}, 'x');
    grilla->addLayout(coeficientes, grilla->rowCount(), 0, 1, -1);
    auto* const referencia = Nombra(new QLabel(Q(Leyenda("lblReferencia"))), "lblReferencia");
    grilla->addWidget(referencia, grilla->rowCount(), 0, 1, -1);
    AlturaInicial(*grilla);
    grilla->addWidget(Boton("cmdHSV", [this] { AbreTabla(cmdHSV(f)); }), grilla->rowCount(), 0, 1, -1);
    return grilla;
}

QWidget* dlgRepresas_ventana::MarcoDeSeleccion()
{
    QGroupBox* const marco = Marco("fraSeleccion");
    auto* const fila = new QHBoxLayout(marco);
    fila->addWidget(Opcion("optTablaQ", f.optTablaQ, [this] { optTablaQ_Click(f); }));
    QPushButton* const edita = Boton("cmdTablaQ", [this] { AbreTabla(cmdTablaQ(f)); });
    AlMostrar([this, edita] { edita->setEnabled(f.cmdTablaQHabilitado()); });
    fila->addWidget(edita);
    fila->addSpacing(fontMetrics().averageCharWidth() * 4);
    fila->addWidget(Opcion("optFunciones", f.optFunciones, [this] { optFunciones_Click(f); }));
    fila->addStretch(1);
    return marco;
}

QWidget* dlgRepresas_ventana::MarcoDeFunciones()
{
    QGroupBox* const marco = Marco("fraFunciones");
    auto* const grilla = new QGridLayout(marco);
    int columna = ColumnaDeCampos;
    for (const CampoFQ& campo : CamposFQ) {
        const std::string unidad = UnidadAparte(Leyenda(campo.control), campo.unidad);
        const QString titulo = (Q(Leyenda(campo.control)) + QLatin1Char(' ') + Q(unidad)).trimmed();
        grilla->addWidget(new QLabel(titulo), 0, columna, Qt::AlignHCenter);
        grilla->setColumnStretch(columna++, 1);
    }
    for (int funcion = 1; funcion <= model::NroFuncionesFQ; ++funcion)
        FilaDeFuncion(*grilla, funcion);
    return marco;
}

void dlgRepresas_ventana::FilaDeFuncion(QGridLayout& grilla, int funcion)
{
    const auto lugar = static_cast<std::size_t>(funcion) - 1;
    const QString leyenda = Q(RotulosFunciones[lugar]);
    auto* const marca = new QCheckBox(leyenda);
    marca->setObjectName(Indexado("chkFQ", funcion));
    AlPulsar(*marca, [this, marca, funcion] { chkFQ_Click(f, funcion, marca->isChecked()); });
    AlMostrar([this, marca, lugar] {
        forms::Pon(*marca, f.chkFQ[lugar]);
        marca->setEnabled(f.chkFQHabilitado());
    });
    grilla.addWidget(marca, funcion, 0);
    int columna = ColumnaDeCampos;
    for (const CampoFQ& campo : CamposFQ) {
        const int suya = columna++;
        if (funcion < campo.primera) continue;
        QLineEdit* const texto = Campo(campo.control, (f.*campo.textos)[lugar]);
        texto->setObjectName(Indexado(campo.control, funcion));
        texto->setAccessibleName(leyenda + QStringLiteral(", ") + Q(Leyenda(campo.control)));
        texto->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
        EsNumero(*texto, Sale(campo.control));
        AlMostrar([this, texto, funcion] { texto->setEnabled(f.FuncionHabilitada(funcion)); });
        grilla.addWidget(texto, funcion, suya);
    }
}

}  // namespace editor
