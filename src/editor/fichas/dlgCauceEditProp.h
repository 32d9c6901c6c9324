// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/fichas/Ficha.h"
#include "forms/CampoNumerico.h"
#include "model/SiroDeclarado.h"

// Rules of the form with the properties of the reaches, one at a time.
namespace editor {

inline constexpr std::string_view TituloDlgCauceEditProp = "Propiedades de un tramo de Cauce";

/// What lbl_LongCauceDibujo shows without a scale of the drawing.
inline constexpr std::string_view SinEscalar = "Sin Escalar";

// clang-format off
/// Captions.
inline constexpr auto RotulosDlgCauceEditProp = std::to_array<forms::FilaRotulo>({
    {"lstCauces",            "Selección de Cauce:"},
    {"lblNroCauce",          "Nro. de Cauce :"},
    {"lblNombreCauce",       "Nombre Cauce :"},
    {"lblCantVer",           "Cantidad de Vértices :"},
    {"txtNombreCauce",       "Nombre del Cauce"},
    {"lstTributaCauce",      "Tributa al Cauce/Laguna/Represa :"},
    {"txtLongCauce",         "Longitud [m]"},
    {"lblOrdenCauce",        "Orden del Cauce :"},
    {"lbl_LongCauceDibujo",  "Obtenida del diagrama y Escala de dibujo",
     "Si el diagrama es representativo y la escala adoptada correcta, puede adoptar esta Longitud en el campo de la izquierda"},  // kept as it stands
    {"optMusk",              "por Muskingum"},
    {"optDirecta",           "Directa"},
    {"txtVelMediaCauce",     "Velocidad Media [m/s]"},
    {"txtCauce_k_Musk",      "Cte. K de Muskingum [min]:"},
    {"txtCauce_n_Musk",      "Cte.  x  de Muskingum:", "Coeficiente 'x' de Muskingum. 0<=x>0,5 "},  // likewise
    {"OKButton",             LeyendaAceptar},
    {"CancelButton",         LeyendaCancelar},
});
// clang-format on

/// What the form's controls hold.
struct dlgCauceEditProp : Ficha {
    Lista lstCauces{};
    std::string lblNroCauce{}, lblNombreCauce{}, lblCantVer{}, lblOrdenCauce{};
    std::string txtNombreCauce{};
    Lista lstTributaCauce{};
    std::string txtLongCauce{};         ///< [m]
    std::string lbl_LongCauceDibujo{};  ///< [m]
    bool optMusk = false, optDirecta = false;
    std::string txtVelMediaCauce{};  ///< [m/s]
    std::string txtCauce_k_Musk{};   ///< [min]
    std::string txtCauce_n_Musk{};   ///< [-]
    bool operator==(const dlgCauceEditProp&) const = default;

    static const ReglasFicha<dlgCauceEditProp, model::Cauce> Reglas;
};

// clang-format off
inline constexpr auto CamposDlgCauceEditProp =
    std::to_array<forms::CampoNumerico<dlgCauceEditProp, float model::Cauce::*>>({
    {{.control = "txtCauce_k_Musk", .unidad = "min", .maximo = 9999,
      .mensaje = "Ingrese un valor numérico, entero o decimal, entre 0 y 9999"},
     &dlgCauceEditProp::txtCauce_k_Musk, &model::Cauce::Cauce_k_Musk},
    {{.control = "txtCauce_n_Musk", .maximo = 0.5,
      .mensaje = "Ingrese un valor numérico decimal, entre 0 y 0.5"},
     &dlgCauceEditProp::txtCauce_n_Musk, &model::Cauce::Cauce_n_Musk},
    {{.control = "txtLongCauce", .unidad = "m", .maximo = 50000,
      .mensaje = "Ingrese un valor numérico menor de 50000"},
     &dlgCauceEditProp::txtLongCauce, &model::Cauce::LongCauce},
    {{.control = "txtVelMediaCauce", .unidad = "m/s", .maximo = 15,
      .mensaje = "Ingrese un valor numérico entero o decimal menor de 15"},
     &dlgCauceEditProp::txtVelMediaCauce, &model::Cauce::VelMediaCauce},
});
// clang-format on

inline constexpr ReglasFicha<dlgCauceEditProp, model::Cauce> dlgCauceEditProp::Reglas{
    .destinos = OrdenDestinos::Todos,
    .controlNombre = "txtNombreCauce",
    .txtNombre = &dlgCauceEditProp::txtNombreCauce,
    .lista = &dlgCauceEditProp::lstCauces,
    .listaDestinos = &dlgCauceEditProp::lstTributaCauce,
    .lblNumero = &dlgCauceEditProp::lblNroCauce,
    .lblNombre = &dlgCauceEditProp::lblNombreCauce,
    .campos = CamposDlgCauceEditProp,
};

void MuestraCampos(dlgCauceEditProp& f, model::Siro& s);
void GuardaCampos(dlgCauceEditProp& f, model::Siro& s);

/// A destination is picked, from 0: it takes effect at once. A Represa or a Lago draws the lower end of the
/// reach to its icon. Nothing keeps a reach from draining to itself or round in a circle.
void lstTributaCauce_Click(dlgCauceEditProp& f, model::Siro& s, int indice);

// Routing of the reach. The Muskingum fields can be edited with either.
void optDirecta_Click(dlgCauceEditProp& f);
void optMusk_Click(dlgCauceEditProp& f);

// Beside velocity and x: travel time and delay, Muskingum's window, with the fields as they stand. Empty
// where one of them is refused, the second with the other routing too.
std::string ApunteViaje(const dlgCauceEditProp& f, model::Siro& s);
std::string ApunteMuskingum(const dlgCauceEditProp& f, model::Siro& s);

/// Length of a reach as drawn [m], rounded at each vertex, at `escala` [m per drawing unit]. Throws Falla 6
/// where it is outside its type.
std::int32_t LongitudDibujada(const model::Red& red, int numCauce, double escala);

}  // namespace editor
