// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "model/Avisos.h"

namespace forms {

/// Runs the event of a form whose faults have no handler of their own: a fault is told in a box and ends the
/// event, the form staying as it is. Returns false where there was one.
template <typename Cuerpo>
bool Evento(const model::Siro& s, Cuerpo&& cuerpo)
{
    return model::Sentencia(std::forward<Cuerpo>(cuerpo), [&](const model::Falla& falla) {
        model::Informa(s, model::TextoFallaMotor(falla));
    });
}

}  // namespace forms
