// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Ensayo.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace calibration {

double Ensayo::Mide(std::span<const double> punto)
{
    if (!Sigue()) return std::numeric_limits<double>::infinity();
    const double valor = costo(punto);
    dejado = std::isnan(valor);
    if (dejado) return std::numeric_limits<double>::infinity();
    hechas.push_back({{punto.begin(), punto.end()}, valor});
    return valor;
}

void Marcha::Reparte(std::size_t cuantas, std::size_t tope,
                     const std::function<void(std::size_t, Ensayo&)>& pieza)
{
    std::vector<std::vector<Evaluacion>> partes(cuantas);
    std::vector<char> dejadas(cuantas);
    const std::size_t base = Quedan() / cuantas, resto = Quedan() % cuantas;
    reparto(cuantas, [&](std::size_t k, const Costo& costo) {
        Ensayo ensayo(costo, std::min(tope, base + (k < resto ? 1 : 0)));
        pieza(k, ensayo);
        dejadas[k] = ensayo.Dejado() ? 1 : 0;
        partes[k] = std::move(ensayo.hechas);
    });
    for (auto& parte : partes)
        for (Evaluacion& e : parte)
            hecha.evaluaciones.push_back(std::move(e));
    dejada = dejada || std::find(dejadas.begin(), dejadas.end(), 1) != dejadas.end();
}

std::vector<Evaluacion> Marcha::Mide(const std::vector<std::vector<double>>& puntos)
{
    constexpr std::size_t Grupo = 8;  // points of a piece
    const std::size_t n = std::min(puntos.size(), Quedan());
    if (n == 0) return {};
    const auto desde = static_cast<std::ptrdiff_t>(hecha.evaluaciones.size());
    const std::size_t grupos = (n + Grupo - 1) / Grupo;
    Reparte(grupos, Grupo, [&](std::size_t k, Ensayo& ensayo) {
        for (std::size_t i = k; i < n; i += grupos)
            ensayo.Mide(puntos[i]);
    });
    return {hecha.evaluaciones.begin() + desde, hecha.evaluaciones.end()};
}

Busqueda Marcha::Fin(bool converge)
{
    hecha.fin = dejada     ? FinDeBusqueda::Cancelada
                : converge ? FinDeBusqueda::Converge
                           : FinDeBusqueda::Presupuesto;
    return std::move(hecha);
}

study::Sorteo SorteoDe(std::uint64_t semilla, std::size_t vuelta, std::size_t pieza)
{
    constexpr int Media = 32;
    return {semilla, (std::uint64_t{vuelta} << Media) | pieza};
}

std::size_t AlAzar(study::Sorteo& sorteo, std::size_t n)
{
    return std::min(static_cast<std::size_t>(sorteo.Uniforme() * static_cast<double>(n)), n - 1);
}

std::vector<std::vector<double>> HipercuboLatino(std::size_t cuantos, std::size_t dimensiones,
                                                 study::Sorteo& sorteo)
{
    std::vector<std::vector<double>> puntos(cuantos, std::vector<double>(dimensiones));
    std::vector<std::size_t> capas(cuantos);
    for (std::size_t d = 0; d < dimensiones; ++d) {
        std::iota(capas.begin(), capas.end(), std::size_t{0});
        for (std::size_t i = cuantos; i > 1; --i)
            std::swap(capas[i - 1], capas[AlAzar(sorteo, i)]);
        for (std::size_t i = 0; i < cuantos; ++i)
            puntos[i][d] = (static_cast<double>(capas[i]) + sorteo.Uniforme()) / static_cast<double>(cuantos);
    }
    return puntos;
}

void Ordena(std::vector<Evaluacion>& evaluaciones)
{
    std::stable_sort(evaluaciones.begin(), evaluaciones.end(),
                     [](const Evaluacion& a, const Evaluacion& b) { return a.costo < b.costo; });
}

}  // namespace calibration
