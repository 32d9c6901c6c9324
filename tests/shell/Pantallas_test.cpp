// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDialog>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <string>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "editor/FormasDeComponentes_ventana.h"
#include "rainfall/dlgImportaTormenta_ventana.h"
#include "shell/Tarjeta_ventana.h"

// Every window of the program on the screen of this run, which SIRO_PANTALLA names: it lies inside the
// screen, and its buttons are in sight. With SIRO_FOTOS a folder, a picture of each is left there.
namespace shell {
namespace {

using apoyo::Espera;
using forms::DeQ;

/// Whether a control is wholly in sight within its window.
bool ALaVista(const QWidget& control)
{
    return control.visibleRegion().boundingRect() == control.rect();
}

/// Parts of a composed control, and what stands in a view that scrolls by itself.
bool EsDeOtro(const QWidget& boton)
{
    for (const QWidget* w = boton.parentWidget(); w != nullptr && !w->isWindow(); w = w->parentWidget())
        if (w->inherits("QTabBar") || w->inherits("QToolBar") || w->inherits("QComboBox") ||
            w->inherits("QAbstractItemView") || w->inherits("QLineEdit") || w->inherits("QMdiSubWindow") ||
            w->inherits("QMenuBar") || w->inherits("QAbstractSpinBox"))
            return !w->inherits("QMdiSubWindow");
    return false;
}

struct Pantallas : EscritorioDePrueba {
    Pantallas() : EscritorioDePrueba(true) {}
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        escritorio.s.Tormenta.PpTormenta = 80;
        escritorio.s.Tormenta.DurTormenta = 120;
    }

    /// The window, or the frame around it in the main window, fits; its push buttons are in sight; a picture.
    void Revisa(QWidget& ventana)
    {
        const std::string nombre = DeQ(ventana.objectName());
        QTest::qWait(50);
        Retrata(ventana);
        QWidget* const marco = qobject_cast<QMdiSubWindow*>(ventana.parentWidget());
        if (marco != nullptr) {
            EXPECT_TRUE(marco->parentWidget()->rect().contains(marco->geometry()))
                << nombre << ' ' << marco->width() << 'x' << marco->height() << " in "
                << marco->parentWidget()->width() << 'x' << marco->parentWidget()->height();
        }
        const QRect pantalla = ventana.screen()->availableGeometry();
        const QRect lugar = ventana.window()->frameGeometry();
        EXPECT_TRUE(pantalla.contains(lugar))
            << nombre << ' ' << lugar.x() << ',' << lugar.y() << ' ' << lugar.width() << 'x' << lugar.height()
            << " on " << pantalla.width() << 'x' << pantalla.height();
        for (const QAbstractButton* boton : ventana.findChildren<QAbstractButton*>()) {
            const bool cuenta = boton->isVisible() && boton->inherits("QPushButton") && !EsDeOtro(*boton) &&
                                !EnLoQueSeDesplaza(*boton);
            EXPECT_TRUE(!cuenta || ALaVista(*boton)) << nombre << ' ' << DeQ(boton->objectName());
        }
        // What scrolls leaves the form's last word outside.
        for (const char* const ultimo : {"OKButton", "CancelButton", "cmdAplicar", "cmdCerrar"}) {
            const auto* const boton = ventana.findChild<QWidget*>(QLatin1String(ultimo));
            EXPECT_TRUE(boton == nullptr || !boton->isVisible() || ALaVista(*boton))
                << nombre << ' ' << ultimo;
        }
    }

    static bool EnLoQueSeDesplaza(const QWidget& control)
    {
        for (const QWidget* w = control.parentWidget(); w != nullptr && !w->isWindow(); w = w->parentWidget())
            if (w->inherits("QScrollArea")) return true;
        return false;
    }

    static void Retrata(QWidget& ventana, const QString& aparte = {})
    {
        const char* const carpeta = std::getenv("SIRO_FOTOS");
        if (carpeta == nullptr) return;
        QWidget* const marco = qobject_cast<QMdiSubWindow*>(ventana.parentWidget());
        const QString archivo = QString::fromUtf8(carpeta) + QLatin1Char('/') + ventana.objectName() +
                                aparte + QStringLiteral(".png");
        EXPECT_TRUE((marco != nullptr ? marco->window() : &ventana)->grab().save(archivo));
    }

