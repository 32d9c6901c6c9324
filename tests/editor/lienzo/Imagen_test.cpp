// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QTemporaryDir>

#include "apoyo/Ventanas.h"
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
    const QImage imagen = CargaImagen(Archivo("mapa.wmf", DibujoDeMuestra().Bytes(100, 100, 48)));
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
    EXPECT_EQ(CargaImagen(ruta).size(), QSize(3, 2));
    EXPECT_EQ(CargaImagen(std::string(SIRO_DATA_DIR) + "/Proyectos/Quelmar.jpg").isNull(), false);
}

TEST_F(ImagenDePrueba, LoQueNoSeLeeDaUnaImagenVacia)
{
    EXPECT_TRUE(CargaImagen(Archivo("a.jpg", "no es una imagen")).isNull());
    EXPECT_TRUE(CargaImagen(Archivo("a.wmf", "no es un metarchivo")).isNull());
    EXPECT_TRUE(CargaImagen("/no/esta.bmp").isNull());
    EXPECT_TRUE(CargaImagen("/no/esta.wmf").isNull());
}

}  // namespace
}  // namespace editor
