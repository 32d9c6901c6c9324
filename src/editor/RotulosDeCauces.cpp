// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/RotulosDeCauces.h"

#include <cmath>
#include <string>

#include "editor/Alcance.h"
#include "forms/LineaEnPantalla.h"

namespace editor {

namespace {

// On the canvas [pixels].
constexpr double LargoMinimo = 24;                  // a shorter reach has neither arrow nor name
constexpr double LargoDeFlecha = 10, Saliente = 5;  // the arrow's wings stand out of the line
constexpr std::int16_t AnchoDeFlecha = 2;
constexpr double JuntoALaLinea = 8, BajoElMedio = 6;  // name beside the middle
constexpr float LadoDeMarca = 12;

void PintaSentido(frmUEHs& f, const forms::MedioDeLinea& m)
{
    const double ala = f.vista.AnchoLinea / 2.0 + Saliente, medio = LargoDeFlecha / 2;
    const auto punto = [&](double adelante, double alLado) {
        return DePixel(f.vista, m.en.x + m.dx * adelante - m.dy * alLado,
                       m.en.y + m.dy * adelante + m.dx * alLado);
    };
    f.dibujo.Polilinea(Papel::Sentido, AnchoDeFlecha);
    for (const Punto p : {punto(-medio, ala), punto(medio, 0), punto(-medio, -ala)})
        f.dibujo.Agrega(p);
}

/// Below the line, where it leaves room: beside a reach that runs down to the right, that is at its left.
void PintaNombre(frmUEHs& f, const model::Red& red, int cauce, const forms::MedioDeLinea& m)
{
    constexpr double AnchoDeLetra = 6.5;  // about so much; the canvas alone knows the font [pixels]
    const std::string& nombre = red.ColCauces.Item(cauce).NombreCauce;
    const Pixel boca = APixel(f.vista, Vertice(red, cauce, 1));
    const Pixel cabecera = APixel(f.vista, Vertice(red, cauce, red.NroVertices(cauce)));
    const double dx = boca.x - cabecera.x, dy = boca.y - cabecera.y;
    const bool baja = std::fabs(dx) > std::fabs(dy) && dx * dy > 0;
    const double aparte = f.vista.AnchoLinea / 2.0 + JuntoALaLinea;
    const double x = baja ? -aparte - AnchoDeLetra * static_cast<double>(nombre.size()) : aparte;
    f.dibujo.Texto(Papel::NombreCauce, DePixel(f.vista, m.en.x + x, m.en.y + BajoElMedio), nombre);
}

/// Whether a reach drains into the component of a name; one that is being drawn drains nowhere yet.
bool Drena(const model::Red& red, int cauce, std::string_view nombre)
{
    return cauce <= CaucesEnteros(red) && model::DrenaA(red.ColCauces.Item(cauce), nombre);
}

/// Whether a point touches the head of a reach other than this one, into which it doesn't drain.
bool TocaOtroCauce(const frmUEHs& f, const model::Red& red, int cauce, Punto boca)
{
    const double alcance = ParteTolerancia * AnchoLogico(f.vista);
    for (int k = 1; k <= red.NroCauces(); ++k) {
        if (k == cauce || !CabeceraCerca(red, k, boca, alcance)) continue;
        if (k > CaucesEnteros(red) || !Drena(red, cauce, red.ColCauces.Item(k).NombreCauce)) return true;
    }
    return false;
}

/// The same of a Represa or a Lago.
template <typename T>
bool Toca(const frmUEHs& f, const model::Red& red, int cauce, Punto boca)
{
    const int n = Bajo<T>(red, f.vista.TamIcono, boca);
    return n > 0 && !Drena(red, cauce, model::Nombre(model::Todos<T>(red).Item(n)));
}

void MarcaSinAcople(frmUEHs& f, const model::Red& red, int cauce)
{
    const Punto boca = Vertice(red, cauce, 1);
    if (TocaOtroCauce(f, red, cauce, boca) || Toca<model::Represa>(f, red, cauce, boca) ||
        Toca<model::Lago>(f, red, cauce, boca))
        f.dibujo.Cuadrado(Papel::SinAcople, boca, LadoDeMarca);
}

}  // namespace

void RotulaCauces(frmUEHs& f, const model::Red& red)
{
    for (int i = 1; i <= red.NroCauces(); ++i) {
        if (red.NroVertices(i) < 1) continue;
        if (Modo(f) == Boton::Cauce) MarcaSinAcople(f, red, i);
        const auto lugar = [&](int j) { return APixel(f.vista, Vertice(red, i, j)); };
        const auto medio = forms::MedioDe(red.NroVertices(i), lugar, LargoMinimo);
        if (!medio) continue;
        PintaSentido(f, *medio);
        if (f.vista.NombresVisibles && i <= CaucesEnteros(red)) PintaNombre(f, red, i, *medio);
    }
}

}  // namespace editor
