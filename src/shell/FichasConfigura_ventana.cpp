// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QDir>
#include <QFocusEvent>
#include <QHeaderView>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>
#include <QTreeView>
#include <memory>
#include <utility>
#include <vector>

#include "model/RutaProyecto.h"
#include "shell/frmConfigura_ventana.h"

// The tabs of the configuration dialog.
namespace shell {

using forms::Q;

namespace {

/// Room of a number field [characters].
constexpr int LargoCampo = 14;

constexpr std::string_view TituloRecurrencias = "Recurrencias: R [años]";
constexpr std::string_view TituloDuraciones = "DuracionPp: D [minutos]";
constexpr std::string_view TituloImagen = "Imagen de fondo";
constexpr std::string_view TituloDibujo = "Dibujo y cálculo";

/// A field that selects its whole text as it gets the focus.
class CampoTitulo : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;
    std::function<void()> AlDobleClic{};

  protected:
    void focusInEvent(QFocusEvent* evento) override
    {
        QLineEdit::focusInEvent(evento);
        selectAll();
        // The press of the mouse that brought the focus is yet to place the cursor.
        if (evento->reason() == Qt::MouseFocusReason) QTimer::singleShot(0, this, [this] { selectAll(); });
    }
    void mouseDoubleClickEvent(QMouseEvent* evento) override
    {
        QLineEdit::mouseDoubleClickEvent(evento);
        if (AlDobleClic) AlDobleClic();
    }
};

/// A path in one line: what doesn't fit is left out of its middle.
class RotuloRuta : public QLabel {
  public:
    using QLabel::QLabel;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        constexpr int Letras = 20;
        return {fontMetrics().averageCharWidth() * Letras, fontMetrics().height()};
    }

  protected:
    void paintEvent(QPaintEvent* /*evento*/) override
    {
        QPainter pintor(this);
        style()->drawItemText(&pintor, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideMiddle, width()), foregroundRole());
    }
};

}  // namespace

// --- controls ---

QLineEdit* frmConfigura_ventana::CampoDe(std::string_view nombre, std::string& texto)
{
    return Campo(nombre, texto, [this, nombre] { return AlSalir(entorno.s, nombre); });
}

forms::Partes frmConfigura_ventana::RenglonConAyuda(std::string_view nombre, std::string& texto)
{
    QLineEdit* const campo = CampoDe(nombre, texto);
    campo->setFixedWidth(fontMetrics().averageCharWidth() * LargoCampo);
    return {Rotulo(nombre, campo), campo, new QLabel(Q(Fila(nombre).ayuda))};
}

QGroupBox* frmConfigura_ventana::MarcoDeNumeros(std::string_view titulo,
                                                const std::vector<forms::Partes>& filas)
{
    QGridLayout* const rejilla = EnRejilla(filas, {0, 0, 1});
    // The fields of both frames stand in one column.
    rejilla->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(Q(Fila("txtN0Dur").leyenda)));
    auto* const marco = new QGroupBox(Q(titulo));
    marco->setLayout(rejilla);
    return marco;
}

/// A path of the record; whole under the pointer where `comoAyuda` says so.
QLabel* frmConfigura_ventana::Ruta(std::string_view nombre, const std::string& texto, bool comoAyuda)
{
    auto* const ruta = new RotuloRuta;
    ruta->setObjectName(Q(nombre));
    ruta->setTextFormat(Qt::PlainText);
    AlMostrar([ruta, &texto, comoAyuda] {
        forms::Pon(*ruta, texto);
        if (comoAyuda) ruta->setToolTip(ruta->text());
    });
    return ruta;
}

QCheckBox* frmConfigura_ventana::CasillaDe(std::string_view nombre, std::int16_t& valor)
{
    return Casilla(
        nombre, [&valor] { return Tildada(valor); },
        [&valor](bool tildada) { Casilla_Click(valor, tildada); });
}

// --- directory and files ---

