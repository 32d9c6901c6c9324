// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAction>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "shell/RotuloProyecto_ventana.h"
#include "shell/dlgEliminarProyecto_ventana.h"
#include "shell/frmAcerca_ventana.h"
#include "shell/frmInicio_ventana.h"

namespace shell {
namespace {

using apoyo::Control;
using apoyo::Espera;
using forms::DeQ;
using forms::Q;

TEST_F(EscritorioDePrueba, ArrancaSinProyectoConElDirectorioPorDefecto)
{
    Arranca();
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(Rotulo("lblProyecto"), "");
    EXPECT_EQ(BytesPuntero(), "\"" + instalacion.Proyectos() + "\"\r\n\"\"\r\n");
    EXPECT_FALSE(Accion("mnu_ultimoarchivo1").isVisible());
}

TEST_F(EscritorioDePrueba, AbrirLlenaLosRotulosAnotaElProyectoYHabilitaGuardarComo)
{
    Arranca();
    anfitrion->elegidos = {instalacion.Quelmar()};
    Accion("mnuAbrirProyecto").trigger();
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(Rotulo("lblProyecto"), "Quelmar");
    EXPECT_EQ(Rotulo("lblMiDirTrabajo"), instalacion.Proyectos());
    EXPECT_EQ(BytesPuntero(), "\"" + instalacion.Proyectos() + "\"\r\n\"Quelmar\"\r\n");
    EXPECT_TRUE(Accion("mnuGuardarProyectoComo").isEnabled());
    // The labels are filled before the configuration is read.
    EXPECT_EQ(Rotulo("lblTitulo"), "");
}

TEST_F(EscritorioDePrueba, ElUltimoProyectoSeOfreceEnElMenuYSeReabre)
{
    {
        QFile puntero(Q(instalacion.Dir() + "/VelmirDir.vlm"));
        ASSERT_TRUE(puntero.open(QIODevice::WriteOnly));
        puntero.write(QByteArray::fromStdString("\"" + instalacion.Proyectos() + "\"\r\n\"Quelmar\"\r\n"));
    }
    Arranca();
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(DeQ(Accion("mnu_ultimoarchivo1").text()), instalacion.Quelmar());
    Accion("mnu_ultimoarchivo1").trigger();
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(Rotulo("lblTitulo"), escritorio.s.Configuracion.TituloProyecto);
    EXPECT_FALSE(Rotulo("lblTitulo").empty());
}

TEST_F(EscritorioDePrueba, UnaCorridaTerminaConResultadosYHabilitaLasVerificaciones)
{
    Arranca(instalacion.Quelmar());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    Accion("mnuCorre1").trigger();
    EXPECT_GT(escritorio.s.Resultados.NroPasosQ, 0);
    EXPECT_GT(escritorio.s.Red.NroRepresas(), 0);
    EXPECT_TRUE(Accion("mnu_prueba_funcionesHQrepresas").isEnabled());
    EXPECT_TRUE(Accion("mnu_prueba_funcionesSHVrepresas").isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(escritorio.s.Disco.Lee(instalacion.Dir() + "/SalePizarra1_tem.txt").starts_with("\""));
}

TEST_F(EscritorioDePrueba, LaPizarraAbiertaRecibeElTextoDeLaCorrida)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    EXPECT_TRUE(escritorio.pizarra.abierta);
    EXPECT_TRUE(Accion("mnuPizarra1").isChecked());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    Accion("mnuCorre1").trigger();
    EXPECT_TRUE(escritorio.pizarra.Text1.starts_with("SIRO - Modelo de Simulación Hidrológica\r\n"));
    EXPECT_EQ(escritorio.pizarra.Text1, escritorio.s.Control.TextoPizarra);
    Accion("mnuPizarra1").trigger();
    EXPECT_FALSE(escritorio.pizarra.abierta);
    EXPECT_FALSE(Accion("mnuPizarra1").isChecked());
    EXPECT_FALSE(escritorio.s.Control.SalidaPizarra);
}

TEST_F(EscritorioDePrueba, F3SigueLaBusquedaDeLaPizarraYSinEllaAbreElEditor)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    escritorio.s.Anfitrion.PonPizarra("Qsale 1\r\nde la qsale 2");
    auto& texto = Control<QPlainTextEdit>(escritorio.Principal(), "Text1");
    ASSERT_TRUE(Espera([&] { return texto.toPlainText() == QStringLiteral("Qsale 1\nde la qsale 2"); }));
    QWindow* const ventana = escritorio.Principal().windowHandle();
    const auto elegido = [&] { return DeQ(texto.textCursor().selectedText()); };
    texto.setFocus();
    QTest::keyClick(ventana, Qt::Key_F, Qt::ControlModifier);
    auto& campo = Control<QLineEdit>(escritorio.Principal(), "txtBuscar");
    ASSERT_TRUE(Espera([&] { return campo.hasFocus(); }));
    apoyo::Teclea(campo, "qsale");
    EXPECT_EQ(elegido(), "Qsale");
    QTest::keyClick(ventana, Qt::Key_F3);
    EXPECT_TRUE(Espera([&] { return elegido() == "qsale"; }));
    texto.setFocus();
    QTest::keyClick(ventana, Qt::Key_F3);
    EXPECT_TRUE(Espera([&] { return elegido() == "Qsale"; }));
    EXPECT_TRUE(Editor() == nullptr || !Editor()->isVisible());
    campo.setFocus();
    QTest::keyClick(ventana, Qt::Key_Escape);
    ASSERT_TRUE(Espera([&] { return texto.hasFocus(); }));
    QTest::keyClick(ventana, Qt::Key_F3);
    EXPECT_TRUE(Espera([&] { return Editor() != nullptr && Editor()->isVisible(); }));
}

TEST_F(EscritorioDePrueba, CerrarLaPizarraPorSuMarcoQuitaLaMarcaDelMenu)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    QWidget& pizarra = Control<QWidget>(escritorio.Principal(), "frmPp");
    pizarra.parentWidget()->close();
    EXPECT_FALSE(Accion("mnuPizarra1").isChecked());
    EXPECT_FALSE(escritorio.s.Control.SalidaPizarra);
}

