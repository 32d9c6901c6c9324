// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// How a formula is written: as stretches of text that are upright, slanted or raised.
namespace empirical {

/// A stretch of a formula that is written in one manner.
struct Trozo {
    std::string texto{};
    bool elevado = false;   ///< an exponent
    bool variable = false;  ///< S, L, H or i, written slanted
    bool operator==(const Trozo&) const = default;
};

/// A formula with its exponents in ^{}, part by part. An exponent without an end goes on to the end.
std::vector<Trozo> Trozos(std::string_view expresion);

}  // namespace empirical
