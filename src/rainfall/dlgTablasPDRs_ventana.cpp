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
    : Formulario(alrededor, "dlgTablasPDRs", padre), f(registro), pp(tormenta)
{
    setWindowTitle(Q(TituloDlgTablasPDRs));
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Datos());
    tabla = new forms::TablaGrilla(entorno, f.MSFlexGridTablaPDRs, "MSFlexGridTablaPDRs",
                                   piezas.De("MSFlexGridTablaPDRs").leyenda);
    tabla->AlCambiar = [this](const forms::Efecto&) { Muestra(); };
    lamina = new forms::Lamina(entorno, "laminaTablasPDRs", piezas.De("laminaTablasPDRs").leyenda,
                               forms::Lamina::Modo::Compacta);
    pila->addWidget(piezas.TablaConLamina(*tabla, *lamina), 1);
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
    const auto boton = [&](std::string_view nombre, auto rutina) {
        QPushButton* const b = piezas.Boton(nombre);
        AlPulsar(*b, rutina);
        fila->addWidget(b);
        return b;
    };
    cmdBorra = boton("cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, entorno.s); });
    fila->addStretch(1);
    boton("cmdAplicar", [this] { cmdAplicar(f, pp, entorno.s); });
    boton("OKButton", [this] { OKButton(f, pp, entorno.s); });
    QPushButton* const cancela = piezas.Boton("CancelButton");
    connect(cancela, &QPushButton::clicked, this, [this] { reject(); });
    fila->addWidget(cancela);
    return fila;
}

void dlgTablasPDRs_ventana::Abre()
{
    rainfall::Abre(f, pp, entorno.s);
    Muestra();
    Acomoda(*this, *tabla);
    entorno.Ejecuta(*this);
}

void dlgTablasPDRs_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
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
    tabla->Muestra();
    lamina->Muestra(Vista(f, entorno.s));
    LlevaFoco(*this, f.foco);
    if (!f.abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace rainfall
