// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QImage>
#include <QLocale>
#include <QMenu>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Lamina_ventana.h"
#include "forms/LecturaGrafico.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

constexpr QSize Tamano(700, 420);

/// A hydrograph of n rows of 10 min: the flow of row i is i, up to the middle; rain in the first rows.
Grafico Hidrograma(int n)
{
    Grafico g;
    g.tipo = TipoGrafico::Combinacion;
    g.ejeX = "minutos";
    g.ejeY = "Caudal [m3/s]";
    g.ejeYSecundario = "Precipitación [mm]";
    g.leyendaVisible = true;
    g.series = {{TipoSerie::Linea2D, "Qsale", false, {}}, {TipoSerie::Escalon2D, "Pp", true, {}}};
    for (int i = 1; i <= n; ++i) {
        g.categorias.push_back(std::to_string(10 * i));
        g.series[0].celdas.push_back(std::min(i, n - i));
        g.series[1].celdas.push_back(i <= n / 4 ? 5 : 0);
    }
    return g;
}

struct LaminaEnVentana : testing::Test {
    LaminaEnVentana()
    {
        mundo.s.Disco = disco.Puerta();
        disco.PonDirectorio("/salida");
    }
    void SetUp() override
    {
        auto* const pila = new QVBoxLayout(&ventana);
        pila->addWidget(lamina);
        ventana.resize(Tamano);
        lamina->Muestra(Hidrograma(100));
        apoyo::Muestra(ventana);
        lamina->setFocus();
    }
    /// The surface that gets the mouse.
    QWidget& Plano() const { return *lamina->findChildren<QWidget*>().constFirst(); }
    [[nodiscard]] QPoint Centro() const { return Plano().rect().center(); }
    [[nodiscard]] double Ancho() const { return lamina->EnVista().hasta - lamina->EnVista().desde; }
    void Rueda(int grados, Qt::KeyboardModifiers con = Qt::NoModifier) const
    {
        QWheelEvent evento(Centro(), Plano().mapToGlobal(Centro()), {}, {0, grados * 8}, Qt::NoButton, con,
                           Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Plano(), &evento);
        QCoreApplication::processEvents();
    }
    void Apunta(const QPoint& punto) const
    {
        QMouseEvent evento(QEvent::MouseMove, punto, Plano().mapToGlobal(punto), Qt::NoButton, Qt::NoButton,
                           Qt::NoModifier);
        QApplication::sendEvent(&Plano(), &evento);
    }
    /// What the windows tell their chart of the dam's hydrograph.
    void PonProcedencia()
    {
        mundo.s.Proyecto.NombreProyecto = "Quelmar";
        mundo.s.Configuracion.TituloProyecto = "Crecidas";
        mundo.anfitrion->fechaHora = "03/04/2011 10:20:30";
        lamina->PonTema("Componente: 3, r-Dique   Pp= 60mm", "r-Dique");
    }
    /// A right click as the window system brings it. Returns whether the menu came up.
    bool ClicDerecho(const Lamina& en) const
    {
        bool vino = false;
        QTimer::singleShot(0, lamina, [&vino] {
            QWidget* const menu = QApplication::activePopupWidget();
            vino = menu != nullptr && menu->objectName() == QStringLiteral("mnuLamina");
            if (menu != nullptr) menu->close();
        });
        QTest::mouseClick(ventana.windowHandle(), Qt::RightButton, {},
                          en.mapTo(&ventana, en.rect().center()));
        QCoreApplication::processEvents();
        return vino;
    }
    void Elige(const char* leyenda) const
    {
        QTimer::singleShot(0, lamina, [leyenda] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* accion : menu->actions())
                if (accion->text() == QString::fromUtf8(leyenda))
                    return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
            ADD_FAILURE() << leyenda;
            menu->close();
        });
        QTest::keyClick(lamina, Qt::Key_Menu);
        QContextMenuEvent pide(QContextMenuEvent::Keyboard, lamina->rect().center(),
                               lamina->mapToGlobal(lamina->rect().center()));
        QApplication::sendEvent(lamina, &pide);
    }

    apoyo::Mundo mundo{};
    apoyo::DiscoPrueba disco{};
    QWidget ventana{};
    Lamina* lamina = new Lamina(mundo.entorno, "Grafico", "Hidrograma");
};

