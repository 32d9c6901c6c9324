// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>
#include <QVariant>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "checks/Franja_ventana.h"
#include "checks/dlgAvisos.h"
#include "forms/Constructor_ventana.h"

class QIcon;
class QMainWindow;
class QMenu;
class QTabWidget;

namespace forms {
class TablaCuadro;
}

namespace checks {

/// What stands for a severity beside its word; nothing wrong has a mark of its own.
QIcon IconoDe(std::optional<Gravedad> gravedad);

/// The list of a run's findings and its water balance, docked to a main window, which remembers where and
/// whether it is on show; hidden until it is asked for.
class dlgAvisos_ventana : public QDockWidget, protected forms::Constructor {
  public:
    dlgAvisos_ventana(forms::Entorno& alrededor, dlgAvisos& registro, QMainWindow& principal);

    /// Comes up with the keyboard in its table.
    void Abre();
    void Muestra() override;
    /// The strips over a run's findings and over a series'.
    std::array<Franja*, 2> Franjas() { return {deUna, deSerie}; }

    // What stands above this room; each runs inside an event.
    /// Goes to where a finding can be changed.
    std::function<void(const Hallazgo&)> Va = [](const Hallazgo&) {};
    std::function<void(const std::string& componente)> AbreHidrograma = [](const std::string&) {};
    /// Sets the added time [min] in the configuration, and runs again.
    std::function<void(float minutos)> AgregaTiempo = [](float) {};

  protected:
    bool event(QEvent* evento) override;

  private:
    using DeFila = std::optional<Hallazgo> (*)(const dlgAvisos&, std::size_t);
    void NombraBotones();
    QWidget* Cabeza();
    QWidget* PaginaDeBalance();
    forms::TablaCuadro* TablaDe(std::string_view control, forms::Cuadro& cuadro, DeFila deFila);
    void ArmaMenu(QMenu& menu, const Hallazgo& hallazgo);
    [[nodiscard]] QVariant AdornoDeAviso(std::size_t fila, int columna, int papel) const;
    [[nodiscard]] QVariant AdornoDeBalance(std::size_t fila, int papel) const;

    dlgAvisos& f;
    std::shared_ptr<const UltimaCorrida> tomada{};  ///< that the strips speak of
    Franja *deUna = nullptr, *deSerie = nullptr;
    QTabWidget* paginas = nullptr;
    forms::TablaCuadro *avisos = nullptr, *balance = nullptr;
};

}  // namespace checks
