// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlFQs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>

#include "apoyo/Compara.h"
#include "hydraulics/TablasDePrueba.h"

namespace hydraulics {
namespace {

using apoyo::NumeroDeFalla;
using model::Icono;
using model::Mensaje;
using pruebas::EstadoConEmbalses;

constexpr float MaximoSimple = std::numeric_limits<float>::max();

Mensaje Informe(const char* texto)
{
    return {texto, "", Icono::Ninguno};
}

class mdlFQs : public testing::Test, public EstadoConEmbalses {
  protected:
    /// Of the component chosen, Represa or Lago.
    float Q(float h) { return QdeH(Elegido(), h); }
    float H(float q) { return HdeQalma(Elegido(), q); }
};

// --- outflow by functions ---

TEST_F(mdlFQs, EnLosDosLimitesDeUnaFuncionVale)
{
    PonFuncion(2, 3, 1, 0, 100, 104);  // Q = 3·(h - 100)
    PonFuncion(6, 5, 2, 0, 100, 104);  // Q = 5 + 2·(h - 100)
    EXPECT_EQ(Q(100), 5);
    EXPECT_EQ(Q(104), 12 + 13);
    EXPECT_EQ(Q(std::nextafter(100.0F, 0.0F)), 0);
    EXPECT_EQ(Q(std::nextafter(104.0F, 200.0F)), 0);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, FuncionSinTildarNoCuentaTengaLosCoeficientesQueTenga)
{
    for (std::size_t i = 1; i <= 8; ++i)
        PonFuncion(i, 1000, -1, 1000, 0, 100);
    PonFuncion(3, 7, 0, 0, 0, 100);
    for (const std::int16_t tilde : std::initializer_list<std::int16_t>{0, 2, -1}) {
        s.Red.Represas(1).chkFQ = {tilde, tilde, 1, tilde, tilde, tilde, tilde, tilde};
        EXPECT_EQ(Q(0), 7) << tilde;  // any of the others would be at fault there
        EXPECT_EQ(Q(50), 7) << tilde;
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, SinFuncionesEnUsoNoSaleNada)
{
    for (const float h : {-5.0F, 0.0F, 3.0F, MaximoSimple})
        EXPECT_EQ(Q(h), 0) << h;
    for (const float q : {-5.0F, 0.0F, 3.0F})
        EXPECT_EQ(H(q), 0) << q;
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, CeroALaCeroEsUno)
{
    PonFuncion(1, 6.5F, 0, 0, 100, 110);
    EXPECT_EQ(Q(100), 6.5F);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, LaPotenciaMideDesdeSuAlturaMinima)
{
    PonFuncion(1, 2, 0.5F, 0, 100, 110);  // 2·4^0.5
    EXPECT_EQ(Q(104), 4);
    PonFuncion(4, 3, 1.5F, 0, 103, 110);  // 3·1^1.5
    EXPECT_EQ(Q(104), 4 + 3);
}

TEST_F(mdlFQs, LaParabolaMideDesdeSuAlturaMinima)
{
    PonFuncion(5, 1, 10, 100, 100, 110);  // 1 + 10·2 + 100·4
    EXPECT_EQ(Q(102), 421);
    PonFuncion(8, -21, 0.5F, -100, 100, 110);
    EXPECT_EQ(Q(102), 421 - 21 + 1 - 400);
}

TEST_F(mdlFQs, LasCuatroPrimerasNoTienenTercerCoeficiente)
{
    for (std::size_t i = 1; i <= 4; ++i)
        PonFuncion(i, 1, 1, 1000, 0, 10);
    EXPECT_EQ(Q(2), 4 * 2);
}

TEST_F(mdlFQs, DondeSeSuperponenSeSumanYEnLosHuecosNoSaleNada)
{
    PonFuncion(1, 1, 1, 0, 0, 4);
    PonFuncion(2, 1, 1, 0, 2, 6);
    PonFuncion(3, 1, 1, 0, 8, 9);
    EXPECT_EQ(Q(1), 1);
    EXPECT_EQ(Q(3), 3 + 1);
    EXPECT_EQ(Q(5), 3);
    EXPECT_EQ(Q(7), 0);
    EXPECT_EQ(Q(8.5F), 0.5F);
    EXPECT_EQ(Q(10), 0);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, LaSumaSeRedondeaDespuesDeCadaFuncion)
{
    // 2^24 + 1 lies halfway between two 32-bit floats and goes to the even one, twice. In one go it'd be 2^24
    // + 2.
    PonFuncion(1, 16777216, 0, 0, 0, 10);
    PonFuncion(2, 1, 0, 0, 0, 10);
    PonFuncion(3, 1, 0, 0, 0, 10);
    EXPECT_EQ(Q(1), 16777216.0F);
    // Within a function there is no rounding in between: 2^24 + 1 + 1.
    s.Red.Represas(1).chkFQ = {1, 0, 0, 0, 0, 0, 0, 0};
    PonFuncion(5, 1, 1, 0, 0, 10);
    EXPECT_EQ(Q(1), 16777218.0F);
}

TEST_F(mdlFQs, LaPotenciaSeCalculaEn64Bits)
{
    // (2^60)^4 = 2^240 is beyond 32 bits; times 2^-140 it is back inside.
    PonFuncion(1, std::ldexp(1.0F, -140), 4, 0, 0, std::ldexp(1.0F, 61));
    EXPECT_EQ(Q(std::ldexp(1.0F, 60)), std::ldexp(1.0F, 100));
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, ElOrdenDeLasSumasEsElDeLasFunciones)
{
    // (2^24 + 1) - 1 is 2^24 - 1; in the other order, (-1 + 1) + 2^24 would stay whole.
    PonFuncion(2, 16777216, 0, 0, 0, 10);
    PonFuncion(3, 1, 0, 0, 0, 10);
    PonFuncion(6, -1, 0, 0, 0, 10);
    EXPECT_EQ(Q(1), 16777215.0F);
}

TEST_F(mdlFQs, CeroAUnaPotenciaNegativaSeInformaYDaCero)
{
    PonFuncion(1, 5, 0, 0, 0, 10);
    PonFuncion(2, 1, -0.5F, 0, 0, 10);
    EXPECT_EQ(Q(0), 0);  // what function 1 had given is lost too
    EXPECT_EQ(anfitrion->Avisos(),
              std::vector<Mensaje>{
                  Informe("Error Nro. 5Argumento o llamada a procedimiento no válidos ,Verifique")});
    EXPECT_EQ(Q(4), 5.5F);
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_TRUE(anfitrion->Preguntas().empty());
}

TEST_F(mdlFQs, DesbordamientoSeInformaYDaCero)
{
    const auto desbordamiento = Informe("Error Nro. 6Desbordamiento ,Verifique");
    PonFuncion(1, 1, 30000, 0, 0, 10);  // 2^30000, outside 64 bits
    EXPECT_EQ(Q(2), 0);
    EXPECT_EQ(anfitrion->Avisos(), std::vector<Mensaje>{desbordamiento});
    PonFuncion(1, 1, 200, 0, 0, 10);  // 2^200, outside 32
    EXPECT_EQ(Q(2), 0);
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{desbordamiento, desbordamiento}));
    EXPECT_EQ(Q(1), 1);
    EXPECT_EQ(anfitrion->Avisos().size(), 2U);
}

TEST_F(mdlFQs, ConFuncionesLaTablaNoSeMira)
{
    PonHQ({{0, 50}, {10, 60}});
    s.Red.Represas(1).optTabla = false;
    EXPECT_EQ(Q(5), 0);
    PonFuncion(1, 1, 1, 0, 0, 10);
    EXPECT_EQ(Q(5), 5);
    EXPECT_EQ(Q(20), 0);
    EXPECT_TRUE(Callado());
}

// --- outflow by table ---

TEST_F(mdlFQs, TablaEnLosRenglonesYEntreEllos)
{
    PonHQ({{100, 0.5F}, {102, 4}, {110, 12}});
    PonFuncion(1, 1000, 0, 0, 0, 1000);  // not looked at
    for (const bool lago : {false, true}) {
        Elige(lago);
        EXPECT_EQ(Q(100), 0.5F);
        EXPECT_EQ(Q(102), 4);
        EXPECT_EQ(Q(110), 12);
        EXPECT_EQ(Q(101), 2.25F);
        EXPECT_EQ(Q(106), 8);
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, TablaSeRedondeaUnaVezA32Bits)
{
    PonHQ({{0, 0}, {82, 2}, {85, 3}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        EXPECT_EQ(Q(41), 1);  // with a 32-bit slope 1 - 2^-24
        EXPECT_EQ(Q(83), static_cast<float>(7.0 / 3.0));
    }
}

TEST_F(mdlFQs, TablaSinRenglonesDaCeroSinPreguntar)
{
    s.Red.Represas(1).optTabla = true;
    PonFuncion(1, 1000, 0, 0, 0, 1000);
    for (const bool lago : {false, true}) {
        Elige(lago);
        for (const float h : {-1.0F, 0.0F, 1.0F, 500.0F})
            EXPECT_EQ(Q(h), 0) << h;
        EXPECT_EQ(H(3), 0);
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, TablaDeUnRenglon)
{
    PonHQ({{100, 7}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        EXPECT_EQ(Q(100), 7);
        EXPECT_TRUE(Callado());
        EXPECT_EQ(Q(101), 0);
        EXPECT_EQ(Q(99), 0);
        EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
        anfitrion->sucesos.clear();
        EXPECT_EQ(H(7), 0);  // no bracket to halve
    }
}

TEST_F(mdlFQs, TablaConRenglonesRepetidosODesordenados)
{
    PonHQ({{10, 1}, {20, 2}, {20, 3}, {30, 4}});
    EXPECT_EQ(Q(20), 2);
    EXPECT_EQ(Q(25), 3.5F);
    PonHQ({{0, 0}, {50, 50}, {30, 3}, {100, 10}});
    EXPECT_EQ(Q(30), 30);
    EXPECT_EQ(Q(65), 6.5F);
    EXPECT_TRUE(Callado());
}

struct CasoFuera {
    bool lago;
    float h;
    const char* texto;
};

// clang-format off
const CasoFuera CasosFuera[] = {
    {false, 110.5F, "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Represa r-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar? "},
    {false, 99.5F, "Error, la tabla H-Q de la Represa r-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar"},
    {true, 110.5F, "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Lago l-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar? "},
    {true, 99.5F, "Error, la tabla H-Q de la Lago l-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar"},
};
// clang-format on

TEST_F(mdlFQs, FueraDeLaTablaPreguntaYSiDaCero)
{
    PonHQ({{100, 3}, {110, 12}});
    for (const CasoFuera& caso : CasosFuera) {
        Elige(caso.lago);
        anfitrion->sucesos.clear();
        EXPECT_EQ(Q(caso.h), 0);
        EXPECT_EQ(anfitrion->Preguntas(),
                  (std::vector<Mensaje>{
                      {caso.texto, "Error, la tabla HQ es inconsistente...", Icono::Exclamacion}}));
    }
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(mdlFQs, FueraDeLaTablaNoTerminaElPrograma)
{
    PonHQ({{100, 3}, {110, 12}});
    for (const CasoFuera& caso : CasosFuera) {
        Elige(caso.lago);
        anfitrion->respuestas = {false};
        EXPECT_THROW(Q(caso.h), model::FinDelPrograma);
    }
    EXPECT_EQ(anfitrion->Preguntas().size(), std::size(CasosFuera));
    EXPECT_TRUE(disco.Llamadas().empty());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(mdlFQs, TablaAlRevesPreguntaPrimeroPorEncima)
{
    PonHQ({{110, 3}, {100, 12}});
    EXPECT_EQ(Q(105), 0);
    ASSERT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(anfitrion->Preguntas()[0].texto, CasosFuera[0].texto);
}

TEST_F(mdlFQs, LasFallasDeLaTablaSeInformanYDanCero)
{
    const auto subindice = Informe("Error Nro. 9El subíndice está fuera del intervalo ,Verifique");
    PonHQ({{100, 3}, {110, 12}});
    s.Red.RepresaFilasHQ(1) = s.Red.LagoFilas(1) = 200;
    for (const bool lago : {false, true}) {
        Elige(lago);
        anfitrion->sucesos.clear();
        EXPECT_EQ(Q(105), 0);
        EXPECT_EQ(H(5), 0);
        EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{subindice, subindice}));
    }
    EXPECT_TRUE(anfitrion->Preguntas().empty());
}

// --- height from outflow ---

// From a bracket of 1 m ten halvings are made: after nine it is 1/512 m wide, after ten 1/1024 m, which isn't
// above 0.001 m. The last midpoint is a bound of the last bracket.
TEST_F(mdlFQs, AlturaDeCaudalEsElUltimoPuntoMedio)
{
    PonHQ({{0, 0}, {1, 1}});
    PonFuncion(1, 1, 1, 0, 0, 1);  // the same outflow
    for (const int forma : {0, 1, 2}) {
        Elige(forma == 2);
        s.Red.Represas(1).optTabla = forma == 0;
        EXPECT_EQ(H(0), 0.0009765625F);      // always below: 2^-10
        EXPECT_EQ(H(1), 1 - 0.0009765625F);  // always above
        EXPECT_EQ(H(0.5F), 0.5009765625F);   // an equal outflow moves the lower bound
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, CaudalCeroDaUnaAlturaApenasSobreElPrimerRenglon)
{
    PonHQ({{100, 0}, {108, 40}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        const float h = H(0);
        EXPECT_NE(h, 100);
        EXPECT_GT(h, 100);
        EXPECT_LE(h, 100.001F);
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, CaudalDeMasDaUnaAlturaApenasBajoElTecho)
{
    PonHQ({{100, 0}, {108, 40}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        const float h = H(1000);
        EXPECT_LT(h, 108);
        EXPECT_GE(h, 107.999F);
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, RangoDentroDeLaToleranciaDaCero)
{
    for (const bool lago : {false, true}) {
        Elige(lago);
        PonHQ({{0, 0}, {0.001F, 1}});
        EXPECT_EQ(H(0.5F), 0);
        // just above 0.001 one round is made: its midpoint
        PonHQ({{0, 0}, {std::nextafter(0.001F, 1.0F), 1}});
        EXPECT_NEAR(H(0.5F), 0.0005F, 1e-9F);
    }
}

TEST_F(mdlFQs, LosLimitesSalenDeLasFuncionesEnUso)
{
    PonFuncion(1, 0, 0, 0, 5, 7);
    PonFuncion(3, 0, 0, 0, 6, 12);
    PonFuncion(8, 0, 0, 0, 2, 3);
    s.Red.Represas(1).FQmin[4] = -100;  // not in use
    s.Red.Represas(1).FQMax[4] = 100;
    EXPECT_EQ(RangoDescarga(Elegido()).minimo, 2);
    EXPECT_EQ(RangoDescarga(Elegido()).maximo, 12);
    s.Red.Represas(1).chkFQ = {1, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(RangoDescarga(Elegido()).minimo, 5);
    EXPECT_EQ(RangoDescarga(Elegido()).maximo, 7);
}

TEST_F(mdlFQs, SinLaPrimeraFuncionElCeroEntraEnLosLimites)
{
    s.Red.Represas(1).FQmin[0] = 90;  // not in use
    s.Red.Represas(1).FQMax[0] = 200;
    PonFuncion(2, 1, 1, 0, 100, 110);
    EXPECT_EQ(RangoDescarga(Elegido()).minimo, 0);
    EXPECT_EQ(RangoDescarga(Elegido()).maximo, 110);
    PonFuncion(2, 1, 1, 0, -20, -10);
    EXPECT_EQ(RangoDescarga(Elegido()).minimo, -20);
    EXPECT_EQ(RangoDescarga(Elegido()).maximo, 0);
}

TEST_F(mdlFQs, ConTablaLosLimitesSonLosDeLaTabla)
{
    PonFuncion(1, 1, 1, 0, 0, 1000);
    PonHQ({{100, 0}, {101, 1}});
    // Ten halvings from 100 m to 101 m. A bracket of 1000 m would need twenty.
    EXPECT_EQ(H(0), 100.0009765625F);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, EnUnaFuncionConHuecosQuedaAUnLadoDelHueco)
{
    PonFuncion(1, 1, 1, 0, 0, 1);
    PonFuncion(2, 1, 1, 0, 3, 4);
    // Both 0.5 m and 3.5 m let out 0.5 m3/s. Midpoints 2 (nothing: up), 3 (0: up), 3.5 (0.5, not above: up),
    // then down all the way: twelve halvings of 4 m, the last one at 3.5 + 4/4096.
    EXPECT_EQ(H(0.5F), 3.5009765625F);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, MasDeMilVueltasTerminaElPrograma)
{
    // Around a million metres two neighbouring 32-bit floats are 0.0625 m apart.
    PonHQ({{1000000, 0}, {1000001, 1}});
    EXPECT_THROW(H(0.3F), model::FinDelPrograma);
    EligeLago(1);
    EXPECT_THROW(H(0.3F), model::FinDelPrograma);
    EligeRepresa(1);
    s.Red.Represas(1).optTabla = false;
    PonFuncion(1, 1, 1, 0, 1000000, 1000001);
    EXPECT_THROW(H(0.3F), model::FinDelPrograma);
    const Mensaje represa{
        "Error <Proceso_en_Represa>, inconsistencia en el cálculo de H=f(Q)> en Sub HdeQalmaRepresa r-uno. "
        "Es posible "
        "que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
        "Error,...", Icono::Exclamacion};
    const Mensaje lago{
        "Error <Proceso_en_Lago>, inconsistencia en el cálculo de H=f(Q)> en Sub HdeQalmaLago l-uno. Es "
        "posible que "
        "deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
        "Error,...", Icono::Exclamacion};
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{represa, lago, represa}));
    EXPECT_TRUE(anfitrion->Preguntas().empty());
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_F(mdlFQs, RangoFueraDe32BitsSeInformaYDaCero)
{
    PonFuncion(1, 1, 1, 0, -3e38F, 3e38F);
    EXPECT_EQ(H(1), 0);
    EXPECT_EQ(anfitrion->Avisos(), std::vector<Mensaje>{Informe("Error Nro. 6Desbordamiento ,Verifique")});
}

TEST_F(mdlFQs, LimitesAlRevesTambienSeBisecan)
{
    // From 0 "down" to 1 the difference counts without its sign; each of the ten midpoints lets nothing out,
    // as no height lies between H min 1 and H Max 0, so the lower bound moves from 1 to 2^-10 above 0.
    PonFuncion(1, 1, 1, 0, 1, 0);
    EXPECT_EQ(H(0.25F), 0.0009765625F);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlFQs, UnaFallaDelCaudalSeInformaEnCadaVuelta)
{
    PonFuncion(1, 1, -1, 0, 0, 0.0015F);
    PonFuncion(2, 1, 3e38F, 0, 0, 0);
    // One halving: at 0.00075 m Q = 1/0.00075 > 0. Function 2 reaches only the height 0, never a midpoint.
    EXPECT_FLOAT_EQ(H(0), 0.00075F);
    EXPECT_TRUE(Callado());
    PonFuncion(1, 1, 2, 0, 0, 4);
    PonFuncion(2, 1e30F, 300, 0, 0, 4);
    // 2 m: 2^300 is outside 32 bits, reported, 0: up. 3 m, 3.5 m, ... 4 m - 4/4096: twelve reports.
    EXPECT_EQ(H(1), 4 - 0.0009765625F);
    EXPECT_EQ(anfitrion->Avisos(),
              std::vector<Mensaje>(12, Informe("Error Nro. 6Desbordamiento ,Verifique")));
}

// --- copy of the coefficients ---

TEST_F(mdlFQs, CargaFQsCopiaLasFuncionesDeTodasLasRepresas)
{
    for (int n = 1; n <= 2; ++n) {
        model::Represa& r = s.Red.Represas(n);
        for (std::size_t i = 0; i < 8; ++i) {
            const float base = 100.0F * static_cast<float>(n) + 10.0F * static_cast<float>(i + 1);
            r.FQa[i] = base + 1;
            r.FQb[i] = base + 2;
            r.FQc[i] = base + 3;
            r.FQmin[i] = base + 4;
            r.FQMax[i] = base + 5;
            r.chkFQ[i] = static_cast<std::int16_t>(i + static_cast<std::size_t>(n) * 100);
        }
    }
    CargaFQs(s.Red);
    EXPECT_EQ(s.Red.FQActiva.UltimaFila(), 2);
    EXPECT_EQ(s.Red.FQActiva.TopeColumna(), 8);
    ASSERT_EQ(s.Red.FQCoef.size(), 3U);
    for (int n = 1; n <= 2; ++n) {
        for (int i = 1; i <= 8; ++i) {
            const auto& c = s.Red.FQCoef[static_cast<std::size_t>(n)][static_cast<std::size_t>(i)];
            const auto base = static_cast<float>(100 * n + 10 * i);
            EXPECT_EQ(s.Red.FQActiva(n, i), i - 1 + 100 * n);
            EXPECT_EQ(c[1], base + 1);
            EXPECT_EQ(c[2], base + 2);
            EXPECT_EQ(c[3], i < 5 ? 0 : base + 3);  // the first four have none
            EXPECT_EQ(c[4], base + 4);
            EXPECT_EQ(c[5], base + 5);
        }
    }
    for (int i = 0; i <= 8; ++i) {
        EXPECT_EQ(s.Red.FQActiva(0, i), 0);
        EXPECT_EQ(s.Red.FQCoef[0][static_cast<std::size_t>(i)], (std::array<float, 6>{}));
    }
}

TEST_F(mdlFQs, CargaFQsEmpiezaDeNuevo)
{
    PonFuncion(1, 1, 2, 3, 4, 5);
    CargaFQs(s.Red);
    EXPECT_EQ(s.Red.FQActiva(1, 1), 1);
    s.Red.ColRepresas.Vacia();
    s.Red.ColRepresas.Anuncia(0);
    CargaFQs(s.Red);
    EXPECT_EQ(s.Red.FQActiva.UltimaFila(), 0);
    EXPECT_EQ(s.Red.FQCoef.size(), 1U);
}

TEST_F(mdlFQs, CargaFQsConUnNumeroFueraDeLosArreglos)
{
    PonFuncion(1, 1, 2, 3, 4, 5);
    for (const std::int16_t numero : {std::int16_t{3}, std::int16_t{-1}}) {
        s.Red.Represas(2).numRepresa = numero;
        EXPECT_EQ(NumeroDeFalla([&] { CargaFQs(s.Red); }), 9) << numero;
        EXPECT_EQ(s.Red.FQActiva(1, 1), 1) << "what came before stays";
        EXPECT_EQ(s.Red.FQCoef[1][1][5], 5);
    }
}

}  // namespace
}  // namespace hydraulics
