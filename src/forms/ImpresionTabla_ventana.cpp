// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ImpresionTabla_ventana.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "forms/Impresion_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

constexpr double LetraDeTabla = 9;      // [points]
constexpr double AltoDeRenglon = 1.35;  // times the letters'
constexpr int AireDeColumna = 2;        // letters between the widest cell and the next column

/// A table on the sheets of a printer.
class Hojas {
  public:
    Hojas(QPainter& unPintor, const QRectF& unaHoja, QPrinter& unaImpresora, const Planilla& una)
        : pintor(unPintor), hoja(unaHoja), impresora(unaImpresora), planilla(una)
    {
        PonLetra(LetraDeTabla);
        MideColumnas();
        const double ancho = AnchoDeTabla();
        if (ancho > hoja.width()) {
            PonLetra(LetraDeTabla * hoja.width() / ancho);
            MideColumnas();
        }
        // What is left over goes to the columns alike.
        const double sobra = hoja.width() - AnchoDeTabla();
        for (double& columna : anchos)
            columna += sobra / static_cast<double>(anchos.size());
    }

    void Imprime(const QString& nombre)
    {
        const auto titulos = static_cast<std::size_t>(planilla.titulos.size());
        // The headings take a line of each page, its foot two.
        constexpr std::size_t Fijos = 3;
        const auto caben = static_cast<std::size_t>(std::max(1.0, hoja.height() / alto - Fijos));
        const std::size_t enLaPrimera = caben > titulos + 1 ? caben - titulos - 1 : 1;
        const std::size_t filas = planilla.filas.size();
        const std::size_t resto = filas > enLaPrimera ? filas - enLaPrimera : 0;
        const std::size_t paginas = 1 + (resto + caben - 1) / caben;
        std::size_t fila = 0;
        for (std::size_t pagina = 1; pagina <= paginas; ++pagina) {
            if (pagina > 1) impresora.newPage();
            y = 0;
            if (pagina == 1) PintaTitulos();
            PintaEncabezado();
            const std::size_t fin = std::min(filas, fila + (pagina == 1 ? enLaPrimera : caben));
            for (; fila < fin; ++fila)
                PintaFila(planilla.filas[fila]);
            PintaPie(nombre, pagina, paginas);
        }
    }

  private:
    void PonLetra(double puntos)
    {
        letra = QApplication::font();
        letra.setPointSizeF(puntos);
        fuerte = letra;
        fuerte.setBold(true);
        alto = QFontMetricsF(letra, &impresora).height() * AltoDeRenglon;
    }
    void MideColumnas()
    {
        const QFontMetricsF medida(fuerte, &impresora);
        const double aire = AireDeColumna * medida.averageCharWidth();
        anchos.clear();
        for (std::size_t c = 0; c < planilla.columnas.size(); ++c) {
            double ancho = medida.horizontalAdvance(Q(planilla.columnas[c].encabezado));
            for (const std::vector<std::string>& celdas : planilla.filas)
                ancho = std::max(ancho, medida.horizontalAdvance(Q(celdas[c])));
            anchos.push_back(ancho + aire);
        }
    }
    [[nodiscard]] double AnchoDeTabla() const { return std::accumulate(anchos.begin(), anchos.end(), 0.0); }

    /// The cells of a line, each in the middle of its column.
    template <typename Texto>
    void PintaCeldas(const QFont& con, Texto&& texto)
    {
        pintor.setFont(con);
        double x = 0;
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            pintor.drawText(QRectF(x, y, anchos[c], alto), Qt::AlignCenter, texto(c));
            x += anchos[c];
        }
        y += alto;
    }
    void PintaTitulos()
    {
        pintor.setFont(letra);
        const QFontMetricsF medida(letra, &impresora);
        for (const std::string& titulo : planilla.titulos) {
            // A path that is too long keeps its end, which tells most.
            pintor.drawText(QRectF(0, y, hoja.width(), alto), Qt::AlignCenter,
                            medida.elidedText(Q(titulo), Qt::ElideMiddle, hoja.width()));
            y += alto;
        }
        y += alto;
    }
    void PintaEncabezado()
    {
        PintaCeldas(fuerte, [&](std::size_t c) { return Q(planilla.columnas[c].encabezado); });
        Raya();
    }
    void PintaFila(const std::vector<std::string>& celdas)
    {
        PintaCeldas(letra, [&](std::size_t c) { return Q(celdas[c]); });
    }
    void PintaPie(const QString& nombre, std::size_t pagina, std::size_t paginas)
    {
        y = hoja.height() - alto;
        Raya();
        pintor.setFont(letra);
        const QRectF pie(0, y, hoja.width(), alto);
        pintor.drawText(pie, Qt::AlignLeft | Qt::AlignVCenter, nombre);
        pintor.drawText(pie, Qt::AlignRight | Qt::AlignVCenter,
                        QStringLiteral("Página %1 de %2").arg(pagina).arg(paginas));
    }
    void Raya()
    {
        constexpr double Gruesa = 0.05;  // of a line's height
        pintor.setPen(QPen(Qt::black, alto * Gruesa));
        pintor.drawLine(QPointF(0, y), QPointF(hoja.width(), y));
    }

    QPainter& pintor;
    QRectF hoja;
    QPrinter& impresora;
    const Planilla& planilla;
    QFont letra{}, fuerte{};
    std::vector<double> anchos{};  ///< of the columns [dots]
    double alto = 0;               ///< of a line [dots]
    double y = 0;                  ///< where the next line begins
};

}  // namespace

void ImprimePlanilla(Entorno& entorno, std::string_view nombre, const Planilla& planilla)
{
    Imprime(entorno, {nombre, false}, [&](QPainter& pintor, const QRectF& hoja, QPrinter& impresora) {
        Hojas(pintor, hoja, impresora, planilla).Imprime(Q(nombre));
    });
}

}  // namespace forms
