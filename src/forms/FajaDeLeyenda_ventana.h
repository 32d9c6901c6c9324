// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace forms {

/// The legend in the middle of a strip as wide as the surface, its title to its left. Its entries stand side
/// by side in as many rows as that width asks for, so that none is cut.
class FajaDeLeyenda : public QCPLayoutGrid {
  public:
    /// The surface owns title and strip.
    FajaDeLeyenda(QCustomPlot& superficie, QCPTextElement& titulo, bool compacta);
    void update(UpdatePhase fase) override;
    /// Entries of the legend, in their order.
    [[nodiscard]] QList<QCPLayoutElement*> Entradas() const;

  private:
    void Reparte();
    [[nodiscard]] int CabenPorFila() const;

    QCustomPlot& plano;
    QCPTextElement& tituloLeyenda;
};

}  // namespace forms
