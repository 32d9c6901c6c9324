// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Abierto.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Candado.h"
#include "model/Siro.h"
#include "study/ArchivoEstudio.h"
#include "study/Series.h"

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

// --- the values of observations, in files of their own ---

/// Paths as the disk lists them, by "/" on every system.
std::vector<std::string> Listados(std::initializer_list<std::string> nombres)
{
    std::vector<std::string> rutas;
    for (const std::string& nombre : nombres)
        rutas.push_back(Carpeta + "/" + nombre);
    return rutas;
}

const std::string Serie1 = model::Ruta(Carpeta, "A_serie_1.csv");
const std::string Serie2 = model::Ruta(Carpeta, "A_serie_2.csv");
const std::vector<Punto> Crecida{{0, 0.5}, {10, 0.1 + 0.2}, {20, 7.5}};
const std::vector<Punto> Otra{{-5, 1}, {5, 2}};

Observacion En(const std::string& componente, std::vector<Punto> puntos)
{
    return {.componente = componente, .puntos = std::move(puntos)};
}

Ajuste De(std::vector<Observacion> observaciones)
{
    Ajuste a;
    a.eventos = {{.nombre = "Marzo", .observaciones = std::move(observaciones)}};
    return a;
}

class DeUnaObservacion : public DeUnProyecto {
  protected:
    [[nodiscard]] const std::vector<Observacion>& Observaciones() const
    {
        return abierto.EnMano().ajuste.eventos.at(0).observaciones;
    }
    /// What the program reads that is started next.
    void Reabre()
    {
        Abre("");
        Abre("A");
    }
};

TEST_F(DeUnaObservacion, SusValoresVanAUnArchivoPropioYVuelven)
{
    Abre("A");
    EXPECT_TRUE(abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida), En("c-2", Otra), En("c-3", {})})));
    EXPECT_EQ(disco.Archivos(), Listados({"A_Estudio.json", "A_serie_1.csv", "A_serie_2.csv"}));
    EXPECT_EQ(disco.Bytes(Serie1),
              "minutos [min];caudal [m3/s];3 valores\n0;0.5\n10;0.30000000000000004\n20;7.5\n");
    EXPECT_EQ(disco.Bytes(RutaA).find("7.5"), std::string::npos);
    const Estudio antes = abierto.EnMano();
    Reabre();
    EXPECT_EQ(abierto.EnMano(), antes);
    EXPECT_EQ(Observaciones()[1].puntos, Otra);
    EXPECT_EQ(Observaciones()[1].archivo, "2");
    EXPECT_EQ(Observaciones()[2].archivo, "");
    EXPECT_TRUE(abierto.SeriesDanadas().empty());
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnaObservacion, SoloSeEscribeLaSerieQueCambia)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida), En("c-2", Otra)}));
    Ajuste nuevo = abierto.EnMano().ajuste;
    nuevo.eventos[0].observaciones[1].puntos.push_back({15, 3});
    disco.Pon(Serie1, "de otro programa");
    EXPECT_TRUE(abierto.CambiaAjuste("Escribir", nuevo));
    EXPECT_EQ(Cajas(), 0U);  // that one isn't touched, so that nobody is asked
    EXPECT_EQ(disco.Bytes(Serie1), "de otro programa");
    EXPECT_EQ(LeeSerie(disco.Bytes(Serie2), "caudal").puntos, nuevo.eventos[0].observaciones[1].puntos);
}

TEST_F(DeUnaObservacion, LaQueSeQuitaSeVaConSuArchivoYVuelveAlDeshacer)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida), En("c-2", Otra)}));
    const std::string bytes = disco.Bytes(Serie1);
    Ajuste nuevo = abierto.EnMano().ajuste;
    nuevo.eventos[0].observaciones.erase(nuevo.eventos[0].observaciones.begin());
    EXPECT_TRUE(abierto.CambiaAjuste("Quitar", nuevo));
    EXPECT_EQ(disco.Archivos(), Listados({"A_Estudio.json", "A_serie_2.csv"}));
    EXPECT_TRUE(abierto.Deshace());
    EXPECT_EQ(disco.Bytes(Serie1), bytes);
    EXPECT_TRUE(abierto.Rehace());
    EXPECT_FALSE(disco.Esta(Serie1));
    EXPECT_TRUE(abierto.Deshace() && abierto.Deshace());
    EXPECT_EQ(disco.Archivos(), Listados({"A_Estudio.json"}));
    EXPECT_TRUE(abierto.Rehace());
    Reabre();
    EXPECT_EQ(Observaciones()[0].puntos, Crecida);
    EXPECT_EQ(Observaciones()[1].puntos, Otra);
}

