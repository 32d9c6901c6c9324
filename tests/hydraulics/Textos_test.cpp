// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Textos.h"

#include <gtest/gtest.h>

#include "apoyo/Compara.h"
#include "hydraulics/TablasDePrueba.h"

namespace hydraulics {
namespace {

TEST(Textos, UnCasoQueLaFuncionNoTieneEsUnaFalla)
{
    EXPECT_EQ(apoyo::NumeroDeFalla([] { TextoDe(Funcion::SdeHLago, Caso::SinFin); }), 5);
    EXPECT_EQ(apoyo::NumeroDeFalla([] { TextoDe(Funcion::HdeQalmaLago, Caso::Encima); }), 5);
    EXPECT_EQ(TextoDe(Funcion::HdeQalmaLago, Caso::SinFin).titulo, "Error,...");
}

TEST(Textos, UnAnfitrionQueNoTerminaRecibeCero)
{
    pruebas::EstadoConEmbalses e;
    int terminaciones = 0;
    e.s.Anfitrion.Termina = [&] { ++terminaciones; };
    e.anfitrion->respuestas = {false};
    e.EligeLago(1);
    constexpr Busqueda AdeH{Funcion::AdeHRepresa, Funcion::AdeHLago};
    EXPECT_EQ(ValorOConsulta(e.Elegido(), AdeH, {Lectura::Lugar::Encima, 0}), 0);
    EXPECT_EQ(terminaciones, 1);
    EXPECT_EQ(ValorOConsulta(e.Elegido(), AdeH, {Lectura::Lugar::Dentro, 8.5}), 8.5);
    EXPECT_EQ(terminaciones, 1);
    EXPECT_EQ(e.anfitrion->Preguntas().size(), 1U);
}

}  // namespace
}  // namespace hydraulics
