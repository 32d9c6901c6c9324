// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/VentanasDelEditor_ventana.h"

#include <utility>

#include "editor/Hallazgos.h"
#include "editor/Resguardo.h"
#include "editor/fichas/dlgUEHsEditTabla_ventana.h"

namespace editor {

VentanasDelEditor::VentanasDelEditor(forms::Entorno& alrededor,
                                     std::function<void(bool visible)> muestraPrincipal)
    : entorno(alrededor),
      ventanaRed(alrededor, red),
      ventanaTabla(alrededor, tabla),
      formas(alrededor, ventanaRed)
{
    ventanaRed.MuestraPrincipal = std::move(muestraPrincipal);
    ventanaRed.AbreForma = [this](Pedido forma) {
        formas.Abre(forma);
        // What the form has changed is one step of the history.
        AlActivarse(red, entorno.s);
    };
    entorno.s.Anfitrion.RedibujaEditor = [this] {
        if (!red.abierta) return;
        Redibuja(red, entorno.s);
        ventanaRed.Muestra();
    };
    entorno.s.Anfitrion.ResguardaDibujo = [this](model::Riesgo riesgo) {
        const bool sigue = Resguarda(red, entorno.s, riesgo);
        ventanaRed.Muestra();
        if (!sigue) AlzaEditor();
        return sigue;
    };
}

VentanasDelEditor::~VentanasDelEditor()
{
    entorno.s.Anfitrion.RedibujaEditor = [] {};
    entorno.s.Anfitrion.ResguardaDibujo = [](model::Riesgo) { return true; };
}

bool VentanasDelEditor::AlzaEditor()
{
    if (!red.abierta) return false;
    ventanaRed.setWindowState(ventanaRed.windowState() & ~Qt::WindowMinimized);
    ventanaRed.raise();
    ventanaRed.activateWindow();
    return true;
}

const model::Colecciones* VentanasDelEditor::SinGuardar() const
{
    return red.abierta && red.cambiada ? &entorno.s.Red : nullptr;
}

bool VentanasDelEditor::VaA(const checks::Hallazgo& hallazgo, bool ordenada)
{
    bool esta = false;
    formas.ordenaTabla = ordenada;
    ventanaRed.Suceda([&] {
        // The form that comes takes the keyboard before the window is told that it has become active.
        AlActivarse(red, entorno.s);
        ventanaRed.MuestraPrincipal(red.principalVisible);
        esta = editor::VaA(red, entorno.s, hallazgo.componente, checks::LugarDe(hallazgo));
    });
    formas.ordenaTabla = false;
    return esta;
}

int VentanasDelEditor::Corrige(const std::vector<checks::Hallazgo>& hallazgos)
{
    int hechos = 0;
    ventanaRed.Suceda([&] { hechos = editor::Corrige(red, entorno.s, hallazgos); });
    return hechos;
}

void VentanasDelEditor::Aplica(const std::function<void(model::Red&)>& cambio)
{
    ventanaRed.Suceda([&] { editor::Aplica(red, entorno.s, cambio); });
}

void VentanasDelEditor::Recupera(const RedGuardada& noGuardada)
{
    ventanaRed.Suceda([&] { editor::Recupera(red, entorno.s, noGuardada); });
}

void VentanasDelEditor::AbreEditorDeTabla(QWidget& padre)
{
    dlgUEHsEditTabla_ventana(entorno, editorDeTabla, &padre).Abre();
}

void VentanasDelEditor::CierraEditor()
{
    red.abierta = false;
    ventanaRed.Muestra();
}

}  // namespace editor
