// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/Rotulos.h"

#include <algorithm>
#include <array>
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

}  // namespace

std::vector<RotuloPuesto> ColocaRotulos(const std::vector<RotuloPedido>& pedidos, const Caja& marco,
                                        const Estorbos& estorbos)
{
    std::vector<RotuloPuesto> puestos;
    std::vector<Caja> tomadas = estorbos.obstaculos;
    const auto lugarDe = [&](std::size_t n, bool evita) -> std::optional<RotuloPuesto> {
        const RotuloPedido& p = pedidos[n];
        for (std::size_t t = 0; t < p.tamanos.size(); ++t)
            for (const Lado lado : Lados) {
                const Caja& tamano = p.tamanos[t];
                const Caja caja{Comienzo(p.en.x, lado.x, p.aparte, tamano.ancho),
                                Comienzo(p.en.y, lado.y, p.aparte, tamano.alto), tamano.ancho, tamano.alto};
                if (marco.Encierra(caja) && Libre(caja, tomadas) &&
                    (!evita || Libre(caja, estorbos.evitables)))
                    return RotuloPuesto{n, t, caja};
            }
        return {};
    };
    for (std::size_t n = 0; n < pedidos.size(); ++n) {
        auto puesto = lugarDe(n, true);
        if (!puesto) puesto = lugarDe(n, false);
        if (!puesto) continue;
        puestos.push_back(*puesto);
        tomadas.push_back(puesto->caja);
    }
    return puestos;
}

}  // namespace results
