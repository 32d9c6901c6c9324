// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "engine/EmbalseEnMano.h"
#include "engine/Piscina.h"
#include "engine/Totales.h"
#include "hydraulics/Curva.h"
#include "model/Numeros.h"

namespace engine {

using model::Siro;

namespace {

constexpr float AlturaModerada = 16384;  // below it 32-bit heights are finer than the last bracket
constexpr double CaudalModerado = 1e30;

/// What the level pool gives at a height, bit for bit that of the lookups.
struct Nodo {
    float h = 0;  ///< height [m]
    float s = 0;  ///< storage [m3]
    float q = 0;  ///< outflow [m3/s]
    float u = 0;  ///< 2S/dt + Q [m3/s]
};

float Medio(float hi, float lo)
{
    return static_cast<float>((double{hi} - lo) / 2 + lo);
}

bool SigueAbierto(float hi, float lo)
{
    return static_cast<float>(std::fabs(double{hi} - lo)) > AnchoFinal;
}

/// Storage and outflow of the component in hand by height, for heights in which neither can ask or fault.
class Curvas {
  public:
    /// Whether the level pool of an embalse between `base` and `tope` can be routed with them.
    bool Prepara(const Siro& s, const EmbalseEnMano& e, float base, float tope)
    {
        almacenamiento = hydraulics::CurvaAlmacenamiento(s);
        if (almacenamiento.Filas() == 0 || !almacenamiento.Alturas().Abarca(base, tope)) return false;
        descarga = hydraulics::CurvaDescarga(s);
        if (!descarga.SinPreguntas(base, tope)) return false;
        const auto sinPreguntas = hydraulics::AlmacenamientosSinPreguntas(s);
        const std::int32_t* S = e.tablaS.Fila(e.numero) + 1;
        const auto [menor, mayor] = std::minmax_element(S, S + almacenamiento.Filas());
        const auto menorS = static_cast<float>(*menor), mayorS = static_cast<float>(*mayor), S0 = s.SActual;
        return sinPreguntas.Abarca(std::min(menorS, S0), std::max(mayorS, S0));
    }
    /// A bound of the absolute outflow between two heights that Prepara has been given [m3/s].
    double CotaDescarga(float base, float tope) const { return descarga.Cota(base, tope); }
    Nodo En(float h, double paso)
    {
        Nodo n{h, static_cast<float>(almacenamiento.Valor(h, filaS)), descarga.Valor(h, filaQ), 0};
        const auto porPaso = static_cast<float>(2.0 * n.s / paso);
        n.u = static_cast<float>(double{static_cast<float>(double{porPaso} / 60)} + n.q);
        return n;
    }

  private:
    hydraulics::CurvaLineal almacenamiento;
    hydraulics::CurvaDescarga descarga;
    int filaS = 0, filaQ = 0;
};

/// Bisections that go on from the path of the one before: what a midpoint gives doesn't change with time, so
/// only the halvings that leave that path are worked out. No assumption about the form of the curves.
class PorCamino {
  public:
    PorCamino(Curvas& lasCurvas, float unaBase, float unTope, double unPaso)
        : curvas(lasCurvas), base(unaBase), tope(unTope), paso(unPaso)
    {
        camino.fill({std::numeric_limits<float>::quiet_NaN(), 0, 0, 0});
    }
    const Nodo& Busca(float W)
    {
        float hi = tope, lo = base;
        std::size_t nivel = 0;
        do {
            const float h = Medio(hi, lo);
            if (h != camino[nivel].h) camino[nivel] = curvas.En(h, paso);
            (camino[nivel].u > W ? hi : lo) = h;
            ++nivel;
        } while (SigueAbierto(hi, lo));
        return camino[nivel - 1];
    }

  private:
    Curvas& curvas;
    float base, tope;
    double paso;
    std::array<Nodo, 64> camino{};  // 16384 m are halved down to 5 mm in 23 rounds
};

/// Bisections looked up among all midpoints, worked out beforehand: U rises with them, so that a walk from
/// the place of the step before finds the last one that isn't above the target.
class PorNodos {
  public:
    explicit PorNodos(const NodosPiscina& losNodos)
        : nodos(losNodos), ultimo(static_cast<int>(losNodos.U.size()) - 1)
    {
    }
    Nodo Busca(float W)
    {
        if (lugar < ultimo && !(nodos.U[Indice(lugar + 1)] > W))
            Sube(W);
        else if (lugar > 0 && nodos.U[Indice(lugar)] > W)
            Baja(W);
        const std::size_t n = Indice(lugar | 1);  // the bracket's last midpoint stands at its odd end
        return {nodos.H[n], nodos.S[n], nodos.Q[n], nodos.U[n]};
    }

