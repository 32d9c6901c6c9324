// SPDX-License-Identifier: GPL-3.0-or-later
//
// The drawing on paper and in files, as another program sees them.

#include <QAction>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <filesystem>

#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {
namespace {

namespace fs = std::filesystem;
using forms::DeQ;

/// The editor on a copy of the sample project, without its map.
struct SalidaDelDibujo : testing::Test {
    SalidaDelDibujo()
    {
        fs::copy(SIRO_DATA_DIR, DeQ(dir.path()), fs::copy_options::recursive);
        s.Proyecto.DirTrabajo = DeQ(dir.path());
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = s.frmConfigura.Dir1 =
            DeQ(dir.path()) + "/Proyectos";
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = "Quelmar";
        s.Configuracion.TituloProyecto = "Crecidas";
        mundo.anfitrion->fechaHora = "03/04/2011 10:20:30";
        s.Anfitrion.RedibujaEditor = [this] { Redibuja(f, s); };
        mundo.entorno.Impresora = impresora.Puerta();
        ventana.Abre();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
        mundo.anfitrion->sucesos.clear();
    }
    void Hace(const char* accion)
    {
        auto* const entrada = ventana.findChild<QAction*>(QString::fromUtf8(accion));
        ASSERT_NE(entrada, nullptr);
        entrada->trigger();
    }
    QWidget& Lienzo() { return apoyo::Control<QWidget>(ventana, "picDibujo"); }
    /// The canvas as the screen has it.
    QImage Pantalla() { return Lienzo().grab().toImage(); }

