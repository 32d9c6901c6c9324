// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Embalses.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "apoyo/Compara.h"
#include "engine/EmbalseSolo.h"
#include "hydraulics/Textos.h"

namespace engine {
namespace {

using apoyo::MismoTexto;
using hydraulics::Caso;
using hydraulics::Funcion;
using hydraulics::TextoDe;
using model::Icono;
using model::Mensaje;
using pruebas::RedAMano;
using pruebas::RenglonHASQ;

/// All that differs between the two kinds, whole.
struct ClaseProbada {
    const char* palabra;
    const char* nombre;
    const char* abrePiscina;
    const char* abreRungeKutta;
    const char* cierra;
    const char* columnas;
    const char* sinMetodo;
    const char* muskingum;
    const char* sinFin;
    const char* tituloArea;
    const char* areaEn100;           ///< stages 1 and 3, two blanks at the end
    const char* areaEn100Segunda;    ///< stage 2, one blank
    const char* areaEn100y5Segunda;  ///< stage 2, at 100.5 m
    Funcion SdeH, HdeS, AdeH, QdeH;
};

// clang-format off
const ClaseProbada Clases[] = {
    {"Represa", "r-uno",
     "\r\nPlanilla detallada de cálculo de propagación en Represa "
     "\r\nk - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]"
     "\r\nComponente: Represa r-uno     Método de Propagación: Piscina Nivelada",
     "\r\nPlanilla detallada de cálculo de propagación en Represa "
     "\r\nk    t     qe(i, k)    dH1   dH2  dH3   q(i, k)"
     "\r\nComponente: Represa r-uno     Método de Propagación: Runge Kutta",
     "\r\n Fin detalle cálculo proaga en Represa ",
     "\r\nPer.k  t[min]  Qentra[m3/s] Qsale[m3/s]   H[m]     Vol.Alm.[m3]",
     "Error, Seleccione el método de propagación de la represa en el formulario de Propiedadesr-uno. ",
     "Error, Los parámetros de Muskingum utilizados en el tramo de caucer-uno son erróneos. Verifique, o cambie a propagación Directa desde el Editor de UEHs ",
     "Error <Proceso_en_Represa>, inconsistencia en el cálculo de <2S/dt + Q> en propagación Represa r-uno. Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
     "Error...Verifique función Altura Superficie de la Represa",
     "La superficie a(h) obtenida para h= 100 de la Represa r-uno es CERO. ¿Desea continuar?  ",
     "La superficie a(h) obtenida para h= 100 de la Represa r-uno es CERO. ¿Desea continuar? ",
     "La superficie a(h) obtenida para h= 100.5 de la Represa r-uno es CERO. ¿Desea continuar? ",
     Funcion::SdeHRepresa, Funcion::HdeSRepresa, Funcion::AdeHRepresa, Funcion::QdeHRepresa},
    {"Lago", "l-uno",
     "\r\nPlanilla detallada de cálculo de propagación en Lago "
     "\r\nk - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]"
     "\r\nComponente: Lago l-uno     Método de Propagación: Piscina Nivelada",
     "\r\nPlanilla detallada de cálculo de propagación en Lago "
     "\r\nk    t     qe(i, k)    dH1   dH2  dH3   q(i, k)"
     "\r\nComponente: Lago l-uno     Método de Propagación: Runge Kutta",
     "\r\n Fin detalle cálculo proaga en Lago ",
     "\r\nPer.k  t[min]  Qentra[mm] Qsale[m3/s]   H[m]     Vol.Alm.[m3]",
     "Error, Seleccione el método de propagación de la represa en el formulario de Propiedadesl-uno. ",
     "Error, Los parámetros de Muskingum utilizados en el tramo de caucel-uno son erróneos. Verifique, o cambie a propagación Directa desde el Editor de UEHs ",
     "Error <Proceso_en_Lago>, inconsistencia en el cálculo de <2S/dt + Q> en propagación Lago l-uno. Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
     "Error...Verifique función Altura Superficie de la Lago",
     "La superficie a(h) obtenida para h= 100 de la Lago l-uno es CERO. ¿Desea continuar?  ",
     "La superficie a(h) obtenida para h= 100 de la Lago l-uno es CERO. ¿Desea continuar? ",
     "La superficie a(h) obtenida para h= 100.5 de la Lago l-uno es CERO. ¿Desea continuar? ",
     Funcion::SdeHLago, Funcion::HdeSLago, Funcion::AdeHLago, Funcion::QdeHLago},
};
// clang-format on

void PrintTo(const ClaseProbada& c, std::ostream* salida)
{
    *salida << c.palabra;
}

/// Vertical walls and an outflow that rises with the depth d: S = 307200·d [m3], Q = 1024·d [m3/s]. With
/// steps of 10 min 2S/dt is 1024·d and U = 2048·d, all without a rounding. The bisection from 4 m down to
/// 5 mm takes ten halvings, the last one at an odd multiple of 1/256 m.
const std::vector<RenglonHASQ> Pileta = {{100, 30.72F, 0, 0}, {104, 30.72F, 1228800, 4096}};

/// 6 ha of vertical walls: S = 60000·d, and dH = (I - Q)/100 in 10 min. Q is 125 m3/s at half a metre, then
/// 100 more for each metre.
const std::vector<RenglonHASQ> Laguna = {{100, 6, 0, 0}, {100.5F, 6, 30000, 125}, {104.5F, 6, 270000, 525}};

class Embalses : public testing::TestWithParam<ClaseProbada>, public RedAMano {
  protected:
    [[nodiscard]] bool EsLago() const { return Nombre()[0] == 'l'; }
    [[nodiscard]] static std::string Nombre() { return GetParam().nombre; }

