// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is installed, moved to another place and used from there: the data are found from the executables
// alone.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "e2e/Programa.h"
#ifdef SIRO_ESCRITORIO
#include "e2e/Pantalla.h"
#endif

namespace {

namespace fs = std::filesystem;
using apoyo::BytesDeArchivo;
using apoyo::MismoTexto;
using e2e::Salida;

/// One way to install, and where it puts things; the program's own directory is its folder or the user's.
struct Disposicion {
    const char* nombre;
    std::vector<std::string> opciones;
    const char *programas, *datos;
    bool delUsuario;
};

void PrintTo(const Disposicion& d, std::ostream* salida)
{
    *salida << d.nombre;
}

class Instalado : public testing::TestWithParam<Disposicion> {
  protected:
    void SetUp() override
    {
        std::string plantilla = (fs::temp_directory_path() / "siro-instalado-XXXXXX").string();
        ASSERT_NE(mkdtemp(plantilla.data()), nullptr);
        raiz = fs::canonical(plantilla).string();
        std::vector<std::string> palabras{"--install", SIRO_BUILD_DIR, "--prefix", raiz + "/antes"};
        palabras.insert(palabras.end(), GetParam().opciones.begin(), GetParam().opciones.end());
        const Salida instalacion = e2e::Ejecuta(SIRO_CMAKE, palabras, "/");
        ASSERT_EQ(instalacion.estado, 0) << instalacion.errores;
        lugar = raiz + "/otro lugar, más lejos";
        fs::rename(raiz + "/antes", lugar);
        programas = fs::path(lugar + "/" + GetParam().programas).lexically_normal().string();
        datos = fs::path(lugar + "/" + GetParam().datos).lexically_normal().string();
        propio = GetParam().delUsuario ? raiz + "/casa/SIRO/siro" : programas;
        fs::create_directory(raiz + "/casa");
    }
    void TearDown() override
    {
        std::error_code error;
        fs::remove_all(raiz, error);
    }
    [[nodiscard]] bool EstaLoEntregadoEn(const std::string& directorio) const
    {
        return fs::exists(directorio + "/TablasPDRs_pdr.vlm") &&
               fs::exists(directorio + "/distriPp_dpt.vlm") &&
               fs::exists(directorio + "/Proyectos/Quelmar_Conf.vlm") &&
               fs::exists(directorio + "/Ayuda/indice.html");
    }

    /// What stands in the folder of the programs.
    [[nodiscard]] std::vector<std::string> Programas() const
    {
        std::vector<std::string> nombres;
        for (const auto& i : fs::directory_iterator(programas))
            nombres.push_back(i.path().filename().string());
        return nombres;
    }

    std::string raiz, lugar, programas, datos, propio;
};

// The delivered tables have come to the program's own directory, and the result files lie there.
TEST_P(Instalado, SiroLoteHallaSusTablasYDaLoMismo)
{
    ASSERT_TRUE(EstaLoEntregadoEn(datos));
    const std::string antes = raiz + "/sin instalar";
    fs::copy(SIRO_DATA_DIR, antes, fs::copy_options::recursive);
    const Salida aqui = e2e::Lote({"una", antes + "/Proyectos/Quelmar_Conf.vlm", "--trabajo", antes,
                                   "--distribucion", "5", "--resultados", raiz + "/aqui.csv"},
                                  "/");
    ASSERT_EQ(aqui.estado, 0) << aqui.errores;

    const std::vector<std::string> instalados = Programas();
    const Salida alla = e2e::Ejecuta(
        "/usr/bin/env",
        {"XDG_DATA_HOME=" + raiz + "/casa", programas + "/siro-lote", "una",
         datos + "/Proyectos/Quelmar_Conf.vlm", "--distribucion", "5", "--resultados", raiz + "/alla.csv"},
        "/");
    ASSERT_EQ(alla.estado, 0) << alla.errores;
    EXPECT_TRUE(MismoTexto(BytesDeArchivo(raiz + "/aqui.csv"), BytesDeArchivo(raiz + "/alla.csv")));
    EXPECT_TRUE(EstaLoEntregadoEn(propio));
    EXPECT_TRUE(fs::exists(propio + "/SalePizarra1_tem.txt"));
    if (GetParam().delUsuario) {
        EXPECT_EQ(Programas(), instalados) << "nothing is copied there, root or not";
    }
}

#ifdef SIRO_ESCRITORIO
TEST_P(Instalado, ElProgramaArrancaConLoQueSeEntrega)
{
    e2e::Pantalla pantalla(raiz + "/casa");
    pantalla.Arranca(programas + "/siro");
    pantalla.EsperaVentana("SIRO - Modelo Hidrológico de  simulación de crecidas");
    EXPECT_TRUE(EstaLoEntregadoEn(propio));
    EXPECT_TRUE(fs::exists(propio + "/VelmirDir.vlm"));
    pantalla.Teclas({"ctrl+q"});
    pantalla.EsperaA("the end of the program", [&] { return pantalla.Programa().Termino(); });
    EXPECT_EQ(pantalla.Programa().Estado(), 0);
}
#endif

INSTANTIATE_TEST_SUITE_P(
    Lugares, Instalado,
    testing::Values(Disposicion{"Prefijo", {}, "bin", "share/siro", true},
                    Disposicion{"Portatil", {"--component", "portatil"}, ".", ".", false}),
    [](const testing::TestParamInfo<Disposicion>& caso) { return std::string(caso.param.nombre); });

}  // namespace