  private:
    static std::size_t Indice(int i) { return static_cast<std::size_t>(i); }
    bool Alcanza(int i, float W) const { return i <= ultimo && !(nodos.U[Indice(i)] > W); }
    void Sube(float W)
    {
        ++lugar;
        int salto = 1;
        for (; Alcanza(lugar + salto, W); salto *= 2)
            lugar += salto;
        for (salto /= 2; salto > 0; salto /= 2)
            if (Alcanza(lugar + salto, W)) lugar += salto;
    }
    void Baja(float W)
    {
        int encima = lugar;
        int salto = 1;
        for (; encima - salto > 0 && nodos.U[Indice(encima - salto)] > W; salto *= 2)
            encima -= salto;
        int debajo = std::max(0, encima - salto);
        while (encima - debajo > 1) {
            const int medio = (encima + debajo) / 2;
            (nodos.U[Indice(medio)] > W ? encima : debajo) = medio;
        }
        lugar = debajo;
    }
    const NodosPiscina& nodos;
    int ultimo;     ///< greatest place of a midpoint
    int lugar = 0;  ///< last midpoint that isn't above the target; 0: none
};

/// Walks all steps with one way to find the height for a target.
template <typename Buscador>
void Recorre(Corrida& c, const EmbalseEnMano& e, float T, Buscador busca)
{
    Siro& s = c.s;
    const float* entra = s.QEntra.Fila(e.fila);
    float* sale = s.QSale.Fila(e.fila);
    float* H = e.H.Fila(e.numero);
    float* S = e.S.Fila(e.numero);
    for (int k = 1; k <= s.NroPasosQ; ++k) {
        const auto I = static_cast<float>(double{entra[k]} + entra[k - 1]);
        const auto W = static_cast<float>(double{T} + I);
        const Nodo n = busca.Busca(W);
        H[k] = n.h;
        S[k] = n.s;
        sale[k] = n.q;
        T = static_cast<float>(W - 2.0 * n.q);
        if (!c.ConTexto) continue;
        s.HActual = n.h;
        s.SActual = n.s;
        EscribeDetalle(c, e, static_cast<std::int16_t>(k), {I, T, n.u});
    }
    s.IndPaso = s.NroPasosQ;
    s.HActual = H[s.NroPasosQ];
    s.SActual = S[s.NroPasosQ];
}

bool ArreglosAlcanzan(const Corrida& c, const EmbalseEnMano& e)
{
    const Siro& s = c.s;
    const int n = s.NroPasosQ;
    return s.PasoQ >= 1 && n >= 1 && n * s.PasoQ <= INT16_MAX && e.fila >= s.QEntra.PrimeraFila() &&
           e.fila <= s.QEntra.UltimaFila() && e.fila <= s.QSale.UltimaFila() && s.QEntra.TopeColumna() >= n &&
           s.QSale.TopeColumna() >= n && e.H.UltimaFila() >= e.numero && e.H.TopeColumna() >= n &&
           e.S.UltimaFila() >= e.numero && e.S.TopeColumna() >= n;
}

/// The midpoints that a bisection between `base` and `tope` can visit, in rising height behind a slot 0.
/// Empty where two halvings of one level don't end alike, so that they are no full tree.
std::vector<float> PuntosMedios(float base, float tope)
{
    constexpr std::size_t MaximoNodos = 1 << 15;
    std::vector<float> puntos{base, tope};
    while (true) {
        std::size_t abiertos = 0;
        for (std::size_t i = 0; i + 1 < puntos.size(); ++i)
            abiertos += SigueAbierto(puntos[i + 1], puntos[i]) ? 1 : 0;
        if (abiertos == 0) break;
        if (abiertos != puntos.size() - 1 || puntos.size() > MaximoNodos) return {};
        std::vector<float> finos;
        finos.reserve(2 * puntos.size());
        for (std::size_t i = 0; i + 1 < puntos.size(); ++i) {
            finos.push_back(puntos[i]);
            finos.push_back(Medio(puntos[i + 1], puntos[i]));
        }
        finos.push_back(tope);
        puntos.swap(finos);
    }
    puntos.pop_back();
    return puntos;
}

void TablaNodos(NodosPiscina& nodos, Curvas& curvas, float base, float tope, double paso)
{
    nodos.H = PuntosMedios(base, tope);
    const std::size_t n = nodos.H.size();
    nodos.S.resize(n);
    nodos.Q.resize(n);
    nodos.U.resize(n);
    for (std::size_t i = 1; i < n; ++i) {
        const Nodo nodo = curvas.En(nodos.H[i], paso);
        nodos.S[i] = nodo.s;
        nodos.Q[i] = nodo.q;
        nodos.U[i] = nodo.u;
    }
    nodos.sirve = n > 1 && std::is_sorted(nodos.U.begin() + 1, nodos.U.end());
}

void AgregaFilas(std::vector<float>& clave, const auto& tabla, int numero, int filas)
{
    for (int k = 1; k <= filas; ++k)
        clave.push_back(static_cast<float>(tabla(numero, k)));
}

/// All that the midpoints of the component in hand are worked out from.
std::vector<float> ClaveDe(const Siro& s, const EmbalseEnMano& e)
{
    std::vector<float> clave{static_cast<float>(s.PasoQ)};
    AgregaFilas(clave, e.tablaH, e.numero, e.filasTabla(e.numero));
    AgregaFilas(clave, e.tablaS, e.numero, e.filasTabla(e.numero));
    if (s.CompActual.clase == model::ComponenteActual::Clase::Lago) {
        AgregaFilas(clave, s.LagoQ, e.numero, s.LagoFilas(e.numero));
        return clave;
    }
    const model::Represa& r = s.ColRepresas.Item(s.CompActual.item);
    if (r.optTabla) {
        AgregaFilas(clave, s.RepresaQH, e.numero, s.RepresaFilasHQ(e.numero));
        AgregaFilas(clave, s.RepresaQQ, e.numero, s.RepresaFilasHQ(e.numero));
        return clave;
    }
    for (const auto* coeficientes : {&r.FQa, &r.FQb, &r.FQc, &r.FQmin, &r.FQMax})
        clave.insert(clave.end(), coeficientes->begin(), coeficientes->end());
    for (const std::int16_t enUso : r.chkFQ)
        clave.push_back(enUso);
    return clave;
}

/// The table of midpoints of the component in hand, from the memory where its curves are still the same.
const NodosPiscina& NodosDe(Corrida& c, const EmbalseEnMano& e, Curvas& curvas, float base, float tope)
{
    auto& tablas = c.memoria.piscinas;
    if (tablas.size() < c.s.Secuencia.size()) tablas.resize(c.s.Secuencia.size());
    NodosPiscina& nodos = tablas[static_cast<std::size_t>(e.fila)];
    std::vector<float> clave = ClaveDe(c.s, e);
    if (nodos.clave == clave) return nodos;
    nodos.clave = std::move(clave);
    TablaNodos(nodos, curvas, base, tope, c.s.PasoQ);
    return nodos;
}

}  // namespace

bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T)
{
    Siro& s = c.s;
    const float base = e.tablaH(e.numero, 1), tope = e.tablaH(e.numero, e.filasTabla(e.numero));
    if (!(base >= -AlturaModerada && tope <= AlturaModerada && base < tope && SigueAbierto(tope, base)))
        return false;
    if (!ArreglosAlcanzan(c, e)) return false;
    if (!((s.NroPasosQ + 1) * double{MayorAbsoluto(s.QEntra.Fila(e.fila), 0, s.NroPasosQ)} < CaudalModerado))
        return false;
    Curvas curvas;
    if (!curvas.Prepara(s, e, base, tope)) return false;
    // T falls by twice the outflow in every step.
    if (!(std::fabs(T) + s.NroPasosQ * 2 * curvas.CotaDescarga(base, tope) < CaudalModerado)) return false;
    if (c.memoria.VariasCorridas) {
        const NodosPiscina& nodos = NodosDe(c, e, curvas, base, tope);
        if (nodos.sirve) {
            Recorre(c, e, T, PorNodos(nodos));
            return true;
        }
    }
    Recorre(c, e, T, PorCamino(curvas, base, tope, s.PasoQ));
    return true;
}

}  // namespace engine
