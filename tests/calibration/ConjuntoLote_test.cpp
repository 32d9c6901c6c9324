// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ConjuntoLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "calibration/InformeDeConjunto.h"
#include "checks/Sha256.h"
#include "model/Disco.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(const std::vector<std::string>& palabras)
{
    std::vector<const char*> argv{"siro-lote"};
    for (const std::string& palabra : palabras)
        argv.push_back(palabra.c_str());
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(), salidas);
    return r;
}

std::string Huella(const std::string& texto)
{
    checks::Sha256 sha;
    sha.Agrega(texto);
    return sha.Cierra();
}

/// The sample project under 80 mm in two hours, with a task in a folder of its own.
class ElConjunto : public testing::Test {
  protected:
    ElConjunto()
    {
        for (const char* fin : {"Conf", "UEHs", "VerCau", "RHAS", "RHQ", "LHASQ"}) {
            const std::string archivo = "Quelmar_" + std::string(fin) + ".vlm";
            disco.Escribe(Ruta(archivo), apoyo::BytesDeArchivo(SIRO_DATA_DIR "/Proyectos/" + archivo));
        }
    }
    [[nodiscard]] std::string Ruta(const std::string& nombre) const { return carpeta.Ruta(nombre); }
    [[nodiscard]] std::string TareaDe(int miembros, const std::string& parametros,
                                      const std::string& mas = "")
    {
        const std::string ruta = Ruta("tarea.json");
        disco.Escribe(ruta, "{\"parametros\": [" + parametros + "],\n \"incertidumbre\": {\"miembros\": " +
                                std::to_string(miembros) + ", \"semilla\": 7" + mas + "}}");
        return ruta;
    }
    [[nodiscard]] Respuesta Conjunto(const std::string& tarea, std::vector<std::string> mas = {})
    {
        std::vector<std::string> palabras{"conjunto", Quelmar,     "--pp",   "80",      "--dur",
                                          "120",      "--trabajo", Ruta(""), "--tarea", tarea};
        palabras.insert(palabras.end(), mas.begin(), mas.end());
        return Lote(palabras);
    }
    apoyo::CarpetaTemporal carpeta{};
    model::Disco disco = model::DiscoDelSistema();
    const std::string Quelmar = Ruta("Quelmar_Conf.vlm");
};

const std::string Dos =
    R"({"componentes": "u-*", "campo": "kostiakov_a", "modo": "factor", "minimo": 0.6, "maximo": 1.4},
       {"componentes": "tormenta", "campo": "lamina", "minimo": 60, "maximo": 100, "distribucion": "triangular"})";

