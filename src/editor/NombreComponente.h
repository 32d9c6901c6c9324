// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/Siro.h"

// Names of components as their forms edit them. A name is what the network is wired by, so that a rename
// goes through every destination that held the old one.
namespace editor {

inline constexpr std::size_t LargoNombre = 15;  ///< characters, prefix included

/// What the field shows in place of a name that another component of its kind has. It is no name.
inline constexpr std::string_view NombreInvalido = "Invalido";

/// Returns the name with its kind's prefix in front and cut to its length in characters.
std::string NombreConPrefijo(std::string_view prefijo, std::string_view texto);

/// Kinds of component whose destination follows a rename.
struct SiguenNombre {
    bool UEHs = true;
    bool Cauces = true;
    int salvoCauce = 0;  ///< number of a reach whose destination stays as it is; 0: none
};

/// Puts the new name in place of the old one in every destination that held it, those of Represas and Lagos
/// always. The empty name and "0" are held by nobody: as destinations they mean none.
void RenombraDestinos(model::Siro& s, std::string_view viejo, std::string_view nuevo, SiguenNombre siguen);

}  // namespace editor
