// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <functional>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/Clases.h"

// From a list to the component that a row is about.
namespace shell {
namespace {

using apoyo::Control;
using forms::DeQ;

struct VeAComponente : EscritorioDePrueba {
    /// Goes there; what opened, and what `hace` did with it before it was cancelled.
    void Va(const std::string& componente)
    {
        apoyo::Usuario usuario;
        usuario.Hace([this](QWidget& forma) {
            formas.push_back(DeQ(forma.objectName()));
            seVe = Editor()->isVisible();
            principal = escritorio.Principal().isVisible();
            if (hace) hace(forma);
            static_cast<QDialog&>(forma).reject();
        });
        escritorio.entorno.Atiende([&] { escritorio.Estudio().VeAComponente(componente); });
    }
    std::string Primera() { return escritorio.s.Red.ColUEHs.Item(1).NombreUEH; }

    std::vector<std::string> formas{};
    bool seVe = false, principal = true;
    std::function<void(QWidget&)> hace{};
};

TEST_F(VeAComponente, ConElEditorCerradoLoAbreYMuestraLaFormaDelComponente)
{
    Arranca(instalacion.Quelmar());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    Accion("mnuCorre1").trigger();
    const std::string represa = escritorio.s.Red.ColRepresas.Item(1).NombreRepresa;
    hace = [&](QWidget& forma) {
        EXPECT_EQ(DeQ(Control<QLineEdit>(forma, "txtNombreRepresa").text()), represa);
    };
    Va(represa);
    EXPECT_EQ(formas, std::vector<std::string>{"dlgRepresas"});
    EXPECT_TRUE(seVe);
    EXPECT_FALSE(principal);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_GT(escritorio.s.Red.NroUEHs(), 0);
    EXPECT_EQ(Editor()->windowTitle().contains(QLatin1Char('*')), false);
}

TEST_F(VeAComponente, ConElEditorAbiertoYSinGuardarNadaSePierdeNiSePregunta)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    escritorio.s.Red.ColUEHs.Item(1).Area = 4321;
    const int antes = escritorio.s.Red.NroCauces();
    anfitrion->sucesos.clear();
    Va(Primera());
    Va(escritorio.s.Red.ColCauces.Item(1).NombreCauce);
    EXPECT_EQ(formas, (std::vector<std::string>{"dlgUEH2", "dlgCauceEditProp"}));
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Item(1).Area, 4321);
    EXPECT_EQ(escritorio.s.Red.NroCauces(), antes);
    EXPECT_EQ(anfitrion->sucesos.size(), 0U);
    EXPECT_FALSE(escritorio.Principal().isVisible());
}

TEST_F(VeAComponente, SinNombreAbreLaConfiguracion)
{
    Arranca(instalacion.Quelmar());
    apoyo::Usuario usuario;
    usuario.Hace([this](QWidget& forma) {
        formas.push_back(DeQ(forma.objectName()));
        static_cast<QDialog&>(forma).reject();
    });
    escritorio.entorno.Atiende([&] { escritorio.Estudio().VeAComponente({}); });
    EXPECT_EQ(formas, std::vector<std::string>{"frmConfigura"});
    EXPECT_FALSE(Editor()->isVisible());
}

TEST_F(VeAComponente, LoQueYaNoEstaSeDice)
{
    Arranca(instalacion.Quelmar());
    escritorio.entorno.Atiende([&] { escritorio.Estudio().VeAComponente("u-Otra"); });
    ASSERT_FALSE(anfitrion->Avisos().empty());
    EXPECT_EQ(anfitrion->Avisos().back().texto, "El componente u-Otra no está en la red del proyecto");
}

TEST_F(VeAComponente, SinProyectoSeDiceYElEditorNoSeAbre)
{
    Arranca();
    escritorio.entorno.Atiende([&] { escritorio.Estudio().VeAComponente("u-1"); });
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].titulo, TituloSinProyecto);
    EXPECT_FALSE(Editor()->isVisible());
}

}  // namespace
}  // namespace shell
