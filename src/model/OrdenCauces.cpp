// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/OrdenCauces.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/Clases.h"
#include "model/Numeros.h"

namespace model {

namespace {

constexpr int PasadasOrden = 10;

/// Components by the name that they drain into, each list in the order of the collection. Nobody drains into
/// the empty name or "0", even where a component bears it.
template <typename T>
using PorDestino = std::unordered_map<std::string_view, std::vector<T*>>;

template <typename T>
PorDestino<T> Agrupa(Red& red)
{
    PorDestino<T> grupos;
    for (T& componente : Todos<T>(red))
        if (EsDestino(componente.Cauce_aa)) grupos[componente.Cauce_aa].push_back(&componente);
    return grupos;
}

template <typename T, typename F>
void PorAfluente(const PorDestino<T>& grupos, const std::string& nombre, F hace)
{
    const auto grupo = grupos.find(nombre);
    if (grupo == grupos.end()) return;
    for (T* componente : grupo->second)
        hace(*componente);
}

/// Order of a reach as its tributaries come one by one.
struct OrdenCreciente {
    bool primero = true;
    std::int16_t orden = 0;

    void Recibe(const Cauce& afluente)
    {
        if (!primero && orden == afluente.OrdenCauce) orden = Suma16(orden, 1);
        if (orden < afluente.OrdenCauce) orden = afluente.OrdenCauce;
        primero = false;
    }
    /// A reach without tributaries is of the first order.
    [[nodiscard]] std::int16_t Orden() const { return primero ? std::int16_t{1} : orden; }
};

}  // namespace

void CalculaOrdenCauces(Red& red)
{
    for (Cauce& cauce : red.ColCauces)
        cauce.OrdenCauce = 0;
    const PorDestino<Cauce> cauces = Agrupa<Cauce>(red);
    const PorDestino<Lago> lagos = Agrupa<Lago>(red);
    const PorDestino<Represa> represas = Agrupa<Represa>(red);

    for (int pasada = 0; pasada < PasadasOrden; ++pasada) {
        for (Cauce& cauce : red.ColCauces) {
            OrdenCreciente creciente;
            const auto recibe = [&](const Cauce& afluente) { creciente.Recibe(afluente); };
            const auto deEmbalse = [&](const auto& embalse) { PorAfluente(cauces, Nombre(embalse), recibe); };
            PorAfluente(cauces, cauce.NombreCauce, [&](const Cauce& afluente) {
                if (afluente.NombreCauce != cauce.NombreCauce) recibe(afluente);
            });
            PorAfluente(lagos, cauce.NombreCauce, deEmbalse);
            PorAfluente(represas, cauce.NombreCauce, deEmbalse);
            cauce.OrdenCauce = creciente.Orden();
        }
    }
}

}  // namespace model
