// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cstddef>
#include <cstdint>

#include "checks/Corrido.h"
#include "model/Clases.h"
#include "model/Represa.h"
#include "report/Filas.h"
#include "report/Plantilla.h"

// What the network is made of.
namespace report {
namespace {

using model::Cauce;
using model::Lago;
using model::Represa;
using model::UEH;

std::string Destino(std::string_view Cauce_aa)
{
    return model::EsDestino(Cauce_aa) ? std::string(Cauce_aa) : "salida";
}

std::string Minutos(const Fuente& f, std::optional<int> minutos)
{
    return minutos ? f.n.Con(*minutos, 0) : "-";
}

bool EsMuskingum(std::string_view metodo)
{
    return metodo == "Muskingum";
}

// clang-format off
constexpr auto DeUEHs = std::to_array<ColumnaDe<UEH>>({
    {"UEH", "", true, [](const Fuente&, const UEH& u) { return u.NombreUEH; }},
    {"Referencia", "", true, [](const Fuente&, const UEH& u) { return ONada(u.Referencia); }},
    {"Área", "ha", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.Area); }},
    {"Longitud", "m", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.LongitudMax); }},
    {"Velocidad", "m/s", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.VelMedia); }},
    {"Viaje", "min", false, [](const Fuente& f, const UEH& u) { return Minutos(f, checks::Corrido::Traslado(u)); }},
    {"Drena a", "", true, [](const Fuente&, const UEH& u) { return Destino(u.Cauce_aa); }},
});

constexpr auto DePerdidas = std::to_array<ColumnaDe<UEH>>({
    {"UEH", "", true, [](const Fuente&, const UEH& u) { return u.NombreUEH; }},
    {"Z", "mm", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.RetensionZ); }},
    {"a", "mm/min^b", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.KostiakovA); }},
    {"b", "", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.KostiakovB); }},
    {"t_{i}", "min", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.KostiakovI); }},
    {"Q_{0}", "m3/s", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.Q0Recesion); }},
    {"k", "h", false, [](const Fuente& f, const UEH& u) { return f.n.Escrita(u.KRecesion); }},
});

constexpr auto DeCauces = std::to_array<ColumnaDe<Cauce>>({
    {"Cauce", "", true, [](const Fuente&, const Cauce& c) { return c.NombreCauce; }},
    {"Longitud", "m", false, [](const Fuente& f, const Cauce& c) { return f.n.Escrita(c.LongCauce); }},
    {"Orden", "", false, [](const Fuente& f, const Cauce& c) { return f.n.Con(c.OrdenCauce, 0); }},
    {"Método", "", true, [](const Fuente&, const Cauce& c) { return std::string(c.optDirMusk ? "Directa" : "Muskingum"); }},
    {"Velocidad", "m/s", false, [](const Fuente& f, const Cauce& c) { return c.optDirMusk ? f.n.Escrita(c.VelMediaCauce) : "-"; }},
    {"Viaje", "min", false, [](const Fuente& f, const Cauce& c) { return c.optDirMusk ? Minutos(f, checks::Corrido::Viaje(c)) : "-"; }},
    {"K", "min", false, [](const Fuente& f, const Cauce& c) { return c.optDirMusk ? "-" : f.n.Escrita(c.Cauce_k_Musk); }},
    {"x", "", false, [](const Fuente& f, const Cauce& c) { return c.optDirMusk ? "-" : f.n.Escrita(c.Cauce_n_Musk); }},
    {"Drena a", "", true, [](const Fuente&, const Cauce& c) { return Destino(c.Cauce_aa); }},
});
// clang-format on

/// A row of a table of heights of Represa or Lago.
struct Renglon {
    float h = 0;
    float a = 0, q = 0;
    std::int32_t s = 0;
};

using Arreglos = model::Arreglo<std::int16_t>;

int FilasDe(const Arreglos& filas, int numero)
{
    return numero >= 0 && numero <= filas.Tope() ? filas(numero) : 0;
}

/// Rows 1..n of a table as far as it reaches.
std::vector<Renglon> Renglones(const Arreglos& filas, int numero, const model::Matriz<float>& H,
                               const model::Matriz<float>* A, const model::Matriz<std::int32_t>* S,
                               const model::Matriz<float>* Q)
{
    std::vector<Renglon> todos;
    for (int k = 1; k <= FilasDe(filas, numero) && H.Alcanza(numero, k); ++k) {
        Renglon& r = todos.emplace_back();
        r.h = H(numero, k);
        if (A != nullptr && A->Alcanza(numero, k)) r.a = (*A)(numero, k);
        if (S != nullptr && S->Alcanza(numero, k)) r.s = (*S)(numero, k);
        if (Q != nullptr && Q->Alcanza(numero, k)) r.q = (*Q)(numero, k);
    }
    return todos;
}