TEST_F(ElConjunto, TieneLaMismaHuellaConCualesquieraHilosYPartes)
{
    const std::string tarea = TareaDe(1000, Dos);
    const Respuesta uno = Conjunto(tarea, {"--json", "--hilos", "1"});
    ASSERT_EQ(uno.estado, batch::EstadoCompleto) << uno.errores;
    const std::string huella = Huella(uno.estandar);
    for (const char* hilos : {"2", "8"})
        EXPECT_EQ(Huella(Conjunto(tarea, {"--json", "--hilos", hilos}).estandar), huella) << hilos;
    std::vector<std::string> une{"une", "--json"};
    for (const int parte : {4, 10, 1, 7, 2, 9, 3, 8, 6, 5}) {
        const std::string archivo = Ruta("parte" + std::to_string(parte));
        const Respuesta r = Conjunto(tarea, {"--parte", std::to_string(parte) + "/10", "--parcial", archivo});
        EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
        EXPECT_EQ(r.estandar, "");
        une.push_back(archivo);
    }
    const Respuesta unidas = Lote(une);
    EXPECT_EQ(unidas.estado, batch::EstadoCompleto) << unidas.errores;
    EXPECT_EQ(Huella(unidas.estandar), huella);
    std::reverse(une.begin() + 2, une.end());
    EXPECT_EQ(Huella(Lote(une).estandar), huella);

    une.pop_back();
    Respuesta mala = Lote(une);
    EXPECT_EQ(mala.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(mala.errores, "siro-lote: falta la parte 4 de 10\n");
    une.push_back(une.back());
    mala = Lote(une);
    EXPECT_NE(mala.errores.find("parte10: la parte 10 está dos veces"), std::string::npos) << mala.errores;
    const std::string otra = Ruta("otra");
    ASSERT_EQ(
        Conjunto(TareaDe(1000, Dos, ", \"muestreo\": \"simple\""), {"--parte", "4/10", "--parcial", otra})
            .estado,
        0);
    une.back() = otra;
    mala = Lote(une);
    EXPECT_NE(mala.errores.find("no es una parte del mismo conjunto"), std::string::npos) << mala.errores;
    disco.Escribe(otra, disco.Lee(Ruta("parte4")).substr(0, 3000));
    EXPECT_NE(Lote(une).errores.find("el archivo está dañado o cortado"), std::string::npos);
    disco.Escribe(otra, "otra cosa\n");
    EXPECT_NE(Lote(une).errores.find("no es una parte de un conjunto"), std::string::npos);
}

/// Rows of a CSV by measure and minutes, without its head.
std::map<std::string, std::vector<std::string>> Filas(const std::string& csv)
{
    std::map<std::string, std::vector<std::string>> filas;
    std::istringstream texto(csv);
    for (std::string linea; std::getline(texto, linea);) {
        std::vector<std::string> campos;
        std::istringstream l(linea);
        for (std::string campo; std::getline(l, campo, ',');)
            campos.push_back(campo);
        filas[campos[0] + "@" + campos[2]] = campos;
    }
    return filas;
}

// One parameter of two values: quantiles, mean and extremes are those of two runs of una.
TEST_F(ElConjunto, LosCuantilesSonLosDeSusCorridas)
{
    const auto pico = [&](const char* pp) {
        EXPECT_EQ(Lote({"una", Quelmar, "--pp", pp, "--dur", "120", "--trabajo", Ruta(""), "--resultados",
                        Ruta("q.csv")})
                      .estado,
                  batch::EstadoCompleto);
        std::istringstream texto(disco.Lee(Ruta("q.csv")));
        std::map<std::string, double> picos;
        for (std::string linea; std::getline(texto, linea);) {
            std::vector<std::string> c;
            std::istringstream l(linea);
            for (std::string campo; std::getline(l, campo, ',');)
                c.push_back(campo);
            if (c.size() > 4) picos[c[0]] = std::max(picos[c[0]], std::atof(c[4].c_str()));
        }
        return picos;
    };
    auto menor = pico("70"), mayor = pico("90");
    const std::string tarea = TareaDe(
        100,
        R"({"componentes": "tormenta", "campo": "lamina", "minimo": 70, "maximo": 90, "distribucion": "discreta",
                 "valores": [{"valor": 70, "peso": 3}, {"valor": 90, "peso": 1}]})");
    const Respuesta csv = Conjunto(tarea, {"--csv"});
    ASSERT_EQ(csv.estado, batch::EstadoCompleto) << csv.errores;
    EXPECT_TRUE(
        csv.estandar.starts_with("medida,unidad,minutos,peso,media,minimo,p5,p25,p50,p75,p95,maximo\n"));
    auto filas = Filas(csv.estandar);
    const std::vector<std::string>& f = filas["pico@"];
    ASSERT_EQ(f.size(), 12U);
    const auto n = [](const std::string& texto) { return std::atof(texto.c_str()); };
    const Respuesta json = Conjunto(tarea, {"--json"});
    const std::size_t desde = json.estandar.find("\"componente\": \"") + 15;
    const std::string componente = json.estandar.substr(desde, json.estandar.find('"', desde) - desde);
    const double a = menor[componente], b = mayor[componente];
    ASSERT_GT(a, 0) << componente;
    EXPECT_EQ(f[1], "m3/s");
    EXPECT_EQ(f[3], "100");
    EXPECT_NEAR(n(f[4]), 0.75 * a + 0.25 * b, 1e-5 * b);
    EXPECT_NEAR(n(f[5]), a, 1e-6 * a);
    EXPECT_NEAR(n(f[8]), a, a / 1024);
    EXPECT_NEAR(n(f[9]), a, a / 1024);  // the least value at which three quarters are reached
    EXPECT_NEAR(n(f[10]), b, b / 1024);
    EXPECT_NEAR(n(f[11]), b, 1e-6 * b);
    EXPECT_TRUE(filas.contains("caudal@0") && filas.contains("tiempo@") && filas.contains("volumen@"));
    const Respuesta texto = Conjunto(tarea);
    EXPECT_NE(texto.estandar.find("Incertidumbre de Quelmar, " + componente +
                                  ": 100 juegos por hipercubo latino, semilla 7"),
              std::string::npos)
        << texto.estandar;
    EXPECT_NE(texto.estandar.find("  pico [m3/s]"), std::string::npos);
}

