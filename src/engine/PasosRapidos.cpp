// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PasosRapidos.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "engine/modDistriPp.h"
#include "model/Numeros.h"

namespace engine {

using model::Siro;
using model::UEH;

namespace {

// Within these bounds products of all the factors of a step stay far below the largest 32-bit float.
constexpr float Moderado = 1e9F;
constexpr float PpModerada = 1e6F;
constexpr float TiempoModerado = 1e6F;
constexpr float ExponenteModerado = 4;
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
int PuntosDelTrapecio(const Siro& s, int T)
{
    return (T + s.Pasos.PasoPp - 1) / s.Pasos.PasoQ;
}

bool PasosEnRango(const Corrida& c)
{
    const Siro& s = c.s;
    if (s.Red.NroUEHs < 1 || s.Red.NroUEHs > model::MaxUEHs || s.Red.ColUEHs.Cuenta() < s.Red.NroUEHs)
        return false;
    if (s.Pasos.PasoQ < 1 || s.Pasos.PasoPp < s.Pasos.PasoQ || s.Tormenta.DurTormenta < 1 ||
        c.RelacionPasos < 1)
        return false;
    if (s.Tormenta.DurTormenta + s.Pasos.PasoPp > INT16_MAX || c.NroPasosPp * s.Pasos.PasoPp > INT16_MAX)
        return false;
    return s.Pasos.PasoPp == c.RelacionPasos * s.Pasos.PasoQ && c.NroPasosPp >= 1 &&
           c.NroPasosPp * c.RelacionPasos <= INT16_MAX;
}

bool ArreglosAlcanzan(const Corrida& c)
{
    const Siro& s = c.s;
    const int n = s.Red.NroUEHs;
    return s.Resultados.PpUEHPaso.UltimaFila() >= n &&
           s.Resultados.PpUEHPaso.TopeColumna() >= UltimoPasoConLluvia(c) &&
           s.Resultados.QSale.UltimaFila() >= n && s.Resultados.NroPasosQ >= 1 &&
           s.Resultados.QSale.TopeColumna() == s.Resultados.NroPasosQ + 1 &&
           s.Resultados.PasosInfiltra.Tope() >= n && c.RetencionRestante.Tope() >= n &&
           c.PpMediaPaso.Tope() >= c.NroPasosPp - 1;
}

bool UEHModerada(const Corrida& c, const UEH& u)
{
    const Siro& s = c.s;
    for (const float x : {u.Area, u.RetensionZ, u.KostiakovA, u.LongitudMax, u.VelMedia})
        if (!EnLimite(x, Moderado)) return false;
    if (std::fabs(double{u.Area}) > VecesModeradas * std::fabs(double{c.AreaTotal})) return false;
    if (u.KostiakovB < 0 || u.KostiakovB > ExponenteModerado) return false;
    if (u.KostiakovI < 0 || u.KostiakovI > TiempoModerado || u.VelMedia == 0) return false;
    const double T = TiempoDeLadera(u);
    if (!(T >= 0 && T + s.Pasos.PasoPp + s.Pasos.PasoQ <= INT16_MAX)) return false;
    const int puntos = PuntosDelTrapecio(s, static_cast<int>(T));
    return c.NroPasosPp * c.RelacionPasos + puntos < INT16_MAX;
}

/// Depth that could infiltrate in the step that the clock tells, Kostiakov's curve at the shifted time.
float LaminaInfiltrada(TablaInfiltracion& tabla, std::size_t n)
{
    while (tabla.lamina.size() <= n) {
        const double t = static_cast<double>(tabla.lamina.size()) * tabla.paso + double{tabla.inicial};
        const double I = tabla.a * (std::pow(t, double{tabla.b}) - std::pow(t - tabla.paso, double{tabla.b}));
        tabla.lamina.push_back(std::max(static_cast<float>(I), 0.0F));
    }
    return tabla.lamina[n];
}

TablaInfiltracion& TablaDe(Corrida& c, int i)
{
    auto& tablas = c.memoria.infiltracion;
    if (tablas.size() < static_cast<std::size_t>(i)) tablas.resize(static_cast<std::size_t>(i));
    TablaInfiltracion& tabla = tablas[static_cast<std::size_t>(i) - 1];
    const UEH& u = c.s.Red.UEHs(i);
    if (tabla.a != u.KostiakovA || tabla.b != u.KostiakovB || tabla.inicial != u.KostiakovI ||
        tabla.paso != c.s.Pasos.PasoPp)
        tabla = {u.KostiakovA, u.KostiakovB, u.KostiakovI, c.s.Pasos.PasoPp, {0}};
    return tabla;
}

/// Flow of the excess of each model step with rain, from 1. Beyond the rain there is none.
void CaudalesDelExceso(Corrida& c, int i, std::span<float> caudales)
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
        if (restante != 0) {
            R = Pp < restante ? Pp : restante;
            restante = Pp < restante ? restante - R : 0;
        }
        const float N = Pp - R;
        const float I = N != 0 ? LaminaInfiltrada(tabla, reloj++) : 0;
        const float E = N > I ? N - I : 0;
        caudales[k] = static_cast<float>(double{E} / s.Pasos.PasoPp * FactorCaudal * u.Area);
    }
    c.RetencionRestante(i) = restante;
    s.Resultados.PasosInfiltra(i) = static_cast<float>(reloj);
}

