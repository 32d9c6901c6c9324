// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>
#include <filesystem>

#include "apoyo/Ventanas.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"

namespace editor {
namespace {

namespace fs = std::filesystem;
using forms::DeQ;

/// The editor's window on an empty project, or on a copy of the sample one.
struct VentanaDelEditor : testing::Test {
    QTemporaryDir dir{};
    apoyo::Mundo mundo{};
    frmUEHs f{};
    model::Siro& s = mundo.s;
    std::unique_ptr<frmUEHs_ventana> ventana{};
    std::vector<Pedido> formas{};
    bool principal = true;

    void Abre(const char* proyecto)
    {
        fs::copy(SIRO_DATA_DIR, DeQ(dir.path()), fs::copy_options::recursive);
        s.Proyecto.DirTrabajo = DeQ(dir.path());
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = s.frmConfigura.Dir1 =
            DeQ(dir.path()) + "/Proyectos";
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = proyecto;
        if (!fs::exists(s.Proyecto.DirProyecto + "/" + proyecto + "_Conf.vlm")) {
            s.frmConfigura.lblMiArchivoConf = std::string(proyecto) + "_Conf.vlm";
            model::cmdAplicar(s);
            mundo.anfitrion->sucesos.clear();
        }
        ventana = std::make_unique<frmUEHs_ventana>(mundo.entorno, f);
        ventana->AbreForma = [this](Pedido p) { formas.push_back(p); };
        ventana->MuestraPrincipal = [this](bool visible) { principal = visible; };
        s.Anfitrion.RedibujaEditor = [this] { Redibuja(f, s); };
        ventana->Abre();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        mundo.anfitrion->sucesos.clear();
    }
    QWidget& Canvas() { return apoyo::Control<QWidget>(*ventana, "picDibujo"); }
    QPoint Pixel(float x, float y)
    {
        const auto p = APixel(f.vista, {x, y});
        return {static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y))};
    }
    void Clic(float x, float y) { QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, Pixel(x, y)); }
    void Arrastra(QPoint desde, QPoint hasta)
    {
        QTest::mousePress(&Canvas(), Qt::LeftButton, {}, desde);
        for (int i = 1; i <= 8; ++i) {
            const QPoint p = desde + (hasta - desde) * i / 8;
            QMouseEvent mueve(QEvent::MouseMove, p, Canvas().mapToGlobal(p), Qt::NoButton, Qt::LeftButton,
                              {});
            QApplication::sendEvent(&Canvas(), &mueve);
        }
        QTest::mouseRelease(&Canvas(), Qt::LeftButton, {}, hasta);
    }
    void Modo(const char* clave)
    {
        auto& barra = apoyo::Control<QToolBar>(*ventana, "ToolbarUEHs");
        QWidget* const boton = barra.widgetForAction(&Accion(clave));
        ASSERT_NE(boton, nullptr);
        apoyo::Pulsa(*boton);
    }
    QAction& Accion(const char* nombre)
    {
        QAction* const accion = ventana->findChild<QAction*>(QString::fromUtf8(nombre));
        if (accion == nullptr) throw std::runtime_error(nombre);
        return *accion;
    }
    /// Opens the pop-up with the right button and chooses an entry.
    void Menu(const char* entrada, QPoint donde)
    {
        bool visto = false;
        QTimer mira;
        QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            mira.stop();
            visto = true;
            for (QAction* accion : menu->actions()) {
                if (accion->objectName() != QString::fromUtf8(entrada)) continue;
                EXPECT_TRUE(accion->isEnabled()) << entrada;
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
                return;
            }
            ADD_FAILURE() << "no entry " << entrada;
            menu->close();
        });
        mira.start(5);
        QTest::mouseClick(&Canvas(), Qt::RightButton, {}, donde);
        EXPECT_TRUE(visto);
    }
    void Nombra(std::initializer_list<const char*> nombres)
    {
        for (const char* nombre : nombres)
            mundo.anfitrion->textos.emplace_back(nombre);
    }
    /// A reach from its mouth upwards.
    void DibujaCauce(const char* nombre, std::initializer_list<QPoint> vertices)
    {
        Nombra({nombre});
        Modo("btn_toolbarCauce");
        for (const QPoint v : vertices)
            QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, v);
        QTest::keyClick(&Canvas(), Qt::Key_Return);
        Modo("btn_toolbarSelecciona");
    }
};

