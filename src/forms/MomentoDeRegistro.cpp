// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MomentoDeRegistro.h"

#include <algorithm>
#include <string>

#include "forms/RenglonesDeRegistro.h"

namespace forms {
namespace {

constexpr std::int64_t SegundosPorMinuto = 60, SegundosPorHora = 3600;

bool HaySoloCifras(std::string_view texto)
{
    return !texto.empty() &&
           std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// A time without "Z" or "-03:00" at its end: it is taken as it was written where it was measured.
std::string_view SinZona(std::string_view texto)
{
    constexpr std::size_t MinimoHora = 4;  // "h:mm"
    if (texto.ends_with('Z')) return texto.substr(0, texto.size() - 1);
    const std::size_t signo = texto.find_last_of("+-");
    return signo == std::string_view::npos || signo < MinimoHora ? texto : texto.substr(0, signo);
}

/// Seconds since midnight of h:mm or h:mm:ss; 24:00 is the end of the day.
std::optional<std::int64_t> HoraLlana(std::string_view texto)
{
    constexpr std::string_view FinDelDia = "24:00";
    constexpr std::size_t LargoSegundos = 3;  // ":ss"
    std::int64_t segundos = 0;
    const std::size_t marca = texto.find(':');
    const std::size_t otra = marca == std::string_view::npos ? marca : texto.find(':', marca + 1);
    if (otra != std::string_view::npos) {
        const std::string_view fraccion = texto.substr(std::min(otra + LargoSegundos, texto.size()));
        const bool bienHecha = fraccion.empty() || ((fraccion[0] == '.' || fraccion[0] == ',') &&
                                                    HaySoloCifras(fraccion.substr(1)));
        // Seconds have the limits of minutes.
        const auto valor = HoraDeTexto(std::string("0").append(texto.substr(otra, LargoSegundos)));
        if (!valor || !bienHecha) return {};
        segundos = *valor;
        texto = texto.substr(0, otra);
    }
    if (texto == FinDelDia && segundos == 0) return MinutosPorDia * SegundosPorMinuto;
    const auto minutos = HoraDeTexto(texto);
    if (!minutos) return {};
    return *minutos * SegundosPorMinuto + segundos;
}

}  // namespace

std::optional<Instante> DiaDeRegistro(std::string_view texto)
{
    constexpr std::size_t CifrasAnno = 4, CifrasCortas = 2;
    std::string fecha(texto);
    std::replace(fecha.begin(), fecha.end(), '-', '/');
    const auto partes = CamposDeRenglon(fecha, '/');
    if (partes.size() != 3) return {};
    if (partes[0].size() == CifrasAnno)
        return FechaDeTexto(
            std::string(partes[2]).append("/").append(partes[1]).append("/").append(partes[0]));
    if (partes[2].size() == CifrasAnno) return FechaDeTexto(fecha);
    if (partes[2].size() != CifrasCortas) return {};
    const char* const siglo = partes[2] < "50" ? "20" : "19";
    return FechaDeTexto(
        std::string(partes[0]).append("/").append(partes[1]).append("/").append(siglo).append(partes[2]));
}

std::optional<std::int64_t> HoraDeRegistro(std::string_view texto)
{
    constexpr std::int64_t MedioDia = 12 * SegundosPorHora;
    texto = SinZona(texto);
    const bool esAm = texto.ends_with("am"), esPm = texto.ends_with("pm");
    if (!esAm && !esPm) return HoraLlana(texto);
    texto.remove_suffix(2);
    const auto segundos = HoraLlana(texto);
    if (!segundos || *segundos < SegundosPorHora || *segundos >= MedioDia + SegundosPorHora) return {};
    return *segundos % MedioDia + (esPm ? MedioDia : 0);
}

std::optional<std::int64_t> MomentoDeRegistro(std::string_view texto)
{
    const std::size_t corte = texto.find_first_of(" T");
    if (corte == std::string_view::npos) return {};
    const std::string_view resto = texto.substr(corte + 1);
    const auto dia = DiaDeRegistro(texto.substr(0, corte));
    const auto segundos = HoraDeRegistro(resto.substr(std::min(resto.find_first_not_of(' '), resto.size())));
    if (!dia || !segundos) return {};
    return *dia * SegundosPorMinuto + *segundos;
}

}  // namespace forms
