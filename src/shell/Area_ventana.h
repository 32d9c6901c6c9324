// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

class QMenu;

namespace shell {

/// The room of the main window in which Slate, charts and tables stand.
class Area : public QMdiArea {
  public:
    explicit Area(QWidget* padre);

    /// Opens a window here, or brings it to the front.
    void Presenta(QWidget& ventana);
    /// Takes a window out, so that it can stand on its own; one that isn't here stays as it is.
    void Saca(QWidget& ventana);
    /// What fills the room while no window is open in it, an icon counting as open. It belongs to the room.
    void PonInicio(QWidget& unInicio);
    /// Arranging commands and, below them, the windows that are open; done anew whenever it opens.
    void LlenaMenu(QMenu& menu);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    void resizeEvent(QResizeEvent* evento) override;

  private:
    [[nodiscard]] QMdiSubWindow* Hija(const QWidget& ventana) const;
    [[nodiscard]] QSize Lugar() const;
    [[nodiscard]] QSize PrimerTamano(const QWidget& ventana) const;
    /// The window that was at the front before the one that has gone.
    void ActivaLaUltima();
    void ListaVentanas(QMenu& menu);
    void MuestraInicio();

    QWidget* inicio = nullptr;
};

}  // namespace shell
