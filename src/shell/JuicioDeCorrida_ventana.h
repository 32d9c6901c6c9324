// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <memory>
#include <thread>

#include "checks/UltimaCorrida.h"
#include "model/Siro.h"

namespace shell {

/// Looks over each run beside the window: what is to be said of it is worked out on a thread of its own, on a
/// copy of the state, of several runs that wait the newest alone, and those that somebody waits for.
class JuicioDeCorrida : public QObject {
  public:
    using Corrida = std::shared_ptr<const checks::UltimaCorrida>;
    /// Takes a run once it has been looked over, on the window's thread. One that is asked for is looked over
    /// even as the program ends; not where the memory didn't suffice.
    using Luego = std::function<void(const Corrida& corrida)>;

    JuicioDeCorrida() = default;
    ~JuicioDeCorrida() override;

    /// Looks over the storm that `s` has just run; UltimaCorrida::DeUna tells of the others.
    void Pide(const model::Siro& s, const model::Tormenta& entrada, bool completa, Luego luego = {});
    /// The same for the series that `s` has just run.
    void PideSerie(const model::Siro& s, Luego luego = {});
    /// Takes one that has been looked over elsewhere.
    void Pon(Corrida corrida);

    /// The run looked over last; nothing before the first, or where the memory didn't suffice.
    [[nodiscard]] const Corrida& Ultima() const { return ultima; }
    /// A run is being looked over.
    [[nodiscard]] bool EnCurso() const { return hilo.joinable(); }
    /// A run is about to be looked over, or has been.
    std::function<void()> AlCambiar = [] {};

  private:
    struct Pedido {
        std::function<Corrida()> tarea{};
        Luego luego{};
    };
    void Encola(Pedido pedido);
    void Empieza(Pedido pedido);
    void Termina();

    Corrida ultima{};
    Pedido enCurso{};
    Corrida hecha{};  ///< by the thread; whoever has joined it may look
    std::deque<Pedido> enEspera{};
    std::thread hilo{};
};

}  // namespace shell
