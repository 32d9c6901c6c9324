// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grilla_ventana.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {

/// The grid as the toolkit's views want it. Row 0 of the model is row 1 of the grid.
class TablaGrilla::Modelo : public QAbstractTableModel {
  public:
    Modelo(const Grilla& mostrada, const TablaGrilla& suVista) : grilla(mostrada), vista(suVista) {}

    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas; }
    int columnCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : columnas; }

    QVariant data(const QModelIndex& indice, int papel) const override
    {
        const Celda celda{indice.row() + 1, indice.column()};
        if (!grilla.Esta(celda)) return {};
        const auto& fila = grilla.filas[static_cast<std::size_t>(celda.fila) - 1];
        const auto& columna = grilla.columnas[static_cast<std::size_t>(celda.columna)];
        switch (papel) {
        case Qt::DisplayRole:
            return Q(grilla.Texto(celda));
        case Qt::TextAlignmentRole:
            return static_cast<int>(Alinea(columna.alineacion));
        case Qt::BackgroundRole:
            // Between grey rows of titles the data are light, though nothing in them can be edited.
            return QApplication::palette().brush(
                (columna.editable || conTitulos) && !fila.esTitulo ? QPalette::Base : QPalette::Window);
        case Qt::FontRole: {
            QFont letra;
            letra.setBold(fila.esTitulo);
            return fila.esTitulo ? QVariant(letra) : QVariant();
        }
        case Qt::ToolTipRole:
            return Ayuda(celda);
        default:
            return {};
        }
    }

    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override
    {
        if (orientacion != Qt::Horizontal || seccion < 0 || seccion >= grilla.NroColumnas()) return {};
        const auto& columna = grilla.columnas[static_cast<std::size_t>(seccion)];
        if (papel == Qt::DisplayRole) return Q(columna.titulo);
        if (papel == Qt::TextAlignmentRole) return static_cast<int>(Alinea(columna.alineacion));
        if (papel == Qt::ToolTipRole) return Ayuda({0, seccion});
        return {};
    }

    /// Takes over the number of rows and columns; the cells are read as they are painted.
    void Actualiza()
    {
        conTitulos = std::any_of(grilla.filas.begin(), grilla.filas.end(),
                                 [](const FilaGrilla& fila) { return fila.esTitulo; });
        if (filas != grilla.NroFilas() || columnas != grilla.NroColumnas()) {
            beginResetModel();
            filas = grilla.NroFilas();
            columnas = grilla.NroColumnas();
            endResetModel();
        } else if (filas > 0 && columnas > 0) {
            emit dataChanged(index(0, 0), index(filas - 1, columnas - 1));
        }
    }

  private:
    QVariant Ayuda(Celda celda) const
    {
        const std::string ayuda = vista.AyudaDe(celda);
        return ayuda.empty() ? QVariant() : QVariant(Q(ayuda));
    }

    static Qt::Alignment Alinea(Alineacion alineacion)
    {
        switch (alineacion) {
        case Alineacion::Centro:
            return Qt::AlignCenter;
        case Alineacion::Derecha:
            return Qt::AlignRight | Qt::AlignVCenter;
        case Alineacion::Izquierda:
            break;
        }
        return Qt::AlignLeft | Qt::AlignVCenter;
    }

    const Grilla& grilla;
    const TablaGrilla& vista;
    int filas = 0, columnas = 0;
    bool conTitulos = false;  ///< some rows give the columns below them other titles
};

namespace {

struct FilaTecla {
    int tecla;
    Tecla grilla;
};

constexpr auto TeclasDeGrilla = std::to_array<FilaTecla>({
    {Qt::Key_Return, Tecla::Enter},
    {Qt::Key_Enter, Tecla::Enter},
    {Qt::Key_Delete, Tecla::Suprimir},
    {Qt::Key_Up, Tecla::Arriba},
    {Qt::Key_Down, Tecla::Abajo},
    {Qt::Key_Left, Tecla::Izquierda},
    {Qt::Key_Right, Tecla::Derecha},
    {Qt::Key_Tab, Tecla::Tab},
    {Qt::Key_Backtab, Tecla::TabAtras},
});

/// Commands that are the grid's wherever it has the focus.
constexpr auto Ordenes =
    std::to_array({QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll, QKeySequence::Undo});

/// Ctrl+Y, Ctrl+Shift+Z and what else the platform has for it.
bool EsRehacer(const QKeyEvent& evento)
{
    return evento.matches(QKeySequence::Redo) ||
           evento.keyCombination() == (Qt::ControlModifier | Qt::Key_Y) ||
           evento.keyCombination() == (Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_Z);
}

/// A block in the clipboard as this program's grids hold it, whatever sign its text has for others.
constexpr char FormatoPropio[] = "application/x-siro-grilla";

}  // namespace

