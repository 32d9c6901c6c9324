// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Cifras.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "model/Texto.h"

namespace frequency {
namespace {

bool EsDePalabra(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           (static_cast<unsigned char>(c) & 0x80U) != 0;
}

/// Length of a word or of a bracket to its end.
std::size_t LargoDeTrozo(std::string_view t)
{
    std::size_t i = 0;
    if (!t.starts_with('(')) {
        while (i < t.size() && EsDePalabra(t[i]))
            ++i;
        return i;
    }
    int abiertos = 0;
    do {
        if (t[i] == '(') ++abiertos;
        if (t[i] == ')') --abiertos;
        ++i;
    } while (abiertos > 0 && i < t.size());
    return i;
}

/// Lone letters slanted, what rich text takes for a mark written out.
std::string ConLetras(std::string_view formula)
{
    std::string t;
    for (std::size_t i = 0; i < formula.size();) {
        const std::size_t largo = formula[i] == '(' ? 0 : LargoDeTrozo(formula.substr(i));
        const std::string trozo(formula.substr(i, std::max<std::size_t>(largo, 1)));
        const bool letra = largo == 1 && (trozo[0] < '0' || trozo[0] > '9') && trozo[0] != '.';
        if (letra)
            t += "<i>" + trozo + "</i>";
        else
            t += trozo == "<" ? "&lt;" : trozo == ">" ? "&gt;" : trozo == "&" ? "&amp;" : trozo;
        i += trozo.size();
    }
    return t;
}

}  // namespace

std::string FormulaEnHtml(std::string_view formula)
{
    std::string t;
    for (std::size_t i = 0; i < formula.size();) {
        const std::size_t alza = std::min(formula.find('^', i), formula.size());
        t += ConLetras(formula.substr(i, alza - i));
        if (alza == formula.size()) break;
        std::string_view exponente = formula.substr(alza + 1);
        exponente = exponente.substr(0, LargoDeTrozo(exponente));
        i = alza + 1 + exponente.size();
        if (exponente.starts_with('(')) exponente = exponente.substr(1, exponente.size() - 2);
        t += "<sup>" + ConLetras(exponente) + "</sup>";
    }
    return t;
}

std::string Exacto(double x)
{
    if (!std::isfinite(x)) return {};
    std::array<char, 32> lugar{};
    return {lugar.data(), std::to_chars(lugar.data(), lugar.data() + lugar.size(), x).ptr};
}

std::string EnJson(double x)
{
    const std::string t = Exacto(x);
    return t.empty() ? "null" : t;
}

std::string Con(double x, int decimales)
{
    if (!std::isfinite(x)) return "-";
    std::array<char, 400> lugar{};
    const auto fin =
        std::to_chars(lugar.data(), lugar.data() + lugar.size(), x, std::chars_format::fixed, decimales);
    return {lugar.data(), fin.ptr};
}

std::string Cifras(double x)
{
    if (!std::isfinite(x)) return "-";
    std::array<char, 32> lugar{};
    const auto fin =
        std::to_chars(lugar.data(), lugar.data() + lugar.size(), x, std::chars_format::general, 5);
    return {lugar.data(), fin.ptr};
}

std::string Derecha(const std::string& texto, std::size_t ancho)
{
    const std::size_t largo = model::CuentaCaracteres(texto);
    return largo < ancho ? std::string(ancho - largo, ' ') + texto : texto;
}

}  // namespace frequency
