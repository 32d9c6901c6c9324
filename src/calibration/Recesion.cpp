// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Recesion.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <type_traits>

#include "model/Clases.h"
#include "model/Numeros.h"

namespace calibration {
namespace {

using study::Punto;

constexpr double BaseDelMotor = 2.7183;
constexpr double MinutosPorHora = 60;
constexpr int MinimoDeLecturas = 3;
constexpr double MayorQ0 = 1000, MayorK = 9999;  // that the editor takes [m3/s], [h]

AjusteDeRecesion SinAjuste(std::string_view motivo, int lecturas)
{
    AjusteDeRecesion a;
    a.lecturas = lecturas;
    a.motivo = motivo;
    return a;
}

/// Names of the components whose water comes to one, itself included.
std::set<std::string, std::less<>> AguasArriba(const model::Red& red, std::string_view componente)
{
    std::set<std::string, std::less<>> nombres{std::string(componente)};
    for (std::size_t antes = 0; antes != nombres.size();) {
        antes = nombres.size();
        model::CadaComponente(red, [&](const auto& c) {
            if (model::EsDestino(c.Cauce_aa) && nombres.contains(c.Cauce_aa))
                nombres.insert(model::Nombre(c));
        });
    }
    return nombres;
}

std::string AvisoDe(const model::Red& red, const std::set<std::string, std::less<>>& nombres)
{
    bool hayEmbalse = false;
    model::CadaReceptor(red, [&](const auto& c) {
        using T = std::remove_cvref_t<decltype(c)>;
        if constexpr (!std::is_same_v<T, model::Cauce>)
            hayEmbalse = hayEmbalse || nombres.contains(model::Nombre(c));
    });
    return hayEmbalse ? "Entre las unidades y el componente hay un embalse, que demora el caudal base: la "
                        "recesión observada también es suya."
                      : std::string{};
}

}  // namespace

AjusteDeRecesion AjustaRecesion(std::span<const Punto> caudales, double desde, double hasta)
{
    std::vector<Punto> rectos;  // hours, logarithm of the flow
    for (const Punto& p : caudales)
        if (p.minuto >= desde && p.minuto <= hasta && p.valor > 0)
            rectos.push_back({p.minuto / MinutosPorHora, std::log(p.valor)});
    const int n = static_cast<int>(rectos.size());
    if (n < MinimoDeLecturas)
        return SinAjuste("Hacen falta al menos tres lecturas mayores que 0 entre los dos tiempos.", n);
    double t = 0, y = 0;
    for (const Punto& p : rectos) {
        t += p.minuto / n;
        y += p.valor / n;
    }
    double tt = 0, ty = 0, yy = 0;
    for (const Punto& p : rectos) {
        tt += (p.minuto - t) * (p.minuto - t);
        ty += (p.minuto - t) * (p.valor - y);
        yy += (p.valor - y) * (p.valor - y);
    }
    const double pendiente = ty / tt;
    if (!(pendiente < 0)) return SinAjuste("Entre los dos tiempos el caudal no baja.", n);
    AjusteDeRecesion a;
    a.lecturas = n;
    a.K = -std::log(BaseDelMotor) / pendiente;
    a.Q0 = std::exp(y - pendiente * t);
    a.residuo = std::sqrt(std::max(0.0, yy - pendiente * ty) / n);
    a.r2 = ty * ty / (tt * yy);
    return a;
}

double CaudalDeRecesion(const AjusteDeRecesion& a, double minuto)
{
    return a.Q0 * std::pow(BaseDelMotor, -minuto / MinutosPorHora / a.K);
}

study::Ventana RamaDeRecesion(std::span<const Punto> caudales)
{
    if (caudales.empty()) return {};
    const auto pico = std::max_element(caudales.begin(), caudales.end(),
                                       [](const Punto& a, const Punto& b) { return a.valor < b.valor; });
    const double hasta = caudales.back().minuto, medio = (pico->minuto + hasta) / 2;
    const auto primera =
        std::find_if(pico, caudales.end(), [&](const Punto& p) { return p.minuto >= medio; });
    return {primera->minuto, hasta};
}

Reparto RepartoDe(const model::Red& red, std::string_view componente, const AjusteDeRecesion& ajuste)
{
    Reparto r;
    r.motivo = ajuste.motivo;
    if (!r.motivo.empty()) return r;
    const auto nombres = AguasArriba(red, componente);
    double total = 0;
    for (const model::UEH& u : red.ColUEHs)
        if (nombres.contains(u.NombreUEH) && u.Area > 0) {
            r.unidades.push_back({.unidad = u.NombreUEH, .area = u.Area});
            total += u.Area;
        }
    if (r.unidades.empty()) r.motivo = "A ese componente no llega ninguna unidad con área.";
    // A recession so slow, or so much flow, is none that the editor takes.
    if (ajuste.K > MayorK) r.motivo = "K pasa de 9999 h: entre los dos tiempos el caudal casi no baja.";
    if (ajuste.Q0 > MayorQ0)
        r.motivo =
            "Q0 pasa de 1000 m3/s: la recta, llevada al comienzo de la tormenta, no es la de un caudal base.";
    for (BaseDeUnidad& u : r.unidades) {
        u.Q0 = static_cast<float>(ajuste.Q0 * u.area / total);
        u.K = static_cast<float>(ajuste.K);
    }
    r.aviso = AvisoDe(red, nombres);
    return r;
}

int Aplica(model::Red& red, const Reparto& reparto)
{
    if (!reparto.motivo.empty()) return 0;
    int cambiadas = 0;
    for (const BaseDeUnidad& base : reparto.unidades)
        for (model::UEH& u : red.ColUEHs) {
            if (u.NombreUEH != base.unidad || (u.Q0Recesion == base.Q0 && u.KRecesion == base.K)) continue;
            u.Q0Recesion = base.Q0;
            u.KRecesion = base.K;
            ++cambiadas;
        }
    return cambiadas;
}

}  // namespace calibration
