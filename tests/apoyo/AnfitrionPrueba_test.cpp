// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/AnfitrionPrueba.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/Falla.h"

using namespace apoyo;
using model::Icono;
using model::Mensaje;

namespace {

struct Guion : ::testing::Test {
    AnfitrionPrueba anfitrion;
    model::Anfitrion puerta = anfitrion.Puerta();
};

TEST_F(Guion, LasRespuestasPreparadasEnOrdenYLuegoLaDeSiempre)
{
    anfitrion->respuestas = {false, true, false};
    anfitrion->respuestaDeSiempre = false;
    std::vector<bool> dadas;
    for (int i = 0; i < 5; ++i)
        dadas.push_back(puerta.Pregunta({"¿?", "t", Icono::Pregunta}));
    EXPECT_EQ(dadas, (std::vector<bool>{false, true, false, false, false}));
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>(5, {"¿?", "t", Icono::Pregunta}));
}

TEST_F(Guion, LosTextosPreparadosYLuegoCancela)
{
    anfitrion->textos = {"uno", "dos"};
    EXPECT_EQ(puerta.PideTexto({"nombre", "t", "x"}), "uno");
    EXPECT_EQ(puerta.PideTexto({"nombre", "t", "x"}), "dos");
    EXPECT_EQ(puerta.PideTexto({"nombre", "t", "x"}), "");
    anfitrion->aceptaDefecto = true;
    EXPECT_EQ(puerta.PideTexto({"nombre", "t", "x"}), "x");
    anfitrion->elegidos = {"/a"};
    EXPECT_EQ(puerta.EligeArchivo("título", "filtro"), "/a");
    EXPECT_EQ(puerta.EligeArchivo("título", "filtro"), "");
}

TEST_F(Guion, RecuerdaTodoEnOrden)
{
    puerta.Avisa({"a", "", Icono::Ninguno});
    puerta.Pregunta({"b", "t", Icono::Exclamacion});
    puerta.PideTexto({"c", "t", "d"});
    EXPECT_THROW(puerta.Termina(), model::FinDelPrograma);
    EXPECT_EQ(anfitrion->sucesos, (std::vector<Suceso>{
                                      {Suceso::Clase::Aviso, {"a", "", Icono::Ninguno}, ""},
                                      {Suceso::Clase::Pregunta, {"b", "t", Icono::Exclamacion}, "Sí"},
                                      {Suceso::Clase::Peticion, {"c", "t"}, ""},
                                      {Suceso::Clase::Fin, {}, ""},
                                  }));
    EXPECT_TRUE(anfitrion->Termino());
}

TEST_F(Guion, LaPizarra)
{
    EXPECT_FALSE(puerta.MarcaPizarra());
    puerta.PonMarcaPizarra(true);
    EXPECT_TRUE(puerta.MarcaPizarra());
    puerta.PonPizarra("uno");
    puerta.AgregaPizarra(" dos");
    puerta.AmpliaPizarra("uno dos tres");
    EXPECT_EQ(puerta.LeePizarra(), "uno dos tres");
    puerta.AbrePizarra();
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
}

TEST_F(Guion, NotaUnaPizarraQueNoEmpiezaConLoQueHabia)
{
    puerta.PonPizarra("uno");
    EXPECT_NONFATAL_FAILURE(puerta.AmpliaPizarra("dos"), "doesn't begin with");
}

TEST_F(Guion, ElAvanceYElReloj)
{
    puerta.AbreAvance("Serie");
    EXPECT_TRUE(anfitrion->avanceAbierto);
    puerta.TextosAvance("a", "b");
    puerta.BarraAvance(12);
    puerta.CierraAvance();
    EXPECT_FALSE(anfitrion->avanceAbierto);
    EXPECT_EQ(anfitrion->avance,
              (std::vector<std::string>{"abre Serie", "textos a|b", "barra 12", "cierra"}));
    anfitrion->pasoReloj = 2.5;
    EXPECT_EQ(puerta.Reloj(), 1000);
    EXPECT_EQ(puerta.Reloj(), 1002.5);
    EXPECT_EQ(puerta.FechaHora(), "03/04/2011 10:20:30");
}

}  // namespace
