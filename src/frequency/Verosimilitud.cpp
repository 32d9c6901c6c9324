// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Verosimilitud.h"

#include <nlopt.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <optional>

namespace frequency {
namespace {

using Libres = std::array<double, MaxParametros>;

constexpr double MaxLugar = 20;     // units of scale away from the start
constexpr double MaxEscala = 5;     // of the logarithm of the scale, likewise
constexpr double SinValor = 1e300;  // what a point outside the law costs
constexpr double ToleranciaGruesa = 1e-4, ToleranciaFina = 1e-9, JuntoAlLimite = 1e-6;
constexpr int MaxEvaluaciones = 3000;

/// The search in numbers near 1: places in units of scale from the start, scales by their logarithm.
struct Busqueda {
    const Ley& ley;
    const Muestra& m;
    Parametros origen;
    double unidad = 1;

    [[nodiscard]] Parametros De(const double* v) const
    {
        Parametros p = origen;
        for (std::size_t i = 0; i < ley.cuantos; ++i) {
            const Papel papel = ley.parametros[i].papel;
            if (papel == Papel::Lugar) p[i] = origen[i] + v[i] * unidad;
            if (papel == Papel::Escala) p[i] = origen[i] * std::exp(v[i]);
            if (papel == Papel::Forma) p[i] = v[i];
        }
        return p;
    }
};

double Costo(unsigned /*n*/, const double* v, double* /*gradiente*/, void* datos)
{
    const Busqueda& b = *static_cast<const Busqueda*>(datos);
    const double log = b.ley.logVerosimilitud(b.De(v), b.m.x);
    return std::isfinite(log) ? -log : SinValor;
}

/// Brings shapes inside their bounds, and then towards 0 until every value lies inside the law.
bool HazPosible(const Ley& ley, const Muestra& m, Parametros& p)
{
    constexpr int Veces = 40;
    constexpr double Dentro = 0.98;
    for (int vez = 0; vez < Veces; ++vez) {
        bool hayForma = false;
        for (std::size_t i = 0; i < ley.cuantos; ++i) {
            const Parametro& q = ley.parametros[i];
            if (q.papel != Papel::Forma) continue;
            hayForma = true;
            p[i] = std::fmin(std::fmax(p[i], q.menor * Dentro), q.mayor * Dentro);
        }
        if (std::isfinite(ley.logVerosimilitud(p, m.x))) return true;
        if (!hayForma) return false;
        for (std::size_t i = 0; i < ley.cuantos; ++i)
            if (ley.parametros[i].papel == Papel::Forma) p[i] /= 2;
    }
    return false;
}

using Gradiente = std::array<double, MaxParametros>;
using Hessiana = std::array<Gradiente, MaxParametros>;

/// Solves H x = g by elimination; false where H isn't positive definite.
bool Resuelve(Hessiana H, Gradiente& g, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i) {
        if (!(H[i][i] > 0)) return false;
        for (std::size_t j = i + 1; j < n; ++j) {
            const double factor = H[j][i] / H[i][i];
            for (std::size_t k = i; k < n; ++k)
                H[j][k] -= factor * H[i][k];
            g[j] -= factor * g[i];
        }
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t k = i + 1; k < n; ++k)
            g[i] -= H[i][k] * g[k];
        g[i] /= H[i][i];
    }
    return true;
}

/// From near the maximum to its last digits, where comparing likelihoods can't tell any more which is
/// greater: Newton's method by differences. False where it leads elsewhere.
bool Afina(Busqueda& b, Libres& v)
{
    constexpr double PasoDeHessiana = 2e-4, PasoDeGradiente = 6e-5, Lejos = 0.02;
    constexpr int Vueltas = 3;
    const std::size_t n = b.ley.cuantos;
    const auto costo = [&](std::size_t i, double di, std::size_t j, double dj) {
        Libres w = v;
        w[i] += di;
        w[j] += dj;
        return Costo(0, w.data(), nullptr, &b);
    };
    Hessiana H{};
    constexpr double h = PasoDeHessiana, d = PasoDeGradiente;
    const double centro = costo(0, 0, 0, 0);
    for (std::size_t i = 0; i < n; ++i) {
        H[i][i] = (costo(i, h, i, 0) - 2 * centro + costo(i, -h, i, 0)) / (h * h);
        for (std::size_t j = 0; j < i; ++j)
            H[i][j] = H[j][i] =
                (costo(i, h, j, h) - costo(i, h, j, -h) - costo(i, -h, j, h) + costo(i, -h, j, -h)) /
                (4 * h * h);
    }
    for (int vuelta = 0; vuelta < Vueltas; ++vuelta) {
        Gradiente g{};
        for (std::size_t i = 0; i < n; ++i)
            g[i] = (8 * (costo(i, d, i, 0) - costo(i, -d, i, 0)) -
                    (costo(i, 2 * d, i, 0) - costo(i, -2 * d, i, 0))) /
                   (12 * d);  // by five points: three leave the sixth digit of a far quantile in doubt
        if (!Resuelve(H, g, n)) return false;
        for (std::size_t i = 0; i < n; ++i) {
            if (!(std::abs(g[i]) < Lejos)) return false;
            v[i] -= g[i];
        }
    }
    return costo(0, 0, 0, 0) <= centro + 1e-9;
}

