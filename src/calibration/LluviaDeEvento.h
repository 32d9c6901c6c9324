// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/SiroDeclarado.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

// What it rains during an event, as runs take it.
namespace calibration {

struct LluviaPuesta {
    runs::Lluvia lluvia{};
    std::string motivo{};  ///< why the event can't be run, a sentence; empty: it can
};

/// The storm of an event in the project's steps, long enough for its observations to be reached: up to 30,000
/// minutes. A recorded storm is read from the project's directory and goes in its own step, the output step
/// in a whole part of it; what is in hand stays as it is.
LluviaPuesta LluviaDe(model::Siro& s, const study::Evento& evento);

}  // namespace calibration
