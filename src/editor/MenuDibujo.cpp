// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MenuDibujo.h"

#include <array>
#include <string>

#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"

namespace editor {

using model::Cauce;
using model::Lago;
using model::Represa;
using model::Siro;
using model::UEH;

namespace {

// --- conditions ---

bool Siempre(const Siro& /*s*/)
{
    return true;
}
template <typename... Clases>
bool Hay(const Siro& s)
{
    return (HayEnMano<Clases>(s) && ...);
}
template <typename T>
bool Solo(const Siro& s)
{
    return HayEnMano<T>(s) && CuantosElegidos(s.Seleccion) == 1;
}
template <typename T>
bool ConDestino(const Siro& s)
{
    return HayEnMano<T>(s) && model::EsDestino(model::Todos<T>(s.Red).Item(Elegido<T>(s.Seleccion)).Cauce_aa);
}
bool VerticeParaDividir(const Siro& s)
{
    const model::Seleccion& sel = s.Seleccion;
    return HayEnMano<Cauce>(s) && sel.VerticeSel > 0 && sel.UEHSel == 0 && sel.RepresaSel == 0;
}
bool DosCauces(const Siro& s)
{
    const int primero = s.Seleccion.CauceAnterior, segundo = s.Seleccion.CauceSel;
    const auto& cauces = s.Red.ColCauces;
    return HayEnMano<Cauce>(s) && primero > 0 && primero <= CaucesEnteros(s.Red) && primero != segundo &&
           !model::DrenaA(cauces.Item(primero), cauces.Item(segundo).NombreCauce);
}

// --- links between the two components that are selected ---

template <typename T>
void AcoplaACauce(frmUEHs& f, Siro& s)
{
    T& componente = EnMano<T>(s);
    const std::string& nombre = model::Nombre(componente);
    const std::string& cauce = EnMano<Cauce>(s).NombreCauce;
    if (model::DrenaA(componente, cauce)) {
        model::Advierte(s, Texto(ConIcono<T>.yaAcoplado, nombre, YaAcoplada, cauce), {});
    } else if (model::Consulta(s, Texto(ConIcono<T>.confirmaMenu, nombre, ConElCauce, cauce, CierraNombre),
                               TituloConsulta)) {
        Acopla(componente, cauce, UltimoVertice(s.Red, s.Seleccion.CauceSel));
    }
    RedibujaSinSeleccion(f, s);
}

template <typename T>
void AcoplaUEHA(frmUEHs& f, Siro& s)
{
    const T& destino = EnMano<T>(s);
    Acopla(EnMano<UEH>(s), model::Nombre(destino), Icono(destino));
    RedibujaSinSeleccion(f, s);
}

template <typename T>
void AcoplaCauceA(frmUEHs& f, Siro& s)
{
    const T& destino = EnMano<T>(s);
    PonVertice(s.Red, s.Seleccion.CauceSel, 1, Icono(destino));
    EnMano<Cauce>(s).Cauce_aa = model::Nombre(destino);
    RedibujaSinSeleccion(f, s);
}

void AcoplaCauceACauce(frmUEHs& f, Siro& s)
{
    Cauce& primero = s.Red.Cauces(s.Seleccion.CauceAnterior);
    const Cauce& segundo = EnMano<Cauce>(s);
    // A longer cycle isn't looked for: kept as it stands.
    if (model::DrenaA(segundo, primero.NombreCauce)) {
        model::Advierte(s, Texto(Inversion), TituloInversion);
    } else {
        primero.Cauce_aa = segundo.NombreCauce;
    }
    RedibujaSinSeleccion(f, s);
}

template <typename T>
void Desacopla(frmUEHs& f, Siro& s)
{
    if constexpr (std::is_same_v<T, Cauce>)
        EnMano<T>(s).Cauce_aa = model::SinDestino;
    else
        Acopla(EnMano<T>(s), model::SinDestino, {0, 0});
    RedibujaSinSeleccion(f, s);
}

// --- commands of the canvas itself ---

void mnu_CentrarDibujo(frmUEHs& f, Siro& s)
{
    f.vista.recentra = true;
    RedibujaSinSeleccion(f, s);
}
void mnu_ZoomAll(frmUEHs& f, Siro& s)
{
    f.vista.recentra = f.vista.reescala = true;
    RedibujaSinSeleccion(f, s);
}
template <Pedido pedido>
void Abre(frmUEHs& f, Siro& /*s*/)
{
    f.pedidos.push_back(pedido);
}

// clang-format off
constexpr auto Entradas = std::to_array<FilaMenu>({
    {"mnu_CentrarDibujo",             "&Centrar el Dibujo",                Siempre,              mnu_CentrarDibujo},
    {"mnu_ZoomAll",                   "&Zoom All",                         Siempre,              mnu_ZoomAll},
    {"mnu_PopUpdlgUEH2",              "Editar Propiedades de la &UHE",     Solo<UEH>,            Abre<Pedido::FormaUEH>},
    {"mnu_acoplaUEHaCauce",           "Acopla UHE a Cauce",                Hay<UEH, Cauce>,      AcoplaACauce<UEH>},
    {"mnu_acoplaUEHaLago",            "Acopla UHE a Lago",                 Hay<UEH, Lago>,       AcoplaUEHA<Lago>},
    {"mnu_acoplaUEHaRepresa",         "Acopla UHE a Represa",              Hay<UEH, Represa>,    AcoplaUEHA<Represa>},
    {"mnu_desacoplaUEH",              "Desacopla UHE",                     ConDestino<UEH>,      Desacopla<UEH>},
    {"mnu_PopUpCauceEditPropiedades", "&Editar Propiedades del Cauce",     Solo<Cauce>,          Abre<Pedido::FormaCauce>},
    {"mnu_DivideCauce",               "&Divide un tramo de Cauce en dos",  VerticeParaDividir,   mnu_DivideCauce},
    {"mnu_acoplaCauce1aCauce2",       "Acopla Cauce 1 a Cauce 2",          DosCauces,            AcoplaCauceACauce},
    {"mnu_acoplaCauceaLago",          "Acopla Cauce a Lago",               Hay<Cauce, Lago>,     AcoplaCauceA<Lago>},
    {"mnu_acoplaCauceaRepresa",       "Acopla Cauce a Represa",            Hay<Cauce, Represa>,  AcoplaCauceA<Represa>},
    {"mnu_desacoplaCauce",            "Desacopla Cauce",                   ConDestino<Cauce>,    Desacopla<Cauce>},
    {"mnu_PopUpdlgLAGO",              "Editar Propiedades de Lagos/Lagunas...", Solo<Lago>,           Abre<Pedido::FormaLago>},
    {"mnu_acoplaLAGOaCauce",          "Acopla Lago/Laguna a Cauce",        Hay<Cauce, Lago>,     AcoplaACauce<Lago>},
    {"mnu_desacoplaLAGO",             "Desacopla Lago",                    ConDestino<Lago>,     Desacopla<Lago>},
    {"mnu_PopUpdlgRepresa",           "Editar Propiedades de la Represa",  Solo<Represa>,        Abre<Pedido::FormaRepresa>},
    {"mnu_acoplaRepresaaCauce",       "Acopla Represa a Cauce",            Hay<Cauce, Represa>,  AcoplaACauce<Represa>},
    {"mnu_desacoplaRepresa",          "Desacopla Represa",                 ConDestino<Represa>,  Desacopla<Represa>},
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
