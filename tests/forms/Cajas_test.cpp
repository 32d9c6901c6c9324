// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <new>

#include "apoyo/Ventanas.h"
#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"
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

TEST_F(Cajas, UnaPreguntaTomaSiONoYNadaMas)
{
    Usuario usuario;
    const auto insiste = [](QWidget& caja) {
        QTest::keyClick(caja.windowHandle(), Qt::Key_Escape);
        caja.windowHandle()->close();  // the frame, and Alt+F4
        QTest::qWait(50);
        EXPECT_TRUE(caja.isVisible());
        EXPECT_FALSE(caja.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    };
    usuario
        .Hace([&](QWidget& caja) {
            insiste(caja);
            QTest::keyClick(caja.windowHandle(), Qt::Key_Tab);
            QTest::keyClick(caja.windowHandle(), Qt::Key_Return);
        })
        .Hace([&](QWidget& caja) {
            insiste(caja);
            QTest::keyClick(caja.windowHandle(), Qt::Key_Return);
        });
    EXPECT_FALSE(mundo.s.Anfitrion.Pregunta({"¿Sigue?"}));
    EXPECT_TRUE(mundo.s.Anfitrion.Pregunta({"¿Sigue?"}));
}

TEST_F(Cajas, EscAceptaUnAvisoYCancelaUnaConfirmacion)
{
    Usuario usuario;
    const auto esc = [](QWidget& caja) { QTest::keyClick(caja.windowHandle(), Qt::Key_Escape); };
    usuario.Hace(esc).Hace(esc);
    mundo.s.Anfitrion.Avisa({"Verifique"});
    EXPECT_FALSE(mundo.s.Anfitrion.Confirma({"¿Sigue?"}));
}

/// What a list of messages shows.
std::string Lista(QWidget& ventana)
{
    EXPECT_EQ(ventana.objectName(), QStringLiteral("ListaDeAvisos"));
    return DeQ(apoyo::Control<QPlainTextEdit>(ventana, "Mensajes").toPlainText());
}

void Acepta(QWidget& ventana)
{
    apoyo::Pulsa(apoyo::Control(ventana, "cmdAceptar"));
}

TEST_F(Cajas, DesdeElSextoLosMensajesDeUnaOrdenVanAUnaLista)
{
    Usuario usuario;
    for (int i = 1; i <= 5; ++i)
        usuario.Elige("Aceptar");
    std::string lista;
    usuario.Hace([&](QWidget& ventana) {
        lista = Lista(ventana);
        Acepta(ventana);
    });
    bool termino = false;
    mundo.entorno.Atiende([&] {
        for (int i = 1; i <= 30000; ++i)
            mundo.s.Anfitrion.Avisa({"Falla", "Advertencia !"});
        mundo.s.Anfitrion.Avisa({"<b>Última</b>"});
        termino = true;
    });
    EXPECT_TRUE(termino);
    EXPECT_EQ(usuario.Cajas(), std::vector<std::string>(5, "Advertencia !|Falla"));
    EXPECT_EQ(lista, "29995 veces: [Advertencia !] Falla\n<b>Última</b>");

    // The next command begins anew.
    usuario.Elige("Aceptar");
    mundo.entorno.Atiende([&] { mundo.s.Anfitrion.Avisa({"Falla"}); });
    EXPECT_EQ(usuario.Cajas().size(), 6U);
}

TEST_F(Cajas, LaListaSaleAntesDeLaPreguntaYDelFinDelPrograma)
{
    Usuario usuario;
    for (int i = 1; i <= 5; ++i)
        usuario.Elige("Aceptar");
    std::vector<std::string> listas;
    const auto lee = [&](QWidget& ventana) {
        listas.push_back(Lista(ventana));
        Acepta(ventana);
    };
    usuario.Hace(lee).Elige("Sí").Hace(lee).Elige("Cancelar").Hace(lee);
    mundo.entorno.Atiende([&] {
        for (const char* texto : {"1", "2", "3", "4", "5", "6"})
            mundo.s.Anfitrion.Avisa({texto});
        mundo.s.Anfitrion.Pregunta({"¿Sigue?"});
        mundo.s.Anfitrion.Avisa({"7"});
        mundo.s.Anfitrion.PideTexto({"Nombre"});
        mundo.s.Anfitrion.Avisa({"8"});
        mundo.s.Anfitrion.Termina();
    });
    EXPECT_EQ(listas, (std::vector<std::string>{"6", "7", "8"}));
    EXPECT_TRUE(mundo.entorno.Terminando());
}

// What a handler calls in its turn is the same command; what the user does in a dialog is another one.
TEST_F(Cajas, UnaOrdenEsUnSucesoDelUsuario)
{
    Usuario usuario;
    for (int i = 1; i <= 5; ++i)
        usuario.Elige("Aceptar");
    usuario.Hace([&](QWidget& ventana) {
        EXPECT_EQ(Lista(ventana), "5 veces: x");
        QTimer::singleShot(0, &ventana, [&] {
            mundo.entorno.Atiende([&] { mundo.s.Anfitrion.Avisa({"en la lista"}); });
            Acepta(ventana);
        });
    });
    usuario.Elige("Aceptar");
    mundo.entorno.Atiende([&] {
        for (int i = 1; i <= 10; ++i)
            mundo.entorno.Atiende([&] { mundo.s.Anfitrion.Avisa({"x"}); });
    });
    EXPECT_EQ(usuario.Cajas().back(), "SIRO|en la lista");
}

TEST_F(Cajas, LaListaSeCopiaYSeGuarda)
{
    const QTemporaryDir carpeta;
    const std::string ruta = DeQ(carpeta.filePath(QStringLiteral("Mensajes.txt")));
    mundo.s.Anfitrion.EligeDestino = [&](std::string_view, std::string_view, std::string_view nombre) {
        EXPECT_EQ(nombre, "Mensajes.txt");
        return ruta;
    };
    Usuario usuario;
    for (int i = 1; i <= 5; ++i)
        usuario.Elige("Aceptar");
    usuario.Hace([&](QWidget& ventana) {
        apoyo::Pulsa(apoyo::Control(ventana, "cmdCopiar"));
        apoyo::Pulsa(apoyo::Control(ventana, "cmdGuardar"));
        Acepta(ventana);
    });
    mundo.entorno.Atiende([&] {
        for (int i = 1; i <= 7; ++i)
            mundo.s.Anfitrion.Avisa({"año"});
    });
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("2 veces: año\r\n"));
    EXPECT_EQ(mundo.s.Disco.Lee(ruta), "2 veces: año\r\n");
}