/// Three columns, each with its heading, its list, and what belongs to it below; the Tab key goes down each.
QWidget* frmConfigura_ventana::FichaDeArchivos()
{
    auto* const columnas = new QGridLayout;
    int columna = 0;
    for (const std::array<forms::Parte, 3>& partes :
         {ColumnaDeDirectorios(), ColumnaDeConfiguraciones(), ColumnaDeImagenes()}) {
        int fila = 0;
        for (const forms::Parte& parte : partes) {
            if (parte.control != nullptr)
                columnas->addWidget(parte.control, fila, columna);
            else
                columnas->addLayout(parte.disposicion, fila, columna, parte.lugar);
            ++fila;
        }
        columnas->setColumnStretch(columna++, 1);
    }
    columnas->setRowStretch(1, 1);
    auto* const ficha = new QWidget;
    ficha->setLayout(EnPila({{columnas, 1}, CasillaDe("CheckDistriPp", c.CheckDistriPp)}));
    return ficha;
}

std::array<forms::Parte, 3> frmConfigura_ventana::ColumnaDeDirectorios()
{
    Drive1 = Nombra(new QComboBox, "Drive1");
    QLabel* const unidad = Rotulo("Drive1", Drive1);
    if constexpr (model::HayUnidades) {
        for (const QFileInfo& raiz : QDir::drives())
            Drive1->addItem(raiz.path().left(2));
    }
    for (QWidget* const control : {static_cast<QWidget*>(unidad), static_cast<QWidget*>(Drive1)})
        control->setHidden(!model::HayUnidades);
    connect(Drive1, &QComboBox::textActivated, this, [this](const QString& elegida) {
        Suceso([&] { Drive1_Change(f, entorno.s, forms::DeQ(elegida)); });
    });

    Dir1 = Nombra(new QTreeView, "Dir1");
    Dir1->header()->hide();
    Dir1->setTabKeyNavigation(false);
    QLayout* const nuevo =
        EnFila({{HabilitadoSi(Campo("TextDirNv", c.TextDirNv), [this] { return f.CheckDirNv; }), 1},
                Boton("BtnDirNv", [this] { BtnDirNv(f, entorno.s); })});
    QCheckBox* const creaNuevo = Casilla(
        "CheckDirNv", [this] { return f.CheckDirNv; },
        [this](bool tildada) { CheckDirNv_Click(f, entorno.s, tildada); });
    return {EnFila({{Rotulo("Dir1", Dir1), 1}, unidad, Drive1}), Dir1,
            EnPila({Ruta("lblDir1", c.Dir1, true), creaNuevo, nuevo,
                    Boton("BtnDefecto", [this] { BtnDefecto(f, entorno.s); })})};
}

std::array<forms::Parte, 3> frmConfigura_ventana::ColumnaDeConfiguraciones()
{
    QWidget* const archivos = Listado("filArchivoConfigura", f.filArchivoConfigura, forms::Flechas::Mueven,
                                      [this] { filArchivoConfigura_Click(f, entorno.s); });
    QLayout* const datos =
        EnRejilla({{Rotulo("lblnombreproyecto"), Ruta("lblnombreproyecto", f.lblnombreproyecto)},
                   {Rotulo("lblMiArchivoConf"), Ruta("lblMiArchivoConf", c.lblMiArchivoConf)}},
                  {0, 1});
    return {Rotulo("filArchivoConfigura", archivos), archivos, {datos, 0, Qt::AlignTop}};
}

std::array<forms::Parte, 3> frmConfigura_ventana::ColumnaDeImagenes()
{
    QCheckBox* const conImagen = Casilla(
        "chkImagenDibujo", [this] { return Tildada(c.chkImagenDibujo); },
        [this](bool tildada) { chkImagenDibujo_Click(entorno.s, tildada); });
    QWidget* const archivos = Listado("filArchivoImagenDib", f.filArchivoImagenDib, forms::Flechas::Mueven,
                                      [this] { filArchivoImagenDib_Click(f, entorno.s); });
    HabilitadoSi(archivos, [this] { return HayImagen(entorno.s); });
    auto* const aviso = Nombra(new QLabel, "lblAvisoImagen");
    aviso->setTextFormat(Qt::PlainText);
    aviso->setWordWrap(true);
    AlMostrar([this, aviso] { forms::Pon(*aviso, AvisoImagen(f, entorno.s)); });
    QPushButton* const trae = Boton("cmdTraeImagen", [this] { shell::cmdTraeImagen(f, entorno.s); });
    for (QWidget* const control : {static_cast<QWidget*>(aviso), static_cast<QWidget*>(trae)})
        VisibleSi(control, [aviso] { return !aviso->text().isEmpty(); });
    QLayout* const datos = EnRejilla(
        {{Rotulo("lblImagenDibujo"), Ruta("lblImagenDibujo", c.lblImagenDibujo, true)}, {aviso}, {trae}},
        {0, 1});
    return {conImagen, archivos, {datos, 0, Qt::AlignTop}};
}

