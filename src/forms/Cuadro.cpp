// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cuadro.h"

#include <algorithm>
#include <utility>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {

namespace {

/// What a cell is sorted by: the number that it is, else its text; numbers stand before texts.
struct Clave {
    bool vacia = true, texto = false;
    double numero = 0;
    std::string celda{};
    bool operator<(const Clave& otra) const
    {
        if (texto != otra.texto) return otra.texto;
        return texto ? celda < otra.celda : numero < otra.numero;
    }
};

Clave ClaveDe(const Cuadro& c, std::size_t fila, std::size_t columna)
{
    if (columna == 0 && !c.rangos.empty()) return {false, false, static_cast<double>(c.rangos[fila]), {}};
    const std::string& celda = c.planilla.filas[fila][columna];
    if (celda.empty()) return {};
    if (EsNumero(c.planilla.columnas[columna], celda)) return {false, false, model::Val(celda), {}};
    return {false, true, 0, celda};
}

void Ordena(Cuadro& c)
{
    c.mostradas.clear();
    std::vector<Clave> claves(c.planilla.filas.size());
    const bool ordena = c.columnaOrden >= 0 && std::cmp_less(c.columnaOrden, c.planilla.columnas.size());
    for (std::size_t fila = 0; fila < c.planilla.filas.size(); ++fila) {
        if (c.ocultas.empty() || !c.ocultas[fila]) c.mostradas.push_back(fila);
        if (ordena) claves[fila] = ClaveDe(c, fila, static_cast<std::size_t>(c.columnaOrden));
    }
    if (!ordena) return;
    std::stable_sort(c.mostradas.begin(), c.mostradas.end(), [&](std::size_t a, std::size_t b) {
        if (claves[a].vacia || claves[b].vacia) return !claves[a].vacia && claves[b].vacia;
        return c.descendente ? claves[b] < claves[a] : claves[a] < claves[b];
    });
}

}  // namespace

void PonFilas(Cuadro& c, Planilla planilla, std::vector<int> rangos)
{
    c.planilla = std::move(planilla);
    c.rangos = std::move(rangos);
    c.ocultas.clear();
    Ordena(c);
}

void Filtra(Cuadro& c, const std::function<bool(std::size_t fila)>& pasa)
{
    c.ocultas.assign(c.planilla.filas.size(), false);
    for (std::size_t fila = 0; fila < c.ocultas.size(); ++fila)
        c.ocultas[fila] = !pasa(fila);
    Ordena(c);
}

void PulsaEncabezado(Cuadro& c, int columna)
{
    if (c.columnaOrden != columna) {
        c.columnaOrden = columna;
        c.descendente = false;
    } else if (!c.descendente) {
        c.descendente = true;
    } else {
        c.columnaOrden = -1;
        c.descendente = false;
    }
    Ordena(c);
}

Planilla ALaVista(const Cuadro& c)
{
    Planilla vista{c.planilla.titulos, c.planilla.columnas, {}};
    for (const std::size_t fila : c.mostradas)
        vista.filas.push_back(c.planilla.filas[fila]);
    return vista;
}

std::string FilasComoTexto(const Cuadro& c, const std::vector<std::size_t>& filas, std::size_t columnas)
{
    std::string texto;
    for (const std::size_t fila : filas) {
        const std::vector<std::string>& celdas = c.planilla.filas[fila];
        for (std::size_t k = 0; k < std::min(columnas, celdas.size()); ++k) {
            if (k > 0) texto += '\t';
            for (const char letra : celdas[k])
                if (letra != '\r') texto += letra == '\n' || letra == '\t' ? ' ' : letra;
        }
        texto += model::SaltoLinea;
    }
    return texto;
}

}  // namespace forms