    /// The component alone with one UEH upstream of it.
    void Pon(const std::string& metodo, const std::vector<RenglonHASQ>& tabla, float altura,
             float inicial = 0)
    {
        PonUEH("u-1", Nombre(), inicial);
        PonEmbalse(metodo, tabla, altura);
    }
    void PonEmbalse(const std::string& metodo, const std::vector<RenglonHASQ>& tabla, float altura)
    {
        if (EsLago())
            PonLago(Nombre(), metodo, tabla).HInicialEmb = altura;
        else
            PonRepresa(Nombre(), metodo, tabla).HInicialEmb = altura;
    }
    void PonK(float K)
    {
        if (EsLago())
            s.Red.Lagos(1).Lago_k_Musk = K;
        else
            s.Red.Represas(1).Represa_k_Musk = K;
    }
    /// Sizes for the hydrograph of "u-1" and routes.
    void Corre(const std::vector<float>& caudales)
    {
        Dimensiona(static_cast<int>(caudales.size()));
        PonCaudales("u-1", caudales);
        Propaga(Nombre());
    }
    /// Rows of the component in the result arrays, from step 0.
    [[nodiscard]] std::vector<float> Sale() const { return De(s.Resultados.QSale, Fila(Nombre())); }
    [[nodiscard]] std::vector<float> Entra() const { return De(s.Resultados.QEntra, Fila(Nombre())); }
    [[nodiscard]] std::vector<float> H() const
    {
        return De(EsLago() ? s.Resultados.HLago : s.Resultados.HRepresa, 1);
    }
    [[nodiscard]] std::vector<float> S() const
    {
        return De(EsLago() ? s.Resultados.SLago : s.Resultados.SRepresa, 1);
    }
    [[nodiscard]] float QMax() const { return s.Resultados.QMax(Fila(Nombre()), 1); }

    /// A question of one of the lookups.
    static Mensaje Pregunta(Funcion funcion, Caso caso)
    {
        const auto& t = TextoDe(funcion, caso);
        return {std::string(t.primero) + Nombre() + std::string(t.segundo), std::string(t.titulo),
                Icono::Exclamacion};
    }
    static Mensaje PreguntaArea(const char* texto)
    {
        return {texto, GetParam().tituloArea, Icono::Exclamacion};
    }

  private:
    [[nodiscard]] std::vector<float> De(const model::Matriz<float>& m, int fila) const
    {
        return {m.Fila(fila), m.Fila(fila) + s.Resultados.NroPasosQ + 1};
    }
};
INSTANTIATE_TEST_SUITE_P(Embalses, Embalses, testing::ValuesIn(Clases),
                         [](const auto& caso) { return std::string(caso.param.palabra); });

using V = std::vector<float>;

// --- level pool ---

// Step 1: W = 0 + 1024, met at d = 1/2, a midpoint of the third halving; the bracket then closes from above
// down to 129/256: Q = 516, U = 1032, T = 1024 - 2·516 = -8.
// Step 2: W = -8 + 1536 = 1528, met at d = 191/256, the midpoint of the tenth halving: Q = 764, T = 0.
// Step 3: W = 512, met at d = 1/4, closes at 65/256: Q = 260, U = 520, T = 512 - 520.
TEST_P(Embalses, PiscinaNiveladaAMano)
{
    s.Control.SalidaPizarra = true;
    s.Control.TextoPizarra = "antes";
    Pon("Piscina Nivelada", Pileta, 100);
    Corre({1024, 512, 0});
    EXPECT_EQ(Entra(), (V{0, 1024, 512, 0}));
    EXPECT_EQ(Sale(), (V{0, 516, 764, 260}));
    EXPECT_EQ(H(), (V{100, 100 + 129 / 256.0F, 100 + 191 / 256.0F, 100 + 65 / 256.0F}));
    EXPECT_EQ(S(), (V{0, 154800, 229200, 78000}));
    EXPECT_EQ(QMax(), 764);
    EXPECT_EQ(s.Resultados.VolEntra, 600 * (1024 + 512));
    EXPECT_EQ(s.Resultados.VolSale, 600 * (516 + 764 + 260));
    EXPECT_EQ(corrida.SActual, 78000);

    const ClaseProbada& clase = GetParam();
    const std::string esperado = std::string("antes") + clase.abrePiscina +
                                 "\r\n 0    0    0    0    0    0         0   100   0"
                                 "\r\n 1    10    1024    1024   -8    1032         516   100.5039   154800"
                                 "\r\n 2    20    512    1536    0    1528         764   100.7461   229200"
                                 "\r\n 3    30    0    512   -8    520         260   100.2539   78000" +
                                 clase.cierra + "\r\n\r\nComponente: " + clase.palabra + " " + clase.nombre +
                                 "     Método de Propagación: Piscina Nivelada" + clase.columnas +
                                 "\r\n 0      0      0          0            100       0         "
                                 "\r\n 1      10     1024       516          100.5     154800    "
                                 "\r\n 2      20     512        764          100.75    229200    "
                                 "\r\n 3      30     0          260          100.25    78000     "
                                 "\r\nVolumen Escurrido. Entra = 921600 m3 ; Sale = 924000 m3"
                                 "\r\nCaudal Máximo = 764 m3/s "
                                 "\r\n";
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra));
    EXPECT_EQ(anfitrion->pizarra, s.Control.TextoPizarra) << "the box has it at once";
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_P(Embalses, ConLaPizarraApagadaCreceLaPlanillaYNoHayTabla)
{
    Pon("Piscina Nivelada", Pileta, 100);
    anfitrion->pizarra = "intacta";
    Corre({1024, 512, 0});
    const std::string esperado = std::string(GetParam().abrePiscina) +
                                 "\r\n 0    0    0    0    0    0         0   100   0"
                                 "\r\n 1    10    1024    1024   -8    1032         516   100.5039   154800"
                                 "\r\n 2    20    512    1536    0    1528         764   100.7461   229200"
                                 "\r\n 3    30    0    512   -8    520         260   100.2539   78000" +
                                 GetParam().cierra;
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra));
    EXPECT_EQ(anfitrion->pizarra, "intacta");
    EXPECT_EQ(QMax(), 764);
    EXPECT_EQ(s.Resultados.VolEntra, 921600);
    EXPECT_EQ(s.Resultados.VolSale, 924000);
}

// T of step 0 takes QSale(i, 0) before it is set: 2·614400/600 - 0 = 2048, not 0. Step 1: W = 2048 + 8, met
// at d = 257/256.
TEST_P(Embalses, PiscinaNiveladaEmpiezaConElCaudalDeBase)
{
    Pon("Piscina Nivelada", Pileta, 102, 8);
    Corre({0});
    EXPECT_EQ(Entra(), (V{8, 0}));
    EXPECT_EQ(Sale(), (V{2048, 1028}));
    EXPECT_EQ(H(), (V{102, 101 + 1 / 256.0F}));
    EXPECT_EQ(S(), (V{614400, 308400}));
    EXPECT_EQ(QMax(), 2048) << "step 0 counts";
    EXPECT_EQ(s.Resultados.VolEntra, 4800);
    EXPECT_EQ(s.Resultados.VolSale, 600 * (2048 + 1028));
    EXPECT_NE(
        s.Control.TextoPizarra.find("\r\n 0    0    8    0    2048    0         2048   102   614400"
                                    "\r\n 1    10    0    8    0    2056         1028   101.0039   308400"),
        std::string::npos);
}

