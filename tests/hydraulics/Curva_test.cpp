// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Curva.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "apoyo/Compara.h"
#include "hydraulics/TablasDePrueba.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"

namespace hydraulics {
namespace {

using pruebas::EstadoConEmbalses;
using pruebas::RenglonHAS;
using pruebas::RenglonHQ;

std::uint64_t Bits(double x)
{
    return std::bit_cast<std::uint64_t>(x);
}
std::uint32_t Bits(float x)
{
    return std::bit_cast<std::uint32_t>(x);
}

/// A reading that is looked for from the first row on.
auto Desde0(const auto& curva, float h)
{
    int fila = 0;
    return curva.Valor(h, fila);
}

/// Random tables and heights from one seed.
class Azar {
  public:
    explicit Azar(std::uint32_t semilla) : motor(semilla) {}
    float Entre(float a, float b) { return std::uniform_real_distribution<float>(a, b)(motor); }
    int Entero(int a, int b) { return std::uniform_int_distribution<int>(a, b)(motor); }

    /// n strictly rising heights; steps of millimetres and of many metres alike.
    std::vector<float> Alturas(int n)
    {
        std::vector<float> alturas{Entre(-50, 500)};
        while (static_cast<int>(alturas.size()) < n)
            alturas.push_back(std::max(std::nextafter(alturas.back(), 1e9F),
                                       alturas.back() + std::pow(10.0F, Entre(-4, 1.5F))));
        return alturas;
    }
    std::vector<RenglonHAS> TablaHAS()
    {
        std::vector<RenglonHAS> tabla;
        for (const float h : Alturas(Entero(1, 30)))
            tabla.push_back({h, Entre(-1, 900), Entero(-1000000000, 1000000000)});
        return tabla;
    }
    std::vector<RenglonHQ> TablaHQ()
    {
        std::vector<RenglonHQ> tabla;
        for (const float h : Alturas(Entero(1, 30)))
            tabla.push_back({h, Entre(-1, 3000)});
        return tabla;
    }
    /// The nodes, what lies next to them, and heights in between.
    std::vector<float> Pruebas(const std::vector<float>& nodos)
    {
        std::vector<float> alturas = nodos;
        for (std::size_t k = 1; k < nodos.size(); ++k) {
            alturas.push_back(std::nextafter(nodos[k], nodos[k - 1]));
            alturas.push_back(std::nextafter(nodos[k - 1], nodos[k]));
            for (int vez = 0; vez < 3; ++vez)
                alturas.push_back(std::min(std::max(Entre(nodos[k - 1], nodos[k]), nodos[k - 1]), nodos[k]));
        }
        return alturas;
    }

