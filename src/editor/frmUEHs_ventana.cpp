// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmUEHs_ventana.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSlider>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtGlobal>
#include <array>
#include <string>
#include <utility>

#include "editor/MenuDibujo.h"
#include "editor/lienzo/SalidaDibujo_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Avisos.h"

/// A resource inside a static library is registered by hand; outside of any namespace.
static void RegistraIconosDelEditor()
{
    Q_INIT_RESOURCE(editor);
}

namespace editor {

using forms::DeQ;
using forms::Q;

namespace {

// The rules leave the canvas this much of the window; the window's layout decides its size itself and asks
// for as much more.
constexpr int MargenAncho = 100, MargenAlto = 47;  // [pixels]

struct FilaTecla {
    int tecla;
    Tecla regla;
};

constexpr auto TeclasDeLienzo = std::to_array<FilaTecla>({
    {Qt::Key_F2, Tecla::F2},
    {Qt::Key_F3, Tecla::F3},
    {Qt::Key_F4, Tecla::F4},
    {Qt::Key_F5, Tecla::F5},
    {Qt::Key_F6, Tecla::F6},
    {Qt::Key_Return, Tecla::Enter},
    {Qt::Key_Enter, Tecla::Enter},
    {Qt::Key_Space, Tecla::Espacio},
});

/// Arrow keys, which move the cross.
struct FilaFlecha {
    int tecla;
    int derecha, abajo;
};

constexpr auto Flechas = std::to_array<FilaFlecha>({
    {Qt::Key_Right, 1, 0},
    {Qt::Key_Left, -1, 0},
    {Qt::Key_Down, 0, 1},
    {Qt::Key_Up, 0, -1},
});

constexpr auto TeclasDeForma = std::to_array<FilaTecla>({
    {Qt::Key_Delete, Tecla::Suprimir},
    {Qt::Key_Insert, Tecla::Insertar},
    {Qt::Key_Escape, Tecla::Esc},
});

template <std::size_t N>
std::optional<Tecla> Busca(const std::array<FilaTecla, N>& filas, int tecla)
{
    for (const FilaTecla& fila : filas)
        if (fila.tecla == tecla) return fila.regla;
    return {};
}

/// Keys of the toolbar; the canvas has its own.
struct FilaAtajo {
    Boton boton;
    Qt::Key tecla;  ///< with Ctrl
};

constexpr auto Atajos = std::to_array<FilaAtajo>({
    {Boton::Selecciona, Qt::Key_1},
    {Boton::UEH, Qt::Key_2},
    {Boton::Cauce, Qt::Key_3},
    {Boton::Represa, Qt::Key_4},
    {Boton::LAGO, Qt::Key_5},
    {Boton::LongArea, Qt::Key_6},
    {Boton::GuardaUEHs, Qt::Key_S},
});

void PonAtajo(QAction& accion, Boton boton)
{
    for (const FilaAtajo& fila : Atajos) {
        if (fila.boton != boton) continue;
        accion.setShortcut(QKeySequence(Qt::CTRL | fila.tecla));
        accion.setToolTip(accion.text() + QStringLiteral(" (") +
                          accion.shortcut().toString(QKeySequence::NativeText) + QLatin1Char(')'));
    }
}

QIcon Icono(const QString& nombre)
{
    RegistraIconosDelEditor();
    return QIcon(QStringLiteral(":/editor/%1.svg").arg(nombre));
}

Qt::CursorShape Forma(Puntero puntero)
{
    switch (puntero) {
    case Puntero::Cruz:
        return Qt::CrossCursor;
    case Puntero::Espera:
        return Qt::WaitCursor;
    case Puntero::Mano:
        return Qt::ClosedHandCursor;
    case Puntero::Flecha:
        break;
    }
    return Qt::ArrowCursor;
}

QLabel* Rotulo(const char* nombre)
{
    auto* const rotulo = new QLabel;
    rotulo->setObjectName(QString::fromUtf8(nombre));
    rotulo->setTextFormat(Qt::PlainText);
    return rotulo;
}

/// `ventana`: where the key works.
QPushButton* BotonDe(const char* nombre, const char* leyenda, const char* ayuda, const QKeySequence& tecla,
                     QWidget* ventana)
{
    auto* const boton = new QPushButton(QString::fromUtf8(leyenda));
    boton->setObjectName(QString::fromUtf8(nombre));
    boton->setToolTip(QString::fromUtf8(ayuda));
    boton->setAccessibleDescription(tecla.toString(QKeySequence::NativeText));
    // Not the button's own: it would lose it whenever its caption changes.
    auto* const atajo = new QShortcut(tecla, ventana);
    QObject::connect(atajo, &QShortcut::activated, boton, &QPushButton::click);
    boton->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys to the canvas
    return boton;
}

}  // namespace

frmUEHs_ventana::frmUEHs_ventana(forms::Entorno& alrededor, frmUEHs& reglas, QWidget* padre)
    : Ventana(alrededor, {"frmUEHs"}, padre), f(reglas)
{
    setWindowFlag(Qt::Window);
    setWindowTitle(Q(TituloFrmUEHs));
    f.fondo.CargaImagen = [this](const std::string& ruta) { return pintor.CargaFondo(entorno, ruta); };
    picDibujo = new Lienzo(f, pintor);
    ScrEscalaHor = new QScrollBar(Qt::Horizontal);
    ScrEscalaVer = new QScrollBar(Qt::Vertical);

    auto* const dibujo = new QGridLayout;
    dibujo->setSpacing(0);
    dibujo->addWidget(picDibujo, 0, 0);
    dibujo->addWidget(ScrEscalaVer, 0, 1);
    dibujo->addWidget(ScrEscalaHor, 1, 0);
    auto* const pila = new QVBoxLayout(this);
    pila->setContentsMargins(4, 2, 4, 4);
    pila->setSpacing(3);
    auto* const arriba = new QHBoxLayout;
    arriba->addWidget(HazBarra());
    arriba->addStretch(1);
    arriba->addWidget(HazMandos());
    pila->addLayout(arriba);
    pila->addLayout(dibujo, 1);
    pila->addWidget(HazPie());
    setMinimumSize(minimumSizeHint().expandedTo({860, 420}));
    ConectaLienzo();
    entorno.AlActivarse(*this, [this] {
        AlActivarse(f, entorno.s);
        MuestraPrincipal(f.principalVisible);
        Muestra();
    });
}

// --- parts ---

QAction* frmUEHs_ventana::HazAccion(const char* nombre, const char* leyenda, const char* icono)
{
    auto* const accion = new QAction(Icono(QString::fromUtf8(icono)), QString::fromUtf8(leyenda), this);
    accion->setObjectName(QString::fromUtf8(nombre));
    return accion;
}

QToolBar* frmUEHs_ventana::HazBarra()
{
    auto* const barra = new QToolBar;
    barra->setObjectName(QStringLiteral("ToolbarUEHs"));
    barra->setIconSize({24, 24});
    for (std::size_t i = 0; i < NroBotones; ++i) {
        const FilaBoton& fila = BotonesUEHs[i];
        const QString clave = Q(fila.clave);
        auto* const accion =
            new QAction(Icono(clave.mid(int(sizeof "btn_toolbar") - 1)), Q(fila.ayuda), this);
        accion->setObjectName(clave);
        accion->setCheckable(true);
        accion->setVisible(!fila.ayuda.empty());
        PonAtajo(*accion, fila.boton);
        connect(accion, &QAction::triggered, this, [this, boton = fila.boton] {
            Hace([this, boton] { ToolbarUEHs_ButtonClick(f, entorno.s, boton); });
        });
        botones[i] = accion;
        if (fila.boton == Boton::BorraTodo || fila.boton == Boton::Salir) barra->addSeparator();
        if (fila.boton == Boton::Salir) AgregaPropias(*barra);
        barra->addAction(accion);
    }
    barra->setMinimumWidth(barra->sizeHint().width());  // no button is ever out of sight
    return barra;
}

void frmUEHs_ventana::AgregaPropias(QToolBar& barra)
{
    deshace = HazAccion("Deshace", "Deshacer (Ctrl+Z)", "Deshace");
    rehace = HazAccion("Rehace", "Rehacer (Ctrl+Y)", "Rehace");
    nombres = HazAccion("NombresCauces", "Mostrar los nombres de los cauces (Ctrl+T)", "NombresCauces");
    nombres->setCheckable(true);
    nombres->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    connect(nombres, &QAction::triggered, this,
            [this] { Hace([this] { NombresDeCauces_Click(f, entorno.s); }); });
    auto* const exporta = HazAccion("Exporta", "Exportar o imprimir el dibujo (Ctrl+P)", "Exporta");
    exporta->setShortcut(QKeySequence::Print);
    connect(deshace, &QAction::triggered, this,
            [this] { Hace([this] { Form_KeyDown(f, entorno.s, Tecla::Deshacer); }); });
    connect(rehace, &QAction::triggered, this,
            [this] { Hace([this] { Form_KeyDown(f, entorno.s, Tecla::Rehacer); }); });
    deshace->setShortcut(QKeySequence::Undo);
    rehace->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    exporta->setMenu(HazDestinos());
    barra.addActions({deshace, rehace, nombres, exporta});
    if (auto* const boton = qobject_cast<QToolButton*>(barra.widgetForAction(exporta))) {
        boton->setPopupMode(QToolButton::InstantPopup);
        connect(exporta, &QAction::triggered, boton, &QToolButton::showMenu);
    }
    barra.addSeparator();
}

QMenu* frmUEHs_ventana::HazDestinos()
{
    const auto dibujo = [this] { return DibujoALaVista{f, pintor, picDibujo->size()}; };
    auto* const destinos = new QMenu(this);
    for (const char* tipo : {"PNG", "SVG", "PDF"})
        destinos
            ->addAction(
                QStringLiteral("Guardar el dibujo como &%1...").arg(QLatin1String(tipo)), this,
                [this, tipo, dibujo] { entorno.Atiende([&] { ExportaDibujo(entorno, dibujo(), tipo); }); })
            ->setObjectName(QStringLiteral("GuardaDibujo%1").arg(QLatin1String(tipo)));
    destinos
        ->addAction(QStringLiteral("&Imprimir el dibujo"), this,
                    [this, dibujo] { entorno.Atiende([&] { ImprimeDibujo(entorno, dibujo()); }); })
        ->setObjectName(QStringLiteral("ImprimeDibujo"));
    return destinos;
}

QWidget* frmUEHs_ventana::HazMandos()
{
    cmdImagenUEHs = BotonDe("cmdImagenUEHs", "Imágen", "Cargar o Descargar la Imágen de fondo ",
                            QKeySequence(Qt::CTRL | Qt::Key_I), this);
    // Its caption changes; its place doesn't.
    cmdImagenUEHs->setText(QStringLiteral("Mostrar Imágen"));
    cmdImagenUEHs->setMinimumWidth(cmdImagenUEHs->sizeHint().width());
    cmdAnchoLineaDib = BotonDe("cmdAnchoLineaDib", "Espesor", "Modificar espesor de línea de dibujo",
                               QKeySequence(Qt::CTRL | Qt::Key_E), this);
    cmdOrdenCauce = BotonDe("cmdOrdenCauce", "Orden Cauce", "Mostrar / No Mostrar Orden de Cauces",
                            QKeySequence(Qt::CTRL | Qt::Key_R), this);
    AlPulsar(*cmdImagenUEHs, [this] { cmdImagenUEHs_Click(f, entorno.s); });
    AlPulsar(*cmdAnchoLineaDib, [this] { cmdAnchoLineaDib_Click(f, entorno.s); });
    AlPulsar(*cmdOrdenCauce, [this] { cmdOrdenCauce_Click(f, entorno.s); });

    sldEscala = new QSlider(Qt::Horizontal);
    sldEscala->setObjectName(QStringLiteral("sldEscala"));
    sldEscala->setToolTip(QStringLiteral("Variador de la Escala de Dibujo"));
    sldEscala->setAccessibleName(sldEscala->toolTip());
    sldEscala->setRange(EscalaMinima, EscalaMaxima);
    sldEscala->setMinimumWidth(60);
    sldEscala->setMaximumWidth(160);
    connect(sldEscala, &QSlider::valueChanged, this,
            [this](int valor) { Hace([this, valor] { sldEscala_Mueve(f, entorno.s, valor); }); });
    for (QScrollBar* barra : {ScrEscalaHor, ScrEscalaVer})
        barra->setRange(-TopeBarra, TopeBarra);
    ScrEscalaHor->setObjectName(QStringLiteral("ScrEscalaHor"));
    ScrEscalaVer->setObjectName(QStringLiteral("ScrEscalaVer"));
    connect(ScrEscalaHor, &QScrollBar::valueChanged, this,
            [this](int valor) { Hace([this, valor] { ScrEscalaHor_Mueve(f, entorno.s, valor); }); });
    connect(ScrEscalaVer, &QScrollBar::valueChanged, this,
            [this](int valor) { Hace([this, valor] { ScrEscalaVer_Mueve(f, entorno.s, valor); }); });

    lblEscala = editor::Rotulo("lblEscala");
    lblEscala->setMinimumWidth(lblEscala->fontMetrics().horizontalAdvance(QStringLiteral("1000 %")));
    auto* const mandos = new QWidget;
    auto* const fila = new QHBoxLayout(mandos);
    fila->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : std::initializer_list<QWidget*>{cmdImagenUEHs, cmdAnchoLineaDib, cmdOrdenCauce,
                                                      sldEscala, lblEscala})
        fila->addWidget(w);
    return mandos;
}

