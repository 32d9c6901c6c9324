// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/MapaDeCorrida_ventana.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QSvgRenderer>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <filesystem>

#include "CorridaDelMapa.h"
#include "apoyo/Compara.h"
#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

/// The run of three steps in a window of 900 by 600, over a red image.
struct VentanaDelMapa : testing::Test {
    VentanaDelMapa()
    {
        mundo.s.Proyecto.NombreProyecto = "Otro";
        ventana.AbreHidrograma = [this](const std::string& nombre) { abiertos.push_back(nombre); };
        ventana.resize(900, 600);
    }
    static QPixmap Roja()
    {
        QPixmap imagen(30, 20);
        imagen.fill(Qt::red);
        return imagen;
    }
    static QPixmap DosMitades()
    {
        QPixmap imagen = Roja();
        QPainter(&imagen).fillRect(15, 0, 15, 20, Qt::blue);
        return imagen;
    }
    void Abre(const QPixmap& imagen = Roja())
    {
        ventana.Abre(CopiaDeCorrida(corrida.red, corrida.pasos, corrida.resultados),
                     {.titulo = std::string(TituloMapaDeCorrida), .tema = "P= 80 mm", .proyecto = "Arroyo"},
                     {imagen, {0, 0, 300, 200}});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
        EXPECT_TRUE(Espera([&] { return lienzo.Pintor().Puestos().size() == 6; }));
    }
    /// Pixel of the canvas where a component is.
    QPoint Lugar(const char* nombre)
    {
        for (const ComponenteDelMapa& c : f.red.componentes)
            if (c.nombre == nombre) {
                const forms::Pixel p = CentroDe(c, lienzo.Vista()).value();
                return QPointF(p.x, p.y).toPoint();
            }
        ADD_FAILURE() << nombre;
        return {};
    }
    QRgb Color(QPoint en)
    {
        const QImage imagen = lienzo.grab().toImage();
        return imagen.pixel(en * imagen.devicePixelRatio());
    }
    void Rueda(int vueltas, QPointF en)
    {
        QWheelEvent gira(en, lienzo.mapToGlobal(en), {}, {0, 120 * vueltas}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&lienzo, &gira);
    }
    std::string Guardado(const char* entrada, const char* archivo)
    {
        mundo.anfitrion->elegidos = {carpeta.Ruta(archivo)};
        auto& menu = Control<QMenu>(ventana, "mnuGuardar");
        for (QAction* accion : menu.actions())
            if (accion->text().remove(QLatin1Char('&')).contains(QString::fromUtf8(entrada)))
                accion->trigger();
        return apoyo::BytesDeArchivo(carpeta.Ruta(archivo));
    }

    pruebas::CorridaDelMapa corrida{};
    apoyo::CarpetaTemporal carpeta{};
    apoyo::Mundo mundo{};
    MapaDeCorrida f{};
    MapaDeCorrida_ventana ventana{mundo.entorno, f};
    LienzoDeMapa& lienzo = static_cast<LienzoDeMapa&>(Control<QWidget>(ventana, "lienzo"));
    std::vector<std::string> abiertos{};
};

TEST_F(VentanaDelMapa, SeAbreEnElPicoConTodosSusControles)
{
    Abre();
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Mapa de la corrida");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblTitulo").text()), "P= 80 mm");
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblTiempo").text()), "0:30 h   paso 3 de 3");
    EXPECT_EQ(Control<QSlider>(ventana, "sldTiempo").maximum(), 3);
    EXPECT_EQ(Control<QSlider>(ventana, "sldTiempo").value(), 3);
    EXPECT_EQ(DeQ(Control<QComboBox>(ventana, "cmbVelocidad").currentText()), "10 pasos/s");
    EXPECT_TRUE(lienzo.hasFocus());
    ventana.Abre({}, {}, {});
    EXPECT_FALSE(ventana.isVisible());
}

// c-1 carries 36 of 40 m3/s at its peak, at 0.949 of the scale: between #3B528B and #440154 at 3.795 - 3,
// that is 59 + 9·0.795 = 66, 82 - 81·0.795 = 18, 139 - 55·0.795 = 95. At the first step 10 m3/s: 0.5,
// #21918C.
TEST_F(VentanaDelMapa, ElCauceTieneElColorDeSuCaudal)
{
    Abre();
    // A quarter of the way up, where neither arrow nor label lies.
    const forms::Pixel p = lienzo.Vista().APixel({20, 100});
    const QPoint en = QPointF(p.x, p.y).toPoint();
    EXPECT_EQ(Color(en), qRgb(66, 18, 95));
    QTest::keyClick(&lienzo, Qt::Key_Home);
    EXPECT_EQ(f.paso, 1);
    EXPECT_EQ(Color(en), qRgb(0x21, 0x91, 0x8C));
}

