// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/EscribeLluvia.h"

#include <gtest/gtest.h>

#include <string>

#include "apoyo/DiscoPrueba.h"
#include "model/ArchivosTormenta.h"
#include "model/Disco.h"
#include "model/Siro.h"

namespace {

using frequency::CambioDeLluvia;
using frequency::Escritura;

const std::string Tablas = model::Ruta("/trabajo", "TablasPDRs_pdr.vlm");
const std::string Distribuciones = model::Ruta("/trabajo", "distriPp_dpt.vlm");
constexpr const char* BytesDeTablas =
    "2,0,1,0\r\n\"Regi\xF3n\"\r\n14,10,2\r\n21,20,2\r\n\"\"\r\n\"Vieja\"\r\n9,30,2\r\n\"\"\r\n";
constexpr const char* BytesDeDistribuciones =
    "2,0,0\r\n\"Pareja\"\r\n10,60\r\n50\r\n50\r\n\"\"\r\n5,1440\r\n\"\"\r\n5,1440\r\n";

class EscribeLluvia : public testing::Test {
  protected:
    EscribeLluvia()
    {
        disco.PonDirectorio("/proy");
        disco.Pon(Tablas, BytesDeTablas);
        disco.Pon(Distribuciones, BytesDeDistribuciones);
        disco.Pon(
            "/proy/Chica_pt.vlm",
            "\"Del "
            "4/3\"\r\n3,15\r\n\"04/03/2001\",\"10:00\"\r\n\"04/03/2001\",\"10:45\"\r\n5\r\n12.5\r\n2.5\r\n");
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = "/trabajo";
        s.Proyecto.DirProyecto = "/proy";
        tabla.filas = {{22, 60, 10, 22.4}, {31, 120, 10, 30.6}};
        tabla.notas = "De años";
        distribucion.porcentajes = {20, 50, 30};
        distribucion.durMin = 60;
        distribucion.durMax = 180;
        distribucion.notas = "Chicago";
    }

