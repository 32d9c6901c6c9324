// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/RotulosDeCauces.h"

#include <cmath>
#include <optional>
#include <string>

#include "editor/Alcance.h"
#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "model/Clases.h"

namespace editor {

using model::Siro;

namespace {

// On the canvas [pixels].
constexpr double LargoMinimo = 24;                  // a shorter reach has neither arrow nor name
constexpr double LargoDeFlecha = 10, Saliente = 5;  // the arrow's wings stand out of the line
constexpr std::int16_t AnchoDeFlecha = 2;
constexpr double JuntoALaLinea = 8, BajoElMedio = 6;  // name beside the middle
constexpr float LadoDeMarca = 12;
/// Share of the canvas's width within which two ends touch, as for a mouth that is dropped.
constexpr double ParteDeToque = 0.02;

/// The middle of a reach on the canvas, and the direction of its water there.
struct Medio {
    Pixel en{};
    double dx = 0, dy = 0;
};

/// Nothing for a reach that is too short to be seen.
std::optional<Medio> MedioDe(const frmUEHs& f, const Siro& s, int cauce)
{
    const auto lugar = [&](int j) { return APixel(f, Vertice(s, cauce, j)); };
    const auto tramo = [&](int j) {
        const Pixel a = lugar(j - 1), b = lugar(j);
        return std::hypot(b.x - a.x, b.y - a.y);
    };
    const int vertices = s.Red.NroVertices(cauce);
    double largo = 0;
    for (int j = 2; j <= vertices; ++j)
        largo += tramo(j);
    if (!std::isfinite(largo) || largo < LargoMinimo) return {};
    double queda = largo / 2;
    for (int j = 2; j <= vertices; ++j) {
        const double este = tramo(j);
        if (este < queda) {
            queda -= este;
            continue;
        }
        const Pixel a = lugar(j - 1), b = lugar(j);
        // The vertices run upstream, the water against them.
        const double dx = (a.x - b.x) / este, dy = (a.y - b.y) / este;
        return Medio{{a.x - dx * queda, a.y - dy * queda}, dx, dy};
    }
    return {};
}

void PintaSentido(frmUEHs& f, const Medio& m)
{
    const double ala = f.AnchoLinea / 2.0 + Saliente, medio = LargoDeFlecha / 2;
    const auto punto = [&](double adelante, double alLado) {
        return DePixel(f, m.en.x + m.dx * adelante - m.dy * alLado, m.en.y + m.dy * adelante + m.dx * alLado);
    };
    f.dibujo.Polilinea(Papel::Sentido, AnchoDeFlecha);
    for (const Punto p : {punto(-medio, ala), punto(medio, 0), punto(-medio, -ala)})
        f.dibujo.Agrega(p);
}

/// Below the line, where it leaves room: beside a reach that runs down to the right, that is at its left.
void PintaNombre(frmUEHs& f, const Siro& s, int cauce, const Medio& m)
{
    constexpr double AnchoDeLetra = 6.5;  // about so much; the canvas alone knows the font [pixels]
    const std::string& nombre = s.Red.ColCauces.Item(cauce).NombreCauce;
    const Pixel boca = APixel(f, Vertice(s, cauce, 1));
    const Pixel cabecera = APixel(f, Vertice(s, cauce, s.Red.NroVertices(cauce)));
    const double dx = boca.x - cabecera.x, dy = boca.y - cabecera.y;
    const bool baja = std::fabs(dx) > std::fabs(dy) && dx * dy > 0;
    const double aparte = f.AnchoLinea / 2.0 + JuntoALaLinea;
    const double x = baja ? -aparte - AnchoDeLetra * static_cast<double>(nombre.size()) : aparte;
    f.dibujo.Texto(Papel::NombreCauce, DePixel(f, m.en.x + x, m.en.y + BajoElMedio), nombre);
}

/// Destination of a reach; one that is being drawn has none yet.
std::string DestinoDe(const Siro& s, int cauce)
{
    return cauce <= CaucesEnteros(s) ? s.Red.ColCauces.Item(cauce).Cauce_aa : std::string();
}

/// Whether a point touches the head of a reach other than this one, into which it doesn't drain.
bool TocaOtroCauce(const frmUEHs& f, const Siro& s, int cauce, Punto boca)
{
    const double alcance = ParteDeToque * AnchoLogico(f);
    const std::string destino = DestinoDe(s, cauce);
    for (int k = 1; k <= s.Red.NroCauces; ++k) {
        if (k == cauce || !CabeceraCerca(s, k, boca, alcance)) continue;
        const bool acoplado =
            k <= CaucesEnteros(s) && model::DrenaA(destino, s.Red.ColCauces.Item(k).NombreCauce);
        if (!acoplado) return true;
    }
    return false;
}

/// The same of a Represa or a Lago.
template <typename T, int Limite>
bool TocaEmbalse(const frmUEHs& f, const Siro& s, const ClaseConIcono<T, Limite>& clase, int cauce,
                 Punto boca)
{
    const int n = Bajo(f, s, clase, boca);
    return n > 0 && !model::DrenaA(DestinoDe(s, cauce), (s.Red.*clase.coleccion).Item(n).*clase.nombre);
}

void MarcaSinAcople(frmUEHs& f, const Siro& s, int cauce)
{
    const Punto boca = Vertice(s, cauce, 1);
    if (TocaOtroCauce(f, s, cauce, boca) || TocaEmbalse(f, s, ClaseRepresa, cauce, boca) ||
        TocaEmbalse(f, s, ClaseLago, cauce, boca))
        f.dibujo.Cuadrado(Papel::SinAcople, boca, LadoDeMarca);
}

}  // namespace

void RotulaCauces(frmUEHs& f, const Siro& s)
{
    for (int i = 1; i <= s.Red.NroCauces; ++i) {
        if (s.Red.NroVertices(i) < 1) continue;
        if (Modo(f) == Boton::Cauce) MarcaSinAcople(f, s, i);
        const std::optional<Medio> medio = MedioDe(f, s, i);
        if (!medio) continue;
        PintaSentido(f, *medio);
        if (f.NombresVisibles && i <= CaucesEnteros(s)) PintaNombre(f, s, i, *medio);
    }
}

}  // namespace editor
