// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "editor/Cauces.h"
#include "editor/Edicion.h"
#include "editor/frmUEHs.h"
#include "editor/modCalculoLongArea.h"
#include "model/Numeros.h"

// Mouse and keys of the canvas.
namespace editor {

using model::Siro;

namespace {

void ClicIzquierdo(frmUEHs& f, Siro& s, Punto p)
{
    switch (Modo(f)) {
    case Boton::UEH:
        ColocaUEH(f, s, p);
        break;
    case Boton::Represa:
        ColocaRepresa(f, s, p);
        break;
    case Boton::LAGO:
        ColocaLago(f, s, p);
        break;
    case Boton::Cauce:
        ClicCauce(f, s, p);
        break;
    case Boton::LongArea:
        AgregaPuntoMedida(f, p);
        Redibuja(f, s);
        break;
    default:
        f.izquierdoAbajo = true;
        f.presion = p;
        Selecciona(f, s, p);
    }
}

void Suelta(frmUEHs& f, Siro& s, Punto p)
{
    TerminaArrastre(f, s, p);
    f.izquierdoAbajo = f.arrastrado = false;
    f.arrastra = Arrastra::Nada;
    if (f.banda.empty()) return;
    f.banda.clear();
    Redibuja(f, s);
}

std::string Coordenada(float x)
{
    return model::NumeroATexto(model::Redondea(x, 1));
}

/// The point where Enter places a component: half the span, not the centre of the drawing; where nothing is
/// drawn, the middle of what is seen.
Punto PuntoDeEnter(const frmUEHs& f)
{
    const Extension& e = f.extension;
    if (!e.HayAlgo()) return DePixel(f, f.lienzo.ancho / 2.0, f.lienzo.alto / 2.0);
    return {model::Simple((double{1} * e.XMax - e.XMin) / 2),
            model::Simple((double{1} * e.YMax - e.YMin) / 2)};
}

void TerminaCauceSiHay(frmUEHs& f, Siro& s)
{
    if (f.ClicsCauce > 1) TerminaCauce(f, s);
}

void Entra(frmUEHs& f, Siro& s)
{
    constexpr std::int16_t PuntosQueEnterNoMide = 2;
    switch (Modo(f)) {
    case Boton::LongArea:
        if (f.NroPuntosMedida <= PuntosQueEnterNoMide) break;
        CalculaLongArea(f, s);
        Redibuja(f, s);
        break;
    case Boton::Cauce:
        TerminaCauceSiHay(f, s);
        break;
    case Boton::UEH:
        ColocaUEH(f, s, PuntoDeEnter(f));
        break;
    case Boton::Represa:
        ColocaRepresa(f, s, PuntoDeEnter(f));
        break;
    case Boton::LAGO:
        ColocaLago(f, s, PuntoDeEnter(f));
        break;
    default:
        break;
    }
}

/// Double click with nothing selected: ends what the mode is doing, and goes back to selecting.
void TerminaModo(frmUEHs& f, Siro& s)
{
    if (Modo(f) == Boton::LongArea) CalculaLongArea(f, s);
    if (Modo(f) == Boton::Cauce) TerminaCauceSiHay(f, s);
    PonModo(f, Boton::Selecciona);
    f.recentra = true;
    Redibuja(f, s);
}

bool NadaElegido(const Siro& s)
{
    return s.Seleccion.CauceSel == 0 && s.Seleccion.UEHSel == 0 && s.Seleccion.RepresaSel == 0 &&
           s.Seleccion.LagoSel == 0;
}

/// The menu comes for what it is opened on; the two ends of a link, named before, stay selected.
void EligeParaElMenu(frmUEHs& f, Siro& s, Punto p)
{
    if (Modo(f) != Boton::Selecciona || !NadaElegido(s)) return;
    Orden(f, s, [&] {
        Selecciona(f, s, p);
        f.arrastra = Arrastra::Nada;
    });
}

/// Whether the cross stands on the last point of the reach that is being drawn, or of what is measured.
bool CruzEnElUltimo(const frmUEHs& f, const Siro& s)
{
    if (Modo(f) == Boton::Cauce && f.ClicsCauce > 0)
        return *f.cruz == Vertice(s, s.Red.NroCauces, s.Red.NroVertices(s.Red.NroCauces));
    const auto n = static_cast<std::size_t>(f.NroPuntosMedida);
    return Modo(f) == Boton::LongArea && n > 0 && *f.cruz == Punto{f.XMedida[n], f.YMedida[n]};
}

/// Enter or the blank with a cross on the canvas.
void ClicaCruz(frmUEHs& f, Siro& s)
{
    const Punto p = *f.cruz;
    if (CruzEnElUltimo(f, s)) {
        if (Modo(f) != Boton::Cauce || f.ClicsCauce > 1) picDibujo_DblClick(f, s);
        return;
    }
    picDibujo_MouseDown(f, s, BotonRaton::Izquierdo, p);
    picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, p);
    f.cruz = p;
}

void MuestraLugar(frmUEHs& f, Punto p)
{
    f.ultimo = p;
    f.lblX = Coordenada(p.X);
    f.lblY = Coordenada(p.Y);
}

void PideSiHay(frmUEHs& f, int cuenta, Pedido forma)
{
    if (cuenta > 0) f.pedidos.push_back(forma);
}

}  // namespace

