// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "frequency/ImportaMaximos.h"

// A record gives a maximum for each year that it has readings of, the longer the duration the greater, or a
// reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    for (const int mes : {1, 7}) {
        const frequency::Importacion i = *frequency::ImportaMaximos(bytes, {.mesInicial = mes});
        Exige(i.series.empty() == !i.errores.empty());
        for (std::size_t k = 0; k < i.series.size(); ++k) {
            const auto& maximos = i.series[k].maximos;
            Exige(maximos.size() == i.series.front().maximos.size());
            for (std::size_t j = 0; j < maximos.size(); ++j) {
                Exige(maximos[j].valor >= 0 && (j == 0 || maximos[j].anio > maximos[j - 1].anio));
                Exige(!maximos[j].dias || (*maximos[j].dias >= 0 && *maximos[j].dias <= 366));
                Exige(k == 0 || maximos[j].valor >= i.series[k - 1].maximos[j].valor);
            }
        }
    }
    return 0;
}
