// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPrinter>
#include <QTimer>

#include "apoyo/Ventanas.h"
#include "forms/Entorno_ventana.h"
#include "forms/Formulario_ventana.h"
#include "forms/Impresion_ventana.h"
#include "model/Falla.h"

namespace forms {
namespace {

struct EntornoDePrueba : testing::Test {
    apoyo::Mundo mundo{};
};

TEST_F(EntornoDePrueba, UnaFallaSinDuenoSeCuenta)
{
    mundo.entorno.Atiende([] { throw model::Falla{model::NumeroFalla::Desbordamiento}; });
    EXPECT_EQ(mundo.anfitrion->Avisos(),
              (std::vector<model::Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique"}}));
    EXPECT_FALSE(mundo.entorno.Terminando());
}

TEST_F(EntornoDePrueba, DespuesDelFinNoSeAtiendeNada)
{
    mundo.entorno.Atiende([] { throw model::FinDelPrograma{}; });
    bool corrio = false;
    mundo.entorno.Atiende([&] { corrio = true; });
    EXPECT_FALSE(corrio);
}

TEST_F(EntornoDePrueba, LaActivacionValeViniendoDeOtraVentanaDelProgramaYNoDeLaPropiaCaja)
{
    QWidget una;
    QWidget otra;
    int veces = 0;
    mundo.entorno.AlActivarse(una, [&] { ++veces; });
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 0);  // it opened: nothing was active before
    apoyo::Muestra(otra);
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 1);

    QMessageBox caja(&una);
    caja.setText(QStringLiteral("x"));
    apoyo::Muestra(caja);
    caja.close();
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 1);
}

TEST_F(EntornoDePrueba, AlCerrarUnDialogoElTecladoVuelveALaVentanaQueLoTenia)
{
    QWidget duena;
    QWidget otra;
    apoyo::Muestra(otra);
    apoyo::Muestra(duena);
    QDialog dialogo;
    QTimer::singleShot(0, &dialogo, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
        otra.activateWindow();  // as a window manager may choose
        dialogo.accept();
    });
    EXPECT_EQ(mundo.entorno.Ejecuta(dialogo), QDialog::Accepted);
    EXPECT_TRUE(apoyo::Espera([&] { return duena.isActiveWindow(); }));

    // One that is gone gets nothing.
    QDialog segundo;
    QTimer::singleShot(0, &segundo, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&segundo));
        duena.hide();
        segundo.accept();
    });
    EXPECT_EQ(mundo.entorno.Ejecuta(segundo), QDialog::Accepted);
    EXPECT_FALSE(duena.isVisible());
}

TEST_F(EntornoDePrueba, UnaVentanaHijaSeActivaAlPasarAElla)
{
    QMainWindow principal;
    auto* const area = new QMdiArea;
    principal.setCentralWidget(area);
    mundo.entorno.VigilaHijas(*area);
    auto* const una = new QWidget;
    auto* const otra = new QWidget;
    QMdiSubWindow* const marcoUna = area->addSubWindow(una);
    QMdiSubWindow* const marcoOtra = area->addSubWindow(otra);
    int veces = 0;
    mundo.entorno.AlActivarse(*una, [&] { ++veces; });
    apoyo::Muestra(principal);
    area->setActiveSubWindow(marcoOtra);
    veces = 0;
    area->setActiveSubWindow(marcoUna);
    EXPECT_TRUE(apoyo::Espera([&] { return veces == 1; }));

    // A box over the main window is nobody's leaving; a form is.
    QMessageBox caja(&principal);
    caja.setText(QStringLiteral("x"));
    apoyo::Muestra(caja);
    caja.close();
    apoyo::Muestra(principal);
    EXPECT_EQ(veces, 1);
    QDialog formulario(&principal);
    apoyo::Muestra(formulario);
    formulario.close();
    apoyo::Muestra(principal);
    EXPECT_TRUE(apoyo::Espera([&] { return veces == 2; }));

    // What isn't at the front hears nothing.
    area->setActiveSubWindow(marcoOtra);
    apoyo::Muestra(formulario);
    formulario.close();
    apoyo::Muestra(principal);
    EXPECT_EQ(veces, 2);
}

// --- F1 ---

struct FormularioConCampo : Formulario {
    explicit FormularioConCampo(Entorno& alrededor) : Formulario(alrededor, {"dlgDePrueba"}) {}
    void Muestra() override {}
    QLineEdit campo{this};
};

