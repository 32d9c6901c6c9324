// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/fichas/FichaEmbalse.h"
#include "forms/CampoNumerico.h"
#include "model/Arreglo.h"
#include "model/Represa.h"
#include "model/SiroDeclarado.h"

// Rules of the form with the properties of the Represas, one at a time.
namespace editor {

inline constexpr std::string_view TituloDlgRepresas = "Propiedades de Represas";

// clang-format off
/// Captions; an empty one is told by the record.
inline constexpr auto RotulosDlgRepresas = std::to_array<forms::FilaRotulo>({
    {"lstRepresas",       "Represa:"},
    {"lblNroRepresa",     "Nro. Represa:"},
    {"lblNombreRepresa",  "Nombre Represa:"},
    {"txtNombreRepresa",  "Modificar Nombre:"},
    {"lstCauceAA",        "Drena al Cauce:"},
    {"lstMetodo",         "Propagación:"},
    {"txtRepresa_k",      ""},
    {"txtRepresa_n",      ""},
    {"cmdHSV",            "Editar Tabla HAS"},
    {"fraSeleccion",      "Selección:"},
    {"optTablaQ",         "Tabla"},
    {"optFunciones",      "Funciones"},
    {"cmdTablaQ",         "Edit"},
    {"fraFunciones",      "        Descargas:           Q=f(H),   para  H  min <= H <= H Máx"},
    {"txtFQa",            "a"},
    {"txtFQb",            "b"},
    {"txtFQc",            "c"},
    {"txtFQHmin",         "H min"},
    {"txtFQHMax",         "H Máx"},
    {"txtHInicialEmb",    "Altura Inicial Embalse"},
    {"lblReferencia",     "Ref.: Hidrología Aplicada, (Chow, 1994), pg. 249"},  ///< beside k and x
    {"cmdLlevaTablas",    LeyendaLlevaTablas},
    {"OKButton",          LeyendaAceptar},
    {"CancelButton",      LeyendaCancelar},
});

// clang-format on

/// Texts of a field of the outflow functions; function 1 at index 0.
using TextosFQ = std::array<std::string, model::NroFuncionesFQ>;

/// The tables of outflow as their file has them. Opening this form reads none into the network.
struct DescargasEnDisco {
    model::Arreglo<std::int16_t> filas{};
    model::Matriz<float> H{}, Q{};
    bool operator==(const DescargasEnDisco&) const = default;
};

/// What the form's controls hold.
struct dlgRepresas : FichaEmbalse {
    Lista lstRepresas{};
    std::string lblNroRepresa{}, lblNombreRepresa{};
    std::string txtNombreRepresa{};
    std::string lblDrenaCauceAA{};
    std::string txtRepresa_k{}, lblRepresaCofk{};  ///< [min]
    std::string txtRepresa_n{}, lblRepresaCofn{};  ///< x [-]; no run reads it
    bool optTablaQ = false, optFunciones = false;
    std::array<bool, model::NroFuncionesFQ> chkFQ{};
    TextosFQ txtFQa{}, txtFQb{}, txtFQc{};  ///< of c only those of functions that have one
    TextosFQ txtFQHmin{}, txtFQHMax{};      ///< [m]
    DescargasEnDisco descargas{};
    bool operator==(const dlgRepresas&) const = default;

