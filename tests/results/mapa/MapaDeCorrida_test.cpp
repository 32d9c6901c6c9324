// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/MapaDeCorrida.h"

#include <gtest/gtest.h>

#include "CorridaDelMapa.h"

namespace results {
namespace {

using forms::Pixel;

// --- the view ---

// 100 wide and 133.33 high is 100 by 100 pixels at one pixel per unit across; in 110 by 110 a twentieth is
// left on each side.
TEST(VistaDeMapa, MuestraTodoConMargen)
{
    const VistaDeMapa v = VistaDe({0, 0, 100, 133.333333}, {0, 0, 110, 110});
    EXPECT_NEAR(v.escala, 1, 1e-9);
    EXPECT_NEAR(v.APixel({0, 0}).x, 5, 1e-6);
    EXPECT_NEAR(v.APixel({0, 0}).y, 5, 1e-6);
    EXPECT_NEAR(v.APixel({100, 133.333333}).x, 105, 1e-6);
    EXPECT_NEAR(v.APixel({100, 133.333333}).y, 105, 1e-6);
    // The wide way round: 220 by 50 in 110 by 110 is halved, and centred in the height.
    const VistaDeMapa ancha = VistaDe({-20, 10, 200, 60}, {0, 0, 110, 110});
    EXPECT_NEAR(ancha.escala, 0.5, 1e-9);
    EXPECT_NEAR(ancha.APixel({80, 40}).x, 55, 1e-6);
    EXPECT_NEAR(ancha.APixel({80, 40}).y, 55, 1e-6);
    EXPECT_EQ(VistaDe({7, 7, 0, 0}, {0, 0, 100, 100}).escala, 1);
}

TEST(VistaDeMapa, LaRuedaDejaQuietoLoQueHayBajoElPuntero)
{
    VistaDeMapa v{{10, 20}, 2};
    const Pixel antes = v.DePixel({30, 40});
    EXPECT_NEAR(antes.x, 25, 1e-9);       // 10 + 30/2
    EXPECT_NEAR(antes.y, 46.6667, 1e-4);  // 20 + 40/2·4/3
    Acerca(v, 1.25, {30, 40}, 1);
    EXPECT_NEAR(v.escala, 2.5, 1e-9);
    EXPECT_NEAR(v.DePixel({30, 40}).x, antes.x, 1e-9);
    EXPECT_NEAR(v.DePixel({30, 40}).y, antes.y, 1e-9);
    Acerca(v, 1e9, {0, 0}, 1);
    EXPECT_EQ(v.escala, 100);
    Acerca(v, 1e-9, {0, 0}, 1);
    EXPECT_EQ(v.escala, 0.1);
}

TEST(VistaDeMapa, ArrastrarLlevaElDibujo)
{
    VistaDeMapa v{{0, 0}, 2};
    Desplaza(v, 10, 6);
    EXPECT_NEAR(v.APixel({0, 0}).x, 10, 1e-9);
    EXPECT_NEAR(v.APixel({0, 0}).y, 6, 1e-9);
}

// --- the copy of a run ---

struct CopiaDelMapa : testing::Test {
    pruebas::CorridaDelMapa corrida{};
    RedDeCorrida red = CopiaDeCorrida(corrida.red, corrida.pasos, corrida.resultados);
    const ComponenteDelMapa& De(std::string_view nombre)
    {
        for (const ComponenteDelMapa& c : red.componentes)
            if (c.nombre == nombre) return c;
        throw std::runtime_error("no such component");
    }
};

TEST_F(CopiaDelMapa, TraeCadaComponenteConSusCaudalesYSuPico)
{
    EXPECT_EQ(red.pasos, 3);
    EXPECT_EQ(red.minutos, 10);
    ASSERT_EQ(red.componentes.size(), 6U);
    EXPECT_EQ(red.componentes.front().nombre, "c-1");
    EXPECT_EQ(red.componentes.back().nombre, "r-1");
    EXPECT_EQ(De("c-1").Q, (std::vector<float>{10, 20, 36}));
    EXPECT_EQ(De("c-1").Pico(), 36);
    EXPECT_EQ(De("c-1").pasoPico, 3);
    EXPECT_EQ(De("c-2").pasoPico, 2);  // the first of two equal ones
    EXPECT_EQ(De("u-1").Caudal(1), 1);
    EXPECT_EQ(De("u-1").Caudal(0), 0);
    EXPECT_EQ(De("u-1").Caudal(4), 0);
    EXPECT_EQ(De("u-2").pasoPico, 0);  // never a drop
    EXPECT_EQ(De("u-2").Q.size(), 3U);
    EXPECT_TRUE(De("l-1").Q.empty());
    EXPECT_EQ(red.Mayor(), 36);
}

// The icon of a UEH or a Represa is drawn 15 wide from its position on, that of a Lago around it.
TEST_F(CopiaDelMapa, TraeLosLugaresComoLosDibujaElEditor)
{
    using Linea = std::vector<Pixel>;
    EXPECT_EQ(De("c-1").linea, (Linea{{0, 100}, {100, 100}}));
    EXPECT_EQ(De("c-2").linea, (Linea{{100, 100}, {150, 100}, {200, 100}}));
    EXPECT_EQ(De("u-1").linea, (Linea{{57.5, 57.5}, {50, 100}}));
    EXPECT_EQ(De("u-2").linea, (Linea{{227.5, 27.5}, {207.5, 87.5}}));
    EXPECT_EQ(De("r-1").linea, (Linea{{207.5, 87.5}, {200, 100}}));
    EXPECT_EQ(De("l-1").linea, (Linea{{100, 160}}));
    EXPECT_EQ(red.extension, (Caja{0, 27.5, 227.5, 132.5}));
}

TEST_F(CopiaDelMapa, EditarLaRedNoLaCambia)
{
    corrida.red.ColCauces.Item(1).NombreCauce = "c-otro";
    corrida.red.XVertice(1, 1) = 999;
    corrida.resultados.QSale(4, 1) = 999;
    EXPECT_EQ(De("c-1").linea.front(), (Pixel{0, 100}));
    EXPECT_EQ(De("c-1").Caudal(1), 10);
}

TEST_F(CopiaDelMapa, LoQueNoEstaEnMemoriaNoSeDibuja)
{
    corrida.red.NroVertices(2) = 50;
    corrida.red.XVertice.Dimensiona(model::MaxCauces, 2);
    red = CopiaDeCorrida(corrida.red, corrida.pasos, corrida.resultados);
    EXPECT_EQ(De("c-2").linea.size(), 2U);
    corrida.red.XVertice.Dimensiona(0, 0, 0);
    corrida.resultados.NroPasosQ = 9;  // of which 4 have a column
    red = CopiaDeCorrida(corrida.red, corrida.pasos, corrida.resultados);
    EXPECT_TRUE(De("c-1").linea.empty());
    EXPECT_EQ(De("c-1").Q.size(), 4U);
    EXPECT_TRUE(CopiaDeCorrida({}, {}, {}).componentes.empty());
}

// --- the map ---

struct ReglasDelMapa : CopiaDelMapa {
    ReglasDelMapa() { Muestra(f, red, {.titulo = "Mapa", .tema = "P= 80 mm"}); }
    MapaDeCorrida f{};
    int Numero(std::string_view nombre) { return static_cast<int>(&De(nombre) - red.componentes.data()); }
};

TEST_F(ReglasDelMapa, SeAbreEnElPicoDeLaCorrida)
{
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.paso, 3);
    EXPECT_EQ(f.escala.tope, 40);
    EXPECT_EQ(f.lblTitulo, "P= 80 mm");
    EXPECT_EQ(f.lblTiempo, "0:30 h   paso 3 de 3");
    EXPECT_EQ(f.cmdReproducir, "&Reproducir");
    EXPECT_EQ(f.velocidades.front(), "1 paso/s");
    EXPECT_EQ(f.velocidades.back(), "60 pasos/s");
    Muestra(f, {}, {});
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(f.paso, 1);
}

TEST_F(ReglasDelMapa, ElPasoQuedaEntreElPrimeroYElUltimo)
{
    PonPaso(f, 0);
    EXPECT_EQ(f.paso, 1);
    EXPECT_EQ(f.lblTiempo, "0:10 h   paso 1 de 3");
    PonPaso(f, 99);
    EXPECT_EQ(f.paso, 3);
}

TEST_F(ReglasDelMapa, ReproducirDesdeElUltimoPasoEmpiezaDeNuevoYTermina)
{
    f.velocidad = 0;  // one step a second
    cmdReproducir(f);
    EXPECT_TRUE(f.corriendo);
    EXPECT_EQ(f.paso, 1);
    EXPECT_EQ(f.cmdReproducir, "&Detener");
    EXPECT_FALSE(Avanza(f, 0.75));
    EXPECT_EQ(f.paso, 1);
    EXPECT_TRUE(Avanza(f, 0.5));  // 1.25 steps: one, and a quarter of the next
    EXPECT_EQ(f.paso, 2);
    EXPECT_NEAR(f.deMas, 0.25, 1e-12);
    EXPECT_TRUE(f.corriendo);
    EXPECT_TRUE(Avanza(f, 0.75));
    EXPECT_EQ(f.paso, 3);
    EXPECT_FALSE(f.corriendo);
    EXPECT_EQ(f.cmdReproducir, "&Reproducir");
    EXPECT_FALSE(Avanza(f, 10));
}

TEST_F(ReglasDelMapa, UnaMaquinaLentaSaltaPasosYNoSePasaDelUltimo)
{
    f.velocidad = 5;  // 60 steps a second
    cmdReproducir(f);
    EXPECT_TRUE(Avanza(f, 1));
    EXPECT_EQ(f.paso, 3);
    EXPECT_FALSE(f.corriendo);
}

TEST_F(ReglasDelMapa, DetenerDejaElPasoDondeEsta)
{
    PonPaso(f, 2);
    cmdReproducir(f);
    EXPECT_EQ(f.paso, 2);
    cmdReproducir(f);
    EXPECT_FALSE(f.corriendo);
    EXPECT_EQ(f.paso, 2);
}

TEST_F(ReglasDelMapa, LaLecturaDiceCaudalYPico)
{
    PonPaso(f, 1);
    EXPECT_EQ(Lectura(f, Numero("c-1")), "c-1\nQ= 10 m3/s en t= 0:10 h\nQ máx= 36 m3/s en t= 0:30 h");
    EXPECT_EQ(Lectura(f, Numero("u-2")), "u-2\nQ= 0 m3/s en t= 0:10 h\nQ máx= 0 m3/s");
    EXPECT_EQ(Lectura(f, Numero("l-1")), "l-1\nsin caudal en esta corrida");
    EXPECT_EQ(Lectura(f, -1), "");
    EXPECT_EQ(Lectura(f, 6), "");
}

TEST_F(ReglasDelMapa, ElTecladoRecorreLosComponentesEnRueda)
{
    Recorre(f, -1);
    EXPECT_EQ(f.elegido, 5);
    Recorre(f, 1);
    EXPECT_EQ(f.elegido, 0);
    Recorre(f, 1);
    EXPECT_EQ(f.elegido, 1);
    EXPECT_EQ(Descripcion(f), "c-2;Q= 9 m3/s en t= 0:30 h;Q máx= 9 m3/s en t= 0:20 h. 0:30 h   paso 3 de 3");
}

TEST_F(ReglasDelMapa, LosRotulosDicenLoQueSePide)
{
    using Textos = std::vector<std::string>;
    EXPECT_EQ(TextosDeRotulo(f, De("c-1")), (Textos{"c-1\n36 m3/s\n0:30 h", "c-1"}));
    EXPECT_EQ(TextosDeRotulo(f, De("u-2")), (Textos{"u-2"}));
    f.chkNombres = false;
    EXPECT_EQ(TextosDeRotulo(f, De("c-1")), (Textos{"36 m3/s\n0:30 h"}));
    EXPECT_EQ(TextosDeRotulo(f, De("u-2")), (Textos{}));
    f.chkPicos = false;
    EXPECT_EQ(TextosDeRotulo(f, De("c-1")), (Textos{}));
    f.chkNombres = true;
    EXPECT_EQ(TextosDeRotulo(f, De("c-1")), (Textos{"c-1"}));
}

TEST_F(ReglasDelMapa, LosCaucesSeRotulanPrimeroYLosMayoresAntes)
{
    std::vector<std::string> nombres;
    for (const int i : OrdenDeRotulos(f))
        nombres.push_back(f.red.componentes[static_cast<std::size_t>(i)].nombre);
    EXPECT_EQ(nombres, (std::vector<std::string>{"c-1", "c-2", "u-1", "r-1", "u-2", "l-1"}));
}

// One pixel per unit across and 3/4 down: c-1 lies at y = 75 from x = 0 to 100. At its peak it is
// 2 + 12·sqrt(36/40) = 13.4 wide, so that with the pointer's 3 pixels it is hit 9.7 off its middle.
TEST_F(ReglasDelMapa, BajoElPunteroEstaElSimboloOElCauce)
{
    const VistaDeMapa v{};
    EXPECT_EQ(Bajo(f, v, {50, 75}), Numero("c-1"));
    EXPECT_EQ(Bajo(f, v, {50, 84}), Numero("c-1"));
    EXPECT_EQ(Bajo(f, v, {50, 86}), -1);
    PonPaso(f, 1);  // 2 + 12·sqrt(10/40) = 8: 7 off
    EXPECT_EQ(Bajo(f, v, {50, 81}), Numero("c-1"));
    EXPECT_EQ(Bajo(f, v, {50, 83}), -1);
    EXPECT_EQ(Bajo(f, v, {57.5, 43}), Numero("u-1"));
    // The Represa stands on the reach: r-1 at (207.5, 65.6), the head of c-2 at (200, 75).
    EXPECT_EQ(Bajo(f, v, {205, 66}), Numero("r-1"));
    EXPECT_EQ(Bajo(f, v, {190, 75}), Numero("c-2"));
    EXPECT_EQ(Bajo(f, v, {400, 400}), -1);
}

TEST_F(ReglasDelMapa, ElRotuloDeUnCauceVaASuMitad)
{
    const VistaDeMapa v{};
    EXPECT_NEAR(CentroDe(De("c-2"), v)->x, 150, 1e-9);
    EXPECT_NEAR(CentroDe(De("c-2"), v)->y, 75, 1e-4);
    EXPECT_NEAR(CentroDe(De("l-1"), v)->x, 100, 1e-9);
    EXPECT_FALSE(CentroDe({}, v));
}

}  // namespace
}  // namespace results
