// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "editor/NombreComponente.h"
#include "model/Coleccion.h"
#include "model/Siro.h"
#include "model/Texto.h"

// Names of new components. The network is wired by them, so that none is given twice within its kind.
namespace editor {

/// How the user is asked for the name of a new component.
struct PeticionDeNombre {
    std::string_view prefijo;  ///< put before what is typed
    std::string_view titulo, texto;
};

inline constexpr PeticionDeNombre PideNombreCauce{"c-", "Agrega un nuevo Cauce", "Nombre del cauce ?"};

/// Whether a component of the collection bears a name.
template <typename T, int Limite>
bool EnUso(const model::Coleccion<T, Limite>& coleccion, std::string T::*nombre, std::string_view buscado)
{
    for (const T& componente : coleccion)
        if (componente.*nombre == buscado) return true;
    return false;
}

/// Asks for a name until one is given that no component of the collection bears: the prefix and what is
/// typed, 15 characters at most; the box that asks again says why. Nothing where the user cancels or types
/// nothing.
template <typename T, int Limite>
std::optional<std::string> PideNombre(const model::Siro& s, const PeticionDeNombre& pide,
                                      const model::Coleccion<T, Limite>& coleccion, std::string T::*nombre)
{
    std::string texto(pide.texto);
    for (;;) {
        const std::string tecleado = s.Anfitrion.PideTexto({texto, std::string(pide.titulo)});
        if (tecleado.empty()) return {};
        std::string dado = model::PrimerosCaracteres(std::string(pide.prefijo) + tecleado, LargoNombre);
        if (!EnUso(coleccion, nombre, dado)) return dado;
        texto = std::string(pide.texto) + "\nEl nombre «" + dado + "» ya está en uso.";
    }
}

}  // namespace editor