QWidget* frmUEHs_ventana::HazPie()
{
    lblIndicacion = editor::Rotulo("lblIndicacion");
    lblEstado = editor::Rotulo("lblEstado");
    lblLongArea = editor::Rotulo("lblLongArea");
    lblX = editor::Rotulo("lblX");
    lblY = editor::Rotulo("lblY");
    for (QLabel* rotulo : {lblX, lblY}) {
        rotulo->setMinimumWidth(rotulo->fontMetrics().horizontalAdvance(QStringLiteral("-00000.00")));
        rotulo->setAlignment(Qt::AlignRight);
    }
    QFont letra = lblIndicacion->font();
    letra.setBold(true);
    lblIndicacion->setFont(letra);
    // Long paths give way instead of widening the window.
    lblEstado->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblIndicacion->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* const pie = new QWidget;
    auto* const rejilla = new QGridLayout(pie);
    rejilla->setContentsMargins(2, 0, 2, 0);
    rejilla->setVerticalSpacing(1);
    rejilla->addWidget(lblIndicacion, 0, 0);
    rejilla->addWidget(lblLongArea, 0, 1, 1, 4, Qt::AlignRight);
    rejilla->addWidget(lblEstado, 1, 0);
    rejilla->addWidget(new QLabel(QStringLiteral("X:")), 1, 1);
    rejilla->addWidget(lblX, 1, 2);
    rejilla->addWidget(new QLabel(QStringLiteral("Y:")), 1, 3);
    rejilla->addWidget(lblY, 1, 4);
    rejilla->setColumnStretch(0, 1);
    return pie;
}

