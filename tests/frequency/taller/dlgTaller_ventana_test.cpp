// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgTaller_ventana.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <string>
#include <vector>

#include "apoyo/DiscoPrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Textos_ventana.h"
#include "frequency/Analisis.h"
#include "study/Abierto.h"

namespace frequency {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

const std::vector<std::string> Doce{"51", "70", "48", "95", "62", "58", "81", "44", "66", "120", "73", "55"};

class VentanaTaller : public testing::Test {
  protected:
    VentanaTaller() { ventana.resize(1000, 560); }
    void Abre(bool conProyecto)
    {
        if (conProyecto) {
            disco.PonDirectorio("/proy");
            mundo.s.Disco = disco.Puerta();
            mundo.s.Proyecto.NombreProyecto = "Quelmar";
            mundo.s.Proyecto.DirProyecto = "/proy";
            mundo.s.Proyecto.ProyectoNuevo = false;
        }
        mundo.entorno.Atiende([this] {
            estudio.Sigue();
            ventana.Abre();
        });
        apoyo::Muestra(ventana);
    }
    forms::TablaGrilla& Grilla() { return Control<forms::TablaGrilla>(ventana, "grdMaximos"); }
    void EscribeDoce()
    {
        Grilla().setFocus();
        for (std::size_t i = 0; i < Doce.size(); ++i) {
            QTest::keyClicks(&Grilla(), QString::number(1990 + static_cast<int>(i)));
            QTest::keyClick(&Grilla(), Qt::Key_Tab);
            QTest::keyClicks(&Grilla(), forms::Q(Doce[i]));
            QTest::keyClick(&Grilla(), Qt::Key_Tab);
            QTest::keyClick(&Grilla(), Qt::Key_Tab);
        }
    }
    void VeAlPaso(int cual)
    {
        QTabBar& pasos = Control<QTabBar>(ventana, "pasos");
        QTest::mouseClick(&pasos, Qt::LeftButton, {}, pasos.tabRect(cual).center());
    }
    [[nodiscard]] std::size_t Maximos() const
    {
        const study::SerieDeMaximos* const s = SerieEnMano(f);
        return s == nullptr ? 0 : s->maximos.size();
    }

    apoyo::DiscoPrueba disco{};
    apoyo::Mundo mundo{};
    study::Abierto estudio{mundo.s};
    dlgTaller f{estudio};
    dlgTaller_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaTaller, SinProyectoLoDiceEnCadaPaso)
{
    Abre(false);
    EXPECT_TRUE(Control<QLabel>(ventana, "lblFalta").isVisible());
    EXPECT_NE(DeQ(Control<QLabel>(ventana, "lblFalta").text()).find("No hay un proyecto"), std::string::npos);
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdImprimirTabla").isEnabled());
    VeAlPaso(2);
    EXPECT_TRUE(Control<QLabel>(ventana, "lblFalta").isVisible());
}

TEST_F(VentanaTaller, SeEscribeConElTecladoYCtrlZVuelveAtrasFilaPorFila)
{
    Abre(true);
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EscribeDoce();
    EXPECT_EQ(Maximos(), 12U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Control<QPushButton>(ventana, "cmdDeshacer").isEnabled(); }));
    QTest::keyClick(&Grilla(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Maximos(), 11U);
    QTest::keyClick(&Grilla(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Maximos(), 12U);
    QTest::keyClick(&Grilla(), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&Grilla(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Maximos(), 12U);
    Pulsa(Control<QPushButton>(ventana, "cmdDeshacer"));
    EXPECT_EQ(Maximos(), 11U);
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdRehacer").isEnabled());
    VeAlPaso(2);
    EXPECT_FALSE(Control<QLabel>(ventana, "lblFalta").isVisible());
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Maximos(), 9U);
    EXPECT_TRUE(Control<QLabel>(ventana, "lblFalta").isVisible()) << "too few to be fitted";
}

TEST_F(VentanaTaller, LasBandasSeCancelanConEscAlInstanteYSePuedenPedirDeNuevo)
{
    Abre(true);
    mundo.entorno.Atiende([this] { Cambia(f, "Muestras", [](study::Taller& t) { t.remuestras = 100000; }); });
    EscribeDoce();
    VeAlPaso(2);
    auto& avance = Control<QProgressBar>(ventana, "barAvance");
    auto& cuantiles = Control<forms::TablaCuadro>(ventana, "tblCuantiles");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return cuantiles.model()->rowCount() == 14 && avance.value() > 0; }, 20000));
    EXPECT_TRUE(avance.isVisible());
    QElapsedTimer reloj;
    reloj.start();
    QTest::keyClick(&ventana, Qt::Key_Escape);
    EXPECT_LT(reloj.elapsed(), 100);
    EXPECT_FALSE(avance.isVisible());
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblEstado").text()), "Cancelado: faltan bandas y p.");
    EXPECT_EQ(DeQ(cuantiles.model()->index(7, 1).data().toString()), "");

    mundo.entorno.Atiende([this] { Cambia(f, "Muestras", [](study::Taller& t) { t.remuestras = 100; }); });
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return !cuantiles.model()->index(7, 1).data().toString().isEmpty(); }, 20000));
    EXPECT_FALSE(Control<QLabel>(ventana, "lblEstado").isVisible());
    const auto entero =
        Analiza(Revisada(*SerieEnMano(f)), {.metodo = Metodo::MomentosL, .remuestreo = {.cuantas = 100}});
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblRecomendacion").text()), entero->recomendacion.motivo);
}

