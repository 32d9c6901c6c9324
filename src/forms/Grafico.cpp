// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <algorithm>

namespace forms {

namespace {

constexpr std::int32_t MaxDivisiones = 1 << 14;

void PonDivisiones(EscalaCategorias& escala, std::int32_t divisiones)
{
    escala.automatica = false;
    escala.divisionesPorRotulo = divisiones;
    escala.divisionesPorMarca = divisiones / 2;
    escala.marcaDeRotulo = true;
}

}  // namespace

bool Serie::operator==(const Serie& otra) const
{
    const auto iguales = [](double a, double b) { return a == b || (EstaVacia(a) && EstaVacia(b)); };
    return tipo == otra.tipo && leyenda == otra.leyenda && ejeSecundario == otra.ejeSecundario &&
           std::equal(celdas.begin(), celdas.end(), otra.celdas.begin(), otra.celdas.end(), iguales);
}

void MasDivisiones(EscalaCategorias& escala)
{
    PonDivisiones(escala, std::min(escala.divisionesPorRotulo * 2, MaxDivisiones));
}

void MenosDivisiones(EscalaCategorias& escala)
{
    // A scale keeps one division at least, or doubling could never leave 0 again.
    PonDivisiones(escala, std::max(escala.divisionesPorRotulo / 2, 1));
}

}  // namespace forms
