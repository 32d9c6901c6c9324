// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/UnidadesTitulos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/RedGuardadaDePrueba.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "editor/fichas/dlgUEHsTabla.h"

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

TEST_F(TitulosDeTablas, LaAyudaDeUnaCeldaDiceQueHayEnElla)
{
    Agrega(model::Cauce{.NombreCauce = "c-1"});
    Agrega(model::UEH{.NombreUEH = "u-1"});
    Guarda();
    dlgUEHsTabla f;
    Abre(f, s);
    const forms::Grilla& g = f.MSFlexGridTablaUEHs;
    // Rows: titles of the reaches, c-1, titles of the UEHs, u-1.
    EXPECT_EQ(AyudaDeCelda(g, {2, 7}), "Vel.Media [m/s]");
    EXPECT_EQ(AyudaDeCelda(g, {2, 5}), "Vértices");
    EXPECT_EQ(AyudaDeCelda(g, {4, 5}), "Area [has]");
    EXPECT_EQ(AyudaDeCelda(g, {4, 2}), "Nombre");
    EXPECT_EQ(AyudaDeCelda(g, {0, 5}), "");
    EXPECT_EQ(AyudaDeCelda(g, {2, 99}), "");
}

}  // namespace
}  // namespace editor
