// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/SalidaDeMapa_ventana.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "forms/Impresion_ventana.h"
#include "forms/Procedencia.h"
#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace results {

using forms::Q;

namespace {

/// The map with its lines above, in the canvas's pixels.
class Salida {
  public:
    Salida(const forms::Entorno& entorno, const MapaALaVista& unMapa)
        : mapa(unMapa), procedencia(mapa.f.procedencia)
    {
        procedencia.fecha = forms::FechaDelDia(entorno.s);
        procedencia.tema += (procedencia.tema.empty() ? "" : ";  ") + ("t= " + mapa.f.lblTiempo);
        renglones = Q(forms::Renglones(procedencia));
        pintor.Prepara(mapa.f, mapa.lienzo.Vista(), mapa.lienzo.size(), mapa.lienzo.Letra());
    }
    [[nodiscard]] QSize Tamano() const { return mapa.lienzo.size() + QSize(0, Encabezado()); }
    [[nodiscard]] QString Titulo() const { return Q(procedencia.titulo); }
    [[nodiscard]] const forms::Procedencia& DeDonde() const { return procedencia; }

    void Pinta(QPainter& papel) const
    {
        papel.save();
        papel.setClipRect(QRectF({0, 0}, QSizeF(Tamano())));
        papel.save();
        papel.translate(0, Encabezado());
        pintor.PintaFondo(papel, mapa.f, mapa.lienzo.Fondo());
        pintor.PintaAgua(papel, mapa.f);
        pintor.PintaRotulos(papel, mapa.f);
        papel.restore();
        // Last, since not every device clips what a picture drawn large has beyond its edge.
        papel.fillRect(QRectF(0, 0, Tamano().width(), Encabezado()), Qt::white);
        papel.setPen(Qt::black);
        QFont letra = mapa.lienzo.Letra();
        letra.setBold(true);
        QRectF renglon(Borde, Borde, Tamano().width() - 2 * Borde, Renglon());
        for (const QString& texto : renglones) {
            papel.setFont(letra);
            papel.drawText(renglon, Qt::AlignVCenter | Qt::AlignLeft, texto);
            renglon.translate(0, Renglon());
            letra.setBold(false);
        }
        papel.restore();
    }

  private:
    static constexpr int Borde = 6;
    [[nodiscard]] int Renglon() const { return QFontMetrics(mapa.lienzo.Letra()).lineSpacing(); }
    [[nodiscard]] int Encabezado() const
    {
        return Renglon() * static_cast<int>(renglones.size()) + 2 * Borde;
    }

    const MapaALaVista& mapa;
    forms::Procedencia procedencia;
    QStringList renglones{};
    PintorDeMapa pintor{};
};

QImage Imagen(const Salida& salida)
{
    constexpr int Finura = 2;  // dots of the image per pixel of the canvas
    QImage imagen(salida.Tamano() * Finura, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(Finura);
    imagen.fill(Qt::white);
    QPainter papel(&imagen);
    salida.Pinta(papel);
    return imagen;
}

void PintaSvg(const Salida& salida, QBuffer& archivo)
{
    QSvgGenerator dibujo;
    dibujo.setOutputDevice(&archivo);
    dibujo.setSize(salida.Tamano());
    dibujo.setViewBox(QRect({0, 0}, salida.Tamano()));
    dibujo.setTitle(salida.Titulo());
    QPainter papel;
    if (papel.begin(&dibujo)) salida.Pinta(papel);
}

void PintaPdf(const Salida& salida, QBuffer& archivo)
{
    constexpr int PuntosPorPulgada = 96;
    QPdfWriter documento(&archivo);
    documento.setTitle(salida.Titulo());
    documento.setResolution(PuntosPorPulgada);
    documento.setPageMargins({});
    documento.setPageSize(QPageSize(QSizeF(salida.Tamano()) / PuntosPorPulgada, QPageSize::Inch));
    QPainter papel;
    if (!papel.begin(&documento)) return;
    papel.setRenderHint(QPainter::LosslessImageRendering);
    salida.Pinta(papel);
}

std::string Bytes(const Salida& salida, std::string_view tipo)
{
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    if (tipo == "SVG")
        PintaSvg(salida, archivo);
    else if (tipo == "PDF")
        PintaPdf(salida, archivo);
    else
        Imagen(salida).save(&archivo, "PNG");
    return archivo.data().toStdString();
}

}  // namespace

void ImprimeMapa(forms::Entorno& entorno, const MapaALaVista& mapa)
{
    const Salida salida(entorno, mapa);
    const QSizeF tamano = salida.Tamano();
    const std::string nombre = forms::NombreDeArchivo(salida.DeDonde());
    forms::Imprime(entorno, {nombre, tamano.width() > tamano.height()},
                   [&](QPainter& papel, const QRectF& hoja, QPrinter& /*impresora*/) {
                       const double veces =
                           tamano.scaled(hoja.size(), Qt::KeepAspectRatio).width() / tamano.width();
                       papel.scale(veces, veces);
                       salida.Pinta(papel);
                   });
}

void GuardaMapa(forms::Entorno& entorno, const MapaALaVista& mapa, std::string_view tipo)
{
    const Salida salida(entorno, mapa);
    const std::string terminacion = "." + forms::DeQ(Q(tipo).toLower());
    const std::string filtro = "Mapa " + std::string(tipo) + " |*" + terminacion;
    const std::string propuesto = forms::NombreDeArchivo(salida.DeDonde()) + terminacion;
    const std::string ruta = entorno.s.Anfitrion.EligeDestino("Guardar el mapa", filtro, propuesto);
    if (ruta.empty()) return;
    model::Sentencia([&] { entorno.s.Disco.Escribe(ruta, Bytes(salida, tipo)); },
                     model::AvisaArchivo(entorno.s));
}

QImage ImagenDeMapa(const forms::Entorno& entorno, const MapaALaVista& mapa)
{
    return Imagen(Salida(entorno, mapa));
}

}  // namespace results