    apoyo::DiscoPrueba disco;
    model::Siro s{};
    frequency::PlanDeTabla tabla{};
    frequency::PlanDeDistribucion distribucion{};
};

TEST_F(EscribeLluvia, UnaTablaEntraYLasOtrasQuedan)
{
    const Escritura e = frequency::EscribeTabla(s, tabla, 2);
    EXPECT_EQ(e.error, "");
    EXPECT_EQ(disco.Bytes(Tablas),
              "2,0,2,0\r\n\"Regi\xF3n\"\r\n14,10,2\r\n21,20,2\r\n\"\"\r\n\"De "
              "a\xF1os\"\r\n22,60,10\r\n31,120,10\r\n\"\"\r\n");
    EXPECT_EQ(e.cambio, (CambioDeLluvia{Tablas, BytesDeTablas, disco.Bytes(Tablas), "Tabla P-D-R 2"}));
}

TEST_F(EscribeLluvia, UnaDistribucionEntraYLasOtrasQuedan)
{
    const Escritura e = frequency::EscribeDistribucion(s, distribucion, 3);
    EXPECT_EQ(e.error, "");
    EXPECT_EQ(disco.Bytes(Distribuciones),
              "2,0,3\r\n\"Pareja\"\r\n10,60\r\n50\r\n50\r\n\"\"\r\n5,1440\r\n\"Chicago\"\r\n60,"
              "180\r\n20\r\n50\r\n30\r\n");
    EXPECT_EQ(e.cambio.destino, "Distribución personal 3");
}

TEST_F(EscribeLluvia, LoQueSeReemplazaSeDiceAntes)
{
    const frequency::EnElArchivo vieja = frequency::HayEnTabla(s, 2);
    EXPECT_EQ(vieja.filas, 1);
    EXPECT_EQ(vieja.notas, "Vieja");
    EXPECT_EQ(frequency::HayEnTabla(s, 1).filas, 0);
    EXPECT_EQ(frequency::HayEnDistribucion(s, 1).filas, 2);
    EXPECT_EQ(frequency::HayEnDistribucion(s, 1).notas, "Pareja");
}

TEST_F(EscribeLluvia, DeshacerTraeLosBytes)
{
    const CambioDeLluvia uno = frequency::EscribeTabla(s, tabla, 2).cambio;
    const CambioDeLluvia otro = frequency::EscribeDistribucion(s, distribucion, 1).cambio;
    EXPECT_EQ(frequency::Deshace(s, uno), "");
    EXPECT_EQ(frequency::Deshace(s, otro), "");
    EXPECT_EQ(disco.Bytes(Tablas), BytesDeTablas);
    EXPECT_EQ(disco.Bytes(Distribuciones), BytesDeDistribuciones);
}

TEST_F(EscribeLluvia, LoQueOtroCambioNoSeDeshace)
{
    const CambioDeLluvia cambio = frequency::EscribeTabla(s, tabla, 2).cambio;
    disco.Pon(Tablas, BytesDeTablas + std::string("otro"));
    EXPECT_EQ(frequency::Deshace(s, cambio),
              Tablas + " ya no es como quedó: otro programa lo cambió, u otra ventana. No se deshace.");
    EXPECT_EQ(disco.Bytes(Tablas), BytesDeTablas + std::string("otro"));
}

TEST_F(EscribeLluvia, UnArchivoQueNoSeLeeNoSePierde)
{
    for (const std::string& bytes : {std::string("2,0,1,0\r\n\"Regi"), std::string()}) {
        disco.Pon(Tablas, bytes);
        disco.Pon(Distribuciones, bytes);
        EXPECT_EQ(frequency::EscribeTabla(s, tabla, 1).error,
                  std::string("No se puede leer ") + Tablas +
                      " hasta su fin: no se escribe, para no perder lo que tiene.");
        EXPECT_NE(frequency::EscribeDistribucion(s, distribucion, 1).error, "");
        EXPECT_NE(frequency::HayEnTabla(s, 1).error, "");
        EXPECT_EQ(disco.Bytes(Tablas), bytes);
    }
    disco.Quita(Tablas);
    EXPECT_NE(frequency::EscribeTabla(s, tabla, 1).error, "");
    EXPECT_FALSE(disco.Esta(Tablas));
}

TEST_F(EscribeLluvia, LoQueElDiscoNiegaSeDiceYNadaCambia)
{
    disco.Protege(Tablas);
    const std::string error = frequency::EscribeTabla(s, tabla, 2).error;
    EXPECT_TRUE(error.starts_with(std::string("No se pudo escribir ") + Tablas + ". Error Nro. 75")) << error;
    EXPECT_EQ(disco.Bytes(Tablas), BytesDeTablas);
    disco.Protege(Tablas, false);
    const CambioDeLluvia cambio = frequency::EscribeTabla(s, tabla, 2).cambio;
    disco.Protege(Tablas);
    EXPECT_TRUE(frequency::Deshace(s, cambio).starts_with("No se pudo deshacer "));
    EXPECT_EQ(disco.Bytes(Tablas), cambio.despues);
}

TEST_F(EscribeLluvia, UnaTormentaGrabadaSeLlevaAOtraLamina)
{
    const frequency::Grabada g = frequency::LeeGrabada(s, "Chica_pt.vlm");
    EXPECT_EQ(g.error, "");
    EXPECT_EQ(g.laminas, (std::vector<double>{5, 12.5, 2.5}));
    EXPECT_EQ(g.paso, 15);
    EXPECT_EQ(g.total, 20);
    const Escritura e = frequency::EscalaGrabada(s, "Chica_pt.vlm", "Grande_pt.vlm", 50);
    EXPECT_EQ(e.error, "");
    EXPECT_EQ(disco.Bytes("/proy/Grande_pt.vlm"),
              "\"Del 4/3. Escalada a 50 mm: las l\xE1minas de Chica_pt.vlm por "
              "2.5\"\r\n3,15\r\n\"04/03/2001\",\"10:00\"\r\n"
              "\"04/03/2001\",\"10:45\"\r\n12.5\r\n31.25\r\n6.25\r\n");
    EXPECT_EQ(frequency::LeeGrabada(s, "Grande_pt.vlm").total, 50);
    EXPECT_EQ(frequency::Deshace(s, e.cambio), "");
    EXPECT_FALSE(disco.Esta("/proy/Grande_pt.vlm"));
}

TEST_F(EscribeLluvia, LaTormentaEscaladaSumaLaLaminaHastaSusBits)
{
    EXPECT_EQ(frequency::EscalaGrabada(s, "Chica_pt.vlm", "Otra_pt.vlm", 87.3).error, "");
    EXPECT_NEAR(frequency::LeeGrabada(s, "Otra_pt.vlm").total, 87.3, 1e-5);
}

TEST_F(EscribeLluvia, LoQueNoSePuedeEscalarSeDice)
{
    const auto error = [&](const char* origen, const char* destino, double lamina) {
        return frequency::EscalaGrabada(s, origen, destino, lamina).error;
    };
    EXPECT_EQ(error("Chica_pt.vlm", "Ruvera 100592_pt.vlm", 50),
              "Ruvera 100592_pt.vlm es una de las tormentas entregadas, que no se reemplazan.");
    EXPECT_EQ(error("Chica_pt.vlm", "Otra.vlm", 50),
              "El archivo de una tormenta termina en _pt.vlm: Otra.vlm.");
    EXPECT_EQ(error("Chica_pt.vlm", "Otra_pt.vlm", 0), "La lámina debe ser mayor que 0.");
    EXPECT_EQ(error("Falta_pt.vlm", "Otra_pt.vlm", 50),
              "La tormenta Falta_pt.vlm no se puede leer, o no tiene intervalos.");
    disco.Pon("/proy/Seca_pt.vlm", "\"\"\r\n1,15\r\n\"\",\"\"\r\n\"\",\"\"\r\n0\r\n");
    EXPECT_EQ(error("Seca_pt.vlm", "Otra_pt.vlm", 50), "La tormenta Seca_pt.vlm no tiene lluvia.");
    disco.Protege("/proy");
    EXPECT_EQ(error("Chica_pt.vlm", "Otra_pt.vlm", 50).substr(0, 32), "No se pudo escribir Otra_pt.vlm:");
}

}  // namespace
