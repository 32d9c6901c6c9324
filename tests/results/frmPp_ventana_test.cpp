// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/frmPp_ventana.h"

#include <QClipboard>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <string>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

struct VentanaPizarra : testing::Test {
    VentanaPizarra()
    {
        PonPizarra(mundo.s.Anfitrion, f, ventana, marca, [this] { ++veces; });
        mundo.s.Disco = disco.Puerta();
        disco.PonDirectorio("/salida");
    }
    void SetUp() override
    {
        mundo.s.Anfitrion.AbrePizarra();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QPlainTextEdit& Texto() { return Control<QPlainTextEdit>(ventana, "Text1"); }
    bool Muestra(const char* texto)
    {
        return Espera([&] { return DeQ(Texto().toPlainText()) == texto; });
    }
    std::string Seleccion() { return DeQ(Texto().textCursor().selectedText()); }

    apoyo::Mundo mundo{};
    apoyo::DiscoPrueba disco{};
    frmPp f{};
    frmPp_ventana ventana{mundo.entorno, f};
    bool marca = false;
    int veces = 0;
};

TEST_F(VentanaPizarra, ElAnfitrionLaAbreConSuSalidaYSuMarca)
{
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_TRUE(mundo.s.Control.SalidaPizarra);
    EXPECT_TRUE(marca);
    EXPECT_TRUE(mundo.s.Anfitrion.MarcaPizarra());
    EXPECT_GT(veces, 0);
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Pizarra de Variables y Salidas");
}

TEST_F(VentanaPizarra, TodoControlTieneNombreYElTextoEsDeSoloLecturaYLetraFija)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_TRUE(Texto().isReadOnly());
    EXPECT_TRUE(QFontInfo(Texto().font()).fixedPitch());
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "CmdImprimir").text()), "&Imprimir");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdCerrar").text()), "&Cerrar");
}

TEST_F(VentanaPizarra, ElTextoDelAnfitrionSeVeYSeLee)
{
    model::Anfitrion& a = mundo.s.Anfitrion;
    a.PonPizarra("SIRO\r\n");
    a.AgregaPizarra("año");
    EXPECT_EQ(a.LeePizarra(), "SIRO\r\naño");
    EXPECT_TRUE(Muestra("SIRO\naño"));
    a.AmpliaPizarra("SIRO\r\naño 2\r\n");
    EXPECT_EQ(a.LeePizarra(), "SIRO\r\naño 2\r\n");
    EXPECT_TRUE(Muestra("SIRO\naño 2\n"));
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblLargo").text()), "13 caracteres");
    a.PonPizarra("");
    EXPECT_TRUE(Muestra(""));
}

TEST_F(VentanaPizarra, UnSaltoDeLineaPartidoEntreDosAgregadosEsUnSoloSalto)
{
    model::Anfitrion& a = mundo.s.Anfitrion;
    a.AgregaPizarra("uno\r");
    EXPECT_TRUE(Muestra("uno"));
    a.AgregaPizarra("\ndos");
    EXPECT_TRUE(Muestra("uno\ndos"));
}

TEST_F(VentanaPizarra, UnaCorridaSeLeeDesdeElPrincipioYLoAgregadoDespuesQuedaALaVista)
{
    std::string largo;
    for (int i = 1; i <= 500; ++i)
        largo += "renglón " + std::to_string(i) + "\r\n";
    mundo.s.Anfitrion.PonPizarra("cabecera\r\n");
    mundo.s.Anfitrion.AgregaPizarra(largo);
    const QScrollBar& barra = *Texto().verticalScrollBar();
    EXPECT_TRUE(Espera([&] { return Texto().blockCount() == 502; }));
    EXPECT_EQ(barra.value(), 0);
    mundo.s.Anfitrion.AgregaPizarra("lista pedida");
    EXPECT_TRUE(Espera([&] { return barra.value() == barra.maximum() && barra.maximum() > 0; }));
}

// --- a text of several pieces: 40,000 lines of 40 letters, 1.6 MB ---

struct PizarraLarga : VentanaPizarra {
    static constexpr int Lineas = 40000;
    PizarraLarga()
    {
        for (int i = 1; i <= Lineas; ++i) {
            std::string linea = "renglon " + std::to_string(i);
            linea.resize(40, '.');
            texto += linea + "\r\n";
        }
        texto += "fin";
    }
    int EnPantalla() { return Texto().document()->blockCount(); }
    bool LlegaEntera()
    {
        return Espera([&] { return EnPantalla() == Lineas + 1; });
    }

