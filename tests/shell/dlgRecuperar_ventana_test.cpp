// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgRecuperar_ventana.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "editor/lienzo/VistaDeRed_ventana.h"
#include "shell/GuardaDeDiario_ventana.h"

// A program that goes with a drawing unsaved, and the next one, which offers it.
namespace shell {
namespace {

using apoyo::Control;
using forms::DeQ;
using forms::Q;

struct Caida : testing::Test {
    ~Caida() override { escritorio.reset(); }

    /// A program that starts on the sample project; the one before goes.
    void Arranca()
    {
        escritorio.reset();
        escritorio = std::make_unique<Escritorio>(instalacion.Dir(), DeQ(casa.path()) + "/mi casa");
        model::Anfitrion& a = escritorio->s.Anfitrion;
        const model::Anfitrion prueba = anfitrion.Puerta();
        a.Avisa = prueba.Avisa;
        a.Pregunta = prueba.Pregunta;
        a.PideResguardo = prueba.PideResguardo;
        a.PideTexto = prueba.PideTexto;
        a.TiraAPapelera = prueba.TiraAPapelera;
        escritorio->Arranca(0, instalacion.Quelmar());
    }
    static QWidget& Editor()
    {
        for (QWidget* const ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == QLatin1String("frmUEHs")) return *ventana;
        throw std::runtime_error("no editor");
    }
    void AbreEditor()
    {
        escritorio->Principal().findChild<QAction*>(QStringLiteral("mnufrmUEHs"))->trigger();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Editor()));
        uehs = Uehs();
    }
    /// A UEH placed by a click.
    void Dibuja(const char* nombre, QPoint donde = {40, 40})
    {
        Editor().findChild<QAction*>(QStringLiteral("btn_toolbarUEH"))->trigger();
        anfitrion->textos = {nombre};
        auto& lienzo = Control<QWidget>(Editor(), "picDibujo");
        QTest::mouseClick(lienzo.window()->windowHandle(), Qt::LeftButton, {},
                          lienzo.mapTo(lienzo.window(), donde));
    }
    [[nodiscard]] int Uehs() const { return escritorio->s.Red.ColUEHs.Cuenta(); }
    [[nodiscard]] std::vector<std::string> Diarios() const
    {
        std::vector<std::string> nombres;
        model::Sentencia([&] { nombres = escritorio->s.Disco.Lista(diarios); });
        std::erase_if(nombres, [](const std::string& n) { return !n.ends_with(FinDeDiario); });
        return nombres;
    }
    /// What the only journal holds; nothing where there is none, or it is being written.
    [[nodiscard]] std::optional<Diario> UnicoDiario() const
    {
        std::optional<Diario> diario;
        const std::vector<std::string> nombres = Diarios();
        if (nombres.size() == 1)
            model::Sentencia(
                [&] { diario = LeeDiario(escritorio->s.Disco.Lee(diarios + '/' + nombres[0])); });
        return diario;
    }
    bool EsperaDiario()
    {
        return apoyo::Espera([&] {
            const auto diario = UnicoDiario();
            return diario && diario->red && diario->red->uehs.find("u-nueva") != std::string::npos;
        });
    }
    bool EsperaSinDiario()
    {
        return apoyo::Espera([&] { return Diarios().empty(); });
    }
    /// A program has gone with the UEH "u-nueva" unsaved.
    void CaeDibujando()
    {
        Arranca();
        AbreEditor();
        Dibuja("nueva");
        ASSERT_EQ(Uehs(), uehs + 1);
        ASSERT_TRUE(EsperaDiario());
        red = escritorio->s.Disco.Lee(instalacion.Proyectos() + "/Quelmar_UEHs.vlm");
        anfitrion->sucesos.clear();
    }

    Instalacion instalacion{};
    QTemporaryDir casa{};
    std::string diarios = DeQ(casa.path()) + "/mi casa/Diario";
    apoyo::AnfitrionPrueba anfitrion{};
    std::unique_ptr<Escritorio> escritorio{};
    std::string red{};
    int uehs = 0;
};

