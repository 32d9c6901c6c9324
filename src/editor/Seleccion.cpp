// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cstdint>

#include "editor/Alcance.h"
#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/frmUEHs.h"
#include "model/Numeros.h"

// What a press selects, and what a drag from there would do. The order of the tests is part of the rules:
// two clicks in a row name the two ends of a link.
namespace editor {

using model::Siro;

namespace {

/// First vertex of a reach within a distance of a point; 0: none.
std::int16_t VerticeCerca(const model::Red& red, int cauce, Punto p, double distancia)
{
    for (std::int16_t j = 1; j <= red.NroVertices(cauce); ++j)
        if (Cerca(p, Vertice(red, cauce, j), distancia)) return j;
    return 0;
}

/// Grabs the first vertex of the selected reach that lies within the tolerance.
bool TomaVertice(const frmUEHs& f, Siro& s, Punto p)
{
    s.Seleccion.VerticeSel = 0;
    if (HayEnMano<model::Cauce>(s))
        s.Seleccion.VerticeSel = VerticeCerca(s.Red, s.Seleccion.CauceSel, p, f.vista.ToleranciaVertice);
    return s.Seleccion.VerticeSel > 0;
}

/// Selects the reach of a vertex within half the tolerance, the last one of several.
bool EligeCauce(const frmUEHs& f, Siro& s, Punto p)
{
    for (int i = CaucesEnteros(s.Red); i >= 1; --i)
        if (VerticeCerca(s.Red, i, p, f.vista.ToleranciaVertice / 2.0) > 0) {
            s.Seleccion.CauceSel = model::Entero16(i);
            return true;
        }
    return false;
}

/// Numbers of the selected UEH, Represa and Lago whose handle was pressed, otherwise 0.
using Armados = std::array<std::int16_t, 3>;

template <typename T>
std::int16_t Armado(const frmUEHs& f, Siro& s, Punto p)
{
    if (!HayEnMano<T>(s)) return 0;
    const Punto asa = Asa(Icono(EnMano<T>(s)), f.vista.TamIcono);
    return Cerca(p, asa, AlcanceDelAsa * f.vista.TamIcono) ? Elegido<T>(s.Seleccion) : std::int16_t{0};
}

/// Selects the component of a kind whose box holds the point. Returns whether there is one.
template <typename T>
bool Elige(const frmUEHs& f, Siro& s, Punto p)
{
    const int n = Bajo<T>(s.Red, f.vista.TamIcono, p);
    if (n > 0) Elegido<T>(s.Seleccion) = model::Entero16(n);
    return n > 0;
}

/// Selects the components whose boxes hold the point. Returns whether there is one, or the press is near the
/// selected UEH, which then stays selected.
bool EligeIconos(const frmUEHs& f, Siro& s, Punto p)
{
    const bool UEHCerca =
        HayEnMano<model::UEH>(s) && Cerca(p, Icono(EnMano<model::UEH>(s)), AlcanceDeUEH * f.vista.TamIcono);
    const bool UEH = UEHCerca || Elige<model::UEH>(f, s, p);
    const bool represa = Elige<model::Represa>(f, s, p);
    const bool lago = Elige<model::Lago>(f, s, p);
    if (lago) {
        s.Seleccion.RepresaSel = 0;
        if (s.Seleccion.CauceSel > 0) s.Seleccion.UEHSel = 0;
    }
    return UEH || represa || lago;
}

/// Settles what a drag from this press would do: draw the link of a component that is still selected, or
/// move the one component that is selected.
void ArmaArrastre(Gesto& g, Siro& s, Punto p, const Armados& armados)
{
    std::size_t i = 0;
    PorClase([&]<typename T>() {
        const std::int16_t armado = armados[i++];
        if (g.arrastra == Arrastra::Nada && armado > 0 && Elegido<T>(s.Seleccion) == armado)
            g.arrastra = ConIcono<T>.enlaza;
    });
    if (g.arrastra != Arrastra::Nada || CuantosElegidos(s.Seleccion) != 1) return;
    PorClase([&]<typename T>() {
        if (Elegido<T>(s.Seleccion) == 0) return;
        const Punto icono = Icono(EnMano<T>(s));
        g.arrastra = ConIcono<T>.mueve;
        g.agarre = {p.X - icono.X, p.Y - icono.Y};
        g.iconoAntes = icono;
    });
}

}  // namespace

void Selecciona(frmUEHs& f, Siro& s, Punto p)
{
    f.gesto.presion = p;
    f.gesto.arrastrado = false;
    f.gesto.arrastra = Arrastra::Nada;
    f.gesto.banda.clear();

    const bool vertice = TomaVertice(f, s, p);
    if (s.Seleccion.CauceSel > 0) {
        s.Seleccion.CauceAnterior = s.Seleccion.CauceSel;
        s.Seleccion.UEHSel = s.Seleccion.RepresaSel = s.Seleccion.LagoSel = 0;
    }
    f.vista.ToleranciaVertice = ToleranciaPresente(f.vista);
    const bool cauce = !vertice && EligeCauce(f, s, p);
    const Armados armados = {Armado<model::UEH>(f, s, p), Armado<model::Represa>(f, s, p),
                             Armado<model::Lago>(f, s, p)};
    const bool icono = EligeIconos(f, s, p);
    if (vertice) {
        f.gesto.arrastra = Arrastra::Vertice;
    } else if (cauce || icono || armados != Armados{}) {
        ArmaArrastre(f.gesto, s, p, armados);
    } else {
        LimpiaSeleccion(s);
    }
    Redibuja(f, s);
}

}  // namespace editor