    static const ReglasFicha<dlgRepresas, model::Represa> Reglas;
    [[nodiscard]] bool cmdTablaQHabilitado() const { return optTablaQ; }
    [[nodiscard]] bool chkFQHabilitado() const { return optFunciones; }
    /// Whether the fields of a function, from 1, can be edited.
    [[nodiscard]] bool FuncionHabilitada(int funcion) const
    {
        return optFunciones && chkFQ[static_cast<std::size_t>(funcion) - 1];
    }
};

// clang-format off
inline constexpr auto CamposDlgRepresas = std::to_array<forms::CampoNumerico<dlgRepresas, float model::Represa::*>>({
    {{.control = "txtRepresa_k", .unidad = "min", .maximo = MaximoK, .mensaje = MensajeK,
      .rechazo = forms::Rechazo::Llana},
     &dlgRepresas::txtRepresa_k, &model::Represa::Represa_k_Musk},
    {{.control = "txtRepresa_n", .maximo = 0.5,
      .mensaje = "Ingrese un valor numérico decimal entre 0 y 0,5 (0 y 0.5, para separador de punto)",
      .rechazo = forms::Rechazo::Llana},
     &dlgRepresas::txtRepresa_n, &model::Represa::Represa_n_Musk},
});

/// A field that each outflow function has. It has no limits.
struct CampoFQ {
    std::string_view control;  ///< object name without its index
    std::string_view unidad;
    TextosFQ dlgRepresas::*textos;
    std::array<float, model::NroFuncionesFQ> model::Represa::*valores;
    std::size_t clase;  ///< as model::FuncionDeRepresa counts them
    /// Whether an outflow function, from 0, has it.
    [[nodiscard]] bool Tiene(std::size_t funcion) const { return model::FuncionesFQ[funcion].Lleva(clase); }
};
inline constexpr auto CamposFQ = std::to_array<CampoFQ>({
    {"txtFQa",    "",  &dlgRepresas::txtFQa,    &model::Represa::FQa,   1},
    {"txtFQb",    "",  &dlgRepresas::txtFQb,    &model::Represa::FQb,   2},
    {"txtFQc",    "",  &dlgRepresas::txtFQc,    &model::Represa::FQc,   3},
    {"txtFQHmin", "m", &dlgRepresas::txtFQHmin, &model::Represa::FQmin, 4},
    {"txtFQHMax", "m", &dlgRepresas::txtFQHMax, &model::Represa::FQMax, 5},
});
// clang-format on

inline constexpr ReglasFicha<dlgRepresas, model::Represa> dlgRepresas::Reglas{
    .destinos = OrdenDestinos::SoloCauces,
    .controlNombre = "txtNombreRepresa",
    .txtNombre = &dlgRepresas::txtNombreRepresa,
    .lista = &dlgRepresas::lstRepresas,
    .listaDestinos = &dlgRepresas::lstCauceAA,
    .lblNumero = &dlgRepresas::lblNroRepresa,
    .lblNombre = &dlgRepresas::lblNombreRepresa,
    .campos = CamposDlgRepresas,
};

void AlTomar(dlgRepresas& f, model::Siro& s);
void MuestraCampos(dlgRepresas& f, model::Siro& s);
void GuardaCampos(dlgRepresas& f, model::Siro& s);

/// Opening reads the tables of all besides.
void Abre(dlgRepresas& f, model::Siro& s);

/// The fields of the outflow functions bear no index here and refuse nothing.
bool AlSalir(dlgRepresas& f, model::Siro& s, std::string_view control);

/// A destination is picked, from 0: it takes effect at once.
void lstCauceAA_Click(dlgRepresas& f, model::Siro& s, int indice);

/// A method is picked, from 0; it is stored with the fields.
void lstMetodo_Click(dlgRepresas& f, int indice);

// The outflow: by table or by functions, and which of these.
void optTablaQ_Click(dlgRepresas& f);
void optFunciones_Click(dlgRepresas& f);
/// `funcion` from 1.
void chkFQ_Click(dlgRepresas& f, int funcion, bool marcada);

// Beside the initial height and the functions: what is stored and let out at that height, with the fields as
// they stand; the first is empty where the height is no number.
std::string ApunteAltura(const dlgRepresas& f, model::Siro& s);
std::string ApunteFunciones(const dlgRepresas& f, model::Siro& s);

/// The tables that a rename has left behind take the name of the Represa in hand.
void cmdLlevaTablas(dlgRepresas& f, model::Siro& s);

/// The form of a table has closed, which may have written them.
void AlVolver(dlgRepresas& f, const model::Siro& s);

// Buttons that open a table.
PedidoFicha cmdHSV(const dlgRepresas& f);
/// Nothing while the outflow is given by functions.
PedidoFicha cmdTablaQ(const dlgRepresas& f);

}  // namespace editor
