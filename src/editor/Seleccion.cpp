// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cstdint>

#include "editor/Alcance.h"
#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/frmUEHs.h"
#include "model/Numeros.h"

// What a press selects, and what a drag from there would do. The order of the tests is part of the rules:
// two clicks in a row name the two ends of a link.
namespace editor {

using model::Siro;

namespace {

/// Grabs the first vertex of the selected reach that lies within the tolerance.
bool TomaVertice(const frmUEHs& f, Siro& s, Punto p)
{
    s.Seleccion.VerticeSel = 0;
    if (s.Seleccion.CauceSel < 1 || s.Seleccion.CauceSel > CaucesEnteros(s)) return false;
    for (std::int16_t j = 1; j <= s.Red.NroVertices(s.Seleccion.CauceSel); ++j)
        if (Cerca(p, Vertice(s, s.Seleccion.CauceSel, j), f.ToleranciaVertice)) {
            s.Seleccion.VerticeSel = j;
            return true;
        }
    return false;
}

bool TocaCauce(const Siro& s, int cauce, Punto p, double distancia)
{
    for (int j = 1; j <= s.Red.NroVertices(cauce); ++j)
        if (Cerca(p, Vertice(s, cauce, j), distancia)) return true;
    return false;
}

/// Selects the reach of a vertex within half the tolerance, the last one of several.
bool EligeCauce(const frmUEHs& f, Siro& s, Punto p)
{
    for (int i = CaucesEnteros(s); i >= 1; --i)
        if (TocaCauce(s, i, p, f.ToleranciaVertice / 2.0)) {
            s.Seleccion.CauceSel = model::Entero16(i);
            return true;
        }
    return false;
}

/// Numbers of the selected UEH, Represa and Lago whose handle was pressed, otherwise 0.
using Armados = std::array<std::int16_t, 3>;

template <typename T, int Limite>
std::int16_t Armado(const frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase, Punto p)
{
    const std::int16_t n = s.Seleccion.*clase.elegido;
    if (n < 1 || n > (s.Red.*clase.coleccion).Cuenta()) return 0;
    const Punto asa = Asa(Icono(clase, Elegido(s, clase)), f.TamIcono);
    return Cerca(p, asa, AlcanceDelAsa * f.TamIcono) ? n : std::int16_t{0};
}

bool CercaDeLaUEHElegida(const frmUEHs& f, Siro& s, Punto p)
{
    return s.Seleccion.UEHSel >= 1 && s.Seleccion.UEHSel <= s.Red.ColUEHs.Cuenta() &&
           Cerca(p, Icono(ClaseUEH, Elegido(s, ClaseUEH)), AlcanceDeUEH * f.TamIcono);
}

/// Selects the components whose boxes hold the point. Returns whether there is one, or the press is near the
/// selected UEH, which then stays selected.
bool EligeIconos(const frmUEHs& f, Siro& s, Punto p)
{
    bool alguno = CercaDeLaUEHElegida(f, s, p);
    const auto elige = [&](const auto& clase) {
        const int n = Bajo(f, s, clase, p);
        if (n == 0) return false;
        s.Seleccion.*clase.elegido = model::Entero16(n);
        return alguno = true;
    };
    if (!alguno) elige(ClaseUEH);
    elige(ClaseRepresa);
    if (elige(ClaseLago)) {
        s.Seleccion.RepresaSel = 0;
        if (s.Seleccion.CauceSel > 0) s.Seleccion.UEHSel = 0;
    }
    return alguno;
}

int CuantosElegidos(const Siro& s)
{
    return (s.Seleccion.CauceSel > 0) + (s.Seleccion.UEHSel > 0) + (s.Seleccion.RepresaSel > 0) +
           (s.Seleccion.LagoSel > 0);
}

/// Settles what a drag from this press would do: draw the link of a component that is still selected, or
/// move the one component that is selected.
void ArmaArrastre(frmUEHs& f, Siro& s, Punto p, const Armados& armados)
{
    std::size_t i = 0;
    PorClase([&](const auto& clase) {
        const std::int16_t armado = armados[i++];
        if (f.arrastra == Arrastra::Nada && armado > 0 && s.Seleccion.*clase.elegido == armado)
            f.arrastra = clase.enlaza;
    });
    if (f.arrastra != Arrastra::Nada || CuantosElegidos(s) != 1) return;
    PorClase([&](const auto& clase) {
        if (s.Seleccion.*clase.elegido == 0) return;
        const Punto icono = Icono(clase, Elegido(s, clase));
        f.arrastra = clase.mueve;
        f.agarre = {p.X - icono.X, p.Y - icono.Y};
        f.iconoAntes = icono;
    });
}

}  // namespace

void Selecciona(frmUEHs& f, Siro& s, Punto p)
{
    f.presion = p;
    f.arrastrado = false;
    f.arrastra = Arrastra::Nada;
    f.banda.clear();

    const bool vertice = TomaVertice(f, s, p);
    if (s.Seleccion.CauceSel > 0) {
        s.Seleccion.CauceAnterior = s.Seleccion.CauceSel;
        s.Seleccion.UEHSel = s.Seleccion.RepresaSel = s.Seleccion.LagoSel = 0;
    }
    f.ToleranciaVertice = ToleranciaPresente(f);
    const bool cauce = !vertice && EligeCauce(f, s, p);
    const Armados armados = {Armado(f, s, ClaseUEH, p), Armado(f, s, ClaseRepresa, p),
                             Armado(f, s, ClaseLago, p)};
    const bool icono = EligeIconos(f, s, p);
    if (vertice) {
        f.arrastra = Arrastra::Vertice;
    } else if (cauce || icono || armados != Armados{}) {
        ArmaArrastre(f, s, p, armados);
    } else {
        LimpiaSeleccion(s);
    }
    Redibuja(f, s);
}

}  // namespace editor
