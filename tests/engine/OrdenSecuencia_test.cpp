// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/OrdenSecuencia.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "engine/ComponenteFinal.h"
#include "model/Siro.h"

namespace engine {
namespace {

using model::Siro;
using Nombres = std::vector<std::string>;

class Orden : public testing::Test {
  protected:
    Orden() { s.Anfitrion = anfitrion.Puerta(); }
    void Cauce(const std::string& nombre, const std::string& destino)
    {
        s.Red.ColCauces.Agrega({.NombreCauce = nombre, .Cauce_aa = destino});
    }
    bool Ordena()
    {
        RehaceSecuencia(s);
        return OrdenSecuencia(s);
    }
    [[nodiscard]] Nombres Secuencia() const
    {
        return {s.Resultados.Secuencia.begin() + 1, s.Resultados.Secuencia.end()};
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
};

TEST_F(Orden, SoloUEHsNoSeTocan)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-2", .Cauce_aa = "u-1"});
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1"});
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"u-2", "u-1"}));
}

TEST_F(Orden, UnSoloComponenteNoSeTocaAunqueDreneEnSiMismo)
{
    Cauce("c-1", "c-1");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), Nombres{"c-1"});
}

TEST_F(Orden, ElQueDrenaPasaAdelanteDeUnSoloCambio)
{
    Cauce("c-2", "0");
    Cauce("c-3", "0");
    Cauce("c-1", "c-2");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"c-1", "c-3", "c-2"}));
}

TEST_F(Orden, UnaCadenaSeTraeEslabonPorEslabon)
{
    // c-1 <- c-2 <- c-3 <- c-4. Place 1: c-2 comes forward (c-2 c-1 c-3 c-4), then c-3 (c-3 c-1 c-2 c-4),
    // then c-4 (c-4 c-1 c-2 c-3). Place 2, c-1: c-2 drains into it (c-4 c-2 c-1 c-3), then c-3 (c-4 c-3 c-1
    // c-2). Place 3, c-1: c-2 (c-4 c-3 c-2 c-1).
    Cauce("c-1", "");
    Cauce("c-2", "c-1");
    Cauce("c-3", "c-2");
    Cauce("c-4", "c-3");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"c-4", "c-3", "c-2", "c-1"}));
}

TEST_F(Orden, LagosYRepresasEntranEnElOrden)
{
    Cauce("c-1", "0");
    Cauce("c-2", "l-1");
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1", .Cauce_aa = "c-1"});
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .Cauce_aa = "c-2"});
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"r-1", "c-2", "l-1", "c-1"}));
}

TEST_F(Orden, UnDestinoQueEsUEHNoCuenta)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1"});
    Cauce("c-1", "0");
    Cauce("c-2", "u-1");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"u-1", "c-1", "c-2"}));
}

TEST_F(Orden, VacioYCeroNoSonNombres)
{
    Cauce("", "");
    Cauce("0", "0");
    Cauce("c-3", "0");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"", "0", "c-3"}));
}

TEST_F(Orden, LosNombresDistinguenMayusculas)
{
    Cauce("c-a", "0");
    Cauce("c-b", "c-A");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"c-a", "c-b"}));
}

TEST_F(Orden, DosQueSeDrenanMutuamenteNoSeCuelgan)
{
    // The last place but one is tried once.
    Cauce("c-1", "c-2");
    Cauce("c-2", "c-1");
    EXPECT_TRUE(Ordena());
    EXPECT_EQ(Secuencia(), (Nombres{"c-2", "c-1"}));
}

TEST_F(Orden, UnCicloSeDetieneYSeInforma)
{
    Cauce("c-1", "c-2");
    Cauce("c-2", "c-1");
    Cauce("c-3", "0");
    s.Control.SalidaPizarra = true;
    EXPECT_FALSE(Ordena());
    EXPECT_EQ(anfitrion->pizarra, "");
}

TEST_F(Orden, ListaDeLaPizarraALaLetra)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Cauce_aa = "c-1"});
    Cauce("c-1", "0");
    s.Control.SalidaPizarra = true;
    EXPECT_TRUE(Ordena());
    EXPECT_TRUE(
        apoyo::MismoTexto("\r\n\r\nComponentes y Secuencia de cálculo\r\nNroUEH   Nombre UEH"
                          "\r\n    1          u-1\r\n    2          c-1",
                          anfitrion->pizarra));
}

}  // namespace
}  // namespace engine