TablaGrilla::TablaGrilla(Entorno& alrededor, Grilla& mostrada, std::string_view nombre,
                         std::string_view titulo)
    : entorno(alrededor), grilla(mostrada), modelo(std::make_unique<Modelo>(mostrada, *this))
{
    setObjectName(Q(nombre));
    setAccessibleName(Q(titulo));
    setModel(modelo.get());
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);  // the grid says where Tab goes
    setAttribute(Qt::WA_InputMethodEnabled);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    Muestra();
}

TablaGrilla::~TablaGrilla()
{
    setModel(nullptr);
}

template <typename Cuerpo>
bool TablaGrilla::Suceso(Cuerpo&& cuerpo)
{
    Efecto efecto;
    entorno.Atiende([&] {
        efecto = std::forward<Cuerpo>(cuerpo)();
        AlCambiar(efecto);
    });
    if (entorno.Terminando()) return false;
    Muestra();
    return efecto.sale;
}

void TablaGrilla::Muestra()
{
    const bool otraForma =
        modelo->rowCount() != grilla.NroFilas() || modelo->columnCount() != grilla.NroColumnas();
    modelo->Actualiza();
    if (otraForma) AjustaColumnas();
    PonSeleccion();
}

void TablaGrilla::AjustaColumnas()
{
    // The blanks of a title give the column its width; a longer number widens it.
    constexpr int Margen = 16;  // [pixels at 96 dpi]
    const QFontMetrics letra(horizontalHeader()->font());
    for (int c = 0; c < grilla.NroColumnas(); ++c) {
        const QString titulo = Q(grilla.columnas[static_cast<std::size_t>(c)].titulo);
        // One whose titles stand in its rows is as wide as the widest of its cells.
        const int celdas = titulo.isEmpty() ? sizeHintForColumn(c) : 0;
        setColumnWidth(c, std::max({letra.horizontalAdvance(titulo),
                                    letra.horizontalAdvance(titulo.trimmed()), celdas}) +
                              Margen);
    }
}

void TablaGrilla::PonSeleccion()
{
    const Bloque bloque = Seleccion(grilla);
    const QModelIndex actual = modelo->index(grilla.actual.fila - 1, grilla.actual.columna);
    const QItemSelection todo(modelo->index(bloque.desde.fila - 1, bloque.desde.columna),
                              modelo->index(bloque.hasta.fila - 1, bloque.hasta.columna));
    selectionModel()->setCurrentIndex(actual, QItemSelectionModel::NoUpdate);
    selectionModel()->select(todo, QItemSelectionModel::ClearAndSelect);
    if (actual.isValid()) scrollTo(actual);
}

void TablaGrilla::Mueve(Celda celda, bool extiende)
{
    Suceso([&] { return forms::Mueve(grilla, celda, extiende); });
}

void TablaGrilla::Escribe(const QString& texto)
{
    Suceso([&] {
        for (const char32_t punto : texto.toUcs4())
            forms::Escribe(grilla, entorno.s, DeQ(QString::fromUcs4(&punto, 1)));
        return Efecto{};
    });
}

// --- spreadsheet ---

void TablaGrilla::Copia(bool conTitulos)
{
    const std::string bloque = forms::Copia(grilla, conTitulos);
    auto* const datos = new QMimeData;  // the clipboard's
    datos->setText(Q(ConSigno(bloque, SignoElegido(entorno))));
    datos->setData(QString::fromLatin1(FormatoPropio), QByteArray::fromStdString(bloque));
    QApplication::clipboard()->setMimeData(datos);
}

