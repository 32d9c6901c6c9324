// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Diagramas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "frequency/Especiales.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

/// How the shape of a law runs through its curve, the other parameters standing still.
struct Recorrido {
    const Ley* ley;
    double desde, hasta;  ///< the same: the law has no shape
    Parametros (*p)(double forma);
};

constexpr std::array<Recorrido, 6> Recorridos{{
    {&Gumbel, 0, 0,
     [](double) {
         return Parametros{0, 1, 0};
     }},
    {&Gev, 0.6, -0.5,
     [](double k) {
         return Parametros{0, 1, k};
     }},
    {&Exponencial, 0, 0,
     [](double) {
         return Parametros{0, 1, 0};
     }},
    {&LogNormal3, 0.001, 1.2,
     [](double s) {
         return Parametros{0, 0, s};
     }},
    {&PearsonIII, -1, 3.5,
     [](double g) {
         return Parametros{0, 1, g};
     }},
    {&SqrtEtmax, 40, 1.6,
     [](double lnK) {
         return Parametros{1, std::exp(lnK), 0};
     }},
}};

/// 90 % of a normal cloud of two coordinates lies within so many deviations.
const double RadioDeNoventa = std::sqrt(-2 * std::log(0.1));

std::vector<Punto> ElipseDe(const std::vector<Punto>& nube)
{
    constexpr int Vertices = 72;
    const auto n = static_cast<double>(nube.size());
    Punto m;
    double xx = 0, xy = 0, yy = 0;
    for (const Punto& p : nube)
        m = {m.x + p.x / n, m.y + p.y / n};
    for (const Punto& p : nube) {
        xx += (p.x - m.x) * (p.x - m.x) / (n - 1);
        xy += (p.x - m.x) * (p.y - m.y) / (n - 1);
        yy += (p.y - m.y) * (p.y - m.y) / (n - 1);
    }
    const double a = std::sqrt(xx), b = a > 0 ? xy / a : 0, c = std::sqrt(std::fmax(0, yy - b * b));
    std::vector<Punto> elipse;
    for (int i = 0; i <= Vertices; ++i) {
        const double giro = 2 * std::numbers::pi * i / Vertices;
        const double u = RadioDeNoventa * std::cos(giro), v = RadioDeNoventa * std::sin(giro);
        elipse.push_back({m.x + a * u, m.y + b * u + c * v});
    }
    return elipse;
}

double AlEje(Ejes ejes, double lamina)
{
    return ejes == Ejes::DeLogNormal && lamina <= 0 ? std::nan("") : lamina;
}

void Pon(std::vector<Punto>& donde, Ejes ejes, double F, double lamina)
{
    const Punto p{Reducida(ejes, F), AlEje(ejes, lamina)};
    if (std::isfinite(p.x) && std::isfinite(p.y)) donde.push_back(p);
}

CurvaDePapel CurvaDe(const AjusteDeLey& f, Ejes ejes, double desde)
{
    constexpr int Pasos = 120;
    CurvaDePapel c;
    c.curva.ley = f.ley;
    const double hasta = 1 - 1.0 / model::Recurrencias.back();
    const double x0 = Reducida(ejes, desde), paso = (Reducida(ejes, hasta) - x0) / Pasos;
    for (int i = 0; i <= Pasos; ++i) {
        const double x = x0 + paso * i;
        const double F = ejes == Ejes::DeGumbel ? std::exp(-std::exp(-x)) : NormalProbabilidad(x);
        Pon(c.curva.puntos, ejes, F, Cuantil(*f.ley, *f.estimado.p, f.p0, F));
    }
    for (std::size_t i = 0; f.remuestreo.Hay() && i < model::Recurrencias.size(); ++i) {
        const double F = 1 - 1.0 / model::Recurrencias[i];
        Pon(c.banda5, ejes, F, f.remuestreo.banda5[i]);
        Pon(c.banda95, ejes, F, f.remuestreo.banda95[i]);
    }
    return c;
}

}  // namespace

RazonesL RazonesDe(const Ley& ley, const Parametros& p)
{
    constexpr double Lejos = 8;  // beyond, a double doesn't tell F from 1
    constexpr int Tramos = 8;
    const auto parte = [&](auto polinomio) {
        const auto f = [&](double u) {
            const double F = NormalProbabilidad(u);
            return ley.cuantil(p, F) * polinomio(F) * std::exp(-u * u / 2);
        };
        return Integra(f, -Lejos, Lejos, Tramos);
    };
    const double l2 = parte([](double F) { return 2 * F - 1; });
    return {parte([](double F) { return (6 * F - 6) * F + 1; }) / l2,
            parte([](double F) { return ((20 * F - 30) * F + 12) * F - 1; }) / l2};
}

namespace {

std::vector<Curva> HazCurvas()
{
    constexpr int Pasos = 40;
    std::vector<Curva> curvas;
    for (const Recorrido& r : Recorridos) {
        Curva& c = curvas.emplace_back(Curva{r.ley, {}});
        const int pasos = r.desde == r.hasta ? 0 : Pasos;
        for (int i = 0; i <= pasos; ++i) {
            const RazonesL t = RazonesDe(*r.ley, r.p(r.desde + (r.hasta - r.desde) * i / Pasos));
            c.puntos.push_back({t.t3, t.t4});
        }
    }
    return curvas;
}

}  // namespace

DiagramaL DiagramaDe(const Analisis& a, const AjusteDeLey* deNube)
{
    static const std::vector<Curva> Curvas = HazCurvas();
    DiagramaL d{Curvas, {a.muestra.directos.l.t3, a.muestra.directos.l.t4}, {}, {}};
    if (deNube == nullptr || !deNube->remuestreo.Hay()) return d;
    for (const RazonesL& t : deNube->remuestreo.razones)
        d.nube.push_back({t.t3, t.t4});
    d.elipse = ElipseDe(d.nube);
    return d;
}

double Reducida(Ejes ejes, double F)
{
    return ejes == Ejes::DeGumbel ? -std::log(-std::log(F)) : NormalCuantil(F);
}

PapelDeProbabilidad PapelDe(const Analisis& a, Ejes ejes, double posicion)
{
    constexpr std::array<double, 4> Bajas{1.01, 1.1, 1.25, 1.5};
    constexpr double MenorF = 0.01;
    PapelDeProbabilidad papel;
    papel.ejes = ejes;
    std::vector<Maximo> orden = a.serie.maximos;
    std::stable_sort(orden.begin(), orden.end(),
                     [](const Maximo& x, const Maximo& y) { return x.valor < y.valor; });
    for (std::size_t i = 0; i < orden.size(); ++i) {
        const std::size_t antes = papel.datos.size();
        Pon(papel.datos, ejes, Posicion(i + 1, orden.size(), posicion), orden[i].valor);
        if (papel.datos.size() > antes) papel.anios.push_back(orden[i].anio);
    }
    const double desde = std::fmin(MenorF, Posicion(1, orden.size(), posicion));
    for (const AjusteDeLey& f : a.ajustes)
        if (f.estimado.p) papel.leyes.push_back(CurvaDe(f, ejes, desde));
    for (const double T : Bajas)
        papel.marcas.push_back({Reducida(ejes, 1 - 1 / T), model::NumeroATexto(T)});
    for (const int T : model::Recurrencias)
        papel.marcas.push_back({Reducida(ejes, 1 - 1.0 / T), std::to_string(T)});
    return papel;
}

}  // namespace frequency
