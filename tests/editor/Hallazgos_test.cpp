// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Hallazgos.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"

// A component gone to from a list of findings.
namespace {

using editor::Boton;
using editor::Punto;

/// The middle of the canvas [drawing units].
Punto Medio(const editor::frmUEHs& f)
{
    return editor::DePixel(f.vista, f.vista.lienzo.ancho / 2.0, f.vista.lienzo.alto / 2.0);
}

struct VaAlComponente : EditorDePrueba {
    VaAlComponente()
    {
        red.Cauce("c-a", {{100, 100}, {200, 200}});
        red.UEH("u-a", {300, 300});
        red.Represa("r-a", {400, 300});
        red.Lago("l-a", {500, 300});
        red.Lago("l-b", {600, 700});
        Parte();
        f.vista.recentra = f.vista.reescala = false;
        f.vista.origen = {};
    }
    std::vector<editor::Pedido> Va(const char* nombre, bool esta = true)
    {
        EXPECT_EQ(editor::VaA(f, s, nombre, checks::Lugar::Ficha), esta) << nombre;
        return std::exchange(f.pedidos, {});
    }
    using Pedidos = std::vector<editor::Pedido>;
    /// Numbers of the selected reach, UEH, Represa and Lago.
    using Cuatro = std::array<std::int16_t, 4>;
    [[nodiscard]] Cuatro Elegidos() const
    {
        return {s.Seleccion.CauceSel, s.Seleccion.UEHSel, s.Seleccion.RepresaSel, s.Seleccion.LagoSel};
    }
};

TEST_F(VaAlComponente, EligeEseSoloYPideSuForma)
{
    s.Seleccion = {.CauceSel = 1, .UEHSel = 1, .LagoSel = 1};
    EXPECT_EQ(Va("l-b"), Pedidos{editor::Pedido::FormaLago});
    EXPECT_EQ(Elegidos(), (Cuatro{0, 0, 0, 2}));
    EXPECT_EQ(Va("u-a"), Pedidos{editor::Pedido::FormaUEH});
    EXPECT_EQ(Elegidos(), (Cuatro{0, 1, 0, 0}));
    EXPECT_EQ(Va("c-a"), Pedidos{editor::Pedido::FormaCauce});
    EXPECT_EQ(Elegidos(), (Cuatro{1, 0, 0, 0}));
    EXPECT_EQ(Va("r-a"), Pedidos{editor::Pedido::FormaRepresa});
    EXPECT_EQ(Elegidos(), (Cuatro{0, 0, 1, 0}));
    EXPECT_FALSE(f.cambiada);
}

TEST_F(VaAlComponente, LoQueNoEstaDejaTodoComoEsta)
{
    s.Seleccion.UEHSel = 1;
    EXPECT_EQ(Va("u-z", false), Pedidos{});
    EXPECT_EQ(Elegidos(), (Cuatro{0, 1, 0, 0}));
}

TEST_F(VaAlComponente, LoQueSeVeNoMueveElDibujoYLoDemasVieneAlMedio)
{
    f.vista.sldEscala = 50;  // shows 0 to 400 either way
    Va("u-a");
    EXPECT_EQ(f.vista.origen, (Punto{0, 0}));
    Va("l-b");
    EXPECT_EQ(Medio(f), (Punto{600, 700}));
    Va("c-a");
    EXPECT_EQ(Medio(f), (Punto{200, 200}));
    EXPECT_FALSE(f.cambiada);
}

TEST_F(VaAlComponente, LoQueSeHaciaSigue)
{
    s.Red.ColUEHs.Item(1).Area = 7;
    Clic(700, 100);  // an event, which notes it
    EXPECT_TRUE(f.cambiada);
    PonModo(Boton::Cauce);
    Clic(500, 500);
    Clic(600, 600);
    Va("r-a");
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(editor::Modo(f), Boton::Cauce);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 7);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

}  // namespace
