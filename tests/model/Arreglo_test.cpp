// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Arreglo.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "apoyo/Compara.h"

using apoyo::NumeroDeFalla;
using namespace model;

namespace {

TEST(Arreglo, SinDimensionarNoTieneElementos)
{
    Arreglo<float> a;
    EXPECT_EQ(a.Tope(), -1);
    EXPECT_EQ(NumeroDeFalla([&] { a(0) = 1; }), 9);
}

TEST(Arreglo, LosIndicesVanDeCeroAlTopeInclusive)
{
    Arreglo<std::int16_t> a;
    a.Dimensiona(3);
    EXPECT_EQ(a.Tope(), 3);
    a(0) = 10;
    a(3) = 13;
    EXPECT_EQ(a(3), 13);
    EXPECT_EQ(a.Datos()[3], 13);
    for (const int fuera :
         {-1, 4, 1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(NumeroDeFalla([&] { a(fuera) = 1; }), 9) << fuera;
        EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(std::as_const(a)(fuera)); }), 9) << fuera;
    }
}

TEST(Arreglo, DimensionarPoneCerosYRedimensionarConserva)
{
    Arreglo<float> a;
    a.Dimensiona(2);
    a(1) = 5;
    a.Redimensiona(4);
    EXPECT_EQ(a(1), 5);
    EXPECT_EQ(a(4), 0);
    a(4) = 7;
    a.Redimensiona(1);
    EXPECT_EQ(a(1), 5);
    EXPECT_EQ(NumeroDeFalla([&] { a(2) = 1; }), 9);
    a.Redimensiona(4);
    EXPECT_EQ(a(4), 0);  // what was cut off doesn't come back
    a.Dimensiona(4);
    EXPECT_EQ(a(1), 0);
    a.Dimensiona(0);
    EXPECT_EQ(a.Tope(), 0);
}

TEST(Arreglo, UnTopeNegativoEsFallaYDejaElArregloComoEstaba)
{
    Arreglo<float> a;
    a.Dimensiona(2);
    a(2) = 5;
    EXPECT_EQ(NumeroDeFalla([&] { a.Dimensiona(-1); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { a.Redimensiona(-1); }), 9);
    EXPECT_EQ(a.Tope(), 2);
    EXPECT_EQ(a(2), 5);
}

TEST(Arreglo, SeComparaPorTopeYElementos)
{
    Arreglo<int> a, b;
    EXPECT_EQ(a, b);
    a.Dimensiona(1);
    EXPECT_NE(a, b);
    b.Dimensiona(1);
    EXPECT_EQ(a, b);
    b(1) = 1;
    EXPECT_NE(a, b);
}

TEST(Matriz, SinDimensionarNoTieneElementos)
{
    Matriz<float> m;
    EXPECT_EQ(m.UltimaFila(), -1);
    EXPECT_EQ(m.TopeColumna(), -1);
    EXPECT_EQ(NumeroDeFalla([&] { m(0, 0) = 1; }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { m.Redimensiona(3); }), 9);
}

TEST(Matriz, LosIndicesDeFilaYColumnaSeComprueban)
{
    Matriz<float> m;
    m.Dimensiona(3, 5, 4);  // rows 3 to 5, columns 0 to 4
    EXPECT_EQ(m.PrimeraFila(), 3);
    EXPECT_EQ(m.UltimaFila(), 5);
    EXPECT_EQ(m.TopeColumna(), 4);
    m(3, 0) = 30;
    m(5, 4) = 54;
    EXPECT_EQ(m(5, 4), 54);
    for (const auto& lugar : std::vector<std::pair<int, int>>{{2, 0}, {6, 0}, {3, -1}, {3, 5}, {-1, -1}}) {
        EXPECT_EQ(NumeroDeFalla([&] { m(lugar.first, lugar.second) = 1; }), 9)
            << lugar.first << ',' << lugar.second;
        EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(std::as_const(m)(lugar.first, lugar.second)); }), 9)
            << lugar.first << ',' << lugar.second;
    }
    EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(m.Fila(2)); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(m.Fila(6)); }), 9);
}

