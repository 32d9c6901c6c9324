// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/ImportaTormenta.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <numeric>
#include <string>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "rainfall/dlgImportaTormenta.h"

namespace rainfall {
namespace {

using model::Icono;
using model::Mensaje;
using Laminas = std::vector<float>;

std::int64_t Segundo(const char* fecha, const char* hora, int segundos = 0)
{
    return InstanteDeTextos(fecha, hora) * 60 + segundos;
}

const std::string Horario =
    "Fecha y hora;Lámina [mm]\r\n"
    "17/02/1976 17:00;13\r\n"
    "17/02/1976 18:00;3,5\r\n"
    "17/02/1976 19:00;0\r\n";

// --- reading ---

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

// --- resampling ---

std::vector<LecturaLluvia> Lecturas(std::vector<std::pair<int, double>> minutosYLaminas)
{
    std::vector<LecturaLluvia> lecturas;
    for (const auto& [minutos, lamina] : minutosYLaminas)
        lecturas.push_back({Segundo("01/03/2004", "00:00") + minutos * 60, lamina});
    return lecturas;
}

TEST(RemuestreoDeLluvia, ElPasoDelRegistroDejaLasLaminasComoEstan)
{
    const Remuestreo r = Remuestrea(Lecturas({{10, 1}, {20, 2}, {30, 4}}), 10);
    EXPECT_EQ(r.motivo, "");
    EXPECT_EQ(r.tormenta.laminas, (Laminas{1, 2, 4}));
    EXPECT_EQ(r.tormenta.paso, 10);
    EXPECT_EQ(r.tormenta.comienzo, InstanteDeTextos("01/03/2004", "00:00"));
}

TEST(RemuestreoDeLluvia, UnPasoMayorSumaYUnoMenorReparte)
{
    const auto lecturas = Lecturas({{10, 1}, {20, 2}, {30, 4}});
    EXPECT_EQ(Remuestrea(lecturas, 20).tormenta.laminas, (Laminas{3, 4}));
    EXPECT_EQ(Remuestrea(lecturas, 30).tormenta.laminas, (Laminas{7}));
    EXPECT_EQ(Remuestrea(lecturas, 5).tormenta.laminas, (Laminas{0.5F, 0.5F, 1, 1, 2, 2}));
    // 1 and half of 2; the other half and 4.
    EXPECT_EQ(Remuestrea(lecturas, 15).tormenta.laminas, (Laminas{2, 5}));
}

TEST(RemuestreoDeLluvia, UnHuecoSeReparteDesdeLaLecturaAnterior)
{
    const Remuestreo r = Remuestrea(Lecturas({{10, 1}, {20, 2}, {50, 6}, {60, 0}}), 10);
    EXPECT_EQ(r.tormenta.laminas, (Laminas{1, 2, 2, 2, 2, 0}));
}

TEST(RemuestreoDeLluvia, DosLecturasALaVezSonDelBloqueQueTermina)
{
    const Remuestreo r = Remuestrea(Lecturas({{10, 1}, {10, 5}, {20, 2}, {30, 0}}), 10);
    EXPECT_EQ(r.tormenta.laminas, (Laminas{6, 2, 0}));
}

TEST(RemuestreoDeLluvia, UnaSolaLecturaDura10Minutos)
{
    const Remuestreo r = Remuestrea(Lecturas({{60, 8}}), 5);
    EXPECT_EQ(r.tormenta.laminas, (Laminas{4, 4}));
    EXPECT_EQ(r.tormenta.comienzo, InstanteDeTextos("01/03/2004", "00:50"));
}

TEST(RemuestreoDeLluvia, ElTotalSeConserva)
{
    const auto lecturas = Lecturas({{7, 1.3}, {19, 2.9}, {20, 0.4}, {55, 11.1}, {56, 0}, {131, 3.7}});
    for (const int paso : {1, 2, 3, 5, 7, 10, 60, 200}) {
        const Laminas laminas = Remuestrea(lecturas, paso).tormenta.laminas;
        EXPECT_NEAR(std::accumulate(laminas.begin(), laminas.end(), 0.0), 19.4, 1e-5) << paso;
    }
}

TEST(RemuestreoDeLluvia, TieneSusLimites)
{
    EXPECT_EQ(Remuestrea({}, 10).motivo, "El archivo no tiene ningún renglón con fecha, hora y lámina.");
    EXPECT_EQ(Remuestrea(Lecturas({{10, 1}}), 0).motivo,
              "El paso debe ser un número entero de minutos mayor que 0.");
    // The first reading's step is that of the only gap.
    EXPECT_EQ(Remuestrea(Lecturas({{999, 1}, {1998, 1}}), 2).motivo, "");
    EXPECT_EQ(Remuestrea(Lecturas({{1000, 1}, {2000, 1}}), 2).motivo,
              "Con este paso resultan 1000 intervalos; son 999 a lo sumo. Elija un paso mayor.");
    EXPECT_EQ(Remuestrea(Lecturas({{10, 1}}), 32767).motivo, "");
    EXPECT_EQ(Remuestrea(Lecturas({{10, 1}}), 32768).motivo, "La tormenta dura más de 32767 minutos.");
    EXPECT_EQ(Remuestrea(Lecturas({{20000, 1}, {40000, 1}}), 60).motivo,
              "La tormenta dura más de 32767 minutos.");
}

// --- form ---

class DialogoImporta : public testing::Test {
  protected:
    DialogoImporta()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        disco.Pon("/datos/Llu\"via.csv", "\xEF\xBB\xBF" + Horario);
        anfitrion->elegidos = {"/datos/Llu\"via.csv"};
    }
    void Paso(const char* texto)
    {
        f.cmbPaso = texto;
        cmbPaso_Change(f);
    }
    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgImportaTormenta f;
};

TEST_F(DialogoImporta, MuestraElRegistroComoQuedaria)
{
    ASSERT_TRUE(Abre(f, s));
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblArchivo, "Llu'via.csv");
    EXPECT_EQ(f.lblRegistro, "3 lecturas, del 17/02/1976 17:00 al 17/02/1976 19:00, Pp= 16.5 [mm]");
    EXPECT_EQ(f.cmbPaso, "60");
    EXPECT_EQ(f.lblResultado, "3 intervalos, D= 180 [min], Pp= 16.5 [mm], máxima parcial 13 [mm]");
    EXPECT_TRUE(f.puedeImportar);
    EXPECT_EQ(f.grillaImportada.filas[1].celdas,
              (std::vector<std::string>{"2", "17/02/1976 18:00", "120", "3.5"}));
    EXPECT_EQ(Vista(f).series.at(0).celdas, (std::vector<double>{13, 3.5, 0}));
    OKButton(f);
    EXPECT_TRUE(f.aceptada);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(f.tormenta.notas, "Importada de Llu'via.csv");
}

