// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Busqueda.h"

#include <algorithm>
#include <array>

namespace calibration {
namespace {

constexpr auto Filas = std::to_array<MetodoDeBusqueda>({
    {"sce", "SCE-UA",
     "Duan, Sorooshian, Gupta (1992), Water Resources Research 28(4); (1994), Journal of Hydrology 158",
     "Busca en todo el rango por varios complejos de puntos; para 1.000 corridas o más.", BuscaSce},
    {"subplex", "Subplex desde varios inicios", "Rowan (1990), tesis, Universidad de Texas en Austin; NLopt",
     "Baja rápido desde los mejores puntos de un hipercubo latino; el más eficiente con pocos parámetros.",
     BuscaSubplex},
    {"dds", "DDS", "Tolson, Shoemaker (2007), Water Resources Research 43, W01413",
     "Mejora siempre el mejor conjunto; para presupuestos cortos. Usa un solo hilo.", BuscaDds},
});

}  // namespace

std::span<const MetodoDeBusqueda> MetodosDeBusqueda()
{
    return Filas;
}

const MetodoDeBusqueda* MetodoDeBusquedaDe(std::string_view clave)
{
    const auto fila =
        std::find_if(Filas.begin(), Filas.end(), [&](const MetodoDeBusqueda& m) { return m.clave == clave; });
    return fila == Filas.end() ? nullptr : &*fila;
}

const Evaluacion* Busqueda::Mejor() const
{
    const auto mejor =
        std::min_element(evaluaciones.begin(), evaluaciones.end(),
                         [](const Evaluacion& a, const Evaluacion& b) { return a.costo < b.costo; });
    return mejor == evaluaciones.end() ? nullptr : &*mejor;
}

}  // namespace calibration
