// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "checks/Asistente.h"
#include "editor/ClasesConIcono.h"
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
    .control = "txtHInicialEmb", .unidad = "m", .rechazo = forms::Rechazo::Llana, .alRechazar = "0"};

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

/// Leaving the initial height: 0 always passes, another number does within the table, both ends included.
/// The message names the ends. Returns false where the text is refused; "0" then stands in its place.
bool SaleDeHInicialEmb(FichaEmbalse& f, const model::Siro& s, AlturasTabla alturas);

/// Caption of the key that takes the tables along, and what its tip says.
inline constexpr std::string_view LeyendaLlevaTablas = "&Llevar las tablas";
inline constexpr std::string_view AyudaLlevaTablas =
    "Pone este nombre a las tablas en sus archivos; después guarde la red en el editor";

/// Of a kind: its files of tables, the words for it, and the heights of its table.
struct TablasDeEmbalse {
    std::span<const model::ArchivoDeTablas> archivos;
    std::string_view nadie;  ///< "ninguna Represa"
    model::Arreglo<std::int16_t> model::Red::*filas;
    model::Matriz<float> model::Red::*H;
};
inline constexpr auto ArchivosDeRepresa =
    std::to_array({model::ArchivoDeTablas::RHAS, model::ArchivoDeTablas::RHQ});
inline constexpr auto ArchivosDeLago = std::to_array({model::ArchivoDeTablas::LHASQ});

template <typename T>
inline constexpr TablasDeEmbalse TablasDe{};
template <>
inline constexpr TablasDeEmbalse TablasDe<model::Represa>{
    ArchivosDeRepresa, "ninguna Represa", &model::Red::RepresaFilasHAS, &model::Red::RepresaH};
template <>
inline constexpr TablasDeEmbalse TablasDe<model::Lago>{ArchivosDeLago, "ningún Lago", &model::Red::LagoFilas,
                                                       &model::Red::LagoH};

/// The form of a Represa or of a Lago.
template <typename Forma>
concept EsFichaEmbalse = EsFicha<Forma> && std::derived_from<Forma, FichaEmbalse>;

/// Tables are kept by name, block after block in the order of the components: where the component in hand has
/// none in a file, and the block in its place bears a name that nobody bears, a rename has left it behind.
/// Its name goes into `tablasDe`, and `lblTablas` says so.
template <EsFichaEmbalse Forma>
void BuscaTablas(Forma& f, const model::Siro& s)
{
    using T = ComponenteDe<Forma>;
    f.tablasDe.clear();
    f.lblTablas.clear();
    const int numero = Elegido<T>(s.Seleccion);
    const std::string& propio = model::Nombre(model::Todos<T>(s.Red).Item(numero));
    for (const model::ArchivoDeTablas archivo : TablasDe<T>.archivos) {
        const std::vector<model::BloqueDeTabla> bloques = model::BloquesDe(s, archivo);
        const auto lugar = static_cast<std::size_t>(numero) - 1;
        const bool tiene =
            std::ranges::any_of(bloques, [&](const auto& bloque) { return bloque.nombre == propio; });
        if (tiene || lugar >= bloques.size() || bloques[lugar].filas == 0) continue;
        if (model::NumeroDe<T>(s.Red, bloques[lugar].nombre) > 0) continue;
        f.tablasDe = bloques[lugar].nombre;
        f.lblTablas = "Las tablas guardadas con el nombre «" + f.tablasDe + "» ya no son de " +
                      std::string(TablasDe<T>.nadie) + ".";
        return;
    }
}

/// Takes the tables along: in the files they bear the name of the component from now on. A fault of the disk
/// is told, and they stay to be taken.
void LlevaTablas(FichaEmbalse& f, const model::Siro& s, std::span<const model::ArchivoDeTablas> archivos,
                 const std::string& nombre);

/// Leaving a field: a rename may leave the tables behind, and the initial height lies within them.
template <EsFichaEmbalse Forma>
bool AlSalir(Forma& f, model::Siro& s, std::string_view control)
{
    using T = ComponenteDe<Forma>;
    if (control == Forma::Reglas.controlNombre) {
        const std::string antes = f.*Forma::Reglas.lblNombre;
        const bool vale = GuardaNombre(f, s);
        if (f.*Forma::Reglas.lblNombre != antes) BuscaTablas(f, s);
        return vale;
    }
    if (control == ReglaHInicialEmb.control) {
        const int numero = model::Numero(EnMano<T>(s));
        const auto& H = s.Red.*TablasDe<T>.H;
        return SaleDeHInicialEmb(f, s, {H(numero, 1), H(numero, (s.Red.*TablasDe<T>.filas)(numero))});
    }
    return forms::AlSalir(f, s, Forma::Reglas.campos, control);
}

/// The initial height as it stands [m]; nothing where it is no number.
std::optional<float> AlturaEscrita(const FichaEmbalse& f);

/// Beside k: Muskingum's window, with x as 0, which is what a run makes of it. Empty with another method, or
/// where k is refused.
template <EsFichaEmbalse Forma>
std::string ApunteMuskingum(const Forma& f, model::Siro& s)
{
    const auto& k = Forma::Reglas.campos.front();
    const auto embalse = ConLoEscrito(f, s, {k.regla.control});
    if (!embalse || !f.MuskingumVisible()) return {};
    return checks::ApunteDeMuskingum({(*embalse).*k.valor, 0}, checks::PasoDeCorrida(s.Pasos), false);
}

/// Drains the component in hand to the entry of the list of destinations that is selected, point included.
/// Returns false where none is.
template <EsFichaEmbalse Forma>
bool TomaDestino(Forma& f, model::Siro& s)
{
    const auto destino = DestinoElegido(s.Red, OrdenDestinos::SoloCauces, f.lstCauceAA);
    if (destino) Acopla(EnMano<ComponenteDe<Forma>>(s), destino->Cauce_aa, PuntoDestino(s.Red, *destino));
    return destino.has_value();
}

/// After "Aceptar" nothing stays selected, after "Cancelar" all does.
inline void SueltaSeleccion(FichaEmbalse& /*f*/, model::Siro& s, bool guardada)
{
    if (guardada) LimpiaSeleccion(s);
}

}  // namespace editor
