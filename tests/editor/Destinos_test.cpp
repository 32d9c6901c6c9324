// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Destinos.h"

#include "apoyo/Compara.h"
#include "editor/Cauces.h"
#include "editor/fichas/FichasDePrueba.h"

namespace editor {
namespace {

using ListasDeDestinos = RedDeFichas;

TEST_F(ListasDeDestinos, TodosLosCaucesLasRepresasYLosLagosYAlFinalNinguno)
{
    const Lista lista = ListaDestinos(s.Red, OrdenDestinos::Todos, "r-2");
    EXPECT_EQ(lista.items, (Textos{"c-1", "c-2", "c-3", "r-1", "r-2", "l-1", "l-2", "Ninguno", "0"}));
    EXPECT_EQ(lista.indice, 4);
}

TEST_F(ListasDeDestinos, NingunoYCeroAntesDeLosCauces)
{
    const Lista lista = ListaDestinos(s.Red, OrdenDestinos::SoloCauces, "c-2");
    EXPECT_EQ(lista.items, (Textos{"Ninguno", "0", "c-1", "c-2", "c-3"}));
    EXPECT_EQ(lista.indice, 3);
}

TEST_F(ListasDeDestinos, SinDestinoEsNingunoElCeroEsCeroYUnDesconocidoNinguno)
{
    EXPECT_EQ(ListaDestinos(s.Red, OrdenDestinos::Todos, "").indice, 7);
    EXPECT_EQ(ListaDestinos(s.Red, OrdenDestinos::Todos, "0").indice, 8);
    EXPECT_EQ(ListaDestinos(s.Red, OrdenDestinos::Todos, "c-9").indice, -1);
    EXPECT_EQ(ListaDestinos(s.Red, OrdenDestinos::SoloCauces, "").indice, 0);
    EXPECT_EQ(ListaDestinos(s.Red, OrdenDestinos::SoloCauces, "r-1").indice, -1);
}

TEST_F(ListasDeDestinos, CadaEntradaDaSuDestinoYSuPunto)
{
    struct Caso {
        int indice;
        Destino destino;
        Punto punto;
    };
    const std::vector<Caso> casos = {
        {0, {Clase::Cauce, 1, "c-1"}, {16, 18}},
        {2, {Clase::Cauce, 3, "c-3"}, {60, 60}},
        {3, {Clase::Represa, 1, "r-1"}, {71, 72}},
        {6, {Clase::Lago, 2, "l-2"}, {81, 82}},
        {7, {{}, 0, ""}, {0, 0}},
        {8, {{}, 0, "0"}, {0, 0}},
    };
    for (const Caso& caso : casos) {
        const auto destino = DestinoElegido(s.Red, OrdenDestinos::Todos, {{}, caso.indice});
        ASSERT_TRUE(destino) << caso.indice;
        EXPECT_EQ(*destino, caso.destino) << caso.indice;
        EXPECT_EQ(PuntoDestino(s.Red, *destino), caso.punto) << caso.indice;
    }
    EXPECT_FALSE(DestinoElegido(s.Red, OrdenDestinos::Todos, {{}, -1}));
    EXPECT_FALSE(DestinoElegido(s.Red, OrdenDestinos::Todos, {{}, 9}));
}

TEST_F(ListasDeDestinos, UnCauceSeBuscaPorSuNombreElPrimeroVale)
{
    EXPECT_EQ(model::NumeroDe<model::Cauce>(s.Red, "c-2"), 2);
    EXPECT_EQ(model::NumeroDe<model::Cauce>(s.Red, "c-9"), 0);
    s.Red.Cauces(3).NombreCauce = "c-2";
    EXPECT_EQ(model::NumeroDe<model::Cauce>(s.Red, "c-2"), 2);
}

TEST_F(ListasDeDestinos, UnCauceSinVerticesAcabaEnElOrigenYNoTienePrimero)
{
    s.Red.NroVertices(3) = 0;
    EXPECT_EQ(UltimoVertice(s.Red, 3), (Punto{0, 0}));
    PonPrimerVertice(s.Red, 3, {5, 6});
    EXPECT_EQ(PrimerVertice(3), (std::pair<float, float>{50, 50}));
    PonPrimerVertice(s.Red, 2, {5, 6});
    EXPECT_EQ(PrimerVertice(2), (std::pair<float, float>{5, 6}));
}

TEST_F(ListasDeDestinos, VerticesQueNoEstanEnMemoriaSonFalla9)
{
    s.Red.XVertice.Dimensiona(70, 1);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { UltimoVertice(s.Red, 1); }), 9);
}

}  // namespace
}  // namespace editor
