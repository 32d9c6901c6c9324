// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "model/Avisos.h"

namespace forms {

/// Runs the event of a form whose faults have no handler of their own: a fault is told in a box and ends the
/// event, the form staying as it is. Returns false where there was one.
template <typename Cuerpo>
bool Evento(const model::Anfitrion& anfitrion, Cuerpo&& cuerpo)
{
    return model::Sentencia(std::forward<Cuerpo>(cuerpo), model::AvisaMotor(anfitrion));
}

}  // namespace forms
