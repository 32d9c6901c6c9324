// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgDisPpPer_ventana.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Textos_ventana.h"

namespace rainfall {

using forms::Pon;
using forms::Q;

dlgDisPpPer_ventana::dlgDisPpPer_ventana(forms::Entorno& alrededor, dlgDisPpPer& registro, dlgPp& tormenta,
                                         QWidget* padre)
    : FormaDeTabla_ventana(alrededor, "dlgDisPpPer", TituloDlgDisPpPer, LeyendasDlgDisPpPer, padre),
      f(registro),
      pp(tormenta)
{
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Datos());
    pila->addWidget(Validez());
    QGroupBox* const marco = HazTabla(f.MSFlexGridDisPerso, "MSFlexGridDisPerso", "laminaDisPpPer");
    tabla->AlCambiar = [this](const forms::Efecto& efecto) {
        AlAsentar(f, entorno.s, efecto);
        Muestra();
    };
    pila->addWidget(marco, 1);
    pila->addLayout(Botones());
}

QLayout* dlgDisPpPer_ventana::Datos()
{
    auto* const grilla = new QGridLayout;
    cmbNroTablaDisPpPer = piezas.Lista("cmbNroTablaDisPpPer");
    connect(cmbNroTablaDisPpPer, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbNroTablaDisPpPer.indice = i;
            cmbNroTablaDisPpPer_Click(f, pp, entorno.s);
        });
    });
    txtNotas = piezas.Campo("txtNotas");
    connect(txtNotas, &QLineEdit::textEdited, this, [this](const QString& texto) {
        f.txtNotas = forms::DeQ(texto);
        txtNotas_Change(f, entorno.s);
    });
    txtNroPer = piezas.Campo("txtNroPer");
    forms::Refleja(*txtNroPer, f.txtNroPer);
    campos.Agrega(*txtNroPer, [this] { return txtNroPer_AlSalir(f, entorno.s); });

    int fila = 0;
    const auto renglon = [&](std::string_view nombre, QWidget& control, Qt::Alignment lugar = {}) {
        grilla->addWidget(piezas.Rotulo(nombre, control), fila, 0);
        grilla->addWidget(&control, fila++, 1, lugar);
    };
    renglon("cmbNroTablaDisPpPer", *cmbNroTablaDisPpPer, Qt::AlignLeft);
    renglon("txtNotas", *txtNotas);
    renglon("txtNroPer", *txtNroPer, Qt::AlignLeft);
    grilla->setColumnStretch(1, 1);
    return grilla;
}

QWidget* dlgDisPpPer_ventana::Validez()
{
    QGroupBox* const marco = piezas.Marco("MarcoValidez");
    auto* const pila = new QVBoxLayout(marco);
    pila->addWidget(new QLabel(Q(piezas.De("lblValidez").leyenda), marco));
    auto* const fila = new QHBoxLayout;
    pila->addLayout(fila);
    const auto limite = [&](std::string_view nombre) {
        QComboBox* const lista = piezas.Lista(nombre);
        fila->addWidget(piezas.Rotulo(nombre, *lista));
        fila->addWidget(lista);
        return lista;
    };
    cmbDurMin = limite("cmbDurMin");
    fila->addSpacing(fontMetrics().averageCharWidth() * 4);
    cmbDurMax = limite("cmbDurMax");
    fila->addStretch(1);
    connect(cmbDurMin, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbDurMin.indice = i;
            cmbDurMin_Click(f, entorno.s);
        });
    });
    // Its own check, on leaving it, must not keep a limit from being corrected.
    connect(cmbDurMax, &QComboBox::activated, this, [this](int i) {
        SucesoSinRevisar([this, i] {
            f.cmbDurMax.indice = i;
            cmbDurMax_Click(f, entorno.s);
        });
    });
    campos.Agrega(*cmbDurMax, [this] { return cmbDurMax_AlSalir(f, entorno.s); });
    return marco;
}

QLayout* dlgDisPpPer_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    Agrega(*fila, "cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, entorno.s); });
    AgregaFinales(
        *fila, [this] { cmdAplicar(f, entorno.s); }, [this] { OKButton(f, entorno.s); });
    return fila;
}

bool dlgDisPpPer_ventana::AbreForma()
{
    rainfall::Abre(f, pp, entorno.s);
    return f.abierta;
}

void dlgDisPpPer_ventana::Cancela()
{
    CancelButton(f);
}

void dlgDisPpPer_ventana::Muestra()
{
    Pon(*cmbNroTablaDisPpPer, f.cmbNroTablaDisPpPer.items, f.cmbNroTablaDisPpPer.indice);
    Pon(*txtNotas, f.txtNotas);
    Pon(*txtNroPer, f.txtNroPer);
    Pon(*cmbDurMin, f.cmbDurMin.items, f.cmbDurMin.indice);
    Pon(*cmbDurMax, f.cmbDurMax.items, f.cmbDurMax.indice);
    MuestraTabla(Vista(f), f.foco, f.abierta);
}

}  // namespace rainfall
