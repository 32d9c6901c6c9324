// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "editor/Historia.h"
#include "editor/lienzo/PintaDibujo_ventana.h"
#include "model/SiroDeclarado.h"

namespace editor {

/// A picture of a network, all of it, as the editor's canvas paints it; nobody edits it.
class VistaDeRed : public QWidget {
  public:
    explicit VistaDeRed(QWidget* padre = nullptr);
    ~VistaDeRed() override;
    VistaDeRed(const VistaDeRed&) = delete;
    VistaDeRed& operator=(const VistaDeRed&) = delete;

    /// Nothing: an empty sheet.
    void Muestra(const std::optional<RedGuardada>& red);
    [[nodiscard]] QSize sizeHint() const override { return {360, 270}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    std::unique_ptr<model::Siro> s;  ///< a state of its own: the drawing is the rules' own
    frmUEHs f{};
    PintorDibujo pintor{};
};

}  // namespace editor
