// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgAjuste_ventana.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <optional>
#include <string>
#include <vector>

#include "apoyo/Ventanas.h"
#include "calibration/Incertidumbre.h"
#include "calibration/taller/AjusteIncertidumbre.h"
#include "calibration/taller/VentanaDeAjuste.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Textos_ventana.h"

namespace calibration {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

using VentanaAjuste = pruebas::VentanaDeAjuste;

TEST_F(VentanaAjuste, LosParametrosSeProponenSeCambianYSeDeshacenConElRatonYElTeclado)
{
    Abre();
    VeAlPaso("2");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    Pulsa(En<QPushButton>("AjusteParametros", "cmdProponer"));
    ASSERT_EQ(Todos().size(), 6U);
    auto& tabla = En<forms::TablaCuadro>("AjusteParametros", "tblParametros");
    EXPECT_EQ(tabla.model()->rowCount(), 6);
    QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {},
                      tabla.visualRect(tabla.model()->index(2, 1)).center());
    auto& maximo = En<QLineEdit>("AjusteParametros", "txtMaximo");
    ventana.activateWindow();
    maximo.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return maximo.hasFocus(); }));
    maximo.selectAll();
    QTest::keyClicks(&maximo, QStringLiteral("7,5"));
    QTest::keyClick(&maximo, Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Todos()[2].maximo == 7.5; }));
    Pulsa(En<QPushButton>("AjusteParametros", "cmdSubir"));
    EXPECT_EQ(Todos()[1].maximo, 7.5);
    EXPECT_EQ(tabla.Actual(), 1U) << "the row in hand goes along";
    Pulsa(En<QPushButton>("AjusteParametros", "cmdQuitar"));
    EXPECT_EQ(Todos().size(), 5U);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Todos().empty());
    QTest::keyClick(&ventana, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Todos().size(), 6U);
}

TEST_F(VentanaAjuste, SinParametrosLaIncertidumbreDiceQueFalta)
{
    Abre();
    VeAlPaso("5");
    EXPECT_TRUE(Control<QLabel>(ventana, "lblFalta").isVisible());
    EXPECT_NE(DeQ(Control<QLabel>(ventana, "lblFalta").text()).find("paso 2"), std::string::npos);
}

TEST_F(VentanaAjuste, LosJuegosSeCorrenAparteYDanLoMismoQueSusReglas)
{
    Abre();
    VeAlPaso("2");
    Pulsa(En<QPushButton>("AjusteParametros", "cmdProponer"));
    entorno.Atiende([this] { Cambia(f, "Juegos", [](study::Ajuste& a) { a.incertidumbre.miembros = 60; }); });
    VeAlPaso("5");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    auto& tabla = En<forms::TablaCuadro>("AjusteIncertidumbre", "tblCuantiles");
    Pulsa(En<QPushButton>("AjusteIncertidumbre", "cmdCorrer"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return tabla.model()->rowCount() == 10; }, 20000));
    AjusteIncertidumbre m = NuevaAjusteIncertidumbre();
    Toma(m, f);
    const std::optional<PedidoDeIncertidumbre> pedido = Empieza(m, f);
    ASSERT_TRUE(pedido);
    Termina(m, f, *CorreConjunto(*pedido));
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_EQ(DeQ(tabla.model()->index(static_cast<int>(i), 1).data().toString()),
                  m.tblCuantiles.planilla.filas.at(i).at(1));
    EXPECT_EQ(DeQ(En<QLabel>("AjusteIncertidumbre", "lblAvisos").text()), m.lblAvisos);
    EXPECT_NE(m.lblAvisos.find("Con 90 % de los juegos el pico de c-2 queda entre "), std::string::npos);
    EXPECT_EQ(m.Grafico.series.size(), 3U);
    EXPECT_FALSE(En<QLabel>("AjusteIncertidumbre", "lblEstado").isVisible());
    // What is on show says so once what it was asked of is another.
    entorno.Atiende([this] { Cambia(f, "Semilla", [](study::Ajuste& a) { a.incertidumbre.semilla = 9; }); });
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return DeQ(En<QLabel>("AjusteIncertidumbre", "lblEstado").text()) ==
               "Lo que se ve es de antes: los datos cambiaron.";
    }));
}

TEST_F(VentanaAjuste, MuchosJuegosSeCancelanConEscAlInstante)
{
    Abre();
    VeAlPaso("2");
    Pulsa(En<QPushButton>("AjusteParametros", "cmdProponer"));
    entorno.Atiende(
        [this] { Cambia(f, "Juegos", [](study::Ajuste& a) { a.incertidumbre.miembros = 1000000; }); });
    VeAlPaso("5");
    Pulsa(En<QPushButton>("AjusteIncertidumbre", "cmdCorrer"));
    auto& avance = En<QProgressBar>("AjusteIncertidumbre", "barAvance");
    ASSERT_TRUE(QTest::qWaitFor([&] { return avance.isVisible() && avance.maximum() > 0; }, 20000));
    QTest::qWait(200);
    QElapsedTimer reloj;
    reloj.start();
    QTest::keyClick(&ventana, Qt::Key_Escape);
    EXPECT_LT(reloj.elapsed(), 100);
    EXPECT_FALSE(avance.isVisible());
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(DeQ(En<QLabel>("AjusteIncertidumbre", "lblEstado").text()), "Cancelado.");
    EXPECT_TRUE(En<QPushButton>("AjusteIncertidumbre", "cmdCorrer").isEnabled());
}

}  // namespace
}  // namespace calibration
