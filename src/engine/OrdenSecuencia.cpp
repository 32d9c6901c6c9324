// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/OrdenSecuencia.h"

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/Clases.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Siro;

namespace {

/// Destination of each component above the UEHs, by name: a reach before a Lago before a Represa, and the
/// first of equal names.
std::unordered_map<std::string_view, std::string_view> BuscaDestinos(const model::Red& red)
{
    std::unordered_map<std::string_view, std::string_view> destinos;
    model::CadaReceptor(red, [&](const auto& c) { destinos.try_emplace(model::Nombre(c), c.Cauce_aa); });
    return destinos;
}

/// A place of the sequence: numbers in place of names, equal for equal names; a destination of -1 matches
/// none.
struct Lugar {
    int nombre = 0;
    int destino = -1;
};

std::vector<Lugar> NumeraNombres(const Siro& s, int primero)
{
    const auto destinos = BuscaDestinos(s.Red);
    std::unordered_map<std::string_view, int> numeros;
    for (int i = primero; i <= s.Resultados.NroComponentes; ++i)
        numeros.try_emplace(s.Resultados.Secuencia[static_cast<std::size_t>(i)],
                            static_cast<int>(numeros.size()));
    std::vector<Lugar> lugares(s.Resultados.Secuencia.size());
    for (int i = primero; i <= s.Resultados.NroComponentes; ++i) {
        const std::string& nombre = s.Resultados.Secuencia[static_cast<std::size_t>(i)];
        Lugar& lugar = lugares[static_cast<std::size_t>(i)];
        lugar.nombre = numeros.at(nombre);
        const auto destino = destinos.find(nombre);
        if (destino == destinos.end()) throw model::Falla{model::NumeroFalla::ObjetoNoEstablecido};
        if (!model::EsDestino(destino->second)) continue;
        if (const auto numero = numeros.find(destino->second); numero != numeros.end())
            lugar.destino = numero->second;
    }
    return lugares;
}

/// The first place behind i whose component drains into the one at i; 0 if none does.
int BuscaAfluente(const std::vector<Lugar>& lugares, int i, int ultimo)
{
    for (int j = i + 1; j <= ultimo; ++j)
        if (lugares[static_cast<std::size_t>(j)].destino == lugares[static_cast<std::size_t>(i)].nombre)
            return j;
    return 0;
}

/// A place is settled when nothing behind it drains into it; otherwise the two are swapped and the place is
/// tried again, except that the last but one is tried once.
bool Ordena(Siro& s, int primero)
{
    const int ultimo = s.Resultados.NroComponentes;
    std::vector<Lugar> lugares = NumeraNombres(s, primero);
    for (int i = primero; i <= ultimo - 1; ++i) {
        int cambios = 0;
        while (const int j = BuscaAfluente(lugares, i, ultimo)) {
            std::swap(lugares[static_cast<std::size_t>(i)], lugares[static_cast<std::size_t>(j)]);
            std::swap(s.Resultados.Secuencia[static_cast<std::size_t>(i)],
                      s.Resultados.Secuencia[static_cast<std::size_t>(j)]);
            if (i == ultimo - 1) return true;
            if (++cambios > ultimo) return false;
        }
    }
    return true;
}

void EscribeSecuencia(Siro& s)
{
    if (!s.Control.SalidaPizarra) return;
    std::string texto = "\r\n\r\nComponentes y Secuencia de cálculo\r\nNroUEH   Nombre UEH";
    for (int i = 1; i <= s.Resultados.NroComponentes; ++i)
        texto.append("\r\n    ")
            .append(model::NumeroATexto(i))
            .append("          ")
            .append(s.Resultados.Secuencia[static_cast<std::size_t>(i)]);
    s.Anfitrion.AgregaPizarra(texto);
}

}  // namespace

bool OrdenSecuencia(Siro& s)
{
    const bool ordenada = Ordena(s, s.Red.ColUEHs.Cuenta() + 1);
    if (ordenada) EscribeSecuencia(s);
    return ordenada;
}

}  // namespace engine
