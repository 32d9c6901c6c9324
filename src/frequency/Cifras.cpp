// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Cifras.h"

#include <array>
#include <charconv>
#include <cmath>

#include "model/Texto.h"

namespace frequency {

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
