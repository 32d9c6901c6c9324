// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(EscalaDeCategorias, SeDuplicaYSeParteEnEnteros)
{
    EscalaCategorias escala;
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 2, 1, true}));
    MasDivisiones(escala);
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 8, 4, true}));
    escala.divisionesPorRotulo = 7;
    MenosDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 3, 1, true}));
    MenosDivisiones(escala);
    MenosDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 1, 0, true}));
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 2, 1, true}));
}

TEST(EscalaDeCategorias, NuncaDesborda)
{
    EscalaCategorias escala;
    for (int i = 0; i < 40; ++i)
        MasDivisiones(escala);
    EXPECT_EQ(escala.divisionesPorRotulo, 16384);
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

TEST(CeldasDeGrafico, LasVaciasSonIgualesEntreSiYANingunaOtra)
{
    const Serie vacia{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1}};
    EXPECT_EQ(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {0, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia, 2}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "25", false, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", true, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Escalon2D, "10", false, {CeldaVacia, 1}}));
}

}  // namespace
}  // namespace forms
