// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "engine/modProceso0.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Componentes.h"
#include "model/TablasEmbalse.h"

// From a project with faults to a mended one, by the windows of the menu alone.
namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

struct RevisarEnElEscritorio : EscritorioDePrueba {
    /// Opens the sample project with a storm, and with what `dana` does to its network saved in its files.
    void ArrancaCon(const std::function<void(model::Siro&)>& dana)
    {
        Arranca(instalacion.Quelmar());
        model::Siro& s = escritorio.s;
        s.Tormenta.PpTormenta = 80;
        s.Tormenta.DurTormenta = 120;
        engine::CargaProyecto(s);
        dana(s);
        ASSERT_TRUE(model::GuardaRed(s));
        Accion("mnuRevisar").trigger();
        anfitrion->sucesos.clear();
    }
    QWidget& Ventana() { return Control<QWidget>(escritorio.Principal(), "dlgRevisar"); }
    forms::TablaCuadro& Tabla() { return Control<forms::TablaCuadro>(Ventana(), "tblHallazgos"); }
    /// Row of a rule's finding, -1: none.
    int Fila(const char* numero)
    {
        for (int fila = 0; fila < Tabla().model()->rowCount(); ++fila)
            if (DeQ(Tabla().model()->index(fila, 1).data().toString()) == numero) return fila;
        return -1;
    }
    void PulsaFila(int fila)
    {
        Tabla().scrollTo(Tabla().model()->index(fila, 0));
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, {},
                          Tabla().visualRect(Tabla().model()->index(fila, 3)).center());
    }
    std::string Archivo(const char* sufijo)
    {
        return apoyo::BytesDeArchivo(instalacion.Proyectos() + "/Quelmar" + sufijo);
    }
};

TEST_F(RevisarEnElEscritorio, LaMuestraNoTieneNadaQueDecirYSigueALaTormenta)
{
    ArrancaCon([](model::Siro&) {});
    EXPECT_TRUE(Ventana().isVisible());
    EXPECT_EQ(DeQ(Control<QLabel>(Ventana(), "lblCuenta").text()), "Sin hallazgos");
    escritorio.s.Tormenta.DurTormenta = 0;
    EXPECT_TRUE(Espera([&] { return Fila("206") >= 0; }));
}

// The mend stands in the drawing as work that isn't saved; what is on the disk is as it was, and undo in the
// editor takes it back.
TEST_F(RevisarEnElEscritorio, CorregirAbreElEditorConElArregloSinGuardarYSeDeshace)
{
    ArrancaCon([](model::Siro& s) { s.Red.ColUEHs.Item(2).Cauce_aa = "c-Otro"; });
    ASSERT_GE(Fila("217"), 0);
    const std::string antes = Archivo("_UEHs.vlm");
    PulsaFila(Fila("217"));
    Pulsa(Control<QPushButton>(Ventana(), "cmdCorregir"));
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Item(2).Cauce_aa, "0");
    EXPECT_EQ(Archivo("_UEHs.vlm"), antes);
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_TRUE(Editor()->windowTitle().contains(QLatin1String("[*]")));
    EXPECT_TRUE(escritorio.Principal().isVisible());
    EXPECT_TRUE(Espera([&] { return Fila("217") < 0; }));
    EXPECT_NE(DeQ(Control<QLabel>(Ventana(), "lblDe").text()).find("no se han guardado"), std::string::npos);

    // Windows that come and go ask for the keyboard late: the list has it in the end.
    QTest::qWait(300);
    EXPECT_EQ(QApplication::activeWindow(), &escritorio.Principal());
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    Editor()->findChild<QAction*>(QStringLiteral("Deshace"))->trigger();
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Item(2).Cauce_aa, "c-Otro");
    EXPECT_EQ(Archivo("_UEHs.vlm"), antes);
}

TEST_F(RevisarEnElEscritorio, UnaTablaSeAbreEnOrdenYCancelarLaDejaComoEstaba)
{
    ArrancaCon([](model::Siro& s) {
        for (auto* tabla : {&s.Red.RepresaH, &s.Red.RepresaA})
            std::swap((*tabla)(1, 2), (*tabla)(1, 3));
        std::swap(s.Red.RepresaS(1, 2), s.Red.RepresaS(1, 3));
        ASSERT_TRUE(model::GuardaTablaHSVRepresa(s));
    });
    ASSERT_GE(Fila("221"), 0);
    const std::string antes = Archivo("_RHAS.vlm");
    PulsaFila(Fila("221"));
    std::vector<std::string> formas;
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& forma) {
        formas.push_back(DeQ(forma.objectName()));
        EXPECT_TRUE(forma.isWindowModified() || forma.windowTitle().contains(QLatin1String("[*]")));
        static_cast<QDialog&>(forma).done(QDialog::Rejected);
    });
    Pulsa(Control<QPushButton>(Ventana(), "cmdCorregir"));
    EXPECT_EQ(formas, std::vector<std::string>{"dlgTablaSHV"});
    EXPECT_EQ(Archivo("_RHAS.vlm"), antes);
}

TEST_F(RevisarEnElEscritorio, IntroAbreLaFichaDelComponente)
{
    ArrancaCon([](model::Siro& s) { s.Red.ColUEHs.Item(1).VelMedia = 9; });
    ASSERT_GE(Fila("241"), 0);
    PulsaFila(Fila("241"));
    std::string nombre;
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& forma) {
        nombre = DeQ(forma.objectName());
        EXPECT_EQ(escritorio.s.Seleccion.UEHSel, 1);
        static_cast<QDialog&>(forma).reject();
    });
    QTest::keyClick(&Tabla(), Qt::Key_Return);
    EXPECT_EQ(nombre, "dlgUEH2");
}

TEST_F(RevisarEnElEscritorio, VerificarNoPideProyecto)
{
    Arranca();
    Accion("mnuVerificar").trigger();
    EXPECT_TRUE(Control<QWidget>(escritorio.Principal(), "dlgVerificar").isVisible());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

}  // namespace
}  // namespace shell
