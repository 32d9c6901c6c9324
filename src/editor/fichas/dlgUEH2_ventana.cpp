// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEH2_ventana.h"

#include "editor/fichas/GraficosDeFichas.h"
#include "forms/Lamina_ventana.h"

namespace editor {

dlgUEH2_ventana::dlgUEH2_ventana(forms::Entorno& alrededor, dlgUEH2& registro, QWidget* padre)
    : Ficha_ventana(alrededor, {"dlgUEH2", TituloDlgUEH2, RotulosDlgUEH2}, registro, padre)
{
    Dispone({ListaDeComponentes("lstUEHs", f.lstUEHs,
                                [this](int linea) { EligeComponente(f, entorno.s, linea); }),
             EnPila({MarcoDeIdentificacion(),
                     {MarcoDeArea(), 1},
                     Marco("fraPropagacion", EnRejilla({Numero(CamposDlgUEH2, "txtLongMax"),
                                                        Numero(CamposDlgUEH2, "txtVelMedia"),
                                                        Apunta("txtVelMedia", 1, ApunteTraslado)})),
                     Marco("fraRetencion", EnRejilla({Numero(CamposDlgUEH2, "txtRetension_Z"),
                                                      Apunta("txtRetension_Z", 1, ApunteRetencion)}))}),
             {EnPila({{MarcoDeInfiltracion(), 1}, MarcoDeRecesion()}), 1}},
            [this] { OKButton(f, entorno.s); });
}

QWidget* dlgUEH2_ventana::MarcoDeIdentificacion()
{
    return Marco("fraIdentificacion",
                 EnRejilla({Dato("lblNroUEH", f.lblNroUEH), Dato("lblNombreUEH", f.lblNombreUEH),
                            CampoNombre(
                                "txtNombreUEH", f.txtNombreUEH, [this] { ArreglaNombre(f, entorno.s); },
                                Sale("txtNombreUEH")),
                            Renglon("txtReferencia", Campo("txtReferencia", f.txtReferencia))}));
}

QWidget* dlgUEH2_ventana::MarcoDeArea()
{
    constexpr int LineasDeDestinos = 5;
    return Marco("fraAreaMetodo",
                 EnRejilla({Numero(CamposDlgUEH2, "txtArea"),
                            RenglonDeLista({"lstMetodo", f.lstMetodo, 1, "lblMetodo", &f.lblMetodo,
                                            forms::Flechas::Eligen},
                                           [this](int linea) { lstMetodo_Click(f, linea); }),
                            RenglonDeLista({"lstCauceAA", f.lstCauceAA, LineasDeDestinos},
                                           [this](int linea) { lstCauceAA_Click(f, entorno.s, linea); }),
                            Dato("lblDrenaCauceAA", f.lblDrenaCauceAA)}));
}

QWidget* dlgUEH2_ventana::MarcoDeInfiltracion()
{
    forms::Partes formula{Rotulo("txtKostiakov_a")};
    for (const char letra : {'a', 'b'}) {
        const std::string_view control = letra == 'a' ? "txtKostiakov_a" : "txtKostiakov_b";
        QLineEdit* const campo = NumeroSuelto(CamposDlgUEH2, control);
        auto* const rotulo = new QLabel(QStringLiteral("&%1 =").arg(QLatin1Char(letra)));
        rotulo->setBuddy(campo);
        campo->setAccessibleName(QString(QLatin1Char(letra)));
        campo->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
        formula.insert(formula.end(), {rotulo, {campo, 1}});
    }
    QLayout* const inicial =
        EnRejilla({Numero(CamposDlgUEH2, "txtKostiakov_i"), Apunta("txtKostiakov_i", 2, ApunteInfiltracion)});
    curva = Curva("CurvaInfiltracion", [this] { return GraficoDe(CurvaDeCampos(f)); });
    QGroupBox* const marco = Marco("fraInfiltracion", EnPila({EnFila(formula), inicial, {curva, 1}}));
    for (QLineEdit* const campo : marco->findChildren<QLineEdit*>())
        connect(campo, &QLineEdit::textEdited, this, [this] { Muestra(); });
    return marco;
}

QWidget* dlgUEH2_ventana::MarcoDeRecesion()
{
    // The exponent stands raised behind the formula.
    QLabel* const exponente = Texto("lblExponenteRecesion");
    exponente->setContentsMargins(0, 0, 0, fontMetrics().height() / 2);
    QLayout* const formula = EnFila({Texto("lblFormulaRecesion"), exponente, Hueco()});
    formula->setSpacing(0);
    return Marco("fraRecesion", EnRejilla({Numero(CamposDlgUEH2, "txtQ0Recesion"),
                                           Numero(CamposDlgUEH2, "txtKRecesion"),
                                           {formula}}));
}

void dlgUEH2_ventana::Muestra()
{
    curva->PonTema(f.lblNombreUEH, f.lblNombreUEH);
    PartesDeFicha::Muestra();
}

}  // namespace editor
