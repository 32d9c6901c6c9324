// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "editor/frmUEHs.h"

// Zoom and origin: which part of the drawing the canvas shows.
namespace editor {

using model::Siro;

namespace {

constexpr double FactorDeVuelta = 1.1;  // a turn of the wheel

/// Movement of a scroll bar, kept until the next drawing applies it.
void Mueve(int& barra, int& movido, int valor)
{
    const int nuevo = std::clamp(valor, -TopeBarra, TopeBarra);
    movido += nuevo - barra;
    barra = nuevo;
}

double PorPixel(const frmUEHs& f, int pixeles)
{
    return double{AnchoLogico(f)} / std::max(pixeles, 1);
}

}  // namespace

float AnchoLogico(const frmUEHs& f)
{
    return static_cast<float>(double{1} * f.sldEscala * f.EscalaBase / 100);
}

Punto DePixel(const frmUEHs& f, double x, double y)
{
    return {static_cast<float>(f.origen.X + x * PorPixel(f, f.lienzo.ancho)),
            static_cast<float>(f.origen.Y + y * PorPixel(f, f.lienzo.alto))};
}

Pixel APixel(const frmUEHs& f, Punto p)
{
    return {(double{1} * p.X - f.origen.X) / PorPixel(f, f.lienzo.ancho),
            (double{1} * p.Y - f.origen.Y) / PorPixel(f, f.lienzo.alto)};
}

void sldEscala_Mueve(frmUEHs& f, Siro& s, int valor)
{
    f.sldEscala = std::clamp(valor, EscalaMinima, EscalaMaxima);
    f.recentra = true;
    f.reescala = false;
    Redibuja(f, s);
}

void ScrEscalaHor_Mueve(frmUEHs& f, Siro& s, int valor)
{
    Mueve(f.ScrEscalaHor, f.movidoHor, valor);
    Redibuja(f, s);
}

void ScrEscalaVer_Mueve(frmUEHs& f, Siro& s, int valor)
{
    Mueve(f.ScrEscalaVer, f.movidoVer, valor);
    Redibuja(f, s);
}

void picDibujo_Rueda(frmUEHs& f, Siro& s, double vueltas, Punto p)
{
    if (s.Red.NroCauces == 0 || vueltas == 0) return;  // a drawing without reaches stays at 100 %
    const int anterior = f.sldEscala;
    const double deseada = std::round(anterior / std::pow(FactorDeVuelta, std::clamp(vueltas, -100., 100.)));
    // From a small zoom a tenth would round to nothing.
    const double minimo = vueltas > 0 ? -1 : 1;
    const double nueva =
        vueltas > 0 ? std::min(deseada, anterior + minimo) : std::max(deseada, anterior + minimo);
    f.sldEscala = static_cast<int>(std::clamp<double>(nueva, EscalaMinima, EscalaMaxima));
    const double razon = double{1} * f.sldEscala / anterior;
    f.origen.X = static_cast<float>(p.X - (double{1} * p.X - f.origen.X) * razon);
    f.origen.Y = static_cast<float>(p.Y - (double{1} * p.Y - f.origen.Y) * razon);
    Redibuja(f, s);
}

}  // namespace editor
