// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a list of findings opens and mends.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"
#include "editor/Hallazgos.h"

namespace {

using checks::Arreglo;
using checks::Hallazgo;
using checks::Lugar;
using editor::Pedido;
using T = editor::Tecla;

struct HallazgosEnElEditor : EditorDePrueba {
    HallazgosEnElEditor()
    {
        red.Cauce("c-1", {{100, 300}, {150, 250}, {200, 200}});
        red.UEH("u-1", {250, 150}, "c-9");
        red.Represa("r-1", {3000, 2500});
        red.Lago("l-1", {120, 180});
        Parte();
        f.pedidos.clear();
    }
    [[nodiscard]] std::string Archivos() const
    {
        std::string todo;
        for (const std::string& ruta : disco.Archivos())
            todo += ruta + "\n" + disco.Bytes(ruta) + "\n";
        return todo;
    }
};

struct FilaIda {
    const char* nombre;
    Lugar lugar;
    std::vector<Pedido> pedidos;
};

TEST_F(HallazgosEnElEditor, VaALoSuyoConElComponenteSolo)
{
    const FilaIda filas[] = {
        {"u-1", Lugar::Ficha, {Pedido::FormaUEH}},
        {"c-1", Lugar::Ficha, {Pedido::FormaCauce}},
        {"r-1", Lugar::Ficha, {Pedido::FormaRepresa}},
        {"l-1", Lugar::Ficha, {Pedido::FormaLago}},
        {"u-1", Lugar::Dibujo, {}},
        {"r-1", Lugar::TablaHAS, {Pedido::TablaHAS}},
        {"r-1", Lugar::TablaHQ, {Pedido::TablaHQ}},
        {"l-1", Lugar::TablaHAS, {Pedido::TablaHAS}},
        {"l-1", Lugar::TablaHQ, {Pedido::TablaHAS}},
        {"c-1", Lugar::TablaHAS, {Pedido::FormaCauce}},
    };
    for (const FilaIda& fila : filas) {
        f.pedidos.clear();
        EXPECT_TRUE(editor::VaA(f, s, fila.nombre, fila.lugar)) << fila.nombre;
        EXPECT_EQ(f.pedidos, fila.pedidos) << fila.nombre;
        const std::string n = fila.nombre;
        EXPECT_EQ(s.Seleccion.UEHSel, n == "u-1");
        EXPECT_EQ(s.Seleccion.CauceSel, n == "c-1");
        EXPECT_EQ(s.Seleccion.RepresaSel, n == "r-1");
        EXPECT_EQ(s.Seleccion.LagoSel, n == "l-1");
    }
    EXPECT_FALSE(f.cambiada) << "looking is no editing";
}

TEST_F(HallazgosEnElEditor, CorregirEsUnSoloPasoQueSeDeshaceYNadaSeEscribe)
{
    const std::string antes = Archivos();
    s.Pasos.PasoQ = 30;
    model::Cauce& c = s.Red.ColCauces.Item(1);
    c.optDirMusk = false;
    c.Cauce_k_Musk = 70;
    c.Cauce_n_Musk = 0.2F;
    Parte();
    ASSERT_FALSE(f.cambiada);
    EXPECT_EQ(editor::Corrige(f, s,
                              {{.componente = "u-1", .arreglo = Arreglo::SinDestino},
                               {.componente = "c-1", .arreglo = Arreglo::MuskingumCercano},
                               {.componente = "r-1", .arreglo = Arreglo::OrdenaTabla}}),
              2);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "0");
    EXPECT_NE(s.Red.ColCauces.Item(1).Cauce_k_Musk, 70);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    EXPECT_EQ(Archivos(), antes);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "c-9");
    EXPECT_EQ(s.Red.ColCauces.Item(1).Cauce_k_Musk, 70);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "0");
}

}  // namespace
