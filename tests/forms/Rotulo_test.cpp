// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Rotulo.h"

#include <gtest/gtest.h>

#include <array>

namespace forms {
namespace {

constexpr auto Tabla = std::to_array<FilaRotulo>({
    {"txtPp", "&Precipitación Pp [mm]:"},
    {"txtTimeI", "", "Formato hh:mm", "Hora inicial"},
});

TEST(Rotulo, UnControlTieneSuFila)
{
    EXPECT_EQ(RotuloDe(Tabla, "txtPp").leyenda, "&Precipitación Pp [mm]:");
    EXPECT_EQ(RotuloDe(Tabla, "txtPp").ayuda, "");
    EXPECT_EQ(RotuloDe(Tabla, "txtTimeI").ayuda, "Formato hh:mm");
    EXPECT_EQ(RotuloDe(Tabla, "txtTimeI").lector, "Hora inicial");
    EXPECT_EQ(LugarDe(Tabla, "txtPp"), 0U);
    EXPECT_EQ(LugarDe(Tabla, "txtTimeI"), 1U);
}

TEST(Rotulo, ElQueNoEstaTieneUnaVaciaYSuLugarEsElFin)
{
    EXPECT_EQ(RotuloDe(Tabla, "txtP").control, "");
    EXPECT_EQ(RotuloDe(Tabla, "txtP").leyenda, "");
    EXPECT_EQ(LugarDe(Tabla, "txtP"), 2U);
    EXPECT_EQ(LugarDe({}, "txtPp"), 0U);
}

}  // namespace
}  // namespace forms