// --- titles ---

QWidget* frmConfigura_ventana::FichaDeTitulos()
{
    CampoTitulo* campo = nullptr;
    const auto renglon = [&](std::string_view nombre, std::string& texto) {
        campo = Nombra(new CampoTitulo, nombre);
        forms::Refleja(*campo, texto);
        AlMostrar([campo, &texto] { forms::Pon(*campo, texto); });
        campos.Agrega(*campo, [this, nombre] { return AlSalir(entorno.s, nombre); });
        return Renglon(nombre, campo);
    };
    auto* const ficha = new QWidget;
    ficha->setLayout(EnRejilla({renglon("TextProyecto", c.TextProyecto),
                                renglon("TextUbica", c.TextUbica),
                                renglon("TextCuenca", c.TextCuenca),
                                renglon("TextSbca", c.TextSbca),
                                renglon("TextOpera", c.TextOpera),
                                renglon("txtFecha", c.txtFecha),
                                {}}));
    campo->AlDobleClic = [this] { Suceso([this] { txtFecha_DblClick(entorno.s); }); };
    return ficha;
}

// --- recurrences and durations ---

template <std::size_t N>
QWidget* frmConfigura_ventana::MarcoDeSeleccion(std::string_view titulo, char letra,
                                                const std::array<std::int16_t, N>& valores,
                                                std::array<std::int16_t, N>& casillas, QPushButton* boton)
{
    constexpr int Columnas = 3;
    constexpr int Filas = (static_cast<int>(N) + Columnas - 1) / Columnas;
    auto* const rejilla = new QGridLayout;
    for (std::size_t i = 0; i < N; ++i) {
        QCheckBox* const casilla = CasillaDe({}, casillas[i]);
        casilla->setText(QStringLiteral("%1 %2").arg(QLatin1Char(letra)).arg(valores[i]));
        casilla->setObjectName(QStringLiteral("Check%1%2").arg(QLatin1Char(letra)).arg(valores[i]));
        rejilla->addWidget(casilla, static_cast<int>(i) % Filas, static_cast<int>(i) / Filas);
    }
    auto* const marco = new QGroupBox(Q(titulo));
    marco->setLayout(EnPila({rejilla, {boton, 0, Qt::AlignLeft}, Hueco()}));
    return marco;
}

QWidget* frmConfigura_ventana::FichaDeSelecciones()
{
    auto* const ficha = new QWidget;
    ficha->setLayout(EnFila({MarcoDeSeleccion(TituloRecurrencias, 'R', model::Recurrencias, c.CheckR,
                                              Boton("BtnRecuDef", [this] { BtnRecuDef(c); })),
                             MarcoDeSeleccion(TituloDuraciones, 'D', model::Duraciones, c.CheckD,
                                              Boton("BtnDurDef", [this] { BtnDurDef(c); }))}));
    PonDeshacer(*ficha);
    return ficha;
}

