// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <thread>

#include "checks/UltimaCorrida.h"
#include "model/Siro.h"

namespace shell {

/// Looks over each run beside the window: what is to be said of it is worked out on a thread of its own, on a
/// copy of the state, of several runs that wait the newest alone.
class JuicioDeCorrida : public QObject {
  public:
    using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

    JuicioDeCorrida() = default;
    ~JuicioDeCorrida() override;

    /// Looks over the storm that `s` has just run; UltimaCorrida::DeUna tells of the others.
    void Pide(const model::Siro& s, const model::Tormenta& entrada, bool completa);
    /// The same for the series that `s` has just run.
    void PideSerie(const model::Siro& s);

    /// The run looked over last; nothing before the first, or where the memory didn't suffice.
    [[nodiscard]] const Corrida& Ultima() const { return ultima; }
    /// A run is being looked over.
    [[nodiscard]] bool EnCurso() const { return hilo.joinable(); }
    /// A run is about to be looked over, or has been.
    std::function<void()> AlCambiar = [] {};

  private:
    using Tarea = std::function<Corrida()>;
    void Empieza(Tarea tarea);
    void Termina(Corrida corrida);

    Corrida ultima{};
    Tarea enEspera{};
    std::thread hilo{};
};

}  // namespace shell
