// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "editor/Destinos.h"
#include "editor/NombreComponente.h"
#include "forms/CampoNumerico.h"
#include "forms/Rotulo.h"
#include "model/Coleccion.h"
#include "model/Numeros.h"
#include "model/Siro.h"

// What the property forms of UEHs, Cauces, Represas and Lagos have in common: a list to move among the
// components of a kind, a name that the others of the kind don't have, and destinations. A form tells with
// one `ReglasFicha` what its controls are.
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
template <typename Forma, typename Registro, int Limite>
struct ReglasFicha {
    std::string_view prefijo;  ///< of the names of the kind
    model::Coleccion<Registro, Limite> model::Red::*coleccion;
    std::int16_t model::Seleccion::*seleccion;  ///< number of the component in hand
    std::string Registro::*nombre;
    std::int16_t Registro::*numero;
    OrdenDestinos destinos;

    std::string_view controlNombre;
    std::string Forma::*txtNombre;
    Lista Forma::*lista;          ///< names of all components of the kind
    Lista Forma::*listaDestinos;  ///< where the component in hand may drain to
    std::string Forma::*lblNumero;
    std::string Forma::*lblNombre;
};

/// The component in hand. Throws Falla 9 or 91 where the selection names none.
template <typename Reglas>
auto& EnMano(model::Siro& s, const Reglas& reglas)
{
    return (s.Red.*reglas.coleccion).Ranura(s.Seleccion.*reglas.seleccion);
}

/// Fills the list of components and marks the one in hand.
template <typename Forma, typename Reglas>
void LlenaLista(Forma& f, const model::Siro& s, const Reglas& reglas)
{
    Lista& lista = f.*reglas.lista;
    lista.items.clear();
    for (const auto& componente : s.Red.*reglas.coleccion)
        lista.items.push_back(componente.*reglas.nombre);
    lista.indice = s.Seleccion.*reglas.seleccion - 1;
}

/// Opens a form on the selected component, on the first where none is selected. Returns false where there is
/// no component: the form is closed again.
template <typename Forma, typename Reglas>
bool AbreFicha(Forma& f, model::Siro& s, const Reglas& reglas)
{
    f = Forma{};
    if ((s.Red.*reglas.coleccion).Cuenta() == 0) return false;
    if (s.Seleccion.*reglas.seleccion == 0) s.Seleccion.*reglas.seleccion = 1;
    f.abierta = true;
    LlenaLista(f, s, reglas);
    return true;
}

/// Shows number, name and destination of the component in hand.
template <typename Forma, typename Reglas>
void MuestraIdentidad(Forma& f, model::Siro& s, const Reglas& reglas)
{
    const auto& componente = EnMano(s, reglas);
    f.foco = {};
    f.*reglas.lblNumero = model::NumeroATexto(std::int32_t{componente.*reglas.numero});
    f.*reglas.lblNombre = componente.*reglas.nombre;
    f.*reglas.txtNombre = componente.*reglas.nombre;
    f.*reglas.listaDestinos = ListaDestinos(s, reglas.destinos, componente.Cauce_aa);
    (f.*reglas.lista).indice = s.Seleccion.*reglas.seleccion - 1;
}

/// Whether a form holds what its component doesn't: `muestra` shows a form the component anew.
template <typename Forma, typename Muestra>
bool Difiere(const Forma& f, Muestra muestra)
{
    if (!f.abierta) return false;
    Forma limpia = f;
    muestra(limpia);
    limpia.foco = f.foco;
    return !(limpia == f);
}

/// Takes the component of a line of the list in hand. Returns false where there is no such line.
template <typename Forma, typename Reglas>
bool TomaDeLista(const Forma& f, model::Siro& s, const Reglas& reglas, int indice)
{
    if (indice < 0 || indice >= static_cast<int>((f.*reglas.lista).items.size())) return false;
    s.Seleccion.*reglas.seleccion = static_cast<std::int16_t>(indice + 1);
    return true;
}

// --- name ---

/// The name being typed, and once more when it is left: the prefix is put in front, the text is cut, and a
/// name that another component of the kind has becomes "Invalido", all of it selected. An "Invalido" that
/// stands there already is the form's own and stays. Returns false where the name became invalid.
template <typename Forma, typename Reglas>
bool ArreglaNombre(Forma& f, const model::Siro& s, const Reglas& reglas)
{
    f.foco = {};
    std::string& texto = f.*reglas.txtNombre;
    if (texto == NombreInvalido) return true;
    texto = NombreConPrefijo(reglas.prefijo, texto);
    int numero = 0;
    for (const auto& componente : s.Red.*reglas.coleccion) {
        if (++numero == s.Seleccion.*reglas.seleccion || componente.*reglas.nombre != texto) continue;
        texto = NombreInvalido;
        forms::Retiene(f, reglas.controlNombre);
        return false;
    }
    return true;
}

/// Leaving the name: gives the component in hand the name in the field, after the rules of `ArreglaNombre`;
/// destinations follow. An invalid name isn't stored. Returns false where the name became invalid just now.
template <typename Forma, typename Reglas>
bool GuardaNombre(Forma& f, model::Siro& s, const Reglas& reglas, SiguenNombre siguen = {})
{
    if (!ArreglaNombre(f, s, reglas)) return false;
    const std::string nuevo = f.*reglas.txtNombre;
    auto& componente = EnMano(s, reglas);
    if (nuevo == NombreInvalido || nuevo == componente.*reglas.nombre) return true;
    RenombraDestinos(s, componente.*reglas.nombre, nuevo, siguen);
    componente.*reglas.nombre = nuevo;
    f.*reglas.lblNombre = nuevo;
    f.*reglas.listaDestinos = ListaDestinos(s, reglas.destinos, componente.Cauce_aa);
    LlenaLista(f, s, reglas);
    s.Anfitrion.RedibujaEditor();
    return true;
}

/// Storing the form: the same for a name that was typed and not left. One that nobody touched stays as it is,
/// though a file or a division of a reach may have given it no prefix, or more characters than fit.
template <typename Forma, typename Reglas>
void GuardaNombreTocado(Forma& f, model::Siro& s, const Reglas& reglas, SiguenNombre siguen = {})
{
    if (f.*reglas.txtNombre != EnMano(s, reglas).*reglas.nombre) GuardaNombre(f, s, reglas, siguen);
}

/// Closes a form and shows in the editor what it has changed.
inline void CierraFicha(Ficha& f, const model::Siro& s)
{
    f.abierta = false;
    f.foco = {};
    s.Anfitrion.RedibujaEditor();
}

}  // namespace editor
