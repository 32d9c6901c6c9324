// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace model {

struct Siro;

// Tables of the Represas and Lagos: a block per component, found by "*" and the component's name. A reader
// replaces its arrays altogether; a missing block gives 0 rows to its component and to all that follow.
// A writer replaces its file whole, or leaves it as it was, and returns which.
// Failures are reported through the host, never thrown. S passes through a 32-bit float.

void LeeTablaHSVRepresa(Siro& s);  ///< RepresaFilasHAS, RepresaH, RepresaA, RepresaS from <Proyecto>_RHAS.vlm
void LeeTablaHQRepresa(Siro& s);   ///< RepresaFilasHQ, RepresaQH, RepresaQQ from <Proyecto>_RHQ.vlm
void LeeTablaHSVQLago(Siro& s);    ///< LagoFilas, LagoH, LagoA, LagoS, LagoQ from <Proyecto>_LHASQ.vlm

bool GuardaTablaHSVRepresa(Siro& s);
bool GuardaTablaHQRepresa(Siro& s);
bool GuardaTablaHSVQLago(Siro& s);

}  // namespace model
