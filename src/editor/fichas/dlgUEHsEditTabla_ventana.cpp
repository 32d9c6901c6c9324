// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsEditTabla_ventana.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "editor/fichas/UnidadesTitulos.h"
#include "forms/Grilla_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

using forms::Pon;
using forms::Q;

dlgUEHsEditTabla_ventana::dlgUEHsEditTabla_ventana(forms::Entorno& alrededor, dlgUEHsEditTabla& registro,
                                                   QWidget* padre)
    : Formulario(alrededor, {"dlgUEHsEditTabla"}, padre), f(registro)
{
    setWindowTitle(Q(TituloDlgUEHsEditTabla));
    auto* const pila = new QVBoxLayout(this);
    auto* const encabezado = new QHBoxLayout;
    const auto rotulo = [&](const char* nombre) {
        auto* const nuevo = new QLabel;
        nuevo->setObjectName(QString::fromLatin1(nombre));
        nuevo->setTextFormat(Qt::PlainText);
        encabezado->addWidget(nuevo);
        return nuevo;
    };
    encabezado->addWidget(new QLabel(QStringLiteral("Proyecto:")));
    lblProyecto = rotulo("lblProyecto");
    encabezado->addSpacing(fontMetrics().averageCharWidth() * 3);
    encabezado->addWidget(new QLabel(QStringLiteral("Archivo de Proyecto:")));
    lblFileProyecto = rotulo("lblFileProyecto");
    encabezado->addStretch(1);
    pila->addLayout(encabezado);

    cauces = Tabla(f.MSFlexGridEditCauces, "MSFlexGridEditCauces", "Cauces");
    uehs = Tabla(f.MSFlexGridEditUEHs, "MSFlexGridEditUEHs", "UEHs");
    pila->addWidget(cauces, 1);
    pila->addWidget(uehs, 1);

    auto* const botones = new QHBoxLayout;
    botones->addStretch(1);
    auto* const acepta = new QPushButton(Q(LeyendaAceptarEditTabla));
    acepta->setObjectName(QStringLiteral("OKButton"));
    acepta->setAutoDefault(false);  // Enter is the grids'
    AlPulsar(*acepta, [this] { OKButton(f, entorno.s); });
    auto* const cancela = new QPushButton(Q(LeyendaCancelarEditTabla));
    cancela->setObjectName(QStringLiteral("cmdCancel"));
    cancela->setAutoDefault(false);
    connect(cancela, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    botones->addWidget(acepta);
    botones->addWidget(cancela);
    pila->addLayout(botones);
}

forms::TablaGrilla* dlgUEHsEditTabla_ventana::Tabla(forms::Grilla& grilla, const char* nombre,
                                                    const char* titulo)
{
    auto* const tabla = new forms::TablaGrilla(entorno, grilla, nombre, titulo);
    tabla->setToolTip(Q(AyudaGrillasEditTabla));
    tabla->AyudaDe = [&grilla](forms::Celda celda) {
        return celda.fila == 0 ? AyudaDeCelda(grilla, celda) : std::string();
    };
    return tabla;
}

void dlgUEHsEditTabla_ventana::Abre()
{
    editor::Abre(f, entorno.s);
    if (!f.abierta) return;
    const QSize pantalla = screen()->availableSize();
    resize(static_cast<int>(pantalla.width() * AnchoEditTabla),
           static_cast<int>(pantalla.height() * AltoEditTabla));
    Muestra();
    cauces->setFocus();
    entorno.Ejecuta(*this);
}

void dlgUEHsEditTabla_ventana::AlCerrar()
{
    cmdCancel(f);
    Muestra();
}

void dlgUEHsEditTabla_ventana::Muestra()
{
    Pon(*lblProyecto, f.lblProyecto);
    Pon(*lblFileProyecto, f.lblFileProyecto);
    cauces->Muestra();
    uehs->Muestra();
    if (!f.abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace editor