    std::string texto{};
};

TEST_F(PizarraLarga, SeVePrimeroElPrincipioYLuegoElResto)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    ventana.Muestra();
    EXPECT_GT(EnPantalla(), 1000);
    EXPECT_LT(EnPantalla(), Lineas);
    EXPECT_TRUE(LlegaEntera());
    EXPECT_EQ(Texto().verticalScrollBar()->value(), 0);
    std::string entero = DeQ(Texto().toPlainText());
    texto.erase(std::remove(texto.begin(), texto.end(), '\r'), texto.end());
    EXPECT_TRUE(entero == texto);
}

TEST_F(PizarraLarga, ElLugarDeQuienYaLeeNoSeMueve)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    ventana.Muestra();
    Texto().verticalScrollBar()->setValue(500);
    EXPECT_TRUE(LlegaEntera());
    EXPECT_EQ(Texto().verticalScrollBar()->value(), 500);
}

TEST_F(PizarraLarga, OtroTextoDejaSinEfectoLoQueFaltaba)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    ventana.Muestra();
    mundo.s.Anfitrion.PonPizarra("otro\r\ntexto");
    EXPECT_TRUE(Muestra("otro\ntexto"));
    QTest::qWait(50);
    EXPECT_EQ(DeQ(Texto().toPlainText()), "otro\ntexto");
}

TEST_F(PizarraLarga, LoBuscadoSeHallaAunqueNoHayaLlegado)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    ventana.Muestra();
    AbreBusqueda(f, "renglon 39999.");
    BuscaSiguiente(f);
    ventana.Muestra();
    EXPECT_EQ(Seleccion(), "renglon 39999.");
}