/// Away from every bound by more than a step of the differences.
bool Dentro(const Libres& v, const Libres& menor, const Libres& mayor, std::size_t n)
{
    constexpr double Margen = 2e-3;
    for (std::size_t i = 0; i < n; ++i)
        if (v[i] - menor[i] < Margen || mayor[i] - v[i] < Margen) return false;
    return true;
}

Estimado EnSuLugar(Estimado inicio, const std::string& porque)
{
    inicio.nota = porque + "; se da el ajuste por momentos L";
    return inicio;
}

using Buscador = std::unique_ptr<nlopt_opt_s, decltype(&nlopt_destroy)>;

/// NLopt over the free numbers `v`, which become the start, between bounds that it sets.
Buscador HazBuscador(Busqueda& b, Libres& v, Libres& menor, Libres& mayor)
{
    Buscador opt(nlopt_create(NLOPT_LN_NELDERMEAD, static_cast<unsigned>(b.ley.cuantos)), nlopt_destroy);
    Libres paso{};
    for (std::size_t i = 0; i < b.ley.cuantos; ++i) {
        const Parametro& q = b.ley.parametros[i];
        const bool forma = q.papel == Papel::Forma;
        const double alcance = q.papel == Papel::Lugar ? MaxLugar : MaxEscala;
        v[i] = forma ? b.origen[i] : 0;
        menor[i] = forma ? q.menor : -alcance;
        mayor[i] = forma ? q.mayor : alcance;
        paso[i] = forma ? (q.mayor - q.menor) / 20 : 0.1;
        if (forma && v[i] + paso[i] > mayor[i]) paso[i] = -paso[i];
        if (q.papel == Papel::Escala) b.unidad = b.origen[i];
    }
    nlopt_set_min_objective(opt.get(), Costo, &b);
    nlopt_set_lower_bounds(opt.get(), menor.data());
    nlopt_set_upper_bounds(opt.get(), mayor.data());
    nlopt_set_initial_step(opt.get(), paso.data());
    nlopt_set_maxeval(opt.get(), MaxEvaluaciones);
    return opt;
}

}  // namespace

Estimado MaximaVerosimilitud(const Ley& ley, const Muestra& m)
{
    const Estimado inicio = ley.porMomentosL(m);
    if (!inicio.p) return inicio;
    Busqueda b{ley, m, *inicio.p};
    if (!HazPosible(ley, m, b.origen))
        return EnSuLugar(inicio, "La búsqueda de la máxima verosimilitud no tiene de dónde empezar");

    Libres v{}, menor{}, mayor{};
    const Buscador opt = HazBuscador(b, v, menor, mayor);
    double costo = 0;
    nlopt_set_xtol_abs1(opt.get(), ToleranciaGruesa);
    nlopt_result fin = nlopt_optimize(opt.get(), v.data(), &costo);
    const auto afinado = [&]() -> std::optional<Parametros> {
        Libres fino = v;
        if (!Dentro(fino, menor, mayor, ley.cuantos) || !Afina(b, fino) ||
            !Dentro(fino, menor, mayor, ley.cuantos))
            return {};
        return b.De(fino.data());
    };
    if (fin > 0)
        if (const auto p = afinado()) return {*p, {}, {}};
    nlopt_set_xtol_abs1(opt.get(), ToleranciaFina);
    fin = nlopt_optimize(opt.get(), v.data(), &costo);
    if ((fin < 0 && fin != NLOPT_ROUNDOFF_LIMITED) || fin == NLOPT_MAXEVAL_REACHED || costo >= SinValor)
        return EnSuLugar(inicio, "La búsqueda de la máxima verosimilitud no llega a un máximo");
    for (std::size_t i = 0; i < ley.cuantos; ++i)
        if (v[i] - menor[i] < JuntoAlLimite || mayor[i] - v[i] < JuntoAlLimite)
            return EnSuLugar(inicio, "La máxima verosimilitud lleva " +
                                         std::string(ley.parametros[i].simbolo) + " a su límite");
    return {afinado().value_or(b.De(v.data())), {}, {}};
}

}  // namespace frequency
