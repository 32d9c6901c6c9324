// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <string>

#include "editor/Alcance.h"
#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "editor/Destinos.h"
#include "editor/Edicion.h"
#include "editor/Tender.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"

// Dragging a vertex or an icon.
namespace editor {

using model::Siro;

namespace {

// --- vertices ---

/// The mouth of a reach is grabbed: asks whether it shall drain no longer where it does. Returns false where
/// it shall.
bool DejaSuDestino(const Siro& s, model::Cauce& cauce)
{
    if (cauce.Cauce_aa.empty() || cauce.Cauce_aa == "0") return true;
    const std::string texto = Texto(ElTramo, cauce.NombreCauce, EsTributario, cauce.Cauce_aa, DeseaRedefinir);
    if (!model::Consulta(s, texto, TituloConsulta)) return false;
    cauce.Cauce_aa = "0";
    return true;
}

/// The drain points of what drains into a reach go along with its head.
void LlevaTributarios(Siro& s, int cauce, Punto en)
{
    const std::string& nombre = s.Red.Cauces(cauce).NombreCauce;
    PorClase([&](const auto& clase) {
        for (auto& componente : s.Red.*clase.coleccion)
            if (model::DrenaA(componente, nombre)) {
                componente.XCauce = en.X;
                componente.YCauce = en.Y;
            }
    });
}

/// A hand that clicks moves the pointer a little; below this it is no drag [pixels].
bool EsClic(const frmUEHs& f, Punto p)
{
    constexpr double Umbral = 3, Redondeo = 1e-3;  // of points of 32 bits
    const Pixel desde = APixel(f, f.presion), hasta = APixel(f, p);
    return std::hypot(hasta.x - desde.x, hasta.y - desde.y) < Umbral - Redondeo;
}

bool EsCabecera(const Siro& s)
{
    return s.Seleccion.VerticeSel == s.Red.NroVertices(s.Seleccion.CauceSel);
}

void MueveVertice(frmUEHs& f, Siro& s, Punto p)
{
    f.banda.clear();
    if (s.Seleccion.VerticeSel > 1)
        f.banda.push_back(Vertice(s, s.Seleccion.CauceSel, s.Seleccion.VerticeSel - 1));
    f.banda.push_back(p);
    if (!EsCabecera(s)) f.banda.push_back(Vertice(s, s.Seleccion.CauceSel, s.Seleccion.VerticeSel + 1));
    if (EsCabecera(s)) LlevaTributarios(s, s.Seleccion.CauceSel, p);
    Redibuja(f, s);
}

/// Asks of each reach on whose head the mouth has been put whether it is the destination, until a Yes.
void BuscaDestino(const frmUEHs& f, Siro& s, int cauce)
{
    model::Cauce& este = s.Red.Cauces(cauce);
    const Punto boca = Vertice(s, cauce, 1);
    for (int i = 1; i <= CaucesEnteros(s); ++i) {
        if (i == cauce || !CabeceraCerca(s, i, boca, f.ToleranciaVertice)) continue;
        const std::string& otro = s.Red.Cauces(i).NombreCauce;
        const std::string texto =
            Texto(PreguntaElTramo, este.NombreCauce, EsTributario, otro, FinPreguntaElTramo);
        if (!model::Consulta(s, texto, TituloConsulta)) continue;
        PonVertice(s, cauce, 1, UltimoVertice(s, i));
        este.Cauce_aa = otro;
        return;
    }
}

void SueltaVertice(frmUEHs& f, Siro& s, Punto p)
{
    const int cauce = s.Seleccion.CauceSel;
    PonVertice(s, cauce, s.Seleccion.VerticeSel, p);
    if (EsCabecera(s)) LlevaTributarios(s, cauce, p);
    f.banda.clear();
    Redibuja(f, s);  // the questions are asked over the reach as it now is
    if (s.Seleccion.VerticeSel == 1) BuscaDestino(f, s, cauce);
    Redibuja(f, s);
}

// --- icons ---

template <typename T, int Limite>
void MueveIcono(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase, Punto p)
{
    T& componente = Elegido(s, clase);
    const Punto icono = Icono(clase, componente);
    if (clase.fueraDelPuntero && !Cerca(p, icono, AlcanceDeEmbalse * f.TamIcono)) return;
    componente.*clase.x = model::Simple(double{1} * p.X - f.agarre.X);
    componente.*clase.y = model::Simple(double{1} * p.Y - f.agarre.Y);
    Redibuja(f, s);
}

bool EnElLienzo(const frmUEHs& f, Punto p)
{
    const Pixel lugar = APixel(f, p);
    return lugar.x >= 0 && lugar.y >= 0 && lugar.x <= f.lienzo.ancho && lugar.y <= f.lienzo.alto;
}

/// An icon that is dropped where nobody would see it goes back to where it was.
void SueltaIcono(frmUEHs& f, Siro& s, Punto p)
{
    if (!f.arrastrado || EnElLienzo(f, p)) return;
    PorClase([&](const auto& clase) {
        if (f.arrastra != clase.mueve) return;
        auto& componente = Elegido(s, clase);
        componente.*clase.x = f.iconoAntes.X;
        componente.*clase.y = f.iconoAntes.Y;
        Redibuja(f, s);
    });
}

}  // namespace

void MueveArrastre(frmUEHs& f, Siro& s, Punto p)
{
    if (!f.izquierdoAbajo || f.arrastra == Arrastra::Nada) return;
    if (!f.arrastrado && EsClic(f, p)) return;
    const bool empieza = !f.arrastrado;
    f.arrastrado = true;
    if (f.arrastra == Arrastra::Vertice) {
        if (empieza && s.Seleccion.VerticeSel == 1 && !DejaSuDestino(s, s.Red.Cauces(s.Seleccion.CauceSel))) {
            AbandonaArrastre(f, s);
        } else {
            MueveVertice(f, s, p);
        }
        return;
    }
    PorClase([&](const auto& clase) {
        if (f.arrastra == clase.mueve) MueveIcono(f, s, clase, p);
    });
    TiendeEnlace(f, s, p);
}

void TerminaArrastre(frmUEHs& f, Siro& s, Punto p)
{
    const bool vertice = f.arrastra == Arrastra::Vertice && f.arrastrado;
    const bool banda = !f.banda.empty();
    f.banda.clear();
    SueltaIcono(f, s, p);
    if (vertice) {
        SueltaVertice(f, s, p);
    } else if (banda) {
        Redibuja(f, s);
    }
}

void AbandonaArrastre(frmUEHs& f, Siro& s)
{
    f.izquierdoAbajo = f.arrastrado = false;
    f.arrastra = Arrastra::Nada;
    f.banda.clear();
    LimpiaSeleccion(s);
    Redibuja(f, s);
}

}  // namespace editor
