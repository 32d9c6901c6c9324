// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "study/Avance.h"

namespace study {

/// Work on a thread of its own that can be watched and given up. What it has ready is taken by whoever
/// watches; the end of the object waits for the work to see that it is given up.
template <typename T>
class Tarea {
  public:
    /// `trabajo` asks `avance` whether it goes on, and hands over results, the later one in place of the
    /// earlier.
    using Trabajo = std::function<void(const Avance& avance, const std::function<void(T)>& entrega)>;

    explicit Tarea(Trabajo unTrabajo) : trabajo(std::move(unTrabajo))
    {
        hilo = std::thread([this] { Corre(); });
    }
    ~Tarea()
    {
        Cancela();
        hilo.join();
    }
    Tarea(const Tarea&) = delete;
    Tarea& operator=(const Tarea&) = delete;

    void Cancela() { cancelada = true; }
    [[nodiscard]] bool Terminada() const { return terminada; }
    [[nodiscard]] std::size_t Hechas() const { return hechas; }
    [[nodiscard]] std::size_t Total() const { return total; }
    [[nodiscard]] double Segundos() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - comienzo).count();
    }
    /// What has come since the last time.
    std::optional<T> Saca()
    {
        const std::lock_guard guarda(cerrojo);
        return std::exchange(listo, std::nullopt);
    }

  private:
    void Corre()
    {
        trabajo(
            [this](std::size_t van, std::size_t todas) {
                hechas = van;
                total = todas;
                return !cancelada;
            },
            [this](T resultado) {
                const std::lock_guard guarda(cerrojo);
                listo = std::move(resultado);
            });
        terminada = true;
    }

    const Trabajo trabajo;
    const std::chrono::steady_clock::time_point comienzo = std::chrono::steady_clock::now();
    std::atomic<std::size_t> hechas = 0, total = 0;
    std::atomic<bool> cancelada = false, terminada = false;
    std::mutex cerrojo{};
    std::optional<T> listo{};
    std::thread hilo{};
};

}  // namespace study
