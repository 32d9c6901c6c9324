// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas_ventana.h"

#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace empirical {
namespace {

using apoyo::Control;
using apoyo::Escribe;
using apoyo::Pulsa;
using forms::DeQ;

struct VentanaEmpiricas : testing::Test {
    VentanaEmpiricas()
    {
        ventana.Abre();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QLineEdit& Campo(const char* nombre) { return Control<QLineEdit>(ventana, nombre); }
    std::string Texto(const char* campo) { return DeQ(Campo(campo).text()); }
    std::string Rotulo(const char* nombre) { return DeQ(Control<QLabel>(ventana, nombre).text()); }

    apoyo::Mundo mundo{};
    dlgEmpiricas f{};
    dlgEmpiricas_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaEmpiricas, AbreConSusValoresYSinResultados)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(DeQ(ventana.windowTitle()), TituloDlgEmpiricas);
    EXPECT_EQ(Texto("txtSup"), "1");
    EXPECT_EQ(Texto("txtLcauceP"), "1");
    EXPECT_EQ(Texto("txtcauceH"), "100");
    EXPECT_EQ(Texto("txtPendiCP"), "1");
    EXPECT_EQ(Rotulo("lblSup"), "1");
    for (const FormulaQp& formula : FormulasQp())
        EXPECT_EQ(Texto(formula.control.data()), "");
    for (const FormulaTc& formula : FormulasTc())
        EXPECT_EQ(Rotulo(formula.control.data()), "");
}

TEST_F(VentanaEmpiricas, CadaTeclaCalcula)
{
    Escribe(Campo("txtSup"), "16");
    // Emptied, the field holds 1, and the digits come behind it.
    EXPECT_EQ(Texto("txtSup"), "116");
    Campo("txtSup").selectAll();
    apoyo::Teclea(Campo("txtSup"), "64");
    EXPECT_EQ(Texto("txtSup"), "64");
    EXPECT_EQ(Rotulo("lblSup"), "64");
    EXPECT_EQ(Texto("txtQpSanti100"), "264");     // 33 * 8
    EXPECT_EQ(Texto("txtQpDickens"), "156.13");   // 6.9 * 22.627417
    EXPECT_EQ(Texto("txtQCreager"), "0");         // beyond 32 bits
    EXPECT_EQ(Rotulo("lblTcVentura"), "610.56");  // 7.632 * 80
}

TEST_F(VentanaEmpiricas, LoQueNoCabeSeCorrigeEnElCampo)
{
    Campo("txtSup").selectAll();
    apoyo::Teclea(Campo("txtSup"), "20000");
    EXPECT_EQ(Texto("txtSup"), "10000");
    Campo("txtSup").selectAll();
    apoyo::Teclea(Campo("txtSup"), "x");
    EXPECT_EQ(Texto("txtSup"), "1");
    Campo("txtPendiCP").selectAll();
    apoyo::Teclea(Campo("txtPendiCP"), "150");
    EXPECT_EQ(Texto("txtPendiCP"), "100");
    Campo("txtPendiCP").selectAll();
    apoyo::Teclea(Campo("txtPendiCP"), "0");
    EXPECT_EQ(Rotulo("lblTcSCSUS"), "");
}

TEST_F(VentanaEmpiricas, AlSalirDeUnCampoSeCalcula)
{
    Campo("txtSup").setFocus();
    QTest::keyClick(&Campo("txtSup"), Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([&] { return Texto("txtQpGutmann") == "29.2"; }));
    EXPECT_EQ(Texto("txtQCreager"), "16.5");
    EXPECT_EQ(Texto("txtQpPagliaro"), "");
    EXPECT_TRUE(Campo("txtLcauceP").hasFocus());
}

TEST_F(VentanaEmpiricas, LasAyudasYLeyendasEstanALaLetra)
{
    EXPECT_EQ(DeQ(Campo("txtQpFanning").toolTip()),
              "Qp =  2.5 S^5,6   ; S= Superficie [Km2]  ; Coeficiente C= 30");
    const QLabel& rotulo = Control<QLabel>(ventana, "leyenda_txtQpKuicklingO");
    EXPECT_EQ(DeQ(rotulo.text()), "Kuickling, Ordinarias");
    EXPECT_EQ(DeQ(rotulo.toolTip()), "Qp = 21 * S^0,6  ; S= Superficie [Km2]  ; Coeficiente C= 30");
    for (const FormulaQp& formula : FormulasQp())
        EXPECT_EQ(DeQ(Campo(formula.control.data()).toolTip()), formula.ayuda);
    for (const FormulaTc& formula : FormulasTc())
        EXPECT_EQ(DeQ(Control<QLabel>(ventana, formula.control.data()).toolTip()), formula.ayuda);
    EXPECT_EQ(DeQ(Control<QGroupBox>(ventana, "marcoDatosQp").title()), MarcoDatosQp);
    EXPECT_EQ(DeQ(Control<QGroupBox>(ventana, "marcoQp").title()), MarcoQp);
    EXPECT_EQ(DeQ(Control<QGroupBox>(ventana, "marcoDatosTc").title()), MarcoDatosTc);
    EXPECT_EQ(DeQ(Control<QGroupBox>(ventana, "marcoTc").title()), MarcoTc);
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "btnCerrar").text()), "&Cerrar");
}

