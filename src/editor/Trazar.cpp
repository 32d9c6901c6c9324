// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Cauces.h"
#include "editor/Edicion.h"
#include "editor/Nombres.h"
#include "editor/frmUEHs.h"
#include "model/Numeros.h"

// Drawing a reach, from its mouth upstream.
namespace editor {

using model::Siro;

namespace {

constexpr std::int16_t ClicsDeUnTrazo = 20;
constexpr std::string_view MarcaDeCauceSinNombre = "borrarCauce";

void EmpiezaTrazo(frmUEHs& f, Siro& s, Punto en)
{
    const int n = NumeroDeCauceNuevo(s);
    s.Red.NroVertices(n) = 0;
    AgregaVertice(s, n, en);
    s.Red.NroCauces = model::Entero16(n);
    f.ClicsCauce = 1;
}

}  // namespace

void ClicCauce(frmUEHs& f, Siro& s, Punto en)
{
    if (f.ClicsCauce == 0) {
        EmpiezaTrazo(f, s, en);
    } else if (f.ClicsCauce < ClicsDeUnTrazo) {
        AgregaVertice(s, s.Red.NroCauces, en);
        ++f.ClicsCauce;
    } else {
        // The click beyond the last one belongs to the reach that it finishes: kept as it stands.
        TerminaCauce(f, s);
        const int n = s.Red.ColCauces.Cuenta();
        AgregaVertice(s, n, en);
        s.Red.Cauces(n).numVertices = s.Red.NroVertices(n);
    }
    Redibuja(f, s);
}

void TerminaCauce(frmUEHs& f, Siro& s)
{
    f.ClicsCauce = 0;
    CreaCauce(s);
    const int n = s.Red.ColCauces.Cuenta();
    // A reach whose name is cancelled stays, without one; the mark holds the Delete key back from all
    // reaches.
    const std::optional<std::string> nombre =
        PideNombre(s, PideNombreCauce, s.Red.ColCauces, &model::Cauce::NombreCauce);
    if (nombre) s.Red.Cauces(n).NombreCauce = *nombre;
    f.marcaCauce = nombre ? std::string_view{} : MarcaDeCauceSinNombre;
    Redibuja(f, s);
}

void ConservaTrazo(frmUEHs& f, Siro& s, const std::function<void()>& cuerpo)
{
    const std::int16_t clics = f.ClicsCauce;
    std::vector<Punto> trazo;
    if (clics > 0)
        for (int j = 1; j <= s.Red.NroVertices(s.Red.NroCauces); ++j)
            trazo.push_back(Vertice(s, s.Red.NroCauces, j));
    cuerpo();
    if (clics == 0) return;
    const int n = NumeroDeCauceNuevo(s);
    s.Red.NroVertices(n) = 0;
    for (const Punto p : trazo)
        AgregaVertice(s, n, p);
    s.Red.NroCauces = model::Entero16(n);
    f.ClicsCauce = clics;
}

}  // namespace editor
