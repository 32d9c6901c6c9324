// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Balance.h"

#include <algorithm>
#include <cmath>

#include "engine/FormulasUEH.h"
#include "model/Avisos.h"
#include "model/Numeros.h"

namespace checks {

namespace {

constexpr double M3PorMilimetroYHectarea = 10;
constexpr double AlturaDePiscina = 0.005;  // bracket at which a level pool's bisection ends [m]
constexpr double PasoDeFlotante = 6e-8;    // relative, of a 32-bit float: the pool rounds 2S/dt in every step

/// Rain and excess [mm] of a UEH, step by step by the formulas of the run.
struct LluviaYExceso {
    double lluvia = 0;
    double exceso = 0;
};

LluviaYExceso LluviaYExcesoDe(const Corrido& c, const model::UEH& u, int fila)
{
    LluviaYExceso suma;
    const engine::Infiltracion infiltracion(u, c.pasos.PasoPp);
    const model::Matriz<float>& lluvia = c.r().PpUEHPaso;
    float restante = u.RetensionZ;
    int reloj = 1;
    for (int k = 1; k <= lluvia.TopeColumna(); ++k) {
        const float Pp = lluvia(fila, k);
        if (Pp == 0) continue;
        float R = 0, I = 0;
        engine::Retiene(Pp, restante, R);
        const float N = Pp - R;
        if (N != 0) model::Sentencia([&] { I = infiltracion.Lamina(reloj++); });
        suma.lluvia += Pp;
        suma.exceso += N > I ? model::Simple(double{N} - I) : 0;
    }
    return suma;
}

void BalanceDeUEH(const Corrido& c, const ComponenteCorrido& comp, RenglonBalance& b)
{
    const model::Resultados& r = c.r();
    const int n = c.UltimoPaso();
    const LluviaYExceso mm = LluviaYExcesoDe(c, *comp.ueh, comp.fila);
    const double porMilimetro = comp.ueh->Area * M3PorMilimetroYHectarea;
    b.entra = mm.lluvia * porMilimetro + r.VolBaseUEH(comp.fila);
    b.perdido = (mm.lluvia - mm.exceso) * porMilimetro;
    b.sale = c.Volumen(r.QSale, comp.fila, 1, n);
    b.cortado = c.Volumen(r.QSale, comp.fila, n + 1, r.QSale.TopeColumna());
    b.lectura = comp.ueh->Q0Recesion > 0 && comp.ueh->KRecesion > 0 ? 0.5 * n : 0;
}

void BalanceDirecto(const Corrido& c, const ComponenteCorrido& comp, RenglonBalance& b)
{
    const int n = c.UltimoPaso();
    const int retardo = std::clamp(c.Retardo(*comp.cauce).value_or(0), 0, n);
    b.almacenado = -c.Volumen(c.r().QSale, comp.fila, 1, retardo);
    b.cortado = c.Volumen(c.r().QEntra, comp.fila, n - retardo + 1, n);
}

void BalanceMuskingum(const Corrido& c, int fila, double K, double x, RenglonBalance& b)
{
    const int n = c.UltimoPaso();
    const float *I = c.r().QEntra.Fila(fila), *O = c.r().QSale.Fila(fila);
    const auto almacena = [&](int p) { return K * 60 * (x * I[p] + (1 - x) * O[p]); };
    b.almacenado = almacena(n) - almacena(1);
    b.cortado = (double{I[n]} - O[n]) / 2 * c.Segundos();
}

/// Outflow at the start as the routing counts it: the level pool leaves it out of its first step.
double SaleAlInicio(const EmbalseCorrido& e)
{
    return e.metodo == MetodoEmbalse::Piscina ? 0 : e.Descarga(e.HInicial);
}

void BalanceDeEmbalse(const Corrido& c, const ComponenteCorrido& comp, RenglonBalance& b)
{
    const EmbalseCorrido& e = *comp.embalse;
    if (e.metodo == MetodoEmbalse::Muskingum) return BalanceMuskingum(c, comp.fila, e.K, 0, b);
    if (e.metodo == MetodoEmbalse::Ninguno || !e.TieneTabla()) return;
    const int n = c.UltimoPaso();
    const float *I = c.r().QEntra.Fila(comp.fila), *O = c.r().QSale.Fila(comp.fila);
    const float alFinal = e.H(e.tablas.numero, n);
    b.almacenado = e.Almacenamiento(alFinal) - e.Almacenamiento(e.HInicial);
    b.cortado = ((double{I[n]} - I[0]) - (O[n] - SaleAlInicio(e))) / 2 * c.Segundos();
    if (e.metodo == MetodoEmbalse::Piscina) {
        const float cerca = std::min(alFinal, e.Tope());
        b.lectura = AlturaDePiscina * e.Superficie(cerca) + n * PasoDeFlotante * e.Almacenamiento(cerca);
    }
}

RenglonBalance Renglon(const Corrido& c, const ComponenteCorrido& comp)
{
    RenglonBalance b{.componente = comp.nombre};
    if (comp.fila == 0) return b;
    if (comp.ueh != nullptr) {
        BalanceDeUEH(c, comp, b);
        return b;
    }
    b.entra = c.Volumen(c.r().QEntra, comp.fila, 1, c.UltimoPaso());
    b.sale = c.Volumen(c.r().QSale, comp.fila, 1, c.UltimoPaso());
    if (comp.embalse)
        BalanceDeEmbalse(c, comp, b);
    else if (comp.cauce->optDirMusk)
        BalanceDirecto(c, comp, b);
    else
        BalanceMuskingum(c, comp.fila, comp.cauce->Cauce_k_Musk, comp.cauce->Cauce_n_Musk, b);
    return b;
}

}  // namespace

Balance BalanceDe(const Corrido& c)
{
    Balance todo;
    for (const ComponenteCorrido& comp : c.componentes) {
        const RenglonBalance& b = todo.componentes.emplace_back(Renglon(c, comp));
        RenglonBalance& cuenca = todo.cuenca;
        if (comp.ueh != nullptr) cuenca.entra += b.entra;
        if (c.EsSalida(comp)) cuenca.sale += b.sale;
        cuenca.perdido += b.perdido;
        cuenca.almacenado += b.almacenado;
        cuenca.cortado += b.cortado;
        cuenca.lectura += b.lectura;
    }
    return todo;
}

std::vector<double> AlmacenadoPorBalance(const Corrido& c, const ComponenteCorrido& comp)
{
    const EmbalseCorrido& e = *comp.embalse;
    const float *I = c.r().QEntra.Fila(comp.fila), *O = c.r().QSale.Fila(comp.fila);
    std::vector<double> S{e.Almacenamiento(e.HInicial)};
    double antes = I[0] - SaleAlInicio(e);
    for (int p = 1; p <= c.UltimoPaso(); ++p) {
        const double ahora = double{I[p]} - O[p];
        S.push_back(S.back() + (antes + ahora) / 2 * c.Segundos());
        antes = ahora;
    }
    return S;
}

}  // namespace checks
