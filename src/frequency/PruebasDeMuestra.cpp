// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/PruebasDeMuestra.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "frequency/Especiales.h"
#include "frequency/Muestra.h"

namespace frequency {
namespace {

constexpr double Nivel = 0.05;

/// Sum over the groups of equal values of f(size).
template <typename F>
double SobreEmpates(std::span<const double> x, F f)
{
    std::map<double, double> grupos;
    for (const double xi : x)
        grupos[xi] += 1;
    double suma = 0;
    for (const auto& [valor, t] : grupos)
        suma += f(t);
    return suma;
}

double DosColas(double z)
{
    return std::fmin(1, 2 * NormalProbabilidad(-std::abs(z)));
}

/// One half off towards 0, since the statistic is a whole number.
double ConContinuidad(double s, double paso)
{
    if (std::abs(s) <= paso) return 0;
    return s > 0 ? s - paso : s + paso;
}

void Concluye(Prueba& prueba, std::string_view rechazo, std::string_view nada, std::string_view remedio)
{
    prueba.p = DosColas(prueba.z);
    prueba.rechaza = prueba.p < Nivel;
    prueba.veredicto = prueba.rechaza ? rechazo : nada;
    if (prueba.rechaza) prueba.remedio = remedio;
}

}  // namespace

Prueba MannKendall(std::span<const double> x)
{
    Prueba prueba{"mann-kendall", "Tendencia (Mann-Kendall)",
                  "Mann 1945, Econometrica 13, 245-259; Kendall 1975, Rank correlation methods", "S"};
    double s = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        for (std::size_t j = i + 1; j < x.size(); ++j)
            s += x[j] > x[i] ? 1 : (x[j] < x[i] ? -1 : 0);
    const auto n = static_cast<double>(x.size());
    const double empates = SobreEmpates(x, [](double t) { return t * (t - 1) * (2 * t + 5); });
    const double varianza = (n * (n - 1) * (2 * n + 5) - empates) / 18;
    prueba.estadistico = s;
    if (varianza > 0) prueba.z = ConContinuidad(s, 1) / std::sqrt(varianza);
    Concluye(prueba, s > 0 ? "Los máximos crecen con los años." : "Los máximos decrecen con los años.",
             "No se ve una tendencia.",
             "Busque la causa (cambio de sitio o de aparato, clima); si es real, ajuste sólo los últimos "
             "años o no "
             "extrapole.");
    return prueba;
}

Prueba WaldWolfowitz(std::span<const double> x)
{
    Prueba prueba{"wald-wolfowitz", "Independencia (Wald-Wolfowitz)",
                  "Wald y Wolfowitz 1943, Ann. Math. Stat. 14, 378-388", "R"};
    const auto n = static_cast<double>(x.size());
    const double media = MomentosDe(x).media;
    double r = 0, s2 = 0, s4 = 0;  // of the distances from the mean, whose sum is 0
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double d = x[i] - media, otro = x[(i + 1) % x.size()] - media;
        r += d * otro;
        s2 += d * d;
        s4 += d * d * d * d;
    }
    const double esperado = -s2 / (n - 1);
    const double varianza =
        (s2 * s2 - s4) / (n - 1) - esperado * esperado + (s2 * s2 - 2 * s4) / ((n - 1) * (n - 2));
    prueba.estadistico = r;
    if (varianza > 0) prueba.z = (r - esperado) / std::sqrt(varianza);
    Concluye(
        prueba,
        prueba.z > 0 ? "Un año se parece al anterior más de lo que el azar da."
                     : "Un año alto sigue a uno bajo más de lo que el azar da.",
        "Los años son independientes.",
        "Vea si una misma tormenta cuenta en dos años, o si hay una tendencia; las bandas quedan estrechas.");
    return prueba;
}

