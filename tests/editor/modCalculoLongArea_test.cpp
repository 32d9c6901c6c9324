// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modCalculoLongArea.h"

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"

namespace {

using editor::Boton;
using editor::Papel;
using editor::Punto;
using editor::Tecla;

const model::Mensaje PreguntaCierre{
    "¿Forzar el cierre del polígono para el cálculo de Perímetro y Area de la figura ? (No, para cálculo de "
    "longitud de la poligonal abierta)",
    "Cálculo de Longitud de Poligonal Abierta o de Polígono y Area de Poligonal Cerrada",
    model::Icono::Exclamacion};

model::Mensaje Abierta(const std::string& largo)
{
    return {"Perímetro=" + largo + " metros", "Longitud de Poligonal Abierta", model::Icono::Ninguno};
}
model::Mensaje Cerrada(const std::string& largo, const std::string& area)
{
    return {"Perímetro=" + largo + " metros    -    Area = " + area + " Has",
            "Perímetro y Area de Poligonal Cerrada", model::Icono::Ninguno};
}

struct Medicion : EditorDePrueba {
    Medicion()
    {
        PonModo(Boton::LongArea);
        s.Configuracion.EscalaDibujo = "2";
    }
    void Marca(const std::vector<Punto>& puntos)
    {
        for (const Punto p : puntos)
            Clic(p.X, p.Y);
    }
};

const std::vector<Punto> Rectangulo{{0, 0}, {300, 0}, {300, 400}, {0, 400}};
const std::vector<Punto> RectanguloAlReves{{0, 400}, {300, 400}, {300, 0}, {0, 0}};

TEST_F(Medicion, UnaPoligonalAbiertaDaSuLargoPorLaEscala)
{
    Marca({{0, 0}, {300, 400}, {300, 500}});  // 500 + 100 units of 2 m
    EXPECT_EQ(f.medicion.NroPuntosMedida, 3);
    Responde({false});
    Tecla(Tecla::Enter);
    EXPECT_EQ(Preguntas(), (Cajas{PreguntaCierre}));
    EXPECT_EQ(Avisos(), (Cajas{Abierta("1200")}));
    EXPECT_EQ(f.medicion.lblLongArea, "Perímetro=1200 metros");
    EXPECT_EQ(f.medicion.LongitudMedida, 1200);
    EXPECT_EQ(f.medicion.NroPuntosMedida, 0);
    EXPECT_TRUE(Con(Papel::Medida).empty());
}

TEST_F(Medicion, UnPoligonoCerradoDaPerimetroYArea)
{
    Marca(Rectangulo);
    Responde({true});
    Tecla(Tecla::Enter);
    // 1400 units of 2 m; the trapezium form gives 2 * 120000 units of 4 m2, halved.
    EXPECT_EQ(Avisos(), (Cajas{Cerrada("2800", "48")}));
    EXPECT_EQ(f.medicion.AreaMedida, 48);
    EXPECT_EQ(f.medicion.lblLongArea, "Perímetro=2800 metros    -    Area = 48 Has");
}

TEST_F(Medicion, LaMismaFiguraAlRevesDaElAreaConElOtroSigno)
{
    Marca(RectanguloAlReves);
    Responde({true});
    Tecla(Tecla::Enter);
    EXPECT_EQ(Avisos(), (Cajas{Cerrada("2800", "-48")}));
}

TEST_F(Medicion, SinEscalaLosDosResultadosSon0)
{
    for (const std::string escala : {"0", ""}) {
        anfitrion->sucesos.clear();
        s.Configuracion.EscalaDibujo = escala;
        PonModo(Boton::LongArea);
        Marca(RectanguloAlReves);
        Responde({true});
        Tecla(Tecla::Enter);
        EXPECT_EQ(Avisos(), (Cajas{Cerrada("0", "0")})) << escala;
    }
}

TEST_F(Medicion, ElLargoSeCortaASuParteEnteraYElAreaNo)
{
    s.Configuracion.EscalaDibujo = "1";
    Marca({{0, 0}, {10, 0}, {0, 10}});  // 10 + 14.14 + 10
    Responde({true});
    Tecla(Tecla::Enter);
    EXPECT_EQ(Avisos(), (Cajas{Cerrada("34", "0.005")}));
}

TEST_F(Medicion, UnSoloPuntoMide0)
{
    Responde({false});
    DobleClic(50, 60);
    EXPECT_EQ(Avisos(), (Cajas{Abierta("0")}));
}

TEST_F(Medicion, EnterConDosPuntosNoHaceNadaYElDobleClicSiMide)
{
    Marca({{0, 0}, {30, 40}});
    Tecla(Tecla::Enter);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(f.medicion.NroPuntosMedida, 2);
    Responde({false});
    editor::picDibujo_DblClick(f, s);
    EXPECT_EQ(Avisos(), (Cajas{Abierta("100")}));
}

TEST_F(Medicion, ElDobleClicVuelveASeleccionar)
{
    Marca({{0, 0}, {30, 40}});
    Responde({false});
    editor::picDibujo_DblClick(f, s);
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
}

TEST_F(Medicion, ElDobleClicSinPuntosNoPregunta)
{
    editor::picDibujo_DblClick(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
}

TEST_F(Medicion, AlCerrarSeVeElLadoQueCierraMientrasSeMuestraElResultado)
{
    std::size_t puntosALaVista = 0;
    auto avisa = s.Anfitrion.Avisa;
    s.Anfitrion.Avisa = [&, avisa](const model::Mensaje& m) {
        for (const auto& p : f.dibujo.Primitivas())
            if (p.papel == Papel::Medida) puntosALaVista = p.cuantos;
        avisa(m);
    };
    Marca(Rectangulo);
    Responde({true});
    Tecla(Tecla::Enter);
    EXPECT_EQ(puntosALaVista, 5U);
}

TEST_F(Medicion, ElLadoQueCierraSePintaAntesDeLaCaja)
{
    std::vector<std::string> orden;
    s.Anfitrion.RedibujaEditor = [&] {
        editor::Redibuja(f, s);
        const auto lineas = Con(Papel::Medida);
        orden.push_back("pinta " + std::to_string(lineas.empty() ? 0 : lineas[0].cuantos));
    };
    s.Anfitrion.Avisa = [&](const model::Mensaje&) { orden.emplace_back("caja"); };
    Marca(Rectangulo);
    Responde({true});
    Tecla(Tecla::Enter);
    EXPECT_EQ(orden, (std::vector<std::string>{"pinta 5", "caja"}));
}

TEST_F(Medicion, EscSueltaLosPuntosYDejaElEditorAbierto)
{
    Marca({{0, 0}, {30, 40}});
    Tecla(Tecla::Esc);
    EXPECT_EQ(f.medicion.NroPuntosMedida, 0);
    EXPECT_TRUE(Con(Papel::Medida).empty());
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(editor::Modo(f), Boton::LongArea);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    red.UEH("u-a", {400, 100});
    Parte();
    Tecla(Tecla::Esc);  // with nothing in hand it closes as ever
    EXPECT_FALSE(f.abierta);
}

TEST_F(Medicion, DejarElModoSueltaLosPuntos)
{
    Marca({{0, 0}, {30, 40}});
    PonModo(Boton::LongArea);  // the same mode goes on
    EXPECT_EQ(f.medicion.NroPuntosMedida, 2);
    PonModo(Boton::GuardaUEHs);
    EXPECT_EQ(f.medicion.NroPuntosMedida, 2);
    PonModo(Boton::Selecciona);
    EXPECT_EQ(f.medicion.NroPuntosMedida, 0);
    EXPECT_TRUE(Con(Papel::Medida).empty());
    PonModo(Boton::LongArea);
    Marca({{50, 0}});
    EXPECT_EQ(f.medicion.NroPuntosMedida, 1);
}

TEST_F(Medicion, NoCambiaLaRedNiSuHistoria)
{
    Marca(Rectangulo);
    Tecla(Tecla::Enter);
    EXPECT_TRUE(f.historia.anteriores.empty());
    EXPECT_FALSE(f.cambiada);
}

TEST_F(Medicion, UnLargoFueraDelTipoEsUnaFallaQueSeCuenta)
{
    s.Configuracion.EscalaDibujo = "1E38";
    Marca({{0, 0}, {300, 0}, {300, 10}});
    Responde({false});
    Tecla(Tecla::Enter);
    EXPECT_EQ(Avisos(), (Cajas{{"Error Nro. 6 ,DesbordamientoVerifique", "", model::Icono::Ninguno}}));
}

TEST_F(Medicion, ElPunto32768EsUnaFallaYNoSeAgrega)
{
    for (int i = 0; i < 32767; ++i)
        editor::AgregaPuntoMedida(f.medicion, {1, 1});
    Clic(1, 1);
    EXPECT_EQ(Avisos(), (Cajas{{"Error Nro. 6 ,DesbordamientoVerifique", "", model::Icono::Ninguno}}));
    EXPECT_EQ(f.medicion.NroPuntosMedida, 32767);
}

}  // namespace
