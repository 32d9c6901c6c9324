// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cuadro.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace forms {
namespace {

using Lugares = std::vector<std::size_t>;

/// Names of texts, numbers, an empty cell.
Cuadro UnCuadro()
{
    Cuadro c;
    PonFilas(c, {.titulos = {"Título"},
                 .columnas = {{"Nombre", true}, {"Caudal [m3/s]"}},
                 .filas = {{"b", "10"}, {"a", ""}, {"c", "9.5"}, {"a", "-1"}}});
    return c;
}

TEST(Cuadro, AlPrincipioSeVeTodoEnElOrdenDado)
{
    EXPECT_EQ(UnCuadro().mostradas, (Lugares{0, 1, 2, 3}));
}

TEST(Cuadro, UnEncabezadoOrdenaNumerosComoTalesYLoVacioAlFinal)
{
    Cuadro c = UnCuadro();
    PulsaEncabezado(c, 1);
    EXPECT_EQ(c.mostradas, (Lugares{3, 2, 0, 1}));
    PulsaEncabezado(c, 1);
    EXPECT_EQ(c.mostradas, (Lugares{0, 2, 3, 1}));
    PulsaEncabezado(c, 1);
    EXPECT_EQ(c.mostradas, (Lugares{0, 1, 2, 3}));
    EXPECT_EQ(c.columnaOrden, -1);
}

TEST(Cuadro, LosTextosIgualesGuardanElOrdenDado)
{
    Cuadro c = UnCuadro();
    PulsaEncabezado(c, 0);
    EXPECT_EQ(c.mostradas, (Lugares{1, 3, 0, 2}));
    PulsaEncabezado(c, 0);
    EXPECT_EQ(c.mostradas, (Lugares{2, 0, 1, 3}));
}

TEST(Cuadro, LaPrimeraColumnaSeOrdenaPorSusRangos)
{
    Cuadro c = UnCuadro();
    PonFilas(c, c.planilla, {2, 0, 1, 0});
    PulsaEncabezado(c, 0);
    EXPECT_EQ(c.mostradas, (Lugares{1, 3, 2, 0}));
}

TEST(Cuadro, ElFiltroYOtrasFilasDejanElOrdenElegido)
{
    Cuadro c = UnCuadro();
    PulsaEncabezado(c, 1);
    Filtra(c, [](std::size_t fila) { return fila != 2; });
    EXPECT_EQ(c.mostradas, (Lugares{3, 0, 1}));
    EXPECT_EQ(ALaVista(c).filas,
              (std::vector<std::vector<std::string>>{{"a", "-1"}, {"b", "10"}, {"a", ""}}));
    EXPECT_EQ(ALaVista(c).titulos, (std::vector<std::string>{"Título"}));
    PonFilas(c, {.columnas = c.planilla.columnas, .filas = {{"x", "2"}, {"y", "1"}}});
    EXPECT_EQ(c.mostradas, (Lugares{1, 0}));
}

TEST(Cuadro, LasFilasComoTextoVanConTabuladoresYSinSaltos)
{
    Cuadro c = UnCuadro();
    PonFilas(c, {.columnas = c.planilla.columnas, .filas = {{"de\r\ndos", "2"}, {"y", "1"}}});
    EXPECT_EQ(FilasComoTexto(c, {1, 0}, 2), "y\t1\r\nde dos\t2\r\n");
    EXPECT_EQ(FilasComoTexto(c, {0}, 1), "de dos\r\n");
    EXPECT_EQ(FilasComoTexto(c, {}, 2), "");
}

}  // namespace
}  // namespace forms
