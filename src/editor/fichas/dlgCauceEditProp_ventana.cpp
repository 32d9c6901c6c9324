// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgCauceEditProp_ventana.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "forms/Textos_ventana.h"

namespace editor {

using forms::Q;

namespace {

void Raya(QGridLayout& grilla)
{
    auto* const raya = new QFrame;
    raya->setFrameShape(QFrame::HLine);
    raya->setFrameShadow(QFrame::Sunken);
    grilla.addWidget(raya, grilla.rowCount(), 0, 1, -1);
}

}  // namespace

dlgCauceEditProp_ventana::dlgCauceEditProp_ventana(forms::Entorno& alrededor, dlgCauceEditProp& registro,
                                                   QWidget* padre)
    : Ficha_ventana(alrededor, {"dlgCauceEditProp", TituloDlgCauceEditProp, RotulosDlgCauceEditProp},
                    registro, padre)
{
    auto* const pila = new QVBoxLayout(this);
    auto* const cuerpo = new QHBoxLayout;
    pila->addLayout(cuerpo, 1);
    cuerpo->addWidget(ListaDeComponentes("lstCauces", f.lstCauces,
                                         [this](int linea) { lstCauces_Click(f, entorno.s, linea); }));
    auto* const grilla = new QGridLayout;
    cuerpo->addLayout(grilla, 1);
    Identidad(*grilla);
    Raya(*grilla);
    Longitud(*grilla);
    Raya(*grilla);
    Propagacion(*grilla);
    Cierre(*pila, [this] { OKButton(f, entorno.s); });
}

void dlgCauceEditProp_ventana::Identidad(QGridLayout& grilla)
{
    Dato(grilla, "lblNroCauce", f.lblNroCauce);
    Dato(grilla, "lblNombreCauce", f.lblNombreCauce);
    Dato(grilla, "lblCantVer", f.lblCantVer);
    Dato(grilla, "lblOrdenCauce", f.lblOrdenCauce);
    CampoNombre(
        grilla, "txtNombreCauce", f.txtNombreCauce, [this] { txtNombreCauce_Cambia(f, entorno.s); },
        Sale("txtNombreCauce"));
    constexpr int LineasDeDestinos = 6;
    RenglonDeLista(grilla, {"lstTributaCauce", f.lstTributaCauce, LineasDeDestinos},
                   [this](int linea) { lstTributaCauce_Click(f, entorno.s, linea); });
}

void dlgCauceEditProp_ventana::Longitud(QGridLayout& grilla)
{
    QLineEdit* const campo = NumeroSuelto(CamposDlgCauceEditProp, "txtLongCauce");
    campo->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    auto* const rotulo = new QLabel(Q(Leyenda("txtLongCauce")));
    rotulo->setBuddy(campo);
    const int fila = grilla.rowCount();
    grilla.addWidget(rotulo, fila, 0);
    // To the right of the field that may take it over.
    QLabel* const dibujada = Texto("lbl_LongCauceDibujo", f.lbl_LongCauceDibujo);
    dibujada->setTextInteractionFlags(Qt::TextSelectableByMouse);
    dibujada->setMinimumWidth(fontMetrics().horizontalAdvance(Q(SinEscalar)));
    auto* const lado = new QHBoxLayout;
    lado->addWidget(campo, 1);
    lado->addSpacing(fontMetrics().averageCharWidth());
    lado->addWidget(new QLabel(Q(Leyenda("lbl_LongCauceDibujo"))));
    lado->addWidget(new QLabel(QStringLiteral("[m]:")));
    lado->addWidget(dibujada);
    grilla.addLayout(lado, fila, 1, 1, -1);
}

void dlgCauceEditProp_ventana::Propagacion(QGridLayout& grilla)
{
    auto* const opciones = new QHBoxLayout;
    opciones->addWidget(Opcion("optMusk", f.optMusk, [this] { optMusk_Click(f); }));
    opciones->addWidget(Opcion("optDirecta", f.optDirecta, [this] { optDirecta_Click(f); }));
    opciones->addStretch(1);
    grilla.addLayout(opciones, grilla.rowCount(), 1, 1, -1);
    for (const std::string_view control : {"txtVelMediaCauce", "txtCauce_k_Musk", "txtCauce_n_Musk"})
        Numero(grilla, CamposDlgCauceEditProp, control);
}

}  // namespace editor
