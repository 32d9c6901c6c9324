// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsEditTabla.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Cauce.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/UEH.h"

namespace editor {

using model::Cauce;
using model::NumeroATexto;
using model::Siro;
using model::UEH;

namespace {

constexpr std::string_view TituloConsulta = "Consulta de validación de cambios";
constexpr std::string_view ConfirmaCambios =
    "Confirma los cambios producidos en la tabla de datos de Entradas ?";
constexpr int ColumnaNumero = 1;

/// A column that can be edited and where its value is kept.
template <typename T>
struct ColumnaDe {
    forms::ColumnaEditable editable;
    float T::*valor;
};

// clang-format off
constexpr auto ColumnasCauces = std::to_array<ColumnaDe<Cauce>>({
    {{7,  15,    "Ingrese un valor numérico entero o decimal menor de 15"},   &Cauce::VelMediaCauce},
    {{8,  50000, "Ingrese un valor numérico entero menor de 50000"},          &Cauce::LongCauce},
    {{10, 9999,  "Ingrese un valor numérico entero o decimal menor de 9999"}, &Cauce::Cauce_k_Musk},
    {{11, 0.5,   "Ingrese un valor numérico decimal entre 0 y 0.5"},          &Cauce::Cauce_n_Musk},
});

constexpr auto ColumnasUEHs = std::to_array<ColumnaDe<UEH>>({
    {{5,  99999, "Ingrese un valor numérico entero o decimal menor de 99999"}, &UEH::Area},
    {{6,  10000, "Ingrese un valor numérico entero menor de 10000"},           &UEH::LongitudMax},
    {{7,  15,    "Ingrese un valor numérico entero o decimal menor de 15"},    &UEH::VelMedia},
    {{8,  9999,  "Ingrese un valor numérico entero o decimal menor de 9999"},  &UEH::KostiakovA},
    {{9,  1,     "Ingrese un valor numérico decimal entre 0 y 1"},             &UEH::KostiakovB},
    {{10, 1000,  "Ingrese un valor numérico decimal entre 0 y 1000"},          &UEH::KostiakovI},
    {{11, 9999,  "Ingrese un valor numérico entero o decimal menor de 9999"},  &UEH::Q0Recesion},
    {{12, 1,     "Ingrese un valor numérico decimal entre 0 y 1"},             &UEH::KRecesion},
    {{13, 40,    "Ingrese un valor numérico entero o decimal menor de 40"},    &UEH::RetensionZ},
});
// clang-format on

template <typename T, std::size_t N>
constexpr auto EditablesDe(const std::array<ColumnaDe<T>, N>& columnas)
{
    std::array<forms::ColumnaEditable, N> editables{};
    for (std::size_t i = 0; i < N; ++i)
        editables[i] = columnas[i].editable;
    return editables;
}

constexpr auto EditablesCauces = EditablesDe(ColumnasCauces);
constexpr auto EditablesUEHs = EditablesDe(ColumnasUEHs);

/// Codes 42 to 57 and 64 to 122: the digits, the signs, and letters too.
bool TomaTecla(char c)
{
    return (c >= '*' && c <= '9') || (c >= '@' && c <= 'z');
}

constexpr forms::ReglasGrilla ReglasDe(std::string_view encabezado,
                                       std::span<const forms::ColumnaEditable> editables)
{
    return {.encabezado = encabezado,
            .editables = editables,
            .sinNumero = forms::SinNumero::Queda,
            .enterPoneCero = false,
            .tomaCaracter = TomaTecla,
            .escDejaLaCelda = true};
}

constexpr forms::ReglasGrilla ReglasCauces = ReglasDe(
    "^Componente|^Nro.|^       Nombre      |^     Afluente de     |^    Método    |^Vértices|^ Ind.Vért.|"
    "^Vel.Media|^Longitud|^Orden|^K Musk.|^x Musk.",
    EditablesCauces);
constexpr forms::ReglasGrilla ReglasUEHs = ReglasDe(
    "^Componente|^Nro.|^       Nombre      |^     Afluente de     |^    Método    |^  Area   |^ Long.Máx.|"
    "^Vel.Media|^'a' Kost.|^'b' Kost.|^H Ini[min]|^Q inicio|^'K' Rec.|^Z Ret.",
    EditablesUEHs);

std::string Texto(std::int16_t n)
{
    return NumeroATexto(std::int32_t{n});
}

/// The columns on the left, which can't be edited; in the grid of the reaches the order is in their midst.
void PonDatos(forms::Grilla& g, int fila, const Cauce& c)
{
    constexpr int ColumnaOrden = 9;
    const auto textos = std::to_array<std::string>({"Cauce", Texto(c.numCauce), c.NombreCauce, c.Cauce_aa,
                                                    c.optDirMusk ? "Directo" : "Muskingum",
                                                    Texto(c.numVertices), Texto(c.IndiceParInicial)});
    for (std::size_t i = 0; i < textos.size(); ++i)
        g.Pon({fila, static_cast<int>(i)}, textos[i]);
    g.Pon({fila, ColumnaOrden}, Texto(c.OrdenCauce));
}

void PonDatos(forms::Grilla& g, int fila, const UEH& u)
{
    const auto textos =
        std::to_array<std::string>({"UEH", Texto(u.numUEH), u.NombreUEH, u.Cauce_aa, u.Metodo});
    for (std::size_t i = 0; i < textos.size(); ++i)
        g.Pon({fila, static_cast<int>(i)}, textos[i]);
}

template <typename Componentes, typename Columnas>
forms::Grilla Llena(const forms::ReglasGrilla& reglas, const Componentes& componentes,
                    const Columnas& columnas)
{
    forms::Grilla g = forms::NuevaGrilla(reglas);
    forms::PonNroFilas(g, componentes.Cuenta());
    int fila = 0;
    for (const auto& componente : componentes) {
        ++fila;
        PonDatos(g, fila, componente);
        for (const auto& [editable, valor] : columnas)
            g.Pon({fila, editable.columna}, NumeroATexto(componente.*valor));
    }
    return g;
}

/// Takes a grid into its components, each row's found by its number.
template <typename Componentes, typename Columnas>
void Toma(const forms::Grilla& g, Componentes& componentes, const Columnas& columnas)
{
    for (int fila = 1; fila <= g.NroFilas(); ++fila) {
        auto& componente = componentes.Ranura(model::Entero16(g.Numero({fila, ColumnaNumero})));
        for (const auto& [editable, valor] : columnas)
            componente.*valor = model::Simple(g.Numero({fila, editable.columna}));
    }
}

}  // namespace

void Abre(dlgUEHsEditTabla& f, Siro& s)
{
    f.abierta = s.Anfitrion.ResguardaDibujo(model::Riesgo::ReleeRed);
    if (!f.abierta) return;
    model::LeeUEHs(s);
    f.lblProyecto = s.Proyecto.NombreProyecto;
    f.lblFileProyecto = model::ArchivoConf(s.Proyecto.NombreProyecto);
    f.MSFlexGridEditCauces = Llena(ReglasCauces, s.Red.ColCauces, ColumnasCauces);
    f.MSFlexGridEditUEHs = Llena(ReglasUEHs, s.Red.ColUEHs, ColumnasUEHs);
    f.caucesLeidos = f.MSFlexGridEditCauces.filas;
    f.UEHsLeidas = f.MSFlexGridEditUEHs.filas;
}

void OKButton(dlgUEHsEditTabla& f, Siro& s)
{
    const bool tomadas = forms::Evento(s, [&] {
        Toma(f.MSFlexGridEditCauces, s.Red.ColCauces, ColumnasCauces);
        Toma(f.MSFlexGridEditUEHs, s.Red.ColUEHs, ColumnasUEHs);
    });
    if (!tomadas) return;
    const bool guarda = model::Consulta(s, std::string(ConfirmaCambios), TituloConsulta);
    // What couldn't be saved is nowhere but here.
    f.abierta = guarda && !model::GuardaRed(s);
}

void cmdCancel(dlgUEHsEditTabla& f)
{
    f.abierta = false;
}

bool SinAplicar(const dlgUEHsEditTabla& f)
{
    return f.abierta &&
           (f.MSFlexGridEditCauces.filas != f.caucesLeidos || f.MSFlexGridEditUEHs.filas != f.UEHsLeidas);
}

}  // namespace editor
