// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/modProceso0.h"

#include <gtest/gtest.h>

#include <string>

#include "apoyo/Compara.h"
#include "engine/RedDeUEHs.h"
#include "model/Disco.h"
#include "model/Texto.h"

namespace engine {
namespace {

const std::string Encabezado = "SIRO - Modelo de Simulación Hidrológica\r\n" +
                               model::Ruta("/proyectos", "Prueba") +
                               "\r\n"
                               "Título\r\nLugar\r\nCuenca\r\nSub\r\nOperador - 03/04/2011 10:20:30\r\n"
                               "\r\n"
                               "SIMULACION LLUVIA-CAUDAL PARA UNA TORMENTA\r\n";

class UnaTormenta : public testing::Test, public pruebas::RedDeUEHs {
  protected:
    UnaTormenta()
    {
        PonUEH("u-1", "");
        s.frmConfigura.TextProyecto = s.Configuracion.TituloProyecto = "Título";
        s.frmConfigura.TextUbica = s.Configuracion.Ubicacion = "Lugar";
        s.frmConfigura.TextCuenca = s.Configuracion.Cuenca = "Cuenca";
        s.frmConfigura.TextSbca = s.Configuracion.Subcuenca = "Sub";
        s.frmConfigura.TextOpera = s.Configuracion.Operador = "Operador";
        GuardaProyecto();
    }
};

TEST_F(UnaTormenta, LosCambiosSinGuardarNoLleganALaCorrida)
{
    s.Red.UEHs(1).Area = 12;
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_EQ(s.Red.UEHs(1).Area, 6);
    EXPECT_EQ(s.Resultados.EscTotal(1), 3600);
}

TEST_F(UnaTormenta, SinLaminaSoloQuedaElEncabezado)
{
    EXPECT_TRUE(CorreUnaTormenta(s));
    const model::Siro antes = s;
    anfitrion->marcaPizarra = true;
    s.Tormenta.PpTormenta = 0;
    EXPECT_FALSE(CorreUnaTormenta(s));
    EXPECT_TRUE(apoyo::MismoTexto(Encabezado, anfitrion->pizarra));
    EXPECT_EQ(s.Resultados.QSale, antes.Resultados.QSale);
    EXPECT_EQ(s.Resultados.QMax, antes.Resultados.QMax);
    EXPECT_EQ(s.Control.TextoPizarra, antes.Control.TextoPizarra);
}

TEST_F(UnaTormenta, SinDuracionSoloQuedaElEncabezado)
{
    anfitrion->marcaPizarra = true;
    s.Tormenta.DurTormenta = 0;
    EXPECT_FALSE(CorreUnaTormenta(s));
    EXPECT_TRUE(apoyo::MismoTexto(Encabezado, anfitrion->pizarra));
    EXPECT_FALSE(disco.Esta("/trabajo/SalePizarra1_tem.txt"));
}

TEST_F(UnaTormenta, ConLaPizarraSinMarcarNoSeEscribeEnEllaPeroSiElArchivo)
{
    anfitrion->pizarra = "de antes";
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_EQ(anfitrion->pizarra, "");
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
    const std::string archivo = disco.Bytes("/trabajo/SalePizarra1_tem.txt");
    EXPECT_EQ(archivo.find("SIRO"), std::string::npos);
    EXPECT_EQ(archivo.find("Escorrent"), std::string::npos);
    EXPECT_NE(archivo.find("- Pp[mm] Q[m3/s] "), std::string::npos);
}

TEST_F(UnaTormenta, LaSegundaCorridaEmpiezaConTextoVacio)
{
    anfitrion->marcaPizarra = true;
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
    const std::string primera = anfitrion->pizarra;
    s.Resultados.VolEntra = s.Resultados.VolSale = 0;
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_TRUE(apoyo::MismoTexto(primera, anfitrion->pizarra));
    EXPECT_TRUE(apoyo::MismoTexto(anfitrion->pizarra, s.Control.TextoPizarra));
    EXPECT_EQ(primera.substr(0, Encabezado.size()), Encabezado);
    EXPECT_EQ(primera.substr(Encabezado.size(), 26), "\r\nEntrada: PRECIPITACION\r\n");
}

TEST_F(UnaTormenta, ElArchivoTieneElTextoEnWindows1252EntreComillas)
{
    anfitrion->marcaPizarra = true;
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_TRUE(apoyo::MismoTexto("\"" + model::AWindows1252(s.Control.TextoPizarra) + "\"\r\n",
                                  disco.Bytes("/trabajo/SalePizarra1_tem.txt")));
}

TEST_F(UnaTormenta, CargaRefrescaRotulosYHabilitaLaVerificacionConRepresas)
{
    CargaProyecto(s);
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 0);
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .numRepresa = 1, .chkFQ = {1}});
    GuardaProyecto();
    CargaProyecto(s);
    EXPECT_GT(anfitrion->verificacionHabilitada, 0);
    EXPECT_EQ(s.Red.FQActiva(1, 1), 1);
}

TEST_F(UnaTormenta, ElAvisoDeVariasSalidasNoInterrumpe)
{
    PonUEH("u-2", "");
    GuardaProyecto();
    EXPECT_TRUE(CorreUnaTormenta(s));
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_TRUE(s.Control.AvisoDescargasVisto);
}

}  // namespace
}  // namespace engine
