// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmUEHs.h"

#include <string>

#include "editor/EnMano.h"
#include "editor/Indicacion.h"
#include "model/ArchivoConf.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::int32_t EscalaBasePorDefecto = 800;
constexpr std::int16_t AnchoAlAbrir = 4;  // [pixels]
constexpr int UnidadesPorPixel = 15;      // units of the form in a pixel

/// Marks that an event is under way, however it ends.
class EnEvento {
  public:
    explicit EnEvento(frmUEHs& unEditor) : f(unEditor), antes(unEditor.enEvento) { f.enEvento = true; }
    ~EnEvento() { f.enEvento = antes; }
    EnEvento(const EnEvento&) = delete;
    EnEvento& operator=(const EnEvento&) = delete;

  private:
    frmUEHs& f;
    bool antes;
};

std::string Estado(const Siro& s)
{
    // "Conf.vlm" without its underscore: kept as it stands.
    return "UEHs : " + s.Proyecto.NombreProyecto + "_UEHs.vlm" +
           "     Proyecto: " + s.Proyecto.NombreProyecto + "     Dir: " + s.Proyecto.DirProyectoConf +
           "   Config. : " + s.Proyecto.NombreProyecto + "Conf.vlm";
}

void EmpiezaControles(frmUEHs& f)
{
    PonModo(f, Boton::Selecciona);
    f.Pon(Boton::SUEH, false);
    Vista& v = f.vista;
    v.sldEscala = 100;
    v.ScrEscalaHor = v.ScrEscalaVer = v.movidoHor = v.movidoVer = 0;
    v.origen = {};
    v.OrdenVisible = false;
    f.fondo = {.CargaImagen = f.fondo.CargaImagen};
    f.trazo.ClicsCauce = 0;
    f.medicion = {};
    f.gesto = {.ultimo = f.gesto.ultimo};
    f.pedidos.clear();
    f.cambiada = false;
}

void MuestraIndicacion(frmUEHs& f, const Siro& s)
{
    f.lblIndicacion = Indicacion(Modo(f), f.trazo.ClicsCauce, f.medicion.NroPuntosMedida, f.dibujo, s);
}

void Empieza(frmUEHs& f, const Siro& s)
{
    EmpiezaHistoria(f.historia, s.Proyecto.NombreProyecto, s.Red, f.trazo);
}

bool Pasa(frmUEHs& f, Siro& s, decltype(PasoAtras)& paso)
{
    if (!paso(f.historia, s.Red, f.trazo)) return false;
    RedibujaSinSeleccion(f, s);
    Asienta(f, s);
    f.cambiada = true;
    return true;
}

}  // namespace

void Evento(frmUEHs& f, Siro& s, const std::function<void()>& cuerpo)
{
    // A box of an event lets others in, the activation of the window for one: they see the network half
    // changed.
    const bool dentroDeOtro = f.enEvento;
    const EnEvento marca(f);
    if (!dentroDeOtro) f.guardada = f.fallida = false;
    const bool bien = model::Sentencia(cuerpo, [&](const model::Falla& falla) {
        if (!dentroDeOtro) {
            f.gesto.Suelta();
            if (Repone(f.historia, s.Red, f.trazo)) RedibujaSinSeleccion(f, s);
        }
        model::AvisaMotor(s)(falla);
    });
    MuestraIndicacion(f, s);
    if (dentroDeOtro) return;
    if (f.abierta && !f.gesto.izquierdoAbajo && bien) {
        if (!f.historia.presente) Empieza(f, s);
        if (Anota(f.historia, s.Red, f.trazo)) f.cambiada = true;
    }
    if (f.guardada) f.cambiada = !bien || f.trazo.ClicsCauce > 0;
}

void Orden(frmUEHs& f, Siro& s, const std::function<void()>& cuerpo)
{
    if (f.gesto.izquierdoAbajo) picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, f.gesto.ultimo);
    Evento(f, s, cuerpo);
}

// --- the window ---