TEST(Matriz, AlcanzaLasColumnasDeSusFilas)
{
    Matriz<float> m;
    EXPECT_FALSE(m.Alcanza(0, 0));
    m.Dimensiona(3, 5, 4);
    EXPECT_TRUE(m.Alcanza(3, 4));
    EXPECT_TRUE(m.Alcanza(5, 0));
    EXPECT_FALSE(m.Alcanza(2, 0));
    EXPECT_FALSE(m.Alcanza(6, 0));
    EXPECT_FALSE(m.Alcanza(5, 5));
}

TEST(Matriz, UnaFilaEsSeguida)
{
    Matriz<int> m;
    m.Dimensiona(2, 3);
    for (int c = 0; c <= 3; ++c)
        m(1, c) = 10 + c;
    const int* fila = m.Fila(1);
    EXPECT_EQ(std::vector<int>(fila, fila + 4), (std::vector<int>{10, 11, 12, 13}));
    m.Redimensiona(9);  // the step from row to row changes
    fila = m.Fila(1);
    EXPECT_EQ(std::vector<int>(fila, fila + 5), (std::vector<int>{10, 11, 12, 13, 0}));
}

TEST(Matriz, AlAchicarYVolverACrecerSonCeros)
{
    Matriz<int> m;
    m.Dimensiona(1, 4);
    m(0, 4) = 4;
    m(1, 2) = 2;
    m.Redimensiona(2);
    EXPECT_EQ(NumeroDeFalla([&] { m(0, 3) = 1; }), 9);
    m.Redimensiona(4);
    EXPECT_EQ(m(0, 4), 0);
    EXPECT_EQ(m(1, 2), 2);
}

TEST(Matriz, LosTopesSinElementosSonFallaYLaDejanComoEstaba)
{
    Matriz<int> m;
    m.Dimensiona(1, 1);
    m(1, 1) = 7;
    EXPECT_EQ(NumeroDeFalla([&] { m.Dimensiona(-1, 3); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { m.Dimensiona(3, -1); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { m.Dimensiona(4, 3, 3); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { m.Redimensiona(-1); }), 9);
    EXPECT_EQ(m.UltimaFila(), 1);
    EXPECT_EQ(m(1, 1), 7);
}

TEST(Matriz, SeComparaPorTopesYElementosYNoPorElLugarDeSobra)
{
    Matriz<int> crecida, directa;
    crecida.Dimensiona(1, 1);
    directa.Dimensiona(1, 3);
    crecida.Redimensiona(3);  // with spare columns
    EXPECT_EQ(crecida, directa);
    crecida(1, 3) = 1;
    EXPECT_NE(crecida, directa);
    directa(1, 3) = 1;
    EXPECT_EQ(crecida, directa);
    Matriz<int> corrida;
    corrida.Dimensiona(1, 2, 3);  // as many elements in other rows
    directa.Dimensiona(1, 3);
    EXPECT_NE(corrida, directa);
}

RC_GTEST_PROP(Matriz, CrecerYAchicarConservaComoUnaListaDeListas, ())
{
    const int filas = *rc::gen::inRange(1, 5);
    Matriz<int> m;
    m.Dimensiona(filas - 1, 0);
    std::vector<std::vector<int>> modelo(static_cast<std::size_t>(filas), std::vector<int>(1));
    const auto topes = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 40));
    int cuenta = 0;
    for (const int tope : topes) {
        m.Redimensiona(tope);
        for (std::size_t f = 0; f < modelo.size(); ++f) {
            modelo[f].resize(static_cast<std::size_t>(tope) + 1);
            m(static_cast<int>(f), tope) = modelo[f].back() = ++cuenta;
        }
        for (std::size_t f = 0; f < modelo.size(); ++f) {
            const int* fila = m.Fila(static_cast<int>(f));
            RC_ASSERT(std::vector<int>(fila, fila + tope + 1) == modelo[f]);
        }
    }
}

}  // namespace
