// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <functional>
#include <optional>

#include "checks/Sello.h"
#include "forms/Entorno_ventana.h"

class QLabel;
class QPushButton;

namespace checks {

/// The strip above a result that is of an earlier run than the state in memory: says what differs, and bears
/// a key that brings the result up to date. Hidden while the result holds.
class Franja : public QFrame {
  public:
    Franja(forms::Entorno& alrededor, Alcance unAlcance);

    /// What stands below is of this from now on.
    void Toma(const Sello& sello);
    /// The same of the results in memory.
    void Toma() { Toma(DeResultados()); }
    /// The form below counts how often it has been filled by the results in memory: each time that it was, it
    /// is of these from now on.
    void Sigue(int llenados);
    /// The form below is opened anew, and counts from the beginning.
    void Olvida() { vistos = -1; }
    /// What stands below is of no run.
    void Suelta();

    /// What the results in memory are of.
    std::function<Sello()> DeResultados;
    /// Runs what is in memory. Runs inside an event, as the next does.
    std::function<void()> Corre = [] {};
    /// Shows the results in memory below; without it the strip never comes up.
    std::function<void()> Actualiza{};

  private:
    void Refresca();
    void Pulsa();
    /// What is in memory can't be run for this kind of result: why, in Spanish; empty where it can.
    [[nodiscard]] std::string Impedimento(const Sello& ahora) const;

    forms::Entorno& entorno;
    Alcance alcance;
    std::optional<Sello> mostrado{};
    int vistos = -1;
    QLabel* texto;
    QPushButton* boton;
};

}  // namespace checks
