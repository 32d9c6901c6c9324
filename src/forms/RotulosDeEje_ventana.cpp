// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/RotulosDeEje_ventana.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "forms/LecturaGrafico.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

constexpr int Separacion = 12;         // pixels between two labels
constexpr double PixelesPorFila = 10;  // least distance of the marks of an automatic scale

/// Labels and marks of the categories, in rows from 1.
class RotulosDeCategorias : public QCPAxisTicker {
  public:
    RotulosDeCategorias(const QCPAxis& unEje, const Grafico& unGrafico) : eje(unEje), grafico(unGrafico) {}

  protected:
    double getTickStep(const QCPRange& tramo) override
    {
        const auto [primera, ultima] = FilasEn(tramo);
        return primera > ultima ? 1 : static_cast<double>(Paso(tramo, ultima - primera + 1));
    }

    QVector<double> createTickVector(double cada, const QCPRange& tramo) override
    {
        enVista = tramo;
        paso = static_cast<std::size_t>(cada);
        QVector<double> marcas;
        const auto [primera, ultima] = FilasEn(tramo);
        for (std::size_t i = PrimeraRotulada(primera, paso, grafico.escala.primeraFila); i <= ultima;
             i += paso)
            marcas.append(static_cast<double>(i));
        // A scale that is coarser than what is in sight still tells where one is.
        if (marcas.isEmpty() && primera <= ultima) marcas.append(static_cast<double>(primera));
        return marcas;
    }

    QVector<double> createSubTickVector(int /*cuantas*/, const QVector<double>& /*marcas*/) override
    {
        QVector<double> submarcas;
        const auto [primera, ultima] = FilasEn(enVista);
        const std::size_t cada = PasoDeMarcas(enVista);
        for (std::size_t i = primera; cada > 0 && i <= ultima; ++i)
            if (i % cada == 0 && i % paso != 0) submarcas.append(static_cast<double>(i));
        return submarcas;
    }

    QString getTickLabel(double marca, const QLocale& /*idioma*/, QChar /*formato*/,
                         int /*decimales*/) override
    {
        return Q(grafico.categorias[static_cast<std::size_t>(marca) - 1]);
    }

  private:
    /// First and last row in sight, from 1; the first behind the last where there is none.
    [[nodiscard]] std::pair<std::size_t, std::size_t> FilasEn(const QCPRange& tramo) const
    {
        const auto filas = static_cast<double>(grafico.categorias.size());
        const double primera = std::max(1.0, std::ceil(tramo.lower));
        const double ultima = std::min(filas, std::floor(tramo.upper));
        if (ultima < primera) return {1, 0};
        return {static_cast<std::size_t>(primera), static_cast<std::size_t>(ultima)};
    }

    /// Length of the axis. The surface's size is new by now, the frame's is still that of the last painting.
    [[nodiscard]] double Ancho() const
    {
        const QMargins margenes = eje.axisRect()->margins();
        return std::max(1, eje.parentPlot()->viewport().width() - margenes.left() - margenes.right());
    }

