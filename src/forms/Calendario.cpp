// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Calendario.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>

#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {
namespace {

namespace crono = std::chrono;

constexpr crono::sys_days PrimerDia = crono::year{1} / crono::January / 1;
constexpr int UltimoAnno = 9999;
constexpr std::size_t CifrasDosLugares = 2;
constexpr std::size_t CifrasAnno = 4;

/// The whole number that a text of up to `cifras` digits is.
std::optional<int> Cifras(std::string_view texto, std::size_t cifras)
{
    int n = 0;
    if (texto.empty() || texto.size() > cifras) return {};
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    const bool entero = error == std::errc{} && fin == texto.data() + texto.size() && n >= 0;
    return entero && texto.front() != '-' ? std::optional(n) : std::nullopt;
}

std::string ConCeros(int n, std::size_t cifras)
{
    std::string texto = std::to_string(n);
    if (texto.size() < cifras) texto.insert(0, cifras - texto.size(), '0');
    return texto;
}

crono::minutes DesdeElComienzo(Instante t)
{
    return crono::minutes{std::max<Instante>(t, 0)};
}

}  // namespace

std::optional<Instante> ComienzoDelDia(int dia, int mes, int anno)
{
    if (dia < 1 || mes < 1 || anno < 1 || anno > UltimoAnno) return {};
    const crono::year_month_day fecha{crono::year{anno}, crono::month{static_cast<unsigned>(mes)},
                                      crono::day{static_cast<unsigned>(dia)}};
    if (!fecha.ok()) return {};
    return crono::duration_cast<crono::minutes>(crono::sys_days{fecha} - PrimerDia).count();
}

std::optional<Instante> FechaDeTexto(std::string_view texto)
{
    const std::size_t primera = texto.find('/');
    if (primera == std::string_view::npos) return {};
    const std::size_t segunda = texto.find('/', primera + 1);
    if (segunda == std::string_view::npos) return {};
    const auto dia = Cifras(texto.substr(0, primera), CifrasDosLugares);
    const auto mes = Cifras(texto.substr(primera + 1, segunda - primera - 1), CifrasDosLugares);
    const auto anno = Cifras(texto.substr(segunda + 1), CifrasAnno);
    if (!dia || !mes || !anno) return {};
    return ComienzoDelDia(*dia, *mes, *anno);
}

std::optional<Instante> HoraDeTexto(std::string_view texto)
{
    const std::size_t marca = texto.find(':');
    if (marca == std::string_view::npos) return {};
    const auto hora = Cifras(texto.substr(0, marca), CifrasDosLugares);
    const std::string_view resto = texto.substr(marca + 1);
    const auto minuto = Cifras(resto, CifrasDosLugares);
    const bool vale = hora && minuto && resto.size() == CifrasDosLugares &&
                      *hora < MinutosPorDia / MinutosPorHora && *minuto < MinutosPorHora;
    if (!vale) return {};
    return *hora * MinutosPorHora + *minuto;
}

Instante InstanteDeTextos(std::string_view fecha, std::string_view hora)
{
    const auto dia = FechaDeTexto(fecha);
    const auto minuto = HoraDeTexto(hora);
    if (!dia || !minuto) throw model::Falla{model::NumeroFalla::Tipos};
    return *dia + *minuto;
}

std::string TextoFecha(Instante t)
{
    const auto dias = crono::duration_cast<crono::days>(DesdeElComienzo(t));
    const crono::year_month_day fecha{PrimerDia + dias};
    return ConCeros(static_cast<int>(static_cast<unsigned>(fecha.day())), CifrasDosLugares) + '/' +
           ConCeros(static_cast<int>(static_cast<unsigned>(fecha.month())), CifrasDosLugares) + '/' +
           ConCeros(static_cast<int>(fecha.year()), CifrasAnno);
}

std::string TextoHora(Instante t)
{
    const auto delDia = static_cast<int>(DesdeElComienzo(t).count() % MinutosPorDia);
    return ConCeros(delDia / static_cast<int>(MinutosPorHora), CifrasDosLugares) + ':' +
           ConCeros(delDia % static_cast<int>(MinutosPorHora), CifrasDosLugares);
}

bool controlMiFecha(std::string& texto)
{
    constexpr std::size_t SinBarras = 8;
    constexpr std::size_t Largo = 10;
    if (model::CuentaCaracteres(texto) == SinBarras && texto.size() == SinBarras)
        texto.insert(4, 1, '/').insert(2, 1, '/');
    if (texto.empty() || texto == "0" || texto == "00/00/0000") texto = SinFecha;
    if (texto == FechaBorrada) return false;
    if (texto.size() != Largo || texto[2] != '/' || texto[5] != '/') return true;
    const double anno = model::Val(std::string_view(texto).substr(6));
    return anno < 100 || anno > 2099 || !FechaDeTexto(texto);
}

bool controlMiHora(std::string& texto)
{
    constexpr std::size_t SinDosPuntos = 4;
    constexpr std::size_t Largo = 5;
    if (texto.size() == SinDosPuntos) texto.insert(2, 1, ':');
    if (texto.empty() || texto == "0" || texto == "00/00" || texto == "24:00") texto = SinHora;
    return texto.size() != Largo || texto[2] != ':' || !HoraDeTexto(texto);
}

}  // namespace forms
