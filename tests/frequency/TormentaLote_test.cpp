// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/TormentaLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "model/Disco.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Corre(const std::vector<std::string>& palabras)
{
    std::vector<const char*> argv;
    for (const std::string& palabra : palabras)
        argv.push_back(palabra.c_str());
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(), salidas);
    return r;
}

Respuesta Lote(std::vector<std::string> palabras)
{
    palabras.insert(palabras.begin(), {"siro-lote", "tormenta"});
    return Corre(palabras);
}

const std::vector<std::string> Entregada{"--coeficientes", "k=822,a=0.2,b=10,c=0.8"};

std::vector<std::string> Con(std::vector<std::string> unas, const std::vector<std::string>& otras)
{
    unas.insert(unas.end(), otras.begin(), otras.end());
    return unas;
}

/// The delivered tables in a folder of their own.
class TormentaLote : public ::testing::Test {
  protected:
    void SetUp() override
    {
        for (const char* nombre : {"TablasPDRs_pdr.vlm", "distriPp_dpt.vlm"})
            disco.Escribe(Ruta(nombre), apoyo::BytesDeArchivo(std::string(SIRO_DOCS) + "/../data/" + nombre));
    }
    [[nodiscard]] std::string Ruta(const std::string& nombre) const { return carpeta.Ruta(nombre); }
    [[nodiscard]] std::vector<std::string> Renglones(const std::string& nombre) const
    {
        std::istringstream texto(disco.Lee(Ruta(nombre)));
        std::vector<std::string> renglones;
        for (std::string r; std::getline(texto, r);)
            renglones.push_back(r);
        return renglones;
    }

    apoyo::CarpetaTemporal carpeta{};
    model::Disco disco = model::DiscoDelSistema();
};

TEST_F(TormentaLote, DaTextoJsonYCsvDeLoMismo)
{
    const Respuesta texto = Lote(Entregada);
    EXPECT_EQ(texto.estado, batch::EstadoCompleto) << texto.errores;
    EXPECT_EQ(texto.errores, "");
    // 822·50^0.2/130^0.8·2 mm in two hours.
    for (const char* parte : {"Bloques alternos; 73.205 mm en 120 min, pasos de 10 min; recurrencia 50 años",
                              "Chow, Maidment y Mays (1988)", "\n          60       27.27       45.99"})
        EXPECT_NE(texto.estandar.find(parte), std::string::npos) << parte << texto.estandar;
    const Respuesta csv = Lote(Con(Entregada, {"--csv"}));
    EXPECT_TRUE(csv.estandar.starts_with("minutos,lamina,acumulada,intensidad,porcentaje,corrida\n10,1.8"));
    EXPECT_EQ(std::count(csv.estandar.begin(), csv.estandar.end(), '\n'), 13);
    const Respuesta json = Lote(Con(Entregada, {"--json"}));
    EXPECT_TRUE(json.estandar.starts_with("{\"patron\":\"bloques\",")) << json.estandar;
    const std::size_t desde = csv.estandar.find("\n60,") + 4;
    const std::string lamina = csv.estandar.substr(desde, csv.estandar.find(',', desde) - desde);
    EXPECT_NE(json.estandar.find("{\"minutos\":60,\"lamina\":" + lamina + ","), std::string::npos);
}

