// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "editor/frmUEHs.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Entorno_ventana.h"

namespace editor {

/// The windows of this room and the records behind them, which outlive them.
class VentanasDelEditor {
  public:
    /// `muestraPrincipal` shows the main window or hides it. Takes over the redrawing of the editor that the
    /// host is asked for.
    VentanasDelEditor(forms::Entorno& alrededor, std::function<void(bool visible)> muestraPrincipal);
    ~VentanasDelEditor();
    VentanasDelEditor(const VentanasDelEditor&) = delete;
    VentanasDelEditor& operator=(const VentanasDelEditor&) = delete;

    /// The graphic editor. Runs inside an event.
    void AbreEditor() { ventanaRed.Abre(); }
    /// Closes it without a question; the main window comes back.
    void CierraEditor();

    frmUEHs red{};

  private:
    forms::Entorno& entorno;
    frmUEHs_ventana ventanaRed;
};

}  // namespace editor
