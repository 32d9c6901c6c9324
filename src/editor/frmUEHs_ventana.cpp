// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmUEHs_ventana.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QToolBar>
#include <QtGlobal>
#include <array>
#include <string>
#include <utility>

#include "editor/MenuDibujo.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace editor {

using forms::DeQ;
using forms::Q;

namespace {

// The rules leave the canvas this much of the window; the window's layout decides its size itself and asks
// for as much more.
constexpr int MargenAncho = 100, MargenAlto = 47;  // [pixels]

constexpr auto Rotulos = std::to_array<forms::FilaRotulo>({
    {"cmdImagenUEHs", "Imágen", "Cargar o Descargar la Imágen de fondo "},
    {"cmdAnchoLineaDib", "Espesor", "Modificar espesor de línea de dibujo"},
    {"cmdOrdenCauce", "Orden Cauce", "Mostrar / No Mostrar Orden de Cauces"},
    {"sldEscala", "Variador de la Escala de Dibujo", "Variador de la Escala de Dibujo"},
});

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

}  // namespace

frmUEHs_ventana::frmUEHs_ventana(forms::Entorno& alrededor, frmUEHs& reglas, QWidget* padre)
    : Ventana(alrededor, {"frmUEHs", TituloFrmUEHs, Rotulos}, padre), f(reglas)
{
    setWindowFlag(Qt::Window);
    f.fondo.CargaImagen = [this](const std::string& ruta) { return pintor.CargaFondo(entorno, ruta); };
    picDibujo = new Lienzo(f, pintor);
    ScrEscalaHor = Nombra(new QScrollBar(Qt::Horizontal), "ScrEscalaHor");
    ScrEscalaVer = Nombra(new QScrollBar(Qt::Vertical), "ScrEscalaVer");
    QLayout* const dibujo = EnRejilla({{picDibujo, ScrEscalaVer}, {ScrEscalaHor, Hueco()}});
    dibujo->setSpacing(0);
    QLayout* const pila = EnPila({EnFila({HazBarra(), Hueco(), HazMandos()}), {dibujo, 1}, HazPie()});
    pila->setContentsMargins(4, 2, 4, 4);
    pila->setSpacing(3);
    setLayout(pila);
    setMinimumSize(minimumSizeHint().expandedTo({860, 420}));
    ConectaLienzo();
    entorno.AlActivarse(*this, [this] {
        AlActivarse(f, entorno.s);
        MuestraPrincipal(f.principalVisible);
        Muestra();
    });
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
    Ventana::Muestra();
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