TEST_F(Caida, LoDibujadoVuelveComoUnPasoSinGuardar)
{
    CaeDibujando();
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& caja) {
        EXPECT_EQ(DeQ(caja.windowTitle()), TituloDlgRecuperar);
        EXPECT_EQ(DeQ(Control<QLabel>(caja, "lblRed").text()), "1 componente nuevo (u-nueva)");
        EXPECT_EQ(DeQ(Control<QLabel>(caja, "lblArchivos").text()), "están como entonces");
        EXPECT_EQ(apoyo::SinNombre(caja), std::vector<std::string>{});
        // The two pictures are of different networks.
        const auto foto = [&](const char* cual) {
            auto& vista = Control<editor::VistaDeRed>(caja, cual);
            EXPECT_TRUE(vista.isVisible());
            vista.setFixedSize(300, 200);
            return vista.grab().toImage();
        };
        EXPECT_NE(foto("VistaGuardada"), foto("VistaHallada"));
        apoyo::Pulsa(Control<QWidget>(caja, "OKButton"));
    });
    Arranca();
    ASSERT_TRUE(apoyo::Espera([&] { return escritorio->Editor().red.abierta; }));
    EXPECT_EQ(Uehs(), uehs + 1);
    EXPECT_TRUE(Editor().isWindowModified());
    EXPECT_EQ(escritorio->s.Disco.Lee(instalacion.Proyectos() + "/Quelmar_UEHs.vlm"), red);
    EXPECT_TRUE(EsperaDiario()) << "its own now";
    EXPECT_EQ(Diarios().size(), 1U);
    // One step back is what is saved, one forth the work.
    Editor().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Editor()));
    QTest::keyClick(&Editor(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Uehs(), uehs);
    QTest::keyClick(&Editor(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Uehs(), uehs + 1);
    QTest::keyClick(&Editor(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(escritorio->s.Disco.Lee(instalacion.Proyectos() + "/Quelmar_UEHs.vlm").find("u-nueva"),
              std::string::npos);
    EXPECT_TRUE(EsperaSinDiario());
    Arranca();  // nothing is offered: an unexpected box would fail
    QTest::qWait(200);
}

TEST_F(Caida, MasTardeLoOfreceAlAbrirElProyectoYDescartarLoTira)
{
    CaeDibujando();
    anfitrion->hayPapelera = true;
    {
        apoyo::Usuario usuario;
        usuario.Hace([](QWidget& caja) { apoyo::Pulsa(Control<QWidget>(caja, "CancelButton")); });
        Arranca();
        ASSERT_TRUE(apoyo::Espera([] { return QApplication::activeModalWidget() == nullptr; }));
        QTest::qWait(100);
        EXPECT_EQ(Diarios().size(), 1U);
        EXPECT_FALSE(escritorio->Editor().red.abierta);
    }
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) { apoyo::Pulsa(Control<QWidget>(caja, "cmdDescartar")); });
    Arranca();
    ASSERT_TRUE(apoyo::Espera([&] { return !anfitrion->tirados.empty(); }));
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_TRUE(anfitrion->tirados[0].starts_with(diarios));
}

TEST_F(Caida, AlAbrirseOtraVezElProyectoSeOfreceLoSuyo)
{
    CaeDibujando();
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) { apoyo::Pulsa(Control<QWidget>(caja, "CancelButton")); });
    Arranca();
    QTest::qWait(300);
    // Another project, and this one again.
    model::Siro& s = escritorio->s;
    const auto abre = [&](const std::string& conf) {
        escritorio->entorno.Atiende([&] { model::AbreProyectoDe(s, conf); });
        QTest::qWait(100);
    };
    std::string bytes = s.Disco.Lee(instalacion.Quelmar());
    bytes.replace(bytes.find("Quelmar"), 7, "Otro");
    s.Disco.Escribe(instalacion.Proyectos() + "/Otro_Conf.vlm", bytes);
    abre(instalacion.Proyectos() + "/Otro_Conf.vlm");
    ASSERT_EQ(s.Proyecto.NombreProyecto, "Otro");
    usuario.Hace([](QWidget& caja) { apoyo::Pulsa(Control<QWidget>(caja, "OKButton")); });
    abre(instalacion.Quelmar());
    ASSERT_TRUE(apoyo::Espera([&] { return escritorio->Editor().red.abierta; }));
    EXPECT_EQ(Uehs(), uehs + 1);
}

TEST_F(Caida, LoQueElUsuarioDejaSinGuardarConSuRespuestaNoSeOfrece)
{
    CaeDibujando();
    anfitrion->respuestaDeSiempre = false;  // not to be saved
    QTest::keyClick(&Editor(), Qt::Key_Escape);
    EXPECT_FALSE(escritorio->Editor().red.abierta);
    EXPECT_TRUE(EsperaSinDiario());
}

