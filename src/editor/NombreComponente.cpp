// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/NombreComponente.h"

namespace editor {

std::string NombreConPrefijo(std::string_view prefijo, std::string_view texto)
{
    const std::string nombre = (texto.starts_with(prefijo) ? "" : std::string(prefijo)) + std::string(texto);
    return model::PrimerosCaracteres(nombre, LargoNombre);
}

void RenombraDestinos(model::Red& red, std::string_view viejo, std::string_view nuevo, SiguenNombre siguen)
{
    if (!model::EsDestino(viejo)) return;
    const auto renombra = [&](auto& componentes, int salvo = 0) {
        int numero = 0;
        for (auto& componente : componentes)
            if (++numero != salvo && componente.Cauce_aa == viejo) componente.Cauce_aa = nuevo;
    };
    if (siguen.UEHs) renombra(red.ColUEHs);
    renombra(red.ColCauces, siguen.salvoCauce);
    renombra(red.ColRepresas);
    renombra(red.ColLagos);
}

}  // namespace editor
