// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas_ventana.h"

#include <QClipboard>
#include <QGuiApplication>
#include <array>
#include <cstddef>

#include "empirical/FormulaDibujada_ventana.h"

namespace empirical {

using forms::Pon;
using forms::Q;

namespace {

constexpr int LetrasDeUnDato = 10;
constexpr char16_t ResultadoMasLargo[] = u"0.000000E+00  ";  // seven digits and an exponent

constexpr auto Rotulos = std::to_array<forms::FilaRotulo>({
    {"marcoDatosQp", MarcoDatosQp},
    {"marcoDatosTc", MarcoDatosTc},
    {"marcoQp", MarcoQp},
    {"marcoTc", MarcoTc},
    {"cmdCopiar", "Copiar &todo", "Copia datos y resultados, para una planilla de cálculo"},
    {"btnCerrar", LeyendaBtnCerrar},
});

/// A caption, plain as it stands; an ampersand in it is no access key.
QLabel* Leyenda(std::string_view texto, std::string_view ayuda = {})
{
    auto* const leyenda = new QLabel(Q(texto));
    leyenda->setTextFormat(Qt::PlainText);
    leyenda->setToolTip(Q(ayuda));
    return leyenda;
}

FormulaDibujada* Formula(std::string_view expresion, std::string_view control, std::string_view ayuda)
{
    auto* const formula = new FormulaDibujada(expresion);
    formula->setObjectName(QStringLiteral("formula_") + Q(control));
    formula->setToolTip(Q(ayuda));
    return formula;
}

}  // namespace

dlgEmpiricas_ventana::dlgEmpiricas_ventana(forms::Entorno& alrededor, dlgEmpiricas& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgEmpiricas", TituloDlgEmpiricas, Rotulos}, padre), f(registro)
{
    Sigue(f.abierta);
    QGroupBox* const datosQp = MarcoDe("marcoDatosQp", {RenglonDe(0)}, {1});
    txtSup = datosQp->findChild<QLineEdit*>();
    const auto copia = [this] { QGuiApplication::clipboard()->setText(Q(ComoTexto(f))); };
    setLayout(
        EnPila({{EnFila({EnPila({datosQp, DatosTc(), ResultadosTc(), Hueco()}), {ResultadosQp(), 1}}), 1},
                EnFila({Hueco(), Boton("cmdCopiar", copia), Boton("btnCerrar", [this] { btnCerrar(f); })})}));
}

QGroupBox* dlgEmpiricas_ventana::MarcoDe(std::string_view control, const std::vector<forms::Partes>& filas,
                                         std::initializer_list<int> columnas)
{
    QGridLayout* const rejilla = EnRejilla(filas, columnas);
    rejilla->setHorizontalSpacing(12);
    rejilla->setVerticalSpacing(2);
    return Marco(control, rejilla);
}

forms::Partes dlgEmpiricas_ventana::RenglonDe(std::size_t cual)
{
    const auto& campo = CamposEmpiricos.at(cual);
    const std::string_view control = campo.regla.control;
    auto* const entrada = Nombra(new QLineEdit, control);
    entrada->setFixedWidth(fontMetrics().averageCharWidth() * (LetrasDeUnDato + 3));
    AlMostrar([this, entrada, &campo] { Pon(*entrada, f.*campo.texto); });
    connect(entrada, &QLineEdit::textEdited, this, [this, control, &campo](const QString& texto) {
        SucesoSinRevisar([&] {
            f.*campo.texto = forms::DeQ(texto);
            AlCambiar(f, control);
        });
    });
    campos.Agrega(*entrada, [this, control] {
        AlSalir(f, control);
        return true;
    });
    QLabel* const leyenda = Leyenda(RotulosEmpiricos.at(cual).leyenda);
    leyenda->setBuddy(entrada);
    return {leyenda, entrada};
}

QGroupBox* dlgEmpiricas_ventana::DatosTc()
{
    QLabel* const lblSup = Texto("lblSup", f.lblSup);
    lblSup->setFrameShape(QFrame::StyledPanel);
    lblSup->setMinimumHeight(txtSup->sizeHint().height());
    lblSup->setAccessibleName(Q(LeyendaLblSup));
    std::vector<forms::Partes> filas{{Leyenda(LeyendaLblSup), lblSup}};
    for (std::size_t cual = 1; cual < CamposEmpiricos.size(); ++cual)
        filas.push_back(RenglonDe(cual));
    return MarcoDe("marcoDatosTc", filas, {1});
}

QGroupBox* dlgEmpiricas_ventana::ResultadosTc()
{
    std::vector<forms::Partes> filas;
    for (const FormulaTc& formula : FormulasTc()) {
        QLabel* const Tc = Texto(formula.control, f.Tc[filas.size()]);
        Tc->setTextInteractionFlags(Qt::TextSelectableByMouse);
        Tc->setFrameShape(QFrame::StyledPanel);
        Tc->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Tc->setMinimumSize(fontMetrics().averageCharWidth() * LetrasDeUnDato, txtSup->sizeHint().height());
        Tc->setToolTip(Q(formula.ayuda));
        Tc->setAccessibleName(Q(formula.leyenda));
        filas.push_back({Leyenda(formula.leyenda, formula.ayuda), Tc,
                         Formula(formula.expresion, formula.control, formula.ayuda)});
    }
    return MarcoDe("marcoTc", filas, {0, 0, 1});
}

QGroupBox* dlgEmpiricas_ventana::ResultadosQp()
{
    std::vector<forms::Partes> filas{{Leyenda(LineaQp)}};
    for (const FormulaQp& formula : FormulasQp()) {
        auto* const Qp = Nombra(new QLineEdit, formula.control);
        AlMostrar([Qp, &texto = f.Qp[filas.size() - 1]] { Pon(*Qp, texto); });
        Qp->setReadOnly(true);
        Qp->setAlignment(Qt::AlignRight);
        Qp->setFixedWidth(fontMetrics().horizontalAdvance(QString::fromUtf16(ResultadoMasLargo)));
        Qp->setToolTip(Q(formula.ayuda));
        QLabel* const leyenda = Leyenda(formula.leyenda, formula.ayudaRotulo);
        leyenda->setObjectName(QStringLiteral("leyenda_") + Q(formula.control));
        leyenda->setBuddy(Qp);
        filas.push_back({leyenda, Qp, Formula(formula.expresion, formula.control, formula.ayuda)});
    }
    filas.emplace_back();
    return MarcoDe("marcoQp", filas, {0, 0, 1});
}

void dlgEmpiricas_ventana::Abre()
{
    empirical::Abre(f);
    Muestra();
    entorno.Presenta(*this);
    txtSup->setFocus();
    txtSup->selectAll();
}

void dlgEmpiricas_ventana::AlCerrar()
{
    btnCerrar(f);
}

}  // namespace empirical
