// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "empirical/Escritura.h"

namespace empirical {

/// A formula drawn: exponents small and raised, variables slanted.
class FormulaDibujada : public QWidget {
  public:
    explicit FormulaDibujada(std::string_view expresion, QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void changeEvent(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    [[nodiscard]] QFont LetraDe(const Trozo& trozo) const;
    /// How far an exponent's baseline stands above that of the formula [pixels].
    [[nodiscard]] double Alza() const;

    std::vector<Trozo> trozos;
};

}  // namespace empirical
