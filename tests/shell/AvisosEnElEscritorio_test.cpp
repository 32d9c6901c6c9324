// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QColor>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/ArchivoConf.h"

// The findings of a run in the main window: key, list, menu, balance, and the time that a peak asks for.
namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using forms::DeQ;
using forms::Q;

struct AvisosEnElEscritorio : EscritorioDePrueba {
    /// The sample project with so much time added to its storm.
    void ArrancaCon(const char* N0Dur)
    {
        const QString conf = Q(instalacion.Quelmar());
        QFile archivo(conf);
        ASSERT_TRUE(archivo.open(QIODevice::ReadWrite));
        QByteArray bytes = archivo.readAll();
        ASSERT_EQ(bytes.count("\r\n480\r\n"), 1);
        bytes.replace("\r\n480\r\n", QByteArray("\r\n") + N0Dur + "\r\n");
        archivo.resize(0);
        archivo.seek(0);
        archivo.write(bytes);
        archivo.close();
        Arranca(instalacion.Quelmar());
    }
    void Corre()
    {
        escritorio.s.Tormenta.PpTormenta = 80;
        escritorio.s.Tormenta.DurTormenta = 60;
        Accion("mnuCorre1").trigger();
        EsperaElJuicio();
    }
    void EsperaElJuicio()
    {
        ASSERT_TRUE(Espera([&] { return !escritorio.Estudio().Juicio().EnCurso(); }));
        QCoreApplication::processEvents();
        ASSERT_TRUE(Espera([&] { return DeQ(Clave().text()) != "Revisando..."; }));
    }
    QToolButton& Clave() { return Control<QToolButton>(escritorio.Principal(), "cmdAvisos"); }
    QDockWidget& Lista() { return Control<QDockWidget>(escritorio.Principal(), "dlgAvisos"); }
    QTableView& Tabla() { return Control<QTableView>(Lista(), "tblAvisos"); }
    /// The strip over the findings of a single storm, the first of both.
    QWidget& Franja() { return Control<QWidget>(Lista(), "Franja"); }
    QPushButton& Agrega() { return Control<QPushButton>(Lista(), "cmdAgregarTiempo"); }
    std::string Texto(const char* rotulo) { return DeQ(Control<QLabel>(Lista(), rotulo).text()); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila, columna).data().toString());
    }
    /// Opens the list by its key in the status bar.
    void AbreLista()
    {
        apoyo::Pulsa(Clave());
        ASSERT_TRUE(Espera([&] { return Tabla().hasFocus(); }));
    }
    /// Right click on a row, and the entry of the menu.
    void Menu(int fila, const char* entrada)
    {
        bool elegida = false;
        QTimer mira;
        QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            mira.stop();
            for (QAction* accion : menu->actions()) {
                if (accion->objectName() != QLatin1String(entrada)) continue;
                elegida = accion->isEnabled();
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
                return;
            }
            menu->close();
        });
        mira.start(5);
        const QPoint lugar = Tabla().visualRect(Tabla().model()->index(fila, 2)).center();
        QTest::mouseClick(Tabla().viewport(), Qt::RightButton, {}, lugar);
        QContextMenuEvent pide(QContextMenuEvent::Mouse, lugar, Tabla().viewport()->mapToGlobal(lugar));
        QApplication::sendEvent(Tabla().viewport(), &pide);
        EXPECT_TRUE(elegida) << entrada;
    }
    /// Acts on the next modal form, which is cancelled.
    void EnLaForma(const char* nombre, const std::function<void()>& abre)
    {
        apoyo::Usuario usuario;
        std::string vista;
        usuario.Hace([&](QWidget& forma) {
            vista = DeQ(forma.objectName());
            static_cast<QDialog&>(forma).reject();
        });
        abre();
        EXPECT_EQ(vista, nombre);
    }
};

