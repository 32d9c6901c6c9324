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
    s.TablaPDR = 2;
    model::LeeTablaPDRs(s);
    Exige(s.NroSeriePDR >= 0);
    bool entero = s.NroSeriePDR > 0;
    for (std::size_t k = 1; k <= 3; ++k)
        Exige(s.NroFilasTabla[k] <= 0 || s.NroFilasTabla[k] < s.TablasP.TopeColumna());
    for (const std::string& notas : s.NotasPDR)
        entero = entero && notas.find('"') == std::string::npos;
    if (!entero) return 0;
    Exige(s.NroSeriePDR == s.NroFilasTabla[2] && s.SerieP.Tope() == s.NroSeriePDR);
    for (int j = 1; j <= s.NroSeriePDR; ++j)
        Exige(s.SerieD(j) == s.TablasD(2, j) && s.SerieR(j) == s.TablasR(2, j));

    model::Siro otro = s;
    model::GuardaTablaPDRs(otro);
    model::LeeTablaPDRs(otro);
    Exige(otro.NroFilasTabla == s.NroFilasTabla && otro.NotasPDR == s.NotasPDR);
    Exige(otro.TablasP == s.TablasP && otro.TablasD == s.TablasD && otro.TablasR == s.TablasR);
    return 0;
}
