// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Hilos.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace engine {

void EnHilos(int hilos, std::size_t tareas, const std::function<void(bool)>& trabaja)
{
    const auto pedidos =
        hilos > 0 ? static_cast<std::size_t>(hilos) : std::size_t{std::thread::hardware_concurrency()};
    std::atomic<bool> sinMemoria{false};
    {
        std::vector<std::jthread> ayudantes;
        try {
            while (ayudantes.size() + 1 < std::min(pedidos, tareas))
                ayudantes.emplace_back([&] {
                    try {
                        trabaja(true);
                    } catch (const std::bad_alloc&) {
                        sinMemoria = true;
                    }
                });
        } catch (const std::system_error&) {  // those that run already do the work
        }
        trabaja(false);
    }
    if (sinMemoria) throw std::bad_alloc();
}

}  // namespace engine
