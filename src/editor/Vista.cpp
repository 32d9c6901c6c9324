// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Vista.h"

#include <algorithm>
#include <cmath>

#include "model/Numeros.h"

namespace editor {

namespace {

constexpr double FactorDeVuelta = 1.1;  // a turn of the wheel
constexpr double HolguraEscala = 1.1;   // the drawing leaves a margin of a tenth

double PorPixel(const Vista& v, int pixeles)
{
    return double{AnchoLogico(v)} / std::max(pixeles, 1);
}

}  // namespace

void Extension::Abarca(Punto p)
{
    XMax = std::max(XMax, p.X);
    XMin = std::min(XMin, p.X);
    YMax = std::max(YMax, p.Y);
    YMin = std::min(YMin, p.Y);
}

float AnchoLogico(const Vista& v)
{
    return static_cast<float>(double{1} * v.sldEscala * v.EscalaBase / 100);
}

std::int16_t ToleranciaPresente(const Vista& v)
{
    return model::Entero16(std::trunc(ParteTolerancia * AnchoLogico(v)));
}

Punto DePixel(const Vista& v, double x, double y)
{
    return {static_cast<float>(v.origen.X + x * PorPixel(v, v.lienzo.ancho)),
            static_cast<float>(v.origen.Y + y * PorPixel(v, v.lienzo.alto))};
}

Pixel APixel(const Vista& v, Punto p)
{
    return {(double{1} * p.X - v.origen.X) / PorPixel(v, v.lienzo.ancho),
            (double{1} * p.Y - v.origen.Y) / PorPixel(v, v.lienzo.alto)};
}

void PonEscala(Vista& v, int valor)
{
    v.sldEscala = std::clamp(valor, EscalaMinima, EscalaMaxima);
    v.recentra = true;
    v.reescala = false;
}

void MueveBarra(int& barra, int& movido, int valor)
{
    const int nuevo = std::clamp(valor, -TopeBarra, TopeBarra);
    movido += nuevo - barra;
    barra = nuevo;
}

void Gira(Vista& v, double vueltas, Punto p)
{
    const int anterior = v.sldEscala;
    const double deseada = std::round(anterior / std::pow(FactorDeVuelta, std::clamp(vueltas, -100., 100.)));
    // From a small zoom a tenth would round to nothing.
    const double nueva = vueltas > 0 ? std::min(deseada, anterior - 1.) : std::max(deseada, anterior + 1.);
    v.sldEscala = static_cast<int>(std::clamp<double>(nueva, EscalaMinima, EscalaMaxima));
    const double razon = double{1} * v.sldEscala / anterior;
    v.origen.X = static_cast<float>(p.X - (double{1} * p.X - v.origen.X) * razon);
    v.origen.Y = static_cast<float>(p.Y - (double{1} * p.Y - v.origen.Y) * razon);
}

void AjustaEscala(Vista& v, bool hayCauces)
{
    const Extension& e = v.extension;
    if (v.reescala && e.HayAlgo()) {
        const double ancho = double{1} * e.XMax - e.XMin;
        const double alto = double{1} * e.YMax - e.YMin;
        const double escala = std::max(ancho, alto) * HolguraEscala / v.EscalaBase * 100;
        v.sldEscala = static_cast<int>(std::clamp<double>(std::trunc(escala), EscalaMinima, EscalaMaxima));
    }
    if (!hayCauces) v.sldEscala = 100;
    v.reescala = false;
}

void AjustaOrigen(Vista& v)
{
    const Extension& e = v.extension;
    const double ancho = AnchoLogico(v);
    if (v.movidoHor != 0 || v.movidoVer != 0) {
        v.origen.X = static_cast<float>(v.origen.X + ancho * v.movidoHor / 100);
        v.origen.Y = static_cast<float>(v.origen.Y + ancho * v.movidoVer / 100);
    } else if (v.recentra && e.HayAlgo()) {
        v.origen.X = static_cast<float>(e.XMin - (ancho - (double{1} * e.XMax - e.XMin)) / 2);
        v.origen.Y = static_cast<float>(e.YMin - (ancho - (double{1} * e.YMax - e.YMin)) / 2);
        v.ScrEscalaHor = v.ScrEscalaVer = 0;
    }
    v.recentra = false;
    v.movidoHor = v.movidoVer = 0;
}

}  // namespace editor
