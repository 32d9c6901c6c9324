// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cuadro_ventana.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "forms/MenuDeTabla_ventana.h"
#include "forms/Procedencia.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {

namespace {

constexpr int FilasALaVista = 12;
// Of a column that shares what is left over: wished for, and the least.
constexpr int LetrasDeLoQueSobra = 24, LetrasDeLoMenos = 17;

/// Width of `cuantas` letters [px]. The mean of some fonts counts every script that they have, and is wider
/// than what a heading holds: a table would leave its last columns out of view for nothing.
int AnchoDe(const QFontMetrics& medidas, int cuantas)
{
    const QString titulo = QStringLiteral("Tiempo al pico [min]");
    const double letra = std::min<double>(
        medidas.averageCharWidth(), medidas.horizontalAdvance(titulo) / static_cast<double>(titulo.size()));
    return static_cast<int>(std::lround(cuantas * letra));
}

}  // namespace

/// The cells on show. Keeps what it shows, so that an unchanged table is left alone.
class TablaCuadro::Modelo : public QAbstractTableModel {
  public:
    explicit Modelo(const TablaCuadro& unaVista) : vista(unaVista) {}

    /// Returns whether anything is shown differently now.
    bool Pon(const Cuadro& nuevo)
    {
        if (nuevo == c) return false;
        beginResetModel();
        c = nuevo;
        endResetModel();
        return true;
    }
    [[nodiscard]] std::size_t Fila(int fila) const { return c.mostradas[static_cast<std::size_t>(fila)]; }
    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(c.mostradas.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(vista.letras.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override
    {
        const std::size_t fila = Fila(indice.row());
        const auto columna = static_cast<std::size_t>(indice.column());
        if (QVariant adorno = vista.Adorno(fila, indice.column(), papel); adorno.isValid()) return adorno;
        const std::string& celda = c.planilla.filas[fila][columna];
        if (papel == Qt::DisplayRole) return Q(celda);
        if (papel == Qt::ToolTipRole && !celda.empty()) return Q(celda);
        const bool numero = EsNumero(c.planilla.columnas[columna], celda);
        if (papel == Qt::TextAlignmentRole)
            return QVariant(Qt::Alignment((numero ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
        return {};
    }
    [[nodiscard]] QVariant headerData(int columna, Qt::Orientation sentido, int papel) const override
    {
        if (sentido != Qt::Horizontal || std::cmp_greater_equal(columna, c.planilla.columnas.size()))
            return {};
        if (papel == Qt::DisplayRole)
            return Q(c.planilla.columnas[static_cast<std::size_t>(columna)].encabezado);
        if (papel == Qt::ToolTipRole)
            return QStringLiteral("Ordena por esta columna; otra vez, al revés; una tercera, como estaba");
        return {};
    }

  private:
    const TablaCuadro& vista;
    Cuadro c{};
};

TablaCuadro::TablaCuadro(Entorno& alrededor, const Cuadro& cuadro, std::string_view nombre,
                         std::string_view unTitulo)
    : DaPlanilla([&cuadro] { return ALaVista(cuadro); }),
      entorno(alrededor),
      c(cuadro),
      titulo(unTitulo),
      modelo(std::make_unique<Modelo>(*this))
{
    setObjectName(Q(nombre));
    setAccessibleName(Q(titulo));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(true);
    setTextElideMode(Qt::ElideRight);
    setAlternatingRowColors(true);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(fontMetrics().height() * 4 / 3);
    verticalHeader()->setDefaultSectionSize(verticalHeader()->minimumSectionSize());
    setModel(modelo.get());
    PonEncabezado();
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& indice) { Elige(indice); });
}

TablaCuadro::~TablaCuadro()
{
    AlMoverse = [] {};  // the form that it told has gone before its controls
    setModel(nullptr);
}

void TablaCuadro::PonEncabezado()
{
    QHeaderView& encabezado = *horizontalHeader();
    encabezado.setSectionsClickable(true);
    encabezado.setHighlightSections(false);
    encabezado.setDefaultAlignment(Qt::AlignCenter);
    encabezado.setMinimumSectionSize(4 * fontMetrics().averageCharWidth());
    // A click on a heading sorts, and selects nothing.
    disconnect(&encabezado, SIGNAL(sectionPressed(int)), this, nullptr);
    disconnect(&encabezado, SIGNAL(sectionEntered(int)), this, nullptr);
    connect(&encabezado, &QHeaderView::sectionClicked, this,
            [this](int columna) { AlPulsarEncabezado(columna); });
    connect(&encabezado, &QHeaderView::sectionResized, this, [this] { resizeRowsToContents(); });
}

void TablaCuadro::PonColumnas(std::vector<int> nuevas)
{
    letras = std::move(nuevas);
    Muestra();
}

void TablaCuadro::ReparteAncho()
{
    const QFontMetrics medidas = fontMetrics();
    const int fijas = AnchoDe(medidas, std::accumulate(letras.begin(), letras.end(), 0));
    const auto cuantas = static_cast<int>(std::count(letras.begin(), letras.end(), 0));
    const int sobra = cuantas == 0 ? 0 : (viewport()->width() - fijas) / cuantas;
    const QSignalBlocker silencio(*horizontalHeader());
    for (std::size_t k = 0; k < letras.size(); ++k)
        setColumnWidth(static_cast<int>(k), letras[k] > 0
                                                ? AnchoDe(medidas, letras[k])
                                                : std::max(sobra, AnchoDe(medidas, LetrasDeLoMenos)));
    horizontalHeader()->viewport()->update();
    resizeRowsToContents();
}

void TablaCuadro::Muestra()
{
    const QPoint lugar(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int actual = currentIndex().row();
    if (modelo->Pon(c)) {
        ReparteAncho();
        if (modelo->rowCount() > 0 && modelo->columnCount() > 0) {
            const int fila = std::clamp(actual, 0, modelo->rowCount() - 1);
            setCurrentIndex(modelo->index(fila, 0));
        }
        horizontalScrollBar()->setValue(lugar.x());
        verticalScrollBar()->setValue(lugar.y());
        AlMoverse();
    }
    horizontalHeader()->setSortIndicatorShown(c.columnaOrden >= 0);
    horizontalHeader()->setSortIndicator(c.columnaOrden,
                                         c.descendente ? Qt::DescendingOrder : Qt::AscendingOrder);
}

std::vector<std::size_t> TablaCuadro::Elegidas() const
{
    std::vector<int> filas;
    for (const QModelIndex& indice : selectionModel()->selectedRows())
        filas.push_back(indice.row());
    std::sort(filas.begin(), filas.end());
    std::vector<std::size_t> lugares;
    lugares.reserve(filas.size());
    for (const int fila : filas)
        lugares.push_back(modelo->Fila(fila));
    return lugares;
}

std::size_t TablaCuadro::Actual() const
{
    const QModelIndex actual = currentIndex();
    return actual.isValid() ? modelo->Fila(actual.row()) : c.planilla.filas.size();
}

QSize TablaCuadro::sizeHint() const
{
    int columnas = 0;
    for (const int cuantas : letras)
        columnas += cuantas > 0 ? cuantas : LetrasDeLoQueSobra;
    return {AnchoDe(fontMetrics(), columnas) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width(),
            (FilasALaVista + 1) * verticalHeader()->defaultSectionSize()};
}

void TablaCuadro::resizeEvent(QResizeEvent* evento)
{
    QTableView::resizeEvent(evento);
    ReparteAncho();
}

void TablaCuadro::selectionChanged(const QItemSelection& nueva, const QItemSelection& vieja)
{
    QTableView::selectionChanged(nueva, vieja);
    AlMoverse();
}

void TablaCuadro::Elige(const QModelIndex& indice)
{
    if (indice.isValid()) AlElegir(modelo->Fila(indice.row()));
}

void TablaCuadro::Copia() const
{
    const std::string texto = FilasComoTexto(c, Elegidas(), letras.size());
    if (!texto.empty()) QGuiApplication::clipboard()->setText(Q(ConSigno(texto, SignoElegido(entorno))));
}

void TablaCuadro::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Copy)) return entorno.Atiende([this] { Copia(); });
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) return Elige(currentIndex());
    QTableView::keyPressEvent(evento);
}

void TablaCuadro::contextMenuEvent(QContextMenuEvent* evento)
{
    AbreMenu(entorno, *this, *evento,
             {.archivo = NombreDeArchivo({.titulo = std::string(titulo)}),
              .planilla = DaPlanilla,
              .Copia = [this] { Copia(); },
              .Ordena = [this](int columna) { AlPulsarEncabezado(columna); },
              .Antes = AlArmarMenu});
}

}  // namespace forms
