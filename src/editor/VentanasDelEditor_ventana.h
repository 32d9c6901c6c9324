// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "checks/Hallazgo.h"
#include "editor/FormasDeComponentes_ventana.h"
#include "editor/RedEscrita.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "editor/fichas/dlgUEHsTabla.h"
#include "editor/fichas/dlgUEHsTabla_ventana.h"
#include "editor/frmUEHs.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Entorno_ventana.h"

namespace editor {

/// The windows of this room and the records behind them, which outlive them.
class VentanasDelEditor {
  public:
    /// `muestraPrincipal` shows the main window or hides it. Takes over the redrawing of the editor and the
    /// guarding of its drawing that the host is asked for.
    VentanasDelEditor(forms::Entorno& alrededor, std::function<void(bool visible)> muestraPrincipal);
    ~VentanasDelEditor();
    VentanasDelEditor(const VentanasDelEditor&) = delete;
    VentanasDelEditor& operator=(const VentanasDelEditor&) = delete;

    /// Brings the graphic editor to the front where it is open, as it is. Returns whether it was.
    bool AlzaEditor();
    /// The graphic editor. Runs inside an event.
    void AbreEditor() { ventanaRed.Abre(); }
    /// Closes it without a question; the main window comes back.
    void CierraEditor();

    /// Components in memory that aren't saved, where the editor holds some; else nullptr.
    [[nodiscard]] const model::Colecciones* SinGuardar() const;
    /// Shows where a finding of a component can be changed, with the table's rows put in order where
    /// `ordenada`. The editor is open. Returns whether the component is there.
    bool VaA(const checks::Hallazgo& hallazgo, bool ordenada = false);
    /// Does mends in the drawing, as one step of its history. The editor is open. Returns how many were done.
    int Corrige(const std::vector<checks::Hallazgo>& hallazgos);
    /// Changes the network in memory, as one step of the drawing's history. The editor is open.
    void Aplica(const std::function<void(model::Red&)>& cambio);

    /// Puts a network that wasn't saved back into the drawing. The editor is open.
    void Recupera(const RedGuardada& noGuardada);

    /// The tabular editor, until it is closed; `padre` is the window that it belongs to. Runs inside an
    /// event.
    void AbreEditorDeTabla(QWidget& padre);
    /// The overview of all parameters, beside the other windows. Runs inside an event.
    void AbreTabla() { ventanaTabla.Abre(); }

    frmUEHs red{};
    dlgUEHsEditTabla editorDeTabla{};
    dlgUEHsTabla tabla{};

  private:
    forms::Entorno& entorno;
    frmUEHs_ventana ventanaRed;
    dlgUEHsTabla_ventana ventanaTabla;

  public:
    FormasDeComponentes formas;
};

}  // namespace editor
