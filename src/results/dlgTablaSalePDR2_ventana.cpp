// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR2_ventana.h"

#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {
namespace {

constexpr int LargoDeNombre = 15;  // characters of a component's name, without a scroll bar

}  // namespace

dlgTablaSalePDR2_ventana::dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro,
                                                   QWidget* padre)
    : dlgTablaSalePDR2_ventana(alrededor, registro, new forms::ListaParaElegir, padre)
{
}

dlgTablaSalePDR2_ventana::dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro,
                                                   forms::ListaParaElegir* lista, QWidget* padre)
    : FormaTablaQDR_ventana(alrededor, "dlgTablaSalePDR2", TituloDlgTablaSalePDR2, registro, lista, padre),
      f(registro),
      lstCompos(lista)
{
    lstCompos->setObjectName(QStringLiteral("lstCompos"));
    lstCompos->setAccessibleName(QStringLiteral("Componente"));
    lstCompos->setFixedWidth(fontMetrics().averageCharWidth() * (LargoDeNombre + 5));
    lstCompos->conFlechas = true;
    lstCompos->AlElegir = [this](int indice) {
        Suceso([&] {
            f.lstComposIndice = indice;
            lstCompos_Click(f, entorno.s);
        });
    };
}

void dlgTablaSalePDR2_ventana::AbreForma()
{
    results::Abre(f, entorno.s);
}

void dlgTablaSalePDR2_ventana::Llena()
{
    results::cmdAplicarCambios(f, entorno.s);
}

std::string dlgTablaSalePDR2_ventana::Componente() const
{
    return f.lstComposIndice < 0 ? std::string{} : f.lstCompos[static_cast<std::size_t>(f.lstComposIndice)];
}

void dlgTablaSalePDR2_ventana::Muestra()
{
    forms::Pon(*lstCompos, f.lstCompos, f.lstComposIndice);
    FormaTablaQDR_ventana::Muestra();
}

}  // namespace results
