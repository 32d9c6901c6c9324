// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/NombreComponente.h"

#include "editor/Destinos.h"

namespace editor {

namespace {

/// The first n characters of a UTF-8 text.
std::string_view Primeros(std::string_view texto, std::size_t n)
{
    constexpr unsigned MascaraContinuacion = 0xC0U;
    constexpr unsigned Continuacion = 0x80U;
    std::size_t caracteres = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool empieza = (static_cast<unsigned char>(texto[i]) & MascaraContinuacion) != Continuacion;
        if (empieza && ++caracteres > n) return texto.substr(0, i);
    }
    return texto;
}

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
    return std::string(Primeros(nombre, LargoNombre));
}

void RenombraDestinos(model::Siro& s, std::string_view viejo, std::string_view nuevo, SiguenNombre siguen)
{
    if (viejo.empty() || viejo == SinDestino) return;
    if (siguen.UEHs) Renombra(s.ColUEHs, viejo, nuevo);
    if (siguen.Cauces) Renombra(s.ColCauces, viejo, nuevo, siguen.salvoCauce);
    Renombra(s.ColRepresas, viejo, nuevo);
    Renombra(s.ColLagos, viejo, nuevo);
}

}  // namespace editor