// A velocity of 0 is refused by the run: a member in ten, told with its reason and numbers.
TEST_F(ElConjunto, LosFallidosSeDicenConSuMotivoYNoEntran)
{
    const std::string tarea = TareaDe(
        40, R"({"componentes": "u-*", "campo": "velocidad_media", "modo": "factor", "minimo": 0, "maximo": 1,
                "distribucion": "discreta", "valores": [{"valor": 0, "peso": 1}, {"valor": 1, "peso": 3}]})");
    const Respuesta json = Conjunto(tarea, {"--json"});
    ASSERT_EQ(json.estado, batch::EstadoCompleto) << json.errores;
    EXPECT_NE(json.estandar.find("\"miembros\": 40, \"cuentan\": 30, \"fallaron\": 10"), std::string::npos)
        << json.estandar.substr(0, 400);
    EXPECT_NE(json.estandar.find("\"motivo\": \"La corrida fue rechazada: Error en la carga"),
              std::string::npos);
    const std::size_t lista = json.estandar.find("\"primeros\": [");
    ASSERT_NE(lista, std::string::npos);
    const std::string numeros = json.estandar.substr(lista, json.estandar.find(']', lista) - lista);
    EXPECT_EQ(std::ranges::count(numeros, ','), 9) << numeros;
    const Respuesta csv = Conjunto(tarea, {"--csv"});
    EXPECT_NE(csv.errores.find("siro-lote: 10 juegos sin resultado: La corrida fue rechazada"),
              std::string::npos);
}

TEST_F(ElConjunto, LoQueNoSePuedeHacerDicePorQue)
{
    const auto error = [&](const std::string& parametros, const std::string& mas = "") {
        const Respuesta r = Conjunto(TareaDe(10, parametros, mas));
        EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
        EXPECT_EQ(r.estandar, "");
        return r.errores;
    };
    EXPECT_NE(error(R"({"componentes": "u-no", "campo": "area"})")
                  .find("siro-lote: Ningún componente se llama «u-no».\n"),
              std::string::npos);
    EXPECT_NE(error(Dos, ", \"medida\": {\"componente\": \"x\"}")
                  .find("siro-lote: El componente x no está en la red.\n"),
              std::string::npos);
    EXPECT_NE(error(R"({"campo": "area", "minimo": "x"})")
                  .find("tarea.json, renglón 1: \"minimo\" no es un número"),
              std::string::npos);
    disco.Escribe(Ruta("mala.json"), "{\"parametro\": []}");
    EXPECT_NE(
        Conjunto(Ruta("mala.json")).errores.find("hay claves que no son de una tarea: {\"parametro\":[]}"),
        std::string::npos);
    EXPECT_NE(Conjunto(Ruta("ninguna.json")).errores.find("no se puede abrir"), std::string::npos);
    EXPECT_NE(
        Lote({"conjunto", Quelmar, "--trabajo", Ruta("")}).errores.find("el proyecto no tiene un estudio"),
        std::string::npos);
}

TEST(LaLineaDelConjunto, DiceQueEstaMal)
{
    const std::string Quelmar = "Quelmar_Conf.vlm";
    const auto motivo = [](const std::vector<std::string>& palabras) {
        const Respuesta r = Lote(palabras);
        EXPECT_EQ(r.estado, batch::EstadoOrdenErronea);
        return r.errores.substr(0, r.errores.find('\n'));
    };
    EXPECT_EQ(motivo({"conjunto"}), "siro-lote: Falta CONF");
    EXPECT_EQ(motivo({"conjunto", "x.vlm"}), "siro-lote: x.vlm no termina en _Conf.vlm");
    EXPECT_EQ(motivo({"conjunto", Quelmar, "--parte", "1/2"}), "siro-lote: --parte va con --parcial");
    EXPECT_EQ(motivo({"conjunto", Quelmar, "--parte", "3/2", "--parcial", "x"}),
              "siro-lote: --parte: debe ser un número entero entre 1 y 2");
    EXPECT_EQ(motivo({"conjunto", Quelmar, "--parte", "3", "--parcial", "x"}),
              "siro-lote: --parte: debe tener la forma i/n");
    EXPECT_EQ(motivo({"conjunto", Quelmar, "--json", "--csv"}), "siro-lote: --json y --csv no van juntos");
    EXPECT_EQ(motivo({"une"}), "siro-lote: Falta PARCIAL");
    EXPECT_TRUE(Lote({"une", "--ayuda"}).estandar.starts_with("Uso: siro-lote une"));
    EXPECT_TRUE(Lote({"conjunto", "--help"}).estandar.starts_with("Uso: siro-lote conjunto"));
}

}  // namespace
