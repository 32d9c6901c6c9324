// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// What the editor says and asks while the network is edited; texts of their own of each kind of icon stand
// in its row of ClasesConIcono.h. A text with a name in it is given up to the name, and after it.
namespace editor {

// --- placing ---

inline constexpr std::string_view EnEsaPosicion = "> en esa posición. Cambie la posición con el mouse";

// --- links ---

inline constexpr std::string_view TituloConsulta = "Consulta";
inline constexpr std::string_view ConElCauce = "> con el cauce <";
inline constexpr std::string_view CierraNombre = ">";
inline constexpr std::string_view YaAcoplada = "> ya está acoplada al cauce <";  // nothing closes the name
inline constexpr std::string_view TituloInversion = "Operación Inconsistente";
inline constexpr std::string_view Inversion =
    "No se puede acoplar un componente a su tributario; quite primero el acople";

// --- the mouth of a reach ---

inline constexpr std::string_view ElTramo = "El tramo de cauce ";
inline constexpr std::string_view EsTributario = " es tributario del tramo ";
inline constexpr std::string_view DeseaRedefinir = " , Desea redefinir el destino final del tramo ? ";
inline constexpr std::string_view PreguntaElTramo = "¿El tramo de cauce ";
inline constexpr std::string_view FinPreguntaElTramo = " ?";

// --- deleting ---

inline constexpr std::string_view TituloCauceTributario = "Desacoplar el Cauce a eliminar";
inline constexpr std::string_view CauceTributario = "Para eliminar el Cauce <";
inline constexpr std::string_view FinTributario =
    "> debe desacoplarse primero todo componente tributario (UEH o Cauce)";
inline constexpr std::string_view VerifiqueRepresas =  // kept as it stands
    "Se recomienda verificar los parámestros de carga del formulario Represas y sus Tablas";
inline constexpr std::string_view TituloBorraTodo = "ADVERTENCIA ! ";
inline constexpr std::string_view PreguntaBorraTodo = "¿Desea borrar todos los componentes de UEHs ?:";

/// A text made of pieces.
template <typename... Piezas>
std::string Texto(const Piezas&... piezas)
{
    std::string texto;
    (texto.append(piezas), ...);
    return texto;
}

}  // namespace editor
