// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablasPDRs_ventana.h"

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

dlgTablasPDRs_ventana::dlgTablasPDRs_ventana(forms::Entorno& alrededor, dlgTablasPDRs& registro,
                                             dlgPp& tormenta, QWidget* padre)
    : FormaDeTabla_ventana(alrededor, "dlgTablasPDRs", TituloDlgTablasPDRs, LeyendasDlgTablasPDRs, padre),
      f(registro),
      pp(tormenta)
{
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Datos());
    QGroupBox* const marco = HazTabla(f.MSFlexGridTablaPDRs, "MSFlexGridTablaPDRs", "laminaTablasPDRs");
    pila->addWidget(marco, 1);
    pila->addWidget(Notas());
    pila->addLayout(Botones());
}

QLayout* dlgTablasPDRs_ventana::Datos()
{
    auto* const grilla = new QGridLayout;
    cmbNroTablaPDRs = piezas.Lista("cmbNroTablaPDRs");
    connect(cmbNroTablaPDRs, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbNroTablaPDRs.indice = i;
            cmbNroTablaPDRs_Click(f, pp, entorno.s);
        });
    });
    txtNroPDRs = piezas.Campo("txtNroPDRs");
    forms::Refleja(*txtNroPDRs, f.txtNroPDRs);
    campos.Agrega(*txtNroPDRs, [this] { return txtNroPDRs_AlSalir(f, entorno.s); });
    txtNotas = piezas.Campo("txtNotas");
    connect(txtNotas, &QLineEdit::textEdited, this, [this](const QString& texto) {
        f.txtNotas = forms::DeQ(texto);
        txtNotas_Change(f, entorno.s);
    });
    lblNotas = piezas.Texto("lblNotas");
    rotuloNotas = piezas.Rotulo("txtNotas", *txtNotas);
    rotuloLblNotas = piezas.Rotulo("lblNotas", *lblNotas);

    grilla->addWidget(piezas.Rotulo("cmbNroTablaPDRs", *cmbNroTablaPDRs), 0, 0);
    grilla->addWidget(cmbNroTablaPDRs, 0, 1, Qt::AlignLeft);
    grilla->addWidget(piezas.Rotulo("txtNroPDRs", *txtNroPDRs), 1, 0);
    grilla->addWidget(txtNroPDRs, 1, 1, Qt::AlignLeft);
    // One of the two is shown.
    grilla->addWidget(rotuloNotas, 2, 0);
    grilla->addWidget(txtNotas, 2, 1);
    grilla->addWidget(rotuloLblNotas, 3, 0, Qt::AlignTop);
    grilla->addWidget(lblNotas, 3, 1);
    grilla->setColumnStretch(1, 1);
    return grilla;
}

QWidget* dlgTablasPDRs_ventana::Notas()
{
    QGroupBox* const marco = piezas.Marco("MarcoNotas");
    auto* const pila = new QVBoxLayout(marco);
    for (const std::string_view nota : NotasFijasPDRs) {
        auto* const rotulo = new QLabel(Q(nota), marco);
        rotulo->setWordWrap(true);
        pila->addWidget(rotulo);
    }
    return marco;
}

QLayout* dlgTablasPDRs_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    cmdBorra = Agrega(*fila, "cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, entorno.s); });
    AgregaFinales(
        *fila, [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); });
    return fila;
}

bool dlgTablasPDRs_ventana::AbreForma()
{
    rainfall::Abre(f, pp, entorno.s);
    return f.abierta;
}

void dlgTablasPDRs_ventana::Cancela()
{
    CancelButton(f);
}

void dlgTablasPDRs_ventana::Muestra()
{
    Pon(*cmbNroTablaPDRs, f.cmbNroTablaPDRs.items, f.cmbNroTablaPDRs.indice);
    Pon(*txtNroPDRs, f.txtNroPDRs);
    Pon(*txtNotas, f.txtNotas);
    Pon(*lblNotas, f.txtNotas);
    txtNroPDRs->setReadOnly(!f.editable);
    for (QWidget* w : {static_cast<QWidget*>(txtNotas), static_cast<QWidget*>(rotuloNotas)})
        w->setVisible(f.editable);
    for (QWidget* w : {lblNotas, rotuloLblNotas})
        w->setVisible(!f.editable);
    cmdBorra->setEnabled(f.editable);
    MuestraTabla(Vista(f, entorno.s), f.foco, f.abierta);
}

}  // namespace rainfall
