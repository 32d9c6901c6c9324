// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Avisos.h"
#include "model/Siro.h"
#include "shell/Talleres_ventana.h"

namespace shell {

struct Talleres::Partes {};

Talleres::Talleres(forms::Entorno& alrededor) : entorno(alrededor) {}

Talleres::~Talleres() = default;

void Talleres::AbreLluvia()
{
    model::Advierte(entorno.s, "Esta versión no trae el taller de lluvia; lo trae la versión completa.");
}

void Talleres::AbreAjuste()
{
    model::Advierte(entorno.s, "Esta versión no trae el taller de ajuste; lo trae la versión completa.");
}

void Talleres::AbreMemoria()
{
    model::Advierte(entorno.s, "Esta versión no trae la memoria de cálculo; la trae la versión completa.");
}

void Talleres::TomaCorridas() {}

void Talleres::AbreComparacion()
{
    model::Advierte(entorno.s,
                    "Esta versión no trae la comparación de corridas; la trae la versión completa.");
}

study::Abierto* Talleres::Estudio()
{
    return nullptr;
}

std::vector<results::Observado> Talleres::Observados(const std::string& /*componente*/) const
{
    return {};
}

void Talleres::TrasGuardarComo() {}

void Talleres::TrasEliminar() {}

void Talleres::TrasTraer() {}

void Talleres::AlSalir() {}

}  // namespace shell
