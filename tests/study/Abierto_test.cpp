// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Abierto.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Candado.h"
#include "model/Siro.h"
#include "study/ArchivoEstudio.h"

namespace study {
namespace {

using Clase = EstadoDeArchivo::Clase;
using model::NumeroFalla;

const std::string Carpeta = "/proy";
const std::string RutaA = model::Ruta(Carpeta, "A_Estudio.json");
const std::string RutaB = model::Ruta(Carpeta, "B_Estudio.json");

Taller Con(const std::string& estacion)
{
    Taller t;
    t.estaciones = {{.nombre = estacion}};
    return t;
}

std::string Texto(const std::string& estacion)
{
    return EscribeEstudio({.taller = Con(estacion)});
}

class DeUnProyecto : public testing::Test {
  protected:
    DeUnProyecto()
    {
        disco.PonDirectorio(Carpeta);
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Vigilancia.activa = true;
        abierto.AlCambiar([this] { ++cambios; });
    }
    void Abre(const std::string& proyecto)
    {
        s.Proyecto.NombreProyecto = proyecto;
        s.Proyecto.DirProyecto = Carpeta;
        s.Proyecto.ProyectoNuevo = false;
        model::ReclamaProyecto(s);
        abierto.Sigue();
    }
    [[nodiscard]] std::string Estacion() const
    {
        const auto& estaciones = abierto.EnMano().taller.estaciones;
        return estaciones.empty() ? std::string("-") : estaciones.front().nombre;
    }
    [[nodiscard]] std::size_t Cajas() const { return anfitrion->sucesos.size(); }

    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    Abierto abierto{s};
    int cambios = 0;
};

TEST_F(DeUnProyecto, SinArchivoEstaVacioYNadaSeEscribe)
{
    Abre("A");
    EXPECT_EQ(abierto.EnMano(), Estudio{});
    EXPECT_EQ(abierto.Archivo(), (EstadoDeArchivo{Clase::Guardado, ""}));
    EXPECT_TRUE(disco.Archivos().empty());
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnProyecto, CadaCambioSeEscribeEnteroYSeDeshace)
{
    Abre("A");
    cambios = 0;
    EXPECT_TRUE(abierto.CambiaTaller("Agregar estación", Con("Uno")));
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_FALSE(abierto.CambiaTaller("Nada", Con("Uno")));
    EXPECT_TRUE(abierto.CambiaTaller("Cambiar el nombre", Con("Dos")));
    EXPECT_EQ(abierto.PorDeshacer(), "Cambiar el nombre");
    EXPECT_TRUE(abierto.Deshace());
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_EQ(abierto.PorDeshacer(), "Agregar estación");
    EXPECT_EQ(abierto.PorRehacer(), "Cambiar el nombre");
    EXPECT_TRUE(abierto.Rehace());
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Dos"));
    EXPECT_FALSE(abierto.Rehace());
    EXPECT_TRUE(abierto.Deshace() && abierto.Deshace());
    EXPECT_FALSE(abierto.Deshace());
    EXPECT_EQ(abierto.EnMano(), Estudio{});
    EXPECT_EQ(disco.Bytes(RutaA), EscribeEstudio({}));
    EXPECT_EQ(cambios, 6);
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnProyecto, UnCambioTrasDeshacerOlvidaLoDeshecho)
{
    Abre("A");
    abierto.CambiaTaller("Uno", Con("Uno"));
    abierto.Deshace();
    abierto.CambiaTaller("Dos", Con("Dos"));
    EXPECT_EQ(abierto.PorRehacer(), "");
    EXPECT_EQ(abierto.PorDeshacer(), "Dos");
}

TEST_F(DeUnProyecto, LoQueNoVolveriaDelArchivoNoSeToma)
{
    Abre("A");
    Taller malo = Con("Uno");
    malo.estaciones[0].latitud = 91;
    EXPECT_FALSE(abierto.CambiaTaller("Lugar", malo));
    EXPECT_EQ(abierto.EnMano(), Estudio{});
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "El cambio no se hizo: \"latitud\" no está entre -90 y 90.");
}

TEST_F(DeUnProyecto, OtroProyectoTraeSuEstudioYSusPasos)
{
    disco.Pon(RutaB, Texto("De B"));
    Abre("A");
    abierto.CambiaTaller("Uno", Con("De A"));
    Abre("B");
    EXPECT_EQ(Estacion(), "De B");
    EXPECT_EQ(abierto.PorDeshacer(), "");
    Abre("A");
    EXPECT_EQ(Estacion(), "De A");
    EXPECT_EQ(disco.Bytes(RutaB), Texto("De B"));
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnProyecto, UnArchivoDanadoSeDiceUnaVezYQuedaComoEsta)
{
    const std::string danado = "{\n  \"version\": 1,\n  \"taller\": 7\n}\n";
    disco.Pon(RutaA, danado);
    Abre("A");
    abierto.Sigue();
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto,
              "El estudio A_Estudio.json no se puede leer. Renglón 3: hace falta un objeto, entre llaves. El "
              "archivo se deja como está, y los cambios que haga quedan en la memoria hasta que lo aparte.");
    EXPECT_TRUE(abierto.CambiaTaller("Uno", Con("Uno")));
    EXPECT_EQ(disco.Bytes(RutaA), danado);
    EXPECT_EQ(abierto.Archivo().clase, Clase::Danado);
    EXPECT_TRUE(abierto.ApartaDanado());
    EXPECT_EQ(disco.Bytes(RutaA + ".anterior"), danado);
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_EQ(abierto.Archivo(), (EstadoDeArchivo{Clase::Guardado, ""}));
    EXPECT_EQ(Cajas(), 1U);
}