TEST_F(LaminaEnVentana, MuestraTodasLasFilasDesdeElComienzoDeLaPrimera)
{
    EXPECT_EQ(lamina->EnVista().desde, 0);
    EXPECT_EQ(lamina->EnVista().hasta, 100);
}

TEST_F(LaminaEnVentana, LosRotulosSonPocosYNuncaSeTocan)
{
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->RotulosEnVista().size() > 3; }));
    const int ancho = lamina->fontMetrics().horizontalAdvance(QStringLiteral("1000"));
    EXPECT_LE(lamina->RotulosEnVista().size() * ancho, Plano().width());
    EXPECT_GE(lamina->RotulosEnVista().size() * ancho * 6, Plano().width());
    ventana.resize(ventana.minimumSizeHint());
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->RotulosEnVista().size() * ancho <= Plano().width(); }));
    EXPECT_GE(lamina->RotulosEnVista().size(), 1);
}

TEST_F(LaminaEnVentana, UnaEscalaManualRotulaSusMultiplosYDejaFueraLosQueNoCaben)
{
    Grafico g = Hidrograma(100);
    g.escala.automatica = false;
    g.escala.divisionesPorRotulo = 32;
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] {
        return lamina->RotulosEnVista() ==
               QStringList({QStringLiteral("320"), QStringLiteral("640"), QStringLiteral("960")});
    }));
    g.escala.divisionesPorRotulo = 1024;
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->RotulosEnVista() == QStringList(QStringLiteral("10")); }));
    g.escala.divisionesPorRotulo = 1;
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->RotulosEnVista().size() > 3; }));
    EXPECT_LT(lamina->RotulosEnVista().size(), 30);
}

TEST_F(LaminaEnVentana, LaRuedaAcercaYAlejaSinSalirDelGraficoYElDobleClicVeTodo)
{
    Rueda(15);
    EXPECT_NEAR(Ancho(), 80, 0.01);
    Rueda(15);
    EXPECT_NEAR(Ancho(), 64, 0.01);
    for (int i = 0; i < 6; ++i)
        Rueda(-15);
    EXPECT_EQ(Ancho(), 100);
    for (int i = 0; i < 40; ++i)
        Rueda(15);
    EXPECT_NEAR(Ancho(), 2, 0.01);
    QTest::mouseDClick(&Plano(), Qt::LeftButton, {}, Centro());
    EXPECT_EQ(Ancho(), 100);
}

TEST_F(LaminaEnVentana, LaRuedaConCtrlAcercaLosValoresYDejaLasCategorias)
{
    Rueda(15, Qt::ControlModifier);
    EXPECT_EQ(Ancho(), 100);
}

TEST_F(LaminaEnVentana, ArrastrarDesplazaLoAcercadoHastaElBorde)
{
    for (int i = 0; i < 4; ++i)
        Rueda(15);
    const Lamina::Tramo antes = lamina->EnVista();
    const auto arrastra = [&](int dx) {
        QTest::mousePress(&Plano(), Qt::LeftButton, {}, Centro());
        QMouseEvent evento(QEvent::MouseMove, Centro() + QPoint(dx, 0),
                           Plano().mapToGlobal(Centro() + QPoint(dx, 0)), Qt::NoButton, Qt::LeftButton,
                           Qt::NoModifier);
        QApplication::sendEvent(&Plano(), &evento);
        QTest::mouseRelease(&Plano(), Qt::LeftButton, {}, Centro() + QPoint(dx, 0));
        QCoreApplication::processEvents();
    };
    arrastra(-50);
    EXPECT_GT(lamina->EnVista().desde, antes.desde);
    EXPECT_NEAR(Ancho(), antes.hasta - antes.desde, 0.01);
    for (int i = 0; i < 30; ++i)
        arrastra(-200);
    EXPECT_EQ(lamina->EnVista().hasta, 100);
    EXPECT_NEAR(Ancho(), antes.hasta - antes.desde, 0.01);
}

TEST_F(LaminaEnVentana, LoAcercadoQuedaAlCambiarLosDatosYSeVaAlCambiarLasFilas)
{
    Rueda(15);
    Grafico g = Hidrograma(100);
    g.series[0].celdas[3] = 80;
    lamina->Muestra(g);
    QCoreApplication::processEvents();
    EXPECT_NEAR(Ancho(), 80, 0.01);
    lamina->Muestra(Hidrograma(60));
    QCoreApplication::processEvents();
    EXPECT_EQ(Ancho(), 60);
}

