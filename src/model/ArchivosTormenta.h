// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace model {

struct Siro;

/// Reads the three personal distributions from DirTrabajo into NroFilasTabla 1..3, NotasDisPer, DurMinPer,
/// DurMaxPer and DisPerso. Percentages are read as whole numbers although they are written with decimals:
/// kept as it stands. A failure is silent and leaves slots 1 to 3 of NroFilasTabla at 0.
void LeeTablaDisTemPer(Siro& s);

}  // namespace model
