// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <functional>
#include <string>

class QIcon;
class QStatusBar;
class QToolButton;

namespace shell {

/// What stands at the right of the status bar for good: the storm in hand with the last run, and a key with
/// what that run had to be told of.
class LineaDeEstado {
  public:
    explicit LineaDeEstado(QStatusBar& barra);
    LineaDeEstado(const LineaDeEstado&) = delete;
    LineaDeEstado& operator=(const LineaDeEstado&) = delete;

    void PonTormenta(const std::string& texto);
    /// What the key says, its mark and its hint.
    void PonAvisos(const std::string& texto, const QIcon& icono, const std::string& ayuda);
    /// The key was pressed.
    std::function<void()> AlPedirAvisos = [] {};

  private:
    /// A line that is cut with an ellipsis where the bar is short of room, and whole in its hint.
    class Renglon : public QLabel {
      public:
        explicit Renglon(QWidget* padre) : QLabel(padre) {}
        void Pon(const QString& texto);
        [[nodiscard]] QSize sizeHint() const override;
        [[nodiscard]] QSize minimumSizeHint() const override;

      protected:
        void resizeEvent(QResizeEvent* evento) override;

      private:
        void Corta();
        QString entero{};
    };

    Renglon* tormenta;
    QToolButton* avisos;
};

}  // namespace shell
