// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <string>

#include "editor/Alcance.h"
#include "editor/ClasesConIcono.h"
#include "editor/EnMano.h"
#include "editor/RotulosDeCauces.h"
#include "editor/frmUEHs.h"
#include "forms/MarcoDeImagen.h"
#include "model/Numeros.h"

namespace editor {

using model::Siro;

namespace {

constexpr float CorrimientoNombre = 0.5F;  // name beside the icon's position [sizes s]
constexpr float BordeDeMarca = 4;          // a mark is so much wider than the lines [pixels]
constexpr float CorrimientoOrden = 1.5F;   // order left of vertex 2 [tolerances]

// --- the steps before the painting ---

/// The arrays of the vertices hold the longest reach.
void HaceLugar(model::Red& red)
{
    int mayor = 0;
    for (int i = 1; i <= CaucesDibujados(red); ++i)
        mayor = std::max<int>(mayor, red.NroVertices(i));
    AmpliaVertices(red, mayor);
}

/// The mouth of a reach lies on the head of the reach that it drains into.
void AjustaDesembocaduras(model::Red& red)
{
    const int enteros = CaucesEnteros(red);
    for (int i = 1; i <= enteros; ++i) {
        const std::string& destino = red.ColCauces.Item(i).Cauce_aa;
        const int k = model::EsDestino(destino) ? model::NumeroDe<model::Cauce>(red, destino) : 0;
        if (k >= 1 && k <= enteros && red.NroVertices(k) >= 1)
            PonPrimerVertice(red, i, UltimoVertice(red, k));
    }
}

Extension Extiende(const frmUEHs& f, const model::Red& red)
{
    Extension e;
    // An image without reaches is the drawing: it is what will be traced.
    if (f.fondo.ImagenVisible && red.NroCauces() == 0) {
        e.Abarca({1, 1});
        e.Abarca({static_cast<float>(f.fondo.imagen.ancho), static_cast<float>(f.fondo.imagen.alto)});
    }
    for (int i = 1; i <= CaucesDibujados(red); ++i) {
        const float* x = red.XVertice.Fila(i);
        const float* y = red.YVertice.Fila(i);
        for (int j = 1; j <= red.NroVertices(i); ++j)
            e.Abarca({x[j], y[j]});
    }
    PorClase([&]<typename T>() {
        for (const T& c : model::Todos<T>(red))
            e.Abarca(Icono(c));
    });
    return e;
}

// --- the painting ---

void PintaImagen(frmUEHs& f, const Siro& s)
{
    if (!f.fondo.ImagenVisible) return;
    const forms::MarcoDeImagen marco =
        forms::MarcoDe(s.Configuracion, f.fondo.imagen.ancho, f.fondo.imagen.alto);
    f.dibujo.Imagen({marco.X, marco.Y}, marco.ancho, marco.alto);
}

void PintaCauces(frmUEHs& f, const model::Red& red)
{
    for (int i = 1; i <= CaucesDibujados(red); ++i) {
        const int vertices = red.NroVertices(i);
        if (vertices < 1) continue;
        f.dibujo.Polilinea(Papel::Cauce, f.vista.AnchoLinea);
        const float* x = red.XVertice.Fila(i);
        const float* y = red.YVertice.Fila(i);
        for (int j = 1; j <= vertices; ++j)
            f.dibujo.Agrega({x[j], y[j]});
    }
}

template <typename T>
Punto Centro(const T& c, float s)
{
    constexpr float Medio = ConIcono<T>.esquina + ConIcono<T>.lado / 2;
    return {model::IconoX(c) + Medio * s, model::IconoY(c) + Medio * s};
}

/// Where the line of a component ends: at the icon of the Represa or Lago that it drains into, otherwise at
/// its drain point.
Punto FinDelEnlace(const model::Red& red, float s, std::string_view destino, Punto drena)
{
    if (!model::EsDestino(destino)) return drena;
    if (const int n = model::NumeroDe<model::Represa>(red, destino))
        return Centro(red.ColRepresas.Item(n), s);
    if (const int n = model::NumeroDe<model::Lago>(red, destino)) return Centro(red.ColLagos.Item(n), s);
    return drena;
}

float LadoDeMarca(const frmUEHs& f)
{
    return BordeDeMarca + static_cast<float>(f.vista.AnchoLinea);
}

template <typename T>
void PintaComponente(frmUEHs& f, const model::Red& red, const T& c, bool elegido)
{
    constexpr const FilaConIcono& fila = ConIcono<T>;
    const float s = f.vista.TamIcono;
    const Punto en = Icono(c), drena{c.XCauce, c.YCauce};
    // What drains nowhere joins the network at no point; (0, 0) says so.
    if (model::EsDestino(c.Cauce_aa) || drena != Punto{})
        f.dibujo.Linea(fila.papel, 1, Centro(c, s), FinDelEnlace(red, s, c.Cauce_aa, drena));
    f.dibujo.Icono(model::DeClase<T>::clase, {en.X + fila.esquina * s, en.Y + fila.esquina * s},
                   fila.lado * s, elegido);
    f.dibujo.Texto(Papel::Nombre, {en.X + CorrimientoNombre * s, en.Y + fila.nombreDebajo * s},
                   model::Nombre(c));
    if (elegido) f.dibujo.Cuadrado(Papel::Asa, Asa(en, s), LadoDeMarca(f));
}

void PintaComponentes(frmUEHs& f, const Siro& s)
{
    PorClase([&]<typename T>() {
        int n = 0;
        for (const T& c : model::Todos<T>(s.Red))
            PintaComponente(f, s.Red, c, ++n == Elegido<T>(s.Seleccion));
    });
}

void MarcaCauceElegido(frmUEHs& f, const Siro& s)
{
    if (s.Seleccion.CauceSel < 1 || s.Seleccion.CauceSel > CaucesDibujados(s.Red)) return;
    const float lado = LadoDeMarca(f);
    for (int j = 1; j <= s.Red.NroVertices(s.Seleccion.CauceSel); ++j)
        f.dibujo.Cuadrado(j == s.Seleccion.VerticeSel ? Papel::VerticeTomado : Papel::MarcaVertice,
                          Vertice(s.Red, s.Seleccion.CauceSel, j), lado);
}

void EscribeOrdenes(frmUEHs& f, const model::Red& red)
{
    if (!f.vista.OrdenVisible) return;
    for (int i = 1; i <= CaucesEnteros(red); ++i) {
        if (red.NroVertices(i) < 2) continue;
        const Punto p = Vertice(red, i, 2);
        const float corrido = CorrimientoOrden * static_cast<float>(f.vista.ToleranciaVertice);
        f.dibujo.Texto(Papel::Orden, {p.X - corrido, p.Y},
                       model::NumeroATexto(std::int32_t{red.ColCauces.Item(i).OrdenCauce}));
    }
}

void PintaMedicion(frmUEHs& f)
{
    if (f.medicion.NroPuntosMedida < 1) return;
    f.dibujo.Polilinea(Papel::Medida,
                       static_cast<std::int16_t>(std::trunc(f.vista.AnchoLinea - f.vista.AnchoLinea / 2.0)));
    for (std::size_t i = 1; i <= static_cast<std::size_t>(f.medicion.NroPuntosMedida); ++i)
        f.dibujo.Agrega(f.medicion.En(i));
}

void PintaBanda(frmUEHs& f)
{
    if (f.gesto.banda.empty()) return;
    f.dibujo.Polilinea(Papel::Banda, 1);
    for (const Punto p : f.gesto.banda)
        f.dibujo.Agrega(p);
}

}  // namespace

void Redibuja(frmUEHs& f, Siro& s)
{
    // A save or a fresh read has taken away the reach that was being drawn.
    if (f.trazo.ClicsCauce > 0 && s.Red.NroCauces() != s.Red.ColCauces.Cuenta() + 1) f.trazo.ClicsCauce = 0;
    HaceLugar(s.Red);
    AjustaDesembocaduras(s.Red);
    f.dibujo.Vacia();
    f.vista.extension = Extiende(f, s.Red);
    AjustaEscala(f.vista, s.Red.NroCauces() != 0);
    AjustaOrigen(f.vista);

    PintaImagen(f, s);
    PintaCauces(f, s.Red);
    PintaComponentes(f, s);
    RotulaCauces(f, s.Red);
    MarcaCauceElegido(f, s);
    EscribeOrdenes(f, s.Red);
    PintaMedicion(f);
    PintaBanda(f);
}

}  // namespace editor
