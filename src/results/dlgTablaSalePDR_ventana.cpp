// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR_ventana.h"

namespace results {

dlgTablaSalePDR_ventana::dlgTablaSalePDR_ventana(forms::Entorno& alrededor, dlgTablaSalePDR& registro,
                                                 QWidget* padre)
    : FormaTablaQDR_ventana(alrededor, "dlgTablaSalePDR", TituloDlgTablaSalePDR, registro, padre), f(registro)
{
    Dispone();
}

}  // namespace results
