// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Cauces.h"

#include "editor/Alcance.h"
#include "editor/Destinos.h"
#include "model/Falla.h"
#include "model/Numeros.h"

namespace editor {

using model::Entero16;
using model::Siro;
using model::Suma16;

namespace {

void AmpliaVertices(Siro& s, int vertices)
{
    for (auto* coordenada : {&s.XVertice, &s.YVertice}) {
        if (coordenada->UltimaFila() < model::MaxCauces) coordenada->Dimensiona(model::MaxCauces, vertices);
        if (coordenada->TopeColumna() < vertices) coordenada->Redimensiona(vertices);
    }
}

}  // namespace

Punto Vertice(const Siro& s, int cauce, int vertice)
{
    return {s.XVertice(cauce, vertice), s.YVertice(cauce, vertice)};
}

void PonVertice(Siro& s, int cauce, int vertice, Punto en)
{
    s.XVertice(cauce, vertice) = en.X;
    s.YVertice(cauce, vertice) = en.Y;
}

void AgregaVertice(Siro& s, int cauce, Punto en)
{
    const std::int16_t vertice = Suma16(s.NroVertices(cauce), 1);
    AmpliaVertices(s, vertice);
    PonVertice(s, cauce, vertice, en);
    s.NroVertices(cauce) = vertice;
}

bool CabeceraCerca(const Siro& s, int cauce, Punto p, double distancia)
{
    return s.NroVertices(cauce) >= 1 && Cerca(p, UltimoVertice(s, cauce), distancia);
}

int NumeroDeCauceNuevo(const Siro& s)
{
    const int n = s.ColCauces.Cuenta() + 1;
    if (n > model::MaxCauces) throw model::Falla{model::NumeroFalla::Subindice};
    return n;
}

model::Cauce& CreaCauce(Siro& s)
{
    const int n = NumeroDeCauceNuevo(s);
    std::int16_t indice = 1;
    if (n > 1) {
        const model::Cauce& previo = s.Cauces(n - 1);
        indice = Suma16(previo.IndiceParInicial, previo.numVertices);
    }
    s.NroCauces = Entero16(n);
    return s.ColCauces.Agrega({.numCauce = Entero16(n),
                               .numVertices = s.NroVertices(n),
                               .IndiceParInicial = indice,
                               .Cauce_aa = "0",
                               .optDirMusk = true});
}

void RehaceIndices(Siro& s)
{
    std::int16_t indice = 1;
    int n = 0;
    for (model::Cauce& cauce : s.ColCauces) {
        cauce.numVertices = s.NroVertices(++n);
        cauce.IndiceParInicial = indice;
        indice = Suma16(indice, cauce.numVertices);
    }
}

}  // namespace editor
