// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgCauceEditProp_ventana.h"

#include <QFrame>

namespace editor {

using forms::Q;

namespace {

QFrame* Raya()
{
    auto* const raya = new QFrame;
    raya->setFrameShape(QFrame::HLine);
    raya->setFrameShadow(QFrame::Sunken);
    return raya;
}

}  // namespace

dlgCauceEditProp_ventana::dlgCauceEditProp_ventana(forms::Entorno& alrededor, dlgCauceEditProp& registro,
                                                   QWidget* padre)
    : Ficha_ventana(alrededor, {"dlgCauceEditProp", TituloDlgCauceEditProp, RotulosDlgCauceEditProp},
                    registro, padre)
{
    constexpr int LineasDeDestinos = 6;
    QWidget* const lista = ListaDeComponentes("lstCauces", f.lstCauces,
                                              [this](int linea) { EligeComponente(f, entorno.s, linea); });
    QLayout* const datos = EnRejilla({
        Dato("lblNroCauce", f.lblNroCauce),
        Dato("lblNombreCauce", f.lblNombreCauce),
        Dato("lblCantVer", f.lblCantVer),
        Dato("lblOrdenCauce", f.lblOrdenCauce),
        CampoNombre(
            "txtNombreCauce", f.txtNombreCauce, [this] { ArreglaNombre(f, entorno.s); },
            Sale("txtNombreCauce")),
        RenglonDeLista({"lstTributaCauce", f.lstTributaCauce, LineasDeDestinos},
                       [this](int linea) { lstTributaCauce_Click(f, entorno.s, linea); }),
        {Raya()},
        Longitud(),
        {Raya()},
        {Hueco(), EnFila({Opcion("optMusk", f.optMusk, [this] { optMusk_Click(f); }),
                          Opcion("optDirecta", f.optDirecta, [this] { optDirecta_Click(f); }), Hueco()})},
        Numero(CamposDlgCauceEditProp, "txtVelMediaCauce"),
        Apunta("txtVelMediaCauce", 1, ApunteViaje),
        Numero(CamposDlgCauceEditProp, "txtCauce_k_Musk"),
        Numero(CamposDlgCauceEditProp, "txtCauce_n_Musk"),
        Apunta("txtCauce_n_Musk", 2, ApunteMuskingum),
    });
    Dispone({lista, {datos, 1}}, [this] { OKButton(f, entorno.s); });
}

/// To the right of the field the drawn length that it may take over.
forms::Partes dlgCauceEditProp_ventana::Longitud()
{
    QLineEdit* const campo = NumeroSuelto(CamposDlgCauceEditProp, "txtLongCauce");
    campo->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    QLabel* const dibujada = Texto("lbl_LongCauceDibujo", f.lbl_LongCauceDibujo);
    dibujada->setTextInteractionFlags(Qt::TextSelectableByMouse);
    dibujada->setMinimumWidth(fontMetrics().horizontalAdvance(Q(SinEscalar)));
    return {Rotulo("txtLongCauce", campo), EnFila({{campo, 1},
                                                   Hueco(fontMetrics().averageCharWidth()),
                                                   Rotulo("lbl_LongCauceDibujo"),
                                                   new QLabel(QStringLiteral("[m]:")),
                                                   dibujada})};
}

}  // namespace editor