void frmUEHs_ventana::ConectaLienzo()
{
    picDibujo->AlBajar = [this](BotonRaton boton, Punto p) {
        Hace([&] { picDibujo_MouseDown(f, entorno.s, boton, p); });
    };
    picDibujo->AlSubir = [this](BotonRaton boton, Punto p) {
        Hace([&] { picDibujo_MouseUp(f, entorno.s, boton, p); });
    };
    picDibujo->AlMover = [this](Punto p, bool izquierdo) {
        Hace([&] { picDibujo_MouseMove(f, entorno.s, p, izquierdo); });
    };
    picDibujo->AlDobleClic = [this] { Hace([this] { picDibujo_DblClick(f, entorno.s); }); };
    picDibujo->AlGirar = [this](double vueltas, Punto p) {
        Hace([&] { picDibujo_Rueda(f, entorno.s, vueltas, p); });
    };
    picDibujo->AlTeclear = [this](const QKeyEvent& evento) { return TeclaDeLienzo(evento); };
    picDibujo->AlCambiarDeTamano = [this](QSize tamano) {
        Hace([&] {
            Form_Resize(f, {tamano.width() + MargenAncho, tamano.height() + MargenAlto});
            if (f.abierta) Redibuja(f, entorno.s);
        });
    };
}

// --- opening, showing, closing ---

