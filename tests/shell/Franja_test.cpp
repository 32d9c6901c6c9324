// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the windows of results say once the state in memory has gone on, and how they catch up.

#include <QLabel>
#include <QPushButton>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "checks/Franja_ventana.h"

namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using forms::DeQ;

class LaFranja : public EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        escritorio.s.Tormenta.PpTormenta = 60;
        escritorio.s.Tormenta.DurTormenta = 60;
        escritorio.s.Tormenta.RecTormenta = 0;
    }
    /// An event after which the state is another one.
    void Cambia(const std::function<void(model::Siro&)>& cambio)
    {
        escritorio.entorno.Atiende([&] { cambio(escritorio.s); });
    }
    static bool SeVe(QWidget& ventana) { return Control<QFrame>(ventana, "Franja").isVisible(); }
    static std::string Texto(QWidget& ventana) { return DeQ(Control<QLabel>(ventana, "lblFranja").text()); }
    QWidget& Ventana(const char* nombre)
    {
        return *escritorio.Principal().findChild<QWidget*>(QLatin1String(nombre));
    }
};

TEST_F(LaFranja, DiceQueTormentaEraYDesapareceCuandoVuelve)
{
    Accion("mnuCorre1").trigger();
    QWidget& grafico = Ventana("dlgChart2");
    EXPECT_FALSE(SeVe(grafico));
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 80; });
    ASSERT_TRUE(Espera([&] { return SeVe(grafico); }));
    EXPECT_TRUE(Texto(grafico).starts_with(
        "De una corrida anterior: la lluvia era otra (Tormenta: P 60 mm, D 60 min"))
        << Texto(grafico);
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 60; });
    EXPECT_TRUE(Espera([&] { return !SeVe(grafico); }));
}

TEST_F(LaFranja, UnHidrogramaAbiertoConLaCorridaAnteriorLoDiceYSeActualiza)
{
    Accion("mnuCorre1").trigger();
    QWidget& grafico = Ventana("dlgChart2");
    const forms::Grafico antes = escritorio.hidrograma.Grafico;
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 90; });
    Accion("mnuCorre1").trigger();  // which leaves an open chart as it is
    EXPECT_EQ(escritorio.hidrograma.Grafico, antes);
    ASSERT_TRUE(Espera([&] { return SeVe(grafico); }));
    apoyo::Pulsa(Control<QPushButton>(grafico, "cmdFranja"));
    EXPECT_TRUE(Espera([&] { return !SeVe(grafico); }));
    EXPECT_NE(escritorio.hidrograma.Grafico, antes);
}

TEST_F(LaFranja, SuTeclaCorreLoQueEstaEnMemoriaSiNoSeHaCorrido)
{
    Accion("mnuCorre1").trigger();
    QWidget& grafico = Ventana("dlgChart2");
    const float antes = escritorio.s.Resultados.QMax(1, 1);
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 90; });
    ASSERT_TRUE(Espera([&] { return SeVe(grafico); }));
    EXPECT_EQ(escritorio.s.Resultados.QMax(1, 1), antes);
    apoyo::Pulsa(Control<QPushButton>(grafico, "cmdFranja"));
    EXPECT_GT(escritorio.s.Resultados.QMax(1, 1), antes);
    EXPECT_TRUE(Espera([&] { return !SeVe(grafico); }));
}

TEST_F(LaFranja, UnaRedEditadaSeDice)
{
    Accion("mnuCorre1").trigger();
    QWidget& grafico = Ventana("dlgChart2");
    Cambia([](model::Siro& s) { s.Red.ColUEHs.Item(1).Area += 1; });
    ASSERT_TRUE(Espera([&] { return SeVe(grafico); }));
    EXPECT_EQ(Texto(grafico), "De una corrida anterior: la red ha cambiado");
}

