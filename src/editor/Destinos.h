// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Dibujo.h"
#include "forms/Lista.h"
#include "model/Clases.h"

// Where a component may drain to, as the lists of the forms offer it.
namespace editor {

using forms::Lista;

inline constexpr std::string_view EntradaNinguno = "Ninguno";

/// An entry of a list of destinations.
struct Destino {
    std::optional<model::Clase> clase{};  ///< nothing: "Ninguno" or "0"
    int numero = 0;                       ///< of the component
    std::string Cauce_aa{};               ///< what the choice makes of the property
    bool operator==(const Destino&) const = default;
};

/// Which destinations a list offers, and in which order.
enum class OrdenDestinos : std::uint8_t {
    Todos,       ///< all Cauces, Represas, Lagos, then "Ninguno" and "0"
    SoloCauces,  ///< "Ninguno", "0", then all Cauces
};

std::vector<Destino> Destinos(const model::Red& red, OrdenDestinos orden);

/// The destinations as a list, the one that a component has being selected: none where it names nobody.
Lista ListaDestinos(const model::Red& red, OrdenDestinos orden, std::string_view Cauce_aa);

/// The entry selected in such a list; nothing where none is.
std::optional<Destino> DestinoElegido(const model::Red& red, OrdenDestinos orden, const Lista& lista);

/// Where a component that drains there meets it: the upper end of a reach, the icon of a Represa or a Lago,
/// (0, 0) for none. Throws Falla 9 for a reach without vertices in memory.
Punto PuntoDestino(const model::Red& red, const Destino& destino);

}  // namespace editor
