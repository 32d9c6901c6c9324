// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmUEHs.h"

#include <cmath>
#include <string>

#include "editor/Edicion.h"
#include "editor/Fondo.h"
#include "editor/Indicacion.h"
#include "editor/Resguardo.h"
#include "engine/ComponenteFinal.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::int32_t EscalaBasePorDefecto = 800;
constexpr std::int16_t AnchoAlAbrir = 4, AnchoMayor = 16, AnchoMenor = 2;  // [pixels]
constexpr int UnidadesPorPixel = 15;                                       // units of the form in a pixel
constexpr double ParteTolerancia = 0.02;

constexpr std::string_view TituloResguardo = "Resguardo de datos de componentes UEHs";
constexpr std::string_view PreguntaResguardo =
    "¿Desea guardar los cambios realizados en los componentes de UEHs ? ";

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

void SueltaTodo(frmUEHs& f)
{
    f.izquierdoAbajo = f.arrastrado = false;
    f.arrastra = Arrastra::Nada;
    f.banda.clear();
}

std::string Estado(const Siro& s)
{
    // "Conf.vlm" without its underscore: kept as it stands.
    return "UEHs : " + s.Proyecto.NombreProyecto + "_UEHs.vlm" +
           "     Proyecto: " + s.Proyecto.NombreProyecto + "     Dir: " + s.Proyecto.DirProyectoConf +
           "   Config. : " + s.Proyecto.NombreProyecto + "Conf.vlm";
}

/// Returns whether the network was saved; if not, memory and undo are as they were.
bool Guarda(frmUEHs& f, Siro& s)
{
    bool bien = false;
    ConservaTrazo(f, s, [&] { bien = model::mnu_btn_toolbarGuardaUEHs(s); });
    if (bien) f.guardada = true;
    Redibuja(f, s);
    return bien;
}

/// Esc with measured points in hand drops them and does nothing else.
bool SueltaMedicion(frmUEHs& f, Siro& s)
{
    if (f.NroPuntosMedida == 0) return false;
    f.NroPuntosMedida = 0;
    Redibuja(f, s);
    return true;
}

/// Esc and btn_toolbarSalir.
void Cierra(frmUEHs& f, Siro& s)
{
    engine::ComponenteFinal(s);
    if (!s.Control.ContinuarSinCorregir && !s.Control.RedOk) return;
    if (model::Consulta(s, std::string(PreguntaResguardo), TituloResguardo) && !Guarda(f, s)) return;
    CierraVentana(f, s);
}

void EmpiezaControles(frmUEHs& f)
{
    PonModo(f, Boton::Selecciona);
    f.Pon(Boton::SUEH, false);
    f.sldEscala = 100;
    f.ScrEscalaHor = f.ScrEscalaVer = f.movidoHor = f.movidoVer = 0;
    f.origen = {};
    f.cmdImagenUEHs = "Imágen";
    f.ImagenVisible = f.OrdenVisible = false;
    f.imagen = {};
    f.rutaImagen.clear();
    f.ClicsCauce = f.NroPuntosMedida = 0;
    f.lblLongArea.clear();
    f.pedidos.clear();
    f.asidero.reset();
    f.cruz.reset();
    f.cambiada = false;
    SueltaTodo(f);
}

void AplicaBoton(frmUEHs& f, Siro& s, Boton boton)
{
    switch (boton) {
    case Boton::BorraTodo:
        BorraTodo(f, s);
        f.Pon(Boton::SUEH, false);
        return;
    case Boton::SUEH:
        f.Pon(boton, true);
        return;
    case Boton::GuardaUEHs:
        f.Pon(boton, true);
        f.puntero = Puntero::Espera;
        if (Guarda(f, s)) Asienta(f, s);
        f.Pon(boton, false);
        PonModo(f, Modo(f));
        return;
    case Boton::Salir:
        Cierra(f, s);
        return;
    default:
        PonModo(f, boton);
    }
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
            SueltaTodo(f);
            Repone(f, s);
        }
        model::AvisaMotor(s)(falla);
    });
    f.lblIndicacion = Indicacion(f, s);
    if (dentroDeOtro) return;
    if (f.abierta && !f.izquierdoAbajo && bien && Anota(f, s)) f.cambiada = true;
    if (f.guardada) f.cambiada = !bien || f.ClicsCauce > 0;
}

void Orden(frmUEHs& f, Siro& s, const std::function<void()>& cuerpo)
{
    if (f.izquierdoAbajo) picDibujo_MouseUp(f, s, BotonRaton::Izquierdo, f.ultimo);
    Evento(f, s, cuerpo);
}

// --- the window ---

