// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

// Validation and order of computation as a run uses them: from memory where the network is the same.
namespace engine {

/// Validates the network, as often as a run does. Nothing where the memory holds it already.
void ValidaRed(Corrida& c);

/// Finds the order of computation and who drains into whom; the Slate's text takes in the list that is
/// printed. Returns false where the network runs in a circle.
bool OrdenaRed(Corrida& c);

}  // namespace engine
