// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Revisa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "apoyo/DiscoPrueba.h"
#include "checks/Arregla.h"
#include "checks/EscribeHallazgos.h"
#include "engine/Calcula.h"
#include "engine/mdlProceso1.h"
#include "model/Siro.h"

namespace checks {
namespace {

using model::Siro;

/// Four rows that hold what their areas say: 1 m of 2, 4, 6 ha and so on, by the mean of both.
template <typename... Tablas>
void PonTabla(model::Arreglo<std::int16_t>& filas, const std::vector<std::vector<double>>& valores,
              Tablas&... tablas)
{
    filas.Dimensiona(1);
    filas(1) = static_cast<std::int16_t>(valores.size());
    std::size_t c = 0;
    const auto pone = [&](auto& tabla) {
        tabla.Dimensiona(1, static_cast<int>(valores.size()) + 1);
        for (std::size_t k = 0; k < valores.size(); ++k) {
            auto& celda = tabla(1, static_cast<int>(k) + 1);
            celda = static_cast<std::remove_reference_t<decltype(celda)>>(valores[k][c]);
        }
        ++c;
    };
    (pone(tablas), ...);
}

void PonHAS(Siro& s, const std::vector<std::vector<double>>& filas)
{
    PonTabla(s.Red.RepresaFilasHAS, filas, s.Red.RepresaH, s.Red.RepresaA, s.Red.RepresaS);
}
void PonHQ(Siro& s, const std::vector<std::vector<double>>& filas)
{
    PonTabla(s.Red.RepresaFilasHQ, filas, s.Red.RepresaQH, s.Red.RepresaQQ);
}
void PonHASQ(Siro& s, const std::vector<std::vector<double>>& filas)
{
    PonTabla(s.Red.LagoFilas, filas, s.Red.LagoH, s.Red.LagoA, s.Red.LagoS, s.Red.LagoQ);
}

/// u-1 -> c-1 -> l-1 -> c-2 -> r-1 -> c-3, u-2 -> c-2: nothing to be said of any of them.
Siro Sano()
{
    Siro s;
    for (int i = 1; i <= 2; ++i) {
        model::UEH u;
        u.NombreUEH = "u-" + std::to_string(i);
        u.numUEH = static_cast<std::int16_t>(i);
        u.Cauce_aa = "c-" + std::to_string(i);
        u.Area = 100;
        u.LongitudMax = 1200;
        u.VelMedia = 1;
        u.KostiakovA = 4;
        u.KostiakovB = 0.5F;
        u.RetensionZ = 5;
        u.Q0Recesion = 0.1F;
        u.KRecesion = 60;
        s.Red.ColUEHs.Agrega(u);
    }
    const char* destinos[] = {"l-1", "r-1", "0"};
    for (int i = 1; i <= 3; ++i) {
        model::Cauce c;
        c.NombreCauce = "c-" + std::to_string(i);
        c.numCauce = static_cast<std::int16_t>(i);
        c.Cauce_aa = destinos[i - 1];
        c.LongCauce = 1200;
        c.VelMediaCauce = 2;
        c.Cauce_k_Musk = 10;
        c.Cauce_n_Musk = 0.25F;
        c.optDirMusk = i != 2;
        s.Red.ColCauces.Agrega(c);
    }
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1",
                           .numLAGO = 1,
                           .Metodo = "Piscina Nivelada",
                           .Cauce_aa = "c-2",
                           .Lago_k_Musk = 10,
                           .HInicialEmb = 1});
    model::Represa r;
    r.NombreRepresa = "r-1";
    r.numRepresa = 1;
    r.Metodo = "Runge Kutta";
    r.Cauce_aa = "c-3";
    r.Represa_k_Musk = 10;
    r.optTabla = true;
    r.HInicialEmb = 1;
    r.chkFQ[0] = 1;
    r.FQa[0] = 3;
    r.FQb[0] = 1.5F;
    r.FQMax[0] = 30;
    s.Red.ColRepresas.Agrega(r);
    PonHAS(s, {{0, 10, 0}, {10, 20, 1500000}, {20, 40, 4500000}, {30, 40, 8500000}});
    PonHQ(s, {{0, 0}, {10, 20}, {20, 60}, {30, 100}});
    PonHASQ(s, {{0, 10, 0, 0}, {10, 20, 1500000, 20}, {20, 40, 4500000, 60}, {30, 40, 8500000, 100}});
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 60;
    return s;
}