    /// Labels for which there is room over the axis.
    [[nodiscard]] std::size_t Caben() const
    {
        const auto& largo =
            *std::max_element(grafico.categorias.begin(), grafico.categorias.end(),
                              [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
        const int ancho = QFontMetrics(eje.tickLabelFont()).horizontalAdvance(Q(largo)) + Separacion;
        return static_cast<std::size_t>(std::max(1.0, Ancho() / ancho));
    }

    [[nodiscard]] std::size_t Paso(const QCPRange& tramo, std::size_t visibles) const
    {
        // Rows that the whole length of the axis would hold.
        const auto enTodoElEje = std::max<std::size_t>(visibles, static_cast<std::size_t>(tramo.size()));
        const std::size_t caben = Caben();
        if (grafico.escala.automatica)
            return PasoDeRotulos(grafico.categorias, enTodoElEje, caben, grafico.escala.primeraFila);
        const auto pedido = static_cast<std::size_t>(std::max(1, grafico.escala.divisionesPorRotulo));
        const std::size_t minimo = (enTodoElEje + caben - 1) / caben;
        return pedido * ((minimo + pedido - 1) / pedido);
    }

    [[nodiscard]] std::size_t PasoDeMarcas(const QCPRange& tramo) const
    {
        if (!grafico.marcasEjeX) return 0;
        if (!grafico.escala.automatica)
            return static_cast<std::size_t>(std::max(0, grafico.escala.divisionesPorMarca));
        return Ancho() / tramo.size() >= PixelesPorFila ? 1 : 0;
    }

    const QCPAxis& eje;
    const Grafico& grafico;
    QCPRange enVista{};
    std::size_t paso = 1;
};

/// Labels at the places that a chart names, as many as there is room for.
class RotulosDeLugares : public QCPAxisTicker {
  public:
    RotulosDeLugares(const QCPAxis& unEje, const Grafico& unGrafico) : eje(unEje), grafico(unGrafico) {}

  protected:
    QVector<double> createTickVector(double /*paso*/, const QCPRange& tramo) override
    {
        const QFontMetrics letra(eje.tickLabelFont());
        const QMargins margenes = eje.axisRect()->margins();
        const int ancho = eje.parentPlot()->viewport().width() - margenes.left() - margenes.right();
        const double porPixel = tramo.size() / std::max(1, ancho);
        QVector<double> marcas;
        rotulados.clear();
        for (const RotuloDeEje& r : grafico.rotulosX) {
            if (!tramo.contains(r.lugar)) continue;
            marcas.append(r.lugar);
            const double medio = (letra.horizontalAdvance(Q(r.texto)) + Separacion) * porPixel / 2;
            const bool cabe = std::none_of(rotulados.cbegin(), rotulados.cend(), [&](const Puesto& otro) {
                return std::abs(otro.lugar - r.lugar) < otro.medio + medio;
            });
            if (cabe) rotulados.append({r.lugar, medio, Q(r.texto)});
        }
        std::sort(marcas.begin(), marcas.end());
        return marcas;
    }
    int getSubTickCount(double /*paso*/) override { return 0; }
    QString getTickLabel(double marca, const QLocale& /*idioma*/, QChar /*formato*/,
                         int /*decimales*/) override
    {
        const auto puesto = std::find_if(rotulados.cbegin(), rotulados.cend(),
                                         [marca](const Puesto& r) { return r.lugar == marca; });
        return puesto == rotulados.cend() ? QString() : puesto->texto;
    }

  private:
    struct Puesto {
        double lugar = 0, medio = 0;  ///< half of its width, in units of the axis
        QString texto{};
    };
    const QCPAxis& eje;
    const Grafico& grafico;
    QVector<Puesto> rotulados{};
};

/// 1, 2, 5 of each power of ten, and 3, 7 where little is in sight.
class RotulosDeLogaritmos : public QCPAxisTicker {
  protected:
    QVector<double> createTickVector(double /*paso*/, const QCPRange& tramo) override
    {
        constexpr double Poco = 30;  // times the least, up to which there is room for more
        const bool pocos = tramo.upper < Poco * tramo.lower;
        QVector<double> marcas;
        for (double decena = std::pow(10, std::floor(std::log10(tramo.lower))); decena <= tramo.upper;
             decena *= 10)
            for (const int cifra : {1, 2, 3, 5, 7})
                if (tramo.contains(cifra * decena) && (pocos || (cifra != 3 && cifra != 7)))
                    marcas.append(cifra * decena);
        return marcas;
    }
    int getSubTickCount(double /*paso*/) override { return 0; }
};

class RotulosHasta : public QCPAxisTicker {
  public:
    explicit RotulosHasta(double unTope) : tope(unTope)
    {
        constexpr int EnTodoElEje = 12;  // a third of them is in use
        setTickCount(EnTodoElEje);
    }

  protected:
    QVector<double> createTickVector(double paso, const QCPRange& tramo) override
    {
        constexpr double Holgura = 1.001;
        QVector<double> marcas = QCPAxisTicker::createTickVector(paso, tramo);
        const auto fin =
            std::remove_if(marcas.begin(), marcas.end(), [this](double m) { return m > tope * Holgura; });
        marcas.erase(fin, marcas.end());
        return marcas;
    }
    int getSubTickCount(double /*paso*/) override { return 0; }

  private:
    double tope;
};

}  // namespace

void RotulaCategorias(QCPAxis& eje, const Grafico& grafico)
{
    if (grafico.abscisas.empty())
        eje.setTicker(QSharedPointer<RotulosDeCategorias>::create(eje, grafico));
    else if (grafico.rotulosX.empty())
        RotulaValores(eje);
    else
        eje.setTicker(QSharedPointer<RotulosDeLugares>::create(eje, grafico));
}

void RotulaLogaritmos(QCPAxis& eje)
{
    eje.setTicker(QSharedPointer<RotulosDeLogaritmos>::create());
}

void RotulaHasta(QCPAxis& eje, double tope)
{
    eje.setTicker(QSharedPointer<RotulosHasta>::create(tope));
}

void RotulaValores(QCPAxis& eje)
{
    eje.setTicker(QSharedPointer<QCPAxisTicker>::create());
}

}  // namespace forms