TEST_F(EscritorioDePrueba, ElAvanceSeVeConSusTextosYSePuedeCerrarPorSuMarco)
{
    Arranca();
    model::Anfitrion& a = escritorio.s.Anfitrion;
    a.AbreAvance("SIRO procesando...");
    a.TextosAvance("Un momento...", "");
    QWidget& avance = Control<QWidget>(escritorio.Principal(), "frmPp2");
    EXPECT_TRUE(avance.isVisible());
    EXPECT_EQ(avance.windowTitle(), QStringLiteral("SIRO procesando..."));
    EXPECT_EQ(Control<QLabel>(avance, "lblPrimero").text(), QStringLiteral("Un momento..."));
    avance.close();
    EXPECT_FALSE(escritorio.avance.abierta);
    a.BarraAvance(50);  // a run that goes on doesn't bring it back
    EXPECT_FALSE(avance.isVisible());
    a.AbreAvance("otra");
    EXPECT_TRUE(avance.isVisible());
    a.CierraAvance();
    EXPECT_FALSE(avance.isVisible());
}

TEST_F(EscritorioDePrueba, ElEditorDeLaRedTomaElLugarDeLaVentanaPrincipalYLoDevuelve)
{
    Arranca(instalacion.Quelmar());
    QWidget* editor = nullptr;
    for (QWidget* const w : QApplication::topLevelWidgets())
        if (w->objectName() == QStringLiteral("frmUEHs")) editor = w;
    ASSERT_NE(editor, nullptr);
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    EXPECT_FALSE(escritorio.Principal().isVisible());
    EXPECT_GT(escritorio.s.Red.ColUEHs.Cuenta(), 0);
    editor->close();
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(escritorio.Principal().isVisible());
}

