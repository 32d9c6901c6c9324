// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>

#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "editor/Destinos.h"
#include "editor/Edicion.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Clases.h"

// Links by the pop-up menu, between the two components that are selected.
namespace editor {

using model::Siro;

namespace {

void Termina(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    Redibuja(f, s);
}

template <typename T, int Limite>
void AcoplaACauce(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    T& componente = Elegido(s, clase);
    const std::string& nombre = componente.*clase.nombre;
    const std::string& cauce = s.Red.Cauces(s.Seleccion.CauceSel).NombreCauce;
    if (model::DrenaA(componente, cauce)) {
        model::Advierte(s, Texto(clase.yaAcoplado, nombre, YaAcoplada, cauce), {});
    } else if (model::Consulta(s, Texto(clase.confirmaMenu, nombre, ConElCauce, cauce, CierraNombre),
                               TituloConsulta)) {
        Acopla(componente, cauce, UltimoVertice(s, s.Seleccion.CauceSel));
    }
    Termina(f, s);
}

template <typename T, int Limite>
void AcoplaUEHA(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    const T& destino = Elegido(s, clase);
    Acopla(Elegido(s, ClaseUEH), destino.*clase.nombre, Icono(clase, destino));
    Termina(f, s);
}

template <typename T, int Limite>
void AcoplaCauceA(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    const T& destino = Elegido(s, clase);
    model::Cauce& cauce = s.Red.Cauces(s.Seleccion.CauceSel);
    PonVertice(s, s.Seleccion.CauceSel, 1, Icono(clase, destino));
    cauce.Cauce_aa = destino.*clase.nombre;
    Termina(f, s);
}

template <typename T, int Limite>
void Desacopla(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    Acopla(Elegido(s, clase), "0", {0, 0});
    Termina(f, s);
}

}  // namespace

void mnu_acoplaUEHaCauce(frmUEHs& f, Siro& s)
{
    AcoplaACauce(f, s, ClaseUEH);
}

void mnu_acoplaRepresaaCauce(frmUEHs& f, Siro& s)
{
    AcoplaACauce(f, s, ClaseRepresa);
}

void mnu_acoplaLAGOaCauce(frmUEHs& f, Siro& s)
{
    AcoplaACauce(f, s, ClaseLago);
}

void mnu_acoplaUEHaRepresa(frmUEHs& f, Siro& s)
{
    AcoplaUEHA(f, s, ClaseRepresa);
}

void mnu_acoplaUEHaLago(frmUEHs& f, Siro& s)
{
    AcoplaUEHA(f, s, ClaseLago);
}

void mnu_acoplaCauceaRepresa(frmUEHs& f, Siro& s)
{
    AcoplaCauceA(f, s, ClaseRepresa);
}

void mnu_acoplaCauceaLago(frmUEHs& f, Siro& s)
{
    AcoplaCauceA(f, s, ClaseLago);
}

void mnu_acoplaCauce1aCauce2(frmUEHs& f, Siro& s)
{
    model::Cauce& primero = s.Red.Cauces(s.Seleccion.CauceAnterior);
    const model::Cauce& segundo = s.Red.Cauces(s.Seleccion.CauceSel);
    // A longer cycle isn't looked for: kept as it stands.
    if (model::DrenaA(segundo, primero.NombreCauce)) {
        model::Advierte(s, Texto(Inversion), TituloInversion);
    } else {
        primero.Cauce_aa = segundo.NombreCauce;
    }
    Termina(f, s);
}

void mnu_desacoplaUEH(frmUEHs& f, Siro& s)
{
    Desacopla(f, s, ClaseUEH);
}

void mnu_desacoplaRepresa(frmUEHs& f, Siro& s)
{
    Desacopla(f, s, ClaseRepresa);
}

void mnu_desacoplaLAGO(frmUEHs& f, Siro& s)
{
    Desacopla(f, s, ClaseLago);
}

void mnu_desacoplaCauce(frmUEHs& f, Siro& s)
{
    s.Red.Cauces(s.Seleccion.CauceSel).Cauce_aa = "0";
    Termina(f, s);
}

}  // namespace editor
