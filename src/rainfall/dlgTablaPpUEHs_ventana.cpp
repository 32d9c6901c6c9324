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
    : Formulario(alrededor, "dlgTablaPpUEHs", padre), f(registro), pp(tormenta)
{
    setWindowTitle(Q(TituloDlgTablaPpUEHs));
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    pila->addLayout(Datos());
    tabla = new forms::TablaGrilla(entorno, f.MSFlexGridPpUEHs, "MSFlexGridPpUEHs",
                                   piezas.De("MSFlexGridPpUEHs").leyenda);
    tabla->AlCambiar = [this](const forms::Efecto&) { Muestra(); };
    lamina = new forms::Lamina(entorno, "laminaPpUEHs", piezas.De("laminaPpUEHs").leyenda,
                               forms::Lamina::Modo::Compacta);
    QGroupBox* const marco = piezas.TablaConLamina(*tabla, *lamina);
    marco->setToolTip(tabla->toolTip());
    tabla->setToolTip({});
    pila->addWidget(marco, 1);
    pila->addLayout(Botones());
}

QLayout* dlgTablaPpUEHs_ventana::Datos()
{
    auto* const fila = new QHBoxLayout;
    const auto campo = [&](std::string_view nombre, std::string& texto,
                           bool (*alSalir)(dlgTablaPpUEHs&, const model::Siro&)) {
        QLineEdit* const linea = piezas.Campo(nombre);
        linea->setMaxLength(LargoCampoPpUEHs);
        forms::Refleja(*linea, texto);
        campos.Agrega(*linea, [this, alSalir] { return alSalir(f, entorno.s); });
        fila->addWidget(piezas.Rotulo(nombre, *linea));
        fila->addWidget(linea);
        return linea;
    };
    txtDPpUEHs = campo("txtDPpUEHs", f.txtDPpUEHs, txtDPpUEHs_AlSalir);
    fila->addSpacing(fontMetrics().averageCharWidth() * 4);
    txtRPpUEHs = campo("txtRPpUEHs", f.txtRPpUEHs, txtRPpUEHs_AlSalir);
    fila->addStretch(1);
    return fila;
}

QLayout* dlgTablaPpUEHs_ventana::Botones()
{
    auto* const fila = new QHBoxLayout;
    const auto boton = [&](std::string_view nombre, auto rutina) {
        QPushButton* const b = piezas.Boton(nombre);
        AlPulsar(*b, rutina);
        fila->addWidget(b);
    };
    boton("cmdBorraTablaHQ", [this] { cmdBorraTablaHQ(f, entorno.s); });
    fila->addStretch(1);
    boton("cmdAplicar", [this] { cmdAplicar(f, pp, entorno.s); });
    boton("OKButton", [this] { OKButton(f, pp, entorno.s); });
    QPushButton* const cancela = piezas.Boton("CancelButton");
    connect(cancela, &QPushButton::clicked, this, [this] { reject(); });
    fila->addWidget(cancela);
    return fila;
}

void dlgTablaPpUEHs_ventana::Abre()
{
    rainfall::Abre(f, entorno.s);
    Muestra();
    Acomoda(*this, *tabla);
    entorno.Ejecuta(*this);
}

void dlgTablaPpUEHs_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

void dlgTablaPpUEHs_ventana::Muestra()
{
    Pon(*txtDPpUEHs, f.txtDPpUEHs);
    Pon(*txtRPpUEHs, f.txtRPpUEHs);
    tabla->Muestra();
    lamina->Muestra(Vista(f));
    LlevaFoco(*this, f.foco);
    if (!f.abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace rainfall
