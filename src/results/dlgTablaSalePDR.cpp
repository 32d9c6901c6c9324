// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR.h"

#include "forms/Evento.h"

namespace results {

void Abre(dlgTablaSalePDR& f, model::Siro& s)
{
    f = dlgTablaSalePDR{};
    f.abierta = true;
    cmdAplicarCambios(f, s);
}

void AlActivar(dlgTablaSalePDR& f, model::Siro& s)
{
    cmdAplicarCambios(f, s);
}

void cmdAplicarCambios(dlgTablaSalePDR& f, model::Siro& s)
{
    forms::Evento(s, [&] { LlenaTodas(f.MSFlexGridTablaSaleQDR, s); });
}

void AlPulsarEncabezado(dlgTablaSalePDR& f, int columna)
{
    PulsaEncabezado(f.MSFlexGridTablaSaleQDR, columna);
}

void OKButton(dlgTablaSalePDR& f)
{
    f.abierta = false;
}

void AntesDeImprimir(dlgTablaSalePDR& f)
{
    f.vistaGuardada = f.vista;
    f.vista = {.botones = false, .barras = false};
}

void DespuesDeImprimir(dlgTablaSalePDR& f)
{
    f.vista = f.vistaGuardada;
}

}  // namespace results
