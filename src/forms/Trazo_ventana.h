// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QRectF>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "forms/Grafico.h"

class QCPAxis;
class QCPGraph;
class QCPItemStraightLine;
class QCPItemText;
class QCPItemTracer;
class QCPTextElement;
class QCustomPlot;
class QPalette;
class QPoint;

// The drawing of a chart on QCustomPlot.
namespace forms {

class FajaDeLeyenda;

/// Colours of what isn't a series.
struct Tinta {
    QColor fondo, texto, ejes, grilla;
    bool oscura = false;
};
Tinta TintaDe(const QPalette& colores);
Tinta TintaDePapel();

/// A chart on a plotting surface: structure, data, ranges, colours, and the row that is being read.
class Trazo {
  public:
    Trazo(QCustomPlot& superficie, bool reducido);
    Trazo(const Trazo&) = delete;
    Trazo& operator=(const Trazo&) = delete;

    /// Takes a chart; builds anew only what differs from the one before.
    void Pon(const Grafico& nuevo);
    [[nodiscard]] const Grafico& Mostrado() const { return grafico; }
    void PonTinta(const Tinta& nueva);
    [[nodiscard]] const Tinta& TintaPuesta() const { return tinta; }
    void PonLetra(const QFont& base);

    /// From category to category, where nothing is zoomed.
    struct Tramo {
        double desde = 0, hasta = 1;
        bool operator==(const Tramo&) const = default;
    };
    [[nodiscard]] Tramo EnVista() const;
    [[nodiscard]] QStringList RotulosEnVista() const;
    [[nodiscard]] QStringList MarcasRotuladas() const;
    /// Where they stand on the surface.
    [[nodiscard]] QList<QRectF> LugaresDeMarcas() const;
    [[nodiscard]] QList<QRectF> LugaresDeLeyenda() const;
    /// What it bears on its way out: lines above it, the first one its title, no wider than `ancho` [pixels],
    /// and its caveat below. Returns the height that they take. Without lines: as on the screen.
    int PonEncabezado(const QStringList& textos, int ancho);
    /// Zooms the categories around one of them; above 1: nearer.
    void Acerca(double veces, double centro);
    void VeTodo();
    /// Keeps what the user drags within the chart.
    void Acota();

    /// Row under a point of the surface, from 0.
    /// Where a row stands along the axis of the categories.
    [[nodiscard]] double LugarDeFila(std::size_t fila) const;
    [[nodiscard]] std::optional<std::size_t> FilaEn(const QPoint& punto) const;
    /// Shows the values of a row beside it.
    void Lee(std::size_t fila);
    void DejaDeLeer();
    [[nodiscard]] std::optional<std::size_t> FilaLeida() const { return leida; }

  private:
    void Arma();
    void ArmaFilas();
    void ArmaSeries();
    void PonDatos();
    void PonMarcas();
    void AcomodaMarcas();
    [[nodiscard]] bool HayMarca(std::size_t cual) const;
    [[nodiscard]] QPointF LugarDeMarca(std::size_t cual) const;
    [[nodiscard]] QList<QLineF> Curvas() const;
    [[nodiscard]] bool PisaAnillo(const QRectF& sitio) const;
    void PonEscalas();
    [[nodiscard]] Tramo TodasLasFilas() const;
    void PonEscalaSecundaria();
    void Colorea();
    void ColoreaEje(QCPAxis& eje) const;
    void ColoreaSeries();
    void ColoreaBanda(std::size_t serie);
    void ColoreaBarra(std::size_t serie, std::size_t cual);
    void ColoreaMarcas();
    [[nodiscard]] bool EscalonEn(std::size_t serie) const;
    [[nodiscard]] double Abscisa(std::size_t serie, std::size_t fila) const;
    [[nodiscard]] bool HayColgada() const;

    QCustomPlot& plano;
    bool compacto;
    Grafico grafico{};
    Tinta tinta{};
    QFont letra{};
    Tramo todo{};                      ///< of the categories
    Tramo todoY{}, todoYSecundario{};  ///< of the values
    bool acercado = false;
    std::optional<std::size_t> leida{};

    // The surface owns them.
    std::vector<QCPGraph*> lineas{};
    std::vector<QCPItemTracer*> puntosMarcados{};
    std::vector<QCPItemText*> rotulosMarcados{};
    std::vector<QCPItemTracer*> puntosLeidos{};
    QCPTextElement* titulo;
    QCPTextElement* nota;
    QCPTextElement* tituloLeyenda;
    FajaDeLeyenda* faja;
    QCPTextElement* salvedad;
    std::vector<QCPTextElement*> encabezado{};
    QCPItemStraightLine* hilo;
    QCPItemText* lectura;
};

}  // namespace forms
