// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/fichas/Ficha.h"
#include "forms/CampoNumerico.h"
#include "model/Siro.h"

// What the forms of the Represas and of the Lagos have alike: method, Muskingum's k, initial height,
// destination among the reaches.
namespace editor {

inline constexpr std::string_view PiscinaNivelada = "Piscina Nivelada";
inline constexpr std::string_view Muskingum = "Muskingum";

/// Entries of lstMetodo.
inline constexpr auto MetodosEmbalse =
    std::to_array<std::string_view>({PiscinaNivelada, Muskingum, "Runge Kutta"});

inline constexpr double MaximoK = 99999;  ///< [min]
inline constexpr std::string_view MensajeK = "Ingrese un valor numérico entre 0 y 99999 (0 y 99999)";
inline constexpr std::string_view RotuloK = "k[min]=";

/// Limits and message are those of the moment, from the table of the component.
inline constexpr forms::ReglaNumero ReglaHInicialEmb{
    .control = "txtHInicialEmb", .unidad = "m", .caja = forms::CajaRechazo::Llana, .alRechazar = "0"};

/// Controls of the same name in both forms.
struct FichaEmbalse : Ficha {
    Lista lstCauceAA{};
    Lista lstMetodo{};
    std::string lblMetodo{};
    std::string txtHInicialEmb{};  ///< [m]

    /// The fields of Muskingum's coefficients show; hidden, they keep what they hold.
    [[nodiscard]] bool MuskingumVisible() const { return lblMetodo == Muskingum; }
};

/// Fills the list of methods. A method that is none of them becomes the level pool in the component itself.
void MuestraMetodo(FichaEmbalse& f, std::string& Metodo);

/// Picks an entry of lstMetodo, from 0. Returns false where there is no such entry.
bool EligeMetodo(FichaEmbalse& f, int indice);

/// What stands beside the place of k: its caption, or the method that has no k.
std::string RotuloDeK(const FichaEmbalse& f);

/// Lowest and highest height of a component's table [m]; both 0 for an empty one.
struct AlturasTabla {
    float minima = 0, maxima = 0;
};

/// The first and the last height of a table. Throws Falla 9 for a component that the tables in memory don't
/// have.
AlturasTabla AlturasDe(const model::Arreglo<std::int16_t>& filas, const model::Matriz<float>& H, int numero);

/// Leaving the initial height: 0 always passes, another number does within the table, both ends included.
/// The message names the ends. Returns false where the text is refused; "0" then stands in its place.
bool SaleDeHInicialEmb(FichaEmbalse& f, const model::Siro& s, AlturasTabla alturas);

/// Drains a Represa or a Lago to an entry of its list of destinations, point included. Returns false where
/// no entry is selected.
template <typename Registro>
bool TomaDestino(Registro& componente, model::Siro& s, const FichaEmbalse& f)
{
    const auto destino = DestinoElegido(s, OrdenDestinos::SoloCauces, f.lstCauceAA);
    if (!destino) return false;
    const Punto en = PuntoDestino(s, *destino);
    componente.Cauce_aa = destino->Cauce_aa;
    componente.XCauce = en.X;
    componente.YCauce = en.Y;
    return true;
}

/// "Aceptar", the fields being stored: nothing stays selected.
void CierraConSeleccion(FichaEmbalse& f, model::Siro& s);

}  // namespace editor
