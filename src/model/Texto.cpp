// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Texto.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace model {

namespace {

/// Code points of the bytes 0x80 to 0x9F of Windows-1252; the unassigned 81, 8D, 8F, 90, 9D stand for
/// themselves. All other bytes are their own code points.
constexpr std::array<char16_t, 32> Altos = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

unsigned Byte(char c)
{
    return static_cast<unsigned char>(c);
}

/// Bytes at the head of a text that hold nothing but ASCII.
std::size_t LargoAscii(std::string_view texto)
{
    constexpr std::uint64_t BitsAltos = 0x8080808080808080;
    std::uint64_t palabra = 0;
    std::size_t n = 0;
    for (; n + sizeof palabra <= texto.size(); n += sizeof palabra) {
        std::memcpy(&palabra, texto.data() + n, sizeof palabra);
        if ((palabra & BitsAltos) != 0) break;
    }
    while (n < texto.size() && Byte(texto[n]) < 0x80)
        ++n;
    return n;
}

struct Caracter {
    char32_t codigo;
    std::size_t largo;  ///< bytes that it takes
};

constexpr char32_t NoEsUtf8 = 0xFFFFFFFF;

/// The character at the head of a text that isn't empty. A byte that begins no well-formed sequence (too
/// short, overlong, a surrogate, beyond U+10FFFF) is one character NoEsUtf8.
Caracter PrimerCaracter(std::string_view t)
{
    const unsigned primero = Byte(t[0]);
    if (primero < 0x80) return {static_cast<char32_t>(primero), 1};
    const std::size_t largo = primero >= 0xF0 ? 4 : primero >= 0xE0 ? 3 : 2;
    if (primero < 0xC2 || primero > 0xF4 || t.size() < largo) return {NoEsUtf8, 1};
    char32_t codigo = primero & (0xFFU >> (largo + 1));
    for (std::size_t i = 1; i < largo; ++i) {
        if ((Byte(t[i]) & 0xC0) != 0x80) return {NoEsUtf8, 1};
        codigo = (codigo << 6) | (Byte(t[i]) & 0x3F);
    }
    constexpr std::array<char32_t, 5> Minimo = {0, 0, 0x80, 0x800, 0x10000};
    const bool sustituto = codigo >= 0xD800 && codigo <= 0xDFFF;
    if (codigo < Minimo[largo] || sustituto || codigo > 0x10FFFF) return {NoEsUtf8, 1};
    return {codigo, largo};
}

char ByteDe(char32_t codigo)
{
    if (codigo < 0x80 || (codigo >= 0xA0 && codigo <= 0xFF)) return static_cast<char>(codigo);
    const auto lugar = std::find(Altos.begin(), Altos.end(), codigo);
    return lugar == Altos.end() ? '?' : static_cast<char>(0x80 + (lugar - Altos.begin()));
}

void AgregaUtf8(std::string& texto, unsigned codigo)
{
    if (codigo < 0x80) {
        texto += static_cast<char>(codigo);
    } else if (codigo < 0x800) {
        texto += static_cast<char>(0xC0 | (codigo >> 6));
        texto += static_cast<char>(0x80 | (codigo & 0x3F));
    } else {
        texto += static_cast<char>(0xE0 | (codigo >> 12));
        texto += static_cast<char>(0x80 | ((codigo >> 6) & 0x3F));
        texto += static_cast<char>(0x80 | (codigo & 0x3F));
    }
}

}  // namespace

std::string DeWindows1252(std::string_view bytes)
{
    const std::size_t ascii = LargoAscii(bytes);
    std::string texto(bytes.substr(0, ascii));
    if (ascii == bytes.size()) return texto;
    texto.reserve(bytes.size() + (bytes.size() - ascii) / 2);
    for (const char c : bytes.substr(ascii)) {
        const unsigned b = Byte(c);
        AgregaUtf8(texto, b >= 0x80 && b < 0xA0 ? Altos[b - 0x80] : b);
    }
    return texto;
}

std::string AWindows1252(std::string_view texto)
{
    std::string bytes;
    bytes.reserve(texto.size());
    while (!texto.empty()) {
        const std::size_t ascii = LargoAscii(texto);
        bytes += texto.substr(0, ascii);
        texto.remove_prefix(ascii);
        if (texto.empty()) break;
        const Caracter c = PrimerCaracter(texto);
        bytes += ByteDe(c.codigo);
        texto.remove_prefix(c.largo);
    }
    return bytes;
}

std::size_t CuentaCaracteres(std::string_view texto)
{
    std::size_t cuenta = LargoAscii(texto);
    texto.remove_prefix(cuenta);
    for (; !texto.empty(); ++cuenta)
        texto.remove_prefix(PrimerCaracter(texto).largo);
    return cuenta;
}

std::string PrimerosCaracteres(std::string_view texto, std::size_t n)
{
    std::size_t bytes = 0;
    for (; n > 0 && bytes < texto.size(); --n)
        bytes += PrimerCaracter(texto.substr(bytes)).largo;
    return std::string(texto.substr(0, bytes));
}

std::string AjustaIzquierda(std::string_view texto, std::size_t ancho)
{
    std::string ajustado(texto);
    const std::size_t largo = CuentaCaracteres(texto);
    if (largo < ancho) ajustado.append(ancho - largo, ' ');
    return ajustado;
}

std::string ComasAPuntos(std::string_view texto)
{
    std::string conPuntos(texto);
    std::replace(conPuntos.begin(), conPuntos.end(), ',', '.');
    return conPuntos;
}

}  // namespace model
