// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TablaQDR_ventana.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>

#include "forms/MenuDeTabla_ventana.h"
#include "forms/Procedencia.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {

using forms::Q;

namespace {

constexpr int NroColumnas = static_cast<int>(NroColumnasQDR);
constexpr int LetrasDelNombre = 22;  // the first column takes the longest label and a component's name
constexpr int LetrasDeUnNumero = 11;
constexpr int FilasALaVista = 22;

}  // namespace

/// The cells on show. Keeps what it shows, so that an unchanged table is left alone.
class VistaQDR::Modelo : public QAbstractTableModel {
  public:
    /// Returns whether anything is shown differently now.
    bool Pon(const TablaQDR& nueva)
    {
        if (nueva == t) return false;
        beginResetModel();
        t = nueva;
        endResetModel();
        return true;
    }
    [[nodiscard]] const FilaQDR& Fila(int fila) const
    {
        return t.filas[t.mostradas[static_cast<std::size_t>(fila)]];
    }
    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(t.mostradas.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override
    {
        return padre.isValid() ? 0 : NroColumnas;
    }
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override
    {
        const FilaQDR& fila = Fila(indice.row());
        switch (papel) {
        case Qt::DisplayRole:
            return Q(fila.celdas[static_cast<std::size_t>(indice.column())]);
        case Qt::TextAlignmentRole:
            return static_cast<int>(Qt::AlignCenter);
        case Qt::FontRole:
            if (fila.clase == ClaseFila::Total && indice.column() == 0) return fuerte;
            return {};
        case Qt::BackgroundRole:
            if (fila.clase == ClaseFila::Titulo)
                return QGuiApplication::palette().brush(QPalette::AlternateBase);
            return {};
        default:
            return {};
        }
    }
    [[nodiscard]] QVariant headerData(int columna, Qt::Orientation sentido, int papel) const override
    {
        if (sentido == Qt::Horizontal && papel == Qt::DisplayRole)
            return Q(EncabezadosQDR().at(static_cast<std::size_t>(columna)));
        if (sentido == Qt::Horizontal && papel == Qt::ToolTipRole)
            return QStringLiteral("Ordena por esta columna; otra vez, al revés; una tercera, como estaba");
        return {};
    }
    void PonLetra(const QFont& base)
    {
        fuerte = base;
        fuerte.setBold(true);
    }

  private:
    TablaQDR t{};
    QFont fuerte{};
};

VistaQDR::VistaQDR(forms::Entorno& alrededor, const TablaQDR& tabla, std::string_view unTitulo)
    : entorno(alrededor), t(tabla), titulo(unTitulo), modelo(std::make_unique<Modelo>())
{
    setObjectName(QStringLiteral("MSFlexGridTablaSaleQDR"));
    setAccessibleName(Q(titulo));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 3);
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    modelo->PonLetra(font());
    setModel(modelo.get());
    PonEncabezado();
}

VistaQDR::~VistaQDR()
{
    setModel(nullptr);
}

void VistaQDR::PonEncabezado()
{
    QHeaderView& encabezado = *horizontalHeader();
    encabezado.setSectionsClickable(true);
    encabezado.setHighlightSections(false);
    encabezado.setDefaultAlignment(Qt::AlignCenter);
    const int letra = fontMetrics().averageCharWidth();
    encabezado.setMinimumSectionSize(LetrasDeUnNumero * letra * 2 / 3);
    encabezado.setSectionResizeMode(QHeaderView::Stretch);
    encabezado.setSectionResizeMode(0, QHeaderView::Interactive);
    encabezado.resizeSection(0, LetrasDelNombre * letra);
    // A click on a heading sorts, and selects nothing.
    disconnect(&encabezado, SIGNAL(sectionPressed(int)), this, nullptr);
    disconnect(&encabezado, SIGNAL(sectionEntered(int)), this, nullptr);
    connect(&encabezado, &QHeaderView::sectionClicked, this,
            [this](int columna) { AlPulsarEncabezado(columna); });
}

void VistaQDR::Muestra()
{
    const QPoint lugar(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QModelIndex actual = currentIndex();
    if (modelo->Pon(t)) {
        UneTitulos();
        if (actual.isValid() && actual.row() < modelo->rowCount())
            setCurrentIndex(modelo->index(actual.row(), actual.column()));
        horizontalScrollBar()->setValue(lugar.x());
        verticalScrollBar()->setValue(lugar.y());
    }
    horizontalHeader()->setSortIndicatorShown(t.columnaOrden >= 0);
    horizontalHeader()->setSortIndicator(
        t.columnaOrden, t.sentido == Sentido::Ascendente ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void VistaQDR::UneTitulos()
{
    clearSpans();
    for (int fila = 0; fila < modelo->rowCount() && modelo->Fila(fila).clase == ClaseFila::Titulo; ++fila)
        setSpan(fila, 0, 1, NroColumnas);
}

QSize VistaQDR::sizeHint() const
{
    const int letra = fontMetrics().averageCharWidth();
    const int columnas = LetrasDelNombre + (NroColumnas - 1) * LetrasDeUnNumero;
    return {columnas * letra, (FilasALaVista + 1) * verticalHeader()->defaultSectionSize()};
}

void VistaQDR::CopiaSeleccion() const
{
    const QItemSelection elegido = selectionModel()->selection();
    if (elegido.isEmpty()) return;
    const QItemSelectionRange& bloque = elegido.constFirst();
    const std::string texto = BloqueComoTexto(t, {.primeraFila = static_cast<std::size_t>(bloque.top()),
                                                  .ultimaFila = static_cast<std::size_t>(bloque.bottom()),
                                                  .primeraColumna = static_cast<std::size_t>(bloque.left()),
                                                  .ultimaColumna = static_cast<std::size_t>(bloque.right())});
    QGuiApplication::clipboard()->setText(Q(forms::ConSigno(texto, forms::SignoElegido(entorno))));
}

void VistaQDR::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Copy)) return entorno.Atiende([this] { CopiaSeleccion(); });
    QTableView::keyPressEvent(evento);
}

void VistaQDR::contextMenuEvent(QContextMenuEvent* evento)
{
    forms::AbreMenu(
        entorno, *this, *evento,
        {.archivo = forms::NombreDeArchivo({.titulo = std::string(titulo), .componente = Componente()}),
         .planilla = [this] { return ComoPlanilla(t); },
         .Copia = [this] { CopiaSeleccion(); },
         .Ordena = [this](int columna) { AlPulsarEncabezado(columna); }});
}

}  // namespace results
