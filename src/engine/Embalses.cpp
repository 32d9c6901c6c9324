// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Embalses.h"

#include <algorithm>
#include <string_view>

#include "engine/EmbalseEnMano.h"
#include "engine/Muskingum.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Simple;
using model::Siro;

namespace {

constexpr std::string_view MetodoPiscina = "Piscina Nivelada";
constexpr std::string_view MetodoRungeKutta = "Runge Kutta";

/// A statement whose fault ends the routing.
constexpr auto FallaYTermina = [](auto cuerpo) { cuerpo(); };

// --- inflow ---

void JuntaAfluentes(Corrida& c, const EmbalseEnMano& e)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(e.fila);
    for (const Aportes::AfluenteUEH& u : afluentes.UEHs) {
        SumaAfluente(c, e.fila, u.fila, FallaYTermina);
        // that of the row's UEH, unlike in a reach: kept as it stands
        c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.Red.UEHs(u.fila).Q0Recesion);
    }
    for (const int f : afluentes.Cauces)
        SumaAfluente(c, e.fila, f, FallaYTermina);
}

// --- methods ---

bool PropagaMuskingum(Corrida& c, const EmbalseEnMano& e)
{
    constexpr double X = 0;  // the Represa's own weight has no effect
    model::Resultados& r = c.s.Resultados;
    if (!c.Musk.Prepara(e.K, X, c.s.Pasos.PasoQ, FallaYTermina)) {
        model::Advierte(c.s, TextoMuskingum(e.nombre));
        return false;
    }
    for (int k = 1; k <= r.NroPasosQ; ++k) {
        c.Musk.Paso(r, e.fila, k);
        const float H = hydraulics::HdeQalma(e, r.QSale(e.fila, k));
        e.H(e.numero, k) = H;
        e.S(e.numero, k) = Simple(hydraulics::SdeH(e, H));
    }
    return true;
}

/// The frame of both kinds. Returns false where the routine is left before the table.
bool PropagaEmbalse(Corrida& c, const EmbalseEnMano& e)
{
    JuntaAfluentes(c, e);
    if (e.metodo == MetodoMuskingum) {
        if (!PropagaMuskingum(c, e)) return false;
    } else if (e.metodo == MetodoPiscina) {
        PropagaPiscina(c, e);
    } else {
        PropagaRungeKutta(c, e);
    }
    EscribeTabla(c, e);
    return true;
}

/// Tells that a component names no method; "represa" is kept for a Lago.
void AvisaMetodo(const Siro& s, const std::string& nombre)
{
    model::Advierte(
        s, "Error, Seleccione el método de propagación de la represa en el formulario de Propiedades" +
               nombre + ". ");
}

EmbalseEnMano EnMano(Siro& s, const model::Represa& r, int fila)
{
    model::Resultados& res = s.Resultados;
    return {hydraulics::EnMano(s.Anfitrion, s.Red, r),
            "Represa",
            "m3/s",
            r.Metodo,
            r.Represa_k_Musk,
            r.HInicialEmb,
            res.HRepresa,
            res.SRepresa,
            fila};
}

// "mm" of a Lago is kept as it stands.
EmbalseEnMano EnMano(Siro& s, const model::Lago& l, int fila)
{
    model::Resultados& res = s.Resultados;
    return {hydraulics::EnMano(s.Anfitrion, s.Red, l),
            "Lago",
            "mm",
            l.Metodo,
            l.Lago_k_Musk,
            l.HInicialEmb,
            res.HLago,
            res.SLago,
            fila};
}

/// Routes the Represa or the Lago at a row of Secuencia.
template <typename T>
void Proceso(Corrida& c, int fila)
{
    const auto& todos = model::Todos<T>(c.s.Red);
    const auto sinMetodo =
        std::find_if(todos.begin(), todos.end(), [](const T& e) { return !MetodoConocido(e.Metodo); });
    for (const int item : c.Afluentes->Propios(fila)) {
        // An earlier one without a method stops this one too: kept as it stands.
        if (item > sinMetodo - todos.begin()) break;
        c.QBaseEntra = 0;
        if (!PropagaEmbalse(c, EnMano(c.s, todos.Item(item), fila))) return;
    }
    if (sinMetodo != todos.end()) AvisaMetodo(c.s, model::Nombre(*sinMetodo));
}

}  // namespace

bool MetodoConocido(std::string_view metodo)
{
    return metodo == MetodoMuskingum || metodo == MetodoPiscina || metodo == MetodoRungeKutta;
}

void Proceso_en_Represa(Corrida& c, int fila)
{
    Proceso<model::Represa>(c, fila);
}

void Proceso_en_Lago(Corrida& c, int fila)
{
    Proceso<model::Lago>(c, fila);
}

}  // namespace engine
