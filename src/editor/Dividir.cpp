// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <string_view>

#include "editor/Cauces.h"
#include "editor/Edicion.h"
#include "editor/Nombres.h"
#include "editor/frmUEHs.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::string_view SufijoDeArriba = "-.-a";  // from the vertex upstream
constexpr std::string_view SufijoDeAbajo = "-.-b";   // from the vertex downstream

/// The name with its suffix, which isn't cut; a name in use gets the suffix once more.
std::string NombreDeParte(const Siro& s, std::string nombre, std::string_view sufijo)
{
    do
        nombre += sufijo;
    while (EnUso(s.Red.ColCauces, &model::Cauce::NombreCauce, nombre));
    return nombre;
}

}  // namespace

void mnu_DivideCauce(frmUEHs& f, Siro& s)
{
    const int c = s.Seleccion.CauceSel;
    const int corte = s.Seleccion.VerticeSel;
    if (c < 1 || c > CaucesEnteros(s)) return;
    const int ultimo = s.Red.NroVertices(c);
    if (corte <= 1 || corte >= ultimo) return;

    const int n = NumeroDeCauceNuevo(s);  // a reach that is being drawn gives way
    const std::string nombre = s.Red.Cauces(c).NombreCauce;
    s.Red.NroVertices(n) = 0;
    for (int j = corte; j <= ultimo; ++j)
        AgregaVertice(s, n, Vertice(s, c, j));
    CreaCauce(s);
    s.Red.Cauces(n).NombreCauce = NombreDeParte(s, nombre, SufijoDeArriba);
    // Whatever drained into the whole keeps its name, which no reach bears any longer: kept as it stands.
    s.Red.Cauces(c).NombreCauce = NombreDeParte(s, nombre, SufijoDeAbajo);
    s.Red.Cauces(n).Cauce_aa = s.Red.Cauces(c).NombreCauce;
    s.Red.NroVertices(c) = static_cast<std::int16_t>(corte);
    RehaceIndices(s);
    f.marcaCauce.clear();
    LimpiaSeleccion(s);
    Redibuja(f, s);
}

}  // namespace editor
