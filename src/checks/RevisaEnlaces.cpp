// SPDX-License-Identifier: GPL-3.0-or-later
#include <map>
#include <set>
#include <string_view>
#include <type_traits>

#include "checks/Reglas.h"
#include "model/Clases.h"
#include "model/Resultados.h"

namespace checks {

namespace {

/// Destination by name of whatever can be drained into; of equal names the first, as in a run.
using Destinos = std::map<std::string_view, std::string_view>;

void NombresRepetidos(const model::Red& red, Hallazgos& l)
{
    std::map<std::string_view, int> veces;
    model::CadaComponente(red, [&](const auto& c) { ++veces[model::Nombre(c)]; });
    for (const auto& [nombre, n] : veces)
        if (n > 1)
            l.push_back({Gravedad::Error, 216, std::string(nombre),
                         "Varios componentes llevan el mismo nombre", std::to_string(n) + " veces",
                         "Dé a cada uno un nombre propio."});
}

/// Components from a name on down to the first that comes up again; empty where the way comes to an end.
std::vector<std::string_view> Circulo(const Destinos& destinos, std::string_view desde)
{
    std::vector<std::string_view> camino;
    for (std::string_view n = desde; destinos.contains(n) && camino.size() <= destinos.size();) {
        camino.push_back(n);
        n = destinos.at(n);
        if (n == desde) return camino;
    }
    return {};
}

void Circulos(const Destinos& destinos, Hallazgos& l)
{
    std::set<std::string_view> dichos;
    for (const auto& [nombre, destino] : destinos) {
        if (dichos.contains(nombre)) continue;
        const auto circulo = Circulo(destinos, nombre);
        if (circulo.empty()) continue;
        std::string lista;
        for (const std::string_view n : circulo) {
            dichos.insert(n);
            lista.append(n).append(", ");
        }
        l.push_back({Gravedad::Error, 208, std::string(nombre), "La red gira en círculo",
                     lista.append(nombre), "Corrija Drena a de alguno de ellos."});
    }
}

void SinAportes(const model::Red& red, Hallazgos& l)
{
    model::CadaReceptor(red, [&](const auto& c) {
        bool recibe = false;
        model::CadaComponente(
            red, [&](const auto& otro) { recibe = recibe || model::DrenaA(otro, model::Nombre(c)); });
        if (!recibe)
            l.push_back({Gravedad::Error, 209, model::Nombre(c), "Ningún componente drena en él", "",
                         "Enlace con él una UEH o un tramo, o bórrelo."});
    });
}

void Salidas(const model::Red& red, const Destinos& destinos, Hallazgos& l)
{
    int salidas = 0, componentes = 0;
    std::string lista;
    model::CadaComponente(red, [&](const auto& c) {
        ++componentes;
        const bool nombra = model::EsDestino(c.Cauce_aa);
        if (nombra && destinos.contains(c.Cauce_aa)) return;
        ++salidas;
        lista.append(lista.empty() ? "" : ", ").append(model::Nombre(c));
        if (nombra)
            l.push_back({Gravedad::Aviso, 217, model::Nombre(c),
                         "Drena a un componente que no está: cuenta como salida", c.Cauce_aa,
                         "Corrija Drena a.", Arreglo::SinDestino});
        else if (std::is_same_v<std::remove_cvref_t<decltype(c)>, model::UEH> && !destinos.empty())
            l.push_back({Gravedad::Aviso, 218, model::Nombre(c), "La UEH no drena a ningún componente", "",
                         "Enlácela con el tramo, el lago o la represa que la recibe."});
    });
    if (salidas == 0 && componentes > 0)
        l.push_back({Gravedad::Error, 207, "", "Ningún componente es salida de la cuenca", "",
                     "Deje Drena a en 0 en el componente final."});
    else if (salidas > model::MaxSalidas)
        l.push_back({Gravedad::Error, 219, "", "Hay más salidas de las que se anotan",
                     std::to_string(salidas) + ", hasta " + std::to_string(model::MaxSalidas),
                     "Revise Drena a: " + lista + "."});
    else if (salidas > 1)
        l.push_back({Gravedad::Nota, 219, "", "La cuenca tiene varias salidas", std::to_string(salidas),
                     "Si la salida es única, revise Drena a: " + lista + "."});
}

}  // namespace

void RevisaEnlaces(const model::Red& red, Hallazgos& l)
{
    Destinos destinos;
    model::CadaReceptor(red, [&](const auto& c) { destinos.try_emplace(model::Nombre(c), c.Cauce_aa); });
    NombresRepetidos(red, l);
    Salidas(red, destinos, l);
    Circulos(destinos, l);
    SinAportes(red, l);
}

}  // namespace checks
