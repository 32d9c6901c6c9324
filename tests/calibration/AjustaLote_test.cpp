// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AjustaLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "model/Disco.h"

namespace {

const char* const Bachman = SIRO_DATA_DIR "/Proyectos/Crecidas/Bachman_Conf.vlm";

/// Two parameters of the delivered project of observed floods, 60 runs.
constexpr std::string_view Tarea = R"({
  "eventos": [
    {"nombre": "17/06/1966", "papel": "calibra",
     "lluvia": {"origen": "registrada", "archivo": "Bachman 170666_pt.vlm"},
     "observaciones": [{"componente": "c-Aforo", "archivo": "1"}]},
    {"nombre": "07/06/1974", "papel": "valida",
     "lluvia": {"origen": "registrada", "archivo": "Bachman 070674_pt.vlm"},
     "observaciones": [{"componente": "c-Aforo", "archivo": "2"}]}],
  "parametros": [
    {"componentes": "u-*", "campo": "kostiakov_a", "modo": "factor", "minimo": 0.3, "maximo": 3,
     "logaritmica": true},
    {"componentes": "u-*", "campo": "velocidad_media", "modo": "factor", "minimo": 0.3, "maximo": 3,
     "logaritmica": true}],
  "calibracion": {"metodo": "sce", "puntaje": "nse", "corridas": 60, "complejos": 2}
})";

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

class AjustaLote : public ::testing::Test {
  protected:
    Respuesta Lote(std::vector<std::string> palabras)
    {
        palabras.insert(palabras.begin(), {"siro-lote", "ajusta", Bachman, "--trabajo", carpeta.Ruta("")});
        std::vector<const char*> argv;
        for (const std::string& p : palabras)
            argv.push_back(p.c_str());
        Respuesta r;
        batch::Salidas salidas;
        salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
        salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
        r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(), salidas);
        return r;
    }
    std::string Escribe(std::string texto)
    {
        std::string ruta = carpeta.Ruta("tarea.json");
        model::DiscoDelSistema().Escribe(ruta, texto);
        return ruta;
    }
    static std::string Con(std::string_view que, std::string_view otro)
    {
        std::string t(Tarea);
        const std::size_t i = t.find(que);
        EXPECT_NE(i, std::string::npos) << que;
        return t.replace(i, que.size(), otro);
    }

    apoyo::CarpetaTemporal carpeta{};
};

TEST_F(AjustaLote, DaLoMismoConCualquierNumeroDeHilos)
{
    const std::string tarea = Escribe(std::string(Tarea));
    std::vector<std::string> json, corridas;
    for (const char* hilos : {"1", "2", "8"}) {
        const std::string csv = carpeta.Ruta("corridas" + std::string(hilos) + ".csv");
        const Respuesta r = Lote({"--tarea", tarea, "--json", "--hilos", hilos, "--corridas", csv});
        ASSERT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
        EXPECT_EQ(r.errores, "");
        json.push_back(r.estandar);
        corridas.push_back(model::DiscoDelSistema().Lee(csv));
    }
    EXPECT_EQ(json[0], json[1]);
    EXPECT_EQ(json[0], json[2]);
    EXPECT_EQ(corridas[0], corridas[1]);
    EXPECT_EQ(corridas[0], corridas[2]);
    EXPECT_TRUE(corridas[0].starts_with(
        "corrida,u-*.kostiakov_a.factor,u-*.velocidad_media.factor,puntaje\n1,1.000"));
    EXPECT_EQ(std::count(corridas[0].begin(), corridas[0].end(), '\n'), 61);
    EXPECT_NE(json[0].find("\"metodo\": \"sce\""), std::string::npos);
    EXPECT_NE(json[0].find("\"papel\": \"valida\""), std::string::npos);
    EXPECT_NE(json[0].find("\"fin\": \"presupuesto\""), std::string::npos);
}

TEST_F(AjustaLote, DaTextoYCsv)
{
    const std::string tarea = Escribe(std::string(Tarea));
    const Respuesta texto = Lote({"--tarea", tarea}), csv = Lote({"--tarea", tarea, "--csv"});
    EXPECT_EQ(texto.estado, batch::EstadoCompleto) << texto.errores;
    EXPECT_NE(texto.estandar.find("Calibración por SCE-UA, semilla 1"), std::string::npos) << texto.estandar;
    EXPECT_NE(texto.estandar.find("07/06/1974, c-Aforo (validación)"), std::string::npos);
    EXPECT_TRUE(csv.estandar.starts_with(
        "parametro,unidad,minimo,maximo,antes,mejor,cerca_minimo,cerca_maximo,aviso\n"
        "u-*.kostiakov_a.factor,-,0.3,3,1,"))
        << csv.estandar;
}

TEST_F(AjustaLote, LoQueEstaMalSeDiceYNoSeBusca)
{
    const auto errores = [&](const std::string& tarea) {
        const Respuesta r = Lote({"--tarea", Escribe(tarea)});
        EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
        EXPECT_EQ(r.estandar, "");
        return r.errores;
    };
    EXPECT_NE(errores(Con("\"sce\"", "\"azar\"")).find("método"), std::string::npos);
    EXPECT_NE(errores(Con("\"c-Aforo\"", "\"c-Otro\"")).find("c-Otro"), std::string::npos);
    EXPECT_NE(errores(Con("\"calibra\"", "\"valida\"")).find("papel de calibrar"), std::string::npos);
    EXPECT_NE(errores("{").find("renglón"), std::string::npos);
    EXPECT_EQ(
        Lote({"--tarea", Escribe(std::string(Tarea)), "--corridas", carpeta.Ruta("no/esta.csv")}).estado,
        batch::EstadoInterrumpido);
    EXPECT_EQ(Lote({"--json", "--csv"}).estado, batch::EstadoOrdenErronea);
    EXPECT_NE(Lote({"--ayuda"}).estandar.find("siro-lote ajusta CONF"), std::string::npos);
}

}  // namespace
