// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/RenglonesDeRegistro.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "model/Texto.h"

namespace forms {
namespace {

// --- encodings ---

void AgregaUtf8(std::string& texto, std::uint32_t punto)
{
    const auto byte = [&](std::uint32_t b) { texto += static_cast<char>(b); };
    if (punto < 0x80U) return byte(punto);
    if (punto < 0x800U) {
        byte(0xC0U | punto >> 6U);
    } else if (punto < 0x10000U) {
        byte(0xE0U | punto >> 12U);
        byte(0x80U | (punto >> 6U & 0x3FU));
    } else {
        byte(0xF0U | punto >> 18U);
        byte(0x80U | (punto >> 12U & 0x3FU));
        byte(0x80U | (punto >> 6U & 0x3FU));
    }
    byte(0x80U | (punto & 0x3FU));
}

/// UTF-16 without its mark; `alto` is the place of the higher byte in each pair.
std::string DeUtf16(std::string_view bytes, std::size_t alto)
{
    const auto unidad = [&](std::size_t i) -> std::uint32_t {
        const auto byte = [&](std::size_t j) {
            return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[j]));
        };
        return byte(2 * i + alto) << 8U | byte(2 * i + 1 - alto);
    };
    const auto esAlta = [](std::uint32_t u) { return u >= 0xD800U && u < 0xDC00U; };
    const auto esBaja = [](std::uint32_t u) { return u >= 0xDC00U && u < 0xE000U; };
    std::string texto;
    const std::size_t n = bytes.size() / 2;
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint32_t u = unidad(i);
        if (esAlta(u) && i + 1 < n && esBaja(unidad(i + 1)))
            AgregaUtf8(texto, 0x10000U + ((u - 0xD800U) << 10U) + (unidad(++i) - 0xDC00U));
        else
            AgregaUtf8(texto, esAlta(u) || esBaja(u) ? std::uint32_t{'?'} : u);
    }
    return texto;
}

bool EsUtf8(std::string_view bytes)
{
    std::size_t faltan = 0;
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        const bool sigue = (b & 0xC0U) == 0x80U;
        if (sigue != (faltan > 0)) return false;
        if (sigue)
            --faltan;
        else if (b >= 0xC0U)
            faltan = b < 0xE0U ? 1 : b < 0xF0U ? 2 : 3;
    }
    return faltan == 0;
}

// --- AM, PM ---

bool EsLetra(char c, char minuscula)
{
    return c == minuscula || c == minuscula - 'a' + 'A';
}

bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

/// Goes over one of these characters, where it stands there.
void Salta(std::string_view texto, std::size_t& lugar, char c)
{
    if (lugar < texto.size() && texto[lugar] == c) ++lugar;
}

/// Where a "p. m." that begins at a place ends; the place itself where there is none.
std::size_t FinDelMeridiano(std::string_view texto, std::size_t desde)
{
    std::size_t i = std::min(texto.find_first_not_of(' ', desde), texto.size());
    if (i == texto.size() || !(EsLetra(texto[i], 'a') || EsLetra(texto[i], 'p'))) return desde;
    ++i;
    Salta(texto, i, '.');
    Salta(texto, i, ' ');
    if (i == texto.size() || !EsLetra(texto[i], 'm')) return desde;
    ++i;
    Salta(texto, i, '.');
    const bool acaba = i == texto.size() || texto.substr(i, 1).find_first_of(" \t,;\"") == 0;
    return acaba ? i : desde;
}

}  // namespace

std::string TextoDeBytes(std::string_view bytes)
{
    constexpr std::string_view MarcaUtf8 = "\xEF\xBB\xBF", MarcaBaja = "\xFF\xFE", MarcaAlta = "\xFE\xFF";
    if (bytes.starts_with(MarcaUtf8)) return std::string(bytes.substr(MarcaUtf8.size()));
    if (bytes.starts_with(MarcaBaja)) return DeUtf16(bytes.substr(MarcaBaja.size()), 1);
    if (bytes.starts_with(MarcaAlta)) return DeUtf16(bytes.substr(MarcaAlta.size()), 0);
    // A record begins with characters whose higher byte is 0.
    if (bytes.size() > 1 && (bytes[0] == 0) != (bytes[1] == 0)) return DeUtf16(bytes, bytes[0] == 0 ? 0 : 1);
    return EsUtf8(bytes) ? std::string(bytes) : model::DeWindows1252(bytes);
}

std::string_view SacaRenglon(std::string_view& texto)
{
    const std::size_t fin = std::min(texto.find_first_of("\r\n"), texto.size());
    const std::string_view renglon = texto.substr(0, fin);
    const bool esDoble = texto.substr(fin).starts_with("\r\n");
    texto.remove_prefix(std::min(fin + (esDoble ? 2 : 1), texto.size()));
    return renglon;
}

bool EsVacio(std::string_view renglon)
{
    return renglon.find_first_not_of(" \t,;\"") == std::string_view::npos;
}

std::string ConMeridianoPegado(std::string_view renglon)
{
    std::string llano(renglon);
    // Most lines hold nothing of it.
    if (llano.find_first_of("mM\xC2\xE2") == std::string::npos) return llano;
    for (const std::string_view blanco : {"\xC2\xA0", "\xE2\x80\xAF"})  // those that don't break a line
        for (std::size_t i = llano.find(blanco); i != std::string::npos; i = llano.find(blanco, i))
            llano.replace(i, blanco.size(), " ");
    std::string pegado;
    for (std::size_t i = 0; i < llano.size();) {
        const std::size_t fin = pegado.empty() || !EsCifra(pegado.back()) ? i : FinDelMeridiano(llano, i);
        if (fin == i) {
            pegado += llano[i++];
            continue;
        }
        pegado += llano.find_first_of("aA", i) < fin ? "am" : "pm";
        i = fin;
    }
    return pegado;
}

std::vector<std::string> CamposDeRenglon(std::string_view renglon, char separador)
{
    std::vector<std::string> campos(1);
    bool entreComillas = false, abierto = false;  // whether the field has begun
    for (std::size_t i = 0; i < renglon.size(); ++i) {
        const char c = renglon[i];
        const bool esComilla = c == '"' && (entreComillas || !abierto);
        if (esComilla && entreComillas && renglon.substr(i + 1).starts_with('"')) {
            campos.back() += renglon[++i];
        } else if (esComilla) {
            entreComillas = !entreComillas;
            abierto = true;
        } else if (c == separador && !entreComillas) {
            if (separador != ' ' || abierto) campos.emplace_back();
            abierto = false;
        } else if (abierto || (c != ' ' && c != '\t')) {
            campos.back() += c;
            abierto = true;
        }
    }
    if (separador == ' ' && !abierto && campos.size() > 1) campos.pop_back();
    for (std::string& campo : campos)
        campo.erase(campo.find_last_not_of(" \t") + 1);
    return campos;
}

}  // namespace forms
