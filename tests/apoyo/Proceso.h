// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace apoyo {

/// How a process of its own ended.
enum class Fin { Entero, Matado, Mal };

/// Runs something in a process of its own, where it may be killed. Windows knows no such twin of a process:
/// there it runs in this one, and what it has opened is closed as the system closes it behind a killed one.
Fin EnOtroProceso(const std::function<void()>& rutina);

/// Kills the process that EnOtroProceso has made.
[[noreturn]] void Muere();

}  // namespace apoyo