    QTemporaryDir dir{};
    apoyo::Mundo mundo{};
    apoyo::ImpresoraDePrueba impresora{};
    frmUEHs f{};
    model::Siro& s = mundo.s;
    frmUEHs_ventana ventana{mundo.entorno, f};
};

/// Mean difference of two pictures of the same thing, looked at from afar [0 to 255].
double Diferencia(const QImage& a, const QImage& b)
{
    constexpr QSize Lejos(160, 120);
    const auto gris = [&](const QImage& imagen) {
        return imagen.scaled(Lejos, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage ga = gris(a), gb = gris(b);
    double suma = 0;
    for (int y = 0; y < Lejos.height(); ++y)
        for (int x = 0; x < Lejos.width(); ++x)
            suma += std::abs(ga.pixelColor(x, y).red() - gb.pixelColor(x, y).red());
    return suma / (Lejos.width() * Lejos.height());
}

TEST_F(SalidaDelDibujo, ImpresoSeVeComoEnElLienzo)
{
    Hace("ImprimeDibujo");
    ASSERT_TRUE(impresora.Imprimio());
    constexpr int PuntosPorPulgada = 100;
    const QRect hoja = impresora.Pintable(PuntosPorPulgada);
    // Below the drawing stands a line of letters as high as the canvas's.
    const QSize todo = Lienzo().size() + QSize(0, Lienzo().fontMetrics().lineSpacing() + 2);
    const double escala = todo.scaled(hoja.size(), Qt::KeepAspectRatio).width() / double(todo.width());
    const QSize lugar = (QSizeF(Lienzo().size()) * escala).toSize();
    const QImage impreso = impresora.Hoja(1, PuntosPorPulgada).copy(QRect(hoja.topLeft(), lugar));
    const double diferencia = Diferencia(impreso, Pantalla());
    EXPECT_LT(diferencia, 2) << "of the printed drawing and the canvas";
    EXPECT_EQ(impresora.Titulo(), "Quelmar");
    EXPECT_EQ(impresora.Paginas(), 1);
    const std::string texto = impresora.Texto(1);
    EXPECT_NE(texto.find("Proyecto: Quelmar - Crecidas"), std::string::npos) << texto;
    EXPECT_NE(texto.find("Fecha: 03/04/2011"), std::string::npos) << texto;
}

/// A file as another program draws it, as large as `tamano`.
QImage DeSvg(const std::string& ruta, QSize tamano)
{
    QImage imagen(tamano, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QSvgRenderer svg(forms::Q(ruta));
    EXPECT_TRUE(svg.isValid());
    QPainter papel(&imagen);
    svg.render(&papel);
    return imagen;
}

// An image half red, half blue, of which the canvas shows a part with the border in it.
TEST_F(SalidaDelDibujo, DeUnaImagenMasGrandeQueElLienzoSeGuardaLaParteALaVista)
{
    QImage imagen(400, 300, QImage::Format_RGB32);
    imagen.fill(Qt::red);
    QPainter(&imagen).fillRect(0, 0, 130, 300, Qt::blue);
    const std::string archivo = DeQ(dir.path()) + "/Proyectos/dos.png";
    ASSERT_TRUE(imagen.save(forms::Q(archivo)));
    s.Configuracion.ArchivoImagen = "dos.png";
    s.Configuracion.EscalaImagen = 800;
    s.Configuracion.ImagenX0 = s.Configuracion.ImagenY0 = -600;
    apoyo::Pulsa(apoyo::Control<QPushButton>(ventana, "cmdImagenUEHs"));
    ASSERT_TRUE(apoyo::Espera([&] { return f.fondo.ImagenVisible; }));
    const QImage pantalla = Pantalla();
    const std::string ruta = DeQ(dir.path()) + "/red";
    mundo.anfitrion->elegidos = {ruta + ".svg"};
    Hace("GuardaDibujoSVG");
    const QSize lienzo = Lienzo().size();
    const QSize todo = lienzo + QSize(0, Lienzo().fontMetrics().lineSpacing() + 2);
    EXPECT_LT(Diferencia(DeSvg(ruta + ".svg", todo).copy({{0, 0}, lienzo}), pantalla), 2);
}

TEST_F(SalidaDelDibujo, CadaArchivoSeVeComoElLienzoYDiceQueEs)
{
    const std::string ruta = DeQ(dir.path()) + "/red";
    mundo.anfitrion->elegidos = {ruta + ".png", ruta + ".svg", ruta + ".pdf"};
    for (const char* accion : {"GuardaDibujoPNG", "GuardaDibujoSVG", "GuardaDibujoPDF"})
        Hace(accion);
    EXPECT_EQ(mundo.anfitrion->propuestos,
              (std::vector<std::string>{"Quelmar.png", "Quelmar.svg", "Quelmar.pdf"}));
    const QSize lienzo = Lienzo().size();
    const auto dibujo = [&](const QImage& imagen) {
        return imagen.copy(0, 0, imagen.width(), imagen.width() * lienzo.height() / lienzo.width());
    };
    const QImage png(forms::Q(ruta + ".png"));
    EXPECT_EQ(png.width(), 2 * lienzo.width());
    EXPECT_GT(png.height(), 2 * lienzo.height());
    EXPECT_LT(Diferencia(dibujo(png), Pantalla()), 2);

    EXPECT_LT(Diferencia(dibujo(DeSvg(ruta + ".svg", png.size())), Pantalla()), 2);

    const QString hoja = dir.filePath(QStringLiteral("hoja"));
    apoyo::SalidaDe(QStringLiteral("pdftoppm"),
                    {QStringLiteral("-png"), QStringLiteral("-singlefile"), forms::Q(ruta + ".pdf"), hoja});
    EXPECT_LT(Diferencia(dibujo(QImage(hoja + QStringLiteral(".png"))), Pantalla()), 2);
    const std::string texto =
        apoyo::SalidaDe(QStringLiteral("pdftotext"),
                        {QStringLiteral("-layout"), forms::Q(ruta + ".pdf"), QStringLiteral("-")});
    EXPECT_NE(texto.find("Proyecto: Quelmar - Crecidas"), std::string::npos) << texto;
}

}  // namespace
}  // namespace editor
