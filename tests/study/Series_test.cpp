// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Series.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace study {
namespace {

Observacion Llena()
{
    return {.componente = "u-1",
            .puntos = {{-30.5, 0}, {0, 0.1 + 0.2}, {10, 5e-324}, {20, std::numeric_limits<double>::max()}}};
}

TEST(Series, LoQueSeEscribeVuelveConTodasSusCifras)
{
    Observacion o = Llena();
    EXPECT_EQ(EscribeSerie(o),
              "minutos [min];caudal [m3/s];4 valores\n-30.5;0\n0;0.30000000000000004\n"
              "10;5e-324\n20;1.7976931348623157e+308\n");
    EXPECT_EQ(LeeSerie(EscribeSerie(o), "caudal").puntos, o.puntos);
    o.magnitud = "nivel";
    const LecturaDeSerie lectura = LeeSerie(EscribeSerie(o), "nivel");
    EXPECT_EQ(lectura.puntos, o.puntos);
    EXPECT_EQ(lectura.motivo, "");
    EXPECT_EQ(lectura.renglon, 0);
}

TEST(Series, CortadaEnCualquierByteNuncaEsUna)
{
    const std::string texto = EscribeSerie(Llena());
    for (std::size_t n = 0; n < texto.size(); ++n) {
        const LecturaDeSerie lectura = LeeSerie(std::string_view(texto).substr(0, n), "caudal");
        ASSERT_NE(lectura.motivo, "") << n;
        ASSERT_TRUE(lectura.puntos.empty()) << n;
        ASSERT_GE(lectura.renglon, 1) << n;
    }
}

TEST(Series, UnaEscritaAManoNoHaceFaltaQueDigaCuantosValoresTiene)
{
    const std::vector<Punto> puntos{{0, 0.4}, {10, 1.25}};
    EXPECT_EQ(LeeSerie("minutos;caudal [m3/s]\n0;0.4\n10;1.25", "caudal").puntos, puntos);
    EXPECT_EQ(
        LeeSerie("\xEF\xBB\xBFminutos [min];caudal [m3/s];\r\n\r\n0;0,4;x\r\n10 ; 1,25\r\n", "caudal").puntos,
        puntos);
}

struct Averia {
    std::string_view texto, motivo;
    int renglon;
};

TEST(Series, LoDanadoSeDiceConSuRenglon)
{
    for (const Averia& a : {
             Averia{"", "está vacía", 1},
             Averia{"\n\n0;1\n", "está vacía", 1},
             Averia{"0;0.4\n", "no empieza con el encabezado \"minutos [min];caudal [m3/s]\"", 1},
             Averia{"\x7F"
                    "ELF",
                    "no empieza con el encabezado \"minutos [min];caudal [m3/s]\"", 1},
             Averia{"minutos;nivel [m]\n0;1\n",
                    "la segunda columna no es \"caudal [m3/s]\", como dice el estudio", 1},
             Averia{"minutos;caudal [l/s]\n0;1\n",
                    "la segunda columna no es \"caudal [m3/s]\", como dice el estudio", 1},
             Averia{"minutos;caudal [m3/s];dos valores\n0;1\n",
                    "el encabezado no dice cuántos valores hay: está cortado", 1},
             Averia{"minutos;caudal [m3/s]\n0;1\nx;2\n", "los minutos no son un número", 3},
             Averia{"minutos;caudal [m3/s]\n0;1\n5\n", "falta el valor, o no es un número", 3},
             Averia{"minutos;caudal [m3/s]\n0;1\n5;nan\n", "falta el valor, o no es un número", 3},
             Averia{"minutos;caudal [m3/s]\n0;1e999\n", "falta el valor, o no es un número", 2},
             Averia{"minutos;caudal [m3/s]\n0;1\n\n0;2\n", "el tiempo no es posterior al anterior", 4},
             Averia{"minutos;caudal [m3/s];2 valores\n0;1\n",
                    "hay 1 valores enteros y el encabezado dice 2: está cortada", 2},
             Averia{"minutos;caudal [m3/s]\n", "no tiene valores", 1},
         }) {
        const LecturaDeSerie lectura = LeeSerie(a.texto, "caudal");
        EXPECT_EQ(lectura.motivo, a.motivo) << a.texto;
        EXPECT_EQ(lectura.renglon, a.renglon) << a.texto;
        EXPECT_TRUE(lectura.puntos.empty());
    }
}

TEST(Series, ElNombreDeSuArchivoQuedaEnLaCarpeta)
{
    EXPECT_EQ(BaseDeSeries("/proy/P_Estudio.json"), "/proy/P");
    EXPECT_EQ(BaseDeSeries("/proy/tarea.json"), "/proy/tarea");
    EXPECT_EQ(RutaDeSerie("/proy/P", "12"), "/proy/P_serie_12.csv");
    for (const std::string_view malo : {"", "..", "a/b", "a\\b", "á", "1 2"})
        EXPECT_EQ(RutaDeSerie("/proy/P", malo), "") << malo;
    EXPECT_EQ(RutaDeSerie("/proy/P", std::string(61, '1')), "");
}

}  // namespace
}  // namespace study
