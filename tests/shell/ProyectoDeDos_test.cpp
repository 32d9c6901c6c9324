// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QSysInfo>
#include <QTemporaryDir>

#include "EscritorioDePrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/ArchivoConf.h"
#include "model/Candado.h"
#include "shell/Candado_ventana.h"

// A project under two hands: the editor's and a command's, this program's and another one's.
namespace shell {
namespace {

using apoyo::Control;
using forms::DeQ;
using forms::Q;
using model::Resguardo;

/// The sample project and a copy of its own, "Otro", both in the same folder; the editor open on the first
/// with a UEH placed by a click.
struct BajoElEditor : EscritorioDePrueba {
    BajoElEditor()
    {
        anfitrion->respuestaDeSiempre = false;  // what the validation finds keeps nobody back
        for (const char* const fin : {"_Conf.vlm", "_UEHs.vlm"}) {
            std::string bytes = Lee("Quelmar", fin);
            bytes.replace(bytes.find("Quelmar"), 7, "Otro");
            escritorio.s.Disco.Escribe(Ruta("Otro", fin), bytes);
        }
        escritorio.s.Disco.Copia(Ruta("Quelmar", "_VerCau.vlm"), Ruta("Otro", "_VerCau.vlm"));
        otraRed = Lee("Otro", "_UEHs.vlm");
        red = Lee("Quelmar", "_UEHs.vlm");
    }
    std::string Ruta(const std::string& proyecto, const char* fin) const
    {
        return instalacion.Proyectos() + "/" + proyecto + fin;
    }
    std::string Lee(const std::string& proyecto, const char* fin) const
    {
        return escritorio.s.Disco.Lee(Ruta(proyecto, fin));
    }
    void AbreYDibuja()
    {
        Arranca(instalacion.Quelmar());
        Accion("mnufrmUEHs").trigger();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Editor()));
        uehs = escritorio.s.Red.ColUEHs.Cuenta();
        Editor()->findChild<QAction*>(QStringLiteral("btn_toolbarUEH"))->trigger();
        anfitrion->textos = {"nueva"};
        auto& lienzo = Control<QWidget>(*Editor(), "picDibujo");
        QTest::mouseClick(lienzo.window()->windowHandle(), Qt::LeftButton, {},
                          lienzo.mapTo(lienzo.window(), QPoint(40, 40)));
        ASSERT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1);
        anfitrion->sucesos.clear();
    }
    std::vector<model::Mensaje> Resguardos() const
    {
        return anfitrion->Mensajes(apoyo::Suceso::Clase::Resguardo);
    }
    /// Picks the other project in the configuration that stands beside the windows.
    void EligeOtro()
    {
        escritorio.Abre(Ventana::frmConfigura, false);
        auto& dialogo = Control<QWidget>(escritorio.Principal(), "frmConfigura");
        auto& lista = Control<QListWidget>(dialogo, "filArchivoConfigura");
        const auto filas = lista.findItems(QStringLiteral("Otro_Conf.vlm"), Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(filas[0]).center());
    }
    std::string red, otraRed;
    int uehs = 0;
};

TEST_F(BajoElEditor, OtroProyectoElegidoEnLaConfiguracionNoRecibeLaRedDelQueSeDibuja)
{
    AbreYDibuja();
    EligeOtro();
    EXPECT_EQ(Resguardos().size(), 1U);
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Quelmar") << "cancelled";
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1);

    anfitrion->resguardos = {Resguardo::SeguirSinGuardar};
    EligeOtro();
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Otro");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Lee("Otro", "_UEHs.vlm"), otraRed);
    EXPECT_EQ(Lee("Quelmar", "_UEHs.vlm"), red);
}

TEST_F(BajoElEditor, ReabrirElUltimoGuardaAntesLoQueSePide)
{
    AbreYDibuja();
    Accion("mnu_ultimoarchivo1").trigger();
    EXPECT_EQ(Resguardos().size(), 1U);
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1) << "cancelled";
    anfitrion->resguardos = {Resguardo::Guardar};
    Accion("mnu_ultimoarchivo1").trigger();
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_NE(Lee("Quelmar", "_UEHs.vlm").find("\"u-nueva\""), std::string::npos);
    EXPECT_TRUE(escritorio.Principal().isVisible());
}

TEST_F(BajoElEditor, F3DeLaPrincipalAlzaElEditorYNoReleeNada)
{
    AbreYDibuja();
    escritorio.Principal().show();
    escritorio.Principal().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&escritorio.Principal()));
    QTest::keyClick(&escritorio.Principal(), Qt::Key_F3);
    EXPECT_TRUE(QTest::qWaitForWindowActive(Editor()));
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(BajoElEditor, UnaCorridaSobreUnDibujoSinGuardarSePregunta)
{
    AbreYDibuja();
    escritorio.s.Tormenta.PpTormenta = 80;
    escritorio.s.Tormenta.DurTormenta = 120;
    Accion("mnuCorre1").trigger();
    EXPECT_EQ(Resguardos().size(), 1U);
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1);
    EXPECT_FALSE(escritorio.hidrograma.abierta);
    anfitrion->resguardos = {Resguardo::SeguirSinGuardar};
    Accion("mnuCorre1").trigger();
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs);
    EXPECT_EQ(Lee("Quelmar", "_UEHs.vlm"), red);
}

