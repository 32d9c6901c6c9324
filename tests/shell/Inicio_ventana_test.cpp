// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Inicio_ventana.h"

#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QTimer>

#include "EscritorioDePrueba.h"

// What fills the room of the main window while no window is open there.
namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using forms::DeQ;
using forms::Q;

struct InicioEnPantalla : EscritorioDePrueba {
    InicioEnPantalla() { escritorio.entorno.Ajustes().remove(QStringLiteral("inicio/recientes")); }

    QWidget& Hoja() { return Control<QWidget>(escritorio.Principal(), "Inicio"); }
    Tarjeta& Una(const char* nombre) { return Control<Tarjeta>(escritorio.Principal(), nombre); }
    bool SeVe(const char* nombre) { return Una(nombre).isVisible(); }
    /// What a reader of the screen says of it, and its second line.
    std::string Dice(const char* nombre)
    {
        return DeQ(Una(nombre).accessibleName()) + "|" + DeQ(Una(nombre).accessibleDescription());
    }
    bool LlegaADecir(const char* nombre, const std::string& texto)
    {
        const bool llega = Espera([&] { return Una(nombre).isVisible() && Dice(nombre) == texto; });
        EXPECT_TRUE(llega) << Dice(nombre);
        return llega;
    }
    /// The next dialog's object name; it is closed at once.
    void CierraElDialogo(std::string& nombre)
    {
        auto* const reloj = new QTimer(&relojes);
        QObject::connect(reloj, &QTimer::timeout, reloj, [reloj, &nombre] {
            QWidget* const ventana = QApplication::activeModalWidget();
            if (ventana == nullptr || !ventana->isVisible()) return;
            reloj->stop();
            nombre = DeQ(ventana->objectName());
            static_cast<QDialog*>(ventana)->done(QDialog::Rejected);
        });
        reloj->start(5);
    }
    void PonReciente(const std::string& ruta, const char* cuenca)
    {
        QSettings& ajustes = escritorio.entorno.Ajustes();
        ajustes.beginWriteArray(QStringLiteral("inicio/recientes"), 1);
        ajustes.setArrayIndex(0);
        ajustes.setValue(QStringLiteral("ruta"), Q(ruta));
        ajustes.setValue(QStringLiteral("cuenca"), Q(cuenca));
        ajustes.setValue(QStringLiteral("cuando"), QStringLiteral("01/02/2026 03:04"));
        ajustes.endArray();
    }

    QObject relojes{};
};

TEST_F(InicioEnPantalla, SinProyectoOfreceAbrirUnoYLaMuestraSeAbreConEnter)
{
    Arranca();
    LlegaADecir("inicio_abrir",
                "Abrir un Proyecto existente|Abre un proyecto por su archivo de configuración");
    EXPECT_EQ(Control<QLabel>(escritorio.Principal(), "inicio_proyecto").text(),
              QStringLiteral("No hay un proyecto abierto"));
    EXPECT_TRUE(Control<QLabel>(escritorio.Principal(), "inicio_sin_recientes").isVisible());
    EXPECT_FALSE(SeVe("inicio_paso_1"));
    EXPECT_FALSE(SeVe("inicio_reciente_1"));
    EXPECT_EQ(apoyo::SinNombre(Hoja()), std::vector<std::string>{});

    QAccessibleInterface* const lector = QAccessible::queryAccessibleInterface(&Una("inicio_muestra"));
    ASSERT_NE(lector, nullptr);
    EXPECT_EQ(lector->role(), QAccessible::PushButton);
    EXPECT_EQ(lector->text(QAccessible::Name), QStringLiteral("Abrir el proyecto de muestra"));
    Una("inicio_muestra").setFocus();
    QTest::keyClick(&Una("inicio_muestra"), Qt::Key_Return);
    LlegaADecir("inicio_paso_2", "2. Red, hecho|15 UEHs, 12 cauces, 2 represas, 1 lago");
    EXPECT_EQ(Rotulo("lblProyecto"), "Quelmar");
    EXPECT_TRUE(Dice("inicio_paso_1").starts_with("1. Configuración, hecho|"));
    EXPECT_EQ(Dice("inicio_paso_3"), "3. Tormenta, falta|Falta elegirla");
    EXPECT_EQ(Dice("inicio_paso_4"), "4. Corrida, falta|Falta: todavía no se ha corrido");
    EXPECT_FALSE(SeVe("inicio_abrir"));
    EXPECT_TRUE(SeVe("inicio_reciente_1"));
    EXPECT_TRUE(Dice("inicio_reciente_1").starts_with("Quelmar|")) << Dice("inicio_reciente_1");
    EXPECT_TRUE(Dice("inicio_reciente_1").ends_with(" · " + instalacion.Proyectos()))
        << Dice("inicio_reciente_1");
    EXPECT_FALSE(SeVe("inicio_reciente_2"));
}

