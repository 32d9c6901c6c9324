// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR.h"

#include "forms/Evento.h"
#include "model/Siro.h"

namespace results {

void Abre(dlgTablaSalePDR& f, model::Siro& s)
{
    f = dlgTablaSalePDR{};
    f.abierta = true;
    cmdAplicarCambios(f, s);
}

void cmdAplicarCambios(dlgTablaSalePDR& f, model::Siro& s)
{
    ++f.llenados;
    forms::Evento(s, [&] { LlenaTodas(f.MSFlexGridTablaSaleQDR, s); });
}

}  // namespace results
