// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PasosUEH.h"

#include "engine/FormulasUEH.h"
#include "engine/PasosRapidos.h"
#include "engine/modDistriPp.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Cociente;
using model::Producto16;
using model::Simple;
using model::Siro;
using model::Suma16;

namespace {

/// Values of one step in one UEH; they keep what they held where a statement is at fault.
struct Paso : RenglonPaso {
    float N = 0;         ///< net rain [mm]
    float E = 0;         ///< excess [mm]
    std::int16_t T = 0;  ///< travel time on the slope [min]
    std::int16_t j = 0,
                 tj = 0;  ///< point of the trapezoid from 1, and its time [min]
    std::int16_t p = 0;   ///< output step of a point of the trapezoid
    float A = 0, B = 0;   ///< rising and falling curve [m3/s]
};

bool HayLluvia(Corrida& c, std::int16_t k)
{
    return c.Vale(
        [&] { return Minutos(k, c.s.Pasos.PasoPp) < Suma16(c.s.Tormenta.DurTormenta, c.s.Pasos.PasoPp); });
}

void LluviaPorUEH(Corrida& c, std::int16_t k)
{
    Siro& s = c.s;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
        c.Intenta([&] { s.Tormenta.PpTormenta = s.Tormenta.PpUEH(i); });
        c.Intenta([&] { s.Resultados.PpUEHPaso(i, k) = Simple(PpDelPaso(s, k)); });
        c.Intenta([&] {
            c.SumaPp = Simple(
                c.SumaPp + Cociente(double{s.Red.UEHs(i).Area} * s.Resultados.PpUEHPaso(i, k), c.AreaTotal));
        });
    }
}

void LluviaPareja(Corrida& c, std::int16_t k)
{
    Siro& s = c.s;
    c.Intenta([&] { s.Resultados.PpUEHPaso(1, k) = Simple(PpDelPaso(s, k)); });
    c.Intenta([&] { c.SumaPp = Simple(double{c.SumaPp} + s.Resultados.PpUEHPaso(1, k)); });
    for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
        c.Intenta([&] { s.Resultados.PpUEHPaso(i, k) = s.Resultados.PpUEHPaso(1, k); });
        c.Intenta([&] {
            s.Tormenta.PpUEH(i) = Simple(double{s.Tormenta.PpUEH(i)} + s.Resultados.PpUEHPaso(i, k));
        });
    }
}

void Infiltra(Corrida& c, int i, Paso& v)
{
    Siro& s = c.s;
    if (v.N == 0) {
        v.I = 0;
        return;
    }
    c.Intenta(
        [&] { v.I = Infiltracion(s.Red.UEHs(i), s.Pasos.PasoPp).Lamina(s.Resultados.PasosInfiltra(i)); });
    c.Intenta([&] { s.Resultados.PasosInfiltra(i) = Simple(double{s.Resultados.PasosInfiltra(i)} + 1); });
}

void PuntoDelTrapecio(Corrida& c, std::int16_t k, int i, Paso& v)
{
    Siro& s = c.s;
    c.Intenta([&] { v.A = v.T <= v.tj ? v.CaudalPp : Simple(SubidaDeLadera(v.CaudalPp, v.T)(v.tj)); });
    c.Intenta([&] {
        const int desdeElFin = v.tj - s.Pasos.PasoPp;
        v.B = desdeElFin <= 0 ? 0 : Simple(SubidaDeLadera(v.CaudalPp, v.T)(model::Entero16(desdeElFin)));
    });
    c.Intenta([&] { v.p = model::Entero16(Suma16(Producto16(k, c.RelacionPasos), v.j) - c.RelacionPasos); });
    if (c.Vale([&] { return v.p > Suma16(s.Resultados.NroPasosQ, 1); })) Alarga(c, v.p);
    c.Intenta([&] { s.Resultados.QSale(i, v.p) = Simple(double{s.Resultados.QSale(i, v.p)} + v.A - v.B); });
}

