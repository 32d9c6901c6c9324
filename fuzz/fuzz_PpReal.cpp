// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoDeUnArchivo.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

// A storm that was read is written and read again: depths, times and notes come back as they were.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoDeUnArchivo archivo;
    archivo.bytes->assign(datos, datos + largo);
    model::Siro s;
    s.Disco = archivo.Disco();
    model::TormentaReal leida;
    model::LeePpReal(s, leida);
    Exige(s.Tormenta.NroPpReal >= 0 && s.Tormenta.NroPpReal <= s.Tormenta.PpReal.Tope());
    if (s.Tormenta.NroPpReal == 0) return 0;
    Exige(s.Tormenta.DurTormenta == s.Tormenta.NroPpReal * leida.PasoPpReal);

    // A double quote inside a text isn't escaped: such a file isn't expected to come back.
    for (const std::string* texto :
         {&leida.Notas, &leida.txtDateI, &leida.txtTimeI, &leida.txtDateF, &leida.txtTimeF})
        if (texto->find('"') != std::string::npos) return 0;
    // Seven digits are written: a depth at the end of the type could come back beyond it in the sum.
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
        if (std::fabs(s.Tormenta.PpReal(j)) > 1e30F) return 0;
    model::Siro otro = s;
    model::TormentaReal escrita = leida;
    model::GuardaPpReal(otro, escrita);
    model::TormentaReal vuelta;
    model::LeePpReal(otro, vuelta);
    Exige(vuelta == leida && otro.Tormenta.NroPpReal == s.Tormenta.NroPpReal &&
          otro.Tormenta.DurTormenta == s.Tormenta.DurTormenta);
    return 0;
}