TEST_F(DialogoImporta, LosRenglonesDudososEstanALaVista)
{
    disco.Pon("/datos/Llu\"via.csv", Horario + "17/02/1976 19:00;0\r\nTotal;16,5\r\n");
    ASSERT_TRUE(Abre(f, s));
    EXPECT_EQ(f.lblRegistro,
              "3 lecturas, del 17/02/1976 17:00 al 17/02/1976 19:00, Pp= 16.5 [mm]; 2 renglones dudosos");
    ASSERT_EQ(f.grillaDudosos.NroFilas(), 2);
    EXPECT_EQ(f.grillaDudosos.filas[0].celdas,
              (std::vector<std::string>{"5", "17/02/1976 19:00;0",
                                        "repite la hora y la lámina del anterior: no se toma"}));
    EXPECT_EQ(f.grillaDudosos.Texto({2, 0}), "6");
    disco.Pon("/datos/Llu\"via.csv", Horario + "Total;16,5\r\n");
    anfitrion->elegidos = {"/datos/Llu\"via.csv"};
    ASSERT_TRUE(Abre(f, s));
    EXPECT_TRUE(f.lblRegistro.ends_with("; 1 renglón dudoso"));
}

TEST_F(DialogoImporta, OtroPasoRehaceLaVistaYUnoMaloDiceQueNoVale)
{
    ASSERT_TRUE(Abre(f, s));
    Paso("30");
    EXPECT_EQ(f.grillaImportada.NroFilas(), 6);
    for (const char* malo : {"", "0", "-5", "2.5", "x", "40000"}) {
        Paso(malo);
        EXPECT_FALSE(f.puedeImportar) << malo;
        EXPECT_EQ(f.lblResultado, "El paso debe ser un número entero de minutos mayor que 0.") << malo;
        EXPECT_EQ(f.grillaImportada.NroFilas(), 0);
        OKButton(f);
        EXPECT_TRUE(f.abierta);
    }
    Paso("60");
    EXPECT_TRUE(f.puedeImportar);
}

TEST_F(DialogoImporta, ElPasoHabitualEstaEntreLosItems)
{
    disco.Pon("/datos/Llu\"via.csv", "01/03/2004 00:07;1\n01/03/2004 00:14;1\n");
    ASSERT_TRUE(Abre(f, s));
    EXPECT_EQ(f.cmbPaso, "7");
    EXPECT_EQ(f.itemsPaso[1], "7");
    EXPECT_EQ(f.itemsPaso.size(), PasosDeTiempo.size() + 1);
}

TEST_F(DialogoImporta, SinElegirNoSeAbreNada)
{
    anfitrion->elegidos.clear();
    EXPECT_FALSE(Abre(f, s));
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(anfitrion->Avisos().empty());
    CancelButton(f);
    EXPECT_FALSE(f.aceptada);
}

TEST_F(DialogoImporta, UnArchivoQueNoSirveSeDice)
{
    disco.Pon("/datos/Llu\"via.csv", "nada");
    EXPECT_FALSE(Abre(f, s));
    anfitrion->elegidos = {"/datos/otro.csv"};
    EXPECT_FALSE(Abre(f, s));
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<Mensaje>{{"El archivo no tiene ningún renglón con fecha, hora y lámina.",
                               "Advertencia !", Icono::Exclamacion},
                              {"Error Nro. 53No se encontró el archivo ,Verifique", "", Icono::Ninguno}}));
}

}  // namespace
}  // namespace rainfall