TEST_F(VentanaDelEditor, ColocaCadaClaseDondeSeHaceClic)
{
    Abre("Vacio");
    Nombra({"Alta", "Baja", "Grande", "Chico"});
    Modo("btn_toolbarUEH");
    EXPECT_TRUE(Accion("btn_toolbarUEH").isChecked());
    EXPECT_FALSE(Accion("btn_toolbarSelecciona").isChecked());
    EXPECT_EQ(Canvas().cursor().shape(), Qt::CrossCursor);
    Clic(200, 200);
    Clic(400, 200);
    Modo("btn_toolbarRepresa");
    Clic(200, 500);
    Modo("btn_toolbarLAGO");
    Clic(500, 500);
    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).NombreUEH, "u-Alta");
    EXPECT_NEAR(s.Red.ColUEHs.Item(1).IconoUEHx, 200, 2);
    EXPECT_NEAR(s.Red.ColUEHs.Item(1).IconoUEHy, 200, 2);
    EXPECT_EQ(s.Red.ColRepresas.Item(1).NombreRepresa, "r-Grande");
    EXPECT_EQ(s.Red.ColLagos.Item(1).NombreLAGO, "l-Chico");
}

TEST_F(VentanaDelEditor, UnCauceSeDibujaConElTeclado)
{
    Abre("Vacio");
    const auto tecla = [this](Qt::Key k, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(ventana->windowHandle(), k, con);
    };
    tecla(Qt::Key_3, Qt::ControlModifier);
    const QImage sinCruz = Canvas().grab().toImage();
    tecla(Qt::Key_Left);
    EXPECT_TRUE(f.gesto.cruz);
    const QImage conCruz = Canvas().grab().toImage();
    const QPointF medio(Canvas().width() / 2.0, Canvas().height() / 2.0);
    const auto rojo = [&](const QImage& imagen) {
        const QColor c = imagen.pixelColor((medio * imagen.devicePixelRatio() + QPointF(8, 0)).toPoint());
        return c.red() > 150 && c.green() < 100;
    };
    EXPECT_FALSE(rojo(sinCruz));
    EXPECT_TRUE(rojo(conCruz));
    tecla(Qt::Key_Return);
    for (int i = 0; i < 3; ++i)
        tecla(Qt::Key_Left, Qt::ShiftModifier);
    tecla(Qt::Key_Up);
    tecla(Qt::Key_Space);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    Nombra({"solo"});
    tecla(Qt::Key_Return);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-solo");
    const auto boca = APixel(f.vista, {s.Red.XVertice(1, 1), s.Red.YVertice(1, 1)});
    const auto cabecera = APixel(f.vista, {s.Red.XVertice(1, 2), s.Red.YVertice(1, 2)});
    EXPECT_LT(cabecera.x, boca.x);
    EXPECT_LT(cabecera.y, boca.y);
}

TEST_F(VentanaDelEditor, ElTituloMarcaLoQueNoSeHaGuardado)
{
    Abre("Vacio");
    const QString titulo = QStringLiteral("Diagrama de Unidades Hidrológicas de Estudio y sus componentes");
    EXPECT_EQ(ventana->windowTitle(), titulo);
    EXPECT_FALSE(ventana->isWindowModified());
    Nombra({"Alta"});
    Modo("btn_toolbarUEH");
    Clic(200, 200);
    EXPECT_TRUE(ventana->isWindowModified());
    EXPECT_EQ(ventana->windowTitle(), titulo + QStringLiteral("[*]"));
    QTest::keyClick(ventana->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(ventana->isWindowModified());
    EXPECT_EQ(ventana->windowTitle(), titulo);
}

TEST_F(VentanaDelEditor, LosNombresDeLosCaucesSeMuestranYSeOcultan)
{
    Abre("Quelmar");
    const auto nombres = [this] {
        return std::count_if(f.dibujo.Primitivas().begin(), f.dibujo.Primitivas().end(),
                             [](const Primitiva& p) { return p.papel == Papel::NombreCauce; });
    };
    EXPECT_GT(nombres(), 0);
    EXPECT_TRUE(Accion("NombresCauces").isChecked());
    QTest::keyClick(ventana->windowHandle(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(nombres(), 0);
    EXPECT_FALSE(Accion("NombresCauces").isChecked());
}

TEST_F(VentanaDelEditor, LosModosTienenTeclas)
{
    Abre("Vacio");
    const std::vector<std::pair<Qt::Key, Boton>> teclas = {
        {Qt::Key_2, Boton::UEH},  {Qt::Key_3, Boton::Cauce},    {Qt::Key_4, Boton::Represa},
        {Qt::Key_5, Boton::LAGO}, {Qt::Key_6, Boton::LongArea}, {Qt::Key_1, Boton::Selecciona}};
    for (const auto& [tecla, boton] : teclas) {
        QTest::keyClick(&Canvas(), tecla, Qt::ControlModifier);
        EXPECT_EQ(editor::Modo(f), boton);
    }
}

TEST_F(VentanaDelEditor, DibujaUnCauceYLoTerminaConDobleClic)
{
    Abre("Vacio");
    Nombra({"Rio"});
    Modo("btn_toolbarCauce");
    for (const QPoint v : {QPoint(300, 400), QPoint(330, 300), QPoint(300, 200)})
        QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, v);
    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, QPoint(300, 200));
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColCauces.Item(1).NombreCauce, "c-Rio");
    EXPECT_EQ(s.Red.ColCauces.Item(1).numVertices, 3);
    EXPECT_TRUE(Accion("btn_toolbarSelecciona").isChecked());
}

