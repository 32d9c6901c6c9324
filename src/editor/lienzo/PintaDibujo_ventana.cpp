// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/PintaDibujo_ventana.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "editor/lienzo/Imagen_ventana.h"
#include "forms/ParteDeImagen_ventana.h"
#include "forms/Polilinea_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {
namespace {

// --- colours: the drawing is a sheet of paper, light whatever the desktop's theme ---

constexpr QRgb Hoja = 0xFFFFFFFF;
constexpr QRgb Contorno = 0xFF37474F;
constexpr QRgb Elegido = 0xFFFF9800;  ///< fill of the selected icon

struct FilaPapel {
    Papel papel;
    QRgb color;
    Qt::PenStyle trazo;
};

// clang-format off
constexpr auto Papeles = std::to_array<FilaPapel>({
    {Papel::Cauce,         0xFF0000FF, Qt::SolidLine},
    {Papel::EnlaceUEH,     0xFF2E7D32, Qt::SolidLine},
    {Papel::EnlaceRepresa, 0xFF6D4C41, Qt::SolidLine},
    {Papel::EnlaceLago,    0xFF0288A7, Qt::SolidLine},
    {Papel::Nombre,        0xFF202124, Qt::SolidLine},
    {Papel::Orden,         0xFF8E24AA, Qt::SolidLine},
    {Papel::NombreCauce,   0xFF1A3E8C, Qt::SolidLine},
    {Papel::Sentido,       0xFF0000FF, Qt::SolidLine},
    {Papel::SinAcople,     0xFFEF6C00, Qt::SolidLine},
    {Papel::MarcaVertice,  0xFF808080, Qt::SolidLine},
    {Papel::VerticeTomado, 0xFFFF0000, Qt::SolidLine},
    {Papel::Asa,           0xFF37474F, Qt::SolidLine},
    {Papel::Medida,        0xFFC800C8, Qt::SolidLine},
    {Papel::Banda,         0xFF616161, Qt::DashLine},
    {Papel::Imagen,        0xFF000000, Qt::NoPen},
    {Papel::Icono,         0xFF37474F, Qt::SolidLine},
});
// clang-format on
constexpr bool UnaFilaPorPapel()
{
    for (std::size_t i = 0; i < Papeles.size(); ++i)
        if (Papeles[i].papel != static_cast<Papel>(i)) return false;
    return Papeles.size() == static_cast<std::size_t>(Papel::Icono) + 1;
}
static_assert(UnaFilaPorPapel());

const FilaPapel& De(Papel papel)
{
    return Papeles[static_cast<std::size_t>(papel)];
}

// --- icons, in a square of side 1 ---

/// A hillside with two streams that meet at its foot.
void PintaUEH(QPainter& pintor, bool seleccionado)
{
    QPainterPath ladera;
    ladera.moveTo(0.50, 0.06);
    ladera.cubicTo(0.80, 0.08, 0.96, 0.30, 0.92, 0.56);
    ladera.cubicTo(0.88, 0.78, 0.66, 0.88, 0.50, 0.97);
    ladera.cubicTo(0.34, 0.88, 0.12, 0.78, 0.08, 0.56);
    ladera.cubicTo(0.04, 0.30, 0.20, 0.08, 0.50, 0.06);
    pintor.setBrush(QColor(seleccionado ? Elegido : 0xFFA5D6A7));
    pintor.drawPath(ladera);
    QPainterPath arroyos;
    arroyos.moveTo(0.28, 0.22);
    arroyos.cubicTo(0.30, 0.42, 0.50, 0.44, 0.50, 0.64);
    arroyos.moveTo(0.72, 0.24);
    arroyos.cubicTo(0.70, 0.44, 0.50, 0.46, 0.50, 0.64);
    arroyos.lineTo(0.50, 0.96);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(QColor(0xFF1E66C8), 0.07, Qt::SolidLine, Qt::RoundCap));
    pintor.drawPath(arroyos);
}