struct VentanaConCampo : Ventana {
    explicit VentanaConCampo(Entorno& alrededor) : Ventana(alrededor, {"frmDePrueba"}) {}
    void Muestra() override {}
    QLineEdit campo{this};
};

TEST_F(EntornoDePrueba, UnaVentanaMaximizadaLlenaElAreaYVuelveASuTamano)
{
    QMainWindow principal;
    auto* const area = new QMdiArea;
    principal.setCentralWidget(area);
    principal.resize(900, 700);
    auto* const ventana = new VentanaConCampo(mundo.entorno);
    QMdiSubWindow* const marco = area->addSubWindow(ventana);
    apoyo::Muestra(principal);
    marco->show();
    marco->resize(320, 240);
    QCoreApplication::processEvents();
    for (int vez = 1; vez <= 2; ++vez) {
        marco->showMaximized();
        EXPECT_TRUE(apoyo::Espera([&] { return marco->size() == area->viewport()->size(); })) << vez;
        marco->showNormal();
        EXPECT_TRUE(apoyo::Espera([&] { return marco->size() == QSize(320, 240); })) << vez;
        marco->showMinimized();
        marco->showNormal();
        EXPECT_TRUE(apoyo::Espera([&] { return marco->size() == QSize(320, 240); })) << vez;
    }
    // Closed and opened again it stands where it was.
    ventana->hide();
    marco->resize(500, 400);
    ventana->show();
    EXPECT_TRUE(apoyo::Espera([&] { return marco->size() == QSize(320, 240); }));
}

struct AyudaDePrueba : EntornoDePrueba {
    AyudaDePrueba()
    {
        mundo.entorno.AbreAyuda = [this](const std::string& ventana) { pedidas.push_back(ventana); };
    }
    std::vector<std::string> pedidas{};
};

TEST_F(AyudaDePrueba, F1PideLaPaginaDelFormularioDesdeCualquieraDeSusCampos)
{
    FormularioConCampo formulario(mundo.entorno);
    apoyo::Muestra(formulario);
    formulario.campo.setFocus();
    QTest::keyClick(&formulario.campo, Qt::Key_F1);
    EXPECT_EQ(pedidas, std::vector<std::string>{"dlgDePrueba"});
    EXPECT_TRUE(formulario.isVisible());
    QTest::keyClick(&formulario.campo, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(&formulario.campo, Qt::Key_F2);
    EXPECT_EQ(pedidas.size(), 1U);
}

TEST_F(AyudaDePrueba, F1DeUnaVentanaVaAntesQueElAtajoDeLaQueLaContiene)
{
    QMainWindow principal;
    QAction indice(&principal);
    indice.setShortcut(Qt::Key_F1);
    principal.addAction(&indice);
    int veces = 0;
    QObject::connect(&indice, &QAction::triggered, &principal, [&] { ++veces; });
    auto* const centro = new QWidget(&principal);
    principal.setCentralWidget(centro);
    VentanaConCampo ventana(mundo.entorno);
    ventana.setParent(centro);
    QLineEdit deAfuera(centro);
    apoyo::Muestra(principal);
    ventana.campo.setFocus();
    QTest::keyClick(&ventana.campo, Qt::Key_F1);
    EXPECT_EQ(pedidas, std::vector<std::string>{"frmDePrueba"});
    EXPECT_EQ(veces, 0);
    deAfuera.setFocus();
    QTest::keyClick(&deAfuera, Qt::Key_F1);
    EXPECT_EQ(pedidas.size(), 1U);
    EXPECT_EQ(veces, 1);
    ventana.setParent(nullptr);
    deAfuera.setParent(nullptr);
}

TEST_F(EntornoDePrueba, LaImagenParaPapelTieneTantosPuntosComoDice)
{
    QWidget ventana;
    ventana.resize(100, 50);
    const QPixmap imagen = ImagenParaPapel(ventana);
    EXPECT_EQ(imagen.size(), QSize(300, 150));
    EXPECT_EQ(imagen.devicePixelRatio(), 1);
}

TEST_F(EntornoDePrueba, SinImpresoraSeDicePorQueNoImprime)
{
    mundo.entorno.Impresora = [] { return nullptr; };
    QWidget ventana;
    ImprimeVentana(mundo.entorno, ventana, {});
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_NE(mundo.anfitrion->Avisos()[0].texto.find("impresora"), std::string::npos);
}

}  // namespace
}  // namespace forms
