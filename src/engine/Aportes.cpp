// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Aportes.h"

#include <string_view>
#include <type_traits>
#include <unordered_map>

#include "model/Clases.h"
#include "model/Siro.h"

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
    std::unordered_map<std::string_view, std::vector<int>> porNombre;
    const FilasPorNombre filasUEH = NumeraFilas(s, 1, s.Red.NroUEHs());
    const FilasPorNombre filasResto = NumeraFilas(s, s.Red.NroUEHs() + 1, s.Resultados.NroComponentes);
    const auto anota = [&](const auto& coleccion, const FilasPorNombre& filas, auto agrega) {
        int item = 0;
        for (const auto& c : coleccion) {
            using T = std::remove_cvref_t<decltype(c)>;
            ++item;
            if (model::Nombre(c).starts_with(model::DeClase<T>::prefijo))
                porNombre[model::Nombre(c)].push_back(item);
            const auto fila = filas.find(model::Nombre(c));
            if (model::EsDestino(c.Cauce_aa) && fila != filas.end())
                agrega(porDestino[c.Cauce_aa], fila->second, item);
        }
    };
    anota(s.Red.ColUEHs, filasUEH, [](Afluentes& a, int fila, int item) { a.UEHs.push_back({fila, item}); });
    anota(s.Red.ColCauces, filasResto, [](Afluentes& a, int fila, int) { a.Cauces.push_back(fila); });
    anota(s.Red.ColRepresas, filasResto, [](Afluentes& a, int fila, int) { a.Represas.push_back(fila); });
    anota(s.Red.ColLagos, filasResto, [](Afluentes& a, int fila, int) { a.Lagos.push_back(fila); });

    for (const std::string& nombre : s.Resultados.Secuencia) {
        porFila.push_back(porDestino[nombre]);
        propios.push_back(porNombre[nombre]);
    }
}

}  // namespace engine