TEST_F(VentanaDelMapa, LaImagenDeFondoSePoneYSeSaca)
{
    Abre();
    const forms::Pixel p = lienzo.Vista().APixel({150, 140});
    const QPoint en = QPointF(p.x, p.y).toPoint();
    // Half of the red is left over the white sheet: 255, 127 or 128.
    EXPECT_EQ(qRed(Color(en)), 255);
    EXPECT_NEAR(qGreen(Color(en)), 127.5, 1.5);
    Pulsa(Control<QCheckBox>(ventana, "chkImagen"));
    EXPECT_EQ(Color(en), qRgb(255, 255, 255));
}

TEST_F(VentanaDelMapa, UnClicAbreElHidrogramaYElQueNoCorrioNo)
{
    Abre();
    QTest::mouseClick(&lienzo, Qt::LeftButton, {}, Lugar("u-1"));
    QTest::mouseClick(&lienzo, Qt::LeftButton, {}, Lugar("c-2") - QPoint(40, 0));
    QTest::mouseClick(&lienzo, Qt::LeftButton, {}, Lugar("l-1"));
    QTest::mouseClick(&lienzo, Qt::LeftButton, {}, {3, 3});
    QTest::mouseClick(&lienzo, Qt::RightButton, Qt::ShiftModifier, {3, 3});
    EXPECT_EQ(abiertos, (std::vector<std::string>{"u-1", "c-2"}));
}

