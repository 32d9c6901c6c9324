// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Planes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "checks/casos/Banco.h"
#include "engine/Calcula.h"
#include "frequency/tormenta/Patron.h"

namespace {

using frequency::FilaDeTormenta;
using frequency::PlanDeDistribucion;
using frequency::PlanDeTabla;

/// The law behind the delivered table of storms: 822·R^0.2/(D+10)^0.8 mm/h.
double Entregada(double d, double r)
{
    return 822 * std::pow(r, 0.2) / std::pow(d + 10, 0.8) * d / 60;
}

PlanDeTabla Planea(frequency::LaminaPorRecurrencia lamina, std::vector<std::int16_t> duraciones,
                   std::vector<std::int16_t> recurrencias)
{
    return frequency::PlaneaTabla({.lamina = std::move(lamina),
                                   .duraciones = std::move(duraciones),
                                   .recurrencias = std::move(recurrencias),
                                   .notas = "de \"prueba\"\r\n"});
}

TEST(Planes, LaTablaTieneDiecisieteDuracionesPorCatorceRecurrencias)
{
    const PlanDeTabla plan = frequency::PlaneaTabla({.lamina = Entregada});
    EXPECT_EQ(plan.error, "");
    ASSERT_EQ(plan.filas.size(), 17U * 14U);
    EXPECT_EQ(plan.filas[1].d, 10);
    EXPECT_EQ(plan.filas[1].p, 14);  // the first row of the delivered table
    EXPECT_EQ(plan.filas[17].r, 5);
    EXPECT_EQ(plan.filas.back().d, 2880);
    EXPECT_EQ(plan.filas.back().r, 10000);
    for (const FilaDeTormenta& fila : plan.filas) {
        EXPECT_LE(std::abs(fila.p - fila.exacta), 0.5);
        EXPECT_LE(std::abs(fila.p - fila.exacta) / fila.exacta, plan.desvio);
    }
    EXPECT_DOUBLE_EQ(plan.desvio, std::abs(plan.peor.p - plan.peor.exacta) / plan.peor.exacta);
    EXPECT_GT(plan.desvio, 0.01);
}

TEST(Planes, LasNotasNoLlevanComillasNiFinesDeRenglon)
{
    EXPECT_EQ(Planea(Entregada, {60}, {2}).notas, "de 'prueba'  ");
}

TEST(Planes, LoQueElRedondeoHaceSeDice)
{
    const PlanDeTabla plan = Planea([](double d, double r) { return d * r / 100; }, {5, 10, 60, 90}, {5, 10});
    EXPECT_EQ(plan.filas, (std::vector<FilaDeTormenta>{{1, 10, 5, 0.5},
                                                       {3, 60, 5, 3},
                                                       {5, 90, 5, 4.5},
                                                       {1, 5, 10, 0.5},
                                                       {1, 10, 10, 1},
                                                       {6, 60, 10, 6},
                                                       {9, 90, 10, 9}}));
    EXPECT_EQ(plan.avisos,
              (std::vector<std::string>{"1 fila redondea a 0 mm y no se escribe: terminaría la serie.",
                                        "1 fila queda con la lámina entera de la duración anterior."}));
    EXPECT_DOUBLE_EQ(plan.desvio, 1);
    EXPECT_EQ(plan.peor, (FilaDeTormenta{1, 10, 5, 0.5}));
}

TEST(Planes, LoQueLaTablaNoAdmiteQuedaFuera)
{
    const PlanDeTabla plan =
        Planea([](double d, double r) { return r > 5 ? d : d * 200; }, {30, 60}, {5, 10});
    EXPECT_EQ(plan.filas.size(), 3U);
    EXPECT_EQ(plan.avisos, (std::vector<std::string>{
                               "1 fila pasa de 9999 mm y no se escribe.",
                               "2 láminas son menores que las de la recurrencia anterior: las curvas se "
                               "cruzan."}));
    EXPECT_EQ(Planea([](double, double) { return 0.1; }, {30}, {2}).error,
              "No queda ninguna tormenta para la tabla.");
}

TEST(Planes, UnaLaminaQueDecreceOFaltaNoEsUnaTabla)
{
    EXPECT_EQ(
        Planea([](double d, double) { return 1000 / d; }, {30, 60}, {2}).error,
        "La lámina de 60 min y 2 años es menor que la de la duración anterior: las curvas no sirven para "
        "una tabla.");
    const auto nada = [](double, double) { return std::numeric_limits<double>::quiet_NaN(); };
    EXPECT_EQ(Planea(nada, {30, 60}, {25}).error, "No hay una lámina para 30 min y 25 años.");
}

TEST(Planes, LosPorcentajesEnterosSuman100PorMayorResto)
{
    const PlanDeDistribucion tres = frequency::PlaneaDistribucion(std::vector<double>{1, 1, 1}, 60, "");
    EXPECT_EQ(tres.porcentajes, (std::vector<std::int16_t>{34, 33, 33}));
    EXPECT_NEAR(tres.desvio, 2.0 / 300, 1e-12);
    const PlanDeDistribucion plan =
        frequency::PlaneaDistribucion(std::vector<double>{0.4, 12.5, 87.1}, 100, "");
    EXPECT_EQ(plan.porcentajes, (std::vector<std::int16_t>{0, 13, 87}));
    EXPECT_EQ(plan.avisos, (std::vector<std::string>{
                               "1 período con lluvia redondea a 0 %: menos períodos la guardarían mejor."}));
    EXPECT_NEAR(plan.desvio, 0.004, 1e-12);
}

TEST(Planes, LaValidezEncierraLaDuracion)
{
    const auto validez = [](double duracion) {
        const PlanDeDistribucion plan =
            frequency::PlaneaDistribucion(std::vector<double>{1, 2}, duracion, "");
        return std::pair{plan.durMin, plan.durMax};
    };
    EXPECT_EQ(validez(120), (std::pair<std::int16_t, std::int16_t>{120, 120}));
    EXPECT_EQ(validez(150), (std::pair<std::int16_t, std::int16_t>{120, 180}));
    EXPECT_EQ(validez(3), (std::pair<std::int16_t, std::int16_t>{5, 10}));
    EXPECT_EQ(validez(2880), (std::pair<std::int16_t, std::int16_t>{1440, 1440}));
    EXPECT_EQ(frequency::PlaneaDistribucion(std::vector<double>{1}, 2880, "").avisos.size(), 1U);
}

TEST(Planes, UnPatronSinLluviaODeMilPeriodosNoEntra)
{
    EXPECT_EQ(frequency::PlaneaDistribucion({}, 60, "").error, "El patrón no tiene lluvia.");
    EXPECT_EQ(frequency::PlaneaDistribucion(std::vector<double>{0, 0}, 60, "").error,
              "El patrón no tiene lluvia.");
    EXPECT_EQ(frequency::PlaneaDistribucion(std::vector<double>(1000, 1.0), 1000, "").error,
              "Son 1000 períodos; una distribución admite 999.");
    EXPECT_EQ(frequency::PlaneaDistribucion(std::vector<double>(999, 1.0), 999, "").error, "");
}

/// Two hours of Chicago's in steps of ten minutes.
std::vector<double> DosHoras(double total)
{
    frequency::PedidoDeTormenta p{.total = total, .duracion = 120, .paso = 10};
    p.lamina = [](double d) { return Entregada(d, 50); };
    return frequency::Reparte(frequency::Chicago, p).laminas;
}

// The engine's blocks are those of the whole percentages; they stay as near the pattern as the plan says.
TEST(Planes, ElMotorCorreLoRedondeado)
{
    constexpr double Total = 83.4;
    const std::vector<double> laminas = DosHoras(Total);
    const PlanDeDistribucion plan = frequency::PlaneaDistribucion(laminas, 120, "");
    const std::vector<double> bloques = frequency::HietogramaDelMotor(plan, Total, 120, 10);
    ASSERT_EQ(bloques.size(), laminas.size());
    double ideal = 0, corrida = 0, lejos = 0;
    for (std::size_t i = 0; i < bloques.size(); ++i) {
        EXPECT_NEAR(bloques[i], Total * plan.porcentajes[i] / 100, 1e-4) << i;
        ideal += laminas[i];
        corrida += bloques[i];
        lejos = std::max(lejos, std::abs(ideal - corrida));
    }
    EXPECT_NEAR(lejos, plan.desvio * Total, 1e-4);
    EXPECT_NEAR(corrida, Total, 1e-4);
}

TEST(Planes, LoQueSaleDeUnaCuencaQueNoGuardaNadaEsLaLamina)
{
    constexpr double Hectareas = 60, Total = 83.4;
    checks::casos::Banco banco;
    banco.PonUEH("0", Hectareas, 10);
    banco.tormenta.PpTormenta = 83.4F;
    banco.tormenta.DurTormenta = 120;
    banco.tormenta.DistriPp = 7;
    banco.pasos = {.PasoPp = 10, .PasoQ = 10, .N0Dur = 60};
    const PlanDeDistribucion plan = frequency::PlaneaDistribucion(DosHoras(Total), 120, "");
    model::TablasDeLluvia tablas;
    tablas.NroFilasTabla[3] = static_cast<std::int16_t>(plan.porcentajes.size());
    tablas.DisPerso.Dimensiona(3, tablas.NroFilasTabla[3] + 1);
    for (int j = 1; j <= tablas.NroFilasTabla[3]; ++j)
        tablas.DisPerso(3, j) = plan.porcentajes[static_cast<std::size_t>(j) - 1];
    const engine::Calculo calculo = engine::Calcula(banco.red, banco.tormenta, banco.pasos, tablas);
    ASSERT_EQ(calculo.fin, engine::FinCalculo::Completo);
    const std::vector<double> sale = checks::casos::Columna(calculo.Resultados.QSale, 1, 18);
    // 1 m3/s over 10 min on 60 ha is 1 mm.
    EXPECT_NEAR(std::accumulate(sale.begin(), sale.end(), 0.0), Total, 1e-3);
    for (std::size_t k = 1; k <= plan.porcentajes.size(); ++k)
        EXPECT_NEAR(sale[k], Total * plan.porcentajes[k - 1] / 100, 1e-3) << k;
}

}  // namespace
