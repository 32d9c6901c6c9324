// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "editor/fichas/Ficha.h"
#include "editor/fichas/Kostiakov.h"
#include "forms/CampoNumerico.h"
#include "model/SiroDeclarado.h"

// Rules of the form with the properties of the UEHs, one at a time.
namespace editor {

inline constexpr std::string_view TituloDlgUEH2 = "Propiedades de UHE (Unidad Hidrológica Elemental)";

/// The only entry of lstMetodo.
inline constexpr std::string_view MetodoUEH = "Directo";

// clang-format off
/// Captions; that of a label or field stands beside it, that of a frame above it.
inline constexpr auto RotulosDlgUEH2 = std::to_array<forms::FilaRotulo>({
    {"lblNroUEH",           "Nro. UEH:"},
    {"lblNombreUEH",        "Nombre UEH:"},
    {"txtNombreUEH",        "Modificar Nombre UEH:"},
    {"txtArea",             "Area [has]:"},
    {"lstMetodo",           "Propagación/Método:"},
    {"lstCauceAA",          "Drena a:"},
    {"txtReferencia",       "Referencias:"},
    {"txtLongMax",          "Longitud Máxima al Cauce [m]: "},
    {"txtVelMedia",         "Velocidad Media  \"gota\" en ladera:"},
    {"lblDrenaCauceAA",     "Drena al Cauce:"},
    {"txtRetension_Z",      "Retensión Superficial Z [mm]:"},
    {"txtKostiakov_a",      "I [mm] = a * t[min]^"},
    {"txtKostiakov_b",      ""},
    {"txtKostiakov_i",      "T inicial [min]"},
    {"CurvaInfiltracion",   "Infiltración I(t)"},
    {"txtQ0Recesion",       "Qinicial ="},
    {"txtKRecesion",        "k [hs]="},
    {"OKButton",            LeyendaAceptar},
    {"CancelButton",        LeyendaCancelar},
    {"fraIdentificacion",   "Identificación de la Unidad de Estudios Hidrológicos"},
    {"fraAreaMetodo",       "Area de aportes y método de cálculo / propagación"},
    {"fraPropagacion",      "Parámetros de propagación"},
    {"fraRetencion",        "Intercepción - Almacenamiento superficial "},
    {"fraInfiltracion",     "Infiltración: Parámetros de Kostiakov"},
    {"fraRecesion",         "Abatimiento o Recesión: Parámetros de Singh y Stall"},
    {"lblFormulaRecesion",  "Q [m3/s] = Qi [m3/s]* e "},
    {"lblExponenteRecesion", "- t/k"},  ///< raised, behind the formula
});
// clang-format on

/// What the form's controls hold.
struct dlgUEH2 : Ficha {
    Lista lstUEHs{};
    std::string lblNroUEH{}, lblNombreUEH{};
    std::string txtNombreUEH{};
    std::string txtArea{};  ///< [ha]
    Lista lstMetodo{};
    Lista lstCauceAA{};
    std::string lblDrenaCauceAA{}, lblMetodo{};  ///< copies for reading
    std::string txtReferencia{};
    std::string txtLongMax{};      ///< [m]
    std::string txtVelMedia{};     ///< [m/s]
    std::string txtRetension_Z{};  ///< [mm]
    std::string txtKostiakov_a{};  ///< [mm/min^b]
    std::string txtKostiakov_b{};  ///< [-]
    std::string txtKostiakov_i{};  ///< [min]
    std::string txtQ0Recesion{};   ///< [m3/s]
    std::string txtKRecesion{};    ///< [h]
    bool operator==(const dlgUEH2&) const = default;

    static const ReglasFicha<dlgUEH2, model::UEH> Reglas;
};

// clang-format off
inline constexpr auto CamposDlgUEH2 = std::to_array<forms::CampoNumerico<dlgUEH2, float model::UEH::*>>({
    {{.control = "txtArea", .unidad = "has", .maximo = 99999,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 99999"},
     &dlgUEH2::txtArea, &model::UEH::Area},
    {{.control = "txtLongMax", .unidad = "m", .maximo = 50000,
      .mensaje = "Ingrese un valor numérico menor de 50000"},
     &dlgUEH2::txtLongMax, &model::UEH::LongitudMax},
    {{.control = "txtVelMedia", .unidad = "m/s", .maximo = 15,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 15"},
     &dlgUEH2::txtVelMedia, &model::UEH::VelMedia},
    {{.control = "txtRetension_Z", .unidad = "mm", .maximo = 40,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 40"},
     &dlgUEH2::txtRetension_Z, &model::UEH::RetensionZ},
    {{.control = "txtKostiakov_a", .maximo = 30,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 30"},
     &dlgUEH2::txtKostiakov_a, &model::UEH::KostiakovA},
    {{.control = "txtKostiakov_b", .maximo = 1,
      .mensaje = "Ingrese un valor numérico decimal entre 0 y 1"},
     &dlgUEH2::txtKostiakov_b, &model::UEH::KostiakovB},
    {{.control = "txtKostiakov_i", .unidad = "min", .maximo = 1000,
      .mensaje = "Ingrese un valor numérico decimal entre 0 y 1000"},
     &dlgUEH2::txtKostiakov_i, &model::UEH::KostiakovI},
    {{.control = "txtQ0Recesion", .unidad = "m3/s", .maximo = 1000,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 1000"},
     &dlgUEH2::txtQ0Recesion, &model::UEH::Q0Recesion},
    {{.control = "txtKRecesion", .unidad = "hs", .maximo = 9999,
      .mensaje = "Ingrese un valor numérico decimal entre 0 y 9999"},
     &dlgUEH2::txtKRecesion, &model::UEH::KRecesion},
});
// clang-format on

inline constexpr ReglasFicha<dlgUEH2, model::UEH> dlgUEH2::Reglas{
    .destinos = OrdenDestinos::Todos,
    .controlNombre = "txtNombreUEH",
    .txtNombre = &dlgUEH2::txtNombreUEH,
    .lista = &dlgUEH2::lstUEHs,
    .listaDestinos = &dlgUEH2::lstCauceAA,
    .lblNumero = &dlgUEH2::lblNroUEH,
    .lblNombre = &dlgUEH2::lblNombreUEH,
    .campos = CamposDlgUEH2,
};

void MuestraCampos(dlgUEH2& f, model::Siro& s);
void GuardaCampos(dlgUEH2& f, model::Siro& s);

/// A destination is picked, from 0: it takes effect at once, the point on a reach only when the form is
/// stored.
void lstCauceAA_Click(dlgUEH2& f, model::Siro& s, int indice);

/// A method is picked, from 0; it is stored with the fields.
void lstMetodo_Click(dlgUEH2& f, int indice);

// Beside velocity, retention and infiltration: travel time, and what becomes of the storm in hand, with the
// fields as they stand. Empty where one of them is refused.
std::string ApunteTraslado(const dlgUEH2& f, model::Siro& s);
std::string ApunteRetencion(const dlgUEH2& f, model::Siro& s);
std::string ApunteInfiltracion(const dlgUEH2& f, model::Siro& s);

/// The infiltration curve of the fields as they stand; nothing where one of them is refused.
std::optional<CurvaInfiltracion> CurvaDeCampos(const dlgUEH2& f);

}  // namespace editor