// From one key to the next, in the order on screen; a hidden one is passed over.
TEST_F(InicioEnPantalla, HastaSaberQueDecirNoMuestraTarjetasVacias)
{
    Inicio_ventana inicio(
        escritorio.entorno, [](Rutina) {}, nullptr);
    QDialog caja;
    caja.open();
    inicio.show();
    QCoreApplication::processEvents();
    EXPECT_FALSE(Control<QWidget>(inicio, "inicio_paso_1").isVisible());
    EXPECT_FALSE(Control<QWidget>(inicio, "inicio_tutorial").isVisible());
    caja.close();
    inicio.hide();
    inicio.show();
    EXPECT_TRUE(Espera([&] { return Control<QWidget>(inicio, "inicio_tutorial").isVisible(); }));
}

TEST_F(InicioEnPantalla, TabPasaPorTodo)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Espera([&] { return SeVe("inicio_reciente_1"); }));
    Una("inicio_paso_1").setFocus();
    for (const char* const siguiente : {"inicio_paso_2", "inicio_paso_3", "inicio_paso_4", "inicio_muestra",
                                        "inicio_tutorial", "inicio_reciente_1"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(DeQ(QApplication::focusWidget()->objectName()), siguiente);
    }
}

TEST_F(InicioEnPantalla, CadaPasoHaceLoDeSuOrdenDelMenu)
{
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Espera([&] { return SeVe("inicio_paso_1"); }));
    std::string abierto;
    CierraElDialogo(abierto);
    apoyo::Pulsa(Una("inicio_paso_1"));
    EXPECT_EQ(abierto, "frmConfigura");
    CierraElDialogo(abierto);
    QTest::keyClick(&Una("inicio_paso_3"), Qt::Key_Space);
    EXPECT_EQ(abierto, "dlgPp");
    apoyo::Pulsa(Una("inicio_paso_2"));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Espera([&] { return Editor()->isVisible(); }));
}

TEST_F(InicioEnPantalla, CedeElLugarALaPrimeraVentanaYVuelveConLaUltima)
{
    Arranca(instalacion.Quelmar());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    ASSERT_TRUE(Espera([&] { return SeVe("inicio_paso_4"); }));
    EXPECT_EQ(Hoja().size(), escritorio.Principal().Ventanas().viewport()->size());
    apoyo::Pulsa(Una("inicio_paso_4"));
    auto& hidrograma = Control<QWidget>(escritorio.Principal(), "dlgChart2");
    EXPECT_TRUE(hidrograma.isVisible());
    EXPECT_FALSE(Hoja().isVisible());
    Accion("mnuEmpiricos").trigger();
    hidrograma.close();
    QTest::qWait(1);
    EXPECT_FALSE(Hoja().isVisible());
    auto& empiricas = Control<QWidget>(escritorio.Principal(), "dlgEmpiricas");
    // An icon is a window that is open.
    empiricas.parentWidget()->showMinimized();
    QTest::qWait(1);
    EXPECT_FALSE(Hoja().isVisible());
    empiricas.parentWidget()->showNormal();
    empiricas.parentWidget()->close();
    EXPECT_TRUE(Espera([&] { return Hoja().isVisible(); }));
    EXPECT_TRUE(Espera([&] { return Dice("inicio_paso_4").starts_with("4. Corrida, hecho|"); }))
        << Dice("inicio_paso_4");
    // Another storm: what was run doesn't hold any more.
    escritorio.s.Tormenta.PpTormenta = 90;
    escritorio.entorno.Atiende([] {});
    EXPECT_TRUE(Espera([&] { return Dice("inicio_paso_4").starts_with("4. Corrida, por repetir|"); }))
        << Dice("inicio_paso_4");
}

