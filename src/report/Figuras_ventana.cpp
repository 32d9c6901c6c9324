// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Figuras_ventana.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"
#include "report/Graficos.h"
#include "results/mapa/MapaDeCorrida.h"
#include "results/mapa/RedDeCorrida.h"

namespace report {
namespace {

using forms::Q;

// A figure is laid out in pixels, so many across the width that the margins of an A4 leave.
constexpr int Ancho = 640;
constexpr double AnchoEnPapel = 160;  // [mm]
constexpr int LetraDeFigura = 12;     // [pixels], 8.5 points on paper
constexpr int LetraDeMapa = 11;       // many names stand in it
constexpr int AltoDeGrafico = 330;    // without the lines above it
constexpr int MenorMapa = 340, MayorMapa = 640;
constexpr double PuntosPorMilimetro = 300 / 25.4;

QFont LetraDeLasFiguras()
{
    QFont letra = LetraDePapel();
    letra.setPixelSize(LetraDeFigura);
    return letra;
}

QLocale IdiomaDe(char decimal)
{
    QLocale idioma = decimal == ',' ? QLocale(QLocale::Spanish, QLocale::Argentina) : QLocale::c();
    idioma.setNumberOptions(QLocale::OmitGroupSeparator);
    return idioma;
}

/// Whether a scale to the right is of amounts that both begin at 0, as the one to the left does.
bool DesdeCero(const forms::Grafico& grafico)
{
    const auto alguna = [&](auto&& vale) {
        return std::any_of(grafico.series.begin(), grafico.series.end(), vale);
    };
    return alguna([](const forms::Serie& s) { return s.ejeSecundario; }) &&
           !alguna([](const forms::Serie& s) {
               return std::any_of(s.celdas.begin(), s.celdas.end(), [](double x) { return x < 0; });
           });
}

/// Each component at its own peak, in place of all of them at one time.
results::RedDeCorrida EnSusPicos(results::RedDeCorrida red)
{
    for (results::ComponenteDelMapa& c : red.componentes) {
        if (c.Q.empty()) continue;
        c.Q = {static_cast<float>(c.Pico())};
        c.pasoPico = 1;
    }
    red.pasos = 1;
    return red;
}

results::MapaDeCorrida MapaDe(const Datos& datos, char decimal)
{
    const auto& u = datos.tormenta != nullptr ? datos.tormenta : datos.serie;
    results::MapaDeCorrida f;
    results::Muestra(f, EnSusPicos(results::CopiaDeCorrida(u->red, u->pasos, u->r())), {});
    f.chkPicos = false;
    f.decimal = decimal;
    return f;
}

/// The map with its lines above.
class Mapa {
  public:
    Mapa(const Datos& datos, char decimal, QStringList suEncabezado)
        : f(MapaDe(datos, decimal)), encabezado(std::move(suEncabezado)), letra(LetraDeLasFiguras())
    {
        letra.setPixelSize(LetraDeMapa);
        const results::Caja& e = f.red.extension;
        const results::Caja marco = results::PintorDeMapa::MarcoDeRed({Ancho, MenorMapa}, letra);
        constexpr double Aire = 1.1;
        const double alto =
            e.ancho > 0 ? e.alto / forms::AlturaDePixel / e.ancho * marco.ancho * Aire : MenorMapa;
        lienzo = QSizeF(Ancho, std::clamp(std::ceil(alto), double{MenorMapa}, double{MayorMapa}));
        pintor.Prepara(f, results::VistaDe(e, results::PintorDeMapa::MarcoDeRed(lienzo, letra)), lienzo,
                       letra);
    }
    [[nodiscard]] QSizeF Tamano() const { return lienzo + QSizeF(0, AltoDeEncabezado()); }
    void Pinta(QPainter& papel, const results::FondoDeMapa& fondo) const
    {
        papel.save();
        papel.translate(0, AltoDeEncabezado());
        papel.setClipRect(QRectF({0, 0}, lienzo));
        pintor.PintaFondo(papel, f, fondo);
        pintor.PintaAgua(papel, f);
        pintor.PintaRotulos(papel, f);
        papel.restore();
        papel.save();
        QFont suya = letra;
        suya.setBold(true);
        QRectF renglon(0, 0, Ancho, Renglon());
        papel.setPen(forms::TintaDePapel().texto);
        for (const QString& texto : encabezado) {
            papel.setFont(suya);
            papel.drawText(renglon, Qt::AlignCenter, texto);
            renglon.translate(0, Renglon());
            suya.setBold(false);
        }
        papel.restore();
    }

  private:
    [[nodiscard]] double Renglon() const { return std::ceil(QFontMetricsF(letra).lineSpacing()); }
    [[nodiscard]] double AltoDeEncabezado() const
    {
        constexpr double Aire = 6;
        return Renglon() * static_cast<double>(encabezado.size()) + Aire;
    }

    results::MapaDeCorrida f;
    QStringList encabezado;
    QFont letra;
    QSizeF lienzo{};
    results::PintorDeMapa pintor{};
};

}  // namespace

QFont LetraDePapel()
{
    QFont letra;
    letra.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                       QStringLiteral("Helvetica"), QStringLiteral("DejaVu Sans")});
    letra.setHintingPreference(QFont::PreferNoHinting);
    return letra;
}

