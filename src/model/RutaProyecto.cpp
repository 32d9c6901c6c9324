// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/RutaProyecto.h"

#include <algorithm>
#include <cstddef>

#include "model/Texto.h"

namespace model {

namespace {

/// Bytes of the drive at the head of a path: its first two characters, on a platform without drives only
/// where the second one is a colon.
std::size_t LargoUnidad(std::string_view ruta)
{
    const auto fin = [&](std::size_t i) {
        ++i;
        while (i < ruta.size() && (static_cast<unsigned char>(ruta[i]) & 0xC0U) == 0x80U)
            ++i;
        return std::min(i, ruta.size());
    };
    const std::size_t segundo = fin(0);
    const bool dosPuntos = segundo < ruta.size() && ruta[segundo] == ':';
    return HayUnidades || dosPuntos ? fin(segundo) : 0;
}

}  // namespace

bool SirveDeNombre(std::string_view nombre)
{
    constexpr unsigned char PrimeroImpreso = 0x20, Borrado = 0x7F;
    // U+0080 to U+009F in UTF-8: this byte and one below the limit.
    constexpr unsigned char AntesDeControl = 0xC2, FinDeControl = 0xA0;
    unsigned char anterior = 0;
    const auto malo = [&](char letra) {
        const auto byte = static_cast<unsigned char>(letra);
        const bool control =
            byte < PrimeroImpreso || byte == Borrado || (anterior == AntesDeControl && byte < FinDeControl);
        anterior = byte;
        return control || letra == '/' || letra == '\\';
    };
    return std::none_of(nombre.begin(), nombre.end(), malo) && nombre.find("..") == std::string_view::npos;
}

std::string RutaLlana(std::string_view ruta)
{
    const std::size_t cabeza = std::min(ruta.find_first_not_of(Separador), ruta.size());
    constexpr std::size_t DeRed = 2;
    std::string llana(cabeza == DeRed ? DeRed : std::min<std::size_t>(cabeza, 1), Separador);
    for (std::size_t i = cabeza; i < ruta.size(); ++i)
        if (ruta[i] != Separador || llana.empty() || llana.back() != Separador) llana += ruta[i];
    return llana;
}

std::string ComoVuelve(std::string_view texto)
{
    return DeWindows1252(AWindows1252(texto));
}

std::string_view SinUnidad(std::string_view ruta)
{
    return ruta.substr(std::min(LargoUnidad(ruta), ruta.size()));
}

std::string UnidadDe(std::string_view ruta)
{
    return HayUnidades ? std::string(ruta.substr(0, LargoUnidad(ruta))) : std::string{};
}

}  // namespace model
