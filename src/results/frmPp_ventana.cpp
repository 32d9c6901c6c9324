// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/frmPp_ventana.h"

#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTimer>
#include <functional>
#include <string_view>
#include <utility>

#include "forms/Impresion_ventana.h"

namespace results {

using forms::DeQ;
using forms::Pon;
using forms::Q;

namespace {

constexpr int ColumnasALaVista = 100;
constexpr int RenglonesALaVista = 32;

QFont LetraFija()
{
    // The next ones stand where that one isn't: columns hold only in a face of one width.
    QFont letra(QStringList{QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                            QStringLiteral("Consolas"), QStringLiteral("DejaVu Sans Mono")},
                -1);
    letra.setStyleHint(QFont::Monospace, QFont::PreferMatch);
    letra.setFixedPitch(true);
    letra.setPointSize(QFontDatabase::systemFont(QFontDatabase::FixedFont).pointSize());
    return letra;
}

constexpr auto Huella = std::hash<std::string_view>();

}  // namespace

frmPp_ventana::frmPp_ventana(forms::Entorno& alrededor, frmPp& registro, QWidget* padre)
    : Ventana(alrededor, {"frmPp", TituloFrmPp, RotulosFrmPp}, padre), f(registro)
{
    Sigue(f.abierta);
    ConstruyeTexto();
    lineaDeBusqueda = LineaDeBusqueda();
    lineaDeBusqueda->hide();
    franja = new checks::Franja(entorno, checks::Alcance::Corrida);
    setLayout(EnPila({franja, {Text1, 1}, lineaDeBusqueda, Botones()}));
    ConectaTeclas();
    entorno.AlTerminarSuceso(*this, [this] { VigilaTexto(); });
    frmPp_ventana::Muestra();
}

void frmPp_ventana::TrasCorrer()
{
    if (!f.abierta) return selloDeTexto.reset();
    selloDeTexto = franja->DeResultados();
    textoDeCorrida = Huella(f.Text1);
    largoDeCorrida = f.Text1.size();
    mirado = {f.reemplazos, f.Text1.size()};
    franja->Toma(*selloDeTexto);
}

void frmPp_ventana::VigilaTexto()
{
    const std::pair ahora{f.reemplazos, f.Text1.size()};
    if (!selloDeTexto || ahora == mirado) return;
    mirado = ahora;
    // What was added behind it leaves it as it is.
    const std::string_view texto(f.Text1);
    if (texto.size() >= largoDeCorrida && Huella(texto.substr(0, largoDeCorrida)) == textoDeCorrida)
        franja->Toma(*selloDeTexto);
    else
        franja->Suelta();
}

void frmPp_ventana::ConstruyeTexto()
{
    Text1 = new QPlainTextEdit;
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(Q(TituloFrmPp));
    Text1->setReadOnly(true);
    Text1->setUndoRedoEnabled(false);
    Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
    Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Text1->setFont(LetraFija());
    // What is found shows while the focus is in the line of the search.
    QPalette colores = Text1->palette();
    colores.setBrush(QPalette::Inactive, QPalette::Highlight,
                     colores.brush(QPalette::Active, QPalette::Highlight));
    colores.setBrush(QPalette::Inactive, QPalette::HighlightedText,
                     colores.brush(QPalette::Active, QPalette::HighlightedText));
    Text1->setPalette(colores);
    const QFontMetrics medidas(Text1->font());
    Text1->setMinimumSize(medidas.averageCharWidth() * ColumnasALaVista / 4,
                          medidas.lineSpacing() * RenglonesALaVista / 4);
    resize(medidas.averageCharWidth() * ColumnasALaVista, medidas.lineSpacing() * RenglonesALaVista);

    Text1->installEventFilter(this);
    Text1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Text1, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& lugar) { MenuDelTexto(lugar); });
}

QWidget* frmPp_ventana::LineaDeBusqueda()
{
    txtBuscar = Nombra(new QLineEdit, "txtBuscar");
    txtBuscar->setClearButtonEnabled(true);
    connect(txtBuscar, &QLineEdit::textEdited, this,
            [this](const QString& texto) { Suceso([&] { txtBuscar_Change(f, DeQ(texto)); }); });
    connect(txtBuscar, &QLineEdit::textChanged, this, [this](const QString& texto) {
        if (texto.isEmpty() && !f.busqueda.buscado.empty()) Suceso([this] { txtBuscar_Change(f, ""); });
    });
    QLayout* const fila = EnFila({Rotulo("txtBuscar", txtBuscar),
                                  {txtBuscar, 2},
                                  Boton("cmdBuscaAnterior", [this] { BuscaAnterior(f); }),
                                  Boton("cmdBuscaSiguiente", [this] { BuscaSiguiente(f); }),
                                  {Texto("lblBusqueda", f.busqueda.aviso), 1},
                                  Boton("cmdCierraBusqueda", [this] { CierraBusqueda(f); })});
    fila->setContentsMargins(0, 0, 0, 0);
    auto* const linea = new QWidget;
    linea->setLayout(fila);
    return linea;
}

