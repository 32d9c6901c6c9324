// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlHAS.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "apoyo/Compara.h"
#include "hydraulics/TablasDePrueba.h"

namespace hydraulics {
namespace {

using apoyo::NumeroDeFalla;
using model::Icono;
using model::Mensaje;
using pruebas::EstadoConEmbalses;

/// One of the seven lookups, with all that it may say, whole.
struct Busqueda {
    const char* nombre;
    double (*funcion)(const CompActual&, float);
    bool deLago;
    const char* textoEncima;
    const char* tituloEncima;
    const char* textoDebajo;
    const char* tituloDebajo;
};

// clang-format off
const Busqueda Busquedas[] = {
    {"SdeHRepresa", SdeH, false,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa r-uno. Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la función HSV es inconsistente...",
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa r-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar ?",
     "Error, la función HSV es inconsistente..."},
    {"SdeHLago", SdeH, true,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento del Lago l-uno. Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la función HSV es inconsistente...",
     "Error, la tabla Altura-Superficie-Almacenamiento del Lago l-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar ?",
     "Error, la función HSV es inconsistente..."},
    {"HdeSRepresa", HdeS, false,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa r-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
     "Error, la tabla HSV es inconsistente...",
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa r-uno tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {"HdeSLago", HdeS, true,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento del Lago l-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
     "Error, la tabla HSV es inconsistente...",
     "Error, la tabla Altura-Superficie-Almacenamiento del Lago l-uno tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {"AdeHRepresa", AdeH, false,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa r-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla SHV es inconsistente",
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa r-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continaur? ",
     "Error, la tabla HSV es inconsistente..."},
    {"AdeHLago", AdeH, true,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Lago l-uno. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla SHV es inconsistente",
     "Error, la tabla Altura-Superficie-Almacenamiento de la Lago l-uno tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continaur? ",
     "Error, la tabla HSV es inconsistente..."},
    {"HdeARepresa", HdeARepresa, false,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa r-uno. Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la tabla HSV es inconsistente...",
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa r-uno tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
};
// clang-format on

void PrintTo(const Busqueda& b, std::ostream* salida)
{
    *salida << b.nombre;
}

/// The rules that the seven share. Their table has H, A and S alike, so that one argument fits all.
class LasSiete : public testing::TestWithParam<Busqueda>, public EstadoConEmbalses {
  protected:
    LasSiete()
    {
        PonHAS({{10, 10, 10}, {20, 20, 20}, {40, 40, 40}});
        Elige(GetParam().deLago);
    }
    double Busca(float x) { return GetParam().funcion(Elegido(), x); }
    [[nodiscard]] Mensaje Encima() const
    {
        return {GetParam().textoEncima, GetParam().tituloEncima, Icono::Exclamacion};
    }
    [[nodiscard]] Mensaje Debajo() const
    {
        return {GetParam().textoDebajo, GetParam().tituloDebajo, Icono::Exclamacion};
    }
};
INSTANTIATE_TEST_SUITE_P(mdlHAS, LasSiete, testing::ValuesIn(Busquedas),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST_P(LasSiete, EnElUltimoRenglonDaSuValorSinPreguntar)
{
    EXPECT_EQ(Busca(40), 40);
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, EnElPrimerRenglonDaSuValor)
{
    EXPECT_EQ(Busca(10), 10);
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, EnUnRenglonDelMedioDaSuValor)
{
    EXPECT_EQ(Busca(20), 20);
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, EntreDosRenglonesInterpola)
{
    EXPECT_EQ(Busca(15), 15);
    EXPECT_EQ(Busca(25), 25);
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, ApenasEncimaPregunta)
{
    EXPECT_EQ(Busca(std::nextafter(40.0F, 41.0F)), 0);
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{Encima()});
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_P(LasSiete, ApenasDebajoPregunta)
{
    EXPECT_EQ(Busca(std::nextafter(10.0F, 9.0F)), 0);
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{Debajo()});
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_P(LasSiete, RespondidoSiDaCeroTengaLoQueTengaLaTabla)
{
    PonHAS({{10, 10, 10}, {-20, -20, -20}});  // neither row, nor what lies beyond it, is 0
    EXPECT_EQ(Busca(-19), 0);
    PonHAS({{10, 10, 10}, {20, 20, 20}});
    EXPECT_EQ(Busca(-19), 0);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector<Mensaje>{Encima(), Debajo()}));
}

TEST_P(LasSiete, RespondidoNoTerminaElProgramaSinGuardar)
{
    anfitrion->respuestas = {false, false};
    EXPECT_THROW(Busca(41), model::FinDelPrograma);
    EXPECT_THROW(Busca(9), model::FinDelPrograma);
    EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_P(LasSiete, PreguntaEnCadaLlamada)
{
    for (int vez = 1; vez <= 3; ++vez)
        Busca(50);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector<Mensaje>{Encima(), Encima(), Encima()}));
}

// The name, "r-uno" or "l-uno", is all that one question has of a component.
TEST_P(LasSiete, LaPreguntaSeConocePorSusPalabrasSinElNombre)
{
    Busca(50);
    Busca(5);
    std::vector<std::string> repetidas;
    for (std::string texto : {GetParam().textoEncima, GetParam().textoDebajo})
        repetidas.push_back(texto.erase(texto.find("-uno") - 1, 5));
    const auto preguntas = anfitrion->Preguntas();
    ASSERT_EQ(preguntas.size(), 2U);
    EXPECT_EQ(preguntas[0].repetida, repetidas[0]);
    EXPECT_EQ(preguntas[1].repetida, repetidas[1]);
}

TEST_P(LasSiete, ConUnSoloRenglonSoloElSeDa)
{
    PonHAS({{10, 10, 10}});
    EXPECT_EQ(Busca(10), 10);
    EXPECT_TRUE(Callado());
    EXPECT_EQ(Busca(10.5F), 0);
    EXPECT_EQ(Busca(9.5F), 0);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector<Mensaje>{Encima(), Debajo()}));
}

