// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Rebose.h"

#include <algorithm>
#include <vector>

#include "checks/Balance.h"

namespace checks {

namespace {

/// A level pool never leaves its table: what its balance puts above the top is held there, unseen.
std::optional<Rebose> ReboseDePiscina(const Corrido& c, const ComponenteCorrido& comp, double alturaMinima)
{
    const EmbalseCorrido& e = *comp.embalse;
    const std::vector<double> S = AlmacenadoPorBalance(c, comp);
    const double tope = e.Almacenamiento(e.Tope()), area = e.Superficie(e.Tope());
    const double margen = alturaMinima * area + 1e-6 * tope;
    const auto primero = std::find_if(S.begin(), S.end(), [&](double s) { return s > tope + margen; });
    if (primero == S.end()) return {};
    const double volumen = *std::max_element(primero, S.end()) - tope;
    return Rebose{static_cast<int>(primero - S.begin()), volumen, area > 0 ? volumen / area : 0};
}

/// Runge-Kutta goes above the table and stands still there, without area nor outflow: all that enters is
/// lost.
std::optional<Rebose> ReboseDeRungeKutta(const Corrido& c, const ComponenteCorrido& comp, double alturaMinima)
{
    const EmbalseCorrido& e = *comp.embalse;
    const float* H = e.H.Fila(e.tablas.numero);
    const float* fin = H + c.UltimoPaso() + 1;
    const auto encima = [&](float h) { return h > e.Tope() + alturaMinima; };
    const float* primero = std::find_if(H, fin, encima);
    if (primero == fin) return {};
    const auto k = static_cast<std::size_t>(primero - H);
    const std::vector<double> S = AlmacenadoPorBalance(c, comp);
    const double mayor = *std::max_element(S.begin() + static_cast<std::ptrdiff_t>(k), S.end());
    return Rebose{static_cast<int>(k), mayor - S[k > 0 ? k - 1 : 0],
                  double{*std::max_element(primero, fin)} - e.Tope()};
}

}  // namespace

std::optional<Rebose> ReboseDe(const Corrido& c, const ComponenteCorrido& comp, double alturaMinima)
{
    if (comp.embalse->metodo == MetodoEmbalse::Piscina) return ReboseDePiscina(c, comp, alturaMinima);
    if (comp.embalse->metodo == MetodoEmbalse::RungeKutta) return ReboseDeRungeKutta(c, comp, alturaMinima);
    return {};
}

}  // namespace checks
