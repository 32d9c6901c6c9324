// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR_ventana.h"

namespace results {

dlgTablaSalePDR_ventana::dlgTablaSalePDR_ventana(forms::Entorno& alrededor, dlgTablaSalePDR& registro,
                                                 QWidget* padre)
    : FormaTablaQDR_ventana(alrededor, "dlgTablaSalePDR", TituloDlgTablaSalePDR, registro, nullptr, padre),
      f(registro)
{
}

void dlgTablaSalePDR_ventana::AbreForma()
{
    results::Abre(f, entorno.s);
}

void dlgTablaSalePDR_ventana::Llena()
{
    results::cmdAplicarCambios(f, entorno.s);
}

}  // namespace results