TEST_P(Embalses, PiscinaNiveladaRestaElCaudalQueElArregloTenia)
{
    Pon("Piscina Nivelada", Pileta, 102);
    Dimensiona(1);
    s.Resultados.QSale(Fila(Nombre()), 0) = 2048;
    Propaga(Nombre());
    // T = 2048 - 2048: nothing is to be met, and the bracket closes on the bottom
    EXPECT_EQ(Sale(), (V{2048, 4}));
    EXPECT_NE(s.Control.TextoPizarra.find("\r\n 0    0    0    0    0    0         2048   102   614400"),
              std::string::npos);
}

TEST_P(Embalses, EmbalseVacioSinEntradaQuedaApenasSobreElFondo)
{
    Pon("Piscina Nivelada", Pileta, 100);
    Corre({0, 0, 0, 0});
    // W = 0, then T = 0 - 2·4: below every U, so that the last midpoint is 1/256 m, whatever went before
    EXPECT_EQ(H(), (V{100, 100.00390625F, 100.00390625F, 100.00390625F, 100.00390625F}));
    EXPECT_EQ(Sale(), (V{0, 4, 4, 4, 4}));
    for (std::size_t k = 1; k <= 4; ++k) {
        EXPECT_GT(H()[k], 100);
        EXPECT_LE(H()[k], 100.005F);
    }
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_P(Embalses, ObjetivoBajoElFondoConservaElUltimoPuntoMedio)
{
    // Even at the bottom U is 2000, above every target: Q stays that of the last midpoint, 2000 + 4.
    Pon("Piscina Nivelada", {{100, 6, 0, 2000}, {104, 6, 1228800, 6096}}, 100);
    Corre({0, 10, 0});
    EXPECT_EQ(Sale(), (V{2000, 2004, 2004, 2004}));
    EXPECT_EQ(H(), (V{100, 100.00390625F, 100.00390625F, 100.00390625F}));
}

TEST_P(Embalses, ObjetivoSobreElTechoSePierdeSinPreguntar)
{
    s.Control.SalidaPizarra = true;
    Pon("Piscina Nivelada", Pileta, 100);
    Corre({100000});
    EXPECT_EQ(Sale(), (V{0, 4092}));
    EXPECT_EQ(H(), (V{100, 103.99609375F}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_NE(s.Control.TextoPizarra.find("\r\nVolumen Escurrido. Entra = 6E+07 m3 ; Sale = 2455200 m3"),
              std::string::npos);
}

// T = 2S/dt - Q begins at 0; the first step leaves W - 2·Q = 0 - 6E+38, outside the type: height and storage
// of that step stand, its outflow doesn't, and the component ends.
TEST_P(Embalses, CaudalCuyoDobleDesbordaTerminaElComponente)
{
    Pon("Piscina Nivelada", {{100, 6, 0, 3e38F}, {104, 6, 1228800, 3e38F}}, 100);
    EXPECT_FALSE(corrida.Intenta([&] { Corre({0, 0}); }));
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(Sale(), (V{3e38F, 0, 0}));
    EXPECT_EQ(H(), (V{100, 100.00390625F, 0}));
    EXPECT_EQ(QMax(), 0);
}

// Each step takes 2·1E+38 from T: -2E+38 behind the first, outside the type behind the second.
TEST_P(Embalses, CaudalQueDesbordaAlSegundoPasoTerminaElComponente)
{
    Pon("Piscina Nivelada", {{100, 6, 0, 1e38F}, {104, 6, 1228800, 1e38F}}, 100);
    EXPECT_FALSE(corrida.Intenta([&] { Corre({0, 0, 0}); }));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(Sale(), (V{1e38F, 1e38F, 0, 0}));
}

TEST_P(Embalses, TablaMasAngostaQueLaToleranciaNoSeBiseca)
{
    Pon("Piscina Nivelada", {{100, 6, 3000, 7}, {100.004F, 6, 3600, 8}}, 100);
    Corre({0, 50});
    EXPECT_EQ(H(), (V{100, 100, 100}));
    EXPECT_EQ(S(), (V{3000, 3000, 3000}));
    EXPECT_EQ(Sale(), (V{7, 7, 7}));
    // T = 2·3000/10/60 = 10; then 10 - 14 = -4 and -4 + 50 - 14 = 32; U is never worked out
    EXPECT_NE(s.Control.TextoPizarra.find("\r\n 0    0    0    0    10    0         7   100   3000"
                                          "\r\n 1    10    0    0   -4    0         7   100   3000"
                                          "\r\n 2    20    50    50    32    0         7   100   3000"),
              std::string::npos);
}

// 2·120/7 = 34.285714... is 8987794/2^18 = 34.285713196 in 32 bits; a sixtieth of it is nearest to
// 9586980/2^24 = 0.57142854. In one go it'd be 9586981/2^24 = 0.57142860.
TEST_P(Embalses, LasDosDivisionesSeRedondeanUnaPorUna)
{
    s.Pasos.PasoQ = 7;
    Pon("Piscina Nivelada", {{100, 6, 120, 1}, {104, 6, 1000, 5}}, 100);
    Corre({0});
    EXPECT_NE(s.Control.TextoPizarra.find("\r\n 0    0    0    0    0.5714285    0         1   100   120"),
              std::string::npos);
}

TEST_P(Embalses, AlturaInicialFueraDeLasTablasPreguntaYSigueConCeros)
{
    Pon("Piscina Nivelada", {{100, 6, 1000, 5}, {104, 6, 5000, 9}}, 200);
    Corre({0, 0});
    const ClaseProbada& clase = GetParam();
    // The storage of 0 that Yes gave lies below the table; from step 1 on the storages are the table's own.
    EXPECT_EQ(anfitrion->Preguntas(),
              (std::vector<Mensaje>{Pregunta(clase.SdeH, Caso::Encima), Pregunta(clase.QdeH, Caso::Encima),
                                    Pregunta(clase.HdeS, Caso::Debajo)}));
    EXPECT_EQ(H()[0], 200);
    EXPECT_EQ(S()[0], 0);
    EXPECT_EQ(Sale()[0], 0);
    EXPECT_LE(H()[2], 104);
}

TEST_P(Embalses, RespondidoNoNadaMasSeCalcula)
{
    anfitrion->respuestas = {true, true, false};
    Pon("Piscina Nivelada", {{100, 6, 1000, 5}, {104, 6, 5000, 9}}, 200);
    EXPECT_THROW(Corre({0, 0}), model::FinDelPrograma);
    EXPECT_EQ(H(), (V{200, 0, 0}));
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_P(Embalses, BiseccionDeMasDeMilVueltasTerminaElPrograma)
{
    // Around a million metres two neighbouring 32-bit floats are 0.0625 m apart.
    Pon("Piscina Nivelada", {{1000000, 6, 0, 0}, {1000001, 6, 60000, 10}}, 1000000);
    EXPECT_THROW(Corre({1, 1}), model::FinDelPrograma);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().sinFin, "Error,...", Icono::Exclamacion}}));
    EXPECT_TRUE(anfitrion->Preguntas().empty());
}

