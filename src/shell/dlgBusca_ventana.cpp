// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgBusca_ventana.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "forms/Textos_ventana.h"

namespace shell {

using forms::DeQ;
using forms::Q;

namespace {

constexpr char ClaveElegidas[] = "busca/elegidas";
constexpr int LetrasDeAncho = 132, LetrasDeClase = 22;
constexpr int Renglones = 14;
constexpr double AltoDeRenglon = 1.5;  ///< of the letters
constexpr int Esperas = 50;            ///< for the window below to get the keyboard back
constexpr std::chrono::milliseconds Espera{10};
constexpr char Ayuda[] = "dlgBusca";

enum Columna : std::uint8_t { Texto, Detalle, Clase, NroColumnas };

std::vector<std::string> LeeElegidas(QSettings& ajustes)
{
    std::vector<std::string> claves;
    for (const QString& una : ajustes.value(QLatin1String(ClaveElegidas)).toStringList())
        claves.push_back(DeQ(una));
    return claves;
}

void GuardaElegida(QSettings& ajustes, const std::string& clave)
{
    std::vector<std::string> claves = LeeElegidas(ajustes);
    AnotaElegida(claves, clave);
    ajustes.setValue(QLatin1String(ClaveElegidas), Q(claves));
}

/// The caption of an entry or of a window, without the marks of keys and of work in hand.
QString Llano(QString texto)
{
    texto.remove(QStringLiteral("[*]"));
    texto.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    texto.remove(QLatin1Char('&'));
    return texto.replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

Candidato Abierta(const QWidget& ventana, std::function<void()> hace)
{
    return {.texto = DeQ(Llano(ventana.windowTitle())),
            .clase = "Ventana abierta",
            .clave = "ventana " + DeQ(ventana.objectName()),
            .turno = 1,
            .hace = std::move(hace)};
}

}  // namespace

/// What has been found, a row each.
class ModeloDeHallados : public QAbstractTableModel {
  public:
    ModeloDeHallados(std::vector<Candidato> unos, const std::vector<std::string>& elegidas)
        : buscador(std::move(unos), elegidas)
    {
    }
    void Busca(const std::string& texto)
    {
        beginResetModel();
        hallados = buscador.Halla(texto);
        endResetModel();
    }
    [[nodiscard]] const Candidato& En(int renglon) const
    {
        return buscador.De(hallados.at(static_cast<std::size_t>(renglon)));
    }
    [[nodiscard]] std::size_t DeCuantos() const { return buscador.Cuantos(); }

    int rowCount(const QModelIndex& padre) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(hallados.size());
    }
    int columnCount(const QModelIndex& /*padre*/) const override { return NroColumnas; }
    QVariant data(const QModelIndex& indice, int papel) const override
    {
        const Candidato& c = En(indice.row());
        const bool apagado = !c.motivo.empty() || indice.column() != Texto;
        switch (papel) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            if (indice.column() == Clase) return Q(c.clase);
            if (indice.column() == Detalle) return Q(c.motivo.empty() ? c.detalle : c.motivo);
            return Q(c.texto);
        case Qt::AccessibleTextRole:
            return indice.column() == Texto
                       ? Q(c.texto + ", " + c.clase + (c.motivo.empty() ? "" : ". " + c.motivo))
                       : data(indice, Qt::DisplayRole);
        case Qt::ForegroundRole:
            return apagado ? QVariant(paleta.brush(QPalette::PlaceholderText)) : QVariant();
        case Qt::SizeHintRole:
            return QSize(0, altoDeRenglon);
        case Qt::TextAlignmentRole:
            return static_cast<int>(Qt::AlignVCenter |
                                    (indice.column() == Clase ? Qt::AlignRight : Qt::AlignLeft));
        default:
            return {};
        }
    }

  private:
    Buscador buscador;
    QPalette paleta = QApplication::palette();
    int altoDeRenglon = static_cast<int>(QFontMetrics(QApplication::font()).height() * AltoDeRenglon);
    std::vector<std::size_t> hallados{};
};