  private:
    std::mt19937 motor;
};

template <typename Renglon>
std::vector<float> AlturasDe(const std::vector<Renglon>& tabla)
{
    std::vector<float> alturas;
    for (const auto& r : tabla)
        alturas.push_back(r.H);
    return alturas;
}

RC_GTEST_PROP(Curva, DaLosBitsDeLaBusquedaSimple, (std::uint32_t semilla, bool lago))
{
    Azar azar(semilla);
    EstadoConEmbalses e;
    const auto tabla = azar.TablaHAS();
    e.PonHAS(tabla);
    if (lago) e.EligeLago(1);
    const CurvaLineal S = CurvaAlmacenamiento(e.Elegido());
    RC_ASSERT(S.Filas() == static_cast<int>(tabla.size()));
    RC_ASSERT(S.Alturas() == (Intervalo{tabla.front().H, tabla.back().H}));
    int filaS = 0;
    for (const float h : azar.Pruebas(AlturasDe(tabla))) {
        const double simple = SdeH(e.Elegido(), h);
        RC_ASSERT(Bits(Desde0(S, h)) == Bits(simple));
        RC_ASSERT(Bits(S.Valor(h, filaS)) == Bits(simple));
        const auto fila = static_cast<std::size_t>(filaS);
        RC_ASSERT(tabla[fila].H <= h);
        RC_ASSERT((fila + 1 == tabla.size() || tabla[fila + 1].H > h));
    }
    RC_ASSERT(e.Callado());
}

RC_GTEST_PROP(Curva, LaDescargaPorTablaDaLosBitsDeQdeH, (std::uint32_t semilla, bool lago))
{
    Azar azar(semilla);
    EstadoConEmbalses e;
    const auto tabla = azar.TablaHQ();
    e.PonHQ(tabla);
    if (lago) e.EligeLago(1);
    const CurvaDescarga Q(e.Elegido());
    RC_ASSERT(Q.SinPreguntas(tabla.front().H, tabla.back().H));
    int fila = 0;
    for (const float h : azar.Pruebas(AlturasDe(tabla))) {
        const float simple = QdeH(e.Elegido(), h);
        RC_ASSERT(Bits(Desde0(Q, h)) == Bits(simple));
        RC_ASSERT(Bits(Q.Valor(h, fila)) == Bits(simple));
    }
    RC_ASSERT(e.Callado());
}

/// Functions of all sorts, some of them at fault somewhere.
void PonFuncionesAlAzar(EstadoConEmbalses& e, Azar& azar)
{
    constexpr float Exponentes[] = {0, 0.5F, 1, 1.5F, 2, 2.5F, -0.5F, 60, 300, 1000};
    for (std::size_t i = 1; i <= 8; ++i) {
        if (azar.Entero(0, 2) == 0) continue;
        const float minimo = 0.25F * static_cast<float>(azar.Entero(0, 40));
        const float b = i <= 4 ? Exponentes[azar.Entero(0, 9)] : azar.Entre(-10, 10);
        e.PonFuncion(i, azar.Entre(-2, 30), b, azar.Entre(-5, 5), minimo,
                     minimo + 0.25F * static_cast<float>(azar.Entero(0, 20)));
    }
}

RC_GTEST_PROP(Curva, LaDescargaPorFuncionesDaLosBitsDeQdeH, (std::uint32_t semilla))
{
    Azar azar(semilla);
    EstadoConEmbalses e;
    PonFuncionesAlAzar(e, azar);
    const CurvaDescarga Q(e.Elegido());
    const float minimo = 0.25F * static_cast<float>(azar.Entero(0, 40));
    const float maximo = minimo + 0.25F * static_cast<float>(azar.Entero(0, 20));
    const bool seguro = Q.SinPreguntas(minimo, maximo);
    RC_CLASSIFY(seguro);
    if (!seguro) return;
    for (int vez = 0; vez <= 40; ++vez) {
        // quarters of a metre, where functions begin and end, and heights in between
        const float h = vez % 2 == 0 ? minimo + std::floor(4 * azar.Entre(0, 1) * (maximo - minimo)) / 4
                                     : std::min(azar.Entre(minimo, maximo), maximo);
        RC_ASSERT(Bits(Desde0(Q, h)) == Bits(QdeH(e.Elegido(), h)));
    }
    RC_ASSERT(Bits(Desde0(Q, minimo)) == Bits(QdeH(e.Elegido(), minimo)));
    RC_ASSERT(Bits(Desde0(Q, maximo)) == Bits(QdeH(e.Elegido(), maximo)));
    RC_ASSERT(e.Callado());
}

RC_GTEST_PROP(Curva, DentroDelIntervaloDeAlmacenamientosNadaSePregunta, (std::uint32_t semilla, bool lago))
{
    Azar azar(semilla);
    EstadoConEmbalses e;
    auto tabla = azar.TablaHAS();
    if (azar.Entero(0, 3) == 0) tabla[tabla.size() / 2].S = azar.Entero(-2147483647, 2147483647);
    e.PonHAS(tabla);
    if (lago) e.EligeLago(1);
    const Intervalo sin = AlmacenamientosSinPreguntas(e.Elegido());
    RC_CLASSIFY(sin.minimo <= sin.maximo);
    for (int vez = 0; vez < 30; ++vez) {
        const auto x = static_cast<float>(azar.Entero(-1000000000, 1000000000));
        if (!sin.Abarca(x, x)) continue;
        RC_ASSERT(apoyo::NumeroDeFalla([&] { (void)HdeS(e.Elegido(), x); }) == 0);
    }
    RC_ASSERT(e.Callado());
}

class CurvaPreparada : public testing::Test, public EstadoConEmbalses {};

TEST_F(CurvaPreparada, NoSirveDondeLasAlturasNoCrecen)
{
    PonHAS({{0, 1, 10}, {1, 2, 20}, {1, 3, 30}});
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 0);
    PonHAS({{0, 1, 10}, {2, 2, 20}, {1, 3, 30}});
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 0);
    PonHQ({{0, 1}, {2, 2}, {1, 3}});
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 1));
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0.5F, 0.5F));
}

TEST_F(CurvaPreparada, NoSirveDondeLosAlmacenamientosDistanDemasiado)
{
    PonHAS({{0, 1, -2000000000}, {1, 2, 2000000000}, {2, 3, 2000000001}});
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 0);
    EXPECT_EQ(AlmacenamientosSinPreguntas(Elegido()), Intervalo{});
    const float alturas[] = {0, 1};
    const std::int32_t lejos[] = {-2000000000, 2000000000}, cerca[] = {-1000000000, 1000000000};
    EXPECT_EQ(CurvaLineal(alturas, lejos).Filas(), 0);
    EXPECT_EQ(CurvaLineal(alturas, cerca).Filas(), 2);
    EXPECT_EQ(Desde0(CurvaLineal(alturas, cerca), 0.75F), 500000000);
}

TEST_F(CurvaPreparada, LasAlturasDemasiadoLejosImpidenBuscarPorAlmacenamiento)
{
    PonHAS({{-3e38F, 1, 10}, {3e38F, 2, 20}});
    EXPECT_EQ(AlmacenamientosSinPreguntas(Elegido()), Intervalo{});
    PonHAS({{-1e38F, 1, 10}, {1e38F, 2, 20}});
    EXPECT_EQ(AlmacenamientosSinPreguntas(Elegido()), (Intervalo{10, 20}));
}