struct Figuras::Lista {
    Figura figura{};
    QSize tamano{};  ///< [pixels]; empty: nothing to draw
    std::unique_ptr<Mapa> mapa{};
    std::unique_ptr<QCustomPlot> plano{};
    std::unique_ptr<forms::Trazo> trazo{};

    void Toma(const forms::Grafico& grafico, const QStringList& encabezado, const QLocale& idioma)
    {
        plano = std::make_unique<QCustomPlot>();
        trazo = std::make_unique<forms::Trazo>(*plano, false);
        plano->setLocale(idioma);
        trazo->PonLetra(LetraDeLasFiguras());
        trazo->PonTinta(forms::TintaDePapel());
        trazo->Pon(grafico);
        if (DesdeCero(grafico)) plano->yAxis2->setRangeLower(0);
        tamano = {Ancho, AltoDeGrafico + trazo->PonEncabezado(encabezado, Ancho)};
        // Labels find their room by the frame of the painting before.
        QImage prueba(1, 1, QImage::Format_RGB32);
        QCPPainter pintor(&prueba);
        PintaEn(pintor);
    }
    void Toma(std::unique_ptr<Mapa> uno)
    {
        mapa = std::move(uno);
        tamano = mapa->Tamano().toSize();
    }
    void PintaEn(QCPPainter& pintor, const results::FondoDeMapa& debajo = {}) const
    {
        if (mapa != nullptr) mapa->Pinta(pintor, debajo);
        if (plano != nullptr) plano->toPainter(&pintor, tamano.width(), tamano.height());
    }
};

Figuras::Figuras(const Datos& unosDatos, char unDecimal, results::FondoDeMapa unFondo)
    : datos(unosDatos), decimal(unDecimal), fondo(std::move(unFondo))
{
}

Figuras::~Figuras() = default;

const Figuras::Lista& Figuras::Prepara(const Figura& figura)
{
    if (ultima != nullptr && ultima->figura == figura) return *ultima;
    ultima = std::make_unique<Lista>();
    ultima->figura = figura;
    const QStringList encabezado = Q(Encabezado(datos, figura, decimal));
    if (figura.clase == Figura::Clase::Red) {
        if (datos.tormenta != nullptr || datos.serie != nullptr)
            ultima->Toma(std::make_unique<Mapa>(datos, decimal, encabezado));
    } else if (const auto grafico = GraficoDe(datos, figura, decimal)) {
        ultima->Toma(*grafico, encabezado, IdiomaDe(decimal));
    }
    return *ultima;
}

QSizeF Figuras::Tamano(const Figura& figura)
{
    const auto sabido =
        std::find_if(tamanos.begin(), tamanos.end(), [&](const auto& una) { return una.first == figura; });
    if (sabido != tamanos.end()) return sabido->second;
    tamanos.emplace_back(figura, QSizeF(Prepara(figura).tamano) * (AnchoEnPapel / Ancho));
    return tamanos.back().second;
}

void Figuras::Pinta(QCPPainter& pintor, const QRectF& sitio, const Figura& figura)
{
    const Lista& lista = Prepara(figura);
    if (lista.tamano.isEmpty()) return;
    pintor.save();
    pintor.translate(sitio.topLeft());
    pintor.scale(sitio.width() / lista.tamano.width(), sitio.height() / lista.tamano.height());
    pintor.setMode(QCPPainter::pmVectorized);
    pintor.setMode(QCPPainter::pmNonCosmetic);
    lista.PintaEn(pintor, fondo);
    pintor.restore();
}

std::string Figuras::Svg(const Figura& figura)
{
    const QSize tamano = Prepara(figura).tamano;
    if (tamano.isEmpty()) return {};
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    {
        QSvgGenerator dibujo;
        dibujo.setOutputDevice(&archivo);
        dibujo.setSize(tamano);
        dibujo.setViewBox(QRect({0, 0}, tamano));
        dibujo.setTitle(Q(Encabezado(datos, figura, decimal).front()));
        QCPPainter pintor;
        if (pintor.begin(&dibujo)) Pinta(pintor, QRectF({0, 0}, QSizeF(tamano)), figura);
    }
    return archivo.data().toStdString();
}

QImage Figuras::Fina(const Figura& figura)
{
    const QSizeF enPapel = Tamano(figura);
    if (enPapel.isEmpty()) return {};
    QImage imagen((enPapel * PuntosPorMilimetro).toSize(), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QCPPainter pintor;
    if (pintor.begin(&imagen)) {
        pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        Pinta(pintor, QRectF({0, 0}, QSizeF(imagen.size())), figura);
    }
    pintor.end();
    imagen.setDotsPerMeterX(qRound(PuntosPorMilimetro * 1000));
    imagen.setDotsPerMeterY(qRound(PuntosPorMilimetro * 1000));
    return imagen;
}

std::string Figuras::Png(const QImage& fina)
{
    constexpr int RapidoDeApretar = 85;  // of 100: a little larger, in a third of the time
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    if (!fina.isNull()) fina.save(&archivo, "PNG", RapidoDeApretar);
    return archivo.data().toStdString();
}

Imagen Figuras::Dibuja(const Figura& figura)
{
    const QSizeF enPapel = Tamano(figura);
    return {Svg(figura), Png(Fina(figura)), enPapel.width(), enPapel.height()};
}

}  // namespace report
