// SPDX-License-Identifier: GPL-3.0-or-later
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>

#include "apoyo/Ventanas.h"
#include "editor/lienzo/CargaImagen_ventana.h"
#include "editor/lienzo/DibujaMetarchivo.h"
#include "editor/lienzo/Imagen_ventana.h"

namespace editor {
namespace {

struct ImagenDePrueba : testing::Test {
    QTemporaryDir dir{};
    std::string Archivo(const char* nombre, const std::string& bytes) const
    {
        const QString ruta = dir.filePath(QString::fromUtf8(nombre));
        QFile archivo(ruta);
        EXPECT_TRUE(archivo.open(QIODevice::WriteOnly));
        archivo.write(bytes.data(), static_cast<qint64>(bytes.size()));
        return ruta.toUtf8().toStdString();
    }
};

TEST_F(ImagenDePrueba, UnMetarchivoSePintaConSusColoresYSuMarco)
{
    const QImage imagen = LeeImagen(Archivo("mapa.wmf", DibujoDeMuestra().Bytes(100, 100, 48))).imagen;
    ASSERT_EQ(imagen.size(), QSize(200, 200));  // 100 units at 48 an inch
    EXPECT_EQ(imagen.pixelColor(180, 120), QColor(0, 0, 255));
    EXPECT_EQ(imagen.pixelColor(20, 20), QColor(255, 0, 0));
    EXPECT_EQ(imagen.pixelColor(160, 40), QColor(0, 255, 0));
    EXPECT_EQ(imagen.pixelColor(100, 190), QColor(0, 0, 0));
    EXPECT_EQ(imagen.pixelColor(125, 130), QColor(255, 255, 255));  // the bitmap's first pixel
    EXPECT_EQ(imagen.pixelColor(155, 130), QColor(0, 0, 0));
}

TEST_F(ImagenDePrueba, LasImagenesCorrientesSeLeenPorSuContenido)
{
    const std::string ruta = (dir.path() + QStringLiteral("/a.bmp")).toUtf8().toStdString();
    QImage verde(3, 2, QImage::Format_RGB32);
    verde.fill(Qt::green);
    ASSERT_TRUE(verde.save(QString::fromUtf8(ruta.c_str()), "BMP"));
    EXPECT_EQ(LeeImagen(ruta).imagen.size(), QSize(3, 2));
    EXPECT_EQ(LeeImagen(ruta).fin, CargaDeImagen::Entera);
    EXPECT_EQ(LeeImagen(std::string(SIRO_DATA_DIR) + "/Proyectos/Quelmar.jpg").fin, CargaDeImagen::Entera);
}

TEST_F(ImagenDePrueba, LoQueNoSeLeeDaUnaImagenVacia)
{
    for (const std::string& ruta :
         {Archivo("a.jpg", "no es una imagen"), Archivo("a.wmf", "no es un metarchivo"),
          std::string("/no/esta.bmp"), std::string("/no/esta.wmf")}) {
        EXPECT_TRUE(LeeImagen(ruta).imagen.isNull()) << ruta;
        EXPECT_EQ(LeeImagen(ruta).fin, CargaDeImagen::Ilegible) << ruta;
    }
}

// 64 by 64 pixels of noise, so that half of the file is half of the picture.
TEST_F(ImagenDePrueba, UnArchivoCortadoSeDice)
{
    QImage ruido(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i)
        ruido.setPixelColor(i % 64, i / 64, QColor::fromRgb(static_cast<QRgb>(i) * 2654435761U));
    for (const char* formato : {"JPG", "PNG", "BMP"}) {
        QByteArray bytes;
        QBuffer memoria(&bytes);
        ASSERT_TRUE(ruido.save(&memoria, formato));
        EXPECT_EQ(LeeImagen(Archivo("a.img", bytes.toStdString())).fin, CargaDeImagen::Entera) << formato;
        const auto salida = qInstallMessageHandler(nullptr);  // the reader of JPEG says so too
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        EXPECT_EQ(LeeImagen(Archivo("b.img", bytes.left(bytes.size() / 2).toStdString())).fin,
                  CargaDeImagen::Incompleta)
            << formato;
        qInstallMessageHandler(salida);
    }
    const std::string wmf = DibujoDeMuestra().Bytes(100, 100, 48);
    const ImagenLeida cortada = LeeImagen(Archivo("a.wmf", wmf.substr(0, wmf.size() - 8)));
    EXPECT_EQ(cortada.fin, CargaDeImagen::Incompleta);
    EXPECT_EQ(cortada.imagen.pixelColor(20, 20), QColor(255, 0, 0)) << "what is there is shown";
}

TEST_F(ImagenDePrueba, UnEmfConOtroNombreSeDice)
{
    const std::string emf =
        std::string("\x01\x00\x00\x00", 4) + std::string(36, '\0') + " EMF" + std::string(60, '\0');
    EXPECT_EQ(LeeImagen(Archivo("mapa.wmf", emf)).fin, CargaDeImagen::MetarchivoMejorado);
}

// Inks of 26, 230, 204, 51 of 255, each kept as what it leaves white: (255 - C)(255 - K)/255 and so on are
// 183, 20, 41.
TEST_F(ImagenDePrueba, UnJpegDeCuatroTintasDaSusColores)
{
    const auto bytes = QByteArray::fromBase64(
        "/9j/7gAOQWRvYmUAZAAAAAAA/9sAQwACAQEBAQECAQEBAgICAgIEAwICAgIFBAQDBAYFBgYGBQYGBgcJCAYHCQcGBggLCAkKCgoK"
        "CgYICwwLCgwJCgoK/8AAFAgAEAAQBEMRAE0RAFkRAEsRAP/EAB8AAAEFAQEBAQEBAAAAAAAAAAABAgMEBQYHCAkKC//EALUQAAIB"
        "AwMCBAMFBQQEAAABfQECAwAEEQUSITFBBhNRYQcicRQygZGhCCNCscEVUtHwJDNicoIJChYXGBkaJSYnKCkqNDU2Nzg5OkNERUZH"
        "SElKU1RVVldYWVpjZGVmZ2hpanN0dXZ3eHl6g4SFhoeIiYqSk5SVlpeYmZqio6Slpqeoqaqys7S1tre4ubrCw8TFxsfIycrS09TV"
        "1tfY2drh4uPk5ebn6Onq8fLz9PX29/j5+v/aAA4EQwBNAFkASwAAPwD9lK/GOvzLr9MKKKKKKKKKKKKK/9k=");
    const ImagenLeida leida = LeeImagen(Archivo("cmyk.jpg", bytes.toStdString()));
    ASSERT_EQ(leida.imagen.size(), QSize(16, 16));
    const QColor color = leida.imagen.pixelColor(8, 8);
    EXPECT_NEAR(color.red(), 183, 2);
    EXPECT_NEAR(color.green(), 20, 2);
    EXPECT_NEAR(color.blue(), 41, 2);
    EXPECT_EQ(leida.fin, CargaDeImagen::Entera);
}

// --- drawings that would take a minute ---

/// Ellipses as large as the picture, 14 bytes each: 280 kB.
std::string DibujoLento()
{
    DibujaMetarchivo dibujo;
    dibujo.Registro(0x020B, {0, 0}).Registro(0x020C, {4000, 4000});
    for (int i = 0; i < 20000; ++i)
        dibujo.Registro(0x0418, {4000 - i % 7, 4000 - i % 5, i % 3, i % 2});
    return dibujo.Bytes();
}

struct CargaLenta : ImagenDePrueba {
    apoyo::Mundo mundo{};
    const std::string ruta = Archivo("lento.wmf", DibujoLento());
};

TEST_F(CargaLenta, ElUsuarioLaCancelaYLasVentanasVivenMientras)
{
    apoyo::Usuario usuario;
    int latidos = 0;
    usuario.Hace([&](QWidget& caja) {
        EXPECT_EQ(caja.objectName(), QStringLiteral("CargaDeImagen"));
        auto* const reloj = new QTimer(&caja);
        QObject::connect(reloj, &QTimer::timeout, &caja, [&] {
            if (++latidos == 10) QTest::keyClick(caja.windowHandle(), Qt::Key_Escape);
        });
        reloj->start(10);
    });
    const ImagenLeida leida = CargaImagen(mundo.entorno, ruta);
    EXPECT_EQ(leida.fin, CargaDeImagen::Cancelada);
    EXPECT_TRUE(leida.imagen.isNull());
    EXPECT_EQ(latidos, 10);
}

TEST_F(CargaLenta, PasadoSuPlazoSeAbandona)
{
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget&) {});
    const ImagenLeida leida = CargaImagen(mundo.entorno, ruta, std::chrono::milliseconds(600));
    EXPECT_EQ(leida.fin, CargaDeImagen::Excesiva);
    EXPECT_TRUE(leida.imagen.isNull());
}

TEST_F(CargaLenta, UnaCorrienteNoMuestraNada)
{
    const ImagenLeida leida =
        CargaImagen(mundo.entorno, Archivo("mapa.wmf", DibujoDeMuestra().Bytes(100, 100, 48)));
    EXPECT_EQ(leida.fin, CargaDeImagen::Entera);
    EXPECT_EQ(leida.imagen.size(), QSize(200, 200));
}

}  // namespace
}  // namespace editor