TEST_F(VentanaDelEditor, AcoplaUnaUEHArrastrandoSuAsaHastaElCauce)
{
    Abre("Vacio");
    DibujaCauce("Rio", {{400, 420}, {400, 250}});
    Nombra({"Alta"});
    Modo("btn_toolbarUEH");
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, QPoint(200, 150));
    Modo("btn_toolbarSelecciona");
    const auto& u = s.Red.ColUEHs.Item(1);
    const float i = f.vista.TamIcono;
    Clic(u.IconoUEHx + i * 0.7F, u.IconoUEHy + i * 0.7F);
    ASSERT_EQ(s.Seleccion.UEHSel, 1);
    Arrastra(Pixel(u.IconoUEHx, u.IconoUEHy + 3.5F * i), Pixel(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2)));
    ASSERT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(mundo.anfitrion->Preguntas()[0].texto,
              "Confirma el acople de la UEH <u-Alta> con el cauce <c-Rio>");
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "c-Rio");
    EXPECT_EQ(s.Red.ColUEHs.Item(1).XCauce, s.Red.XVertice(1, 2));
}

TEST_F(VentanaDelEditor, AcoplaDosCaucesPorElMenu)
{
    Abre("Vacio");
    DibujaCauce("Abajo", {{400, 430}, {400, 330}});
    DibujaCauce("Arriba", {{300, 250}, {250, 120}});
    Clic(s.Red.XVertice(2, 2), s.Red.YVertice(2, 2));
    ASSERT_EQ(s.Seleccion.CauceSel, 2);
    Clic(s.Red.XVertice(1, 1), s.Red.YVertice(1, 1));
    ASSERT_EQ(s.Seleccion.CauceSel, 1);
    ASSERT_EQ(s.Seleccion.CauceAnterior, 2);
    Menu("mnu_acoplaCauce1aCauce2", {30, 30});
    EXPECT_EQ(s.Red.ColCauces.Item(2).Cauce_aa, "c-Abajo");
    EXPECT_EQ(s.Red.XVertice(2, 1), s.Red.XVertice(1, 2));  // its mouth goes to the head of the other
}

TEST_F(VentanaDelEditor, MueveElUltimoVerticeConSusTributarios)
{
    Abre("Vacio");
    DibujaCauce("Rio", {{400, 420}, {400, 250}});
    Nombra({"Alta"});
    Modo("btn_toolbarUEH");
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, QPoint(200, 150));
    Modo("btn_toolbarSelecciona");
    Clic(s.Red.XVertice(1, 1), s.Red.YVertice(1, 1));
    Clic(s.Red.ColUEHs.Item(1).IconoUEHx + f.vista.TamIcono * 0.7F,
         s.Red.ColUEHs.Item(1).IconoUEHy + f.vista.TamIcono * 0.7F);
    Menu("mnu_acoplaUEHaCauce", {30, 30});
    ASSERT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "c-Rio");

    Clic(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2));
    ASSERT_EQ(s.Seleccion.CauceSel, 1);
    Clic(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2));
    ASSERT_EQ(s.Seleccion.VerticeSel, 2);
    const QPoint desde = Pixel(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2));
    const Punto meta = DePixel(f.vista, desde.x() + 60, desde.y() - 30);
    Arrastra(desde, desde + QPoint(60, -30));
    EXPECT_NEAR(s.Red.XVertice(1, 2), meta.X, 1.5);
    EXPECT_NEAR(s.Red.YVertice(1, 2), meta.Y, 1.5);
    EXPECT_NEAR(s.Red.ColUEHs.Item(1).XCauce, meta.X, 1.5);
}

