// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/UnidadesTitulos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/RedGuardadaDePrueba.h"
#include "editor/dlgUEHsEditTabla.h"
#include "editor/dlgUEHsTabla.h"

namespace editor {
namespace {

class TitulosDeTablas : public testing::Test, public pruebas::ProyectoGuardado {};

TEST_F(TitulosDeTablas, CadaColumnaEditableConUnidadLaTiene)
{
    dlgUEHsEditTabla f;
    Abre(f, s);
    std::vector<std::string> unidades;
    for (const forms::Grilla* g : {&f.MSFlexGridEditCauces, &f.MSFlexGridEditUEHs})
        for (const forms::ColumnaGrilla& columna : g->columnas)
            if (columna.editable) unidades.emplace_back(UnidadDeTitulo(columna.titulo));
    // x and b have none; "H Ini[min]" tells its own.
    EXPECT_EQ(unidades, (std::vector<std::string>{"m/s", "m", "min", "", "has", "m", "m/s", "mm/min^b", "",
                                                  "", "m3/s", "hs", "mm"}));
}

TEST_F(TitulosDeTablas, LosTitulosDeLaTablaDeParametrosTambien)
{
    dlgUEHsTabla f;
    Abre(f, s);
    const auto unidades = [&](int fila) {
        std::vector<std::string> textos;
        for (int columna = 5; columna < 14; ++columna)
            textos.emplace_back(UnidadDeTitulo(f.MSFlexGridTablaUEHs.Texto({fila, columna})));
        return textos;
    };
    EXPECT_EQ(unidades(1), (std::vector<std::string>{"", "", "m/s", "m", "", "min", "", "", ""}));
    EXPECT_EQ(unidades(2),
              (std::vector<std::string>{"has", "m", "m/s", "mm/min^b", "", "min", "m3/s", "hs", "mm"}));
    EXPECT_EQ(unidades(3), (std::vector<std::string>{"min", "m", "m", "m", "", "", "", "", ""}));
    EXPECT_EQ(unidades(4), (std::vector<std::string>{"min", "", "", "", "", "", "m", "m", "m"}));
}

TEST_F(TitulosDeTablas, UnTituloDesconocidoNoTieneUnidad)
{
    EXPECT_EQ(UnidadDeTitulo("Orden"), "");
    EXPECT_EQ(UnidadDeTitulo(""), "");
}

}  // namespace
}  // namespace editor