TEST_F(TormentaLote, ConUnaLaminaNoHacenFaltaCurvas)
{
    const Respuesta r =
        Lote({"--pp", "25", "--patron", "propia", "--periodos", "3,1,0,4", "--dur", "40", "--csv"});
    EXPECT_EQ(r.estandar,
              "minutos,lamina,acumulada,intensidad,porcentaje,corrida\n10,9.375,9.375,56.25,38,9.5\n"
              "20,3.125,12.5,18.75,12,3\n30,0,12.5,0,0,0\n40,12.5,25,75,50,12.5\n");
    const Respuesta chicago = Lote({"--pp", "16", "--patron", "chicago"});
    EXPECT_EQ(chicago.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(chicago.errores, "siro-lote: Este patrón se hace de curvas de intensidad y no las hay.\n");
}

TEST_F(TormentaLote, UnaTormentaRegistradaSeHacePatron)
{
    disco.Escribe(Ruta("Chica_pt.vlm"),
                  "\"\"\r\n2,15\r\n\"04/03/2001\",\"10:00\"\r\n\"04/03/2001\",\"10:30\"\r\n5\r\n15\r\n");
    const Respuesta r = Lote({"--pp", "40", "--patron", "registrada", "--registrada", Ruta("Chica_pt.vlm"),
                              "--dur", "60", "--paso", "30", "--csv"});
    EXPECT_EQ(r.estandar,
              "minutos,lamina,acumulada,intensidad,porcentaje,corrida\n30,10,10,20,25,10\n60,30,40,60,75,"
              "30\n");
    EXPECT_EQ(Lote({"--pp", "40", "--patron", "registrada", "--registrada", Ruta("Falta_pt.vlm")}).errores,
              "siro-lote: La tormenta Falta_pt.vlm no se puede leer, o no tiene intervalos.\n");
    EXPECT_EQ(Lote({"--pp", "40", "--patron", "registrada"}).errores,
              "siro-lote: Falta elegir la tormenta registrada.\n");
}

// The delivered table of 140 storms comes from this very relation.
TEST_F(TormentaLote, DeLaRelacionEntregadaSaleLaTablaEntregada)
{
    const auto orden = Con(Entregada, {"--trabajo", carpeta.Camino().string(), "--escribe-tabla", "3",
                                       "--duraciones", "10,20,30,60,90,120,180,240,300,360,540,720,1080,1440",
                                       "--recurrencias", "2,5,10,20,25,40,50,100,200,1000"});
    const Respuesta r = Lote(orden);
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
    const auto renglones = Renglones("TablasPDRs_pdr.vlm");
    ASSERT_EQ(renglones.front(), "140,12,0,140\r");
    ASSERT_EQ(renglones.size(), 1U + 1 + 140 + 1 + 12 + 1 + 1 + 140);
    for (std::size_t i = 0; i < 140; ++i)
        EXPECT_EQ(renglones[2 + i], renglones[renglones.size() - 140 + i]) << i;
}

TEST_F(TormentaLote, LoQueHayNoSeReemplazaSinDecirlo)
{
    const std::string antes = disco.Lee(Ruta("distriPp_dpt.vlm"));
    auto orden = Con(Entregada, {"--trabajo", carpeta.Camino().string(), "--escribe-distribucion", "1"});
    const Respuesta no = Lote(orden);
    EXPECT_EQ(no.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(no.estandar, "");
    EXPECT_EQ(
        no.errores,
        "siro-lote: la distribución personal 1 ya tiene 10 filas (Chaparrón convectivo: lo más intenso en la "
        "primera mitad); con --reemplaza se escribe encima\n");
    EXPECT_EQ(disco.Lee(Ruta("distriPp_dpt.vlm")), antes);
    orden.push_back("--reemplaza");
    EXPECT_EQ(Lote(orden).estado, batch::EstadoCompleto);
    EXPECT_EQ(Renglones("distriPp_dpt.vlm").front(), "12,12,12\r");
}

/// Depths of the blocks [mm] that a run's Slate tells.
std::vector<double> BloquesDeLaPizarra(const std::string& pizarra)
{
    std::istringstream texto(pizarra.substr(pizarra.find("Per.k t[min] Pp[mm]")));
    std::string renglon;
    std::getline(texto, renglon);
    std::vector<double> bloques;
    while (std::getline(texto, renglon)) {
        std::istringstream columnas(renglon);
        double k = 0, minutos = 0, lamina = 0;
        if (!(columnas >> k >> minutos >> lamina)) break;
        bloques.push_back(lamina);
    }
    return bloques;
}

TEST_F(TormentaLote, LoEscritoEsLoQueUnaCorridaLlueve)
{
    for (const char* nombre : {"Conf", "UEHs", "VerCau", "RHAS", "RHQ", "LHASQ"}) {
        const std::string archivo = std::string("Quelmar_") + nombre + ".vlm";
        disco.Escribe(Ruta(archivo),
                      apoyo::BytesDeArchivo(std::string(SIRO_DATA_DIR) + "/Proyectos/" + archivo));
    }
    const std::string dir = carpeta.Camino().string();
    const Respuesta escrita = Lote(Con(Entregada, {"--patron", "chicago", "--trabajo", dir,
                                                   "--escribe-distribucion", "3", "--reemplaza", "--csv"}));
    ASSERT_EQ(escrita.estado, batch::EstadoCompleto) << escrita.errores;
    const Respuesta una = Corre({"siro-lote", "una", Ruta("Quelmar_Conf.vlm"), "--trabajo", dir, "--pp",
                                 "73.2051", "--dur", "120", "--distribucion", "7", "--pizarra"});
    ASSERT_EQ(una.estado, batch::EstadoCompleto) << una.errores;
    const std::vector<double> bloques = BloquesDeLaPizarra(una.estandar);
    ASSERT_EQ(bloques.size(), 12U);
    std::istringstream csv(escrita.estandar);
    std::string renglon;
    std::getline(csv, renglon);
    double suma = 0;
    for (const double bloque : bloques) {
        std::getline(csv, renglon);
        const double corrida = std::stod(renglon.substr(renglon.rfind(',') + 1));
        EXPECT_NEAR(bloque, corrida, 0.0101) << renglon;  // the Slate cuts off behind two decimals
        suma += corrida;
    }
    EXPECT_NEAR(suma, 73.2051, 1e-3);
}

TEST_F(TormentaLote, SiUnaSeNiegaNoSeEscribeLaOtra)
{
    const std::string antes = disco.Lee(Ruta("TablasPDRs_pdr.vlm"));
    const auto orden = Con(Entregada, {"--trabajo", carpeta.Camino().string(), "--escribe-tabla", "2",
                                       "--escribe-distribucion", "1"});
    EXPECT_EQ(Lote(orden).estado, batch::EstadoInterrumpido);
    EXPECT_EQ(disco.Lee(Ruta("TablasPDRs_pdr.vlm")), antes);
}

TEST_F(TormentaLote, LaOrdenErroneaSeExplica)
{
    const auto motivo = [](const std::vector<std::string>& palabras) {
        const Respuesta r = Lote(palabras);
        EXPECT_EQ(r.estado, batch::EstadoOrdenErronea);
        EXPECT_NE(r.errores.find("\n\nUso: siro-lote tormenta --pp MM"), std::string::npos) << r.errores;
        return r.errores.substr(0, r.errores.find('\n'));
    };
    EXPECT_EQ(motivo({}),
              "siro-lote: Falta la lámina: --pp, o de dónde salen las curvas: ARCHIVO, --series o "
              "--coeficientes");
    EXPECT_EQ(motivo({"--pp", "80", "--escribe-tabla", "1"}),
              "siro-lote: --escribe-tabla pide curvas: ARCHIVO, --series o --coeficientes");
    EXPECT_EQ(motivo({"--pp", "80", "--patron", "ojo"}), "siro-lote: no hay un patrón \"ojo\"");
    EXPECT_EQ(motivo({"--pp", "-80"}), "siro-lote: --pp: debe ser mayor que 0");
    EXPECT_EQ(motivo({"--pp", "80", "--cuartil", "5"}),
              "siro-lote: --cuartil: debe ser un número entero entre 1 y 4");
    EXPECT_EQ(motivo({"--pp", "80", "--duraciones", "10,45"}),
              "siro-lote: --duraciones: 45 no está entre los de las tablas P-D-R");
    EXPECT_EQ(motivo({"--pp", "80", "--json", "--csv"}), "siro-lote: --json y --csv no van juntos");
    EXPECT_EQ(motivo({"--pp", "80", "--reemplaza=si"}), "siro-lote: La opción --reemplaza no lleva valor");
    EXPECT_EQ(motivo({"--coeficientes", "k=1", "--familia", "ojo"}), "siro-lote: no hay una familia \"ojo\"");
}

TEST_F(TormentaLote, LosDatosMalosSonUnEstado)
{
    EXPECT_EQ(Lote({"--pp", "80", "--patron", "huff", "--dur", "100", "--paso", "7"}).errores,
              "siro-lote: La duración debe ser un múltiplo del paso.\n");
    const Respuesta r =
        Lote({"--coeficientes", "k=822,a=0.2,b=10,c=0.8", "--trabajo", "/no/esta", "--escribe-tabla", "1"});
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_TRUE(r.errores.starts_with("siro-lote: No se puede leer ")) << r.errores;
}

TEST_F(TormentaLote, MuestraSuUso)
{
    const Respuesta r = Lote({"--ayuda"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto);
    EXPECT_TRUE(r.estandar.starts_with("Uso: siro-lote tormenta")) << r.estandar;
}

}  // namespace
