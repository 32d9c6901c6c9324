// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CampoNumerico.h"

#include <cmath>
#include <utility>

#include "model/Avisos.h"

namespace forms {

std::optional<double> NumeroDeCampo(std::string_view texto)
{
    std::optional<double> x;
    model::Sentencia([&] { x = model::NumeroEntero(model::ComasAPuntos(texto)); });
    return x;
}

bool Cabe(const ReglaNumero& regla, double x)
{
    if (regla.clase == ClaseNumero::Entero && x != std::floor(x)) return false;
    const bool desdeElMinimo = regla.incluyeMinimo ? x >= regla.minimo : x > regla.minimo;
    const bool hastaElMaximo = regla.incluyeMaximo ? x <= regla.maximo : x < regla.maximo;
    return desdeElMinimo && hastaElMaximo;
}

bool Vale(const ReglaNumero& regla, std::string_view texto)
{
    if (regla.vacioEsCero && texto.find_first_not_of(' ') == std::string_view::npos) return Cabe(regla, 0);
    const std::optional<double> x = NumeroDeCampo(texto);
    return x && Cabe(regla, *x);
}

void MuestraRechazo(const model::Siro& s, CajaRechazo caja, std::string mensaje)
{
    switch (caja) {
    case CajaRechazo::Exclamacion:
        model::Advierte(s, std::move(mensaje), {});
        return;
    case CajaRechazo::Advertencia:
        model::Advierte(s, std::move(mensaje));
        return;
    case CajaRechazo::Llana:
        model::Informa(s, std::move(mensaje));
        return;
    }
}

}  // namespace forms
