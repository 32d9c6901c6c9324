// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>

namespace forms {

/// What a form says of a number while it is typed: small, under the field, no stop of the Tab key. It takes
/// the height of its lines whether it has anything to say or not, and whatever width there is, so that
/// nothing moves as one types.
class Apunte : public QLabel {
  public:
    explicit Apunte(int cuantasLineas);

    /// The pointer over it shows the whole text, which a narrow window may cut.
    void Pon(const QString& texto);

    /// A text that wraps would ask for its own height, each another.
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    int lineas;
};

}  // namespace forms
