// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Arregla.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numeric>
#include <tuple>
#include <type_traits>
#include <vector>

#include "engine/Muskingum.h"
#include "model/Avisos.h"
#include "model/Clases.h"

namespace checks {

namespace {

/// The places of the rows by rising height, without those that equal the one before in every column.
std::vector<std::size_t> Orden(const std::vector<std::vector<double>>& columnas)
{
    std::vector<std::size_t> orden(columnas.front().size());
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::stable_sort(orden.begin(), orden.end(),
                     [&](std::size_t a, std::size_t b) { return columnas.front()[a] < columnas.front()[b]; });
    const auto iguales = [&](std::size_t a, std::size_t b) {
        return std::all_of(columnas.begin(), columnas.end(), [&](const auto& c) { return c[a] == c[b]; });
    };
    orden.erase(std::unique(orden.begin(), orden.end(), iguales), orden.end());
    return orden;
}

/// Columns of one component's table, put in order together.
template <typename... Tablas>
bool OrdenaFilas(model::Arreglo<std::int16_t>& filas, int numero, Tablas&... tablas)
{
    const std::vector<std::vector<double>> columnas = {ColumnaDe(tablas, filas, numero)...};
    if (!SeOrdena(columnas)) return false;
    const auto orden = Orden(columnas);
    const auto pone = [&](auto& tabla) {
        const std::vector vieja(tabla.Fila(numero), tabla.Fila(numero) + 1 + filas(numero));
        for (int k = 1; k <= filas(numero); ++k)
            tabla(numero, k) = {};
        for (std::size_t k = 0; k < orden.size(); ++k)
            tabla(numero, static_cast<int>(k) + 1) = vieja[orden[k] + 1];
    };
    (pone(tablas), ...);
    filas(numero) = static_cast<std::int16_t>(orden.size());
    return true;
}

bool Sube(const std::vector<double>& c)
{
    return std::adjacent_find(c.begin(), c.end(), std::greater_equal<>{}) == c.end();
}

bool Ordena(model::Red& red, const model::Represa& r)
{
    const auto hace = [&](auto& filas, auto&... tablas) {
        return !Sube(ColumnaDe(std::get<0>(std::tie(tablas...)), filas, r.numRepresa)) &&
               OrdenaFilas(filas, r.numRepresa, tablas...);
    };
    const bool una = hace(red.RepresaFilasHAS, red.RepresaH, red.RepresaA, red.RepresaS);
    return hace(red.RepresaFilasHQ, red.RepresaQH, red.RepresaQQ) || una;
}
bool Ordena(model::Red& red, const model::Lago& l)
{
    return OrdenaFilas(red.LagoFilas, l.numLAGO, red.LagoH, red.LagoA, red.LagoS, red.LagoQ);
}

bool PoneAltura(const model::Red& red, auto& e)
{
    const auto alturas = AlturasConocidas(red, e);
    if (!alturas) return false;
    const auto H = static_cast<float>(std::clamp<double>(e.HInicialEmb, alturas->desde, alturas->hasta));
    const bool cambia = H != e.HInicialEmb;
    e.HInicialEmb = H;
    return cambia;
}

bool PoneMuskingum(float& K, float* x, std::int16_t PasoQ)
{
    const ParMuskingum par{K, x == nullptr ? 0 : *x};
    const auto cercano = MuskingumCercano(par, PasoQ, x != nullptr);
    if (!cercano || PasaMuskingum(par, PasoQ)) return false;
    K = cercano->K;
    if (x != nullptr) *x = cercano->x;
    return true;
}

/// The mends of a component, by kind.
bool Hace(model::Red& red, auto& c, Arreglo arreglo, std::int16_t PasoQ)
{
    using T = std::remove_cvref_t<decltype(c)>;
    constexpr bool EsCauce = std::is_same_v<T, model::Cauce>, EsUEH = std::is_same_v<T, model::UEH>;
    if (arreglo == Arreglo::SinDestino) {
        bool cambia = model::EsDestino(c.Cauce_aa);
        model::CadaReceptor(
            red, [&](const auto& otro) { cambia = cambia && !model::DrenaA(c, model::Nombre(otro)); });
        if (cambia) c.Cauce_aa = model::SinDestino;
        return cambia;
    }
    if constexpr (EsCauce) {
        return arreglo == Arreglo::MuskingumCercano && PoneMuskingum(c.Cauce_k_Musk, &c.Cauce_n_Musk, PasoQ);
    } else if constexpr (!EsUEH) {
        if (arreglo == Arreglo::OrdenaTabla) return Ordena(red, c);
        if (arreglo == Arreglo::AlturaInicial) return PoneAltura(red, c);
        if (arreglo != Arreglo::MuskingumCercano) return false;
        if constexpr (std::is_same_v<T, model::Lago>) return PoneMuskingum(c.Lago_k_Musk, nullptr, PasoQ);
        if constexpr (std::is_same_v<T, model::Represa>)
            return PoneMuskingum(c.Represa_k_Musk, nullptr, PasoQ);
    }
    return false;
}

std::optional<Alturas> Comunes(const std::vector<double>& H, const std::vector<double>& HQ)
{
    if (H.empty() || HQ.empty()) return {};
    const Alturas a{std::max(H.front(), HQ.front()), std::min(H.back(), HQ.back())};
    if (!(a.desde <= a.hasta)) return {};
    return a;
}

}  // namespace

bool Arregla(model::Red& red, const Hallazgo& hallazgo, std::int16_t PasoQ)
{
    bool hecho = false;
    model::CadaComponente(red, [&](auto& c) {
        if (!hecho && model::Nombre(c) == hallazgo.componente) hecho = Hace(red, c, hallazgo.arreglo, PasoQ);
    });
    return hecho;
}

bool PasaMuskingum(ParMuskingum par, std::int16_t PasoQ)
{
    bool sinFalla = true;
    engine::Muskingum m;
    const bool vale =
        m.Prepara(par.K, par.x, PasoQ, [&](auto cuerpo) { sinFalla = model::Sentencia(cuerpo) && sinFalla; });
    return vale && sinFalla;
}

bool EnVentana(ParMuskingum par, std::int16_t PasoQ)
{
    const double K = par.K, x = par.x;
    constexpr double Holgura = 1e-6;  // the float of 0.2 is above 0.2, and 25 min with it stand on the border
    return 2 * K * x <= PasoQ * (1 + Holgura) && PasoQ * (1 - Holgura) <= 2 * K * (1 - x);
}

std::optional<ParMuskingum> MuskingumCercano(ParMuskingum par, std::int16_t PasoQ, bool conX)
{
    const auto sirve = [&](ParMuskingum p) {
        return p.x >= 0 && EnVentana(p, PasoQ) && PasaMuskingum(p, PasoQ);
    };
    constexpr double PasoK = 0.01, PasoX = 0.001, Alejamiento = 0.2;
    constexpr int PasosX = 50, MaximoPasos = 20000;
    const double pasosK = std::min<double>(MaximoPasos, std::fabs(par.K) * Alejamiento / PasoK);
    for (int i = 1; i <= pasosK; ++i)
        for (const int signo : {1, -1}) {
            const ParMuskingum p{static_cast<float>(std::nearbyint(par.K / PasoK + signo * i) * PasoK),
                                 par.x};
            if (sirve(p)) return p;
        }
    for (int i = 1; conX && i <= PasosX; ++i)
        for (const int signo : {1, -1}) {
            const ParMuskingum p{par.K,
                                 static_cast<float>(std::nearbyint(par.x / PasoX + signo * i) * PasoX)};
            if (sirve(p)) return p;
        }
    return {};
}

bool SeOrdena(const std::vector<std::vector<double>>& columnas)
{
    if (columnas.empty() || columnas.front().empty()) return false;
    for (const auto& c : columnas)
        if (c.size() != columnas.front().size()) return false;
    const auto orden = Orden(columnas);
    for (std::size_t k = 1; k < orden.size(); ++k)
        for (std::size_t c = 0; c < columnas.size(); ++c) {
            const double antes = columnas[c][orden[k - 1]], ahora = columnas[c][orden[k]];
            if (c == 0 ? !(ahora > antes) : !(ahora >= antes)) return false;
        }
    return true;
}

std::optional<Alturas> AlturasConocidas(const model::Red& red, const model::Represa& r)
{
    const auto H = ColumnaDe(red.RepresaH, red.RepresaFilasHAS, r.numRepresa);
    return Comunes(H, r.optTabla ? ColumnaDe(red.RepresaQH, red.RepresaFilasHQ, r.numRepresa) : H);
}

std::optional<Alturas> AlturasConocidas(const model::Red& red, const model::Lago& l)
{
    const auto H = ColumnaDe(red.LagoH, red.LagoFilas, l.numLAGO);
    return Comunes(H, H);
}

}  // namespace checks
