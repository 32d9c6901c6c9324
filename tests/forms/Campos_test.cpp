// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "apoyo/Ventanas.h"
#include "forms/Campos_ventana.h"
#include "forms/Formulario_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

/// Two fields that take whole numbers up to 99, OK and Cancel.
struct Prueba : Formulario {
    explicit Prueba(Entorno& alrededor) : Formulario(alrededor, {"Prueba"})
    {
        auto* const pila = new QVBoxLayout(this);
        for (QWidget* w : std::initializer_list<QWidget*>{&uno, &dos, &acepta, &cancela})
            pila->addWidget(w);
        acepta.setDefault(true);
        acepta.setText(QStringLiteral("&Aceptar"));
        campos.Agrega(uno, [this] { return Revisa(uno, "uno"); });
        campos.Agrega(dos, [this] { return Revisa(dos, "dos"); });
        AlPulsar(acepta, [this] {
            ++aceptadas;
            done(Accepted);
        });
        QObject::connect(&cancela, &QPushButton::clicked, this, [this] { reject(); });
    }
    ~Prueba() override
    {
        for (QWidget* w : std::initializer_list<QWidget*>{&uno, &dos, &acepta, &cancela})
            w->setParent(nullptr);
    }
    void Muestra() override { ++mostradas; }
    bool Compromete() { return campos.Compromete(); }
    bool Revisa(QLineEdit& campo, const char* nombre)
    {
        revisados.emplace_back(nombre);
        if (campo.text().toInt() <= 99) return true;
        entorno.s.Anfitrion.Avisa({nombre});
        return false;
    }

    QLineEdit uno, dos;
    QPushButton acepta, cancela;
    std::vector<std::string> revisados{};
    int aceptadas = 0, mostradas = 0;
};

struct CamposDePrueba : testing::Test {
    apoyo::Mundo mundo{};
    Prueba f{mundo.entorno};
    void SetUp() override
    {
        apoyo::Muestra(f);
        f.uno.setFocus();
    }
};

TEST_F(CamposDePrueba, AlSalirConTabSeRevisaUnaVezYElFocoSigue)
{
    apoyo::Escribe(f.uno, "99");
    QTest::keyClick(&f.uno, Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([&] { return !f.revisados.empty(); }));
    EXPECT_EQ(f.revisados, std::vector<std::string>{"uno"});
    EXPECT_TRUE(f.dos.hasFocus());
    EXPECT_EQ(f.mostradas, 1);
}

// A busy machine hands over several keys at once: none of the fields that were left meanwhile is passed over.
TEST_F(CamposDePrueba, DosCamposDejadosDeUnaVezSeRevisanLosDos)
{
    f.uno.setText(QStringLiteral("12"));
    f.dos.setFocus();
    f.dos.setText(QStringLiteral("34"));
    f.acepta.setFocus();
    EXPECT_TRUE(apoyo::Espera([&] { return !f.revisados.empty(); }));
    EXPECT_EQ(f.revisados, (std::vector<std::string>{"uno", "dos"}));
}

TEST_F(CamposDePrueba, ElPrimeroQueSeRechazaGuardaElFocoYElDeDespuesEspera)
{
    f.uno.setText(QStringLiteral("100"));
    f.dos.setFocus();
    f.dos.setText(QStringLiteral("34"));
    f.acepta.setFocus();
    EXPECT_TRUE(apoyo::Espera([&] { return f.uno.hasFocus() && !f.revisados.empty(); }));
    EXPECT_EQ(f.revisados, std::vector<std::string>{"uno"});
    f.uno.setText(QStringLiteral("99"));
    EXPECT_TRUE(f.Compromete());
    EXPECT_EQ(f.revisados, (std::vector<std::string>{"uno", "dos", "uno"}));
}

// Keys that come before the window has been told of its focus reach the field all the same.
TEST_F(CamposDePrueba, LoTecleadoEnUnCampoSinFocoSeRevisaConElMandoQueSigue)
{
    f.acepta.setFocus();
    QTest::qWait(50);
    f.revisados.clear();
    QTest::keyClicks(&f.dos, QStringLiteral("100"));
    EXPECT_FALSE(f.Compromete());
    EXPECT_EQ(f.revisados, std::vector<std::string>{"dos"});
    EXPECT_TRUE(f.dos.hasFocus());
}

TEST_F(CamposDePrueba, UnTextoRechazadoConservaElFocoConTodoSeleccionado)
{
    apoyo::Escribe(f.uno, "100");
    QTest::keyClick(&f.uno, Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([&] { return f.uno.hasFocus() && !f.revisados.empty(); }));
    EXPECT_EQ(f.uno.selectedText(), QStringLiteral("100"));
    EXPECT_EQ(mundo.anfitrion->Avisos(), std::vector<model::Mensaje>{{"uno"}});
    // The field that got the focus for a moment isn't left by giving it back.
    QTest::qWait(50);
    EXPECT_EQ(f.revisados, std::vector<std::string>{"uno"});
}

TEST_F(CamposDePrueba, ElClicEnAceptarRevisaAntesYNoAceptaLoRechazado)
{
    apoyo::Escribe(f.uno, "100");
    apoyo::Pulsa(f.acepta);
    EXPECT_EQ(f.aceptadas, 0);
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(f.uno.hasFocus());
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    apoyo::Escribe(f.uno, "12");
    apoyo::Pulsa(f.acepta);
    EXPECT_EQ(f.aceptadas, 1);
    EXPECT_FALSE(f.isVisible());
}

TEST_F(CamposDePrueba, EnterYLosAtajosComprometenElCampoQueTieneElFoco)
{
    apoyo::Escribe(f.dos, "100");
    QTest::keyClick(&f.dos, Qt::Key_Return);
    EXPECT_EQ(f.aceptadas, 0);
    EXPECT_EQ(mundo.anfitrion->Avisos(), std::vector<model::Mensaje>{{"dos"}});
    QTest::keyClick(&f, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(apoyo::Espera([&] { return mundo.anfitrion->Avisos().size() == 2; }));
    EXPECT_EQ(f.aceptadas, 0);
}

TEST_F(CamposDePrueba, CancelarYEscNoRevisanNada)
{
    apoyo::Escribe(f.uno, "100");
    apoyo::Pulsa(f.cancela);
    QTest::qWait(50);
    EXPECT_FALSE(f.isVisible());
    EXPECT_TRUE(f.revisados.empty());

    apoyo::Muestra(f);
    apoyo::Escribe(f.uno, "100");
    QTest::keyClick(&f.uno, Qt::Key_Escape);
    QTest::qWait(50);
    EXPECT_FALSE(f.isVisible());
    EXPECT_TRUE(f.revisados.empty());
}

TEST_F(CamposDePrueba, IrAOtraVentanaNoEsSalirDelCampo)
{
    apoyo::Escribe(f.uno, "100");
    QWidget otra;
    apoyo::Muestra(otra);
    QTest::qWait(50);
    EXPECT_TRUE(f.revisados.empty());
}

TEST_F(CamposDePrueba, LaVentanaVuelveDondeEstabaConSuTamano)
{
    f.resize(431, 287);
    f.hide();
    Prueba otra(mundo.entorno);
    apoyo::Muestra(otra);
    EXPECT_EQ(otra.size(), QSize(431, 287));
}

}  // namespace
}  // namespace forms
