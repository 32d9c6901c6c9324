// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/Ficha.h"
#include "editor/fichas/dlgCauceEditProp.h"
#include "editor/fichas/dlgLago.h"
#include "editor/fichas/dlgRepresas.h"
#include "editor/fichas/dlgTabla.h"
#include "editor/fichas/dlgUEH2.h"
#include "editor/frmUEHs.h"
#include "forms/Entorno_ventana.h"

class QWidget;

namespace editor {

/// The forms of the components and the forms of their tables, opened on the component that is selected.
class FormasDeComponentes {
  public:
    /// `duena`: the window that they belong to.
    FormasDeComponentes(forms::Entorno& alrededor, QWidget& duena) : entorno(alrededor), padre(duena) {}

    /// Shows the form that the editor asks for until it is closed. Runs inside an event; faults and
    /// FinDelPrograma go to the caller.
    void Abre(Pedido forma);

    /// The next table that opens has its rows in order, which is work that isn't applied yet.
    bool ordenaTabla = false;

    dlgUEH2 ueh{};
    dlgCauceEditProp cauce{};
    dlgRepresas represa{};
    dlgLago lago{};
    dlgTabla tabla{};

  private:
    void AbreRepresa();
    void AbreLago();
    void AbreTablaDeComponente(TipoTabla tipo);

    forms::Entorno& entorno;
    QWidget& padre;
};

}  // namespace editor