TEST_F(EscritorioDePrueba, LaTablaDeParametrosEstaJuntoALasOtrasVentanasYElEditorDeTablaEsModal)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHsTabla").trigger();
    auto* const tabla = escritorio.Principal().findChild<QWidget*>(QStringLiteral("dlgUEHsTabla"));
    ASSERT_NE(tabla, nullptr);
    EXPECT_TRUE(tabla->isVisible());
    bool vista = false;
    QTimer mira;
    QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
        auto* const forma = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (forma == nullptr) return;
        vista = forma->objectName() == QStringLiteral("dlgUEHsEditTabla");
        forma->reject();
    });
    mira.start(5);
    Accion("mnuEditfrmUEHsTabla").trigger();
    EXPECT_TRUE(vista);
}

TEST_F(EscritorioDePrueba, SinProyectoElEditorSeCierraYLaVentanaPrincipalVuelve)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHs").trigger();
    EXPECT_FALSE(escritorio.Principal().isVisible());
    escritorio.s.Proyecto.NombreProyecto.clear();
    Accion("mnufrmUEHs").trigger();
    EXPECT_EQ(anfitrion->Avisos().back().titulo, TituloSinProyecto);
    EXPECT_TRUE(escritorio.Principal().isVisible());
}

// The window would become the splash's own and go with it, long before whoever has it lets it go.
TEST_F(EscritorioDePrueba, DuranteLaPortadaNoCorreNingunaOrdenDelMenu)
{
    QTimer::singleShot(50, &escritorio.entorno, [&] { Accion("mnuEmpiricos").trigger(); });
    escritorio.Arranca(0.3, {});
    QTest::qWait(1);
    for (const QWidget* const ventana : QApplication::topLevelWidgets())
        EXPECT_TRUE(!ventana->isVisible() || ventana == &escritorio.Principal())
            << DeQ(ventana->objectName());
    EXPECT_EQ(escritorio.Principal().Ventanas().subWindowList().size(), 0);
    Accion("mnuEmpiricos").trigger();
    EXPECT_EQ(escritorio.Principal().Ventanas().subWindowList().size(), 1);
}

TEST_F(EscritorioDePrueba, DosVentanasQueSePidenUnaAOtraNoSonDuenasUnaDeOtra)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHs").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
    QWidget una;
    QWidget otra;
    escritorio.entorno.Presenta(una);
    ASSERT_TRUE(apoyo::Espera([&] { return QApplication::activeWindow() == &una; }));
    escritorio.entorno.Presenta(otra);
    ASSERT_TRUE(apoyo::Espera([&] { return QApplication::activeWindow() == &otra; }));
    EXPECT_EQ(otra.parentWidget(), &una);
    escritorio.entorno.Presenta(una);
    EXPECT_EQ(una.parentWidget(), Editor());
    EXPECT_EQ(otra.parentWidget(), &una);
    EXPECT_TRUE(apoyo::Espera([&] { return QApplication::activeWindow() == &una; }));
}

TEST_F(EscritorioDePrueba, LaVentanaQueSigueAbiertaAlTerminarTambienRecuerdaSuLugar)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuEmpiricos").trigger();
    QTimer::singleShot(0, &escritorio.entorno, [&] { Accion("mnuSalir").trigger(); });
    escritorio.s.Anfitrion.Termina = [] { throw model::FinDelPrograma{}; };
    EXPECT_FALSE(escritorio.entorno.Ajustes().contains(QStringLiteral("ventanas/dlgEmpiricas")));
    escritorio.Atiende();
    EXPECT_TRUE(escritorio.entorno.Ajustes().contains(QStringLiteral("ventanas/dlgEmpiricas")));
    escritorio.entorno.Ajustes().clear();
}

// As when the program ends while the form is open.
TEST_F(EscritorioDePrueba, UnFormularioQueDesapareceSinTerminarNoSeLlevaLaVentanaQuePidio)
{
    Arranca();
    QWidget grafico;
    {
        QDialog formulario;
        formulario.setModal(true);
        formulario.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&formulario));
        escritorio.entorno.Presenta(grafico);
        ASSERT_EQ(grafico.parentWidget(), &formulario);
    }
    EXPECT_EQ(grafico.parentWidget(), nullptr);
    EXPECT_FALSE(grafico.isVisible());
}

