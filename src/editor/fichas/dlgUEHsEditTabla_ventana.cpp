// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsEditTabla_ventana.h"

#include <QScreen>

#include "editor/fichas/UnidadesTitulos.h"
#include "forms/Grilla_ventana.h"

namespace editor {

dlgUEHsEditTabla_ventana::dlgUEHsEditTabla_ventana(forms::Entorno& alrededor, dlgUEHsEditTabla& registro,
                                                   QWidget* padre)
    : Formulario(alrededor, {"dlgUEHsEditTabla", TituloDlgUEHsEditTabla, RotulosDlgUEHsEditTabla}, padre),
      f(registro)
{
    Sigue(f.abierta);
    cauces = TablaConAyuda(f.MSFlexGridEditCauces, "MSFlexGridEditCauces");
    setLayout(EnPila({EnFila({Rotulo("lblProyecto"), Texto("lblProyecto", f.lblProyecto),
                              Hueco(fontMetrics().averageCharWidth() * 3), Rotulo("lblFileProyecto"),
                              Texto("lblFileProyecto", f.lblFileProyecto), Hueco()}),
                      {cauces, 1},
                      {TablaConAyuda(f.MSFlexGridEditUEHs, "MSFlexGridEditUEHs"), 1},
                      EnFila({Hueco(), Boton("OKButton", [this] { OKButton(f, entorno.s); }),
                              BotonSinRevisar("cmdCancel", [this] { AlCerrar(); })})}));
}

forms::TablaGrilla* dlgUEHsEditTabla_ventana::TablaConAyuda(forms::Grilla& grilla, std::string_view nombre)
{
    forms::TablaGrilla* const tabla = Tabla(grilla, nombre);
    tabla->AyudaDe = [&grilla](forms::Celda celda) {
        return celda.fila == 0 ? AyudaDeCelda(grilla, celda) : std::string();
    };
    return tabla;
}

void dlgUEHsEditTabla_ventana::Abre()
{
    editor::Abre(f, entorno.s);
    if (!f.abierta) return;
    const QSize pantalla = screen()->availableSize();
    resize(static_cast<int>(pantalla.width() * AnchoEditTabla),
           static_cast<int>(pantalla.height() * AltoEditTabla));
    Muestra();
    cauces->setFocus();
    entorno.Ejecuta(*this);
}

void dlgUEHsEditTabla_ventana::AlCerrar()
{
    cmdCancel(f);
    Muestra();
}

}  // namespace editor
