// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <string>

#include "editor/ClasesConIcono.h"
#include "editor/RotulosDeCauces.h"
#include "editor/frmUEHs.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace editor {

using model::Siro;

namespace {

constexpr double HolguraEscala = 1.1;         // the drawing leaves a margin of a tenth
constexpr double AlturaDePixel = 1.33333333;  // kept as it stands
constexpr float PasoDelAsa = 3.5F;            // handle under the icon [sizes s]
constexpr float CorrimientoNombre = 0.5F;     // name beside the icon's position [sizes s]
constexpr float BajoUEH = 2.0F, BajoRepresa = 2.05F, BajoLago = 2.0F;  // name under it [sizes s]
constexpr float LadoIcono = 1.5F;         // icon of a UEH, of a Represa [sizes s]
constexpr float MedioLago = 1.0F;         // half the icon of a Lago [sizes s]
constexpr float BordeDeMarca = 4;         // a mark is so much wider than the lines [pixels]
constexpr float CorrimientoOrden = 1.5F;  // order left of vertex 2 [tolerances]

/// Reaches with vertices, the one being drawn included.
int CaucesDibujados(const Siro& s)
{
    return std::clamp<int>(s.Red.NroCauces, 0, model::MaxCauces);
}

Punto Vertice(const Siro& s, int cauce, int vertice)
{
    return {s.Red.XVertice(cauce, vertice), s.Red.YVertice(cauce, vertice)};
}

// --- the steps before the painting ---

void AmpliaVertices(Siro& s)
{
    int mayor = 0;
    for (int i = 1; i <= CaucesDibujados(s); ++i)
        mayor = std::max<int>(mayor, s.Red.NroVertices(i));
    for (auto* vertices : {&s.Red.XVertice, &s.Red.YVertice}) {
        if (vertices->UltimaFila() < model::MaxCauces) vertices->Dimensiona(model::MaxCauces, mayor);
        if (vertices->TopeColumna() < mayor) vertices->Redimensiona(mayor);
    }
}

/// The mouth of a reach lies on the head of the reach that it drains into.
void AjustaDesembocaduras(Siro& s)
{
    const int enteros = CaucesEnteros(s);
    for (int i = 1; i <= enteros; ++i) {
        const std::string& destino = s.Red.ColCauces.Item(i).Cauce_aa;
        for (int k = 1; k <= enteros; ++k) {
            if (!model::DrenaA(destino, s.Red.ColCauces.Item(k).NombreCauce)) continue;
            const int ultimo = s.Red.NroVertices(k);
            if (ultimo >= 1 && s.Red.NroVertices(i) >= 1) {
                s.Red.XVertice(i, 1) = s.Red.XVertice(k, ultimo);
                s.Red.YVertice(i, 1) = s.Red.YVertice(k, ultimo);
            }
            break;
        }
    }
}

Extension Extiende(const frmUEHs& f, const Siro& s)
{
    Extension e;
    // An image without reaches is the drawing: it is what will be traced.
    if (f.ImagenVisible && s.Red.NroCauces == 0) {
        e.Abarca({1, 1});
        e.Abarca({static_cast<float>(f.imagen.ancho), static_cast<float>(f.imagen.alto)});
    }
    for (int i = 1; i <= CaucesDibujados(s); ++i) {
        const float* x = s.Red.XVertice.Fila(i);
        const float* y = s.Red.YVertice.Fila(i);
        for (int j = 1; j <= s.Red.NroVertices(i); ++j)
            e.Abarca({x[j], y[j]});
    }
    PorClase([&](const auto& clase) {
        for (const auto& c : s.Red.*clase.coleccion)
            e.Abarca(Icono(clase, c));
    });
    return e;
}

void AjustaEscala(frmUEHs& f, const Siro& s)
{
    const Extension& e = f.extension;
    if (f.reescala && e.HayAlgo()) {
        const double ancho = double{1} * e.XMax - e.XMin;
        const double alto = double{1} * e.YMax - e.YMin;
        const double escala = std::max(ancho, alto) * HolguraEscala / f.EscalaBase * 100;
        f.sldEscala = static_cast<int>(std::clamp<double>(std::trunc(escala), EscalaMinima, EscalaMaxima));
    }
    if (s.Red.NroCauces == 0) f.sldEscala = 100;
    f.reescala = false;
}

void AjustaOrigen(frmUEHs& f)
{
    const Extension& e = f.extension;
    const double ancho = AnchoLogico(f);
    if (f.movidoHor != 0 || f.movidoVer != 0) {
        f.origen.X = static_cast<float>(f.origen.X + ancho * f.movidoHor / 100);
        f.origen.Y = static_cast<float>(f.origen.Y + ancho * f.movidoVer / 100);
    } else if (f.recentra && e.HayAlgo()) {
        f.origen.X = static_cast<float>(e.XMin - (ancho - (double{1} * e.XMax - e.XMin)) / 2);
        f.origen.Y = static_cast<float>(e.YMin - (ancho - (double{1} * e.YMax - e.YMin)) / 2);
        f.ScrEscalaHor = f.ScrEscalaVer = 0;
    }
    f.recentra = false;
    f.movidoHor = f.movidoVer = 0;
}

// --- the painting ---

void PintaImagen(frmUEHs& f, const Siro& s)
{
    if (!f.ImagenVisible) return;
    double ancho = f.imagen.ancho;
    double alto = AlturaDePixel * f.imagen.alto;
    if (s.Configuracion.EscalaImagen != 0) {
        ancho *= s.Configuracion.EscalaImagen / 100;
        alto *= s.Configuracion.EscalaImagen / 100;
    }
    f.dibujo.Imagen({s.Configuracion.ImagenX0, s.Configuracion.ImagenY0}, static_cast<float>(ancho),
                    static_cast<float>(alto));
}

void PintaCauces(frmUEHs& f, const Siro& s)
{
    for (int i = 1; i <= CaucesDibujados(s); ++i) {
        const int vertices = s.Red.NroVertices(i);
        if (vertices < 1) continue;
        f.dibujo.Polilinea(Papel::Cauce, f.AnchoLinea);
        const float* x = s.Red.XVertice.Fila(i);
        const float* y = s.Red.YVertice.Fila(i);
        for (int j = 1; j <= vertices; ++j)
            f.dibujo.Agrega({x[j], y[j]});
    }
}

/// A component with an icon, as the drawing needs it.
struct ConIcono {
    Clase clase;
    Papel enlace;
    Punto en, drena;
    const std::string &nombre, &destino;
    bool seleccionado;
    float bajoElIcono;  ///< name under the position [sizes s]
};

Punto Centro(Clase clase, Punto en, float s)
{
    const float medio = clase == Clase::Lago ? 0 : LadoIcono / 2 * s;
    return {en.X + medio, en.Y + medio};
}

/// Where the line of a component ends: at the icon of the Represa or Lago that it drains into, otherwise at
/// its drain point.
Punto FinDelEnlace(const frmUEHs& f, const Siro& s, const ConIcono& c)
{
    for (const auto& r : s.Red.ColRepresas)
        if (model::DrenaA(c.destino, r.NombreRepresa))
            return Centro(Clase::Represa, {r.IconoRepresaX, r.IconoRepresaY}, f.TamIcono);
    for (const auto& l : s.Red.ColLagos)
        if (model::DrenaA(c.destino, l.NombreLAGO)) return {l.IconoLAGOx, l.IconoLAGOy};
    return c.drena;
}

float LadoDeMarca(const frmUEHs& f)
{
    return BordeDeMarca + static_cast<float>(f.AnchoLinea);
}

void PintaComponente(frmUEHs& f, const Siro& s, const ConIcono& c)
{
    const float t = f.TamIcono;
    // What drains nowhere joins the network at no point; (0, 0) says so.
    const bool suelto = (c.destino.empty() || c.destino == "0") && c.drena == Punto{};
    if (!suelto) f.dibujo.Linea(c.enlace, 1, Centro(c.clase, c.en, t), FinDelEnlace(f, s, c));
    if (c.clase == Clase::Lago) {
        f.dibujo.Icono(c.clase, {c.en.X - MedioLago * t, c.en.Y - MedioLago * t}, 2 * MedioLago * t,
                       c.seleccionado);
    } else {
        f.dibujo.Icono(c.clase, c.en, LadoIcono * t, c.seleccionado);
    }
    f.dibujo.Texto(Papel::Nombre, {c.en.X + CorrimientoNombre * t, c.en.Y + c.bajoElIcono * t}, c.nombre);
    if (c.seleccionado) f.dibujo.Cuadrado(Papel::Asa, {c.en.X, c.en.Y + PasoDelAsa * t}, LadoDeMarca(f));
}

/// What the components of one kind have in common on the paper.
struct Aspecto {
    Clase clase;
    Papel enlace;
    float bajoElIcono;  ///< of the name, in sizes of the icon
};

template <typename T, int Limite>
void PintaClase(frmUEHs& f, const Siro& s, const ClaseConIcono<T, Limite>& filas, const Aspecto& aspecto)
{
    int n = 0;
    for (const T& c : s.Red.*filas.coleccion)
        PintaComponente(f, s,
                        {.clase = aspecto.clase,
                         .enlace = aspecto.enlace,
                         .en = Icono(filas, c),
                         .drena = {c.XCauce, c.YCauce},
                         .nombre = c.*filas.nombre,
                         .destino = c.Cauce_aa,
                         .seleccionado = ++n == s.Seleccion.*filas.elegido,
                         .bajoElIcono = aspecto.bajoElIcono});
}

void PintaComponentes(frmUEHs& f, const Siro& s)
{
    PintaClase(f, s, ClaseUEH, {Clase::UEH, Papel::EnlaceUEH, BajoUEH});
    PintaClase(f, s, ClaseRepresa, {Clase::Represa, Papel::EnlaceRepresa, BajoRepresa});
    PintaClase(f, s, ClaseLago, {Clase::Lago, Papel::EnlaceLago, BajoLago});
}

void MarcaCauceElegido(frmUEHs& f, const Siro& s)
{
    if (s.Seleccion.CauceSel < 1 || s.Seleccion.CauceSel > CaucesDibujados(s)) return;
    const float lado = LadoDeMarca(f);
    for (int j = 1; j <= s.Red.NroVertices(s.Seleccion.CauceSel); ++j)
        f.dibujo.Cuadrado(j == s.Seleccion.VerticeSel ? Papel::VerticeTomado : Papel::MarcaVertice,
                          Vertice(s, s.Seleccion.CauceSel, j), lado);
}

void EscribeOrdenes(frmUEHs& f, const Siro& s)
{
    if (!f.OrdenVisible) return;
    for (int i = 1; i <= CaucesEnteros(s); ++i) {
        if (s.Red.NroVertices(i) < 2) continue;
        const Punto p = Vertice(s, i, 2);
        const float corrido = CorrimientoOrden * static_cast<float>(f.ToleranciaVertice);
        f.dibujo.Texto(Papel::Orden, {p.X - corrido, p.Y},
                       model::NumeroATexto(std::int32_t{s.Red.ColCauces.Item(i).OrdenCauce}));
    }
}

void PintaMedicion(frmUEHs& f)
{
    if (f.NroPuntosMedida < 1) return;
    f.dibujo.Polilinea(Papel::Medida,
                       static_cast<std::int16_t>(std::trunc(f.AnchoLinea - f.AnchoLinea / 2.0)));
    for (std::size_t i = 1; i <= static_cast<std::size_t>(f.NroPuntosMedida); ++i)
        f.dibujo.Agrega({f.XMedida[i], f.YMedida[i]});
}

void PintaBanda(frmUEHs& f)
{
    if (f.banda.empty()) return;
    f.dibujo.Polilinea(Papel::Banda, 1);
    for (const Punto p : f.banda)
        f.dibujo.Agrega(p);
}

}  // namespace

void Extension::Abarca(Punto p)
{
    XMax = std::max(XMax, p.X);
    XMin = std::min(XMin, p.X);
    YMax = std::max(YMax, p.Y);
    YMin = std::min(YMin, p.Y);
}

int CaucesEnteros(const Siro& s)
{
    return std::min(CaucesDibujados(s), s.Red.ColCauces.Cuenta());
}

void Redibuja(frmUEHs& f, Siro& s)
{
    // A save or a fresh read has taken away the reach that was being drawn.
    if (f.ClicsCauce > 0 && s.Red.NroCauces != s.Red.ColCauces.Cuenta() + 1) f.ClicsCauce = 0;
    AmpliaVertices(s);
    AjustaDesembocaduras(s);
    f.dibujo.Vacia();
    f.extension = Extiende(f, s);
    AjustaEscala(f, s);
    AjustaOrigen(f);

    PintaImagen(f, s);
    PintaCauces(f, s);
    PintaComponentes(f, s);
    RotulaCauces(f, s);
    MarcaCauceElegido(f, s);
    EscribeOrdenes(f, s);
    PintaMedicion(f);
    PintaBanda(f);
}

}  // namespace editor