TEST_F(Cajas, LaSextaPreguntaIgualDeUnaCorridaOfreceSiATodas)
{
    const auto pregunta = [](int r) {
        return Mensaje{"¿r-" + std::to_string(r) + "?", "Error", Icono::Exclamacion, "¿?"};
    };
    Usuario usuario;
    for (int i = 1; i <= 5; ++i)
        usuario.Hace([](QWidget& caja) {
            EXPECT_EQ(caja.findChildren<QPushButton*>().size(), 2);
            QTest::keyClick(caja.windowHandle(), Qt::Key_Return);
        });
    usuario.Elige("No").Elige("Sí a todas").Elige("Sí");
    mundo.entorno.Atiende([&] {
        for (int i = 1; i <= 5; ++i)
            EXPECT_TRUE(mundo.s.Anfitrion.Pregunta(pregunta(i)));
        EXPECT_FALSE(mundo.s.Anfitrion.Pregunta(pregunta(6)));
        for (int i = 7; i <= 9000; ++i)
            EXPECT_TRUE(mundo.s.Anfitrion.Pregunta(pregunta(i)));
    });
    EXPECT_EQ(usuario.Cajas().size(), 7U);
    mundo.entorno.Atiende([&] { EXPECT_TRUE(mundo.s.Anfitrion.Pregunta(pregunta(1))); });
    EXPECT_EQ(usuario.Cajas().size(), 8U) << "the next run asks again";
}

TEST_F(Cajas, LaFaltaDeMemoriaSeCuentaYElProgramaSigue)
{
    Usuario usuario;
    usuario.Elige("Aceptar");
    mundo.entorno.Atiende([] { throw std::bad_alloc{}; });
    EXPECT_EQ(usuario.Cajas(), std::vector<std::string>{
                                   "Advertencia !|No hay memoria suficiente para terminar la orden. Cierre "
                                   "otros programas o reduzca los datos del proyecto"});
    EXPECT_FALSE(mundo.entorno.Terminando());
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