TEST_F(EscritorioDePrueba, UnaVentanaPedidaDesdeUnFormularioModalEsSuyaYSeCierraConEl)
{
    Arranca();
    QWidget grafico;
    grafico.setObjectName(QStringLiteral("grafico"));
    escritorio.entorno.Presenta(grafico);
    EXPECT_TRUE(escritorio.Principal().isAncestorOf(&grafico));
    QDialog formulario;
    QTimer::singleShot(0, &formulario, [&] {
        escritorio.entorno.Presenta(grafico);
        EXPECT_EQ(grafico.parentWidget(), &formulario);
        EXPECT_TRUE(grafico.isWindow());
        EXPECT_TRUE(grafico.isVisible());
        formulario.accept();
    });
    formulario.exec();
    EXPECT_FALSE(grafico.isVisible());
    EXPECT_EQ(grafico.parentWidget(), nullptr);
    escritorio.entorno.Presenta(grafico);
    EXPECT_TRUE(escritorio.Principal().isAncestorOf(&grafico));
}

TEST_F(EscritorioDePrueba, LoQueUnaVezPidioUnFormularioModalNoSeCierraConElOtraVez)
{
    Arranca();
    QWidget grafico;
    QDialog formulario;
    QTimer::singleShot(0, &formulario, [&] {
        escritorio.entorno.Presenta(grafico);
        formulario.accept();
    });
    formulario.exec();
    EXPECT_FALSE(grafico.isVisible());
    escritorio.entorno.Presenta(grafico);
    QTimer::singleShot(0, &formulario, &QDialog::accept);
    formulario.exec();
    EXPECT_TRUE(grafico.isVisible());
    EXPECT_TRUE(escritorio.Principal().isAncestorOf(&grafico));
}

TEST_F(EscritorioDePrueba, LaPizarraAbiertaSobreviveAlFormularioQueLaTrajoAlFrente)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    auto& pizarra = Control<QWidget>(escritorio.Principal(), "frmPp");
    QDialog formulario;
    QTimer::singleShot(0, &formulario, [&] {
        escritorio.s.Anfitrion.AbrePizarra();
        EXPECT_EQ(pizarra.parentWidget(), &formulario);
        formulario.accept();
    });
    formulario.exec();
    EXPECT_TRUE(pizarra.isVisible());
    EXPECT_TRUE(escritorio.Principal().isAncestorOf(&pizarra));
    EXPECT_TRUE(escritorio.s.Control.SalidaPizarra);
    EXPECT_TRUE(Accion("mnuPizarra1").isChecked());
}

TEST_F(EscritorioDePrueba, LaPizarraQueSeCerroEnElFormularioNoVuelveAAbrirse)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    auto& pizarra = Control<QWidget>(escritorio.Principal(), "frmPp");
    QDialog formulario;
    QTimer::singleShot(0, &formulario, [&] {
        escritorio.s.Anfitrion.AbrePizarra();
        pizarra.close();
        formulario.accept();
    });
    formulario.exec();
    EXPECT_FALSE(pizarra.isVisible());
    EXPECT_FALSE(escritorio.s.Control.SalidaPizarra);
    EXPECT_FALSE(Accion("mnuPizarra1").isChecked());
}

TEST_F(EscritorioDePrueba, ElHidrogramaSeAbreAlTerminarLaCorrida)
{
    Arranca(instalacion.Quelmar());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    QTest::keyClick(&escritorio.Principal(), Qt::Key_F5);
    EXPECT_TRUE(escritorio.hidrograma.abierta);
    EXPECT_TRUE(Control<QWidget>(escritorio.Principal(), "dlgChart2").isVisible());
}