TEST_P(LasSiete, SinRenglonesElCeroCallaYElRestoPregunta)
{
    EligeRepresa(2);
    if (GetParam().deLago) EligeLago(2);
    EXPECT_EQ(Busca(0), 0);
    EXPECT_TRUE(Callado());
    EXPECT_EQ(Busca(0.001F), 0);
    EXPECT_EQ(Busca(-0.001F), 0);
    ASSERT_EQ(anfitrion->Preguntas().size(), 2U);
    EXPECT_EQ(anfitrion->Preguntas()[0].titulo, GetParam().tituloEncima);
    EXPECT_EQ(anfitrion->Preguntas()[1].titulo, GetParam().tituloDebajo);
    EXPECT_NE(anfitrion->Preguntas()[0].texto.find("-dos. Corrija"), std::string::npos);
}

// A block cut off inside its rows leaves them in memory and counts none.
TEST_P(LasSiete, SinCuentaPeroConRestosEnElPrimerRenglon)
{
    PonHAS({{-5, -5, -5}, {8, 8, 8}});
    s.Red.RepresaFilasHAS(1) = s.Red.LagoFilas(1) = 0;
    EXPECT_EQ(Busca(-3), 0);  // below row 0, above row 1, and no row to walk: unset
    EXPECT_TRUE(Callado());
    EXPECT_EQ(Busca(-5), -5);
    EXPECT_EQ(Busca(1), 0);
    EXPECT_EQ(Busca(-6), 0);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector<Mensaje>{Encima(), Debajo()}));
}

TEST_P(LasSiete, TablaAlRevesPreguntaPrimeroPorEncima)
{
    PonHAS({{40, 40, 40}, {10, 10, 10}});
    EXPECT_EQ(Busca(20), 0);  // above the last and below the first
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{Encima()});
}

