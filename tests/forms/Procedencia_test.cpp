// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Procedencia.h"

#include <gtest/gtest.h>

#include "apoyo/AnfitrionPrueba.h"
#include "model/Siro.h"

namespace forms {
namespace {

TEST(Procedencia, DiceElProyectoYElDia)
{
    apoyo::AnfitrionPrueba anfitrion;
    anfitrion->fechaHora = "03/04/2011 10:20:30";
    model::Siro s;
    s.Anfitrion = anfitrion.Puerta();
    s.Proyecto.NombreProyecto = "Quelmar";
    s.Configuracion.TituloProyecto = "Crecidas";
    const Procedencia p = DeHoy(s, {.titulo = "Hidrograma", .tema = "Componente: 1, u-1   Pp= 60mm"});
    EXPECT_EQ(Renglones(p), (std::vector<std::string>{"Hidrograma", "Componente: 1, u-1   Pp= 60mm",
                                                      "Proyecto: Quelmar - Crecidas", "Fecha: 03/04/2011"}));
}

TEST(Procedencia, LoQueFaltaNoDejaRenglon)
{
    EXPECT_EQ(Renglones({}), std::vector<std::string>{});
    model::Siro s;
    s.Proyecto.NombreProyecto = "Quelmar";
    EXPECT_EQ(Renglones(DeHoy(s, {.titulo = "Hietograma", .componente = "u-1"})),
              (std::vector<std::string>{"Hietograma", "Proyecto: Quelmar"}));
}

TEST(NombreDeArchivo, LlevaElComponenteYNadaQueWindowsRechace)
{
    EXPECT_EQ(NombreDeArchivo({.titulo = "Hidrograma", .componente = "c-Salida"}), "Hidrograma - c-Salida");
    EXPECT_EQ(NombreDeArchivo({.titulo = "Hietograma"}), "Hietograma");
    EXPECT_EQ(NombreDeArchivo({.titulo = "Serie: Resumen de Coef.Esc.", .componente = "u-1"}),
              "Serie - Resumen de Coef.Esc. - u-1");
    EXPECT_EQ(NombreDeArchivo({.titulo = "Coef. Esc."}), "Coef. Esc");
    EXPECT_EQ(NombreDeArchivo({.componente = "c-a<b>c:d\"e/f\\g|h?i*j\tk"}), "c-a-b-c-d-e-f-g-h-i-j-k");
    EXPECT_EQ(NombreDeArchivo({.componente = "u-Ñandú"}), "u-Ñandú");
}

}  // namespace
}  // namespace forms
