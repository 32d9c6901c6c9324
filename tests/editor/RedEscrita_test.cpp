// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/RedEscrita.h"

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"

namespace {

using editor::Boton;
using editor::Diferencia;
using editor::Punto;
using editor::RedEscrita;
using editor::RedGuardada;

struct RedComoBytes : EditorDePrueba {
    RedComoBytes()
    {
        red.Cauce("c-1", {{100, 300}, {150.5, 250.25}, {200, 200}});
        red.Cauce("c-2", {{200, 200}, {300, 100}}, "c-1");
        red.UEH("u-1", {250, 150}, "c-1", {120, 280});
        red.Represa("r-1", {90, 310});
        red.Lago("l-1", {310, 90});
        Parte();
    }
    RedGuardada Presente() { return *f.historia.presente; }
    void Edita(const std::function<void()>& cuerpo) { editor::Evento(f, s, cuerpo); }
};

TEST_F(RedComoBytes, VaYVuelve)
{
    const auto escrita = editor::Escribe(Presente());
    ASSERT_TRUE(escrita);
    const auto leida = editor::Lee(*escrita);
    ASSERT_TRUE(leida);
    EXPECT_EQ(editor::Compara(Presente(), *leida), Diferencia{});
    EXPECT_EQ(leida->lineas, Presente().lineas);
    EXPECT_EQ(leida->ColUEHs, Presente().ColUEHs);
}

TEST_F(RedComoBytes, LaVaciaNoTieneArchivos)
{
    const auto escrita = editor::Escribe(RedGuardada{});
    ASSERT_TRUE(escrita);
    EXPECT_EQ(*escrita, (RedEscrita{"", "", "0\n\n"}));
    const auto leida = editor::Lee(*escrita);
    ASSERT_TRUE(leida);
    EXPECT_EQ(editor::Compara(*leida, RedGuardada{}), Diferencia{});
}

TEST_F(RedComoBytes, DanadaEnCualquierLargoNoSeLee)
{
    PonModo(Boton::Cauce);
    Clic(400, 400);
    Clic(450, 420);
    const RedEscrita escrita = *editor::Escribe(Presente());
    ASSERT_TRUE(editor::Lee(escrita));
    int rechazadas = 0;
    const auto corta = [&](std::string RedEscrita::*parte) {
        // Whatever is read is no more than what was there.
        for (std::size_t largo = 1; largo < (escrita.*parte).size(); ++largo) {
            RedEscrita cortada = escrita;
            (cortada.*parte).resize(largo);
            const auto leida = editor::Lee(cortada);
            rechazadas += !leida;
            if (leida) {
                EXPECT_LE(leida->ColUEHs.Cuenta(), 1);
            }
        }
    };
    corta(&RedEscrita::uehs);
    corta(&RedEscrita::verCau);
    corta(&RedEscrita::trazo);
    EXPECT_GT(rechazadas, 300);
    for (const char* const trazo :
         {"", "x\n\n", "-1\n\n", "21\n\n1\n2\n", "2\n\n1\n", "2\n\n1\nx\n", "0\n\n1\n2\n"}) {
        RedEscrita mala = escrita;
        mala.trazo = trazo;
        EXPECT_FALSE(editor::Lee(mala)) << trazo;
    }
}

TEST_F(RedComoBytes, LaDiferenciaSeDicePorNombres)
{
    const RedGuardada antes = Presente();
    Edita([&] {
        s.Red.ColUEHs.Item(1).Area = 12;
        s.Red.ColLagos.Vacia();
        s.Red.XVertice(2, 2) = 333;
        red.Represa("r-2", {1, 2});
    });
    EXPECT_EQ(editor::Compara(antes, Presente()),
              (Diferencia{.nuevos = {"r-2"}, .quitados = {"l-1"}, .cambiados = {"c-2", "u-1"}}));
    EXPECT_TRUE(editor::Compara(antes, antes).Ninguna());
}

// Two reaches whose names were cancelled are told apart by their order.
TEST_F(RedComoBytes, LosQueNoTienenNombreSeComparanEnSuOrden)
{
    red.Cauce("", {{1, 1}, {2, 2}});
    red.Cauce("", {{3, 3}, {4, 4}});
    Edita([] {});
    const RedGuardada antes = Presente();
    EXPECT_TRUE(editor::Compara(antes, antes).Ninguna());
    Edita([&] { red.Cauce("", {{5, 5}, {6, 6}}); });
    EXPECT_EQ(editor::Compara(antes, Presente()), (Diferencia{.nuevos = {""}}));
}

TEST_F(RedComoBytes, RecuperadaEsUnPasoSobreLaGuardada)
{
    Guarda();
    const RedGuardada guardada = Presente();
    Edita([&] { s.Red.ColUEHs.Item(1).Area = 77; });
    const RedGuardada otra = *editor::Lee(*editor::Escribe(Presente()));
    Abre();  // as the next program finds it
    ASSERT_FALSE(f.cambiada);
    editor::Recupera(f, s, otra);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 77);
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    EXPECT_EQ(f.dibujo.Primitivas().empty(), false);
    Tecla(editor::Tecla::Deshacer);
    EXPECT_EQ(editor::Compara(guardada, Presente()), Diferencia{});
    Tecla(editor::Tecla::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 77);
}

TEST_F(RedComoBytes, ElCauceAMedioDibujarSigueEnLaMano)
{
    Guarda();
    PonModo(Boton::Cauce);
    Clic(400, 400);
    Clic(450, 420);
    const RedGuardada conTrazo = *editor::Lee(*editor::Escribe(Presente()));
    EXPECT_EQ(conTrazo.trazo.ClicsCauce, 2);
    Abre();
    editor::Recupera(f, s, conTrazo);
    EXPECT_EQ(editor::Modo(f), Boton::Cauce);
    anfitrion->textos = {"nuevo"};
    Clic(500, 500);
    DobleClic(520, 520);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 3);
    EXPECT_EQ(s.Red.ColCauces.Item(3).NombreCauce, "c-nuevo");
    EXPECT_EQ(Vertice(3, 1), (Punto{400, 400}));
    EXPECT_EQ(Vertice(3, 2), (Punto{450, 420}));
    EXPECT_EQ(Vertice(3, 3), (Punto{500, 500}));
}

}  // namespace
