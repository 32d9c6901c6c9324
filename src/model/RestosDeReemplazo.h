// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a replacement of files leaves in its folder while it lasts: names of temporaries and lists.
namespace model {

/// Name of a temporary, ".siro-4711-1-0.tmp", or of the list of a replacement, ".siro-4711-1.lista".
struct NombreResto {
    long proceso = 0;
    long turno = 0;   ///< replacement of this process in this folder, from 1
    long pieza = -1;  ///< file of the replacement, from 0; -1: the list

    [[nodiscard]] std::string Texto() const;
    bool operator==(const NombreResto&) const = default;
};

/// Reads such a name; any other file's is none.
std::optional<NombreResto> LeeNombreResto(std::string_view nombre);

/// The list: the names that the temporaries 0, 1, 2 ... are to bear, a line each.
std::string TextoDeLista(const std::vector<std::string>& nombres);

/// Reads a list. Nothing where it isn't whole, or where it names what is no file of its own folder.
std::optional<std::vector<std::string>> LeeLista(std::string_view bytes);

}  // namespace model