std::vector<Renglon> HasDe(const model::Red& red, const Represa& r)
{
    return Renglones(red.RepresaFilasHAS, r.numRepresa, red.RepresaH, &red.RepresaA, &red.RepresaS, nullptr);
}

/// Heights from the lowest row to the highest one [m].
std::string Rango(const Fuente& f, const std::vector<Renglon>& renglones)
{
    if (renglones.empty()) return "sin tabla";
    return f.n.Escrita(renglones.front().h) + " a " + f.n.Escrita(renglones.back().h);
}

/// "tabla H-Q", "funciones 1 y 3".
std::string Descarga(const Represa& r)
{
    if (r.optTabla) return "tabla H-Q";
    std::vector<std::string> cuales;
    for (std::size_t i = 0; i < r.chkFQ.size(); ++i)
        if (r.chkFQ[i] == 1) cuales.push_back(std::to_string(i + 1));
    if (cuales.empty()) return "sin funciones";
    return (cuales.size() == 1 ? "función " : "funciones ") + Enumera(cuales);
}

// clang-format off
constexpr auto DeRepresas = std::to_array<ColumnaDe<Represa>>({
    {"Represa", "", true, [](const Fuente&, const Represa& r) { return r.NombreRepresa; }},
    {"Método", "", true, [](const Fuente&, const Represa& r) { return ONada(r.Metodo); }},
    {"K", "min", false, [](const Fuente& f, const Represa& r) { return EsMuskingum(r.Metodo) ? f.n.Escrita(r.Represa_k_Musk) : "-"; }},
    {"H inicial", "m", false, [](const Fuente& f, const Represa& r) { return f.n.Escrita(r.HInicialEmb); }},
    {"Alturas de la tabla", "m", true, [](const Fuente& f, const Represa& r) { return Rango(f, HasDe(f.red, r)); }},
    {"Descarga", "", true, [](const Fuente&, const Represa& r) { return Descarga(r); }},
    {"Drena a", "", true, [](const Fuente&, const Represa& r) { return Destino(r.Cauce_aa); }},
});

constexpr auto DeLagos = std::to_array<ColumnaDe<Lago>>({
    {"Lago", "", true, [](const Fuente&, const Lago& l) { return l.NombreLAGO; }},
    {"Referencia", "", true, [](const Fuente&, const Lago& l) { return ONada(l.Referencia); }},
    {"Método", "", true, [](const Fuente&, const Lago& l) { return ONada(l.Metodo); }},
    {"K", "min", false, [](const Fuente& f, const Lago& l) { return EsMuskingum(l.Metodo) ? f.n.Escrita(l.Lago_k_Musk) : "-"; }},
    {"H inicial", "m", false, [](const Fuente& f, const Lago& l) { return f.n.Escrita(l.HInicialEmb); }},
    {"Drena a", "", true, [](const Fuente&, const Lago& l) { return Destino(l.Cauce_aa); }},
});

constexpr auto DeAlturas = std::to_array<ColumnaDe<Renglon>>({
    {"Altura H", "m", false, [](const Fuente& f, const Renglon& r) { return f.n.Escrita(r.h); }},
    {"Superficie A", "ha", false, [](const Fuente& f, const Renglon& r) { return f.n.Escrita(r.a); }},
    {"Almacenamiento S", "m3", false, [](const Fuente& f, const Renglon& r) { return f.n.Con(r.s, 0); }},
    {"Descarga Q", "m3/s", false, [](const Fuente& f, const Renglon& r) { return f.n.Escrita(r.q); }},
});
constexpr auto DeDescargas = std::to_array<ColumnaDe<Renglon>>({DeAlturas[0], DeAlturas[3]});

/// An outflow function in use.
struct Funcion {
    const Represa* r;
    std::size_t i;
};
constexpr auto DeFunciones = std::to_array<ColumnaDe<Funcion>>({
    {"Función", "", true, [](const Fuente&, const Funcion& q) {
         return std::to_string(q.i + 1) + ": Q = " + (model::FuncionesFQ[q.i].forma == model::FormaFQ::Potencia ? "a·h^b" : "a + b·h + c·h²"); }},
    {"a", "", false, [](const Fuente& f, const Funcion& q) { return f.n.Escrita(q.r->FQa[q.i]); }},
    {"b", "", false, [](const Fuente& f, const Funcion& q) { return f.n.Escrita(q.r->FQb[q.i]); }},
    {"c", "", false, [](const Fuente& f, const Funcion& q) {
         return model::FuncionesFQ[q.i].Lleva(3) ? f.n.Escrita(q.r->FQc[q.i]) : "-"; }},
    {"H mín", "m", false, [](const Fuente& f, const Funcion& q) { return f.n.Escrita(q.r->FQmin[q.i]); }},
    {"H máx", "m", false, [](const Fuente& f, const Funcion& q) { return f.n.Escrita(q.r->FQMax[q.i]); }},
});
// clang-format on

template <typename T, std::size_t N>
std::span<const ColumnaDe<T>> De(const std::array<ColumnaDe<T>, N>& columnas)
{
    return columnas;
}

