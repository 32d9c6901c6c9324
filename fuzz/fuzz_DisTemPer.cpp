// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoDeUnArchivo.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

// Whole percentages that were read come back after a writing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoDeUnArchivo archivo;
    archivo.bytes->assign(datos, datos + largo);
    model::Siro s;
    s.Disco = archivo.Disco();
    s.TablasDeLluvia.NroFilasTabla[0] = 7;
    model::LeeTablaDisTemPer(s);
    Exige(s.TablasDeLluvia.NroFilasTabla[0] == 7);
    bool algo = false;
    for (std::size_t k = 1; k <= 3; ++k) {
        Exige(s.TablasDeLluvia.NroFilasTabla[k] <= 0 ||
              s.TablasDeLluvia.NroFilasTabla[k] < s.TablasDeLluvia.DisPerso.TopeColumna());
        algo = algo || s.TablasDeLluvia.NroFilasTabla[k] > 0;
        if (s.TablasDeLluvia.NotasDisPer[k].find('"') != std::string::npos) return 0;
    }
    if (!algo) return 0;
    model::Siro otro = s;
    model::GuardaTablaDisPer(otro);
    model::LeeTablaDisTemPer(otro);
    Exige(otro.TablasDeLluvia.NroFilasTabla == s.TablasDeLluvia.NroFilasTabla &&
          otro.TablasDeLluvia.NotasDisPer == s.TablasDeLluvia.NotasDisPer);
    Exige(otro.TablasDeLluvia.DurMinPer == s.TablasDeLluvia.DurMinPer &&
          otro.TablasDeLluvia.DurMaxPer == s.TablasDeLluvia.DurMaxPer &&
          otro.TablasDeLluvia.DisPerso == s.TablasDeLluvia.DisPerso);
    return 0;
}
