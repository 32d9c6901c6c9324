// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgLago_ventana.h"

#include <QGroupBox>
#include <QPushButton>

#include "forms/Textos_ventana.h"

namespace editor {

dlgLago_ventana::dlgLago_ventana(forms::Entorno& alrededor, dlgLago& registro, QWidget* padre)
    : FichaEmbalse_ventana(alrededor, {"dlgLago", TituloDlgLago, RotulosDlgLago}, registro, padre)
{
    auto* const pila = new QVBoxLayout(this);
    auto* const cuerpo = new QHBoxLayout;
    pila->addLayout(cuerpo, 1);
    cuerpo->addWidget(ListaDeComponentes("lstLAGOs", f.lstLAGOs,
                                         [this](int linea) { lstLAGOs_Click(f, entorno.s, linea); }));
    auto* const marcos = new QVBoxLayout;
    marcos->addWidget(MarcoDeIdentificacion());
    marcos->addWidget(MarcoDeArea(), 1);
    cuerpo->addLayout(marcos, 1);
    Cierre(*pila, [this] { OKButton(f, entorno.s); });
}

QWidget* dlgLago_ventana::MarcoDeIdentificacion()
{
    QGroupBox* const marco = Marco("fraIdentificacion");
    auto* const grilla = new QGridLayout(marco);
    Identidad(
        *grilla,
        {"lblNroLago", "lblNombreLago", "txtNombreLAGO", f.lblNroLago, f.lblNombreLago, f.txtNombreLAGO},
        [this] { txtNombreLAGO_Cambia(f, entorno.s); });
    Renglon(*grilla, "txtReferencia", *Campo("txtReferencia", f.txtReferencia));
    return marco;
}

QWidget* dlgLago_ventana::MarcoDeArea()
{
    QGroupBox* const marco = Marco("fraAreaMetodo");
    auto* const grilla = new QGridLayout(marco);
    Destinos(*grilla);
    Metodo(*grilla);
    auto* const coeficiente = new QHBoxLayout;
    Coeficiente(*coeficiente, CamposDlgLago, "txtLago_k", {"lblLagoCofk", f.lblLagoCofk}, 'k');
    grilla->addLayout(coeficiente, grilla->rowCount(), 0, 1, -1);
    AlturaInicial(*grilla);
    const int fila = grilla->rowCount();
    grilla->addWidget(Boton("cmdParametros", [this] { AbreTabla(cmdParametros(f)); }), fila, 0);
    grilla->addWidget(Texto("lblParametros", f.lblParametros), fila, 1, 1, -1);
    return marco;
}

}  // namespace editor
