// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/IdfLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "model/Disco.h"
#include "model/Sistema.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(std::vector<const char*> palabras)
{
    palabras.insert(palabras.begin(), {"siro-lote", "idf"});
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(palabras.size()), palabras.data(), salidas);
    return r;
}

class IdfLote : public ::testing::Test {
  protected:
    apoyo::CarpetaTemporal carpeta{};
    std::string ruta = carpeta.Ruta("maximos.csv");

    void SetUp() override
    {
        std::string t = "anio;mm\n";
        for (int i = 0; i < 40; ++i)
            t += std::to_string(1950 + i) + ";" + std::to_string(45 + (i * 29) % 41) + "\n";
        model::DiscoDelSistema().Escribe(ruta, t);
    }
};

// The delivered table says in its notes that it is of these coefficients, in whole millimetres.
TEST_F(IdfLote, DeCoeficientesDaLaTablaEntregada)
{
    const Respuesta csv = Lote({"--coeficientes", "k=822,a=0.2,b=10,c=0.8", "--csv"});
    EXPECT_EQ(csv.estado, batch::EstadoCompleto) << csv.errores;
    EXPECT_TRUE(csv.estandar.starts_with("duracion,recurrencia,lamina,intensidad\n5,2,"));
    EXPECT_EQ(std::count(csv.estandar.begin(), csv.estandar.end(), '\n'), 1 + 17 * 14);
    EXPECT_NE(csv.estandar.find("\n10,2,14.3"), std::string::npos);      // 14 in the table
    EXPECT_NE(csv.estandar.find("\n1440,50,127.5"), std::string::npos);  // 128
}

TEST_F(IdfLote, DaTextoYJsonDeLoMismo)
{
    const Respuesta texto = Lote({ruta.c_str(), "--ley", "gumbel", "--familia", "sherman"});
    EXPECT_EQ(texto.estado, batch::EstadoCompleto) << texto.errores;
    EXPECT_EQ(texto.errores, "");
    for (const char* parte :
         {"Leyes de los máximos\n   1440 min: Gumbel, xi ",
          "Desagregación\n  Dick-Peschke: P(d) = P24 (d/1440)^0.25\n",
          "Curvas\n  Sherman: i = k T^a / (d + b)^c\n  k ", "R2 0.99", "A tener en cuenta\n",
          "La lámina crece con la duración y con la recurrencia en toda la tabla.",
          "Lámina [mm] por duración [min] y recurrencia [años]\n",
          "Intensidad [mm/h] por duración [min] y recurrencia [años]\n"})
        EXPECT_NE(texto.estandar.find(parte), std::string::npos) << parte << texto.estandar;
    const Respuesta json = Lote({ruta.c_str(), "--ley", "gumbel", "--json"});
    EXPECT_TRUE(json.estandar.starts_with(
        "{\"leyes\":[{\"duracion\":1440,\"ley\":\"gumbel\",\"recomendada\":false,\"p0\":0,\"factor\":1.13,"));
    EXPECT_NE(json.estandar.find("\"desagregacion\":\"dick-peschke\",\"curvas\":{\"familia\":\"sherman\","),
              std::string::npos);
    EXPECT_TRUE(json.estandar.ends_with("]]}\n"));
}

