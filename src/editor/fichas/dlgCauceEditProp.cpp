// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgCauceEditProp.h"

#include <optional>

#include "checks/Asistente.h"
#include "editor/Cauces.h"
#include "model/Numeros.h"

namespace editor {

using model::Cauce;
using model::Siro;

namespace {

void MuestraLongitudDibujada(dlgCauceEditProp& f, const Siro& s)
{
    const double escala = model::Val(s.Configuracion.EscalaDibujo);
    f.lbl_LongCauceDibujo.clear();
    if (escala == 0) f.lbl_LongCauceDibujo = SinEscalar;
    if (escala > 0)
        f.lbl_LongCauceDibujo = model::NumeroATexto(LongitudDibujada(s.Red, s.Seleccion.CauceSel, escala));
}

}  // namespace

void MuestraCampos(dlgCauceEditProp& f, Siro& s)
{
    MuestraComunes(f, s);
    const Cauce& cauce = EnMano<Cauce>(s);
    f.lblCantVer = model::NumeroATexto(std::int32_t{cauce.numVertices});
    f.lblOrdenCauce = model::NumeroATexto(std::int32_t{cauce.OrdenCauce});
    f.optDirecta = cauce.optDirMusk;
    f.optMusk = !cauce.optDirMusk;
    MuestraLongitudDibujada(f, s);
}

void GuardaCampos(dlgCauceEditProp& f, Siro& s)
{
    Cauce& cauce = EnMano<Cauce>(s);
    forms::Guarda(f, cauce, CamposDlgCauceEditProp);
    cauce.optDirMusk = f.optDirecta;
    if (const int destino = model::NumeroDe<Cauce>(s.Red, cauce.Cauce_aa); destino > 0)
        PonPrimerVertice(s.Red, s.Seleccion.CauceSel, UltimoVertice(s.Red, destino));
}

void lstTributaCauce_Click(dlgCauceEditProp& f, Siro& s, int indice)
{
    f.lstTributaCauce.indice = indice;
    const std::optional<Destino> destino = DestinoElegido(s.Red, f.Reglas.destinos, f.lstTributaCauce);
    if (!destino) return;
    EnMano<Cauce>(s).Cauce_aa = destino->Cauce_aa;
    if (destino->clase && destino->clase != model::Clase::Cauce)
        PonPrimerVertice(s.Red, s.Seleccion.CauceSel, PuntoDestino(s.Red, *destino));
    // A reach as destination takes hold of the lower end when the drawing is redone.
    s.Anfitrion.RedibujaEditor();
    MuestraLongitudDibujada(f, s);
}

void optDirecta_Click(dlgCauceEditProp& f)
{
    f.optDirecta = true;
    f.optMusk = false;
}

void optMusk_Click(dlgCauceEditProp& f)
{
    f.optMusk = true;
    f.optDirecta = false;
}

std::string ApunteViaje(const dlgCauceEditProp& f, Siro& s)
{
    auto cauce = ConLoEscrito(f, s, {"txtLongCauce", "txtVelMediaCauce"});
    if (!cauce) return {};
    cauce->optDirMusk = f.optDirecta;
    return checks::ApunteDeViaje(*cauce, s.Pasos);
}

std::string ApunteMuskingum(const dlgCauceEditProp& f, Siro& s)
{
    const auto cauce = ConLoEscrito(f, s, {"txtCauce_k_Musk", "txtCauce_n_Musk"});
    if (!cauce || !f.optMusk) return {};
    return checks::ApunteDeMuskingum({cauce->Cauce_k_Musk, cauce->Cauce_n_Musk},
                                     checks::PasoDeCorrida(s.Pasos), true);
}

std::int32_t LongitudDibujada(const model::Red& red, int numCauce, double escala)
{
    std::int32_t L = 0;
    for (int j = 2; j <= red.NroVertices(numCauce); ++j) {
        const Punto a = Vertice(red, numCauce, j - 1), b = Vertice(red, numCauce, j);
        L = model::Entero32(L + Largo(a, b));
    }
    return model::Entero32(escala * L);
}

}  // namespace editor
