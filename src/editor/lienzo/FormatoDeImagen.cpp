// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/FormatoDeImagen.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "editor/lienzo/Metarchivo.h"

namespace editor {
namespace {

using namespace std::string_view_literals;

/// A whole number of n bytes; beyond the end they are 0.
std::uint64_t Entero(std::string_view bytes, std::size_t lugar, std::size_t n, bool mayorPrimero)
{
    std::uint64_t valor = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t este = lugar + (mayorPrimero ? i : n - 1 - i);
        valor = valor << 8U | (este < bytes.size() ? static_cast<unsigned char>(bytes[este]) : 0U);
    }
    return valor;
}

/// The marker of the end stands behind that of the first scan; one in a preview ahead of it is none.
bool JpegIncompleto(std::string_view bytes)
{
    constexpr std::size_t Marca = 2;
    for (std::size_t lugar = Marca; lugar + 2 * Marca <= bytes.size();) {
        const std::string_view marca = bytes.substr(lugar, Marca);
        if (marca == "\xFF\xDA"sv) return bytes.find("\xFF\xD9"sv, lugar) == std::string_view::npos;
        if (marca[0] != '\xFF') return false;  // damaged, not short: the reader tells
        lugar += marca[1] == '\xFF' ? 1 : Marca + Entero(bytes, lugar + Marca, 2, true);
    }
    return true;
}

bool PngIncompleto(std::string_view bytes)
{
    constexpr std::size_t Firma = 8, Contorno = 12;  // length, kind and check of a chunk
    for (std::size_t lugar = Firma; lugar + Contorno <= bytes.size();) {
        if (bytes.substr(lugar + 4, 4) == "IEND"sv) return false;
        lugar += Contorno + Entero(bytes, lugar, 4, true);
    }
    return true;
}

bool GifIncompleto(std::string_view bytes)
{
    const std::size_t ultimo = bytes.find_last_not_of('\0');
    return ultimo == std::string_view::npos || bytes[ultimo] != ';';
}

/// Of one that isn't compressed the size is known.
bool BmpIncompleto(std::string_view bytes)
{
    constexpr std::size_t CabezaLarga = 40, LugarDeLaCompresion = 30, ConMascaras = 3;
    const std::uint64_t compresion = Entero(bytes, LugarDeLaCompresion, 4, false);
    if (Entero(bytes, 14, 4, false) < CabezaLarga || (compresion != 0 && compresion != ConMascaras))
        return false;
    const auto ancho = std::int64_t{static_cast<std::int32_t>(Entero(bytes, 18, 4, false))};
    const auto alto = std::llabs(std::int64_t{static_cast<std::int32_t>(Entero(bytes, 22, 4, false))});
    const auto bits = static_cast<std::int64_t>(Entero(bytes, 28, 2, false));
    if (ancho < 1) return false;
    const std::int64_t renglon = (ancho * bits + 31) / 32 * 4;  // rows are filled up to four bytes
    const auto pixeles = static_cast<std::int64_t>(Entero(bytes, 10, 4, false));
    return static_cast<std::int64_t>(bytes.size()) < pixeles + renglon * alto;
}

}  // namespace

bool EstaIncompleta(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xD8\xFF"sv)) return JpegIncompleto(bytes);
    if (bytes.starts_with("\x89PNG\r\n\x1A\n"sv)) return PngIncompleto(bytes);
    if (bytes.starts_with("GIF8"sv)) return GifIncompleto(bytes);
    if (bytes.starts_with("BM"sv)) return BmpIncompleto(bytes);
    return EsMetarchivo(bytes) && !TieneFin(bytes);
}

bool EsMetarchivoMejorado(std::string_view bytes)
{
    constexpr std::size_t LugarDeLaFirma = 40;
    return bytes.starts_with("\x01\0\0\0"sv) && bytes.size() > LugarDeLaFirma &&
           bytes.substr(LugarDeLaFirma, 4) == " EMF"sv;
}

}  // namespace editor
