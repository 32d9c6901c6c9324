// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/Anfitrion.h"
#include "model/Clases.h"

namespace hydraulics {

/// The Represa or Lago on which the lookups work: its name, its tables or its outflow functions, and who is
/// asked where they end. A view, good as long as the network stays as it is.
struct CompActual {
    const model::Anfitrion& anfitrion;
    model::Clase clase;
    const std::string& nombre;
    int numero;  ///< row in its tables

    // --- its table of height [m], area [ha] and storage [m3] ---
    const model::Arreglo<std::int16_t>& filas;
    const model::Matriz<float>& tablaH;
    const model::Matriz<float>& tablaA;
    const model::Matriz<std::int32_t>& tablaS;

    // --- its outflow: a table of height [m] and outflow [m3/s], or the functions of a Represa ---
    const model::Arreglo<std::int16_t>& filasQ;
    const model::Matriz<float>& tablaHQ;
    const model::Matriz<float>& tablaQ;
    const model::Represa* funciones = nullptr;  ///< null: by table
};

/// A Represa, a Lago of a network as the lookups see it.
inline CompActual EnMano(const model::Anfitrion& anfitrion, const model::Red& red, const model::Represa& r)
{
    return {anfitrion,           model::Clase::Represa, r.NombreRepresa, r.numRepresa,
            red.RepresaFilasHAS, red.RepresaH,          red.RepresaA,    red.RepresaS,
            red.RepresaFilasHQ,  red.RepresaQH,         red.RepresaQQ,   r.optTabla ? nullptr : &r};
}
inline CompActual EnMano(const model::Anfitrion& anfitrion, const model::Red& red, const model::Lago& l)
{
    return {anfitrion, model::Clase::Lago, l.NombreLAGO,  l.numLAGO, red.LagoFilas, red.LagoH,
            red.LagoA, red.LagoS,          red.LagoFilas, red.LagoH, red.LagoQ};
}

}  // namespace hydraulics
