// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/ArchivoEstudio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace study {
namespace {

Estudio Lleno()
{
    Estudio e;
    SerieDeMaximos diaria{.lecturaDiaria = true,
                          .maximos = {{1987, 45.5, 365}, {1988, 0, {}}, {1990, 0.1 + 0.2, 0}},
                          .ley = "gumbel",
                          .metodo = "l",
                          .motivo = "Dijo \"sí\"\nel 3/4"};
    e.taller.estaciones = {{.nombre = "Quelmar – Ñu",
                            .latitud = -38.123456789012345,
                            .longitud = 5e-324,
                            .altitud = 412,
                            .fuente = "SMN",
                            .notas = "áéíóú \\ €",
                            .series = {diaria, {.duracion = 5}}},
                           {}};
    e.taller.semilla = std::numeric_limits<std::uint64_t>::max();
    e.taller.idf.razones = {{60, 0.3}, {1440, 1}};
    e.taller.idf.coeficientes = {{"n", -0.25, 50}};
    e.taller.idf.errorRelativo = true;
    e.taller.idf.estacion = "Quelmar";
    e.taller.tormenta.archivo = "A_1.vlm";
    e.taller.tormenta.lamina = 83.5;
    e.taller.tormenta.periodos = "10 40; 50";
    e.taller.derivados = {{"22/11/2026", "tabla 1", "gumbel"}};
    return e;
}

std::string Reemplaza(std::string texto, std::string_view que, std::string_view por)
{
    const std::size_t donde = texto.find(que);
    EXPECT_NE(donde, std::string::npos) << que;
    return donde == std::string::npos ? texto : texto.replace(donde, que.size(), por);
}

/// The line of a text where another begins, from 1.
int RenglonDe(std::string_view texto, std::string_view que)
{
    return 1 + static_cast<int>(
                   std::count(texto.begin(), texto.begin() + static_cast<long>(texto.find(que)), '\n'));
}

TEST(ArchivoEstudio, LoQueSeEscribeVuelveConTodasSusCifras)
{
    const Estudio e = Lleno();
    const std::string texto = EscribeEstudio(e);
    const LecturaDeEstudio lectura = LeeEstudio(texto);
    EXPECT_EQ(lectura.motivo, "");
    EXPECT_EQ(lectura.estudio, e);
    EXPECT_EQ(EscribeEstudio(lectura.estudio), texto);
    EXPECT_EQ(ReparoDe(e), "");
}

TEST(ArchivoEstudio, UnMaximoOcupaUnRenglonYLasClavesVanEnSuOrden)
{
    const std::string texto = EscribeEstudio(Lleno());
    EXPECT_NE(texto.find("              {\"anio\":1987,\"valor\":45.5,\"dias\":365},\n"
                         "              {\"anio\":1988,\"valor\":0.0},\n"),
              std::string::npos)
        << texto;
    EXPECT_TRUE(texto.starts_with("{\n  \"version\": 1,\n  \"taller\": {\n    \"estaciones\": [\n")) << texto;
    EXPECT_TRUE(texto.ends_with("}\n"));
}

TEST(ArchivoEstudio, LoQueFaltaTieneSuValorDeSiempre)
{
    EXPECT_EQ(LeeEstudio("{\"version\":1}").estudio, Estudio{});
    EXPECT_EQ(LeeEstudio("\xEF\xBB\xBF{\"version\":1,\"taller\":{\"semilla\":null}}").motivo, "");
}

TEST(ArchivoEstudio, LasClavesQueNoConoceQuedanEnCadaNivel)
{
    std::string texto = EscribeEstudio(Lleno());
    texto = Reemplaza(texto, "\"version\": 1,", "\"version\": 1, \"informe\": {\"hojas\": [1, 2.5]},");
    texto = Reemplaza(texto, "\"semilla\"", "\"aforos\": 3, \"semilla\"");
    texto = Reemplaza(texto, "\"latitud\"", "\"huso\": -3, \"latitud\"");
    texto = Reemplaza(texto, "\"duracion_min\"", "\"umbral\": null, \"duracion_min\"");
    texto = Reemplaza(texto, "\"familia\"", "\"zona\": \"III\", \"familia\"");
    texto = Reemplaza(texto, "\"patron\"", "\"otra\": [], \"patron\"");
    LecturaDeEstudio lectura = LeeEstudio(texto);
    ASSERT_EQ(lectura.motivo, "");
    lectura.estudio.taller.estaciones[0].nombre = "Otro";
    const std::string otra = EscribeEstudio(lectura.estudio);
    for (const std::string_view clave : {"\"informe\": {", "\"aforos\": 3", "\"huso\": -3",
                                         "\"umbral\": null", "\"zona\": \"III\"", "\"otra\": []", "2.5"})
        EXPECT_NE(otra.find(clave), std::string::npos) << clave << "\n" << otra;
    EXPECT_EQ(LeeEstudio(otra).estudio, lectura.estudio);
}

struct Averia {
    std::string_view que, por;
    std::string_view motivo;
};

TEST(ArchivoEstudio, LoDanadoSeDiceConSuRenglon)
{
    const std::string sano = EscribeEstudio(Lleno());
    for (const Averia& d : {
             Averia{"\"version\": 1", "\"version\": 2",
                    "es de una versión posterior del programa (\"version\": 2)"},
             Averia{"\"version\": 1", "\"version\": \"1\"", "\"version\" no es un número entero mayor que 0"},
             Averia{"45.5", "\"mucho\"", "\"valor\" no es un número"},
             Averia{"45.5", "-45.5", "\"valor\" es negativo"},
             Averia{"45.5", "1e999", "hay un número que pasa de lo que cabe"},
             Averia{"\"valor\":45.5,", "", "falta la clave \"valor\""},
             Averia{"1987", "1987.5", "\"anio\" no es un número entero"},
             Averia{"1987", "99999999999999999999", "\"anio\" no es un número entero"},
             Averia{"365", "367", "\"dias\" no está entre 0 y 366"},
             Averia{"\"Quelmar", "7, \"x\": \"", "\"nombre\" no es un texto entre comillas"},
             Averia{"\"lectura_diaria\": true", "\"lectura_diaria\": 1",
                    "\"lectura_diaria\" no es true ni false"},
             Averia{"\"ley\": \"gumbel\"", "\"ley\": \"gumbel\", \"ley\": \"gev\"",
                    "la clave \"ley\" está dos veces"},
             Averia{"{\"anio\":1987", "{{\"anio\":1987", "no es JSON bien formado"},
             Averia{"{\"anio\":1987,\"valor\":45.5,\"dias\":365}", "17",
                    "hace falta un objeto, entre llaves"},
             Averia{"\"tabla\": 1", "\"tabla\": 4", "\"tabla\" no está entre 1 y 3"},
             Averia{"\"duracion_min\": 5.0", "\"duracion_min\": 0", "\"duracion_min\" no es mayor que 0"},
             Averia{"SMN", "Estaci\xF3n", "hay un carácter que no es UTF-8"},
         }) {
        const std::string texto = Reemplaza(sano, d.que, d.por);
        const LecturaDeEstudio lectura = LeeEstudio(texto);
        EXPECT_EQ(lectura.motivo, d.motivo);
        EXPECT_EQ(lectura.renglon, RenglonDe(sano, d.que)) << d.motivo;
        EXPECT_EQ(lectura.estudio, Estudio{}) << d.motivo;
    }
}

TEST(ArchivoEstudio, CortadoEnCualquierByteNuncaEsUnEstudio)
{
    const std::string texto = EscribeEstudio(Lleno());
    for (std::size_t n = 0; n + 2 < texto.size(); ++n) {
        const LecturaDeEstudio lectura = LeeEstudio(std::string_view(texto).substr(0, n));
        ASSERT_NE(lectura.motivo, "") << n;
        ASSERT_LE(lectura.renglon, RenglonDe(texto, "SMN") + 200) << n;
    }
    const std::size_t mitad = texto.find("1988");
    const LecturaDeEstudio cortado = LeeEstudio(std::string_view(texto).substr(0, mitad));
    EXPECT_EQ(cortado.motivo, "el archivo está cortado");
    EXPECT_EQ(cortado.renglon, RenglonDe(texto, "1988"));
}

TEST(ArchivoEstudio, LoQueNoEsJsonNiCabeSeDice)
{
    EXPECT_EQ(LeeEstudio("").motivo, "el archivo está vacío");
    EXPECT_EQ(LeeEstudio(" \r\n\t").motivo, "el archivo está vacío");
    EXPECT_EQ(LeeEstudio(std::string("\x7F"
                                     "ELF\0\1\2",
                                     7))
                  .motivo,
              "no es JSON bien formado");
    EXPECT_EQ(LeeEstudio("[]").motivo, "hace falta un objeto, entre llaves");
    EXPECT_EQ(LeeEstudio("{}").motivo, "falta la clave \"version\"");
    EXPECT_EQ(LeeEstudio(std::string(MaximoDeBytes + 1, ' ')).motivo, "el archivo pasa de 16 MiB");
    EXPECT_EQ(LeeEstudio(std::string(1'000'000, '[')).motivo,
              "hay demasiadas llaves o corchetes, unos dentro de otros");
    std::string claves = "{\"version\":1";
    for (int i = 0; i < 2000; ++i)
        claves += ",\"k" + std::to_string(i) + "\":1";
    EXPECT_EQ(LeeEstudio(claves + "}").motivo, "hay demasiadas claves entre dos llaves");
}

TEST(ArchivoEstudio, LoQueNoVolveriaSeReconoceAntesDeEscribirlo)
{
    Estudio e = Lleno();
    e.taller.estaciones[0].latitud = 200;
    EXPECT_EQ(ReparoDe(e), "\"latitud\" no está entre -90 y 90");
    e = Lleno();
    e.taller.estaciones[0].series[0].maximos[0].valor = std::nan("");
    EXPECT_NE(ReparoDe(e), "");
    e = Lleno();
    e.taller.estaciones[0].notas = "Estaci\xF3n";
    EXPECT_NE(ReparoDe(e), "");
}

TEST(ArchivoEstudio, LosValoresDeUnaObservacionNoEstanEnElTextoPeroTambienHanDeVolver)
{
    Estudio e = Lleno();
    e.ajuste.eventos = {{.nombre = "Marzo",
                         .observaciones = {{.componente = "u-1",
                                            .interpolacion = "lineal",
                                            .archivo = "1",
                                            .puntos = {{0, 1.25}, {10, 7777.5}}}}}};
    EXPECT_EQ(ReparoDe(e), "");
    const std::string texto = EscribeEstudio(e);
    EXPECT_EQ(texto.find("7777"), std::string::npos) << texto;
    EXPECT_NE(texto.find("\"archivo\": \"1\""), std::string::npos) << texto;
    const Observacion leida = LeeEstudio(texto).estudio.ajuste.eventos.at(0).observaciones.at(0);
    EXPECT_EQ(leida.interpolacion, "lineal");
    EXPECT_TRUE(leida.puntos.empty());
    e.ajuste.eventos[0].observaciones[0].puntos[1].minuto = 0;
    EXPECT_EQ(ReparoDe(e), "en u-1 del evento \"Marzo\", valor 2: el tiempo no es posterior al anterior");
    e.ajuste.eventos[0].observaciones[0].puntos[1] = {10, std::nan("")};
    EXPECT_EQ(ReparoDe(e), "en u-1 del evento \"Marzo\", valor 2: no es un número");
    e.ajuste.eventos[0].observaciones[0].puntos = {{0, 1}};
    e.ajuste.eventos[0].peso = -1;
    EXPECT_EQ(ReparoDe(e), "\"peso\" es negativo");
}

TEST(ArchivoEstudio, LaTareaEsElMismoObjetoSinVersion)
{
    const LecturaDeAjuste lectura = LeeAjuste(
        "{\"parametros\": [{\"campo\": \"area\", \"modo\": \"factor\"}],\n\"incertidumbre\": {\"miembros\": "
        "10},"
        "\"algo\": 1}");
    EXPECT_EQ(lectura.motivo, "");
    ASSERT_EQ(lectura.ajuste.parametros.size(), 1U);
    EXPECT_EQ(lectura.ajuste.parametros[0].modo, "factor");
    EXPECT_EQ(lectura.ajuste.incertidumbre.miembros, 10);
    EXPECT_EQ(lectura.ajuste.resto, "{\"algo\":1}");
    const LecturaDeAjuste mala = LeeAjuste("{\n\"incertidumbre\":\n{\"miembros\": 0}}");
    EXPECT_EQ(mala.motivo, "\"miembros\" no está entre 1 y 1000000");
    EXPECT_EQ(mala.renglon, 3);
    EXPECT_EQ(mala.ajuste, Ajuste{});
    EXPECT_EQ(LeeAjuste(" ").motivo, "el archivo está vacío");
}

TEST(ArchivoEstudio, DiezMilAniosVuelven)
{
    Estudio e;
    SerieDeMaximos serie;
    for (int anio = 1; anio < 10'000; ++anio)
        serie.maximos.push_back({anio, anio / 7.0, anio % 367});
    e.taller.estaciones = {{.nombre = "Larga", .series = {serie}}};
    EXPECT_EQ(LeeEstudio(EscribeEstudio(e)).estudio, e);
}

}  // namespace
}  // namespace study
