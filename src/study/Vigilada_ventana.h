// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "study/Tarea.h"

namespace study {

/// Work beside a window, looked at now and then on the window's own thread while it lasts. Giving it up frees
/// the window at once; the thread goes on to where it asks, of which nothing is seen.
///
///     study::Vigilada<Analisis> corrida{[this](auto& mirada) { Mira(mirada); }};
///     corrida.Empieza(trabajo);
template <typename T>
class Vigilada {
  public:
    struct Mirada {
        std::optional<T> nuevo{};  ///< what has come since the last look
        EstadoDeAvance avance{};
        bool terminada = false;  ///< this is the last look
    };

    explicit Vigilada(std::function<void(Mirada&)> unaMirada) : mira(std::move(unaMirada))
    {
        latido.setInterval(EntreMiradas);
        QObject::connect(&latido, &QTimer::timeout, &latido, [this] { Mira(); });
    }

    [[nodiscard]] bool EnCurso() const { return tarea != nullptr; }
    /// In place of what is under way.
    void Empieza(typename Tarea<T>::Trabajo trabajo)
    {
        Deja();
        tarea = std::make_unique<Tarea<T>>(std::move(trabajo));
        latido.start();
    }
    /// Returns whether there was something to give up.
    bool Deja()
    {
        std::erase_if(dejadas, [](const auto& una) { return una->Terminada(); });
        if (tarea == nullptr) return false;
        tarea->Cancela();
        dejadas.push_back(std::move(tarea));
        latido.stop();
        return true;
    }
    /// The same, but the work hands over what it has by then, and is looked at until it has come to its end.
    void Pide() const
    {
        if (tarea != nullptr) tarea->Cancela();
    }

  private:
    static constexpr std::chrono::milliseconds EntreMiradas{30};

    void Mira()
    {
        if (tarea == nullptr) return latido.stop();
        Mirada mirada;
        mirada.terminada = tarea->Terminada();
        mirada.nuevo = tarea->Saca();
        mirada.avance = AvanceDe(tarea->Hechas(), tarea->Total(), tarea->Segundos());
        if (mirada.terminada) {
            latido.stop();
            tarea.reset();
        }
        mira(mirada);
    }

    std::function<void(Mirada&)> mira;
    QTimer latido{};
    std::unique_ptr<Tarea<T>> tarea;
    std::vector<std::unique_ptr<Tarea<T>>> dejadas{};
};

}  // namespace study
