// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Observada.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calibration {
namespace {

using study::Observacion;

/// Levels over a curve of three points.
Observacion DeNivel()
{
    return {.componente = "c-1", .magnitud = "nivel", .curva = {{0.4, 1.5}, {1.1, 9.75}, {2, 40}}};
}

TEST(Observada, LosCaudalesQuedanComoSeMidieron)
{
    const Observacion o{.componente = "u-1", .puntos = {{0, 1}, {10, 2.5}, {20, 2}}};
    const Observada q = ObservadaDe(o);
    EXPECT_EQ(q.puntos, o.puntos);
    EXPECT_EQ(q.paso, 10);
    EXPECT_TRUE(q.huecos.empty());
    EXPECT_TRUE(q.dudas.empty());
}

TEST(Observada, EntreDosPuntosDeLaCurvaSeInterpolanLogaritmosOLaRecta)
{
    Observacion o = DeNivel();
    // 1.5 (9.75/1.5)^(ln(0.7/0.4)/ln(1.1/0.4)), and 1.5 + 8.25·0.3/0.7
    EXPECT_NEAR(*CaudalDeNivel(o, 0.7), 4.2246764348227137, 1e-14);
    o.interpolacion = "lineal";
    EXPECT_NEAR(*CaudalDeNivel(o, 0.7), 5.0357142857142857, 1e-14);
    EXPECT_EQ(CaudalDeNivel(o, 0.4), 1.5);
    EXPECT_EQ(CaudalDeNivel(o, 1.1), 9.75);
    EXPECT_EQ(CaudalDeNivel(o, 2), 40);
}

TEST(Observada, FueraDeLaCurvaNadaSeExtrapolaYSeDice)
{
    Observacion o = DeNivel();
    o.puntos = {{0, 0.3}, {10, 0.4}, {20, 2.01}, {30, 2}, {40, 3}};
    const Observada q = ObservadaDe(o);
    EXPECT_EQ(q.puntos, (std::vector<study::Punto>{{10, 1.5}, {30, 40}}));
    EXPECT_EQ(q.dudas, (std::vector<std::string>{
                           "Entre los puntos de la curva de gasto se interpolan los logaritmos de nivel y "
                           "caudal.",
                           "1 nivel está por debajo del primer punto de la curva de gasto, 0.4 m: no se "
                           "extrapola y quedan sin caudal.",
                           "2 niveles están por encima del último punto de la curva de gasto, 2 m: no se "
                           "extrapola y quedan sin caudal."}));
}

TEST(Observada, UnaCurvaQueEmpiezaEnCeroSigueLaRectaHastaElPuntoSiguiente)
{
    Observacion o = DeNivel();
    o.curva.insert(o.curva.begin(), {0, 0});
    o.puntos = {{0, 0.2}};
    const Observada q = ObservadaDe(o);
    ASSERT_EQ(q.puntos.size(), 1U);
    EXPECT_NEAR(q.puntos[0].valor, 0.75, 1e-15);
    ASSERT_EQ(q.dudas.size(), 1U);
    EXPECT_EQ(q.dudas[0],
              "Entre los puntos de la curva de gasto se interpolan los logaritmos de nivel y "
              "caudal; hasta el nivel 0.4 m, linealmente, porque hay un nivel o un caudal que no "
              "es mayor que 0.");
}

TEST(Observada, SinCurvaQueSirvaNoHayCaudalesYSeDicePorQue)
{
    Observacion o = DeNivel();
    o.puntos = {{0, 1}};
    const auto dice = [&] {
        const Observada q = ObservadaDe(o);
        EXPECT_TRUE(q.puntos.empty());
        return q.dudas.at(0);
    };
    o.curva[2].nivel = 1.1;
    EXPECT_EQ(dice(),
              "El punto 3 de la curva de gasto, 1.1 m, no está más alto que el anterior. Los niveles "
              "no dan caudales.");
    o.curva[2] = {2, 9};
    EXPECT_EQ(dice(),
              "El punto 3 de la curva de gasto, 2 m, tiene menos caudal que el anterior. Los niveles "
              "no dan caudales.");
    o.curva.resize(1);
    EXPECT_EQ(dice(), "La curva de gasto necesita al menos dos puntos. Los niveles no dan caudales.");
}

TEST(Observada, HuecoEsDondeFaltanAlMenosDosLecturas)
{
    Observacion o{.componente = "u-1"};
    for (const double t : {0, 10, 20, 40, 50, 80, 90, 130})
        o.puntos.push_back({t, 1});
    const Observada q = ObservadaDe(o);
    EXPECT_EQ(q.paso, 10);
    EXPECT_EQ(q.huecos, (std::vector<Hueco>{{50, 80}, {90, 130}}));
    EXPECT_EQ(q.dudas.at(0),
              "2 huecos de más de 25 min (lo usual son 10 min); el mayor va del minuto 90 al 130. "
              "En ellos no se compara nada.");
}

TEST(Observada, LoDudosoSeDice)
{
    Observacion o{.componente = "u-1", .promedio = 15, .puntos = {{0, 1}, {10, -0.5}, {20, 2}}};
    o.ventanas = {{0, 20, 1}, {100, 200, 2}};
    EXPECT_EQ(ObservadaDe(o).dudas,
              (std::vector<std::string>{
                  "1 caudal es negativo.",
                  "Cada valor es el promedio de 15 min, más que los 10 min que pasan entre lecturas: los "
                  "promedios se superponen.",
                  "La ventana de 100 a 200 min no tiene ninguna lectura suya."}));
    EXPECT_EQ(ObservadaDe({}).paso, 0);
    EXPECT_EQ(PasoUsual(std::vector<study::Punto>{{3, 1}}), 0);
}

}  // namespace
}  // namespace calibration
