// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Marcado.h"

#include <cstddef>
#include <cstdint>

namespace report {
namespace {

constexpr std::string_view Ajeno = "\xEF\xBF\xBD";  // U+FFFD

unsigned char Byte(std::string_view t, std::size_t i)
{
    return i < t.size() ? static_cast<unsigned char>(t[i]) : 0;
}

/// Length of the character of UTF-8 that a text begins with; 0 where it begins with none, or with one that
/// XML can't hold.
std::size_t LargoDeCaracter(std::string_view t)
{
    const unsigned char a = Byte(t, 0), b = Byte(t, 1);
    const auto sigue = [&](std::size_t i) { return (Byte(t, i) & 0xC0U) == 0x80; };
    if (a < 0x80) return 1;
    if (a >= 0xC2 && a < 0xE0) return sigue(1) ? 2 : 0;
    if (a >= 0xE0 && a < 0xF0) {
        const bool larga = a == 0xE0 && b < 0xA0, subrogada = a == 0xED && b >= 0xA0;
        const bool fuera = a == 0xEF && b == 0xBF && Byte(t, 2) >= 0xBE;
        return sigue(1) && sigue(2) && !larga && !subrogada && !fuera ? 3 : 0;
    }
    if (a < 0xF0 || a > 0xF4 || (a == 0xF0 && b < 0x90) || (a == 0xF4 && b >= 0x90)) return 0;
    return sigue(1) && sigue(2) && sigue(3) ? 4 : 0;
}

}  // namespace

std::string Escapado(std::string_view texto)
{
    std::string t;
    while (!texto.empty()) {
        const std::size_t largo = LargoDeCaracter(texto);
        const char c = texto.front();
        const bool deControl = largo == 1 && (static_cast<unsigned char>(c) < 0x20 || c == 0x7F);
        if (largo == 0)
            t += Ajeno;
        else if (deControl)
            t += c == '\n' || c == '\t' ? " " : "";
        else if (c == '&')
            t += "&amp;";
        else if (c == '<')
            t += "&lt;";
        else if (c == '>')
            t += "&gt;";
        else if (c == '"')
            t += "&quot;";
        else if (c == '\'')
            t += "&#39;";
        else
            t += texto.substr(0, largo);
        texto.remove_prefix(largo == 0 ? 1 : largo);
    }
    return t;
}

bool EsUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t largo = LargoDeCaracter(bytes);
        if (largo == 0) return false;
        bytes.remove_prefix(largo);
    }
    return true;
}

std::string Base64(std::string_view bytes)
{
    constexpr std::string_view Letras = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string t;
    t.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::uint32_t tres = static_cast<std::uint32_t>(Byte(bytes, i) << 16U) |
                                   static_cast<std::uint32_t>(Byte(bytes, i + 1) << 8U) | Byte(bytes, i + 2);
        for (std::size_t k = 0; k < 4; ++k)
            t += i + k <= bytes.size() ? Letras[(tres >> (18 - 6 * k)) & 63U] : '=';
    }
    return t;
}

}  // namespace report
