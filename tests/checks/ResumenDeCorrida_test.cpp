// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/ResumenDeCorrida.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "checks/CorridaDePrueba.h"
#include "model/Numeros.h"
#include "results/CorridaDeMuestra.h"

namespace checks {
namespace {

using Textos = std::vector<std::string>;

/// u-1 -> c-1 of CorridaDePrueba: 60 mm in 60 min on 1 km2, all of it excess, over a slope of 60 min. The
/// hydrograph is a triangle: up to 10/10·0.166667·100 = 16.6667 m3/s at minute 60, back to 0 at minute 120;
/// 60 mm·100 ha = 60000 m3.
class ResumenAMano : public testing::Test, protected pruebas::CorridaDePrueba {
  protected:
    Resumen Corrido()
    {
        const model::Tormenta entrada = s.Tormenta;
        engine::Calculo c = Corre();
        EXPECT_EQ(c.fin, engine::FinCalculo::Completo);
        s.Resultados = c.Resultados;
        s.Tormenta = c.Tormenta;
        corrida = checks::UltimaCorrida::DeUna(s, entrada, true);
        return ResumenDe(*corrida);
    }
    static std::string Celda(const Resumen& r, std::size_t fila, std::string_view encabezado)
    {
        const auto& columnas = r.planilla.columnas;
        for (std::size_t k = 0; k < columnas.size(); ++k)
            if (columnas[k].encabezado == encabezado) return r.planilla.filas.at(fila).at(k);
        ADD_FAILURE() << encabezado;
        return {};
    }
    static bool Roja(const Resumen& r, std::size_t fila, std::string_view encabezado)
    {
        const auto& columnas = r.planilla.columnas;
        for (std::size_t k = 0; k < columnas.size(); ++k)
            if (columnas[k].encabezado == encabezado) return r.rojas.at(fila).at(k);
        return false;
    }
    static Textos Primera(const Resumen& r)
    {
        Textos nombres;
        for (const auto& fila : r.planilla.filas)
            nombres.push_back(fila.front());
        return nombres;
    }
    std::shared_ptr<const checks::UltimaCorrida> corrida{};
};

TEST_F(ResumenAMano, UnaUEHUnCauceYLaCuenca)
{
    const Resumen r = Corrido();
    ASSERT_EQ(Primera(r), (Textos{"u-1", "c-1", "Cuenca"}));
    EXPECT_EQ(r.nombres, (Textos{"u-1", "c-1", ""}));
    //             Qentra    Qsale     tentra tsale  Ventra   Vsale  error  %        H   rev  km2   q       C
    EXPECT_EQ(r.planilla.filas[0], (Textos{"u-1", "", "16.667", "", "60", "", "60000", "0", "0.000", "", "",
                                           "1.000", "16.667", "100.00"}));
    EXPECT_EQ(r.planilla.filas[1], (Textos{"c-1", "16.667", "16.667", "60", "70", "60000", "60000", "0",
                                           "0.000", "", "", "1.000", "16.667", ""}));
    EXPECT_EQ(r.planilla.filas[2], (Textos{"Cuenca", "", "16.667", "", "70", "", "60000", "0", "0.000", "",
                                           "", "1.000", "16.667", "100.00"}));
    EXPECT_EQ(r.hidrogramas, (std::vector<Textos>{{"u-1"}, {"c-1"}, {"c-1"}}));
    EXPECT_EQ(r.planilla.columnas[1].encabezado, "Qp entra [m3/s]");
    EXPECT_EQ(r.planilla.columnas[12].encabezado, "q esp. [m3/s/km2]");
    EXPECT_TRUE(r.planilla.columnas[0].deTexto);
}

// u-2, half as large, drains nowhere: 8.3333 m3/s at minute 60. Together with c-1, which is 10 min later:
// 8.3333·50/60 + 16.6667 = 23.6111 at minute 70, more than the 8.3333 + 13.8889 of minute 60.
TEST_F(ResumenAMano, DosSalidasSonLaCuencaJuntas)
{
    UEH("u-2", "0").Area = 50;
    const Resumen r = Corrido();
    ASSERT_EQ(Primera(r), (Textos{"u-1", "u-2", "c-1", "Cuenca"}));
    EXPECT_EQ(Celda(r, 3, "Qp sale [m3/s]"), "23.611");
    EXPECT_EQ(Celda(r, 3, "tp sale [min]"), "70");
    EXPECT_EQ(Celda(r, 3, "V sale [m3]"), "90000");
    EXPECT_EQ(Celda(r, 3, "Área [km2]"), "1.500");
    EXPECT_EQ(Celda(r, 3, "q esp. [m3/s/km2]"), "15.741");
    EXPECT_EQ(Celda(r, 1, "q esp. [m3/s/km2]"), "16.667");
    EXPECT_EQ(r.hidrogramas[3], (Textos{"u-2", "c-1"}));
}

// Nothing flows out of 3 ha with walls: 60000 m3 stand 2 m high, and 3 m of the table are left.
TEST_F(ResumenAMano, AlturaYRevanchaDeUnaRepresa)
{
    Represa("Piscina Nivelada", Prisma(3, 0, 5));
    const Resumen r = Corrido();
    ASSERT_EQ(Primera(r), (Textos{"u-1", "c-1", "r-1", "Cuenca"}));
    EXPECT_EQ(Celda(r, 2, "H máx [m]"), "102.00");
    EXPECT_EQ(Celda(r, 2, "Revancha [m]"), "3.00");
    EXPECT_EQ(Celda(r, 2, "V entra [m3]"), "60000");
    EXPECT_EQ(Celda(r, 2, "V sale [m3]"), "0");
    EXPECT_EQ(Celda(r, 2, "tp sale [min]"), "") << "what never flows has no time of its peak";
    EXPECT_EQ(Celda(r, 2, "Área [km2]"), "1.000");
    EXPECT_FALSE(Roja(r, 2, "Revancha [m]"));
    EXPECT_EQ(Celda(r, 1, "H máx [m]"), "");
}

// The outflow's functions end at 104 m, 1 m below the table.
TEST_F(ResumenAMano, LaRevanchaEsHastaElMasBajoDeLosTopes)
{
    model::Represa& r1 = Represa("Piscina Nivelada", Prisma(3, 0, 5));
    r1.optTabla = false;
    r1.chkFQ[0] = 1;
    r1.FQb[0] = 1;
    r1.FQmin[0] = 100;
    r1.FQMax[0] = 104;
    EXPECT_EQ(Celda(Corrido(), 2, "Revancha [m]"), "2.00");
}

// The table ends 1 m up, at 30000 m3: the other 30000 would stand 1 m above it.
TEST_F(ResumenAMano, LoQueNoCabeEsRevanchaBajoCero)
{
    Represa("Piscina Nivelada", Prisma(3, 0, 1));
    const Resumen r = Corrido();
    EXPECT_EQ(Celda(r, 2, "H máx [m]"), "101.00");
    EXPECT_EQ(Celda(r, 2, "Revancha [m]"), "-1.00");
    EXPECT_TRUE(Roja(r, 2, "Revancha [m]"));
    // Within 5 mm of the level, 150 m3: where the pool's bisection ends.
    EXPECT_NEAR(std::stod(Celda(r, 2, "Error [m3]")), 30000, 150);
    EXPECT_NEAR(std::stod(Celda(r, 2, "Error [%]")), 50, 0.25);
    EXPECT_TRUE(Roja(r, 2, "Error [%]"));
    EXPECT_FALSE(Roja(r, 1, "Error [%]"));
    EXPECT_TRUE(Roja(r, 3, "Error [m3]")) << "the basin's isn't closed either";
}

TEST_F(ResumenAMano, DondeNoLlueveNoHayCoeficiente)
{
    UEH("u-2", "c-1");
    s.Tormenta.FormaPp = model::FormaLluvia::PorUEH;
    s.Tormenta.PpUEH.Dimensiona(2);
    s.Tormenta.PpUEH(1) = 60;
    const Resumen r = Corrido();
    EXPECT_EQ(Celda(r, 0, "Coef. escorr. [%]"), "100.00");
    EXPECT_EQ(Celda(r, 1, "Coef. escorr. [%]"), "");
    EXPECT_EQ(Celda(r, 1, "Qp sale [m3/s]"), "0.000");
    EXPECT_EQ(Celda(r, 1, "Error [%]"), "") << "a share of nothing is none";
}

// 100 mm are retained: it rains, and nothing runs off.
TEST_F(ResumenAMano, LoQueSeRetieneDaUnCoeficienteCero)
{
    s.Red.ColUEHs.Item(1).RetensionZ = 100;
    const Resumen r = Corrido();
    EXPECT_EQ(Celda(r, 0, "Coef. escorr. [%]"), "0.00");
    EXPECT_EQ(Celda(r, 0, "tp sale [min]"), "");
}

// u-1 (1 km2) -> c-1 -> c-2 -> c-1: each once; u-3 (0.5 km2) -> c-3 -> c-1.
TEST_F(ResumenAMano, LasAreasSiguenLosEnlacesYUnCirculoSeRecorreUnaVez)
{
    s.Red.ColCauces.Item(1).Cauce_aa = "c-2";
    Directo("c-2", "c-1");
    Directo("c-3", "c-1");
    UEH("u-3", "c-3").Area = 50;
    const engine::Calculo vacio;
    const checks::Corrido c(s.Red, s.Tormenta, s.Pasos, vacio);
    // u-1, u-3, c-1, c-2, c-3
    EXPECT_EQ(AreasDrenadas(c), (std::vector<double>{1, 0.5, 1.5, 1.5, 0.5}));
}

TEST(CifraDeResumen, NingunCeroOcultaUnPoco)
{
    EXPECT_EQ(CifraDeResumen(12.5, 3, false), "12.500");
    EXPECT_EQ(CifraDeResumen(0, 3, false), "0.000");
    EXPECT_EQ(CifraDeResumen(0.00042, 3, false), "0.00042");
    EXPECT_EQ(CifraDeResumen(0.00042, 3, true), "0.000");
    EXPECT_EQ(CifraDeResumen(-0.0004, 3, true), "0.000");
    EXPECT_EQ(CifraDeResumen(0.3, 0, false), "0.3");
    EXPECT_EQ(CifraDeResumen(123456789, 0, false), "123456789");
}

// --- the sample ---

struct ResumenDeMuestra : testing::Test {
    ResumenDeMuestra() { s.Anfitrion = anfitrion.Puerta(); }
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    pruebas::CorridaDeMuestra muestra{s};
};

/// What stands between two texts, the first one sought from `desde` on.
std::string Entre(const std::string& texto, std::string_view antes, std::string_view despues,
                  std::size_t desde)
{
    const std::size_t inicio = texto.find(antes, desde);
    if (inicio == std::string::npos) return {};
    return texto.substr(inicio + antes.size(), texto.find(despues, inicio) - inicio - antes.size());
}

TEST_F(ResumenDeMuestra, VolumenesYPicosSonLosDeLaPizarra)
{
    anfitrion->marcaPizarra = true;
    const Resumen r = ResumenDe(*muestra.Una());
    const std::string pizarra = s.Control.TextoPizarra;
    ASSERT_EQ(r.planilla.filas.size(), static_cast<std::size_t>(s.Resultados.NroComponentes) + 1);
    const auto sinDecimales = [](const std::string& celda) {
        return model::NumeroATexto(static_cast<float>(model::Val(celda)));
    };
    int vistos = 0;
    for (std::size_t i = 0; i < r.nombres.size(); ++i) {
        const std::string& nombre = r.nombres[i];
        if (nombre.empty() || nombre.starts_with("u-")) continue;
        const bool esCauce = nombre.starts_with("c-");
        const std::size_t lugar = pizarra.rfind(esCauce ? "\nComponente: Tramo de Cauce " + nombre + "\r"
                                                        : " " + nombre + "     Método de Propagación");
        ASSERT_NE(lugar, std::string::npos) << nombre;
        EXPECT_EQ(sinDecimales(r.planilla.filas[i][5]), Entre(pizarra, "Entra = ", " m3", lugar)) << nombre;
        EXPECT_EQ(sinDecimales(r.planilla.filas[i][6]), Entre(pizarra, "Sale = ", " m3", lugar)) << nombre;
        const std::string pico = Entre(pizarra, "Caudal Máximo = ", " m3/s", lugar);
        EXPECT_NEAR(model::Val(r.planilla.filas[i][2]), model::Val(pico), 0.0051) << nombre;
        ++vistos;
    }
    EXPECT_GT(vistos, 5);
    EXPECT_EQ(model::NumeroATexto(model::Val(r.planilla.filas.back().back())),
              Entre(pizarra, "Coef. Escorrentía        = ", " %", 0));
}

TEST_F(ResumenDeMuestra, LosPicosSonLosDeLosResultados)
{
    const auto u = muestra.Una();
    const Resumen r = ResumenDe(*u);
    for (int fila = 1; fila <= s.Resultados.NroComponentes; ++fila) {
        const auto i = static_cast<std::size_t>(fila) - 1;
        EXPECT_EQ(r.nombres[i], s.Resultados.Secuencia[i + 1]) << "in the order of computation";
        const float Q = s.Resultados.QMax(fila, 1);
        EXPECT_EQ(r.planilla.filas[i][2], CifraDeResumen(double{Q}, 3, false)) << r.nombres[i];
        const int paso = static_cast<int>(model::Val(r.planilla.filas[i][4])) / 5;
        EXPECT_EQ(s.Resultados.QSale(fila, paso), Q) << r.nombres[i];
    }
}

TEST_F(ResumenDeMuestra, DeUnaSerieElMayorPicoYSuTormenta)
{
    const auto u = muestra.Serie();
    const Resumen r = ResumenDe(*u);
    ASSERT_EQ(r.planilla.filas.size(), static_cast<std::size_t>(s.Resultados.NroComponentes) + 1);
    for (int fila = 1; fila <= s.Resultados.NroComponentes; ++fila) {
        const Textos& celdas = r.planilla.filas[static_cast<std::size_t>(fila) - 1];
        const int n = static_cast<int>(model::Val(celdas[2]));
        ASSERT_GE(n, 1);
        for (int otra = 1; otra <= s.Serie.NroSeriePDR; ++otra)
            EXPECT_LE(s.Resultados.QMax(fila, otra), s.Resultados.QMax(fila, n)) << celdas[0];
        EXPECT_EQ(celdas[1], CifraDeResumen(double{s.Resultados.QMax(fila, n)}, 3, false));
        EXPECT_EQ(celdas[4], model::NumeroATexto(std::int32_t{s.Serie.SerieD(n)}));
        EXPECT_EQ(celdas[5], model::NumeroATexto(std::int32_t{s.Serie.SerieR(n)}));
    }
    EXPECT_EQ(r.hidrogramas, std::vector<Textos>(r.nombres.size()));
    const auto salida = std::find(r.nombres.begin(), r.nombres.end(), s.Resultados.Salidas[1]);
    ASSERT_NE(salida, r.nombres.end());
    EXPECT_EQ(r.planilla.filas.back()[1],
              r.planilla.filas[static_cast<std::size_t>(salida - r.nombres.begin())][1]);
}

TEST_F(ResumenDeMuestra, UnaCorridaRechazadaNoTieneFilas)
{
    const Resumen r = ResumenDe(*muestra.Rechazada());
    EXPECT_TRUE(r.planilla.filas.empty());
    EXPECT_EQ(r.planilla.columnas.size(), ColumnasDeResumen(false).size() + 1);
}

}  // namespace
}  // namespace checks
