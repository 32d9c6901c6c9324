// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <functional>
#include <string>
#include <vector>

#include "forms/Entorno_ventana.h"
#include "shell/Inicio.h"
#include "shell/MDIForm1.h"
#include "shell/Tarjeta_ventana.h"

class QLabel;
class QVBoxLayout;

namespace shell {

/// The projects of late, as the user's settings keep them.
std::vector<ProyectoReciente> LeeRecientes(QSettings& ajustes);

/// What fills the room of the main window while no window is open there: see Inicio.h. It keeps the list of
/// projects in the user's settings.
class Inicio_ventana : public QScrollArea {
  public:
    /// `orden` does what an entry of the menu does.
    Inicio_ventana(forms::Entorno& alrededor, std::function<void(Rutina)> orden, QWidget* padre);

    /// What is known of the last run.
    std::function<CorridaHecha()> Corrida = [] { return CorridaHecha{}; };
    /// Shows the tutorial. Runs inside an event.
    std::function<void()> AbreTutorial = [] {};

    /// Something may have happened: the project in hand goes into the list, and what is on show is shown
    /// anew, once the events of the moment are over.
    void RefrescaLuego();

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    QWidget* ColumnaDelProyecto(QWidget* padre);
    QWidget* ColumnaDeRecientes(QWidget* padre);
    Tarjeta* Nueva(const QString& nombre, QVBoxLayout& pila, std::function<void()> rutina);
    Tarjeta* DelMenu(const QString& nombre, QVBoxLayout& pila, std::string_view entrada);
    void Refresca();
    void AnotaElProyecto();
    void MuestraProyecto();
    void MuestraRecientes();
    void AbreProyecto(const std::string& ruta);
    void AbreReciente(std::size_t cual);

    forms::Entorno& entorno;
    std::function<void(Rutina)> orden;
    QLabel* proyecto = nullptr;
    QLabel* sinRecientes = nullptr;
    std::vector<Tarjeta*> pasos{}, recientes{}, sinProyecto{};
    Tarjeta* muestra = nullptr;
    Tarjeta* tutorial = nullptr;
    std::vector<Paso> delProyecto{};
    std::vector<ProyectoReciente> lista{};
    ProyectoReciente anotado{};  ///< as it went into the list in this session
    bool programado = false;
    /// The list is read and its files are looked for, which may take its time on a disk far away: as the
    /// sheet comes up, and where the list may have changed.
    bool porMirar = true;
};

}  // namespace shell