TEST_F(InicioEnPantalla, ElTutorialSeAbreEnSuLugar)
{
    Arranca();
    ASSERT_TRUE(Espera([&] { return SeVe("inicio_tutorial") && Una("inicio_tutorial").isEnabled(); }));
    apoyo::Pulsa(Una("inicio_tutorial"));
    EXPECT_TRUE(Control<QWidget>(escritorio.Principal(), "Ayuda").isVisible());
    EXPECT_FALSE(Hoja().isVisible());
}

TEST_F(InicioEnPantalla, UnProyectoDeLaListaSeAbreYElQueNoEstaQuedaGris)
{
    PonReciente(instalacion.Quelmar(), "Río <b>Quelmar</b> & Co");
    Arranca();
    LlegaADecir("inicio_reciente_1",
                "Quelmar|01/02/2026 03:04 · Río <b>Quelmar</b> & Co · " + instalacion.Proyectos());
    EXPECT_TRUE(Una("inicio_reciente_1").isEnabled());
    apoyo::Pulsa(Una("inicio_reciente_1"));
    EXPECT_EQ(Rotulo("lblProyecto"), "Quelmar");
    // The list takes the basin as the project tells it, and the date of now.
    EXPECT_TRUE(Espera([&] { return Dice("inicio_reciente_1").find("03:04") == std::string::npos; }))
        << Dice("inicio_reciente_1");
    EXPECT_FALSE(SeVe("inicio_reciente_2"));
}

TEST_F(InicioEnPantalla, ElQueNoEstaNoSePuedePulsar)
{
    PonReciente("/no/hay/<i>Otro_Conf.vlm", "Otra");
    Arranca();
    LlegaADecir("inicio_reciente_1", "<i>Otro|No está en /no/hay");
    EXPECT_FALSE(Una("inicio_reciente_1").isEnabled());
    apoyo::Pulsa(Una("inicio_reciente_1"));
    EXPECT_EQ(Rotulo("lblProyecto"), "");
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

// It has gone while the sheet was on show: the project in hand stays.
TEST_F(InicioEnPantalla, ElQueSeFueMientrasTantoQuedaGrisAlPulsarlo)
{
    const std::string otro = instalacion.Dir() + "/Otro_Conf.vlm";
    escritorio.s.Disco.Escribe(otro, "");
    PonReciente(otro, "Otra");
    Arranca(instalacion.Quelmar());
    ASSERT_TRUE(Espera([&] { return SeVe("inicio_reciente_2"); }));
    EXPECT_TRUE(Una("inicio_reciente_2").isEnabled());
    escritorio.s.Disco.Borra(otro);
    const std::size_t cajas = anfitrion->Avisos().size();  // of a project that has moved
    apoyo::Pulsa(Una("inicio_reciente_2"));
    EXPECT_TRUE(Espera([&] { return !Una("inicio_reciente_2").isEnabled(); }));
    EXPECT_EQ(Rotulo("lblProyecto"), "Quelmar");
    EXPECT_EQ(anfitrion->Avisos().size(), cajas);
}

}  // namespace
}  // namespace shell