TEST_F(DeUnProyecto, LoDanadoDelUltimoProyectoSeDiceRecienAlAbrirlo)
{
    disco.Pon(RutaA, "no");
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = Carpeta;
    abierto.Sigue();
    EXPECT_EQ(abierto.Archivo().clase, Clase::Danado);
    EXPECT_EQ(Cajas(), 0U);
    EXPECT_FALSE(abierto.HaDeSeguir());
    model::ReclamaProyecto(s);
    EXPECT_TRUE(abierto.HaDeSeguir());
    abierto.Sigue();
    EXPECT_EQ(Cajas(), 1U);
}

TEST_F(DeUnProyecto, LoQueElDiscoNoTomaQuedaEnLaMemoriaYSeIntentaOtraVez)
{
    Abre("A");
    disco.Protege(Carpeta);
    EXPECT_TRUE(abierto.CambiaTaller("Uno", Con("Uno")));
    EXPECT_EQ(abierto.Archivo().clase, Clase::SinGuardar);
    EXPECT_EQ(abierto.Archivo().texto.find("A_Estudio.json no se pudo guardar: Error de acceso a la ruta"),
              0U);
    abierto.Sigue();
    abierto.CambiaTaller("Dos", Con("Dos"));
    abierto.Sigue();
    EXPECT_EQ(Cajas(), 1U);  // told once
    disco.Protege(Carpeta, false);
    EXPECT_FALSE(abierto.HaDeSeguir());
    anfitrion->reloj += 6;
    EXPECT_TRUE(abierto.HaDeSeguir());
    cambios = 0;
    abierto.Sigue();
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(abierto.Archivo(), (EstadoDeArchivo{Clase::Guardado, ""}));
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Dos"));
    EXPECT_TRUE(abierto.Deshace());
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
}

TEST_F(DeUnProyecto, LaEnesimaLlamadaQueFallaNoPierdeElCambioNiElArchivo)
{
    for (int n = 1; n < 20; ++n) {
        disco.Pon(RutaA, Texto("Antes"));
        Abre("");
        Abre("A");
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        EXPECT_TRUE(abierto.CambiaTaller("Uno", Con("Uno")));
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        EXPECT_EQ(Estacion(), "Uno");
        const bool escrito = abierto.Archivo().clase == Clase::Guardado;
        EXPECT_EQ(disco.Bytes(RutaA), Texto(escrito ? "Uno" : "Antes")) << n;
        EXPECT_TRUE(abierto.Reintenta()) << n;
        EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno")) << n;
        if (!hubo) return;
    }
    ADD_FAILURE() << "more calls than a change can take";
}

TEST_F(DeUnProyecto, SobreLoDeOtroProgramaSePreguntaUnaVez)
{
    Abre("A");
    abierto.CambiaTaller("Uno", Con("Uno"));
    disco.Pon(RutaA, Texto("Ajeno"));
    anfitrion->respuestas = {false};
    EXPECT_TRUE(abierto.CambiaTaller("Dos", Con("Dos")));
    EXPECT_TRUE(abierto.CambiaTaller("Tres", Con("Tres")));
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Ajeno"));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(abierto.Archivo().clase, Clase::SinGuardar);
    EXPECT_TRUE(abierto.Reintenta());
    EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Tres"));
}

