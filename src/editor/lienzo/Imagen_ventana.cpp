// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Imagen_ventana.h"

#include <QBuffer>
#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "editor/lienzo/FormatoDeImagen.h"
#include "editor/lienzo/Metarchivo.h"
#include "forms/Textos_ventana.h"

namespace editor {
namespace {

constexpr qint64 ArchivoMaximo = 256LL << 20U;  // [bytes]
constexpr double LadoMaximo = 4096;             // of a metafile's image [pixels]
constexpr int RegistrosMaximos = 1'000'000;     // that a metafile may draw

QColor Color(ColorMeta c)
{
    return {c.rojo, c.verde, c.azul};
}

QPen Pluma(const PlumaMeta& pluma)
{
    constexpr Qt::PenStyle Trazos[] = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                       Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
    QPen pen(Color(pluma.color), pluma.ancho, Trazos[static_cast<int>(pluma.trazo)], Qt::RoundCap,
             Qt::RoundJoin);
    pen.setCosmetic(pluma.ancho <= 1);  // a line of one unit would vanish in a drawing of thousands
    return pen;
}

QBrush Pincel(const PincelMeta& pincel)
{
    constexpr Qt::BrushStyle Tramas[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                         Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    switch (pincel.relleno) {
    case RellenoMeta::Nada:
        return Qt::NoBrush;
    case RellenoMeta::Tramado:
        return {Color(pincel.color), Tramas[std::clamp(pincel.trama, 0, 5)]};
    case RellenoMeta::Lleno:
        break;
    }
    return Color(pincel.color);
}

QPolygonF Puntos(const std::vector<PuntoMeta>& puntos)
{
    QPolygonF poligono;
    poligono.reserve(static_cast<qsizetype>(puntos.size()));
    for (const PuntoMeta p : puntos)
        poligono.append({p.x, p.y});
    return poligono;
}

QRectF Rect(const RectanguloMeta& r)
{
    return QRectF(r.x, r.y, r.ancho, r.alto).normalized();
}

/// Angle at which a point is seen from the centre of an ellipse that is made a circle [degrees].
double Angulo(const QRectF& r, PuntoMeta p)
{
    const QPointF c = r.center();
    const double x = (p.x - c.x()) / std::max(r.width(), 1e-9);
    const double y = (c.y() - p.y) / std::max(r.height(), 1e-9);
    return std::atan2(y, x) * 180 / std::numbers::pi;
}

/// Paints a metafile; the painter maps logical units.
class LienzoPintor : public LienzoMeta {
  public:
    explicit LienzoPintor(QPainter& destino) : pintor(destino) {}

    void Polilinea(const std::vector<PuntoMeta>& puntos, const PlumaMeta& pluma) override
    {
        Prepara(pluma, {.relleno = RellenoMeta::Nada});
        pintor.drawPolyline(Puntos(puntos));
    }
    void Poligonos(const std::vector<std::vector<PuntoMeta>>& poligonos, bool alterna, const PlumaMeta& pluma,
                   const PincelMeta& pincel) override
    {
        Prepara(pluma, pincel);
        QPainterPath figura;
        figura.setFillRule(alterna ? Qt::OddEvenFill : Qt::WindingFill);
        for (const auto& puntos : poligonos) {
            figura.addPolygon(Puntos(puntos));
            figura.closeSubpath();
        }
        pintor.drawPath(figura);
    }
    void Rectangulo(const RectanguloMeta& r, double radioX, double radioY, const PlumaMeta& pluma,
                    const PincelMeta& pincel) override
    {
        Prepara(pluma, pincel);
        if (radioX == 0 || radioY == 0)
            pintor.drawRect(Rect(r));
        else
            pintor.drawRoundedRect(Rect(r), std::abs(radioX), std::abs(radioY));
    }
    void Elipse(const RectanguloMeta& r, const PlumaMeta& pluma, const PincelMeta& pincel) override
    {
        Prepara(pluma, pincel);
        pintor.drawEllipse(Rect(r));
    }
    void Arco(const ArcoMeta& arco, const PlumaMeta& pluma, const PincelMeta& pincel) override
    {
        constexpr int Vuelta = 360, PasosPorGrado = 16;
        Prepara(pluma, pincel);
        const QRectF marco = Rect(arco.marco);
        const double inicio = Angulo(marco, arco.desde);
        double giro = Angulo(marco, arco.hasta) - inicio;
        if (giro <= 0) giro += Vuelta;
        const int a = static_cast<int>(std::lround(inicio * PasosPorGrado));
        const int b = static_cast<int>(std::lround(giro * PasosPorGrado));
        if (arco.clase == ClaseArco::Porcion)
            pintor.drawPie(marco, a, b);
        else if (arco.clase == ClaseArco::Cuerda)
            pintor.drawChord(marco, a, b);
        else
            pintor.drawArc(marco, a, b);
    }
    void Texto(const TextoMeta& texto) override;
    void Imagen(const std::string& bmp, const RectanguloMeta& origen, const RectanguloMeta& destino) override
    {
        const QImage imagen =
            QImage::fromData(QByteArray(bmp.data(), static_cast<qsizetype>(bmp.size())), "BMP");
        if (!imagen.isNull()) pintor.drawImage(Rect(destino), imagen, Rect(origen));
    }

  private:
    void Prepara(const PlumaMeta& pluma, const PincelMeta& pincel)
    {
        pintor.setPen(Pluma(pluma));
        pintor.setBrush(Pincel(pincel));
    }
    QPainter& pintor;
};

void LienzoPintor::Texto(const TextoMeta& texto)
{
    // Letters are made at a size that a screen's fonts have and then scaled, so that units of a thousandth of
    // a millimetre give the same shapes as pixels.
    constexpr double AltoDeTrabajo = 64;
    QFont letra(forms::Q(texto.letra.familia));
    letra.setPixelSize(static_cast<int>(AltoDeTrabajo));
    letra.setBold(texto.letra.negrita);
    letra.setItalic(texto.letra.cursiva);
    letra.setUnderline(texto.letra.subrayada);
    letra.setStrikeOut(texto.letra.tachada);
    const QFontMetricsF medidas(letra);
    const double escala = texto.letra.alto / (texto.letra.altoDeCelda ? medidas.height() : AltoDeTrabajo);
    const QString palabras = forms::Q(texto.texto);
    const double ancho = medidas.horizontalAdvance(palabras);
    const double x = texto.alinea == AlineaMeta::Centro    ? -ancho / 2
                     : texto.alinea == AlineaMeta::Derecha ? -ancho
                                                           : 0;
    const double y = texto.renglon == RenglonMeta::Arriba  ? medidas.ascent()
                     : texto.renglon == RenglonMeta::Abajo ? -medidas.descent()
                                                           : 0;
    const QTransform mapa = pintor.worldTransform();
    pintor.save();
    pintor.translate(texto.lugar.x, texto.lugar.y);
    // A drawing whose ordinates rise would show its letters upside down.
    pintor.scale(mapa.m11() < 0 ? -escala : escala, mapa.m22() < 0 ? -escala : escala);
    pintor.rotate(-texto.letra.giro);
    if (texto.fondo)
        pintor.fillRect(QRectF(x, y - medidas.ascent(), ancho, medidas.height()), Color(*texto.fondo));
    pintor.setFont(letra);
    pintor.setPen(Color(texto.color));
    pintor.drawText(QPointF(x, y), palabras);
    pintor.restore();
}

/// Plays a metafile on an image; an empty one where it is none, or was given up.
ImagenLeida Metarchivo(std::string_view bytes, const std::function<bool()>& sigue)
{
    if (EsMetarchivoMejorado(bytes)) return {{}, CargaDeImagen::MetarchivoMejorado};
    const std::optional<MarcoMeta> marco = MarcoDe(bytes);
    if (!marco) return {};
    const double reduce = std::min(1.0, LadoMaximo / std::max(marco->ancho, marco->alto));
    QImage imagen(std::max(1, static_cast<int>(marco->ancho * reduce)),
                  std::max(1, static_cast<int>(marco->alto * reduce)), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    pintor.scale(imagen.width() / marco->ventana.ancho, imagen.height() / marco->ventana.alto);
    pintor.translate(-marco->ventana.x, -marco->ventana.y);
    LienzoPintor lienzo(pintor);
    int registros = 0;
    bool entera = true;
    Toca(bytes, lienzo, [&] { return entera = ++registros <= RegistrosMaximos && sigue(); });
    pintor.end();
    if (!entera) return {{}, CargaDeImagen::Excesiva};
    return {imagen, CargaDeImagen::Entera};
}

}  // namespace

ImagenLeida LeeImagen(const std::string& ruta, const std::function<bool()>& sigue)
{
    const QString camino = forms::Q(ruta);
    QFile archivo(camino);
    if (archivo.size() > ArchivoMaximo || !archivo.open(QIODevice::ReadOnly)) return {};
    QByteArray bytes = archivo.readAll();
    const std::string_view vista(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    ImagenLeida leida;
    if (camino.endsWith(QLatin1String(".wmf"), Qt::CaseInsensitive)) {
        leida = Metarchivo(vista, sigue);
    } else {
        QBuffer memoria(&bytes);
        QImageReader lector(&memoria);
        lector.setAutoTransform(true);
        lector.setDecideFormatFromContent(true);
        leida.imagen = lector.read();
        if (!leida.imagen.isNull()) leida.fin = CargaDeImagen::Entera;
    }
    const bool sirve = leida.fin == CargaDeImagen::Entera || leida.fin == CargaDeImagen::Ilegible;
    if (sirve && EstaIncompleta(vista)) leida.fin = CargaDeImagen::Incompleta;
    return leida;
}

}  // namespace editor
