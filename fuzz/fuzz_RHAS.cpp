// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>

#include "TresTablas.h"
#include "model/TablasEmbalse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    PruebaTabla("RHAS.vlm", Entrada(datos, largo), model::LeeTablaHSVRepresa, model::GuardaTablaHSVRepresa);
    return 0;
}
