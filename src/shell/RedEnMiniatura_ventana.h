// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "editor/frmUEHs.h"
#include "editor/lienzo/PintaDibujo_ventana.h"
#include "model/Siro.h"
#include "model/VersionAnterior.h"

namespace shell {

/// The drawing of a version's network, all of it in sight, to be looked at only.
class RedEnMiniatura : public QWidget {
  public:
    explicit RedEnMiniatura(QWidget* padre = nullptr);

    /// Shows a version's network; nullptr: an empty sheet.
    void Pon(const model::VersionAnterior* version);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    model::VersionAnterior puesta{};
    model::Siro s{};
    editor::frmUEHs f{};
    editor::PintorDibujo pintor{};
};

}  // namespace shell
