// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/EscalaDeCaudal.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "model/Numeros.h"

namespace results {

namespace {

constexpr auto Redondos = std::to_array<double>({1, 2, 3, 4, 5, 6, 8, 10});

constexpr auto Hitos = std::to_array<ColorDeCaudal>(
    {{0xFD, 0xE7, 0x25}, {0x5E, 0xC9, 0x62}, {0x21, 0x91, 0x8C}, {0x3B, 0x52, 0x8B}, {0x44, 0x01, 0x54}});

std::uint8_t Entre(std::uint8_t a, std::uint8_t b, double parte)
{
    return static_cast<std::uint8_t>(std::lround(a + (double{1} * b - a) * parte));
}

}  // namespace

double EscalaDeCaudal::Parte(double q) const
{
    return q > 0 ? std::min(std::sqrt(q / tope), 1.0) : 0;
}

EscalaDeCaudal EscalaHasta(double mayor)
{
    if (!(mayor > 0) || !std::isfinite(mayor)) return {};
    const double potencia = std::pow(10, std::floor(std::log10(mayor)));
    // The logarithm of a round number may fall short of it by its last digit.
    for (const double redondo : Redondos)
        if (redondo * potencia >= mayor) return {redondo * potencia};
    return {Redondos.back() * potencia * 2};
}

ColorDeCaudal Color(double parte)
{
    constexpr auto Tramos = Hitos.size() - 1;
    const double lugar = std::clamp(parte, 0., 1.) * Tramos;
    const auto i = std::min(static_cast<std::size_t>(lugar), Tramos - 1);
    const double resto = lugar - static_cast<double>(i);
    const ColorDeCaudal &a = Hitos[i], &b = Hitos[i + 1];
    return {Entre(a.rojo, b.rojo, resto), Entre(a.verde, b.verde, resto), Entre(a.azul, b.azul, resto)};
}

double AnchoDeCauce(double parte)
{
    constexpr double Seco = 2, Lleno = 14;
    return Seco + (Lleno - Seco) * parte;
}

double LadoDeSimbolo(double parte)
{
    constexpr double Seco = 9, Lleno = 27;
    return Seco + (Lleno - Seco) * parte;
}

std::string TextoDeCaudal(double q)
{
    const double a = std::fabs(q);
    return model::NumeroATexto(model::Redondea(q, a >= 100 ? 0 : a >= 10 ? 1 : a >= 1 ? 2 : 3));
}

std::string TextoDeTiempo(int minutos)
{
    constexpr int Hora = 60, DosCifras = 10;
    const int resto = minutos % Hora;
    std::string texto = model::NumeroATexto(std::int32_t{minutos / Hora});
    return texto.append(resto < DosCifras ? ":0" : ":").append(model::NumeroATexto(std::int32_t{resto}));
}

}  // namespace results
