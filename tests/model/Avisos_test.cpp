// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Avisos.h"

#include <gtest/gtest.h>

#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "model/Siro.h"

using apoyo::Suceso;
using namespace model;

namespace {

struct Avisos : ::testing::Test {
    Avisos() { s.Anfitrion = anfitrion.Puerta(); }
    apoyo::AnfitrionPrueba anfitrion;
    Siro s;
};

TEST_F(Avisos, AdvierteConElIconoYElTituloDeSiempre)
{
    Advierte(s, "uno");
    Advierte(s, "dos", "Otro título");
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"uno", "Advertencia !", Icono::Exclamacion},
                                                         {"dos", "Otro título", Icono::Exclamacion}}));
}

TEST_F(Avisos, InformaSinTituloNiIcono)
{
    Informa(s, "hecho");
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"hecho", "", Icono::Ninguno}}));
}

TEST_F(Avisos, ConsultaDevuelveLaRespuesta)
{
    anfitrion->respuestas = {false, true};
    EXPECT_FALSE(Consulta(s, "¿Sigue?", "Consulta"));
    EXPECT_TRUE(Consulta(s, "¿Sigue?", "Consulta"));
    const Mensaje pregunta{"¿Sigue?", "Consulta", Icono::Exclamacion};
    EXPECT_EQ(anfitrion->sucesos, (std::vector<Suceso>{{Suceso::Clase::Pregunta, pregunta, "No"},
                                                       {Suceso::Clase::Pregunta, pregunta, "Sí"}}));
}

TEST_F(Avisos, TextosDeLasFallasSinBlancosDeMas)
{
    EXPECT_EQ(TextoFallaMotor({NumeroFalla::Desbordamiento}), "Error Nro. 6 ,DesbordamientoVerifique");
    EXPECT_EQ(TextoFallaArchivo({NumeroFalla::Desbordamiento}), "Error Nro. 6Desbordamiento ,Verifique");
    EXPECT_EQ(TextoFallaArchivo({NumeroFalla::AccesoRuta}),
              "Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique");
}

TEST_F(Avisos, SentenciaInformaLaFallaYDejaSeguir)
{
    std::vector<Falla> informadas;
    const auto informa = [&](const Falla& falla) { informadas.push_back(falla); };
    int hechas = 0;
    EXPECT_TRUE(Sentencia([&] { ++hechas; }, informa));
    EXPECT_FALSE(Sentencia([&] { throw Falla{NumeroFalla::Tipos}; }, informa));
    EXPECT_TRUE(Sentencia([&] { ++hechas; }, informa));
    EXPECT_EQ(hechas, 2);
    EXPECT_EQ(informadas, std::vector<Falla>{{NumeroFalla::Tipos}});
}

// A statement at fault, the words of its handler, what the box says: nothing, where there are no words.
TEST_F(Avisos, ElManejadorDiceLaFallaConSusPalabras)
{
    const Falla falla{NumeroFalla::DivisionPorCero};
    const auto falsa = [&] { throw falla; };
    EXPECT_FALSE(Sentencia(falsa));
    EXPECT_TRUE(anfitrion->Avisos().empty());
    EXPECT_FALSE(Sentencia(falsa, AvisaMotor(s)));
    EXPECT_FALSE(Sentencia(falsa, AvisaArchivo(s)));
    EXPECT_TRUE(Sentencia([] {}, AvisaArchivo(s)));
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 11 ,División por ceroVerifique", "", Icono::Ninguno},
                                    {"Error Nro. 11División por cero ,Verifique", "", Icono::Ninguno}}));
}

TEST_F(Avisos, SentenciaNoDetieneElFinDelPrograma)
{
    const auto informa = [](const Falla&) { FAIL() << "reported as a fault"; };
    EXPECT_THROW(Sentencia([&] { s.Anfitrion.Termina(); }, informa), FinDelPrograma);
    EXPECT_TRUE(anfitrion->Termino());
}

}  // namespace