void Abre(frmUEHs& f, Siro& s, Tamano pantalla)
{
    Form_Resize(f, {pantalla.ancho * 4 / 5, pantalla.alto * 4 / 5});
    f.dibujo.Vacia();
    f.TamIcono = model::Simple(1.2 * f.AnchoLinea + 10);
    f.AnchoLinea = AnchoAlAbrir;
    f.abierta = true;
    if (s.Proyecto.NombreProyecto.empty()) return;

    model::leoConf(s);
    LimpiaSeleccion(s);
    EmpiezaControles(f);
    f.EscalaBase = EscalaBasePorDefecto;
    model::Sentencia(
        [&] {
            const std::int32_t base = model::Entero32(model::Val(s.Configuracion.MaxUEHsPixel));
            if (base > 0) f.EscalaBase = base;
        },
        model::AvisaMotor(s));
    f.recentra = f.reescala = true;
    f.lblEstado = Estado(s);
    model::LeeUEHs(s);
    Redibuja(f, s);
    model::Sentencia([&] { f.ToleranciaVertice = ToleranciaPresente(f); }, model::AvisaMotor(s));
    EmpiezaHistoria(f, s);
    f.lblIndicacion = Indicacion(f, s);
}

void AlActivarse(frmUEHs& f, Siro& s)
{
    s.Control.AvisoDescargasVisto = false;
    f.principalVisible = false;
    if (f.historia.proyecto != s.Proyecto.NombreProyecto) {
        EmpiezaHistoria(f, s);
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
        f.lienzo = {(ancho - MargenAncho) / UnidadesPorPixel, (alto - MargenAlto) / UnidadesPorPixel};
}

bool RedVacia(const Siro& s)
{
    return s.Red.ColUEHs.Cuenta() + s.Red.ColCauces.Cuenta() + s.Red.ColLagos.Cuenta() +
               s.Red.ColRepresas.Cuenta() ==
           0;
}

bool Form_QueryUnload(frmUEHs& f, Siro& s)
{
    if (!f.abierta) return true;
    Orden(f, s, [&] {
        if (RedVacia(s)) {
            CierraVentana(f, s);
        } else {
            Cierra(f, s);
        }
    });
    return !f.abierta;
}

// --- buttons ---

void ToolbarUEHs_ButtonClick(frmUEHs& f, Siro& s, Boton boton)
{
    Orden(f, s, [&] {
        LimpiaSeleccion(s);
        AplicaBoton(f, s, boton);
        if (f.abierta) Redibuja(f, s);
    });
}

void cmdImagenUEHs_Click(frmUEHs& f, Siro& s)
{
    if (!Resguarda(f, s, model::Riesgo::MueveProyecto)) return;  // it reads the network itself
    Orden(f, s, [&] { AlternaImagen(f, s); });
}

void cmdAnchoLineaDib_Click(frmUEHs& f, Siro& s)
{
    f.AnchoLinea = static_cast<std::int16_t>(std::trunc(1.5 * f.AnchoLinea));
    if (f.AnchoLinea > AnchoMayor) f.AnchoLinea = AnchoMenor;
    f.TamIcono = model::Simple(1.5 * f.AnchoLinea + 4);
    Redibuja(f, s);
}

void cmdOrdenCauce_Click(frmUEHs& f, Siro& s)
{
    Orden(f, s, [&] {
        f.OrdenVisible = !f.OrdenVisible;
        model::CalculaOrdenCauces(s);
        Redibuja(f, s);
        Asienta(f, s);  // orders are worked out, not edited
    });
}

void NombresDeCauces_Click(frmUEHs& f, Siro& s)
{
    f.NombresVisibles = !f.NombresVisibles;
    Redibuja(f, s);
}

// --- keys of the form ---

void Form_KeyDown(frmUEHs& f, Siro& s, Tecla tecla)
{
    Orden(f, s, [&] {
        switch (tecla) {
        case Tecla::Suprimir:
            f.Pon(Boton::SUEH, false);
            BorraSeleccionados(f, s);
            break;
        case Tecla::Insertar:
            if (s.Seleccion.CauceSel > 0) f.pedidos.push_back(Pedido::FormaCauce);
            break;
        case Tecla::Esc:
            if (!SueltaMedicion(f, s)) Cierra(f, s);
            break;
        case Tecla::Deshacer:
            Deshace(f, s);
            break;
        case Tecla::Rehacer:
            Rehace(f, s);
            break;
        default:
            break;
        }
    });
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
    if (modo != Boton::LongArea) f.NroPuntosMedida = 0;
    f.puntero = modo == Boton::Selecciona ? Puntero::Flecha : Puntero::Cruz;
}

std::int16_t ToleranciaPresente(const frmUEHs& f)
{
    return model::Entero16(std::trunc(ParteTolerancia * AnchoLogico(f)));
}

void LimpiaSeleccion(Siro& s)
{
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = s.Seleccion.VerticeSel = 0;
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
    if (f.ClicsCauce == 0) return;
    f.ClicsCauce = 0;
    s.Red.NroCauces = model::Entero16(s.Red.ColCauces.Cuenta());
}

}  // namespace editor
