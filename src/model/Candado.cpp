// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Candado.h"

#include <cstddef>
#include <utility>

#include "model/Avisos.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view FinCandado = ".lock";
constexpr std::string_view Titulo = "Proyecto abierto dos veces";
constexpr std::string_view Abierto1 = "El proyecto ";
constexpr std::string_view Abierto2 = " está abierto también en otro SIRO (";
constexpr std::string_view AvisaDespues =
    "). Si los dos lo guardan, queda lo que guarde el último. Antes de guardar se le preguntará.";
constexpr std::string_view PreguntaAbierto =
    "). Lo que guarde aquí puede reemplazar lo que se haya hecho allí. ¿Desea guardar igual?";

std::string ConfEnMano(const Siro& s)
{
    return s.Proyecto.NombreProyecto.empty()
               ? std::string{}
               : Ruta(s.Proyecto.DirProyecto, ArchivoConf(s.Proyecto.NombreProyecto));
}

void Reclama(Siro& s)
{
    Vigilancia& v = s.Vigilancia;
    std::string conf = ConfEnMano(s);
    if (conf != v.reclamado) v.consentido.clear();
    v.reclamado = std::move(conf);
    v.ocupante = s.Anfitrion.ReclamaProyecto(v.reclamado);
}

std::string Ocupado(const Siro& s, std::string_view fin)
{
    return std::string(Abierto1)
        .append(s.Proyecto.NombreProyecto)
        .append(Abierto2)
        .append(s.Vigilancia.ocupante)
        .append(fin);
}

}  // namespace

std::string RutaDeCandado(std::string_view conf)
{
    const std::size_t separador = conf.rfind(Separador);
    const std::size_t nombre = separador == std::string_view::npos ? 0 : separador + 1;
    return std::string(conf.substr(0, nombre)).append(".").append(conf.substr(nombre)).append(FinCandado);
}

bool EsCandado(std::string_view nombre)
{
    return nombre.starts_with('.') && nombre.ends_with(std::string(TerminacionConf).append(FinCandado));
}

void ReclamaProyecto(Siro& s)
{
    if (!s.Vigilancia.activa) return;
    s.Vigilancia.consentido.clear();
    Reclama(s);
    if (!s.Vigilancia.ocupante.empty()) Advierte(s, Ocupado(s, AvisaDespues), Titulo);
}

bool PuedeSerDeDos(Siro& s)
{
    Vigilancia& v = s.Vigilancia;
    // Who had it open may have gone meanwhile.
    if (v.reclamado != ConfEnMano(s) || !v.ocupante.empty()) Reclama(s);
    if (v.ocupante.empty() || v.ocupante == v.consentido) return true;
    if (!Consulta(s, Ocupado(s, PreguntaAbierto), Titulo)) return false;
    v.consentido = v.ocupante;
    return true;
}

}  // namespace model