void TablaGrilla::Pega()
{
    const QMimeData* const datos = QApplication::clipboard()->mimeData();
    if (datos == nullptr) return;
    const bool esPropio = datos->hasFormat(QString::fromLatin1(FormatoPropio));
    const std::string bloque =
        esPropio ? datos->data(QString::fromLatin1(FormatoPropio)).toStdString() : DeQ(datos->text());
    Suceso([&] {
        return forms::Pega(grilla, entorno.s, bloque, esPropio ? OrigenBloque::Propio : OrigenBloque::Ajeno);
    });
}

void TablaGrilla::Deshace()
{
    if (grilla.hechos.empty() && DeshaceFuera) return DeshaceFuera();
    Suceso([&] { return forms::Deshace(grilla); });
}

void TablaGrilla::Rehace()
{
    if (grilla.deshechos.empty() && RehaceFuera) return RehaceFuera();
    Suceso([&] { return forms::Rehace(grilla); });
}

void TablaGrilla::SeleccionaTodo()
{
    forms::SeleccionaTodo(grilla);
    PonSeleccion();
}

// --- events ---

bool TablaGrilla::event(QEvent* evento)
{
    // Otherwise the window would take them for its own before the grid sees them.
    if (evento->type() == QEvent::ShortcutOverride) {
        const auto& tecla = static_cast<QKeyEvent&>(*evento);
        const bool esOrden = std::any_of(Ordenes.begin(), Ordenes.end(),
                                         [&](QKeySequence::StandardKey o) { return tecla.matches(o); });
        if (esOrden || EsRehacer(tecla) || tecla.key() == Qt::Key_Delete ||
            tecla.key() == Qt::Key_Backspace) {
            evento->accept();
            return true;
        }
    }
    if (evento->type() == QEvent::KeyPress) {
        auto& tecla = static_cast<QKeyEvent&>(*evento);
        if (tecla.key() == Qt::Key_Tab || tecla.key() == Qt::Key_Backtab) {
            keyPressEvent(&tecla);
            return true;
        }
    }
    return QTableView::event(evento);
}

void TablaGrilla::TeclaDeGrilla(Tecla tecla, bool extiende)
{
    if (Suceso([&] { return forms::Teclea(grilla, tecla, extiende); }))
        focusNextPrevChild(tecla == Tecla::Tab);
}

