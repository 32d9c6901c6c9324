// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgAvisos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "checks/AvisosDeCorrida.h"
#include "checks/CorridaDePrueba.h"
#include "model/Numeros.h"

namespace checks {
namespace {

/// The list over a run of the network of CorridaDePrueba.
class ListaDeAvisos : public testing::Test, public pruebas::CorridaDePrueba {
  protected:
    ListaDeAvisos()
    {
        s.Anfitrion.FechaHora = [] { return std::string("22/11/2026 10:00:00"); };
    }
    void CorreTodo()
    {
        const model::Tormenta entrada = s.Tormenta;
        const engine::Calculo c = Corre();
        ASSERT_EQ(c.fin, engine::FinCalculo::Completo);
        s.Resultados = c.Resultados;
        s.Hietograma = c.Hietograma;
        s.Tormenta = c.Tormenta;
        ultima = UltimaCorrida::DeUna(s, entrada, true);
        MuestraEsta();
    }
    [[nodiscard]] EstadoDeCorrida Estado() const { return {ultima, enCurso, SelloDe(s)}; }
    void MuestraEsta() { Muestra(f, Estado()); }
    [[nodiscard]] std::size_t FilaDelNumero(const std::string& numero) const
    {
        const auto& filas = f.tblAvisos.planilla.filas;
        return static_cast<std::size_t>(
            std::find_if(filas.begin(), filas.end(), [&](const auto& fila) { return fila[1] == numero; }) -
            filas.begin());
    }
    /// A peak that comes to the outlet 60 min behind the storm, at the last step; it is seen to be one with
    /// 70 min.
    void PonPicoAlFinal()
    {
        s.Pasos.N0Dur = 60;
        s.Red.ColCauces.Item(1).LongCauce = 3600;
    }
    std::shared_ptr<const UltimaCorrida> ultima{};
    bool enCurso = false;
    dlgAvisos f{};
};

TEST_F(ListaDeAvisos, AntesDeLaPrimeraCorridaLoDice)
{
    MuestraEsta();
    EXPECT_EQ(f.lblCorrida, "Todavía no se ha corrido ninguna tormenta");
    EXPECT_EQ(f.lblCuenta, "");
    EXPECT_EQ(f.lblAnterior, "");
    EXPECT_TRUE(f.tblAvisos.planilla.filas.empty());
    EXPECT_FALSE(f.pideTiempo);
    EXPECT_EQ(TextoDeClave(Estado()), "Sin corrida");
    EXPECT_FALSE(PeorGravedad(Estado()));
}

TEST_F(ListaDeAvisos, UnaCorridaSinNadaMaloYSuBalance)
{
    CorreTodo();
    EXPECT_EQ(TextoDeClave(Estado()), "Sin avisos");
    EXPECT_FALSE(PeorGravedad(Estado()));
    EXPECT_EQ(f.lblCuenta, "Sin avisos");
    EXPECT_TRUE(f.tblAvisos.mostradas.empty());
    EXPECT_FALSE(f.pideTiempo);
    EXPECT_NE(f.lblCorrida.find("P 60 mm, D 60 min"), std::string::npos) << f.lblCorrida;
    EXPECT_NE(f.lblCorrida.find("22/11/2026 10:00:00"), std::string::npos) << f.lblCorrida;

    // 60 mm on 100 ha, all of it excess, all of it gone by the end: 60000 m3.
    const auto& filas = f.tblBalance.planilla.filas;
    ASSERT_EQ(filas.size(), 3U);
    EXPECT_EQ(filas[0][0], "Toda la cuenca");
    EXPECT_EQ(filas[1][0], "u-1");
    EXPECT_EQ(filas[2][0], "c-1");
    for (const auto& fila : filas) {
        EXPECT_EQ(fila[1], "60000") << fila[0];
        EXPECT_EQ(fila[3], "0") << fila[0];
        EXPECT_EQ(fila.back(), "Cierra") << fila[0];
    }
    EXPECT_EQ(f.cierres, (std::vector<Cierre>{Cierre::Cierra, Cierre::Cierra, Cierre::Cierra}));
    EXPECT_EQ(f.lblSinBalance, "");
}

TEST_F(ListaDeAvisos, UnPicoAlFinalOfreceElTiempoQueAlcanza)
{
    PonPicoAlFinal();
    CorreTodo();
    const std::size_t fila = FilaDelNumero("101");
    ASSERT_LT(fila, f.tblAvisos.planilla.filas.size());
    EXPECT_EQ(f.tblAvisos.planilla.filas[fila][0], "error");
    EXPECT_EQ(f.tblAvisos.planilla.filas[fila][2], "c-1");
    EXPECT_EQ(PeorGravedad(Estado()), Gravedad::Error);
    EXPECT_EQ(TextoDeClave(Estado()).substr(0, 7), "1 error");
    EXPECT_TRUE(f.pideTiempo);
    EXPECT_EQ(f.minutos, 70);
    EXPECT_EQ(f.cmdAgregarTiempo, "A&gregar 70 min y correr de nuevo");
    EXPECT_NE(f.ayudaTiempo.find("ahora 60 min"), std::string::npos) << f.ayudaTiempo;
    ASSERT_TRUE(DeFilaDeAvisos(f, fila));
    EXPECT_EQ(DeFilaDeAvisos(f, fila)->componente, "c-1");
    EXPECT_FALSE(DeFilaDeAvisos(f, 99));
    EXPECT_TRUE(HayHidrograma(f, "c-1"));
    EXPECT_FALSE(HayHidrograma(f, "c-9"));
    EXPECT_FALSE(HayHidrograma(f, ""));
}

TEST_F(ListaDeAvisos, DondeNoAlcanzaNingunTiempoElBotonDicePorQue)
{
    model::UEH& u = s.Red.ColUEHs.Item(1);
    u.Q0Recesion = 1;
    u.KRecesion = 1e9F;
    Represa("Runge Kutta", Prisma(1000, 0.1F, 40));
    CorreTodo();
    EXPECT_TRUE(f.pideTiempo);
    EXPECT_EQ(f.minutos, 0);
    EXPECT_NE(f.ayudaTiempo.find("Ni con 30000 min"), std::string::npos) << f.ayudaTiempo;
    EXPECT_EQ(f.cmdAgregarTiempo, "Agregar tiempo y correr de nuevo");
}

TEST_F(ListaDeAvisos, LoQueCambiaDespuesLoHaceDeUnaCorridaAnterior)
{
    PonPicoAlFinal();
    CorreTodo();
    ASSERT_GT(f.minutos, 0);
    s.Tormenta.PpTormenta = 61;
    MuestraEsta();
    EXPECT_EQ(f.lblAnterior.substr(0, 36), "De una corrida anterior: la lluvia e") << f.lblAnterior;
    EXPECT_EQ(f.minutos, 0);
    EXPECT_NE(f.ayudaTiempo.find("corrida anterior"), std::string::npos);
    EXPECT_TRUE(TextoDeClave(Estado()).ends_with(" (corrida anterior)"));
    EXPECT_NE(AyudaDeClave(Estado()).find(f.lblAnterior), std::string::npos);
    const auto titulos = ParaArchivo(f, f.tblAvisos, TituloDlgAvisos).titulos;
    EXPECT_NE(std::find(titulos.begin(), titulos.end(), f.lblAnterior), titulos.end());
    s.Tormenta.PpTormenta = 60;
    MuestraEsta();
    EXPECT_EQ(f.lblAnterior, "");
    EXPECT_EQ(f.minutos, 70);
}

TEST_F(ListaDeAvisos, MientrasSeRevisaLoDiceYNoMuestraLosDeAntes)
{
    PonPicoAlFinal();
    CorreTodo();
    enCurso = true;
    MuestraEsta();
    EXPECT_EQ(f.lblCorrida, "Se está revisando la última corrida: los avisos aparecen al terminar");
    EXPECT_TRUE(f.tblAvisos.mostradas.empty());
    EXPECT_TRUE(f.tblBalance.mostradas.empty());
    EXPECT_FALSE(f.pideTiempo);
    EXPECT_EQ(TextoDeClave(Estado()), "Revisando...");
    EXPECT_FALSE(PeorGravedad(Estado()));
    enCurso = false;
    MuestraEsta();
    EXPECT_FALSE(f.tblAvisos.mostradas.empty());
}

// 60000 m3 on 1 ha stand 6 m high, and the table ends at 5 m: what doesn't fit is lost.
TEST_F(ListaDeAvisos, ElBalanceQueNoCierraLoDiceConPalabras)
{
    Represa("Piscina Nivelada", Prisma(1, 0.0001F, 5));
    CorreTodo();
    const auto& filas = f.tblBalance.planilla.filas;
    ASSERT_EQ(filas.size(), 4U);
    EXPECT_EQ(filas[3][0], "r-1");
    EXPECT_EQ(f.cierres[3], Cierre::NoCierra);
    EXPECT_EQ(f.cierres[0], Cierre::NoCierra);
    EXPECT_EQ(filas[3].back(), "No cierra: falta agua");
    EXPECT_GT(model::Val(filas[3][7]), Valor(Umbral::ErrorDeBalance));
    EXPECT_EQ(f.cierres[1], Cierre::Cierra);
    ASSERT_TRUE(DeFilaDeBalance(f, 3));
    EXPECT_EQ(DeFilaDeBalance(f, 3)->componente, "r-1");
    EXPECT_EQ(DeFilaDeBalance(f, 0)->componente, "");
    EXPECT_FALSE(DeFilaDeBalance(f, 4));
    PulsaEncabezado(f.tblBalance, 7);
    EXPECT_EQ(f.tblBalance.columnaOrden, 7);
}

TEST_F(ListaDeAvisos, DeUnaSerieNoHayBalanceNiBoton)
{
    PonPicoAlFinal();
    s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
    s.Configuracion.CheckD.fill(1);
    s.Configuracion.CheckR.fill(1);
    s.Serie.NroSeriePDR = 1;
    s.Serie.SerieP.Dimensiona(1);
    s.Serie.SerieD.Dimensiona(1);
    s.Serie.SerieR.Dimensiona(1);
    s.Serie.SerieP(1) = 60;
    s.Serie.SerieD(1) = 60;
    s.Serie.SerieR(1) = 10;
    LlenaTablas();
    ultima = UltimaCorrida::DeSerie(s, 1);
    MuestraEsta();
    ASSERT_LT(FilaDelNumero("101"), f.tblAvisos.planilla.filas.size());
    EXPECT_TRUE(f.pideTiempo);
    EXPECT_EQ(f.minutos, 0);
    EXPECT_NE(f.ayudaTiempo.find("serie"), std::string::npos);
    EXPECT_NE(f.lblSinBalance.find("serie"), std::string::npos);
    EXPECT_FALSE(HayHidrograma(f, "c-1"));
}

TEST_F(ListaDeAvisos, LoQueVaAUnArchivoDiceDeQueCorridaEs)
{
    s.Proyecto.NombreProyecto = "Arroyo";
    PonPicoAlFinal();
    CorreTodo();
    const forms::Planilla p = ParaArchivo(f, f.tblAvisos, TituloDlgAvisos);
    ASSERT_EQ(p.titulos.size(), 4U);
    EXPECT_EQ(p.titulos[0], "Avisos de la corrida");
    EXPECT_EQ(p.titulos[1], f.lblCorrida);
    EXPECT_EQ(p.titulos[2], "Proyecto Arroyo. Huella " + ultima->huella);
    EXPECT_EQ(p.titulos[3], f.lblCuenta);
    EXPECT_EQ(p.filas.size(), ultima->avisos.size());
    for (const auto& fila : p.filas)
        EXPECT_EQ(fila.size(), p.columnas.size());
}

}  // namespace
}  // namespace checks
