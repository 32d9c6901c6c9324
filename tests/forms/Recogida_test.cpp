// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Recogida.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

using model::Icono;
using model::Mensaje;

TEST(Recogida, LosCincoPrimerosSeMuestranYDesdeElSextoSeRecogen)
{
    Recogida r;
    for (int i = 1; i <= 5; ++i)
        EXPECT_TRUE(r.SeMuestra({"igual"})) << i;
    EXPECT_FALSE(r.HayRecogidos());
    EXPECT_FALSE(r.SeMuestra({"igual"}));
    EXPECT_TRUE(r.HayRecogidos());
}

TEST(Recogida, LosIgualesSeCuentanYElOrdenEsElDeLaPrimeraVez)
{
    Recogida r;
    for (int i = 1; i <= 5; ++i)
        EXPECT_TRUE(r.SeMuestra({"a"}));
    for (const Mensaje& m : {Mensaje{"b"}, Mensaje{"a"}, Mensaje{"b"}, Mensaje{"b", "Otro título"}})
        EXPECT_FALSE(r.SeMuestra(m));
    EXPECT_EQ(r.Saca(), (std::vector<Recogido>{{{"b"}, 2}, {{"a"}, 1}, {{"b", "Otro título"}, 1}}));
    EXPECT_FALSE(r.HayRecogidos());

    // What comes later in the same command is gathered too, and counted anew.
    EXPECT_FALSE(r.SeMuestra({"b"}));
    EXPECT_EQ(r.Saca(), (std::vector<Recogido>{{{"b"}, 1}}));
}

TEST(Recogida, UnaPreguntaRepetidaSeOfreceATodasDesdeLaSexta)
{
    Recogida r;
    const Mensaje una{"¿r-1?", "", Icono::Exclamacion, "¿?"}, otra{"¿r-2?", "", Icono::Exclamacion, "¿?"};
    for (int i = 1; i <= 5; ++i)
        EXPECT_FALSE(r.OfreceTodas(i % 2 == 0 ? una : otra)) << i;
    EXPECT_FALSE(r.OfreceTodas({"¿r-1?", "", Icono::Exclamacion, "¿otra cosa?"}));
    EXPECT_TRUE(r.OfreceTodas(una));
    EXPECT_TRUE(r.OfreceTodas(otra));
    EXPECT_FALSE(r.RespondidaATodas(una));
    r.RespondeSiATodas(una);
    EXPECT_TRUE(r.RespondidaATodas(otra));
    EXPECT_FALSE(r.RespondidaATodas({"¿r-1?", "", Icono::Exclamacion, "¿otra cosa?"}));
}

TEST(Recogida, LaQueNoEsDeUnaCorridaNuncaSeOfreceATodas)
{
    Recogida r;
    for (int i = 1; i <= 20; ++i)
        EXPECT_FALSE(r.OfreceTodas({"¿Sigue?"})) << i;
    EXPECT_FALSE(r.RespondidaATodas({"¿Sigue?"}));
}

TEST(Recogida, ComoTextoEsUnRenglonPorMensaje)
{
    EXPECT_EQ(ComoTexto({{{"uno"}, 1}, {{"dos\r\nrenglones\notro\rmás", "Título"}, 15600}}),
              "uno\r\n15600 veces: [Título] dos / renglones / otro / más\r\n");
    EXPECT_EQ(ComoTexto({}), "");
}

}  // namespace
}  // namespace forms
