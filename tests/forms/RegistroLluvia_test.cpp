// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/RegistroLluvia.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "forms/Calendario.h"

namespace forms {
namespace {

std::int64_t Segundo(const char* fecha, const char* hora, int segundos = 0)
{
    return InstanteDeTextos(fecha, hora) * 60 + segundos;
}

const std::string Horario =
    "Fecha y hora;Lámina [mm]\r\n"
    "17/02/1976 17:00;13\r\n"
    "17/02/1976 18:00;3,5\r\n"
    "17/02/1976 19:00;0\r\n";

TEST(RegistroDeLluvia, FechaHoraYLaminaConEncabezado)
{
    const RegistroLluvia r = LeeRegistroLluvia(Horario);
    EXPECT_EQ(r.motivo, "");
    EXPECT_EQ(r.lecturas, (std::vector<LecturaLluvia>{{Segundo("17/02/1976", "17:00"), 13},
                                                      {Segundo("17/02/1976", "18:00"), 3.5},
                                                      {Segundo("17/02/1976", "19:00"), 0}}));
}

TEST(RegistroDeLluvia, LasMismasLecturasConOtrasFormas)
{
    const std::vector<LecturaLluvia> esperadas = {{Segundo("01/03/2004", "08:05"), 1.25}};
    for (const char* csv :
         {"01/03/2004 08:05;1,25", "01/03/2004;08:05;1.25;otra cosa", "2004-03-01 08:05,1.25",
          "2004-03-01T08:05:00,1.25\n", "2004/03/01\t8:05\t1,25\r\n", "\"01-03-2004 08:05\",\"1.25\"",
          "\r\n\r\nEstación 12;;\r\n1/3/2004 8:05 ; 1.25\r\n\r\n", "a,b\n01/03/2004,08:05,1.25,\n"}) {
        const RegistroLluvia r = LeeRegistroLluvia(csv);
        EXPECT_EQ(r.motivo, "") << csv;
        EXPECT_EQ(r.lecturas, esperadas) << csv;
    }
}

TEST(RegistroDeLluvia, LosSegundosYElFinDelDiaCuentan)
{
    const RegistroLluvia r =
        LeeRegistroLluvia("01/03/2004 23:59:30;1\n01/03/2004 24:00;2\n02/03/2004 00:00:59;3");
    ASSERT_EQ(r.lecturas.size(), 3U) << r.motivo;
    EXPECT_EQ(r.lecturas[0].segundo, Segundo("01/03/2004", "23:59", 30));
    EXPECT_EQ(r.lecturas[1].segundo, Segundo("02/03/2004", "00:00"));
    EXPECT_EQ(r.lecturas[2].segundo, Segundo("02/03/2004", "00:00", 59));
}

struct CasoMalo {
    const char* csv;
    const char* motivo;
};

TEST(RegistroDeLluvia, LoQueNoSirveSeDiceConSuRenglon)
{
    for (const CasoMalo& caso :
         {CasoMalo{"", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"hola\nchau\n", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"01/03/204 08:05;1", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"31/02/2004 08:05;1", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"01/03/2004 08:65;1", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"01/03/2004 08:05:60;1", "El archivo no tiene ningún renglón con fecha, hora y lámina."},
          {"01/03/2004 08:05;1\n01/03/2004 08:10;-1\n", "Renglón 2: la lámina es negativa."},
          {"01/03/2004 08:05;-1\n", "Renglón 1: la lámina es negativa."},
          {"01/03/2004 08:05;1\n01/03/2004 08:04;1\n",
           "Renglón 2: el tiempo es anterior al del renglón previo."}}) {
        const RegistroLluvia r = LeeRegistroLluvia(caso.csv);
        EXPECT_EQ(r.motivo, caso.motivo) << caso.csv;
        EXPECT_TRUE(r.lecturas.empty()) << caso.csv;
    }
}

TEST(RegistroDeLluvia, LasComillasEncierranComasDecimales)
{
    const RegistroLluvia r = LeeRegistroLluvia(
        "\"Fecha\",\"Lámina, en \"\"mm\"\"\"\r\n\"01/03/2004 "
        "08:05\",\"1,5\"\r\n\"01/03/2004\",\"08:10\",\"0,25\"\r\n");
    EXPECT_EQ(r.motivo, "");
    EXPECT_EQ(r.lecturas, (std::vector<LecturaLluvia>{{Segundo("01/03/2004", "08:05"), 1.5},
                                                      {Segundo("01/03/2004", "08:10"), 0.25}}));
    EXPECT_TRUE(r.dudosos.empty());
}

// Each is the record of 1.25 mm at 20:05 and 0.5 mm at 20:10.
TEST(RegistroDeLluvia, ComoLoEscribenOtrosAparatos)
{
    const std::vector<LecturaLluvia> esperadas = {{Segundo("01/03/2004", "20:05"), 1.25},
                                                  {Segundo("01/03/2004", "20:10"), 0.5}};
    const auto utf16 = [](std::string_view texto, bool primeroElAlto, bool conMarca) {
        std::string bytes = conMarca ? std::string(primeroElAlto ? "\xFE\xFF" : "\xFF\xFE") : std::string{};
        for (const char c : texto) {
            if (primeroElAlto) bytes += '\0';
            bytes += c;
            if (!primeroElAlto) bytes += '\0';
        }
        return bytes;
    };
    constexpr std::string_view Unicode = "t;P\r\n01/03/2004 20:05;1,25\r\n01/03/2004 20:10;0,5\r\n";
    const std::vector<std::string> registros = {
        utf16(Unicode, false, true),
        utf16(Unicode, true, true),
        utf16(Unicode, false, false),
        utf16(Unicode, true, false),
        "\xEF\xBB\xBF\"01/03/2004 20:05\";1,25\n01/03/2004 20:10;0,5",
        "t;P\r01/03/2004 20:05;1,25\r01/03/2004 20:10;0,5\r",
        "01/03/2004 8:05 PM,1.25\n01/03/2004 08:10 pm,0.5\n",
        "01/03/2004;8:05:00 p. m.;1,25\n01/03/2004;8:10:00 p.m.;0,5\n",
        "01/03/2004 8:05\xC2\xA0p.\xC2\xA0m.;1,25\n01/03/2004 8:10 p.\xE2\x80\xAFm.;0,5\n",
        "L\xE1mina\n01/03/2004 8:05\xA0p.\xA0m.;1,25\n01/03/2004 8:10\xA0p.m.;0,5\n",
        "2004-03-01T20:05:00Z,1.25\n2004-03-01T20:10:00Z,0.5\n",
        "2004-03-01T20:05:00.000Z,1.25\n2004-03-01 20:10:00.500,0.5\n",
        "2004-03-01T20:05:00-03:00,1.25\n2004-03-01T20:10-03:00,0.5\n",
        "2004-03-01 20:05:00,000;1,25\n2004-03-01 20:10:00,000;0,5\n",
        "01/03/04 20:05;1,25\n01-03-04 20:10;0,5\n",
        "Nro;Fecha;P\n1;01/03/2004 20:05;1,25\n2;01/03/2004 20:10;0,5\n",
        "1\t01/03/2004\t20:05\t1,25\n2\t01/03/2004\t20:10\t0,5\n",
        "01/03/2004 20:05 1,25\n01/03/2004   20:10   0.5\n",
        "  1 01/03/2004 8:05 PM 1.25\n  2 01/03/2004 8:10 PM 0.5\n",
        "Estación Quelmar; datos de 2004\n01/03/2004 20:05,1.25\n01/03/2004 20:10,0.5\n",
        "\n;;\n01/03/2004 20:05;1,25;\n\n;;;\n01/03/2004 20:10;0,5;;\n\n",
    };
    for (const std::string& registro : registros) {
        const RegistroLluvia r = LeeRegistroLluvia(registro);
        EXPECT_EQ(r.motivo, "") << registro;
        EXPECT_EQ(r.lecturas, esperadas) << registro;
        EXPECT_TRUE(r.dudosos.empty()) << registro;
    }
}

TEST(RegistroDeLluvia, DeMadrugadaYAlMediodia)
{
    const RegistroLluvia r =
        LeeRegistroLluvia("01/03/2004 12:05 AM;1\n01/03/2004 1:00 a. m.;1\n01/03/2004 12:00 PM;1\n");
    ASSERT_EQ(r.lecturas.size(), 3U);
    EXPECT_EQ(r.lecturas[0].segundo, Segundo("01/03/2004", "00:05"));
    EXPECT_EQ(r.lecturas[1].segundo, Segundo("01/03/2004", "01:00"));
    EXPECT_EQ(r.lecturas[2].segundo, Segundo("01/03/2004", "12:00"));
    EXPECT_FALSE(LeeRegistroLluvia("01/03/2004 13:00 PM;1").motivo.empty());
    EXPECT_FALSE(LeeRegistroLluvia("01/03/2004 0:30 AM;1").motivo.empty());
}

TEST(RegistroDeLluvia, DosCifrasDelAnoSonDelSigloMasCercano)
{
    const RegistroLluvia r = LeeRegistroLluvia("01/03/50 08:00;1\n01/03/99 08:00;1\n01/03/49 08:00;1\n");
    ASSERT_EQ(r.lecturas.size(), 3U);
    EXPECT_EQ(r.lecturas[0].segundo, Segundo("01/03/1950", "08:00"));
    EXPECT_EQ(r.lecturas[1].segundo, Segundo("01/03/1999", "08:00"));
    EXPECT_EQ(r.lecturas[2].segundo, Segundo("01/03/2049", "08:00"));
}

using Dudosos = std::vector<RenglonDudoso>;

TEST(RegistroDeLluvia, LoDudosoSeCuentaConSuRenglonYLoQueSeHace)
{
    constexpr const char* Falta = "no tiene fecha, hora y lámina: no se toma";
    const RegistroLluvia r = LeeRegistroLluvia(
        "Estación 12;mm\n"      // a heading
        "01/0x/2004 08:00;9\n"  // a first reading, damaged
        "01/03/2004 08:05;1\n"
        "01/03/2004 08:10;\n"
        "01/03/2004 08:15;1e39\n"
        "01/03/2004 08:20;2\n"
        "01/03/2004 08:20;2\n"
        "01/03/2004 08:20;2,0\n"
        "01/03/2004 08:25;3\n"
        "01/03/2004 08:25;4\n"
        "Total;10\n");
    EXPECT_EQ(r.motivo, "");
    EXPECT_EQ(r.lecturas, (std::vector<LecturaLluvia>{{Segundo("01/03/2004", "08:05"), 1},
                                                      {Segundo("01/03/2004", "08:20"), 2},
                                                      {Segundo("01/03/2004", "08:25"), 3},
                                                      {Segundo("01/03/2004", "08:25"), 4}}));
    EXPECT_EQ(r.dudosos,
              (Dudosos{{2, "01/0x/2004 08:00;9", Falta},
                       {4, "01/03/2004 08:10;", Falta},
                       {5, "01/03/2004 08:15;1e39", Falta},
                       {7, "01/03/2004 08:20;2", "repite la hora y la lámina del anterior: no se toma"},
                       {8, "01/03/2004 08:20;2,0", "repite la hora y la lámina del anterior: no se toma"},
                       {10, "01/03/2004 08:25;4", "repite la hora del anterior con otra lámina: se suman"},
                       {11, "Total;10", Falta}}));
}

// A first reading that lost its depth, or its quote, leaves one field only: it is no heading for that.
TEST(RegistroDeLluvia, LaPrimeraLecturaDannadaNoPasaPorEncabezado)
{
    for (const std::string primera : {"05/03/2024 10:00", "05/03/2024", "7;05/03/2024 10:00",
                                      "2024-03-05T10:00Z", "\"05/03/2024 10:00;1.5"}) {
        const RegistroLluvia r = LeeRegistroLluvia("Fecha;mm\n" + primera + "\n05/03/2024 10:10;2.5\n");
        EXPECT_EQ(r.lecturas, (std::vector<LecturaLluvia>{{Segundo("05/03/2024", "10:10"), 2.5}})) << primera;
        ASSERT_EQ(r.dudosos.size(), 1U) << primera;
        EXPECT_EQ(r.dudosos[0].nro, 2) << primera;
        EXPECT_EQ(r.dudosos[0].texto, primera);
    }
}

// What is no record is known by its first 10,000 lines with text; empty ones count for their numbers alone.
TEST(RegistroDeLluvia, UnTextoLargoSeJuzgaPorSuComienzo)
{
    const std::string lectura = "05/03/2024;10:00;1.5\n", malo = "05/03/2024;10:10;x\n";
    std::string titulos;
    for (int i = 1; i < 10000; ++i)
        titulos += "Estacion\n";
    const auto conTitulos = LeeRegistroLluvia(titulos + lectura);
    EXPECT_EQ(conTitulos.motivo, "");
    EXPECT_EQ(conTitulos.lecturas.size(), 1U);
    EXPECT_EQ(LeeRegistroLluvia(titulos + "Otra\n" + lectura).motivo, SinLecturas);

    const auto conVacios = LeeRegistroLluvia(std::string(200000, '\n') + lectura + malo);
    EXPECT_EQ(conVacios.lecturas.size(), 1U);
    ASSERT_EQ(conVacios.dudosos.size(), 1U);
    EXPECT_EQ(conVacios.dudosos[0].nro, 200002);
}

TEST(RegistroDeLluvia, UnArchivoDeTextoCualquieraNoTieneLecturas)
{
    EXPECT_EQ(LeeRegistroLluvia(std::string(100000, '"')).motivo,
              "El archivo no tiene ningún renglón con fecha, hora y lámina.");
    EXPECT_FALSE(LeeRegistroLluvia(std::string("\xFF\xFE\0\xD8x", 5)).motivo.empty());
}

RC_GTEST_PROP(PropiedadesRegistro, SeLeaLoQueSeLeaLasLecturasEstanEnOrdenYLosDudososEnElTexto, ())
{
    // What records are made of, so that some of it is one.
    const std::vector<std::string> trozos = {"01/03/2004", "1/3/04",   "2004-03-01T",
                                             " ",          "08:05",    ":30",
                                             ".5",         "Z",        "PM",
                                             "p. m.",      ";",        ",",
                                             "\t",         "\"",       "\n",
                                             "\r",         "1",        "0,5",
                                             "-2",         "Total",    std::string(1, '\0'),
                                             "\xA0",       "\xFF\xFE", "ñ"};
    std::string bytes;
    for (const auto i :
         *rc::gen::container<std::vector<std::size_t>>(rc::gen::inRange<std::size_t>(0, trozos.size())))
        bytes += trozos[i];
    const RegistroLluvia r = LeeRegistroLluvia(bytes);
    RC_ASSERT(r.lecturas.empty() == !r.motivo.empty());
    for (std::size_t i = 0; i < r.lecturas.size(); ++i) {
        RC_ASSERT(r.lecturas[i].lamina >= 0);
        RC_ASSERT((i == 0 || r.lecturas[i].segundo >= r.lecturas[i - 1].segundo));
    }
    for (std::size_t i = 1; i < r.dudosos.size(); ++i)
        RC_ASSERT(r.dudosos[i].nro > r.dudosos[i - 1].nro);
}

TEST(RegistroDeLluvia, ElPasoHabitualEsElMasFrecuenteYElMenorDeVarios)
{
    const auto paso = [](std::vector<int> minutos) {
        std::vector<LecturaLluvia> lecturas;
        for (const int m : minutos)
            lecturas.push_back({m * 60, 1});
        return PasoHabitual(lecturas);
    };
    EXPECT_EQ(paso({0, 10, 20, 80, 90}), 10);
    EXPECT_EQ(paso({0, 60, 70}), 10);
    EXPECT_EQ(paso({5}), 10);
    EXPECT_EQ(paso({5, 5}), 1);
    EXPECT_EQ(paso({}), 10);
}

TEST(RegistroDeLluvia, UnaFechaSolaVaAlFinDeSuDiaDondeSeAdmite)
{
    const std::string diario =
        "Fecha;mm\r\n28/02/1976;13\r\n29/02/1976;3,5\r\n01/03/1976;NA\r\n02/03/1976;0\r\n";
    EXPECT_EQ(LeeRegistroLluvia(diario).motivo, SinLecturas);
    const RegistroLluvia r = LeeRegistroLluvia(diario, {.soloFecha = true});
    EXPECT_EQ(r.motivo, "");
    EXPECT_EQ(r.lecturas, (std::vector<LecturaLluvia>{{Segundo("29/02/1976", "00:00"), 13},
                                                      {Segundo("01/03/1976", "00:00"), 3.5},
                                                      {Segundo("03/03/1976", "00:00"), 0}}));
    ASSERT_EQ(r.dudosos.size(), 1U);
    EXPECT_EQ(r.dudosos[0].nro, 4);
    EXPECT_EQ(LeeRegistroLluvia("nada", {.soloFecha = true}).motivo, SinLecturasDelDia);
    EXPECT_EQ(LeeRegistroLluvia(Horario, {.soloFecha = true}).lecturas, LeeRegistroLluvia(Horario).lecturas);
    EXPECT_EQ(LeeRegistroLluvia("1976-02-28,1.5\n1976-02-29,2\n", {.soloFecha = true}).lecturas.size(), 2U);
}

TEST(RegistroDeLluvia, SePuedeDetenerYLosDudososAcotarse)
{
    std::string texto;
    for (int dia = 0; dia < 20'000; ++dia)
        texto +=
            dia % 2 == 0 ? "01/03/2004 10:00;x\n" : TextoFecha(Instante{dia} * MinutosPorDia) + " 10:00;1\n";
    const RegistroLluvia entero = LeeRegistroLluvia(texto);
    EXPECT_EQ(entero.lecturas.size(), 10'000U);
    EXPECT_EQ(entero.dudosos.size(), 10'000U);
    const RegistroLluvia corto = LeeRegistroLluvia(texto, {.maximoDudosos = 3});
    EXPECT_EQ(corto.lecturas, entero.lecturas);
    EXPECT_EQ(corto.dudosos.size() + corto.masDudosos, 10'000U);
    EXPECT_EQ(corto.dudosos.size(), 3U);

    std::vector<std::size_t> hechos;
    const RegistroLluvia parado = LeeRegistroLluvia(texto, {.avance = [&](std::size_t n, std::size_t total) {
                                                        EXPECT_EQ(total, texto.size());
                                                        hechos.push_back(n);
                                                        return hechos.size() < 3;
                                                    }});
    EXPECT_EQ(parado.motivo, LecturaCancelada);
    EXPECT_TRUE(parado.lecturas.empty());
    ASSERT_EQ(hechos.size(), 3U);
    EXPECT_EQ(hechos[0], 0U);
    EXPECT_LT(hechos[1], hechos[2]);
}

}  // namespace
}  // namespace forms
