// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTextBrowser>
#include <QTreeView>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "shell/dlgBusca_ventana.h"

// The search over the windows of the whole program, by its keys and the mouse.
namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using forms::DeQ;
using forms::Q;
using Lista = std::vector<std::string>;

struct BuscaEnPantalla : EscritorioDePrueba {
    BuscaEnPantalla()
    {
        escritorio.entorno.Ajustes().remove(QStringLiteral("busca"));
        escritorio.entorno.Ajustes().remove(QStringLiteral("inicio/recientes"));
    }
    static QWidget* Ventana()
    {
        for (QWidget* ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == QStringLiteral("dlgBusca") && ventana->isVisible()) return ventana;
        return nullptr;
    }
    static QTreeView& Hallados() { return Control<QTreeView>(*Ventana(), "lstHallados"); }
    static QLineEdit& Campo() { return Control<QLineEdit>(*Ventana(), "txtBusca"); }
    static std::string Pie() { return DeQ(Control<QLabel>(*Ventana(), "lblPie").text()); }
    static std::string Fila(int renglon)
    {
        const QAbstractItemModel& m = *Hallados().model();
        std::string fila;
        for (int columna = 0; columna < 3; ++columna)
            fila += (columna > 0 ? "|" : "") + DeQ(m.index(renglon, columna).data().toString());
        return fila;
    }
    static std::string Elegida() { return Fila(Hallados().currentIndex().row()); }
    /// The search's keys, in the window that is active.
    bool Abre()
    {
        QWidget* const delante = QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                                        : QApplication::activeWindow();
        QTest::keyClick(delante, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        return Ventana() != nullptr && QTest::qWaitForWindowActive(Ventana()) &&
               Espera([] { return Campo().hasFocus(); });
    }
    static void Teclea(const char* texto) { apoyo::Teclea(Campo(), texto); }
    /// Chooses by Enter what a text finds first, and waits until it has been begun.
    void Haz(const char* texto)
    {
        ASSERT_TRUE(Abre());
        Teclea(texto);
        QTest::keyClick(&Campo(), Qt::Key_Return);
        EXPECT_EQ(Ventana(), nullptr);
    }
    QMdiSubWindow* Hija(const char* nombre)
    {
        auto* const ventana = escritorio.Principal().findChild<QWidget*>(Q(nombre));
        return ventana == nullptr || !ventana->isVisible()
                   ? nullptr
                   : qobject_cast<QMdiSubWindow*>(ventana->parentWidget());
    }
    bool SeVe(const char* nombre)
    {
        return Espera([&] { return Hija(nombre) != nullptr; });
    }
    void Corre()
    {
        escritorio.s.Tormenta.PpTormenta = 80;
        escritorio.s.Tormenta.DurTormenta = 120;
        Accion("mnuCorre1").trigger();
    }
};

TEST_F(BuscaEnPantalla, SeAbreArribaEnElMedioConElTecladoYEscLaCierra)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    const QRect principal = escritorio.Principal().geometry(), suya = Ventana()->geometry();
    EXPECT_TRUE(principal.contains(suya));
    EXPECT_NEAR(suya.center().x(), principal.center().x(), 1);
    EXPECT_LT(suya.top() - principal.top(), principal.height() / 10);
    EXPECT_EQ(apoyo::SinNombre(*Ventana()), Lista{});
    EXPECT_TRUE(Campo().text().isEmpty());
    EXPECT_EQ(Elegida(), Fila(0));
    QTest::keyClick(&Campo(), Qt::Key_Escape);
    EXPECT_EQ(Ventana(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&escritorio.Principal()));
}

TEST_F(BuscaEnPantalla, SuEntradaDelMenuLaAbre)
{
    Arranca();
    EXPECT_EQ(Accion("mnuBuscar").shortcut().toString(QKeySequence::PortableText),
              QStringLiteral("Ctrl+Shift+P"));
    Accion("mnuBuscar").trigger();
    ASSERT_NE(Ventana(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(Ventana()));
}

TEST_F(BuscaEnPantalla, LasFlechasRecorrenLaListaYDanLaVuelta)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    const int filas = Hallados().model()->rowCount();
    ASSERT_GT(filas, 40);
    const auto en = [] { return Hallados().currentIndex().row(); };
    QTest::keyClick(&Campo(), Qt::Key_Down);
    QTest::keyClick(&Campo(), Qt::Key_Down);
    EXPECT_EQ(en(), 2);
    QTest::keyClick(&Campo(), Qt::Key_Up);
    EXPECT_EQ(en(), 1);
    QTest::keyClick(&Campo(), Qt::Key_PageDown);
    EXPECT_GT(en(), 5);
    QTest::keyClick(&Campo(), Qt::Key_PageUp);
    EXPECT_EQ(en(), 1);
    QTest::keyClick(&Campo(), Qt::Key_PageUp);
    EXPECT_EQ(en(), 0);
    QTest::keyClick(&Campo(), Qt::Key_Up);
    EXPECT_EQ(en(), filas - 1);
    QTest::keyClick(&Campo(), Qt::Key_Down);
    EXPECT_EQ(en(), 0);
    Teclea("nada se llama asi zz");
    EXPECT_EQ(Hallados().model()->rowCount(), 0);
    EXPECT_EQ(Pie(), "Nada se llama así.");
    QTest::keyClick(&Campo(), Qt::Key_Return);
    EXPECT_NE(Ventana(), nullptr);
}

