// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Aportes.h"

#include <string_view>
#include <unordered_map>

namespace engine {

namespace {

using FilasPorNombre = std::unordered_map<std::string_view, int>;

/// Rows desde..hasta by name; of equal names the first.
FilasPorNombre NumeraFilas(const model::Siro& s, int desde, int hasta)
{
    FilasPorNombre filas;
    for (int i = std::max(desde, 1); i <= hasta && i <= s.Resultados.NroComponentes; ++i)
        filas.try_emplace(s.Resultados.Secuencia[static_cast<std::size_t>(i)], i);
    return filas;
}

}  // namespace

Aportes::Aportes(const model::Siro& s)
{
    std::unordered_map<std::string_view, Afluentes> porDestino;
    const FilasPorNombre filasUEH = NumeraFilas(s, 1, s.Red.NroUEHs);
    const FilasPorNombre filasResto = NumeraFilas(s, s.Red.NroUEHs + 1, s.Resultados.NroComponentes);
    const auto conFila = [&](const FilasPorNombre& filas, const auto& nombre, const auto& destino,
                             auto hace) {
        if (destino.empty() || destino == "0") return;
        if (const auto fila = filas.find(nombre); fila != filas.end())
            hace(porDestino[destino], fila->second);
    };
    const auto anota = [&](const FilasPorNombre& filas, const auto& nombre, const auto& destino, auto lista) {
        conFila(filas, nombre, destino, [&](Afluentes& a, int fila) { (a.*lista).push_back(fila); });
    };
    int item = 0;
    for (const auto& u : s.Red.ColUEHs) {
        ++item;
        conFila(filasUEH, u.NombreUEH, u.Cauce_aa, [&](Afluentes& a, int fila) {
            a.UEHs.push_back({fila, item});
        });
    }
    for (const auto& c : s.Red.ColCauces)
        anota(filasResto, c.NombreCauce, c.Cauce_aa, &Afluentes::Cauces);
    for (const auto& r : s.Red.ColRepresas)
        anota(filasResto, r.NombreRepresa, r.Cauce_aa, &Afluentes::Represas);
    for (const auto& l : s.Red.ColLagos)
        anota(filasResto, l.NombreLAGO, l.Cauce_aa, &Afluentes::Lagos);

    porFila.resize(s.Resultados.Secuencia.size());
    for (std::size_t fila = 0; fila < porFila.size(); ++fila)
        if (const auto hallado = porDestino.find(s.Resultados.Secuencia[fila]); hallado != porDestino.end())
            porFila[fila] = hallado->second;
}

}  // namespace engine
