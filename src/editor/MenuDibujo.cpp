// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MenuDibujo.h"

#include <array>
#include <string>

#include "editor/Edicion.h"
#include "editor/frmUEHs.h"
#include "model/Clases.h"

namespace editor {

using model::Siro;

namespace {

// --- conditions ---

bool Siempre(const Siro& /*s*/)
{
    return true;
}
bool HayUEH(const Siro& s)
{
    return s.Seleccion.UEHSel > 0 && s.Seleccion.UEHSel <= s.Red.ColUEHs.Cuenta();
}
bool HayCauce(const Siro& s)
{
    return s.Seleccion.CauceSel > 0 && s.Seleccion.CauceSel <= CaucesEnteros(s);
}
bool HayRepresa(const Siro& s)
{
    return s.Seleccion.RepresaSel > 0 && s.Seleccion.RepresaSel <= s.Red.ColRepresas.Cuenta();
}
bool HayLago(const Siro& s)
{
    return s.Seleccion.LagoSel > 0 && s.Seleccion.LagoSel <= s.Red.ColLagos.Cuenta();
}
bool SoloUEH(const Siro& s)
{
    return HayUEH(s) && s.Seleccion.CauceSel == 0 && s.Seleccion.RepresaSel == 0 && s.Seleccion.LagoSel == 0;
}
bool SoloCauce(const Siro& s)
{
    return HayCauce(s) && s.Seleccion.UEHSel == 0 && s.Seleccion.RepresaSel == 0 && s.Seleccion.LagoSel == 0;
}
bool SoloRepresa(const Siro& s)
{
    return HayRepresa(s) && s.Seleccion.UEHSel == 0 && s.Seleccion.CauceSel == 0 && s.Seleccion.LagoSel == 0;
}
bool SoloLago(const Siro& s)
{
    return HayLago(s) && s.Seleccion.UEHSel == 0 && s.Seleccion.CauceSel == 0 && s.Seleccion.RepresaSel == 0;
}
bool UEHyCauce(const Siro& s)
{
    return HayUEH(s) && HayCauce(s);
}
bool UEHyLago(const Siro& s)
{
    return HayUEH(s) && HayLago(s);
}
bool UEHyRepresa(const Siro& s)
{
    return HayUEH(s) && HayRepresa(s);
}
bool CauceYLago(const Siro& s)
{
    return HayCauce(s) && HayLago(s);
}
bool CauceYRepresa(const Siro& s)
{
    return HayCauce(s) && HayRepresa(s);
}
bool TieneDestino(const std::string& Cauce_aa)
{
    return !Cauce_aa.empty() && Cauce_aa != "0";
}
bool UEHConDestino(const Siro& s)
{
    return HayUEH(s) && TieneDestino(s.Red.ColUEHs.Item(s.Seleccion.UEHSel).Cauce_aa);
}
bool CauceConDestino(const Siro& s)
{
    return HayCauce(s) && TieneDestino(s.Red.ColCauces.Item(s.Seleccion.CauceSel).Cauce_aa);
}
bool RepresaConDestino(const Siro& s)
{
    return HayRepresa(s) && TieneDestino(s.Red.ColRepresas.Item(s.Seleccion.RepresaSel).Cauce_aa);
}
bool LagoConDestino(const Siro& s)
{
    return HayLago(s) && TieneDestino(s.Red.ColLagos.Item(s.Seleccion.LagoSel).Cauce_aa);
}
bool VerticeParaDividir(const Siro& s)
{
    return HayCauce(s) && s.Seleccion.VerticeSel > 0 && s.Seleccion.UEHSel == 0 &&
           s.Seleccion.RepresaSel == 0;
}
bool DosCauces(const Siro& s)
{
    const int primero = s.Seleccion.CauceAnterior;
    return HayCauce(s) && primero > 0 && primero <= CaucesEnteros(s) && primero != s.Seleccion.CauceSel &&
           !model::DrenaA(s.Red.ColCauces.Item(primero),
                          s.Red.ColCauces.Item(s.Seleccion.CauceSel).NombreCauce);
}

// --- commands of the canvas itself ---

void mnu_CentrarDibujo(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    f.recentra = true;
    Redibuja(f, s);
}
void mnu_ZoomAll(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    f.recentra = f.reescala = true;
    Redibuja(f, s);
}
template <Pedido pedido>
void Abre(frmUEHs& f, Siro& /*s*/)
{
    f.pedidos.push_back(pedido);
}

// clang-format off
constexpr auto Entradas = std::to_array<FilaMenu>({
    {"mnu_CentrarDibujo",             "&Centrar el Dibujo",                Siempre,            mnu_CentrarDibujo},
    {"mnu_ZoomAll",                   "&Zoom All",                         Siempre,            mnu_ZoomAll},
    {"mnu_PopUpdlgUEH2",              "Editar Propiedades de la &UHE",     SoloUEH,            Abre<Pedido::FormaUEH>},
    {"mnu_acoplaUEHaCauce",           "Acopla UHE a Cauce",                UEHyCauce,          mnu_acoplaUEHaCauce},
    {"mnu_acoplaUEHaLago",            "Acopla UHE a Lago",                 UEHyLago,           mnu_acoplaUEHaLago},
    {"mnu_acoplaUEHaRepresa",         "Acopla UHE a Represa",              UEHyRepresa,        mnu_acoplaUEHaRepresa},
    {"mnu_desacoplaUEH",              "Desacopla UHE",                     UEHConDestino,      mnu_desacoplaUEH},
    {"mnu_PopUpCauceEditPropiedades", "&Editar Propiedades del Cauce",     SoloCauce,          Abre<Pedido::FormaCauce>},
    {"mnu_DivideCauce",               "&Divide un tramo de Cauce en dos",  VerticeParaDividir, mnu_DivideCauce},
    {"mnu_acoplaCauce1aCauce2",       "Acopla Cauce 1 a Cauce 2",          DosCauces,          mnu_acoplaCauce1aCauce2},
    {"mnu_acoplaCauceaLago",          "Acopla Cauce a Lago",               CauceYLago,         mnu_acoplaCauceaLago},
    {"mnu_acoplaCauceaRepresa",       "Acopla Cauce a Represa",            CauceYRepresa,      mnu_acoplaCauceaRepresa},
    {"mnu_desacoplaCauce",            "Desacopla Cauce",                   CauceConDestino,    mnu_desacoplaCauce},
    {"mnu_PopUpdlgLAGO",              "Editar Propiedades de Lagos/Lagunas...", SoloLago,      Abre<Pedido::FormaLago>},
    {"mnu_acoplaLAGOaCauce",          "Acopla Lago/Laguna a Cauce",        CauceYLago,         mnu_acoplaLAGOaCauce},
    {"mnu_desacoplaLAGO",             "Desacopla Lago",                    LagoConDestino,     mnu_desacoplaLAGO},
    {"mnu_PopUpdlgRepresa",           "Editar Propiedades de la Represa",  SoloRepresa,        Abre<Pedido::FormaRepresa>},
    {"mnu_acoplaRepresaaCauce",       "Acopla Represa a Cauce",            CauceYRepresa,      mnu_acoplaRepresaaCauce},
    {"mnu_desacoplaRepresa",          "Desacopla Represa",                 RepresaConDestino,  mnu_desacoplaRepresa},
});
// clang-format on

}  // namespace

std::span<const FilaMenu> MenuDibujoSec()
{
    return Entradas;
}

void mnu_DibujoSec_Click(frmUEHs& f, Siro& s, std::string_view nombre)
{
    for (const FilaMenu& entrada : Entradas)
        if (entrada.nombre == nombre && entrada.habilitada(s)) {
            Orden(f, s, [&] { entrada.hace(f, s); });
            return;
        }
}

}  // namespace editor