TEST_F(AvisosEnElEscritorio, LaClaveDiceCuantosHayYSinCorridaQueNoLaHay)
{
    ArrancaCon("480");
    EXPECT_EQ(DeQ(Clave().text()), "Sin corrida");
    EXPECT_TRUE(Clave().icon().isNull());
    EXPECT_FALSE(Lista().isVisible());
    Corre();
    EXPECT_EQ(DeQ(Clave().text()), "Sin avisos, 1 nota");
    EXPECT_FALSE(Clave().icon().isNull());
    EXPECT_FALSE(Lista().isVisible());
    escritorio.entorno.Atiende([&] { escritorio.s.Tormenta.PpTormenta = 90; });
    EXPECT_TRUE(Espera([&] { return DeQ(Clave().text()) == "Sin avisos, 1 nota (corrida anterior)"; }));
}

TEST_F(AvisosEnElEscritorio, LaClaveAbreLaListaConLosHallazgosDeLaCorrida)
{
    ArrancaCon("10");
    Corre();
    EXPECT_EQ(DeQ(Clave().text()), "4 errores, 1 nota");
    AbreLista();
    EXPECT_EQ(Lista().findChild<QTabWidget*>()->currentIndex(), 0);
    ASSERT_EQ(Tabla().model()->rowCount(), 5);
    EXPECT_EQ(Celda(0, 0), "error");
    EXPECT_EQ(Celda(0, 1), "101");
    EXPECT_EQ(Celda(4, 0), "nota");
    EXPECT_EQ(Celda(4, 2), "r-Quelmar");
    EXPECT_EQ(Texto("lblCuenta"), "4 errores, 1 nota");
    EXPECT_NE(Texto("lblCorrida").find("P 80 mm, D 60 min"), std::string::npos) << Texto("lblCorrida");
    EXPECT_FALSE(Franja().isVisible());
    // Each severity has its mark, and each cell all of its text at hand.
    EXPECT_FALSE(Tabla().model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(Tabla().model()->index(0, 5).data(Qt::ToolTipRole), Tabla().model()->index(0, 5).data());
    EXPECT_EQ(apoyo::SinNombre(*Lista().widget()), std::vector<std::string>{});

    escritorio.entorno.Atiende([&] { escritorio.s.Tormenta.PpTormenta = 90; });
    EXPECT_TRUE(Espera([&] { return Franja().isVisible(); }));
    EXPECT_EQ(DeQ(Control<QLabel>(Franja(), "lblFranja").text()).substr(0, 25), "De una corrida anterior: ");
    EXPECT_FALSE(Agrega().isEnabled());
}

TEST_F(AvisosEnElEscritorio, ElMenuAbreLaListaYLoQueSeDejaALaVistaVuelve)
{
    ArrancaCon("480");
    Accion("mnuAvisos").trigger();
    ASSERT_TRUE(Espera([&] { return Lista().isVisible(); }));
    EXPECT_EQ(Texto("lblCorrida"), "Todavía no se ha corrido ninguna tormenta");
    EXPECT_FALSE(Agrega().isVisible());
    escritorio.Principal().GuardaLugar();
    Lista().close();
    EXPECT_FALSE(Lista().isVisible());
    escritorio.Principal().Abre();
    EXPECT_TRUE(Lista().isVisible());
    Lista().close();
    escritorio.Principal().GuardaLugar();
}

TEST_F(AvisosEnElEscritorio, UnDobleClicYEnterVanAlComponente)
{
    ArrancaCon("10");
    Corre();
    AbreLista();
    ASSERT_EQ(Celda(0, 2), "c-Quelmar5");
    EnLaForma("dlgCauceEditProp", [&] {
        const QPoint lugar = Tabla().visualRect(Tabla().model()->index(0, 3)).center();
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, {}, lugar);
        QTest::mouseDClick(Tabla().viewport(), Qt::LeftButton, {}, lugar);
    });
    EXPECT_TRUE(Editor()->isVisible());
    Editor()->close();
    ASSERT_TRUE(Espera([&] { return escritorio.Principal().isVisible(); }));
    Tabla().setFocus();
    Tabla().setCurrentIndex(Tabla().model()->index(4, 0));
    EnLaForma("dlgRepresas", [&] { QTest::keyClick(&Tabla(), Qt::Key_Return); });
}

