// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace forms {

/// A list from which an item is picked.
struct Lista {
    std::vector<std::string> items{};
    int indice = -1;  ///< item selected, from 0; -1: none

    /// The item selected; empty where none is.
    [[nodiscard]] std::string Elegido() const;
    /// Selects the first item of this text, none where there is none. Returns whether there is one.
    bool Elige(std::string_view item);
    /// Other items. The one selected stays so where it is among them.
    void PonItems(std::vector<std::string> nuevos);

    bool operator==(const Lista&) const = default;
};

}  // namespace forms
