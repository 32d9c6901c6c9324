// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"

// What a press selects. The icons' size s is 10, the canvas 800 wide: ToleranciaVertice is 16, half of it 8.
namespace {

using QueArrastra = editor::Arrastra;
using editor::Boton;
using editor::Punto;

struct EdicionSelecciona : EditorDePrueba {
    /// Numbers of the selected reach, the one before it, UEH, Represa, Lago, and of the grabbed vertex.
    using Seis = std::array<std::int16_t, 6>;
    [[nodiscard]] Seis Elegidos() const
    {
        return {s.Seleccion.CauceSel,   s.Seleccion.CauceAnterior, s.Seleccion.UEHSel,
                s.Seleccion.RepresaSel, s.Seleccion.LagoSel,       s.Seleccion.VerticeSel};
    }
    /// What a press selects when nothing was selected before.
    Seis Desde0(float x, float y)
    {
        editor::LimpiaSeleccion(s);
        Clic(x, y);
        return Elegidos();
    }
};

constexpr EdicionSelecciona::Seis Nada = {0, 0, 0, 0, 0, 0};

TEST_F(EdicionSelecciona, UnVerticeDeUnCauceAMediaToleranciaLoSelecciona)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    const EdicionSelecciona::Seis a = {1, 0, 0, 0, 0, 0};
    EXPECT_EQ(Desde0(100, 100), a);
    EXPECT_EQ(Desde0(192, 200), a);
    EXPECT_EQ(Desde0(300, 108), a);
    EXPECT_EQ(Desde0(308, 92), a);
    EXPECT_EQ(Desde0(308.01F, 100), Nada);
    EXPECT_EQ(Desde0(300, 91.99F), Nada);
    EXPECT_EQ(Desde0(150, 150), Nada);  // on the line, far from its vertices
}

