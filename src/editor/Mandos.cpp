// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <string>

#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/Resguardo.h"
#include "editor/frmUEHs.h"
#include "engine/ComponenteFinal.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/OrdenCauces.h"

// Toolbar, buttons, slider, scroll bars and keys of the editor's window, outside of its canvas.
namespace editor {

using model::Siro;

namespace {

constexpr std::int16_t AnchoMayor = 16, AnchoMenor = 2;  // [pixels]

constexpr std::string_view PreguntaResguardo =
    "¿Desea guardar los cambios realizados en los componentes de UEHs ? ";

/// The toolbar's "Guardar". Returns whether the network was saved; if not, memory and undo are as they were.
bool mnu_btn_toolbarGuardaUEHs(frmUEHs& f, Siro& s)
{
    bool bien = false;
    ConservaTrazo(f, s, [&] { bien = model::GuardaRed(s); });
    if (bien) f.guardada = true;
    Redibuja(f, s);
    return bien;
}

/// Esc with measured points in hand drops them and does nothing else.
bool SueltaMedicion(frmUEHs& f, Siro& s)
{
    if (f.medicion.NroPuntosMedida == 0) return false;
    f.medicion.NroPuntosMedida = 0;
    Redibuja(f, s);
    return true;
}

/// Esc and btn_toolbarSalir.
void Cierra(frmUEHs& f, Siro& s)
{
    engine::ComponenteFinal(s);
    if (!s.Control.ContinuarSinCorregir && !s.Control.RedOk) return;
    if (model::Consulta(s, std::string(PreguntaResguardo), TituloResguardo) &&
        !mnu_btn_toolbarGuardaUEHs(f, s))
        return;
    CierraVentana(f, s);
}

void AplicaBoton(frmUEHs& f, Siro& s, Boton boton)
{
    switch (boton) {
    case Boton::BorraTodo:
        BorraTodo(f, s);
        f.Pon(Boton::SUEH, false);
        return;
    case Boton::SUEH:
        f.Pon(boton, true);
        return;
    case Boton::GuardaUEHs:
        f.Pon(boton, true);
        f.puntero = Puntero::Espera;
        if (mnu_btn_toolbarGuardaUEHs(f, s)) Asienta(f, s);
        f.Pon(boton, false);
        PonModo(f, Modo(f));
        return;
    case Boton::Salir:
        Cierra(f, s);
        return;
    default:
        PonModo(f, boton);
    }
}

}  // namespace

bool Form_QueryUnload(frmUEHs& f, Siro& s)
{
    if (!f.abierta) return true;
    Orden(f, s, [&] { RedVacia(s.Red) ? CierraVentana(f, s) : Cierra(f, s); });
    return !f.abierta;
}

void ToolbarUEHs_ButtonClick(frmUEHs& f, Siro& s, Boton boton)
{
    Orden(f, s, [&] {
        LimpiaSeleccion(s);
        AplicaBoton(f, s, boton);
        if (f.abierta) Redibuja(f, s);
    });
}

void sldEscala_Mueve(frmUEHs& f, Siro& s, int valor)
{
    PonEscala(f.vista, valor);
    Redibuja(f, s);
}

void ScrEscalaHor_Mueve(frmUEHs& f, Siro& s, int valor)
{
    MueveBarra(f.vista.ScrEscalaHor, f.vista.movidoHor, valor);
    Redibuja(f, s);
}

void ScrEscalaVer_Mueve(frmUEHs& f, Siro& s, int valor)
{
    MueveBarra(f.vista.ScrEscalaVer, f.vista.movidoVer, valor);
    Redibuja(f, s);
}

void cmdImagenUEHs_Click(frmUEHs& f, Siro& s)
{
    if (!Resguarda(f, s, model::Riesgo::MueveProyecto)) return;  // it reads the network itself
    Orden(f, s, [&] {
        if (AlternaImagen(f.fondo, s)) Relee(f, s);
    });
}

void cmdAnchoLineaDib_Click(frmUEHs& f, Siro& s)
{
    Vista& v = f.vista;
    v.AnchoLinea = static_cast<std::int16_t>(std::trunc(1.5 * v.AnchoLinea));
    if (v.AnchoLinea > AnchoMayor) v.AnchoLinea = AnchoMenor;
    v.TamIcono = model::Simple(1.5 * v.AnchoLinea + 4);
    Redibuja(f, s);
}

void cmdOrdenCauce_Click(frmUEHs& f, Siro& s)
{
    Orden(f, s, [&] {
        f.vista.OrdenVisible = !f.vista.OrdenVisible;
        model::CalculaOrdenCauces(s.Red);
        Redibuja(f, s);
        Asienta(f, s);  // orders are worked out, not edited
    });
}

void NombresDeCauces_Click(frmUEHs& f, Siro& s)
{
    f.vista.NombresVisibles = !f.vista.NombresVisibles;
    Redibuja(f, s);
}

void Form_KeyDown(frmUEHs& f, Siro& s, Tecla tecla)
{
    Orden(f, s, [&] {
        switch (tecla) {
        case Tecla::Suprimir:
            f.Pon(Boton::SUEH, false);
            BorraSeleccionados(f, s);
            break;
        case Tecla::Insertar:
            if (s.Seleccion.CauceSel > 0) f.pedidos.push_back(Pedido::FormaCauce);
            break;
        case Tecla::Esc:
            if (!SueltaMedicion(f, s)) Cierra(f, s);
            break;
        case Tecla::Deshacer:
            Deshace(f, s);
            break;
        case Tecla::Rehacer:
            Rehace(f, s);
            break;
        default:
            break;
        }
    });
}

}  // namespace editor