/// Undo and redo of the ticks, by key and by menu. Other ones that come from a file begin anew.
void frmConfigura_ventana::PonDeshacer(QWidget& ficha)
{
    struct Tildes {
        decltype(c.CheckR) R{};
        decltype(c.CheckD) D{};
        bool operator==(const Tildes&) const = default;
    };
    struct Pasos {
        Tildes vistas{};
        model::ControlesConfigura guardados{};
        std::vector<Tildes> hechos{}, deshechos{};
    };
    const auto pasos = std::make_shared<Pasos>();
    pasos->vistas = {c.CheckR, c.CheckD};
    pasos->guardados = f.guardados;
    const auto orden = [&](const QString& leyenda, const QList<QKeySequence>& teclas,
                           std::vector<Tildes> Pasos::*desde, std::vector<Tildes> Pasos::*hacia) {
        auto* const accion = new QAction(leyenda, &ficha);
        accion->setShortcuts(teclas);
        accion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        ficha.addAction(accion);
        connect(accion, &QAction::triggered, &ficha, [this, pasos, desde, hacia] {
            auto& pila = (*pasos).*desde;
            if (pila.empty()) return;
            ((*pasos).*hacia).push_back(std::exchange(pasos->vistas, pila.back()));
            pila.pop_back();
            Suceso([&] {
                c.CheckR = pasos->vistas.R;
                c.CheckD = pasos->vistas.D;
            });
        });
        AlMostrar([accion, pasos, desde] { accion->setEnabled(!((*pasos).*desde).empty()); });
    };
    ficha.setContextMenuPolicy(Qt::ActionsContextMenu);
    AlMostrar([this, pasos] {
        const Tildes ahora{c.CheckR, c.CheckD};
        const bool deArchivo = std::exchange(pasos->guardados, f.guardados) != f.guardados;
        if (ahora == pasos->vistas) return;
        if (deArchivo)
            pasos->hechos.clear();
        else
            pasos->hechos.push_back(pasos->vistas);
        pasos->deshechos.clear();
        pasos->vistas = ahora;
    });
    orden(QStringLiteral("&Deshacer"), {QKeySequence::Undo}, &Pasos::hechos, &Pasos::deshechos);
    orden(QStringLiteral("&Rehacer"), {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
          &Pasos::deshechos, &Pasos::hechos);
}

// --- image, units, drawing ---

QWidget* frmConfigura_ventana::MarcoDeOpciones(std::string_view pregunta)
{
    forms::Partes partes;
    for (std::size_t i = 0; i < OpcionesConfigura.size(); ++i) {
        const OpcionConfigura& fila = OpcionesConfigura[i];
        if (fila.pregunta != pregunta) continue;
        QRadioButton* const opcion =
            Opcion(fila.control, c.*fila.marcada, [this, i] { Opcion_Click(entorno.s, i); });
        opcion->setText(Q(fila.leyenda));
        partes.emplace_back(opcion);
    }
    partes.push_back(Hueco());
    auto* const marco = new QGroupBox(Q(pregunta));
    marco->setLayout(EnPila(partes));
    return marco;
}

QWidget* frmConfigura_ventana::FichaDeImagen()
{
    QWidget* const imagen = MarcoDeNumeros(
        TituloImagen,
        {RenglonConAyuda("TexIMGEscala", c.TexIMGEscala), RenglonConAyuda("TexIMGX0", c.TexIMGX0),
         RenglonConAyuda("TexIMGY0", c.TexIMGY0), RenglonConAyuda("txtEscalaImagen", c.txtEscalaImagen)});
    QWidget* const dibujo = MarcoDeNumeros(
        TituloDibujo,
        {RenglonConAyuda("txtMaxUEHsPixel", c.txtMaxUEHsPixel), RenglonConAyuda("txtN0Dur", c.txtN0Dur)});
    connect(dibujo->findChild<QLineEdit*>(QStringLiteral("txtMaxUEHsPixel")), &QLineEdit::textEdited, this,
            [this] {
                entorno.Atiende([this] { AlSalir(entorno.s, "txtMaxUEHsPixel"); });
                Muestra();
            });
    auto* const ficha = new QWidget;
    ficha->setLayout(EnPila(
        {imagen, dibujo,
         EnFila({MarcoDeOpciones("Tiempo"), MarcoDeOpciones("Volúmenes"), MarcoDeOpciones("Opciones")}),
         EnRejilla({Renglon("TexS", CampoDe("TexS", c.TexS))}), Hueco()}));
    return ficha;
}

// --- buttons ---

QLayout* frmConfigura_ventana::Botones()
{
    QPushButton* const acepta = Boton("OKButton", [this] { OKButton(f, entorno.s); });
    acepta->setDefault(true);
    return EnFila({Hueco(), acepta, Boton("cmdAplicar", [this] { cmdAplicar(f, entorno.s); }),
                   BotonSinRevisar("CancelButton", [this] { AlCerrar(); })});
}

}  // namespace shell
