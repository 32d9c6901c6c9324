// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart on its way out: copied, saved, printed.

#include <qcustomplot.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "forms/Csv.h"
#include "forms/Impresion_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/LecturaGrafico.h"
#include "forms/Planilla_ventana.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace forms {
namespace {

constexpr double PuntosDelPng = 2;  // dots of the image per dot of the screen

std::string Bytes(const QByteArray& bytes)
{
    return bytes.toStdString();
}

std::string SinBlancos(const std::string& texto)
{
    return DeQ(Q(texto).trimmed());
}

}  // namespace

QSize Lamina::TamanoDeImagen() const
{
    const int loMenos = modo == Modo::Compacta ? 480 : 900;  // pixels across; the height as on the screen
    if (width() >= loMenos) return size();
    return {loMenos, loMenos * std::max(1, height()) / std::max(1, width())};
}

Procedencia Lamina::DeDonde() const
{
    Procedencia hoy = DeHoy(entorno.s, {.titulo = DeQ(titulo), .tema = DeQ(tema), .componente = componente});
    if (!proyecto.empty()) hoy.proyecto = proyecto;
    if (!fecha.empty()) hoy.fecha = fecha;
    return hoy;
}

/// What the chart is, line by line; `todo`: with what the drawing has written in it as well.
std::vector<std::string> Lamina::Rotulos(bool todo) const
{
    const Grafico& grafico = trazo->Mostrado();
    const std::string suyo = SinBlancos(grafico.titulo);
    Procedencia procedencia = DeDonde();
    if (procedencia.tema == suyo) procedencia.tema.clear();
    std::vector<std::string> renglones = Renglones(procedencia);
    if (!todo) return renglones;
    auto lugar = renglones.begin() + 1;
    for (const std::string& texto : {suyo, SinBlancos(grafico.notaAlPie)})
        if (!texto.empty()) lugar = renglones.insert(lugar, texto) + 1;
    return renglones;
}

std::vector<std::string> Lamina::AlPie() const
{
    const Procedencia procedencia = DeDonde();
    std::vector<std::string> renglones =
        Renglones({.proyecto = procedencia.proyecto, .fecha = procedencia.fecha});
    const std::string& salvedad = trazo->Mostrado().salvedad;
    if (!salvedad.empty()) renglones.push_back(salvedad);
    return renglones;
}

/// Paints with the colours of paper, what the chart is above it, and without the row that is being read.
std::string Lamina::EnPapel(const std::function<std::string(QSize)>& pinta) const
{
    const Tinta antes = trazo->TintaPuesta();
    const auto fila = trazo->FilaLeida();
    trazo->DejaDeLeer();
    trazo->PonTinta(TintaDePapel());
    const QSize tamano = TamanoDeImagen();
    const int alto = trazo->PonEncabezado(Q(Rotulos(modo == Modo::Compacta)), tamano.width());
    std::string bytes = pinta({tamano.width(), tamano.height() + alto});
    trazo->PonEncabezado({}, 0);
    trazo->PonTinta(antes);
    if (fila) trazo->Lee(*fila);
    plano->replot(QCustomPlot::rpQueuedReplot);  // its parts are back where they were on the screen
    return bytes;
}

namespace {

template <typename Dispositivo>
void PintaEn(QCustomPlot& plano, Dispositivo& dispositivo, QSize tamano)
{
    QCPPainter pintor;
    if (pintor.begin(&dispositivo)) plano.toPainter(&pintor, tamano.width(), tamano.height());
}

std::string Png(QCustomPlot& plano, QSize tamano)
{
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    plano.toPixmap(tamano.width(), tamano.height(), PuntosDelPng).save(&archivo, "PNG");
    return Bytes(archivo.data());
}

std::string Svg(QCustomPlot& plano, const QString& titulo, QSize tamano)
{
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    {
        QSvgGenerator dispositivo;
        dispositivo.setOutputDevice(&archivo);
        dispositivo.setSize(tamano);
        dispositivo.setViewBox(QRect({0, 0}, tamano));
        dispositivo.setTitle(titulo);
        PintaEn(plano, dispositivo, tamano);
    }
    return Bytes(archivo.data());
}

std::string Pdf(QCustomPlot& plano, const QString& titulo, QSize tamano)
{
    constexpr int PuntosPorPulgada = 96;  // of the screen's letters
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    {
        QPdfWriter dispositivo(&archivo);
        dispositivo.setTitle(titulo);
        dispositivo.setResolution(PuntosPorPulgada);
        dispositivo.setPageSize(QPageSize(QSizeF(tamano) / PuntosPorPulgada, QPageSize::Inch));
        dispositivo.setPageMargins({});
        PintaEn(plano, dispositivo, tamano);
    }
    return Bytes(archivo.data());
}

}  // namespace

void Lamina::CopiaImagen() const
{
    EnPapel([&](QSize tamano) {
        QGuiApplication::clipboard()->setPixmap(
            plano->toPixmap(tamano.width(), tamano.height(), PuntosDelPng));
        return std::string();
    });
}

void Lamina::Guarda(std::string_view pregunta, std::string_view filtro, std::string_view extension,
                    const std::function<std::string()>& bytes) const
{
    const std::string ruta =
        entorno.s.Anfitrion.EligeDestino(pregunta, filtro, NombreDeArchivo(DeDonde()).append(extension));
    if (ruta.empty()) return;
    model::Sentencia([&] { entorno.s.Disco.Escribe(ruta, bytes()); }, model::AvisaArchivo(entorno.s));
}

void Lamina::GuardaPng() const
{
    Guarda("Guardar el gráfico como PNG", "Imagen PNG |*.png", ".png",
           [this] { return EnPapel([this](QSize tamano) { return Png(*plano, tamano); }); });
}

void Lamina::GuardaSvg() const
{
    Guarda("Guardar el gráfico como SVG", "Dibujo SVG |*.svg", ".svg",
           [this] { return EnPapel([this](QSize tamano) { return Svg(*plano, titulo, tamano); }); });
}

void Lamina::GuardaPdf() const
{
    Guarda("Guardar el gráfico como PDF", "Documento PDF |*.pdf", ".pdf",
           [this] { return EnPapel([this](QSize tamano) { return Pdf(*plano, titulo, tamano); }); });
}

/// The cells with what the chart is above them.
Planilla Lamina::Celdas() const
{
    const Grafico& grafico = trazo->Mostrado();
    Planilla planilla = CeldasComoPlanilla(grafico);
    planilla.titulos = Rotulos(true);
    if (!grafico.salvedad.empty()) planilla.titulos.push_back(grafico.salvedad);
    return planilla;
}

void Lamina::GuardaCsv() const
{
    Guarda("Guardar las celdas como CSV", "Celdas CSV |*.csv", ".csv",
           [this] { return std::string(MarcaUtf8).append(ComoCsv(Celdas(), SignoElegido(entorno))); });
}

void Lamina::GuardaXlsx() const
{
    Guarda("Guardar las celdas como XLSX", "Libro XLSX |*.xlsx", ".xlsx",
           [this] { return ComoXlsx(Celdas()); });
}

void ImprimeConLamina(Entorno& entorno, QWidget& ventana, Lamina& lamina)
{
    lamina.Afina(PuntosDeImpresion);
    const Procedencia procedencia = lamina.DeDonde();
    ImprimeVentana(entorno, ventana, {NombreDeArchivo(procedencia), lamina.AlPie()});
    lamina.Afina(0);
}

}  // namespace forms
