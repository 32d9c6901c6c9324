// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/SerieDeTormentas.h"

#include <gtest/gtest.h>

#include "apoyo/Compara.h"
#include "model/Configuracion.h"
#include "results/SerieDePrueba.h"

namespace results {
namespace {

/// Three components of the last run.
model::Siro DeTres()
{
    model::Siro s;
    s.Resultados.Secuencia = {"", "u-1", "c-1", "c-1"};
    s.Resultados.NroComponentes = 3;
    return s;
}

TEST(ComponenteALaVista, UnNumeroQueNoEsDeNingunoVuelveAUno)
{
    model::Siro s = DeTres();
    for (const auto& [antes, despues] :
         std::vector<std::pair<std::int16_t, std::int16_t>>{{-1, 1}, {0, 1}, {1, 1}, {3, 3}, {4, 1}}) {
        s.Control.IndComp = antes;
        AcotaIndComp(s);
        EXPECT_EQ(s.Control.IndComp, despues) << antes;
    }
}

TEST(ComponenteALaVista, DeDosDelMismoNombreSeTomaElPrimero)
{
    model::Siro s = DeTres();
    const std::vector<std::string> lista = Componentes(s.Resultados);
    EXPECT_EQ(lista, (std::vector<std::string>{"u-1", "c-1", "c-1"}));
    TomaComponente(s, lista, 2);
    EXPECT_EQ(s.Control.IndComp, 2);
    EXPECT_EQ(NombreComponente(s), "c-1");
    s.Resultados.NroComponentes = 1;  // the list is of another run
    TomaComponente(s, lista, 2);
    EXPECT_EQ(s.Control.IndComp, 1);
}

TEST(ComponenteALaVista, SinSecuenciaNoHayNombres)
{
    model::Siro s;
    EXPECT_TRUE(Componentes(s.Resultados).empty());
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { NombreComponente(s); }), 9);
}

class Filtro : public pruebas::SerieDePrueba {
  protected:
    /// Whether a storm is left out.
    bool Excluye(float P, std::int16_t D, std::int16_t R, bool antes = false)
    {
        Carga({{P, D, R}});
        s.Serie.IndSerie = 1;
        bool excluida = antes;
        FiltroTormenta(s, excluida);
        return excluida;
    }
};

TEST_F(Filtro, TomaLaTormentaComoLaDeMano)
{
    s.Serie.IndSerie = 3;
    bool excluida = true;
    FiltroTormenta(s, excluida);
    EXPECT_EQ(s.Tormenta.PpTormenta, 25);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_FALSE(excluida);
}

TEST_F(Filtro, CadaDuracionSigueASuCasilla)
{
    constexpr std::array<std::int16_t, 17> duraciones = {5,   10,  15,  20,  30,  60,   90,   120, 180,
                                                         240, 300, 360, 540, 720, 1080, 1440, 2880};
    s.Pasos.PasoPp = 1;
    for (std::size_t i = 0; i < duraciones.size(); ++i) {
        s.frmConfigura.CheckD.fill(1);
        EXPECT_FALSE(Excluye(10, duraciones[i], 10)) << duraciones[i];
        DestildaD(i);
        EXPECT_TRUE(Excluye(10, duraciones[i], 10)) << duraciones[i];
        s.frmConfigura.CheckD.fill(0);
        s.frmConfigura.CheckD[i] = 1;
        EXPECT_FALSE(Excluye(10, duraciones[i], 10)) << duraciones[i];
    }
}

TEST_F(Filtro, CadaRecurrenciaSigueASuCasilla)
{
    constexpr std::array<std::int16_t, 14> recurrencias = {2,   5,   10,  20,   25,   40,   50,
                                                           100, 200, 500, 1000, 2000, 5000, 10000};
    for (std::size_t i = 0; i < recurrencias.size(); ++i) {
        s.frmConfigura.CheckR.fill(1);
        EXPECT_FALSE(Excluye(10, 60, recurrencias[i])) << recurrencias[i];
        DestildaR(i);
        EXPECT_TRUE(Excluye(10, 60, recurrencias[i])) << recurrencias[i];
        s.frmConfigura.CheckR.fill(0);
        s.frmConfigura.CheckR[i] = 1;
        EXPECT_FALSE(Excluye(10, 60, recurrencias[i])) << recurrencias[i];
    }
}

TEST_F(Filtro, LoQueNoTieneCasillaPasa)
{
    s.frmConfigura.CheckD.fill(0);
    s.frmConfigura.CheckR.fill(0);
    EXPECT_FALSE(Excluye(10, 45, 30));
    EXPECT_TRUE(Excluye(10, 60, 30));
    EXPECT_TRUE(Excluye(10, 45, 25));
}

TEST_F(Filtro, TildadaEsSoloLaCasillaQueValeUno)
{
    s.frmConfigura.CheckD[D60] = 2;
    EXPECT_TRUE(Excluye(10, 60, 10));
}

TEST_F(Filtro, DejaFueraLaDuracionMenorQueElPaso)
{
    s.Pasos.PasoPp = 45;
    EXPECT_TRUE(Excluye(10, 44, 10));
    EXPECT_FALSE(Excluye(10, 45, 10));
    EXPECT_FALSE(Excluye(10, 46, 10));
}

// A run goes by the flags, and the reader leaves that of R 5000 off; these windows go by the boxes.
TEST_F(Filtro, MiraLasCasillasYNoLasBanderas)
{
    s.Configuracion.CheckD.fill(0);
    s.Configuracion.CheckR.fill(0);
    EXPECT_FALSE(Excluye(10, 60, 5000));
    s.Configuracion.CheckD.fill(1);
    s.Configuracion.CheckR.fill(1);
    DestildaR(12);
    EXPECT_TRUE(Excluye(10, 60, 5000));
}

TEST_F(Filtro, SinLaminaOSinDuracionConservaLoQueDecia)
{
    s.Pasos.PasoPp = 45;  // a duration of 0 is below it and doesn't count
    for (const bool antes : {false, true}) {
        EXPECT_EQ(Excluye(0, 60, 10, antes), antes);
        EXPECT_EQ(Excluye(10, 0, 10, antes), antes);
        EXPECT_EQ(Excluye(0, 0, 0, antes), antes);
    }
}

TEST_F(Filtro, FueraDeLaSerieEsFalla9)
{
    s.Serie.IndSerie = 5;
    bool excluida = false;
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { FiltroTormenta(s, excluida); }), 9);
}

}  // namespace
}  // namespace results
