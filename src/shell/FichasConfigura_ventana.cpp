// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <utility>

#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/RutaProyecto.h"
#include "shell/frmConfigura_ventana.h"

// The tabs of the configuration dialog.
namespace shell {

using forms::Q;
using model::ControlesConfigura;

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

template <typename T>
T* frmConfigura_ventana::Nombra(T* control, std::string_view nombre)
{
    control->setObjectName(Q(nombre));
    control->setToolTip(Q(RotuloDe(RotulosConfigura, nombre).ayuda));
    if constexpr (std::is_base_of_v<QAbstractButton, T>)
        control->setText(Q(RotuloDe(RotulosConfigura, nombre).leyenda));
    return control;
}

QPushButton* frmConfigura_ventana::Boton(std::string_view nombre, QWidget& padre,
                                         std::function<void()> rutina)
{
    auto* const boton = Nombra(new QPushButton(&padre), nombre);
    AlPulsar(*boton, std::move(rutina));
    return boton;
}

QCheckBox* frmConfigura_ventana::Casilla(std::string_view nombre, QWidget& padre,
                                         std::function<void(bool)> rutina)
{
    auto* const casilla = Nombra(new QCheckBox(&padre), nombre);
    connect(casilla, &QCheckBox::clicked, this,
            [this, rutina](bool tildada) { Suceso([&] { rutina(tildada); }); });
    return casilla;
}

QLabel* frmConfigura_ventana::Rotulo(std::string_view nombre, QWidget& control)
{
    auto* const rotulo = new QLabel(Q(RotuloDe(RotulosConfigura, nombre).leyenda), control.parentWidget());
    rotulo->setBuddy(&control);
    return rotulo;
}

void frmConfigura_ventana::Renglon(QGridLayout& grilla, QLineEdit* campo, std::string_view nombre,
                                   std::string ControlesConfigura::*texto, bool conAyuda)
{
    Nombra(campo, nombre);
    textos.push_back({campo, texto});
    forms::Refleja(*campo, c.*texto);
    campos.Agrega(*campo, [this, nombre] { return AlSalir(entorno.s, nombre); });
    const int fila = grilla.rowCount();
    grilla.addWidget(Rotulo(nombre, *campo), fila, 0);
    grilla.addWidget(campo, fila, 1);
    if (!conAyuda) return;
    grilla.addWidget(new QLabel(Q(RotuloDe(RotulosConfigura, nombre).ayuda), campo->parentWidget()), fila, 2);
    grilla.setColumnStretch(2, 1);
    campo->setFixedWidth(campo->fontMetrics().averageCharWidth() * LargoCampo);
    // The fields of both frames stand in one column.
    grilla.setColumnMinimumWidth(
        0, campo->fontMetrics().horizontalAdvance(Q(RotuloDe(RotulosConfigura, "txtN0Dur").leyenda)));
}

QLabel* frmConfigura_ventana::Dato(QGridLayout& grilla, QWidget& padre, std::string_view nombre)
{
    auto* const dato = new RotuloRuta(&padre);
    dato->setObjectName(Q(nombre));
    dato->setTextFormat(Qt::PlainText);
    const int fila = grilla.rowCount();
    grilla.addWidget(new QLabel(Q(RotuloDe(RotulosConfigura, nombre).leyenda), &padre), fila, 0);
    grilla.addWidget(dato, fila, 1);
    grilla.setColumnStretch(1, 1);
    return dato;
}

// --- directory and files ---

/// Three columns, each with its heading, its list, and what belongs to it below.
QWidget* frmConfigura_ventana::FichaDeArchivos()
{
    auto* const ficha = new QWidget;
    auto* const pila = new QVBoxLayout(ficha);
    auto* const columnas = new QGridLayout;
    pila->addLayout(columnas, 1);
    ColumnaDeDirectorios(*ficha, *columnas);
    ColumnaDeConfiguraciones(*ficha, *columnas);
    ColumnaDeImagenes(*ficha, *columnas);
    columnas->setRowStretch(1, 1);
    for (int columna = 0; columna < columnas->columnCount(); ++columna)
        columnas->setColumnStretch(columna, 1);
    auto* const uniforme =
        Casilla("CheckDistriPp", *ficha, [this](bool tildada) { Casilla_Click(c.CheckDistriPp, tildada); });
    tildes.push_back({uniforme, &c.CheckDistriPp});
    pila->addWidget(uniforme);
    return ficha;
}

void frmConfigura_ventana::ColumnaDeDirectorios(QWidget& padre, QGridLayout& columnas)
{
    Drive1 = Nombra(new QComboBox(&padre), "Drive1");
    QLabel* const unidad = Rotulo("Drive1", *Drive1);
    if constexpr (model::HayUnidades) {
        for (const QFileInfo& raiz : QDir::drives())
            Drive1->addItem(raiz.path().left(2));
    }
    unidad->setVisible(model::HayUnidades);
    Drive1->setVisible(model::HayUnidades);
    connect(Drive1, &QComboBox::textActivated, this, [this](const QString& elegida) {
        Suceso([&] { Drive1_Change(f, entorno.s, forms::DeQ(elegida)); });
    });

    Dir1 = Nombra(new QTreeView(&padre), "Dir1");
    Dir1->header()->hide();
    Dir1->setTabKeyNavigation(false);
    lblDir1 = new RotuloRuta(&padre);
    lblDir1->setObjectName(QStringLiteral("lblDir1"));
    auto* const cabeza = new QHBoxLayout;
    cabeza->addWidget(Rotulo("Dir1", *Dir1), 1);
    cabeza->addWidget(unidad);
    cabeza->addWidget(Drive1);
    columnas.addLayout(cabeza, 0, 0);
    columnas.addWidget(Dir1, 1, 0);

    CheckDirNv =
        Casilla("CheckDirNv", padre, [this](bool tildada) { CheckDirNv_Click(f, entorno.s, tildada); });
    TextDirNv = Nombra(new QLineEdit(&padre), "TextDirNv");
    TextDirNv->setAccessibleName(Q(RotuloDe(RotulosConfigura, "TextDirNv").leyenda));
    textos.push_back({TextDirNv, &ControlesConfigura::TextDirNv});
    forms::Refleja(*TextDirNv, c.TextDirNv);
    auto* const nuevo = new QHBoxLayout;
    nuevo->addWidget(TextDirNv, 1);
    nuevo->addWidget(Boton("BtnDirNv", padre, [this] { BtnDirNv(f, entorno.s); }));
    auto* const debajo = new QVBoxLayout;
    debajo->addWidget(lblDir1);
    debajo->addWidget(CheckDirNv);
    debajo->addLayout(nuevo);
    debajo->addWidget(Boton("BtnDefecto", padre, [this] { BtnDefecto(f, entorno.s); }));
    columnas.addLayout(debajo, 2, 0);
}

void frmConfigura_ventana::ColumnaDeConfiguraciones(QWidget& padre, QGridLayout& columnas)
{
    filArchivoConfigura = Nombra(new forms::ListaParaElegir(&padre), "filArchivoConfigura");
    filArchivoConfigura->AlElegir = [this](int i) {
        Suceso([this, i] {
            f.filArchivoConfigura.indice = i;
            filArchivoConfigura_Click(f, entorno.s);
        });
    };
    columnas.addWidget(Rotulo("filArchivoConfigura", *filArchivoConfigura), 0, 1);
    columnas.addWidget(filArchivoConfigura, 1, 1);
    auto* const datos = new QGridLayout;
    columnas.addLayout(datos, 2, 1, Qt::AlignTop);
    lblnombreproyecto = Dato(*datos, padre, "lblnombreproyecto");
    lblMiArchivoConf = Dato(*datos, padre, "lblMiArchivoConf");
}

void frmConfigura_ventana::ColumnaDeImagenes(QWidget& padre, QGridLayout& columnas)
{
    chkImagenDibujo = Casilla("chkImagenDibujo", padre,
                              [this](bool tildada) { chkImagenDibujo_Click(entorno.s, tildada); });
    tildes.push_back({chkImagenDibujo, &c.chkImagenDibujo});
    filArchivoImagenDib = Nombra(new forms::ListaParaElegir(&padre), "filArchivoImagenDib");
    filArchivoImagenDib->setAccessibleName(Q(RotuloDe(RotulosConfigura, "filArchivoImagenDib").leyenda));
    filArchivoImagenDib->AlElegir = [this](int i) {
        Suceso([this, i] {
            f.filArchivoImagenDib.indice = i;
            filArchivoImagenDib_Click(f, entorno.s);
        });
    };
    columnas.addWidget(chkImagenDibujo, 0, 2);
    columnas.addWidget(filArchivoImagenDib, 1, 2);
    auto* const datos = new QGridLayout;
    columnas.addLayout(datos, 2, 2, Qt::AlignTop);
    lblImagenDibujo = Dato(*datos, padre, "lblImagenDibujo");
    lblAvisoImagen = new QLabel(&padre);
    lblAvisoImagen->setObjectName(QStringLiteral("lblAvisoImagen"));
    lblAvisoImagen->setTextFormat(Qt::PlainText);
    lblAvisoImagen->setWordWrap(true);
    cmdTraeImagen = Boton("cmdTraeImagen", padre, [this] { shell::cmdTraeImagen(f, entorno.s); });
    datos->addWidget(lblAvisoImagen, datos->rowCount(), 0, 1, -1);
    datos->addWidget(cmdTraeImagen, datos->rowCount(), 0, 1, -1);
}

// --- titles ---

QWidget* frmConfigura_ventana::FichaDeTitulos()
{
    auto* const ficha = new QWidget;
    auto* const grilla = new QGridLayout(ficha);
    const auto renglon = [&](std::string_view nombre, std::string ControlesConfigura::*texto) {
        auto* const campo = new CampoTitulo(ficha);
        Renglon(*grilla, campo, nombre, texto);
        return campo;
    };
    renglon("TextProyecto", &ControlesConfigura::TextProyecto);
    renglon("TextUbica", &ControlesConfigura::TextUbica);
    renglon("TextCuenca", &ControlesConfigura::TextCuenca);
    renglon("TextSbca", &ControlesConfigura::TextSbca);
    renglon("TextOpera", &ControlesConfigura::TextOpera);
    renglon("txtFecha", &ControlesConfigura::txtFecha)->AlDobleClic = [this] {
        Suceso([this] { txtFecha_DblClick(entorno.s); });
    };
    grilla->setRowStretch(grilla->rowCount(), 1);
    return ficha;
}

// --- recurrences and durations ---

template <std::size_t N>
QWidget* frmConfigura_ventana::MarcoDeSeleccion(std::string_view titulo, char letra,
                                                const std::array<std::int16_t, N>& valores,
                                                std::array<std::int16_t, N>& casillas)
{
    constexpr int Columnas = 3;
    constexpr int Filas = (static_cast<int>(N) + Columnas - 1) / Columnas;
    auto* const marco = new QGroupBox(Q(titulo));
    auto* const pila = new QVBoxLayout(marco);
    auto* const grilla = new QGridLayout;
    pila->addLayout(grilla);
    for (std::size_t i = 0; i < N; ++i) {
        auto* const casilla =
            new QCheckBox(QStringLiteral("%1 %2").arg(QLatin1Char(letra)).arg(valores[i]), marco);
        casilla->setObjectName(QStringLiteral("Check%1%2").arg(QLatin1Char(letra)).arg(valores[i]));
        std::int16_t* const valor = &casillas[i];
        tildes.push_back({casilla, valor});
        connect(casilla, &QCheckBox::clicked, this,
                [this, valor](bool tildada) { Suceso([&] { Casilla_Click(*valor, tildada); }); });
        grilla->addWidget(casilla, static_cast<int>(i) % Filas, static_cast<int>(i) / Filas);
    }
    return marco;
}

QWidget* frmConfigura_ventana::FichaDeSelecciones()
{
    auto* const ficha = new QWidget;
    auto* const fila = new QHBoxLayout(ficha);
    const auto agrega = [&](QWidget* marco, std::string_view boton, std::function<void()> rutina) {
        auto* const pila = static_cast<QVBoxLayout*>(marco->layout());
        pila->addWidget(Boton(boton, *marco, std::move(rutina)), 0, Qt::AlignLeft);
        pila->addStretch(1);
        fila->addWidget(marco);
    };
    agrega(MarcoDeSeleccion(TituloRecurrencias, 'R', model::Recurrencias, c.CheckR), "BtnRecuDef",
           [this] { BtnRecuDef(c); });
    agrega(MarcoDeSeleccion(TituloDuraciones, 'D', model::Duraciones, c.CheckD), "BtnDurDef",
           [this] { BtnDurDef(c); });
    return ficha;
}

// --- image, units, drawing ---

QWidget* frmConfigura_ventana::MarcoDeImagen(QWidget& padre)
{
    auto* const marco = new QGroupBox(Q(TituloImagen), &padre);
    auto* const grilla = new QGridLayout(marco);
    const auto renglon = [&](std::string_view nombre, std::string ControlesConfigura::*texto) {
        Renglon(*grilla, new QLineEdit(marco), nombre, texto, true);
    };
    renglon("TexIMGEscala", &ControlesConfigura::TexIMGEscala);
    renglon("TexIMGX0", &ControlesConfigura::TexIMGX0);
    renglon("TexIMGY0", &ControlesConfigura::TexIMGY0);
    renglon("txtEscalaImagen", &ControlesConfigura::txtEscalaImagen);
    return marco;
}

QWidget* frmConfigura_ventana::MarcoDeDibujo(QWidget& padre)
{
    auto* const marco = new QGroupBox(Q(TituloDibujo), &padre);
    auto* const grilla = new QGridLayout(marco);
    auto* const ancho = new QLineEdit(marco);
    Renglon(*grilla, ancho, "txtMaxUEHsPixel", &ControlesConfigura::txtMaxUEHsPixel, true);
    connect(ancho, &QLineEdit::textEdited, this, [this] {
        entorno.Atiende([this] { AlSalir(entorno.s, "txtMaxUEHsPixel"); });
        Muestra();
    });
    Renglon(*grilla, new QLineEdit(marco), "txtN0Dur", &ControlesConfigura::txtN0Dur, true);
    return marco;
}

QWidget* frmConfigura_ventana::MarcoDeOpciones(std::string_view pregunta, QWidget& padre)
{
    auto* const marco = new QGroupBox(Q(pregunta), &padre);
    auto* const pila = new QVBoxLayout(marco);
    for (std::size_t i = 0; i < OpcionesConfigura.size(); ++i) {
        if (OpcionesConfigura[i].pregunta != pregunta) continue;
        opciones[i] = new QRadioButton(Q(OpcionesConfigura[i].leyenda), marco);
        opciones[i]->setObjectName(Q(OpcionesConfigura[i].control));
        AlPulsar(*opciones[i], [this, i] { Opcion_Click(entorno.s, i); });
        pila->addWidget(opciones[i]);
    }
    pila->addStretch(1);
    return marco;
}

QWidget* frmConfigura_ventana::FichaDeImagen()
{
    auto* const ficha = new QWidget;
    auto* const pila = new QVBoxLayout(ficha);
    pila->addWidget(MarcoDeImagen(*ficha));
    pila->addWidget(MarcoDeDibujo(*ficha));
    auto* const marcos = new QHBoxLayout;
    for (const std::string_view pregunta : {"Tiempo", "Volúmenes", "Opciones"})
        marcos->addWidget(MarcoDeOpciones(pregunta, *ficha));
    pila->addLayout(marcos);
    auto* const libre = new QGridLayout;
    pila->addLayout(libre);
    Renglon(*libre, new QLineEdit(ficha), "TexS", &ControlesConfigura::TexS);
    pila->addStretch(1);
    return ficha;
}

// --- buttons ---

QLayout* frmConfigura_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    fila->addStretch(1);
    QPushButton* const acepta = Boton("OKButton", *this, [this] { OKButton(f, entorno.s); });
    acepta->setDefault(true);
    fila->addWidget(acepta);
    fila->addWidget(Boton("cmdAplicar", *this, [this] { cmdAplicar(f, entorno.s); }));
    auto* const cancela = Nombra(new QPushButton(this), "CancelButton");
    connect(cancela, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    fila->addWidget(cancela);
    return fila;
}

}  // namespace shell