TEST_F(CurvaPreparada, NoSirveSinRenglones)
{
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 0);
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Alturas(), Intervalo{});
    PonHAS({{0, 1, 10}, {1, 2, 20}});
    PonHQ({{0, 1}, {1, 2}});
    s.Red.RepresaFilasHAS(1) = s.Red.RepresaFilasHQ(1) = 500;
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 0);
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 1));
    s.Red.RepresaFilasHAS(1) = s.Red.RepresaFilasHQ(1) = 2;
    EXPECT_EQ(CurvaAlmacenamiento(Elegido()).Filas(), 2);
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(0, 1));
    EXPECT_FALSE(CurvaDescarga().SinPreguntas(0, 1));
    EXPECT_TRUE(Callado());
}

// The line from a row would turn -0 into 0.
TEST_F(CurvaPreparada, NoSirveConUnCeroNegativo)
{
    PonHQ({{0, -0.0F}, {1, 2}});
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 1));
    PonHQ({{0, 0}, {1, 2}});
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(0, 1));
}

TEST_F(CurvaPreparada, ConUnSoloRenglonSirveEnEl)
{
    PonHAS({{7, 3, 10}});
    const CurvaLineal S = CurvaAlmacenamiento(Elegido());
    EXPECT_EQ(S.Alturas(), (Intervalo{7, 7}));
    EXPECT_EQ(Desde0(S, 7), 10);
    EXPECT_TRUE(S.Alturas().Abarca(7, 7));
    EXPECT_FALSE(S.Alturas().Abarca(7, 7.5));
}

TEST_F(CurvaPreparada, LaTablaSinRenglonesNoDescargaNiPregunta)
{
    s.Red.Represas(1).optTabla = true;
    const CurvaDescarga Q(Elegido());
    EXPECT_TRUE(Q.SinPreguntas(-1e30F, 1e30F));
    EXPECT_EQ(Desde0(Q, 3), 0);
}

TEST_F(CurvaPreparada, LaTablaPreguntaApenasFueraDeSusRenglones)
{
    PonHQ({{100, 1}, {110, 2}});
    const CurvaDescarga Q(Elegido());
    EXPECT_TRUE(Q.SinPreguntas(100, 110));
    EXPECT_FALSE(Q.SinPreguntas(std::nextafter(100.0F, 0.0F), 110));
    EXPECT_FALSE(Q.SinPreguntas(100, std::nextafter(110.0F, 200.0F)));
}

TEST_F(CurvaPreparada, LaPotenciaNegativaFallaSoloEnSuAlturaMinima)
{
    PonFuncion(1, 1, -1, 0, 2, 5);
    const CurvaDescarga Q(Elegido());
    EXPECT_FALSE(Q.SinPreguntas(0, 10));
    EXPECT_FALSE(Q.SinPreguntas(2, 3));
    EXPECT_FALSE(Q.SinPreguntas(1, 2));
    EXPECT_TRUE(Q.SinPreguntas(2.5F, 10));
    EXPECT_TRUE(Q.SinPreguntas(0, 1.5F));
    EXPECT_EQ(Desde0(Q, 4), 0.5F);
}

TEST_F(CurvaPreparada, LasFuncionesComunesSirvenDesdeSuAlturaMinima)
{
    PonFuncion(1, 3, 0.5F, 0, 2, 5);  // a bottom outlet
    PonFuncion(2, 8, 1.5F, 0, 4, 9);  // a spillway
    PonFuncion(3, 1, 0, 0, 2, 9);     // a pump
    PonFuncion(5, 1, -2, 3, 2, 9);
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(2, 9));
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(-100, 100));
}

TEST_F(CurvaPreparada, LaPotenciaQueDesbordaNoSePrueba)
{
    PonFuncion(1, 1, 200, 0, 0, 10);
    const CurvaDescarga Q(Elegido());
    EXPECT_FALSE(Q.SinPreguntas(0, 10));  // 10^200 is outside 32 bits
    EXPECT_TRUE(Q.SinPreguntas(0, 1.25F));
    PonFuncion(1, 0, 30000, 0, 0, 10);  // 0·10^30000: the power itself is at fault
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 10));
    PonFuncion(1, 1, 1, 0, 0, 10);
    PonFuncion(5, 3e38F, 0, 0, 0, 10);
    PonFuncion(6, 3e38F, 0, 0, 0, 10);
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 10));
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(11, 12));
}

TEST_F(CurvaPreparada, LaParabolaQueDesbordaNoSePrueba)
{
    PonFuncion(5, 0, 0, 1e37F, 0, 10);  // 1e37·10² is outside 32 bits
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 10));
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(0, 2));
    PonFuncion(5, 0, 1e38F, 0, 0, 10);
    EXPECT_FALSE(CurvaDescarga(Elegido()).SinPreguntas(0, 10));
    EXPECT_TRUE(CurvaDescarga(Elegido()).SinPreguntas(0, 0.5F));
}

}  // namespace
}  // namespace hydraulics
