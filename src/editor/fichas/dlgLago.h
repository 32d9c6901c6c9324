// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "editor/fichas/FichaEmbalse.h"
#include "forms/CampoNumerico.h"
#include "model/Siro.h"

// Rules of the form with the properties of the Lagos, one at a time. Name and destination are taken at once,
// the other fields on moving to another Lago and on "Aceptar". Faults go to the caller.
namespace editor {

inline constexpr std::string_view TituloDlgLago =
    "Propiedades de LAG (Depresiones , Mallines, Lagos y Lagunas)";

// clang-format off
/// Captions; an empty one is told by the record.
inline constexpr auto RotulosDlgLago = std::to_array<forms::FilaRotulo>({
    {"lstLAGOs",          "Laguna:"},
    {"lblNroLago",        "Nro. Laguna:"},
    {"lblNombreLago",     "Nombre Laguna:"},
    {"txtNombreLAGO",     "Modificar Nombre Lag.:"},
    {"txtReferencia",     "Referencia:"},
    {"lstCauceAA",        "Drena al Cauce:"},
    {"lstMetodo",         "Propagación/Método:"},
    {"txtLago_k",         ""},
    {"txtHInicialEmb",    "Altura Inicial Embalse [m]"},
    {"cmdParametros",     "Cargar Parámetros Físicos"},
    {"fraIdentificacion", "Identificación de la depresión, mallín, laguna, lago"},
    {"fraAreaMetodo",     "Area de aportes y método de cálculo / propagación"},
    {"cmdLlevaTablas",    LeyendaLlevaTablas},
    {"OKButton",          LeyendaAceptar},
    {"CancelButton",      LeyendaCancelar},
});
// clang-format on

// What lblParametros says of the table.
inline constexpr std::string_view ConDatosEnTabla = "Datos HSVQ en Tabla";
inline constexpr std::string_view SinDatosEnTabla = "Sin datos en Tabla";
inline constexpr std::string_view SinDatosLeidos = "---";  ///< after a read with the form open

/// What the form's controls hold.
struct dlgLago : FichaEmbalse {
    Lista lstLAGOs{};
    std::string lblNroLago{}, lblNombreLago{};
    std::string txtNombreLAGO{};
    std::string txtReferencia{};
    std::string txtLago_k{}, lblLagoCofk{};  ///< [min]
    std::string lblParametros{};
    bool operator==(const dlgLago&) const = default;
};

// clang-format off
inline constexpr auto CamposDlgLago = std::to_array<forms::CampoNumerico<dlgLago, model::Lago>>({
    {{.control = "txtLago_k", .unidad = "min", .maximo = MaximoK, .mensaje = MensajeK,
      .caja = forms::CajaRechazo::Llana},
     &dlgLago::txtLago_k, &model::Lago::Lago_k_Musk},
});
// clang-format on

/// Opening, on the selected Lago or the first one; reads the tables of all. With no Lago the form stays
/// closed.
void Abre(dlgLago& f, model::Siro& s);

/// Another Lago is picked, from 0: the fields are stored in the one in hand first, and the tables are read
/// anew, so that one that a rename has orphaned is missed here and not in a run.
void lstLAGOs_Click(dlgLago& f, model::Siro& s, int indice);

/// The name is being typed. Returns false where it became invalid.
bool txtNombreLAGO_Cambia(dlgLago& f, const model::Siro& s);

/// Leaving a field, by its control's name. Returns false where its text is refused and the focus stays.
bool AlSalir(dlgLago& f, model::Siro& s, std::string_view control);

/// A destination is picked, from 0: it takes effect at once, and again when the fields are stored.
void lstCauceAA_Click(dlgLago& f, model::Siro& s, int indice);

/// A method is picked, from 0; it is stored with the fields.
void lstMetodo_Click(dlgLago& f, int indice);

/// The table that a rename has left behind takes the name of the Lago in hand.
void cmdLlevaTablas(dlgLago& f, model::Siro& s);

/// The button that opens the table.
PedidoFicha cmdParametros(const dlgLago& f);

/// The tables have been read with the form open: the form of the table does so.
void AlVolver(dlgLago& f, const model::Siro& s);

/// Whether the form holds what "Aceptar" would still have to store.
bool SinAplicar(const dlgLago& f, model::Siro& s);

/// Stores the fields, clears the selection and closes.
void OKButton(dlgLago& f, model::Siro& s);
/// Closes without storing: name and destination already taken stay, and so does the selection.
void CancelButton(dlgLago& f, model::Siro& s);

}  // namespace editor
