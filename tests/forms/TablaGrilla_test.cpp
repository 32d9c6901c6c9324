// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>
#include <array>

#include "apoyo/Ventanas.h"
#include "forms/Grilla_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

constexpr auto Editables = std::to_array<ColumnaEditable>({{1}, {2}});
constexpr ReglasGrilla Reglas{.encabezado = "^Nro.|>P [mm]   |>D [min]   ", .editables = Editables};

/// A grid of three rows between two fields.
struct TablaDePrueba : testing::Test {
    apoyo::Mundo mundo{};
    Grilla grilla = [] {
        Grilla g = NuevaGrilla(Reglas);
        PonNroFilas(g, 3);
        for (int j = 1; j <= 3; ++j)
            g.Pon({j, 0}, std::to_string(j));
        return g;
    }();
    QWidget ventana{};
    QLineEdit antes{&ventana}, despues{&ventana};
    TablaGrilla* tabla = new TablaGrilla(mundo.entorno, grilla, "MSFlexGrid", "Tormentas");
    std::vector<Celda> asentadas{};

    void SetUp() override
    {
        auto* const pila = new QVBoxLayout(&ventana);
        pila->addWidget(&antes);
        pila->addWidget(tabla);
        pila->addWidget(&despues);
        QWidget::setTabOrder(&antes, tabla);
        QWidget::setTabOrder(tabla, &despues);
        ventana.resize(400, 300);
        tabla->AlCambiar = [this](const Efecto& e) {
            asentadas.insert(asentadas.end(), e.asentadas.begin(), e.asentadas.end());
        };
        apoyo::Muestra(ventana);
        tabla->setFocus();
    }
    [[nodiscard]] std::string Mostrado(int fila, int columna) const
    {
        return DeQ(tabla->model()->index(fila - 1, columna).data().toString());
    }
    /// A key as the window system sends it.
    void Oprime(Qt::Key tecla, Qt::KeyboardModifiers con = {})
    {
        QTest::keyClick(ventana.windowHandle(), tecla, con);
    }
    void Pulsa(int fila, int columna) const
    {
        const QRect celda = tabla->visualRect(tabla->model()->index(fila - 1, columna));
        QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {}, celda.center());
    }
};

TEST_F(TablaDePrueba, LaPrimeraTeclaReemplazaLasDemasAgreganYLaComaEsPunto)
{
    grilla.Pon({1, 1}, "99");
    QTest::keyClicks(tabla, QStringLiteral("12,5"));
    EXPECT_EQ(Mostrado(1, 1), "12.5");
    EXPECT_TRUE(asentadas.empty());
    QTest::keyClick(tabla, Qt::Key_Down);
    EXPECT_EQ(asentadas, (std::vector<Celda>{{1, 1}}));
}

TEST_F(TablaDePrueba, EnterBajaYDelUltimoRenglonVuelveAlPrimero)
{
    Pulsa(3, 2);
    EXPECT_EQ(grilla.actual, (Celda{3, 2}));
    QTest::keyClicks(tabla, QStringLiteral("7"));
    QTest::keyClick(tabla, Qt::Key_Enter);
    EXPECT_EQ(grilla.actual, (Celda{1, 2}));
    EXPECT_EQ(Mostrado(3, 2), "7");
    EXPECT_EQ(Mostrado(1, 2), "0");
    QTest::keyClick(tabla, Qt::Key_Delete);
    EXPECT_EQ(Mostrado(1, 2), "");
}

TEST_F(TablaDePrueba, UnaLetraVaciaLaCelda)
{
    QTest::keyClicks(tabla, QStringLiteral("4x"));
    EXPECT_EQ(Mostrado(1, 1), "");
}