TEST(EmbalsesRepresa, LaTablaDeCaudalesMasCortaPreguntaEnCadaPuntoMedioQueLaPasa)
{
    RedAMano red;
    red.PonUEH("u-1", "r-uno");
    red.PonRepresa("r-uno", "Piscina Nivelada", Pileta).HInicialEmb = 100;
    red.Dimensiona(1);
    red.s.Red.RepresaQH(1, 2) = 102;
    red.PonCaudales("u-1", {100000});
    red.Propaga("r-uno");
    // The ten midpoints of a target above all: 102, the last row, then nine that ask, for a Q of 0 each.
    const auto& t = TextoDe(Funcion::QdeHRepresa, Caso::Encima);
    const Mensaje encima{std::string(t.primero) + "r-uno" + std::string(t.segundo), std::string(t.titulo),
                         Icono::Exclamacion};
    EXPECT_EQ(red.anfitrion->Preguntas(), std::vector<Mensaje>(9, encima));
    EXPECT_EQ(red.s.Resultados.QSale(2, 1), 0);
    EXPECT_EQ(red.s.Resultados.HRepresa(1, 1), 103.99609375F);
}

TEST(EmbalsesRepresa, LaBiseccionDaMilVueltasAntesDeRendirse)
{
    // Of two neighbouring 32-bit floats the midpoint is the even one, the bottom: there 0 to the power of -1
    // is reported in each round.
    RedAMano red;
    red.PonUEH("u-1", "r-uno");
    auto& represa =
        red.PonRepresa("r-uno", "Piscina Nivelada", {{1000000, 6, 0, 0}, {1000000.0625F, 6, 1000, 0}});
    represa.HInicialEmb = 1000000.0625F;
    represa.optTabla = false;
    represa.chkFQ[0] = 1;
    represa.FQa[0] = 1;
    represa.FQb[0] = -1;
    represa.FQmin[0] = 1000000;
    represa.FQMax[0] = 1000001;
    red.Dimensiona(1);
    red.PonCaudales("u-1", {1000});
    EXPECT_THROW(red.Propaga("r-uno"), model::FinDelPrograma);
    std::vector<Mensaje> esperados(
        1000, {"Error Nro. 5Argumento o llamada a procedimiento no válidos ,Verifique", "", Icono::Ninguno});
    esperados.push_back({Clases[0].sinFin, "Error,...", Icono::Exclamacion});
    EXPECT_EQ(red.anfitrion->Avisos(), esperados);
}

// --- Muskingum ---

// K = 15, dt = 10: denominator 20, C0 = C1 = 1/4, C2 = 1/2. Outflows 1024, 128 + 256 + 512 = 896 and
// 0 + 128 + 448 = 576. Heights: d = Q/1024 lies on the grid of the halvings of 4 m down to 4/4096 m, at an
// even place, so that the last midpoint is 1/1024 m above it.
TEST_P(Embalses, MuskingumAMano)
{
    s.Control.SalidaPizarra = true;
    Pon("Muskingum", Pileta, 103, 8);
    PonK(15);
    Corre({1024, 512, 0});
    EXPECT_EQ(Entra(), (V{0, 1024, 512, 0})) << "the base flow plays no part";
    EXPECT_EQ(Sale(), (V{0, 1024, 896, 576}));
    EXPECT_EQ(H(), (V{0, 101 + 1 / 1024.0F, 100 + 897 / 1024.0F, 100 + 577 / 1024.0F}));
    EXPECT_EQ(S(), (V{0, 307500, 269100, 173100}));
    EXPECT_EQ(QMax(), 1024);

    const ClaseProbada& clase = GetParam();
    const std::string esperado = std::string("\r\n\r\nComponente: ") + clase.palabra + " " + clase.nombre +
                                 "     Método de Propagación: Muskingum" + clase.columnas +
                                 "\r\n 0      0      0          0            0         0         "
                                 "\r\n 1      10     1024       1024         101       307500    "
                                 "\r\n 2      20     512        896          100.88    269100    "
                                 "\r\n 3      30     0          576          100.56    173100    "
                                 "\r\nVolumen Escurrido. Entra = 921600 m3 ; Sale = 1497600 m3"
                                 "\r\nCaudal Máximo = 1024 m3/s "
                                 "\r\n";
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra)) << "no detail sheet, and the first row is 0";
}

TEST_P(Embalses, MuskingumSumaLoQueElArregloTenia)
{
    Pon("Muskingum", Pileta, 100);
    PonK(15);
    Dimensiona(3);
    PonCaudales("u-1", {1024, 512, 0});
    PonCaudales(Nombre(), {100, 100, 100});
    Propaga(Nombre());
    // not at step 1; then 100 + 896 and 100 + 128 + 996/2
    EXPECT_EQ(Sale(), (V{0, 1024, 996, 726}));
}

TEST_P(Embalses, MuskingumConKCero)
{
    Pon("Muskingum", Pileta, 100);
    Corre({1024, 512, 256});  // C0 = C1 = 1, C2 = -1: 512 + 1024 - 1024, then 256 + 512 - 512
    EXPECT_EQ(Sale(), (V{0, 1024, 512, 256}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_P(Embalses, MuskingumConDenominadorCero)
{
    s.Control.SalidaPizarra = true;
    Pon("Muskingum", Pileta, 100);
    PonK(-5);
    Corre({1024, 512, 0});
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().muskingum, "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(Entra(), (V{0, 1024, 512, 0})) << "gathered before";
    EXPECT_EQ(Sale(), (V{0, 0, 0, 0}));
    EXPECT_TRUE(s.Control.TextoPizarra.empty());
}

// K = 1, dt = 10: 5/6 twice and -2/3. In 32 bits 0.83333331347 twice and -0.66666668653 add up to
// 0.99999994040, which is 1 - 2^-24: refused by rounding alone.
TEST_P(Embalses, MuskingumConSumaDistintaDeUno)
{
    Pon("Muskingum", Pileta, 100);
    PonK(1);
    Corre({1024, 512, 0});
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().muskingum, "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(Sale(), (V{0, 0, 0, 0}));
    EXPECT_EQ(QMax(), 0);
}

TEST_P(Embalses, MuskingumRechazadoDejaLaRutinaYNoMiraALosDemas)
{
    PonUEH("u-1", Nombre());
    PonEmbalse("Muskingum", Pileta, 100);
    PonK(-5);
    if (EsLago())
        PonLago("l-dos", "", Pileta);
    else
        PonRepresa("r-dos", "", Pileta);
    Dimensiona(1);
    Propaga(Nombre());
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().muskingum, "Advertencia !", Icono::Exclamacion}}));
}

