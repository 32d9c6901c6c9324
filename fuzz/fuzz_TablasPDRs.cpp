// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoDeUnArchivo.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

// The series agrees with the table it was taken from, and the tables come back after a writing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoDeUnArchivo archivo;
    archivo.bytes->assign(datos, datos + largo);
    model::Siro s;
    s.Disco = archivo.Disco();
    s.Tormenta.TablaPDR = 2;
    model::LeeTablaPDRs(s);
    Exige(s.Serie.NroSeriePDR >= 0);
    bool entero = s.Serie.NroSeriePDR > 0;
    for (std::size_t k = 1; k <= 3; ++k)
        Exige(s.TablasDeLluvia.NroFilasTabla[k] <= 0 ||
              s.TablasDeLluvia.NroFilasTabla[k] < s.TablasDeLluvia.TablasP.TopeColumna());
    for (const std::string& notas : s.TablasDeLluvia.NotasPDR)
        entero = entero && notas.find('"') == std::string::npos;
    if (!entero) return 0;
    Exige(s.Serie.NroSeriePDR == s.TablasDeLluvia.NroFilasTabla[2] &&
          s.Serie.SerieP.Tope() == s.Serie.NroSeriePDR);
    for (int j = 1; j <= s.Serie.NroSeriePDR; ++j)
        Exige(s.Serie.SerieD(j) == s.TablasDeLluvia.TablasD(2, j) &&
              s.Serie.SerieR(j) == s.TablasDeLluvia.TablasR(2, j));

    model::Siro otro = s;
    model::GuardaTablaPDRs(otro);
    model::LeeTablaPDRs(otro);
    Exige(otro.TablasDeLluvia.NroFilasTabla == s.TablasDeLluvia.NroFilasTabla &&
          otro.TablasDeLluvia.NotasPDR == s.TablasDeLluvia.NotasPDR);
    Exige(otro.TablasDeLluvia.TablasP == s.TablasDeLluvia.TablasP &&
          otro.TablasDeLluvia.TablasD == s.TablasDeLluvia.TablasD &&
          otro.TablasDeLluvia.TablasR == s.TablasDeLluvia.TablasR);
    return 0;
}