void Traslada(Corrida& c, std::int16_t k, int i, Paso& v)
{
    Siro& s = c.s;
    c.Intenta([&] {
        const model::UEH& u = s.Red.UEHs(i);
        v.T = model::Entero16(Cociente(u.LongitudMax, u.VelMedia) / 60);
    });
    v.j = 1;
    v.tj = s.Pasos.PasoQ;
    while (c.Vale([&] { return v.tj < Suma16(v.T, s.Pasos.PasoPp); })) {
        PuntoDelTrapecio(c, k, i, v);
        // A clock that stands still would never end the loop.
        if (!c.Intenta([&] { v.j = Suma16(v.j, 1); })) return;
        if (!c.Intenta([&] { v.tj = Minutos(v.j, s.Pasos.PasoQ); })) return;
    }
}

void PasoDeUEH(Corrida& c, std::int16_t k, int i, Paso& v)
{
    Siro& s = c.s;
    if (HayLluvia(c, k))
        c.Intenta([&] { v.Pp = s.Resultados.PpUEHPaso(i, k); });
    else
        v.Pp = 0;
    c.Intenta([&] {
        c.PpMediaPaso(k) =
            Simple(c.PpMediaPaso(k) + Cociente(double{v.Pp} * s.Red.UEHs(i).Area, c.AreaTotal));
    });
    c.Intenta([&] { Retiene(v.Pp, c.RetencionRestante(i), v.R); });
    c.Intenta([&] { v.N = Simple(double{v.Pp} - v.R); });
    Infiltra(c, i, v);
    if (v.N > v.I)
        c.Intenta([&] { v.E = Simple(double{v.N} - v.I); });
    else
        v.E = 0;
    c.Intenta([&] { v.CaudalPp = Simple(CaudalDelExceso(v.E, s.Pasos.PasoPp, s.Red.UEHs(i).Area)); });
    EscribePaso(c, k, i, v);
    if (v.CaudalPp != 0) Traslada(c, k, i, v);
}

/// The model steps with every check.
void PasosUnoPorUno(Corrida& c)
{
    Paso valores;
    for (std::int16_t k = 1; k < c.NroPasosPp; ++k) {
        LluviaDelPaso(c, k);
        for (int i = 1; i <= c.s.Red.NroUEHs(); ++i)
            PasoDeUEH(c, k, i, valores);
    }
}

}  // namespace

void EscribePaso(Corrida& c, std::int16_t k, int i, const RenglonPaso& v)
{
    Siro& s = c.s;
    c.Intenta([&] {
        const std::int16_t t = Minutos(k, s.Pasos.PasoPp);
        const float pp = model::Trunca2(v.Pp), r = model::Trunca2(v.R), in = model::Trunca2(v.I);
        const std::string& nombre = s.Red.UEHs(i).NombreUEH;
        c.Linea.Vacia();
        c.Linea.Derecha(std::int32_t{k}, 5).Derecha(std::int32_t{t}, 6).DerechaTexto(nombre, 8);
        c.Linea.Derecha(pp, 10).Derecha(r, 13).Derecha(in, 17);
        c.Linea.Derecha(model::Redondea(double{v.CaudalPp} * 1000 / 1000, 2), 17);
    });
    if (s.Control.SalidaPizarra) s.Control.TextoPizarra.append("\r\n").append(c.Linea.Texto());
}

void Alarga(Corrida& c, std::int16_t p)
{
    Siro& s = c.s;
    s.Resultados.NroPasosQ = p;
    for (model::Matriz<float>* m : {&s.Resultados.QSale, &s.Resultados.HRepresa, &s.Resultados.SRepresa,
                                    &s.Resultados.HLago, &s.Resultados.SLago, &s.Resultados.QEntra})
        c.Intenta([&] { m->Redimensiona(Suma16(p, 1)); });
}

void LluviaDelPaso(Corrida& c, std::int16_t k)
{
    if (!HayLluvia(c, k)) return;
    if (c.s.Tormenta.FormaPp == model::FormaLluvia::PorUEH)
        LluviaPorUEH(c, k);
    else
        LluviaPareja(c, k);
}

void PasosDeLasUEHs(Corrida& c)
{
    if (c.s.Control.SalidaPizarra)
        c.s.Control.TextoPizarra.append(
            "\r\n\r\nI- SIMULACION EN UEHs\r\n"
            "Per.k  t[min]   UEH     Pp[mm]  Retensión Z[mm]   Infiltra I[mm]   CaudalPp[m3/s]");
    if (!PasosRapidos(c)) PasosUnoPorUno(c);
}

}  // namespace engine
