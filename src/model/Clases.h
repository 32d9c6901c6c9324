// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

#include "model/Red.h"

// The four kinds of component, described once: what tells one from another, under which names their records
// keep what all of them have, and the walks over a network that follow from it.
namespace model {

enum class Clase : std::uint8_t { UEH, Cauce, Lago, Represa };

/// A kind of component. Its records' own names for name, number and place of the icon; reaches have no icon,
/// they are drawn from vertex to vertex.
template <typename T>
struct DeClase;

template <>
struct DeClase<UEH> {
    static constexpr Clase clase = Clase::UEH;
    static constexpr std::string_view prefijo = "u-";  ///< begins the names of this kind
    static constexpr auto coleccion = &Red::ColUEHs;
    static constexpr auto nombre = &UEH::NombreUEH;
    static constexpr auto numero = &UEH::numUEH;
    static constexpr auto x = &UEH::IconoUEHx, y = &UEH::IconoUEHy;
};

template <>
struct DeClase<Cauce> {
    static constexpr Clase clase = Clase::Cauce;
    static constexpr std::string_view prefijo = "c-";
    static constexpr auto coleccion = &Red::ColCauces;
    static constexpr auto nombre = &Cauce::NombreCauce;
    static constexpr auto numero = &Cauce::numCauce;
};

template <>
struct DeClase<Lago> {
    static constexpr Clase clase = Clase::Lago;
    static constexpr std::string_view prefijo = "l-";
    static constexpr auto coleccion = &Red::ColLagos;
    static constexpr auto nombre = &Lago::NombreLAGO;
    static constexpr auto numero = &Lago::numLAGO;
    static constexpr auto x = &Lago::IconoLAGOx, y = &Lago::IconoLAGOy;
};

template <>
struct DeClase<Represa> {
    static constexpr Clase clase = Clase::Represa;
    static constexpr std::string_view prefijo = "r-";
    static constexpr auto coleccion = &Red::ColRepresas;
    static constexpr auto nombre = &Represa::NombreRepresa;
    static constexpr auto numero = &Represa::numRepresa;
    static constexpr auto x = &Represa::IconoRepresaX, y = &Represa::IconoRepresaY;
};

// --- what every component has ---

/// Name of a component of any kind.
auto& Nombre(auto& componente)
{
    return componente.*DeClase<std::remove_cvref_t<decltype(componente)>>::nombre;
}
/// Running number, from 1 in the order of its collection.
auto& Numero(auto& componente)
{
    return componente.*DeClase<std::remove_cvref_t<decltype(componente)>>::numero;
}
/// Place of its icon [drawing units].
auto& IconoX(auto& componente)
{
    return componente.*DeClase<std::remove_cvref_t<decltype(componente)>>::x;
}
auto& IconoY(auto& componente)
{
    return componente.*DeClase<std::remove_cvref_t<decltype(componente)>>::y;
}
/// All components of kind T, in file order.
template <typename T>
auto& Todos(auto& red)
{
    return red.*DeClase<T>::coleccion;
}

/// Number of the first component of kind T with a name; 0 where none bears it.
template <typename T>
int NumeroDe(const auto& red, std::string_view nombre)
{
    int n = 0;
    for (const T& componente : Todos<T>(red)) {
        ++n;
        if (Nombre(componente) == nombre) return n;
    }
    return 0;
}

// --- walks ---

/// Hands the collection of each kind to `hace`: UEHs, Cauces, Lagos, Represas.
void CadaClase(auto& red, auto&& hace)
{
    hace(red.ColUEHs);
    hace(red.ColCauces);
    hace(red.ColLagos);
    hace(red.ColRepresas);
}

/// Hands each component of the network to `hace`, kind by kind in that order.
void CadaComponente(auto& red, auto&& hace)
{
    CadaClase(red, [&](auto& coleccion) {
        for (auto& componente : coleccion)
            hace(componente);
    });
}

/// The same without the UEHs, into which nothing drains.
void CadaReceptor(auto& red, auto&& hace)
{
    CadaComponente(red, [&](auto& componente) {
        if constexpr (!std::is_same_v<std::remove_cvref_t<decltype(componente)>, UEH>) hace(componente);
    });
}

// --- who drains into whom ---

inline constexpr std::string_view SinDestino = "0";

/// Whether a destination names a component: the empty text and "0" mean none.
inline bool EsDestino(std::string_view Cauce_aa)
{
    return !Cauce_aa.empty() && Cauce_aa != SinDestino;
}

/// Whether something with this destination drains into the component with a name.
inline bool DrenaA(std::string_view Cauce_aa, std::string_view nombre)
{
    return EsDestino(Cauce_aa) && Cauce_aa == nombre;
}
/// The same of a component of any kind.
bool DrenaA(const auto& componente, std::string_view nombre) requires requires
{
    componente.Cauce_aa;
}
{
    return DrenaA(std::string_view(componente.Cauce_aa), nombre);
}

}  // namespace model
