// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/leyes/Boletin17.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "frequency/Especiales.h"
#include "frequency/PruebasDeMuestra.h"
#include "frequency/leyes/Pearson.h"
#include "model/Numeros.h"

namespace frequency::boletin17 {
namespace {

std::vector<double> Decimales(std::span<const double> x)
{
    std::vector<double> y(x.size());
    std::transform(x.begin(), x.end(), y.begin(), [](double v) { return std::log10(v); });
    return y;
}

/// First moments of mean and deviation of n normal values that are all above z.
struct SobreZ {
    double media = 0, varianzaDeMedia = 0;
    double varianza = 0;  ///< expected one of the values
    double desvio = 0;    ///< expected one
    double varianzaDeDesvio = 0, covarianza = 0, grados = 0;
};

SobreZ MomentosSobre(double z, double n)
{
    const double h =
        std::exp(-z * z / 2) / std::sqrt(2 * std::numbers::pi) / NormalProbabilidad(-z);  // hazard
    const double m2 = 1 + z * h, m3 = (2 + z * z) * h, m4 = 3 + (z * z + 3) * z * h;
    const double V = m2 - h * h, c3 = m3 - 3 * h * m2 + 2 * h * h * h;
    const double c4 = m4 - 4 * h * m3 + 6 * h * h * m2 - 3 * h * h * h * h;
    const double deV = (c4 - (n - 3) / (n - 1) * V * V) / n;  // variance of the sample's variance
    const double forma = V * V / deV, escala = deV / V;       // of the gamma law that stands for it
    const double S = std::sqrt(escala) / CocienteGamma(forma, 0.5);
    return {h, V / n, V, S, V - S * S, c3 / n / (2 * S), 2 * forma};
}

/// The same as `ValorP` where value k is z.
double ValorPDado(double z, double sobre, double eta)
{
    const SobreZ s = MomentosSobre(z, sobre);
    const double pendiente = s.covarianza / s.varianzaDeDesvio;  // of the mean over the deviation
    const double media = s.media - pendiente * s.desvio;
    const double desvio = std::sqrt(s.varianzaDeMedia - pendiente * pendiente * s.varianzaDeDesvio);
    return StudentColaNoCentral(-(eta + pendiente) * std::sqrt(s.varianza) / desvio, s.grados,
                                (media - z) / desvio);
}

/// Moments 0 to 3 about the mean of a Pearson III variate of deviation 1 below w.
std::array<double, 4> MomentosBajo(double w, double g)
{
    const Parametros reducida{0, 1, g};
    const double c = g / 2;
    const double log = pearson::LogVerosimilitud(reducida, std::span(&w, 1));
    const double borde = std::isfinite(log) ? (1 + c * w) * std::exp(log) : 0;
    std::array<double, 4> M{pearson::Probabilidad(reducida, w), 0, 0, 0};
    M[1] = -borde;
    M[2] = -w * borde + c * M[1] + M[0];
    M[3] = -w * w * borde + 2 * (c * M[2] + M[1]);
    return M;
}

/// Moments where so many values are known as lower than those given, in rising order, and no more.
Estimado MomentosEsperados(std::span<const double> y, double bajos)
{
    constexpr int Vueltas = 3000;
    constexpr double Quieto = 1e-11, MayorG = 8;
    const auto n = static_cast<double>(y.size());
    const double todos = n + bajos, c2 = n / (n - 1), c3 = c2 * n / (n - 2);
    Momentos m = MomentosDe(y);
    for (int vuelta = 0; vuelta < Vueltas; ++vuelta) {
        const Momentos antes = m;
        const auto M = MomentosBajo((y.front() - m.media) / m.desvio, m.asimetria);
        if (!(M[0] > 0)) break;
        const double e1 = m.desvio * M[1] / M[0], e2 = m.desvio * m.desvio * M[2] / M[0],
                     e3 = m.desvio * m.desvio * m.desvio * M[3] / M[0];
        double suma = 0, s2 = 0, s3 = 0;
        for (const double yi : y)
            suma += yi;
        m.media = (suma + bajos * (antes.media + e1)) / todos;
        for (const double yi : y) {
            s2 += (yi - m.media) * (yi - m.media);
            s3 += (yi - m.media) * (yi - m.media) * (yi - m.media);
        }
        const double d = antes.media - m.media;
        m.desvio = std::sqrt((c2 * s2 + bajos * (e2 + 2 * d * e1 + d * d)) / todos);
        m.asimetria = (c3 * s3 + bajos * (e3 + 3 * d * e2 + 3 * d * d * e1 + d * d * d)) /
                      (todos * m.desvio * m.desvio * m.desvio);
        if (!(std::abs(m.asimetria) < MayorG)) break;
        if (std::abs(m.media - antes.media) + std::abs(m.desvio - antes.desvio) +
                std::abs(m.asimetria - antes.asimetria) <
            Quieto)
            return pearson::PorMomentos(m);
    }
    return {{}, "Los momentos esperados de Bulletin 17C no convergen"};
}

/// The law of all years whose quantiles of 2, 10 and 100 years are those of the part given.
Estimado ProbabilidadCondicional(std::span<const double> y, double parte)
{
    constexpr double MenorParte = 0.75, MenorG = -2, MayorG = 2.5;  // what the bulletin allows
    const Parametros p = *pearson::PorMomentos(MomentosDe(y)).p;
    if (parte < MenorParte)
        return {{}, "Más de la cuarta parte de los años quedan fuera: Bulletin 17B no los admite"};
    const auto q = [&](double excede) { return pearson::Cuantil(p, 1 - excede / parte); };
    const double q100 = q(0.01), q10 = q(0.1), q2 = q(0.5);
    const double g = -2.5 + 3.12 * (q100 - q10) / (q10 - q2);
    if (!(g > MenorG && g < MayorG)) return {{}, "La asimetría sintética de Bulletin 17B sale de -2 a 2.5"};
    const double k100 = pearson::Cuantil({0, 1, g}, 0.99), k2 = pearson::Cuantil({0, 1, g}, 0.5);
    const double s = (q100 - q2) / (k100 - k2);
    return {Parametros{q2 - k2 * s, s, g}, {}};
}

std::size_t BajosDe17B(const std::vector<double>& y)
{
    constexpr std::size_t MenorN = 10;
    if (y.size() < MenorN) return 0;
    const Momentos m = MomentosDe(y);
    const double limite = m.media - LimiteDeGrubbsBeck(y.size()) * m.desvio;
    return static_cast<std::size_t>(std::lower_bound(y.begin(), y.end(), limite) - y.begin());
}

/// "18 valores bajos (menos de 782) y 12 años sin lluvia"
std::string Cuantos(std::size_t bajos, std::size_t secos, double limite)
{
    std::string t;
    if (bajos > 0)
        t = (bajos == 1 ? "1 valor bajo" : std::to_string(bajos) + " valores bajos") + " (menos de " +
            model::NumeroATexto(model::Redondea(limite, 2)) + ")";
    if (secos > 0)
        t += (bajos > 0 ? " y " : "") + std::to_string(secos) + (secos == 1 ? " año" : " años") +
             " sin lluvia";
    return t;
}

Estimado ConBajos(const Muestra& m)
{
    const bool de17B = m.tratamiento.bajos == Bajos::Boletin17B;
    const std::vector<double> y = Decimales(m.x);
    std::size_t bajos = 0;
    if (m.tratamiento.cuantos)
        bajos = *m.tratamiento.cuantos;
    else
        bajos = de17B ? BajosDe17B(y) : BajosDe17C(m.x, m.secos) - m.secos;
    const std::size_t fuera = bajos + m.secos;
    const auto quedan = std::span(y).subspan(bajos);
    constexpr std::size_t Menos = 5;
    if (quedan.size() < Menos) return {{}, "Con los valores bajos aparte quedan menos de 5"};
    if (fuera == 0) return pearson::PorMomentos(m.decimales.m);
    const double parte = static_cast<double>(quedan.size()) / static_cast<double>(m.Anios());
    Estimado e = de17B ? ProbabilidadCondicional(quedan, parte)
                       : MomentosEsperados(quedan, static_cast<double>(fuera));
    if (!e.p) return e;
    e.bajos = 1 - parte;
    const std::string cuantos = Cuantos(bajos, m.secos, m.x[bajos]);
    e.nota = de17B ? "Bulletin 17B deja aparte " + cuantos + "; la probabilidad de los demás es condicional"
                   : "Bulletin 17C cuenta " + cuantos + " sólo por debajo de los demás (momentos esperados)";
    return e;
}

}  // namespace

double EcmDeAsimetria(std::size_t n, double g)
{
    const double a = std::abs(g);
    const double A = a <= 0.9 ? -0.33 + 0.08 * a : -0.52 + 0.30 * a;
    const double B = a <= 1.5 ? 0.94 - 0.26 * a : 0.55;
    return std::pow(10.0, A - B * std::log10(static_cast<double>(n) / 10));
}

double AsimetriaPonderada(double g, std::size_t n, const AsimetriaRegional& regional)
{
    const double suyo = EcmDeAsimetria(n, g);
    return (regional.ecm * g + suyo * regional.g) / (regional.ecm + suyo);
}

double ValorP(std::size_t n, std::size_t k, double eta)
{
    constexpr double Abajo = 8, Arriba = 6;  // deviations of value k
    constexpr int Tramos = 2;
    const auto N = static_cast<double>(n), i = static_cast<double>(k);
    const double F = i / (N + 1), centro = NormalCuantil(F);
    const auto densidad = [](double z) { return std::exp(-z * z / 2) / std::sqrt(2 * std::numbers::pi); };
    const double desvio = std::sqrt(F * (1 - F) / (N + 2)) / densidad(centro);
    const double ln = LnGamma(N + 1) - LnGamma(i) - LnGamma(N - i + 1);
    const auto f = [&](double z) {
        const double orden =
            ln + (i - 1) * std::log(NormalProbabilidad(z)) + (N - i) * std::log(NormalProbabilidad(-z));
        return std::exp(orden) * densidad(z) * ValorPDado(z, N - i, eta);
    };
    return Integra(f, centro - Abajo * desvio, centro + Arriba * desvio, Tramos);
}

std::size_t BajosDe17C(std::span<const double> x, std::size_t secos)
{
    constexpr double HaciaFuera = 0.005, HaciaDentro = 0.1;
    const std::vector<double> y = Decimales(x);
    const std::size_t n = y.size() + secos;
    const auto bajo = [&](std::size_t k, double nivel) {  // the k-th of all years
        constexpr double MuyLejos = 20;
        const Momentos sobre = MomentosDe(std::span(y).subspan(k - secos));
        if (!(sobre.desvio > 0)) return false;
        const double eta = (y[k - secos - 1] - sobre.media) / sobre.desvio;
        const auto i = static_cast<double>(k), N = static_cast<double>(n);
        // Most values are so far from low that the middle of their place tells it, in a fiftieth of the time.
        if (ValorPDado(NormalCuantil(i / (N + 1)), N - i, eta) > MuyLejos * nivel) return false;
        return ValorP(n, k, eta) < nivel;
    };
    std::size_t hasta = secos;
    while (secos == 0 && hasta < n / 2 && bajo(hasta + 1, HaciaDentro))
        ++hasta;
    for (std::size_t k = n / 2; k > hasta; --k)
        if (bajo(k, HaciaFuera)) return k;
    return hasta;
}

Estimado PorMomentos(const Muestra& m)
{
    Estimado e = m.tratamiento.bajos == Bajos::Quedan ? pearson::PorMomentos(m.decimales.m) : ConBajos(m);
    if (!e.p || !m.tratamiento.regional) return e;
    const double propia = (*e.p)[2];
    (*e.p)[2] = AsimetriaPonderada(propia, m.Anios(), *m.tratamiento.regional);
    e.nota += (e.nota.empty() ? "" : "; ") + std::string("asimetría de la estación ") +
              model::NumeroATexto(model::Redondea(propia, 3)) + ", ponderada con la regional " +
              model::NumeroATexto(m.tratamiento.regional->g);
    if (!e.nota.starts_with("Bulletin")) e.nota[0] = 'A';
    return e;
}

}  // namespace frequency::boletin17