TEST_F(LaminaEnVentana, BajoElPunteroSeLeeLaFila)
{
    Apunta(Centro());
    const std::string lectura = lamina->Lectura();
    EXPECT_NE(lectura.find(" minutos\nQsale = "), std::string::npos) << lectura;
    EXPECT_NE(lectura.find(" m3/s\nPp = 0 mm"), std::string::npos) << lectura;
    Apunta({1, 1});
    EXPECT_EQ(lamina->Lectura(), "");
    Apunta(Centro());
    QEvent sale(QEvent::Leave);
    QApplication::sendEvent(&Plano(), &sale);
    EXPECT_EQ(lamina->Lectura(), "");
}

TEST_F(LaminaEnVentana, LasFlechasLeenFilaPorFilaYQuienNoVeLoOye)
{
    QTest::keyClick(lamina, Qt::Key_Right);
    EXPECT_EQ(lamina->Lectura(), "10 minutos\nQsale = 1 m3/s\nPp = 5 mm");
    QTest::keyClick(lamina, Qt::Key_Right);
    EXPECT_EQ(lamina->Lectura(), "20 minutos\nQsale = 2 m3/s\nPp = 5 mm");
    EXPECT_TRUE(lamina->accessibleDescription().startsWith(QStringLiteral("20 minutos")));
    QTest::keyClick(lamina, Qt::Key_PageDown);
    EXPECT_TRUE(lamina->Lectura().starts_with("120 minutos"));
    QTest::keyClick(lamina, Qt::Key_PageUp);
    QTest::keyClick(lamina, Qt::Key_Left);
    QTest::keyClick(lamina, Qt::Key_Left);
    EXPECT_TRUE(lamina->Lectura().starts_with("10 minutos"));
    QTest::keyClick(lamina, Qt::Key_End);
    EXPECT_TRUE(lamina->Lectura().starts_with("1000 minutos"));
    QTest::keyClick(lamina, Qt::Key_Home);
    EXPECT_TRUE(lamina->Lectura().starts_with("10 minutos"));
}

TEST_F(LaminaEnVentana, LasTeclasAcercanAlejanYVenTodo)
{
    QTest::keyClick(lamina, Qt::Key_Plus);
    EXPECT_NEAR(Ancho(), 80, 0.01);
    QTest::keyClick(lamina, Qt::Key_Plus);
    QTest::keyClick(lamina, Qt::Key_Minus);
    EXPECT_NEAR(Ancho(), 80, 0.01);
    QTest::keyClick(lamina, Qt::Key_0);
    EXPECT_EQ(Ancho(), 100);
}

TEST_F(LaminaEnVentana, TieneNombreYDescripcionConTemaFilasYPicos)
{
    lamina->PonTema("Componente: 1, u-1");
    EXPECT_EQ(DeQ(lamina->accessibleName()), "Hidrograma");
    EXPECT_EQ(DeQ(lamina->accessibleDescription()),
              "Componente: 1, u-1. 100 filas. Qsale: máximo 50 m3/s en 500 minutos. "
              "Pp: máximo 5 mm en 10 minutos.");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
}

// --- image and files ---

TEST_F(LaminaEnVentana, ElBotonDerechoAbreElMenu)
{
    EXPECT_TRUE(ClicDerecho(*lamina));
    auto* const chica = new Lamina(mundo.entorno, "Chica", "Curva", Lamina::Modo::Compacta);
    ventana.layout()->addWidget(chica);
    chica->Muestra(Hidrograma(20));
    QCoreApplication::processEvents();
    EXPECT_TRUE(ClicDerecho(*chica));
    // The click neither zooms nor moves anything.
    EXPECT_EQ(Ancho(), 100);
}

TEST_F(LaminaEnVentana, ElMenuGuardaLasCeldasComoCsv)
{
    mundo.anfitrion->elegidos = {"/salida/h.csv"};
    mundo.anfitrion->fechaHora.clear();
    Elige("&Guardar celdas como CSV...");
    EXPECT_EQ(disco.Bytes("/salida/h.csv"),
              "\xEF\xBB\xBF\"Hidrograma\"\r\n" + ComoCsv(CeldasComoPlanilla(Hidrograma(100))));
    EXPECT_EQ(mundo.anfitrion->propuestos, std::vector<std::string>{"Hidrograma.csv"});
}