TEST_F(LaFranja, DelHietogramaImportaLaTormentaYNoLaRed)
{
    Accion("mnuCorre1").trigger();
    Accion("mnuGráficoPp").trigger();
    QWidget& grafico = Ventana("dlgChart1");
    Cambia([](model::Siro& s) { s.Red.ColUEHs.Item(1).Area += 1; });
    Cambia([](model::Siro& s) { s.Tormenta.DurTormenta = 120; });
    ASSERT_TRUE(Espera([&] { return SeVe(grafico); }));
    EXPECT_EQ(Texto(grafico).find("red"), std::string::npos);
    apoyo::Pulsa(Control<QPushButton>(grafico, "cmdFranja"));
    EXPECT_TRUE(Espera([&] { return !SeVe(grafico); }));
}

TEST_F(LaFranja, LaPizarraEsDeLaCorridaQueLaEscribio)
{
    Accion("mnuPizarra1").trigger();
    Accion("mnuCorre1").trigger();
    QWidget& pizarra = Ventana("frmPp");
    EXPECT_FALSE(SeVe(pizarra));
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 90; });
    ASSERT_TRUE(Espera([&] { return SeVe(pizarra); }));
    Cambia([](model::Siro& s) { s.Anfitrion.AgregaPizarra("\r\nlo que sigue"); });
    QTest::qWait(100);
    EXPECT_TRUE(SeVe(pizarra));
    Cambia([](model::Siro& s) { s.Anfitrion.PonPizarra("otra cosa"); });
    EXPECT_TRUE(Espera([&] { return !SeVe(pizarra); }));
}

TEST_F(LaFranja, ElAbacoDiceQueLaTormentaEnManoNoEsUnaSerie)
{
    Accion("mnuCorre1").trigger();
    Cambia([](model::Siro& s) {
        s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        s.Serie.NroSeriePDR = 2;
        s.Serie.SerieP.Dimensiona(2);
        s.Serie.SerieD.Dimensiona(2);
        s.Serie.SerieR.Dimensiona(2);
        for (int k = 1; k <= 2; ++k) {
            s.Serie.SerieP(k) = static_cast<float>(30 * k);
            s.Serie.SerieD(k) = 60;
            s.Serie.SerieR(k) = 10;
        }
    });
    escritorio.s.Anfitrion.Confirma = [](const model::Mensaje&) { return true; };
    Accion("mnuCorre2").trigger();
    QWidget& abaco = Ventana("dlgChart3");
    EXPECT_FALSE(SeVe(abaco));
    // It opens before the series has come to its end.
    QWidget& tabla = Ventana("dlgTablaSalePDR");
    QTest::qWait(100);
    EXPECT_TRUE(tabla.isVisible());
    EXPECT_FALSE(SeVe(tabla));
    Cambia([](model::Siro& s) { s.Tormenta.FormaPp = model::FormaLluvia::Escrita; });
    ASSERT_TRUE(Espera([&] { return SeVe(abaco); }));
    EXPECT_TRUE(Texto(abaco).find("Serie de 2 tormentas") != std::string::npos) << Texto(abaco);
    EXPECT_FALSE(Control<QPushButton>(abaco, "cmdFranja").isEnabled());
    EXPECT_EQ(DeQ(Control<QPushButton>(abaco, "cmdFranja").toolTip()), "La tormenta en mano no es una serie");
}

TEST_F(LaFranja, LaLineaDeEstadoDiceLaTormentaYCuentaLosAvisos)
{
    const auto tormenta = [&] {
        return DeQ(escritorio.Principal()
                       .findChild<QLabel*>(QStringLiteral("lblTormentaEnMano"))
                       ->accessibleDescription());
    };
    Cambia([](model::Siro& s) { s.Tormenta.PpTormenta = 75; });
    ASSERT_TRUE(Espera([&] { return tormenta().starts_with("Tormenta: P 75 mm, D 60 min"); })) << tormenta();
    EXPECT_TRUE(tormenta().ends_with("sin corrida"));
    Accion("mnuCorre1").trigger();
    ASSERT_TRUE(Espera([&] { return !escritorio.Estudio().Juicio().EnCurso(); }));
    ASSERT_NE(escritorio.Estudio().Juicio().Ultima(), nullptr);
    EXPECT_TRUE(Espera([&] { return tormenta().find("última corrida") != std::string::npos; }));
    EXPECT_EQ(escritorio.Estudio().Juicio().Ultima()->huella.size(), 64U);
}

}  // namespace
}  // namespace shell
