// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <array>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "shell/Area_ventana.h"
#include "shell/MDIForm1.h"

class QAction;
class QMenu;

namespace shell {

class RotuloProyecto;

/// The main window: menu, toolbar, labels of the project, and the room where its other windows stand.
class MDIForm1_ventana : public QMainWindow, protected forms::Constructor {
  public:
    MDIForm1_ventana(forms::Entorno& alrededor, MDIForm1& reglas, const Mandos& unosMandos);

    /// Shows the window as it was left the last time; the record has been opened before.
    void Abre();
    /// Remembers place, size and toolbar for the next time.
    void GuardaLugar();
    void Muestra() override;

    /// Does what an entry of the menu does, as an event.
    void Ejecuta(Rutina rutina);
    /// Where Slate, charts and tables stand.
    Area& Ventanas() { return *area; }

  protected:
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

  private:
    void ArmaMenu();
    QAction* AgregaEntrada(QMenu& menu, const FilaMenu& fila);
    void ArmaBarra();
    QWidget* ArmaRotulos(QWidget* padre);

    MDIForm1& f;
    const Mandos& mandos;
    Area* area = nullptr;
    bool abierta = false;  ///< it has come up: the splash is over, and commands are taken
    std::array<QAction*, NroVariables> variables{};
    std::array<RotuloProyecto*, RotulosMDIForm1.size()> rotulos{};
};

}  // namespace shell