TEST_P(LasSiete, RenglonesDesordenadosSeRecorrenComoEstan)
{
    PonHAS({{0, 0, 0}, {50, 50, 50}, {30, 30, 30}, {100, 100, 100}});
    EXPECT_EQ(Busca(40), 40);  // between rows 1 and 2
    EXPECT_EQ(Busca(30), 30);  // likewise: row 2 is taken before row 3 is reached
    EXPECT_EQ(Busca(65), 65);  // between rows 3 and 4
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, IndicesFueraDeLosArreglos)
{
    s.Red.RepresaFilasHAS(1) = s.Red.LagoFilas(1) = -1;
    EXPECT_EQ(NumeroDeFalla([&] { Busca(20); }), 9);
    s.Red.RepresaFilasHAS(1) = s.Red.LagoFilas(1) = static_cast<std::int16_t>(s.Red.LagoH.TopeColumna() + 1);
    EXPECT_EQ(NumeroDeFalla([&] { Busca(20); }), 9);
    s.Red.RepresaFilasHAS(1) = s.Red.LagoFilas(1) = 200;
    EXPECT_EQ(NumeroDeFalla([&] { Busca(20); }), 9);
    s.Red.Represas(1).numRepresa = 3;
    s.Red.Lagos(1).numLAGO = 3;
    EXPECT_EQ(NumeroDeFalla([&] { Busca(20); }), 9);
    EXPECT_TRUE(Callado());
}

TEST_P(LasSiete, UsaLaTablaDelComponenteEnMano)
{
    PonHAS({{10, 10, 10}, {20, 20, 20}}, 1);
    PonHAS({{110, 110, 110}, {120, 120, 120}}, 2);
    if (GetParam().deLago)
        EligeLago(2);
    else
        EligeRepresa(2);
    EXPECT_EQ(Busca(115), 115);
    EXPECT_TRUE(Callado());
}

class mdlHAS : public testing::Test, public EstadoConEmbalses {};

