// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "forms/Entorno_ventana.h"
#include "shell/Busca.h"
#include "shell/MDIForm1_ventana.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QTreeView;

namespace shell {

class ModeloDeHallados;

/// The search: a field and what it finds, without a frame at the top of the window in front, which keeps its
/// work and gets the keyboard back before anything is done. Leaving it closes it. Its keys are taken from
/// every window of the program, its fields included, as long as no form or box has to be answered first.
class dlgBusca_ventana : public QDialog {
  public:
    /// `laPrincipal` is what it stands over where no window has the keyboard.
    dlgBusca_ventana(forms::Entorno& alrededor, MDIForm1_ventana& laPrincipal);
    ~dlgBusca_ventana() override;

    /// All that can be found at the moment; it is asked each time that the search opens.
    std::function<std::vector<Candidato>()> Junta = [] { return std::vector<Candidato>{}; };
    /// Nothing happens while a form or a box is open over the other windows.
    void Abre();

    void done(int resultado) override;

  protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Coloca();
    void Busca();
    bool AtiendeTecla(const QKeyEvent& tecla);
    void Mueve(int renglones);
    void Elige(int renglon);
    /// Does something once a window has the keyboard again; after a while in any case.
    void HazTras(const QPointer<QWidget>& dueno, const std::function<void()>& que, int esperas);

    forms::Entorno& entorno;
    MDIForm1_ventana& principal;
    QLineEdit* txtBusca;
    QTreeView* lstHallados;
    QLabel* lblPie;
    std::unique_ptr<ModeloDeHallados> modelo;
};

/// The windows that are open, and the commands of the menu Ventana. `trae` brings the main window to the
/// front.
std::vector<Candidato> DeVentanas(MDIForm1_ventana& principal, const std::function<void()>& trae);

}  // namespace shell