TEST_F(TablaDePrueba, UnBloqueVaYVieneDeUnaPlanilla)
{
    QApplication::clipboard()->setText(QStringLiteral("1,5\t60\r\n2\t120\r\n"));
    QTest::keyClick(tabla, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(1, 1), "1.5");
    EXPECT_EQ(Mostrado(2, 2), "120");
    EXPECT_EQ(asentadas.size(), 4U);

    QTest::keyClick(tabla, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(tabla, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1\t1.5\t60\n2\t2\t120\n3\t\t\n"));
}

TEST_F(TablaDePrueba, LoQueNoCabeSeDiceYNoSePegaNada)
{
    QApplication::clipboard()->setText(QStringLiteral("1\nuno\n"));
    QTest::keyClick(tabla, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(Mostrado(1, 1), "");
}

TEST_F(TablaDePrueba, UnEncabezadoPegadoNoCorreLasFilas)
{
    QApplication::clipboard()->setText(QStringLiteral("P\tD\r\n1,5\t60\r\n2\t120\r\n"));
    Oprime(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(1, 1), "1.5");
    EXPECT_EQ(Mostrado(2, 2), "120");
    EXPECT_EQ(Mostrado(3, 1), "");
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
}

TEST_F(TablaDePrueba, LosMilesDeUnaPlanillaSePreguntanYLosPropiosNo)
{
    QApplication::clipboard()->setText(QStringLiteral("2.300\n"));
    Oprime(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(1, 1), "2300");
    EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);

    Pulsa(2, 1);
    QTest::keyClicks(tabla, QStringLiteral("4.125"));
    Oprime(Qt::Key_C, Qt::ControlModifier);
    Pulsa(3, 1);
    Oprime(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(3, 1), "4.125");
    EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
}

TEST_F(TablaDePrueba, RetrocesoQuitaUnCaracter)
{
    QTest::keyClicks(tabla, QStringLiteral("12.5"));
    Oprime(Qt::Key_Backspace);
    EXPECT_EQ(Mostrado(1, 1), "12.");
    Oprime(Qt::Key_Backspace);
    Oprime(Qt::Key_Backspace);
    EXPECT_EQ(Mostrado(1, 1), "1");
    QTest::keyClicks(tabla, QStringLiteral("7"));
    EXPECT_EQ(Mostrado(1, 1), "17");
}

TEST_F(TablaDePrueba, ControlZDeshaceYControlYRehace)
{
    grilla.Pon({1, 1}, "99");
    QTest::keyClicks(tabla, QStringLiteral("12x"));
    EXPECT_EQ(Mostrado(1, 1), "");
    asentadas.clear();
    Oprime(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(1, 1), "99");
    EXPECT_EQ(asentadas.back(), (Celda{1, 1}));
    Oprime(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Mostrado(1, 1), "");
}

TEST_F(TablaDePrueba, TabRecorreLasCeldasYAlFinalSigue)
{
    Pulsa(3, 1);
    QTest::keyClick(tabla, Qt::Key_Tab);
    EXPECT_EQ(grilla.actual, (Celda{3, 2}));
    EXPECT_TRUE(tabla->hasFocus());
    QTest::keyClick(tabla, Qt::Key_Tab);
    EXPECT_TRUE(despues.hasFocus());
    Pulsa(1, 0);
    QTest::keyClick(tabla, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(antes.hasFocus());
}

TEST_F(TablaDePrueba, DejarLaGrillaAsientaLaCelda)
{
    QTest::keyClicks(tabla, QStringLiteral("5"));
    QTest::mouseClick(&antes, Qt::LeftButton);
    EXPECT_EQ(asentadas, (std::vector<Celda>{{1, 1}}));
}

TEST_F(TablaDePrueba, ElRatonExtiendeLaSeleccion)
{
    Pulsa(1, 1);
    const QRect hasta = tabla->visualRect(tabla->model()->index(1, 2));
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, Qt::ShiftModifier, hasta.center());
    EXPECT_EQ(Seleccion(grilla), (Bloque{{1, 1}, {2, 2}}));
    EXPECT_EQ(tabla->selectionModel()->selectedIndexes().size(), 4);
}

TEST_F(TablaDePrueba, OtroNumeroDeRenglonesSeVeAlMostrar)
{
    PonNroFilas(grilla, 5);
    tabla->Muestra();
    EXPECT_EQ(tabla->model()->rowCount(), 5);
    PonNroFilas(grilla, 0);
    tabla->Muestra();
    EXPECT_EQ(tabla->model()->rowCount(), 0);
    QTest::keyClicks(tabla, QStringLiteral("5"));
    QTest::keyClick(tabla, Qt::Key_Return);
    EXPECT_TRUE(grilla.filas.empty());
}

}  // namespace
}  // namespace forms
