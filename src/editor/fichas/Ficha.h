// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "editor/Destinos.h"
#include "editor/EnMano.h"
#include "editor/NombreComponente.h"
#include "forms/CampoNumerico.h"
#include "forms/Rotulo.h"
#include "model/Numeros.h"
#include "model/Siro.h"

// What the property forms of UEHs, Cauces, Represas and Lagos have in common: a list to move among the
// components of a kind, a name that the others of the kind don't have, destinations, number fields. Name and
// destination are taken at once, the other fields on moving to another component and on "Aceptar". A form
// tells with one `ReglasFicha` what its controls are.
//
// Faults go to the caller. Nothing here reaches the disk.
namespace editor {

/// What every such form holds beside its own controls. The component shown is the selected one of the
/// run-wide state.
struct Ficha {
    bool abierta = false;
    forms::Foco foco{};
    bool operator==(const Ficha&) const = default;
};

/// Another form that this one asks for. The window opens it modally and comes back with `AlVolver`.
enum class PedidoFicha : std::uint8_t {
    Nada,
    dlgTablaSHV,   ///< height, area and storage of the Represa in hand
    dlgTablaFQ,    ///< height and outflow of the Represa in hand
    dlgTablaSHVQ,  ///< the table of the Lago in hand
};

inline constexpr std::string_view LeyendaAceptar = "Aceptar";
inline constexpr std::string_view LeyendaCancelar = "Cancelar";

/// What tells one form from another: the kind of its components and its controls.
template <typename Forma, typename Registro>
struct ReglasFicha {
    using Componente = Registro;

