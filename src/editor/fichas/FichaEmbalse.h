// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "editor/fichas/Ficha.h"
#include "forms/CampoNumerico.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"

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
    std::string lblTablas{};       ///< what has become of the tables after a rename; empty: nothing to say
    std::string tablasDe{};        ///< name under which they stand in the files; empty: nothing to take along

    /// The fields of Muskingum's coefficients show; hidden, they keep what they hold.
    [[nodiscard]] bool MuskingumVisible() const { return lblMetodo == Muskingum; }
    bool operator==(const FichaEmbalse&) const = default;
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

/// Caption of the key that takes the tables along, and what its tip says.
inline constexpr std::string_view LeyendaLlevaTablas = "&Llevar las tablas";
inline constexpr std::string_view AyudaLlevaTablas =
    "Pone este nombre a las tablas en sus archivos; después guarde la red en el editor";

/// Of the component in hand: its files of tables, and the words for its kind.
struct TablasDeEmbalse {
    std::span<const model::ArchivoDeTablas> archivos;
    std::string_view nadie;  ///< "ninguna Represa"
};
inline constexpr auto ArchivosDeRepresa =
    std::to_array({model::ArchivoDeTablas::RHAS, model::ArchivoDeTablas::RHQ});
inline constexpr auto ArchivosDeLago = std::to_array({model::ArchivoDeTablas::LHASQ});
inline constexpr TablasDeEmbalse TablasDeRepresa{ArchivosDeRepresa, "ninguna Represa"};
inline constexpr TablasDeEmbalse TablasDeLago{ArchivosDeLago, "ningún Lago"};

/// Tables are kept by name, block after block in the order of the components: where the component in hand has
/// none in a file, and the block in its place bears a name that nobody bears, a rename has left it behind.
/// Its name goes into `tablasDe`, and `lblTablas` says so.
template <typename Coleccion, typename Registro>
void BuscaTablas(FichaEmbalse& f, const model::Siro& s, const TablasDeEmbalse& tablas,
                 const Coleccion& coleccion, std::string Registro::*nombre, int numero)
{
    const auto esDeAlguien = [&](const std::string& buscado) {
        return std::any_of(coleccion.begin(), coleccion.end(),
                           [&](const Registro& c) { return c.*nombre == buscado; });
    };
    f.tablasDe.clear();
    f.lblTablas.clear();
    const std::string& propio = coleccion.Item(numero).*nombre;
    for (const model::ArchivoDeTablas archivo : tablas.archivos) {
        const std::vector<model::BloqueDeTabla> bloques = model::BloquesDe(s, archivo);
        const auto lugar = static_cast<std::size_t>(numero) - 1;
        const bool tiene = std::any_of(bloques.begin(), bloques.end(),
                                       [&](const auto& bloque) { return bloque.nombre == propio; });
        if (tiene || lugar >= bloques.size() || bloques[lugar].filas == 0) continue;
        if (esDeAlguien(bloques[lugar].nombre)) continue;
        f.tablasDe = bloques[lugar].nombre;
        f.lblTablas = "Las tablas guardadas con el nombre «" + f.tablasDe + "» ya no son de " +
                      std::string(tablas.nadie) + ".";
        return;
    }
}

/// Takes the tables along: in the files they bear the name of the component from now on. A fault of the disk
/// is told, and they stay to be taken.
void LlevaTablas(FichaEmbalse& f, const model::Siro& s, const TablasDeEmbalse& tablas,
                 const std::string& nombre);

/// "Aceptar", the fields being stored: nothing stays selected.
void CierraConSeleccion(FichaEmbalse& f, model::Siro& s);

}  // namespace editor