TEST_F(EdicionSelecciona, LaToleranciaEsElDosPorCientoDelAnchoTruncado)
{
    red.Cauce("c-a", {{100, 100}, {300, 100}});
    Parte();
    f.vista.sldEscala = 99;  // 792 wide: 15.84
    Clic(107.5F, 100);
    EXPECT_EQ(f.vista.ToleranciaVertice, 15);
    EXPECT_EQ(s.Seleccion.CauceSel, 1);
    EXPECT_EQ(Desde0(107.51F, 100), Nada);
    f.vista.sldEscala = 200;
    EXPECT_EQ(Desde0(116, 100), (EdicionSelecciona::Seis{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(f.vista.ToleranciaVertice, 32);
}

TEST_F(EdicionSelecciona, UnaToleranciaNulaAunTomaElVerticeExacto)
{
    red.Cauce("c-a", {{10, 10}, {20, 10}});
    Parte();
    f.vista.sldEscala = 1;  // 8 wide: 0.16
    EXPECT_EQ(Desde0(20, 10), (EdicionSelecciona::Seis{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(f.vista.ToleranciaVertice, 0);
    EXPECT_EQ(Desde0(20, 10.001F), Nada);
}

TEST_F(EdicionSelecciona, EntreVariosCaucesGanaElUltimo)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.Cauce("c-b", {{105, 100}, {300, 200}});
    red.Cauce("c-c", {{500, 100}, {600, 200}});
    Parte();
    EXPECT_EQ(Desde0(100, 100)[0], 2);  // the first one lies there exactly
    EXPECT_EQ(Desde0(96, 100)[0], 1);
}

TEST_F(EdicionSelecciona, ElSegundoClicEnElCauceTomaSuVertice)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    Clic(200, 200);
    EXPECT_EQ(Elegidos(), (Seis{1, 0, 0, 0, 0, 0}));
    Clic(216, 184);  // the whole tolerance
    EXPECT_EQ(Elegidos(), (Seis{1, 1, 0, 0, 0, 2}));
    EXPECT_EQ(f.gesto.arrastra, QueArrastra::Nada);  // released
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    Clic(216.01F, 184);
    EXPECT_EQ(Elegidos(), Nada);
}

TEST_F(EdicionSelecciona, TomaElPrimerVerticeEnSuOrden)
{
    red.Cauce("c-a", {{100, 100}, {110, 100}, {120, 100}});
    Parte();
    s.Seleccion.CauceSel = 1;
    Clic(118, 100);
    EXPECT_EQ(s.Seleccion.VerticeSel, 2);
    Clic(112, 100);
    EXPECT_EQ(s.Seleccion.VerticeSel, 1);
}

TEST_F(EdicionSelecciona, ElVerticeTomadoSeMarcaEnRojo)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    Clic(200, 200);
    Clic(200, 200);
    ASSERT_EQ(Con(editor::Papel::VerticeTomado).size(), 1U);
    EXPECT_EQ(Con(editor::Papel::VerticeTomado)[0].en, (Punto{200, 200}));
    EXPECT_EQ(Con(editor::Papel::MarcaVertice).size(), 2U);
}

TEST_F(EdicionSelecciona, DosCaucesSeguidosSonLosExtremosDeUnEnlace)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.Cauce("c-b", {{500, 100}, {600, 200}});
    Parte();
    Clic(100, 100);
    Clic(500, 100);
    EXPECT_EQ(Elegidos(), (Seis{2, 1, 0, 0, 0, 0}));
}

TEST_F(EdicionSelecciona, LaCajaDeUnaUEHVaHastaUnoYMedioDeSuTamano)
{
    red.UEH("u-a", {100, 100});
    Parte();
    const Seis a = {0, 0, 1, 0, 0, 0};
    EXPECT_EQ(Desde0(100, 100.01F), a);
    EXPECT_EQ(Desde0(115, 115), a);
    EXPECT_EQ(Desde0(100, 100), Nada);  // the upper side doesn't belong to it
    EXPECT_EQ(Desde0(99.99F, 110), Nada);
    EXPECT_EQ(Desde0(115.01F, 110), Nada);
    EXPECT_EQ(Desde0(110, 115.01F), Nada);
}

TEST_F(EdicionSelecciona, LaCajaDeUnaRepresaEsLaMisma)
{
    red.Represa("r-a", {100, 100});
    Parte();
    const Seis a = {0, 0, 0, 1, 0, 0};
    EXPECT_EQ(Desde0(100, 100.01F), a);
    EXPECT_EQ(Desde0(115, 115), a);
    EXPECT_EQ(Desde0(100, 100), Nada);
    EXPECT_EQ(Desde0(99.99F, 110), Nada);
    EXPECT_EQ(Desde0(115.01F, 110), Nada);
    EXPECT_EQ(Desde0(110, 115.01F), Nada);
}

TEST_F(EdicionSelecciona, LaCajaDeUnLagoRodeaSuPosicion)
{
    red.Lago("l-a", {100, 100});
    Parte();
    const Seis a = {0, 0, 0, 0, 1, 0};
    EXPECT_EQ(Desde0(90, 120), a);
    EXPECT_EQ(Desde0(110, 80.01F), a);
    EXPECT_EQ(Desde0(100, 80), Nada);
    EXPECT_EQ(Desde0(89.99F, 100), Nada);
    EXPECT_EQ(Desde0(110.01F, 100), Nada);
    EXPECT_EQ(Desde0(100, 120.01F), Nada);
}

TEST_F(EdicionSelecciona, EntreIconosSuperpuestosGanaElPrimeroDeSuClase)
{
    red.UEH("u-a", {100, 100});
    red.UEH("u-b", {105, 100});
    red.Represa("r-a", {105, 100});
    red.Represa("r-b", {100, 100});
    Parte();
    EXPECT_EQ(Desde0(110, 110), (Seis{0, 0, 1, 1, 0, 0}));  // a UEH and a Represa may be selected at once
    EXPECT_EQ(Desde0(118, 110), (Seis{0, 0, 2, 1, 0, 0}));
}

TEST_F(EdicionSelecciona, UnCauceYDespuesUnComponenteQuedanElegidosLosDos)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    EXPECT_EQ((Desde0(100, 100), Clic(405, 105), Elegidos()), (Seis{1, 1, 1, 0, 0, 0}));
    EXPECT_EQ((Desde0(100, 100), Clic(505, 105), Elegidos()), (Seis{1, 1, 0, 1, 0, 0}));
    EXPECT_EQ((Desde0(100, 100), Clic(600, 100), Elegidos()), (Seis{1, 1, 0, 0, 1, 0}));
}

TEST_F(EdicionSelecciona, UnComponenteYDespuesUnCauceTambien)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    EXPECT_EQ((Desde0(405, 105), Clic(100, 100), Elegidos()), (Seis{1, 0, 1, 0, 0, 0}));
    EXPECT_EQ((Desde0(505, 105), Clic(100, 100), Elegidos()), (Seis{1, 0, 0, 1, 0, 0}));
    EXPECT_EQ((Desde0(600, 100), Clic(100, 100), Elegidos()), (Seis{1, 0, 0, 0, 1, 0}));
}

TEST_F(EdicionSelecciona, ConUnCauceElegidoElClicSiguienteSueltaLosComponentes)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    Parte();
    Clic(405, 105);
    Clic(100, 100);
    Clic(505, 105);
    EXPECT_EQ(Elegidos(), (Seis{1, 1, 0, 1, 0, 0}));
}

TEST_F(EdicionSelecciona, UnaUEHYUnEmbalseQuedanElegidosLosDos)
{
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    EXPECT_EQ((Desde0(405, 105), Clic(505, 105), Elegidos()), (Seis{0, 0, 1, 1, 0, 0}));
    EXPECT_EQ((Desde0(505, 105), Clic(405, 105), Elegidos()), (Seis{0, 0, 1, 1, 0, 0}));
    EXPECT_EQ((Desde0(405, 105), Clic(600, 100), Elegidos()), (Seis{0, 0, 1, 0, 1, 0}));
}