/// A wall with the water that it holds.
void PintaRepresa(QPainter& pintor, bool seleccionado)
{
    QPainterPath agua;
    agua.moveTo(0.04, 0.26);
    agua.lineTo(0.56, 0.26);
    agua.lineTo(0.56, 0.90);
    agua.cubicTo(0.30, 0.90, 0.10, 0.66, 0.04, 0.26);
    pintor.setBrush(QColor(0xFF64A9E6));
    pintor.drawPath(agua);
    QPainterPath muro;
    muro.moveTo(0.54, 0.10);
    muro.lineTo(0.70, 0.10);
    muro.lineTo(0.97, 0.94);
    muro.lineTo(0.46, 0.94);
    muro.closeSubpath();
    pintor.setBrush(QColor(seleccionado ? Elegido : 0xFFB0BEC5));
    pintor.drawPath(muro);
    pintor.drawLine(QPointF(0.52, 0.38), QPointF(0.79, 0.38));
    pintor.drawLine(QPointF(0.50, 0.66), QPointF(0.88, 0.66));
}

/// A shore with waves.
void PintaLago(QPainter& pintor, bool seleccionado)
{
    QPainterPath orilla;
    orilla.moveTo(0.10, 0.42);
    orilla.cubicTo(0.16, 0.10, 0.42, 0.24, 0.56, 0.18);
    orilla.cubicTo(0.84, 0.08, 1.00, 0.32, 0.92, 0.54);
    orilla.cubicTo(0.86, 0.74, 0.72, 0.70, 0.62, 0.82);
    orilla.cubicTo(0.48, 0.96, 0.20, 0.90, 0.12, 0.74);
    orilla.cubicTo(0.06, 0.62, 0.06, 0.54, 0.10, 0.42);
    pintor.setBrush(QColor(seleccionado ? Elegido : 0xFF64B5F6));
    pintor.drawPath(orilla);
    QPainterPath olas;
    for (const double y : {0.44, 0.64}) {
        olas.moveTo(0.24, y);
        for (const double x : {0.24, 0.46}) {
            olas.quadTo(x + 0.055, y - 0.09, x + 0.11, y);
            olas.quadTo(x + 0.165, y + 0.09, x + 0.22, y);
        }
    }
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(Qt::white, 0.06, Qt::SolidLine, Qt::RoundCap));
    pintor.drawPath(olas);
}

}  // namespace

