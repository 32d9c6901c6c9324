// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/EjeTiempo.h"

#include <cmath>

#include "model/Numeros.h"

namespace results {

std::string_view TituloEjeX(bool minutos)
{
    return minutos ? "minutos" : "horas";
}

std::string Categoria(std::int16_t i, std::int16_t paso, bool minutos)
{
    const std::int16_t t = model::Producto16(i, paso);
    if (minutos) return model::NumeroATexto(std::int32_t{t});
    return model::NumeroATexto(std::floor(t / 60.0 * 100) / 100);
}

}  // namespace results
