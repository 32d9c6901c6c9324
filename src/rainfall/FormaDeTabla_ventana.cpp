// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/FormaDeTabla_ventana.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QPushButton>
#include <utility>

#include "forms/Textos_ventana.h"

namespace rainfall {

FormaDeTabla_ventana::FormaDeTabla_ventana(forms::Entorno& alrededor, std::string_view nombre,
                                           std::string_view titulo,
                                           std::span<const forms::FilaRotulo> leyendas, QWidget* padre)
    : Formulario(alrededor, {nombre}, padre), piezas(*this, leyendas)
{
    setWindowTitle(forms::Q(titulo));
}

QGroupBox* FormaDeTabla_ventana::HazTabla(forms::Grilla& grilla, std::string_view nombre,
                                          std::string_view nombreLamina)
{
    tabla = new forms::TablaGrilla(entorno, grilla, nombre, piezas.De(nombre).leyenda);
    tabla->AlCambiar = [this](const forms::Efecto&) { Muestra(); };
    lamina = new forms::Lamina(entorno, nombreLamina, piezas.De(nombreLamina).leyenda,
                               forms::Lamina::Modo::Compacta);
    return piezas.TablaConLamina(*tabla, *lamina);
}

QPushButton* FormaDeTabla_ventana::Agrega(QBoxLayout& fila, std::string_view nombre, Rutina rutina)
{
    QPushButton* const boton = piezas.Boton(nombre);
    AlPulsar(*boton, std::move(rutina));
    fila.addWidget(boton);
    return boton;
}

void FormaDeTabla_ventana::AgregaFinales(QBoxLayout& fila, Rutina aplicar, Rutina aceptar)
{
    fila.addStretch(1);
    Agrega(fila, "cmdAplicar", std::move(aplicar));
    Agrega(fila, "OKButton", std::move(aceptar));
    // Without looking at the fields: what is wrong in them must not keep the user here.
    QPushButton* const cancela = piezas.Boton("CancelButton");
    connect(cancela, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    fila.addWidget(cancela);
}

void FormaDeTabla_ventana::Abre()
{
    if (!AbreForma()) return;
    Muestra();
    Acomoda(*this, *tabla);
    entorno.Ejecuta(*this);
}

void FormaDeTabla_ventana::AlCerrar()
{
    Cancela();
    Muestra();
}

void FormaDeTabla_ventana::MuestraTabla(const forms::Grafico& vista, forms::Foco& foco, bool abierta)
{
    tabla->Muestra();
    lamina->Muestra(vista);
    rainfall::LlevaFoco(*this, foco);
    AlMostrarse();
    if (!abierta && isVisible()) done(QDialog::Accepted);
}

}  // namespace rainfall
