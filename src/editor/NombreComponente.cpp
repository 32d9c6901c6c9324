// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/NombreComponente.h"

#include "editor/Destinos.h"
#include "model/Texto.h"

namespace editor {

namespace {

template <typename Componentes>
void Renombra(Componentes& componentes, std::string_view viejo, std::string_view nuevo, int salvo = 0)
{
    int numero = 0;
    for (auto& componente : componentes)
        if (++numero != salvo && componente.Cauce_aa == viejo) componente.Cauce_aa = nuevo;
}

}  // namespace

std::string NombreConPrefijo(std::string_view prefijo, std::string_view texto)
{
    const std::string nombre = (texto.starts_with(prefijo) ? "" : std::string(prefijo)) + std::string(texto);
    return model::PrimerosCaracteres(nombre, LargoNombre);
}

void RenombraDestinos(model::Siro& s, std::string_view viejo, std::string_view nuevo, SiguenNombre siguen)
{
    if (viejo.empty() || viejo == SinDestino) return;
    if (siguen.UEHs) Renombra(s.Red.ColUEHs, viejo, nuevo);
    if (siguen.Cauces) Renombra(s.Red.ColCauces, viejo, nuevo, siguen.salvoCauce);
    Renombra(s.Red.ColRepresas, viejo, nuevo);
    Renombra(s.Red.ColLagos, viejo, nuevo);
}

}  // namespace editor
