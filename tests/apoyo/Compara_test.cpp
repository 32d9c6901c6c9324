// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Compara.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

using namespace apoyo;

namespace {

/// Whether the message of a failed comparison says that.
::testing::AssertionResult Dice(const ::testing::AssertionResult& resultado, std::string_view que)
{
    const std::string mensaje = resultado.message();
    if (!resultado && mensaje.find(que) != std::string::npos) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << (resultado ? "no difference seen" : mensaje);
}

TEST(MismoTexto, IgualesSonIguales)
{
    EXPECT_TRUE(MismoTexto("", ""));
    EXPECT_TRUE(MismoTexto("a\r\nb\r\n", "a\r\nb\r\n"));
}

TEST(MismoTexto, NotaUnaDiferenciaPlantadaEnCadaByte)
{
    const std::string esperado = "uno\r\ndos  3\r\n\r\ncuatro";
    for (std::size_t i = 0; i < esperado.size(); ++i) {
        std::string cambiado = esperado;
        cambiado[i] = static_cast<char>(cambiado[i] ^ 1);
        EXPECT_FALSE(MismoTexto(esperado, cambiado)) << i;
        EXPECT_FALSE(MismoTexto(esperado, esperado.substr(0, i))) << i;
        EXPECT_FALSE(MismoTexto(esperado.substr(0, i), esperado)) << i;
    }
}

TEST(MismoTexto, MuestraLaPrimeraLineaDistinta)
{
    const auto resultado = MismoTexto("uno\r\ndos\r\ntres\r\n", "uno\r\ndos \r\nTRES\r\n");
    EXPECT_TRUE(Dice(resultado, "line 2, byte 4 of it differs"));
    EXPECT_TRUE(Dice(resultado, "expected \"dos\\r\\n\""));
    EXPECT_TRUE(Dice(resultado, "obtained \"dos \\r\\n\""));
}

TEST(MismoTexto, MuestraLoQueNoSeVe)
{
    EXPECT_TRUE(Dice(MismoTexto("a\n", "a\r\n"), "\"a\\n\""));
    EXPECT_TRUE(Dice(MismoTexto("a\x01", "a"), "\"a\\x01\""));
}

TEST(MismoTexto, NotaElFinQueFalta)
{
    const auto resultado = MismoTexto("uno\ndos\n", "uno\n");
    EXPECT_TRUE(Dice(resultado, "line 2, byte 1"));
    EXPECT_TRUE(Dice(resultado, "obtained \"\""));
    EXPECT_TRUE(Dice(resultado, "expected 2 line ends, 8 bytes; obtained 1 line ends, 4 bytes"));
}

TEST(MismoQueArchivo, ElArchivoDebeEstarYSerIgual)
{
    const CarpetaTemporal carpeta;
    const auto camino = carpeta.Camino() / "esperado.txt";
    EXPECT_TRUE(Dice(MismoQueArchivo(camino, ""), "isn't there"));
    std::ofstream(camino, std::ios::binary) << "a\r\nb";
    EXPECT_TRUE(MismoQueArchivo(camino, "a\r\nb"));
    EXPECT_TRUE(Dice(MismoQueArchivo(camino, "a\r\nc"), "esperado.txt"));
}

TEST(NumeroDeFalla, DaElNumeroOCero)
{
    EXPECT_EQ(NumeroDeFalla([] {}), 0);
    EXPECT_EQ(NumeroDeFalla([] { throw model::Falla{model::NumeroFalla::Subindice}; }), 9);
    EXPECT_THROW(NumeroDeFalla([] { throw model::FinDelPrograma{}; }), model::FinDelPrograma);
}

TEST(CarpetaTemporal, SeVaConSuContenido)
{
    std::filesystem::path camino;
    {
        const CarpetaTemporal carpeta;
        camino = carpeta.Camino();
        std::ofstream(carpeta.Ruta("a")) << "x";
        EXPECT_TRUE(std::filesystem::exists(camino / "a"));
    }
    EXPECT_FALSE(std::filesystem::exists(camino));
}

}  // namespace
