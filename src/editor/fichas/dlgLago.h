// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "editor/fichas/FichaEmbalse.h"
#include "forms/CampoNumerico.h"
#include "model/SiroDeclarado.h"

// Rules of the form with the properties of the Lagos, one at a time.
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

    static const ReglasFicha<dlgLago, model::Lago> Reglas;
};

// clang-format off
inline constexpr auto CamposDlgLago = std::to_array<forms::CampoNumerico<dlgLago, float model::Lago::*>>({
    {{.control = "txtLago_k", .unidad = "min", .maximo = MaximoK, .mensaje = MensajeK,
      .rechazo = forms::Rechazo::Llana},
     &dlgLago::txtLago_k, &model::Lago::Lago_k_Musk},
});
// clang-format on

inline constexpr ReglasFicha<dlgLago, model::Lago> dlgLago::Reglas{
    .destinos = OrdenDestinos::SoloCauces,
    .controlNombre = "txtNombreLAGO",
    .txtNombre = &dlgLago::txtNombreLAGO,
    .lista = &dlgLago::lstLAGOs,
    .listaDestinos = &dlgLago::lstCauceAA,
    .lblNumero = &dlgLago::lblNroLago,
    .lblNombre = &dlgLago::lblNombreLago,
    .campos = CamposDlgLago,
};

/// The tables of all are read anew, so that one that a rename has orphaned is missed here and not in a run.
void AlTomar(dlgLago& f, model::Siro& s);
void MuestraCampos(dlgLago& f, model::Siro& s);
void GuardaCampos(dlgLago& f, model::Siro& s);

/// A destination is picked, from 0: it takes effect at once, and again when the fields are stored.
void lstCauceAA_Click(dlgLago& f, model::Siro& s, int indice);

/// A method is picked, from 0; it is stored with the fields.
void lstMetodo_Click(dlgLago& f, int indice);

/// Beside the initial height: what is stored and let out there; empty where it is no number.
std::string ApunteAltura(const dlgLago& f, model::Siro& s);

/// The table that a rename has left behind takes the name of the Lago in hand.
void cmdLlevaTablas(dlgLago& f, model::Siro& s);

/// The button that opens the table.
PedidoFicha cmdParametros(const dlgLago& f);

/// The tables have been read with the form open: the form of the table does so.
void AlVolver(dlgLago& f, const model::Siro& s);

}  // namespace editor