    /// Opens a modal window and reviews it, and what `dentro` opens from it, before closing it.
    void Modal(const std::function<void()>& abre, const std::function<void(QWidget&)>& dentro = {})
    {
        const QWidget* const antes = QApplication::activeModalWidget();
        bool vista = false;
        QTimer mira;
        QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
            QWidget* const ventana = QApplication::activeModalWidget();
            if (vista || ventana == nullptr || ventana == antes || !ventana->isVisible()) return;
            vista = true;
            Revisa(*ventana);
            if (dentro) dentro(*ventana);
            static_cast<QDialog*>(ventana)->done(QDialog::Rejected);
        });
        mira.start(5);
        escritorio.entorno.Atiende(abre);
        EXPECT_TRUE(vista);
    }

    void EnLaPrincipal(Ventana cual, const char* nombre)
    {
        escritorio.entorno.Atiende([&] { escritorio.Abre(cual, false); });
        Revisa(apoyo::Control<QWidget>(escritorio.Principal(), nombre));
    }
};

TEST_F(Pantallas, LaVentanaPrincipalYLasQueEstanEnElla)
{
    Revisa(escritorio.Principal());
    Accion("mnuCorre1").trigger();
    Revisa(apoyo::Control<QWidget>(escritorio.Principal(), "dlgChart2"));
    Accion("mnuGráficoPp").trigger();
    Revisa(apoyo::Control<QWidget>(escritorio.Principal(), "dlgChart1"));
    Accion("mnuPizarra1").trigger();
    Revisa(apoyo::Control<QWidget>(escritorio.Principal(), "frmPp"));
    EnLaPrincipal(Ventana::Avisos, "dlgAvisos");
    ASSERT_TRUE(Espera([&] { return !escritorio.Estudio().Juicio().EnCurso(); }));
    EnLaPrincipal(Ventana::Resumen, "dlgResumen");
    EnLaPrincipal(Ventana::Comparar, "dlgComparar");
    EnLaPrincipal(Ventana::CompararCorridas, "dlgCompararCorridas");
    EnLaPrincipal(Ventana::dlgChart3, "dlgChart3");
    EnLaPrincipal(Ventana::dlgTablaSalePDR, "dlgTablaSalePDR");
    EnLaPrincipal(Ventana::dlgTablaSalePDR2, "dlgTablaSalePDR2");
    EnLaPrincipal(Ventana::dlgEmpiricas, "dlgEmpiricas");
    EnLaPrincipal(Ventana::dlgUEHsTabla, "dlgUEHsTabla");
    EnLaPrincipal(Ventana::Revisar, "dlgRevisar");
    EnLaPrincipal(Ventana::Verificar, "dlgVerificar");
    EnLaPrincipal(Ventana::Taller, "dlgTaller");
    EnLaPrincipal(Ventana::Ajuste, "dlgAjuste");
    EnLaPrincipal(Ventana::Memoria, "dlgMemoria");
    EnLaPrincipal(Ventana::Corridas, "dlgCorridas");
    Accion("mnuMapa").trigger();  // it comes once the run has been looked over
    ASSERT_TRUE(Espera([this] {
        return escritorio.Principal().findChild<QWidget*>(QStringLiteral("MapaDeCorrida")) != nullptr;
    }));
    Revisa(apoyo::Control<QWidget>(escritorio.Principal(), "MapaDeCorrida"));
    Accion("mnuHelpContents").trigger();
    Revisa(apoyo::Control<QWidget>(escritorio.Principal(), "Ayuda"));
}

