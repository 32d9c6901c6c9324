// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Sistema.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "model/Camino.h"
#include "model/Disco.h"

using namespace model;
namespace fs = std::filesystem;

namespace {

const std::string Aqui = TextoDe(fs::current_path());

TEST(Sistema, UnaRutaRelativaSaleDeLaCarpetaDelProceso)
{
    EXPECT_EQ(RutaAbsoluta("a.vlm"), Ruta(Aqui, "a.vlm"));
    EXPECT_EQ(RutaAbsoluta("./a/../ñandú/b.vlm"), Ruta(Ruta(Aqui, "ñandú"), "b.vlm"));
    EXPECT_EQ(RutaAbsoluta("a/"), Ruta(Aqui, "a"));
    EXPECT_EQ(RutaAbsoluta(".."), DirectorioDe(Aqui));
}

TEST(Sistema, UnaRutaAbsolutaQuedaComoEsta)
{
    EXPECT_TRUE(EsRutaAbsoluta(Aqui));
    EXPECT_FALSE(EsRutaAbsoluta("a"));
    EXPECT_FALSE(EsRutaAbsoluta(""));
    for (const char* nombre : {"a.vlm", "..", ".", "x y"})
        EXPECT_EQ(RutaAbsoluta(Ruta(Aqui, nombre)), Ruta(Aqui, nombre));
}

TEST(Sistema, ElProgramaSabeDondeEsta)
{
    const std::string programa = RutaDelPrograma();
    EXPECT_TRUE(EsRutaAbsoluta(programa)) << programa;
    EXPECT_NE(programa.find("pruebas_model"), std::string::npos) << programa;
    EXPECT_TRUE(fs::is_regular_file(Camino(programa)));
    EXPECT_TRUE(EsDirectorio(Camino(DirectorioDe(programa))));
}

TEST(Sistema, ElAmbienteTieneLoQueTieneYNadaMas)
{
    const Ambiente ambiente = AmbienteDelProceso();
    EXPECT_NE(ambiente("PATH"), "");
    EXPECT_EQ(ambiente("SIRO_VARIABLE_QUE_NADIE_PONE"), "");
}

TEST(Sistema, LasPalabrasEmpiezanPorElPrograma)
{
    const char* const argv[] = {"programa", nullptr};
    const auto palabras = PalabrasDelProceso(1, argv);
    ASSERT_FALSE(palabras.empty());
    EXPECT_NE(palabras[0], "");
}

}  // namespace
