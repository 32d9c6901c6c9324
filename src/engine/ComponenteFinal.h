// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/SiroDeclarado.h"

// Validation of the network before it is run, with its questions to the user.
namespace engine {

/// Fills Secuencia and NroComponentes with the names of all components: UEHs, Cauces, Lagos, Represas, each
/// kind in collection order.
void RehaceSecuencia(model::Siro& s);

/// Validates the network: rebuilds Secuencia, finds the outfalls (Salidas, NroSalidas) and asks about what
/// looks wrong. Sets ErrorRed, ContinuarSinCorregir and RedOk. Throws nothing: an outfall beyond the tenth
/// counts, its name isn't kept, and Falla 9 is reported for it.
void ComponenteFinal(model::Siro& s);

}  // namespace engine