TEST_F(AvisosEnElEscritorio, ElMenuDeUnaFilaVaAlComponenteYASuHidrograma)
{
    ArrancaCon("10");
    Corre();
    AbreLista();
    EnLaForma("dlgRepresas", [&] { Menu(4, "mnuIrAlComponente"); });
    Editor()->close();
    ASSERT_TRUE(Espera([&] { return escritorio.Principal().isVisible(); }));
    Menu(4, "mnuVerHidrograma");
    EXPECT_EQ(escritorio.s.Resultados.Secuencia[static_cast<std::size_t>(escritorio.s.Control.IndComp)],
              "r-Quelmar");
    Menu(0, "mnuCopiaSeleccion");
    const std::string copiado = DeQ(QGuiApplication::clipboard()->text());
    EXPECT_EQ(copiado.substr(0, 21), "error\t101\tc-Quelmar5\t") << copiado;
}

TEST_F(AvisosEnElEscritorio, CtrlCCopiaLasFilasElegidas)
{
    ArrancaCon("10");
    Corre();
    AbreLista();
    Tabla().selectAll();
    QTest::keyClick(&Tabla(), Qt::Key_C, Qt::ControlModifier);
    const QString copiado = QGuiApplication::clipboard()->text();
    EXPECT_EQ(copiado.count(QLatin1Char('\n')), 5);
    EXPECT_TRUE(copiado.contains(QStringLiteral("nota\t114\tr-Quelmar\t")));
}

TEST_F(AvisosEnElEscritorio, ElBalanceTieneLaCuencaYCadaComponente)
{
    ArrancaCon("480");
    Corre();
    AbreLista();
    auto& paginas = Control<QTabWidget>(Lista(), "tabPaginas");
    QTest::mouseClick(paginas.tabBar(), Qt::LeftButton, {}, paginas.tabBar()->tabRect(1).center());
    auto& balance = Control<QTableView>(Lista(), "tblBalance");
    ASSERT_TRUE(balance.isVisible());
    const int componentes = escritorio.s.Red.NroUEHs() + escritorio.s.Red.NroCauces() +
                            escritorio.s.Red.NroLagos() + escritorio.s.Red.NroRepresas();
    ASSERT_EQ(balance.model()->rowCount(), 1 + componentes);
    EXPECT_EQ(DeQ(balance.model()->index(0, 0).data().toString()), "Toda la cuenca");
    for (int fila = 0; fila <= componentes; ++fila)
        EXPECT_FALSE(DeQ(balance.model()->index(fila, 8).data().toString()).starts_with("No cierra")) << fila;
    // 80 mm on the area of all UEHs, base flow apart.
    double hectareas = 0;
    for (const model::UEH& u : escritorio.s.Red.ColUEHs)
        hectareas += u.Area;
    EXPECT_NEAR(balance.model()->index(0, 1).data().toString().toDouble(), hectareas * 800,
                0.02 * hectareas * 800);
}

// 1000 mm fill the lake above its table's top, and what doesn't fit is lost.
TEST_F(AvisosEnElEscritorio, LoQueNoCierraSeVeEnRojoEnGrisYEnPalabras)
{
    ArrancaCon("480");
    escritorio.s.Tormenta.PpTormenta = 1000;
    escritorio.s.Tormenta.DurTormenta = 240;
    Accion("mnuCorre1").trigger();
    EsperaElJuicio();
    AbreLista();
    auto& paginas = Control<QTabWidget>(Lista(), "tabPaginas");
    QTest::mouseClick(paginas.tabBar(), Qt::LeftButton, {}, paginas.tabBar()->tabRect(1).center());
    const QAbstractItemModel& balance = *Control<QTableView>(Lista(), "tblBalance").model();
    int rojas = 0, negras = 0;
    for (int fila = 0; fila < balance.rowCount(); ++fila) {
        const QModelIndex cierre = balance.index(fila, 8);
        const double error = balance.index(fila, 7).data().toString().toDouble();
        if (std::fabs(error) <= 0.1) {
            ++negras;
            EXPECT_FALSE(cierre.data(Qt::BackgroundRole).isValid()) << fila;
            EXPECT_EQ(DeQ(cierre.data().toString()), "Cierra") << fila;
            continue;
        }
        ++rojas;
        const auto fondo = cierre.data(Qt::BackgroundRole).value<QColor>();
        const auto letra = cierre.data(Qt::ForegroundRole).value<QColor>();
        EXPECT_GT(letra.red(), letra.green() + letra.blue()) << fila;
        EXPECT_LT(qGray(fondo.rgb()), 230) << fila;  // darker than white and than its alternate
        EXPECT_GT(qGray(fondo.rgb()) - qGray(letra.rgb()), 150) << fila;
        EXPECT_TRUE(cierre.data(Qt::FontRole).value<QFont>().bold()) << fila;
        EXPECT_NE(DeQ(cierre.data().toString()), "Cierra") << fila;
    }
    EXPECT_GT(rojas, 1);
    EXPECT_GT(negras, 20);
    if (const char* const carpeta = std::getenv("SIRO_FOTOS")) {
        EXPECT_TRUE(escritorio.Principal().grab().save(QString::fromUtf8(carpeta) +
                                                       QStringLiteral("/dlgAvisos_balance.png")));
    }
}

