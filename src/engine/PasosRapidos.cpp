// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PasosRapidos.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "engine/FormulasUEH.h"
#include "engine/modDistriPp.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Tormenta.h"

namespace engine {

using model::Siro;
using model::UEH;

namespace {

// Within these bounds products of all the factors of a step stay far below the largest 32-bit float.
constexpr float Moderado = 1e9F;
constexpr float PpModerada = 1e6F;
constexpr double VecesModeradas = 1e25;  // a UEH's area by that of all, which nearly cancel out

bool EnLimite(float x, float limite)
{
    return std::fabs(x) <= limite;
}

bool TodosEnLimite(const model::Arreglo<float>& a, float limite)
{
    return std::all_of(a.Datos(), a.Datos() + a.Tope() + 1, [=](float x) { return EnLimite(x, limite); });
}

/// Last model step in which it rains.
int UltimoPasoConLluvia(const Corrida& c)
{
    const Siro& s = c.s;
    return std::min((s.Tormenta.DurTormenta + s.Pasos.PasoPp - 1) / s.Pasos.PasoPp, c.NroPasosPp - 1);
}

double TiempoDeLadera(const UEH& u)
{
    return std::nearbyint(double{u.LongitudMax} / u.VelMedia / 60);
}

/// Points of a trapezoid: the output steps before T + PasoPp.
int PuntosDelTrapecio(const model::Pasos& pasos, int T)
{
    return (T + pasos.PasoPp - 1) / pasos.PasoQ;
}

/// Translation on one slope. What an endless rain would bring to its foot rises for T minutes and then stays;
/// the excess of one model step brings that curve less the same curve a model step later: a trapezoid.
struct Ladera {
    std::int16_t T = 0;  ///< travel time [min]
    int puntos = 0;      ///< output steps that the trapezoid lasts
    int subida = 0;      ///< of these, the ones in which the curve still rises
};

bool UEHModerada(const Corrida& c, const UEH& u)
{
    const model::Pasos& pasos = c.s.Pasos;
    for (const float x : {u.Area, u.RetensionZ, u.LongitudMax, u.VelMedia})
        if (!EnLimite(x, Moderado)) return false;
    if (std::fabs(double{u.Area}) > VecesModeradas * std::fabs(double{c.AreaTotal})) return false;
    if (u.VelMedia == 0 || !Infiltracion(u, pasos.PasoPp).EsModerada()) return false;
    const double T = TiempoDeLadera(u);
    if (!(T >= 0 && T + pasos.PasoPp + pasos.PasoQ <= INT16_MAX)) return false;
    return c.NroPasosPp * c.RelacionPasos + PuntosDelTrapecio(pasos, static_cast<int>(T)) < INT16_MAX;
}

bool PasosSeguros(Corrida& c)
{
    Siro& s = c.s;
    const model::Pasos& pasos = s.Pasos;
    const model::Resultados& r = s.Resultados;
    if (!c.UEHsAlcanzan() || s.Tormenta.DurTormenta < 1 || c.NroPasosPp < 1 || c.RelacionPasos < 1)
        return false;
    if (pasos.PasoPp != c.RelacionPasos * pasos.PasoQ || c.NroPasosPp * pasos.PasoPp > INT16_MAX)
        return false;
    if (r.QSale.TopeColumna() != r.NroPasosQ + 1 || c.PpMediaPaso.Tope() < c.NroPasosPp - 1) return false;
    if (r.PpUEHPaso.TopeColumna() < UltimoPasoConLluvia(c)) return false;
    if (c.AreaTotal == 0 || !EnLimite(s.Tormenta.PpTormenta, PpModerada)) return false;
    for (const auto* a : {&s.Tormenta.PpUEH, &s.Hietograma.PpAcum, &s.Hietograma.IntensidadPp})
        if (!TodosEnLimite(*a, PpModerada)) return false;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        if (!UEHModerada(c, s.Red.UEHs(i))) return false;
    return true;
}

/// Depth that could infiltrate in the step that the clock tells.
float LaminaInfiltrada(TablaInfiltracion& tabla, std::size_t reloj)
{
    for (std::size_t k = tabla.lamina.size(); k <= reloj; ++k) {
        if (k == tabla.potencias.size())
            tabla.potencias.push_back(tabla.de.PotenciasDe(static_cast<double>(k), tabla.fin));
        tabla.lamina.push_back(tabla.de.Lamina(tabla.potencias[k]));
    }
    return tabla.lamina[reloj];
}

TablaInfiltracion& TablaDe(Corrida& c, int i)
{
    auto& tablas = c.memoria.infiltracion;
    if (tablas.size() < static_cast<std::size_t>(i)) tablas.resize(static_cast<std::size_t>(i));
    TablaInfiltracion& tabla = tablas[static_cast<std::size_t>(i) - 1];
    const Infiltracion ahora(c.s.Red.UEHs(i), c.s.Pasos.PasoPp);
    if (tabla.de == ahora) return tabla;
    tabla.lamina.resize(1);
    Infiltracion otraA = tabla.de;
    otraA.a = ahora.a;
    if (otraA != ahora) {
        tabla.potencias.resize(1);
        tabla.fin = {};
    }
    tabla.de = ahora;
    return tabla;
}

/// Flow of the excess of each model step with rain, from 1, and the Slate's lines where there is room for
/// them. Beyond the rain all is 0.
void CaudalesDelExceso(Corrida& c, int i, std::span<float> caudales, std::span<RenglonPaso> renglones)
{
    Siro& s = c.s;
    const UEH& u = s.Red.UEHs(i);
    TablaInfiltracion& tabla = TablaDe(c, i);
    const float* lluvia = s.Resultados.PpUEHPaso.Fila(i);
    float restante = c.RetencionRestante(i);
    std::size_t reloj = 1;
    for (std::size_t k = 1; k < caudales.size(); ++k) {
        const float Pp = lluvia[k];
        float R = 0;
        Retiene(Pp, restante, R);
        const float N = Pp - R;
        const float I = N != 0 ? LaminaInfiltrada(tabla, reloj++) : 0;
        caudales[k] = N > I ? N - I : 0;  // the excess
        if (!renglones.empty()) renglones[k] = {Pp, R, I, 0};
    }
    for (float& caudal : caudales)
        caudal = static_cast<float>(CaudalDelExceso(caudal, s.Pasos.PasoPp, u.Area));
    for (std::size_t k = 1; k < caudales.size() && !renglones.empty(); ++k)
        renglones[k].CaudalPp = caudales[k];
    c.RetencionRestante(i) = restante;
    s.Resultados.PasosInfiltra(i) = static_cast<float>(reloj);
}

Ladera PreparaLadera(const Corrida& c, const UEH& u)
{
    Ladera l;
    l.T = static_cast<std::int16_t>(TiempoDeLadera(u));
    l.puntos = PuntosDelTrapecio(c.s.Pasos, l.T);
    l.subida = l.T > 0 ? std::min((l.T - 1) / c.s.Pasos.PasoQ, l.puntos) : 0;
    return l;
}

/// Room for the trapezoids of all model steps, by step from 0.
struct Trapecios {
    std::vector<SubidaDeLadera> sube{};
    std::vector<double> curva{};  ///< the curve at the point in hand, a 32-bit value
    std::vector<float> suma{};    ///< the hydrograph at the points of one place within the model step
};

/// Hands `usa` the height of all curves at point j, by model step.
void EnElPunto(const Ladera& l, double minutos, std::span<const float> caudales, const SubidaDeLadera* sube,
               int j, auto usa)
{
    if (j < 1) return usa([](std::size_t) { return 0.0; });
    if (j > l.subida) return usa([=](std::size_t k) { return double{caudales[k]}; });
    usa([=](std::size_t k) { return double{static_cast<float>(sube[k](minutos))}; });
}

/// Adds the trapezoids of all model steps to the output steps 0..ultimo of the hydrograph `q`. A point of a
/// trapezoid falls upon another output step in each model step, so that it is worked out for all of them at
/// once; from the last point to the first, since an output step gets its flows in the order of the model
/// steps.
void SumaTrapecios(const Corrida& c, const Ladera& l, std::span<const float> caudales, Trapecios& lugar,
                   float* q, int ultimo)
{
    const int R = c.RelacionPasos;
    const std::size_t n = caudales.size();
    lugar.sube.assign(n, {0, 1});
    for (std::size_t k = 0; l.subida > 0 && k < n; ++k)
        lugar.sube[k] = {caudales[k], l.T};
    lugar.curva.resize(n);
    lugar.suma.resize(n + static_cast<std::size_t>(l.puntos / R) + 1);
    double* __restrict curva = lugar.curva.data();
    const auto enElPunto = [&](int j, auto usa) {
        EnElPunto(l, double{1} * j * c.s.Pasos.PasoQ, caudales, lugar.sube.data(), j, usa);
    };
    for (int sitio = 0; sitio < R; ++sitio) {
        const int cuantos = std::min((ultimo - sitio + R) / R, static_cast<int>(lugar.suma.size()));
        for (int m = 0; m < cuantos; ++m)
            lugar.suma[static_cast<std::size_t>(m)] = q[sitio + m * R];
        int j = l.puntos - (l.puntos - sitio) % R;
        enElPunto(j, [&](auto altura) {
            for (std::size_t k = 0; k < n; ++k)
                curva[k] = altura(k);
        });
        for (; j >= 1; j -= R) {
            float* __restrict suma = lugar.suma.data() + j / R;
            enElPunto(j - R, [&](auto altura) {
                for (std::size_t k = 0; k < n; ++k) {
                    const double antes = altura(k);  // the curve a model step before
                    suma[k] = static_cast<float>(suma[k] + curva[k] - antes);
                    curva[k] = antes;
                }
            });
        }
        for (int m = 0; m < cuantos; ++m)
            q[sitio + m * R] = lugar.suma[static_cast<std::size_t>(m)];
    }
}

/// Rain of all steps where every UEH gets the same: worked out for the first, copied to the others.
void LluviaPareja(Corrida& c, int pasos)
{
    Siro& s = c.s;
    float* lluvia = s.Resultados.PpUEHPaso.Fila(1);
    float total = s.Tormenta.PpUEH(1);
    for (int k = 1; k <= pasos; ++k) {
        c.Intenta([&] { lluvia[k] = static_cast<float>(PpDelPaso(s, static_cast<std::int16_t>(k))); });
        c.SumaPp += lluvia[k];
        total += lluvia[k];
    }
    s.Tormenta.PpUEH(1) = total;
    for (int i = 2; i <= s.Red.NroUEHs(); ++i) {
        std::copy_n(lluvia + 1, pasos, s.Resultados.PpUEHPaso.Fila(i) + 1);
        s.Tormenta.PpUEH(i) = total;
    }
}

/// Output step to which a trapezoid lets a run grow that goes to `ultimo`; `antes` is the step ahead of the
/// trapezoid's first point. A point beyond ultimo + 1 makes itself the last step.
int UltimoPasoCon(const Ladera& l, int antes, int ultimo)
{
    for (int p = std::max(antes + 1, ultimo + 2); p <= antes + l.puntos; p = ultimo + 2)
        ultimo = p;
    return ultimo;
}

/// Output step to which the run grows, in the order of the steps and, within a step, of the UEHs.
int UltimoPasoQ(const Corrida& c, std::span<const Ladera> laderas,
                std::span<const std::vector<float>> caudales)
{
    int ultimo = c.s.Resultados.NroPasosQ, puntos = 0;
    for (const Ladera& l : laderas)
        puntos = std::max(puntos, l.puntos);
    for (std::size_t k = 1; k < caudales[0].size(); ++k) {
        const int antes = static_cast<int>(k - 1) * c.RelacionPasos;
        if (antes + puntos < ultimo + 2) continue;
        for (std::size_t u = 0; u < laderas.size(); ++u)
            if (caudales[u][k] != 0) ultimo = UltimoPasoCon(laderas[u], antes, ultimo);
    }
    return ultimo;
}

}  // namespace

bool PasosRapidos(Corrida& c)
{
    if (!PasosSeguros(c)) return false;
    Siro& s = c.s;
    const int conLluvia = UltimoPasoConLluvia(c);
    if (s.Tormenta.FormaPp == model::FormaLluvia::PorUEH) {
        for (int k = 1; k <= conLluvia; ++k)
            LluviaDelPaso(c, static_cast<std::int16_t>(k));
    } else {
        LluviaPareja(c, conLluvia);
    }

    std::vector<Ladera> laderas;
    std::vector<std::vector<float>> caudales;
    std::vector<std::vector<RenglonPaso>> renglones;
    const auto pasos = static_cast<std::size_t>(c.NroPasosPp);
    for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
        laderas.push_back(PreparaLadera(c, s.Red.UEHs(i)));
        CaudalesDelExceso(c, i, caudales.emplace_back(static_cast<std::size_t>(conLluvia) + 1),
                          renglones.emplace_back(s.Control.SalidaPizarra ? pasos : 0));
    }
    if (const int ultimo = UltimoPasoQ(c, laderas, caudales); ultimo != s.Resultados.NroPasosQ)
        Alarga(c, static_cast<std::int16_t>(ultimo));
    Trapecios lugar;
    for (std::size_t u = 0; u < laderas.size(); ++u)
        SumaTrapecios(c, laderas[u], std::span(caudales[u]).subspan(1), lugar,
                      s.Resultados.QSale.Fila(static_cast<int>(u) + 1), s.Resultados.NroPasosQ + 1);
    if (!s.Control.SalidaPizarra) return true;
    for (std::size_t k = 1; k < pasos; ++k)
        for (std::size_t u = 0; u < laderas.size(); ++u)
            EscribePaso(c, static_cast<std::int16_t>(k), static_cast<int>(u) + 1, renglones[u][k]);
    return true;
}

}  // namespace engine