std::vector<Hallazgo> Con(int numero, const std::vector<Hallazgo>& l)
{
    std::vector<Hallazgo> suyos;
    std::copy_if(l.begin(), l.end(), std::back_inserter(suyos),
                 [&](const Hallazgo& h) { return h.numero == numero; });
    return suyos;
}

using Cambio = std::function<void(Siro&)>;

/// A rule, a change that raises it, of whom, and one that just doesn't.
struct Caso {
    int numero;
    Gravedad gravedad;
    std::string componente;
    Cambio mal, apenas;
};

model::Represa& R(Siro& s)
{
    return s.Red.Represas(1);
}
void PorFunciones(Siro& s, float b, float hasta)
{
    R(s).optTabla = false;
    R(s).FQb[0] = b;
    R(s).FQMax[0] = hasta;
}
void Muskingum(Siro& s, float K, float x, std::int16_t paso)
{
    s.Red.Cauces(2).Cauce_k_Musk = K;
    s.Red.Cauces(2).Cauce_n_Musk = x;
    s.Pasos.PasoQ = s.Pasos.PasoPp = paso;
}

// clang-format off
const std::vector<Caso> Casos = {
    {201, Gravedad::Error, "", [](Siro& s) { s.Red.ColUEHs.Vacia(); }, [](Siro& s) { s.Red.ColUEHs.Quita(2); }},
    {202, Gravedad::Error, "u-1", [](Siro& s) { s.Red.UEHs(1).Area = 0; }, [](Siro& s) { s.Red.UEHs(1).Area = 0.001F; }},
    {203, Gravedad::Error, "u-2", [](Siro& s) { s.Red.UEHs(2).VelMedia = 0; }, [](Siro& s) { s.Red.UEHs(2).VelMedia = 0.05F; }},
    {204, Gravedad::Error, "u-2", [](Siro& s) { s.Red.UEHs(2).LongitudMax = -1; }, [](Siro& s) { s.Red.UEHs(2).LongitudMax = 1; }},
    {205, Gravedad::Error, "", [](Siro& s) { s.Red.Cauces(2).optDirMusk = true; s.Pasos = {10, 4, 10}; }, [](Siro& s) { s.Red.Cauces(2).optDirMusk = true; s.Pasos = {10, 5, 10}; }},
    {206, Gravedad::Error, "", [](Siro& s) { s.Tormenta.PpTormenta = 0; }, [](Siro& s) { s.Tormenta.PpTormenta = 0.1F; }},
    {207, Gravedad::Error, "", [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "c-2"; }, [](Siro& s) { s.Red.Cauces(3).Cauce_aa = ""; }},
    {208, Gravedad::Error, "c-2", [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "c-2"; }, [](Siro& s) { s.Red.Cauces(1).Cauce_aa = "c-2"; }},
    {208, Gravedad::Error, "c-3", [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "c-3"; }, [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "u-1"; }},
    {209, Gravedad::Error, "c-1", [](Siro& s) { s.Red.UEHs(1).Cauce_aa = "c-2"; }, [](Siro& s) { s.Red.UEHs(2).Cauce_aa = "c-1"; }},
    {211, Gravedad::Error, "c-1", [](Siro& s) { s.Red.Cauces(1).LongCauce = 0; }, [](Siro& s) { s.Red.Cauces(2).LongCauce = 0; }},
    {212, Gravedad::Error, "c-3", [](Siro& s) { s.Red.Cauces(3).VelMediaCauce = 0; }, [](Siro& s) { s.Red.Cauces(2).VelMediaCauce = 0; }},
    {213, Gravedad::Error, "c-2", [](Siro& s) { Muskingum(s, 70, 0.2F, 30); }, [](Siro& s) { Muskingum(s, 60, 0.25F, 30); }},
    {213, Gravedad::Error, "r-1", [](Siro& s) { R(s).Metodo = "Muskingum"; R(s).Represa_k_Musk = -5; }, [](Siro& s) { R(s).Metodo = "Muskingum"; }},
    {214, Gravedad::Error, "l-1", [](Siro& s) { s.Red.Lagos(1).Metodo = ""; }, [](Siro& s) { s.Red.Lagos(1).Metodo = "Runge Kutta"; }},
    {216, Gravedad::Error, "c-2", [](Siro& s) { s.Red.Cauces(3).NombreCauce = "c-2"; }, [](Siro& s) { s.Red.Cauces(3).NombreCauce = "c-2b"; }},
    {217, Gravedad::Aviso, "c-3", [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "c-9"; }, [](Siro& s) { s.Red.Cauces(3).Cauce_aa = "0"; }},
    {218, Gravedad::Aviso, "u-2", [](Siro& s) { s.Red.UEHs(2).Cauce_aa = "0"; }, [](Siro& s) { s.Red.UEHs(2).Cauce_aa = "c-3"; }},
    {219, Gravedad::Nota, "", [](Siro& s) { s.Red.UEHs(2).Cauce_aa = "0"; }, [](Siro& s) { s.Red.UEHs(2).Cauce_aa = "c-3"; }},
    {220, Gravedad::Error, "r-1", [](Siro& s) { s.Red.RepresaFilasHQ(1) = 0; }, [](Siro& s) { s.Red.RepresaFilasHQ(1) = 4; }},
    {221, Gravedad::Error, "r-1", [](Siro& s) { s.Red.RepresaH(1, 3) = 10; }, [](Siro& s) { s.Red.RepresaH(1, 3) = 10.01F; }},
    {222, Gravedad::Error, "l-1", [](Siro& s) { s.Red.LagoS(1, 3) = 1499999; }, [](Siro& s) { s.Red.LagoS(1, 3) = 1500000; }},
    {223, Gravedad::Aviso, "l-1", [](Siro& s) { s.Red.LagoQ(1, 3) = 19.9F; }, [](Siro& s) { s.Red.LagoQ(1, 3) = 20; }},
    {224, Gravedad::Aviso, "r-1", [](Siro& s) { s.Red.RepresaA(1, 2) = 9.9F; }, [](Siro& s) { s.Red.RepresaA(1, 2) = 10; }},
    // between 0 and 10 m lie 10 to 20 ha: 0.9 to 2.2 hm3 with the tenth of slack
    {225, Gravedad::Aviso, "r-1", [](Siro& s) { s.Red.RepresaS(1, 2) = 2201000; }, [](Siro& s) { s.Red.RepresaS(1, 2) = 2200000; }},
    {226, Gravedad::Error, "r-1", [](Siro& s) { R(s).HInicialEmb = 30.1F; }, [](Siro& s) { R(s).HInicialEmb = 30; }},
    {226, Gravedad::Error, "l-1", [](Siro& s) { s.Red.Lagos(1).HInicialEmb = -0.1F; }, [](Siro& s) { s.Red.Lagos(1).HInicialEmb = 0; }},
    {227, Gravedad::Aviso, "r-1", [](Siro& s) { PorFunciones(s, 1.5F, 29); }, [](Siro& s) { PorFunciones(s, 1.5F, 30); }},
    {228, Gravedad::Error, "r-1", [](Siro& s) { R(s).optTabla = false; R(s).chkFQ[0] = 2; }, [](Siro& s) { R(s).chkFQ[0] = 0; }},
    {229, Gravedad::Aviso, "r-1", [](Siro& s) { PorFunciones(s, 1.5F, 0); }, [](Siro& s) { PorFunciones(s, 1.5F, 31); }},
    {230, Gravedad::Aviso, "r-1", [](Siro& s) { PorFunciones(s, 1.5F, 30); R(s).FQa[0] = -1; }, [](Siro& s) { PorFunciones(s, 1.5F, 30); R(s).FQa[0] = 0; }},
    {240, Gravedad::Nota, "u-1", [](Siro& s) { s.Red.UEHs(1).Area = 2591; }, [](Siro& s) { s.Red.UEHs(1).Area = 2590; }},
    {241, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).VelMedia = 4.5F; }, [](Siro& s) { s.Red.UEHs(1).VelMedia = 4.25F; }},
    {242, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).KostiakovA = -0.1F; }, [](Siro& s) { s.Red.UEHs(1).KostiakovA = 0; }},
    // 60^0.5 = 7.746: a of 0.12 infiltrates 0.93 mm in an hour, one of 0.13 1.01 mm
    {243, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).KostiakovA = 0.12F; }, [](Siro& s) { s.Red.UEHs(1).KostiakovA = 0.13F; }},
    {244, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).KostiakovB = 1.01F; }, [](Siro& s) { s.Red.UEHs(1).KostiakovB = 1; }},
    {245, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).RetensionZ = 15.3F; }, [](Siro& s) { s.Red.UEHs(1).RetensionZ = 15.2F; }},
    {246, Gravedad::Aviso, "u-1", [](Siro& s) { s.Red.UEHs(1).KRecesion = 18; }, [](Siro& s) { s.Red.UEHs(1).KRecesion = 19; }},
    {251, Gravedad::Aviso, "c-1", [](Siro& s) { s.Red.Cauces(1).VelMediaCauce = 3.5F; }, [](Siro& s) { s.Red.Cauces(1).VelMediaCauce = 3.25F; }},
    {252, Gravedad::Aviso, "c-2", [](Siro& s) { Muskingum(s, 10, 0.75F, 10); }, [](Siro& s) { Muskingum(s, 10, 0.5F, 10); }},
    {253, Gravedad::Aviso, "c-2", [](Siro& s) { Muskingum(s, 10, 0.25F, 20); }, [](Siro& s) { Muskingum(s, 10, 0.25F, 15); }},
    {254, Gravedad::Aviso, "r-1", [](Siro& s) { PorFunciones(s, 2.75F, 30); }, [](Siro& s) { PorFunciones(s, 2.5F, 30); }},
    // from 29.99 m on 500 mm in an hour on 2 km2 lift 40 ha by more than 1 m
    {260, Gravedad::Error, "r-1", [](Siro& s) { R(s).HInicialEmb = 29.99F; s.Tormenta.PpTormenta = 500; PonHQ(s, {{0, 0}, {30, 0}}); },
     [](Siro& s) { R(s).HInicialEmb = 20; s.Tormenta.PpTormenta = 500; PonHQ(s, {{0, 0}, {30, 0}}); }},
    {262, Gravedad::Error, "r-1", [](Siro& s) { for (int k = 1; k <= 4; ++k) s.Red.RepresaA(1, k) = 0; }, [](Siro& s) { s.Red.RepresaA(1, 1) = 0; }},
    {265, Gravedad::Error, "", [](Siro& s) { s.Red.UEHs(1).Area = 3e38F; }, [](Siro& s) { s.Red.UEHs(1).Area = 1000; }},
};
// clang-format on

