// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/frmUEHs.h"
#include "model/Numeros.h"

// Mouse and keys of the canvas.
namespace editor {

using model::Siro;

namespace {

void ClicIzquierdo(frmUEHs& f, Siro& s, Punto p)
{
    if (Coloca(f, s, p)) return;
    switch (Modo(f)) {
    case Boton::Cauce:
        ClicCauce(f, s, p);
        break;
    case Boton::LongArea:
        AgregaPuntoMedida(f.medicion, p);
        Redibuja(f, s);
        break;
    default:
        f.gesto.izquierdoAbajo = true;
        Selecciona(f, s, p);
    }
}

void Suelta(frmUEHs& f, Siro& s, Punto p)
{
    TerminaArrastre(f, s, p);
    const bool banda = !f.gesto.banda.empty();
    f.gesto.Suelta();
    if (banda) Redibuja(f, s);
}

std::string Coordenada(float x)
{
    return model::NumeroATexto(model::Redondea(x, 1));
}

/// The point where Enter places a component: half the span, not the centre of the drawing; where nothing is
/// drawn, the middle of what is seen.
Punto PuntoDeEnter(const frmUEHs& f)
{
    const Vista& v = f.vista;
    const Extension& e = v.extension;
    if (!e.HayAlgo()) return DePixel(v, v.lienzo.ancho / 2.0, v.lienzo.alto / 2.0);
    return {model::Simple((double{1} * e.XMax - e.XMin) / 2),
            model::Simple((double{1} * e.YMax - e.YMin) / 2)};
}

void TerminaCauceSiHay(frmUEHs& f, Siro& s)
{
    if (f.trazo.ClicsCauce > 1) TerminaCauce(f, s);
}

void Entra(frmUEHs& f, Siro& s)
{
    constexpr std::int16_t PuntosQueEnterNoMide = 2;
    switch (Modo(f)) {
    case Boton::LongArea:
        if (f.medicion.NroPuntosMedida <= PuntosQueEnterNoMide) break;
        CalculaLongArea(f.medicion, s);
        Redibuja(f, s);
        break;
    case Boton::Cauce:
        TerminaCauceSiHay(f, s);
        break;
    case Boton::Selecciona:
        break;
    default:
        Coloca(f, s, PuntoDeEnter(f));
    }
}

/// Double click with nothing selected: ends what the mode is doing, and goes back to selecting.
void TerminaModo(frmUEHs& f, Siro& s)
{
    if (Modo(f) == Boton::LongArea) CalculaLongArea(f.medicion, s);
    if (Modo(f) == Boton::Cauce) TerminaCauceSiHay(f, s);
    PonModo(f, Boton::Selecciona);
    f.vista.recentra = true;
    Redibuja(f, s);
}

/// The menu comes for what it is opened on; the two ends of a link, named before, stay selected.
void EligeParaElMenu(frmUEHs& f, Siro& s, Punto p)
{
    if (Modo(f) != Boton::Selecciona || CuantosElegidos(s.Seleccion) > 0) return;
    Orden(f, s, [&] {
        Selecciona(f, s, p);
        f.gesto.arrastra = Arrastra::Nada;
    });
}

/// Whether the cross stands on the last point of the reach that is being drawn, or of what is measured.
bool CruzEnElUltimo(const frmUEHs& f, const Siro& s)
{
    if (Modo(f) == Boton::Cauce && f.trazo.ClicsCauce > 0)
        return *f.gesto.cruz == UltimoVertice(s.Red, s.Red.NroCauces());
    const auto n = static_cast<std::size_t>(f.medicion.NroPuntosMedida);
    return Modo(f) == Boton::LongArea && n > 0 && *f.gesto.cruz == f.medicion.En(n);
}

/// Enter or the blank with a cross on the canvas.
void ClicaCruz(frmUEHs& f, Siro& s)
{
    const Punto p = *f.gesto.cruz;
    if (CruzEnElUltimo(f, s)) {
        if (Modo(f) != Boton::Cauce || f.trazo.ClicsCauce > 1) picDibujo_DblClick(f, s);
        return;
    }
    picDibujo_MouseDown(f, s, BotonRaton::Izquierdo, p);
    picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, p);
    f.gesto.cruz = p;
}

void MuestraLugar(frmUEHs& f, Punto p)
{
    f.gesto.ultimo = p;
    f.lblX = Coordenada(p.X);
    f.lblY = Coordenada(p.Y);
}

template <typename T>
void PideSiHay(frmUEHs& f, const Siro& s, Pedido forma)
{
    if (model::Todos<T>(s.Red).Cuenta() > 0) f.pedidos.push_back(forma);
}

}  // namespace

