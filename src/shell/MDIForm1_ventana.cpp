// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MDIForm1_ventana.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

#include "forms/Pantalla_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Configuracion.h"
#include "model/VidaProyecto.h"
#include "shell/Iconos_ventana.h"
#include "shell/RotuloProyecto_ventana.h"

namespace shell {

using forms::Q;

namespace {

constexpr char ClaveLugar[] = "MDIForm1/lugar";
constexpr char ClaveBarras[] = "MDIForm1/barras";
constexpr int LadoIcono = 24;  // [pixels]
constexpr int AnchoInicial = 1180;
constexpr int AltoInicial = 720;

/// Where a label stands in the panel: captions take the even columns.
struct LugarRotulo {
    std::string_view rotulo;
    int fila, columna;
};
constexpr auto LugaresRotulos = std::to_array<LugarRotulo>({
    {"lblProyecto", 0, 0},
    {"lblFileProyecto", 1, 0},
    {"lblFilesTrabajo", 2, 0},
    {"lblTitulo", 0, 1},
    {"lblMiDirTrabajo", 1, 1},
    {"lblUbicacion", 2, 1},
    {"lblCuenca", 0, 2},
    {"lblSubCuenca", 1, 2},
});
constexpr std::array<int, 3> AnchoRelativo = {3, 5, 3};

/// The icon of the button that does what an entry does.
QIcon IconoDeEntrada(std::string_view nombre)
{
    for (const FilaBarra& boton : tbToolBar())
        if (!boton.menu.empty() && boton.menu == nombre && boton.rutina != nullptr)
            return IconoDeBoton(boton.clave);
    return {};
}

/// A text that is no caption, with its "&" as they stand.
QString SinAccesos(std::string_view texto)
{
    return Q(texto).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// The one configuration file that is being dropped; empty where it is anything else.
QString ArchivoQueSeSuelta(const QMimeData& datos)
{
    const QList<QUrl> urls = datos.urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile()) return {};
    const QString ruta = QDir::toNativeSeparators(urls.constFirst().toLocalFile());
    return ruta.endsWith(Q(model::TerminacionConf)) ? ruta : QString();
}

}  // namespace

MDIForm1_ventana::MDIForm1_ventana(forms::Entorno& alrededor, MDIForm1& reglas, const Mandos& unosMandos)
    : Constructor(alrededor), f(reglas), mandos(unosMandos)
{
    setObjectName(QStringLiteral("MDIForm1"));
    auto* const centro = new QWidget(this);
    auto* const pila = new QVBoxLayout(centro);
    pila->setContentsMargins(0, 0, 0, 0);
    pila->setSpacing(0);
    area = new Area(centro);
    pila->addWidget(ArmaRotulos(centro));
    pila->addWidget(area, 1);
    setCentralWidget(centro);
    ArmaMenu();
    ArmaBarra();
    statusBar()->setObjectName(QStringLiteral("BarraDeEstado"));
    setAcceptDrops(true);
    resize(AnchoInicial, AltoInicial);
}

void MDIForm1_ventana::ArmaMenu()
{
    std::map<std::string_view, QMenu*> menus;
    for (const FilaMenu& fila : MenuMDIForm1()) {
        if (fila.padre.empty()) {
            QMenu* const menu = menuBar()->addMenu(Q(fila.leyenda));
            menu->setObjectName(Q(fila.nombre));
            menus[fila.nombre] = menu;
            continue;
        }
        QAction* const accion = AgregaEntrada(*menus.at(fila.padre), fila);
        if (fila.variable != Variable::Ninguna) variables[static_cast<std::size_t>(fila.variable)] = accion;
    }
    menuBar()->setObjectName(QStringLiteral("BarraDeMenu"));
    variables[static_cast<std::size_t>(Variable::mnuPizarra1)]->setCheckable(true);
    area->LlenaMenu(*menus.at("mnuVentana"));
}

QAction* MDIForm1_ventana::AgregaEntrada(QMenu& menu, const FilaMenu& fila)
{
    QAction* const accion = fila.leyenda == "-" ? menu.addSeparator() : menu.addAction(Q(fila.leyenda));
    accion->setObjectName(Q(fila.nombre));
    accion->setStatusTip(Q(fila.ayuda));
    accion->setIcon(IconoDeEntrada(fila.nombre));
    if (!fila.tecla.empty()) accion->setShortcut(QKeySequence(Q(fila.tecla), QKeySequence::PortableText));
    if (fila.rutina != nullptr)
        connect(accion, &QAction::triggered, this, [this, rutina = fila.rutina] { Ejecuta(rutina); });
    return accion;
}

void MDIForm1_ventana::ArmaBarra()
{
    QToolBar* const barra = addToolBar(QStringLiteral("Barra de Herramientas"));
    barra->setObjectName(QStringLiteral("tbToolBar"));
    barra->setIconSize(QSize(LadoIcono, LadoIcono));
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const FilaBarra& fila : tbToolBar()) {
        if (fila.clave.empty()) {
            barra->addSeparator();
            continue;
        }
        QAction* const accion = barra->addAction(IconoDeBoton(fila.clave), Q(AyudaDeBoton(fila)));
        accion->setObjectName(Q(fila.clave));
        accion->setToolTip(Q(AyudaDeBoton(fila)));
        if (fila.rutina != nullptr)
            connect(accion, &QAction::triggered, this, [this, rutina = fila.rutina] { Ejecuta(rutina); });
        QWidget* const boton = barra->widgetForAction(accion);
        boton->setObjectName(Q(fila.clave));
        boton->setFocusPolicy(Qt::TabFocus);
    }
}