dlgBusca_ventana::dlgBusca_ventana(forms::Entorno& alrededor, MDIForm1_ventana& laPrincipal)
    : entorno(alrededor), principal(laPrincipal)
{
    setObjectName(QLatin1String(Ayuda));
    setWindowTitle(QStringLiteral("Buscar un comando"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    auto* const marco = new QFrame(this);
    marco->setFrameStyle(QFrame::Box | QFrame::Raised);
    txtBusca = new QLineEdit(marco);
    txtBusca->setObjectName(QStringLiteral("txtBusca"));
    txtBusca->setPlaceholderText(
        QStringLiteral("Unas letras de un comando, un componente, una ventana, la ayuda o un proyecto"));
    txtBusca->setAccessibleName(QStringLiteral("Buscar"));
    txtBusca->installEventFilter(this);
    lstHallados = new QTreeView(marco);
    lstHallados->setObjectName(QStringLiteral("lstHallados"));
    lstHallados->setAccessibleName(QStringLiteral("Lo hallado"));
    lstHallados->setRootIsDecorated(false);
    lstHallados->setUniformRowHeights(true);
    lstHallados->setHeaderHidden(true);
    lstHallados->setFocusPolicy(Qt::NoFocus);
    lstHallados->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lblPie = new QLabel(marco);
    lblPie->setObjectName(QStringLiteral("lblPie"));
    lblPie->setTextFormat(Qt::PlainText);
    auto* const dentro = new QVBoxLayout(marco);
    for (QWidget* const control : std::initializer_list<QWidget*>{txtBusca, lstHallados, lblPie})
        dentro->addWidget(control);
    auto* const pila = new QVBoxLayout(this);
    pila->setContentsMargins(0, 0, 0, 0);
    pila->addWidget(marco);
    connect(txtBusca, &QLineEdit::textChanged, this, [this] { Busca(); });
    connect(lstHallados, &QTreeView::clicked, this,
            [this](const QModelIndex& indice) { Elige(indice.row()); });
    qApp->installEventFilter(this);
}

dlgBusca_ventana::~dlgBusca_ventana() = default;

void dlgBusca_ventana::Abre()
{
    if (isVisible() || entorno.Terminando() || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        return;
    QWidget* const delante = QApplication::activeWindow();
    setParent(delante == nullptr ? &principal : delante, windowFlags());
    auto nuevo = std::make_unique<ModeloDeHallados>(Junta(), LeeElegidas(entorno.Ajustes()));
    lstHallados->setModel(nuevo.get());
    modelo = std::move(nuevo);
    QHeaderView& columnas = *lstHallados->header();
    columnas.setStretchLastSection(false);
    columnas.setSectionResizeMode(Texto, QHeaderView::Stretch);
    for (const int columna : {Detalle, Clase})
        columnas.setSectionResizeMode(columna, QHeaderView::Interactive);
    txtBusca->clear();
    Busca();
    Coloca();
    show();
    raise();
    activateWindow();
    txtBusca->setFocus();
}

/// At the top of its owner, in the middle, and within it.
void dlgBusca_ventana::Coloca()
{
    const QWidget& dueno = *parentWidget();
    const int letra = fontMetrics().averageCharWidth(), renglon = lstHallados->sizeHintForRow(0);
    const int ancho = std::min(letra * LetrasDeAncho, dueno.width() * 9 / 10);
    const int alto = std::min(Renglones * std::max(renglon, fontMetrics().lineSpacing()) +
                                  sizeHint().height() - lstHallados->sizeHint().height(),
                              dueno.height() * 9 / 10);
    lstHallados->header()->resizeSection(Detalle, ancho * 2 / 5);
    lstHallados->header()->resizeSection(Clase, letra * LetrasDeClase);
    resize(ancho, alto);
    move(dueno.mapToGlobal(QPoint((dueno.width() - ancho) / 2, std::min(renglon * 2, dueno.height() / 20))));
}

void dlgBusca_ventana::Busca()
{
    modelo->Busca(DeQ(txtBusca->text()));
    const int cuantos = modelo->rowCount({});
    if (cuantos > 0) lstHallados->setCurrentIndex(modelo->index(0, 0));
    lblPie->setText(cuantos == 0 ? QStringLiteral("Nada se llama así.")
                                 : QStringLiteral("%1 de %2. Enter hace lo elegido, Esc cierra.")
                                       .arg(cuantos)
                                       .arg(modelo->DeCuantos()));
}

void dlgBusca_ventana::Mueve(int renglones)
{
    const int cuantos = modelo->rowCount({});
    if (cuantos == 0) return;
    const int ahora = lstHallados->currentIndex().row();
    // By one it goes round, by pages it stops at either end.
    const int nuevo = std::abs(renglones) == 1 ? (ahora + renglones + cuantos) % cuantos
                                               : std::clamp(ahora + renglones, 0, cuantos - 1);
    lstHallados->setCurrentIndex(modelo->index(nuevo, 0));
}

bool dlgBusca_ventana::AtiendeTecla(const QKeyEvent& tecla)
{
    const int alto = std::max(1, lstHallados->sizeHintForRow(0));
    const int pagina = std::max(2, lstHallados->viewport()->height() / alto - 1);
    switch (tecla.key()) {
    case Qt::Key_Down:
        return Mueve(1), true;
    case Qt::Key_Up:
        return Mueve(-1), true;
    case Qt::Key_PageDown:
        return Mueve(pagina), true;
    case Qt::Key_PageUp:
        return Mueve(-pagina), true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Elige(lstHallados->currentIndex().row()), true;
    case Qt::Key_F1:
        done(QDialog::Rejected);
        return entorno.Atiende([this] { entorno.AbreAyuda(Ayuda); }), true;
    default:
        return false;
    }
}

void dlgBusca_ventana::Elige(int renglon)
{
    if (renglon < 0 || renglon >= modelo->rowCount({})) return;
    const Candidato elegido = modelo->En(renglon);
    if (!elegido.motivo.empty()) return lblPie->setText(Q(elegido.motivo));
    GuardaElegida(entorno.Ajustes(), elegido.clave);
    const QPointer<QWidget> dueno = parentWidget();
    done(QDialog::Accepted);
    HazTras(dueno, elegido.hace, Esperas);
}

// What opens belongs to the window in front, and for a moment there is none.
void dlgBusca_ventana::HazTras(const QPointer<QWidget>& dueno, const std::function<void()>& que, int esperas)
{
    if (esperas > 0 && !dueno.isNull() && dueno->isVisible() && !dueno->isActiveWindow())
        return QTimer::singleShot(Espera, this,
                                  [this, dueno, que, esperas] { HazTras(dueno, que, esperas - 1); });
    entorno.Atiende(que);
}

void dlgBusca_ventana::done(int resultado)
{
    QWidget* const dueno = parentWidget();
    const bool delante = isActiveWindow();
    QDialog::done(resultado);
    setParent(nullptr, windowFlags());  // which could go, and this with it
    if (dueno != nullptr && delante && !entorno.Terminando()) dueno->activateWindow();
}

bool dlgBusca_ventana::event(QEvent* evento)
{
    if (evento->type() == QEvent::WindowDeactivate && isVisible()) reject();
    return QDialog::event(evento);
}

bool dlgBusca_ventana::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress) return QDialog::eventFilter(objeto, evento);
    const auto& tecla = static_cast<const QKeyEvent&>(*evento);
    if (objeto == txtBusca && AtiendeTecla(tecla)) return true;
    // The menu's own keys don't reach it from a window that stands by itself.
    const bool suya =
        tecla.key() == Qt::Key_P && tecla.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (!suya || !objeto->isWidgetType()) return QDialog::eventFilter(objeto, evento);
    Abre();
    return true;
}

std::vector<Candidato> DeVentanas(MDIForm1_ventana& principal, const std::function<void()>& trae)
{
    std::vector<Candidato> lista;
    Area& area = principal.Ventanas();
    for (QMdiSubWindow* const hija : area.subWindowList()) {
        if (hija->isHidden() || hija->widget() == nullptr) continue;
        lista.push_back(Abierta(*hija, [trae, &area, ventana = QPointer<QWidget>(hija->widget())] {
            trae();
            if (!ventana.isNull()) area.Presenta(*ventana);
        }));
    }
    for (QWidget* const ventana : QApplication::topLevelWidgets()) {
        const bool propia = ventana->windowType() == Qt::Window || ventana->windowType() == Qt::Dialog;
        if (!propia || ventana == &principal || !ventana->isVisible() || ventana->windowTitle().isEmpty())
            continue;
        lista.push_back(Abierta(*ventana, [una = QPointer<QWidget>(ventana)] {
            if (una.isNull()) return;
            una->raise();
            una->activateWindow();
        }));
    }
    lista.push_back({.texto = "Ventana principal",
                     .clase = "Ventana abierta",
                     .clave = "ventana MDIForm1",
                     .turno = 1,
                     .hace = trae});
    for (QAction* const accion : principal.findChild<QMenu*>(QStringLiteral("mnuVentana"))->actions())
        if (!accion->isSeparator() && !accion->isCheckable())
            lista.push_back({.texto = DeQ(Llano(accion->text())),
                             .clase = "Menú Ventana",
                             .clave = "menu " + DeQ(accion->objectName()),
                             .hace = [accion] { accion->trigger(); }});
    return lista;
}

}  // namespace shell
