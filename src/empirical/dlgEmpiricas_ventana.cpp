// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas_ventana.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstddef>

#include "empirical/FormulaDibujada_ventana.h"
#include "forms/Textos_ventana.h"

namespace empirical {

using forms::DeQ;
using forms::Pon;
using forms::Q;

namespace {

constexpr int LetrasDeUnDato = 10;
constexpr char16_t ResultadoMasLargo[] = u"0.000000E+00  ";  // seven digits and an exponent

QString Nombre(std::string_view prefijo, std::string_view control)
{
    return Q(std::string(prefijo).append(control));
}

/// A caption, plain as it stands; an ampersand in it is no access key.
QLabel* Leyenda(std::string_view texto, std::string_view ayuda)
{
    auto* const leyenda = new QLabel(Q(texto));
    leyenda->setTextFormat(Qt::PlainText);
    leyenda->setToolTip(Q(ayuda));
    return leyenda;
}

FormulaDibujada* Formula(std::string_view expresion, std::string_view control, std::string_view ayuda)
{
    auto* const formula = new FormulaDibujada(expresion);
    formula->setObjectName(Nombre("formula_", control));
    formula->setToolTip(Q(ayuda));
    return formula;
}

QGridLayout* Rejilla(QGroupBox& marco)
{
    auto* const rejilla = new QGridLayout(&marco);
    rejilla->setHorizontalSpacing(12);
    rejilla->setVerticalSpacing(2);
    return rejilla;
}

QGroupBox* Marco(std::string_view titulo, const char* nombre)
{
    auto* const marco = new QGroupBox(Q(titulo));
    marco->setObjectName(QString::fromUtf8(nombre));
    return marco;
}

}  // namespace

dlgEmpiricas_ventana::dlgEmpiricas_ventana(forms::Entorno& alrededor, dlgEmpiricas& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgEmpiricas"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgEmpiricas));
    cmdCopiar = new QPushButton(QStringLiteral("Copiar &todo"));
    cmdCopiar->setObjectName(QStringLiteral("cmdCopiar"));
    cmdCopiar->setToolTip(QStringLiteral("Copia datos y resultados, para una planilla de cálculo"));
    btnCerrar = new QPushButton(Q(LeyendaBtnCerrar));
    btnCerrar->setObjectName(QStringLiteral("btnCerrar"));

    auto* const botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmdCopiar);
    botones->addWidget(btnCerrar);
    auto* const izquierda = new QVBoxLayout;
    izquierda->addWidget(ConstruyeDatosQp());
    izquierda->addWidget(ConstruyeDatosTc());
    izquierda->addWidget(ConstruyeTc());
    izquierda->addStretch(1);
    auto* const lados = new QHBoxLayout;
    lados->addLayout(izquierda);
    lados->addWidget(ConstruyeQp(), 1);
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(lados, 1);
    pila->addLayout(botones);
    setTabOrder(Qp.back(), cmdCopiar);
    setTabOrder(cmdCopiar, btnCerrar);

    AlPulsar(*cmdCopiar, [this] { CopiaTodo(); });
    AlPulsar(*btnCerrar, [this] { empirical::btnCerrar(f); });
}

void dlgEmpiricas_ventana::PonCampo(QGridLayout& rejilla, std::size_t cual)
{
    const auto& campo = CamposEmpiricos.at(cual);
    const std::string_view control = campo.regla.control;
    auto* const entrada = new QLineEdit;
    entrada->setObjectName(Q(control));
    entrada->setFixedWidth(fontMetrics().averageCharWidth() * (LetrasDeUnDato + 3));
    auto* const leyenda = Leyenda(RotulosEmpiricos.at(cual).leyenda, "");
    leyenda->setBuddy(entrada);
    const int fila = rejilla.rowCount();
    rejilla.addWidget(leyenda, fila, 0);
    rejilla.addWidget(entrada, fila, 1);
    connect(entrada, &QLineEdit::textEdited, this, [this, control, &campo](const QString& texto) {
        SucesoSinRevisar([&] {
            f.*campo.texto = DeQ(texto);
            AlCambiar(f, control);
        });
    });
    campos.Agrega(*entrada, [this, control] {
        AlSalir(f, control);
        return true;
    });
    entradas.at(cual) = entrada;
}

QGroupBox* dlgEmpiricas_ventana::ConstruyeDatosQp()
{
    QGroupBox* const marco = empirical::Marco(MarcoDatosQp, "marcoDatosQp");
    QGridLayout* const rejilla = Rejilla(*marco);
    PonCampo(*rejilla, 0);
    rejilla->setColumnStretch(0, 1);
    return marco;
}

