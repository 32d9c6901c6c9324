// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Siro.h"

namespace hydraulics {

/// Returns the Represa in s.CompActual. Throws Falla 91 where it holds none.
inline const model::Represa& RepresaEnMano(const model::Siro& s)
{
    const bool hay = s.CompActual.clase == model::ComponenteActual::Clase::Represa &&
                     s.CompActual.item >= 1 && s.CompActual.item <= s.Red.ColRepresas.Cuenta();
    if (!hay) throw model::Falla{model::NumeroFalla::ObjetoNoEstablecido};
    return s.Red.ColRepresas.Item(s.CompActual.item);
}

/// Returns the Lago in s.CompActual. Throws Falla 91 where it holds none.
inline const model::Lago& LagoEnMano(const model::Siro& s)
{
    const bool hay = s.CompActual.clase == model::ComponenteActual::Clase::Lago && s.CompActual.item >= 1 &&
                     s.CompActual.item <= s.Red.ColLagos.Cuenta();
    if (!hay) throw model::Falla{model::NumeroFalla::ObjetoNoEstablecido};
    return s.Red.ColLagos.Item(s.CompActual.item);
}

}  // namespace hydraulics