/// An event of the window: the rules handle it, the forms that they ask for open, the record is shown.
template <typename Rutina>
void frmUEHs_ventana::Hace(Rutina&& rutina)
{
    entorno.Atiende([&] {
        std::forward<Rutina>(rutina)();
        AtiendePedidos();
    });
    if (!entorno.Terminando()) Muestra();
}

void frmUEHs_ventana::Abre()
{
    entorno.Atiende([this] {
        const QRect pantalla = screen()->availableGeometry();
        if (!isVisible()) {
            resize(pantalla.size() * 4 / 5);
            move(pantalla.center() - rect().center());
        }
        editor::Abre(f, entorno.s, {pantalla.width(), pantalla.height()});
        show();
        raise();
        activateWindow();
        MuestraPrincipal(false);
        const QSize lienzo = picDibujo->size();
        Form_Resize(f, {lienzo.width() + MargenAncho, lienzo.height() + MargenAlto});
        f.vista.recentra = f.vista.reescala = true;
        AlActivarse(f, entorno.s);
        picDibujo->setFocus();
    });
    if (!entorno.Terminando()) Muestra();
}

void frmUEHs_ventana::Muestra()
{
    if (!f.abierta) {
        if (isVisible() && !enPedidos) {
            hide();
            MuestraPrincipal(true);
        }
        return;
    }
    forms::MarcaTitulo(*this, f.cambiada);
    for (std::size_t i = 0; i < NroBotones; ++i)
        botones[i]->setChecked(f.botones[i]);
    nombres->setChecked(f.vista.NombresVisibles);
    deshace->setEnabled(!f.historia.anteriores.empty());
    rehace->setEnabled(!f.historia.siguientes.empty());
    const auto pon = [](QAbstractSlider& mando, int valor) {
        const QSignalBlocker silencio(mando);
        mando.setValue(valor);
    };
    pon(*sldEscala, f.vista.sldEscala);
    pon(*ScrEscalaHor, f.vista.ScrEscalaHor);
    pon(*ScrEscalaVer, f.vista.ScrEscalaVer);
    forms::Pon(*lblEscala, std::to_string(f.vista.sldEscala) + " %");
    forms::Pon(*lblX, f.lblX);
    forms::Pon(*lblY, f.lblY);
    forms::Pon(*lblEstado, f.lblEstado);
    lblEstado->setToolTip(Q(f.lblEstado));
    forms::Pon(*lblLongArea, f.medicion.lblLongArea);
    forms::Pon(*lblIndicacion, f.lblIndicacion);
    if (const QString leyenda = Q(f.fondo.cmdImagenUEHs); cmdImagenUEHs->text() != leyenda)
        cmdImagenUEHs->setText(leyenda);
    if (picDibujo->cursor().shape() != Forma(f.puntero)) picDibujo->setCursor(Forma(f.puntero));
    picDibujo->update();
}

