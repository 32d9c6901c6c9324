// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/dlgAjuste.h"
#include "study/Pagina_ventana.h"

namespace calibration {

/// A step of the fitting workshop.
using PaginaDeAjuste = study::PaginaDe<dlgAjuste>;

}  // namespace calibration