TEST_F(IdfLote, TomaVariasDuraciones)
{
    const std::string series = "60=" + ruta + ",1440=" + ruta;
    const Respuesta r = Lote({"--series", series.c_str(), "--familia", "bernard", "--ley", "gumbel"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
    // The same depth in 60 min as in a day, times 1.13: the exponent is 1 - ln 1.13 / ln 24.
    EXPECT_NE(r.estandar.find(", n 0.96154\n"), std::string::npos) << r.estandar;
    const Respuesta corrida =
        Lote({"--series", series.c_str(), "--familia", "bernard", "--ley", "gumbel", "--lectura", "corrida"});
    EXPECT_NE(corrida.estandar.find(", n 1\n"), std::string::npos) << corrida.estandar;
    EXPECT_NE(corrida.estandar.find("La lámina no crece con la duración: de 5 a 10 min"), std::string::npos);
    EXPECT_NE(corrida.estandar.find(" más.\n"), std::string::npos);
}

TEST_F(IdfLote, DiceLoQueNoEntiende)
{
    const struct {
        std::vector<const char*> palabras;
        int estado;
        std::string error;
    } casos[] = {
        {{}, batch::EstadoOrdenErronea, "Falta de dónde: ARCHIVO, --series o --coeficientes"},
        {{ruta.c_str(), "--series", "60=a"}, batch::EstadoOrdenErronea, "ARCHIVO y --series no van juntos"},
        {{ruta.c_str(), "--csv", "--json"}, batch::EstadoOrdenErronea, "--json y --csv no van juntos"},
        {{ruta.c_str(), "--familia", "otra"}, batch::EstadoOrdenErronea, "no hay una familia \"otra\""},
        {{ruta.c_str(), "--desagregacion", "otra"},
         batch::EstadoOrdenErronea,
         "no hay una desagregación \"otra\""},
        {{ruta.c_str(), "--reduccion", "otra"}, batch::EstadoOrdenErronea, "no hay una reducción \"otra\""},
        {{ruta.c_str(), "--ley", "otra"}, batch::EstadoOrdenErronea, "no hay una ley \"otra\""},
        {{ruta.c_str(), "--lectura", "x"}, batch::EstadoOrdenErronea, "--lectura: debe ser diaria o corrida"},
        {{ruta.c_str(), "--criterio", "x"}, batch::EstadoOrdenErronea, "--criterio: debe ser log o relativo"},
        {{"--coeficientes", "k"},
         batch::EstadoOrdenErronea,
         "--coeficientes: \"k\" no tiene la forma nombre=valor"},
        {{"--coeficientes", "k=x"}, batch::EstadoOrdenErronea, "--coeficientes: \"x\" no es un número"},
        {{ruta.c_str(), "--razones", "60=0.3,"},
         batch::EstadoOrdenErronea,
         "--razones: \"\" no tiene la forma nombre=valor"},
        {{"/no/hay.csv"},
         batch::EstadoInterrumpido,
         "no se puede leer " + model::RutaAbsoluta("/no/hay.csv")},
        {{"--coeficientes", "k=822"}, batch::EstadoInterrumpido, "Falta el coeficiente a de Sherman"},
        {{ruta.c_str(), "--desagregacion", "5.2-ic"}, batch::EstadoInterrumpido, "Falta el coeficiente I1Id"},
    };
    for (const auto& caso : casos) {
        const Respuesta r = Lote(caso.palabras);
        EXPECT_EQ(r.estado, caso.estado) << caso.error;
        EXPECT_NE(r.errores.find("siro-lote: " + caso.error), std::string::npos) << r.errores;
        EXPECT_EQ(r.estandar, "");
    }
}

TEST_F(IdfLote, MuestraSuUso)
{
    const Respuesta r = Lote({"--ayuda"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto);
    EXPECT_TRUE(r.estandar.starts_with("Uso: siro-lote idf ARCHIVO [opciones]"));
}

// Five ratios of the day, of a recording gauge, for the standard of 2016; an area; coefficients by
// recurrence.
TEST_F(IdfLote, TomaRazonesYArea)
{
    const Respuesta r =
        Lote({ruta.c_str(), "--desagregacion", "5.2-ic-2016", "--coeficientes", "I1Id=9", "--razones",
              "60=0.30,120=0.39,1440=1", "--reduccion", "5.2-ic", "--area", "380", "--familia", "ninguna"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
    EXPECT_NE(r.estandar.find("KA 0.8280"), std::string::npos);
    EXPECT_NE(r.estandar.find("el factor 1.13 no se aplica otra vez."), std::string::npos);
    const Respuesta libre =
        Lote({"--familia", "libre", "--coeficientes", "a@10=900,b@10=12,c@10=0.8", "--csv"});
    EXPECT_EQ(libre.estado, batch::EstadoCompleto) << libre.errores;
    EXPECT_NE(libre.estandar.find("\n5,2,,\n"), std::string::npos);
    EXPECT_NE(libre.estandar.find("\n5,10,7.7"), std::string::npos);  // 900 / 17^0.8 / 12
}

}  // namespace