TEST_F(LaminaEnVentana, LoQueSaleDiceQueEs)
{
    PonProcedencia();
    Grafico g = Hidrograma(8);
    g.titulo = "  Un título  ";
    g.notaAlPie = " Pp= 60mm ";
    g.salvedad = "Los nombres están cambiados";
    lamina->Muestra(g);
    mundo.anfitrion->elegidos = {"/salida/h.csv", "/salida/h.svg", "/salida/h.pdf"};
    lamina->GuardaCsv();
    EXPECT_EQ(disco.Bytes("/salida/h.csv"),
              "\xEF\xBB\xBF\"Hidrograma\"\r\n\"Un título\"\r\n\"Pp= 60mm\"\r\n"
              "\"Componente: 3, r-Dique   Pp= 60mm\"\r\n\"Proyecto: Quelmar - Crecidas\"\r\n"
              "\"Fecha: 03/04/2011\"\r\n\"Los nombres están cambiados\"\r\n" +
                  ComoCsv(CeldasComoPlanilla(g)));
    EXPECT_EQ(mundo.anfitrion->propuestos, std::vector<std::string>{"Hidrograma - r-Dique.csv"});

    lamina->GuardaSvg();
    lamina->GuardaPdf();
    const QTemporaryDir carpeta;
    const QString pdf = carpeta.filePath(QStringLiteral("h.pdf"));
    QFile archivo(pdf);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(QByteArray::fromStdString(disco.Bytes("/salida/h.pdf")));
    archivo.close();
    const std::string svg = disco.Bytes("/salida/h.svg");
    const std::string texto = apoyo::SalidaDe(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    for (const char* dice : {"Hidrograma", "Un título", "Componente: 3, r-Dique", "Quelmar - Crecidas",
                             "Fecha: 03/04/2011", "Los nombres están cambiados"}) {
        EXPECT_NE(svg.find(dice), std::string::npos) << dice;
        EXPECT_NE(texto.find(dice), std::string::npos) << dice << "\nin " << texto;
    }
    // On the screen the chart is as it was.
    EXPECT_EQ(lamina->EnVista().hasta, 8);
}

TEST_F(LaminaEnVentana, LaImagenCrecePorLoQueDiceYElGraficoNoSeAchica)
{
    PonProcedencia();
    lamina->CopiaImagen();
    const QImage imagen = QApplication::clipboard()->image();
    // Twice as many dots as the screen has, 900 across.
    EXPECT_EQ(imagen.width(), 1800);
    const int delGrafico = 1800 * lamina->height() / lamina->width();
    EXPECT_GT(imagen.height(), delGrafico + 2 * 2 * lamina->fontMetrics().height());
}

TEST_F(LaminaEnVentana, ElSignoDecimalSeEligeUnaVezYVale)
{
    EXPECT_EQ(SignoElegido(mundo.entorno).signo, '.');
    QMenu menu;
    AgregaSignoDecimal(menu, mundo.entorno);
    const auto elige = [&](const char* nombre) {
        auto* const accion = menu.findChild<QAction*>(QString::fromUtf8(nombre));
        ASSERT_NE(accion, nullptr);
        accion->trigger();
    };
    const char delEscritorio = QLocale::system().decimalPoint() == QLatin1String(",") ? ',' : '.';
    elige("mnuSignoEscritorio");
    EXPECT_EQ(SignoElegido(mundo.entorno).signo, delEscritorio);
    // Whoever asks later finds the choice.
    apoyo::Mundo otro;
    EXPECT_EQ(SignoElegido(otro.entorno).signo, delEscritorio);
    elige("mnuSignoPunto");
    EXPECT_EQ(SignoElegido(mundo.entorno).signo, '.');
}

TEST_F(LaminaEnVentana, ElPngEsUnaImagenConElFondoDelPapel)
{
    QPalette oscura;
    oscura.setColor(QPalette::Base, Qt::black);
    oscura.setColor(QPalette::Text, Qt::white);
    lamina->setPalette(oscura);
    mundo.anfitrion->elegidos = {"/salida/h.png"};
    Elige("Guardar como &PNG...");
    const QByteArray bytes = QByteArray::fromStdString(disco.Bytes("/salida/h.png"));
    const QImage imagen = QImage::fromData(bytes, "PNG");
    EXPECT_GE(imagen.width(), 1800);
    EXPECT_EQ(imagen.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_EQ(ventana.grab().toImage().pixelColor(lamina->geometry().topLeft() + QPoint(4, 4)),
              QColor(Qt::black));
}

TEST_F(LaminaEnVentana, SvgYPdfSonDibujosYNoImagenes)
{
    mundo.anfitrion->elegidos = {"/salida/h.svg", "/salida/h.pdf"};
    Elige("Guardar como &SVG...");
    Elige("Guardar como P&DF...");
    const std::string svg = disco.Bytes("/salida/h.svg");
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svg)).isValid());
    EXPECT_NE(svg.find("Caudal [m3/s]"), std::string::npos);
    EXPECT_EQ(svg.find("<image"), std::string::npos);
    const std::string pdf = disco.Bytes("/salida/h.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
}