TEST_F(VentanaDelMapa, ElPunteroDiceNombreCaudalYPico)
{
    Abre();
    QTest::mouseMove(&lienzo, {5, 5});
    QTest::mouseMove(&lienzo, Lugar("u-1"));
    EXPECT_TRUE(Espera([] { return QToolTip::isVisible(); }));
    EXPECT_EQ(DeQ(QToolTip::text()), "u-1\nQ= 2 m3/s en t= 0:30 h\nQ máx= 4 m3/s en t= 0:20 h");
    EXPECT_EQ(lienzo.cursor().shape(), Qt::PointingHandCursor);
    QTest::keyClick(&lienzo, Qt::Key_Home);
    EXPECT_EQ(DeQ(QToolTip::text()), "u-1\nQ= 1 m3/s en t= 0:10 h\nQ máx= 4 m3/s en t= 0:20 h");
    QTest::mouseMove(&lienzo, {5, 5});
    EXPECT_EQ(lienzo.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(VentanaDelMapa, LaRuedaAcercaArrastrarDesplazaYElDobleClicVeTodo)
{
    Abre();
    const VistaDeMapa entera = lienzo.Vista();
    const QPoint en = Lugar("u-1");
    Rueda(2, en);
    EXPECT_NEAR(lienzo.Vista().escala, entera.escala * 1.5625, 1e-9);  // 1.25 squared
    EXPECT_EQ(Lugar("u-1"), en);
    const QPoint antes = Lugar("l-1");
    QTest::mousePress(&lienzo, Qt::LeftButton, {}, {30, 30});
    QTest::mouseMove(&lienzo, {60, 50});
    QTest::mouseMove(&lienzo, {130, 90});
    QTest::mouseRelease(&lienzo, Qt::LeftButton, {}, {130, 90});
    EXPECT_LE((Lugar("l-1") - antes - QPoint(100, 60)).manhattanLength(), 1);
    EXPECT_TRUE(abiertos.empty());
    QTest::mouseDClick(&lienzo, Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ(lienzo.Vista(), entera);
    QTest::keyClick(&lienzo, Qt::Key_Plus);
    EXPECT_NEAR(lienzo.Vista().escala, entera.escala * 1.25, 1e-9);
    QTest::keyClick(&lienzo, Qt::Key_0);
    EXPECT_EQ(lienzo.Vista(), entera);
}

TEST_F(VentanaDelMapa, AlCambiarDeTamanoSigueViendoseTodo)
{
    Abre();
    ventana.resize(1200, 800);
    EXPECT_TRUE(Espera([&] { return lienzo.width() > 1000; }));
    EXPECT_EQ(lienzo.Vista(),
              VistaDe(f.red.extension, PintorDeMapa::MarcoDeRed(lienzo.size(), lienzo.Letra())));
    Rueda(1, {100, 100});
    const VistaDeMapa suya = lienzo.Vista();
    ventana.resize(1000, 700);
    EXPECT_TRUE(Espera([&] { return lienzo.width() < 1000; }));
    EXPECT_EQ(lienzo.Vista(), suya);
}

TEST_F(VentanaDelMapa, LaBarraEspaciadoraReproduceHastaElFinal)
{
    Abre();
    auto& boton = Control<QPushButton>(ventana, "cmdReproducir");
    QTest::keyClick(&Control<QComboBox>(ventana, "cmbVelocidad"), Qt::Key_End);  // 60 steps a second
    EXPECT_EQ(f.velocidad, 5);
    lienzo.setFocus();
    QTest::keyClick(&lienzo, Qt::Key_Space);
    EXPECT_TRUE(f.corriendo);
    EXPECT_EQ(f.paso, 1);
    EXPECT_EQ(DeQ(boton.text()), "&Detener");
    EXPECT_TRUE(Espera([&] { return !f.corriendo; }));
    EXPECT_EQ(f.paso, 3);
    EXPECT_EQ(Control<QSlider>(ventana, "sldTiempo").value(), 3);
    EXPECT_EQ(DeQ(boton.text()), "&Reproducir");
}

TEST_F(VentanaDelMapa, DetenerYCerrarParanElTiempo)
{
    Abre();
    QTest::keyClick(&Control<QComboBox>(ventana, "cmbVelocidad"), Qt::Key_Home);  // one step a second
    Pulsa(Control<QPushButton>(ventana, "cmdReproducir"));
    EXPECT_TRUE(f.corriendo);
    Pulsa(Control<QPushButton>(ventana, "cmdReproducir"));
    EXPECT_FALSE(f.corriendo);
    EXPECT_EQ(f.paso, 1);
    Pulsa(Control<QPushButton>(ventana, "cmdReproducir"));
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    Abre();
    EXPECT_FALSE(f.corriendo);
    Pulsa(Control<QPushButton>(ventana, "cmdReproducir"));
    ventana.close();
    EXPECT_FALSE(f.corriendo);
    EXPECT_FALSE(f.abierta);
}

TEST_F(VentanaDelMapa, ElDeslizadorYLosBotonesLlevanElTiempo)
{
    Abre();
    QTest::keyClick(&Control<QSlider>(ventana, "sldTiempo"), Qt::Key_Left);
    EXPECT_EQ(f.paso, 2);
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblTiempo").text()), "0:20 h   paso 2 de 3");
    Pulsa(Control<QPushButton>(ventana, "cmdInicio"));
    EXPECT_EQ(f.paso, 1);
    Pulsa(Control<QPushButton>(ventana, "cmdPico"));
    EXPECT_EQ(f.paso, 3);
}

TEST_F(VentanaDelMapa, ElTecladoRecorreLosComponentesYAbreElHidrograma)
{
    Abre();
    QTest::keyClick(&lienzo, Qt::Key_Return);
    EXPECT_TRUE(abiertos.empty());
    QTest::keyClick(&lienzo, Qt::Key_Right);
    QTest::keyClick(&lienzo, Qt::Key_Down);
    EXPECT_NE(DeQ(lienzo.accessibleDescription()).find("c-2;Q= 9 m3/s"), std::string::npos);
    QTest::keyClick(&lienzo, Qt::Key_Return);
    EXPECT_EQ(abiertos, std::vector<std::string>{"c-2"});
}

TEST_F(VentanaDelMapa, PicosYNombresSePonenYSeSacan)
{
    Abre();
    const auto hay = [&](const char* texto) {
        const auto& puestos = lienzo.Pintor().Puestos();
        return std::any_of(puestos.begin(), puestos.end(),
                           [&](const RotuloPuesto& p) { return DeQ(lienzo.Pintor().Texto(p)) == texto; });
    };
    EXPECT_TRUE(hay("c-1\n36 m3/s\n0:30 h"));
    EXPECT_TRUE(hay("l-1"));
    EXPECT_EQ(lienzo.Pintor().Afuera(), 0);
    Pulsa(Control<QCheckBox>(ventana, "chkPicos"));
    EXPECT_TRUE(Espera([&] { return hay("c-1"); }));
    Pulsa(Control<QCheckBox>(ventana, "chkNombres"));
    EXPECT_TRUE(Espera([&] { return lienzo.Pintor().Puestos().empty(); }));
    Pulsa(Control<QCheckBox>(ventana, "chkPicos"));
    EXPECT_TRUE(Espera([&] { return hay("36 m3/s\n0:30 h"); }));
}

TEST_F(VentanaDelMapa, SeGuardaEnterosComoPngSvgYPdf)
{
    Abre();
    const QImage png = QImage::fromData(QByteArray::fromStdString(Guardado("PNG", "m.png")), "PNG");
    EXPECT_EQ(png.width(), 2 * lienzo.width());
    EXPECT_GT(png.height(), 2 * lienzo.height());  // and its lines above
    EXPECT_EQ(mundo.anfitrion->propuestos, std::vector<std::string>{"Mapa de la corrida.png"});

    const std::string svg = Guardado("SVG", "m.svg");
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svg)).isValid());
    for (const char* texto : {"P= 80 mm;  t= 0:30 h   paso 3 de 3", "Proyecto: Arroyo", "Fecha: 03/04/2011",
                              "Caudal [m3/s]", "36 m3/s"})
        EXPECT_NE(svg.find(texto), std::string::npos) << texto;

    Guardado("PDF", "m.pdf");
    const std::string pdf =
        apoyo::SalidaDe(QStringLiteral("pdftotext"),
                        {QStringLiteral("-layout"), forms::Q(carpeta.Ruta("m.pdf")), QStringLiteral("-")});
    for (const char* texto :
         {"Mapa de la corrida", "P= 80 mm", "Proyecto: Arroyo", "Caudal [m3/s]", "36 m3/s"})
        EXPECT_NE(pdf.find(texto), std::string::npos) << texto;
    EXPECT_TRUE(mundo.anfitrion->Avisos().empty());
}