TEST_F(EscritorioDePrueba, ElHietogramaAbiertoQuedaCuandoLaTormentaPideElSuyo)
{
    Arranca(instalacion.Quelmar());
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    QTest::keyClick(&escritorio.Principal(), Qt::Key_F8);
    auto& delMenu = Control<QWidget>(escritorio.Principal(), "dlgChart1");
    ASSERT_TRUE(delMenu.isVisible());
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& dialogo) {
        ASSERT_EQ(dialogo.objectName(), QStringLiteral("dlgPp"));
        apoyo::Pulsa(Control<QWidget>(dialogo, "cmdVerGrafico"));
        // The dialog's own stands over it; the other one is still where it was.
        const auto* const suyo = dialogo.findChild<QWidget*>(QStringLiteral("dlgChart1"));
        EXPECT_TRUE(suyo != nullptr && suyo->isVisible());
        EXPECT_TRUE(escritorio.Principal().isAncestorOf(&delMenu));
        EXPECT_TRUE(delMenu.isVisible());
        dialogo.close();
    });
    QTest::keyClick(&escritorio.Principal(), Qt::Key_F4);
    EXPECT_TRUE(delMenu.isVisible());
    EXPECT_TRUE(escritorio.hietograma.abierta);
    EXPECT_FALSE(escritorio.hietogramaDeLluvia.abierta);
}

TEST_F(EscritorioDePrueba, ElEditorEscondeLaVentanaPrincipalMientrasEstaAbierto)
{
    Arranca(instalacion.Quelmar());
    Accion("mnufrmUEHs").trigger();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_FALSE(escritorio.Principal().isVisible());
    EXPECT_GT(escritorio.s.Red.NroUEHs(), 0);
    Editor()->close();
    EXPECT_TRUE(escritorio.Principal().isVisible());
    EXPECT_FALSE(escritorio.entorno.Terminando());
}

TEST_F(EscritorioDePrueba, SinProyectoElEditorNoSeAbre)
{
    Arranca();
    Accion("mnufrmUEHs").trigger();
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_TRUE(escritorio.Principal().isVisible());
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
}

TEST_F(EscritorioDePrueba, LaConfiguracionDelMenuEsperaYDespuesRefrescaLosRotulos)
{
    Arranca(instalacion.Quelmar());
    EXPECT_EQ(Rotulo("lblTitulo"), "");
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) {
        EXPECT_EQ(caja.objectName(), QStringLiteral("frmConfigura"));
        caja.close();
    });
    Accion("mnuOpcionesConfigurar").trigger();
    EXPECT_EQ(Rotulo("lblTitulo"), escritorio.s.frmConfigura.TextProyecto);
    EXPECT_FALSE(Rotulo("lblTitulo").empty());
}

TEST_F(EscritorioDePrueba, LaConfiguracionDeLaBarraNoEsperaNiRefresca)
{
    Arranca(instalacion.Quelmar());
    apoyo::Pulsa(Control<QToolButton>(escritorio.Principal(), "Configurar"));
    auto& dialogo = Control<QDialog>(escritorio.Principal(), "frmConfigura");
    EXPECT_TRUE(dialogo.isVisible());
    EXPECT_FALSE(dialogo.isModal());
    EXPECT_EQ(Rotulo("lblTitulo"), "");
}

TEST_F(EscritorioDePrueba, NingunaVentanaDelAreaTomaLaLetraDeUnMenu)
{
    Arranca(instalacion.Quelmar());
    QStringList delMenu;
    for (const QAction* menu : escritorio.Principal().menuBar()->actions())
        delMenu << QKeySequence::mnemonic(menu->text()).toString();
    EXPECT_EQ(delMenu.removeAll(QString()), 0);
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    for (const char* const entrada :
         {"mnuPizarra1", "mnuEmpiricos", "mnuGraficoPDRComponente", "mnuGráficoPp"})
        Accion(entrada).trigger();
    for (const char* const nombre : {"frmPp", "dlgEmpiricas", "dlgChart3", "dlgChart1"}) {
        QStringList leyendas;
        const auto& ventana = Control<QWidget>(escritorio.Principal(), nombre);
        for (const QAbstractButton* boton : ventana.findChildren<QAbstractButton*>())
            leyendas << boton->text();
        for (const QLabel* rotulo : ventana.findChildren<QLabel*>())
            if (rotulo->buddy() != nullptr) leyendas << rotulo->text();
        EXPECT_FALSE(leyendas.isEmpty()) << nombre;
        for (const QString& leyenda : leyendas)
            EXPECT_FALSE(delMenu.contains(QKeySequence::mnemonic(leyenda).toString()))
                << nombre << ": " << DeQ(leyenda);
    }
}

