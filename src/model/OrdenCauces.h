// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace model {

struct Red;

/// Sets OrdenCauce of every reach: a rule in the manner of Strahler (1952), in ten passes over the
/// collection. Lagos and Represas pass on the orders of the reaches that they gather. Throws Falla 6.
void CalculaOrdenCauces(Red& red);

}  // namespace model