TEST(Revisa, SaysNothingOfASoundProject)
{
    EXPECT_EQ("Sin hallazgos\n", EnTexto(Revisa(Sano())));
}

TEST(Revisa, RaisesEachRuleWhereItIsBrokenAndNotWhereItJustIsNot)
{
    for (const Caso& caso : Casos) {
        SCOPED_TRACE(caso.numero);
        Siro mal = Sano(), apenas = Sano();
        caso.mal(mal);
        caso.apenas(apenas);
        const auto suyos = Con(caso.numero, Revisa(mal));
        ASSERT_FALSE(suyos.empty()) << EnTexto(Revisa(mal));
        EXPECT_EQ(caso.componente, suyos.front().componente);
        EXPECT_EQ(Nombre(caso.gravedad), Nombre(suyos.front().gravedad));
        EXPECT_FALSE(suyos.front().que.empty() || suyos.front().remedio.empty());
        EXPECT_EQ("", suyos.size() == 1 ? "" : EnTexto(suyos));
        EXPECT_TRUE(Con(caso.numero, Revisa(apenas)).empty()) << EnTexto(Revisa(apenas));
    }
}

TEST(Revisa, TellsAllProblemsAtOnce)
{
    Siro s = Sano();
    s.Red.UEHs(1).VelMedia = 0;
    s.Red.UEHs(2).VelMedia = 0;
    s.Red.Cauces(1).LongCauce = 0;
    s.Red.Lagos(1).Metodo = "";
    const auto l = Revisa(s);
    EXPECT_EQ(2U, Con(203, l).size());
    EXPECT_EQ(1U, Con(211, l).size());
    EXPECT_EQ(1U, Con(214, l).size());
}