TEST_F(EdicionSelecciona, ElegirUnLagoSueltaLaRepresa)
{
    red.Represa("r-a", {500, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    Clic(505, 105);
    Clic(600, 100);
    EXPECT_EQ(Elegidos(), (Seis{0, 0, 0, 0, 1, 0}));
    Clic(505, 105);
    EXPECT_EQ(Elegidos(), (Seis{0, 0, 0, 1, 1, 0}));
}

TEST_F(EdicionSelecciona, ElegirUnLagoConUnCauceEnElMismoClicSueltaLaUEH)
{
    red.Cauce("c-a", {{600, 100}, {700, 200}});
    red.UEH("u-a", {400, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    Clic(405, 105);
    Clic(600, 100);
    EXPECT_EQ(Elegidos(), (Seis{1, 0, 0, 0, 1, 0}));
}

TEST_F(EdicionSelecciona, UnClicEnElVacioSueltaTodo)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    Parte();
    Clic(100, 100);
    Clic(405, 105);
    Clic(700, 700);
    EXPECT_EQ(Elegidos(), Nada);
}

TEST_F(EdicionSelecciona, CercaDeLaUEHElegidaElClicNoEligeOtraNiSuelta)
{
    red.UEH("u-a", {400, 100});
    red.UEH("u-b", {412, 100});
    Parte();
    Clic(405, 105);
    Clic(417, 110);  // in the box of the other one
    EXPECT_EQ(Elegidos(), (Seis{0, 0, 1, 0, 0, 0}));
    Clic(383, 83);
    EXPECT_EQ(Elegidos(), (Seis{0, 0, 1, 0, 0, 0}));
    Clic(417.01F, 110);
    EXPECT_EQ(Elegidos(), (Seis{0, 0, 2, 0, 0, 0}));
    Clic(394.9F, 90);
    EXPECT_EQ(Elegidos(), Nada);
}

TEST_F(EdicionSelecciona, ApretarElAsaArmaElEnlaceYConservaLaSeleccion)
{
    red.UEH("u-a", {100, 100});
    red.Represa("r-a", {300, 100});
    red.Lago("l-a", {500, 100});
    Parte();
    const auto arma = [&](float x, float y, float xAsa, float yAsa) {
        editor::LimpiaSeleccion(s);
        Clic(x, y);
        Aprieta(xAsa, yAsa);
        const QueArrastra arrastra = f.gesto.arrastra;
        Suelta(xAsa, yAsa);
        return arrastra;
    };
    EXPECT_EQ(arma(105, 105, 100, 135), QueArrastra::EnlaceUEH);
    EXPECT_EQ(arma(105, 105, 120, 155), QueArrastra::EnlaceUEH);
    EXPECT_EQ(arma(105, 105, 120.01F, 150), QueArrastra::Nada);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(arma(305, 105, 280, 120), QueArrastra::EnlaceRepresa);
    EXPECT_EQ(arma(305, 105, 300, 155.01F), QueArrastra::Nada);
    EXPECT_EQ(arma(500, 105, 500, 135), QueArrastra::EnlaceLago);
    EXPECT_EQ(arma(500, 105, 505, 119), QueArrastra::EnlaceLago);  // in its own box too
    EXPECT_EQ(s.Seleccion.LagoSel, 1);
}

TEST_F(EdicionSelecciona, ElAsaDeLaUEHVaAntesQueMoverla)
{
    red.UEH("u-a", {100, 100});
    Parte();
    Clic(105, 105);
    Aprieta(110, 116);  // within 1.7 s of the icon and within 2 s of the handle
    EXPECT_EQ(f.gesto.arrastra, QueArrastra::EnlaceUEH);
}

TEST_F(EdicionSelecciona, OtraUEHBajoElAsaSeEligeYNoHeredaElEnlace)
{
    red.UEH("u-a", {100, 100});
    red.UEH("u-b", {95, 130});
    Parte();
    Clic(105, 105);
    Aprieta(100, 135);
    EXPECT_EQ(s.Seleccion.UEHSel, 2);
    EXPECT_EQ(f.gesto.arrastra, QueArrastra::IconoUEH);
}

TEST_F(EdicionSelecciona, ElTrazoSinTerminarNoSeElige)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    Parte();
    PonModo(Boton::Cauce);
    Clic(500, 500);
    Clic(600, 600);
    PonModo(Boton::Selecciona);
    EXPECT_EQ(Desde0(500, 500), Nada);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
}

TEST_F(EdicionSelecciona, UnCauceYSuVerticeConUnaUEHEncimaEligeLosDos)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {95, 95});
    Parte();
    Clic(100, 100);
    EXPECT_EQ(Elegidos(), (Seis{1, 0, 1, 0, 0, 0}));
}

}  // namespace
