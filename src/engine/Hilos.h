// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

// Work that several threads take from one heap.
namespace engine {

/// Runs `trabaja` on this thread and, with `aparte`, on others: on `hilos` in all, 0: one per core, but on no
/// more than there are `tareas`, nor than the system has. Returns once all are done. Throws std::bad_alloc
/// then where one met it.
void EnHilos(int hilos, std::size_t tareas, const std::function<void(bool aparte)>& trabaja);

}  // namespace engine