std::vector<Tabla> Uehs(const Fuente& f)
{
    return Sola(TablaDe<UEH>(f, "Unidades hidrológicas elementales", De(DeUEHs), f.red.ColUEHs));
}

std::vector<Tabla> Perdidas(const Fuente& f)
{
    Tabla t = TablaDe<UEH>(f, "Pérdidas y caudal de base de las UEHs", De(DePerdidas), f.red.ColUEHs);
    t.nota =
        "Z: retención; a, b: infiltración de Kostiakov; ti: infiltración previa; Q0, k: caudal inicial y "
        "constante "
        "de la recesión.";
    return Sola(std::move(t));
}

std::vector<Tabla> Cauces(const Fuente& f)
{
    return Sola(TablaDe<Cauce>(f, "Cauces", De(DeCauces), f.red.ColCauces));
}

std::vector<Tabla> Represas(const Fuente& f)
{
    return Sola(TablaDe<Represa>(f, "Represas", De(DeRepresas), f.red.ColRepresas));
}

std::vector<Tabla> Lagos(const Fuente& f)
{
    return Sola(TablaDe<Lago>(f, "Lagos", De(DeLagos), f.red.ColLagos));
}

void Agrega(std::vector<Tabla>& tablas, Tabla t)
{
    if (!t.filas.empty()) tablas.push_back(std::move(t));
}

/// Of each Represa its heights with area and storage, and its outflow: a table or functions.
std::vector<Tabla> RepresasHasHq(const Fuente& f)
{
    std::vector<Tabla> tablas;
    const model::Red& red = f.red;
    for (const Represa& r : red.ColRepresas) {
        Agrega(tablas, TablaDe<Renglon>(f, "Altura, superficie y almacenamiento de " + r.NombreRepresa,
                                        De(DeAlturas).first(3), HasDe(red, r)));
        if (r.optTabla) {
            Agrega(tablas, TablaDe<Renglon>(f, "Altura y descarga de " + r.NombreRepresa, De(DeDescargas),
                                            Renglones(red.RepresaFilasHQ, r.numRepresa, red.RepresaQH,
                                                      nullptr, nullptr, &red.RepresaQQ)));
            continue;
        }
        std::vector<Funcion> enUso;
        for (std::size_t i = 0; i < r.chkFQ.size(); ++i)
            if (r.chkFQ[i] == 1) enUso.push_back({&r, i});
        Tabla t = TablaDe<Funcion>(f, "Funciones de descarga de " + r.NombreRepresa, De(DeFunciones), enUso);
        t.nota =
            "Q en m³/s; h es la altura del agua sobre H mín, en m. Cada función vale entre H mín y H máx, y "
            "las que "
            "valen a una altura se suman.";
        Agrega(tablas, std::move(t));
    }
    return tablas;
}

std::vector<Tabla> LagosHasq(const Fuente& f)
{
    std::vector<Tabla> tablas;
    const model::Red& red = f.red;
    for (const Lago& l : red.ColLagos)
        Agrega(tablas,
               TablaDe<Renglon>(
                   f, "Altura, superficie, almacenamiento y descarga de " + l.NombreLAGO, De(DeAlturas),
                   Renglones(red.LagoFilas, l.numLAGO, red.LagoH, &red.LagoA, &red.LagoS, &red.LagoQ)));
    return tablas;
}

constexpr auto Filas = std::to_array<FilaDeTabla>({
    {"uehs", "las UEHs: superficie, ladera, tiempo de viaje, destino", "La red no tiene UEHs.", Uehs},
    {"perdidas", "de cada UEH, la retención, la infiltración y el caudal de base", "La red no tiene UEHs.",
     Perdidas},
    {"cauces", "los cauces: longitud, método y sus parámetros, destino", "La red no tiene cauces.", Cauces},
    {"represas", "las represas: método, altura inicial, descarga, destino", "La red no tiene represas.",
     Represas},
    {"represas_tablas", "de cada represa, su tabla H-A-S, y su tabla H-Q o sus funciones de descarga",
     "No hay tablas de represas.", RepresasHasHq},
    {"lagos", "los lagos: método, altura inicial, destino", "La red no tiene lagos.", Lagos},
    {"lagos_tablas", "de cada lago, su tabla H-A-S-Q", "No hay tablas de lagos.", LagosHasq},
});

}  // namespace

ColumnaDeTabla Encabezado(std::string_view titulo, std::string_view unidad, bool izquierda)
{
    std::vector<Falta> ninguna;
    const auto texto = [&](std::string_view t) {
        return TextoConMarcas(
            {.texto = std::string(t)}, [](auto, auto&) { return false; }, ninguna);
    };
    return {texto(titulo), Unidad(unidad), izquierda};
}

std::span<const FilaDeTabla> TablasDeRed()
{
    return Filas;
}

}  // namespace report