TEST_F(EscritorioDePrueba, LaAyudaEntregadaSeAbreEntreLasVentanas)
{
    Arranca();
    QTest::keyClick(&escritorio.Principal(), Qt::Key_F1);
    auto& paginas = Control<QTextBrowser>(escritorio.Principal(), "Paginas");
    EXPECT_TRUE(paginas.isVisible());
    EXPECT_TRUE(paginas.toPlainText().contains(QStringLiteral("Un primer cálculo")));
    EXPECT_EQ(apoyo::SinNombre(*paginas.window()), std::vector<std::string>{});
    EXPECT_FALSE(escritorio.entorno.Terminando());
}

TEST_F(EscritorioDePrueba, F1EnUnaVentanaAbreSuPaginaYNoElIndice)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuPizarra1").trigger();
    auto& pizarra = Control<QWidget>(escritorio.Principal(), "frmPp");
    auto& texto = Control<QWidget>(pizarra, "Text1");
    texto.setFocus();
    QTest::keyClick(&texto, Qt::Key_F1);
    auto& paginas = Control<QTextBrowser>(escritorio.Principal(), "Paginas");
    EXPECT_TRUE(paginas.isVisible());
    EXPECT_EQ(paginas.source().fileName(), QStringLiteral("frmPp.html"));
    EXPECT_TRUE(paginas.toPlainText().contains(QStringLiteral("Pizarra")));
}

TEST_F(EscritorioDePrueba, LaAyudaRecorreSusPaginasYBuscaEnEllas)
{
    Arranca();
    Accion("mnuHelpContents").trigger();
    QMainWindow& principal = escritorio.Principal();
    auto& paginas = Control<QTextBrowser>(principal, "Paginas");
    auto& contenido = Control<QListWidget>(principal, "Contenido");
    auto& atras = Control<QPushButton>(principal, "cmdAtras");
    auto& adelante = Control<QPushButton>(principal, "cmdAdelante");
    const auto pagina = [&] { return DeQ(paginas.source().fileName()); };
    EXPECT_EQ(pagina(), "indice.html");
    EXPECT_GT(contenido.count(), 20);
    EXPECT_FALSE(atras.isEnabled());

    const auto tutorial = contenido.findItems(QStringLiteral("Tutorial"), Qt::MatchStartsWith);
    ASSERT_EQ(tutorial.size(), 1);
    QTest::mouseClick(contenido.viewport(), Qt::LeftButton, {},
                      contenido.visualItemRect(tutorial[0]).center());
    EXPECT_EQ(pagina(), "tutorial.html");
    apoyo::Pulsa(atras);
    EXPECT_EQ(pagina(), "indice.html");
    apoyo::Pulsa(adelante);
    EXPECT_EQ(pagina(), "tutorial.html");
    EXPECT_EQ(contenido.currentItem(), tutorial[0]);

    auto& buscado = Control<QLineEdit>(principal, "txtBuscar");
    auto& aviso = Control<QLabel>(principal, "lblBusqueda");
    apoyo::Escribe(buscado, "muskingum");
    QTest::keyClick(&buscado, Qt::Key_Return);
    EXPECT_EQ(paginas.textCursor().selectedText().toLower(), QStringLiteral("muskingum"));
    EXPECT_EQ(aviso.text(), QString());
    apoyo::Escribe(buscado, "xyzzy");
    QTest::keyClick(&buscado, Qt::Key_Return);
    EXPECT_EQ(aviso.text(), QStringLiteral("No está en la ayuda"));
    EXPECT_EQ(pagina(), "tutorial.html");
    apoyo::Pulsa(Control<QPushButton>(principal, "cmdInicio"));
    EXPECT_EQ(pagina(), "indice.html");
    EXPECT_EQ(aviso.text(), QString());
}

