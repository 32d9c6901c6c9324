// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Ayuda_ventana.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "forms/Textos_ventana.h"
#include "shell/Iconos_ventana.h"

namespace shell {
namespace {

constexpr int LetrasDeAncho = 120;
constexpr int RenglonesDeAlto = 36;
constexpr char PaginaInicial[] = "indice.html";
constexpr char NoEsta[] = "No está en la ayuda";
constexpr char DesdeElPrincipio[] = "Sigue desde el principio";
constexpr char DesdeElFin[] = "Sigue desde el final";

template <typename T>
T* Nombra(T* control, const char* nombre)
{
    control->setObjectName(QString::fromUtf8(nombre));
    return control;
}

QPushButton* Boton(const char* leyenda, const char* nombre, QWidget* padre)
{
    auto* const boton = Nombra(new QPushButton(QString::fromUtf8(leyenda), padre), nombre);
    boton->setAutoDefault(false);
    return boton;
}

/// Whether what a page shows holds a text, capitals or not.
bool Contiene(const QUrl& pagina, const QString& texto)
{
    QFile archivo(pagina.toLocalFile());
    if (!archivo.open(QIODevice::ReadOnly)) return false;
    QTextDocument documento;
    documento.setHtml(QString::fromUtf8(archivo.readAll()));
    return !documento.find(texto).isNull();
}

}  // namespace

Ayuda_ventana::Ayuda_ventana(forms::Entorno& alrededor, QWidget* padre) : Ventana(alrededor, {"Ayuda"}, padre)
{
    setWindowTitle(QStringLiteral("Ayuda de SIRO"));
    setWindowIcon(IconoDeBoton("Ayuda"));
    Contenido = Nombra(new QListWidget(this), "Contenido");
    Contenido->setAccessibleName(QStringLiteral("Contenido de la ayuda"));
    Paginas = Nombra(new QTextBrowser(this), "Paginas");
    Paginas->setAccessibleName(QStringLiteral("Páginas de ayuda"));
    Paginas->setOpenExternalLinks(true);

    Partes = new QSplitter(this);
    Partes->setObjectName(QStringLiteral("Partes"));
    Partes->setChildrenCollapsible(false);
    Partes->addWidget(Contenido);
    Partes->addWidget(Paginas);
    Partes->setStretchFactor(1, 1);
    Contenido->setTextElideMode(Qt::ElideRight);
    Contenido->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int letra = fontMetrics().averageCharWidth();
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(Partes, 1);
    pila->addLayout(HazBotones());
    PonTeclas();

    // Not at each change of the current row: the list makes one current by itself as it gets the focus.
    const auto abre = [this](const QListWidgetItem* elegida) {
        Paginas->setSource(elegida->data(Qt::UserRole).toUrl());
    };
    connect(Contenido, &QListWidget::itemClicked, this, abre);
    connect(Contenido, &QListWidget::itemActivated, this, abre);
    connect(Paginas, &QTextBrowser::sourceChanged, this, [this](const QUrl& pagina) {
        MarcaContenido(pagina);
        lblBusqueda->clear();
    });
    resize(letra * LetrasDeAncho, fontMetrics().lineSpacing() * RenglonesDeAlto);
}

QBoxLayout* Ayuda_ventana::HazBotones()
{
    cmdInicio = shell::Boton("&Inicio", "cmdInicio", this);
    cmdAtras = shell::Boton("A&trás", "cmdAtras", this);
    cmdAdelante = shell::Boton("A&delante", "cmdAdelante", this);
    cmdCerrar = shell::Boton("&Cerrar", "cmdCerrar", this);
    cmdAtras->setEnabled(false);
    cmdAdelante->setEnabled(false);
    txtBuscar = Nombra(new QLineEdit(this), "txtBuscar");
    txtBuscar->setClearButtonEnabled(true);
    auto* const rotulo = new QLabel(QStringLiteral("&Buscar:"), this);
    rotulo->setBuddy(txtBuscar);
    lblBusqueda = Nombra(new QLabel(this), "lblBusqueda");

    auto* const fila = new QHBoxLayout;
    for (QWidget* const control : std::initializer_list<QWidget*>{cmdInicio, cmdAtras, cmdAdelante})
        fila->addWidget(control);
    fila->addSpacing(fontMetrics().averageCharWidth() * 2);
    fila->addWidget(rotulo);
    fila->addWidget(txtBuscar, 1);
    fila->addWidget(lblBusqueda);
    fila->addStretch(1);
    fila->addWidget(cmdCerrar);

    AlPulsar(*cmdInicio, [this] { Paginas->home(); });
    AlPulsar(*cmdAtras, [this] { Paginas->backward(); });
    AlPulsar(*cmdAdelante, [this] { Paginas->forward(); });
    AlPulsar(*cmdCerrar, [this] { close(); });
    connect(Paginas, &QTextBrowser::backwardAvailable, cmdAtras, &QPushButton::setEnabled);
    connect(Paginas, &QTextBrowser::forwardAvailable, cmdAdelante, &QPushButton::setEnabled);
    connect(txtBuscar, &QLineEdit::returnPressed, this, [this] { Busca(false); });
    return fila;
}

void Ayuda_ventana::PonTeclas()
{
    const auto tecla = [this](const QKeySequence& secuencia, auto rutina) {
        auto* const atajo = new QShortcut(secuencia, this);
        atajo->setContext(Qt::WidgetWithChildrenShortcut);
        connect(atajo, &QShortcut::activated, this, rutina);
    };
    tecla(QKeySequence::Find, [this] {
        txtBuscar->setFocus();
        txtBuscar->selectAll();
    });
    tecla(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { Paginas->backward(); });
    tecla(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { Paginas->forward(); });
    tecla(QKeySequence(Qt::Key_Escape), [this] { close(); });
    // Not F3, which is the main window's for its editor.
    tecla(QKeySequence(Qt::CTRL | Qt::Key_G), [this] { Busca(false); });
    tecla(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G), [this] { Busca(true); });
}