Prueba MannWhitney(std::span<const double> x)
{
    Prueba prueba{"mann-whitney", "Homogeneidad (Mann-Whitney)",
                  "Mann y Whitney 1947, Ann. Math. Stat. 18, 50-60", "U"};
    const std::size_t mitad = x.size() / 2;
    const auto primera = x.first(mitad), segunda = x.subspan(mitad);
    double u = 0;
    for (const double a : primera)
        for (const double b : segunda)
            u += a > b ? 1 : (a == b ? 0.5 : 0);
    const auto n = static_cast<double>(x.size()), p = static_cast<double>(mitad), q = n - p;
    const double empates = SobreEmpates(x, [](double t) { return t * t * t - t; });
    const double varianza = p * q / 12 * (n + 1 - empates / (n * (n - 1)));
    prueba.estadistico = u;
    if (varianza > 0) prueba.z = ConContinuidad(u - p * q / 2, 0.5) / std::sqrt(varianza);
    Concluye(prueba,
             prueba.z > 0 ? "La primera mitad de los años tiene máximos mayores que la segunda."
                          : "La segunda mitad de los años tiene máximos mayores que la primera.",
             "Las dos mitades de los años son iguales.",
             "Busque un cambio de sitio, de aparato o de horario entre las dos mitades.");
    return prueba;
}

double KDeGrubbsBeck(std::size_t n)
{
    const double ln = std::log10(static_cast<double>(n));
    return -0.9043 + 3.345 * std::sqrt(ln) - 0.4046 * ln;
}

namespace {

/// The distance that Student's law leaves to 10 % of samples, for sizes that the formula isn't for.
double KDeStudent(double n)
{
    constexpr double NivelDeDato = 0.10;
    const double t = Raiz([&](double q) { return StudentCola(q, n - 2) - NivelDeDato / n; }, 0.1, 50);
    return (n - 1) / std::sqrt(n) * std::sqrt(t * t / (n - 2 + t * t));
}

/// Upper bound of the probability that the farthest of n values lies g deviations away on one side.
double ProbabilidadDeLejano(double g, double n)
{
    const double resto = (n - 1) * (n - 1) - n * g * g;
    if (resto <= 0) return 0;
    return std::fmin(1, n * StudentCola(g * std::sqrt(n * (n - 2) / resto), n - 2));
}

}  // namespace

double LimiteDeGrubbsBeck(std::size_t n)
{
    constexpr std::size_t UltimoDeLaFormula = 149;
    return n <= UltimoDeLaFormula ? KDeGrubbsBeck(n) : KDeStudent(static_cast<double>(n));
}

Prueba GrubbsBeck(const std::vector<Maximo>& maximos, bool altos)
{
    Prueba prueba{altos ? "grubbs-beck-alto" : "grubbs-beck-bajo",
                  altos ? "Dato anómalo alto (Grubbs-Beck)" : "Dato anómalo bajo (Grubbs-Beck)",
                  "Grubbs y Beck 1972, Technometrics 14, 847-854; Bulletin 17B, 1982, apéndice 4", "G"};
    std::vector<Maximo> lluviosos = maximos;  // a year without rain has no logarithm
    std::erase_if(lluviosos, [](const Maximo& m) { return m.valor <= 0; });
    std::vector<double> y;
    for (const Maximo& m : lluviosos)
        y.push_back(std::log10(m.valor));
    const Momentos momentos = MomentosDe(y);
    const auto n = static_cast<double>(y.size());
    const double K = LimiteDeGrubbsBeck(y.size());
    double mayor = 0;
    std::string lejanos;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double g = (altos ? y[i] - momentos.media : momentos.media - y[i]) / momentos.desvio;
        mayor = std::fmax(mayor, g);
        if (g > K) lejanos += (lejanos.empty() ? "" : ", ") + std::to_string(lluviosos[i].anio);
    }
    prueba.estadistico = prueba.z = mayor;
    prueba.p = ProbabilidadDeLejano(mayor, n);
    prueba.rechaza = !lejanos.empty();
    prueba.veredicto = prueba.rechaza ? "Anómalos: " + lejanos + "." : "No hay ninguno.";
    if (prueba.rechaza)
        prueba.remedio =
            altos ? "Confirme el dato en la planilla y en las estaciones vecinas; si es cierto, se deja."
                  : "Confirme que el año está completo; un año con pocos días de registro se quita.";
    return prueba;
}

std::vector<Prueba> PruebasDe(const std::vector<Maximo>& maximos)
{
    std::vector<double> x;
    for (const Maximo& m : maximos)
        x.push_back(m.valor);
    return {WaldWolfowitz(x), MannKendall(x), MannWhitney(x), GrubbsBeck(maximos, true),
            GrubbsBeck(maximos, false)};
}

}  // namespace frequency