TEST_F(AvisosEnElEscritorio, LoQueElEditorCambiaSeSabeAlVolver)
{
    ArrancaCon("480");
    Corre();
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    escritorio.entorno.Atiende([&] { escritorio.s.Red.ColUEHs.Item(1).Area = 77; });
    Editor()->close();
    ASSERT_TRUE(escritorio.Principal().isVisible());
    EXPECT_TRUE(Espera([&] { return DeQ(Clave().text()) == "Sin avisos, 1 nota (corrida anterior)"; }));
}

TEST_F(AvisosEnElEscritorio, ElBotonPoneElTiempoConLaCajaDeLaConfiguracionYCorre)
{
    ArrancaCon("10");
    Corre();
    AbreLista();
    ASSERT_TRUE(Agrega().isEnabled()) << DeQ(Agrega().toolTip());
    const int minutos = DeQ(Agrega().text()).starts_with("A&gregar ")
                            ? Agrega().text().section(QLatin1Char(' '), 1, 1).toInt()
                            : 0;
    EXPECT_GT(minutos, 10);
    EXPECT_NE(DeQ(Agrega().toolTip()).find("ahora 10 min"), std::string::npos);
    anfitrion->sucesos.clear();
    apoyo::Pulsa(Agrega());
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto,
              "Los datos de configuración del proyecto se han guardado correctamente en el archivo " +
                  instalacion.Quelmar());
    EsperaElJuicio();
    EXPECT_EQ(escritorio.s.Pasos.N0Dur, static_cast<float>(minutos));
    EXPECT_TRUE(Espera([&] { return DeQ(Clave().text()) == "Sin avisos, 1 nota"; })) << DeQ(Clave().text());
    EXPECT_FALSE(Agrega().isVisible());
    EXPECT_EQ(escritorio.s.Disco.Lee(instalacion.Quelmar()).find("\r\n10\r\n"), std::string::npos);
}

TEST_F(AvisosEnElEscritorio, MientrasSeRevisaUnClicLoDice)
{
    ArrancaCon("10");
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 60;
    Accion("mnuCorre1").trigger();
    ASSERT_TRUE(escritorio.Estudio().Juicio().EnCurso());
    escritorio.entorno.Atiende([&] { escritorio.Abre(Ventana::Avisos); });
    EXPECT_EQ(Texto("lblCorrida"), "Se está revisando la última corrida: los avisos aparecen al terminar");
    EXPECT_EQ(Tabla().model()->rowCount(), 0);
    EsperaElJuicio();
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 5; }));
}

TEST_F(AvisosEnElEscritorio, F1AbreSuPaginaDeAyuda)
{
    ArrancaCon("480");
    AbreLista();
    QTest::keyClick(escritorio.Principal().windowHandle(), Qt::Key_F1);
    ASSERT_TRUE(Espera([&] {
        const auto* const pagina = escritorio.Principal().findChild<QTextBrowser*>();
        return pagina != nullptr && pagina->isVisible() &&
               pagina->documentTitle() == QStringLiteral("Avisos de la corrida");
    }));
}

}  // namespace
}  // namespace shell
