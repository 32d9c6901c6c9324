// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgVerificar.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "model/Siro.h"

namespace checks {
namespace {

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

Caso UnCaso(const char* nombre, double desvio, bool recalculado)
{
    Caso c{.nombre = nombre,
           .fuente = "Un libro, tabla 3",
           .entrada = "K = 1 h",
           .magnitud = "caudal [m3/s]",
           .porque = "media unidad de la última cifra",
           .tolerancia = 0.5,
           .recalculado = recalculado,
           .x = 20,
           .impreso = 3,
           .nuestro = 3 + desvio,
           .desvio = desvio,
           .serie = {}};
    c.serie = {
        .eje = "tiempo [min]", .x = {10, 20, 30}, .impreso = {1, 3, Nada}, .nuestro = {1, 3 + desvio, 2}};
    return c;
}

class DlgVerificar : public testing::Test {
  protected:
    DlgVerificar() { s.Anfitrion = anfitrion.Puerta(); }
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    dlgVerificar f{};
};

TEST_F(DlgVerificar, LaSumaDiceCuantosCuantosFueraYEnCuantoTiempo)
{
    Empieza(f);
    EXPECT_TRUE(f.corriendo);
    Avanza(f, 1, 2);
    EXPECT_EQ(f.hechos, 1U);
    Termina(f, s, {UnCaso("Uno", 0.25, false), UnCaso("Dos", 0.75, true)}, 0.64);
    EXPECT_FALSE(f.corriendo);
    EXPECT_EQ(f.lblSuma, "2 casos, 1 fuera de tolerancia, en 0.6 s");
    ASSERT_EQ(f.tblCasos.planilla.filas.size(), 2U);
    EXPECT_EQ(f.tblCasos.planilla.filas[1],
              (std::vector<std::string>{"2", "Dos", "caudal [m3/s]", "3", "recalculada", "3.75", "0.75",
                                        "0.5", "FUERA", "2", "tiempo [min]", "20", "Un libro, tabla 3",
                                        "K = 1 h", "media unidad de la última cifra"}));
    EXPECT_EQ(f.tblCasos.planilla.filas[0][4], "impresa");
    EXPECT_EQ(f.tblCasos.planilla.filas[0][8], "bien");
}

TEST_F(DlgVerificar, ElCasoElegidoDiceLoSuyoYMuestraSuGrafico)
{
    Empieza(f);
    Termina(f, s, {UnCaso("Uno", 0.25, false), UnCaso("Dos", 0.75, true)}, 0.6);
    EXPECT_EQ(f.lblCaso, "Uno");
    tblCasos_Mueve(f, 1);
    EXPECT_EQ(f.lblCaso, "Dos");
    EXPECT_EQ(f.lblCompara, "caudal [m3/s], 2 cifras; la peor: desvío 0.75 en tiempo [min] = 20");
    EXPECT_EQ(f.lblCifra, "recalculada, no está impresa en la fuente");
    EXPECT_EQ(f.lblTolerancia, "0.5: media unidad de la última cifra");
    EXPECT_EQ(f.Grafico.titulo, "Dos");
    EXPECT_EQ(f.Grafico.categorias, (std::vector<std::string>{"10", "20", "30"}));
    ASSERT_EQ(f.Grafico.series.size(), 2U);
    EXPECT_EQ(f.Grafico.series[0].leyenda, "Recalculada");
    EXPECT_EQ(f.Grafico.series[1].celdas, (std::vector<double>{1, 3.75, 2}));
    EXPECT_EQ(f.Grafico.marcas.size(), 2U) << "a ring at each figure of the source";
    tblCasos_Mueve(f, 2);
    EXPECT_EQ(f.lblCaso, "");
    EXPECT_TRUE(f.Grafico.series.empty());
}

TEST_F(DlgVerificar, LoCanceladoDejaLoDeAntes)
{
    Empieza(f);
    Cancela(f);
    EXPECT_FALSE(f.corriendo);
    EXPECT_EQ(f.lblSuma, "Verificación cancelada");
    Empieza(f);
    Termina(f, s, {UnCaso("Uno", 0, false), UnCaso("Dos", 0, false)}, 0.6);
    Empieza(f);
    Cancela(f);
    EXPECT_EQ(f.casos.size(), 2U);
    EXPECT_EQ(f.lblSuma, "2 casos, 0 fuera de tolerancia, en 0.6 s");
}

TEST_F(DlgVerificar, LoImpresoLlevaLasFuentesArriba)
{
    Empieza(f);
    Termina(f, s, {UnCaso("Uno", 0, false)}, 0.6);
    const forms::Planilla p = ParaImprimir(f);
    EXPECT_EQ(p.columnas.size(), NroColumnasDeCaso);
    EXPECT_EQ(p.filas.at(0).size(), NroColumnasDeCaso);
    EXPECT_EQ(p.titulos.back(), "1. Un libro, tabla 3");
}

TEST(Verifica, SeDetieneDondeSeLePide)
{
    std::size_t total = 0;
    const auto casos = Verifica([&](std::size_t hechos, std::size_t todos) {
        total = todos;
        return hechos < 3;
    });
    EXPECT_EQ(casos.size(), 3U);
    EXPECT_GE(total, 30U);
}

}  // namespace
}  // namespace checks
