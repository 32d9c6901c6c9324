// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/ImportaObservada.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "forms/MomentoDeRegistro.h"

namespace calibration {
namespace {

using study::Punto;
using Puntos = std::vector<Punto>;

ImportacionDeObservada Lee(std::string_view texto, const PedidoDeObservada& pedido = {})
{
    return ImportaObservada(texto, pedido);
}

bool Dice(const ImportacionDeObservada& i, std::string_view que)
{
    return std::any_of(i.avisos.begin(), i.avisos.end(),
                       [&](const std::string& aviso) { return aviso.find(que) != std::string::npos; });
}

struct Escritura {
    std::string_view que, texto;
};

TEST(ImportaObservada, LaMismaSerieSeLeeComoquieraQueEsteEscrita)
{
    const Puntos serie{{0, 0.5}, {10, 12.25}, {20, 3}};
    for (const Escritura& e : {
             Escritura{"minutos", "minutos;Q\n0;0.5\n10;12.25\n20;3\n"},
             Escritura{"coma decimal", "0;0,5\r\n10;12,25\r\n20;3\r\n"},
             Escritura{"tabuladores", "0\t0,5\n10\t12,25\n20\t3"},
             Escritura{"blancos", "  0   0.5\n 10  12.25\n 20   3\n"},
             Escritura{"blancos y comas", "0 0,5\n10 12,25\n20 3,0\n"},
             Escritura{"comas", "t,Q\n0,0.5\n10,12.25\n20,3\n"},
             Escritura{"comillas", "\"0\",\"0,5\"\n\"10\",\"12,25\"\n\"20\",\"3\"\n"},
             Escritura{"h:mm", "0:00;0,5\n0:10;12,25\n0:20;3\n"},
             Escritura{"h:mm:ss", "00:00:00 0.5\n00:10:00 12.25\n00:20:00 3\n"},
             Escritura{"fecha y hora", "04/03/2019 23:50;0.5\n05/03/2019 00:00;12.25\n05/03/2019 0:10;3\n"},
             Escritura{"fecha y hora aparte",
                       "04/03/2019;23:50;0.5\n05/03/2019;00:00;12.25\n05/03/2019;0:10;3"},
             Escritura{"ISO",
                       "2019-03-04T23:50:00-03:00,0.5\n2019-03-05T00:00:00-03:00,12.25\n"
                       "2019-03-05T00:10:00-03:00,3\n"},
             Escritura{
                 "a. m.",
                 "1;04/03/19 11:50 p. m.;0,5\n2;05/03/19 12:00 a. m.;12,25\n3;05/03/19 12:10 a. m.;3\n"},
             Escritura{"blancos y fecha",
                       "2019-03-04 23:50 0.5\n2019-03-05 00:00 12.25\n2019-03-05 00:10 3\n"},
             Escritura{"organismo",
                       "# datos\nagencia\tsitio\tfecha\thuso\tQ\nA\t01\t2019-03-04 23:50\tEST\t0.5\n"
                       "A\t01\t2019-03-05 00:00\tEST\t12.25\nA\t01\t2019-03-05 00:10\tEST\t3\n"},
         }) {
        const ImportacionDeObservada i = Lee(e.texto);
        EXPECT_EQ(i.motivo, "") << e.que;
        EXPECT_EQ(i.puntos, serie) << e.que;
        EXPECT_TRUE(i.dudosos.empty()) << e.que << ": " << i.dudosos.front().hecho;
    }
}

TEST(ImportaObservada, CualquierCodificacionSirve)
{
    const std::string utf8 = "Año;Señal\n0;1,5\n5;2\n";
    std::string w1252 =
                    "A\xF1o;Se\xF1"
                    "al\n0;1,5\n5;2\n",
                utf16 = "\xFF\xFE";
    for (const char c : w1252)
        (utf16 += c) += '\0';
    for (const std::string& texto : {utf8, w1252, utf16, "\xEF\xBB\xBF" + utf8}) {
        const ImportacionDeObservada i = Lee(texto);
        EXPECT_EQ(i.puntos, (Puntos{{0, 1.5}, {5, 2}}));
        ASSERT_EQ(i.columnas.size(), 1U);
        EXPECT_EQ(i.columnas[0].nombre, "Señal");
    }
}

TEST(ImportaObservada, LasFechasCuentanDesdeElInicioDelEvento)
{
    const std::string texto = "04/03/2019 11:00;1\n04/03/2019 12:30;2\n";
    PedidoDeObservada pedido{.inicio = forms::MomentoDeRegistro("2019-03-04 12:00")};
    EXPECT_EQ(Lee(texto, pedido).puntos, (Puntos{{-60, 1}, {30, 2}}));
    pedido.desde = 0;
    ImportacionDeObservada i = Lee(texto, pedido);
    EXPECT_EQ(i.puntos, (Puntos{{30, 2}}));
    EXPECT_TRUE(Dice(i, "1 lectura queda fuera de los tiempos pedidos."));
    i = Lee(texto);
    EXPECT_EQ(i.puntos, (Puntos{{0, 1}, {90, 2}}));
    ASSERT_TRUE(i.inicio.has_value());
    EXPECT_EQ(TextoDeMomento(*i.inicio), "2019-03-04 11:00");
    EXPECT_TRUE(Dice(i, "los minutos cuentan desde la primera lectura, 04/03/2019 11:00."));
    pedido = {.inicio = forms::MomentoDeRegistro("2020-01-01 00:00")};
    EXPECT_TRUE(Dice(Lee(texto, pedido), "Ninguna lectura es posterior al inicio"));
}

TEST(ImportaObservada, LasHorasPasanDeVeinticuatroOVuelvenAEmpezar)
{
    EXPECT_EQ(Lee("23:30;1\n24:30;2\n49:00;3\n").puntos, (Puntos{{1410, 1}, {1470, 2}, {2940, 3}}));
    const ImportacionDeObservada i = Lee("23:30;1\n00:30;2\n1:00;3\n23:00;4\n0:10;5");
    EXPECT_EQ(i.puntos, (Puntos{{1410, 1}, {1470, 2}, {1500, 3}, {2820, 4}, {2890, 5}}));
    ASSERT_EQ(i.dudosos.size(), 2U);
    EXPECT_EQ(i.dudosos[1].nro, 5);
    EXPECT_EQ(Lee("0,5 1\n1,25 2\n", {.enHoras = true}).puntos, (Puntos{{30, 1}, {75, 2}}));
}

TEST(ImportaObservada, LaColumnaYSuUnidadSeEligen)
{
    const std::string texto =
        "Fecha;Nivel (cm);Caudal (l/s);Notas\n04/03/2019 12:00;125;1500;-\n"
        "04/03/2019 12:10;130;2250;crecida\n";
    ImportacionDeObservada i = Lee(texto, {.unidad = "cm"});
    EXPECT_EQ(i.columnas, (std::vector<ColumnaDeValores>{{1, "Nivel (cm)"}, {2, "Caudal (l/s)"}}));
    EXPECT_EQ(i.puntos, (Puntos{{0, 1.25}, {10, 1.3}}));
    i = Lee(texto, {.unidad = "l/s", .columna = 2});
    EXPECT_EQ(i.puntos, (Puntos{{0, 1.5}, {10, 2.25}}));
    EXPECT_TRUE(Dice(i, "Los valores, en l/s, se llevan a m3/s."));
    EXPECT_EQ(UnidadEnTexto(i.columnas[0].nombre), "cm");
    EXPECT_EQ(UnidadEnTexto(i.columnas[1].nombre), "l/s");
    EXPECT_EQ(UnidadEnTexto("Discharge, cfs"), "ft3/s");
    EXPECT_EQ(UnidadEnTexto("Q"), "");
    i = Lee("0;100\n1;50", {.unidad = "ft3/s"});
    EXPECT_NEAR(i.puntos[0].valor, 2.8316846592, 1e-14);
    EXPECT_NEAR(Lee("0;10", {.unidad = "ft"}).puntos[0].valor, 3.048, 1e-15);
}

TEST(ImportaObservada, LoQueFaltaQuedaComoHuecoYSeDice)
{
    const ImportacionDeObservada i = Lee("0;1\n10;\n20;-\n30;NA\n40;-999\n50;nan\n60;2\n70;3\n80;4\n");
    EXPECT_EQ(i.puntos, (Puntos{{0, 1}, {60, 2}, {70, 3}, {80, 4}}));
    EXPECT_TRUE(Dice(i, "5 renglones no tienen valor (vacío, -, NA, -999 o parecido): queda como hueco."));
    EXPECT_TRUE(Dice(i, "1 hueco de al menos dos lecturas; el primero, del minuto 0 al 60."));
    EXPECT_TRUE(i.dudosos.empty());
}

TEST(ImportaObservada, NadaSePierdeSinDecirElRenglonYElMotivo)
{
    const ImportacionDeObservada i = Lee("t;Q\n0;1\n20;3\n10;2\n20;5\n0;1\n30;hielo\nfin\n40;-4\n");
    EXPECT_EQ(i.puntos, (Puntos{{0, 1}, {10, 2}, {20, 4}, {40, -4}}));
    std::vector<std::string> dichos;
    for (const auto& d : i.dudosos)
        dichos.push_back(std::to_string(d.nro) + ' ' + d.hecho);
    EXPECT_EQ(dichos, (std::vector<std::string>{
                          "4 el tiempo es anterior al del renglón previo: se pone en su lugar",
                          "5 repite el tiempo del renglón 3 con otro valor: se toma el promedio",
                          "6 el tiempo es anterior al del renglón previo: se pone en su lugar",
                          "6 repite el tiempo del renglón 2 con el mismo valor: cuenta una vez",
                          "7 \"hielo\" no es un número: no se toma",
                          "8 no tiene su tiempo donde los otros: no se toma"}));
    EXPECT_TRUE(Dice(i, "6 renglones dudosos."));
    EXPECT_TRUE(Dice(i, "1 caudal es negativo."));
}

TEST(ImportaObservada, LoQueNoEsUnaSerieSeDice)
{
    EXPECT_EQ(Lee("").motivo, "No hay nada escrito.");
    EXPECT_EQ(Lee("\n ; \n").motivo, "No hay nada escrito.");
    EXPECT_EQ(
        Lee("hola\nchau 3").motivo,
        "Ningún renglón tiene un tiempo (fecha y hora, h:mm o un número) y, detrás, un valor. El primero "
        "dice: hola");
    EXPECT_EQ(Lee("5\n6\n").puntos.size(), 0U);
    EXPECT_EQ(Lee("0;1\n", {.desde = 5}).motivo, "Ninguna lectura está entre los tiempos pedidos.");
}

TEST(ImportaObservada, UnRegistroLargoConMuchasDudasSeAcota)
{
    std::string texto;
    for (int n = 0; n < 3000; ++n)
        texto += std::to_string(n) + ";" + (n % 2 == 0 ? "1" : "x") + "\n";
    const ImportacionDeObservada i = Lee(texto);
    EXPECT_EQ(i.puntos.size(), 1500U);
    EXPECT_EQ(i.dudosos.size(), 500U);
    EXPECT_TRUE(Dice(i, "1500 renglones dudosos; se muestran los primeros 500."));
}

}  // namespace
}  // namespace calibration
