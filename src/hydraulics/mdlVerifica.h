// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/SiroDeclarado.h"

// The two commands that list the tables and functions of Represas on the Slate, to be looked at before a run.
// They add to TextoPizarra, clear nothing, and open the Slate, which switches it on. Without Represas they do
// nothing. A fault is told and ends the command.
namespace hydraulics {

/// Asks for a Represa and for one of two sheets of its table of height, area and storage: the functions of
/// the height at steps that the user gives, or all lookups to and fro at fiftieths of the table's ranges.
void VerificaHSV(model::Siro& s);

/// Lists height and outflow of every Represa at steps that the user gives, by its table or by its functions,
/// whose expressions are listed too.
void VerificaHQ(model::Siro& s);

/// Every comma of a text becomes a point, so that a default reads the same under any locale.
void NormalizaDecimal(std::string& texto);

}  // namespace hydraulics