QLayout* frmPp_ventana::Botones()
{
    auto* const largo = Nombra(new QLabel, "lblLargo");
    AlMostrar([this, largo] { Pon(*largo, RotuloLargo(f)); });
    return EnFila({{largo, 1},
                   Boton("cmdBuscar", [this] { Busca(); }),
                   Boton("cmdGuardar", [this] { GuardaTexto(f, entorno.s); }),
                   Boton("CmdImprimir", [this] { Imprime(); }),
                   Boton("cmdCerrar", [this] { cmdCerrar(f, entorno.s); })});
}

void frmPp_ventana::Imprime()
{
    forms::ImprimeVentana(entorno, *this, {.nombre = forms::DeQ(windowTitle())});
}

void frmPp_ventana::ConectaTeclas()
{
    const auto tecla = [this](const QKeySequence& secuencia, QWidget* donde, auto rutina) {
        auto* const atajo = new QShortcut(secuencia, donde);
        atajo->setContext(Qt::WidgetWithChildrenShortcut);
        connect(atajo, &QShortcut::activated, this, [this, rutina] { Suceso(rutina); });
    };
    tecla(QKeySequence::Find, this, [this] { Busca(); });
    tecla(QKeySequence(Qt::SHIFT | Qt::Key_F3), this, [this] { BuscaAnterior(f); });
    tecla(QKeySequence(Qt::CTRL | Qt::Key_S), this, [this] { GuardaTexto(f, entorno.s); });
    tecla(QKeySequence(Qt::CTRL | Qt::Key_P), this, [this] { Imprime(); });
    tecla(QKeySequence(Qt::Key_Return), txtBuscar, [this] { BuscaSiguiente(f); });
    tecla(QKeySequence(Qt::SHIFT | Qt::Key_Return), txtBuscar, [this] { BuscaAnterior(f); });
    tecla(QKeySequence(Qt::Key_Escape), lineaDeBusqueda, [this] { CierraBusqueda(f); });
}

void frmPp_ventana::Abre()
{
    results::Abre(f, entorno.s);
    Muestra();
    entorno.Presenta(*this);
}

void frmPp_ventana::AlCerrar()
{
    Cierra(f, entorno.s);
}

