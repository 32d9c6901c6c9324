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
    for (auto* coordenada : {&s.Red.XVertice, &s.Red.YVertice}) {
        if (coordenada->UltimaFila() < model::MaxCauces) coordenada->Dimensiona(model::MaxCauces, vertices);
        if (coordenada->TopeColumna() < vertices) coordenada->Redimensiona(vertices);
    }
}

}  // namespace

Punto Vertice(const Siro& s, int cauce, int vertice)
{
    return {s.Red.XVertice(cauce, vertice), s.Red.YVertice(cauce, vertice)};
}

void PonVertice(Siro& s, int cauce, int vertice, Punto en)
{
    s.Red.XVertice(cauce, vertice) = en.X;
    s.Red.YVertice(cauce, vertice) = en.Y;
}

void AgregaVertice(Siro& s, int cauce, Punto en)
{
    const std::int16_t vertice = Suma16(s.Red.NroVertices(cauce), 1);
    AmpliaVertices(s, vertice);
    PonVertice(s, cauce, vertice, en);
    s.Red.NroVertices(cauce) = vertice;
}

bool CabeceraCerca(const Siro& s, int cauce, Punto p, double distancia)
{
    return s.Red.NroVertices(cauce) >= 1 && Cerca(p, UltimoVertice(s, cauce), distancia);
}

int NumeroDeCauceNuevo(const Siro& s)
{
    const int n = s.Red.ColCauces.Cuenta() + 1;
    if (n > model::MaxCauces) throw model::Falla{model::NumeroFalla::Subindice};
    return n;
}

model::Cauce& CreaCauce(Siro& s)
{
    const int n = NumeroDeCauceNuevo(s);
    std::int16_t indice = 1;
    if (n > 1) {
        const model::Cauce& previo = s.Red.Cauces(n - 1);
        indice = Suma16(previo.IndiceParInicial, previo.numVertices);
    }
    s.Red.NroCauces = Entero16(n);
    return s.Red.ColCauces.Agrega({.numCauce = Entero16(n),
                                   .numVertices = s.Red.NroVertices(n),
                                   .IndiceParInicial = indice,
                                   .Cauce_aa = "0",
                                   .optDirMusk = true});
}

void RehaceIndices(Siro& s)
{
    std::int16_t indice = 1;
    int n = 0;
    for (model::Cauce& cauce : s.Red.ColCauces) {
        cauce.numVertices = s.Red.NroVertices(++n);
        cauce.IndiceParInicial = indice;
        indice = Suma16(indice, cauce.numVertices);
    }
}

}  // namespace editor
