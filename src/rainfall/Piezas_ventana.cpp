// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/Piezas_ventana.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>

#include "forms/Textos_ventana.h"

namespace rainfall {

using forms::Q;

forms::FilaRotulo Piezas::De(std::string_view nombre) const
{
    return forms::RotuloDe(leyendas, nombre);
}

void Piezas::Nombra(QWidget& control, std::string_view nombre) const
{
    const forms::FilaRotulo fila = De(nombre);
    control.setObjectName(Q(nombre));
    if (!fila.ayuda.empty()) control.setToolTip(Q(fila.ayuda));
    if (!fila.lector.empty()) control.setAccessibleName(Q(fila.lector));
}

QLineEdit* Piezas::Campo(std::string_view nombre) const
{
    auto* const campo = new QLineEdit(&ventana);
    Nombra(*campo, nombre);
    return campo;
}

QComboBox* Piezas::Lista(std::string_view nombre, bool conTexto) const
{
    auto* const lista = new QComboBox(&ventana);
    Nombra(*lista, nombre);
    if (conTexto) {
        lista->setEditable(true);
        lista->setInsertPolicy(QComboBox::NoInsert);
        lista->setCompleter(nullptr);  // it would make "10" of a "1"
    }
    return lista;
}

QPushButton* Piezas::Boton(std::string_view nombre) const
{
    auto* const boton = new QPushButton(Q(De(nombre).leyenda), &ventana);
    Nombra(*boton, nombre);
    boton->setAutoDefault(false);
    return boton;
}

QRadioButton* Piezas::Opcion(std::string_view nombre) const
{
    auto* const opcion = new QRadioButton(Q(De(nombre).leyenda), &ventana);
    Nombra(*opcion, nombre);
    return opcion;
}

QGroupBox* Piezas::Marco(std::string_view nombre) const
{
    auto* const marco = new QGroupBox(Q(De(nombre).leyenda), &ventana);
    marco->setObjectName(QStringLiteral("marco_") + Q(nombre));
    return marco;
}

QLabel* Piezas::Rotulo(std::string_view nombre, QWidget& control) const
{
    auto* const rotulo = new QLabel(Q(De(nombre).leyenda), &ventana);
    rotulo->setObjectName(QStringLiteral("rotulo_") + Q(nombre));
    rotulo->setBuddy(&control);
    return rotulo;
}

QLabel* Piezas::Texto(std::string_view nombre) const
{
    auto* const texto = new QLabel(&ventana);
    Nombra(*texto, nombre);
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    return texto;
}

QGroupBox* Piezas::TablaConLamina(forms::TablaGrilla& tabla, forms::Lamina& lamina) const
{
    const std::string nombre = forms::DeQ(tabla.objectName());
    QGroupBox* const marco = Marco(nombre);
    tabla.setToolTip(Q(De(nombre).ayuda));
    constexpr int LetrasDeAncho = 48;
    lamina.setMinimumWidth(LetrasDeAncho * ventana.fontMetrics().averageCharWidth());
    auto* const fila = new QHBoxLayout(marco);
    fila->addWidget(&tabla);
    fila->addWidget(&lamina, 1);
    return marco;
}

void Acomoda(QWidget& ventana, forms::TablaGrilla& tabla)
{
    constexpr int Filas = 10;
    constexpr int EntreFilas = 8;  // [pixels at 96 dpi]
    tabla.verticalHeader()->setMinimumSectionSize(tabla.fontMetrics().height());
    tabla.verticalHeader()->setDefaultSectionSize(tabla.fontMetrics().height() + EntreFilas);
    const int bordes = 2 * tabla.frameWidth();
    tabla.setMinimumWidth(tabla.horizontalHeader()->length() + bordes +
                          tabla.verticalScrollBar()->sizeHint().width());
    tabla.setMinimumHeight(tabla.horizontalHeader()->sizeHint().height() + bordes +
                           Filas * tabla.verticalHeader()->defaultSectionSize());

    // Where a text wraps, the toolkit leaves its height out of the window's own.
    QLayout* const disposicion = ventana.layout();
    disposicion->activate();
    const QSize tamano = disposicion->totalSizeHint().expandedTo(disposicion->totalMinimumSize());
    const int alto = disposicion->hasHeightForWidth() ? disposicion->totalHeightForWidth(tamano.width()) : 0;
    ventana.setMinimumSize(disposicion->totalMinimumSize());
    ventana.resize(tamano.expandedTo({0, alto}));
}

void LlevaFoco(QWidget& ventana, forms::Foco& foco)
{
    if (foco.control.empty()) return;
    auto* const control = ventana.findChild<QWidget*>(Q(foco.control));
    const bool todo = foco.todoSeleccionado;
    foco = {};
    if (control == nullptr) return;
    control->setFocus(Qt::OtherFocusReason);
    auto* const campo = qobject_cast<QLineEdit*>(control);
    if (campo != nullptr && todo) campo->selectAll();
}

}  // namespace rainfall
