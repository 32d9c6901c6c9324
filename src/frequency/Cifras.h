// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Numbers as the room's texts write them: UTF-8, a point as decimal sign.
namespace frequency {

/// The shortest text that gives the same double back; empty where there is none.
std::string Exacto(double x);
/// The same for JSON: null where there is none.
std::string EnJson(double x);
/// A number with so many decimals; "-" where there is none.
std::string Con(double x, int decimales);
/// A number with five figures that mean something; "-" where there is none.
std::string Cifras(double x);

/// A text in so many columns, to the right.
std::string Derecha(const std::string& texto, std::size_t ancho);

/// A formula as a label's rich text: what stands behind ^, a word, a number or a bracket, is raised; lone
/// letters are slanted.
std::string FormulaEnHtml(std::string_view formula);

/// A list as JSON's array of what f makes of each.
template <typename Lista, typename F>
std::string Arreglo(const Lista& lista, F f)
{
    std::string t = "[";
    for (const auto& x : lista)
        t += (t.size() > 1 ? "," : "") + f(x);
    return t + "]";
}

}  // namespace frequency
