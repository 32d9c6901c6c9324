// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablaPpUEHs_ventana.h"

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

dlgTablaPpUEHs_ventana::dlgTablaPpUEHs_ventana(forms::Entorno& alrededor, dlgTablaPpUEHs& registro,
                                               dlgPp& tormenta, QWidget* padre)
    : FormaDeTabla_ventana(alrededor, "dlgTablaPpUEHs", TituloDlgTablaPpUEHs, LeyendasDlgTablaPpUEHs, padre),
      f(registro),
      pp(tormenta)
{
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Datos());
    QGroupBox* const marco = HazTabla(f.MSFlexGridPpUEHs, "MSFlexGridPpUEHs", "laminaPpUEHs");
    marco->setToolTip(tabla->toolTip());
    tabla->setToolTip({});
    pila->addWidget(marco, 1);
    pila->addLayout(Botones());
}

QLayout* dlgTablaPpUEHs_ventana::Datos()
{
    auto* const fila = new QHBoxLayout;
    const auto campo = [&](std::string_view nombre, std::string& texto) {
        QLineEdit* const linea = piezas.Campo(nombre);
        linea->setMaxLength(LargoCampoPpUEHs);
        forms::Refleja(*linea, texto);
        campos.Agrega(*linea, [this, nombre] { return AlSalir(f, entorno.s, nombre); });
        fila->addWidget(piezas.Rotulo(nombre, *linea));
        fila->addWidget(linea);
        return linea;
    };
    txtDPpUEHs = campo("txtDPpUEHs", f.txtDPpUEHs);
    fila->addSpacing(fontMetrics().averageCharWidth() * 4);
    txtRPpUEHs = campo("txtRPpUEHs", f.txtRPpUEHs);
    fila->addStretch(1);
    return fila;
}

QLayout* dlgTablaPpUEHs_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    Agrega(*fila, "cmdBorraTablaHQ", [this] { cmdBorraTablaHQ(f, entorno.s); });
    AgregaFinales(
        *fila, [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); });
    return fila;
}

bool dlgTablaPpUEHs_ventana::AbreForma()
{
    rainfall::Abre(f, entorno.s);
    return f.abierta;
}

void dlgTablaPpUEHs_ventana::Cancela()
{
    CancelButton(f);
}

void dlgTablaPpUEHs_ventana::Muestra()
{
    Pon(*txtDPpUEHs, f.txtDPpUEHs);
    Pon(*txtRPpUEHs, f.txtRPpUEHs);
    MuestraTabla(Vista(f), f.foco, f.abierta);
}

}  // namespace rainfall