TEST_F(PizarraLarga, UnaTeclaLaEncuentraEntera)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    ventana.Muestra();
    QTest::keyClick(&Texto(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(EnPantalla(), Lineas + 1);
    EXPECT_GT(Texto().verticalScrollBar()->value(), Lineas - 200);
}

TEST_F(PizarraLarga, LoAgregadoDespuesQuedaALaVista)
{
    mundo.s.Anfitrion.PonPizarra(texto);
    EXPECT_TRUE(LlegaEntera());
    mundo.s.Anfitrion.AgregaPizarra("\r\nagregado");
    EXPECT_TRUE(Espera([&] { return DeQ(Texto().document()->lastBlock().text()) == "agregado"; }));
    EXPECT_EQ(Texto().verticalScrollBar()->value(), Texto().verticalScrollBar()->maximum());
}

// --- closing, search, menu ---

TEST_F(VentanaPizarra, CerrarConElBotonQuitaSalidaYMarcaYAlReabrirEstaElTexto)
{
    mundo.s.Anfitrion.PonPizarra("texto");
    Pulsa(Control<QPushButton>(ventana, "cmdCerrar"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_FALSE(mundo.s.Control.SalidaPizarra);
    EXPECT_FALSE(marca);
    mundo.s.Anfitrion.AbrePizarra();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_TRUE(Muestra("texto"));
}

TEST_F(VentanaPizarra, CerrarConElMarcoEsLoMismo)
{
    ventana.close();
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(mundo.s.Control.SalidaPizarra);
    EXPECT_FALSE(marca);
}

TEST_F(VentanaPizarra, LaSerieQuitaLaMarcaYDejaLaVentana)
{
    mundo.s.Anfitrion.PonMarcaPizarra(false);
    EXPECT_FALSE(mundo.s.Anfitrion.MarcaPizarra());
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(VentanaPizarra, CtrlFBuscaYF3SigueYMayusculasF3Vuelve)
{
    mundo.s.Anfitrion.PonPizarra("Qsale 1\r\nde la qsale 2");
    EXPECT_TRUE(Muestra("Qsale 1\nde la qsale 2"));
    QTest::keyClick(&Texto(), Qt::Key_F, Qt::ControlModifier);
    auto& campo = Control<QLineEdit>(ventana, "txtBuscar");
    EXPECT_TRUE(Espera([&] { return campo.isVisible() && campo.hasFocus(); }));
    apoyo::Teclea(campo, "qsale");
    EXPECT_EQ(Seleccion(), "Qsale");
    QTest::keyClick(&campo, Qt::Key_F3);
    EXPECT_TRUE(Espera([&] { return Seleccion() == "qsale"; }));
    EXPECT_EQ(Texto().textCursor().blockNumber(), 1);
    QTest::keyClick(&campo, Qt::Key_Return);
    EXPECT_TRUE(Espera([&] { return Seleccion() == "Qsale"; }));
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblBusqueda").text()),
              "Se llegó al final; sigue desde el principio");
    QTest::keyClick(&campo, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_TRUE(Espera([&] { return Seleccion() == "qsale"; }));
    apoyo::Teclea(campo, "x");
    EXPECT_EQ(Seleccion(), "");
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblBusqueda").text()), "No se encuentra");
    QTest::keyClick(&campo, Qt::Key_Escape);
    EXPECT_TRUE(Espera([&] { return !campo.isVisible() && Texto().hasFocus(); }));
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(VentanaPizarra, LoSeleccionadoPasaALaBusqueda)
{
    mundo.s.Anfitrion.PonPizarra("uno dos uno");
    EXPECT_TRUE(Muestra("uno dos uno"));
    Texto().setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&Texto(), Qt::Key_Right, Qt::ShiftModifier);
    Pulsa(Control<QPushButton>(ventana, "cmdBuscar"));
    EXPECT_EQ(DeQ(Control<QLineEdit>(ventana, "txtBuscar").text()), "uno");
    Pulsa(Control<QPushButton>(ventana, "cmdBuscaSiguiente"));
    Pulsa(Control<QPushButton>(ventana, "cmdBuscaSiguiente"));
    EXPECT_EQ(Texto().textCursor().selectionStart(), 8);
    Pulsa(Control<QPushButton>(ventana, "cmdCierraBusqueda"));
    EXPECT_FALSE(Control<QLineEdit>(ventana, "txtBuscar").isVisible());
}

TEST_F(VentanaPizarra, CtrlSGuardaElTexto)
{
    mundo.s.Anfitrion.PonPizarra("Duración\r\n");
    mundo.anfitrion->elegidos = {"/salida/a.txt", "/salida/b.txt"};
    QTest::keyClick(&Texto(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Espera([&] { return disco.Esta("/salida/a.txt"); }));
    Pulsa(Control<QPushButton>(ventana, "cmdGuardar"));
    EXPECT_EQ(disco.Bytes("/salida/b.txt"), "Duraci\xF3n\r\n");
}

TEST_F(VentanaPizarra, ImprimeLaVentanaTalComoSeVe)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("pizarra.pdf"));
    mundo.entorno.Impresora = [&] {
        auto impresora = std::make_unique<QPrinter>();
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(ruta);
        return impresora;
    };
    mundo.s.Anfitrion.PonPizarra("texto");
    Pulsa(Control<QPushButton>(ventana, "CmdImprimir"));
    EXPECT_TRUE(apoyo::BytesDeArchivo(DeQ(ruta)).starts_with("%PDF"));
    EXPECT_TRUE(mundo.anfitrion->Avisos().empty());
}

TEST_F(VentanaPizarra, SinImpresoraSeDice)
{
    mundo.entorno.Impresora = [] { return nullptr; };
    Pulsa(Control<QPushButton>(ventana, "CmdImprimir"));
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
}

TEST_F(VentanaPizarra, ElMenuDelTextoCopiaYGuarda)
{
    mundo.s.Anfitrion.PonPizarra("uno");
    EXPECT_TRUE(Muestra("uno"));
    mundo.anfitrion->elegidos = {"/salida/m.txt"};
    const auto elige = [&](const char* leyenda) {
        QTimer::singleShot(0, &ventana, [leyenda] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* accion : menu->actions())
                if (accion->text() == QString::fromUtf8(leyenda))
                    return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
            ADD_FAILURE() << leyenda;
        });
        QContextMenuEvent pide(QContextMenuEvent::Keyboard, {5, 5},
                               Texto().viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(Texto().viewport(), &pide);
    };
    elige("Seleccionar &todo");
    elige("&Copiar");
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), "uno");
    elige("&Guardar...");
    EXPECT_EQ(disco.Bytes("/salida/m.txt"), "uno");
}

}  // namespace
}  // namespace results