void frmUEHs_ventana::closeEvent(QCloseEvent* evento)
{
    bool cierra = entorno.Terminando();
    if (!cierra)
        entorno.Atiende([&] {
            cierra = Form_QueryUnload(f, entorno.s);
            AtiendePedidos();
        });
    if (entorno.Terminando()) return evento->accept();
    if (!cierra) {
        evento->ignore();
        return Muestra();
    }
    MuestraPrincipal(true);
    evento->accept();
}

/// The main window comes back when another window of the program becomes active, but not for a box or a form
/// that belongs to this one, nor when the user goes to another program.
void frmUEHs_ventana::changeEvent(QEvent* evento)
{
    Ventana::changeEvent(evento);
    if (evento->type() != QEvent::ActivationChange || isActiveWindow() || !f.abierta || entorno.Terminando())
        return;
    const QWidget* otra = QApplication::activeWindow();
    if (otra == nullptr || QApplication::activeModalWidget() != nullptr || isAncestorOf(otra)) return;
    for (const QWidget* w = otra; w != nullptr; w = w->parentWidget())
        if (w == this) return;
    DejaVentana();
}

void frmUEHs_ventana::DejaVentana()
{
    entorno.Atiende([this] {
        AlPerderFoco(f);
        MuestraPrincipal(f.principalVisible);
    });
}

