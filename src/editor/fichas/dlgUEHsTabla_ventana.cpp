// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsTabla_ventana.h"

#include "editor/fichas/UnidadesTitulos.h"
#include "forms/Grilla_ventana.h"

namespace editor {

dlgUEHsTabla_ventana::dlgUEHsTabla_ventana(forms::Entorno& alrededor, dlgUEHsTabla& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgUEHsTabla", TituloDlgUEHsTabla, RotulosDlgUEHsTabla}, padre), f(registro)
{
    Sigue(f.abierta);
    const int aparte = fontMetrics().averageCharWidth() * 3;
    QLayout* const encabezado = EnFila({Rotulo("lblProyecto"), Texto("lblProyecto", f.lblProyecto),
                                        Hueco(aparte), Rotulo("lblTitulo"), Texto("lblTitulo", f.lblTitulo),
                                        Hueco(aparte), Rotulo("lblFileProyecto"),
                                        Texto("lblFileProyecto", f.lblFileProyecto), Hueco(aparte), Hueco()});
    tabla = Tabla(f.MSFlexGridTablaUEHs, "MSFlexGridTablaUEHs");
    tabla->AyudaDe = [this](forms::Celda celda) { return AyudaDeCelda(f.MSFlexGridTablaUEHs, celda); };
    setLayout(EnPila({encabezado,
                      {tabla, 1},
                      EnFila({Hueco(), Boton("cmdActualizar", [this] { cmdActualizar(f, entorno.s); }),
                              Boton("OKButton", [this] { OKButton(f); })})}));
    entorno.AlActivarse(*this, [this] { Relee(); });
}

void dlgUEHsTabla_ventana::Abre()
{
    leyendo = true;  // the opening is an activation itself
    editor::Abre(f, entorno.s);
    if (f.abierta) {
        Muestra();
        entorno.Presenta(*this);
        tabla->setFocus();
    }
    leyendo = false;
}

/// The window becomes active; a box of the reading isn't a reason to read again.
void dlgUEHsTabla_ventana::Relee()
{
    if (leyendo || !f.abierta) return;
    leyendo = true;
    editor::Abre(f, entorno.s);
    Muestra();
    leyendo = false;
}

void dlgUEHsTabla_ventana::AlCerrar()
{
    OKButton(f);
}

}  // namespace editor
