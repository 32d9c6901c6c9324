// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <any>

namespace model {

/// Room for the parameters of a translation method to come. It lives and dies with its UEH; nothing reads
/// or writes its two values, no file holds them and no run looks at them.
struct MetDirecto {
    std::any Met1{};
    std::any Met2{};
    bool operator==(const MetDirecto& otro) const
    {
        return Met1.has_value() == otro.Met1.has_value() && Met2.has_value() == otro.Met2.has_value();
    }
};

}  // namespace model
