// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/frmPp.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

namespace results {
namespace {

using model::Mensaje;

struct Pizarra : testing::Test {
    Pizarra()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        disco.PonDirectorio("/salida");
    }
    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    frmPp f{};
};

TEST_F(Pizarra, LlevaLasLeyendasDadas)
{
    EXPECT_EQ(TituloFrmPp, "Pizarra de Variables y Salidas");
    EXPECT_EQ(forms::RotuloDe(RotulosFrmPp, "CmdImprimir").leyenda, "&Imprimir");
    EXPECT_EQ(forms::RotuloDe(RotulosFrmPp, "cmdCerrar").leyenda, "&Cerrar");
}

TEST_F(Pizarra, AbrirlaPoneLaSalidaYLaMarcaYCerrarlaLasQuita)
{
    Abre(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(s.Control.SalidaPizarra);
    EXPECT_TRUE(anfitrion->marcaPizarra);
    cmdCerrar(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(s.Control.SalidaPizarra);
    EXPECT_FALSE(anfitrion->marcaPizarra);
}

TEST_F(Pizarra, CerrarLaQueNoEstaAbiertaNoTocaLaMarca)
{
    // The tick may have been set for a run whose window opens later.
    anfitrion->marcaPizarra = s.Control.SalidaPizarra = true;
    Cierra(f, s);
    EXPECT_TRUE(anfitrion->marcaPizarra);
    EXPECT_TRUE(s.Control.SalidaPizarra);
}

TEST_F(Pizarra, ElTextoSobreviveAlCierre)
{
    Abre(f, s);
    PonTexto(f, "uno\r\ndos");
    Cierra(f, s);
    Abre(f, s);
    EXPECT_EQ(f.Text1, "uno\r\ndos");
}

TEST_F(Pizarra, CuentaCaracteresYNoBytesYElSaltoDeLineaSonDos)
{
    PonTexto(f, "año\r\n");
    EXPECT_EQ(f.caracteres, 5U);
    AgregaTexto(f, "Duración");
    EXPECT_EQ(f.caracteres, 13U);
    EXPECT_EQ(f.Text1, "año\r\nDuración");
    EXPECT_EQ(RotuloLargo(f), "13 caracteres");
    PonTexto(f, "");
    EXPECT_EQ(f.caracteres, 0U);
}

TEST_F(Pizarra, AmpliarAgregaLoQueFaltaYSoloReemplazarEmpiezaDeNuevo)
{
    PonTexto(f, "SIRO\r\n");
    const std::uint64_t reemplazos = f.reemplazos;
    AmpliaTexto(f, "SIRO\r\nUEH 1\r\n");
    EXPECT_EQ(f.Text1, "SIRO\r\nUEH 1\r\n");
    EXPECT_EQ(f.caracteres, 13U);
    AmpliaTexto(f, "SIRO\r\nUEH 1\r\n");
    EXPECT_EQ(f.Text1, "SIRO\r\nUEH 1\r\n");
    EXPECT_EQ(f.reemplazos, reemplazos);
    AmpliaTexto(f, "otro");
    EXPECT_EQ(f.Text1, "otro");
    EXPECT_EQ(f.caracteres, 4U);
    EXPECT_GT(f.reemplazos, reemplazos);
}

TEST_F(Pizarra, GuardaElTextoEnWindows1252DondeElUsuarioDice)
{
    PonTexto(f, "Duración \"d\"\r\n≤");
    anfitrion->elegidos = {"/salida/corrida.txt"};
    GuardaTexto(f, s);
    EXPECT_EQ(disco.Bytes("/salida/corrida.txt"), "Duraci\xF3n \"d\"\r\n?");
    EXPECT_EQ(anfitrion->propuestos, std::vector<std::string>{"Pizarra.txt"});
}

TEST_F(Pizarra, GuardarCanceladoNoEscribeNada)
{
    PonTexto(f, "texto");
    GuardaTexto(f, s);
    EXPECT_TRUE(disco.Archivos().empty());
}

TEST_F(Pizarra, GuardarDondeNoSePuedeLoDice)
{
    anfitrion->elegidos = {"/no está/corrida.txt"};
    GuardaTexto(f, s);
    EXPECT_EQ(anfitrion->Avisos(),
              std::vector<Mensaje>{{"Error Nro. 76No se encontró la ruta de acceso ,Verifique"}});
}

// --- search ---

struct BusquedaEnPizarra : Pizarra {
    BusquedaEnPizarra()
    {
        PonTexto(f, "Año 1\r\nQ del año y del AÑO\r\nfin");
        AbreBusqueda(f, "");
    }
};

TEST_F(BusquedaEnPizarra, HallaMientrasSeEscribeSinDistinguirMayusculasNiSusAcentos)
{
    txtBuscar_Change(f, "a");
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{0, 0, 1}));
    txtBuscar_Change(f, "añO");
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{0, 0, 3}));
    EXPECT_EQ(f.busqueda.aviso, "");
}