void picDibujo_MouseDown(frmUEHs& f, Siro& s, BotonRaton boton, Punto p)
{
    f.cruz.reset();  // the hand is on the mouse
    if (boton == BotonRaton::Izquierdo) Orden(f, s, [&] { ClicIzquierdo(f, s, p); });
    f.ultimo = p;
    if (boton == BotonRaton::Derecho) {
        EligeParaElMenu(f, s, p);
        f.pedidos.push_back(Pedido::Menu);
    }
    if (boton == BotonRaton::Medio) {
        f.asidero = p;
        f.puntero = Puntero::Mano;
    }
}

void picDibujo_MouseMove(frmUEHs& f, Siro& s, Punto p, bool izquierdo)
{
    MuestraLugar(f, p);
    if (f.asidero) {
        f.origen.X += f.asidero->X - p.X;
        f.origen.Y += f.asidero->Y - p.Y;
        return;
    }
    if (!f.izquierdoAbajo) return;
    if (!izquierdo) {
        picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, p);
    } else {
        Evento(f, s, [&] { MueveArrastre(f, s, p); });
    }
}

void picDibujo_MouseUp(frmUEHs& f, Siro& s, BotonRaton boton, Punto p)
{
    if (boton == BotonRaton::Medio && f.asidero) {
        f.asidero.reset();
        PonModo(f, Modo(f));
    }
    if (boton == BotonRaton::Izquierdo && f.izquierdoAbajo) Evento(f, s, [&] { Suelta(f, s, p); });
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
    if (f.izquierdoAbajo) picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, f.ultimo);
    Pixel lugar{f.lienzo.ancho / 2.0, f.lienzo.alto / 2.0};
    if (f.cruz) {
        const int paso = largo ? PasoLargo : Paso;
        lugar = APixel(f, *f.cruz);
        lugar.x = std::round(lugar.x) + derecha * paso;
        lugar.y = std::round(lugar.y) + abajo * paso;
    }
    f.cruz = DePixel(f, lugar.x, lugar.y);
    const Punto dentro = DePixel(f, std::clamp<double>(lugar.x, 0, f.lienzo.ancho),
                                 std::clamp<double>(lugar.y, 0, f.lienzo.alto));
    f.origen.X += f.cruz->X - dentro.X;
    f.origen.Y += f.cruz->Y - dentro.Y;
    MuestraLugar(f, *f.cruz);
    Redibuja(f, s);
}

void picDibujo_KeyDown(frmUEHs& f, Siro& s, Tecla tecla)
{
    switch (tecla) {
    case Tecla::F2:
        f.pedidos.push_back(Pedido::Menu);
        break;
    case Tecla::F3:
        PideSiHay(f, s.Red.ColUEHs.Cuenta(), Pedido::FormaUEH);
        break;
    case Tecla::F4:
        PideSiHay(f, s.Red.ColCauces.Cuenta(), Pedido::FormaCauce);
        break;
    case Tecla::F5:
        PideSiHay(f, s.Red.ColRepresas.Cuenta(), Pedido::FormaRepresa);
        break;
    case Tecla::F6:
        PideSiHay(f, s.Red.ColLagos.Cuenta(), Pedido::FormaLago);
        break;
    case Tecla::Enter:
        if (f.cruz)
            ClicaCruz(f, s);
        else
            Orden(f, s, [&] { Entra(f, s); });
        break;
    case Tecla::Espacio:
        if (f.cruz) ClicaCruz(f, s);
        break;
    default:
        break;
    }
}

}  // namespace editor