TEST_F(mdlHAS, AlmacenamientoEnteroEnElNodoYConFraccionEntreNodos)
{
    PonHAS({{100, 1, 1000}, {103, 2, 1001}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        EXPECT_EQ(SdeH(Elegido(), 103), 1001);
        // 1 m3 over 3 m, half a metre up: 1/6 m3, not rounded to 32 bits
        EXPECT_EQ(SdeH(Elegido(), 100.5F), 1.0 / 3.0 * 0.5 + 1000.0);
        EXPECT_NE(SdeH(Elegido(), 100.5F), static_cast<double>(static_cast<float>(1.0 / 3.0 * 0.5 + 1000.0)));
    }
}

TEST_F(mdlHAS, AlturaDeAlmacenamientoRestaLasAlturasEn32Bits)
{
    // H(2) - H(1) = 2^24 - 1 - 2^-23, which is no 32-bit float: the nearest one is 2^24 - 1. Half of it above
    // H(1) = 1 + 2^-23 is 2^23 + 1/2 + 2^-23; with the difference in 64 bits it would end in 2^-24.
    const float H1 = 1.0F + std::ldexp(1.0F, -23);
    PonHAS({{H1, 1, 0}, {16777216.0F, 2, 2}});
    EXPECT_EQ(HdeS(Elegido(), 1), 8388608.5 + std::ldexp(1.0, -23));
    EligeLago(1);
    EXPECT_EQ(HdeS(Elegido(), 1), 8388608.5 + std::ldexp(1.0, -23));
}

TEST_F(mdlHAS, AlturaDeAlmacenamientoQuedaEn64Bits)
{
    PonHAS({{0, 1, 0}, {1, 2, 3}});  // 1/3 m for 1 m3
    EXPECT_EQ(HdeS(Elegido(), 1), 1.0 / 3.0);
    EligeLago(1);
    EXPECT_EQ(HdeS(Elegido(), 1), 1.0 / 3.0);
}

TEST_F(mdlHAS, SuperficieSeRedondeaUnaVezAlFinal)
{
    // 2/82·41 is 1 but for the last bits of 64; were the slope a 32-bit float, 41 of it would be 1 - 2^-24.
    PonHAS({{0, 0, 0}, {82, 2, 2}});
    EXPECT_EQ(AdeH(Elegido(), 41), 1.0);
    EligeLago(1);
    EXPECT_EQ(AdeH(Elegido(), 41), 1.0);
    PonHAS({{0, 0, 0}, {2, 82, 2}});
    EligeRepresa(1);
    EXPECT_EQ(HdeARepresa(Elegido(), 41), 1.0);
}

TEST_F(mdlHAS, SuperficieEsDe32Bits)
{
    PonHAS({{0, 0, 0}, {3, 1, 3}});  // 1/3 ha at 1 m
    EXPECT_EQ(AdeH(Elegido(), 1), double{1.0F / 3.0F});
    EligeLago(1);
    EXPECT_EQ(AdeH(Elegido(), 1), double{1.0F / 3.0F});
    PonHAS({{0, 0, 0}, {1, 3, 3}});
    EligeRepresa(1);
    EXPECT_EQ(HdeARepresa(Elegido(), 1), double{1.0F / 3.0F});
}

TEST_F(mdlHAS, EntreRenglonesDeIgualLecturaDaEsaLectura)
{
    PonHAS({{0, 7.25F, 500}, {3, 7.25F, 500}, {9, 8, 600}});
    EXPECT_EQ(SdeH(Elegido(), 1), 500);
    EXPECT_EQ(AdeH(Elegido(), 1), 7.25);
    PonHAS({{7.25F, 1, 0}, {7.25F, 4, 3}, {8, 9, 9}});
    EXPECT_EQ(HdeS(Elegido(), 1), 7.25);
    EXPECT_EQ(HdeARepresa(Elegido(), 2), 7.25);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlHAS, DeRenglonesRepetidosValeElPrimero)
{
    PonHAS({{10, 1, 100}, {20, 2, 200}, {20, 3, 300}, {30, 4, 400}});
    EXPECT_EQ(SdeH(Elegido(), 20), 200);
    EXPECT_EQ(SdeH(Elegido(), 25), 350);  // from the second of them on
    PonHAS({{10, 1, 100}, {10, 3, 300}, {30, 4, 400}});
    EXPECT_EQ(SdeH(Elegido(), 10), 100);
    EXPECT_TRUE(Callado());
}

TEST_F(mdlHAS, CompararEsExactoEnElTipoMasAncho)
{
    // 16777217 is no 32-bit float; in 32 bits it would equal 16777216.
    PonHAS({{1, 1, 16777217}, {2, 2, 16777220}});
    EXPECT_EQ(HdeS(Elegido(), 16777216.0F), 0);
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(HdeS(Elegido(), 16777218.0F), 1.0 / 3.0 * 1 + 1);
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
}

TEST_F(mdlHAS, AlmacenamientosDemasiadoLejosUnoDeOtro)
{
    PonHAS({{0, 1, -2000000000}, {1, 2, 2000000000}});
    for (const bool lago : {false, true}) {
        Elige(lago);
        EXPECT_EQ(NumeroDeFalla([&] { SdeH(Elegido(), 0.5F); }), 6);
        EXPECT_EQ(NumeroDeFalla([&] { HdeS(Elegido(), 0); }), 6);
        EXPECT_EQ(SdeH(Elegido(), 1), 2000000000);  // a row needs no difference
        EXPECT_EQ(AdeH(Elegido(), 0.5F), 1.5);
    }
    EXPECT_TRUE(Callado());
}

TEST_F(mdlHAS, AlturasDemasiadoLejosUnaDeOtra)
{
    PonHAS({{-3e38F, 1, 0}, {3e38F, 2, 2}});
    EXPECT_EQ(NumeroDeFalla([&] { HdeS(Elegido(), 1); }), 6);
    EXPECT_EQ(SdeH(Elegido(), 0), 1);  // its heights are taken from one another in 64 bits
}

TEST_F(mdlHAS, DiferenciaMenorDelTipoCabe)
{
    PonHAS({{0, 1, 2147483647}, {1, 2, -1}});  // -2147483648 is a whole number of 32 bits
    EXPECT_EQ(SdeH(Elegido(), 0.5F), 1073741823);
}

}  // namespace
}  // namespace hydraulics
