// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "editor/Dibujo.h"
#include "editor/Edicion.h"
#include "editor/Nombres.h"
#include "editor/frmUEHs.h"
#include "model/Siro.h"

// The three kinds of component that the drawing shows as icons, a row each: where their data stand and what
// the editor says of them. The routines of editing are written once and go over the rows.
namespace editor {

/// A box around the position of an icon [sizes s]. The upper side doesn't belong to it, the others do.
struct CajaDeIcono {
    double izquierda, arriba, derecha, abajo;
};

template <typename T, int Limite>
struct ClaseConIcono {
    model::Coleccion<T, Limite> model::Red::*coleccion;
    std::int16_t model::Red::*cuenta;
    std::int16_t model::Seleccion::*elegido;  ///< number of the selected one
    std::int16_t T::*numero;
    std::string T::*nombre;
    float T::*x;  ///< position of the icon
    float T::*y;
    T (*nuevo)();  ///< values that a new one is born with, number, name and place apart
    void (*borra)(frmUEHs& f, model::Siro& s);  ///< deletes the selected one

    PeticionDeNombre pide;
    std::string_view marca;             ///< name of one that its own placing takes away again
    std::string_view yaExiste;          ///< there is another at the same place
    CajaDeIcono caja;                   ///< a click in it selects
    Arrastra mueve, enlaza;             ///< what a drag does
    bool fueraDelPuntero;               ///< a fast pointer leaves the icon behind
    bool enlazaEmbalses;                ///< a link can be drawn to a Represa or a Lago
    std::string_view yaAcoplado;        ///< it drains into that reach already
    std::string_view confirmaMenu;      ///< link to a reach by the menu
    std::string_view confirmaArrastre;  ///< link by a drag
    std::string_view conDestino;        ///< link by a drag that ends at one of this kind
    std::string_view otroAcople;        ///< the reach takes another Represa or Lago already
    bool nombraOtroAcople;              ///< that text ends with the name
    std::string_view tituloTributario;  ///< refusal to delete what something drains into; empty: no refusal
    std::string_view tributario;        ///< its text up to the name
};

inline model::UEH UEHNueva()
{
    return {.Metodo = "Directo"};
}
inline model::Represa RepresaNueva()
{
    return {.Metodo = "Piscina Nivelada", .optTabla = true};
}
inline model::Lago LagoNuevo()
{
    return {.Metodo = "Directo"};
}

inline constexpr ClaseConIcono<model::UEH, model::MaxUEHs> ClaseUEH{
    .coleccion = &model::Red::ColUEHs,
    .cuenta = &model::Red::NroUEHs,
    .elegido = &model::Seleccion::UEHSel,
    .numero = &model::UEH::numUEH,
    .nombre = &model::UEH::NombreUEH,
    .x = &model::UEH::IconoUEHx,
    .y = &model::UEH::IconoUEHy,
    .nuevo = UEHNueva,
    .borra = BorraUEH,
    .pide = {"u-", "Agregar una UEH", "Nombre de la UEH ?"},
    .marca = "borrarUEH",
    .yaExiste = "Ya existe la UEH <",
    .caja = {0, 0, 1.5, 1.5},
    .mueve = Arrastra::IconoUEH,
    .enlaza = Arrastra::EnlaceUEH,
    .fueraDelPuntero = false,
    .enlazaEmbalses = true,
    .yaAcoplado = "La UEH <",
    .confirmaMenu = "Confirma el acople de la UEH <",
    .confirmaArrastre = "Confirma el acople de la UEH <",
    .conDestino = "",
    .otroAcople = "",
    .nombraOtroAcople = false,
    .tituloTributario = "",
    .tributario = "",
};

inline constexpr ClaseConIcono<model::Represa, model::MaxRepresas> ClaseRepresa{
    .coleccion = &model::Red::ColRepresas,
    .cuenta = &model::Red::NroRepresas,
    .elegido = &model::Seleccion::RepresaSel,
    .numero = &model::Represa::numRepresa,
    .nombre = &model::Represa::NombreRepresa,
    .x = &model::Represa::IconoRepresaX,
    .y = &model::Represa::IconoRepresaY,
    .nuevo = RepresaNueva,
    .borra = BorraRepresa,
    .pide = {"r-", "Agregar una Represa", "Nombre de la Represa ?"},
    .marca = "borrarRepresa",
    .yaExiste = "Ya existe la Represa <",
    .caja = {0, 0, 1.5, 1.5},
    .mueve = Arrastra::IconoRepresa,
    .enlaza = Arrastra::EnlaceRepresa,
    .fueraDelPuntero = true,
    .enlazaEmbalses = false,
    .yaAcoplado = "La Represa <",
    .confirmaMenu = "Confirma el acople de la Represa <",
    .confirmaArrastre = "Confirma el acople de la Represa <",
    .conDestino = "> con la Represa <",
    .otroAcople = "Ya existe otro acople a ese tramo de cauce. Revise el diagrama de conexión de la represa ",
    .nombraOtroAcople = true,
    .tituloTributario = "Desacoplar el Represa a eliminar",  // "el Represa": kept as it stands
    .tributario = "Para eliminar el Represa <",
};

inline constexpr ClaseConIcono<model::Lago, model::MaxLagos> ClaseLago{
    .coleccion = &model::Red::ColLagos,
    .cuenta = &model::Red::NroLagos,
    .elegido = &model::Seleccion::LagoSel,
    .numero = &model::Lago::numLAGO,
    .nombre = &model::Lago::NombreLAGO,
    .x = &model::Lago::IconoLAGOx,
    .y = &model::Lago::IconoLAGOy,
    .nuevo = LagoNuevo,
    .borra = BorraLago,
    .pide = {"l-", "Agregar una depresión lagunar", "Nombre de la depresión lagunar/lago/mallin ?"},
    .marca = "borrarLAGO",
    .yaExiste = "Ya existe la Laguna <",
    .caja = {-1, -2, 1, 2},
    .mueve = Arrastra::IconoLago,
    .enlaza = Arrastra::EnlaceLago,
    .fueraDelPuntero = true,
    .enlazaEmbalses = false,
    .yaAcoplado = "La LAGO <",  // the article is kept as it stands
    .confirmaMenu = "Confirma el acople de la LAGO <",
    .confirmaArrastre = "Confirma el acople del LAGO <",
    .conDestino = "> con la depresión lagunar <",
    .otroAcople = "Ya existe otro acople a ese tramo de cauce. Revise el diagrama de conexión del Lago",
    .nombraOtroAcople = false,
    .tituloTributario = "Desacoplar el Lago a eliminar",
    .tributario = "Para eliminar el Lago <",
};

/// Does something with each kind: UEHs, Represas, Lagos.
template <typename F>
void PorClase(F hace)
{
    hace(ClaseUEH);
    hace(ClaseRepresa);
    hace(ClaseLago);
}

/// The selected component of a kind. Throws Falla 9 or 91 where none is.
template <typename T, int Limite>
T& Elegido(model::Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    return (s.Red.*clase.coleccion).Ranura(s.Seleccion.*clase.elegido);
}

template <typename T, int Limite>
Punto Icono(const ClaseConIcono<T, Limite>& clase, const T& componente)
{
    return {componente.*clase.x, componente.*clase.y};
}

/// Makes a component drain into another, which it meets at a point.
template <typename T>
void Acopla(T& componente, const std::string& destino, Punto en)
{
    componente.Cauce_aa = destino;
    componente.XCauce = en.X;
    componente.YCauce = en.Y;
}

}  // namespace editor