TEST(Revisa, ComparesTheAreasWithTheMeasuredBasin)
{
    EXPECT_TRUE(Con(250, Revisa(Sano(), 202)).empty());  // 0.99 %
    const auto l = Con(250, Revisa(Sano(), 250));
    ASSERT_EQ(1U, l.size());
    EXPECT_EQ("200 ha, -20 % de diferencia con 250 ha", l.front().cuanto);
}

TEST(Revisa, NamesTheWayOfACircle)
{
    Siro s = Sano();
    s.Red.Cauces(3).Cauce_aa = "c-2";
    EXPECT_EQ("c-2, r-1, c-3, c-2", Con(208, Revisa(s)).front().cuanto);
}

TEST(Revisa, MendsWhatHasAnObviousMendAndNothingElse)
{
    // the numbers of Casos whose finding names a mend
    const std::vector<std::pair<int, Arreglo>> conArreglo = {
        {213, Arreglo::MuskingumCercano}, {217, Arreglo::SinDestino}, {226, Arreglo::AlturaInicial}};
    int hechos = 0;
    for (const Caso& caso : Casos) {
        SCOPED_TRACE(caso.numero);
        Siro s = Sano();
        caso.mal(s);
        const Hallazgo h = Con(caso.numero, Revisa(s)).front();
        const auto de = std::find_if(conArreglo.begin(), conArreglo.end(),
                                     [&](const auto& fila) { return fila.first == caso.numero; });
        const bool sinCercano = caso.numero == 213 && caso.componente == "r-1";  // K below 0
        EXPECT_EQ(de != conArreglo.end() && !sinCercano ? de->second : Arreglo::Ninguno, h.arreglo);
        EXPECT_EQ(h.arreglo != Arreglo::Ninguno, Arregla(s.Red, h, s.Pasos.PasoQ));
        EXPECT_EQ(h.arreglo == Arreglo::Ninguno, !Con(caso.numero, Revisa(s)).empty());
        EXPECT_FALSE(Arregla(s.Red, h, s.Pasos.PasoQ)) << "it is mended already";
        hechos += h.arreglo != Arreglo::Ninguno;
    }
    EXPECT_EQ(4, hechos);
}

