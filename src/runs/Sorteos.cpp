// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Sorteos.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "runs/Campos.h"
#include "study/Philox.h"

namespace runs {

using study::Parametro;

namespace {

constexpr auto Todas = std::to_array<Distribucion>({
    {"uniforme", "Uniforme", false, false, false, "", ""},
    {"triangular", "Triangular", true, false, false, "moda", ""},
    {"normal", "Normal, cortada en el rango", true, true, false, "media", "desvío"},
    {"lognormal", "Lognormal, cortada en el rango", true, true, false, "mediana", "desvío del logaritmo"},
    {"discreta", "Discreta", false, false, true, "", ""},
    {"cercanos", "Juegos cercanos al mejor", false, false, false, "", ""},
});

/// Whether the logarithm of a parameter is what is distributed.
bool PorLogaritmo(const Parametro& p)
{
    return p.logaritmica || p.distribucion == "lognormal";
}

/// The range and the middle of a distribution on the scale that it has.
struct Escala {
    explicit Escala(const Parametro& p)
        : logaritmica(PorLogaritmo(p)),
          desde(De(p.minimo)),
          hasta(De(p.maximo)),
          centro(p.centro ? De(*p.centro) : (desde + hasta) / 2),
          desvio(p.dispersion.value_or((hasta - desde) / 6))
    {
    }
    [[nodiscard]] double De(double x) const { return logaritmica ? std::log(x) : x; }
    [[nodiscard]] double Vuelve(double x) const { return logaritmica ? std::exp(x) : x; }
    bool logaritmica;
    double desde, hasta, centro, desvio;
};

double Normal(double z)
{
    return std::erfc(-z / std::numbers::sqrt2) / 2;
}

double Triangular(const Escala& e, double u)
{
    const double ancho = e.hasta - e.desde, izquierda = e.centro - e.desde;
    if (u * ancho < izquierda) return e.desde + std::sqrt(u * ancho * izquierda);
    return e.hasta - std::sqrt((1 - u) * ancho * (ancho - izquierda));
}

/// A range above the middle is looked at from the other side, where probabilities don't crowd against 1.
double NormalCortada(const Escala& e, double u)
{
    double a = (e.desde - e.centro) / e.desvio, b = (e.hasta - e.centro) / e.desvio;
    const bool espejo = a > 0;
    if (espejo) {
        std::swap(a, b);
        a = -a;
        b = -b;
        u = 1 - u;
    }
    const double pa = Normal(a), pb = Normal(b), p = pa + u * (pb - pa);
    if (!(p > 0 && p < 1)) return espejo ? e.desde : e.hasta;  // all of it lies beyond that end
    const double z = NormalInversa(p);
    return e.centro + e.desvio * (espejo ? -z : z);
}

double Discreta(const Parametro& p, double u)
{
    double total = 0, suma = 0;
    for (const study::ValorPosible& v : p.valores)
        total += v.peso;
    for (const study::ValorPosible& v : p.valores) {
        suma += v.peso;
        if (u * total < suma) return v.valor;
    }
    return p.valores.back().valor;
}

double Polinomio(std::span<const double> a, double x)
{
    double s = 0;
    for (std::size_t i = a.size(); i-- > 0;)
        s = s * x + a[i];
    return s;
}

std::string ReparoDeValores(const Parametro& p)
{
    double total = 0;
    for (const study::ValorPosible& v : p.valores) {
        if (v.valor < p.minimo || v.valor > p.maximo)
            return "Un valor de " + NombreDe(p) + " está fuera de su rango.";
        total += v.peso;
    }
    return total > 0 ? std::string{}
                     : "La distribución discreta de " + NombreDe(p) + " no tiene valores con peso.";
}

std::string ReparoDe(const Parametro& p, const study::Calibracion& c)
{
    const Distribucion* d = DistribucionDe(p.distribucion);
    if (d == nullptr) return "La distribución de " + NombreDe(p) + " no se conoce: «" + p.distribucion + "».";
    if (d->conValores) return ReparoDeValores(p);
    if (d->clave == "cercanos") {
        if (c.cercanos.empty())
            return "No hay juegos cercanos al mejor de los que sortear " + NombreDe(p) + ".";
        return std::ranges::find(c.campos, ClaveDe(p)) == c.campos.end()
                   ? "Los juegos cercanos al mejor no tienen " + NombreDe(p) + "."
                   : std::string{};
    }
    if (PorLogaritmo(p) && p.minimo <= 0)
        return "El mínimo de " + NombreDe(p) + " no es mayor que 0, y se sortea por su logaritmo.";
    if (d->conCentro && p.centro && (*p.centro < p.minimo || *p.centro > p.maximo))
        return "El centro de " + NombreDe(p) + " está fuera de su rango.";
    if (d->conDispersion && p.dispersion && !(*p.dispersion > 0))
        return "La dispersión de " + NombreDe(p) + " no es mayor que 0.";
    return {};
}

constexpr std::uint64_t DeEstratos = 0x4C48530000000000;  // keeps their keys apart from members' numbers

}  // namespace

std::span<const Distribucion> Distribuciones()
{
    return Todas;
}

const Distribucion* DistribucionDe(std::string_view clave)
{
    const auto* const d = std::ranges::find(Todas, clave, &Distribucion::clave);
    return d == Todas.end() ? nullptr : d;
}

double NormalInversa(double p)
{
    constexpr std::array<double, 8> a{
        3.3871328727963666080e0, 1.3314166789178437745e2, 1.9715909503065514427e3, 1.3731693765509461125e4,
        4.5921953931549871457e4, 6.7265770927008700853e4, 3.3430575583588128105e4, 2.5090809287301226727e3},
        b{1,
          4.2313330701600911252e1,
          6.8718700749205790830e2,
          5.3941960214247511077e3,
          2.1213794301586595867e4,
          3.9307895800092710610e4,
          2.8729085735721942674e4,
          5.2264952788528545610e3},
        c{1.42343711074968357734e0,  4.63033784615654529590e0, 5.76949722146069140550e0,
          3.64784832476320460504e0,  1.27045825245236838258e0, 2.41780725177450611770e-1,
          2.27238449892691845833e-2, 7.74545014278341407640e-4},
        d{1,
          2.05319162663775882187e0,
          1.67638483018380384940e0,
          6.89767334985100004550e-1,
          1.48103976427480074590e-1,
          1.51986665636164571966e-2,
          5.47593808499534494600e-4,
          1.05075007164441684324e-9},
        e{6.65790464350110377720e0,  5.46378491116411436990e0,  1.78482653991729133580e0,
          2.96560571828504891230e-1, 2.65321895265761230930e-2, 1.24266094738807843860e-3,
          2.71155556874348757815e-5, 2.01033439929228813265e-7},
        f{1,
          5.99832206555887937690e-1,
          1.36929880922735805310e-1,
          1.48753612908506148525e-2,
          7.86869131145613259100e-4,
          1.84631831751005468180e-5,
          1.42151175831644588870e-7,
          2.04426310338993978564e-15};
    const double q = p - 0.5;
    if (std::fabs(q) <= 0.425) {
        const double r = 0.180625 - q * q;
        return q * Polinomio(a, r) / Polinomio(b, r);
    }
    const double r = std::sqrt(-std::log(q < 0 ? p : 1 - p));
    const double z =
        r <= 5 ? Polinomio(c, r - 1.6) / Polinomio(d, r - 1.6) : Polinomio(e, r - 5) / Polinomio(f, r - 5);
    return q < 0 ? -z : z;
}

double CuantilDe(const Parametro& p, double u)
{
    if (p.distribucion == "discreta") return Discreta(p, u);
    const Escala e(p);
    double x = e.desde + u * (e.hasta - e.desde);
    if (p.distribucion == "triangular")
        x = Triangular(e, u);
    else if (p.distribucion == "normal" || p.distribucion == "lognormal")
        x = NormalCortada(e, u);
    return std::clamp(e.Vuelve(x), p.minimo, p.maximo);
}

std::vector<std::string> ReparosDeSorteo(std::span<const Parametro> parametros,
                                         const study::Calibracion& calibracion)
{
    std::vector<std::string> reparos;
    for (const Parametro& p : parametros)
        if (std::string reparo = ReparoDe(p, calibracion); !reparo.empty())
            reparos.push_back(std::move(reparo));
    return reparos;
}

Permutacion::Permutacion(std::uint64_t unN, std::uint64_t semilla, std::uint64_t cual) : n(unN)
{
    const auto hacenFalta = static_cast<unsigned>(std::bit_width(n - 1));
    bits = std::max(1U, (hacenFalta + 1) / 2);
    const auto clave = [&](std::uint32_t i) {
        return study::Philox4x32(
            {static_cast<std::uint32_t>(cual), static_cast<std::uint32_t>(DeEstratos >> 32), i, 0},
            {static_cast<std::uint32_t>(semilla), static_cast<std::uint32_t>(semilla >> 32)});
    };
    for (std::uint32_t i = 0; i < Vueltas; i += 4)
        std::ranges::copy(clave(i), claves + i);
}

std::uint64_t Permutacion::operator()(std::uint64_t k) const
{
    const std::uint64_t mascara = (std::uint64_t{1} << bits) - 1;
    // The mixing of a 32-bit word: Steele, Lea, Flood, "Fast splittable pseudorandom number generators",
    // 2014.
    const auto mezcla = [](std::uint32_t x) {
        x = (x ^ (x >> 16)) * 0x85EBCA6BU;
        x = (x ^ (x >> 13)) * 0xC2B2AE35U;
        return x ^ (x >> 16);
    };
    do {
        std::uint64_t alta = k >> bits, baja = k & mascara;
        for (const std::uint32_t clave : claves) {
            const std::uint64_t otra = alta ^ (mezcla(static_cast<std::uint32_t>(baja) ^ clave) & mascara);
            alta = baja;
            baja = otra;
        }
        k = alta << bits | baja;
    } while (k >= n);
    return k;
}

Sorteos::Sorteos(std::vector<Parametro> losParametros, const study::Incertidumbre& incertidumbre,
                 const study::Calibracion& calibracion)
    : parametros(std::move(losParametros)),
      miembros(static_cast<std::size_t>(incertidumbre.miembros)),
      semilla(incertidumbre.semilla)
{
    if (incertidumbre.muestreo != "simple")
        for (std::size_t d = 0; d <= parametros.size(); ++d)
            estratos.emplace_back(miembros, semilla, d);
    for (const study::Juego& juego : calibracion.cercanos) {
        std::vector<double> valores(parametros.size(), std::numeric_limits<double>::quiet_NaN());
        for (std::size_t i = 0; i < parametros.size(); ++i) {
            const auto campo = std::ranges::find(calibracion.campos, ClaveDe(parametros[i]));
            const auto lugar = static_cast<std::size_t>(campo - calibracion.campos.begin());
            if (parametros[i].distribucion == "cercanos" && lugar < juego.valores.size())
                valores[i] = juego.valores[lugar];
        }
        cercanos.push_back(std::move(valores));
    }
}

void Sorteos::Valores(std::size_t k, std::span<double> valores) const
{
    study::Sorteo sorteo(semilla, k);
    const auto probabilidad = [&](std::size_t dimension) {
        const double u = sorteo.Uniforme();
        if (estratos.empty()) return u;
        return (static_cast<double>(estratos[dimension](k)) + u) / static_cast<double>(miembros);
    };
    for (std::size_t i = 0; i < parametros.size(); ++i) {
        const double u = probabilidad(i);
        valores[i] = parametros[i].distribucion == "cercanos" ? 0 : CuantilDe(parametros[i], u);
    }
    if (cercanos.empty()) return;
    const auto cuantos = static_cast<double>(cercanos.size());
    const auto cual =
        std::min(cercanos.size() - 1, static_cast<std::size_t>(probabilidad(parametros.size()) * cuantos));
    for (std::size_t i = 0; i < parametros.size(); ++i)
        if (parametros[i].distribucion == "cercanos") valores[i] = cercanos[cual][i];
}

}  // namespace runs
