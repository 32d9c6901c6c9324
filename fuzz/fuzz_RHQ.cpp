// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>

#include "TresTablas.h"
#include "model/TablasEmbalse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    PruebaTabla("RHQ.vlm", Entrada(datos, largo), model::LeeTablaHQRepresa, model::GuardaTablaHQRepresa);
    return 0;
}