// --- keys, menu, forms ---

bool frmUEHs_ventana::TeclaDeLienzo(const QKeyEvent& evento)
{
    for (const FilaFlecha& flecha : Flechas) {
        if (flecha.tecla != evento.key()) continue;
        const bool largo = evento.modifiers().testFlag(Qt::ShiftModifier);
        Hace([&] { picDibujo_Flecha(f, entorno.s, flecha.derecha, flecha.abajo, largo); });
        return true;
    }
    const std::optional<Tecla> regla = Busca(TeclasDeLienzo, evento.key());
    // A key that is held moves the cross on, but it clicks once.
    if (regla && !(f.gesto.cruz && evento.isAutoRepeat()))
        Hace([&] { picDibujo_KeyDown(f, entorno.s, *regla); });
    return regla.has_value();
}

void frmUEHs_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (const std::optional<Tecla> regla = Busca(TeclasDeForma, evento->key()))
        Hace([&] { Form_KeyDown(f, entorno.s, *regla); });
    else
        Ventana::keyPressEvent(evento);
}

void frmUEHs_ventana::AtiendePedidos()
{
    if (enPedidos) return;
    enPedidos = true;
    while (!f.pedidos.empty() && f.abierta) {
        const Pedido pedido = f.pedidos.front();
        f.pedidos.erase(f.pedidos.begin());
        Muestra();
        try {
            if (pedido == Pedido::Menu)
                AbreMenu();
            else
                AbreForma(pedido);
        } catch (...) {
            enPedidos = false;
            throw;
        }
    }
    f.pedidos.clear();
    enPedidos = false;
}

void frmUEHs_ventana::AbreMenu()
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnu_DibujoSec"));
    for (const FilaMenu& fila : MenuDibujoSec()) {
        QAction* const entrada = menu.addAction(Q(fila.leyenda));
        entrada->setObjectName(Q(fila.nombre));
        entrada->setEnabled(fila.habilitada(entorno.s));
    }
    const Pixel lugar = APixel(f.vista, f.gesto.ultimo);
    const QPoint dentro = picDibujo->rect().contains(QPoint(int(lugar.x), int(lugar.y)))
                              ? QPoint(int(lugar.x), int(lugar.y))
                              : picDibujo->rect().center();
    const QAction* const elegida = menu.exec(picDibujo->mapToGlobal(dentro));
    if (elegida != nullptr) mnu_DibujoSec_Click(f, entorno.s, DeQ(elegida->objectName()));
}

}  // namespace editor
