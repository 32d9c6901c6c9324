// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "calibration/Busqueda.h"
#include "calibration/Ensayo.h"

namespace calibration {
namespace {

/// A complex on its way, the cheapest point first.
class Complejo {
  public:
    Complejo(std::vector<Evaluacion> unosPuntos, study::Sorteo unSorteo)
        : puntos(std::move(unosPuntos)), sorteo(unSorteo)
    {
    }
    /// So many offspring, a parent's simplex each.
    void Evoluciona(std::size_t veces, Ensayo& ensayo)
    {
        for (std::size_t vez = 0; vez < veces && ensayo.Sigue(); ++vez) {
            Paso(ensayo);
            Ordena(puntos);
        }
    }
    std::vector<Evaluacion> puntos;

  private:
    /// Distinct ones, the better the likelier, in rising order.
    std::vector<std::size_t> Padres(std::size_t cuantos)
    {
        const auto m = static_cast<double>(puntos.size());
        std::vector<std::size_t> padres;
        while (padres.size() < cuantos) {
            const double lugar = m + 0.5 - std::sqrt((m + 0.5) * (m + 0.5) - m * (m + 1) * sorteo.Uniforme());
            const auto i = std::min(static_cast<std::size_t>(std::fmax(lugar, 0)), puntos.size() - 1);
            if (std::find(padres.begin(), padres.end(), i) == padres.end()) padres.push_back(i);
        }
        std::sort(padres.begin(), padres.end());
        return padres;
    }

    /// Of the smallest box around the complex.
    std::vector<double> Mutacion()
    {
        std::vector<double> punto(puntos.front().punto.size());
        for (std::size_t d = 0; d < punto.size(); ++d) {
            double menor = 1, mayor = 0;
            for (const Evaluacion& e : puntos) {
                menor = std::fmin(menor, e.punto[d]);
                mayor = std::fmax(mayor, e.punto[d]);
            }
            punto[d] = menor + (mayor - menor) * sorteo.Uniforme();
        }
        return punto;
    }

    /// The worst parent is reflected at the middle of the others, or drawn towards it, or thrown anew.
    void Paso(Ensayo& ensayo)
    {
        const auto padres = Padres(std::min(puntos.front().punto.size() + 1, puntos.size()));
        Evaluacion& peor = puntos[padres.back()];
        const std::size_t n = peor.punto.size();
        std::vector<double> medio(n), prueba(n);
        for (std::size_t k = 0; k + 1 < padres.size(); ++k)
            for (std::size_t d = 0; d < n; ++d)
                medio[d] += puntos[padres[k]].punto[d] / static_cast<double>(padres.size() - 1);

        bool dentro = true;
        for (std::size_t d = 0; d < n; ++d) {
            prueba[d] = 2 * medio[d] - peor.punto[d];
            dentro = dentro && prueba[d] >= 0 && prueba[d] <= 1;
        }
        if (!dentro) prueba = Mutacion();
        const auto toma = [&](bool comoSea) {
            const bool puede = ensayo.Sigue();
            const double costo = ensayo.Mide(prueba);
            if (!(costo < peor.costo) && !(comoSea && puede)) return false;
            peor = {prueba, costo};
            return true;
        };
        if (toma(false)) return;
        for (std::size_t d = 0; d < n; ++d)
            prueba[d] = (medio[d] + peor.punto[d]) / 2;
        if (toma(false)) return;
        prueba = Mutacion();
        toma(true);
    }

    study::Sorteo sorteo;
};

/// The geometric mean of the ranges of all points.
double Extension(const std::vector<Evaluacion>& puntos)
{
    const std::size_t n = puntos.front().punto.size();
    double suma = 0;
    for (std::size_t d = 0; d < n; ++d) {
        const auto [menor, mayor] = std::minmax_element(
            puntos.begin(), puntos.end(),
            [d](const Evaluacion& a, const Evaluacion& b) { return a.punto[d] < b.punto[d]; });
        suma += std::log(std::fmax(mayor->punto[d] - menor->punto[d], 1e-300));
    }
    return std::exp(suma / static_cast<double>(n));
}

/// Whether the best of each shuffle got better by too little for too long.
bool SeEstanca(std::span<const double> mejores)
{
    constexpr std::size_t Vueltas = 10;
    constexpr double Parte = 0.001;
    if (mejores.size() <= Vueltas) return false;
    const auto ultimas = mejores.last(Vueltas + 1);
    double suma = 0;
    for (const double x : ultimas.last(Vueltas))
        suma += std::abs(x);
    return (ultimas.front() - ultimas.back()) <= Parte * suma / static_cast<double>(Vueltas);
}

/// The points of all complexes, drawn evenly.
std::vector<std::vector<double>> Poblacion(const PedidoDeBusqueda& p, std::size_t cuantos)
{
    study::Sorteo sorteo = SorteoDe(p.semilla, 0, 0);
    std::vector<std::vector<double>> puntos(cuantos, std::vector<double>(p.dimensiones));
    for (auto& punto : puntos)
        for (double& x : punto)
            x = sorteo.Uniforme();
    if (p.inicio) puntos.front() = *p.inicio;
    return puntos;
}

}  // namespace

Busqueda BuscaSce(const PedidoDeBusqueda& p, const Reparto& reparto)
{
    constexpr double Juntos = 1e-3;
    const std::size_t cuantos = std::max<std::size_t>(p.complejos, 1), puntosDe = 2 * p.dimensiones + 1;
    Marcha marcha(p, reparto);
    std::vector<Evaluacion> puntos = marcha.Mide(Poblacion(p, cuantos * puntosDe));
    Ordena(puntos);
    std::vector<double> mejores;
    bool converge = false;
    for (std::size_t vuelta = 1; marcha.Sigue() && !converge; ++vuelta) {
        std::vector<Complejo> complejos;
        for (std::size_t k = 0; k < cuantos; ++k) {
            std::vector<Evaluacion> suyos;
            for (std::size_t i = k; i < puntos.size(); i += cuantos)
                suyos.push_back(std::move(puntos[i]));
            complejos.emplace_back(std::move(suyos), SorteoDe(p.semilla, vuelta, k));
        }
        marcha.Reparte(cuantos, p.corridas,
                       [&](std::size_t k, Ensayo& e) { complejos[k].Evoluciona(puntosDe, e); });
        puntos.clear();
        for (Complejo& c : complejos)
            std::move(c.puntos.begin(), c.puntos.end(), std::back_inserter(puntos));
        Ordena(puntos);
        mejores.push_back(puntos.front().costo);
        converge = Extension(puntos) < Juntos || SeEstanca(mejores);
    }
    return marcha.Fin(converge);
}

}  // namespace calibration
