// SPDX-License-Identifier: GPL-3.0-or-later
//
// The delivered sample project, run by the real program on a copy of the delivered data.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "batch/ResultadosCsv.h"
#include "checks/ProyectoAparte.h"
#include "e2e/Programa.h"
#include "engine/modProceso0.h"
#include "model/Siro.h"

namespace {

namespace fs = std::filesystem;

using apoyo::BytesDeArchivo;
using apoyo::MismoTexto;
using e2e::Lote;
using e2e::Salida;

/// A copy of the delivered data, since a run writes beside its project.
class Muestra : public testing::Test {
  protected:
    void SetUp() override
    {
        std::string plantilla = (fs::temp_directory_path() / "siro-muestra-XXXXXX").string();
        ASSERT_NE(mkdtemp(plantilla.data()), nullptr);
        dir = fs::canonical(plantilla).string();
        fs::copy(SIRO_DATA_DIR, dir, fs::copy_options::recursive);
        conf = dir + "/Proyectos/Quelmar_Conf.vlm";
        ASSERT_TRUE(fs::exists(conf));
    }
    void TearDown() override
    {
        std::error_code error;
        fs::remove_all(dir, error);
    }
    [[nodiscard]] Salida Corre(const char* orden, std::vector<std::string> opciones = {}) const
    {
        opciones.insert(opciones.begin(), {orden, conf, "--trabajo", dir, "--resultados", dir + "/r.csv"});
        return Lote(opciones, "/");
    }
    [[nodiscard]] std::string Csv() const { return BytesDeArchivo(dir + "/r.csv"); }

    std::string dir, conf;
};

/// Rows of a CSV file behind its head, by column. The sample's names hold no comma.
std::vector<std::vector<std::string>> Filas(const std::string& csv)
{
    std::vector<std::vector<std::string>> filas;
    std::istringstream lineas(csv);
    std::string linea;
    std::getline(lineas, linea);
    while (std::getline(lineas, linea)) {
        std::vector<std::string> campos(1);
        for (const char letra : linea) {
            if (letra == ',')
                campos.emplace_back();
            else
                campos.back() += letra;
        }
        filas.push_back(std::move(campos));
    }
    return filas;
}

TEST_F(Muestra, CorreSinPreguntasNiErrores)
{
    const Salida s = Corre("una");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.estandar, "");
    EXPECT_EQ(s.errores.find(" -> "), std::string::npos) << s.errores;
    EXPECT_EQ(s.errores.find("Error"), std::string::npos) << s.errores;
    EXPECT_EQ(s.errores.find("[Advertencia"), std::string::npos) << s.errores;
}

// What the menu does, in this process: the same bits.
TEST_F(Muestra, DaLoMismoQueLaCorridaDelMenu)
{
    ASSERT_EQ(Corre("una", {"--pp", "75.5", "--dur", "90", "--paso-q", "5"}).estado, 0);
    model::Siro s;
    s.Proyecto.DirTrabajo = dir;
    checks::AbreProyecto(s, conf);
    s.Tormenta.PpTormenta = 75.5F;
    s.Tormenta.DurTormenta = 90;
    s.Pasos.PasoPp = 10;
    s.Pasos.PasoQ = 5;
    ASSERT_TRUE(engine::CorreUnaTormenta(s));
    batch::GuardaCsvTormenta(s, dir + "/menu.csv");
    EXPECT_TRUE(MismoTexto(BytesDeArchivo(dir + "/menu.csv"), Csv()));
}

// Sixty minutes of rain reach the foot of every UEH, and dams and lake only lower what the basin would give
// at once.
TEST_F(Muestra, LosCaudalesSonVerosimiles)
{
    ASSERT_EQ(Corre("una").estado, 0);
    std::map<std::string, float> pico;
    std::string ultimo;
    float sumaDePicos = 0;
    for (const auto& fila : Filas(Csv())) {
        ASSERT_EQ(fila.size(), 7U);
        ultimo = fila[0];
        pico[ultimo] = std::max(pico[ultimo], std::stof(fila[4]));
        EXPECT_GE(std::stof(fila[4]), 0) << ultimo << " " << fila[1];
    }
    for (const auto& [nombre, q] : pico) {
        EXPECT_GT(q, 0) << nombre;
        if (nombre.starts_with("u-")) sumaDePicos += q;
    }
    EXPECT_LT(pico[ultimo], sumaDePicos);
    EXPECT_GE(pico.size(), 25U);  // about 15 UEHs and 12 reaches, two dams, a lake
}

TEST_F(Muestra, MasLluviaDaMayoresPicos)
{
    const auto mayor = [&](const char* pp) {
        EXPECT_EQ(Corre("una", {"--pp", pp}).estado, 0);
        float q = 0;
        for (const auto& fila : Filas(Csv()))
            q = std::max(q, std::stof(fila[4]));
        return q;
    };
    const float con40 = mayor("40"), con60 = mayor("60"), con80 = mayor("80");
    EXPECT_LT(con40, con60);
    EXPECT_LT(con60, con80);
}

TEST_F(Muestra, LaSerieDaLoMismoConUnoYDosHilos)
{
    ASSERT_EQ(Corre("serie", {"--hilos", "1"}).estado, 0);
    const std::string uno = Csv();
    ASSERT_EQ(Corre("serie", {"--hilos", "2"}).estado, 0);
    EXPECT_TRUE(MismoTexto(uno, Csv()));
    EXPECT_GE(std::count(uno.begin(), uno.end(), '\n'), 25);
    // The last component is the basin, and its volume grows with the rain of a storm.
    const auto filas = Filas(uno);
    ASSERT_EQ(filas.back()[0], "*");
    float menorP = 1e9F, mayorP = 0;
    double conMenor = 0, conMayor = 0;
    for (const auto& fila : filas) {
        if (fila[0] != "*") continue;
        const float p = std::stof(fila[2]);
        if (p < menorP) {
            menorP = p;
            conMenor = std::stod(fila[6]);
        }
        if (p > mayorP) {
            mayorP = p;
            conMayor = std::stod(fila[6]);
        }
    }
    EXPECT_LT(menorP, mayorP);
    EXPECT_LT(conMenor, conMayor);
}

}  // namespace
