// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>

#include <QFontMetricsF>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <string>
#include <utility>

#include "forms/Textos_ventana.h"
#include "report/Piezas_ventana.h"

namespace report {
namespace {

constexpr double Orla = 3 * Punto;         // beside a cell's text
constexpr double AirePorFila = 2 * Punto;  // above and below it, together
constexpr double LetraDeRotulo = 9.5;      // of captions [points]
constexpr double PorVuelta = 6;            // that a column grows by at a time [points]
constexpr double MayorParte = 0.4;         // of the width that a word which isn't broken may ask for

/// Least and natural width of each column.
struct Anchos {
    std::vector<double> menor{}, natural{};
    [[nodiscard]] double Menor() const { return std::accumulate(menor.begin(), menor.end(), 0.0); }
};

struct Intento {
    bool apaisada;
    double letra;  ///< [points]
};
constexpr auto Intentos = std::to_array<Intento>(
    {{false, 9}, {false, 8.5}, {false, 8}, {false, 7.5}, {true, 9}, {true, 8}, {true, 7.5}});

std::string TituloDe(const ColumnaDeTabla& c)
{
    return EnLlano(c.titulo) + (c.unidad.empty() ? "" : "\n[" + c.unidad + "]");
}

Texto TextoDeTitulo(const ColumnaDeTabla& c)
{
    Texto t = c.titulo;
    for (Tramo& tramo : t)
        tramo.negrita = true;
    if (!c.unidad.empty()) t.push_back({"\n[" + c.unidad + "]"});
    return t;
}

double MayorPalabra(const QString& texto, const QFontMetricsF& m)
{
    static const QRegularExpression Blancos(QStringLiteral("\\s+"));
    double ancho = 0;
    for (const QString& palabra : texto.split(Blancos))
        ancho = std::max(ancho, m.horizontalAdvance(palabra));
    return ancho;
}

double MayorRenglon(const QString& texto, const QFontMetricsF& m)
{
    double ancho = 0;
    for (const QString& renglon : texto.split(QLatin1Char('\n')))
        ancho = std::max(ancho, m.horizontalAdvance(renglon));
    return ancho;
}

/// A table's columns as pieces.
class EnPiezas {
  public:
    EnPiezas(const Tabla& unaTabla, double unAncho, double unAcostado)
        : tabla(unaTabla), ancho(unAncho), acostado(unAcostado)
    {
    }

    void Agrega(Piezas& piezas)
    {
        std::vector<std::size_t> todas(tabla.columnas.size());
        std::iota(todas.begin(), todas.end(), std::size_t{0});
        for (const Intento& intento : Intentos) {
            Prepara(intento);
            if (anchos.Menor() > Disponible()) continue;
            return Agrega(piezas, todas, "");
        }
        AgregaPartes(piezas);
    }

  private:
    void Prepara(const Intento& intento)
    {
        apaisada = intento.apaisada;
        letra = LetraDe(intento.letra);
        fuerte = LetraDe(intento.letra, true);
        const QFontMetricsF m(letra), gruesa(fuerte);
        const double tope = Disponible() * MayorParte;
        anchos = {};
        for (std::size_t c = 0; c < tabla.columnas.size(); ++c) {
            const QString titulo = forms::Q(TituloDe(tabla.columnas[c]));
            double menor = MayorPalabra(titulo, gruesa), natural = MayorRenglon(titulo, gruesa);
            for (const auto& fila : tabla.filas) {
                const QString celda = forms::Q(fila[c]);
                const double todo = MayorRenglon(celda, m);
                natural = std::max(natural, todo);
                menor = std::max(menor, tabla.columnas[c].izquierda ? MayorPalabra(celda, m) : todo);
            }
            constexpr double Sobra = 1.5 * Punto;  // what a line is set wider than it is measured
            anchos.menor.push_back(std::min(menor, tope) + 2 * Orla + Sobra);
            anchos.natural.push_back(std::max(std::min(menor, tope), natural) + 2 * Orla + Sobra);
        }
    }
    [[nodiscard]] double Disponible() const { return apaisada ? acostado : ancho; }

