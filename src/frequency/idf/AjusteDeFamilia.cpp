// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/idf/AjusteDeFamilia.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <utility>

namespace frequency::idf {
namespace {

using Vector = std::array<double, MaxCoeficientes>;
using Matriz = std::array<Vector, MaxCoeficientes>;

/// The search in coefficients, those that are positive by their logarithms.
class Busqueda {
  public:
    Busqueda(const Familia& suFamilia, std::span<const Punto> susPuntos, Criterio suCriterio)
        : familia(suFamilia), puntos(susPuntos), criterio(suCriterio)
    {
    }

    /// The least sum of squares that is found from a start.
    std::pair<double, Coeficientes> Desde(const Coeficientes& comienzo)
    {
        constexpr int MaxPasos = 400;
        constexpr double Quieto = 1e-15, MaxFreno = 1e15, Hebra = 1e-9;
        Vector v = EnBusqueda(comienzo);
        std::vector<double> r = Residuos(v);
        double costo = Suma(r), freno = 1e-3;
        for (int paso = 0; paso < MaxPasos && freno < MaxFreno; ++paso) {
            const auto nuevo = Paso(v, r, freno);
            if (!nuevo) break;
            const std::vector<double> otro = Residuos(*nuevo);
            const double suCosto = Suma(otro);
            if (!(suCosto <= costo)) {
                freno *= 10;
                continue;
            }
            double movido = 0;
            for (std::size_t i = 0; i < familia.cuantos; ++i)
                movido = std::max(movido, std::abs((*nuevo)[i] - v[i]) / (1 + std::abs(v[i])));
            v = *nuevo;
            r = otro;
            costo = suCosto;
            freno = std::max(freno / 10, 1e-12);
            if (movido < Quieto) break;
        }
        for (std::size_t i = 0; i < familia.cuantos; ++i)  // a hair from a bound is the bound
            if (std::abs(v[i] - Menor(i)) < Hebra) v[i] = Menor(i);
        return {costo, DeBusqueda(v)};
    }

  private:
    const Familia& familia;
    std::span<const Punto> puntos;
    Criterio criterio;

    [[nodiscard]] double Menor(std::size_t i) const { return EnEscala(i, familia.coeficientes[i].menor); }
    [[nodiscard]] double Mayor(std::size_t i) const { return EnEscala(i, familia.coeficientes[i].mayor); }
    [[nodiscard]] double EnEscala(std::size_t i, double x) const
    {
        return familia.coeficientes[i].positivo ? std::log(x) : x;
    }

    [[nodiscard]] Vector EnBusqueda(const Coeficientes& c) const
    {
        Vector v{};
        for (std::size_t i = 0; i < familia.cuantos; ++i)
            v[i] = EnEscala(i, c[i]);
        return v;
    }

    [[nodiscard]] Coeficientes DeBusqueda(const Vector& v) const
    {
        Coeficientes c{};
        for (std::size_t i = 0; i < familia.cuantos; ++i)
            c[i] = familia.coeficientes[i].positivo ? std::exp(v[i]) : v[i];
        return c;
    }

    [[nodiscard]] std::vector<double> Residuos(const Vector& v) const
    {
        const Coeficientes c = DeBusqueda(v);
        std::vector<double> r;
        for (const Punto& p : puntos) {
            const double log = familia.logIntensidad(c, p.duracion, p.recurrencia) - std::log(p.intensidad);
            r.push_back(criterio == Criterio::Logaritmos ? log : std::expm1(log));
        }
        return r;
    }

    static double Suma(const std::vector<double>& r)
    {
        double suma = 0;
        for (const double x : r)
            suma += x * x;
        return suma;
    }

