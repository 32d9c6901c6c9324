// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Metarchivo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/lienzo/DibujaMetarchivo.h"

namespace editor {
namespace {

/// Remembers what it was told to draw.
struct Recuerda : LienzoMeta {
    std::vector<std::string> orden{};
    std::vector<std::vector<PuntoMeta>> puntos{};
    std::vector<PlumaMeta> plumas{};
    std::vector<PincelMeta> pinceles{};
    std::vector<RectanguloMeta> marcos{};
    std::vector<TextoMeta> textos{};
    std::vector<std::string> imagenes{};

    void Polilinea(const std::vector<PuntoMeta>& p, const PlumaMeta& pluma) override
    {
        orden.emplace_back("polilinea");
        puntos.push_back(p);
        plumas.push_back(pluma);
    }
    void Poligonos(const std::vector<std::vector<PuntoMeta>>& p, bool alterna, const PlumaMeta& pluma,
                   const PincelMeta& pincel) override
    {
        orden.emplace_back(alterna ? "poligonos alternos" : "poligonos");
        puntos.insert(puntos.end(), p.begin(), p.end());
        plumas.push_back(pluma);
        pinceles.push_back(pincel);
    }
    void Rectangulo(const RectanguloMeta& r, double x, double y, const PlumaMeta& pluma,
                    const PincelMeta& pincel) override
    {
        orden.emplace_back(x == 0 && y == 0 ? "rectangulo" : "redondeado");
        marcos.push_back(r);
        plumas.push_back(pluma);
        pinceles.push_back(pincel);
    }
    void Elipse(const RectanguloMeta& r, const PlumaMeta&, const PincelMeta& pincel) override
    {
        orden.emplace_back("elipse");
        marcos.push_back(r);
        pinceles.push_back(pincel);
    }
    void Arco(const ArcoMeta& arco, const PlumaMeta&, const PincelMeta&) override
    {
        orden.emplace_back(arco.clase == ClaseArco::Porcion  ? "porcion"
                           : arco.clase == ClaseArco::Cuerda ? "cuerda"
                                                             : "arco");
        marcos.push_back(arco.marco);
        puntos.push_back({arco.desde, arco.hasta});
    }
    void Texto(const TextoMeta& texto) override
    {
        orden.emplace_back("texto");
        textos.push_back(texto);
    }
    void Imagen(const std::string& bmp, const RectanguloMeta& origen, const RectanguloMeta& destino) override
    {
        orden.emplace_back("imagen");
        imagenes.push_back(bmp);
        marcos.push_back(origen);
        marcos.push_back(destino);
    }
};

Recuerda Tocado(const DibujaMetarchivo& d)
{
    Recuerda lienzo;
    EXPECT_TRUE(Toca(d.Bytes(), lienzo));
    return lienzo;
}

TEST(Metarchivo, SeTocaEnOrdenConLaPlumaYElPincelElegidos)
{
    const Recuerda lienzo = Tocado(DibujoDeMuestra());
    EXPECT_EQ(lienzo.orden, (std::vector<std::string>{"rectangulo", "poligonos alternos", "elipse",
                                                      "polilinea", "texto", "imagen"}));
    EXPECT_EQ(lienzo.pinceles[0].color, (ColorMeta{0, 0, 255}));
    EXPECT_EQ(lienzo.pinceles[1].color, (ColorMeta{255, 0, 0}));
    EXPECT_EQ(lienzo.pinceles[2].color, (ColorMeta{0, 255, 0}));
    EXPECT_EQ(lienzo.plumas[0].trazo, TrazoMeta::Nada);
    EXPECT_EQ(lienzo.plumas.back(), (PlumaMeta{TrazoMeta::Continuo, 4, {}}));
    EXPECT_EQ(lienzo.marcos[1], (RectanguloMeta{70, 10, 20, 20}));
    EXPECT_EQ(lienzo.puntos[0], (std::vector<PuntoMeta>{{0, 0}, {50, 0}, {50, 100}, {0, 100}}));
    EXPECT_EQ(lienzo.puntos[1], (std::vector<PuntoMeta>{{5, 95}, {95, 95}}));
}

TEST(Metarchivo, ElTextoEsWindows1252ConSuLetra)
{
    const TextoMeta texto = Tocado(DibujoDeMuestra()).textos.at(0);
    EXPECT_EQ(texto.texto, "Río Ñandú");
    EXPECT_EQ(texto.lugar, (PuntoMeta{5, 40}));
    EXPECT_EQ(texto.letra.familia, "Arial");
    EXPECT_EQ(texto.letra.alto, 12);
    EXPECT_FALSE(texto.letra.altoDeCelda);
    EXPECT_TRUE(texto.letra.negrita);
    EXPECT_FALSE(texto.fondo.has_value());
}

TEST(Metarchivo, UnMapaDeBitsLlevaCabezaDeArchivo)
{
    const Recuerda lienzo = Tocado(DibujoDeMuestra());
    ASSERT_EQ(lienzo.imagenes.size(), 1U);
    EXPECT_EQ(lienzo.imagenes[0].substr(0, 2), "BM");
    EXPECT_EQ(lienzo.imagenes[0].size(), 14U + 40 + 8);
    EXPECT_EQ(lienzo.imagenes[0][10], 54);
    EXPECT_EQ(lienzo.marcos[2], (RectanguloMeta{0, 0, 2, 1}));
    EXPECT_EQ(lienzo.marcos[3], (RectanguloMeta{60, 60, 20, 10}));
}

TEST(Metarchivo, ElMarcoDaElTamanoYSinMarcoLaVentana)
{
    // 2000 units at 1000 an inch are two inches, 192 pixels.
    const auto con = MarcoDe(DibujoDeMuestra().Bytes(2000, 1000, 1000));
    ASSERT_TRUE(con);
    EXPECT_EQ(con->ancho, 192);
    EXPECT_EQ(con->alto, 96);
    EXPECT_EQ(con->ventana, (RectanguloMeta{0, 0, 100, 100}));
    const auto sin = MarcoDe(DibujoDeMuestra().Bytes());
    ASSERT_TRUE(sin);
    EXPECT_EQ(sin->ancho, 100);
    EXPECT_EQ(sin->alto, 100);
    EXPECT_FALSE(MarcoDe(DibujaMetarchivo().Bytes()));
    EXPECT_EQ(MarcoDe(DibujaMetarchivo().Bytes(50, 25, 96))->ventana, (RectanguloMeta{0, 0, 50, 25}));
}

TEST(Metarchivo, ArcosPorcionesYCuerdas)
{
    DibujaMetarchivo d;
    for (const int funcion : {0x0817, 0x081A, 0x0830})
        d.Registro(static_cast<std::uint16_t>(funcion), {5, 6, 7, 8, 40, 30, 20, 10});
    const Recuerda lienzo = Tocado(d);
    EXPECT_EQ(lienzo.orden, (std::vector<std::string>{"arco", "porcion", "cuerda"}));
    EXPECT_EQ(lienzo.marcos[0], (RectanguloMeta{10, 20, 20, 20}));
    EXPECT_EQ(lienzo.puntos[0], (std::vector<PuntoMeta>{{8, 7}, {6, 5}}));
}

TEST(Metarchivo, ElEstadoSeGuardaYSeRestaura)
{
    DibujaMetarchivo d;
    d.Registro(0x02FA, {0, 3, 0, 0x00FF, 0}).Registro(0x001E, {}).Registro(0x012D, {0});
    d.Registro(0x0213, {1, 1}).Registro(0x0127, {-1}).Registro(0x0213, {2, 2});
    d.Registro(0x0127, {-9}).Registro(0x0127, {7}).Registro(0x0213, {3, 3});
    const Recuerda lienzo = Tocado(d);
    EXPECT_EQ(lienzo.plumas[0].ancho, 3);
    EXPECT_EQ(lienzo.plumas[1].ancho, 0);
    EXPECT_EQ(lienzo.puntos[1][0], (PuntoMeta{0, 0}));  // the position came back too
    EXPECT_EQ(lienzo.plumas[2].ancho, 0);
}

TEST(Metarchivo, UnObjetoBorradoDejaSuLugarAlSiguiente)
{
    DibujaMetarchivo d;
    d.Registro(0x02FA, {0, 1, 0, 0, 0}).Registro(0x00F7, {}).Registro(0x02FA, {0, 2, 0, 0, 0});
    d.Registro(0x01F0, {0}).Registro(0x02FA, {0, 3, 0, 0, 0});
    d.Registro(0x012D, {0}).Registro(0x0213, {1, 1}).Registro(0x012D, {2}).Registro(0x0213, {2, 2});
    d.Registro(0x012D, {99}).Registro(0x0213, {3, 3});
    const Recuerda lienzo = Tocado(d);
    EXPECT_EQ(lienzo.plumas[0].ancho, 3);
    EXPECT_EQ(lienzo.plumas[1].ancho, 2);
    EXPECT_EQ(lienzo.plumas[2].ancho, 2);
}

TEST(Metarchivo, PoligonosQuePrometenMasPuntosDeLosQueHay)
{
    DibujaMetarchivo d;
    d.Registro(0x0324, {1000, 1, 2}).Registro(0x0538, {3, 2, 9, 9, 1, 1, 2, 2, 3, 3});
    const Recuerda lienzo = Tocado(d);
    EXPECT_EQ(lienzo.puntos[0], (std::vector<PuntoMeta>{{1, 2}}));
    EXPECT_EQ(lienzo.puntos[1], (std::vector<PuntoMeta>{{1, 1}, {2, 2}}));
    EXPECT_EQ(lienzo.puntos[2], (std::vector<PuntoMeta>{{3, 3}}));
}

TEST(Metarchivo, CortadoEnCualquierByteNoPasaNadaMalo)
{
    const std::string entero = DibujoDeMuestra().Bytes(100, 100, 96);
    std::size_t tocados = 0;
    for (std::size_t largo = 0; largo <= entero.size(); ++largo) {
        Recuerda lienzo;
        if (Toca(entero.substr(0, largo), lienzo)) ++tocados;
        EXPECT_LE(lienzo.orden.size(), 6U);
    }
    EXPECT_EQ(tocados, entero.size() - 22 - 18 + 1);
}

TEST(Metarchivo, LoQueNoEsMetarchivoNoSeToca)
{
    Recuerda lienzo;
    EXPECT_FALSE(Toca("", lienzo));
    EXPECT_FALSE(Toca("BM no es un metarchivo, ni lo parece", lienzo));
    EXPECT_FALSE(MarcoDe(std::string(200, '\xFF')));
    EXPECT_TRUE(lienzo.orden.empty());
}

}  // namespace
}  // namespace editor