    OrdenDestinos destinos;
    std::string_view controlNombre;
    std::string Forma::*txtNombre;
    Lista Forma::*lista;          ///< names of all components of the kind
    Lista Forma::*listaDestinos;  ///< where the component in hand may drain to
    std::string Forma::*lblNumero;
    std::string Forma::*lblNombre;
    std::span<const forms::CampoNumerico<Forma, float Registro::*>> campos;
};

/// A form's record: it has its `Reglas`, and two routines of its own, `MuestraCampos` and `GuardaCampos`,
/// that show the component in hand and store the fields in it.
template <typename Forma>
concept EsFicha = std::derived_from<Forma, Ficha>;

template <EsFicha Forma>
using ComponenteDe = typename decltype(Forma::Reglas)::Componente;

/// Fills the list of components and marks the one in hand.
template <EsFicha Forma>
void LlenaLista(Forma& f, const model::Siro& s)
{
    using T = ComponenteDe<Forma>;
    Lista& lista = f.*Forma::Reglas.lista;
    lista = {.indice = Elegido<T>(s.Seleccion) - 1};
    for (const T& componente : model::Todos<T>(s.Red))
        lista.items.push_back(model::Nombre(componente));
}

/// Shows number, name, destination and numbers of the component in hand.
template <EsFicha Forma>
void MuestraComunes(Forma& f, model::Siro& s)
{
    const auto& componente = EnMano<ComponenteDe<Forma>>(s);
    f.foco = {};
    f.*Forma::Reglas.lblNumero = model::NumeroATexto(std::int32_t{model::Numero(componente)});
    f.*Forma::Reglas.lblNombre = model::Nombre(componente);
    f.*Forma::Reglas.txtNombre = model::Nombre(componente);
    f.*Forma::Reglas.listaDestinos = ListaDestinos(s.Red, Forma::Reglas.destinos, componente.Cauce_aa);
    (f.*Forma::Reglas.lista).indice = Elegido<ComponenteDe<Forma>>(s.Seleccion) - 1;
    forms::Muestra(f, componente, Forma::Reglas.campos);
}

/// Shows a component that has just been taken in hand.
template <EsFicha Forma>
void AlTomar(Forma& f, model::Siro& s)
{
    MuestraCampos(f, s);
}

/// Opens a form on the selected component, on the first where none is selected. Returns false where there is
/// no component: the form stays closed.
template <EsFicha Forma>
bool AbreVacia(Forma& f, model::Siro& s)
{
    using T = ComponenteDe<Forma>;
    f = Forma{};
    if (model::Todos<T>(s.Red).Cuenta() == 0) return false;
    if (Elegido<T>(s.Seleccion) == 0) Elegido<T>(s.Seleccion) = 1;
    f.abierta = true;
    LlenaLista(f, s);
    return true;
}

/// The same, with the component's fields.
template <EsFicha Forma>
void Abre(Forma& f, model::Siro& s)
{
    if (AbreVacia(f, s)) AlTomar(f, s);
}

/// Whether the form holds what "Aceptar" would still have to store.
template <EsFicha Forma>
bool SinAplicar(const Forma& f, model::Siro& s)
{
    if (!f.abierta) return false;
    Forma limpia = f;
    MuestraCampos(limpia, s);
    limpia.foco = f.foco;
    return !(limpia == f);
}

// --- name ---

/// The name being typed, and once more when it is left: the prefix is put in front, the text is cut, and a
/// name that another component of the kind has becomes "Invalido", all of it selected. An "Invalido" that
/// stands there already is the form's own and stays. Returns false where the name became invalid.
template <EsFicha Forma>
bool ArreglaNombre(Forma& f, const model::Siro& s)
{
    using T = ComponenteDe<Forma>;
    f.foco = {};
    std::string& texto = f.*Forma::Reglas.txtNombre;
    if (texto == NombreInvalido) return true;
    texto = NombreConPrefijo(model::DeClase<T>::prefijo, texto);
    int numero = 0;
    for (const T& componente : model::Todos<T>(s.Red)) {
        if (++numero == Elegido<T>(s.Seleccion) || model::Nombre(componente) != texto) continue;
        texto = NombreInvalido;
        f.foco = {Forma::Reglas.controlNombre, true};
        return false;
    }
    return true;
}

/// Leaving the name: gives the component in hand the name in the field, after the rules of `ArreglaNombre`;
/// destinations follow, but for that of a reach that drains to itself. An invalid name isn't stored. Returns
/// false where the name became invalid just now.
template <EsFicha Forma>
bool GuardaNombre(Forma& f, model::Siro& s)
{
    using T = ComponenteDe<Forma>;
    if (!ArreglaNombre(f, s)) return false;
    const std::string nuevo = f.*Forma::Reglas.txtNombre;
    T& componente = EnMano<T>(s);
    if (nuevo == NombreInvalido || nuevo == model::Nombre(componente)) return true;
    // No component drains to a UEH: of the UEHs no destination follows.
    RenombraDestinos(s.Red, model::Nombre(componente), nuevo,
                     {.UEHs = !std::is_same_v<T, model::UEH>,
                      .salvoCauce = std::is_same_v<T, model::Cauce> ? s.Seleccion.CauceSel : 0});
    model::Nombre(componente) = nuevo;
    f.*Forma::Reglas.lblNombre = nuevo;
    f.*Forma::Reglas.listaDestinos = ListaDestinos(s.Red, Forma::Reglas.destinos, componente.Cauce_aa);
    LlenaLista(f, s);
    s.Anfitrion.RedibujaEditor();
    return true;
}

/// Leaving a field, by its control's name. Returns false where its text is refused and the focus stays.
template <EsFicha Forma>
bool AlSalir(Forma& f, model::Siro& s, std::string_view control)
{
    if (control == Forma::Reglas.controlNombre) return GuardaNombre(f, s);
    return forms::AlSalir(f, s, Forma::Reglas.campos, control);
}

// --- what stands beside a field while it is typed ---

/// A copy of the component in hand with the numbers of some fields as they stand now; nothing where the text
/// of one of them is refused, or no component is in hand.
template <EsFicha Forma>
std::optional<ComponenteDe<Forma>> ConLoEscrito(const Forma& f, model::Siro& s,
                                                std::initializer_list<std::string_view> controles)
{
    if (!f.abierta || !HayEnMano<ComponenteDe<Forma>>(s)) return {};
    ComponenteDe<Forma> componente = EnMano<ComponenteDe<Forma>>(s);
    for (const std::string_view control : controles) {
        const auto* const campo = forms::CampoDe(Forma::Reglas.campos, control);
        const std::string& texto = f.*campo->texto;
        if (!forms::Vale(campo->regla, texto)) return {};
        componente.*campo->valor = static_cast<float>(*forms::NumeroDeCampo(texto));
    }
    return componente;
}

// --- storing and closing ---

/// Stores the form in the component in hand. A name that nobody touched stays as it is, though a file or a
/// division of a reach may have given it no prefix, or more characters than fit.
template <EsFicha Forma>
void Guarda(Forma& f, model::Siro& s)
{
    if (f.*Forma::Reglas.txtNombre != model::Nombre(EnMano<ComponenteDe<Forma>>(s))) GuardaNombre(f, s);
    GuardaCampos(f, s);
}

/// Another component is picked, from 0: the fields are stored in the one in hand first. Nothing is taken in
/// hand where there is no such line.
template <EsFicha Forma>
void EligeComponente(Forma& f, model::Siro& s, int indice)
{
    Guarda(f, s);
    if (indice < 0 || indice >= static_cast<int>((f.*Forma::Reglas.lista).items.size())) return;
    Elegido<ComponenteDe<Forma>>(s.Seleccion) = static_cast<std::int16_t>(indice + 1);
    AlTomar(f, s);
}

/// What stays selected when the form of a UEH or a Cauce closes.
inline void SueltaSeleccion(Ficha& /*f*/, model::Siro& s, bool /*guardada*/)
{
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = 0;
}

/// Closes a form and shows in the editor what it has changed.
template <EsFicha Forma>
void Cierra(Forma& f, model::Siro& s, bool guardada)
{
    SueltaSeleccion(f, s, guardada);
    f.abierta = false;
    f.foco = {};
    s.Anfitrion.RedibujaEditor();
}

/// Stores the fields and closes.
template <EsFicha Forma>
void OKButton(Forma& f, model::Siro& s)
{
    Guarda(f, s);
    Cierra(f, s, true);
}

/// Closes without storing: name and destination already taken stay.
template <EsFicha Forma>
void CancelButton(Forma& f, model::Siro& s)
{
    Cierra(f, s, false);
}

}  // namespace editor
