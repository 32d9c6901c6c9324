// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Analisis.h"

#include <algorithm>
#include <cmath>
#include <exception>

#include "model/Numeros.h"

namespace frequency {
namespace {

constexpr double Nivel = 0.05;

/// Without its bootstrap.
AjusteDeLey AjustaLey(const Ley& ley, const Analisis& a)
{
    AjusteDeLey f;
    f.ley = &ley;
    f.estimado = Ajusta(ley, a.muestra, a.metodo);
    if (!f.estimado.p) return f;
    const Parametros& p = *f.estimado.p;
    try {
        const Alcance alcance = AlcanceDe(f.estimado, a.muestra);
        f.p0 = alcance.p0;
        f.cuantiles = CuantilesDe(ley, p, f.p0);
        f.criterios = CriteriosDe(ley, p, a.muestra.x);
        f.bondad = BondadDe(ley, p, alcance.x, alcance.bajos);
    } catch (const std::exception&) {
        f.estimado = {{}, "Los cuantiles no se pueden calcular con los parámetros ajustados"};
    }
    return f;
}

/// Beyond the bounds of a shape a likelihood may be as great as one likes.
bool FormaHabitual(const AjusteDeLey& f)
{
    for (std::size_t i = 0; i < f.ley->cuantos; ++i) {
        const Parametro& q = f.ley->parametros[i];
        const double valor = (*f.estimado.p)[i];
        if (q.papel == Papel::Forma && (valor < q.menor || valor > q.mayor)) return false;
    }
    return true;
}

bool Rechazada(const AjusteDeLey& f)
{
    return f.remuestreo.Hay() && f.remuestreo.p.ad < Nivel;
}

bool SePuedeTomar(const AjusteDeLey& f)
{
    return f.estimado.p && !f.estimado.bajos && std::isfinite(f.criterios.aicc) && FormaHabitual(f) &&
           !Rechazada(f);
}

/// What is said of a law that isn't fitted to the values that the others are.
std::string SinComparar(const Analisis& a)
{
    std::string t;
    for (const AjusteDeLey& f : a.ajustes)
        if (f.estimado.p && f.estimado.bajos)
            t += " " + std::string(f.ley->nombre) + " deja aparte valores bajos: su AICc no se compara.";
    return t;
}

std::string ConDosDecimales(double x)
{
    return model::NumeroATexto(model::Redondea(x, 2));
}

}  // namespace

Recomendacion Recomienda(const Analisis& a)
{
    const AjusteDeLey* mejor = nullptr;
    const AjusteDeLey* segunda = nullptr;
    int rechazadas = 0, tomables = 0;
    for (const AjusteDeLey& f : a.ajustes) {
        if (f.estimado.p && Rechazada(f)) ++rechazadas;
        if (!SePuedeTomar(f)) continue;
        ++tomables;
        if (mejor == nullptr || f.criterios.aicc < mejor->criterios.aicc) {
            segunda = mejor;
            mejor = &f;
        } else if (segunda == nullptr || f.criterios.aicc < segunda->criterios.aicc) {
            segunda = &f;
        }
    }
    Recomendacion r;
    if (mejor == nullptr) {
        r.motivo =
            "Ninguna ley se puede recomendar: Anderson-Darling rechaza " + std::to_string(rechazadas) +
            " y las demás no contienen la muestra, no tienen ajuste o tienen una forma que no es de lluvias.";
        r.motivo += SinComparar(a);
        return r;
    }
    r.ley = mejor->ley;
    r.motivo = std::string(mejor->ley->nombre) + ": el menor AICc, " +
               ConDosDecimales(mejor->criterios.aicc) + ", de las " + std::to_string(tomables) +
               " leyes que contienen la muestra con una forma habitual" +
               (a.pedido.cuantas > 0 ? " y Anderson-Darling no rechaza al 5 %." : ".");
    if (segunda != nullptr && segunda->criterios.aicc - mejor->criterios.aicc < 2)
        r.motivo += " " + std::string(segunda->ley->nombre) + " es casi igual de buena (AICc " +
                    ConDosDecimales(segunda->criterios.aicc) + ").";
    r.motivo += SinComparar(a);
    if (std::any_of(a.pruebas.begin(), a.pruebas.end(), [](const Prueba& p) { return p.rechaza; }))
        r.motivo += " Antes atienda lo que dicen las pruebas de la muestra.";
    return r;
}

double CuantilDe(const AjusteDeLey& ajuste, double recurrencia)
{
    return Cuantil(*ajuste.ley, *ajuste.estimado.p, ajuste.p0, 1 - 1 / recurrencia);
}

std::optional<Analisis> Analiza(const Serie& serie, const PedidoDeAnalisis& pedido, const Avance& avance)
{
    Analisis a;
    a.serie = serie;
    a.metodo = pedido.metodo;
    a.pedido = pedido.remuestreo;
    a.posicion = pedido.posicion;
    std::vector<double> x;
    for (const Maximo& m : serie.maximos)
        x.push_back(m.valor);
    a.muestra = HazMuestra(std::move(x));
    a.muestra.tratamiento = pedido.tratamiento;
    a.pruebas = PruebasDe(serie.maximos);
    const auto todas = Leyes();
    const std::vector<const Ley*> leyes =
        pedido.leyes.empty() ? std::vector<const Ley*>(todas.begin(), todas.end()) : pedido.leyes;
    const auto porLey = static_cast<std::size_t>(std::max(1, a.pedido.cuantas));
    for (std::size_t i = 0; i < leyes.size(); ++i) {
        const auto deTodas = [&](std::size_t hechos, std::size_t /*total*/) {
            return !avance || avance(i * porLey + hechos, leyes.size() * porLey);
        };
        if (!deTodas(0, porLey)) return {};
        AjusteDeLey& f = a.ajustes.emplace_back(AjustaLey(*leyes[i], a));
        if (!f.estimado.p || a.pedido.cuantas <= 0) continue;
        const auto r = Remuestrea(*leyes[i], f.estimado, a.metodo, a.muestra, a.pedido, deTodas);
        if (!r) return {};
        f.remuestreo = *r;
    }
    a.recomendacion = Recomienda(a);
    return a;
}

}  // namespace frequency
