// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Destinos.h"

#include <cstddef>

#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"

namespace editor {

using model::Clase;
using model::Red;

namespace {

template <typename T>
void Agrega(std::vector<Destino>& destinos, const Red& red)
{
    int numero = 0;
    for (const T& componente : model::Todos<T>(red))
        destinos.push_back({model::DeClase<T>::clase, ++numero, model::Nombre(componente)});
}

void AgregaSinDestino(std::vector<Destino>& destinos)
{
    destinos.push_back({});
    destinos.push_back({.Cauce_aa = std::string(model::SinDestino)});
}

}  // namespace

std::vector<Destino> Destinos(const Red& red, OrdenDestinos orden)
{
    std::vector<Destino> destinos;
    if (orden == OrdenDestinos::SoloCauces) AgregaSinDestino(destinos);
    Agrega<model::Cauce>(destinos, red);
    if (orden == OrdenDestinos::SoloCauces) return destinos;
    Agrega<model::Represa>(destinos, red);
    Agrega<model::Lago>(destinos, red);
    AgregaSinDestino(destinos);
    return destinos;
}

Lista ListaDestinos(const Red& red, OrdenDestinos orden, std::string_view Cauce_aa)
{
    Lista lista;
    for (const Destino& destino : Destinos(red, orden)) {
        if (lista.indice < 0 && destino.Cauce_aa == Cauce_aa)
            lista.indice = static_cast<int>(lista.items.size());
        const bool ninguno = !destino.clase && destino.Cauce_aa.empty();
        lista.items.push_back(ninguno ? std::string(EntradaNinguno) : destino.Cauce_aa);
    }
    return lista;
}

std::optional<Destino> DestinoElegido(const Red& red, OrdenDestinos orden, const Lista& lista)
{
    const std::vector<Destino> destinos = Destinos(red, orden);
    if (lista.indice < 0 || lista.indice >= static_cast<int>(destinos.size())) return {};
    return destinos[static_cast<std::size_t>(lista.indice)];
}

Punto PuntoDestino(const Red& red, const Destino& destino)
{
    if (destino.clase == Clase::Cauce) return UltimoVertice(red, destino.numero);
    if (destino.clase == Clase::Represa) return Icono(red.ColRepresas.Item(destino.numero));
    if (destino.clase == Clase::Lago) return Icono(red.ColLagos.Item(destino.numero));
    return {};
}

}  // namespace editor