void PintaIconoDe(QPainter& pintor, Clase clase, bool seleccionado, const QRectF& donde)
{
    pintor.save();
    pintor.translate(donde.topLeft());
    pintor.scale(donde.width(), donde.height());
    pintor.setPen(QPen(QColor(Contorno), 0.06, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (clase) {
    case Clase::UEH:
        PintaUEH(pintor, seleccionado);
        break;
    case Clase::Represa:
        PintaRepresa(pintor, seleccionado);
        break;
    case Clase::Lago:
        PintaLago(pintor, seleccionado);
        break;
    case Clase::Cauce:
        break;  // reaches have no icon
    }
    pintor.restore();
}

/// From the drawing's coordinates to those of the paper.
struct PintorDibujo::Mapa {
    Mapa(const frmUEHs& f, const QRectF& donde)
        : origen(f.vista.origen),
          esquina(donde.topLeft()),
          px(donde.width() / std::max(1e-6F, AnchoLogico(f.vista))),
          py(donde.height() / std::max(1e-6F, AnchoLogico(f.vista)))
    {
    }
    [[nodiscard]] QPointF operator()(Punto p) const
    {
        return {esquina.x() + (double{p.X} - origen.X) * px, esquina.y() + (double{p.Y} - origen.Y) * py};
    }
    [[nodiscard]] QRectF operator()(Punto p, float ancho, float alto) const
    {
        return {(*this)(p), QSizeF(ancho * px, alto * py)};
    }
    Punto origen;
    QPointF esquina;
    double px, py;  ///< [pixels per drawing unit]
};

ImagenCargada PintorDibujo::CargaFondo(forms::Entorno& entorno, const std::string& ruta)
{
    if (ruta != rutaFondo || fondo.isNull()) {
        const ImagenLeida leida = CargaImagen(entorno, ruta);
        fondo = QPixmap::fromImage(leida.imagen);
        rutaFondo = ruta;
        finFondo = leida.fin;
    }
    return {finFondo, {fondo.width(), fondo.height()}};
}

namespace {

/// The square in which an icon is seen undistorted: as large as its box, which a canvas that isn't square
/// flattens.
QRectF Cuadro(const QRectF& caja)
{
    constexpr double LadoMinimo = 12;  // below it nobody tells a dam from a lake [pixels]
    const double lado = std::max(LadoMinimo, std::sqrt(caja.width() * caja.height()));
    return {caja.center() - QPointF(lado / 2, lado / 2), QSizeF(lado, lado)};
}

}  // namespace

void PintorDibujo::PintaIcono(QPainter& pintor, const Primitiva& p, const QRectF& caja)
{
    const QRectF donde = Cuadro(caja);
    constexpr double LadoMaximo = 256;  // beyond it a picture isn't worth keeping
    const double lado = donde.width();
    const qreal finura = pintor.device()->devicePixelRatioF();
    const bool enPantalla = pintor.device()->devType() == QInternal::Widget;
    if (!enPantalla || lado > LadoMaximo) return PintaIconoDe(pintor, p.clase, p.seleccionado, donde);

    const auto ancho = static_cast<int>(std::ceil(donde.width() * finura));
    const auto alto = static_cast<int>(std::ceil(donde.height() * finura));
    const quint64 clave = (static_cast<quint64>(p.clase) << 1U | static_cast<quint64>(p.seleccionado))
                              << 32U |
                          static_cast<quint64>(ancho) << 16U | static_cast<quint64>(alto);
    QPixmap& imagen = iconos[clave];
    if (imagen.isNull()) {
        imagen = QPixmap(ancho, alto);
        imagen.fill(Qt::transparent);
        QPainter suyo(&imagen);
        suyo.setRenderHint(QPainter::Antialiasing);
        PintaIconoDe(suyo, p.clase, p.seleccionado, {0, 0, double(ancho), double(alto)});
        imagen.setDevicePixelRatio(finura);
    }
    pintor.drawPixmap(donde.topLeft(), imagen);
}

namespace {

/// A name stays legible over lines and over an image.
void PintaTexto(QPainter& pintor, QPointF en, const QString& texto, const QColor& color)
{
    constexpr int Velo = 150;  // of 255
    const QFontMetricsF letra(pintor.font(), pintor.device());
    pintor.fillRect(QRectF(en, QSizeF(letra.horizontalAdvance(texto), letra.height())),
                    QColor(255, 255, 255, Velo));
    pintor.setPen(color);
    pintor.drawText(en + QPointF(0, letra.ascent()), texto);
}

}  // namespace

QFont LetraDelDibujo()
{
    QFont letra = QGuiApplication::font();
    letra.setPixelSize(QFontInfo(letra).pixelSize());
    return letra;
}

void PintorDibujo::Pinta(QPainter& pintor, const frmUEHs& f, const QRectF& donde)
{
    constexpr qsizetype IconosGuardados = 200;
    if (iconos.size() > IconosGuardados) iconos.clear();
    const Mapa mapa(f, donde);
    pintor.save();
    pintor.setFont(LetraDelDibujo());
    pintor.setClipRect(donde);
    pintor.fillRect(donde, QColor(Hoja));
    pintor.setRenderHint(QPainter::Antialiasing, suaviza);
    pintor.setRenderHint(QPainter::SmoothPixmapTransform, suaviza);
    QPolygonF puntos;
    for (const Primitiva& p : f.dibujo.Primitivas()) {
        const FilaPapel& fila = De(p.papel);
        switch (p.forma) {
        case Primitiva::Forma::Imagen:
            forms::PintaParte(pintor, fondo, mapa(p.en, p.tamano, p.alto), pintor.clipBoundingRect());
            break;
        case Primitiva::Forma::Polilinea:
            puntos.clear();
            for (const Punto punto : f.dibujo.Puntos(p))
                puntos.append(mapa(punto));
            pintor.setPen(
                QPen(QColor(fila.color), std::max<int>(1, p.ancho), fila.trazo, Qt::RoundCap, Qt::RoundJoin));
            pintor.setBrush(Qt::NoBrush);
            forms::PintaPolilinea(pintor, puntos);
            break;
        case Primitiva::Forma::Cuadrado:
            pintor.fillRect(
                QRectF(mapa(p.en) - QPointF(p.tamano / 2.0, p.tamano / 2.0), QSizeF(p.tamano, p.tamano)),
                QColor(fila.color));
            break;
        case Primitiva::Forma::Icono:
            PintaIcono(pintor, p, mapa(p.en, p.tamano, p.alto));
            break;
        case Primitiva::Forma::Texto:
            PintaTexto(pintor, mapa(p.en), forms::Q(f.dibujo.Letras(p)), QColor(fila.color));
            break;
        }
    }
    pintor.restore();
}

}  // namespace editor