TEST_F(DeUnaObservacion, LaCopiaDeUnaTieneSuPropioArchivo)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)}));
    Ajuste nuevo = abierto.EnMano().ajuste;
    nuevo.eventos.push_back(nuevo.eventos[0]);
    disco.Pon(Serie2, "de otro");  // nobody's: it is left alone
    EXPECT_TRUE(abierto.CambiaAjuste("Duplicar", nuevo));
    EXPECT_EQ(abierto.EnMano().ajuste.eventos[1].observaciones[0].archivo, "3");
    EXPECT_EQ(disco.Bytes(Serie2), "de otro");
    EXPECT_EQ(disco.Bytes(model::Ruta(Carpeta, "A_serie_3.csv")), disco.Bytes(Serie1));
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnaObservacion, LaDanadaLaQueFaltaYLaAjenaSeDicenYElRestoSeAbre)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida), En("c-2", Otra), En("c-3", Crecida)}));
    const std::string sana = disco.Bytes(Serie1), cortada = sana.substr(0, sana.size() - 2);
    disco.Pon(Serie1, cortada);
    disco.Quita(Serie2);
    Reabre();
    EXPECT_EQ(Observaciones()[0].puntos, std::vector<Punto>{});
    EXPECT_EQ(Observaciones()[2].puntos, Crecida);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto,
              "La serie A_serie_1.csv, de u-1 en el evento \"Marzo\", no se puede leer: renglón 4: hay 3 "
              "valores enteros y el encabezado dice 3: está cortada. La serie A_serie_2.csv, de c-2 en el "
              "evento \"Marzo\", no se puede leer: No se encontró el archivo. Esos archivos se dejan como "
              "están, y las observaciones quedan sin valores hasta que los vuelva a dar.");
    abierto.Sigue();
    EXPECT_EQ(Cajas(), 1U);  // told once

    // Another change leaves the damaged file and its name; new values go elsewhere.
    Ajuste nuevo = abierto.EnMano().ajuste;
    nuevo.eventos[0].observaciones[0].notas = "Revisar";
    EXPECT_TRUE(abierto.CambiaAjuste("Notas", nuevo));
    EXPECT_EQ(Observaciones()[0].archivo, "1");
    nuevo.eventos[0].observaciones[0].puntos = Otra;
    EXPECT_TRUE(abierto.CambiaAjuste("Pegar", nuevo));
    EXPECT_EQ(disco.Bytes(Serie1), cortada);
    EXPECT_EQ(Observaciones()[0].archivo, "4");
    nuevo.eventos[0].observaciones.clear();
    EXPECT_TRUE(abierto.CambiaAjuste("Quitar", nuevo));
    EXPECT_EQ(disco.Archivos(), Listados({"A_Estudio.json", "A_serie_1.csv"}));
    EXPECT_EQ(disco.Bytes(Serie1), cortada);
}

TEST_F(DeUnaObservacion, UnNombreQueSaldriaDeLaCarpetaNoSeLee)
{
    Estudio e;
    e.ajuste = De({En("u-1", {})});
    e.ajuste.eventos[0].observaciones[0].archivo = "../B";
    disco.Pon(RutaA, EscribeEstudio(e));
    disco.OlvidaLlamadas();
    Abre("A");
    ASSERT_EQ(abierto.SeriesDanadas().size(), 1U);
    EXPECT_EQ(abierto.SeriesDanadas()[0].texto,
              "La serie B, de u-1 en el evento \"Marzo\", no se puede leer: no es el nombre de una serie.");
    for (const auto& llamada : disco.Llamadas())
        EXPECT_EQ(llamada.ruta.find("serie"), std::string::npos) << llamada.ruta;
}

TEST_F(DeUnaObservacion, EstudioYSeriesSeEscribenTodosONinguno)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)}));
    const std::string estudio = disco.Bytes(RutaA), serie = disco.Bytes(Serie1);
    const auto queda = [&] {
        EXPECT_EQ(disco.Bytes(RutaA), estudio);
        EXPECT_EQ(disco.Bytes(Serie1), serie);
        EXPECT_EQ(disco.Archivos().size(), 2U);
        EXPECT_EQ(abierto.Archivo().clase, Clase::SinGuardar);
    };
    const Ajuste nuevo = De({En("u-1", Otra), En("c-2", Crecida)});
    disco.Protege(Carpeta);  // a folder that can't be written
    EXPECT_TRUE(abierto.CambiaAjuste("Otra", nuevo));
    queda();
    disco.Protege(Carpeta, false);
    disco.LimitaEspacio(estudio.size() + serie.size() + 60);  // a full disk
    EXPECT_FALSE(abierto.Reintenta());
    queda();
    disco.LimitaEspacio(std::string::npos);
    EXPECT_TRUE(abierto.Reintenta());
    Reabre();
    EXPECT_EQ(Observaciones()[0].puntos, Otra);
    EXPECT_EQ(Observaciones()[1].puntos, Crecida);
}

