// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgImportaTormenta_ventana.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Textos_ventana.h"

namespace rainfall {

using forms::Pon;
using forms::Q;

dlgImportaTormenta_ventana::dlgImportaTormenta_ventana(forms::Entorno& alrededor,
                                                       dlgImportaTormenta& registro, QWidget* padre)
    : Formulario(alrededor, {"dlgImportaTormenta"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgImportaTormenta));
    auto* const pila = new QVBoxLayout(this);
    auto* const grilla = new QGridLayout;
    grilla->setColumnStretch(1, 1);
    pila->addLayout(grilla);
    const auto dato = [&](std::string_view nombre) {
        QLabel* const texto = piezas.Texto(nombre);
        const int fila = grilla->rowCount();
        grilla->addWidget(piezas.Rotulo(nombre, *texto), fila, 0, Qt::AlignTop);
        grilla->addWidget(texto, fila, 1);
        return texto;
    };
    lblArchivo = dato("lblArchivo");
    lblRegistro = dato("lblRegistro");
    cmbPaso = piezas.Lista("cmbPaso", true);
    const int fila = grilla->rowCount();
    grilla->addWidget(piezas.Rotulo("cmbPaso", *cmbPaso), fila, 0);
    grilla->addWidget(cmbPaso, fila, 1, Qt::AlignLeft);
    forms::Refleja(*cmbPaso, f.cmbPaso);
    connect(cmbPaso, &QComboBox::editTextChanged, this, [this] { Suceso([this] { cmbPaso_Change(f); }); });
    lblResultado = dato("lblResultado");
    pila->addWidget(MarcoDeDudosos());

    tabla = new forms::TablaGrilla(entorno, f.grillaImportada, "grillaImportada",
                                   piezas.De("grillaImportada").leyenda);
    lamina = new forms::Lamina(entorno, "laminaImportada", piezas.De("laminaImportada").leyenda,
                               forms::Lamina::Modo::Compacta);
    pila->addWidget(piezas.TablaConLamina(*tabla, *lamina), 1);

    auto* const botones = new QHBoxLayout;
    botones->addStretch(1);
    acepta = piezas.Boton("OKButton");
    acepta->setDefault(true);
    AlPulsar(*acepta, [this] { OKButton(f); });
    botones->addWidget(acepta);
    QPushButton* const cancela = piezas.Boton("CancelButton");
    connect(cancela, &QPushButton::clicked, this, [this] { reject(); });
    botones->addWidget(cancela);
    pila->addLayout(botones);
}

/// What the user should look at before the storm is taken; hidden where there is nothing.
QGroupBox* dlgImportaTormenta_ventana::MarcoDeDudosos()
{
    constexpr int Filas = 4;
    QGroupBox* const marco = piezas.Marco("grillaDudosos");
    dudosos =
        new forms::TablaGrilla(entorno, f.grillaDudosos, "grillaDudosos", piezas.De("grillaDudosos").leyenda);
    dudosos->horizontalHeader()->setStretchLastSection(true);
    const int alto = dudosos->fontMetrics().height();
    dudosos->verticalHeader()->setDefaultSectionSize(alto * 3 / 2);
    dudosos->setFixedHeight(dudosos->horizontalHeader()->sizeHint().height() + 2 * dudosos->frameWidth() +
                            Filas * dudosos->verticalHeader()->defaultSectionSize());
    (new QVBoxLayout(marco))->addWidget(dudosos);
    marco->setVisible(f.grillaDudosos.NroFilas() > 0);
    return marco;
}

void dlgImportaTormenta_ventana::Abre()
{
    Muestra();
    Acomoda(*this, *tabla);
    entorno.Ejecuta(*this);
}

void dlgImportaTormenta_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

void dlgImportaTormenta_ventana::Muestra()
{
    Pon(*lblArchivo, f.lblArchivo);
    Pon(*lblRegistro, f.lblRegistro);
    Pon(*cmbPaso, f.itemsPaso, f.cmbPaso);
    Pon(*lblResultado, f.lblResultado);
    acepta->setEnabled(f.puedeImportar);
    dudosos->Muestra();
    tabla->Muestra();
    lamina->Muestra(Vista(f));
    if (!f.abierta && isVisible()) done(f.aceptada ? QDialog::Accepted : QDialog::Rejected);
}

}  // namespace rainfall
