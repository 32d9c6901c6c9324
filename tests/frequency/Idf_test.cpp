// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "frequency/idf/Curvas.h"
#include "frequency/idf/EscribeIdf.h"

namespace {

using namespace frequency::idf;

// --- families ---

struct CasoDeFamilia {
    const char* familia;
    Coeficientes c;
    double duracion, recurrencia, intensidad;
};

// Worked out with 20 digits: 652.4 50^0.26 / 65^0.71, 381.12 10^0.37 / 60^0.85, ...
const CasoDeFamilia CasosDeFamilia[] = {
    {"sherman", {652.4, 0.26, 5, 0.71}, 60, 50, 93.127441195152711887},
    {"bernard", {381.12, 0.37, 0.85}, 60, 10, 27.519033504136467572},
    {"talbot", {3000, 0.2, 25}, 30, 10, 86.448719588788008284},
    {"wenzel", {96.6, 0, 13.9, 0.97}, 120, 10, 0.81971714859809932904},
    {"dit", {0.38, 0.15, 5.179}, 60, 10, 59.975309103673249939},
    {"libre", {2693.83, 29.83, 0.898}, 60, 2, 47.445799390207477688},
};

TEST(Familias, DanLaIntensidadDeSuFormula)
{
    for (const CasoDeFamilia& caso : CasosDeFamilia) {
        const Familia* f = FamiliaDeClave(caso.familia);
        ASSERT_NE(f, nullptr) << caso.familia;
        EXPECT_NEAR(std::exp(f->logIntensidad(caso.c, caso.duracion, caso.recurrencia)), caso.intensidad,
                    1e-12 * caso.intensidad)
            << caso.familia;
    }
    EXPECT_EQ(FamiliaDeClave("nadie"), nullptr);
    EXPECT_NEAR(FactorDit(10), 1.2808884872352651779, 1e-14);
    EXPECT_NEAR(PersistenciaDit(60), 10.478697750410587409, 1e-13);
}

// --- fit ---

std::vector<Punto> Curva(const Familia& f, const Coeficientes& c, const std::vector<double>& T = {2, 10, 100})
{
    std::vector<Punto> puntos;
    for (const double t : T)
        for (const double d : {5.0, 15.0, 60.0, 180.0, 720.0, 1440.0})
            puntos.push_back({d, t, std::exp(f.logIntensidad(c, d, t))});
    return puntos;
}

TEST(AjusteDeFamilia, RecuperaLosCoeficientesDeUnaCurvaExacta)
{
    for (const CasoDeFamilia& caso : CasosDeFamilia)
        for (const Criterio criterio : {Criterio::Logaritmos, Criterio::Relativo}) {
            const Familia& f = *FamiliaDeClave(caso.familia);
            const AjusteDeFamilia a = Ajusta(f, Curva(f, caso.c), criterio);
            ASSERT_EQ(a.coeficientes.size(), f.porRecurrencia ? 3U : 1U) << caso.familia << a.nota;
            for (const CoeficientesDeT& k : a.coeficientes)
                for (std::size_t i = 0; i < f.cuantos; ++i)
                    EXPECT_NEAR(k.c[i], caso.c[i], 1e-6 * (1 + std::abs(caso.c[i])))
                        << caso.familia << " " << f.coeficientes[i].simbolo;
            EXPECT_NEAR(a.calidad.r2, 1, 1e-12);
            EXPECT_LT(std::abs(a.calidad.errorMaximo), 1e-8) << caso.familia;
        }
}

// A straight line in logarithms has no shift: b ends on its bound, and the rest is that of Bernard.
TEST(AjusteDeFamilia, SeQuedaEnElLimite)
{
    const Familia& bernard = *FamiliaDeClave("bernard");
    const AjusteDeFamilia a =
        Ajusta(*FamiliaDeClave("sherman"), Curva(bernard, {500, 0.25, 0.75}), Criterio::Logaritmos);
    const Coeficientes& c = a.coeficientes.at(0).c;
    EXPECT_NEAR(c[0], 500, 1e-3);
    EXPECT_NEAR(c[1], 0.25, 1e-8);
    EXPECT_NEAR(c[2], 0, 1e-5);
    EXPECT_GE(c[2], 0);
    EXPECT_NEAR(c[3], 0.75, 1e-7);
}

// i of 1 and 3 at every place: a constant takes their geometric mean by logarithms, sqrt(3); by relative
// errors (x - 1)^2 + (x/3 - 1)^2 is least at x = (1 + 1/3) / (1 + 1/9) = 1.2.
TEST(AjusteDeFamilia, CadaCriterioHaceMinimoLoSuyo)
{
    std::vector<Punto> puntos;
    for (const double T : {2.0, 100.0})
        for (const double d : {10.0, 100.0, 1000.0})
            for (const double i : {1.0, 3.0})
                puntos.push_back({d, T, i * std::pow(T, 0.2) / d});
    const Familia& f = *FamiliaDeClave("bernard");
    EXPECT_NEAR(Ajusta(f, puntos, Criterio::Logaritmos).coeficientes.at(0).c[0], std::sqrt(3.0), 1e-9);
    EXPECT_NEAR(Ajusta(f, puntos, Criterio::Relativo).coeficientes.at(0).c[0], 1.2, 1e-8);
}

TEST(AjusteDeFamilia, DiceCuandoNoAlcanza)
{
    const std::vector<Punto> dos{{60, 2, 40}, {120, 2, 25}, {60, 10, 50}, {120, 10, 30}};
    EXPECT_EQ(Ajusta(*FamiliaDeClave("sherman"), dos, Criterio::Logaritmos).nota,
              "Sherman se ajusta a 3 duraciones por lo menos; hay 2.");
    EXPECT_EQ(Ajusta(*FamiliaDeClave("talbot"), {{{60, 2, 40}, {120, 2, 25}}}, Criterio::Logaritmos).nota,
              "Talbot se ajusta a dos recurrencias por lo menos.");
    EXPECT_TRUE(Ajusta(*FamiliaDeClave("bernard"), dos, Criterio::Logaritmos).nota.empty());
}

TEST(AjusteDeFamilia, EntreDosRecurrenciasVaPorLogaritmos)
{
    const Familia& libre = *FamiliaDeClave("libre");
    const std::vector<CoeficientesDeT> c{{10, {1000, 0, 1}}, {1000, {4000, 0, 1}}};
    EXPECT_NEAR(IntensidadDe(libre, c, 100, 100), 20, 1e-12);  // half way: sqrt(10 40)
    EXPECT_NEAR(IntensidadDe(libre, c, 100, 10), 10, 1e-12);
    EXPECT_TRUE(std::isnan(IntensidadDe(libre, c, 100, 2)));
    EXPECT_TRUE(std::isnan(IntensidadDe(libre, c, 100, 2000)));
}

// --- disaggregation ---

double Parte(const char* clave, double duracion, const Datos& datos = {})
{
    return DesagregacionDeClave(clave)->parte(datos, duracion);
}

// Worked out with 20 digits. The formulas of 1990 and 2016 agree to the digits that the second prints.
TEST(Desagregacion, DaLaParteDeSuFormula)
{
    EXPECT_NEAR(Parte("dick-peschke", 60), 0.45180100180492241598, 1e-15);
    EXPECT_NEAR(Parte("5.2-ic", 60, {{11}, {}}), 0.45833333333333333333, 1e-15);
    EXPECT_NEAR(Parte("5.2-ic", 120, {{11}, {}}), 0.59320237633267521257, 1e-15);
    EXPECT_NEAR(Parte("5.2-ic", 1440, {{11}, {}}), 1.138185037762081028, 1e-14);
    EXPECT_NEAR(Parte("5.2-ic-2016", 120, {{11, 1.13}, {}}), 0.59320578659516012957, 1e-14);
    EXPECT_NEAR(Parte("5.2-ic-2016", 1440, {{11, 1.13}, {}}), 1.138219144257325867, 1e-14);
    EXPECT_NEAR(Parte("dit", 60, {{0.15}, {}}), 0.51935292251985892951, 1e-14);
    EXPECT_NEAR(Parte("dit", 1440, {{0.15}, {}}), 1, 1e-15);
    EXPECT_EQ(DesagregacionDeClave("nadie"), nullptr);
}

const std::vector<study::Razon> Razones{{60, 0.30}, {120, 0.39}, {1440, 1}};

TEST(Desagregacion, LasRazonesSeInterpolanYNoSeExtienden)
{
    EXPECT_EQ(RazonDe(Razones, 60), 0.30);
    EXPECT_EQ(RazonDe(Razones, 1440), 1);
    EXPECT_NEAR(RazonDe(Razones, 90), 0.34976298203527285674, 1e-15);
    EXPECT_TRUE(std::isnan(RazonDe(Razones, 59)));
    EXPECT_TRUE(std::isnan(RazonDe(Razones, 1441)));
}

// Fb = kb 0.30 1440/60 = 8.136 of the day's mean against Fa = 11: Fa stands; against Fa = 5 it gives way.
TEST(Desagregacion, LaNormaDe2016TomaElMayorFactor)
{
    EXPECT_NEAR(Parte("5.2-ic-2016", 60, {{11, 1.13}, Razones}), 11.0 / 24, 1e-12);
    EXPECT_NEAR(Parte("5.2-ic-2016", 60, {{5, 1.13}, Razones}), 1.13 * 0.30, 1e-12);
    EXPECT_NEAR(Parte("5.2-ic-2016", 30, {{5, 1.13}, Razones}),
                std::pow(5, 3.5287 - 2.5287 * std::pow(0.5, 0.1)) / 48, 1e-12);
}

TEST(Reduccion, EsUnoHastaUnKilometroCuadrado)
{
    const Reduccion& ka = *ReduccionDeClave("5.2-ic");
    EXPECT_EQ(ka.factor(0.5, 0), 1);
    EXPECT_EQ(ka.factor(1, 0), 1);
    EXPECT_NEAR(ka.factor(380, 0), 0.82801442689221265622, 1e-15);
    EXPECT_EQ(ReduccionDeClave("propia")->factor(380, 0.9), 0.9);
    EXPECT_EQ(ReduccionDeClave(""), nullptr);
}

// --- curves ---

/// A series of forty years, its law fixed.
study::SerieDeMaximos Serie(double duracion, double escala, bool lecturaDiaria = false)
{
    study::SerieDeMaximos s;
    s.duracion = duracion;
    s.lecturaDiaria = lecturaDiaria;
    s.ley = "gumbel";
    s.metodo = "l";
    for (int i = 0; i < 40; ++i)
        s.maximos.push_back({.anio = 1950 + i, .valor = escala * (45 + (i * 29) % 41)});
    return s;
}

study::Estacion Estacion(std::vector<study::SerieDeMaximos> series)
{
    study::Estacion e;
    e.nombre = "Quelmar";
    e.series = std::move(series);
    return e;
}

study::Idf Diaria(const std::string& desagregacion, std::vector<study::Coeficiente> c = {})
{
    study::Idf pedido;
    pedido.familia = "";
    pedido.desagregacion = desagregacion;
    pedido.coeficientes = std::move(c);
    return pedido;
}

Curvas De(const study::Idf& pedido, const study::Estacion& e)
{
    return Calcula(pedido, {&e, 1});
}

bool Dice(const std::vector<std::string>& textos, const std::string& parte)
{
    return std::any_of(textos.begin(), textos.end(),
                       [&](const std::string& t) { return t.find(parte) != std::string::npos; });
}

// A reading once a day becomes 24 hours once: by the factor where the formula starts from 24 hours, by the
// formula itself where it starts from the reading.
TEST(Curvas, ElFactorDeLecturaDiariaSeAplicaUnaSolaVez)
{
    const study::Estacion lectura = Estacion({Serie(1440, 1, true)}), corrida = Estacion({Serie(1440, 1)});
    const double p24 = Lamina(De(Diaria("dick-peschke"), corrida), 1440, 50);
    const Curvas conFactor = De(Diaria("dick-peschke"), lectura);
    EXPECT_NEAR(Lamina(conFactor, 1440, 50), 1.13 * p24, 1e-9);
    EXPECT_TRUE(Dice(conFactor.avisos, "las láminas de 24 horas son las suyas por 1.13."));

    const study::Idf instruccion = Diaria("5.2-ic", {{"I1Id", 10}});
    const Curvas sinFactor = De(instruccion, lectura);
    EXPECT_NEAR(Intensidad(sinFactor, 60, 50), 10 * p24 / 24, 1e-9);
    EXPECT_TRUE(Dice(sinFactor.avisos, "el factor 1.13 no se aplica otra vez."));
    const Curvas devuelto = De(instruccion, corrida);
    EXPECT_NEAR(Intensidad(devuelto, 60, 50), 10 * p24 / 1.13 / 24, 1e-9);
    EXPECT_TRUE(Dice(devuelto.avisos, "se los divide por 1.13."));
}

TEST(Curvas, SinFamiliaSonLasDeLaDesagregacion)
{
    const Curvas c = De(Diaria("dick-peschke"), Estacion({Serie(1440, 1)}));
    ASSERT_TRUE(c.errores.empty());
    EXPECT_NEAR(Lamina(c, 90, 100) / Lamina(c, 1440, 100), 0.5, 1e-12);  // (1/16)^0.25
    EXPECT_EQ(c.ajuste.familia, nullptr);
    EXPECT_EQ(c.puntos.size(), 16U * 14U);  // 2880 min are beyond it
    EXPECT_TRUE(
        Dice(c.avisos, "Dick-Peschke vale de 5 a 1440 min: la lámina de 2880 min es una extrapolación."));
    EXPECT_TRUE(Dice(c.avisos, "por encima de unos 80 años"));
    EXPECT_TRUE(Cruces(TablaDe(c)).empty());
}

TEST(Curvas, DeVariasDuracionesAjustanLaFamilia)
{
    // Scales of 24 hours by Dick-Peschke's power: the family finds a straight line again.
    const study::Estacion e =
        Estacion({Serie(1440, 1), Serie(60, std::pow(60 / 1440.0, 0.25)), Serie(360, std::pow(0.25, 0.25))});
    study::Idf pedido;
    pedido.origen = "series";
    pedido.familia = "bernard";
    const Curvas c = De(pedido, e);
    ASSERT_TRUE(c.errores.empty()) << c.errores.front();
    EXPECT_NEAR(c.ajuste.coeficientes.at(0).c[2], 0.75, 1e-9);
    EXPECT_EQ(c.puntos.size(), 3U * 14U);
    ASSERT_EQ(c.leyes.size(), 3U);
    EXPECT_EQ(c.leyes[0].duracion, 60);
    EXPECT_TRUE(Dice(c.avisos,
                     "Los máximos son de 60 a 1440 min: la lámina de 5, 10, 15, 20, 30 y 2880 min es una "
                     "extrapolación."));
}

// Gumbel's quantiles aren't a power of T: over 2 to 10000 years they leave it by more than a tenth, at each T
// none.
TEST(Curvas, LaFamiliaQueSeApartaSeDice)
{
    study::Idf pedido = Diaria("dick-peschke");
    pedido.familia = "sherman";
    const study::Estacion e = Estacion({Serie(1440, 1)});
    EXPECT_TRUE(Dice(De(pedido, e).avisos, "Sherman se aparta hasta "));
    pedido.familia = "libre";
    EXPECT_FALSE(Dice(De(pedido, e).avisos, "se aparta"));
}

TEST(Curvas, LaLeyQueNadieEligioEsLaRecomendada)
{
    study::SerieDeMaximos s = Serie(1440, 1);
    s.ley.clear();
    const Curvas c = De(Diaria("dick-peschke"), Estacion({s}));
    ASSERT_TRUE(c.errores.empty());
    EXPECT_TRUE(c.leyes.at(0).recomendada);
    EXPECT_TRUE(Dice(c.avisos, "Nadie eligió la ley de 1440 min: se toma la recomendada, "));
}

TEST(Curvas, DeCoeficientes)
{
    study::Idf pedido;
    pedido.origen = "coeficientes";
    pedido.coeficientes = {{"k", 822}, {"a", 0.2}, {"b", 10}, {"c", 0.8}};
    const Curvas c = Calcula(pedido, {});
    ASSERT_TRUE(c.errores.empty());
    EXPECT_NEAR(Intensidad(c, 60, 10), 822 * std::pow(10, 0.2) / std::pow(70, 0.8), 1e-10);
    EXPECT_NEAR(Lamina(c, 10, 2), Intensidad(c, 10, 2) / 6, 1e-12);

    pedido.familia = "libre";
    pedido.coeficientes = {{"a", 900, 10},   {"b", 12, 10},  {"c", 0.8, 10},
                           {"a", 1500, 100}, {"b", 12, 100}, {"c", 0.8, 100}};
    const Curvas libre = Calcula(pedido, {});
    ASSERT_TRUE(libre.errores.empty());
    EXPECT_NEAR(Intensidad(libre, 30, 100), 1500 / std::pow(42, 0.8), 1e-10);
    EXPECT_TRUE(std::isnan(Intensidad(libre, 30, 2)));
}

TEST(Curvas, LaReduccionArealBajaTodaLamina)
{
    study::Idf pedido = Diaria("dick-peschke");
    const study::Estacion e = Estacion({Serie(1440, 1)});
    const double puntual = Lamina(De(pedido, e), 60, 10);
    pedido.reduccion = "5.2-ic";
    pedido.area = 380;
    EXPECT_NEAR(Lamina(De(pedido, e), 60, 10), 0.82801442689221265622 * puntual, 1e-10);
    pedido.area = 4000;
    EXPECT_TRUE(Dice(De(pedido, e).avisos, "hasta 3000 km2"));
    pedido.reduccion = "propia";
    pedido.coeficientes = {{"KA", 0.9}};
    EXPECT_NEAR(Lamina(De(pedido, e), 60, 10), 0.9 * puntual, 1e-10);
}

// c of 1.2 with b of 10: i d/60 is greatest at d = b/(c - 1) = 50 min. Two recurrences of libre that cross.
TEST(Curvas, LosCrucesSeDicenYNoSeCorrigen)
{
    study::Idf pedido;
    pedido.origen = "coeficientes";
    pedido.coeficientes = {{"k", 5000}, {"a", 0.2}, {"b", 10}, {"c", 1.2}};
    Curvas c = Calcula(pedido, {});
    ASSERT_TRUE(c.errores.empty());
    EXPECT_LT(Lamina(c, 60, 10), Lamina(c, 50, 10));
    std::vector<std::string> cruces = Cruces(TablaDe(c));
    EXPECT_EQ(cruces.size(), 14U * 11U);  // 60 to 90 min and on
    EXPECT_TRUE(Dice(cruces, "La lámina no crece con la duración: de 60 a 90 min pasa de "));

    pedido.familia = "libre";
    pedido.coeficientes = {{"a", 900, 10},  {"b", 12, 10},  {"c", 0.8, 10},
                           {"a", 800, 100}, {"b", 12, 100}, {"c", 0.7, 100}};
    c = Calcula(pedido, {});
    cruces = Cruces(TablaDe(c));
    // 900/800 = (d + 12)^0.1 never from 5 min on: it would be at d < 0. With a of 600, up to (1.5)^10 - 12
    // = 45.7.
    EXPECT_TRUE(cruces.empty());
    pedido.coeficientes[3].valor = 600;
    cruces = Cruces(TablaDe(Calcula(pedido, {})));
    ASSERT_EQ(cruces.size(),
              5U * 5U);  // 5, 10, 15, 20, 30 min; 10, 20, 25, 40, 50 to 100 years in five steps
    EXPECT_TRUE(Dice(cruces, "La lámina no crece con la recurrencia: de 10 a 20 años pasa de "));
    EXPECT_TRUE(Dice(cruces, ", para 30 min."));
}

struct CasoMalo {
    const char* nombre;
    study::Idf pedido;
    study::Estacion estacion;
    std::string error;
};

study::Idf Con(study::Idf pedido, void (*cambia)(study::Idf&))
{
    cambia(pedido);
    return pedido;
}

TEST(Curvas, DicenPorQueNoHay)
{
    study::Estacion corta = Estacion({Serie(1440, 1)}), negativa = corta,
                    doble = Estacion({Serie(60, 1), Serie(60, 1)});
    corta.series[0].maximos.resize(9);
    negativa.series[0].maximos[3].valor = -1;
    const study::Estacion una = Estacion({Serie(1440, 1)});
    const CasoMalo casos[] = {
        {"corta", Diaria("dick-peschke"), corta,
         "La serie de 1440 min tiene 9 años con lluvia; hacen falta 10."},
        {"negativa", Diaria("dick-peschke"), negativa,
         "La serie de 1440 min tiene un valor negativo en 1953."},
        {"sin diaria", Diaria("dick-peschke"), Estacion({Serie(60, 1)}),
         "La estación no tiene máximos diarios (de 1440 min)."},
        {"clave", Diaria("otra"), una, "No hay una desagregación \"otra\"."},
        {"sin I1Id", Diaria("5.2-ic"), una,
         "Falta el coeficiente I1Id de 5.2-IC de 1990: torrencialidad, la intensidad de una hora "
         "sobre la "
         "del día."},
        {"I1Id", Diaria("5.2-ic", {{"I1Id", 50}}), una, "El coeficiente I1Id debe estar entre 1 y 20."},
        {"sin razones", Diaria("razones"), una, "Las razones propias son dos por lo menos, con su duración."},
        {"factor", Con(Diaria("dick-peschke"), [](study::Idf& i) { i.factorDiario = 2; }), una,
         "El factor de un día a 24 horas debe estar entre 1 y 1.5."},
        {"estación", Con(Diaria("dick-peschke"), [](study::Idf& i) { i.estacion = "Ruvera"; }), una,
         "No hay una estación \"Ruvera\"."},
        {"área", Con(Diaria("dick-peschke"), [](study::Idf& i) { i.reduccion = "5.2-ic"; }), una,
         "Para reducir por el área falta el área de la cuenca, en km2."},
        {"familia", Con(Diaria("dick-peschke"), [](study::Idf& i) { i.familia = "otra"; }), una,
         "No hay una familia de curvas \"otra\"."},
        {"una sola", Con({}, [](study::Idf& i) { i.origen = "series"; }), una,
         "Para ajustar curvas hacen falta máximos de dos duraciones por lo menos; con los de un día solo, "
         "elija una "
         "desagregación."},
        {"dobles", Con({}, [](study::Idf& i) { i.origen = "series"; }), doble, "Hay dos series de 60 min."},
        {"coeficiente", Con({}, [](study::Idf& i) { i.origen = "coeficientes"; }), una,
         "Falta el coeficiente k de Sherman: i = k T^a / (d + b)^c."},
        {"límite",
         Con({},
             [](study::Idf& i) {
                 i.origen = "coeficientes";
                 i.coeficientes = {{"k", 822}, {"a", 0.2}, {"b", -10}, {"c", 0.8}};
             }),
         una, "El coeficiente b debe estar entre 0 y 10000."},
    };
    for (const CasoMalo& caso : casos) {
        const Curvas c = De(caso.pedido, caso.estacion);
        ASSERT_FALSE(c.errores.empty()) << caso.nombre;
        EXPECT_EQ(c.errores.front(), caso.error) << caso.nombre;
    }
    EXPECT_EQ(Calcula(Diaria("dick-peschke"), {}).errores.front(),
              "No hay máximos: falta una estación con sus series.");
}

TEST(Curvas, LosAniosSinLluviaCuentan)
{
    study::SerieDeMaximos s = Serie(1440, 1);
    const double todos = Lamina(De(Diaria("dick-peschke"), Estacion({s})), 1440, 10);
    for (int i = 0; i < 10; ++i)
        s.maximos.push_back({.anio = 2000 + i, .valor = 0});
    const Curvas c = De(Diaria("dick-peschke"), Estacion({s}));
    EXPECT_NEAR(c.leyes.at(0).p0, 0.2, 1e-15);
    // F = 0.2 + 0.8 G: 10 years are those of G = 0.875, 8 years of the rest.
    EXPECT_LT(Lamina(c, 1440, 10), todos);
    EXPECT_NEAR(Lamina(c, 1440, 10), Lamina(De(Diaria("dick-peschke"), Estacion({Serie(1440, 1)})), 1440, 8),
                1e-9);
}

}  // namespace