TEST_F(DeUnaObservacion, LaEnesimaLlamadaQueFallaNoPierdeNada)
{
    for (int n = 1; n < 40; ++n) {
        for (const std::string& archivo : disco.Archivos())
            disco.Quita(archivo);
        Abre("");
        Abre("A");
        abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida), En("c-2", Otra)}));
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        EXPECT_TRUE(abierto.CambiaAjuste("Quitar", De({En("u-1", Otra)})));
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        const bool escrito = abierto.Archivo().clase == Clase::Guardado;
        const std::string nombre = Observaciones()[0].archivo;
        EXPECT_TRUE(abierto.Reintenta()) << n;
        EXPECT_TRUE(abierto.Deshace() && abierto.Rehace()) << n;
        Reabre();
        EXPECT_EQ(Observaciones()[0].puntos, Otra) << n << escrito;
        EXPECT_EQ(Observaciones()[0].archivo, nombre) << n;
        EXPECT_EQ(disco.Archivos().size(), 2U) << n;
        if (!hubo) return;
    }
    ADD_FAILURE() << "more calls than a change can take";
}

TEST_F(DeUnaObservacion, SobreLaSerieDeOtroProgramaSePreguntaTambienParaBorrarla)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)}));
    disco.Pon(Serie1, "de otro programa");
    anfitrion->respuestas = {false};
    EXPECT_TRUE(abierto.CambiaAjuste("Quitar", De({})));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(disco.Bytes(Serie1), "de otro programa");
}

TEST_F(DeUnaObservacion, GuardarComoSigueEnLasSeriesDelNombreNuevo)
{
    Abre("A");
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)}));
    const std::string suya = model::Ruta(Carpeta, "B_serie_1.csv");
    disco.Pon(RutaB, disco.Bytes(RutaA));  // as the project's files are copied
    disco.Pon(suya, disco.Bytes(Serie1));
    s.Proyecto.NombreProyecto = "B";
    model::ReclamaProyecto(s);
    abierto.TrasGuardarComo();
    EXPECT_TRUE(abierto.CambiaAjuste("Otra", De({En("u-1", Otra)})));
    EXPECT_EQ(LeeSerie(disco.Bytes(suya), "caudal").puntos, Otra);
    EXPECT_EQ(LeeSerie(disco.Bytes(Serie1), "caudal").puntos, Crecida);
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnaObservacion, LasHechasSinProyectoVanConElPrimeroSinPisarLoQueHaya)
{
    disco.Pon(Serie1, "de nadie");
    EXPECT_TRUE(abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)})));
    Abre("A");
    EXPECT_EQ(disco.Bytes(Serie1), "de nadie");
    EXPECT_EQ(LeeSerie(disco.Bytes(Serie2), "caudal").puntos, Crecida);
    EXPECT_EQ(Cajas(), 0U);
}

TEST_F(DeUnaObservacion, LoQueSeGuardaEnOtroLugarLlevaSusSeries)
{
    disco.Pon(RutaA, Texto("De A"));
    abierto.CambiaAjuste("Pegar", De({En("u-1", Crecida)}));
    anfitrion->elegidos = {"/proy/aparte.json"};
    Abre("A");
    EXPECT_EQ(LeeSerie(disco.Bytes("/proy/aparte_serie_1.csv"), "caudal").puntos, Crecida);
}

TEST_F(DeUnaObservacion, LosPasosMasViejosSeOlvidanCuandoGuardanDemasiadosValores)
{
    Abre("");
    std::vector<Punto> muchos;
    for (int i = 0; i < 900'000; ++i)
        muchos.push_back({i * 1.0, 1});
    int pasos = 0;
    for (int i = 0; i < 6; ++i) {
        muchos.front().valor = i;
        EXPECT_TRUE(abierto.CambiaAjuste("Paso", De({En("u-1", muchos)})));
    }
    while (abierto.Deshace())
        ++pasos;
    EXPECT_EQ(pasos, 4);  // of 4 million values at most
}

}  // namespace
}  // namespace study
