// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "shell/frmPp2.h"

namespace shell {

/// The progress window of the runs. They block the program, so that each change is painted at once.
class frmPp2_ventana : public QWidget {
  public:
    frmPp2_ventana(frmPp2& reglas, QWidget* padre);
    void Muestra();

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    frmPp2& f;
    QLabel* lblPrimero;
    QLabel* lblSegundo;
    QProgressBar* ProgressBar1;
};

/// Lets everything that is on screen be painted, without handling what the user does meanwhile.
void PintaYa();

}  // namespace shell