TEST_F(LaminaEnVentana, CopiarDejaLaImagenEnElPortapapeles)
{
    QApplication::clipboard()->clear();
    QTest::keyClick(lamina, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    QApplication::clipboard()->clear();
    Elige("&Copiar imagen");
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
}

TEST_F(LaminaEnVentana, GuardarDondeNoSePuedeLoDiceYCancelarNoHaceNada)
{
    Elige("Guardar como &PNG...");
    EXPECT_TRUE(disco.Archivos().empty());
    mundo.anfitrion->elegidos = {"/no está/h.png"};
    Elige("Guardar como &PNG...");
    EXPECT_EQ(mundo.anfitrion->Avisos(),
              std::vector<model::Mensaje>{{"Error Nro. 76No se encontró la ruta de acceso ,Verifique"}});
}

TEST_F(LaminaEnVentana, LoQueSeLeeNoSaleEnLaImagen)
{
    mundo.anfitrion->elegidos = {"/salida/a.png", "/salida/b.png"};
    lamina->GuardaPng();
    QTest::keyClick(lamina, Qt::Key_Right);
    lamina->GuardaPng();
    const auto imagen = [&](const char* ruta) {
        return QImage::fromData(QByteArray::fromStdString(disco.Bytes(ruta)), "PNG");
    };
    EXPECT_TRUE(imagen("/salida/a.png") == imagen("/salida/b.png"));
    EXPECT_NE(lamina->Lectura(), "");
}

// --- drawing ---

/// Pixels of the chart that are bluish, top half and bottom half.
std::pair<int, int> Lluvia(QWidget& w)
{
    const QImage imagen = w.grab().toImage();
    int arriba = 0, abajo = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (const QColor c = imagen.pixelColor(x, y); c.blue() > c.red() + 30 && c.blue() > 200)
                ++(y < imagen.height() / 2 ? arriba : abajo);
    return {arriba, abajo};
}

TEST_F(LaminaEnVentana, LaLluviaCuelgaDeArribaEnUnaCombinacionYSeLevantaDesdeAbajoSola)
{
    Grafico g = Hidrograma(100);
    g.leyendaVisible = false;
    lamina->Muestra(g);
    QCoreApplication::processEvents();
    const auto [arriba, abajo] = Lluvia(*lamina);
    EXPECT_GT(arriba, 1000);
    EXPECT_LT(abajo, arriba / 10);

    Grafico solo;
    solo.categorias = g.categorias;
    solo.series = {{TipoSerie::Escalon2D, "", false, std::vector<double>(100, 1)}};
    solo.series[0].celdas[0] = 3;
    lamina->Muestra(solo);
    QCoreApplication::processEvents();
    EXPECT_GT(Lluvia(*lamina).second, Lluvia(*lamina).first);
}

TEST_F(LaminaEnVentana, AguantaGraficosVaciosDeUnaFilaYConHuecos)
{
    lamina->Muestra({});
    QCoreApplication::processEvents();
    QTest::keyClick(lamina, Qt::Key_Right);
    EXPECT_EQ(lamina->Lectura(), "");
    Apunta(Centro());
    EXPECT_EQ(lamina->Lectura(), "");

    lamina->Muestra(Hidrograma(1));
    QCoreApplication::processEvents();
    QTest::keyClick(lamina, Qt::Key_End);
    EXPECT_EQ(lamina->Lectura(), "10 minutos\nQsale = 0 m3/s\nPp = 0 mm");

    Grafico g = Hidrograma(10);
    g.series[0].celdas.assign(10, CeldaVacia);
    g.series[0].celdas[4] = 7;
    g.marcas = {{0, 4, "D= 50 min"}, {0, 5, "vacía"}, {9, 0, "de más"}};
    lamina->Muestra(g);
    QCoreApplication::processEvents();
    EXPECT_NE(DeQ(lamina->accessibleDescription()).find("10 filas. Qsale: máximo 7 m3/s en 50 minutos. Pp"),
              std::string::npos);
    g.marcas.clear();
    lamina->Muestra(g);
    QCoreApplication::processEvents();
}

/// Curves like an abacus's, a recurrence each: they rise and fall, close to one another, their peaks marked.
Grafico Abaco(int curvas)
{
    Grafico g;
    g.tipo = TipoGrafico::Linea;
    g.ejeX = "Duración Tormenta D[minutos]";
    g.ejeY = "Caudal Máximo [m3/s]";
    g.leyendaVisible = true;
    g.tituloLeyenda = "R[años]";
    for (int i = 1; i <= 14; ++i)
        g.categorias.push_back(std::to_string(30 * i));
    for (int c = 0; c < curvas; ++c) {
        Serie& curva =
            g.series.emplace_back(Serie{TipoSerie::Linea2D, std::to_string(1000 * (c + 1)), false, {}});
        for (int i = 0; i < 14; ++i)
            curva.celdas.push_back(20 * std::pow(1.35, c) * (i + 2) * std::exp(-i / 4.0));
        const auto pico = static_cast<std::size_t>(
            std::max_element(curva.celdas.begin(), curva.celdas.end()) - curva.celdas.begin());
        g.marcas.push_back({static_cast<std::size_t>(c), pico, "D= " + g.categorias[pico] + " min"});
    }
    return g;
}

/// Dots of a picture with a colour of their own: letters, axes and ground have none.
int Coloreados(const QImage& imagen)
{
    constexpr int Gris = 40;
    int n = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            n += std::max({c.red(), c.green(), c.blue()}) - std::min({c.red(), c.green(), c.blue()}) > Gris;
        }
    return n;
}

