// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "calibration/Calibrado.h"
#include "runs/Corredor.h"
#include "study/Philox.h"

// Twins: floods that a network makes with known parameters, and the same network with others, from which they
// are to be found again.
namespace pruebas {

struct Gemelo {
    calibration::PedidoDeCalibracion pedido{};
    std::vector<double> verdad{};  ///< values of the parameters that made the floods
};

namespace gemelos {

inline model::UEH Unidad(int i, float area, float largo, const char* destino)
{
    return {.NombreUEH = "u-" + std::to_string(i),
            .Area = area,
            .LongitudMax = largo,
            .VelMedia = 0.8F,
            .numUEH = static_cast<std::int16_t>(i),
            .Cauce_aa = destino,
            .KostiakovA = 4,
            .KostiakovB = 0.7F,
            .RetensionZ = 12,
            .Q0Recesion = 0.4F,
            .KRecesion = 15,
            .KostiakovI = 0};
}

inline model::Cauce Tramo(int i, const char* destino)
{
    return {.numCauce = static_cast<std::int16_t>(i),
            .NombreCauce = "c-" + std::to_string(i),
            .Cauce_aa = destino,
            .Cauce_k_Musk = 30,
            .Cauce_n_Musk = 0};
}

inline runs::Lluvia Tormenta(float lamina, std::int16_t duracion, std::int16_t distribucion)
{
    runs::Lluvia l{.nombre = "Tormenta de " + std::to_string(duracion) + " min"};
    l.tormenta.PpTormenta = lamina;
    l.tormenta.DurTormenta = duracion;
    l.tormenta.DistriPp = distribucion;
    l.pasos = {.PasoPp = 5, .PasoQ = 5, .N0Dur = 300};
    return l;
}

inline study::Parametro Mueve(const char* que, const char* campo, double minimo, double maximo,
                              bool logaritmica = false, const char* modo = "valor")
{
    return {.componentes = que,
            .campo = campo,
            .modo = modo,
            .minimo = minimo,
            .maximo = maximo,
            .logaritmica = logaritmica};
}

/// Observes what the network does with the true values, each value off by a normal of `ruido` times itself.
inline void Observa(Gemelo& g, const std::vector<std::string>& sitios, double ruido)
{
    constexpr double DosPi = 6.283185307179586;
    const runs::Modelo& m = g.pedido.modelo;
    runs::Corredor corredor(m);
    study::Sorteo sorteo(20191231, 0);
    for (std::size_t i = 0; i < m.lluvias.size(); ++i) {
        const model::Resultados& r = corredor.Corre(g.verdad, i).Resultados;
        study::Evento evento{.nombre = m.lluvias[i].nombre};
        for (const std::string& sitio : sitios) {
            study::Observacion o{.componente = sitio};
            for (int fila = 1; fila <= r.NroComponentes; ++fila)
                for (int p = 0; r.Secuencia[static_cast<std::size_t>(fila)] == sitio && p <= r.NroPasosQ;
                     ++p) {
                    const double normal =
                        std::sqrt(-2 * std::log(sorteo.Uniforme())) * std::cos(DosPi * sorteo.Uniforme());
                    o.puntos.push_back({static_cast<double>(p) * m.lluvias[i].pasos.PasoQ,
                                        double{r.QSale(fila, p)} * (1 + ruido * normal)});
                }
            evento.observaciones.push_back(std::move(o));
        }
        g.pedido.eventos.push_back(std::move(evento));
    }
}

}  // namespace gemelos

/// One unit, one storm, its seven parameters.
inline Gemelo UnaUnidad(double ruido = 0)
{
    using namespace gemelos;
    Gemelo g;
    runs::Modelo& m = g.pedido.modelo;
    m.red.ColUEHs.Agrega(Unidad(1, 600, 4000, "0"));
    m.lluvias = {Tormenta(60, 90, 2)};
    m.parametros = {Mueve("u-1", "retencion_z", 0, 20),
                    Mueve("u-1", "kostiakov_a", 0.3, 10, true),
                    Mueve("u-1", "kostiakov_b", 0.2, 0.95),
                    Mueve("u-1", "kostiakov_i", 0, 100),
                    Mueve("u-1", "velocidad_media", 0.1, 3, true),
                    Mueve("u-1", "q0_recesion", 0, 2),
                    Mueve("u-1", "k_recesion", 1, 60, true)};
    g.verdad = {5, 2.2, 0.55, 20, 0.5, 0.7, 8};
    Observa(g, {"u-1"}, ruido);
    return g;
}

/// Three units and two reaches, two storms, seen at four places: twelve parameters, some of them common.
inline Gemelo VariasUnidades(double ruido = 0)
{
    using namespace gemelos;
    Gemelo g;
    runs::Modelo& m = g.pedido.modelo;
    m.red.ColUEHs.Agrega(Unidad(1, 400, 3000, "c-1"));
    m.red.ColUEHs.Agrega(Unidad(2, 250, 2500, "c-2"));
    m.red.ColUEHs.Agrega(Unidad(3, 500, 3500, "c-2"));
    m.red.ColCauces.Agrega(Tramo(1, "c-2"));
    m.red.ColCauces.Agrega(Tramo(2, "0"));
    m.lluvias = {Tormenta(60, 90, 2), Tormenta(45, 180, 3)};
    m.parametros = {Mueve("u-*", "retencion_z", 0.1, 1.5, false, "factor"),
                    Mueve("u-1", "kostiakov_a", 0.1, 2, true, "factor"),
                    Mueve("u-2", "kostiakov_a", 0.1, 2, true, "factor"),
                    Mueve("u-3", "kostiakov_a", 0.1, 2, true, "factor"),
                    Mueve("u-1", "velocidad_media", 0.1, 3, true),
                    Mueve("u-2", "velocidad_media", 0.1, 3, true),
                    Mueve("u-3", "velocidad_media", 0.1, 3, true),
                    Mueve("u-1", "q0_recesion", 0.1, 30, true),
                    Mueve("u-2", "q0_recesion", 0.1, 30, true),
                    Mueve("u-*", "k_recesion", 1, 60, true),
                    Mueve("c-1", "musk_k", 5, 90, true),
                    Mueve("c-2", "musk_k", 5, 90, true)};
    g.verdad = {0.5, 0.6, 0.5, 0.7, 0.5, 0.3, 0.7, 4, 2.5, 8, 18, 25};
    Observa(g, {"u-1", "u-2", "c-1", "c-2"}, ruido);
    return g;
}

}  // namespace pruebas