    /// Derivatives of the residuals, a row per coefficient, by central differences; one-sided at a bound.
    [[nodiscard]] std::array<std::vector<double>, MaxCoeficientes> Derivadas(const Vector& v) const
    {
        constexpr double Parte = 1e-6;
        std::array<std::vector<double>, MaxCoeficientes> J;
        for (std::size_t i = 0; i < familia.cuantos; ++i) {
            Vector arriba = v, abajo = v;
            const double h = Parte * (1 + std::abs(v[i]));
            arriba[i] = std::min(v[i] + h, Mayor(i));
            abajo[i] = std::max(v[i] - h, Menor(i));
            const std::vector<double> mas = Residuos(arriba), menos = Residuos(abajo);
            for (std::size_t j = 0; j < mas.size(); ++j)
                J[i].push_back((mas[j] - menos[j]) / (arriba[i] - abajo[i]));
        }
        return J;
    }

    /// Where the next step leads: what stands at a bound and would leave it stays.
    [[nodiscard]] std::optional<Vector> Paso(const Vector& v, const std::vector<double>& r,
                                             double freno) const
    {
        const auto J = Derivadas(v);
        Matriz A{};
        Vector g{};
        const auto por = [](const std::vector<double>& x, const std::vector<double>& y) {
            double suma = 0;
            for (std::size_t j = 0; j < x.size(); ++j)
                suma += x[j] * y[j];
            return suma;
        };
        for (std::size_t i = 0; i < familia.cuantos; ++i)
            g[i] = -por(J[i], r);
        for (std::size_t i = 0; i < familia.cuantos; ++i) {
            const bool quieto = (v[i] <= Menor(i) && g[i] < 0) || (v[i] >= Mayor(i) && g[i] > 0);
            for (std::size_t k = 0; k < familia.cuantos; ++k)
                if (!quieto) A[i][k] = por(J[i], J[k]);
            if (quieto) g[i] = 0;
            A[i][i] = quieto || A[i][i] == 0 ? 1 : A[i][i] * (1 + freno);
        }
        const auto d = Resuelve(A, g);
        if (!d) return {};
        Vector nuevo = v;
        for (std::size_t i = 0; i < familia.cuantos; ++i)
            nuevo[i] = std::clamp(v[i] + (*d)[i], Menor(i), Mayor(i));
        return nuevo;
    }

