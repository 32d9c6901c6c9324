// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsTabla_ventana.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/fichas/UnidadesTitulos.h"
#include "forms/Grilla_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

using forms::Pon;
using forms::Q;

dlgUEHsTabla_ventana::dlgUEHsTabla_ventana(forms::Entorno& alrededor, dlgUEHsTabla& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgUEHsTabla"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgUEHsTabla));
    auto* const pila = new QVBoxLayout(this);
    auto* const encabezado = new QHBoxLayout;
    const auto dato = [&](const char* nombre, const char* leyenda) {
        auto* const nuevo = new QLabel;
        nuevo->setObjectName(QString::fromLatin1(nombre));
        nuevo->setTextFormat(Qt::PlainText);
        encabezado->addWidget(new QLabel(QString::fromUtf8(leyenda)));
        encabezado->addWidget(nuevo);
        encabezado->addSpacing(fontMetrics().averageCharWidth() * 3);
        return nuevo;
    };
    lblProyecto = dato("lblProyecto", "Proyecto:");
    lblTitulo = dato("lblTitulo", "Título:");
    lblFileProyecto = dato("lblFileProyecto", "Archivo de Proyecto:");
    encabezado->addStretch(1);
    pila->addLayout(encabezado);

    tabla =
        new forms::TablaGrilla(entorno, f.MSFlexGridTablaUEHs, "MSFlexGridTablaUEHs", "Parámetros de la red");
    tabla->AyudaDe = [this](forms::Celda celda) { return AyudaDeCelda(f.MSFlexGridTablaUEHs, celda); };
    pila->addWidget(tabla, 1);

    auto* const botones = new QHBoxLayout;
    auto* const actualiza = new QPushButton(Q(LeyendaActualizarTabla));
    actualiza->setObjectName(QStringLiteral("cmdActualizar"));
    AlPulsar(*actualiza, [this] { cmdActualizar(f, entorno.s); });
    auto* const cierra = new QPushButton(Q(LeyendaCerrarTabla));
    cierra->setObjectName(QStringLiteral("OKButton"));
    AlPulsar(*cierra, [this] { OKButton(f); });
    botones->addStretch(1);
    botones->addWidget(actualiza);
    botones->addWidget(cierra);
    pila->addLayout(botones);
    entorno.AlActivarse(*this, [this] { Relee(); });
}

void dlgUEHsTabla_ventana::Abre()
{
    leyendo = true;  // the opening is an activation itself
    editor::Abre(f, entorno.s);
    if (f.abierta) {
        Muestra();
        entorno.Presenta(*this);
        tabla->setFocus();
    }
    leyendo = false;
}

/// The window becomes active; a box of the reading isn't a reason to read again.
void dlgUEHsTabla_ventana::Relee()
{
    if (leyendo || !f.abierta) return;
    leyendo = true;
    editor::Abre(f, entorno.s);
    Muestra();
    leyendo = false;
}

void dlgUEHsTabla_ventana::AlCerrar()
{
    OKButton(f);
}

void dlgUEHsTabla_ventana::Muestra()
{
    Pon(*lblProyecto, f.lblProyecto);
    Pon(*lblTitulo, f.lblTitulo);
    Pon(*lblFileProyecto, f.lblFileProyecto);
    tabla->Muestra();
    if (!f.abierta && isVisible()) close();
}

}  // namespace editor