void Abre(frmUEHs& f, Siro& s, Tamano pantalla)
{
    Form_Resize(f, {pantalla.ancho * 4 / 5, pantalla.alto * 4 / 5});
    f.dibujo.Vacia();
    f.vista.TamIcono = model::Simple(1.2 * f.vista.AnchoLinea + 10);
    f.vista.AnchoLinea = AnchoAlAbrir;
    f.abierta = true;
    if (s.Proyecto.NombreProyecto.empty()) return;

    model::leoConf(s);
    LimpiaSeleccion(s);
    EmpiezaControles(f);
    f.vista.EscalaBase = EscalaBasePorDefecto;
    model::Sentencia(
        [&] {
            const std::int32_t base = model::Entero32(model::Val(s.Configuracion.MaxUEHsPixel));
            if (base > 0) f.vista.EscalaBase = base;
        },
        model::AvisaMotor(s));
    f.vista.recentra = f.vista.reescala = true;
    f.lblEstado = Estado(s);
    model::LeeUEHs(s);
    Redibuja(f, s);
    model::Sentencia([&] { f.vista.ToleranciaVertice = ToleranciaPresente(f.vista); }, model::AvisaMotor(s));
    Empieza(f, s);
    MuestraIndicacion(f, s);
}

void AlActivarse(frmUEHs& f, Siro& s)
{
    s.Control.AvisoDescargasVisto = false;
    f.principalVisible = false;
    if (f.historia.proyecto != s.Proyecto.NombreProyecto) {
        Empieza(f, s);
        f.lblEstado = Estado(s);
    }
    Evento(f, s, [&] { Redibuja(f, s); });
}

void AlPerderFoco(frmUEHs& f)
{
    f.principalVisible = true;
}

void Form_Resize(frmUEHs& f, Tamano ventana)
{
    constexpr int AnchoMinimo = 1700, AltoMinimo = 900, MargenAncho = 1500, MargenAlto = 700;  // [form units]
    f.ventana = ventana;
    const int ancho = ventana.ancho * UnidadesPorPixel;
    const int alto = ventana.alto * UnidadesPorPixel;
    if (ancho > AnchoMinimo && alto > AltoMinimo)
        f.vista.lienzo = {(ancho - MargenAncho) / UnidadesPorPixel, (alto - MargenAlto) / UnidadesPorPixel};
}

// --- between the halves of the rules ---

Boton Modo(const frmUEHs& f)
{
    for (const FilaBoton& fila : BotonesUEHs)
        if (fila.modo && f.Abajo(fila.boton)) return fila.boton;
    return Boton::Selecciona;
}

void PonModo(frmUEHs& f, Boton modo)
{
    for (const FilaBoton& fila : BotonesUEHs)
        if (fila.modo) f.Pon(fila.boton, fila.boton == modo);
    if (modo != Boton::LongArea) f.medicion.NroPuntosMedida = 0;
    f.puntero = modo == Boton::Selecciona ? Puntero::Flecha : Puntero::Cruz;
}

void RedibujaSinSeleccion(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    Redibuja(f, s);
}

void CierraVentana(frmUEHs& f, Siro& s)
{
    DescartaTrazo(f, s);
    LimpiaSeleccion(s);
    f.dibujo.Vacia();
    f.historia = {};
    f.cambiada = f.abierta = false;
    f.principalVisible = true;
}

void DescartaTrazo(frmUEHs& f, Siro& s)
{
    if (f.trazo.ClicsCauce == 0) return;
    f.trazo.ClicsCauce = 0;
    s.Red.ColCauces.Recuenta();
}

void Relee(frmUEHs& f, Siro& s)
{
    DescartaTrazo(f, s);
    LimpiaSeleccion(s);
    model::LeeUEHs(s);
    f.guardada = true;  // memory and files agree again
    Redibuja(f, s);
}

void Asienta(frmUEHs& f, const Siro& s)
{
    Asienta(f.historia, s.Red, f.trazo);
}

bool Deshace(frmUEHs& f, Siro& s)
{
    return Pasa(f, s, PasoAtras);
}

bool Rehace(frmUEHs& f, Siro& s)
{
    return Pasa(f, s, PasoAdelante);
}

}  // namespace editor
