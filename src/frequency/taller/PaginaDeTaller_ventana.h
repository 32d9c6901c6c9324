// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/taller/dlgTaller.h"
#include "study/Pagina_ventana.h"

namespace frequency {

/// A step of the rain workshop.
using PaginaDeTaller = study::PaginaDe<dlgTaller>;

}  // namespace frequency