// "Gauguillet" is a formula of the calculator, and no other page names it.
TEST_F(EscritorioDePrueba, LaAyudaBuscaEnTodasSusPaginas)
{
    Arranca();
    Accion("mnuHelpContents").trigger();
    QMainWindow& principal = escritorio.Principal();
    auto& paginas = Control<QTextBrowser>(principal, "Paginas");
    auto& buscado = Control<QLineEdit>(principal, "txtBuscar");
    auto& aviso = Control<QLabel>(principal, "lblBusqueda");
    apoyo::Escribe(buscado, "gauguillet");
    QTest::keyClick(&buscado, Qt::Key_Return);
    EXPECT_EQ(DeQ(paginas.source().fileName()), "dlgEmpiricas.html");
    EXPECT_EQ(paginas.textCursor().selectedText().toLower(), QStringLiteral("gauguillet"));
    EXPECT_EQ(aviso.text(), QString());
    // A word of the first page, from a page behind it: around the end of the contents.
    apoyo::Escribe(buscado, "Un primer cálculo");
    QTest::keyClick(&buscado, Qt::Key_Return);
    EXPECT_EQ(DeQ(paginas.source().fileName()), "indice.html");
    EXPECT_EQ(aviso.text(), QStringLiteral("Sigue desde el principio"));
}

TEST_F(EscritorioDePrueba, ElContenidoDeLaAyudaSeLeeEntero)
{
    Arranca();
    Accion("mnuHelpContents").trigger();
    auto& contenido = Control<QListWidget>(escritorio.Principal(), "Contenido");
    EXPECT_GE(contenido.viewport()->width(), contenido.sizeHintForColumn(0));
}

TEST_F(EscritorioDePrueba, ConLaPrincipalOcultaLaAyudaSeVeIgual)
{
    Arranca();
    QWidget editor;
    editor.setObjectName(QStringLiteral("frmUEHs"));
    escritorio.Principal().hide();
    apoyo::Muestra(editor);
    escritorio.entorno.AbreAyuda("frmUEHs");
    auto& paginas = Control<QTextBrowser>(editor, "Paginas");
    EXPECT_TRUE(paginas.isVisible());
    EXPECT_TRUE(paginas.window()->isWindow());
    EXPECT_EQ(paginas.source().fileName(), QStringLiteral("frmUEHs.html"));
    editor.close();
    escritorio.Principal().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&escritorio.Principal()));
    escritorio.entorno.AbreAyuda("frmPp");
    EXPECT_TRUE(escritorio.Principal().isAncestorOf(&paginas));
}

TEST_F(EscritorioDePrueba, SalirAnotaElProyectoYTermina)
{
    Arranca(instalacion.Quelmar());
    Accion("mnuSalir").trigger();
    EXPECT_TRUE(escritorio.entorno.Terminando());
    EXPECT_EQ(escritorio.Atiende(), 0);
    EXPECT_EQ(BytesPuntero(), "\"" + instalacion.Proyectos() + "\"\r\n\"Quelmar\"\r\n");
}

// --- splash, About, delete ---

// As long as the splash stands, the program sleeps until there are events and doesn't go round and round for
// them.
TEST_F(EscritorioDePrueba, LaPortadaEsperaSinOcuparElProcesador)
{
    int esperas = 0;
    const auto cuenta = QObject::connect(QAbstractEventDispatcher::instance(),
                                         &QAbstractEventDispatcher::aboutToBlock, [&] { ++esperas; });
    escritorio.Arranca(0.1, {});
    QObject::disconnect(cuenta);
    EXPECT_GT(esperas, 0);
    EXPECT_TRUE(escritorio.Principal().isVisible());
}

TEST(Portada, DiceProductoYVersion)
{
    frmInicio_ventana portada;
    portada.Abre("Version 1.2.3");
    EXPECT_EQ(Control<QLabel>(portada, "lblProducto").text(), QStringLiteral("SIRO"));
    EXPECT_EQ(Control<QLabel>(portada, "lblVersion").text(), QStringLiteral("Version 1.2.3"));
}

