// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Edicion.h"
#include "editor/NombreComponente.h"
#include "editor/frmUEHs.h"
#include "model/Numeros.h"
#include "model/Siro.h"

// Drawing a reach, from its mouth upstream.
namespace editor {

using model::Siro;

namespace {

constexpr PeticionDeNombre PideNombreCauce{"Agrega un nuevo Cauce", "Nombre del cauce ?"};
constexpr std::string_view MarcaDeCauceSinNombre = "borrarCauce";

/// Puts a reach in hand as the one being drawn.
void PonTrazo(frmUEHs& f, model::Red& red, const std::vector<Punto>& linea, std::int16_t clics)
{
    const int n = NumeroDeCauceNuevo(red);
    PonLinea(red, n, linea);
    red.ColCauces.Anuncia(model::Entero16(n));
    f.trazo.ClicsCauce = clics;
}

}  // namespace

void ClicCauce(frmUEHs& f, Siro& s, Punto en)
{
    if (f.trazo.ClicsCauce == 0) {
        PonTrazo(f, s.Red, {en}, 1);
    } else if (f.trazo.ClicsCauce < ClicsDeUnTrazo) {
        AgregaVertice(s.Red, s.Red.NroCauces(), en);
        ++f.trazo.ClicsCauce;
    } else {
        // The click beyond the last one belongs to the reach that it finishes: kept as it stands.
        TerminaCauce(f, s);
        const int n = s.Red.ColCauces.Cuenta();
        AgregaVertice(s.Red, n, en);
        s.Red.Cauces(n).numVertices = s.Red.NroVertices(n);
    }
    Redibuja(f, s);
}

void TerminaCauce(frmUEHs& f, Siro& s)
{
    f.trazo.ClicsCauce = 0;
    CreaCauce(s.Red);
    const int n = s.Red.ColCauces.Cuenta();
    // A reach whose name is cancelled stays, without one; the mark holds the Delete key back from all
    // reaches.
    const std::optional<std::string> nombre = PideNombre<model::Cauce>(s.Anfitrion, s.Red, PideNombreCauce);
    if (nombre) s.Red.Cauces(n).NombreCauce = *nombre;
    f.trazo.marcaCauce = nombre ? std::string_view{} : MarcaDeCauceSinNombre;
    Redibuja(f, s);
}

void ConservaTrazo(frmUEHs& f, Siro& s, const std::function<void()>& cuerpo)
{
    const std::int16_t clics = f.trazo.ClicsCauce;
    const std::vector<Punto> linea = clics > 0 ? Linea(s.Red, s.Red.NroCauces()) : std::vector<Punto>{};
    cuerpo();
    if (clics > 0) PonTrazo(f, s.Red, linea, clics);
}

}  // namespace editor
