// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Pasos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"
#include "study/Avance.h"

namespace study {
namespace {

/// A window that counts how often it looked at what is in hand.
struct ConCuenta : Pasos {
    using Pasos::Pasos;
    void TomaEnMano() override { ++veces; }
    int veces = 0;
};

struct VentanaConPasos : testing::Test {
    VentanaConPasos()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
    }
    void AbreProyecto()
    {
        s.Proyecto.NombreProyecto = "Quelmar";
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.ProyectoNuevo = false;
        estudio.Sigue();
    }
    void Nombra(const char* nombre)
    {
        CambiaEstudio(f, std::string("Evento ") + nombre,
                      [&](Estudio& e) { e.ajuste.eventos = {{.nombre = nombre}}; });
    }
    [[nodiscard]] std::string Nombre() const
    {
        const auto& eventos = estudio.EnMano().ajuste.eventos;
        return eventos.empty() ? std::string() : eventos[0].nombre;
    }

    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    Abierto estudio{s};
    ConCuenta f{estudio};
};

TEST_F(VentanaConPasos, SinProyectoNadaCambia)
{
    EXPECT_NE(FaltaProyecto(f), "");
    Nombra("Marzo");
    EXPECT_EQ(Nombre(), "");
}

TEST_F(VentanaConPasos, CadaCambioEsUnPasoQueDiceQueEs)
{
    AbreProyecto();
    EXPECT_EQ(FaltaProyecto(f), "");
    Nombra("Marzo");
    Nombra("Abril");
    EXPECT_EQ(f.veces, 2);
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Evento Abril");
    EXPECT_EQ(f.cmdRehacer, "Rehacer");
    cmdDeshacer(f);
    EXPECT_EQ(Nombre(), "Marzo");
    EXPECT_EQ(f.cmdRehacer, "Rehacer: Evento Abril");
    EXPECT_EQ(f.veces, 3);
    cmdRehacer(f);
    EXPECT_EQ(Nombre(), "Abril");
}

TEST_F(VentanaConPasos, UnArchivoDanadoSeApartaDesdeLaVentana)
{
    disco.Pon("/proy/Quelmar_Estudio.json", "{");
    AbreProyecto();
    Toma(f);
    EXPECT_TRUE(f.danado);
    EXPECT_NE(f.lblArchivo, "");
    cmdArchivo(f);
    EXPECT_FALSE(f.danado);
    EXPECT_EQ(f.lblArchivo, "");
}

TEST(ListasEnMano, UnLugarFueraDeLaListaNoDaNada)
{
    std::vector<int> lista{7, 8};
    EXPECT_EQ(*Item(lista, 1), 8);
    EXPECT_EQ(Item(lista, 2), nullptr);
    EXPECT_EQ(Item(lista, -1), nullptr);
    EXPECT_EQ(Dentro(5, 2), 1);
    EXPECT_EQ(Dentro(5, 0), 0);
    ItemPuesto(lista, 9) = 3;
    EXPECT_EQ(lista, (std::vector<int>{7, 3}));
    std::vector<int> vacia;
    ItemPuesto(vacia, 0) = 4;
    EXPECT_EQ(vacia, (std::vector<int>{4}));
}

// A quarter done in 3 s leaves 9.
TEST(AvanceEnPalabras, DiceLoQueFaltaCuandoHayDeDondeJuzgarlo)
{
    EXPECT_EQ(AvanceDe(25, 100, 3).texto, "25 %, quedan 9 s");
    EXPECT_EQ(AvanceDe(25, 100, 0.1).texto, "25 %");
    EXPECT_EQ(AvanceDe(0, 100, 3).texto, "0 %");
    EXPECT_EQ(AvanceDe(0, 0, 3).texto, "0 %");
}

}  // namespace
}  // namespace study