TEST_F(Caida, LoEscritoEnUnaVentanaSeMuestraParaCopiarlo)
{
    Arranca();
    {
        apoyo::Usuario usuario;
        usuario.Hace([&](QWidget& caja) {
            auto& titulo = Control<QLineEdit>(caja, "TextProyecto");
            apoyo::Escribe(titulo, "Un título con ñ");
            ASSERT_TRUE(apoyo::Espera([&] {
                const auto diario = UnicoDiario();
                return diario && diario->formas.size() == 1 &&
                       forms::ComoTexto(diario->formas[0]).find("Un título con ñ") != std::string::npos;
            }));
            EXPECT_EQ(UnicoDiario()->formas[0].ventana, "frmConfigura");
            EXPECT_FALSE(UnicoDiario()->red);
            // As the power goes now: the folder as it is.
            QFile::copy(Q(diarios + '/' + Diarios()[0]), casa.filePath(QStringLiteral("copia")));
            titulo.setFocus();
            QTest::keyClick(&titulo, Qt::Key_Escape);
        });
        escritorio->entorno.Atiende([&] { escritorio->Abre(Ventana::frmConfigura); });
    }
    EXPECT_TRUE(EsperaSinDiario()) << "given up by the user's own answer";
    QFile::copy(casa.filePath(QStringLiteral("copia")), Q(diarios + "/20261123-005012-1.diario"));
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) {
        EXPECT_FALSE(Control<QWidget>(caja, "VistaHallada").isVisible());
        EXPECT_TRUE(Control<QPlainTextEdit>(caja, "txtFormas")
                        .toPlainText()
                        .contains(QStringLiteral("Un título con ñ")));
        apoyo::Pulsa(Control<QWidget>(caja, "cmdCopiar"));
        EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("Un título con ñ")));
        apoyo::Pulsa(Control<QWidget>(caja, "CancelButton"));
    });
    Arranca();
    QTest::qWait(300);
}

TEST_F(Caida, ElDiarioDeUnProgramaQueCorreNoSeOfrece)
{
    CaeDibujando();
    model::Siro otro;
    forms::Entorno entorno{otro};
    const editor::frmUEHs nada;
    GuardaDeDiario segundo(entorno, nada, diarios);
    const std::string nombre = Diarios()[0];
    EXPECT_TRUE(segundo.Hallados().empty());
    escritorio.reset();
    EXPECT_EQ(segundo.Hallados().size(), 1U);
    GuardaDeDiario tercero(entorno, nada, diarios);
    EXPECT_TRUE(tercero.Hallados().empty()) << "the second one has it in hand";
    // Locks of programs that were killed before their first look go.
    const QString vivo = Q(diarios + '/' + nombre + ".lock"), suelto = Q(diarios + "/otro.diario.lock");
    QFile lee(vivo), escribe(suelto);
    ASSERT_TRUE(lee.open(QIODevice::ReadOnly) && escribe.open(QIODevice::WriteOnly));
    QByteArray texto = lee.readAll();
    escribe.write("99999999" + texto.mid(texto.indexOf('\n')));
    escribe.close();
    EXPECT_TRUE(tercero.Hallados().empty());
    EXPECT_FALSE(QFile::exists(suelto));
    EXPECT_TRUE(QFile::exists(vivo));
}

TEST_F(Caida, SinLugarParaElDiarioSeDiceUnaVezYSeSigue)
{
    QFile archivo(casa.filePath(QStringLiteral("mi casa")));  // where the folder is to be
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    Arranca();
    AbreEditor();
    Dibuja("una");
    auto& dicho = Control<QLabel>(escritorio->Principal(), "lblSinDiario");
    EXPECT_TRUE(dicho.isHidden());
    Dibuja("otra", {80, 40});
    EXPECT_TRUE(apoyo::Espera([&] {
        QTest::keyClick(&Editor(), Qt::Key_Shift);
        return !dicho.isHidden();
    }));
    EXPECT_TRUE(dicho.toolTip().endsWith(Q(diarios)));
    EXPECT_EQ(Uehs(), uehs + 2);
    // Room again, and it is written.
    archivo.remove();
    ASSERT_TRUE(QDir().mkpath(Q(diarios)));
    Dibuja("nueva", {120, 40});
    EXPECT_TRUE(EsperaDiario());
    EXPECT_TRUE(apoyo::Espera([&] {
        QTest::keyClick(&Editor(), Qt::Key_Shift);
        return dicho.isHidden();
    }));
}

}  // namespace
}  // namespace shell
