// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPpReal_ventana.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <string>

#include "forms/Textos_ventana.h"
#include "rainfall/dlgImportaTormenta_ventana.h"

namespace rainfall {

using forms::Pon;
using forms::Q;

dlgPpReal_ventana::dlgPpReal_ventana(forms::Entorno& alrededor, dlgPpReal& registro, dlgPp& tormenta,
                                     QWidget* padre)
    : FormaDeTabla_ventana(alrededor, "dlgPpReal", TituloDlgPpReal, LeyendasDlgPpReal, padre),
      f(registro),
      pp(tormenta)
{
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    auto* const arriba = new QHBoxLayout;
    arriba->addLayout(Archivos(), 1);
    arriba->addLayout(Datos(), 1);
    pila->addLayout(arriba);

    QGroupBox* const marco = HazTabla(f.MSFlexGridTablaPpReal, "MSFlexGridTablaPpReal", "laminaPpReal");
    tabla->AlCambiar = [this](const forms::Efecto& efecto) {
        AlAsentar(f, entorno.s, efecto);
        Muestra();
    };
    pila->addWidget(marco, 1);
    pila->addLayout(Botones());

    entorno.AlActivarse(*this, [this] {
        rainfall::AlActivarse(f, pp, entorno.s);
        Muestra();
    });
}

QLayout* dlgPpReal_ventana::Archivos()
{
    auto* const grilla = new QGridLayout;
    lblMiFilePpReal = piezas.Texto("lblMiFilePpReal");
    lblMiFilePpReal->setWordWrap(false);
    QFont negrita = lblMiFilePpReal->font();
    negrita.setBold(true);
    lblMiFilePpReal->setFont(negrita);
    FilePpReal = new forms::ListaParaElegir(this);
    piezas.Nombra(*FilePpReal, "FilePpReal");
    FilePpReal->AlElegir = [this](int i) {
        Suceso([this, i] {
            f.FilePpReal.indice = i;
            FilePpReal_Click(f, entorno.s);
        });
    };
    grilla->addWidget(piezas.Rotulo("lblMiFilePpReal", *FilePpReal), 0, 0);
    grilla->addWidget(lblMiFilePpReal, 0, 1);
    grilla->addWidget(FilePpReal, 1, 0, 1, 2);
    grilla->setColumnStretch(1, 1);

    auto* const fila = new QHBoxLayout;
    QPushButton* const nueva = piezas.Boton("cmdNuevaPpReal");
    AlPulsar(*nueva, [this] { cmdNuevaPpReal(f, entorno.s); });
    cmdImporta = piezas.Boton("cmdImporta");
    AlPulsar(*cmdImporta, [this] { Importa(); });
    fila->addWidget(nueva);
    fila->addWidget(cmdImporta);
    fila->addStretch(1);
    grilla->addLayout(fila, 2, 0, 1, 2);
    return grilla;
}

QLayout* dlgPpReal_ventana::Datos()
{
    auto* const grilla = new QGridLayout;
    const auto campo = [this](std::string_view nombre, std::string& texto) {
        QLineEdit* const linea = piezas.Campo(nombre);
        forms::Refleja(*linea, texto);
        return linea;
    };
    const auto revisado = [this, &campo](std::string_view nombre, std::string& texto) {
        QLineEdit* const linea = campo(nombre, texto);
        campos.Agrega(*linea, [this, nombre] { return AlSalir(f, entorno.s, nombre); });
        return linea;
    };
    const auto renglon = [&](int fila, std::string_view nombre, QWidget* control, QWidget* otro = nullptr) {
        grilla->addWidget(piezas.Rotulo(nombre, *control), fila, 0);
        grilla->addWidget(control, fila, 1, 1, otro == nullptr ? 2 : 1);
        if (otro != nullptr) grilla->addWidget(otro, fila, 2);
    };
    txtNotas = campo("txtNotas", f.tormenta.Notas);
    txtDateI = revisado("txtDateI", f.tormenta.txtDateI);
    txtTimeI = revisado("txtTimeI", f.tormenta.txtTimeI);
    optNroPpReal = {piezas.Opcion("optNroPpReal_0"), piezas.Opcion("optNroPpReal_1")};
    for (std::size_t i = 0; i < optNroPpReal.size(); ++i)
        AlPulsar(*optNroPpReal[i], [this, i] { optNroPpReal_Click(f, static_cast<int>(i)); });
    txtDateF = revisado("txtDateF", f.tormenta.txtDateF);
    txtTimeF = revisado("txtTimeF", f.tormenta.txtTimeF);
    cmbPasot = piezas.Lista("cmbPasot", true);
    cmbPasot->lineEdit()->setReadOnly(true);
    connect(cmbPasot, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbPasot = f.itemsPasot[static_cast<std::size_t>(i)];
            cmbPasot_Click(f, entorno.s);
        });
    });
    txtNroPpReal = revisado("txtNroPpReal", f.txtNroPpReal);
    renglon(0, "txtNotas", txtNotas);
    renglon(1, "txtDateI", txtDateI, txtTimeI);
    grilla->addWidget(optNroPpReal[0], 2, 0, 1, 3);
    grilla->addWidget(optNroPpReal[1], 3, 0, 1, 3);
    renglon(4, "txtDateF", txtDateF, txtTimeF);
    renglon(5, "cmbPasot", cmbPasot);
    renglon(6, "txtNroPpReal", txtNroPpReal);
    grilla->setRowStretch(7, 1);
    return grilla;
}

QLayout* dlgPpReal_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    Agrega(*fila, "cmdVerGrafico", [this] { AbreHietograma(cmdVerGrafico(f, entorno.s)); });
    Agrega(*fila, "cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, pp, entorno.s); });
    AgregaFinales(
        *fila, [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); });
    return fila;
}

void dlgPpReal_ventana::Importa()
{
    dlgImportaTormenta importa;
    if (!rainfall::Abre(importa, entorno.s)) return;
    dlgImportaTormenta_ventana ventana(entorno, importa, this);
    ventana.Abre();
    if (importa.aceptada) TomaImportada(f, entorno.s, importa.tormenta);
}

bool dlgPpReal_ventana::AbreForma()
{
    rainfall::Abre(f, pp, entorno.s);
    return f.abierta;
}

void dlgPpReal_ventana::Cancela()
{
    CancelButton(f);
}

void dlgPpReal_ventana::Muestra()
{
    Pon(*FilePpReal, f.FilePpReal.items, f.FilePpReal.indice);
    Pon(*lblMiFilePpReal, f.lblMiFilePpReal);
    Pon(*txtNotas, f.tormenta.Notas);
    Pon(*txtDateI, f.tormenta.txtDateI);
    Pon(*txtTimeI, f.tormenta.txtTimeI);
    Pon(*txtDateF, f.tormenta.txtDateF);
    Pon(*txtTimeF, f.tormenta.txtTimeF);
    Pon(*cmbPasot, f.itemsPasot, f.cmbPasot);
    Pon(*txtNroPpReal, f.txtNroPpReal);
    forms::PonOpciones(optNroPpReal, f.optNroPpReal);
    for (QLineEdit* campo : {txtDateF, txtTimeF})
        campo->setEnabled(f.FinalEditable());
    txtNroPpReal->setEnabled(!f.FinalEditable());
    cmdImporta->setEnabled(!f.Protegida);
    MuestraTabla(Vista(f), f.foco, f.abierta);
}

}  // namespace rainfall
