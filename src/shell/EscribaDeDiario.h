// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "model/Disco.h"

namespace shell {

/// Writes one file over and over on a thread of its own, so that nobody waits for the disk. Of what was asked
/// for while it was writing the last counts.
class EscribaDeDiario {
  public:
    EscribaDeDiario(model::Disco unDisco, std::string unaRuta);
    /// Waits until it has done what was asked for.
    ~EscribaDeDiario();
    EscribaDeDiario(const EscribaDeDiario&) = delete;
    EscribaDeDiario& operator=(const EscribaDeDiario&) = delete;

    /// Replaces the file, whole or not at all.
    void Escribe(std::string bytes);
    /// Deletes it, be it there or not.
    void Borra();
    /// Waits until all is done. Returns whether the last order could be.
    bool Espera();
    /// Whether the last order that is done couldn't be.
    [[nodiscard]] bool Fallo() const;

  private:
    struct Pedido {
        std::optional<std::string> bytes{};  ///< nothing: the file is to go
    };
    void Encarga(Pedido pedido);
    void Trabaja();
    [[nodiscard]] bool Cumple(const Pedido& pedido) const;

    model::Disco disco;
    std::string ruta;
    mutable std::mutex cerrojo;
    std::condition_variable hayAlgo, nadaQueda;
    std::optional<Pedido> porHacer{};
    bool ocupado = false, termina = false, bien = true;
    std::thread hilo;  ///< from the first order on
};

}  // namespace shell
