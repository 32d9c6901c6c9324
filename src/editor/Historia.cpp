// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Historia.h"

#include <algorithm>
#include <utility>

namespace editor {

using model::Red;

namespace {

RedGuardada Toma(const Red& red, const Trazo& trazo)
{
    RedGuardada guardada{red, {}, trazo};
    const int cauces = std::max(CaucesDibujados(red), red.ColCauces.Cuenta());
    for (int i = 1; i <= std::min(cauces, model::MaxCauces); ++i)
        guardada.lineas.push_back(Linea(red, i));
    return guardada;
}

bool Pasa(Historia& h, Red& red, Trazo& trazo, std::vector<RedGuardada>& de, std::vector<RedGuardada>& a)
{
    if (de.empty()) return false;
    a.push_back(*std::exchange(h.presente, std::move(de.back())));
    de.pop_back();
    return Repone(h, red, trazo);
}

/// Whether both hold the same components; that a reach is being drawn makes no difference.
bool MismosComponentes(model::Colecciones una, const model::Colecciones& otra)
{
    una.ColCauces.Anuncia(otra.ColCauces.Nro());
    return una == otra;
}

/// The network to go back to from the end of a reach's drawing: the one before the clicks that led here.
RedGuardada AntesDelTrazo(Historia& h)
{
    RedGuardada red = *h.presente;
    while (red.trazo.ClicsCauce > 0 && !h.anteriores.empty() && MismosComponentes(h.anteriores.back(), red)) {
        red = std::move(h.anteriores.back());
        h.anteriores.pop_back();
    }
    return red;
}

}  // namespace

void EmpiezaHistoria(Historia& h, const std::string& proyecto, const Red& red, const Trazo& trazo)
{
    h = {.proyecto = proyecto, .presente = Toma(red, trazo)};
}

bool Anota(Historia& h, const Red& red, const Trazo& trazo)
{
    RedGuardada ahora = Toma(red, trazo);
    if (ahora == *h.presente) return false;
    h.anteriores.push_back(trazo.ClicsCauce == 0 ? AntesDelTrazo(h) : *h.presente);
    h.presente = std::move(ahora);
    h.siguientes.clear();
    return true;
}

void Asienta(Historia& h, const Red& red, const Trazo& trazo)
{
    h.presente = Toma(red, trazo);
}

bool Repone(const Historia& h, Red& red, Trazo& trazo)
{
    if (!h.presente) return false;
    const RedGuardada& guardada = *h.presente;
    static_cast<model::Colecciones&>(red) = guardada;
    trazo = guardada.trazo;
    red.NroVertices.Dimensiona(red.NroVertices.Tope());
    red.XVertice.Dimensiona(model::MaxCauces, 0);
    red.YVertice.Dimensiona(model::MaxCauces, 0);
    for (std::size_t i = 0; i < guardada.lineas.size(); ++i)
        PonLinea(red, static_cast<int>(i) + 1, guardada.lineas[i]);
    return true;
}

bool PasoAtras(Historia& h, Red& red, Trazo& trazo)
{
    return Pasa(h, red, trazo, h.anteriores, h.siguientes);
}

bool PasoAdelante(Historia& h, Red& red, Trazo& trazo)
{
    return Pasa(h, red, trazo, h.siguientes, h.anteriores);
}

}  // namespace editor