TEST(EmbalsesRepresa, ElPesoDeMuskingumDeLaRepresaNoTieneEfecto)
{
    RedAMano red;
    red.PonUEH("u-1", "r-uno");
    auto& represa = red.PonRepresa("r-uno", "Muskingum", Pileta);
    represa.Represa_k_Musk = 15;
    represa.Represa_n_Musk = 0.3F;
    red.Dimensiona(3);
    red.PonCaudales("u-1", {1024, 512, 0});
    red.Propaga("r-uno");
    EXPECT_EQ(red.s.Resultados.QSale(2, 2), 896);
    EXPECT_EQ(red.s.Resultados.QSale(2, 3), 576);
}

// --- Runge-Kutta ---

// dH = (I - Q)/100 for 6 ha and 10 min. Step 1: I from 150 to 300: 150, 200, 250 at the three stages.
//   dH1 = 1.5 at 100 m; dH2 = (200 - 125)/100 = 0.75 at 100.5; dH3 = (250 - 125)/100 = 1.25 at 100.5;
//   dH = 0.75·1.25 + 1.5/4 = 1.3125: Q = 125 + 81.25, S = 60000·1.3125.
// Step 2: I from 300 to 168.75: 300, 256.25, 212.5.
//   dH1 = (300 - 206.25)/100 = 0.9375; dH2 = (256.25 - 237.5)/100 = 0.1875 at 101.625;
//   dH3 = (212.5 - 218.75)/100 = -0.0625 at 101.4375; dH = -0.046875 + 0.234375 = 0.1875.
TEST_P(Embalses, RungeKuttaAMano)
{
    s.Control.SalidaPizarra = true;
    corrida.SActual = 4321;  // what an earlier routing left
    Pon("Runge Kutta", Laguna, 100, 150);
    Corre({300, 168.75F});
    EXPECT_EQ(Entra(), (V{150, 300, 168.75F}));
    EXPECT_EQ(Sale(), (V{0, 206.25F, 225}));
    EXPECT_EQ(H(), (V{100, 101.3125F, 101.5F}));
    EXPECT_EQ(S(), (V{4321, 78750, 90000}));
    EXPECT_EQ(QMax(), 225);
    EXPECT_EQ(corrida.SActual, 90000);
    EXPECT_EQ(s.Resultados.VolEntra, 600 * (150 + 300 + 168.75F));
    EXPECT_EQ(s.Resultados.VolSale, 600 * (206.25F + 225));

    const ClaseProbada& clase = GetParam();
    const std::string esperado =
        std::string(clase.abreRungeKutta) +
        "\r\n 0    0    150    0    0    0         0   100   4321"
        "\r\n 1    10    300    1.5    0.75    1.25         206.25   101.3125   78750"
        "\r\n 2    20    168.75    0.9375    0.1875   -0.0625         225   101.5   90000" +
        clase.cierra + "\r\n\r\nComponente: " + clase.palabra + " " + clase.nombre +
        "     Método de Propagación: Runge Kutta" + clase.columnas +
        "\r\n 0      0      150        0            100       4321      "
        "\r\n 1      10     300        206.25       101.31    78750     "
        "\r\n 2      20     168.75     225          101.5     90000     "
        "\r\nVolumen Escurrido. Entra = 371250 m3 ; Sale = 258750 m3"
        "\r\nCaudal Máximo = 225 m3/s "
        "\r\n";
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra));
    EXPECT_EQ(anfitrion->pizarra, s.Control.TextoPizarra);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_P(Embalses, RungeKuttaNoTocaElCaudalDelPasoCero)
{
    Pon("Runge Kutta", Laguna, 100);
    Dimensiona(1);
    s.Resultados.QSale(Fila(Nombre()), 0) = 17;
    Propaga(Nombre());
    EXPECT_EQ(Sale(), (V{17, 0}));
    EXPECT_EQ(QMax(), 17);
    EXPECT_EQ(s.Resultados.VolSale, 600 * 17);
}

TEST_P(Embalses, RungeKuttaConAlturaInicialFueraDeLaTabla)
{
    Pon("Runge Kutta", Laguna, 99);
    Corre({0});
    const ClaseProbada& clase = GetParam();
    const Mensaje Q = Pregunta(clase.QdeH, Caso::Debajo), A = Pregunta(clase.AdeH, Caso::Debajo),
                  S1 = Pregunta(clase.SdeH, Caso::Debajo);
    const std::vector<Mensaje> preguntas = anfitrion->Preguntas();
    ASSERT_EQ(preguntas.size(), 11U);
    // Each stage asks for the outflow, for the surface, and about the surface of 0 that Yes gave; then the
    // new height, the same, is looked up twice more.
    for (const std::size_t etapa : {0U, 3U, 6U}) {
        EXPECT_EQ(preguntas[etapa], Q);
        EXPECT_EQ(preguntas[etapa + 1], A);
        EXPECT_EQ(preguntas[etapa + 2].titulo, clase.tituloArea);
    }
    EXPECT_EQ(preguntas[9], Q);
    EXPECT_EQ(preguntas[10], S1);
    EXPECT_EQ(H(), (V{99, 99}));
}

TEST_P(Embalses, SuperficieCeroPreguntaEnCadaEtapaYSiNoSube)
{
    const ClaseProbada& clase = GetParam();
    Pon("Runge Kutta", {{100, 0, 0, 0}, {104, 0, 1000, 5}}, 100);
    Corre({30, 60});
    std::vector<Mensaje> esperadas;
    for (int paso = 1; paso <= 2; ++paso)
        for (const char* texto : {clase.areaEn100, clase.areaEn100Segunda, clase.areaEn100})
            esperadas.push_back(PreguntaArea(texto));
    EXPECT_EQ(anfitrion->Preguntas(), esperadas);
    EXPECT_EQ(H(), (V{100, 100, 100}));
}