TEST_F(LaminaEnVentana, NingunRotuloDeMarcaTocaUnaCurvaUnAnilloNiOtroRotulo)
{
    for (const int curvas : {3, 10, 14}) {
        lamina->Muestra(Abaco(curvas));
        QCoreApplication::processEvents();
        ASSERT_EQ(lamina->LugaresDeLeyenda().size(), curvas);
        const QImage imagen = lamina->grab().toImage();
        const QList<QRectF> lugares = lamina->LugaresDeMarcas();
        EXPECT_GE(lugares.size(), 2) << curvas;
        for (const QRectF& lugar : lugares) {
            EXPECT_EQ(Coloreados(imagen.copy(lugar.toAlignedRect())), 0) << curvas;
            EXPECT_TRUE(QRectF(lamina->rect()).contains(lugar));
            EXPECT_EQ(std::count_if(lugares.begin(), lugares.end(),
                                    [&](const QRectF& otro) { return otro.intersects(lugar); }),
                      1);
        }
        // The picture has what is looked for where there is a curve.
        EXPECT_GT(Coloreados(imagen), 1000);
    }
}

TEST_F(LaminaEnVentana, DeDosAnillosEnElMismoLugarCadaRotuloVaASuLadoYElTerceroSeVa)
{
    Grafico g = Abaco(1);
    g.series.resize(3, g.series[0]);
    g.marcas.resize(3, g.marcas[0]);
    for (std::size_t i = 0; i < 3; ++i) {
        g.marcas[i].serie = i;
        g.marcas[i].rotulo = std::string(12, static_cast<char>('a' + i));
    }
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->MarcasRotuladas().size() == 2; }));
    // One that stands alone finds its place; where its ring is out of sight it goes.
    g.series.resize(1);
    g.marcas.resize(1);
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->MarcasRotuladas().size() == 1; }));
    g.series[0].celdas.assign(14, CeldaVacia);
    lamina->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return lamina->MarcasRotuladas().isEmpty(); }));
}

