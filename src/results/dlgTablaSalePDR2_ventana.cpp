// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR2_ventana.h"

namespace results {

dlgTablaSalePDR2_ventana::dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro,
                                                   QWidget* padre)
    : FormaTablaQDR_ventana(alrededor, "dlgTablaSalePDR2", TituloDlgTablaSalePDR2, registro, padre),
      f(registro)
{
    constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar
    QWidget* const componentes =
        Listado("lstCompos", f.lstCompos, f.lstComposIndice, forms::Flechas::Eligen, [this](int indice) {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    componentes->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    Dispone({componentes});
}

std::string dlgTablaSalePDR2_ventana::Componente() const
{
    return f.lstComposIndice < 0 ? std::string{} : f.lstCompos[static_cast<std::size_t>(f.lstComposIndice)];
}

}  // namespace results
