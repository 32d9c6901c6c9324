// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Avisos.h"
#include "model/Siro.h"
#include "shell/Corridas_ventana.h"
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

void Talleres::ComparaGuardadas(const std::vector<std::pair<std::string, std::string>>& /*corridas*/) {}

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

struct Corridas::Partes {};

Corridas::Corridas(forms::Entorno& alrededor) : entorno(alrededor) {}

Corridas::~Corridas() = default;

void Corridas::Abre()
{
    model::Advierte(entorno.s, "Esta versión no guarda las corridas; lo hace la versión completa.");
}

std::function<void(const Corridas::Corrida&)> Corridas::Prepara()
{
    return {};
}

void Corridas::Guarda(const calibration::CorridasHechas& /*hechas*/, const model::Siro& /*proyecto*/,
                      const std::optional<model::Colecciones>& /*dibujo*/)
{
}

runs::dlgCorridas_ventana* Corridas::Ventana()
{
    return nullptr;
}

}  // namespace shell