    /// Too wide for any page: the first column again and again, beside as many others as have room.
    void AgregaPartes(Piezas& piezas)
    {
        std::vector<std::vector<std::size_t>> partes;
        double queda = 0;
        for (std::size_t c = 1; c < tabla.columnas.size(); ++c) {
            if (partes.empty() || anchos.menor[c] > queda) {
                partes.push_back({0});
                queda = Disponible() - anchos.menor[0];
            }
            partes.back().push_back(c);
            queda -= anchos.menor[c];
        }
        for (std::size_t i = 0; i < partes.size(); ++i)
            Agrega(piezas, partes[i],
                   " (parte " + std::to_string(i + 1) + " de " + std::to_string(partes.size()) + ")");
    }

    /// Natural widths where they have room, else as even ones as their least and natural widths let be.
    [[nodiscard]] std::vector<double> Reparte(const std::vector<std::size_t>& cuales) const
    {
        std::vector<double> suyos;
        double queda = Disponible();
        for (const std::size_t c : cuales) {
            suyos.push_back(anchos.menor[c]);
            queda -= anchos.menor[c];
        }
        // The narrowest of those that want more first, up to its natural width or the next one's.
        constexpr int Vueltas = 200;
        for (int vuelta = 0; vuelta < Vueltas && queda > Punto; ++vuelta) {
            std::size_t cual = suyos.size();
            for (std::size_t i = 0; i < suyos.size(); ++i)
                if (suyos[i] < anchos.natural[cuales[i]] && (cual == suyos.size() || suyos[i] < suyos[cual]))
                    cual = i;
            if (cual == suyos.size()) break;
            const double mas =
                std::min({queda, anchos.natural[cuales[cual]] - suyos[cual], PorVuelta * Punto});
            suyos[cual] += mas;
            queda -= mas;
        }
        return suyos;
    }

    struct Fila {
        std::vector<Compuesto> celdas{};
        std::vector<double> anchos{};
        double alto = 0, x = 0;
    };
    template <typename TextoDe>
    Fila Compon(const std::vector<std::size_t>& cuales, const std::vector<double>& suyos, const QFont& con,
                TextoDe&& texto) const
    {
        Fila fila{.anchos = suyos};
        const double todo = std::accumulate(suyos.begin(), suyos.end(), 0.0);
        fila.x = std::max(0.0, (Disponible() - todo) / 2);
        for (std::size_t i = 0; i < cuales.size(); ++i) {
            const bool izquierda = tabla.columnas[cuales[i]].izquierda;
            fila.celdas.push_back(Compone(texto(cuales[i]), con, suyos[i] - 2 * Orla,
                                          izquierda ? Qt::AlignLeft : Qt::AlignRight));
            fila.alto = std::max(fila.alto, fila.celdas.back().Alto());
        }
        fila.alto += AirePorFila;
        return fila;
    }
    static void PintaFila(QCPPainter& pintor, const Fila& fila, double y, bool cabeza)
    {
        const double todo = std::accumulate(fila.anchos.begin(), fila.anchos.end(), 0.0);
        if (cabeza) pintor.fillRect(QRectF(fila.x, y, todo, fila.alto), QColor(ColorDeCabeza));
        pintor.setPen(QColor(ColorDeTexto));
        double x = fila.x;
        for (std::size_t i = 0; i < fila.celdas.size(); ++i) {
            const double abajo = cabeza ? fila.alto - AirePorFila - fila.celdas[i].Alto() : 0;
            fila.celdas[i].Pinta(pintor, x + Orla, y + AirePorFila / 2 + abajo);
            x += fila.anchos[i];
        }
        constexpr double Fina = 0.4 * Punto, Gruesa = 0.9 * Punto;
        pintor.setPen(QPen(QColor(cabeza ? ColorDeTexto : ColorDeRaya), cabeza ? Gruesa : Fina));
        pintor.drawLine(QPointF(fila.x, y + fila.alto), QPointF(fila.x + todo, y + fila.alto));
        if (cabeza) pintor.drawLine(QPointF(fila.x, y), QPointF(fila.x + todo, y));
    }