void frmPp_ventana::Busca()
{
    AbreBusqueda(
        f, DeQ(Text1->textCursor().selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'))));
    Muestra();
    txtBuscar->setFocus(Qt::ShortcutFocusReason);
    txtBuscar->selectAll();
}

void frmPp_ventana::MuestraLuego()
{
    if (std::exchange(pendiente, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { Muestra(); }, Qt::QueuedConnection);
}

void frmPp_ventana::Muestra()
{
    pendiente = false;
    MuestraTexto();
    MuestraBusqueda();
    Ventana::Muestra();
}

void frmPp_ventana::MuestraTexto()
{
    if (reemplazos != f.reemplazos || f.Text1.size() < mostrado) {
        Text1->clear();
        mostrado = 0;
        deUnaVez = f.Text1.size();
        reemplazos = f.reemplazos;
    }
    MuestraTrozo();
}

void frmPp_ventana::MuestraTrozo()
{
    constexpr std::size_t Trozo = 1 << 18;
    if (f.Text1.size() == mostrado) return;
    std::size_t hasta = f.Text1.size();
    if (hasta - mostrado > Trozo) {
        const std::size_t salto = f.Text1.find('\n', mostrado + Trozo);
        if (salto != std::string::npos) hasta = salto + 1;
    }
    // A run is read from its beginning; what is listed behind a text is what was asked for.
    const bool seLee = mostrado < deUnaVez;
    const bool alPrincipio = mostrado == 0;
    QScrollBar* const barra = Text1->verticalScrollBar();
    const int lugar = barra->value();
    QTextCursor cursor(Text1->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(
        Q(std::string_view(f.Text1).substr(mostrado, hasta - mostrado)).remove(QLatin1Char('\r')));
    mostrado = hasta;
    if (alPrincipio) Text1->setTextCursor(QTextCursor(Text1->document()));
    barra->setValue(seLee ? lugar : barra->maximum());
    if (mostrado < f.Text1.size() && !std::exchange(faltaResto, true))
        QTimer::singleShot(0, this, [this] {
            faltaResto = false;
            MuestraTexto();
        });
}

void frmPp_ventana::MuestraElResto()
{
    MuestraTexto();
    while (mostrado < f.Text1.size())
        MuestraTrozo();
}

bool frmPp_ventana::AtiendeF3(QEvent& evento)
{
    const bool esTecla = evento.type() == QEvent::KeyPress;
    if (!f.busqueda.abierta || (!esTecla && evento.type() != QEvent::ShortcutOverride)) return false;
    const auto& tecla = static_cast<const QKeyEvent&>(evento);
    if (tecla.key() != Qt::Key_F3 || tecla.modifiers() != Qt::NoModifier) return false;
    evento.accept();
    if (esTecla) Suceso([this] { BuscaSiguiente(f); });
    return true;
}

bool frmPp_ventana::event(QEvent* evento)
{
    return AtiendeF3(*evento) || Ventana::event(evento);
}

/// A key in the text finds it whole: Ctrl+A, Ctrl+End.
bool frmPp_ventana::eventFilter(QObject* donde, QEvent* evento)
{
    if (donde == Text1 && evento->type() == QEvent::KeyPress) MuestraElResto();
    return Ventana::eventFilter(donde, evento);
}

void frmPp_ventana::MuestraBusqueda()
{
    const Busqueda& b = f.busqueda;
    const bool seCierra = lineaDeBusqueda->isVisibleTo(this) && !b.abierta;
    lineaDeBusqueda->setVisible(b.abierta);
    if (seCierra) Text1->setFocus(Qt::OtherFocusReason);
    Pon(*txtBuscar, b.buscado);
    if (veces == b.veces) return;
    veces = b.veces;
    QTextCursor cursor = Text1->textCursor();
    if (b.hallado.largo == 0) {
        cursor.clearSelection();
    } else {
        MuestraElResto();
        const QTextBlock renglon = Text1->document()->findBlockByNumber(static_cast<int>(b.hallado.linea));
        const auto inicio = renglon.position() + static_cast<int>(b.hallado.columna);
        cursor.setPosition(inicio);
        cursor.setPosition(inicio + static_cast<int>(b.hallado.largo), QTextCursor::KeepAnchor);
    }
    Text1->setTextCursor(cursor);
}

void frmPp_ventana::MenuDelTexto(const QPoint& lugar)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuPizarra"));
    const auto entrada = [&](const char* leyenda, const QKeySequence& tecla, auto rutina) {
        QAction* const accion = menu.addAction(QString::fromUtf8(leyenda), this, rutina);
        accion->setShortcut(tecla);
        return accion;
    };
    entrada("&Copiar", QKeySequence::Copy, [this] {
        Text1->copy();
    })->setEnabled(Text1->textCursor().hasSelection());
    entrada("Seleccionar &todo", QKeySequence::SelectAll, [this] {
        MuestraElResto();
        Text1->selectAll();
    });
    menu.addSeparator();
    entrada("&Buscar...", QKeySequence::Find, [this] { Suceso([this] { Busca(); }); });
    entrada("&Guardar...", QKeySequence(Qt::CTRL | Qt::Key_S),
            [this] { Suceso([this] { GuardaTexto(f, entorno.s); }); });
    menu.exec(Text1->mapToGlobal(lugar));
}

void PonPizarra(model::Anfitrion& anfitrion, frmPp& registro, frmPp_ventana& ventana, bool& marca,
                std::function<void()> alMarcar)
{
    anfitrion.MarcaPizarra = [&marca] { return marca; };
    anfitrion.PonMarcaPizarra = [&marca, alMarcar = std::move(alMarcar)](bool nueva) {
        marca = nueva;
        alMarcar();
    };
    anfitrion.AbrePizarra = [&ventana] { ventana.Abre(); };
    anfitrion.LeePizarra = [&registro] { return registro.Text1; };
    anfitrion.PonPizarra = [&](std::string_view texto) {
        PonTexto(registro, texto);
        ventana.MuestraLuego();
    };
    anfitrion.AmpliaPizarra = [&](const std::string& texto) {
        AmpliaTexto(registro, texto);
        ventana.MuestraLuego();
    };
    anfitrion.AgregaPizarra = [&](std::string_view texto) {
        AgregaTexto(registro, texto);
        ventana.MuestraLuego();
    };
}

}  // namespace results
