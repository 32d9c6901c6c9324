// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "editor/Dibujo.h"
#include "editor/Gesto.h"
#include "editor/NombreComponente.h"
#include "model/Clases.h"

// The three kinds of component that the drawing shows as icons, a row each: how it looks, and what the editor
// says of it. The routines of editing are written once and go over the rows.
namespace editor {

/// A box around the position of an icon [sizes s]. The upper side doesn't belong to it, the others do.
struct CajaDeIcono {
    double izquierda, arriba, derecha, abajo;
};

struct FilaConIcono {
    std::string_view Metodo;  ///< of a new one
    PeticionDeNombre pide;
    std::string_view marca;         ///< name of one that its own placing takes away again
    std::string_view yaExiste;      ///< there is another at the same place
    CajaDeIcono caja;               ///< a click in it selects
    float esquina, lado;            ///< of the icon as drawn: upper left corner, from its position [sizes s]
    float nombreDebajo;             ///< name under the position [sizes s]
    Papel papel;                    ///< of its link
    Arrastra mueve, enlaza;         ///< what a drag does
    bool fueraDelPuntero = false;   ///< a fast pointer leaves the icon behind
    bool enlazaEmbalses = false;    ///< a link can be drawn to a Represa or a Lago
    std::string_view yaAcoplado;    ///< it drains into that reach already
    std::string_view confirmaMenu;  ///< link to a reach by the menu
    std::string_view confirmaArrastre;    ///< link by a drag
    std::string_view conDestino{};        ///< link by a drag that ends at one of this kind
    std::string_view otroAcople{};        ///< the reach takes another Represa or Lago already
    bool nombraOtroAcople = false;        ///< that text ends with the name
    std::string_view tituloTributario{};  ///< refusal to delete what something drains into; empty: no refusal
    std::string_view tributario{};        ///< its text up to the name
};

template <typename T>
inline constexpr FilaConIcono ConIcono{};

template <>
inline constexpr FilaConIcono ConIcono<model::UEH>{
    .Metodo = "Directo",
    .pide = {"Agregar una UEH", "Nombre de la UEH ?"},
    .marca = "borrarUEH",
    .yaExiste = "Ya existe la UEH <",
    .caja = {0, 0, 1.5, 1.5},
    .esquina = 0,
    .lado = 1.5F,
    .nombreDebajo = 2.0F,
    .papel = Papel::EnlaceUEH,
    .mueve = Arrastra::IconoUEH,
    .enlaza = Arrastra::EnlaceUEH,
    .enlazaEmbalses = true,
    .yaAcoplado = "La UEH <",
    .confirmaMenu = "Confirma el acople de la UEH <",
    .confirmaArrastre = "Confirma el acople de la UEH <",
};

template <>
inline constexpr FilaConIcono ConIcono<model::Represa>{
    .Metodo = "Piscina Nivelada",
    .pide = {"Agregar una Represa", "Nombre de la Represa ?"},
    .marca = "borrarRepresa",
    .yaExiste = "Ya existe la Represa <",
    .caja = {0, 0, 1.5, 1.5},
    .esquina = 0,
    .lado = 1.5F,
    .nombreDebajo = 2.05F,
    .papel = Papel::EnlaceRepresa,
    .mueve = Arrastra::IconoRepresa,
    .enlaza = Arrastra::EnlaceRepresa,
    .fueraDelPuntero = true,
    .yaAcoplado = "La Represa <",
    .confirmaMenu = "Confirma el acople de la Represa <",
    .confirmaArrastre = "Confirma el acople de la Represa <",
    .conDestino = "> con la Represa <",
    .otroAcople = "Ya existe otro acople a ese tramo de cauce. Revise el diagrama de conexión de la represa ",
    .nombraOtroAcople = true,
    .tituloTributario = "Desacoplar el Represa a eliminar",  // "el Represa": kept as it stands
    .tributario = "Para eliminar el Represa <",
};

template <>
inline constexpr FilaConIcono ConIcono<model::Lago>{
    .Metodo = "Directo",
    .pide = {"Agregar una depresión lagunar", "Nombre de la depresión lagunar/lago/mallin ?"},
    .marca = "borrarLAGO",
    .yaExiste = "Ya existe la Laguna <",
    .caja = {-1, -2, 1, 2},
    .esquina = -1,
    .lado = 2,
    .nombreDebajo = 2.0F,
    .papel = Papel::EnlaceLago,
    .mueve = Arrastra::IconoLago,
    .enlaza = Arrastra::EnlaceLago,
    .fueraDelPuntero = true,
    .yaAcoplado = "La LAGO <",  // the article is kept as it stands
    .confirmaMenu = "Confirma el acople de la LAGO <",
    .confirmaArrastre = "Confirma el acople del LAGO <",
    .conDestino = "> con la depresión lagunar <",
    .otroAcople = "Ya existe otro acople a ese tramo de cauce. Revise el diagrama de conexión del Lago",
    .tituloTributario = "Desacoplar el Lago a eliminar",
    .tributario = "Para eliminar el Lago <",
};

/// Does something with each of them, as `hace<T>()`: UEHs, Represas, Lagos.
template <typename F>
void PorClase(F hace)
{
    hace.template operator()<model::UEH>();
    hace.template operator()<model::Represa>();
    hace.template operator()<model::Lago>();
}

Punto Icono(const auto& componente)
{
    return {model::IconoX(componente), model::IconoY(componente)};
}
void PonIcono(auto& componente, Punto en)
{
    model::IconoX(componente) = en.X;
    model::IconoY(componente) = en.Y;
}

/// Where a component meets what it drains into.
void PonPunto(auto& componente, Punto en)
{
    componente.XCauce = en.X;
    componente.YCauce = en.Y;
}
/// Makes a component drain into another, which it meets at a point.
void Acopla(auto& componente, std::string_view destino, Punto en)
{
    componente.Cauce_aa = destino;
    PonPunto(componente, en);
}

}  // namespace editor
