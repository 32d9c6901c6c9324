// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CampoNumerico.h"

#include <cmath>

#include "model/Avisos.h"
#include "model/Siro.h"

namespace forms {

std::optional<double> NumeroDeCampo(std::string_view texto)
{
    std::optional<double> x;
    model::Sentencia([&] { x = model::NumeroEntero(model::ComasAPuntos(texto)); });
    return x;
}

std::optional<double> NumeroDeCampo(const ReglaNumero& regla, std::string_view texto)
{
    const bool vacio = texto.find_first_not_of(' ') == std::string_view::npos;
    return vacio && regla.vacioEsCero ? std::optional<double>(0) : NumeroDeCampo(texto);
}

bool Cabe(const ReglaNumero& regla, double x)
{
    const bool esDeLaClase = regla.clase == ClaseNumero::Real || x == std::floor(x);
    return esDeLaClase && x >= regla.minimo && x <= regla.maximo;
}

bool Vale(const ReglaNumero& regla, std::string_view texto)
{
    const std::optional<double> x = NumeroDeCampo(regla, texto);
    return x && Cabe(regla, *x);
}

void MuestraRechazo(const model::Siro& s, Rechazo rechazo, std::string_view mensaje)
{
    if (rechazo == Rechazo::Exclamacion) model::Advierte(s, std::string(mensaje), {});
    if (rechazo == Rechazo::Advertencia) model::Advierte(s, std::string(mensaje));
    if (rechazo == Rechazo::Llana) model::Informa(s, std::string(mensaje));
}

void Recorta(const ReglaNumero& regla, double x, std::string& texto)
{
    if (x > regla.maximo)
        texto = regla.alRechazar.empty() ? model::NumeroATexto(regla.maximo) : std::string(regla.alRechazar);
    else if (x <= regla.minimo && regla.minimo > -SinLimite)
        texto = model::NumeroATexto(regla.minimo);
}

bool AlSalir(const model::Siro& s, const ReglaNumero& regla, std::string& texto)
{
    if (regla.rechazo == Rechazo::Recorta) {
        Recorta(regla, model::Val(texto), texto);
        return true;
    }
    texto = model::ComasAPuntos(texto);
    if (Vale(regla, texto)) return true;
    MuestraRechazo(s, regla.rechazo, regla.mensaje);
    if (!regla.alRechazar.empty()) texto = regla.alRechazar;
    return false;
}

}  // namespace forms
