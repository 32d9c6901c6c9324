// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteParametros.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "calibration/taller/TallerDeAjuste.h"
#include "runs/Campos.h"

namespace calibration {
namespace {

using study::Parametro;

struct ParametrosDeAjuste : pruebas::TallerDeAjuste {
    ParametrosDeAjuste() { calibration::Toma(m, f); }
    [[nodiscard]] const std::vector<Parametro>& Todos() const { return AjusteDe(f).parametros; }
    [[nodiscard]] const Parametro* De(std::string_view campo) const
    {
        const auto p = std::find_if(Todos().begin(), Todos().end(),
                                    [&](const Parametro& x) { return x.campo == campo; });
        return p == Todos().end() ? nullptr : &*p;
    }
    void Retoma() { calibration::Toma(m, f); }

    AjusteParametros m = NuevaAjusteParametros();
};

// Two units: a 1 and 2, b 0.6 in both, Z 5 and 0, velocity 0.2 in both, base flow in the first alone.
TEST_F(ParametrosDeAjuste, SeProponeLoQueLaRedTieneYNuncaLargoYVelocidadALaVez)
{
    EXPECT_NE(m.lblAvisos.find("Proponer"), std::string::npos);
    cmdProponer(m, f);
    ASSERT_EQ(Todos().size(), 6U);
    EXPECT_EQ(De("longitud_max"), nullptr);
    EXPECT_EQ(De("kostiakov_a")->modo, "factor");
    EXPECT_EQ(De("kostiakov_a")->minimo, 0.5);
    EXPECT_EQ(De("kostiakov_a")->maximo, 2);
    EXPECT_TRUE(De("kostiakov_a")->logaritmica);
    EXPECT_EQ(De("kostiakov_b")->modo, "valor");
    EXPECT_EQ(De("kostiakov_b")->minimo, 0.4);
    EXPECT_EQ(De("kostiakov_b")->maximo, 0.9);
    EXPECT_EQ(De("retencion_z")->modo, "suma") << "a factor would leave the 0 of the second unit as it is";
    EXPECT_EQ(De("retencion_z")->minimo, 0) << "no Z falls below 0";
    EXPECT_EQ(De("velocidad_media")->modo, "valor");
    EXPECT_EQ(De("q0_recesion")->modo, "factor");
    EXPECT_EQ(m.lblAvisos, "6 parámetros participan; nada que observar.");
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Proponer parámetros");
    cmdProponer(m, f);
    EXPECT_EQ(Todos().size(), 6U);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    cmdDeshacer(f);
    Retoma();
    EXPECT_TRUE(Todos().empty());
}

TEST_F(ParametrosDeAjuste, SinCaudalBaseNoSeProponeLaRecesion)
{
    PonRed([](model::Red& red) { red.ColUEHs.Ranura(1).Q0Recesion = red.ColUEHs.Ranura(1).KRecesion = 0; });
    Retoma();
    cmdProponer(m, f);
    EXPECT_EQ(De("q0_recesion"), nullptr);
    EXPECT_EQ(De("k_recesion"), nullptr);
    EXPECT_EQ(Todos().size(), 4U);
}

TEST_F(ParametrosDeAjuste, SeAgregaSeDuplicaSeMueveYSeQuitaPasoAPaso)
{
    cmdAgregar(m, f);
    cmdAgregar(m, f);
    ASSERT_EQ(Todos().size(), 2U);
    EXPECT_NE(Todos()[0].campo, Todos()[1].campo);
    EXPECT_EQ(m.enMano, 1);
    const std::vector<Parametro> antes = Todos();
    cmdMover(m, f, -1);
    EXPECT_EQ(m.enMano, 0);
    EXPECT_EQ(Todos()[0], antes[1]);
    cmdMover(m, f, -1);
    EXPECT_EQ(Todos()[0], antes[1]) << "the first one goes no higher";
    cmdDuplicar(m, f);
    EXPECT_EQ(Todos().size(), 3U);
    EXPECT_NE(m.lblAvisos.find("•"), std::string::npos) << "the same field twice is told";
    cmdQuitar(m, f);
    cmdDeshacer(f);
    cmdDeshacer(f);
    cmdDeshacer(f);
    EXPECT_EQ(Todos(), antes);
}

TEST_F(ParametrosDeAjuste, OtroCampoUOtroModoTraenSuRangoYUnNumeroMaloSeRechaza)
{
    cmdAgregar(m, f);
    Retoma();
    const auto cual = std::find(m.losCampos.begin(), m.losCampos.end(), runs::CampoDe("kostiakov_b", 'u'));
    cmbCampo_Click(m, f, static_cast<int>(cual - m.losCampos.begin()));
    Retoma();
    EXPECT_EQ(Todos()[0].campo, "kostiakov_b");
    EXPECT_EQ(m.lblActual, "2 componentes, 0.6");
    cmbModo_Click(m, f, 1);
    Retoma();
    EXPECT_EQ(Todos()[0].modo, "factor");
    EXPECT_EQ(Todos()[0].maximo, 1.5);
    PonRed([](model::Red& red) { red.ColUEHs.Ranura(2).KostiakovB = 0.9F; });
    cmbModo_Click(m, f, 0);
    cmbModo_Click(m, f, 1);
    EXPECT_EQ(Todos()[0].maximo, 1.11) << "1 / 0.9, rounded down: the editor admits no b above 1";
    m.txtMaximo = "1,5";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, "txtMaximo"));
    EXPECT_EQ(Todos()[0].maximo, 1.5);
    m.txtMaximo = "mucho";
    EXPECT_FALSE(txtNumero_AlSalir(m, f, "txtMaximo"));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    m.txtCentro = "";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, "txtCentro"));
    m.txtComponentes = "r-nadie";
    EXPECT_TRUE(txtComponentes_AlSalir(m, f));
    EXPECT_EQ(Todos()[0].componentes, "r-nadie");
    EXPECT_NE(runs::CampoDe(Todos()[0].campo, 'r'), nullptr) << "a field that a dam has";
    EXPECT_NE(m.lblAvisos.find("r-nadie"), std::string::npos);
}

