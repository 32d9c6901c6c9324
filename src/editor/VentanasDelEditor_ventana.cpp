// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/VentanasDelEditor_ventana.h"

#include <utility>

namespace editor {

VentanasDelEditor::VentanasDelEditor(forms::Entorno& alrededor,
                                     std::function<void(bool visible)> muestraPrincipal)
    : entorno(alrededor), ventanaRed(alrededor, red)
{
    ventanaRed.MuestraPrincipal = std::move(muestraPrincipal);
    entorno.s.Anfitrion.RedibujaEditor = [this] {
        if (!red.abierta) return;
        Redibuja(red, entorno.s);
        ventanaRed.Muestra();
    };
}

VentanasDelEditor::~VentanasDelEditor()
{
    entorno.s.Anfitrion.RedibujaEditor = [] {};
}

void VentanasDelEditor::CierraEditor()
{
    red.abierta = false;
    ventanaRed.Muestra();
}

}  // namespace editor