// Its name and height apart, the question of two steps is one; that of the second stage has other blanks.
TEST_P(Embalses, LaPreguntaPorLaSuperficieEsLaMismaEnCadaPaso)
{
    Pon("Runge Kutta", {{100, 0, 0, 0}, {104, 0, 1000, 5}}, 100);
    Corre({30, 60});
    const std::vector<Mensaje> preguntas = anfitrion->Preguntas();
    ASSERT_EQ(preguntas.size(), 6U);
    EXPECT_EQ(preguntas[0].repetida.find(Nombre()), std::string::npos);
    EXPECT_FALSE(preguntas[0].repetida.empty());
    EXPECT_EQ(preguntas[0].repetida, preguntas[3].repetida);
    EXPECT_NE(preguntas[0].repetida, preguntas[1].repetida);
}

TEST_P(Embalses, SuperficieNegativaPreguntaComoLaNula)
{
    Pon("Runge Kutta", {{100, -2, 0, 0}, {104, -2, 1000, 5}}, 100);
    Corre({30});
    EXPECT_EQ(anfitrion->Preguntas().size(), 3U);
    EXPECT_EQ(anfitrion->Preguntas()[0], PreguntaArea(GetParam().areaEn100));
}

// 25/2048 m3/s in 10 min are 7.32421875 m3: 0.75 m on 2^-10 ha, which are 9.765625 m2. Nothing flows out.
TEST_P(Embalses, UnaSuperficieDePocosMetrosNoPregunta)
{
    constexpr float Caudal = 25 / 2048.0F, Area = 1 / 1024.0F;
    Pon("Runge Kutta", {{100, Area, 0, 0}, {104, Area, 40, 0}}, 100, Caudal);
    Corre({Caudal});
    EXPECT_TRUE(anfitrion->Preguntas().empty());
    EXPECT_EQ(H(), (V{100, 100.75F}));
}

TEST_P(Embalses, SuperficieCeroEnLaSegundaEtapaSolamente)
{
    // dH1 = 150/100; the second stage stands at 100.5 m, where the surface is 0: dH2 = 0, so that the third
    // stands at 100 m again: dH3 = 1.5 and dH = 3/4·1.5 + 1/4·1.5.
    Pon("Runge Kutta", {{100, 6, 0, 0}, {100.5F, 0, 30000, 0}, {101, 6, 60000, 0}, {104, 6, 90000, 0}}, 100,
        150);
    Corre({150});
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{PreguntaArea(GetParam().areaEn100y5Segunda)});
    EXPECT_EQ(H(), (V{100, 101.5F}));
    EXPECT_NE(s.Control.TextoPizarra.find("\r\n 1    10    150    1.5    0    1.5         0   101.5   65000"),
              std::string::npos);
}

TEST_P(Embalses, SuperficieCeroRespondidaNoTerminaElPrograma)
{
    anfitrion->respuestas = {true, false};
    Pon("Runge Kutta", {{100, 0, 0, 0}, {104, 0, 1000, 5}}, 100);
    EXPECT_THROW(Corre({30}), model::FinDelPrograma);
    EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
}

// --- frame ---

TEST_P(Embalses, SinMetodoAvisaYNoPropaga)
{
    for (const char* metodo : {"", "Directo", "muskingum", "Piscina nivelada", "Runge Kutta "}) {
        RedAMano red;
        red.PonUEH("u-1", Nombre());
        if (EsLago())
            red.PonLago(Nombre(), metodo, Pileta);
        else
            red.PonRepresa(Nombre(), metodo, Pileta);
        red.Dimensiona(1);
        red.PonCaudales("u-1", {1024});
        red.Propaga(Nombre());
        EXPECT_EQ(red.anfitrion->Avisos(),
                  (std::vector<Mensaje>{{GetParam().sinMetodo, "Advertencia !", Icono::Exclamacion}}))
            << metodo;
        EXPECT_EQ(red.s.Resultados.QEntra(2, 1), 0);
        EXPECT_EQ(red.s.Resultados.QSale(2, 1), 0);
    }
}

TEST_P(Embalses, UnoSinMetodoDetieneALosQueLeSiguenEnLaColeccion)
{
    const std::string otro = EsLago() ? "l-dos" : "r-dos";
    PonUEH("u-1", otro);
    PonEmbalse("", Pileta, 100);
    if (EsLago())
        PonLago(otro, "Piscina Nivelada", Pileta).HInicialEmb = 100;
    else
        PonRepresa(otro, "Piscina Nivelada", Pileta).HInicialEmb = 100;
    Dimensiona(1);
    PonCaudales("u-1", {1024});
    Propaga(otro);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().sinMetodo, "Advertencia !", Icono::Exclamacion}}))
        << "it names the first";
    EXPECT_EQ(s.Resultados.QSale(Fila(otro), 1), 0);
    EXPECT_TRUE(s.Control.TextoPizarra.empty());
}

TEST_P(Embalses, UnoSinMetodoDetrasDelPropagadoAvisaDespues)
{
    const std::string primero = EsLago() ? "l-0" : "r-0";
    PonUEH("u-1", primero);
    if (EsLago())
        PonLago(primero, "Piscina Nivelada", Pileta).HInicialEmb = 100;
    else
        PonRepresa(primero, "Piscina Nivelada", Pileta).HInicialEmb = 100;
    PonEmbalse("", Pileta, 100);
    Dimensiona(1);
    PonCaudales("u-1", {1024});
    Propaga(primero);
    EXPECT_EQ(s.Resultados.QSale(Fila(primero), 1), 516);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{GetParam().sinMetodo, "Advertencia !", Icono::Exclamacion}}));
}

TEST_P(Embalses, JuntaUEHsYCaucesYNadaMas)
{
    PonUEH("u-1", Nombre(), 1);
    PonUEH("u-2", Nombre(), 2);
    PonUEH("u-3", "c-1", 4);
    PonCauce("c-1", Nombre());
    PonCauce("c-2", "c-1");
    PonEmbalse("Piscina Nivelada", Pileta, 100);
    PonLago("l-vecino", "Muskingum", Pileta).Cauce_aa = Nombre();
    PonRepresa("r-vecina", "Muskingum", Pileta).Cauce_aa = Nombre();
    Dimensiona(2);
    PonCaudales("u-1", {512, 10});
    PonCaudales("u-2", {256, 20});
    PonCaudales("u-3", {5000, 5000});
    PonCaudales("c-1", {256, 40});
    PonCaudales("c-2", {5000, 5000});
    PonCaudales("l-vecino", {5000, 5000});
    PonCaudales("r-vecina", {5000, 5000});
    Propaga(Nombre());
    EXPECT_EQ(Entra(), (V{1 + 2, 512 + 256 + 256, 10 + 20 + 40}));
}

