// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QVBoxLayout>

#include "apoyo/Ventanas.h"
#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

/// A field and a list with text, mirrored into a record as in every form.
struct Comillas : testing::Test {
    apoyo::Mundo mundo{};
    QWidget ventana{};
    QLineEdit* campo = new QLineEdit(&ventana);
    QComboBox* lista = new QComboBox(&ventana);
    std::string delCampo{}, deLaLista{};

    void SetUp() override
    {
        auto* const pila = new QVBoxLayout(&ventana);
        pila->addWidget(campo);
        pila->addWidget(lista);
        lista->setEditable(true);
        Refleja(*campo, delCampo);
        Refleja(*lista, deLaLista);
        apoyo::Muestra(ventana);
        campo->setFocus();
    }
};

TEST_F(Comillas, TecleadasSonSimples)
{
    apoyo::Teclea(*campo, "El \"Niño\"");
    EXPECT_EQ(DeQ(campo->text()), "El 'Niño'");
    EXPECT_EQ(delCampo, "El 'Niño'");
    QTest::keyClick(campo, Qt::Key_Home);
    apoyo::Teclea(*campo, "\"a");  // the cursor goes on from where it is
    EXPECT_EQ(delCampo, "'aEl 'Niño'");
}

TEST_F(Comillas, PegadasTambien)
{
    QApplication::clipboard()->setText(QStringLiteral("\"12/5/92\", \"u-1\""));
    QTest::keyClick(campo, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(delCampo, "'12/5/92', 'u-1'");
}

TEST_F(Comillas, EnUnaListaConTextoTambien)
{
    lista->lineEdit()->setFocus();
    apoyo::Teclea(*lista->lineEdit(), "1\"2");
    EXPECT_EQ(deLaLista, "1'2");
}

TEST_F(Comillas, UnNombreQueSePideNoLasTrae)
{
    PonCajas(mundo.s.Anfitrion, mundo.entorno);
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) {
        auto* const nombre = caja.findChild<QLineEdit*>();
        ASSERT_NE(nombre, nullptr);
        apoyo::Teclea(*nombre, "u-\"1\"");
        QTest::keyClick(nombre, Qt::Key_Return);
    });
    std::string respuesta;
    mundo.entorno.Atiende([&] { respuesta = mundo.s.Anfitrion.PideTexto({"Nombre", "Título", {}}); });
    EXPECT_EQ(respuesta, "u-'1'");
}

TEST_F(Comillas, ElNombreDeUnArchivoQueSeEligeSigueComoEs)
{
    QFileDialog caja;
    caja.setOption(QFileDialog::DontUseNativeDialog, true);
    apoyo::Muestra(caja);
    auto* const nombre = caja.findChild<QLineEdit*>();
    ASSERT_NE(nombre, nullptr);
    nombre->clear();
    apoyo::Teclea(*nombre, "\"");
    EXPECT_EQ(nombre->text(), QStringLiteral("\""));
}

}  // namespace
}  // namespace forms