TEST_F(VentanaDelEditor, DivideUnCauceYBorraElDeArriba)
{
    Abre("Vacio");
    DibujaCauce("Rio", {{400, 430}, {380, 300}, {400, 150}});
    Clic(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2));
    Clic(s.Red.XVertice(1, 2), s.Red.YVertice(1, 2));
    ASSERT_EQ(s.Seleccion.VerticeSel, 2);
    Menu("mnu_DivideCauce", {30, 30});
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.ColCauces.Item(1).NombreCauce, "c-Rio-.-b");
    EXPECT_EQ(s.Red.ColCauces.Item(2).NombreCauce, "c-Rio-.-a");
    Clic(s.Red.XVertice(2, 2), s.Red.YVertice(2, 2));
    ASSERT_EQ(s.Seleccion.CauceSel, 2);
    QTest::keyClick(&Canvas(), Qt::Key_Delete);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_TRUE(Accion("Deshace").isEnabled());
    QTest::keyClick(&Canvas(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
    QTest::keyClick(&Canvas(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
}

TEST_F(VentanaDelEditor, MideUnaSuperficieConClicsYEnter)
{
    Abre("Quelmar");
    Modo("btn_toolbarLongArea");
    for (const QPoint p : {QPoint(100, 100), QPoint(300, 100), QPoint(300, 250), QPoint(100, 250)})
        QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, p);
    QTest::keyClick(&Canvas(), Qt::Key_Return);
    EXPECT_FALSE(f.medicion.lblLongArea.empty());
    EXPECT_EQ(DeQ(apoyo::Control<QLabel>(*ventana, "lblLongArea").text()), f.medicion.lblLongArea);
}

TEST_F(VentanaDelEditor, LaRuedaAcercaYElBotonDelMedioCorre)
{
    Abre("Quelmar");
    const int antes = f.vista.sldEscala;
    const QPointF p(200, 200);
    const Punto bajo = DePixel(f.vista, p.x(), p.y());
    QWheelEvent rueda(p, Canvas().mapToGlobal(p), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Canvas(), &rueda);
    EXPECT_LT(f.vista.sldEscala, antes);
    EXPECT_NEAR(DePixel(f.vista, p.x(), p.y()).X, bajo.X, 0.01);
    EXPECT_EQ(apoyo::Control<QSlider>(*ventana, "sldEscala").value(), f.vista.sldEscala);

    const Punto origen = f.vista.origen;
    QTest::mousePress(&Canvas(), Qt::MiddleButton, {}, {200, 200});
    QMouseEvent mueve(QEvent::MouseMove, QPointF(150, 220), Canvas().mapToGlobal(QPointF(150, 220)),
                      Qt::NoButton, Qt::MiddleButton, {});
    QApplication::sendEvent(&Canvas(), &mueve);
    QTest::mouseRelease(&Canvas(), Qt::MiddleButton, {}, {150, 220});
    EXPECT_GT(f.vista.origen.X, origen.X);
    EXPECT_LT(f.vista.origen.Y, origen.Y);
}

TEST_F(VentanaDelEditor, LasTeclasYElDobleClicPidenLasFormas)
{
    Abre("Quelmar");
    QTest::keyClick(&Canvas(), Qt::Key_F3);
    QTest::keyClick(&Canvas(), Qt::Key_F4);
    QTest::keyClick(&Canvas(), Qt::Key_F5);
    QTest::keyClick(&Canvas(), Qt::Key_F6);
    EXPECT_EQ(formas,
              (std::vector{Pedido::FormaUEH, Pedido::FormaCauce, Pedido::FormaRepresa, Pedido::FormaLago}));
    formas.clear();
    const QPoint icono = Pixel(s.Red.ColUEHs.Item(1).IconoUEHx + f.vista.TamIcono * 0.7F,
                               s.Red.ColUEHs.Item(1).IconoUEHy + f.vista.TamIcono * 0.7F);
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, icono);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, icono);
    EXPECT_EQ(formas, std::vector{Pedido::FormaUEH});
}

