// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "apoyo/Ventanas.h"
#include "forms/Cajas_ventana.h"
#include "model/Falla.h"

namespace forms {
namespace {

using apoyo::Usuario;
using model::Icono;
using model::Mensaje;

struct Cajas : testing::Test {
    apoyo::Mundo mundo{};
    Cajas() { PonCajas(mundo.s.Anfitrion, mundo.entorno); }
};

TEST_F(Cajas, UnAvisoMuestraSuTextoTituloYDibujo)
{
    Usuario usuario;
    QMessageBox::Icon dibujo = QMessageBox::NoIcon;
    usuario.Hace([&](QWidget& caja) {
        if (const auto* const mensaje = qobject_cast<QMessageBox*>(&caja)) dibujo = mensaje->icon();
        caja.close();
    });
    mundo.s.Anfitrion.Avisa({"Verifique", "Advertencia !", Icono::Exclamacion});
    EXPECT_EQ(usuario.Cajas(), std::vector<std::string>{"Advertencia !|Verifique"});
    EXPECT_EQ(dibujo, QMessageBox::Warning);
}

TEST_F(Cajas, SinTituloLlevaElNombreDelPrograma)
{
    Usuario usuario;
    usuario.Elige("Aceptar");
    mundo.s.Anfitrion.Avisa({"<b>texto</b>"});
    EXPECT_EQ(usuario.Cajas(), std::vector<std::string>{"SIRO|<b>texto</b>"});
}

TEST_F(Cajas, PreguntanConSiYNoYConAceptarYCancelar)
{
    Usuario usuario;
    usuario.Elige("Sí").Elige("No").Elige("Aceptar").Elige("Cancelar");
    const Mensaje pregunta{"¿Sigue?", "Consulta", Icono::Pregunta};
    EXPECT_TRUE(mundo.s.Anfitrion.Pregunta(pregunta));
    EXPECT_FALSE(mundo.s.Anfitrion.Pregunta(pregunta));
    EXPECT_TRUE(mundo.s.Anfitrion.Confirma(pregunta));
    EXPECT_FALSE(mundo.s.Anfitrion.Confirma(pregunta));
}

TEST_F(Cajas, LoNoGuardadoSeGuardaSeDejaOSeCancela)
{
    using model::Resguardo;
    Usuario usuario;
    usuario.Elige("Guardar").Elige("Seguir sin guardar").Elige("Cancelar");
    usuario.Hace([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Return); });
    usuario.Hace([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Escape); });
    usuario.Hace([](QWidget& caja) { caja.close(); });
    for (const Resguardo elegido : {Resguardo::Guardar, Resguardo::SeguirSinGuardar, Resguardo::Cancelar,
                                    Resguardo::Guardar, Resguardo::Cancelar, Resguardo::Cancelar})
        EXPECT_EQ(mundo.s.Anfitrion.PideResguardo({"¿Desea guardar?", "Resguardo", Icono::Exclamacion}),
                  elegido);
    EXPECT_EQ(usuario.Cajas(), std::vector<std::string>(6, "Resguardo|¿Desea guardar?"));
}

TEST_F(Cajas, EscEsNoYEnterEsSi)
{
    Usuario usuario;
    usuario.Hace([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Escape); }).Hace([](QWidget& caja) {
        QTest::keyClick(&caja, Qt::Key_Return);
    });
    EXPECT_FALSE(mundo.s.Anfitrion.Pregunta({"¿Sigue?"}));
    EXPECT_TRUE(mundo.s.Anfitrion.Pregunta({"¿Sigue?"}));
}

TEST_F(Cajas, UnTextoPedidoSeEscribeSobreElOfrecidoYCanceladoEsVacio)
{
    Usuario usuario;
    usuario
        .Hace([](QWidget& caja) {
            auto& campo = *caja.findChild<QLineEdit*>();
            EXPECT_EQ(campo.text(), QStringLiteral("Velmir1"));
            campo.selectAll();
            apoyo::Teclea(campo, "Ñandú2");
            QTest::keyClick(&campo, Qt::Key_Return);
        })
        .Elige("Cancelar");
    EXPECT_EQ(mundo.s.Anfitrion.PideTexto({"Ingrese un nombre", "Proyecto Nuevo", "Velmir1"}), "Ñandú2");
    EXPECT_EQ(mundo.s.Anfitrion.PideTexto({"Ingrese un nombre", "Proyecto Nuevo", "Velmir1"}), "");
}

TEST_F(Cajas, ElFinDelProgramaDentroDeUnaCajaNoDejaCorrerLoQueSigue)
{
    Usuario usuario;
    usuario.Hace([&](QWidget&) { mundo.entorno.Atiende([] { throw model::FinDelPrograma{3}; }); });
    bool siguio = false;
    mundo.entorno.Atiende([&] {
        mundo.s.Anfitrion.Avisa({"uno"});
        siguio = true;
    });
    EXPECT_FALSE(siguio);
    EXPECT_TRUE(mundo.entorno.Terminando());
    EXPECT_EQ(mundo.entorno.Estado(), 3);
}

}  // namespace
}  // namespace forms
