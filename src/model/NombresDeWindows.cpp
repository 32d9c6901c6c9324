// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/NombresDeWindows.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace model {

namespace {

constexpr std::string_view Separadores = "\\/";
constexpr std::string_view LetrasAjenas = "<>:\"|?*";
constexpr std::string_view SinLimite = R"(\\?\)";  ///< head of a path that Windows takes letter by letter

constexpr std::string_view PorDispositivo = "Windows reserva ese nombre para un dispositivo.";
constexpr std::string_view PorLetra =
    R"(En Windows un nombre de archivo no lleva ninguno de estos signos: < > : " | ? *)";
constexpr std::string_view PorFinal = "En Windows un nombre de archivo no termina en punto ni en espacio.";
constexpr std::string_view PorLargo = "El nombre o la ruta son más largos de lo que Windows admite.";

constexpr std::size_t MaxRuta = 259, MaxNombre = 255;  // UTF-16 units, without the final NUL

constexpr auto Dispositivos =
    std::to_array<std::string_view>({"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"});
constexpr auto ConNumero = std::to_array<std::string_view>({"COM", "LPT"});
constexpr auto Numeros = std::to_array<std::string_view>(
    {"1", "2", "3", "4", "5", "6", "7", "8", "9", "\u00B9", "\u00B2", "\u00B3"});

bool EsLetra(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool ConUnidad(std::string_view ruta)
{
    return ruta.size() > 1 && EsLetra(ruta[0]) && ruta[1] == ':';
}

/// Units that a text in UTF-8 takes in UTF-16.
std::size_t LargoUtf16(std::string_view texto)
{
    constexpr unsigned Continuacion = 0x80, DeContinuacion = 0xC0, DeCuatro = 0xF0;
    std::size_t largo = 0;
    for (const char c : texto) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & DeContinuacion) != Continuacion) largo += byte >= DeCuatro ? 2U : 1U;
    }
    return largo;
}

/// What stands before the first point is what makes a name a device's, in capitals or not.
bool EsDispositivo(std::string_view nombre)
{
    std::string base(nombre.substr(0, nombre.find('.')));
    while (base.ends_with(' '))
        base.pop_back();
    for (char& c : base)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (std::find(Dispositivos.begin(), Dispositivos.end(), base) != Dispositivos.end()) return true;
    return std::any_of(ConNumero.begin(), ConNumero.end(), [&](std::string_view puerto) {
        return base.starts_with(puerto) &&
               std::find(Numeros.begin(), Numeros.end(), base.substr(puerto.size())) != Numeros.end();
    });
}

std::string_view MotivoDelNombre(std::string_view nombre)
{
    constexpr char PrimeroImpreso = ' ';
    const auto ajena = [](char c) {
        return LetrasAjenas.find(c) != std::string_view::npos || (c >= 0 && c < PrimeroImpreso);
    };
    if (nombre.empty() || nombre == "." || nombre == "..") return {};
    if (std::any_of(nombre.begin(), nombre.end(), ajena)) return PorLetra;
    if (nombre.ends_with('.') || nombre.ends_with(' ')) return PorFinal;
    if (EsDispositivo(nombre)) return PorDispositivo;
    return LargoUtf16(nombre) > MaxNombre ? PorLargo : std::string_view();
}

}  // namespace

std::string_view MotivoDeWindows(std::string_view ruta)
{
    const bool sinLimite = ruta.starts_with(SinLimite);
    if (!sinLimite && LargoUtf16(ruta) > MaxRuta) return PorLargo;
    if (sinLimite) ruta.remove_prefix(SinLimite.size());
    if (ConUnidad(ruta)) ruta.remove_prefix(2);
    while (!ruta.empty()) {
        const std::size_t fin = std::min(ruta.find_first_of(Separadores), ruta.size());
        if (const auto motivo = MotivoDelNombre(ruta.substr(0, fin)); !motivo.empty()) return motivo;
        ruta.remove_prefix(std::min(fin + 1, ruta.size()));
    }
    return {};
}

bool EsAbsolutaEnWindows(std::string_view ruta)
{
    const auto separador = [&](std::size_t i) {
        return i < ruta.size() && Separadores.find(ruta[i]) != std::string_view::npos;
    };
    return (separador(0) && separador(1)) || (ConUnidad(ruta) && separador(2));
}

std::string ConBarrasInversas(std::string_view ruta)
{
    std::string propia(ruta);
    std::replace(propia.begin(), propia.end(), '/', '\\');
    return propia;
}

}  // namespace model
