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
#include "model/Disco.h"
#include "rainfall/dlgImportaTormenta.h"

namespace rainfall {

using forms::InstanteDeTextos;
using forms::LecturaLluvia;

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

const std::string Archivo = model::Ruta("/datos", "Llu\"via.csv");

class DialogoImporta : public testing::Test {
  protected:
    DialogoImporta()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        disco.Pon(Archivo, "\xEF\xBB\xBF" + Horario);
        anfitrion->elegidos = {Archivo};
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
    disco.Pon(Archivo, Horario + "17/02/1976 19:00;0\r\nTotal;16,5\r\n");
    ASSERT_TRUE(Abre(f, s));
    EXPECT_EQ(f.lblRegistro,
              "3 lecturas, del 17/02/1976 17:00 al 17/02/1976 19:00, Pp= 16.5 [mm]; 2 renglones dudosos");
    ASSERT_EQ(f.grillaDudosos.NroFilas(), 2);
    EXPECT_EQ(f.grillaDudosos.filas[0].celdas,
              (std::vector<std::string>{"5", "17/02/1976 19:00;0",
                                        "repite la hora y la lámina del anterior: no se toma"}));
    EXPECT_EQ(f.grillaDudosos.Texto({2, 0}), "6");
    disco.Pon(Archivo, Horario + "Total;16,5\r\n");
    anfitrion->elegidos = {Archivo};
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
    disco.Pon(Archivo, "01/03/2004 00:07;1\n01/03/2004 00:14;1\n");
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
    disco.Pon(Archivo, "nada");
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