TEST_P(Embalses, ElMaximoSoloSube)
{
    Pon("Piscina Nivelada", Pileta, 100);
    Dimensiona(1);
    PonCaudales("u-1", {1024});
    s.Resultados.QMax(Fila(Nombre()), 1) = 5000;
    Propaga(Nombre());
    EXPECT_EQ(QMax(), 5000);
}

TEST_P(Embalses, LosVolumenesSonDe32BitsEnCadaPaso)
{
    // 600·32768 m3 first; above 2^24 two 32-bit floats are 2 m3 apart, so that steps of 0.9 m3 leave no
    // trace.
    Pon("Runge Kutta", {{100, 1000, 0, 0}, {104, 1000, 1000, 0}}, 100);
    V caudales(20, 0.0015F);
    caudales[0] = 32768;
    Corre(caudales);
    EXPECT_EQ(s.Resultados.VolEntra, 19660800.0F);
}

TEST(EmbalsesLago, ElLagoSinTablaCallaEnMuskingum)
{
    RedAMano red;
    red.PonUEH("u-1", "l-uno");
    red.PonLago("l-uno", "Muskingum", {}).Lago_k_Musk = 15;
    red.Dimensiona(2);
    red.PonCaudales("u-1", {10, 20});
    red.Propaga("l-uno");
    EXPECT_EQ(red.s.Resultados.QSale(2, 1), 10);
    EXPECT_EQ(red.s.Resultados.HLago(1, 1), 0);
    EXPECT_EQ(red.s.Resultados.SLago(1, 1), 0);
    EXPECT_TRUE(red.anfitrion->sucesos.empty());
}

TEST(EmbalsesLago, ElLagoSinTablaPreguntaEnLaPrimeraAlturaSobreCero)
{
    const auto& t = TextoDe(Funcion::SdeHLago, Caso::Encima);
    const Mensaje encima{std::string(t.primero) + "l-uno" + std::string(t.segundo), std::string(t.titulo),
                         Icono::Exclamacion};
    for (const float altura : {0.0F, 0.25F}) {
        RedAMano red;
        red.PonUEH("u-1", "l-uno");
        red.PonLago("l-uno", "Piscina Nivelada", {}).HInicialEmb = altura;
        red.Dimensiona(2);
        red.PonCaudales("u-1", {10, 20});
        red.Propaga("l-uno");
        EXPECT_EQ(red.anfitrion->Preguntas(),
                  altura > 0 ? std::vector<Mensaje>{encima} : std::vector<Mensaje>{});
        EXPECT_EQ(red.s.Resultados.QSale(2, 1), 0);
        EXPECT_EQ(red.s.Resultados.QSale(2, 2), 0);
        EXPECT_EQ(red.s.Resultados.HLago(1, 2), altura);
    }
}

TEST(EmbalsesLago, DespuesDeUnaRepresaMuestraElAlmacenamientoDeElla)
{
    for (const char* metodoDeLaRepresa : {"Runge Kutta", "Piscina Nivelada"}) {
        RedAMano red;
        red.PonUEH("u-1", "r-uno", 150);
        red.PonRepresa("r-uno", metodoDeLaRepresa, Laguna).HInicialEmb = 100;
        red.PonLago("l-uno", "Runge Kutta", Laguna).HInicialEmb = 101.5F;
        red.Dimensiona(2);
        red.PonCaudales("u-1", {300, 168.75F});
        red.Propaga("r-uno");
        const float ultimo = red.s.Resultados.SRepresa(1, 2);
        EXPECT_GT(ultimo, 0);
        red.Propaga("l-uno");
        EXPECT_EQ(red.s.Resultados.SLago(1, 0), ultimo);
        EXPECT_NE(red.s.Resultados.SLago(1, 1), ultimo);
    }
}

// --- prepared against plain ---

/// A pool with random walls, outlets and flood. With `repetida` its last row stands twice: that alters no
/// reading, and keeps the lookups from being prepared beforehand.
V PoneAlAzar(RedAMano& red, std::uint32_t semilla, bool repetida, const std::string& metodo)
{
    std::mt19937 motor(semilla);
    const auto entre = [&](float a, float b) { return std::uniform_real_distribution<float>(a, b)(motor); };
    const bool lago = semilla % 2 == 0;
    const std::string nombre = lago ? "l-uno" : "r-uno";
    std::vector<RenglonHASQ> tabla{
        {entre(0, 900), entre(0.5F, 5), static_cast<std::int32_t>(entre(0, 2000)), 0}};
    for (int filas = std::uniform_int_distribution<int>(1, 24)(motor); filas > 0; --filas) {
        RenglonHASQ r = tabla.back();
        r.H += entre(0.01F, 2);
        r.A += entre(0, 20);
        r.S += static_cast<std::int32_t>(entre(1, 300000));
        r.Q += entre(-0.05F, 1) * entre(0, 80);  // an outflow that falls here and there
        tabla.push_back(r);
    }
    const float base = tabla.front().H, tope = tabla.back().H;
    if (repetida) tabla.push_back(tabla.back());
    red.s.Pasos.PasoQ = static_cast<std::int16_t>(std::uniform_int_distribution<int>(1, 30)(motor));
    red.PonUEH("u-1", nombre, entre(0, 5));
    if (lago) {
        auto& l = red.PonLago(nombre, metodo, tabla);
        l.HInicialEmb = entre(base, tope);
        l.Lago_k_Musk = 1.5F * static_cast<float>(red.s.Pasos.PasoQ);
    } else {
        auto& r = red.PonRepresa(nombre, metodo, tabla);
        r.HInicialEmb = entre(base, tope);
        r.Represa_k_Musk = 1.5F * static_cast<float>(red.s.Pasos.PasoQ);
        if (semilla % 3 == 0) {
            r.optTabla = false;
            r.chkFQ = {1, 1, 0, 0, 1, 0, 0, 0};
            r.FQa = {entre(0, 5), entre(0, 40), 0, 0, entre(0, 3)};
            r.FQb = {0.5F, 1.5F, 0, 0, entre(0, 2)};
            r.FQc = {0, 0, 0, 0, entre(0, 1)};
            r.FQmin = {base, (base + tope) / 2, 0, 0, base + 0.25F};
            r.FQMax = {tope, tope, 0, 0, tope};
        }
    }
    V caudales;
    for (int k = 1; k <= 60; ++k)
        caudales.push_back(k < 20 ? entre(0, 400) : entre(0, 4));
    return caudales;
}

