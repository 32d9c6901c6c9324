// SPDX-License-Identifier: GPL-3.0-or-later
//
// The summary of a run and the comparing of hydrographs, from the menu on.

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "e2e/Programa.h"

namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

class ResumenEnElEscritorio : public EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        Cambia(80);
    }
    void Cambia(float pp)
    {
        escritorio.entorno.Atiende([&] {
            escritorio.s.Tormenta.PpTormenta = pp;
            escritorio.s.Tormenta.DurTormenta = 120;
        });
    }
    void Corre()
    {
        Accion("mnuCorre1").trigger();
        EXPECT_TRUE(Espera([&] { return !escritorio.Estudio().Juicio().EnCurso(); }));
    }
    QWidget& Resumen() { return Control<QWidget>(escritorio.Principal(), "dlgResumen"); }
    QTableView& Tabla() { return Control<QTableView>(Resumen(), "tblResumen"); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila, columna).data().toString());
    }
    std::string Huella() { return DeQ(Control<QLabel>(Resumen(), "lblHuella").text()); }
    void TeclaF11() { QTest::keyClick(&escritorio.Principal(), Qt::Key_F11); }
};

TEST_F(ResumenEnElEscritorio, F11LoAbreYSuHuellaEsLaDeSiroLote)
{
    TeclaF11();
    EXPECT_TRUE(Resumen().isVisible());
    EXPECT_TRUE(Control<QLabel>(Resumen(), "lblQueHacer").isVisible()) << "nothing has been run";
    Corre();
    EXPECT_GT(Tabla().model()->rowCount(), 5) << "filled by the run";
    EXPECT_EQ(Huella().size(), 64U);
    const model::Siro& s = escritorio.s;
    const e2e::Salida lote =
        e2e::Lote({"una", instalacion.Quelmar(), "--trabajo", instalacion.Dir(), "--pp", "80", "--dur", "120",
                   "--distribucion", std::to_string(s.Tormenta.DistriPp), "--paso-pp",
                   std::to_string(s.Pasos.PasoPp), "--paso-q", std::to_string(s.Pasos.PasoQ), "--avisos"},
                  "/");
    ASSERT_EQ(lote.estado, 0) << lote.errores;
    EXPECT_TRUE(lote.estandar.ends_with("\nhuella " + Huella() + "\n")) << lote.estandar;
}

TEST_F(ResumenEnElEscritorio, UnaFilaAbreSuHidrogramaYOtraCorridaSeVeSola)
{
    Corre();
    TeclaF11();
    const std::string antes = Celda(3, 2), huella = Huella();
    const QPoint lugar = Tabla().visualRect(Tabla().model()->index(3, 1)).center();
    QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, {}, lugar);
    QTest::mouseDClick(Tabla().viewport(), Qt::LeftButton, {}, lugar);
    EXPECT_EQ(escritorio.hidrograma.componente, Celda(3, 0));
    EXPECT_TRUE(Control<QWidget>(escritorio.Principal(), "dlgChart2").isVisible());
    auto& franja = Control<QFrame>(Resumen(), "Franja");
    Cambia(100);
    ASSERT_TRUE(Espera([&] { return franja.isVisible(); }));
    EXPECT_EQ(Celda(3, 2), antes);
    Pulsa(Control<QPushButton>(franja, "cmdFranja"));
    EXPECT_TRUE(Espera([&] { return !franja.isVisible(); }));
    EXPECT_GT(std::stod(Celda(3, 2)), std::stod(antes));
    EXPECT_NE(Huella(), huella);
}

TEST_F(ResumenEnElEscritorio, PedidoMientrasSeRevisaLaCorridaSeAbreConElla)
{
    Accion("mnuCorre1").trigger();
    ASSERT_TRUE(escritorio.Estudio().Juicio().EnCurso());
    TeclaF11();
    EXPECT_EQ(escritorio.Principal().findChild<QWidget*>(QStringLiteral("dlgResumen")), nullptr);
    ASSERT_TRUE(Espera([&] {
        const auto* const w = escritorio.Principal().findChild<QWidget*>(QStringLiteral("dlgResumen"));
        return w != nullptr && w->isVisible();
    }));
    EXPECT_EQ(Huella(), escritorio.Estudio().Juicio().Ultima()->huella);
}

TEST_F(ResumenEnElEscritorio, LasFilasElegidasSeComparanEnUnGrafico)
{
    Corre();
    TeclaF11();
    for (const int fila : {0, 2})
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton,
                          fila == 0 ? Qt::NoModifier : Qt::ControlModifier,
                          Tabla().visualRect(Tabla().model()->index(fila, 1)).center());
    Pulsa(Control<QPushButton>(Resumen(), "cmdComparar"));
    QWidget& comparar = Control<QWidget>(escritorio.Principal(), "dlgComparar");
    EXPECT_TRUE(comparar.isVisible());
    const auto& lista = Control<QListWidget>(comparar, "lstCompos");
    for (int i = 0; i < lista.count(); ++i)
        EXPECT_EQ(lista.item(i)->checkState() == Qt::Checked, i == 0 || i == 2) << i;
}

}  // namespace
}  // namespace shell
