// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ComparaLote.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(std::vector<std::string> palabras)
{
    palabras.insert(palabras.begin(), {"siro-lote", "compara"});
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

/// The sample project and a copy of it, Doble, whose first UEH has twice the area.
struct ComparaLote : testing::Test {
    ComparaLote()
    {
        namespace fs = std::filesystem;
        fs::copy(SIRO_DATA_DIR, carpeta.Camino(), fs::copy_options::recursive);
        for (const char* const archivo : {"_Conf", "_UEHs", "_VerCau", "_RHAS", "_RHQ", "_LHASQ"})
            fs::copy(carpeta.Camino() / "Proyectos" / ("Quelmar" + std::string(archivo) + ".vlm"),
                     carpeta.Camino() / "Proyectos" / ("Doble" + std::string(archivo) + ".vlm"));
        std::string conf = apoyo::BytesDeArchivo(carpeta.Camino() / "Proyectos" / "Doble_Conf.vlm");
        for (std::size_t k = 0; (k = conf.find("\"Quelmar", k)) != std::string::npos; k += 7)
            conf.replace(k, 8, "\"Doble");
        std::ofstream(carpeta.Camino() / "Proyectos" / "Doble_Conf.vlm", std::ios::binary) << conf;
        std::string uehs = apoyo::BytesDeArchivo(carpeta.Camino() / "Proyectos" / "Doble_UEHs.vlm");
        uehs.replace(uehs.find("\"Quelmar\""), 9, "\"Doble\"");
        const std::size_t ueh = uehs.find("\"u-"), area = uehs.find('\n', ueh) + 1;
        superficie = uehs.substr(area, uehs.find_first_of("\r\n", area) - area);
        uehs.replace(area, superficie.size(), "2" + superficie);
        std::ofstream(carpeta.Camino() / "Proyectos" / "Doble_UEHs.vlm", std::ios::binary) << uehs;
    }
    [[nodiscard]] std::string Conf(const std::string& nombre) const
    {
        return (carpeta.Camino() / "Proyectos" / (nombre + "_Conf.vlm")).string();
    }
    [[nodiscard]] Respuesta Corre(std::vector<std::string> palabras) const
    {
        palabras.insert(palabras.end(), {"--trabajo", carpeta.Camino().string()});
        return Lote(palabras);
    }
    apoyo::CarpetaTemporal carpeta{};
    std::string superficie{};
};

TEST_F(ComparaLote, DosProyectosEnTextoJsonYCsv)
{
    const Respuesta texto = Corre({Conf("Quelmar"), Conf("Doble"), "--pp", "80", "--dur", "120"});
    EXPECT_EQ(texto.estado, batch::EstadoCompleto) << texto.errores;
    EXPECT_EQ(texto.errores, "");
    EXPECT_NE(texto.estandar.find("Quelmar: proyecto Quelmar"), std::string::npos) << texto.estandar;
    EXPECT_NE(texto.estandar.find(" 2" + superficie), std::string::npos) << texto.estandar;
    const Respuesta json = Corre({Conf("Quelmar"), Conf("Doble"), "--json"});
    EXPECT_EQ(json.estado, batch::EstadoCompleto);
    EXPECT_TRUE(json.estandar.starts_with("{\n \"lados\": [\n  {\"nombre\": \"Quelmar\""));
    const Respuesta csv = Corre({Conf("Quelmar"), Conf("Doble"), "--csv"});
    EXPECT_EQ(csv.estado, batch::EstadoCompleto);
    EXPECT_NE(csv.estandar.find(",Doble,2" + superficie + ",,\n"), std::string::npos);
}

TEST_F(ComparaLote, NoEscribeNada)
{
    const auto archivos = [&] {
        std::vector<std::string> todos;
        for (const auto& uno : std::filesystem::recursive_directory_iterator(carpeta.Camino()))
            if (uno.is_regular_file())
                todos.push_back(uno.path().string() + "\n" + apoyo::BytesDeArchivo(uno.path()));
        return todos;
    };
    const auto antes = archivos();
    EXPECT_EQ(Corre({Conf("Quelmar"), Conf("Doble"), "--tabla", "0"}).estado, batch::EstadoCompleto);
    EXPECT_EQ(archivos(), antes);
}

TEST_F(ComparaLote, LasSeriesPorTormentaConCualquierNumeroDeHilos)
{
    const Respuesta uno = Corre({Conf("Quelmar"), Conf("Doble"), "--tabla", "0", "--csv", "--hilos", "1"});
    const Respuesta tres = Corre({Conf("Quelmar"), Conf("Doble"), "--tabla", "0", "--csv", "--hilos", "3"});
    EXPECT_EQ(uno.estado, batch::EstadoCompleto) << uno.errores;
    EXPECT_EQ(uno.estandar, tres.estandar);
    EXPECT_NE(uno.estandar.find("serie,c-Quelmar5,\"D 60 min, R 50 años\",m3/s,Quelmar,"), std::string::npos);
}

TEST_F(ComparaLote, DosDelMismoNombreLlevanSuRuta)
{
    const Respuesta r = Corre({Conf("Quelmar"), Conf("Quelmar"), "--csv"});
    EXPECT_NE(r.estandar.find("," + Conf("Quelmar") + ","), std::string::npos);
}

TEST_F(ComparaLote, UnaCorridaQueNoSeGuardoSeDice)
{
    const Respuesta falta = Corre({Conf("Quelmar"), Conf("Quelmar") + "#Ayer"});
    EXPECT_EQ(falta.estado, batch::EstadoInterrumpido);
    EXPECT_NE(falta.errores.find("no tiene ninguna corrida de nombre Ayer"), std::string::npos)
        << falta.errores;
}

TEST_F(ComparaLote, LoQueNoSeAbreSeDice)
{
    const Respuesta r = Corre({Conf("Quelmar"), Conf("Nadie")});
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(r.estandar, "");
    EXPECT_NE(r.errores.find("siro-lote: Nadie: No se puede abrir " + Conf("Nadie")), std::string::npos)
        << r.errores;
}

TEST_F(ComparaLote, UnaCorridaQueNoLlegaAlFinDaEstado1YComparaLosParametros)
{
    const Respuesta r = Corre({Conf("Quelmar"), Conf("Doble"), "--pp", "0"});
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_NE(r.errores.find("La corrida no llegó a su fin: La lámina o la duración"), std::string::npos)
        << r.errores;
    EXPECT_NE(r.estandar.find("2" + superficie), std::string::npos);
    EXPECT_NE(r.estandar.find("Ningún resultado difiere."), std::string::npos);
}

TEST_F(ComparaLote, LaLineaDeOrdenesErronea)
{
    EXPECT_EQ(Lote({Conf("Quelmar")}).estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(Lote({Conf("Quelmar"), "otro.txt"}).estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(Lote({Conf("Quelmar"), Conf("Doble"), "--json", "--csv"}).estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(Lote({Conf("Quelmar"), Conf("Doble"), "--tabla", "9"}).estado, batch::EstadoOrdenErronea);
    const Respuesta ayuda = Lote({"--help"});
    EXPECT_EQ(ayuda.estado, batch::EstadoCompleto);
    EXPECT_TRUE(ayuda.estandar.starts_with("Uso: siro-lote compara LADO LADO"));
}

}  // namespace
