// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/RedDeCorrida.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace results {

using forms::Pixel;
using model::Red;

namespace {

// Size of the icons as the editor opens, of which it draws them 1.5 wide from their position on, or 2 wide
// around it [drawing units].
constexpr double TamIcono = 10;

template <typename T>
Pixel Medio(const T& c)
{
    constexpr double corrido = model::DeClase<T>::clase == model::Clase::Lago ? 0 : 0.75 * TamIcono;
    return {model::IconoX(c) + corrido, model::IconoY(c) + corrido};
}

/// Vertex of a reach, from 1 at its mouth, as far as it is in memory.
std::vector<Pixel> Vertices(const Red& red, int cauce)
{
    std::vector<Pixel> linea;
    if (cauce > red.NroVertices.Tope()) return linea;
    for (int j = 1; j <= red.NroVertices(cauce); ++j) {
        if (!red.XVertice.Alcanza(cauce, j) || !red.YVertice.Alcanza(cauce, j)) break;
        const Pixel p{red.XVertice(cauce, j), red.YVertice(cauce, j)};
        if (std::isfinite(p.x) && std::isfinite(p.y)) linea.push_back(p);
    }
    return linea;
}

std::vector<Pixel> Linea(const Red& red, const model::Cauce& c, int numero)
{
    std::vector<Pixel> linea = Vertices(red, numero);
    if (linea.empty() || !model::EsDestino(c.Cauce_aa)) return linea;
    if (const int abajo = model::NumeroDe<model::Cauce>(red, c.Cauce_aa)) {
        const std::vector<Pixel> otra = Vertices(red, abajo);
        if (!otra.empty()) linea.front() = otra.back();
    }
    return linea;
}

/// From the icon to where its link ends.
template <typename T>
std::vector<Pixel> Linea(const Red& red, const T& c, int /*numero*/)
{
    std::vector<Pixel> linea{Medio(c)};
    if (!std::isfinite(linea.front().x) || !std::isfinite(linea.front().y)) return {};
    const bool drena = model::EsDestino(c.Cauce_aa);
    const auto al = [&]<typename R>(const auto& receptores) {
        for (const R& receptor : receptores)
            if (linea.size() == 1 && drena && model::Nombre(receptor) == c.Cauce_aa)
                linea.push_back(Medio(receptor));
    };
    al.template operator()<model::Represa>(red.ColRepresas);
    al.template operator()<model::Lago>(red.ColLagos);
    const bool hayPunto = std::isfinite(c.XCauce) && std::isfinite(c.YCauce);
    if (linea.size() == 1 && hayPunto && (drena || c.XCauce != 0 || c.YCauce != 0))
        linea.push_back({c.XCauce, c.YCauce});
    return linea;
}

int FilaDe(const model::Resultados& r, std::string_view nombre)
{
    const int hasta = std::min<int>(r.NroComponentes, static_cast<int>(r.Secuencia.size()) - 1);
    for (int i = 1; i <= hasta; ++i)
        if (r.Secuencia[static_cast<std::size_t>(i)] == nombre) return i;
    return 0;
}

void PonCaudales(ComponenteDelMapa& c, const model::Resultados& r)
{
    const int fila = FilaDe(r, c.nombre);
    for (int i = 1; fila > 0 && i <= r.NroPasosQ && r.QSale.Alcanza(fila, i); ++i) {
        c.Q.push_back(r.QSale(fila, i));
        if (c.Q.back() > c.Pico()) c.pasoPico = i;
    }
}

Caja Extension(const std::vector<ComponenteDelMapa>& componentes)
{
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    bool hay = false;
    for (const ComponenteDelMapa& c : componentes)
        for (const Pixel p : c.linea) {
            x0 = hay ? std::min(x0, p.x) : p.x;
            y0 = hay ? std::min(y0, p.y) : p.y;
            x1 = hay ? std::max(x1, p.x) : p.x;
            y1 = hay ? std::max(y1, p.y) : p.y;
            hay = true;
        }
    return {x0, y0, x1 - x0, y1 - y0};
}

}  // namespace

double ComponenteDelMapa::Caudal(int paso) const
{
    const bool hay = paso >= 1 && static_cast<std::size_t>(paso) <= Q.size();
    return hay ? double{Q[static_cast<std::size_t>(paso) - 1]} : 0;
}

double RedDeCorrida::Mayor() const
{
    double mayor = 0;
    for (const ComponenteDelMapa& c : componentes)
        mayor = std::max(mayor, c.Pico());
    return mayor;
}

RedDeCorrida CopiaDeCorrida(const Red& red, const model::Pasos& pasos, const model::Resultados& r)
{
    RedDeCorrida copia;
    copia.pasos = r.NroPasosQ;
    copia.minutos = pasos.PasoQ;
    const auto agrega = [&]<typename T>() {
        int n = 0;
        for (const T& c : model::Todos<T>(red)) {
            ComponenteDelMapa nuevo{.clase = model::DeClase<T>::clase, .nombre = model::Nombre(c)};
            nuevo.linea = Linea(red, c, ++n);
            PonCaudales(nuevo, r);
            copia.componentes.push_back(std::move(nuevo));
        }
    };
    agrega.template operator()<model::Cauce>();
    agrega.template operator()<model::UEH>();
    agrega.template operator()<model::Lago>();
    agrega.template operator()<model::Represa>();
    copia.extension = Extension(copia.componentes);
    return copia;
}

}  // namespace results
