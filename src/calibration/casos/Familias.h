// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "checks/Verifica.h"

// The published cases of this room, a file for each family: to add one is to add its file and its name in
// Familias.cpp.
namespace calibration {

/// For `checks::Verifica`, behind frequency's; none in a build without this room's libraries.
std::span<const checks::casos::Familia> Familias();

}  // namespace calibration
