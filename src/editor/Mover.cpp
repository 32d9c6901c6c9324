// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <string>

#include "editor/Alcance.h"
#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/Tender.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
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
    if (!model::EsDestino(cauce.Cauce_aa)) return true;
    const std::string texto = Texto(ElTramo, cauce.NombreCauce, EsTributario, cauce.Cauce_aa, DeseaRedefinir);
    if (!model::Consulta(s, texto, TituloConsulta)) return false;
    cauce.Cauce_aa = model::SinDestino;
    return true;
}

/// The drain points of what drains into a reach go along with its head.
void LlevaTributarios(model::Red& red, int cauce, Punto en)
{
    const std::string& nombre = red.Cauces(cauce).NombreCauce;
    PorClase([&]<typename T>() {
        for (T& componente : model::Todos<T>(red))
            if (model::DrenaA(componente, nombre)) PonPunto(componente, en);
    });
}

/// A hand that clicks moves the pointer a little; below this it is no drag [pixels].
bool EsClic(const frmUEHs& f, Punto p)
{
    constexpr double Umbral = 3, Redondeo = 1e-3;  // of points of 32 bits
    const Pixel desde = APixel(f.vista, f.gesto.presion), hasta = APixel(f.vista, p);
    return std::hypot(hasta.x - desde.x, hasta.y - desde.y) < Umbral - Redondeo;
}

bool EsCabecera(const Siro& s)
{
    return s.Seleccion.VerticeSel == s.Red.NroVertices(s.Seleccion.CauceSel);
}

void MueveVertice(frmUEHs& f, Siro& s, Punto p)
{
    f.gesto.banda.clear();
    if (s.Seleccion.VerticeSel > 1)
        f.gesto.banda.push_back(Vertice(s.Red, s.Seleccion.CauceSel, s.Seleccion.VerticeSel - 1));
    f.gesto.banda.push_back(p);
    if (!EsCabecera(s))
        f.gesto.banda.push_back(Vertice(s.Red, s.Seleccion.CauceSel, s.Seleccion.VerticeSel + 1));
    if (EsCabecera(s)) LlevaTributarios(s.Red, s.Seleccion.CauceSel, p);
    Redibuja(f, s);
}

/// Asks of each reach on whose head the mouth has been put whether it is the destination, until a Yes.
void BuscaDestino(const frmUEHs& f, Siro& s, int cauce)
{
    model::Cauce& este = s.Red.Cauces(cauce);
    const Punto boca = Vertice(s.Red, cauce, 1);
    for (int i = 1; i <= CaucesEnteros(s.Red); ++i) {
        if (i == cauce || !CabeceraCerca(s.Red, i, boca, f.vista.ToleranciaVertice)) continue;
        const std::string& otro = s.Red.Cauces(i).NombreCauce;
        const std::string texto =
            Texto(PreguntaElTramo, este.NombreCauce, EsTributario, otro, FinPreguntaElTramo);
        if (!model::Consulta(s, texto, TituloConsulta)) continue;
        PonVertice(s.Red, cauce, 1, UltimoVertice(s.Red, i));
        este.Cauce_aa = otro;
        return;
    }
}

void SueltaVertice(frmUEHs& f, Siro& s, Punto p)
{
    const int cauce = s.Seleccion.CauceSel;
    PonVertice(s.Red, cauce, s.Seleccion.VerticeSel, p);
    if (EsCabecera(s)) LlevaTributarios(s.Red, cauce, p);
    f.gesto.banda.clear();
    Redibuja(f, s);  // the questions are asked over the reach as it now is
    if (s.Seleccion.VerticeSel == 1) BuscaDestino(f, s, cauce);
    Redibuja(f, s);
}

// --- icons ---

template <typename T>
void MueveIcono(frmUEHs& f, Siro& s, Punto p)
{
    T& componente = EnMano<T>(s);
    if (ConIcono<T>.fueraDelPuntero && !Cerca(p, Icono(componente), AlcanceDeEmbalse * f.vista.TamIcono))
        return;
    PonIcono(componente, {model::Simple(double{1} * p.X - f.gesto.agarre.X),
                          model::Simple(double{1} * p.Y - f.gesto.agarre.Y)});
    Redibuja(f, s);
}

bool EnElLienzo(const frmUEHs& f, Punto p)
{
    const Pixel lugar = APixel(f.vista, p);
    return lugar.x >= 0 && lugar.y >= 0 && lugar.x <= f.vista.lienzo.ancho && lugar.y <= f.vista.lienzo.alto;
}

/// An icon that is dropped where nobody would see it goes back to where it was.
void SueltaIcono(frmUEHs& f, Siro& s, Punto p)
{
    if (!f.gesto.arrastrado || EnElLienzo(f, p)) return;
    PorClase([&]<typename T>() {
        if (f.gesto.arrastra != ConIcono<T>.mueve) return;
        PonIcono(EnMano<T>(s), f.gesto.iconoAntes);
        Redibuja(f, s);
    });
}

}  // namespace

void MueveArrastre(frmUEHs& f, Siro& s, Punto p)
{
    if (!f.gesto.izquierdoAbajo || f.gesto.arrastra == Arrastra::Nada) return;
    if (!f.gesto.arrastrado && EsClic(f, p)) return;
    const bool empieza = !f.gesto.arrastrado;
    f.gesto.arrastrado = true;
    if (f.gesto.arrastra == Arrastra::Vertice) {
        if (empieza && s.Seleccion.VerticeSel == 1 && !DejaSuDestino(s, s.Red.Cauces(s.Seleccion.CauceSel))) {
            AbandonaArrastre(f, s);
        } else {
            MueveVertice(f, s, p);
        }
        return;
    }
    PorClase([&]<typename T>() {
        if (f.gesto.arrastra == ConIcono<T>.mueve) MueveIcono<T>(f, s, p);
    });
    TiendeEnlace(f, s, p);
}

void TerminaArrastre(frmUEHs& f, Siro& s, Punto p)
{
    const bool vertice = f.gesto.arrastra == Arrastra::Vertice && f.gesto.arrastrado;
    const bool banda = !f.gesto.banda.empty();
    f.gesto.banda.clear();
    SueltaIcono(f, s, p);
    if (vertice) {
        SueltaVertice(f, s, p);
    } else if (banda) {
        Redibuja(f, s);
    }
}

void AbandonaArrastre(frmUEHs& f, Siro& s)
{
    f.gesto.Suelta();
    RedibujaSinSeleccion(f, s);
}

}  // namespace editor
