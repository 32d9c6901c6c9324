// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "results/mapa/LienzoDeMapa_ventana.h"

// The map in the whole program: the sample project, run with 80 mm in 120 min.
namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;

struct MapaEnElEscritorio : EscritorioDePrueba {
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        escritorio.s.Tormenta.PpTormenta = 80;
        escritorio.s.Tormenta.DurTormenta = 120;
        anfitrion->sucesos.clear();
    }
    QWidget* Mapa() { return escritorio.Principal().findChild<QWidget*>(QStringLiteral("MapaDeCorrida")); }
    void Corre()
    {
        Accion("mnuCorre1").trigger();
        EXPECT_GT(escritorio.s.Resultados.NroPasosQ, 0);
        anfitrion->sucesos.clear();
    }
    void Abre()
    {
        Accion("mnuMapa").trigger();
        EXPECT_TRUE(Espera([&] { return Mapa() != nullptr && Mapa()->isVisible(); }));
        EXPECT_TRUE(Espera([&] { return !Lienzo().Pintor().Puestos().empty(); }));
    }
    results::LienzoDeMapa& Lienzo()
    {
        return static_cast<results::LienzoDeMapa&>(Control<QWidget>(*Mapa(), "lienzo"));
    }
    /// What a reader of the screen says of the component that the arrows have come to.
    std::string Leido() { return forms::DeQ(Lienzo().accessibleDescription()); }
    std::string Hidrograma()
    {
        auto* const ventana = escritorio.Principal().findChild<QWidget*>(QStringLiteral("dlgChart2"));
        return forms::DeQ(Control<QLabel>(*ventana, "lblTitulo").text());
    }
};

TEST_F(MapaEnElEscritorio, SinCorridaDicePorQueNoSeAbre)
{
    Accion("mnuMapa").trigger();
    EXPECT_EQ(Mapa(), nullptr);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_NE(anfitrion->Avisos().front().texto.find("No hay ninguna corrida"), std::string::npos);
}

TEST_F(MapaEnElEscritorio, MuestraLaCorridaSobreLaImagenDelProyecto)
{
    Corre();
    Abre();
    EXPECT_TRUE(anfitrion->Avisos().empty());
    EXPECT_FALSE(Lienzo().Fondo().imagen.isNull());
    // 1536 pixels, which the project shows at 50 %.
    EXPECT_EQ(Lienzo().Fondo().imagen.width(), 1536);
    EXPECT_EQ(Lienzo().Fondo().marco.ancho, 768);
    const std::string titulo = forms::DeQ(Control<QLabel>(*Mapa(), "lblTitulo").text());
    EXPECT_NE(titulo.find("P 80 mm, D 120 min"), std::string::npos) << titulo;
    // The map says of a reach what the results hold.
    QTest::keyClick(&Lienzo(), Qt::Key_Home);
    QTest::keyClick(&Lienzo(), Qt::Key_Right);
    const std::string nombre = escritorio.s.Red.ColCauces.Item(1).NombreCauce;
    EXPECT_TRUE(Leido().starts_with(nombre + ";Q= ")) << Leido();
}

TEST_F(MapaEnElEscritorio, ElComponenteSenaladoAbreSuHidrogramaYElOtroTambien)
{
    Corre();
    Abre();
    QTest::keyClick(&Lienzo(), Qt::Key_Right);
    const std::string primero = Leido().substr(0, Leido().find(';'));
    QTest::keyClick(&Lienzo(), Qt::Key_Return);
    EXPECT_NE(Hidrograma().find(", " + primero + " "), std::string::npos) << Hidrograma();
    // The window is open already: it goes to the other component.
    QTest::keyClick(&Lienzo(), Qt::Key_Right);
    const std::string segundo = Leido().substr(0, Leido().find(';'));
    EXPECT_NE(primero, segundo);
    QTest::keyClick(&Lienzo(), Qt::Key_Return);
    EXPECT_NE(Hidrograma().find(", " + segundo + " "), std::string::npos) << Hidrograma();
}

TEST_F(MapaEnElEscritorio, EditarLaRedNoCambiaLoQueMuestra)
{
    Corre();
    Abre();
    const std::string nombre = escritorio.s.Red.ColCauces.Item(1).NombreCauce;
    escritorio.s.Red.ColCauces.Item(1).NombreCauce = "c-otro";
    escritorio.s.Resultados = {};
    QTest::keyClick(&Lienzo(), Qt::Key_Right);
    EXPECT_TRUE(Leido().starts_with(nombre + ";Q= ")) << Leido();
    // Its hydrograph is gone with the results, which is told.
    QTest::keyClick(&Lienzo(), Qt::Key_Return);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_NE(anfitrion->Avisos().front().texto.find("ya no está en memoria"), std::string::npos);
}

TEST_F(MapaEnElEscritorio, LaFranjaDiceQueEsDeOtraTormentaYActualizarLaCorre)
{
    Corre();
    Abre();
    auto& franja = Control<QFrame>(*Mapa(), "Franja");
    EXPECT_FALSE(franja.isVisible());
    escritorio.entorno.Atiende([this] { escritorio.s.Tormenta.PpTormenta = 95; });
    ASSERT_TRUE(Espera([&] { return franja.isVisible(); }));
    apoyo::Pulsa(Control<QPushButton>(*Mapa(), "cmdFranja"));
    EXPECT_TRUE(Espera([&] { return !franja.isVisible(); }));
    const auto& titulo = Control<QLabel>(*Mapa(), "lblTitulo");
    EXPECT_TRUE(Espera([&] { return titulo.text().contains(QStringLiteral("P 95 mm")); }));
}

TEST_F(MapaEnElEscritorio, SinImagenLaCasillaNoSirve)
{
    Corre();
    escritorio.s.Configuracion.ArchivoImagen = "no_esta.jpg";
    Abre();
    EXPECT_TRUE(Lienzo().Fondo().imagen.isNull());
    EXPECT_FALSE(Control<QCheckBox>(*Mapa(), "chkImagen").isEnabled());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

}  // namespace
}  // namespace shell