QGroupBox* dlgEmpiricas_ventana::ConstruyeDatosTc()
{
    QGroupBox* const marco = empirical::Marco(MarcoDatosTc, "marcoDatosTc");
    QGridLayout* const rejilla = Rejilla(*marco);
    lblSup = new QLabel;
    lblSup->setObjectName(QStringLiteral("lblSup"));
    lblSup->setTextFormat(Qt::PlainText);
    lblSup->setFrameShape(QFrame::StyledPanel);
    lblSup->setMinimumHeight(entradas.front()->sizeHint().height());
    lblSup->setAccessibleName(Q(LeyendaLblSup));
    rejilla->addWidget(Leyenda(LeyendaLblSup, ""), 0, 0);
    rejilla->addWidget(lblSup, 0, 1);
    for (std::size_t cual = 1; cual < CamposEmpiricos.size(); ++cual)
        PonCampo(*rejilla, cual);
    rejilla->setColumnStretch(0, 1);
    return marco;
}

QGroupBox* dlgEmpiricas_ventana::ConstruyeTc()
{
    QGroupBox* const marco = empirical::Marco(MarcoTc, "marcoTc");
    QGridLayout* const rejilla = Rejilla(*marco);
    const auto formulas = FormulasTc();
    for (std::size_t k = 0; k < formulas.size(); ++k) {
        const FormulaTc& formula = formulas[k];
        Tc.at(k) = new QLabel;
        Tc.at(k)->setObjectName(Q(formula.control));
        Tc.at(k)->setTextFormat(Qt::PlainText);
        Tc.at(k)->setTextInteractionFlags(Qt::TextSelectableByMouse);
        Tc.at(k)->setFrameShape(QFrame::StyledPanel);
        Tc.at(k)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Tc.at(k)->setMinimumSize(fontMetrics().averageCharWidth() * LetrasDeUnDato,
                                 entradas.front()->sizeHint().height());
        Tc.at(k)->setToolTip(Q(formula.ayuda));
        Tc.at(k)->setAccessibleName(Q(formula.leyenda));
        const int fila = static_cast<int>(k);
        rejilla->addWidget(Leyenda(formula.leyenda, formula.ayuda), fila, 0);
        rejilla->addWidget(Tc.at(k), fila, 1);
        rejilla->addWidget(Formula(formula.expresion, formula.control, formula.ayuda), fila, 2);
    }
    rejilla->setColumnStretch(2, 1);
    return marco;
}

QGroupBox* dlgEmpiricas_ventana::ConstruyeQp()
{
    QGroupBox* const marco = empirical::Marco(MarcoQp, "marcoQp");
    QGridLayout* const rejilla = Rejilla(*marco);
    rejilla->addWidget(Leyenda(LineaQp, ""), 0, 0, 1, 3);
    const auto formulas = FormulasQp();
    for (std::size_t k = 0; k < formulas.size(); ++k) {
        const FormulaQp& formula = formulas[k];
        Qp.at(k) = new QLineEdit;
        Qp.at(k)->setObjectName(Q(formula.control));
        Qp.at(k)->setReadOnly(true);
        Qp.at(k)->setAlignment(Qt::AlignRight);
        Qp.at(k)->setFixedWidth(fontMetrics().horizontalAdvance(QString::fromUtf16(ResultadoMasLargo)));
        Qp.at(k)->setToolTip(Q(formula.ayuda));
        auto* const leyenda = Leyenda(formula.leyenda, formula.ayudaRotulo);
        leyenda->setObjectName(Nombre("leyenda_", formula.control));
        leyenda->setBuddy(Qp.at(k));
        const int fila = static_cast<int>(k) + 1;
        rejilla->addWidget(leyenda, fila, 0);
        rejilla->addWidget(Qp.at(k), fila, 1);
        rejilla->addWidget(Formula(formula.expresion, formula.control, formula.ayuda), fila, 2);
    }
    rejilla->setColumnStretch(2, 1);
    rejilla->setRowStretch(rejilla->rowCount(), 1);
    return marco;
}

void dlgEmpiricas_ventana::Abre()
{
    empirical::Abre(f);
    Muestra();
    entorno.Presenta(*this);
    entradas.front()->setFocus();
    entradas.front()->selectAll();
}

void dlgEmpiricas_ventana::AlCerrar()
{
    empirical::btnCerrar(f);
}

void dlgEmpiricas_ventana::Muestra()
{
    for (std::size_t k = 0; k < entradas.size(); ++k)
        Pon(*entradas.at(k), f.*CamposEmpiricos.at(k).texto);
    Pon(*lblSup, f.lblSup);
    for (std::size_t k = 0; k < Qp.size(); ++k)
        Pon(*Qp.at(k), f.Qp.at(k));
    for (std::size_t k = 0; k < Tc.size(); ++k)
        Pon(*Tc.at(k), f.Tc.at(k));
    if (!f.abierta && isVisible()) close();
}

void dlgEmpiricas_ventana::CopiaTodo() const
{
    QGuiApplication::clipboard()->setText(Q(ComoTexto(f)));
}

}  // namespace empirical