void picDibujo_MouseDown(frmUEHs& f, Siro& s, BotonRaton boton, Punto p)
{
    f.gesto.cruz.reset();  // the hand is on the mouse
    if (boton == BotonRaton::Izquierdo) Orden(f, s, [&] { ClicIzquierdo(f, s, p); });
    f.gesto.ultimo = p;
    if (boton == BotonRaton::Derecho) {
        EligeParaElMenu(f, s, p);
        f.pedidos.push_back(Pedido::Menu);
    }
    if (boton == BotonRaton::Medio) {
        f.gesto.asidero = p;
        f.puntero = Puntero::Mano;
    }
}

void picDibujo_MouseMove(frmUEHs& f, Siro& s, Punto p, bool izquierdo)
{
    MuestraLugar(f, p);
    if (f.gesto.asidero) {
        f.vista.origen.X += f.gesto.asidero->X - p.X;
        f.vista.origen.Y += f.gesto.asidero->Y - p.Y;
        return;
    }
    if (!f.gesto.izquierdoAbajo) return;
    if (!izquierdo) {
        picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, p);
    } else {
        Evento(f, s, [&] { MueveArrastre(f, s, p); });
    }
}

void picDibujo_MouseUp(frmUEHs& f, Siro& s, BotonRaton boton, Punto p)
{
    if (boton == BotonRaton::Medio && f.gesto.asidero) {
        f.gesto.asidero.reset();
        PonModo(f, Modo(f));
    }
    if (boton == BotonRaton::Izquierdo && f.gesto.izquierdoAbajo) Evento(f, s, [&] { Suelta(f, s, p); });
}

void picDibujo_DblClick(frmUEHs& f, Siro& s)
{
    Orden(f, s, [&] {
        if (s.Seleccion.CauceSel > 0) {
            f.pedidos.push_back(Pedido::FormaCauce);
        } else if (s.Seleccion.UEHSel > 0) {
            f.pedidos.push_back(Pedido::FormaUEH);
        } else if (s.Seleccion.LagoSel > 0) {
            f.pedidos.push_back(Pedido::FormaLago);
        } else if (s.Seleccion.RepresaSel > 0) {
            f.pedidos.push_back(Pedido::FormaRepresa);
        } else {
            TerminaModo(f, s);
        }
    });
}

void picDibujo_Flecha(frmUEHs& f, Siro& s, int derecha, int abajo, bool largo)
{
    constexpr int Paso = 5, PasoLargo = 50;  // [pixels]
    if (f.gesto.izquierdoAbajo) picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, f.gesto.ultimo);
    Pixel lugar{f.vista.lienzo.ancho / 2.0, f.vista.lienzo.alto / 2.0};
    if (f.gesto.cruz) {
        const int paso = largo ? PasoLargo : Paso;
        lugar = APixel(f.vista, *f.gesto.cruz);
        lugar.x = std::round(lugar.x) + derecha * paso;
        lugar.y = std::round(lugar.y) + abajo * paso;
    }
    f.gesto.cruz = DePixel(f.vista, lugar.x, lugar.y);
    const Punto dentro = DePixel(f.vista, std::clamp<double>(lugar.x, 0, f.vista.lienzo.ancho),
                                 std::clamp<double>(lugar.y, 0, f.vista.lienzo.alto));
    f.vista.origen.X += f.gesto.cruz->X - dentro.X;
    f.vista.origen.Y += f.gesto.cruz->Y - dentro.Y;
    MuestraLugar(f, *f.gesto.cruz);
    Redibuja(f, s);
}

void picDibujo_KeyDown(frmUEHs& f, Siro& s, Tecla tecla)
{
    switch (tecla) {
    case Tecla::F2:
        f.pedidos.push_back(Pedido::Menu);
        break;
    case Tecla::F3:
        PideSiHay<model::UEH>(f, s, Pedido::FormaUEH);
        break;
    case Tecla::F4:
        PideSiHay<model::Cauce>(f, s, Pedido::FormaCauce);
        break;
    case Tecla::F5:
        PideSiHay<model::Represa>(f, s, Pedido::FormaRepresa);
        break;
    case Tecla::F6:
        PideSiHay<model::Lago>(f, s, Pedido::FormaLago);
        break;
    case Tecla::Enter:
        if (f.gesto.cruz)
            ClicaCruz(f, s);
        else
            Orden(f, s, [&] { Entra(f, s); });
        break;
    case Tecla::Espacio:
        if (f.gesto.cruz) ClicaCruz(f, s);
        break;
    default:
        break;
    }
}

void picDibujo_Rueda(frmUEHs& f, Siro& s, double vueltas, Punto p)
{
    if (s.Red.NroCauces() == 0 || vueltas == 0) return;  // a drawing without reaches stays at 100 %
    Gira(f.vista, vueltas, p);
    Redibuja(f, s);
}

}  // namespace editor
