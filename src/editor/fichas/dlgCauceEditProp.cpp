// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgCauceEditProp.h"

#include <cmath>
#include <optional>

#include "model/Numeros.h"

namespace editor {

using model::Cauce;
using model::Siro;

namespace {

constexpr ReglasFicha<dlgCauceEditProp, Cauce, model::MaxCauces> Reglas{
    .prefijo = "c-",
    .coleccion = &model::Red::ColCauces,
    .seleccion = &model::Seleccion::CauceSel,
    .nombre = &Cauce::NombreCauce,
    .numero = &Cauce::numCauce,
    .destinos = OrdenDestinos::Todos,
    .controlNombre = "txtNombreCauce",
    .txtNombre = &dlgCauceEditProp::txtNombreCauce,
    .lista = &dlgCauceEditProp::lstCauces,
    .listaDestinos = &dlgCauceEditProp::lstTributaCauce,
    .lblNumero = &dlgCauceEditProp::lblNroCauce,
    .lblNombre = &dlgCauceEditProp::lblNombreCauce,
};

/// Only the other reaches follow: one that drains to itself keeps the old name as its destination.
SiguenNombre Siguen(const Siro& s)
{
    return {.salvoCauce = s.Seleccion.CauceSel};
}

void MuestraLongitudDibujada(dlgCauceEditProp& f, const Siro& s)
{
    const double escala = model::Val(s.Configuracion.EscalaDibujo);
    f.lbl_LongCauceDibujo.clear();
    if (escala == 0) f.lbl_LongCauceDibujo = SinEscalar;
    if (escala > 0)
        f.lbl_LongCauceDibujo = model::NumeroATexto(LongitudDibujada(s, s.Seleccion.CauceSel, escala));
}

void MuestraCauce(dlgCauceEditProp& f, Siro& s)
{
    MuestraIdentidad(f, s, Reglas);
    const Cauce& cauce = EnMano(s, Reglas);
    f.lblCantVer = model::NumeroATexto(std::int32_t{cauce.numVertices});
    f.lblOrdenCauce = model::NumeroATexto(std::int32_t{cauce.OrdenCauce});
    f.optDirecta = cauce.optDirMusk;
    f.optMusk = !cauce.optDirMusk;
    forms::Muestra(f, cauce, CamposDlgCauceEditProp);
    MuestraLongitudDibujada(f, s);
}

void GuardaCauce(dlgCauceEditProp& f, Siro& s)
{
    GuardaNombreTocado(f, s, Reglas, Siguen(s));
    Cauce& cauce = EnMano(s, Reglas);
    forms::Guarda(f, cauce, CamposDlgCauceEditProp);
    cauce.optDirMusk = f.optDirecta;
    if (const int destino = NumeroDeCauce(s, cauce.Cauce_aa); destino > 0)
        PonPrimerVertice(s, s.Seleccion.CauceSel, UltimoVertice(s, destino));
}

void Cierra(dlgCauceEditProp& f, Siro& s)
{
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = 0;
    CierraFicha(f, s);
}

}  // namespace

void Abre(dlgCauceEditProp& f, Siro& s)
{
    if (AbreFicha(f, s, Reglas)) MuestraCauce(f, s);
}

void lstCauces_Click(dlgCauceEditProp& f, Siro& s, int indice)
{
    GuardaCauce(f, s);
    if (TomaDeLista(f, s, Reglas, indice)) MuestraCauce(f, s);
}

bool txtNombreCauce_Cambia(dlgCauceEditProp& f, const Siro& s)
{
    return ArreglaNombre(f, s, Reglas);
}

bool AlSalir(dlgCauceEditProp& f, Siro& s, std::string_view control)
{
    if (control == Reglas.controlNombre) return GuardaNombre(f, s, Reglas, Siguen(s));
    return forms::AlSalir(f, s, CamposDlgCauceEditProp, control);
}

void lstTributaCauce_Click(dlgCauceEditProp& f, Siro& s, int indice)
{
    f.lstTributaCauce.indice = indice;
    const std::optional<Destino> destino = DestinoElegido(s, Reglas.destinos, f.lstTributaCauce);
    if (!destino) return;
    EnMano(s, Reglas).Cauce_aa = destino->Cauce_aa;
    if (destino->clase == Destino::Clase::Represa || destino->clase == Destino::Clase::Lago)
        PonPrimerVertice(s, s.Seleccion.CauceSel, PuntoDestino(s, *destino));
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

bool SinAplicar(const dlgCauceEditProp& f, Siro& s)
{
    return Difiere(f, [&](dlgCauceEditProp& limpia) { MuestraCauce(limpia, s); });
}

void OKButton(dlgCauceEditProp& f, Siro& s)
{
    GuardaCauce(f, s);
    Cierra(f, s);
}

void CancelButton(dlgCauceEditProp& f, Siro& s)
{
    Cierra(f, s);
}

std::int32_t LongitudDibujada(const Siro& s, int numCauce, double escala)
{
    std::int32_t L = 0;
    for (int j = 2; j <= s.Red.NroVertices(numCauce); ++j) {
        const double dx = double{s.Red.XVertice(numCauce, j)} - s.Red.XVertice(numCauce, j - 1);
        const double dy = double{s.Red.YVertice(numCauce, j)} - s.Red.YVertice(numCauce, j - 1);
        L = model::Entero32(L + std::sqrt(dx * dx + dy * dy));
    }
    return model::Entero32(escala * L);
}

}  // namespace editor
