// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <type_traits>

#include "model/Numeros.h"
#include "model/SiroDeclarado.h"
#include "model/Texto.h"

// Number fields of a form as rows of a table: control, unit, limits, message, what is done with a text that
// doesn't obey, the text in the form's record and where its number is kept. A form checks, shows and stores
// its fields from the rows.
//
//     constexpr auto CamposUEH = std::to_array<forms::CampoNumerico<dlgUEH2, float model::UEH::*>>({
//         {{.control = "txtArea", .unidad = "has", .maximo = 99999, .mensaje = "Ingrese ..."},
//          &dlgUEH2::txtArea, &model::UEH::Area},
//     });
//
//     bool AlSalir(dlgUEH2& f, const Siro& s, std::string_view control)
//     {
//         return forms::AlSalir(f, s, CamposUEH, control);
//     }
namespace forms {

/// Where a form sends the focus by itself. A window that finds a control here moves the focus to it. A field
/// that refuses its text on being left keeps the focus without it.
struct Foco {
    std::string_view control{};     ///< object name; empty: the focus goes where the user sends it
    bool todoSeleccionado = false;  ///< with all of its text selected
    bool operator==(const Foco&) const = default;
};

enum class ClaseNumero : std::uint8_t { Real, Entero };

/// What a field does with a text that doesn't obey its rule.
enum class Rechazo : std::uint8_t {
    Exclamacion,  ///< it is told in a box with an exclamation icon and no title, and keeps the focus
    Advertencia,  ///< the same with the title "Advertencia !"
    Llana,        ///< the same with neither icon nor title
    Recorta,      ///< a number beyond a limit is cut without a word; the limits hold for the leading number
};

inline constexpr double SinLimite = std::numeric_limits<double>::infinity();

/// What a number field accepts, and what it does with all else.
struct ReglaNumero {
    std::string_view control{};  ///< object name
    std::string_view unidad{};   ///< as labels show it, without brackets; empty: none
    double minimo = 0;
    double maximo = 0;
    std::string_view mensaje{};
    ClaseNumero clase = ClaseNumero::Real;
    bool vacioEsCero = false;  ///< an empty text passes as 0; otherwise it isn't a number
    Rechazo rechazo = Rechazo::Exclamacion;
    /// Text that takes the place of a refused one, or of a number above the maximum that is cut; empty: a
    /// refused text stays, and the number becomes the maximum.
    std::string_view alRechazar{};
};

/// Rule of a number of rows or of intervals.
constexpr ReglaNumero ReglaDeCuenta(std::string_view control)
{
    return {.control = control,
            .maximo = 999,
            .mensaje = "Ingrese un valor numérico entero entre 0 y 999 ",
            .clase = ClaseNumero::Entero,
            .rechazo = Rechazo::Llana};
}

/// Returns the number that a field's text is as a whole, a comma counting as a point; nothing where it is
/// none, the empty text included, or is beyond 64-bit floats.
std::optional<double> NumeroDeCampo(std::string_view texto);
/// The same of a field that may take the empty text as 0.
std::optional<double> NumeroDeCampo(const ReglaNumero& regla, std::string_view texto);

/// Whether a number lies within the limits of a rule, themselves included, and is of its class.
bool Cabe(const ReglaNumero& regla, double x);

/// Whether a field's text obeys a rule.
bool Vale(const ReglaNumero& regla, std::string_view texto);

/// Tells a refusal in the box asked for.
void MuestraRechazo(const model::Siro& s, Rechazo rechazo, std::string_view mensaje);

/// Puts the text of a number beyond a limit at the limit; one at the minimum gets its plain text.
void Recorta(const ReglaNumero& regla, double x, std::string& texto);

/// Leaving a field. It is cut; or its commas become points, then it is checked. Returns false where the text
/// is refused: the message has been shown, and the focus is to stay with all of the text selected. Throws
/// Falla 6 where a number to be cut is beyond 64-bit floats.
bool AlSalir(const model::Siro& s, const ReglaNumero& regla, std::string& texto);

/// A row: a rule, the text of the form's record, and where its number is kept.
template <typename Forma, typename Valor>
struct CampoNumerico {
    ReglaNumero regla;
    std::string Forma::*texto;
    Valor valor;
};

/// A number as a type keeps it, rounded once. Throws Falla 6 where it is outside the type.
template <typename T>
T Redondeado(double x)
{
    if constexpr (std::is_same_v<T, float>)
        return model::Simple(x);
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return model::Entero16(x);
    else
        return x;
}

/// A number of the run-wide state, whatever its type.
struct NumeroDeSiro {
    std::string (*texto)(const model::Siro& s);
    bool (*es)(const model::Siro& s, double x);  ///< whether x would leave it as it is. Throws Falla 6
    void (*pon)(model::Siro& s, double x);       ///< Throws Falla 6
};

/// The one that stands in a member of a part: `EnSiro<&model::Siro::Pasos, &model::Pasos::PasoQ>`.
template <auto Parte, auto Miembro>
inline constexpr NumeroDeSiro EnSiro{
    [](const model::Siro& s) { return model::NumeroATexto(s.*Parte.*Miembro); },
    [](const model::Siro& s, double x) {
        return s.*Parte.*Miembro == Redondeado<std::remove_cvref_t<decltype(s.*Parte.*Miembro)>>(x);
    },
    [](model::Siro& s, double x) {
        s.*Parte.*Miembro = Redondeado<std::remove_cvref_t<decltype(s.*Parte.*Miembro)>>(x);
    }};

/// The row of a control in a form's table; none where the control is no row of it.
template <std::ranges::contiguous_range Campos>
constexpr auto* CampoDe(const Campos& campos, std::string_view control)
{
    const auto* const fin = std::ranges::data(campos) + std::ranges::size(campos);
    for (const auto* campo = std::ranges::data(campos); campo != fin; ++campo)
        if (campo->regla.control == control) return campo;
    return decltype(fin){};
}

/// Leaving a field by a form's table and a control's name. A control that is no row of the table is let go.
template <typename Forma, typename Campos>
bool AlSalir(Forma& f, const model::Siro& s, const Campos& campos, std::string_view control)
{
    const auto* const campo = CampoDe(campos, control);
    return campo == nullptr || AlSalir(s, campo->regla, f.*campo->texto);
}

/// Fills the texts from a component.
template <typename Forma, typename Registro, std::ranges::input_range Campos>
void Muestra(Forma& f, const Registro& registro, const Campos& campos)
{
    for (const auto& campo : campos)
        f.*campo.texto = model::NumeroATexto(registro.*campo.valor);
}

/// Stores the texts in a component, each by its leading number, 0 where it has none, rounded to 32 bits;
/// commas count as points. Limits play no part: a form may be closed with a refused text in it. Throws Falla
/// 6 at the first number outside its type, what stands before it being stored.
template <typename Forma, typename Registro, std::ranges::input_range Campos>
void Guarda(const Forma& f, Registro& registro, const Campos& campos)
{
    for (const auto& campo : campos)
        registro.*campo.valor = model::Simple(model::Val(model::ComasAPuntos(f.*campo.texto)));
}

}  // namespace forms
