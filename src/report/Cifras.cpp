// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Cifras.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "checks/ResumenDeCorrida.h"
#include "model/Numeros.h"

namespace report {
namespace {

constexpr std::string_view Digitos = "0123456789";
constexpr std::size_t MenorConMiles = 5;

/// A word without the brackets and stops around it: where it begins, how long it is.
std::pair<std::size_t, std::size_t> Meollo(std::string_view palabra)
{
    const std::size_t desde = palabra.find_first_of(Digitos);
    if (desde == std::string_view::npos) return {0, 0};
    for (const char c : palabra.substr(0, desde))
        if (std::string_view("(+-=[\"").find(c) == std::string_view::npos) return {0, 0};
    std::size_t hasta = palabra.find_last_of(Digitos) + 1;
    for (const char c : palabra.substr(hasta))
        if (std::string_view(".,;:)%]\"").find(c) == std::string_view::npos) return {0, 0};
    return {desde, hasta - desde};
}

bool EsDeUnidad(std::string_view palabra)
{
    if (palabra.starts_with('[') || palabra.starts_with('(')) palabra.remove_prefix(1);
    return palabra.starts_with("m3") || palabra.starts_with("km2");
}

/// Digits, a point, digits.
bool EsDecimal(std::string_view t)
{
    const std::size_t punto = t.find('.');
    return punto != std::string_view::npos && t.find('.', punto + 1) == std::string_view::npos &&
           t.find_first_not_of("0123456789.") == std::string_view::npos;
}

}  // namespace

std::string Cifras::De(std::string_view numero) const
{
    std::string t(numero);
    const std::size_t desde = t.starts_with('-') ? 1 : 0;
    std::size_t enteros = std::min(t.find_first_not_of(Digitos, desde), t.size()) - desde;
    if (const std::size_t punto = t.find('.'); punto != std::string::npos) t[punto] = decimal;
    if (enteros >= MenorConMiles)
        for (; enteros > 3; enteros -= 3)
            t.insert(desde + enteros - 3, miles);
    return t;
}

std::string Cifras::Con(double x, int decimales, bool conCero) const
{
    return std::isfinite(x) ? De(checks::CifraDeResumen(x, decimales, conCero)) : "-";
}

std::string Cifras::Escrita(float x) const
{
    return De(model::NumeroATexto(x));
}

std::string Cifras::Corta(double x) const
{
    constexpr double Larga = 1e4, MuyLarga = 1e9;
    if (!std::isfinite(x)) return "-";
    if (std::fabs(x) >= Larga && std::fabs(x) < MuyLarga) return Con(x, 0);
    std::array<char, 32> t{};
    const auto fin = std::to_chars(t.data(), t.data() + t.size(), x, std::chars_format::general, 4);
    return De({t.data(), fin.ptr});
}

std::string Cifras::EnTexto(std::string_view frase) const
{
    std::string t;
    while (!frase.empty()) {
        const std::size_t blanco = frase.find(' ');
        const std::string_view palabra = frase.substr(0, blanco);
        const auto [desde, largo] = Meollo(palabra);
        if (largo > 0 && EsDecimal(palabra.substr(desde, largo))) {
            t.append(palabra.substr(0, desde)).append(De(palabra.substr(desde, largo)));
            t.append(palabra.substr(desde + largo));
        } else {
            t += EsDeUnidad(palabra) ? Unidad(palabra) : std::string(palabra);
        }
        if (blanco == std::string_view::npos) break;
        t += ' ';
        frase.remove_prefix(blanco + 1);
    }
    return t;
}

std::string Unidad(std::string_view unidad)
{
    std::string t(unidad);
    constexpr auto Elevadas =
        std::to_array<std::pair<std::string_view, std::string_view>>({{"m3", "m³"}, {"m2", "m²"}});
    for (const auto& [sin, con] : Elevadas)
        for (std::size_t i = t.find(sin); i != std::string::npos; i = t.find(sin, i + con.size()))
            t.replace(i, sin.size(), con);
    return t;
}

}  // namespace report