TEST_F(VentanaTaller, LaLeyRecomendadaSeTomaConUnClicYSeDeshaceConOtro)
{
    Abre(true);
    mundo.entorno.Atiende([this] { Cambia(f, "Muestras", [](study::Taller& t) { t.remuestras = 0; }); });
    EscribeDoce();
    VeAlPaso(2);
    auto& toma = Control<QPushButton>(ventana, "cmdRecomendada");
    ASSERT_TRUE(QTest::qWaitFor([&] { return toma.isEnabled(); }, 20000));
    Pulsa(toma);
    EXPECT_NE(SerieEnMano(f)->ley, "");
    EXPECT_NE(SerieEnMano(f)->motivo, "");
    Pulsa(Control<QPushButton>(ventana, "cmdDeshacer"));
    EXPECT_EQ(SerieEnMano(f)->ley, "");
}

// Origin, disaggregation, its coefficient and the table's view by clicks and keys; each is shown at once.
TEST_F(VentanaTaller, LasCurvasSeEligenConElRaton)
{
    Abre(true);
    EscribeDoce();
    VeAlPaso(3);
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    auto& tabla = Control<forms::TablaCuadro>(ventana, "tblCurvas");
    EXPECT_EQ(tabla.model()->rowCount(), 17);
    const auto elige = [this](const char* control, int cual) {
        auto& lista = Control<QComboBox>(ventana, control);
        lista.showPopup();
        QTest::mouseClick(lista.view()->viewport(), Qt::LeftButton, {},
                          lista.view()->visualRect(lista.model()->index(cual, 0)).center());
    };
    elige("cmbDesagregacion", 1);
    EXPECT_EQ(TallerDe(f).idf.desagregacion, "5.2-ic");
    EXPECT_EQ(tabla.model()->rowCount(), 0) << "the coefficient is missing";
    auto& coeficiente = Control<QLineEdit>(ventana, "txtCoef0");
    ASSERT_TRUE(coeficiente.isVisible());
    EXPECT_FALSE(Control<QLineEdit>(ventana, "txtCoef1").isVisible());
    ventana.activateWindow();
    coeficiente.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return coeficiente.hasFocus(); }));
    QTest::keyClicks(&coeficiente, QStringLiteral("10"));
    QTest::keyClick(&coeficiente, Qt::Key_Tab);
    ASSERT_TRUE(QTest::qWaitFor([&] { return tabla.model()->rowCount() == 17; }));
    EXPECT_NE(DeQ(Control<QLabel>(ventana, "lblNotas").text()).find("La lámina crece"), std::string::npos);
    const std::string lamina = DeQ(tabla.model()->index(7, 1).data().toString());  // of 120 min
    elige("cmbVista", 1);
    EXPECT_NEAR(std::stod(DeQ(tabla.model()->index(7, 1).data().toString())), std::stod(lamina) / 2, 0.051);
    elige("cmbOrigen", 2);
    EXPECT_FALSE(Control<QComboBox>(ventana, "cmbDesagregacion").isVisible());
    EXPECT_TRUE(Control<QLineEdit>(ventana, "txtCoef3").isVisible());
    elige("cmbFamilia", 5);
    EXPECT_TRUE(Control<forms::TablaGrilla>(ventana, "grdLibre").isVisible());
    EXPECT_FALSE(Control<QLineEdit>(ventana, "txtCoef0").isVisible());
    for (int i = 0; i < 4; ++i)
        Pulsa(Control<QPushButton>(ventana, "cmdDeshacer"));
    EXPECT_EQ(TallerDe(f).idf, study::Idf{});
    EXPECT_TRUE(Control<QComboBox>(ventana, "cmbDesagregacion").isVisible());
}

}  // namespace
}  // namespace frequency
