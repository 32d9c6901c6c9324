// SPDX-License-Identifier: GPL-3.0-or-later
//
// Names by "Naming Files, Paths, and Namespaces", documentation of the Windows API.
#include "model/NombresDeWindows.h"

#include <gtest/gtest.h>

#include <string>

using namespace model;

namespace {

std::string Motivo(const std::string& ruta)
{
    return std::string(MotivoDeWindows(ruta));
}

const std::string PorDispositivo = "Windows reserva ese nombre para un dispositivo.";
const std::string PorLetra =
    R"(En Windows un nombre de archivo no lleva ninguno de estos signos: < > : " | ? *)";
const std::string PorFinal = "En Windows un nombre de archivo no termina en punto ni en espacio.";
const std::string PorLargo = "El nombre o la ruta son más largos de lo que Windows admite.";

TEST(NombresDeWindows, LasRutasComunesPasan)
{
    for (const char* ruta : {"",
                             "a",
                             R"(C:\SIRO\Proyectos\Quelmar_Conf.vlm)",
                             "c:/siro/quelmar",
                             R"(..\otra\.\aquí)",
                             R"(\\servidor\común\Ñandú y compañía\a.vlm)",
                             "Проект/河.vlm",
                             R"(\\?\C:\a\b)",
                             "C:",
                             R"(C:\)",
                             "C:a.csv",
                             "CONFIGURA.vlm",
                             "CON_Conf.vlm",
                             "COM.vlm",
                             "COM10",
                             "LPT0.txt",
                             "NULO",
                             "a.nul",
                             ".siro-1-1.lista",
                             "a.b.c",
                             " con blanco delante"})
        EXPECT_EQ(Motivo(ruta), "") << ruta;
}

TEST(NombresDeWindows, LosDeUnDispositivoNoConExtensionTampoco)
{
    for (const char* nombre :
         {"CON", "prn", "Aux", "NUL", "nul.csv", "NUL.tar.gz", "con .txt", "COM1", "com9.vlm", "LPT1", "lpt9",
          "COM¹", "LPT³.a", "CONIN$", "conout$", R"(\\.\NUL)", R"(C:\Proyectos\aux\a.vlm)", "a/con/b"})
        EXPECT_EQ(Motivo(nombre), PorDispositivo) << nombre;
}

TEST(NombresDeWindows, LosSignosAjenosNo)
{
    for (const char letra : std::string("<>:\"|?*\x01\n\x1F"))
        EXPECT_EQ(Motivo(std::string("C:\\a") + letra + "b.vlm"), PorLetra) << letra;
    EXPECT_EQ(Motivo("1:a"), PorLetra) << "no drive";
    EXPECT_EQ(Motivo("C:a:b"), PorLetra) << "a stream of a file";
}

TEST(NombresDeWindows, ElPuntoYElEspacioFinalesNo)
{
    for (const char* nombre : {"a.", "a ", "...", R"(C:\a.\b)", R"(C:\a \b)", "r.csv. "})
        EXPECT_EQ(Motivo(nombre), PorFinal) << nombre;
}

TEST(NombresDeWindows, ElLargoCuentaUnidadesDe16Bits)
{
    const auto ruta = [](std::size_t largo) {
        std::string texto = "C:";
        while (texto.size() + 51 <= largo)
            texto += "\\" + std::string(50, 'a');
        return texto + std::string(largo - texto.size(), '\\');
    };
    EXPECT_EQ(Motivo(ruta(259)), "");
    EXPECT_EQ(Motivo(ruta(260)), PorLargo);
    EXPECT_EQ(Motivo(R"(\\?\)" + ruta(1000)), "");
    EXPECT_EQ(Motivo(R"(\\?\C:\)" + std::string(255, 'a')), "");
    EXPECT_EQ(Motivo(R"(\\?\C:\)" + std::string(256, 'a')), PorLargo);
    std::string aes, caras;  // two bytes and one unit, four bytes and two units
    for (int i = 0; i < 127; ++i) {
        aes += "á";
        caras += "😀";
    }
    EXPECT_EQ(Motivo(aes + aes), "");
    EXPECT_EQ(Motivo(aes + aes + "áá"), PorLargo);
    EXPECT_EQ(Motivo(caras), "") << "254 units";
    EXPECT_EQ(Motivo(caras + "aa"), PorLargo);
}

TEST(NombresDeWindows, AbsolutaEsConUnidadYRaizODeOtraMaquina)
{
    for (const char* ruta : {R"(C:\)", "c:/a", R"(\\servidor\a)", "//servidor/a", R"(\\?\C:\a)"})
        EXPECT_TRUE(EsAbsolutaEnWindows(ruta)) << ruta;
    for (const char* ruta : {"", "a", R"(\a)", "/a", "C:", "C:a", "1:\\a", R"(a\\b)"})
        EXPECT_FALSE(EsAbsolutaEnWindows(ruta)) << ruta;
}

TEST(NombresDeWindows, LasBarrasSonInversas)
{
    EXPECT_EQ(ConBarrasInversas("C:/a/ñ\\b"), "C:\\a\\ñ\\b");
    EXPECT_EQ(ConBarrasInversas(""), "");
}

}  // namespace