TEST_F(BajoElEditor, LaLluviaPorUEHSePregunta)
{
    AbreYDibuja();
    rainfall::dlgTablaPpUEHs tabla;
    rainfall::Abre(tabla, escritorio.s);
    EXPECT_EQ(Resguardos().size(), 1U);
    EXPECT_FALSE(tabla.abierta);
    EXPECT_EQ(escritorio.s.Red.ColUEHs.Cuenta(), uehs + 1);
}

// --- another program ---

struct ConCandado : EscritorioDePrueba {
    ConCandado()
    {
        qputenv("XDG_DATA_HOME", datos.path().toLocal8Bit());
        // At home already: its first opening would store it anew.
        model::Siro deAntes;
        deAntes.Disco = escritorio.s.Disco;
        deAntes.Proyecto.DirProyecto = instalacion.Proyectos();
        deAntes.Proyecto.NombreProyecto = "Quelmar";
        model::leoConf(deAntes);
    }
    ~ConCandado() override { qputenv("XDG_DATA_HOME", antes); }
    std::string Lugar() const { return model::RutaDeCandado(instalacion.Quelmar()); }
    QByteArray antes = qgetenv("XDG_DATA_HOME");
    QTemporaryDir datos{};
};

TEST_F(ConCandado, ElProyectoAbiertoEstaReclamadoYElSegundoLoDice)
{
    Arranca(instalacion.Quelmar());
    EXPECT_TRUE(QFile::exists(Q(Lugar())));
    EXPECT_TRUE(anfitrion->Avisos().empty());
    Candado segundo;
    EXPECT_NE(segundo.Toma(instalacion.Quelmar()).find("proceso "), std::string::npos);
}

TEST_F(ConCandado, ConElProyectoEnOtroProgramaSeAvisaYSePreguntaAntesDeGuardar)
{
    Candado primero;
    ASSERT_EQ(primero.Toma(instalacion.Quelmar()), "");
    Arranca(instalacion.Quelmar());
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].titulo, "Proyecto abierto dos veces");
    EXPECT_NE(anfitrion->Avisos()[0].texto.find(DeQ(QSysInfo::machineHostName())), std::string::npos);
    const std::string guardada = escritorio.s.Disco.Lee(instalacion.Quelmar());
    anfitrion->respuestas = {false};
    escritorio.s.frmConfigura.TextProyecto = "otro título";
    EXPECT_FALSE(model::cmdAplicar(escritorio.s));
    EXPECT_EQ(escritorio.s.Disco.Lee(instalacion.Quelmar()), guardada);
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    primero.Toma("");
    EXPECT_TRUE(model::cmdAplicar(escritorio.s));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U) << "it has gone meanwhile";
}

TEST_F(ConCandado, ElSegundoTomaElProyectoCuandoElPrimeroSeFueYElTerceroLoSabe)
{
    Candado primero, tercero;
    ASSERT_EQ(primero.Toma(instalacion.Quelmar()), "");
    Arranca(instalacion.Quelmar());
    EXPECT_TRUE(model::cmdAplicar(escritorio.s));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U) << "answered with Yes";
    primero.Toma("");
    EXPECT_TRUE(model::cmdAplicar(escritorio.s));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_NE(tercero.Toma(instalacion.Quelmar()), "");
}

TEST_F(ConCandado, ElQueDejoUnProgramaMuertoNoCuenta)
{
    QFile viejo(Q(Lugar()));
    ASSERT_TRUE(viejo.open(QIODevice::WriteOnly));
    // A process number above those that the system gives.
    viejo.write("4999999\nsiro\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n");
    viejo.close();
    Arranca(instalacion.Quelmar());
    EXPECT_TRUE(anfitrion->Avisos().empty());
    Candado segundo;
    EXPECT_NE(segundo.Toma(instalacion.Quelmar()), "");
}

TEST_F(ConCandado, AlPasarAOtroProyectoElDeAntesQuedaLibre)
{
    Candado primero, segundo;
    EXPECT_EQ(primero.Toma(instalacion.Quelmar()), "");
    EXPECT_EQ(primero.Toma(instalacion.Proyectos() + "/Otro_Conf.vlm"), "");
    EXPECT_FALSE(QFile::exists(Q(Lugar())));
    EXPECT_EQ(segundo.Toma(instalacion.Quelmar()), "");
    EXPECT_NE(segundo.Toma(instalacion.Proyectos() + "/Otro_Conf.vlm"), "");
}

TEST_F(ConCandado, DondeLaCarpetaNoTomaArchivosElCandadoEstaEnLaDelUsuario)
{
    const std::string conf = instalacion.Dir() + "/no hay/X_Conf.vlm";
    Candado primero, segundo;
    EXPECT_EQ(primero.Toma(conf), "");
    EXPECT_NE(segundo.Toma(conf), "");
    EXPECT_EQ(QDir(datos.path() + QStringLiteral("/SIRO/siro/candados")).entryList(QDir::Files).size(), 1);
}

TEST_F(ConCandado, LoQueSeBorraVaALaPapelera)
{
    const std::string ruta = instalacion.Proyectos() + "/Sobra_Conf.vlm";
    escritorio.s.Disco.Escribe(ruta, "x");
    EXPECT_TRUE(escritorio.s.Anfitrion.TiraAPapelera(ruta));
    EXPECT_FALSE(QFile::exists(Q(ruta)));
    EXPECT_TRUE(QFile::exists(datos.path() + QStringLiteral("/Trash/files/Sobra_Conf.vlm")));
    EXPECT_FALSE(escritorio.s.Anfitrion.TiraAPapelera(ruta)) << "gone already";
}

}  // namespace
}  // namespace shell
