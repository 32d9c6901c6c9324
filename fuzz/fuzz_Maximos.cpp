// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "frequency/Maximos.h"

// What a table of maxima says is wrong is said; what it takes can be kept with a study.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    const frequency::Tabla tabla = frequency::LeeTabla(bytes);
    for (const study::SerieDeMaximos& serie : tabla.series) {
        Exige(serie.duracion > 0 && std::isfinite(serie.duracion));
        for (const study::Maximo& m : serie.maximos) {
            Exige(m.anio >= 1500 && m.anio <= 2200 && m.valor >= 0 && m.valor <= 1e5);
            Exige(!m.dias || (*m.dias >= 0 && *m.dias <= 366));
        }
    }
    const frequency::Serie serie = frequency::LeeMaximos(bytes);
    Exige(serie.errores.size() <= 22);
    if (!serie.errores.empty()) return 0;
    Exige(serie.maximos.size() >= frequency::MinimoDeAnios &&
          serie.maximos.size() <= frequency::MaximoDeAnios);
    for (std::size_t i = 1; i < serie.maximos.size(); ++i)
        Exige(serie.maximos[i].anio > serie.maximos[i - 1].anio);
    return 0;
}