// An image of two halves, red up to x = 150 and blue beyond: near enough for the edges to be out of sight,
// each point has the same half in every file.
TEST_F(VentanaDelMapa, DeCercaLaImagenEstaDondeDebeEnLosTresArchivos)
{
    Abre(DosMitades());
    f.chkPicos = f.chkNombres = false;
    ventana.Muestra();
    const auto lugar = [&](double x, double y) {
        const forms::Pixel p = lienzo.Vista().APixel({x, y});
        return QPointF(p.x, p.y);
    };
    Rueda(6, lugar(150, 130));
    const QPointF rojo = lugar(140, 130), azul = lugar(160, 130);
    ASSERT_TRUE(lienzo.rect().contains(rojo.toPoint()));
    ASSERT_TRUE(lienzo.rect().contains(azul.toPoint()));
    const QImage png = QImage::fromData(QByteArray::fromStdString(Guardado("PNG", "c.png")), "PNG");
    QSvgRenderer svg(QByteArray::fromStdString(Guardado("SVG", "c.svg")));
    QImage delSvg(png.size(), QImage::Format_RGB32);
    delSvg.fill(Qt::white);
    QPainter pintor(&delSvg);
    svg.render(&pintor);
    Guardado("PDF", "c.pdf");
    apoyo::SalidaDe(QStringLiteral("pdftoppm"),
                    {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                     QStringLiteral("192"), forms::Q(carpeta.Ruta("c.pdf")), forms::Q(carpeta.Ruta("pdf"))});
    const QImage delPdf(forms::Q(carpeta.Ruta("pdf.png")));
    const int encabezado = png.height() / 2 - lienzo.height();
    for (const QImage& imagen : {png, delSvg, delPdf}) {
        ASSERT_FALSE(imagen.isNull());
        const auto color = [&](QPointF en) {
            return imagen.pixelColor((QPointF(en.x(), en.y() + encabezado) * 2).toPoint());
        };
        EXPECT_GT(color(rojo).red(), color(rojo).blue() + 60);
        EXPECT_GT(color(azul).blue(), color(azul).red() + 60);
    }
}

TEST_F(VentanaDelMapa, UnDiscoQueNoAceptaSeAvisa)
{
    Abre();
    mundo.anfitrion->elegidos = {carpeta.Ruta("no/hay/m.png")};
    for (QAction* accion : Control<QMenu>(ventana, "mnuGuardar").actions())
        if (accion->text().contains(QStringLiteral("PNG"))) accion->trigger();
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
}

TEST_F(VentanaDelMapa, SeImprimeYSeCopia)
{
    Abre();
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_EQ(impresora.Paginas(), 1);
    EXPECT_EQ(impresora.Titulo(), "Mapa de la corrida");
    EXPECT_NE(impresora.Texto(1).find("Proyecto: Arroyo"), std::string::npos);
    QTest::keyClick(&lienzo, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().width(), 2 * lienzo.width());
}

// A step in time paints the water alone: the layers below and above it are made once for a view.
TEST_F(VentanaDelMapa, ElTiempoNoRehaceLosRotulos)
{
    Abre();
    const RotuloPuesto* const antes = lienzo.Pintor().Puestos().data();
    QTest::keyClick(&lienzo, Qt::Key_Home);
    lienzo.repaint();
    EXPECT_EQ(lienzo.Pintor().Puestos().data(), antes);
}

}  // namespace
}  // namespace results
