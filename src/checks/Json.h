// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// What the JSON of the checks is made of.
namespace checks {

/// A text as JSON has it, in its quotes: a component's name may hold backslashes and line breaks.
std::string Citado(std::string_view texto);

}  // namespace checks
