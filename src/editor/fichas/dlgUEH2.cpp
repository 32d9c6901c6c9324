// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEH2.h"

#include <algorithm>
#include <cstddef>

#include "checks/Asistente.h"
#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"

namespace editor {

using model::Siro;
using model::UEH;

void MuestraCampos(dlgUEH2& f, Siro& s)
{
    MuestraComunes(f, s);
    const UEH& ueh = EnMano<UEH>(s);
    f.lblDrenaCauceAA = ueh.Cauce_aa;
    f.lblMetodo = ueh.Metodo;
    f.lstMetodo = {{std::string(MetodoUEH)}, ueh.Metodo == MetodoUEH ? 0 : -1};
    f.txtReferencia = ueh.Referencia;
}

void GuardaCampos(dlgUEH2& f, Siro& s)
{
    UEH& ueh = EnMano<UEH>(s);
    ueh.Referencia = f.txtReferencia;
    if (f.lstMetodo.indice >= 0) ueh.Metodo = MetodoUEH;
    forms::Guarda(f, ueh, CamposDlgUEH2);
    if (const int cauce = model::NumeroDe<model::Cauce>(s.Red, ueh.Cauce_aa); ueh.Cauce_aa.empty())
        PonPunto(ueh, {});
    else if (cauce > 0)
        PonPunto(ueh, UltimoVertice(s.Red, cauce));
}

namespace {

/// The number that a field holds; nothing where its text is refused.
std::optional<double> Numero(const dlgUEH2& f, std::string_view control)
{
    const auto* campo = std::find_if(CamposDlgUEH2.begin(), CamposDlgUEH2.end(),
                                     [&](const auto& fila) { return fila.regla.control == control; });
    if (campo == CamposDlgUEH2.end() || !forms::Vale(campo->regla, f.*campo->texto)) return {};
    return forms::NumeroDeCampo(f.*campo->texto);
}

}  // namespace

void lstCauceAA_Click(dlgUEH2& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    const std::optional<Destino> destino = DestinoElegido(s.Red, f.Reglas.destinos, f.lstCauceAA);
    if (!destino) return;
    UEH& ueh = EnMano<UEH>(s);
    ueh.Cauce_aa = f.lblDrenaCauceAA = destino->Cauce_aa;
    if (destino->clase != model::Clase::Cauce) PonPunto(ueh, PuntoDestino(s.Red, *destino));
    s.Anfitrion.RedibujaEditor();
}

void lstMetodo_Click(dlgUEH2& f, int indice)
{
    if (indice != 0) return;
    f.lstMetodo.indice = indice;
    f.lblMetodo = MetodoUEH;
}

std::string ApunteTraslado(const dlgUEH2& f, Siro& s)
{
    const auto ueh = ConLoEscrito(f, s, {"txtLongMax", "txtVelMedia"});
    return ueh ? checks::ApunteDeTraslado(*ueh, s.Pasos) : std::string{};
}

std::string ApunteRetencion(const dlgUEH2& f, Siro& s)
{
    const auto ueh = ConLoEscrito(f, s, {"txtRetension_Z"});
    return ueh ? checks::ApunteDeRetencion(checks::RepartoDe(*ueh, s.Tormenta, s.Pasos, s.TablasDeLluvia))
               : std::string{};
}

std::string ApunteInfiltracion(const dlgUEH2& f, Siro& s)
{
    const auto ueh =
        ConLoEscrito(f, s, {"txtRetension_Z", "txtKostiakov_a", "txtKostiakov_b", "txtKostiakov_i"});
    return ueh ? checks::ApunteDeEscorrentia(checks::RepartoDe(*ueh, s.Tormenta, s.Pasos, s.TablasDeLluvia))
               : std::string{};
}

std::optional<CurvaInfiltracion> CurvaDeCampos(const dlgUEH2& f)
{
    const auto a = Numero(f, "txtKostiakov_a");
    const auto b = Numero(f, "txtKostiakov_b");
    const auto tInicial = Numero(f, "txtKostiakov_i");
    if (!a || !b || !tInicial) return {};
    return CurvaKostiakov(*a, *b, *tInicial);
}

}  // namespace editor
