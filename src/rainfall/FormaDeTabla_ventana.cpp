// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/FormaDeTabla_ventana.h"

#include <QHeaderView>
#include <QScrollBar>
#include <utility>

#include "forms/Lamina_ventana.h"

namespace rainfall {

FormaDeTabla_ventana::FormaDeTabla_ventana(forms::Entorno& alrededor,
                                           const forms::DescripcionDeVentana& descripcion, QWidget* padre)
    : Formulario(alrededor, descripcion, padre)
{
    AlMostrar([this] { AlMostrarse(); });
}

QGroupBox* FormaDeTabla_ventana::MarcoDeTabla(forms::Grilla& grilla, std::string_view nombre,
                                              std::string_view nombreCurva,
                                              std::function<forms::Grafico()> vista,
                                              std::function<void(const forms::Efecto&)> alAsentar)
{
    tabla = Tabla(grilla, nombre);
    tabla->AlCambiar = [this, alAsentar = std::move(alAsentar)](const forms::Efecto& efecto) {
        if (alAsentar) alAsentar(efecto);
        Muestra();
    };
    forms::Lamina* const curva = Curva(nombreCurva, std::move(vista));
    constexpr int LetrasDeAncho = 48;
    curva->setMinimumWidth(LetrasDeAncho * fontMetrics().averageCharWidth());
    return MarcoDe(nombre, EnFila({tabla, {curva, 1}}));
}

QGroupBox* FormaDeTabla_ventana::MarcoDe(std::string_view control, QLayout* dentro)
{
    QGroupBox* const marco = Marco(control, dentro);
    marco->setObjectName(QStringLiteral("marco_") + marco->objectName());
    return marco;
}

QPushButton* FormaDeTabla_ventana::BotonCancelar()
{
    return BotonSinRevisar("CancelButton", [this] { AlCerrar(); });
}

QLayout* FormaDeTabla_ventana::Botones(forms::Partes partes, std::function<void()> aplicar,
                                       std::function<void()> aceptar)
{
    partes.insert(partes.end(), {Hueco(), Boton("cmdAplicar", std::move(aplicar)),
                                 Boton("OKButton", std::move(aceptar)), BotonCancelar()});
    return EnFila(partes);
}

void FormaDeTabla_ventana::Acomoda()
{
    constexpr int Filas = 10;
    constexpr int EntreFilas = 8;  // [pixels at 96 dpi]
    tabla->verticalHeader()->setMinimumSectionSize(tabla->fontMetrics().height());
    tabla->verticalHeader()->setDefaultSectionSize(tabla->fontMetrics().height() + EntreFilas);
    const int bordes = 2 * tabla->frameWidth();
    tabla->setMinimumWidth(tabla->horizontalHeader()->length() + bordes +
                           tabla->verticalScrollBar()->sizeHint().width());
    tabla->setMinimumHeight(tabla->horizontalHeader()->sizeHint().height() + bordes +
                            Filas * tabla->verticalHeader()->defaultSectionSize());

    // Where a text wraps, the toolkit leaves its height out of the window's own.
    layout()->activate();
    const QSize tamano = layout()->totalSizeHint().expandedTo(layout()->totalMinimumSize());
    const int alto = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(tamano.width()) : 0;
    setMinimumSize(layout()->totalMinimumSize());
    resize(tamano.expandedTo({0, alto}));
}

void FormaDeTabla_ventana::Abre()
{
    AbreForma();
    if (SeCerro()) return;
    Muestra();
    Acomoda();
    entorno.Ejecuta(*this);
}

void FormaDeTabla_ventana::AlCerrar()
{
    Cancela();
    Muestra();
}

}  // namespace rainfall
