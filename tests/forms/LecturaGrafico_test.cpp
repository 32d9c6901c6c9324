// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/LecturaGrafico.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace forms {
namespace {

Grafico Hidrograma()
{
    Grafico g;
    g.categorias = {"0.5", "1", "1.5"};
    g.ejeX = "horas";
    g.ejeY = "Caudal [m3/s]";
    g.ejeYSecundario = "Precipitación [mm]";
    g.series = {{TipoSerie::Linea2D, "Qsale", false, {1.25, 3, 2}},
                {TipoSerie::Escalon2D, "Pp", true, {4, CeldaVacia, 0}}};
    return g;
}

TEST(LecturaGrafico, DiceLaCategoriaYCadaSerieConLaUnidadDeSuEje)
{
    EXPECT_EQ(LecturaDeFila(Hidrograma(), 0), "0.5 horas\nQsale = 1.25 m3/s\nPp = 4 mm");
}

TEST(LecturaGrafico, UnaCeldaVaciaNoSeDiceYUnaFilaDeFueraNoDiceNada)
{
    EXPECT_EQ(LecturaDeFila(Hidrograma(), 1), "1 horas\nQsale = 3 m3/s");
    EXPECT_EQ(LecturaDeFila(Hidrograma(), 3), "");
}

TEST(LecturaGrafico, UnaSerieSinLeyendaSeLlamaComoSuEje)
{
    Grafico g = Hidrograma();
    g.series = {{TipoSerie::Escalon2D, "", true, {4, 5, 6}}};
    EXPECT_EQ(LecturaDeFila(g, 1), "1 horas\nPrecipitación = 5 mm");
    g.ejeYSecundario = "Nivel";
    g.ejeX = "";
    EXPECT_EQ(LecturaDeFila(g, 1), "1\nNivel = 5");
}

TEST(LecturaGrafico, ElTituloDeLaLeyendaVaAnteElNombre)
{
    Grafico g = Hidrograma();
    g.tituloLeyenda = "R[años]";
    g.series = {{TipoSerie::Linea2D, "25", false, {1, 2, 3}}};
    EXPECT_EQ(LecturaDeFila(g, 0), "0.5 horas\nR[años] 25 = 1 m3/s");
}

TEST(LecturaGrafico, LosValoresTienenLasSieteCifrasDeSusArreglos)
{
    Grafico g = Hidrograma();
    g.series[0].celdas[0] = static_cast<double>(37.493F);
    EXPECT_EQ(LecturaDeFila(g, 0), "0.5 horas\nQsale = 37.493 m3/s\nPp = 4 mm");
}

TEST(DescripcionDeGrafico, CuentaFilasYDiceElPicoDeCadaSerieYDondeEsta)
{
    EXPECT_EQ(Descripcion(Hidrograma()),
              "3 filas. Qsale: máximo 3 m3/s en 1 horas. Pp: máximo 4 mm en 0.5 horas.");
    EXPECT_EQ(Descripcion({}), "0 filas.");
}

TEST(DescripcionDeGrafico, DeDosPicosIgualesElPrimeroYDeSerieVaciaNinguno)
{
    Grafico g = Hidrograma();
    g.series[0].celdas = {3, 1, 3};
    g.series[1].celdas.assign(3, CeldaVacia);
    EXPECT_EQ(Descripcion(g), "3 filas. Qsale: máximo 3 m3/s en 0.5 horas.");
}

// --- labels of the categories ---

/// Categories of n rows of so many minutes, in hours cut to two decimals.
std::vector<std::string> Horas(int n, int paso)
{
    std::vector<std::string> categorias;
    for (int i = 1; i <= n; ++i) {
        const int centesimas = i * paso * 100 / 60;
        std::string texto = std::to_string(centesimas / 100);
        if (const int resto = centesimas % 100; resto != 0) {
            texto += (resto < 10 ? ".0" : ".") + std::to_string(resto);
            if (texto.back() == '0') texto.pop_back();
        }
        categorias.push_back(texto);
    }
    return categorias;
}

TEST(RotulosDeCategorias, TodosDondeCaben)
{
    EXPECT_EQ(PasoDeRotulos(Horas(10, 10), 10, 10), 1U);
    EXPECT_EQ(PasoDeRotulos({}, 0, 1), 1U);
}

TEST(RotulosDeCategorias, NuncaMasDeLosQueCaben)
{
    for (int n = 1; n <= 300; n += 13)
        for (std::size_t caben = 1; caben <= 30; ++caben) {
            const auto visibles = static_cast<std::size_t>(n);
            const std::size_t paso = PasoDeRotulos(Horas(n, 5), visibles, caben);
            EXPECT_LE(visibles / paso, caben) << n << " rows, " << caben;
            EXPECT_GE(paso, 1U);
        }
}

TEST(RotulosDeCategorias, PrefiereHorasEnterasALasQueSalganPrimero)
{
    // 60 rows of 10 min: 15 labels would be every 4th, 0.66, 1.33, 2 ...; every 6th is 1, 2, 3 ...
    EXPECT_EQ(PasoDeRotulos(Horas(60, 10), 60, 15), 6U);
    // 120 rows of 5 min: every 12th.
    EXPECT_EQ(PasoDeRotulos(Horas(120, 5), 120, 11), 12U);
}

// --- structure ---

TEST(EstructuraDeGrafico, LasCeldasNoLaCambianYLoDemasSi)
{
    const Grafico a = Hidrograma();
    Grafico b = a;
    b.series[0].celdas = {7, 8, 9, 10};
    b.categorias.emplace_back("2");
    EXPECT_TRUE(MismaEstructura(a, b));
    b.series[1].ejeSecundario = false;
    EXPECT_FALSE(MismaEstructura(a, b));
    b = a;
    b.ejeX = "minutos";
    EXPECT_FALSE(MismaEstructura(a, b));
    b = a;
    MasDivisiones(b.escala);
    EXPECT_FALSE(MismaEstructura(a, b));
    b = a;
    b.series.pop_back();
    EXPECT_FALSE(MismaEstructura(a, b));
}

TEST(EstructuraDeGrafico, SoloLaLluviaEnElEjeSecundarioDeUnaCombinacionCuelga)
{
    Grafico g = Hidrograma();
    EXPECT_FALSE(CuelgaDeArriba(g, g.series[0]));
    EXPECT_TRUE(CuelgaDeArriba(g, g.series[1]));
    g.series[1].ejeSecundario = false;
    EXPECT_FALSE(CuelgaDeArriba(g, g.series[1]));
    g.series[1].ejeSecundario = true;
    g.tipo = TipoGrafico::Linea;
    EXPECT_FALSE(CuelgaDeArriba(g, g.series[1]));
}

TEST(LecturaGrafico, LosRotulosCaenEnLosMultiplosDelNumeroDeFila)
{
    EXPECT_EQ(PrimeraRotulada(1, 5, 1), 5U);  // rows numbered from 1
    EXPECT_EQ(PrimeraRotulada(6, 5, 1), 10U);
    EXPECT_EQ(PrimeraRotulada(1, 5, 0), 1U);  // row 1 has the number 0
    EXPECT_EQ(PrimeraRotulada(2, 5, 0), 6U);
    EXPECT_EQ(PrimeraRotulada(1, 5, 502), 4U);
    EXPECT_EQ(PrimeraRotulada(1, 5, -3), 4U);
}

TEST(CeldasDeGrafico, SonUnaPlanillaConLaUnidadEnCadaEncabezado)
{
    Grafico grafico;
    grafico.magnitudX = "t";
    grafico.ejeX = "horas";
    grafico.ejeY = "Caudal [m3/s]";
    grafico.ejeYSecundario = "Precipitación [mm]";
    grafico.categorias = {"0.16", "0.33"};
    grafico.series = {{TipoSerie::Linea2D, "Qsale", false, {1.5, 0.1F}},
                      {TipoSerie::Escalon2D, "la \"Pp\"", true, {20, 0}}};
    EXPECT_EQ(ComoCsv(CeldasComoPlanilla(grafico)),
              "\"t [horas]\",\"Qsale [m3/s]\",\"la \"\"Pp\"\" [mm]\"\r\n0.16,1.5,20\r\n0.33,0.1,0\r\n");
    EXPECT_EQ(ComoCsv(CeldasComoPlanilla({})), "\"Fila\"\r\n");
}

TEST(CeldasDeGrafico, UnaVaciaNoDejaNadaYUnVolumenTodasSusCifras)
{
    Grafico grafico;
    grafico.ejeX = "Duración Tormenta D[minutos]";
    grafico.ejeY = "Escorrentía [m3]";
    grafico.tituloLeyenda = "R[años]";
    grafico.categorias = {"60", "120"};
    grafico.series = {{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1234567890}},
                      {TipoSerie::Linea2D, "25", false, {0.123456789, CeldaVacia}}};
    EXPECT_EQ(ComoCsv(CeldasComoPlanilla(grafico)),
              "\"Duración Tormenta D[minutos]\",\"R= 10 años [m3]\",\"R= 25 años [m3]\"\r\n"
              "60,,0.1234568\r\n120,1234567890,\r\n");
}

TEST(CeldasDeGrafico, NingunEncabezadoQuedaVacio)
{
    Grafico grafico;
    grafico.ejeX = "UEH";
    grafico.ejeY = "Pp [mm]";
    grafico.categorias = {"u-1, la 1"};
    grafico.series = {{TipoSerie::Escalon2D, "", false, {30}}, {TipoSerie::Escalon2D, "", true, {2}}};
    EXPECT_EQ(ComoCsv(CeldasComoPlanilla(grafico)),
              "\"UEH\",\"Pp [mm]\",\"Valor\"\r\n\"u-1, la 1\",30,2\r\n");
}

}  // namespace
}  // namespace forms