TEST_F(VentanaDelEditor, LaImagenDeFondoSePintaYSeQuita)
{
    Abre("Quelmar");
    auto& boton = apoyo::Control<QPushButton>(*ventana, "cmdImagenUEHs");
    EXPECT_EQ(boton.text(), QStringLiteral("Imágen"));
    const QImage sin = Canvas().grab().toImage();
    apoyo::Pulsa(boton);
    EXPECT_TRUE(f.fondo.ImagenVisible)
        << (mundo.anfitrion->Avisos().empty() ? "" : mundo.anfitrion->Avisos()[0].texto);
    EXPECT_EQ(boton.text(), QStringLiteral("Quitar Imágen"));
    EXPECT_NE(Canvas().grab().toImage(), sin);
    apoyo::Pulsa(boton);
    EXPECT_EQ(boton.text(), QStringLiteral("Mostrar Imágen"));
}

TEST_F(VentanaDelEditor, EscPreguntaSiGuardaYVuelveLaPrincipal)
{
    Abre("Quelmar");
    EXPECT_FALSE(principal);
    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_TRUE(principal);
    ASSERT_FALSE(mundo.anfitrion->Preguntas().empty());
    EXPECT_EQ(mundo.anfitrion->Preguntas().back().titulo, "Resguardo de datos de componentes UEHs");
}

TEST_F(VentanaDelEditor, AlPerderElFocoVuelveLaPrincipalYAlRecuperarloSeEscondeOtraVez)
{
    Abre("Quelmar");
    EXPECT_FALSE(principal);
    QWidget otra;
    otra.show();
    otra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&otra));
    EXPECT_TRUE(principal);
    s.Control.AvisoDescargasVisto = true;
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    EXPECT_FALSE(principal);
    EXPECT_FALSE(s.Control.AvisoDescargasVisto);
}

TEST_F(VentanaDelEditor, ElMarcoCierraUnaRedVaciaSinPreguntarYEscLaDejaAbierta)
{
    Abre("Vacio");
    mundo.anfitrion->respuestaDeSiempre = true;
    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_TRUE(ventana->isVisible());
    const std::size_t preguntas = mundo.anfitrion->Preguntas().size();
    ventana->close();
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_EQ(mundo.anfitrion->Preguntas().size(), preguntas);
    EXPECT_TRUE(principal);
}

TEST_F(VentanaDelEditor, ElDibujoSeGuardaEnLosTresFormatos)
{
    Abre("Quelmar");
    for (const char* tipo : {"png", "svg", "pdf"}) {
        const std::string ruta = DeQ(dir.path()) + "/dibujo." + tipo;
        mundo.anfitrion->elegidos.push_back(ruta);
        Accion((std::string("GuardaDibujo") + DeQ(forms::Q(tipo).toUpper())).c_str()).trigger();
        EXPECT_GT(fs::file_size(ruta), 2000U) << tipo;
    }
    for (const auto& aviso : mundo.anfitrion->Avisos())
        ADD_FAILURE() << aviso.texto;
}

TEST_F(VentanaDelEditor, PorAngostaQueSeaSeVenTodosLosBotones)
{
    Abre("Quelmar");
    ventana->resize(ventana->minimumSize());
    QCoreApplication::processEvents();
    auto& barra = apoyo::Control<QToolBar>(*ventana, "ToolbarUEHs");
    for (const char* const ultimo : {"Exporta", "btn_toolbarSalir"})
        EXPECT_TRUE(barra.widgetForAction(&Accion(ultimo))->isVisible()) << ultimo;
    EXPECT_LE(ventana->width(), 920);
}

TEST_F(VentanaDelEditor, CtrlPDespliegaLosDestinosDelDibujo)
{
    Abre("Quelmar");
    QStringList entradas;
    QTimer mira;
    QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return;
        mira.stop();
        for (const QAction* accion : menu->actions())
            entradas << accion->objectName();
        menu->close();
    });
    mira.start(5);
    QTest::keyClick(&Canvas(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(apoyo::Espera([&] { return !entradas.isEmpty(); }));
    EXPECT_EQ(entradas, QStringList({QStringLiteral("GuardaDibujoPNG"), QStringLiteral("GuardaDibujoSVG"),
                                     QStringLiteral("GuardaDibujoPDF"), QStringLiteral("ImprimeDibujo")}));
}

TEST_F(VentanaDelEditor, CadaControlTieneNombre)
{
    Abre("Quelmar");
    EXPECT_EQ(apoyo::SinNombre(*ventana), std::vector<std::string>{});
}

}  // namespace
}  // namespace editor
