// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/EscriturasEnEspera.h"

#include <algorithm>
#include <utility>

#include "model/Falla.h"

namespace model {

namespace {

auto Busca(std::vector<CambioArchivo>& cambios, const std::string& ruta)
{
    return std::find_if(cambios.begin(), cambios.end(),
                        [&](const CambioArchivo& c) { return c.ruta == ruta; });
}

void Pon(std::vector<CambioArchivo>& cambios, const CambioArchivo& cambio)
{
    const auto puesto = Busca(cambios, cambio.ruta);
    if (puesto == cambios.end())
        cambios.push_back(cambio);
    else
        puesto->bytes = cambio.bytes;
}

}  // namespace

EscriturasEnEspera::EscriturasEnEspera(Disco unDisco) : espera(std::make_shared<Espera>())
{
    espera->disco = std::move(unDisco);
}

Disco EscriturasEnEspera::Puerta() const
{
    const auto e = espera;
    Disco puerta = e->disco;
    puerta.Lee = [e](const std::string& ruta) {
        const auto puesto = Busca(e->cambios, ruta);
        return puesto == e->cambios.end() ? e->disco.Lee(ruta) : puesto->bytes;
    };
    puerta.Reemplaza = [e](const std::vector<CambioArchivo>& cambios) {
        for (const CambioArchivo& cambio : cambios)
            Pon(e->cambios, cambio);
    };
    puerta.Copia = [lee = puerta.Lee, e](const std::string& origen, const std::string& destino) {
        Pon(e->cambios, {destino, lee(origen)});
    };
    puerta.Borra = [lee = puerta.Lee, e](const std::string& ruta) {
        static_cast<void>(lee(ruta));  // names the fault of a file that isn't there
        std::erase_if(e->cambios, [&](const CambioArchivo& c) { return c.ruta == ruta; });
        e->borrados.push_back(ruta);
    };
    return puerta;
}

void EscriturasEnEspera::Cumple() const
{
    std::vector<CambioArchivo> cambios = espera->cambios;
    if (!cambios.empty()) {
        std::rotate(cambios.begin(), cambios.begin() + 1, cambios.end());
        espera->disco.Reemplaza(cambios);
    }
    for (const std::string& ruta : espera->borrados)
        Sentencia([&] { espera->disco.Borra(ruta); }, SalvoQueFalte);  // it may only have been waiting
}

}  // namespace model