TEST_F(BusquedaEnPizarra, SiguienteRecorreYVuelveAEmpezarDiciendolo)
{
    txtBuscar_Change(f, "año");
    BuscaSiguiente(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{1, 6, 3}));
    BuscaSiguiente(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{1, 16, 3}));
    EXPECT_EQ(f.busqueda.aviso, "");
    BuscaSiguiente(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{0, 0, 3}));
    EXPECT_EQ(f.busqueda.aviso, "Se llegó al final; sigue desde el principio");
}

TEST_F(BusquedaEnPizarra, AnteriorVaHaciaAtrasYSigueDesdeElFinal)
{
    txtBuscar_Change(f, "año");
    BuscaAnterior(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{1, 16, 3}));
    EXPECT_EQ(f.busqueda.aviso, "Se llegó al principio; sigue desde el final");
    BuscaAnterior(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{1, 6, 3}));
    EXPECT_EQ(f.busqueda.aviso, "");
}

TEST_F(BusquedaEnPizarra, LoQueNoEstaSeDiceYNadaQuedaSeleccionado)
{
    txtBuscar_Change(f, "caudal");
    EXPECT_EQ(f.busqueda.hallado, Hallazgo{});
    EXPECT_EQ(f.busqueda.aviso, "No se encuentra");
    txtBuscar_Change(f, "");
    EXPECT_EQ(f.busqueda.aviso, "");
    BuscaSiguiente(f);
    BuscaAnterior(f);
    EXPECT_EQ(f.busqueda.hallado, Hallazgo{});
}

TEST_F(BusquedaEnPizarra, ElUnicoLugarSeVuelveAHallar)
{
    txtBuscar_Change(f, "fin");
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{2, 0, 3}));
    const std::uint64_t veces = f.busqueda.veces;
    BuscaSiguiente(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{2, 0, 3}));
    EXPECT_GT(f.busqueda.veces, veces);
}

TEST_F(BusquedaEnPizarra, UnTextoNuevoEmpiezaLaBusquedaDeNuevo)
{
    txtBuscar_Change(f, "fin");
    PonTexto(f, "fin y fin");
    EXPECT_EQ(f.busqueda.hallado, Hallazgo{});
    BuscaSiguiente(f);
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{0, 0, 3}));
}

TEST_F(BusquedaEnPizarra, LoSeleccionadoEnUnaLineaEsLoBuscado)
{
    AbreBusqueda(f, "del");
    EXPECT_EQ(f.busqueda.buscado, "del");
    AbreBusqueda(f, "uno\ndos");
    EXPECT_EQ(f.busqueda.buscado, "del");
    EXPECT_TRUE(f.busqueda.abierta);
    CierraBusqueda(f);
    EXPECT_FALSE(f.busqueda.abierta);
}

TEST_F(BusquedaEnPizarra, ElSignoPorNoEsUnaLetra)
{
    // Its code stands among those of the capital letters, that of the division sign among the small ones.
    PonTexto(f, "÷×");
    txtBuscar_Change(f, "×");
    EXPECT_EQ(f.busqueda.hallado, (Hallazgo{0, 1, 1}));
}

}  // namespace
}  // namespace results
