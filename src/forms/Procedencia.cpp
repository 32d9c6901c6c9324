// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Procedencia.h"

#include <utility>

#include "model/Siro.h"

namespace forms {

namespace {

constexpr std::string_view Entre = " - ";

/// Refused in a name by Windows, some of them by others too.
constexpr std::string_view Prohibidos = "<>:\"/\\|?*";

std::string Unidos(const std::string& uno, const std::string& otro)
{
    if (uno.empty() || otro.empty()) return uno + otro;
    return std::string(uno).append(Entre).append(otro);
}

}  // namespace

Procedencia DeHoy(const model::Siro& s, Procedencia procedencia)
{
    procedencia.proyecto = Unidos(s.Proyecto.NombreProyecto, s.Configuracion.TituloProyecto);
    procedencia.fecha = FechaDelDia(s);
    return procedencia;
}

std::vector<std::string> Renglones(const Procedencia& procedencia)
{
    std::vector<std::string> renglones;
    for (const std::string& renglon :
         {procedencia.titulo, procedencia.tema,
          procedencia.proyecto.empty() ? std::string{} : "Proyecto: " + procedencia.proyecto,
          procedencia.fecha.empty() ? std::string{} : "Fecha: " + procedencia.fecha})
        if (!renglon.empty()) renglones.push_back(renglon);
    return renglones;
}

std::string NombreDeArchivo(const Procedencia& procedencia)
{
    constexpr unsigned char PrimeroImprimible = 0x20;
    const std::string todo = Unidos(procedencia.titulo, procedencia.componente);
    std::string nombre;
    for (std::size_t i = 0; i < todo.size(); ++i) {
        const char c = todo[i];
        const bool prohibido =
            static_cast<unsigned char>(c) < PrimeroImprimible || Prohibidos.find(c) != std::string_view::npos;
        // "Serie: Resumen" becomes "Serie - Resumen".
        if (prohibido && i + 1 < todo.size() && todo[i + 1] == ' ') nombre += ' ';
        nombre += prohibido ? '-' : c;
    }
    // Neither a blank nor a point may stand at the end.
    nombre.erase(nombre.find_last_not_of(" .") + 1);
    return nombre;
}

std::string FechaDelDia(const model::Siro& s)
{
    const std::string fechaHora = s.Anfitrion.FechaHora();
    return fechaHora.substr(0, fechaHora.find(' '));
}

}  // namespace forms
