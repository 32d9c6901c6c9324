// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas_ventana.h"

#include <QClipboard>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "apoyo/Ventanas.h"
#include "empirical/FormulaDibujada_ventana.h"
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

TEST_F(VentanaEmpiricas, CadaResultadoTieneSuFormulaEnteraAlLado)
{
    const auto revisa = [&](std::string_view control, std::string_view expresion) {
        const QString nombre = QStringLiteral("formula_") + forms::Q(control);
        const auto* const dibujo = ventana.findChild<FormulaDibujada*>(nombre);
        ASSERT_NE(dibujo, nullptr) << control;
        EXPECT_EQ(DeQ(dibujo->accessibleName()), expresion);
        EXPECT_GE(dibujo->width(), dibujo->sizeHint().width()) << control;
        EXPECT_GE(dibujo->height(), dibujo->sizeHint().height()) << control;
    };
    for (const FormulaQp& formula : FormulasQp())
        revisa(formula.control, formula.expresion);
    for (const FormulaTc& formula : FormulasTc())
        revisa(formula.control, formula.expresion);
}

TEST(FormulaDibujada, SusTrazosQuedanDentroYUnExponenteLosEleva)
{
    const auto filasConTinta = [](const char* expresion) {
        FormulaDibujada formula(expresion);
        formula.resize(formula.sizeHint() + QSize(0, 12));
        QImage imagen(formula.size(), QImage::Format_ARGB32);
        imagen.fill(Qt::transparent);
        formula.render(&imagen, {}, {}, {});
        std::vector<int> filas;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y).alpha() > 0) {
                    filas.push_back(y);
                    break;
                }
        return filas;
    };
    const std::vector<int> llana = filasConTinta("1");
    const std::vector<int> elevada = filasConTinta("1^{1}");
    ASSERT_FALSE(llana.empty());
    ASSERT_FALSE(elevada.empty());
    EXPECT_LT(elevada.front(), llana.front());
    EXPECT_EQ(elevada.back(), llana.back());
    EXPECT_GE(elevada.front(), 6);  // half of what is more than the formula needs
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