TEST_F(ParametrosDeAjuste, LosValoresDeUnaDiscretaSeEscribenConSusPesos)
{
    cmdAgregar(m, f);
    const auto& todas = m.distribuciones;
    const auto d = std::find_if(todas.begin(), todas.end(), [](const std::string& n) {
        return n.starts_with("D") || n.starts_with("d");
    });
    ASSERT_NE(d, todas.end());
    cmbDistribucion_Click(m, f, static_cast<int>(d - todas.begin()));
    Retoma();
    EXPECT_TRUE(m.conValores);
    EXPECT_EQ(Todos()[0].valores.size(), 2U);
    m.txtValores = "0,6:3; 1";
    EXPECT_TRUE(txtValores_AlSalir(m, f));
    EXPECT_EQ(Todos()[0].valores, (std::vector<study::ValorPosible>{{0.6, 3}, {1, 1}}));
    m.txtValores = "uno";
    EXPECT_FALSE(txtValores_AlSalir(m, f));
    EXPECT_EQ(Todos()[0].valores.size(), 2U);
}

// What the table's own copy leaves in the clipboard comes back as the same parameters.
TEST_F(ParametrosDeAjuste, LoQueSeCopiaSePega)
{
    cmdProponer(m, f);
    Cambia(f, "Varias", [](study::Ajuste& a) {
        a.parametros[0].activo = false;
        a.parametros[1].distribucion = "triangular";
        a.parametros[1].centro = 0.5;
    });
    const std::vector<Parametro> antes = Todos();
    const std::string bloque = forms::ComoTexto(PlanillaDeParametros(f));
    Cambia(f, "Vaciar", [](study::Ajuste& a) { a.parametros.clear(); });
    cmdPegar(m, f, bloque);
    EXPECT_EQ(Todos(), antes);
    cmdPegar(m, f, "u-*\tno hay\tValor\t1\t2\n");
    EXPECT_EQ(Todos(), antes);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_NE(anfitrion->Avisos()[0].texto.find("renglón 1"), std::string::npos);
    cmdPegar(m, f, "u-*\tkostiakov_a\tfactor\t0,25\t4\tsí\tlog\n");
    EXPECT_EQ(Todos().size(), antes.size() + 1);
    EXPECT_EQ(Todos().back().minimo, 0.25);
    EXPECT_TRUE(Todos().back().logaritmica);
}

// A uniform one is the same in each part; a triangular one, by its area, has its mode's part highest.
TEST_F(ParametrosDeAjuste, ElGraficoReparteLaProbabilidad)
{
    Cambia(f, "Uno", [](study::Ajuste& a) {
        a.parametros = {{.campo = "kostiakov_a", .modo = "factor", .minimo = 0, .maximo = 4}};
    });
    Retoma();
    ASSERT_EQ(m.Grafico.series.size(), 1U);
    for (const double parte : m.Grafico.series[0].celdas)
        EXPECT_NEAR(parte, 2.5, 0.026);
    Cambia(f, "Triangular", [](study::Ajuste& a) {
        a.parametros[0].distribucion = "triangular";
        a.parametros[0].centro = 1;
    });
    Retoma();
    const std::vector<double>& x = m.Grafico.series[0].celdas;
    EXPECT_EQ(std::max_element(x.begin(), x.end()) - x.begin(), 10);
    // Area left of the mode: 1/4 of it all.
    double izquierda = 0;
    for (std::size_t i = 0; i < 10; ++i)
        izquierda += x[i];
    EXPECT_NEAR(izquierda, 25, 0.05);
}

}  // namespace
}  // namespace calibration
