// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "model/Siro.h"

/// Reads a table file for three components named "a", "b" and "*a". Tables that were read without a box come
/// back the same once they have been written in the program's own hand.
template <typename Lee, typename Guarda>
void PruebaTabla(const std::string& clave, const std::string& bytes, Lee lee, Guarda guarda)
{
    const DiscoPorTerminacion disco;
    (*disco.archivos)[clave] = bytes;
    int avisos = 0;
    model::Siro s;
    s.Disco = disco.Disco();
    s.Anfitrion.Avisa = [&](const model::Mensaje&) { ++avisos; };
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = "/proy";
    std::int16_t n = 0;
    for (const char* const nombre : {"a", "b", "*a"}) {
        ++n;
        s.Red.ColRepresas.Agrega({.NombreRepresa = nombre, .numRepresa = n});
        s.Red.ColLagos.Agrega({.NombreLAGO = nombre, .numLAGO = n});
    }
    lee(s);
    if (avisos > 0) return;

    const auto vuelta = [&] {
        guarda(s);
        lee(s);
        return disco.archivos->at(clave);
    };
    vuelta();
    const std::string segunda = vuelta();
    Exige(vuelta() == segunda);
}

inline std::string Entrada(const std::uint8_t* datos, std::size_t largo)
{
    return {datos, datos + largo};
}
