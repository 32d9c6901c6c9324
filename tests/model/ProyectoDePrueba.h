// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <rapidcheck.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

/// A program with the project "Arroyo" open in "/proy", a directory that is there and empty.
struct ProyectoDePrueba {
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};

    ProyectoDePrueba()
    {
        disco.PonDirectorio("/proy");
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
    }
    static std::string RutaDe(std::string_view sufijo) { return "/proy/Arroyo" + std::string(sufijo); }
    /// A file of the project, by what follows its name.
    void Pon(std::string_view sufijo, std::string_view bytes) { disco.Pon(RutaDe(sufijo), bytes); }
    [[nodiscard]] std::string Bytes(std::string_view sufijo) const { return disco.Bytes(RutaDe(sufijo)); }
    /// Every box so far.
    [[nodiscard]] std::vector<model::Mensaje> Avisos() const { return anfitrion->Avisos(); }
    void OlvidaAvisos() { anfitrion->sucesos.clear(); }
};

using Cajas = std::vector<model::Mensaje>;

/// A box in the plain style.
inline model::Mensaje Llano(std::string texto)
{
    return {std::move(texto), "", model::Icono::Ninguno};
}

/// n times the same box.
inline Cajas Veces(int n, const model::Mensaje& caja)
{
    return Cajas(static_cast<std::size_t>(n), caja);
}

inline Cajas operator+(Cajas a, const Cajas& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// Joins fields or lines, each with its line end.
inline std::string Junta(const std::vector<std::string>& renglones)
{
    std::string bytes;
    for (const std::string& renglon : renglones)
        bytes += renglon + "\r\n";
    return bytes;
}

/// A text that a quoted field can hold: letters of Windows-1252, commas and blanks too, no double quote.
inline std::string TextoAlAzar()
{
    constexpr auto Letras = std::to_array<std::string_view>(
        {"a", "Z", "7", " ", ",", ".", "-", "#", "*", "á", "ñ", "€", "Ý", "'"});
    std::string texto;
    for (int n = *rc::gen::inRange(0, 16); n > 0; --n)
        texto += Letras[*rc::gen::inRange<std::size_t>(0, Letras.size())];
    return texto;
}

/// A 32-bit float that its decimal text of 7 digits gives back: a whole number of hundredths.
inline float SimpleAlAzar()
{
    return static_cast<float>(*rc::gen::inRange(-9999999, 10000000) / 100.0);
}