TEST_F(VentanaEmpiricas, LasFormulasSeDibujanConSusExponentes)
{
    EXPECT_EQ(DeQ(Dibuja("0.55 · 30 · S^{S − 0.05}")), "0.55 · 30 · <i>S</i><sup><i>S</i> − 0.05</sup>");
    EXPECT_EQ(DeQ(Dibuja("60 · (0.87 · L^{3} / H)^{0.385}")),
              "60 · (0.87 · <i>L</i><sup>3</sup> / <i>H</i>)<sup>0.385</sup>");
    EXPECT_EQ(DeQ(Dibuja("S < 1 & i")), "<i>S</i> &lt; 1 &amp; <i>i</i>");
    EXPECT_EQ(DeQ(Dibuja("")), "");
    for (const FormulaQp& formula : FormulasQp()) {
        const QString nombre = QStringLiteral("formula_") + forms::Q(formula.control);
        const auto* const dibujo = ventana.findChild<QLabel*>(nombre);
        ASSERT_NE(dibujo, nullptr) << formula.control;
        EXPECT_EQ(dibujo->text(), Dibuja(formula.expresion));
        EXPECT_FALSE(dibujo->text().contains(QLatin1Char('^')));
    }
}

TEST_F(VentanaEmpiricas, CopiaTodoDeUnaVez)
{
    Campo("txtSup").selectAll();
    apoyo::Teclea(Campo("txtSup"), "64");
    Pulsa(Control<QPushButton>(ventana, "cmdCopiar"));
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), ComoTexto(f));
    EXPECT_NE(ComoTexto(f).find("Dickens\t156.13\r\n"), std::string::npos);
}

TEST_F(VentanaEmpiricas, ElOrdenDelTecladoVaDeLosDatosALosResultadosYALosBotones)
{
    Campo("txtSup").setFocus();
    std::vector<std::string> orden;
    for (int i = 0; i < 25; ++i) {
        orden.push_back(DeQ(QApplication::focusWidget()->objectName()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    std::vector<std::string> esperado = {"txtSup", "txtLcauceP", "txtcauceH", "txtPendiCP"};
    for (const FormulaQp& formula : FormulasQp())
        esperado.emplace_back(formula.control);
    esperado.insert(esperado.end(), {"cmdCopiar", "btnCerrar", "txtSup"});
    EXPECT_EQ(orden, esperado);
}

TEST_F(VentanaEmpiricas, SeCierraYAlReabrirTieneSusPrimerosValores)
{
    Campo("txtSup").selectAll();
    apoyo::Teclea(Campo("txtSup"), "64");
    Pulsa(Control<QPushButton>(ventana, "btnCerrar"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_FALSE(f.abierta);
    ventana.Abre();
    EXPECT_EQ(Texto("txtSup"), "1");
    EXPECT_EQ(Texto("txtQpDickens"), "");
}

}  // namespace
}  // namespace empirical