    [[nodiscard]] Pieza PiezaDe(Fila fila, bool cabeza) const
    {
        const double alto = fila.alto;
        Pieza p{.alto = alto, .conLaSiguiente = cabeza, .apaisada = apaisada};
        p.pinta = [fila = std::move(fila), cabeza](QCPPainter& pintor, double y) {
            PintaFila(pintor, fila, y, cabeza);
        };
        return p;
    }
    /// "Tabla 3. Title", in the middle.
    [[nodiscard]] Pieza Rotulo(const std::string& sufijo, bool sigue) const
    {
        Texto texto{{"Tabla " + std::to_string(tabla.numero) + ". ", true}};
        texto.push_back({tabla.titulo + sufijo + (sigue ? " (continuación)" : "")});
        const Compuesto c = Compone(texto, LetraDe(LetraDeRotulo), Disponible(), Qt::AlignHCenter);
        constexpr double Aire = 2 * Punto;
        Pieza p{.antes = sigue ? 0 : 8 * Punto, .alto = c.Alto() + Aire, .conLaSiguiente = true};
        p.apaisada = apaisada;
        p.pinta = [c](QCPPainter& pintor, double y) {
            pintor.setPen(QColor(ColorDeTexto));
            c.Pinta(pintor, 0, y);
        };
        return p;
    }

    void Agrega(Piezas& piezas, const std::vector<std::size_t>& cuales, const std::string& sufijo)
    {
        const std::vector<double> suyos = Reparte(cuales);
        piezas.push_back(Rotulo(sufijo, false));
        const Pieza titulos = PiezaDe(
            Compon(cuales, suyos, letra, [&](std::size_t c) { return TextoDeTitulo(tabla.columnas[c]); }),
            true);
        const Pieza otraVez = Rotulo(sufijo, true);
        const auto cabeza = std::make_shared<Pieza>(titulos);
        cabeza->alto += otraVez.alto;
        cabeza->pinta = [arriba = otraVez, abajo = titulos](QCPPainter& pintor, double y) {
            arriba.pinta(pintor, y);
            abajo.pinta(pintor, y + arriba.alto);
        };
        piezas.push_back(titulos);
        for (std::size_t f = 0; f < tabla.filas.size(); ++f) {
            Pieza p = PiezaDe(
                Compon(cuales, suyos, letra, [&](std::size_t c) { return Llano(tabla.filas[f][c]); }), false);
            // A page has a few of its rows at least.
            constexpr std::size_t Pocas = 5;
            p.conLaSiguiente = f + 1 < tabla.filas.size() && (f + 1 < Pocas || f + 3 > tabla.filas.size());
            if (f > 0) p.cabeza = cabeza;
            piezas.push_back(std::move(p));
        }
        AgregaNota(piezas);
    }
    void AgregaNota(Piezas& piezas) const
    {
        constexpr double Aire = 3 * Punto, Despues = 8 * Punto, LetraDeNota = 8.5;
        if (!tabla.nota.empty()) {
            piezas.back().conLaSiguiente = true;
            const Compuesto c = Compone(Llano(tabla.nota), LetraDe(LetraDeNota), Disponible());
            const std::size_t desde = piezas.size();
            AgregaTexto(piezas, c, {.antes = Aire}, Disponible());
            for (std::size_t i = desde; i < piezas.size(); ++i)
                piezas[i].apaisada = apaisada;
        }
        piezas.push_back({.alto = Despues, .apaisada = apaisada});
    }

    const Tabla& tabla;
    double ancho, acostado;
    bool apaisada = false;
    QFont letra{}, fuerte{};
    Anchos anchos{};
};

}  // namespace

void AgregaTabla(Piezas& piezas, const Tabla& tabla, double ancho, double acostado)
{
    if (!tabla.columnas.empty()) EnPiezas(tabla, ancho, acostado).Agrega(piezas);
}

}  // namespace report