// With none, three and ten projects, one of them gone, one with a long name; each key is as wide as its
// column, and none lies over another.
TEST_F(Pantallas, LaHojaDeInicio)
{
    QSettings& ajustes = escritorio.entorno.Ajustes();
    auto& hoja = apoyo::Control<QWidget>(escritorio.Principal(), "Inicio");
    const QString largo =
        QStringLiteral("Arroyo de los Sauces y de la Cuesta del Portezuelo Alto, margen derecha");
    for (const int cuantos : {0, 3, 10})
        for (const bool abierto : {false, true}) {
            ajustes.remove(QStringLiteral("inicio/recientes"));
            ajustes.beginWriteArray(QStringLiteral("inicio/recientes"), cuantos);
            for (int i = 0; i < cuantos; ++i) {
                ajustes.setArrayIndex(i);
                ajustes.setValue(QStringLiteral("ruta"),
                                 i == 2 ? QStringLiteral("/media/disco/obras/2024/Norte_Conf.vlm")
                                        : forms::Q(instalacion.Quelmar()));
                ajustes.setValue(QStringLiteral("cuenca"), i == 1 ? largo : QStringLiteral("Río Quelmar"));
                ajustes.setValue(QStringLiteral("cuando"), QStringLiteral("22/11/2026 10:0%1").arg(i));
            }
            ajustes.endArray();
            escritorio.s.Proyecto.NombreProyecto = abierto ? "Quelmar" : "";
            hoja.hide();
            hoja.show();
            const auto visibles = [&hoja] {
                const auto todas = hoja.findChildren<Tarjeta*>();
                return std::ranges::count_if(todas, [](const Tarjeta* t) { return t->isVisible(); });
            };
            EXPECT_TRUE(Espera([&] { return visibles() == (abierto ? 4 : 2) + 2 + cuantos; }));
            QTest::qWait(50);  // and laid out
            Retrata(escritorio.Principal(),
                    QStringLiteral("_inicio_%1_%2").arg(cuantos).arg(abierto ? 1 : 0));
            EXPECT_TRUE(hoja.isVisible());
            QList<QRect> lugares;
            for (const Tarjeta* tarjeta : hoja.findChildren<Tarjeta*>()) {
                if (!tarjeta->isVisible()) continue;
                const QRect lugar(tarjeta->mapTo(&hoja, QPoint()), tarjeta->size());
                EXPECT_GE(lugar.height(), tarjeta->sizeHint().height());
                for (const QRect& otro : lugares)
                    EXPECT_FALSE(lugar.intersects(otro)) << DeQ(tarjeta->objectName());
                lugares.append(lugar);
            }
        }
}

TEST_F(Pantallas, LaBusquedaConLoQueHallaYSinNada)
{
    Accion("mnuCorre1").trigger();
    Accion("mnuBuscar").trigger();
    ASSERT_TRUE(
        Espera([] { return QApplication::activeWindow()->objectName() == QStringLiteral("dlgBusca"); }));
    QWidget* const busca = QApplication::activeWindow();
    Revisa(*busca);
    EXPECT_TRUE(ALaVista(apoyo::Control<QWidget>(*busca, "lstHallados")));
    EXPECT_TRUE(ALaVista(apoyo::Control<QWidget>(*busca, "lblPie")));
    apoyo::Teclea(apoyo::Control<QWidget>(*busca, "txtBusca"), "quel");
    QTest::qWait(50);
    Retrata(*busca, QStringLiteral("_quel"));
}

TEST_F(Pantallas, LosDialogosDelMenu)
{
    for (const Ventana cual : {Ventana::frmConfigura, Ventana::dlgEliminarProyecto, Ventana::frmAcerca,
                               Ventana::dlgAnteriores, Ventana::dlgUEHsEditTabla})
        Modal([&] { escritorio.Abre(cual, true); });
}

TEST_F(Pantallas, LaTormentaYLasFormasQueAbre)
{
    for (const char* const boton : {"cmdPpPerso", "cmdTablaPDR", "cmdPpReal", "cmdCargaPDRnoUniforme"})
        Modal([&] { escritorio.Abre(Ventana::dlgPp, true); },
              [&](QWidget& tormenta) {
                  auto& abre = apoyo::Control<QAbstractButton>(tormenta, boton);
                  abre.setEnabled(true);
                  Modal([&] { abre.click(); });
              });
}

TEST_F(Pantallas, ElEditorYLasFormasDeLosComponentes)
{
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    Revisa(*Editor());
    editor::FormasDeComponentes formas(escritorio.entorno, *Editor());
    Modal([&] { formas.Abre(editor::Pedido::FormaUEH); });
    Modal([&] { formas.Abre(editor::Pedido::FormaCauce); });
    const auto tablas = [this](QWidget& ficha) {
        for (QAbstractButton* boton : ficha.findChildren<QAbstractButton*>())
            if (boton->objectName().contains(QStringLiteral("Tabla")) && boton->isVisible() &&
                boton->isEnabled() && boton->inherits("QPushButton"))
                Modal([&] { boton->click(); });
    };
    Modal([&] { formas.Abre(editor::Pedido::FormaRepresa); }, tablas);
    Modal([&] { formas.Abre(editor::Pedido::FormaLago); }, tablas);
}

}  // namespace
}  // namespace shell
