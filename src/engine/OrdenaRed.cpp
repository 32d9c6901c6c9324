// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/OrdenaRed.h"

#include "engine/ComponenteFinal.h"
#include "engine/OrdenSecuencia.h"
#include "model/Clases.h"
#include "model/Siro.h"

namespace engine {

using model::Siro;

namespace {

/// Hands names and destinations of all components to `mira`, in collection order.
template <typename Mira>
void RecorreEnlaces(const model::Red& red, Mira mira)
{
    model::CadaComponente(red, [&](const auto& c) {
        mira(model::Nombre(c));
        mira(c.Cauce_aa);
    });
}

bool EsLaRecordada(const Corrida& c)
{
    const RedOrdenada& red = c.memoria.red;
    const Siro& s = c.s;
    if (!red.sirve || s.Control.SalidaPizarra || !s.Control.AvisoDescargasVisto ||
        red.NroUEHs != s.Red.NroUEHs())
        return false;
    std::size_t i = 0;
    bool iguales = true;
    RecorreEnlaces(s.Red, [&](const std::string& t) {
        iguales = iguales && i < red.enlaces.size() && red.enlaces[i++] == t;
    });
    return iguales && i == red.enlaces.size();
}

/// Keeps a network that was found in order without a question, for the next run.
void Recuerda(Corrida& c)
{
    const Siro& s = c.s;
    if (!c.memoria.VariasCorridas || !s.Control.AvisoDescargasVisto ||
        s.Resultados.NroSalidas > model::MaxSalidas)
        return;
    RedOrdenada& red = c.memoria.red;
    red.enlaces.clear();
    RecorreEnlaces(s.Red, [&](const std::string& t) { red.enlaces.push_back(t); });
    red.NroUEHs = s.Red.NroUEHs();
    red.Secuencia = s.Resultados.Secuencia;
    red.Salidas = s.Resultados.Salidas;
    red.NroSalidas = s.Resultados.NroSalidas;
    red.RedOk = s.Control.RedOk;
    red.sirve = true;
}

}  // namespace

void ValidaRed(Corrida& c)
{
    Siro& s = c.s;
    if (EsLaRecordada(c)) {
        const RedOrdenada& red = c.memoria.red;
        s.Control.ErrorRed = false;
        s.Control.ContinuarSinCorregir = false;
        s.Control.RedOk = red.RedOk;
        s.Resultados.NroComponentes = static_cast<std::int16_t>(red.Secuencia.size() - 1);
        s.Resultados.Secuencia = red.Secuencia;
        s.Resultados.NroSalidas = red.NroSalidas;
        s.Resultados.Salidas = red.Salidas;
        c.Afluentes = &red.afluentes;
        return;
    }
    const int veces = s.Serie.NroSeriePDR == 1 ? 2 : 1;
    for (int v = 0; v < veces; ++v)
        c.Intenta([&] { ComponenteFinal(s); });
}

bool OrdenaRed(Corrida& c)
{
    Siro& s = c.s;
    if (c.Afluentes != nullptr) return true;
    bool ordenada = true;
    c.Intenta([&] { ordenada = OrdenSecuencia(s); });
    if (!ordenada) return false;
    if (s.Control.SalidaPizarra) s.Control.TextoPizarra = s.Anfitrion.LeePizarra();
    c.memoria.red.afluentes = Aportes(s);
    c.memoria.red.sirve = false;
    c.Afluentes = &c.memoria.red.afluentes;
    Recuerda(c);
    return true;
}

}  // namespace engine
