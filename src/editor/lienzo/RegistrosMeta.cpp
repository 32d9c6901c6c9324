// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/RegistrosMeta.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "model/Texto.h"

namespace editor {

PlumaMeta LeePluma(const Palabras& p)
{
    constexpr auto Trazos = std::to_array({TrazoMeta::Continuo, TrazoMeta::Rayas, TrazoMeta::Puntos,
                                           TrazoMeta::RayaPunto, TrazoMeta::RayaPuntoPunto, TrazoMeta::Nada});
    const std::size_t estilo = p.Sin(0) & 0x0FU;
    return {estilo < Trazos.size() ? Trazos[estilo] : TrazoMeta::Continuo, std::abs(double(p.Con(2))),
            p.Color(6)};
}

PincelMeta LeePincel(const Palabras& p)
{
    constexpr std::uint16_t Nada = 1, Tramado = 2;
    const std::uint16_t estilo = p.Sin(0);
    const RellenoMeta relleno = estilo == Nada      ? RellenoMeta::Nada
                                : estilo == Tramado ? RellenoMeta::Tramado
                                                    : RellenoMeta::Lleno;
    return {relleno, std::min<int>(p.Sin(6), 5), p.Color(2)};
}

LetraMeta LeeLetra(const Palabras& p)
{
    constexpr std::size_t LugarDelNombre = 18, LargoDelNombre = 32;
    constexpr double DecimasPorGrado = 10;
    constexpr int PesoNegrita = 600;
    LetraMeta letra;
    const int alto = p.Con(0);
    if (alto != 0) letra.alto = std::abs(alto);
    letra.altoDeCelda = alto > 0;
    letra.giro = p.Con(4) / DecimasPorGrado;
    letra.negrita = p.Con(8) >= PesoNegrita;
    letra.cursiva = p.Byte(10) != 0;
    letra.subrayada = p.Byte(11) != 0;
    letra.tachada = p.Byte(12) != 0;
    const std::string_view nombre = p.Desde(LugarDelNombre).substr(0, LargoDelNombre);
    letra.familia = model::DeWindows1252(nombre.substr(0, nombre.find('\0')));
    return letra;
}

std::vector<PuntoMeta> LeePuntos(const Palabras& p, std::size_t lugar, std::size_t cuantos)
{
    std::vector<PuntoMeta> puntos;
    const std::size_t hay = p.Largo() > lugar ? (p.Largo() - lugar) / 4 : 0;
    puntos.reserve(std::min(cuantos, hay));
    for (std::size_t i = 0; i < std::min(cuantos, hay); ++i)
        puntos.push_back(p.PuntoXY(lugar + 4 * i));
    return puntos;
}

std::string ConCabezaDeArchivo(std::string_view dib)
{
    constexpr std::size_t LargoCabezaArchivo = 14;
    constexpr std::size_t CabezaCorta = 12, CabezaLarga = 40;
    const Palabras p(dib);
    const std::size_t cabeza = p.Larga(0);
    if (cabeza < CabezaLarga && cabeza != CabezaCorta) return {};
    if (cabeza > dib.size()) return {};
    const bool corta = cabeza == CabezaCorta;
    const auto ancho = corta ? std::int64_t{p.Sin(4)} : std::int64_t{static_cast<std::int32_t>(p.Larga(4))};
    const auto alto = corta ? std::int64_t{p.Sin(6)} : std::int64_t{static_cast<std::int32_t>(p.Larga(8))};
    const unsigned bits = corta ? p.Sin(10) : p.Sin(14);
    if (ancho < 1 || ancho > LadoMaximo || alto == 0 || std::llabs(alto) > LadoMaximo) return {};
    const std::size_t usados = corta ? 0 : p.Larga(32);
    const std::size_t colores = bits > 8 ? 0 : usados == 0 ? std::size_t{1} << bits : usados;
    constexpr std::size_t MascarasAparte = 3;
    constexpr std::uint32_t ConMascaras = 3;
    const bool mascaras = !corta && cabeza == CabezaLarga && p.Larga(16) == ConMascaras;
    const std::size_t paleta = colores * (corta ? 3 : 4) + (mascaras ? MascarasAparte * 4 : 0);
    if (colores > 256 || cabeza + paleta >= dib.size()) return {};

    std::string bmp = "BM";
    const auto agrega = [&](std::size_t n) {
        for (unsigned i = 0; i < 4; ++i)
            bmp += static_cast<char>((n >> (8U * i)) & 0xFFU);
    };
    agrega(LargoCabezaArchivo + dib.size());
    agrega(0);
    agrega(LargoCabezaArchivo + cabeza + paleta);
    return bmp.append(dib);
}

}  // namespace editor