TEST_F(DeUnProyecto, LoHechoSinProyectoVaConElPrimeroQueNoTieneEstudio)
{
    EXPECT_TRUE(abierto.CambiaTaller("Uno", Con("Uno")));
    EXPECT_EQ(abierto.Archivo().clase, Clase::SinProyecto);
    EXPECT_NE(abierto.Archivo().texto, "");
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = Carpeta;
    s.Proyecto.ProyectoNuevo = true;  // named, and not stored yet
    abierto.Sigue();
    EXPECT_TRUE(disco.Archivos().empty());
    Abre("A");
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_EQ(abierto.PorDeshacer(), "Uno");
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnProyecto, LoHechoSinProyectoSeOfreceGuardarAparteSiElProyectoYaTieneEstudio)
{
    disco.Pon(RutaA, Texto("De A"));
    abierto.CambiaTaller("Uno", Con("Uno"));
    anfitrion->elegidos = {"/proy/aparte.json"};
    Abre("A");
    EXPECT_EQ(disco.Bytes("/proy/aparte.json"), Texto("Uno"));
    EXPECT_EQ(Estacion(), "De A");
    EXPECT_EQ(disco.Bytes(RutaA), Texto("De A"));
}

TEST_F(DeUnProyecto, LoNoGuardadoSeIntentaYSeOfreceAlPasarAOtroProyectoYAlCerrar)
{
    Abre("A");
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    abierto.CambiaTaller("Uno", Con("Uno"));
    disco.DejaDeFallar();
    Abre("B");
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_EQ(Cajas(), 0U);
    EXPECT_EQ(abierto.EnMano(), Estudio{});

    disco.PonDirectorio("/otra");
    disco.Protege(Carpeta);
    abierto.CambiaTaller("Dos", Con("Dos"));
    anfitrion->elegidos = {"/proy/x.json", "/otra/B.json"};  // the first is refused as well
    abierto.Cierra();
    EXPECT_EQ(disco.Bytes("/otra/B.json"), Texto("Dos"));
}

TEST_F(DeUnProyecto, GuardarComoConservaValorYPasos)
{
    Abre("A");
    abierto.CambiaTaller("Uno", Con("Uno"));
    disco.Pon(RutaB, disco.Bytes(RutaA));  // as the project's files are copied
    s.Proyecto.NombreProyecto = "B";
    model::ReclamaProyecto(s);
    abierto.TrasGuardarComo();
    EXPECT_EQ(abierto.PorDeshacer(), "Uno");
    abierto.CambiaTaller("Dos", Con("Dos"));
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
    EXPECT_EQ(disco.Bytes(RutaB), Texto("Dos"));
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnProyecto, GuardarComoEscribeLoQueElDiscoNoTomabaConElNombreViejo)
{
    Abre("A");
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    abierto.CambiaTaller("Uno", Con("Uno"));
    disco.DejaDeFallar();
    s.Proyecto.NombreProyecto = "B";
    model::ReclamaProyecto(s);
    abierto.TrasGuardarComo();
    EXPECT_EQ(disco.Bytes(RutaB), Texto("Uno"));
}

TEST_F(DeUnProyecto, UnNombreRechazadoAlGuardarComoEsElDeOtroProyecto)
{
    disco.Pon(RutaB, Texto("De B"));
    Abre("A");
    abierto.CambiaTaller("Uno", Con("Uno"));
    s.Proyecto.NombreProyecto = "B";  // it stays the current one
    abierto.TrasGuardarComo();
    EXPECT_EQ(Estacion(), "De B");
    EXPECT_EQ(disco.Bytes(RutaB), Texto("De B"));
    EXPECT_EQ(disco.Bytes(RutaA), Texto("Uno"));
}

TEST_F(DeUnProyecto, ElEstudioBorradoConSuProyectoQuedaVacioYOtroNo)
{
    Abre("A");
    abierto.CambiaTaller("Uno", Con("Uno"));
    abierto.TrasEliminar();
    EXPECT_EQ(Estacion(), "Uno");
    disco.Quita(RutaA);
    abierto.TrasEliminar();
    EXPECT_EQ(abierto.EnMano(), Estudio{});
    EXPECT_EQ(abierto.PorDeshacer(), "");
    EXPECT_FALSE(disco.Esta(RutaA));
}

}  // namespace
}  // namespace study
