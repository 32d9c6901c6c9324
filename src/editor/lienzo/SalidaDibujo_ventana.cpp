// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/SalidaDibujo_ventana.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "forms/Impresion_ventana.h"
#include "forms/Procedencia.h"
#include "forms/Textos_ventana.h"
#include "model/Falla.h"
#include "model/Siro.h"

namespace editor {

using forms::Q;

namespace {

/// The drawing with its line below, in the canvas's pixels.
class Salida {
  public:
    Salida(const model::Siro& s, const DibujoALaVista& unDibujo)
        : dibujo(unDibujo),
          pie(Q(forms::Renglones(forms::DeHoy(s, {}))).join(QStringLiteral("   "))),
          titulo(Q(s.Proyecto.NombreProyecto)),
          renglon(QFontMetrics(LetraDelDibujo()).lineSpacing() + 2)
    {
    }
    [[nodiscard]] QSize Tamano() const { return dibujo.lienzo + QSize(0, renglon); }
    [[nodiscard]] const QString& Titulo() const { return titulo; }
    void Pinta(QPainter& papel) const
    {
        const QRectF marco({0, 0}, QSizeF(dibujo.lienzo));
        dibujo.pintor.Pinta(papel, dibujo.f, marco);
        const QRectF debajo(0, marco.height(), marco.width(), renglon);
        papel.fillRect(debajo, Qt::white);
        papel.setFont(LetraDelDibujo());
        papel.setPen(Qt::black);
        papel.drawText(debajo.adjusted(4, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft, pie);
    }

  private:
    const DibujoALaVista& dibujo;
    QString pie, titulo;
    int renglon;  ///< height of the line below [pixels]
};

bool GuardaSvg(const Salida& salida, const QString& ruta)
{
    QSvgGenerator archivo;
    archivo.setFileName(ruta);
    archivo.setSize(salida.Tamano());
    archivo.setViewBox(QRect({0, 0}, salida.Tamano()));
    archivo.setTitle(salida.Titulo());
    QPainter papel;
    if (!papel.begin(&archivo)) return false;
    salida.Pinta(papel);
    return true;
}

bool GuardaPdf(const Salida& salida, const QString& ruta)
{
    constexpr int PuntosPorPulgada = 96;
    QPdfWriter archivo(ruta);
    archivo.setTitle(salida.Titulo());
    archivo.setResolution(PuntosPorPulgada);
    archivo.setPageMargins({});
    archivo.setPageSize(QPageSize(QSizeF(salida.Tamano()) / PuntosPorPulgada, QPageSize::Inch));
    QPainter papel;
    if (!papel.begin(&archivo)) return false;
    salida.Pinta(papel);
    return true;
}

bool GuardaPng(const Salida& salida, const QString& ruta)
{
    constexpr int Finura = 2;  // dots of the image per pixel of the canvas
    QImage imagen(salida.Tamano() * Finura, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(Finura);
    QPainter papel(&imagen);
    salida.Pinta(papel);
    papel.end();
    return imagen.save(ruta);
}

void Guarda(const Salida& salida, const QString& ruta)
{
    const auto termina = [&](const char* en) {
        return ruta.endsWith(QLatin1String(en), Qt::CaseInsensitive);
    };
    const bool guardado = termina(".svg")   ? GuardaSvg(salida, ruta)
                          : termina(".pdf") ? GuardaPdf(salida, ruta)
                                            : GuardaPng(salida, ruta);
    if (!guardado) throw model::Falla{model::NumeroFalla::AccesoRuta};
}

}  // namespace

void ImprimeDibujo(forms::Entorno& entorno, const DibujoALaVista& dibujo)
{
    const Salida salida(entorno.s, dibujo);
    const QSizeF tamano = salida.Tamano();
    forms::Imprime(entorno, {entorno.s.Proyecto.NombreProyecto, tamano.width() > tamano.height()},
                   [&](QPainter& papel, const QRectF& hoja, QPrinter& /*impresora*/) {
                       const double veces =
                           tamano.scaled(hoja.size(), Qt::KeepAspectRatio).width() / tamano.width();
                       papel.scale(veces, veces);
                       salida.Pinta(papel);
                   });
}

void ExportaDibujo(forms::Entorno& entorno, const DibujoALaVista& dibujo, std::string_view tipo)
{
    const std::string terminacion = "." + forms::DeQ(Q(tipo).toLower());
    const std::string filtro = "Dibujo " + std::string(tipo) + " |*" + terminacion;
    const std::string propuesto =
        forms::NombreDeArchivo({.titulo = entorno.s.Proyecto.NombreProyecto}) + terminacion;
    const std::string ruta = entorno.s.Anfitrion.EligeDestino("Guardar el dibujo", filtro, propuesto);
    if (!ruta.empty()) Guarda(Salida(entorno.s, dibujo), Q(ruta));
}

}  // namespace editor
