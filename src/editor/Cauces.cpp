// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Cauces.h"

#include <algorithm>

#include "editor/Alcance.h"
#include "model/Clases.h"
#include "model/Falla.h"
#include "model/Numeros.h"

namespace editor {

using model::Entero16;
using model::Red;
using model::Suma16;

int CaucesDibujados(const Red& red)
{
    return std::clamp<int>(red.NroCauces(), 0, model::MaxCauces);
}

int CaucesEnteros(const Red& red)
{
    return std::min(CaucesDibujados(red), red.ColCauces.Cuenta());
}

Punto Vertice(const Red& red, int cauce, int vertice)
{
    return {red.XVertice(cauce, vertice), red.YVertice(cauce, vertice)};
}

void PonVertice(Red& red, int cauce, int vertice, Punto en)
{
    red.XVertice(cauce, vertice) = en.X;
    red.YVertice(cauce, vertice) = en.Y;
}

void AgregaVertice(Red& red, int cauce, Punto en)
{
    const std::int16_t vertice = Suma16(red.NroVertices(cauce), 1);
    AmpliaVertices(red, vertice);
    PonVertice(red, cauce, vertice, en);
    red.NroVertices(cauce) = vertice;
}

std::vector<Punto> Linea(const Red& red, int cauce)
{
    const int columnas = std::min(red.XVertice.TopeColumna(), red.YVertice.TopeColumna());
    std::vector<Punto> linea;
    for (int j = 1; j <= std::min<int>(red.NroVertices(cauce), columnas); ++j)
        linea.push_back(Vertice(red, cauce, j));
    return linea;
}

void PonLinea(Red& red, int cauce, const std::vector<Punto>& linea)
{
    red.NroVertices(cauce) = 0;
    for (const Punto p : linea)
        AgregaVertice(red, cauce, p);
}

void AmpliaVertices(Red& red, int vertices)
{
    for (auto* coordenada : {&red.XVertice, &red.YVertice}) {
        if (coordenada->UltimaFila() < model::MaxCauces) coordenada->Dimensiona(model::MaxCauces, vertices);
        if (coordenada->TopeColumna() < vertices) coordenada->Redimensiona(vertices);
    }
}

void PonPrimerVertice(Red& red, int cauce, Punto en)
{
    if (red.NroVertices(cauce) >= 1) PonVertice(red, cauce, 1, en);
}

Punto UltimoVertice(const Red& red, int cauce)
{
    const int ultimo = red.NroVertices(cauce);
    return ultimo < 1 ? Punto{} : Vertice(red, cauce, ultimo);
}

bool CabeceraCerca(const Red& red, int cauce, Punto p, double distancia)
{
    return red.NroVertices(cauce) >= 1 && Cerca(p, UltimoVertice(red, cauce), distancia);
}

int NumeroDeCauceNuevo(const Red& red)
{
    const int n = red.ColCauces.Cuenta() + 1;
    if (n > model::MaxCauces) throw model::Falla{model::NumeroFalla::Subindice};
    return n;
}

model::Cauce& CreaCauce(Red& red)
{
    const int n = NumeroDeCauceNuevo(red);
    std::int16_t indice = 1;
    if (n > 1) {
        const model::Cauce& previo = red.Cauces(n - 1);
        indice = Suma16(previo.IndiceParInicial, previo.numVertices);
    }
    return red.ColCauces.Agrega({.numCauce = Entero16(n),
                                 .numVertices = red.NroVertices(n),
                                 .IndiceParInicial = indice,
                                 .Cauce_aa = std::string(model::SinDestino),
                                 .optDirMusk = true});
}

void RehaceIndices(Red& red)
{
    std::int16_t indice = 1;
    int n = 0;
    for (model::Cauce& cauce : red.ColCauces) {
        cauce.numVertices = red.NroVertices(++n);
        cauce.IndiceParInicial = indice;
        indice = Suma16(indice, cauce.numVertices);
    }
}

}  // namespace editor
