// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "study/Ajuste.h"
#include "study/Taller.h"

// What a study keeps beside the project's own files, in P_Estudio.json: a plain value, so that a step back is
// a copy.
namespace study {

struct Estudio {
    Taller taller{};
    Ajuste ajuste{};
    std::string resto{};  ///< keys of the file that this version doesn't know, as JSON; kept
    bool operator==(const Estudio&) const = default;
};

}  // namespace study