    /// A x = g by elimination with the largest pivot of each column.
    [[nodiscard]] std::optional<Vector> Resuelve(Matriz A, Vector g) const
    {
        const std::size_t n = familia.cuantos;
        for (std::size_t i = 0; i < n; ++i) {
            std::size_t pivote = i;
            for (std::size_t j = i + 1; j < n; ++j)
                if (std::abs(A[j][i]) > std::abs(A[pivote][i])) pivote = j;
            if (!(std::abs(A[pivote][i]) > 0)) return {};
            std::swap(A[i], A[pivote]);
            std::swap(g[i], g[pivote]);
            for (std::size_t j = i + 1; j < n; ++j) {
                const double factor = A[j][i] / A[i][i];
                for (std::size_t k = i; k < n; ++k)
                    A[j][k] -= factor * A[i][k];
                g[j] -= factor * g[i];
            }
        }
        for (std::size_t i = n; i-- > 0;) {
            for (std::size_t k = i + 1; k < n; ++k)
                g[i] -= A[i][k] * g[k];
            g[i] /= A[i][i];
        }
        return g;
    }
};

Coeficientes Mejor(const Familia& familia, std::span<const Punto> puntos, Criterio criterio)
{
    std::pair<double, Coeficientes> mejor{std::numeric_limits<double>::infinity(), familia.comienzos[0]};
    for (const Coeficientes& comienzo : familia.comienzos) {
        // A fit to logarithms, which are all but a line of the coefficients, is where one to errors begins.
        const auto enLogaritmos = Busqueda(familia, puntos, Criterio::Logaritmos).Desde(comienzo);
        const auto hallado = criterio == Criterio::Logaritmos
                                 ? enLogaritmos
                                 : Busqueda(familia, puntos, criterio).Desde(enLogaritmos.second);
        if (hallado.first < mejor.first) mejor = hallado;
    }
    return mejor.second;
}

Calidad CalidadDe(std::span<const Punto> puntos, const std::vector<double>& ajustadas)
{
    const auto n = static_cast<double>(puntos.size());
    double media = 0, queda = 0, hay = 0;
    for (const Punto& p : puntos)
        media += p.intensidad / n;
    Calidad q;
    for (std::size_t j = 0; j < puntos.size(); ++j) {
        const double i = puntos[j].intensidad, error = ajustadas[j] / i - 1;
        queda += (ajustadas[j] - i) * (ajustadas[j] - i);
        hay += (i - media) * (i - media);
        q.errorMedio += error * error / n;
        if (!(std::abs(error) > std::abs(q.errorMaximo))) continue;
        q.errorMaximo = error;
        q.donde = j;
    }
    q.errorMedio = std::sqrt(q.errorMedio);
    q.r2 = hay > 0 ? 1 - queda / hay : 0;
    return q;
}

std::string NoAlcanzan(const Familia& familia, std::span<const Punto> puntos)
{
    std::set<double> duraciones, recurrencias;
    for (const Punto& p : puntos) {
        duraciones.insert(p.duracion);
        recurrencias.insert(p.recurrencia);
    }
    if (duraciones.size() < familia.duraciones)
        return std::string(familia.nombre) + " se ajusta a " + std::to_string(familia.duraciones) +
               " duraciones por lo menos; hay " + std::to_string(duraciones.size()) + ".";
    if (!familia.porRecurrencia && recurrencias.size() < 2)
        return std::string(familia.nombre) + " se ajusta a dos recurrencias por lo menos.";
    return {};
}

}  // namespace

AjusteDeFamilia Ajusta(const Familia& familia, std::span<const Punto> puntos, Criterio criterio)
{
    AjusteDeFamilia a;
    a.familia = &familia;
    a.nota = NoAlcanzan(familia, puntos);
    if (!a.nota.empty()) return a;
    if (familia.porRecurrencia) {
        std::set<double> recurrencias;
        for (const Punto& p : puntos)
            recurrencias.insert(p.recurrencia);
        for (const double T : recurrencias) {
            std::vector<Punto> suyos;
            std::copy_if(puntos.begin(), puntos.end(), std::back_inserter(suyos),
                         [&](const Punto& p) { return p.recurrencia == T; });
            a.coeficientes.push_back({T, Mejor(familia, suyos, criterio)});
        }
    } else {
        a.coeficientes.push_back({0, Mejor(familia, puntos, criterio)});
    }
    for (const Punto& p : puntos)
        a.ajustadas.push_back(IntensidadDe(familia, a.coeficientes, p.duracion, p.recurrencia));
    a.calidad = CalidadDe(puntos, a.ajustadas);
    return a;
}

double IntensidadDe(const Familia& familia, std::span<const CoeficientesDeT> coeficientes, double duracion,
                    double recurrencia)
{
    const auto log = [&](const CoeficientesDeT& x) {
        return familia.logIntensidad(x.c, duracion, recurrencia);
    };
    if (coeficientes.empty()) return std::numeric_limits<double>::quiet_NaN();
    if (!familia.porRecurrencia) return std::exp(log(coeficientes.front()));
    const auto despues = std::find_if(coeficientes.begin(), coeficientes.end(),
                                      [&](const CoeficientesDeT& x) { return x.recurrencia >= recurrencia; });
    if (despues == coeficientes.end()) return std::numeric_limits<double>::quiet_NaN();
    if (despues->recurrencia == recurrencia) return std::exp(log(*despues));
    if (despues == coeficientes.begin()) return std::numeric_limits<double>::quiet_NaN();
    const auto antes = despues - 1;
    const double parte =
        std::log(recurrencia / antes->recurrencia) / std::log(despues->recurrencia / antes->recurrencia);
    return std::exp(log(*antes) + parte * (log(*despues) - log(*antes)));
}

}  // namespace frequency::idf
