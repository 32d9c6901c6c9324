// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/ModeloDe.h"

// What it rains during an event, as runs take it.
namespace calibration {

using runs::LluviaDe;
using runs::LluviaPuesta;

}  // namespace calibration