Ladera PreparaLadera(const Corrida& c, const UEH& u)
{
    const Siro& s = c.s;
    Ladera l;
    l.T = static_cast<int>(TiempoDeLadera(u));
    l.puntos = PuntosDelTrapecio(s, l.T);
    l.subida = l.T > 0 ? std::min((l.T - 1) / s.Pasos.PasoQ, l.puntos) : 0;
    for (int j = 0; j <= l.subida; ++j)
        l.minutos.push_back(j * s.Pasos.PasoQ);
    l.curva.resize(static_cast<std::size_t>(c.RelacionPasos) + static_cast<std::size_t>(l.puntos) + 1);
    return l;
}

/// Adds the trapezoid of one step to the hydrograph; `q` stands one point before the first.
void SumaTrapecio(const Corrida& c, Ladera& l, float caudal, float* __restrict q)
{
    const double pendiente = l.T > 0 ? double{caudal} / l.T : 0;
    const double* minutos = l.minutos.data();
    const float* __restrict antes = l.curva.data();  // the curve a model step before
    float* __restrict curva = l.curva.data() + c.RelacionPasos;
    for (int j = 1; j <= l.subida; ++j)
        curva[j] = static_cast<float>(pendiente * minutos[j]);
    std::fill(curva + l.subida + 1, curva + l.puntos + 1, caudal);
    for (int j = 1; j <= l.puntos; ++j)
        q[j] = static_cast<float>(double{q[j]} + curva[j] - antes[j]);
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
    for (int i = 2; i <= s.Red.NroUEHs; ++i) {
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
    int ultimo = c.s.Resultados.NroPasosQ;
    for (std::size_t k = 1; k < caudales[0].size(); ++k) {
        const int antes = static_cast<int>(k - 1) * c.RelacionPasos;
        for (std::size_t u = 0; u < laderas.size(); ++u)
            if (caudales[u][k] != 0) ultimo = UltimoPasoCon(laderas[u], antes, ultimo);
    }
    return ultimo;
}

}  // namespace

bool PasosSeguros(Corrida& c)
{
    Siro& s = c.s;
    if (!PasosEnRango(c) || !ArreglosAlcanzan(c)) return false;
    if (c.AreaTotal == 0 || !EnLimite(s.Tormenta.PpTormenta, PpModerada)) return false;
    if (!TodosEnLimite(s.Tormenta.PpUEH, PpModerada) || !TodosEnLimite(s.Hietograma.PpAcum, PpModerada) ||
        !TodosEnLimite(s.Hietograma.IntensidadPp, PpModerada))
        return false;
    for (int i = 1; i <= s.Red.NroUEHs; ++i)
        if (!UEHModerada(c, s.Red.UEHs(i))) return false;
    return true;
}

std::vector<Ladera> PreparaLaderas(Corrida& c)
{
    std::vector<Ladera> laderas;
    for (int i = 1; i <= c.s.Red.NroUEHs; ++i)
        laderas.push_back(PreparaLadera(c, c.s.Red.UEHs(i)));
    return laderas;
}

void SumaTrapecioDelPaso(Corrida& c, Ladera& l, std::int16_t k, int i, float caudal)
{
    Siro& s = c.s;
    const int antes = (k - 1) * c.RelacionPasos;
    if (const int ultimo = UltimoPasoCon(l, antes, s.Resultados.NroPasosQ); ultimo != s.Resultados.NroPasosQ)
        Alarga(c, static_cast<std::int16_t>(ultimo));
    SumaTrapecio(c, l, caudal, s.Resultados.QSale.Fila(i) + antes);
}

void PasosRapidos(Corrida& c)
{
    Siro& s = c.s;
    const int conLluvia = UltimoPasoConLluvia(c);
    if (s.Tormenta.FormaPp == static_cast<std::int16_t>(model::FormaLluvia::PorUEH)) {
        for (int k = 1; k <= conLluvia; ++k)
            LluviaDelPaso(c, static_cast<std::int16_t>(k));
    } else {
        LluviaPareja(c, conLluvia);
    }

    std::vector<std::vector<float>> caudales(static_cast<std::size_t>(s.Red.NroUEHs));
    for (int i = 1; i <= s.Red.NroUEHs; ++i) {
        auto& fila = caudales[static_cast<std::size_t>(i) - 1];
        fila.resize(static_cast<std::size_t>(conLluvia) + 1);
        CaudalesDelExceso(c, i, fila);
    }
    std::vector<Ladera> laderas = PreparaLaderas(c);
    if (const int ultimo = UltimoPasoQ(c, laderas, caudales); ultimo != s.Resultados.NroPasosQ)
        Alarga(c, static_cast<std::int16_t>(ultimo));
    for (int i = 1; i <= s.Red.NroUEHs; ++i) {
        const auto& fila = caudales[static_cast<std::size_t>(i) - 1];
        for (std::size_t k = 1; k < fila.size(); ++k)
            if (fila[k] != 0)
                SumaTrapecio(
                    c, laderas[static_cast<std::size_t>(i) - 1], fila[k],
                    s.Resultados.QSale.Fila(i) + (k - 1) * static_cast<std::size_t>(c.RelacionPasos));
    }
}

}  // namespace engine
