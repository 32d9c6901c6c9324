// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>

#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

// Number fields of a form as rows of a table: control, unit, limits, message, and the members of the form's
// record and of the component's that belong together. A form checks, shows and stores its fields from the
// rows.
//
//     constexpr auto CamposUEH = std::to_array<forms::CampoNumerico<dlgUEH2, model::UEH>>({
//         {{.control = "txtArea", .unidad = "has", .maximo = 99999, .mensaje = "Ingrese ..."},
//          &dlgUEH2::txtArea, &model::UEH::Area},
//     });
//
//     bool txtArea_AlSalir(dlgUEH2& f, const Siro& s) { return forms::AlSalir(f, s, CamposUEH, "txtArea"); }
//
// The form's record has a member `forms::Foco foco`.
namespace forms {

/// Where the focus is sent or kept. A window that finds a control here moves the focus to it.
struct Foco {
    std::string_view control{};     ///< object name; empty: the focus goes where the user sends it
    bool todoSeleccionado = false;  ///< with all of its text selected
    bool operator==(const Foco&) const = default;
};

enum class ClaseNumero : std::uint8_t { Real, Entero };

/// Look of the box that tells a refusal.
enum class CajaRechazo : std::uint8_t {
    Exclamacion,  ///< exclamation icon, no title
    Advertencia,  ///< exclamation icon, title "Advertencia !"
    Llana,        ///< neither icon nor title
};

/// What a number field accepts, and what it says to all else.
struct ReglaNumero {
    std::string_view control{};  ///< object name
    std::string_view unidad{};   ///< as labels show it, without brackets; empty: none
    double minimo = 0;
    double maximo = 0;
    std::string_view mensaje{};
    ClaseNumero clase = ClaseNumero::Real;
    bool incluyeMinimo = true;
    bool incluyeMaximo = true;
    bool vacioEsCero = false;  ///< an empty text passes as 0; otherwise it isn't a number
    CajaRechazo caja = CajaRechazo::Exclamacion;
    std::string_view alRechazar{};  ///< text that takes the place of a refused one; empty: it stays
};

/// Returns the number that a field's text is as a whole, a comma counting as a point; nothing where it is
/// none, the empty text included, or is beyond 64-bit floats.
std::optional<double> NumeroDeCampo(std::string_view texto);

/// Whether a number lies within the limits of a rule and is of its class.
bool Cabe(const ReglaNumero& regla, double x);

/// Whether a field's text obeys a rule.
bool Vale(const ReglaNumero& regla, std::string_view texto);

/// Shows a box in the look asked for.
void MuestraRechazo(const model::Siro& s, CajaRechazo caja, std::string mensaje);

/// A row: a rule, the text of the form's record and the value of the component's record.
template <typename Forma, typename Registro, typename Valor = float>
struct CampoNumerico {
    ReglaNumero regla;
    std::string Forma::*texto;
    Valor Registro::*valor;
};

/// Keeps the focus in a control with all of its text selected.
template <typename Forma>
void Retiene(Forma& f, std::string_view control)
{
    f.foco = {control, true};
}

/// Entering a field selects all of it.
template <typename Forma>
void AlEntrar(Forma& f, std::string_view control)
{
    Retiene(f, control);
}

/// Leaving a field: its commas become points, then it is checked. Returns false where the text is refused;
/// the message has then been shown and the focus stays with all of the text selected. The message may be the
/// caller's, where it names values of the moment.
template <typename Forma>
bool AlSalir(Forma& f, const model::Siro& s, const ReglaNumero& regla, std::string& texto,
             std::optional<std::string> mensaje = {})
{
    texto = model::ComasAPuntos(texto);
    if (Vale(regla, texto)) {
        f.foco = {};
        return true;
    }
    MuestraRechazo(s, regla.caja, mensaje ? *std::move(mensaje) : std::string(regla.mensaje));
    if (!regla.alRechazar.empty()) texto = regla.alRechazar;
    Retiene(f, regla.control);
    return false;
}

/// The same by a form's table and a control's name. A control that is no row of the table is let go.
template <typename Forma, std::ranges::input_range Campos>
bool AlSalir(Forma& f, const model::Siro& s, const Campos& campos, std::string_view control)
{
    for (const auto& campo : campos)
        if (campo.regla.control == control) return AlSalir(f, s, campo.regla, f.*campo.texto);
    f.foco = {};
    return true;
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
