// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "frequency/Ajuste.h"
#include "frequency/Diagramas.h"
#include "frequency/casos/Filas.h"
#include "frequency/casos/Muestras.h"
#include "frequency/leyes/Boletin17.h"
#include "frequency/leyes/Pearson.h"

namespace frequency::casos {
namespace {

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

/// The parameters of a fit; none are no figures.
Parametros De(const Estimado& e)
{
    return e.p.value_or(Parametros{Nada, Nada, Nada});
}

Muestra Con(const std::vector<double>& x, Bajos bajos, std::optional<AsimetriaRegional> regional = {})
{
    Muestra m = HazMuestra(x);
    m.tratamiento = {bajos, regional, {}};
    return m;
}

/// Quantiles of some recurrences [years].
Comparacion Cuantiles(const Ley& ley, const Estimado& e, std::vector<double> T, std::vector<double> impreso)
{
    Comparacion c{std::move(T), std::move(impreso), {}};
    for (const double t : c.x)
        c.nuestro.push_back(ley.cuantil(De(e), 1 - 1 / t));
    return c;
}

/// The first 42 years of the Orestimba by Bulletin 17B.
Estimado Orestimba42()
{
    const std::vector<double> x(Orestimba.begin(), Orestimba.begin() + 42);
    return Ajusta(LogPearsonIII, Con(x, Bajos::Boletin17B, AsimetriaRegional{-0.3, 0.302}), Metodo::Momentos);
}

/// The shape that a law has by L-moments for each L-skew, beside an approximation of Hosking's.
Comparacion Formas(const Ley& ley, std::size_t cual, std::vector<double> t3, double (*aproximada)(double t3))
{
    Comparacion c{std::move(t3), {}, {}};
    for (const double t : c.x) {
        Muestra m;
        m.directos.l = {1, 1, t, 0};
        c.impreso.push_back(aproximada(t));
        c.nuestro.push_back(De(ley.porMomentosL(m))[cual]);
    }
    return c;
}

double KDeGev(double t3)
{
    const double c = 2 / (3 + t3) - std::numbers::ln2 / std::log(3.0);
    return c * (7.8590 + 2.9554 * c);
}

double SigmaDeLogNormal3(double t3)
{
    const double t = t3 * t3;
    return t3 * (2.0466534 + t * (-3.6544371 + t * (1.8396733 - 0.20360244 * t))) /
           (1 + t * (-2.0182173 + t * (1.2420401 - 0.21741801 * t)));
}

/// Two over the root of the shape, by which the skew is known.
double AsimetriaDePearson(double t3)
{
    constexpr double Tercio = 1.0 / 3;
    double forma = 0;
    if (t3 < Tercio) {
        const double z = 3 * std::numbers::pi * t3 * t3;
        forma = (1 + 0.2906 * z) / (z * (1 + z * (0.1882 + 0.0442 * z)));
    } else {
        const double z = 1 - t3;
        forma =
            z * (0.36067 + z * (-0.59567 + 0.25361 * z)) / (1 + z * (-2.78861 + z * (2.56096 - 0.77045 * z)));
    }
    return 2 / std::sqrt(forma);
}

/// t4 of a curve of the diagram of L-moments at its own t3, up to 0.5.
Comparacion Curtosis(const Ley& ley, std::array<double, 9> polinomio)
{
    Comparacion c;
    for (const Curva& curva : DiagramaDe({}, nullptr).leyes)
        for (const Punto& p : curva.puntos) {
            if (curva.ley != &ley || std::abs(p.x) > 0.5) continue;
            double t4 = 0;
            for (std::size_t i = polinomio.size(); i-- > 0;)
                t4 = t4 * p.x + polinomio[i];
            c.x.push_back(p.x);
            c.impreso.push_back(t4);
            c.nuestro.push_back(p.y);
        }
    return c;
}

/// The factors by which the mean is multiplied, for a coefficient of variation.
Comparacion Amplificacion(double cv, std::vector<double> impreso)
{
    Muestra m;
    m.positiva = true;
    m.directos.m = {1, cv, 0};
    return Cuantiles(SqrtEtmax, SqrtEtmax.porMomentos(m), {2, 5, 10, 25, 50, 100, 200, 500},
                     std::move(impreso));
}

constexpr std::string_view Coles =
    "S. Coles (2001), An Introduction to Statistical Modeling of Extreme Values, Springer, sección 3.4.1, "
    "páginas 59 y 60";
constexpr std::string_view Chow =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 12.2.1 y tabla "
    "12.2.1";
constexpr std::string_view ChowGuadalupe =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 12.3.1 y tabla "
    "12.1.1";
constexpr std::string_view Bulletin17B =
    "Interagency Advisory Committee on Water Data (1982), Guidelines for determining flood flow frequency, "
    "Bulletin 17B";
constexpr std::string_view Bulletin17C =
    "J. F. England y otros (2019), Guidelines for determining flood flow frequency, Bulletin 17C, U.S. "
    "Geological Survey, apéndice 10, tablas 10-2 a 10-9";
constexpr std::string_view Hosking =
    "J. R. M. Hosking y J. R. Wallis (1997), Regional Frequency Analysis, Cambridge University Press, "
    "apéndice";
constexpr std::string_view Carreteras =
    "Dirección General de Carreteras (1999), Máximas lluvias diarias en la España peninsular, Ministerio de "
    "Fomento, tabla de KT";

constexpr std::string_view MediaUnidad = "media unidad de la última cifra";
constexpr std::string_view Nivel = "nivel de retorno [m]", Caudal = "caudal [pie3/s]";
constexpr std::string_view Recurrencia = "recurrencia [años]", T3 = "asimetría L";
constexpr std::string_view PorqueTablas =
    "el libro toma el factor de frecuencia de una tabla con tres decimales: media unidad vale 0,05 %";
constexpr std::string_view PorqueKt = "la tabla va de a 0,0152: media unidad";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"GEV por máxima verosimilitud, Port Pirie", Coles,
     "65 niveles máximos anuales del mar, 1923 a 1987, del ejemplo 1.1", Nivel, Recurrencia, 0.005,
     MediaUnidad, false,
     [] {
         return Cuantiles(Gev, Ajusta(Gev, HazMuestra(PortPirie), Metodo::Verosimilitud), {10, 100},
                          {4.30, 4.69});
     }},
    {"GEV de Port Pirie, escala y forma", Coles, "los mismos 65 niveles",
     "escala [m] y forma de Coles, que es -k", "1: escala, 2: forma", 0.0005, MediaUnidad, false,
     [] {
         const Parametros p = De(Ajusta(Gev, HazMuestra(PortPirie), Metodo::Verosimilitud));
         return Comparacion{{1, 2}, {0.198, -0.050}, {p[1], -p[2]}};
     }},
    {"GEV por momentos L, forma", Hosking, "asimetrías L de -0.1 a 0.4", "forma k", T3, 0.0009,
     "la aproximación de Hosking, Wallis y Wood es buena hasta 0,0009 donde k no pasa de 0,5", true,
     [] {
         return Formas(Gev, 2, {-0.1, 0, 0.1, 0.1699, 0.2, 0.3, 0.4}, KDeGev);
     }},
    {"Gumbel por momentos, lluvias de 10 min en Chicago", Chow,
     "35 máximos anuales de 1913 a 1947, media 0.649 pulgadas, desvío 0.177", "lámina [pulgadas]",
     Recurrencia, 0.005, MediaUnidad, false,
     [] {
         return Cuantiles(Gumbel, Ajusta(Gumbel, HazMuestra(LluviasDeChicago), Metodo::Momentos), {5, 10, 50},
                          {0.78, 0.88, 1.11});
     }},
    {"Log-normal, río Guadalupe", ChowGuadalupe,
     "44 crecidas anuales de 1935 a 1978; media de los logaritmos 4.2743, desvío 0.4027", Caudal, Recurrencia,
     100, PorqueTablas, false,
     [] {
         Estimado e = Ajusta(LogNormal2, HazMuestra(Guadalupe), Metodo::Verosimilitud);
         if (e.p) (*e.p)[1] *= std::sqrt(44.0 / 43);  // the book's deviation is that of n - 1
         return Cuantiles(LogNormal2, e, {5, 50}, {41060, 126300});
     }},
    {"Log-Pearson III, río Guadalupe", ChowGuadalupe,
     "las mismas 44 crecidas, por momentos de los logaritmos", Caudal, Recurrencia, 100, PorqueTablas, false,
     [] {
         return Cuantiles(LogPearsonIII, Ajusta(LogPearsonIII, HazMuestra(Guadalupe), Metodo::Momentos),
                          {5, 50}, {41170, 121990});
     }},
    {"Pearson III, factores K", Bulletin17B, "apéndice 3: asimetría 1; de 2 a 1000 años", "factor K",
     Recurrencia, 5.1e-6, MediaUnidad, false,
     [] {
         return Cuantiles(PearsonIII, {Parametros{0, 1, 1}, {}, {}}, {2, 5, 25, 50, 100, 200, 500, 1000},
                          {-0.16397, 0.75752, 2.04269, 2.54206, 3.02256, 3.48874, 4.08802, 4.53112});
     }},
    {"Pearson III por momentos L, asimetría", Hosking, "asimetrías L de 0.05 a 0.6", "asimetría", T3, 0.0002,
     "la aproximación de Hosking da la forma hasta 0,005 %", true,
     [] {
         return Formas(PearsonIII, 2, {0.05, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6}, AsimetriaDePearson);
     }},
    {"Log-normal de 3 parámetros por momentos L", Hosking, "asimetrías L de 0.05 a 0.6",
     "desvío de los logaritmos", T3, 3e-6, "la aproximación de Hosking es buena hasta tres millonésimas",
     true,
     [] {
         return Formas(LogNormal3, 2, {0.05, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6}, SigmaDeLogNormal3);
     }},
    {"Gumbel, exponencial y normal, razones L", Hosking,
     "Gumbel 0.1699 y 0.1504, exponencial 0.3333 y 0.1667, normal 0 y 0.1226", "razón L",
     "1, 2: Gumbel, 3, 4: exponencial, 5: normal", 5.1e-5, MediaUnidad, false,
     [] {
         const RazonesL g = RazonesDe(Gumbel, {0, 1, 0}), e = RazonesDe(Exponencial, {0, 1, 0}),
                        n = RazonesDe(PearsonIII, {0, 1, 0});
         return Comparacion{
             {1, 2, 3, 4, 5}, {0.1699, 0.1504, 0.3333, 0.1667, 0.1226}, {g.t3, g.t4, e.t3, e.t4, n.t4}};
     }},
    {"Diagrama de momentos L, GEV", Hosking, "tabla A.3, polinomio de la curtosis L", "curtosis L", T3, 5e-4,
     "los polinomios son buenos hasta 0,0005", true,
     [] {
         return Curtosis(Gev, {0.10701, 0.11090, 0.84838, -0.06669, 0.00567, -0.04208, 0.03763, 0, 0});
     }},
    {"Diagrama de momentos L, log-normal", Hosking, "tabla A.3, polinomio de la curtosis L", "curtosis L", T3,
     5e-4, "los polinomios son buenos hasta 0,0005", true,
     [] {
         return Curtosis(LogNormal3, {0.12282, 0, 0.77518, 0, 0.12279, 0, -0.13638, 0, 0.11368});
     }},
    {"Diagrama de momentos L, Pearson III", Hosking, "tabla A.3, polinomio de la curtosis L", "curtosis L",
     T3, 5e-4, "los polinomios son buenos hasta 0,0005", true,
     [] {
         return Curtosis(PearsonIII, {0.12240, 0, 0.30115, 0, 0.95812, 0, -0.57488, 0, 0.19383});
     }},
    {"Log-Pearson III, río Moose", Bulletin17C,
     "68 crecidas anuales de 1947 a 2014, asimetría de la estación 0.397", Caudal, Recurrencia, 0.5,
     MediaUnidad, false,
     [] {
         return Cuantiles(LogPearsonIII, Ajusta(LogPearsonIII, HazMuestra(MooseRiver), Metodo::Momentos),
                          {10, 25, 50, 100, 200, 500}, {3261, 3911, 4422, 4957, 5519, 6313});
     }},
    {"Asimetría ponderada, río Moose", Bulletin17C, "asimetría regional 0.44, error medio cuadrático 0.078",
     "asimetría", "muestra", 0.0005, MediaUnidad, false,
     [] {
         const Muestra m = Con(MooseRiver, Bajos::Quedan, AsimetriaRegional{0.44, 0.078});
         return Comparacion{{1}, {0.421}, {De(Ajusta(LogPearsonIII, m, Metodo::Momentos))[2]}};
     }},
    {"Grubbs-Beck múltiple, arroyo Orestimba", Bulletin17C,
     "82 crecidas anuales de 1932 a 2013, 12 de ellas nulas", "cuántas son bajas", "muestra", 0.5,
     "es un número entero", false,
     [] {
         const Muestra m = HazMuestra(Orestimba);
         return Comparacion{{1}, {30}, {static_cast<double>(boletin17::BajosDe17C(m.x, m.secos))}};
     }},
    {"Momentos esperados, arroyo Orestimba", Bulletin17C,
     "las mismas 82 crecidas; 30 cuentan sólo como menores de 782", Caudal, Recurrencia, 5,
     "media unidad de la cuarta cifra", false,
     [] {
         return Cuantiles(
             LogPearsonIII, Ajusta(LogPearsonIII, Con(Orestimba, Bajos::Boletin17C), Metodo::Momentos),
             {2, 5, 10, 25, 50, 100, 200, 500}, {1339, 4026, 6328, 9426, 11690, 13820, 15800, 18150});
     }},
    {"Probabilidad condicional, arroyo Orestimba", Bulletin17B,
     "apéndice 5; 42 crecidas de 1932 a 1973, 6 nulas y una baja; asimetría regional -0.3", Caudal,
     Recurrencia, 0.05, "media unidad de la última cifra", true,
     [] {
         return Cuantiles(LogPearsonIII, Orestimba42(), {2, 10, 100, 500},
                          {1041.9, 6068.6, 19394.5, 32678.0});
     }},
    {"SQRT-ETmax, planilla de Zorraquino",
     "C. Zorraquino (2004), La función SQRT-ET max, Revista de Obras Públicas 3447, páginas 33 a 37, en su "
     "planilla "
     "de cálculo",
     "por momentos; media 51.73 mm, desvío 16.35 mm", "lámina [mm]", Recurrencia, 0.25,
     "la planilla saca k y la media de polinomios, buenos hasta 0,2 %", false,
     [] {
         Muestra m;
         m.positiva = true;
         m.directos.m = {51.73, 16.35, 0};
         return Cuantiles(SqrtEtmax, SqrtEtmax.porMomentos(m), {5, 10, 25, 50, 100, 200, 500},
                          {62.0, 72.0, 85.7, 96.5, 107.9, 119.8, 136.3});
     }},
    {"SQRT-ETmax, CV 0.30", Carreteras, "por momentos; coeficiente de variación 0.30", "factor KT",
     Recurrencia, 0.0077, PorqueKt, false,
     [] {
         return Amplificacion(0.30, {0.935, 1.194, 1.377, 1.625, 1.823, 2.022, 2.251, 2.541});
     }},
    {"SQRT-ETmax, CV 0.40", Carreteras, "por momentos; coeficiente de variación 0.40", "factor KT",
     Recurrencia, 0.0077, PorqueKt, false,
     [] {
         return Amplificacion(0.40, {0.909, 1.247, 1.492, 1.839, 2.113, 2.403, 2.708, 3.128});
     }},
    {"SQRT-ETmax, CV 0.45", Carreteras, "por momentos; coeficiente de variación 0.45", "factor KT",
     Recurrencia, 0.0077, PorqueKt, false,
     [] {
         return Amplificacion(0.45, {0.896, 1.274, 1.549, 1.945, 2.251, 2.586, 2.937, 3.433});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDeLeyes()
{
    return Filas;
}

}  // namespace frequency::casos
