// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/SiroDeclarado.h"

// The order of computation, upstream before downstream.
namespace engine {

/// Sorts Secuencia above the UEHs so that each component stands behind all that drain into it, and prints it
/// on the Slate. Returns false where the network runs in a circle: one place has then been swapped more than
/// NroComponentes times, and Secuencia stands as far as it was sorted.
bool OrdenSecuencia(model::Siro& s);

}  // namespace engine
