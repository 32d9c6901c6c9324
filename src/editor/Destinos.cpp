// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Destinos.h"

#include <algorithm>
#include <cstddef>

namespace editor {

namespace {

template <typename Componentes, typename Registro>
void Agrega(std::vector<Destino>& destinos, const Componentes& componentes, Destino::Clase clase,
            std::string Registro::*nombre)
{
    int numero = 0;
    for (const Registro& componente : componentes)
        destinos.push_back({clase, ++numero, componente.*nombre});
}

void AgregaSinDestino(std::vector<Destino>& destinos)
{
    destinos.push_back({Destino::Clase::Ninguno, 0, {}});
    destinos.push_back({Destino::Clase::Cero, 0, std::string(SinDestino)});
}

}  // namespace

std::vector<Destino> Destinos(const model::Siro& s, OrdenDestinos orden)
{
    std::vector<Destino> destinos;
    if (orden == OrdenDestinos::SoloCauces) AgregaSinDestino(destinos);
    Agrega(destinos, s.Red.ColCauces, Destino::Clase::Cauce, &model::Cauce::NombreCauce);
    if (orden == OrdenDestinos::SoloCauces) return destinos;
    Agrega(destinos, s.Red.ColRepresas, Destino::Clase::Represa, &model::Represa::NombreRepresa);
    Agrega(destinos, s.Red.ColLagos, Destino::Clase::Lago, &model::Lago::NombreLAGO);
    AgregaSinDestino(destinos);
    return destinos;
}

Lista ListaDestinos(const model::Siro& s, OrdenDestinos orden, std::string_view Cauce_aa)
{
    Lista lista;
    for (const Destino& destino : Destinos(s, orden)) {
        if (lista.indice < 0 && destino.Cauce_aa == Cauce_aa)
            lista.indice = static_cast<int>(lista.items.size());
        lista.items.push_back(destino.clase == Destino::Clase::Ninguno ? std::string(EntradaNinguno)
                                                                       : destino.Cauce_aa);
    }
    return lista;
}

std::optional<Destino> DestinoElegido(const model::Siro& s, OrdenDestinos orden, const Lista& lista)
{
    const std::vector<Destino> destinos = Destinos(s, orden);
    if (lista.indice < 0 || lista.indice >= static_cast<int>(destinos.size())) return {};
    return destinos[static_cast<std::size_t>(lista.indice)];
}

Punto PuntoDestino(model::Siro& s, const Destino& destino)
{
    switch (destino.clase) {
    case Destino::Clase::Cauce:
        return UltimoVertice(s, destino.numero);
    case Destino::Clase::Represa: {
        const model::Represa& represa = s.Red.Represas(destino.numero);
        return {represa.IconoRepresaX, represa.IconoRepresaY};
    }
    case Destino::Clase::Lago: {
        const model::Lago& lago = s.Red.Lagos(destino.numero);
        return {lago.IconoLAGOx, lago.IconoLAGOy};
    }
    case Destino::Clase::Ninguno:
    case Destino::Clase::Cero:
        break;
    }
    return {};
}

Punto UltimoVertice(const model::Siro& s, int numCauce)
{
    const int ultimo = s.Red.NroVertices(numCauce);
    if (ultimo < 1) return {};
    return {s.Red.XVertice(numCauce, ultimo), s.Red.YVertice(numCauce, ultimo)};
}

int NumeroDeCauce(const model::Siro& s, std::string_view nombre)
{
    const auto lugar = std::find_if(s.Red.ColCauces.begin(), s.Red.ColCauces.end(),
                                    [&](const model::Cauce& cauce) { return cauce.NombreCauce == nombre; });
    return lugar == s.Red.ColCauces.end() ? 0 : static_cast<int>(lugar - s.Red.ColCauces.begin()) + 1;
}

void PonPrimerVertice(model::Siro& s, int numCauce, Punto en)
{
    if (s.Red.NroVertices(numCauce) < 1) return;
    s.Red.XVertice(numCauce, 1) = en.X;
    s.Red.YVertice(numCauce, 1) = en.Y;
}

}  // namespace editor
