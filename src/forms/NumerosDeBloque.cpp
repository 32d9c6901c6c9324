// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/NumerosDeBloque.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "forms/CampoNumerico.h"
#include "forms/ReglasGrilla.h"
#include "model/Numeros.h"

namespace forms {
namespace {

constexpr std::string_view Signos = ".,";
constexpr auto Lecturas =
    std::to_array({LecturaNumeros::PuntoDeMiles, LecturaNumeros::ComaDeMiles, LecturaNumeros::SinMiles});

constexpr std::string_view DosManeras = "Los números del bloque pueden leerse de dos maneras. ¿Separa ";
constexpr std::string_view ElPunto = "el punto";
constexpr std::string_view LaComa = "la coma";
constexpr std::string_view LosMiles = " los miles?\n";
constexpr std::string_view RenglonSi = "\nSí:  ";
constexpr std::string_view RenglonNo = "\nNo:  ";
constexpr std::string_view EntreEjemplos = ";   ";
constexpr std::string_view Es = " es ";

bool SonCifras(std::string_view texto)
{
    return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Whether pieces are groups of digits as thousands are written: one to three, then three each.
bool SonGrupos(std::vector<std::string_view> grupos)
{
    constexpr std::size_t Cifras = 3;
    std::string_view& primero = grupos.front();
    if (primero.starts_with('-') || primero.starts_with('+')) primero.remove_prefix(1);
    if (primero.empty() || primero.size() > Cifras || primero.front() == '0' || !SonCifras(primero))
        return false;
    return std::all_of(grupos.begin() + 1, grupos.end(),
                       [](std::string_view g) { return g.size() == Cifras && SonCifras(g); });
}

bool ConSignos(std::string_view texto)
{
    return texto.find_first_of(Signos) != std::string_view::npos;
}

}  // namespace

std::optional<std::string> LeeNumero(std::string_view texto, LecturaNumeros lectura)
{
    std::string numero(texto);
    if (lectura != LecturaNumeros::SinMiles) {
        const bool puntoDeMiles = lectura == LecturaNumeros::PuntoDeMiles;
        const char miles = puntoDeMiles ? '.' : ',';
        const auto decimal =
            static_cast<std::ptrdiff_t>(std::min(numero.find(puntoDeMiles ? ',' : '.'), numero.size()));
        const std::string_view entera(numero.data(), static_cast<std::size_t>(decimal));
        if (std::find(numero.begin() + decimal, numero.end(), miles) != numero.end()) return {};
        if (entera.find(miles) != std::string_view::npos && !SonGrupos(Pedazos(entera, miles))) return {};
        std::erase(numero, miles);
    }
    std::replace(numero.begin(), numero.end(), ',', '.');
    return NumeroDeCampo(numero) ? std::optional(std::move(numero)) : std::nullopt;
}

std::vector<LecturaNumeros> LecturasPosibles(std::span<const std::string_view> textos)
{
    std::vector<std::string_view> dudosos;
    for (const std::string_view texto : textos)
        if (ConSignos(texto) && std::any_of(Lecturas.begin(), Lecturas.end(), [&](LecturaNumeros l) {
                return LeeNumero(texto, l).has_value();
            }))
            dudosos.push_back(texto);
    const auto vale = [&](LecturaNumeros l) {
        return std::all_of(dudosos.begin(), dudosos.end(),
                           [l](std::string_view t) { return LeeNumero(t, l).has_value(); });
    };
    const auto hay = [&](char signo) {
        return std::any_of(dudosos.begin(), dudosos.end(),
                           [signo](std::string_view t) { return t.find(signo) != std::string_view::npos; });
    };
    const bool sinMiles = vale(LecturaNumeros::SinMiles);
    std::vector<LecturaNumeros> lecturas;
    if (hay('.') && vale(LecturaNumeros::PuntoDeMiles)) lecturas.push_back(LecturaNumeros::PuntoDeMiles);
    if (hay(',') && (hay('.') || !sinMiles) && vale(LecturaNumeros::ComaDeMiles))
        lecturas.push_back(LecturaNumeros::ComaDeMiles);
    // A spreadsheet has one decimal sign: both as such is for blocks that nothing else explains.
    const bool otraMas = lecturas.size() < 2 && sinMiles;
    if (otraMas || lecturas.empty()) lecturas.push_back(LecturaNumeros::SinMiles);
    return lecturas;
}

std::string PreguntaLectura(std::span<const std::string_view> textos,
                            std::span<const LecturaNumeros> lecturas)
{
    constexpr std::size_t Ejemplos = 2;
    const auto muestra = [](std::string_view texto, LecturaNumeros lectura) {
        const auto numero = LeeNumero(texto, lectura);
        return model::NumeroATexto(numero ? model::Val(*numero) : 0);
    };
    std::vector<std::string_view> ejemplos;
    const auto toma = [&](auto&& sirve) {
        for (const std::string_view texto : textos)
            if (ejemplos.size() < Ejemplos && ConSignos(texto) && LeeNumero(texto, lecturas[0]) &&
                sirve(texto) && std::find(ejemplos.begin(), ejemplos.end(), texto) == ejemplos.end())
                ejemplos.push_back(texto);
    };
    toma([&](std::string_view t) { return muestra(t, lecturas[0]) != muestra(t, lecturas[1]); });
    toma([](std::string_view) { return true; });

    std::string pregunta(DosManeras);
    pregunta.append(lecturas[0] == LecturaNumeros::PuntoDeMiles ? ElPunto : LaComa).append(LosMiles);
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
        pregunta += i == 0 ? RenglonSi : RenglonNo;
        for (std::size_t j = 0; j < ejemplos.size(); ++j)
            pregunta.append(j == 0 ? std::string_view{} : EntreEjemplos)
                .append(ejemplos[j])
                .append(Es)
                .append(muestra(ejemplos[j], lecturas[i]));
    }
    return pregunta;
}

}  // namespace forms
