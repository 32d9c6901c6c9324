// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgAvisos_ventana.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColor>
#include <QFont>
#include <QMainWindow>
#include <QMenu>
#include <QStyle>
#include <QTabWidget>
#include <array>
#include <vector>

#include "forms/Cuadro_ventana.h"

namespace checks {

using forms::Q;

namespace {

// Widths of the columns [letters]; 0: what is left over.
const std::vector<int> AnchosDeAvisos{12, 6, 16, 0, 0, 0};
const std::vector<int> AnchosDeBalance{20, 15, 15, 30, 21, 24, 15, 14, 0};

// Dark on light: what is in them differs in a grey print too, and stands in words beside.
constexpr QRgb FondoNoCierra = 0xffffcdd2, LetraNoCierra = 0xff9b0000;

/// What stands in the dock: it asks for little of the main window's height, and takes what it is given.
class Interior : public QWidget {
  public:
    [[nodiscard]] QSize sizeHint() const override
    {
        constexpr int Renglones = 9;
        return {QWidget::sizeHint().width(), Renglones * fontMetrics().lineSpacing()};
    }
};

}  // namespace

QIcon IconoDe(std::optional<Gravedad> gravedad)
{
    constexpr std::array Iconos{QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                QStyle::SP_MessageBoxInformation};
    const auto icono =
        gravedad ? Iconos.at(static_cast<std::size_t>(*gravedad)) : QStyle::SP_DialogApplyButton;
    return QApplication::style()->standardIcon(icono);
}

dlgAvisos_ventana::dlgAvisos_ventana(forms::Entorno& alrededor, dlgAvisos& registro, QMainWindow& principal)
    : QDockWidget(&principal), Constructor(alrededor, RotulosDlgAvisos), f(registro)
{
    setObjectName(QStringLiteral("dlgAvisos"));
    setWindowTitle(Q(TituloDlgAvisos));
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    avisos = TablaDe("tblAvisos", f.tblAvisos, DeFilaDeAvisos);
    avisos->Adorno = [this](std::size_t fila, int columna, int papel) {
        return AdornoDeAviso(fila, columna, papel);
    };
    avisos->PonColumnas(AnchosDeAvisos);
    paginas = Nombra(new QTabWidget, "tabPaginas");
    paginas->setDocumentMode(true);
    paginas->addTab(avisos, QStringLiteral("Avisos"));
    paginas->addTab(PaginaDeBalance(), QStringLiteral("&Balance de agua"));
    auto* const dentro = new Interior;
    QLayout* const pila = EnPila({Cabeza(), {paginas, 1}});
    pila->setContentsMargins(6, 4, 6, 4);
    dentro->setLayout(pila);
    setWidget(dentro);
    principal.addDockWidget(Qt::BottomDockWidgetArea, this);
    NombraBotones();
    hide();
}

/// Those of the frame, by which it is closed, and which the toolkit names in English.
void dlgAvisos_ventana::NombraBotones()
{
    const auto nombra = [this](const char* suyo, const char* nombre, const char* leyenda) {
        auto* const boton = findChild<QAbstractButton*>(QLatin1String(suyo));
        if (boton == nullptr) return;
        boton->setObjectName(QLatin1String(nombre));
        boton->setAccessibleName(QString::fromUtf8(leyenda));
        boton->setToolTip(QString::fromUtf8(leyenda));
        boton->setAccessibleDescription({});
    };
    nombra("qt_dockwidget_closebutton", "cmdCierraAvisos", "Cierra la lista de avisos");
    nombra("qt_dockwidget_floatbutton", "cmdDesprendeAvisos", "Desprende la lista de avisos");
}

QWidget* dlgAvisos_ventana::Cabeza()
{
    auto* const cabeza = new QWidget;
    QLabel* const corrida = Texto("lblCorrida", f.lblCorrida);
    corrida->setWordWrap(true);
    QPushButton* const tiempo = Boton("cmdAgregarTiempo", [this] { AgregaTiempo(f.minutos); });
    AlMostrar([this, tiempo] {
        tiempo->setText(Q(f.cmdAgregarTiempo));
        tiempo->setToolTip(Q(f.ayudaTiempo));
        tiempo->setAccessibleDescription(Q(f.ayudaTiempo));
        tiempo->setEnabled(f.minutos > 0);
        tiempo->setVisible(f.pideTiempo);
    });
    deUna = new Franja(entorno, Alcance::Corrida);
    deSerie = new Franja(entorno, Alcance::Serie);
    for (Franja* const franja : Franjas())
        franja->Actualiza = [] {};  // the list follows each run by itself
    QLayout* const pila =
        EnPila({EnFila({EnNegrita(Texto("lblCuenta", f.lblCuenta)), {corrida, 1}, tiempo}), deUna, deSerie});
    pila->setContentsMargins(0, 0, 0, 0);
    cabeza->setLayout(pila);
    return cabeza;
}

QWidget* dlgAvisos_ventana::PaginaDeBalance()
{
    auto* const pagina = new QWidget;
    balance = TablaDe("tblBalance", f.tblBalance, DeFilaDeBalance);
    balance->Adorno = [this](std::size_t fila, int /*columna*/, int papel) {
        return AdornoDeBalance(fila, papel);
    };
    balance->PonColumnas(AnchosDeBalance);
    QLabel* const sin =
        VisibleSi(Texto("lblSinBalance", f.lblSinBalance), [this] { return !f.lblSinBalance.empty(); });
    sin->setWordWrap(true);
    QLayout* const pila = EnPila({sin, {balance, 1}});
    pila->setContentsMargins(0, 0, 0, 0);
    pagina->setLayout(pila);
    return pagina;
}

forms::TablaCuadro* dlgAvisos_ventana::TablaDe(std::string_view control, forms::Cuadro& cuadro, DeFila deFila)
{
    auto* const tabla = new forms::TablaCuadro(entorno, cuadro, control, Fila(control).leyenda);
    tabla->setWhatsThis(Q(Fila(control).ayuda));
    tabla->AlPulsarEncabezado = [this, &cuadro](int columna) {
        Suceso([&] { AlPulsarEncabezado(cuadro, columna); });
    };
    tabla->AlElegir = [this, deFila](std::size_t fila) {
        if (const auto hallazgo = deFila(f, fila)) Suceso([&] { Va(*hallazgo); });
    };
    tabla->AlArmarMenu = [this, tabla, deFila](QMenu& menu) {
        if (const auto hallazgo = deFila(f, tabla->Actual())) ArmaMenu(menu, *hallazgo);
    };
    tabla->DaPlanilla = [this, &cuadro, titulo = Fila(control).leyenda] {
        return ParaArchivo(f, cuadro, titulo);
    };
    AlMostrar([tabla] { tabla->Muestra(); });
    return tabla;
}

void dlgAvisos_ventana::ArmaMenu(QMenu& menu, const Hallazgo& hallazgo)
{
    QAction* const ir = menu.addAction(hallazgo.componente.empty() ? QStringLiteral("&Ir al lugar")
                                                                   : QStringLiteral("&Ir al componente"));
    ir->setObjectName(QStringLiteral("mnuIrAlComponente"));
    connect(ir, &QAction::triggered, this, [this, hallazgo] { Suceso([&] { Va(hallazgo); }); });
    QAction* const hidrograma = menu.addAction(QStringLiteral("&Ver su hidrograma"));
    hidrograma->setObjectName(QStringLiteral("mnuVerHidrograma"));
    hidrograma->setEnabled(HayHidrograma(f, hallazgo.componente));
    connect(hidrograma, &QAction::triggered, this,
            [this, componente = hallazgo.componente] { Suceso([&] { AbreHidrograma(componente); }); });
}

QVariant dlgAvisos_ventana::AdornoDeAviso(std::size_t fila, int columna, int papel) const
{
    if (papel != Qt::DecorationRole || columna != 0) return {};
    if (f.corrida == nullptr || fila >= f.corrida->avisos.size()) return {};
    return IconoDe(f.corrida->avisos[fila].gravedad);
}

QVariant dlgAvisos_ventana::AdornoDeBalance(std::size_t fila, int papel) const
{
    if (fila >= f.cierres.size()) return {};
    const bool pasa = f.cierres[fila] == Cierre::NoCierra || f.cierres[fila] == Cierre::EnLaLectura;
    if (papel == Qt::FontRole && (pasa || fila == 0)) {
        QFont letra = font();
        letra.setBold(true);
        return letra;
    }
    if (!pasa) return {};
    if (papel == Qt::BackgroundRole) return QColor(FondoNoCierra);
    if (papel == Qt::ForegroundRole) return QColor(LetraNoCierra);
    return {};
}

void dlgAvisos_ventana::Abre()
{
    show();
    raise();
    paginas->setCurrentIndex(0);
    Muestra();
    avisos->setFocus();
}

void dlgAvisos_ventana::Muestra()
{
    const std::size_t cuantos = f.tblAvisos.planilla.filas.size();
    paginas->setTabText(0,
                        cuantos == 0 ? QStringLiteral("Avisos") : QStringLiteral("Avisos (%1)").arg(cuantos));
    Constructor::Muestra();
    if (tomada == f.corrida) return;
    tomada = f.corrida;
    for (Franja* const franja : Franjas())
        franja->Suelta();
    if (tomada != nullptr) (tomada->esSerie ? deSerie : deUna)->Toma(tomada->sello);
}

bool dlgAvisos_ventana::event(QEvent* evento)
{
    return AtiendeF1(*this, *evento) || QDockWidget::event(evento);
}

}  // namespace checks