void Ayuda_ventana::Abre(const std::string& ruta)
{
    const QUrl pagina = QUrl::fromLocalFile(QDir::fromNativeSeparators(forms::Q(ruta)));
    if (Contenido->count() == 0) {
        // The first source is the home that its button goes to.
        Paginas->setSource(pagina.resolved(QUrl(QString::fromUtf8(PaginaInicial))));
        LlenaContenido();
    }
    Paginas->setSource(pagina);
    MarcaContenido(pagina);
    entorno.Presenta(*this);
    Paginas->setFocus();
}

void Ayuda_ventana::LlenaContenido()
{
    static const QRegularExpression enlace(QStringLiteral("<a href=\"([^\"#:]+)\">([^<]*)</a>"));
    const QUrl indice = Paginas->source();
    QFile archivo(indice.toLocalFile());
    if (!archivo.open(QIODevice::ReadOnly)) return;
    const auto agrega = [this](const QString& titulo, const QUrl& pagina) {
        auto* const renglon = new QListWidgetItem(titulo, Contenido);
        renglon->setData(Qt::UserRole, pagina);
        renglon->setToolTip(titulo);
    };
    agrega(QStringLiteral("Índice"), indice);
    auto enlaces = enlace.globalMatch(QString::fromUtf8(archivo.readAll()));
    while (enlaces.hasNext()) {
        const QRegularExpressionMatch hallado = enlaces.next();
        agrega(hallado.captured(2), indice.resolved(QUrl(hallado.captured(1))));
    }
    // As wide as the longest title, its scroll bar beside it; a narrow window cuts them short and the tip
    // tells the rest.
    const int ancho = Contenido->sizeHintForColumn(0) + Contenido->verticalScrollBar()->sizeHint().width() +
                      2 * Contenido->frameWidth();
    Partes->setSizes({ancho, std::max(ancho, width() - ancho)});
}

void Ayuda_ventana::MarcaContenido(const QUrl& pagina)
{
    const QUrl sinLugar = pagina.adjusted(QUrl::RemoveFragment);
    Contenido->setCurrentItem(nullptr);
    for (int i = 0; i < Contenido->count(); ++i)
        if (Contenido->item(i)->data(Qt::UserRole).toUrl() == sinLugar) Contenido->setCurrentRow(i);
}

/// Goes on in the pages behind the one on show, and comes back to it from the other side.
void Ayuda_ventana::Busca(bool haciaAtras)
{
    const QString texto = txtBuscar->text();
    if (texto.isEmpty()) return;
    const auto hacia = haciaAtras ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    lblBusqueda->clear();
    if (Paginas->find(texto, hacia)) return;
    const int paginas = Contenido->count();
    const int primera = std::max(0, Contenido->currentRow());
    for (int salto = 1; salto <= paginas; ++salto) {
        const int cual = (primera + (haciaAtras ? paginas - salto : salto)) % paginas;
        const QUrl pagina = Contenido->item(cual)->data(Qt::UserRole).toUrl();
        if (salto < paginas && !Contiene(pagina, texto)) continue;
        if (salto < paginas) Paginas->setSource(pagina);
        const QTextCursor lugar = Paginas->textCursor();
        Paginas->moveCursor(haciaAtras ? QTextCursor::End : QTextCursor::Start);
        if (!Paginas->find(texto, hacia)) {
            Paginas->setTextCursor(lugar);
            continue;
        }
        const bool pasoElBorde = haciaAtras ? cual >= primera : cual <= primera;
        if (pasoElBorde) lblBusqueda->setText(QString::fromUtf8(haciaAtras ? DesdeElFin : DesdeElPrincipio));
        return;
    }
    lblBusqueda->setText(QString::fromUtf8(NoEsta));
}

}  // namespace shell