TEST_F(BuscaEnPantalla, UnaEntradaDelMenuSeHaceYQuedaPrimeraEntreIguales)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    Teclea("empiricos");
    EXPECT_EQ(Elegida(), "Métodos Empíricos||Menú Salidas");
    QTest::keyClick(&Campo(), Qt::Key_Return);
    EXPECT_EQ(Ventana(), nullptr);
    EXPECT_TRUE(SeVe("dlgEmpiricas"));
    ASSERT_TRUE(Abre());
    EXPECT_EQ(Elegida(), "Métodos Empíricos||Menú Salidas");
    QTest::keyClick(&Campo(), Qt::Key_Escape);
}

TEST_F(BuscaEnPantalla, UnClicHaceLoQueEnter)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    Teclea("physicos");
    EXPECT_EQ(Hallados().model()->rowCount(), 0);
    Campo().clear();
    Teclea("fisicos");
    const QRect fila = Hallados().visualRect(Hallados().model()->index(0, 0));
    QTest::mouseClick(Hallados().viewport(), Qt::LeftButton, {}, fila.center());
    EXPECT_EQ(Ventana(), nullptr);
    EXPECT_TRUE(SeVe("dlgUEHsTabla"));
}

TEST_F(BuscaEnPantalla, LoApagadoDicePorQueYNoSeHace)
{
    Arranca();
    ASSERT_TRUE(Abre());
    Teclea("guardar proyecto");
    EXPECT_EQ(Elegida(), "Guardar proyecto con otro nombre...|Todavía no se abrió un proyecto.|Menú Archivo");
    QTest::keyClick(&Campo(), Qt::Key_Return);
    ASSERT_NE(Ventana(), nullptr);
    EXPECT_EQ(Pie(), "Todavía no se abrió un proyecto.");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(BuscaEnPantalla, UnComponenteAbreSusPropiedadesYCorridoTambienSuHidrograma)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    Teclea("rquelmar");
    const std::string represa = escritorio.s.Red.NroRepresas() > 0
                                    ? escritorio.s.Red.ColRepresas.Item(1).NombreRepresa
                                    : std::string("r-Quelmar");
    EXPECT_EQ(Elegida(), "r-Quelmar||Represa");
    EXPECT_EQ(Hallados().model()->rowCount(), 1) << "no hydrograph without a run";
    QTest::keyClick(&Campo(), Qt::Key_Escape);
    Corre();
    ASSERT_TRUE(SeVe("dlgChart2"));
    ASSERT_TRUE(Abre());
    Teclea("rquelmar");
    EXPECT_EQ(Fila(0) + " " + Fila(1), "r-Quelmar||Represa r-Quelmar||Hidrograma");
    QTest::keyClick(&Campo(), Qt::Key_Down);
    QTest::keyClick(&Campo(), Qt::Key_Return);
    EXPECT_TRUE(Espera([this] {
        return escritorio.s.Resultados.Secuencia.at(static_cast<std::size_t>(escritorio.s.Control.IndComp)) ==
               "r-Quelmar";
    }));
    ASSERT_TRUE(Espera([] { return QApplication::activeModalWidget() == nullptr; }));
    apoyo::Usuario usuario;
    std::string nombre;
    usuario.Hace([&](QWidget& forma) {
        nombre = DeQ(Control<QLineEdit>(forma, "txtNombreRepresa").text());
        static_cast<QDialog&>(forma).reject();
    });
    Haz("represa quel");
    EXPECT_TRUE(Espera([&] { return !nombre.empty(); }));
    EXPECT_EQ(nombre, "r-Quelmar");
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(BuscaEnPantalla, UnaPaginaDeAyudaSeAbre)
{
    Arranca(instalacion.Quelmar());
    Haz("trabajar grillas");
    ASSERT_TRUE(SeVe("Ayuda"));
    EXPECT_TRUE(Espera([this] {
        return Control<QTextBrowser>(escritorio.Principal(), "Paginas").source().fileName() ==
               QStringLiteral("grillas.html");
    }));
}

TEST_F(BuscaEnPantalla, F1MuestraSuPagina)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    QTest::keyClick(&Campo(), Qt::Key_F1);
    EXPECT_EQ(Ventana(), nullptr);
    ASSERT_TRUE(SeVe("Ayuda"));
    EXPECT_EQ(Control<QTextBrowser>(escritorio.Principal(), "Paginas").source().fileName(),
              QStringLiteral("dlgBusca.html"));
}

