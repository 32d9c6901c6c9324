// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <string_view>

#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/frmUEHs.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::string_view SufijoDeArriba = "-.-a";  // from the vertex upstream
constexpr std::string_view SufijoDeAbajo = "-.-b";   // from the vertex downstream

/// The name with its suffix, which isn't cut; a name in use gets the suffix once more.
std::string NombreDeParte(const model::Red& red, std::string nombre, std::string_view sufijo)
{
    do
        nombre += sufijo;
    while (model::NumeroDe<model::Cauce>(red, nombre) > 0);
    return nombre;
}

}  // namespace

void mnu_DivideCauce(frmUEHs& f, Siro& s)
{
    model::Red& red = s.Red;
    const int c = s.Seleccion.CauceSel;
    const int corte = s.Seleccion.VerticeSel;
    if (!HayEnMano<model::Cauce>(s) || corte <= 1 || corte >= red.NroVertices(c)) return;

    const int n = NumeroDeCauceNuevo(red);  // a reach that is being drawn gives way
    const std::string nombre = red.Cauces(c).NombreCauce;
    const std::vector<Punto> linea = Linea(red, c);
    PonLinea(red, n, {linea.begin() + corte - 1, linea.end()});
    CreaCauce(red);
    red.Cauces(n).NombreCauce = NombreDeParte(red, nombre, SufijoDeArriba);
    // Whatever drained into the whole keeps its name, which no reach bears any longer: kept as it stands.
    red.Cauces(c).NombreCauce = NombreDeParte(red, nombre, SufijoDeAbajo);
    red.Cauces(n).Cauce_aa = red.Cauces(c).NombreCauce;
    red.NroVertices(c) = static_cast<std::int16_t>(corte);
    RehaceIndices(red);
    f.trazo.marcaCauce.clear();
    RedibujaSinSeleccion(f, s);
}

}  // namespace editor
