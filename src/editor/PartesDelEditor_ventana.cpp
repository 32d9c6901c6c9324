// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QSlider>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <string>
#include <utility>

#include "editor/frmUEHs_ventana.h"
#include "editor/lienzo/SalidaDibujo_ventana.h"

/// A resource inside a static library is registered by hand; outside of any namespace.
static void RegistraIconosDelEditor()
{
    Q_INIT_RESOURCE(editor);
}

// The toolbar of the graphic editor, its buttons and sliders, and the line below the canvas.
namespace editor {

using forms::Q;

namespace {

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

}  // namespace

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

QPushButton* frmUEHs_ventana::BotonConTecla(std::string_view control, Qt::Key tecla,
                                            std::function<void()> rutina)
{
    const QKeySequence secuencia(Qt::CTRL | tecla);
    QPushButton* const boton = Boton(control, std::move(rutina));
    boton->setAccessibleDescription(secuencia.toString(QKeySequence::NativeText));
    // Not the button's own: it would lose it whenever its caption changes.
    connect(new QShortcut(secuencia, this), &QShortcut::activated, boton, &QPushButton::click);
    boton->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys to the canvas
    return boton;
}

QWidget* frmUEHs_ventana::HazMandos()
{
    cmdImagenUEHs = BotonConTecla("cmdImagenUEHs", Qt::Key_I, [this] { cmdImagenUEHs_Click(f, entorno.s); });
    // Its caption changes; its place doesn't.
    cmdImagenUEHs->setText(QStringLiteral("Mostrar Imágen"));
    cmdImagenUEHs->setMinimumWidth(cmdImagenUEHs->sizeHint().width());
    sldEscala = Nombra(new QSlider(Qt::Horizontal), "sldEscala");
    sldEscala->setRange(EscalaMinima, EscalaMaxima);
    sldEscala->setMinimumWidth(60);
    sldEscala->setMaximumWidth(160);
    connect(sldEscala, &QSlider::valueChanged, this,
            [this](int valor) { Hace([this, valor] { sldEscala_Mueve(f, entorno.s, valor); }); });
    for (QScrollBar* barra : {ScrEscalaHor, ScrEscalaVer})
        barra->setRange(-TopeBarra, TopeBarra);
    connect(ScrEscalaHor, &QScrollBar::valueChanged, this,
            [this](int valor) { Hace([this, valor] { ScrEscalaHor_Mueve(f, entorno.s, valor); }); });
    connect(ScrEscalaVer, &QScrollBar::valueChanged, this,
            [this](int valor) { Hace([this, valor] { ScrEscalaVer_Mueve(f, entorno.s, valor); }); });

    auto* const escala = Nombra(new QLabel, "lblEscala");
    escala->setMinimumWidth(escala->fontMetrics().horizontalAdvance(QStringLiteral("1000 %")));
    AlMostrar([this, escala] { forms::Pon(*escala, std::to_string(f.vista.sldEscala) + " %"); });
    auto* const mandos = new QWidget;
    mandos->setLayout(EnFila(
        {cmdImagenUEHs,
         BotonConTecla("cmdAnchoLineaDib", Qt::Key_E, [this] { cmdAnchoLineaDib_Click(f, entorno.s); }),
         BotonConTecla("cmdOrdenCauce", Qt::Key_R, [this] { cmdOrdenCauce_Click(f, entorno.s); }), sldEscala,
         escala}));
    mandos->layout()->setContentsMargins(0, 0, 0, 0);
    return mandos;
}

QWidget* frmUEHs_ventana::HazPie()
{
    QLabel* const indicacion = EnNegrita(Texto("lblIndicacion", f.lblIndicacion));
    QLabel* const estado = Texto("lblEstado", f.lblEstado);
    AlMostrar([this, estado] { estado->setToolTip(Q(f.lblEstado)); });
    // Long paths give way instead of widening the window.
    for (QLabel* const rotulo : {estado, indicacion})
        rotulo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const auto coordenada = [this](std::string_view control, const std::string& texto) {
        QLabel* const rotulo = Texto(control, texto);
        rotulo->setMinimumWidth(rotulo->fontMetrics().horizontalAdvance(QStringLiteral("-00000.00")));
        rotulo->setAlignment(Qt::AlignRight);
        return rotulo;
    };
    QGridLayout* const rejilla =
        EnRejilla({{indicacion, {Texto("lblLongArea", f.medicion.lblLongArea), 0, Qt::AlignRight}},
                   {estado, new QLabel(QStringLiteral("X:")), coordenada("lblX", f.lblX),
                    new QLabel(QStringLiteral("Y:")), coordenada("lblY", f.lblY)}},
                  {1});
    rejilla->setContentsMargins(2, 0, 2, 0);
    rejilla->setVerticalSpacing(1);
    auto* const pie = new QWidget;
    pie->setLayout(rejilla);
    return pie;
}

}  // namespace editor
