// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR2.h"

#include <algorithm>
#include <cstddef>

#include "forms/Evento.h"
#include "model/Siro.h"
#include "results/SerieDeTormentas.h"

namespace results {

using model::Siro;

namespace {

/// Place of the selected name in Secuencia, from 1; 0 where it is nowhere.
std::ptrdiff_t LugarDelElegido(const dlgTablaSalePDR2& f, const Siro& s)
{
    if (f.lstComposIndice < 0 || static_cast<std::size_t>(f.lstComposIndice) >= f.lstCompos.size()) return 0;
    if (s.Resultados.Secuencia.empty()) return 0;
    const auto primero = s.Resultados.Secuencia.begin() + 1;
    const auto hallado = std::find(primero, s.Resultados.Secuencia.end(),
                                   f.lstCompos[static_cast<std::size_t>(f.lstComposIndice)]);
    return hallado == s.Resultados.Secuencia.end() ? 0 : hallado - primero + 1;
}

}  // namespace

void Abre(dlgTablaSalePDR2& f, Siro& s)
{
    f = dlgTablaSalePDR2{};
    if (s.Resultados.NroComponentes < 1) return;
    f.abierta = true;
    f.lstCompos = Componentes(s.Resultados);
    AcotaIndComp(s);
    if (static_cast<std::size_t>(s.Control.IndComp) <= f.lstCompos.size())
        f.lstComposIndice = s.Control.IndComp - 1;
    cmdAplicarCambios(f, s);
}

void cmdAplicarCambios(dlgTablaSalePDR2& f, Siro& s)
{
    if (s.Resultados.NroComponentes < 1) {
        f.abierta = false;
        return;
    }
    const std::ptrdiff_t lugar = LugarDelElegido(f, s);
    s.Control.IndComp =
        lugar > s.Resultados.NroComponentes || lugar < 1 ? std::int16_t{1} : static_cast<std::int16_t>(lugar);
    ++f.llenados;
    forms::Evento(s, [&] { LlenaUna(f.MSFlexGridTablaSaleQDR, s); });
}

void lstCompos_Click(dlgTablaSalePDR2& f, Siro& s)
{
    if (f.lstComposIndice < 0) return;
    cmdAplicarCambios(f, s);
}

}  // namespace results
