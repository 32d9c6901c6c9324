// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/Anfitrion.h"
#include "model/Clases.h"
#include "model/Texto.h"

// Names of components as the user gives them. A name is what the network is wired by: none is given twice
// within its kind, and a rename goes through every destination that held the old one.
namespace editor {

inline constexpr std::size_t LargoNombre = 15;  ///< characters, prefix included

/// What the field shows in place of a name that another component of its kind has. It is no name.
inline constexpr std::string_view NombreInvalido = "Invalido";

/// Returns the name with its kind's prefix in front and cut to its length in characters.
std::string NombreConPrefijo(std::string_view prefijo, std::string_view texto);

/// How the user is asked for the name of a new component.
struct PeticionDeNombre {
    std::string_view titulo, texto;
};

/// Asks for a name until one is given that no component of kind T bears: the prefix and what is typed, 15
/// characters at most; the box that asks again says why. Nothing where the user cancels or types nothing.
template <typename T>
std::optional<std::string> PideNombre(const model::Anfitrion& anfitrion, const model::Red& red,
                                      const PeticionDeNombre& pide)
{
    std::string texto(pide.texto);
    for (;;) {
        const std::string tecleado = anfitrion.PideTexto({texto, std::string(pide.titulo)});
        if (tecleado.empty()) return {};
        std::string dado =
            model::PrimerosCaracteres(std::string(model::DeClase<T>::prefijo) + tecleado, LargoNombre);
        if (model::NumeroDe<T>(red, dado) == 0) return dado;
        texto = std::string(pide.texto) + "\nEl nombre «" + dado + "» ya está en uso.";
    }
}

/// Components whose destination follows a rename; those of Represas and Lagos always do.
struct SiguenNombre {
    bool UEHs = true;
    int salvoCauce = 0;  ///< number of a reach whose destination stays as it is; 0: none
};

/// Puts the new name in place of the old one in every destination that held it. The empty name and "0" are
/// held by nobody: as destinations they mean none.
void RenombraDestinos(model::Red& red, std::string_view viejo, std::string_view nuevo, SiguenNombre siguen);

}  // namespace editor
