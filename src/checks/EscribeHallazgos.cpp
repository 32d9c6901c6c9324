// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/EscribeHallazgos.h"

#include <algorithm>
#include <utility>

#include "checks/Json.h"

namespace checks {

namespace {

std::string Cuantos(std::span<const Hallazgo> hallazgos, Gravedad gravedad)
{
    const auto n = std::count_if(hallazgos.begin(), hallazgos.end(),
                                 [&](const Hallazgo& h) { return h.gravedad == gravedad; });
    const std::string nombre(Nombre(gravedad));
    if (n == 1) return "1 " + nombre;
    return std::to_string(n) + " " + nombre + (gravedad == Gravedad::Error ? "es" : "s");
}

std::string Objeto(const Hallazgo& h)
{
    std::string objeto = "{\"gravedad\": " + Citado(Nombre(h.gravedad));
    objeto += ", \"numero\": " + std::to_string(h.numero);
    objeto += ", \"componente\": " + Citado(h.componente);
    objeto += ", \"que\": " + Citado(h.que);
    objeto += ", \"cuanto\": " + Citado(h.cuanto);
    objeto += ", \"remedio\": " + Citado(h.remedio);
    return objeto + ", \"arreglo\": " + Citado(Nombre(h.arreglo)) + "}";
}

}  // namespace

std::string EnUnRenglon(std::string texto)
{
    for (char& c : texto)
        if (c == '\r' || c == '\n') c = ' ';
    return texto;
}

std::string Linea(const Hallazgo& h)
{
    std::string linea(Nombre(h.gravedad));
    linea += " " + std::to_string(h.numero);
    if (!h.componente.empty()) linea += " " + h.componente;
    linea += ": " + h.que;
    if (!h.cuanto.empty()) linea += " (" + h.cuanto + ")";
    linea += '.';
    if (!h.remedio.empty()) linea += " " + h.remedio;
    return EnUnRenglon(std::move(linea));
}

std::string Suma(std::span<const Hallazgo> hallazgos, std::string_view sinNada)
{
    if (hallazgos.empty()) return std::string(sinNada);
    return Cuantos(hallazgos, Gravedad::Error) + ", " + Cuantos(hallazgos, Gravedad::Aviso) + ", " +
           Cuantos(hallazgos, Gravedad::Nota);
}

std::string EnTexto(std::span<const Hallazgo> hallazgos, std::string_view sinNada)
{
    std::string texto;
    for (const Hallazgo& h : hallazgos)
        texto += Linea(h) + "\n";
    return texto + Suma(hallazgos, sinNada) + "\n";
}

std::string EnJson(std::span<const Hallazgo> hallazgos)
{
    std::string texto = "[";
    for (const Hallazgo& h : hallazgos)
        texto += (texto.size() > 1 ? ",\n " : "\n ") + Objeto(h);
    return texto + (hallazgos.empty() ? "]\n" : "\n]\n");
}

}  // namespace checks