TEST_F(BuscaEnPantalla, UnaVentanaAbiertaVieneAlFrente)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuEmpiricos").trigger();
    Accion("mnufrmUEHsTabla").trigger();
    ASSERT_TRUE(SeVe("dlgEmpiricas"));
    ASSERT_EQ(escritorio.Principal().Ventanas().activeSubWindow(), Hija("dlgUEHsTabla"));
    Haz("abierta empiric");
    EXPECT_TRUE(Espera(
        [this] { return escritorio.Principal().Ventanas().activeSubWindow() == Hija("dlgEmpiricas"); }));
    Haz("mosaico");
    EXPECT_TRUE(Espera(
        [this] { return !Hija("dlgEmpiricas")->geometry().intersects(Hija("dlgUEHsTabla")->geometry()); }));
}

TEST_F(BuscaEnPantalla, UnProyectoDeLosUltimosSeAbreYPreguntaPorElDibujo)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Espera([this] {
        return escritorio.entorno.Ajustes().value(QStringLiteral("inicio/recientes/size")).toInt() == 1;
    }));
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    Editor()->findChild<QAction*>(QStringLiteral("btn_toolbarUEH"))->trigger();
    anfitrion->textos = {"nueva"};
    anfitrion->respuestaDeSiempre = false;  // what the validation finds keeps nobody back
    auto& lienzo = Control<QWidget>(*Editor(), "picDibujo");
    QTest::mouseClick(Editor()->windowHandle(), Qt::LeftButton, {}, lienzo.mapTo(Editor(), QPoint(40, 40)));
    const int conNueva = escritorio.s.Red.NroUEHs();
    const auto resguardos = [this] { return anfitrion->Mensajes(apoyo::Suceso::Clase::Resguardo).size(); };
    ASSERT_TRUE(Abre()) << "from the editor, with the main window hidden";
    EXPECT_FALSE(escritorio.Principal().isVisible());
    Teclea("proyecto quelmar");
    EXPECT_TRUE(Elegida().starts_with("Quelmar|")) << Elegida();
    EXPECT_TRUE(Elegida().ends_with("|Proyecto")) << Elegida();
    QTest::keyClick(&Campo(), Qt::Key_Return);
    EXPECT_TRUE(Espera([&] { return resguardos() == 1; }));
    EXPECT_EQ(escritorio.s.Red.NroUEHs(), conNueva) << "cancelled";
    anfitrion->resguardos = {model::Resguardo::SeguirSinGuardar};
    Haz("proyecto quelmar");
    EXPECT_TRUE(Espera([&] { return resguardos() == 2 && !Editor()->isVisible(); }));
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Quelmar");
}

TEST_F(BuscaEnPantalla, DesdeElEditorSeLlegaALaPrincipal)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    ASSERT_TRUE(Espera([this] { return !escritorio.Principal().isVisible(); }));
    ASSERT_TRUE(Abre());
    EXPECT_EQ(Ventana()->parentWidget(), Editor());
    QTest::qWait(50);
    EXPECT_FALSE(escritorio.Principal().isVisible()) << "the editor is still at the front";
    Teclea("ventana principal");
    QTest::keyClick(&Campo(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&escritorio.Principal()));
}

TEST_F(BuscaEnPantalla, ConElTecladoEnUnCampoTambienSeAbreYElTextoQueda)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuHelpContents").trigger();
    ASSERT_TRUE(SeVe("Ayuda"));
    auto& campo = Control<QLineEdit>(escritorio.Principal(), "txtBuscar");
    campo.setFocus();
    apoyo::Teclea(campo, "cauce");
    ASSERT_TRUE(Abre());
    EXPECT_EQ(campo.text(), QStringLiteral("cauce"));
    QTest::keyClick(&Campo(), Qt::Key_Escape);
    EXPECT_TRUE(Espera([&] { return campo.hasFocus(); }));
}

TEST_F(BuscaEnPantalla, ConUnaFormaPorResponderNoSeAbre)
{
    Arranca(instalacion.Quelmar());
    bool abierta = true;
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& forma) {
        QTest::keyClick(&forma, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        abierta = Ventana() != nullptr;
        static_cast<QDialog&>(forma).reject();
    });
    Accion("mnufrmPp").trigger();
    EXPECT_FALSE(abierta);
}

TEST_F(BuscaEnPantalla, AlPerderElTecladoSeCierra)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Abre());
    escritorio.Principal().activateWindow();
    EXPECT_TRUE(Espera([] { return Ventana() == nullptr; }));
}

}  // namespace
}  // namespace shell
