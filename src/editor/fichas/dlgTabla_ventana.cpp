// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgTabla_ventana.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <utility>

#include "editor/fichas/Ficha.h"
#include "editor/fichas/GraficosDeFichas.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

using forms::DeQ;
using forms::Pon;
using forms::Q;

dlgTabla_ventana::dlgTabla_ventana(forms::Entorno& alrededor, dlgTabla& registro, TipoTabla tipoTabla,
                                   QWidget* padre)
    : Formulario(alrededor, {DescripcionDe(tipoTabla).nombre}, padre),
      f(registro),
      tipo(tipoTabla),
      d(DescripcionDe(tipoTabla))
{
    setWindowTitle(Q(d.titulo));
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Encabezado());
    auto* const cuerpo = new QHBoxLayout;
    pila->addLayout(cuerpo, 1);

    f = {.descripcion = &d, .grilla = forms::NuevaGrilla(d.grilla)};
    tabla = new forms::TablaGrilla(entorno, f.grilla, d.nombreGrilla, d.titulo);
    tabla->AlCambiar = [this](const forms::Efecto&) { PonCurvas(); };
    cuerpo->addWidget(tabla);
    auto* const laminas = new QVBoxLayout;
    cuerpo->addLayout(laminas, 1);
    for (const CurvaTabla& curva : Curvas(f)) {
        const std::string nombre = "Curva_" + std::to_string(curvas.size());
        const std::string titulo = std::string(curva.ejeY) + " - " + std::string(curva.ejeX);
        curvas.push_back(new forms::Lamina(entorno, nombre, titulo, forms::Lamina::Modo::Compacta));
        laminas->addWidget(curvas.back(), 1);
    }
    pila->addLayout(Botones());
    resize(TamanoInicial());
}

/// Wide enough for all columns and a readable curve, high enough for a table of usual length.
QSize dlgTabla_ventana::TamanoInicial() const
{
    constexpr int Filas = 20, AnchoCurva = 55;  // rows in sight, [characters]
    int ancho = tabla->verticalScrollBar()->sizeHint().width() + 2 * tabla->frameWidth();
    for (int c = 0; c < f.grilla.NroColumnas(); ++c)
        ancho += tabla->columnWidth(c);
    tabla->setMinimumWidth(ancho);
    const int alto = Filas * tabla->verticalHeader()->defaultSectionSize();
    return {ancho + AnchoCurva * fontMetrics().averageCharWidth(), alto};
}

QLabel* dlgTabla_ventana::Dato(QGridLayout& grilla, std::string_view nombre, const char* leyenda)
{
    auto* const valor = new QLabel;
    valor->setObjectName(Q(nombre));
    valor->setTextFormat(Qt::PlainText);
    QFont letra = valor->font();
    letra.setBold(true);
    valor->setFont(letra);
    const int columna = grilla.columnCount();
    grilla.addWidget(new QLabel(QString::fromUtf8(leyenda)), 0, columna);
    grilla.addWidget(valor, 0, columna + 1);
    return valor;
}

QLayout* dlgTabla_ventana::Encabezado()
{
    auto* const grilla = new QGridLayout;
    const bool deLago = tipo == TipoTabla::SHVQ;
    lblNro = Dato(*grilla, d.nombreLblNro, deLago ? "Nro. Laguna:" : "Nro. Represa:");
    lblNombre = Dato(*grilla, d.nombreLblNombre, deLago ? "Nombre Laguna:" : "Nombre Represa:");
    txtNroFilas = new QLineEdit;
    txtNroFilas->setObjectName(QStringLiteral("txtNroFilas"));
    txtNroFilas->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    connect(txtNroFilas, &QLineEdit::textEdited, this, [this](const QString& texto) {
        SucesoSinRevisar([&] { txtNroFilas_Change(f, entorno.s, DeQ(texto)); });
    });
    auto* const rotulo = new QLabel(QStringLiteral("Número de &filas:"));
    rotulo->setBuddy(txtNroFilas);
    const int columna = grilla->columnCount();
    grilla->setColumnStretch(columna, 1);
    grilla->addWidget(rotulo, 0, columna + 1);
    grilla->addWidget(txtNroFilas, 0, columna + 2);
    return grilla;
}

QPushButton* dlgTabla_ventana::Boton(const char* nombre, std::string_view leyenda)
{
    auto* const boton = new QPushButton(Q(leyenda));
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(false);  // Enter is the grid's
    return boton;
}

QLayout* dlgTabla_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    QPushButton* const borra = Boton("cmdBorraTablaHQ", LeyendaBorrarTabla);
    QPushButton* const aplica = Boton("cmdAplicar", LeyendaAplicarTabla);
    QPushButton* const acepta = Boton("OKButton", LeyendaAceptar);
    QPushButton* const cancela = Boton("CancelButton", LeyendaCancelar);
    AlPulsar(*borra, [this] { cmdBorraTablaHQ(f); });
    AlPulsar(*aplica, [this] {
        cmdAplicar(f, entorno.s);
        AlCambiarTablas();
    });
    AlPulsar(*acepta, [this] {
        OKButton(f, entorno.s);
        AlCambiarTablas();
    });
    connect(cancela, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    fila->addWidget(borra);
    fila->addStretch(1);
    fila->addWidget(aplica);
    fila->addWidget(acepta);
    fila->addWidget(cancela);
    return fila;
}

void dlgTabla_ventana::Abre(std::string nro, std::string nombre)
{
    editor::Abre(f, entorno.s, tipo, std::move(nro), std::move(nombre));
    AlCambiarTablas();
    Muestra();
    // Without rows there is nothing to type into but their number.
    (f.grilla.NroFilas() == 0 ? static_cast<QWidget*>(txtNroFilas) : tabla)->setFocus();
    entorno.Ejecuta(*this);
}

void dlgTabla_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

void dlgTabla_ventana::PonCurvas()
{
    const std::vector<CurvaTabla> nuevas = Curvas(f);
    for (std::size_t i = 0; i < curvas.size() && i < nuevas.size(); ++i) {
        curvas[i]->PonTema(f.lblNombre, f.lblNombre);
        curvas[i]->Muestra(GraficoDe(nuevas[i]));
    }
}

void dlgTabla_ventana::Muestra()
{
    Pon(*lblNro, f.lblNro);
    Pon(*lblNombre, f.lblNombre);
    Pon(*txtNroFilas, f.txtNroFilas);
    tabla->Muestra();
    PonCurvas();
    if (std::exchange(f.foco, {}).todoSeleccionado) {
        txtNroFilas->setFocus(Qt::OtherFocusReason);
        txtNroFilas->selectAll();
    }
    if (!f.abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace editor