TEST_F(LaminaEnVentana, LaLeyendaSeVeEnteraEnCualquierAncho)
{
    lamina->Muestra(Abaco(14));
    for (const int ancho : {300, 500, 700, 1100}) {
        ventana.resize(ancho, Tamano.height());
        QCoreApplication::processEvents();
        lamina->grab();
        const QList<QRectF> lugares = lamina->LugaresDeLeyenda();
        ASSERT_EQ(lugares.size(), 14) << ancho;
        for (const QRectF& lugar : lugares) {
            EXPECT_TRUE(QRectF(lamina->rect()).contains(lugar)) << ancho << ": " << lugar.right();
            EXPECT_EQ(std::count_if(lugares.begin(), lugares.end(),
                                    [&](const QRectF& otro) { return otro.intersects(lugar); }),
                      1)
                << ancho;
        }
    }
}

/// The dot and dashes of an entry of the legend, its colours taken out.
QImage Muestra(const QImage& imagen, const QRectF& entrada)
{
    constexpr int AnchoDeLaMuestra = 32;
    QRect lugar = entrada.toAlignedRect();
    lugar.setWidth(AnchoDeLaMuestra);
    return imagen.copy(lugar).convertToFormat(QImage::Format_Mono, Qt::ThresholdDither | Qt::AvoidDither);
}

TEST_F(LaminaEnVentana, LasRecurrenciasDelMismoColorTienenOtraMarca)
{
    lamina->Muestra(Abaco(14));
    QCoreApplication::processEvents();
    ASSERT_EQ(lamina->LugaresDeLeyenda().size(), 14);
    const QImage imagen = lamina->grab().toImage();
    const QList<QRectF> lugares = lamina->LugaresDeLeyenda();
    for (qsizetype i = 0; i < 7; ++i) {
        const QImage una = Muestra(imagen, lugares[i]), otra = Muestra(imagen, lugares[i + 7]);
        // The dot stands in the middle of the sample: seven dots across it.
        const QRect punto(una.width() / 2 - 3, una.height() / 2 - 4, 7, 8);
        EXPECT_NE(una.copy(punto), otra.copy(punto)) << i;
    }
}

TEST_F(LaminaEnVentana, LaCompactaNoTieneTituloYCabeEnPocoLugar)
{
    auto* const chica = new Lamina(mundo.entorno, "Chica", "Curva", Lamina::Modo::Compacta);
    ventana.layout()->addWidget(chica);
    Grafico g = Hidrograma(20);
    g.titulo = "Título";
    chica->Muestra(g);
    QCoreApplication::processEvents();
    EXPECT_LT(chica->minimumSizeHint().width(), lamina->minimumSizeHint().width());
    // On its way out it bears the title all the same.
    const QImage con = chica->grab().toImage();
    g.titulo.clear();
    chica->Muestra(g);
    EXPECT_TRUE(apoyo::Espera([&] { return chica->grab().toImage() == con; }));
    g.titulo = "Título";
    chica->Muestra(g);
    mundo.anfitrion->elegidos = {"/salida/c.svg"};
    chica->GuardaSvg();
    EXPECT_NE(disco.Bytes("/salida/c.svg").find("Título"), std::string::npos);
}

TEST_F(LaminaEnVentana, ImprimeLaVentanaConSuGrafico)
{
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    PonProcedencia();
    Grafico g = Hidrograma(100);
    g.salvedad = "Los nombres están cambiados";
    lamina->Muestra(g);
    ImprimeConLamina(mundo.entorno, ventana, *lamina);
    EXPECT_TRUE(mundo.anfitrion->Avisos().empty());
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_EQ(impresora.Titulo(), "Hidrograma - r-Dique");
    const std::string texto = impresora.Texto(1);
    for (const char* dice :
         {"Proyecto: Quelmar - Crecidas", "Fecha: 03/04/2011", "Los nombres están cambiados"})
        EXPECT_NE(texto.find(dice), std::string::npos) << dice << "\nin " << texto;
    // The image of the window takes the page's width, and has its proportions.
    constexpr int PuntosPorPulgada = 50;
    const QImage hoja = impresora.Hoja(1, PuntosPorPulgada);
    const QRect pintable = impresora.Pintable(PuntosPorPulgada);
    EXPECT_GT(hoja.width(), hoja.height());
    const QColor fondo = ventana.palette().color(QPalette::Window);
    const int alto = pintable.width() * Tamano.height() / Tamano.width();
    EXPECT_EQ(hoja.pixelColor(pintable.right() - 4, pintable.top() + 4), fondo);
    EXPECT_EQ(hoja.pixelColor(pintable.left() + 4, pintable.top() + std::min(alto, pintable.height()) / 2),
              fondo);
}

}  // namespace
}  // namespace forms
