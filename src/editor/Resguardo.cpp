// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Resguardo.h"

#include <string>

#include "editor/EnMano.h"
#include "editor/frmUEHs.h"
#include "engine/ComponenteFinal.h"

namespace editor {

using model::Resguardo;
using model::Riesgo;
using model::Siro;

namespace {

constexpr std::string_view Pregunta =
    "El dibujo de la red tiene cambios sin guardar. ¿Desea guardarlos antes de seguir?";

/// The reach being drawn is in no file, whatever has been saved.
bool HaySinGuardar(const frmUEHs& f)
{
    return f.cambiada || f.trazo.ClicsCauce > 0;
}

/// Returns false where the user cancels, or where what he wanted saved couldn't be.
bool PreguntaSiGuarda(frmUEHs& f, Siro& s, Riesgo riesgo)
{
    if (!HaySinGuardar(f)) return true;
    switch (s.Anfitrion.PideResguardo(
        {std::string(Pregunta), std::string(TituloResguardo), model::Icono::Exclamacion})) {
    case Resguardo::Guardar:
        ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
        if (f.cambiada) return false;
        break;
    case Resguardo::SeguirSinGuardar:
        break;
    case Resguardo::Cancelar:
        return false;
    }
    // Memory is as the files are, and undo brings the drawing back.
    if (riesgo == Riesgo::ReleeRed && HaySinGuardar(f)) Orden(f, s, [&] { Relee(f, s); });
    return true;
}

bool PasaLaValidacion(frmUEHs& f, Siro& s)
{
    bool pasa = false;
    Orden(f, s, [&] {
        engine::ComponenteFinal(s);
        pasa = s.Control.ContinuarSinCorregir || s.Control.RedOk;
    });
    return pasa;
}

bool CierraParaOtro(frmUEHs& f, Siro& s)
{
    const bool sinRed = RedVacia(s.Red);
    if (!sinRed && !(PasaLaValidacion(f, s) && PreguntaSiGuarda(f, s, Riesgo::OtroProyecto))) return false;
    Orden(f, s, [&] { CierraVentana(f, s); });
    return true;
}

}  // namespace

bool Resguarda(frmUEHs& f, Siro& s, Riesgo riesgo)
{
    if (!f.abierta) return true;
    return riesgo == Riesgo::OtroProyecto ? CierraParaOtro(f, s) : PreguntaSiGuarda(f, s, riesgo);
}

}  // namespace editor