TEST(Acerca, DiceVersionYMuestraElSistema)
{
    apoyo::Mundo mundo;
    frmAcerca_ventana acerca(mundo.entorno);
    apoyo::Muestra(acerca);
    EXPECT_EQ(apoyo::SinNombre(acerca), std::vector<std::string>{});
    EXPECT_TRUE(Control<QLabel>(acerca, "lblVersion").text().startsWith(QStringLiteral("Version ")));
    apoyo::Pulsa(Control<QPushButton>(acerca, "cmdSysInfo"));
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_NE(mundo.anfitrion->Avisos()[0].texto.find("Qt "), std::string::npos);
    apoyo::Pulsa(Control<QPushButton>(acerca, "OKButton"));
    EXPECT_FALSE(acerca.isVisible());
}

struct Eliminar : testing::Test {
    Eliminar()
    {
        mundo.s.Proyecto.DirProyecto = instalacion.Proyectos();
        mundo.s.Proyecto.NombreProyecto = "Abierto";
        QFile::copy(Q(instalacion.Quelmar()), Q(instalacion.Proyectos() + "/Otro_Conf.vlm"));
        QFile::copy(Q(instalacion.Quelmar()), Q(instalacion.Proyectos() + "/Otros_UEHs.vlm"));
        f.Abre(mundo.s);
        ventana.Muestra();
        apoyo::Muestra(ventana);
    }
    bool Esta(const char* nombre) const { return QFile::exists(Q(instalacion.Proyectos() + "/" + nombre)); }

    Instalacion instalacion{};
    apoyo::Mundo mundo{};
    model::dlgEliminarProyecto f{};
    dlgEliminarProyecto_ventana ventana{mundo.entorno, f};
    const std::vector<model::Mensaje> pregunta{
        {"¿Está seguro de borrar los archivos del Proyecto <Abierto> ? ", "Consulta",
         model::Icono::Pregunta}};
};

TEST_F(Eliminar, TodoTieneNombre)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
}

TEST_F(Eliminar, MuestraElDirectorioLosProyectosYNinguno)
{
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblDirProyecto").text()), instalacion.Proyectos());
    EXPECT_EQ(Control<QLabel>(ventana, "lblProyectoAEliminar").text(), QStringLiteral("Ninguno"));
    auto& lista = Control<QListWidget>(ventana, "filProyectoEliminar");
    ASSERT_EQ(lista.count(), 2);
    EXPECT_EQ(lista.item(0)->text(), QStringLiteral("Otro_Conf.vlm"));
    EXPECT_TRUE(lista.selectedItems().isEmpty());
}

TEST_F(Eliminar, ConNingunoPreguntaIgualYNoBorraNada)
{
    apoyo::Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_EQ(mundo.anfitrion->Preguntas(), pregunta);
    EXPECT_TRUE(Esta("Otro_Conf.vlm"));
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(Eliminar, ElElegidoSeVaConLosQueEmpiezanIgualYElDialogoSeCierra)
{
    auto& lista = Control<QListWidget>(ventana, "filProyectoEliminar");
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(0)).center());
    EXPECT_EQ(Control<QLabel>(ventana, "lblProyectoAEliminar").text(), QStringLiteral("Otro_Conf.vlm"));
    apoyo::Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_EQ(mundo.anfitrion->Preguntas(), pregunta);
    EXPECT_FALSE(Esta("Otro_Conf.vlm"));
    EXPECT_FALSE(Esta("Otros_UEHs.vlm"));
    EXPECT_TRUE(Esta("Quelmar_Conf.vlm"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_EQ(mundo.s.Proyecto.NombreProyecto, "Abierto");
}

TEST_F(Eliminar, UnNoDejaTodo)
{
    mundo.anfitrion->respuestas = {false};
    auto& lista = Control<QListWidget>(ventana, "filProyectoEliminar");
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(Control<QLabel>(ventana, "lblProyectoAEliminar").text(), QStringLiteral("Quelmar_Conf.vlm"));
    apoyo::Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_TRUE(Esta("Quelmar_Conf.vlm"));
    EXPECT_TRUE(ventana.isVisible());
    apoyo::Pulsa(Control<QPushButton>(ventana, "CancelButton"));
    EXPECT_FALSE(ventana.isVisible());
}

}  // namespace
}  // namespace shell