QWidget* MDIForm1_ventana::ArmaRotulos(QWidget* padre)
{
    auto* const panel = new QWidget(padre);
    panel->setObjectName(QStringLiteral("PanelDelProyecto"));
    auto* const rejilla = new QGridLayout(panel);
    rejilla->setVerticalSpacing(2);
    const int altoRenglon = RotuloProyecto(1, {}, panel).sizeHint().height();
    for (const LugarRotulo& lugar : LugaresRotulos) {
        const std::size_t cual = forms::LugarDe(RotulosMDIForm1, lugar.rotulo);
        const forms::FilaRotulo& fila = RotulosMDIForm1.at(cual);
        auto* const leyenda = new QLabel(Q(fila.leyenda), panel);
        leyenda->setObjectName(Q(std::string("leyenda_").append(fila.control)));
        const bool crece = std::ranges::count(RotulosQueCrecen, fila.control) > 0;
        const int renglones = lugar.rotulo == "lblFilesTrabajo" ? 2 : 1;
        auto* const valor =
            new RotuloProyecto(renglones, crece ? RotuloCrece : std::function<bool(double, double)>(), panel);
        valor->setObjectName(Q(fila.control));
        valor->setAccessibleName(Q(fila.leyenda));
        leyenda->setFixedHeight(altoRenglon);
        rejilla->addWidget(leyenda, lugar.fila, 2 * lugar.columna, Qt::AlignRight | Qt::AlignTop);
        rejilla->addWidget(valor, lugar.fila, 2 * lugar.columna + 1, Qt::AlignTop);
        rotulos.at(cual) = valor;
    }
    for (std::size_t i = 0; i < AnchoRelativo.size(); ++i)
        rejilla->setColumnStretch(static_cast<int>(2 * i + 1), AnchoRelativo[i]);
    return panel;
}

void MDIForm1_ventana::Abre()
{
    Muestra();
    restoreGeometry(entorno.Ajustes().value(QLatin1String(ClaveLugar)).toByteArray());
    restoreState(entorno.Ajustes().value(QLatin1String(ClaveBarras)).toByteArray());
    abierta = true;
    forms::TraeALaPantalla(*this);
    show();
}

void MDIForm1_ventana::GuardaLugar()
{
    entorno.Ajustes().setValue(QLatin1String(ClaveLugar), saveGeometry());
    entorno.Ajustes().setValue(QLatin1String(ClaveBarras), saveState());
}

void MDIForm1_ventana::Muestra()
{
    setWindowTitle(Q(f.titulo));
    for (std::size_t i = 0; i < rotulos.size(); ++i)
        rotulos[i]->PonTexto(Q(f.rotulos[i]).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    for (std::size_t i = 0; i < NroVariables; ++i) {
        if (variables[i] == nullptr) continue;
        variables[i]->setEnabled(f.estados[i].habilitada);
        variables[i]->setChecked(f.estados[i].marcada);
    }
    const std::string& ultimo = f.Estado(Variable::mnu_ultimoarchivo1).leyenda;
    QAction& entrada = *variables[static_cast<std::size_t>(Variable::mnu_ultimoarchivo1)];
    entrada.setText(SinAccesos(ultimo));
    entrada.setVisible(!ultimo.empty());
}

void MDIForm1_ventana::Ejecuta(Rutina rutina)
{
    if (!abierta) return;
    Suceso([this, rutina] { rutina(f, entorno.s, mandos); });
}

void MDIForm1_ventana::closeEvent(QCloseEvent* evento)
{
    entorno.Atiende([this] { mnuSalir(f, entorno.s, mandos); });
    evento->accept();
}

void MDIForm1_ventana::dragEnterEvent(QDragEnterEvent* evento)
{
    if (!ArchivoQueSeSuelta(*evento->mimeData()).isEmpty()) evento->acceptProposedAction();
}

void MDIForm1_ventana::dropEvent(QDropEvent* evento)
{
    const QString ruta = ArchivoQueSeSuelta(*evento->mimeData());
    if (ruta.isEmpty()) return;
    evento->acceptProposedAction();
    Suceso([this, &ruta] { model::AbreProyectoDe(entorno.s, forms::DeQ(ruta)); });
}

}  // namespace shell
