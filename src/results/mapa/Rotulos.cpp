// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/Rotulos.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace results {

namespace {

/// A side of the anchor: -1 before it, 0 centred on it, 1 behind it, on each axis.
struct Lado {
    int x, y;
};

constexpr auto Lados =
    std::to_array<Lado>({{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, 1}, {1, -1}, {-1, 1}, {-1, -1}});

double Comienzo(double en, int lado, double aparte, double largo)
{
    return lado > 0 ? en + aparte : lado < 0 ? en - aparte - largo : en - largo / 2;
}

bool Libre(const Caja& c, const std::vector<Caja>& cajas)
{
    return std::none_of(cajas.begin(), cajas.end(), [&](const Caja& otra) { return otra.Toca(c); });
}

/// Those of some boxes that a label could meet, wherever it goes.
std::vector<Caja> Cerca(const RotuloPedido& p, const std::vector<Caja>& cajas)
{
    double ancho = p.aparte, alto = p.aparte;
    for (const Caja& tamano : p.tamanos) {
        ancho = std::max(ancho, p.aparte + tamano.ancho);
        alto = std::max(alto, p.aparte + tamano.alto);
    }
    const Caja alcance{p.en.x - ancho, p.en.y - alto, 2 * ancho, 2 * alto};
    std::vector<Caja> cerca;
    std::copy_if(cajas.begin(), cajas.end(), std::back_inserter(cerca),
                 [&](const Caja& c) { return c.Toca(alcance); });
    return cerca;
}

/// The first place of a label for which `vale` holds, in the order of its texts from number `desde` on and of
/// the sides.
template <typename Vale>
std::optional<RotuloPuesto> LugarDe(const RotuloPedido& p, std::size_t numero, std::size_t desde, Vale vale)
{
    for (std::size_t t = desde; t < p.tamanos.size(); ++t)
        for (const Lado lado : Lados) {
            const Caja& tamano = p.tamanos[t];
            const Caja caja{Comienzo(p.en.x, lado.x, p.aparte, tamano.ancho),
                            Comienzo(p.en.y, lado.y, p.aparte, tamano.alto), tamano.ancho, tamano.alto};
            if (vale(caja)) return RotuloPuesto{numero, t, caja};
        }
    return {};
}

}  // namespace

std::vector<RotuloPuesto> ColocaRotulos(const std::vector<RotuloPedido>& pedidos, const Caja& marco,
                                        const Estorbos& estorbos)
{
    std::vector<RotuloPuesto> puestos;
    std::vector<Caja> tomadas = estorbos.obstaculos;
    for (std::size_t n = 0; n < pedidos.size(); ++n) {
        const std::vector<Caja> obstaculos = Cerca(pedidos[n], tomadas);
        const std::vector<Caja> evitables = Cerca(pedidos[n], estorbos.evitables);
        const auto cabe = [&](const Caja& c) { return marco.Encierra(c) && Libre(c, obstaculos); };
        auto puesto =
            LugarDe(pedidos[n], n, 0, [&](const Caja& c) { return cabe(c) && Libre(c, evitables); });
        if (!puesto && !pedidos[n].tamanos.empty())
            puesto = LugarDe(pedidos[n], n, pedidos[n].tamanos.size() - 1, cabe);
        if (!puesto) continue;
        puestos.push_back(*puesto);
        tomadas.push_back(puesto->caja);
    }
    return puestos;
}

}  // namespace results
