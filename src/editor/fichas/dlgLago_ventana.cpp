// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgLago_ventana.h"

namespace editor {

dlgLago_ventana::dlgLago_ventana(forms::Entorno& alrededor, dlgLago& registro, QWidget* padre)
    : FichaEmbalse_ventana(alrededor, {"dlgLago", TituloDlgLago, RotulosDlgLago}, registro, padre)
{
    Dispone({ListaDeComponentes("lstLAGOs", f.lstLAGOs,
                                [this](int linea) { EligeComponente(f, entorno.s, linea); }),
             {EnPila({MarcoDeIdentificacion(), {MarcoDeArea(), 1}}), 1}},
            [this] { OKButton(f, entorno.s); });
}

QWidget* dlgLago_ventana::MarcoDeIdentificacion()
{
    auto filas = Identidad(
        {"lblNroLago", "lblNombreLago", "txtNombreLAGO", f.lblNroLago, f.lblNombreLago, f.txtNombreLAGO},
        [this] { ArreglaNombre(f, entorno.s); });
    filas.push_back(Renglon("txtReferencia", Campo("txtReferencia", f.txtReferencia)));
    return Marco("fraIdentificacion", EnRejilla(filas));
}

QWidget* dlgLago_ventana::MarcoDeArea()
{
    return Marco(
        "fraAreaMetodo",
        EnRejilla({Destinos(),
                   Metodo(),
                   {EnFila(Coeficiente(CamposDlgLago, "txtLago_k", {"lblLagoCofk", f.lblLagoCofk}, 'k'))},
                   Apunta("txtLago_k", 2, ApunteMuskingum<dlgLago>),
                   AlturaInicial(),
                   Apunta("txtHInicialEmb", 2, ApunteAltura),
                   {Boton("cmdParametros", [this] { AbreTabla(cmdParametros(f)); }),
                    Texto("lblParametros", f.lblParametros)}}));
}

}  // namespace editor