/// Routes the flood through the one component there is, as if for the first time.
void CorreSolo(RedAMano& red, const V& caudales)
{
    red.Dimensiona(static_cast<int>(caudales.size()));
    red.PonCaudales("u-1", caudales);
    red.corrida.SActual = 0;
    red.s.Control.TextoPizarra = {};
    red.anfitrion->sucesos.clear();
    red.Propaga(red.s.Resultados.Secuencia[2]);
}

testing::AssertionResult MismosBits(const RedAMano& una, const RedAMano& otra)
{
    const model::Siro &a = una.s, &b = otra.s;
    if (a.Resultados.QSale != b.Resultados.QSale || a.Resultados.QEntra != b.Resultados.QEntra ||
        a.Resultados.QMax != b.Resultados.QMax)
        return testing::AssertionFailure() << "flows differ";
    if (a.Resultados.HRepresa != b.Resultados.HRepresa || a.Resultados.HLago != b.Resultados.HLago ||
        a.Resultados.SRepresa != b.Resultados.SRepresa || a.Resultados.SLago != b.Resultados.SLago)
        return testing::AssertionFailure() << "heights or storages differ";
    if (a.Resultados.VolEntra != b.Resultados.VolEntra || a.Resultados.VolSale != b.Resultados.VolSale)
        return testing::AssertionFailure() << "volumes differ";
    if (una.corrida.SActual != otra.corrida.SActual)
        return testing::AssertionFailure() << "what is left for the next component differs";
    if (una.anfitrion->sucesos != otra.anfitrion->sucesos)
        return testing::AssertionFailure() << "the user was told other things";
    return MismoTexto(b.Control.TextoPizarra, a.Control.TextoPizarra);
}

RC_GTEST_PROP(EmbalsesPreparados, DanLosMismosBitsQueRenglonARenglon, (std::uint32_t semilla))
{
    for (const char* metodo : {"Piscina Nivelada", "Muskingum", "Runge Kutta"}) {
        RedAMano preparada, simple;
        CorreSolo(preparada, PoneAlAzar(preparada, semilla, false, metodo));
        CorreSolo(simple, PoneAlAzar(simple, semilla, true, metodo));
        RC_ASSERT(MismosBits(preparada, simple));
    }
}

RC_GTEST_PROP(EmbalsesPreparados, LaMemoriaDeVariasCorridasNoCambiaNada, (std::uint32_t semilla))
{
    RedAMano varias, simple;
    const V caudales = PoneAlAzar(varias, semilla, false, "Piscina Nivelada");
    CorreSolo(simple, PoneAlAzar(simple, semilla, true, "Piscina Nivelada"));
    varias.memoria.VariasCorridas = true;
    for (int vez = 1; vez <= 2; ++vez) {
        CorreSolo(varias, caudales);
        RC_ASSERT(MismosBits(varias, simple));
    }
    // an outlet edited between two runs, edited back, and closed
    for (const float factor : {2.0F, 0.5F}) {
        for (RedAMano* red : {&varias, &simple}) {
            red->EscalaDescarga(factor);
            CorreSolo(*red, caudales);
        }
        RC_ASSERT(MismosBits(varias, simple));
    }
    for (RedAMano* red : {&varias, &simple}) {
        for (model::Represa& r : red->s.Red.ColRepresas)
            r.chkFQ.fill(0);
        CorreSolo(*red, caudales);
    }
    RC_ASSERT(MismosBits(varias, simple));
}

// W = 1024 twice, then 1528 twice: U of a midpoint exactly, at which the pool already stands the second time.
// T is -8 after the first two steps and 0 after a step at 191/256 m: I = 1032, 1536, 1528.
// A row twice at the top keeps the pool from being prepared, and changes nothing else.
TEST(EmbalsesPreparados, ElObjetivoIgualAUnPuntoMedio)
{
    auto repetida = Pileta;
    repetida.push_back(repetida.back());
    for (const bool conocido : {true, false}) {
        RedAMano red;
        red.memoria.VariasCorridas = true;
        red.PonUEH("u-1", "r-uno");
        red.PonRepresa("r-uno", "Piscina Nivelada", conocido ? Pileta : repetida).HInicialEmb = 100;
        CorreSolo(red, {1024, 8, 1528, 0});
        ASSERT_EQ(!red.memoria.piscinas.empty() && red.memoria.piscinas[2].sirve, conocido);
        const V H(red.s.Resultados.HRepresa.Fila(1), red.s.Resultados.HRepresa.Fila(1) + 5);
        EXPECT_EQ(H,
                  (V{100, 100 + 129 / 256.0F, 100 + 129 / 256.0F, 100 + 191 / 256.0F, 100 + 191 / 256.0F}));
    }
}

// All midpoints of 4 m of vertical walls are known beforehand. Floods of all sizes take the pool from its
// lowest midpoint to its highest and back, in jumps and step by step.
RC_GTEST_PROP(EmbalsesPreparados, LosPuntosMediosConocidosDanLosMismosBits, (std::uint32_t semilla))
{
    std::mt19937 motor(semilla);
    const auto entre = [&](float a, float b) { return std::uniform_real_distribution<float>(a, b)(motor); };
    V caudales;
    while (caudales.size() < 150) {
        const float tamano = std::pow(10.0F, entre(-2, 4.5F)), signo = entre(0, 1) < 0.3F ? -1.0F : 1.0F;
        for (int pasos = std::uniform_int_distribution<int>(1, 12)(motor); pasos > 0; --pasos)
            caudales.push_back(signo * entre(0, tamano));
    }
    auto repetida = Pileta;
    repetida.push_back(repetida.back());
    RedAMano varias, simple;
    varias.memoria.VariasCorridas = true;
    for (auto* red : {&varias, &simple}) {
        red->PonUEH("u-1", "r-uno");
        red->PonRepresa("r-uno", "Piscina Nivelada", red == &varias ? Pileta : repetida).HInicialEmb = 102;
        CorreSolo(*red, caudales);
    }
    RC_ASSERT(varias.memoria.piscinas[2].sirve);
    RC_ASSERT(MismosBits(varias, simple));
    const V H(varias.s.Resultados.HRepresa.Fila(1), varias.s.Resultados.HRepresa.Fila(1) + 151);
    const auto [menor, mayor] = std::minmax_element(H.begin(), H.end());
    RC_CLASSIFY(*menor == 100.00390625F, "reaches the bottom");
    RC_CLASSIFY(*mayor == 103.99609375F, "reaches the top");
}

}  // namespace
}  // namespace engine
