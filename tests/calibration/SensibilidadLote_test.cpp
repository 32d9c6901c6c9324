// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/SensibilidadLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "batch/TareaLote.h"
#include "calibration/AnalisisDeSensibilidad.h"
#include "calibration/EscribeSensibilidad.h"
#include "model/Sistema.h"

namespace {

const std::string Proyecto = SIRO_DATA_DIR "/Proyectos/Crecidas/Bachman_Conf.vlm";

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(const std::vector<std::string>& palabras)
{
    std::vector<const char*> argv{"siro-lote", "sensibilidad"};
    for (const std::string& palabra : palabras)
        argv.push_back(palabra.c_str());
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(), salidas);
    return r;
}

/// A task in a file of its own, of this test alone.
struct Tarea {
    explicit Tarea(std::string_view texto)
    {
        const auto* const prueba = testing::UnitTest::GetInstance()->current_test_info();
        ruta = (std::filesystem::temp_directory_path() /
                ("siro_" + std::string(prueba->name()) + std::to_string(texto.size()) + ".json"))
                   .string();
        std::ofstream(ruta, std::ios::binary) << texto;
    }
    ~Tarea() { std::filesystem::remove(ruta); }
    Tarea(const Tarea&) = delete;
    Tarea& operator=(const Tarea&) = delete;
    std::string ruta{};
};

constexpr std::string_view Pedido = R"({"parametros": [
  {"componentes": "u-Bachman", "campo": "kostiakov_a", "modo": "factor", "minimo": 0.5, "maximo": 2},
  {"componentes": "u-Bachman", "campo": "retencion_z", "modo": "valor", "minimo": 0, "maximo": 20}],
 "sensibilidad": {"metodo": "morris", "trayectorias": 5, "semilla": 3}})";

/// What una makes of the storm, 60 mm in 60 min: the greatest outflow of the last reach.
float PicoDeUna()
{
    namespace fs = std::filesystem;
    const fs::path copia = fs::temp_directory_path() / "siro_SensibilidadLote";
    fs::remove_all(copia);
    fs::copy(fs::path(Proyecto).parent_path(), copia);
    const std::string conf = (copia / "Bachman_Conf.vlm").string(), csv = (copia / "q.csv").string(),
                      trabajo = copia.string();
    const std::vector<const char*> argv{"siro-lote",     "una",          conf.c_str(), "--trabajo",
                                        trabajo.c_str(), "--resultados", csv.c_str()};
    EXPECT_EQ(batch::Lote(static_cast<int>(argv.size()), argv.data(), {}), batch::EstadoCompleto);
    std::ifstream lee(csv);
    float pico = 0;
    for (std::string renglon; std::getline(lee, renglon);) {
        std::istringstream campos(renglon);
        std::vector<std::string> c;
        for (std::string campo; std::getline(campos, campo, ',');)
            c.push_back(campo);
        if (c.size() > 4 && c[0] == "c-Aforo") pico = std::max(pico, std::stof(c[4]));
    }
    lee.close();
    fs::remove_all(copia);
    return pico;
}

// The same task through the library.
TEST(SensibilidadLote, EscribeLoQueDaElAnalisis)
{
    const Tarea archivo(Pedido);
    batch::Tarea tarea;
    ASSERT_TRUE(batch::AbreTarea({.conf = Proyecto, .tarea = archivo.ruta}, "", {}, tarea));
    const calibration::AnalisisDeSensibilidad a =
        *calibration::AnalizaSensibilidad(tarea.modelo.modelo, tarea.ajuste, 1);
    EXPECT_EQ(a.actual, double{PicoDeUna()});
    const Respuesta texto = Lote({Proyecto, "--tarea", archivo.ruta});
    EXPECT_EQ(texto.errores, "");
    EXPECT_EQ(texto.estado, batch::EstadoCompleto);
    EXPECT_EQ(texto.estandar, calibration::TextoDe(a));
    for (const char* hilos : {"1", "2", "8"}) {
        EXPECT_EQ(Lote({Proyecto, "--tarea", archivo.ruta, "--csv", "--hilos", hilos}).estandar,
                  calibration::CsvDe(a));
        EXPECT_EQ(Lote({Proyecto, "--tarea", archivo.ruta, "--json", "--hilos", hilos}).estandar,
                  calibration::JsonDe(a));
    }
}

TEST(SensibilidadLote, ElTextoNombraLoQueImporta)
{
    const Tarea tarea(Pedido);
    const std::string texto = Lote({Proyecto, "--tarea", tarea.ruta}).estandar;
    EXPECT_TRUE(
        texto.starts_with("Sensibilidad: el pico\n"
                          "Morris (efectos elementales), 15 corridas, 5 trayectorias, 4 niveles, "
                          "semilla 3\n"))
        << texto;
    EXPECT_NE(texto.find("El pico depende sobre todo de u-Bachman.kostiakov_a (factor) ("), std::string::npos)
        << texto;
    const std::string csv = Lote({Proyecto, "--tarea", tarea.ruta, "--csv"}).estandar;
    EXPECT_TRUE(csv.starts_with("parametro,mu_estrella,mu,sigma,efectos\nu-Bachman.kostiakov_a (factor),"))
        << csv;
}

// The project's own study, with its events and their recorded storms; nothing is written.
TEST(SensibilidadLote, SinTareaTomaElEstudioYDejaElProyectoComoEsta)
{
    const std::string antes = apoyo::BytesDeArchivo(Proyecto);
    const Respuesta r = Lote({Proyecto, "--csv"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
    EXPECT_EQ(r.errores, "");
    EXPECT_NE(r.estandar.find("c-Aforo.musk_k"), std::string::npos) << r.estandar;
    EXPECT_EQ(apoyo::BytesDeArchivo(Proyecto), antes);
}

TEST(SensibilidadLote, LoQueNoSePuedeSeDice)
{
    const auto errores = [](const std::vector<std::string>& palabras, int estado) {
        const Respuesta r = Lote(palabras);
        EXPECT_EQ(r.estado, estado);
        EXPECT_EQ(r.estandar, "");
        return r.errores;
    };
    EXPECT_TRUE(errores({"no/hay_Conf.vlm"}, 1)
                    .starts_with("siro-lote: no se puede abrir " + model::RutaAbsoluta("no/hay_Conf.vlm")));
    const Tarea mala("{\"parametros\":\n 3}");
    EXPECT_EQ(errores({Proyecto, "--tarea", mala.ruta}, 1),
              "siro-lote: " + mala.ruta + ", renglón 2: \"parametros\" no es una lista, entre corchetes\n");
    const Tarea vacia("{}");
    EXPECT_EQ(errores({Proyecto, "--tarea", vacia.ruta}, 1), "siro-lote: No hay ningún parámetro activo.\n");
    EXPECT_EQ(errores({Proyecto, "--tarea", "no hay"}, 1).find("siro-lote: no se puede abrir "), 0);
    EXPECT_TRUE(errores({Proyecto, "--csv", "--json"}, 2)
                    .starts_with("siro-lote: --json y --csv no van juntos\n\nUso: siro-lote sensibilidad "));
    EXPECT_TRUE(errores({Proyecto, "--tabla", "1"}, 2).starts_with("siro-lote: No se esperaba --tabla"));
    EXPECT_TRUE(errores({}, 2).starts_with("siro-lote: Falta CONF"));
}

}  // namespace