/// Keys that go to an end of the grid or a page on.
bool TablaGrilla::TeclaDeHoja(const QKeyEvent& evento)
{
    const int hoja = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
    const bool conControl = evento.modifiers().testFlag(Qt::ControlModifier);
    const int ultimaFila = std::max(1, grilla.NroFilas());
    const int ultimaColumna = std::max(0, grilla.NroColumnas() - 1);
    const int fija = grilla.reglas == nullptr ? 0 : grilla.reglas->columnasFijas;
    Celda celda = grilla.actual;
    switch (evento.key()) {
    case Qt::Key_Home:
        celda = {conControl ? 1 : celda.fila, fija};
        break;
    case Qt::Key_End:
        celda = {conControl ? ultimaFila : celda.fila, ultimaColumna};
        break;
    case Qt::Key_PageUp:
        celda.fila = std::max(1, celda.fila - hoja);
        break;
    case Qt::Key_PageDown:
        celda.fila = std::min(ultimaFila, celda.fila + hoja);
        break;
    default:
        return false;
    }
    Mueve(celda, evento.modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

bool TablaGrilla::TeclaDeOrden(const QKeyEvent& evento)
{
    if (evento.matches(QKeySequence::Copy))
        Copia(false);
    else if (evento.matches(QKeySequence::Paste))
        Pega();
    else if (evento.matches(QKeySequence::SelectAll))
        SeleccionaTodo();
    else if (evento.matches(QKeySequence::Undo))
        Deshace();
    else if (EsRehacer(evento))
        Rehace();
    else
        return false;
    return true;
}

/// Backspace, and Esc where it ends the typing in a cell.
bool TablaGrilla::TeclaDeCelda(const QKeyEvent& evento)
{
    if (evento.key() == Qt::Key_Backspace && evento.modifiers() == Qt::NoModifier) {
        Suceso([&] {
            Retrocede(grilla, entorno.s);
            return Efecto{};
        });
        return true;
    }
    const bool dejaLaCelda = evento.key() == Qt::Key_Escape && grilla.editada && grilla.reglas != nullptr &&
                             grilla.reglas->escDejaLaCelda;
    if (dejaLaCelda) Suceso([&] { return Deja(grilla); });
    return dejaLaCelda;
}

void TablaGrilla::keyPressEvent(QKeyEvent* evento)
{
    if (TeclaDeOrden(*evento) || TeclaDeCelda(*evento)) return;
    const auto* const fila = std::find_if(TeclasDeGrilla.begin(), TeclasDeGrilla.end(),
                                          [&](const FilaTecla& f) { return f.tecla == evento->key(); });
    if (fila != TeclasDeGrilla.end())
        return TeclaDeGrilla(fila->grilla, evento->modifiers().testFlag(Qt::ShiftModifier));
    if (TeclaDeHoja(*evento)) return;
    const bool esOrden =
        evento->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!esOrden && !evento->text().isEmpty() && evento->text().at(0).isPrint())
        return Escribe(evento->text());
    evento->ignore();  // the window's: Esc, its shortcuts
}

void TablaGrilla::inputMethodEvent(QInputMethodEvent* evento)
{
    if (!evento->commitString().isEmpty()) Escribe(evento->commitString());
    evento->accept();
}

QVariant TablaGrilla::inputMethodQuery(Qt::InputMethodQuery consulta) const
{
    return consulta == Qt::ImEnabled ? QVariant(true) : QTableView::inputMethodQuery(consulta);
}

void TablaGrilla::mousePressEvent(QMouseEvent* evento)
{
    setFocus(Qt::MouseFocusReason);
    const QModelIndex lugar = indexAt(evento->pos());
    const Celda celda{lugar.row() + 1, lugar.column()};
    // A right click inside the selection keeps it: its menu is about to open.
    if (evento->button() == Qt::RightButton && lugar.isValid() && Seleccion(grilla).Tiene(celda)) return;
    if (lugar.isValid()) Mueve(celda, evento->modifiers().testFlag(Qt::ShiftModifier));
}

void TablaGrilla::mouseMoveEvent(QMouseEvent* evento)
{
    if (!evento->buttons().testFlag(Qt::LeftButton)) return;
    const QModelIndex lugar = indexAt(evento->pos());
    if (lugar.isValid()) Mueve({lugar.row() + 1, lugar.column()}, true);
}

void TablaGrilla::focusOutEvent(QFocusEvent* evento)
{
    if (evento->reason() != Qt::ActiveWindowFocusReason && evento->reason() != Qt::PopupFocusReason)
        Suceso([&] { return Deja(grilla); });
    QTableView::focusOutEvent(evento);
}

void TablaGrilla::contextMenuEvent(QContextMenuEvent* evento)
{
    QMenu menu(this);
    menu.addAction(QStringLiteral("&Deshacer"), QKeySequence::Undo, this, [this] { Deshace(); })
        ->setEnabled(!grilla.hechos.empty() || DeshaceFuera);
    menu.addAction(QStringLiteral("&Rehacer"), QKeySequence(Qt::CTRL | Qt::Key_Y), this, [this] { Rehace(); })
        ->setEnabled(!grilla.deshechos.empty() || RehaceFuera);
    menu.addSeparator();
    menu.addAction(QStringLiteral("&Copiar"), QKeySequence::Copy, this, [this] { Copia(false); });
    menu.addAction(QStringLiteral("Copiar con &títulos"), this, [this] { Copia(true); });
    QAction* const pega =
        menu.addAction(QStringLiteral("&Pegar"), QKeySequence::Paste, this, [this] { Pega(); });
    pega->setEnabled(!QApplication::clipboard()->text().isEmpty() &&
                     std::any_of(grilla.columnas.begin(), grilla.columnas.end(),
                                 [](const ColumnaGrilla& c) { return c.editable; }));
    menu.addSeparator();
    menu.addAction(QStringLiteral("&Seleccionar todo"), QKeySequence::SelectAll, this,
                   [this] { SeleccionaTodo(); });
    AgregaSignoDecimal(menu, entorno);
    menu.exec(evento->reason() == QContextMenuEvent::Keyboard
                  ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                  : evento->globalPos());
}

}  // namespace forms