TEST(Arregla, PutsTheRowsOfATableInOrderAndKeepsDoubleOnesOnce)
{
    Siro s = Sano();
    PonHAS(s, {{20, 40, 4500000}, {0, 10, 0}, {10, 20, 1500000}, {0, 10, 0}});
    const auto l = Con(221, Revisa(s));
    ASSERT_EQ(1U, l.size());
    EXPECT_EQ(Arreglo::OrdenaTabla, l.front().arreglo);
    ASSERT_TRUE(Arregla(s.Red, l.front(), s.Pasos.PasoQ));
    EXPECT_EQ(3, s.Red.RepresaFilasHAS(1));
    for (int k = 1; k <= 3; ++k)
        EXPECT_EQ(10.0F * static_cast<float>(k - 1), s.Red.RepresaH(1, k));
    EXPECT_EQ(1500000, s.Red.RepresaS(1, 2));
    EXPECT_EQ(0, s.Red.RepresaH(1, 4));
    EXPECT_TRUE(Con(221, Revisa(s)).empty());
}

TEST(Arregla, LeavesATableAloneThatNoOrderMends)
{
    Siro s = Sano();
    s.Red.RepresaH(1, 3) = 10;
    const auto l = Con(221, Revisa(s));
    EXPECT_EQ(Arreglo::Ninguno, l.front().arreglo);
    EXPECT_FALSE(Arregla(s.Red, {.numero = 221, .componente = "r-1", .arreglo = Arreglo::OrdenaTabla}, 10));
}

TEST(Arregla, FindsTheNearestMuskingumThatARunTakes)
{
    // K 70, x 0.2 and 30 min: 28 <= 30 <= 112, and yet the sum of the rounded coefficients isn't 1
    ASSERT_TRUE(EnVentana({70, 0.2F}, 30));
    ASSERT_FALSE(PasaMuskingum({70, 0.2F}, 30));
    const auto par = MuskingumCercano({70, 0.2F}, 30, true);
    ASSERT_TRUE(par);
    EXPECT_NEAR(70, par->K, 0.1);
    EXPECT_TRUE(EnVentana(*par, 30) && PasaMuskingum(*par, 30));
    EXPECT_FALSE(MuskingumCercano({70, 0.2F}, 300, true)) << "far outside the window";
}

TEST(Revisa, TakesTheWordsOfAnOpeningForAFindingByHowTheyBegin)
{
    EXPECT_EQ(Gravedad::Error, DeApertura({.texto = "Error Nro. 62Fin ,Verifique"}).gravedad);
    EXPECT_EQ(Gravedad::Nota, DeApertura({.texto = "Se guardó\r\nla configuración"}).gravedad);
    EXPECT_EQ("Al abrir el proyecto: Se guardó la configuración",
              DeApertura({.texto = "Se guardó\r\nla configuración"}).que);
}

TEST(Revisa, MissesADirectoryInWhichTheResultsWouldStand)
{
    apoyo::DiscoPrueba disco;
    disco.PonDirectorio("/hay");
    Siro s;
    s.Disco = disco.Puerta();
    std::vector<Hallazgo> l;
    s.Proyecto.DirTrabajo = "/hay";
    RevisaDirTrabajo(s, l);
    EXPECT_TRUE(l.empty());
    disco.PonDirectorio("/hay/" + std::string(engine::ArchivoPizarra));
    RevisaDirTrabajo(s, l);
    s.Proyecto.DirTrabajo = "/no hay";
    RevisaDirTrabajo(s, l);
    EXPECT_EQ(2U, Con(280, l).size());
}

}  // namespace
}  // namespace checks
