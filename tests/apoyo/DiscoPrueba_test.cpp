// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/DiscoPrueba.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/Compara.h"

// What it does as a disk is told beside the real one; here what only it can do.

using namespace apoyo;
using model::NumeroFalla;

namespace {

using Clase = DiscoPrueba::Clase;

struct DiscoQueFalla : ::testing::Test {
    DiscoQueFalla() { memoria.Pon("/proy/a", "viejo"); }
    DiscoPrueba memoria;
    model::Disco disco = memoria.Puerta();
};

TEST_F(DiscoQueFalla, SoloLaLlamadaEnesima)
{
    memoria.FallaEn(2, NumeroFalla::RutaNoEsta);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee("/proy/a"); }), 0);
    EXPECT_FALSE(memoria.HuboFalla());
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "x"); }), 76);
    EXPECT_TRUE(memoria.HuboFalla());
    EXPECT_EQ(memoria.Bytes("/proy/a"), "viejo");
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "x"); }), 0);
    EXPECT_EQ(memoria.Bytes("/proy/a"), "x");
}

TEST_F(DiscoQueFalla, DesdeLaEnesimaHastaQueDeje)
{
    memoria.FallaDesde(2, NumeroFalla::AccesoRuta);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee("/proy/a"); }), 0);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(NumeroDeFalla([&] { disco.Lee("/proy/a"); }), 75);
    memoria.DejaDeFallar();
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee("/proy/a"); }), 0);
}

TEST_F(DiscoQueFalla, CadaClaseDeLlamadaCuentaYPuedeFallar)
{
    const std::vector<std::pair<Clase, std::function<void()>>> llamadas = {
        {Clase::Lee, [&] { disco.Lee("/proy/a"); }},
        {Clase::Escribe, [&] { disco.Escribe("/proy/a", "x"); }},
        {Clase::Agrega, [&] { disco.Agrega("/proy/a", "x"); }},
        {Clase::CreaDirectorio, [&] { disco.CreaDirectorio("/proy/d"); }},
        {Clase::Lista, [&] { disco.Lista("/proy"); }},
        {Clase::Borra, [&] { disco.Borra("/proy/a"); }},
        {Clase::Copia, [&] { disco.Copia("/proy/a", "/proy/b"); }},
    };
    for (const auto& [clase, llama] : llamadas) {
        memoria.OlvidaLlamadas();
        memoria.FallaEn(1, NumeroFalla::AccesoRuta);
        EXPECT_EQ(NumeroDeFalla(llama), 75);
        ASSERT_EQ(memoria.Llamadas().size(), 1U);
        EXPECT_EQ(memoria.Llamadas().front().clase, clase);
    }
    EXPECT_TRUE(disco.HayDirectorio("/proy"));
    memoria.FallaEn(1, NumeroFalla::AccesoRuta);
    EXPECT_FALSE(disco.HayDirectorio("/proy"));  // it can't raise a fault
    EXPECT_EQ(memoria.Archivos(), std::vector<std::string>{"/proy/a"});
    EXPECT_EQ(memoria.Bytes("/proy/a"), "viejo");
}

TEST_F(DiscoQueFalla, LlenoGuardaLoQueCabe)
{
    memoria.LimitaEspacio(8);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Agrega("/proy/a", "123"); }), 0);  // 5 and 3
    EXPECT_EQ(NumeroDeFalla([&] { disco.Agrega("/proy/a", "4"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "123456789"); }),
              75);  // the old contents make room
    EXPECT_EQ(memoria.Bytes("/proy/a"), "12345678");
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/b", ""); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/b", "x"); }), 75);
}

TEST_F(DiscoQueFalla, ProtegidosArchivoYDirectorio)
{
    memoria.Protege("/proy/a");
    EXPECT_EQ(disco.Lee("/proy/a"), "viejo");
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Borra("/proy/a"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/b", "x"); }), 0);
    memoria.Protege("/proy/a", false);
    memoria.Protege("/proy");
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.CreaDirectorio("/proy/d"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Borra("/proy/b"); }), 75);
    EXPECT_EQ(memoria.Bytes("/proy/a"), "viejo");
}

TEST_F(DiscoQueFalla, QuitarUnDirectorioQuitaLoDeDentroYNadaMas)
{
    memoria.Pon("/proy/sub/b", "x");
    memoria.Pon("/proyecto/c", "x");
    memoria.Quita("/proy");
    EXPECT_EQ(memoria.Archivos(), std::vector<std::string>{"/proyecto/c"});
    EXPECT_FALSE(memoria.Esta("/proy/sub"));
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe("/proy/a", "x"); }), 76);
}

}  // namespace
