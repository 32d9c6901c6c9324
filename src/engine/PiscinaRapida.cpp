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
        const auto menorS = static_cast<float>(*menor), mayorS = static_cast<float>(*mayor),
                   S0 = s.Resultados.SActual;
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
    const Nodo& Busca(float W)
    {
        // The level goes on as it went in the step before, more or less.
        const int antes = lugar;
        lugar = std::clamp(lugar + recorrido, 0, ultimo);
        if (lugar < ultimo && !(nodos.U[Indice(lugar + 1)] > W))
            Sube(W);
        else if (lugar > 0 && nodos.U[Indice(lugar)] > W)
            Baja(W);
        recorrido = lugar - antes;
        return nodos.nodo[Indice(lugar | 1)];  // the bracket's last midpoint stands at its odd end
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
    int ultimo;         ///< greatest place of a midpoint
    int lugar = 0;      ///< last midpoint that isn't above the target; 0: none
    int recorrido = 0;  ///< places that the last search moved on
};

/// Walks all steps with one way to find the height for a target.
template <typename Buscador>
void Recorre(Corrida& c, const EmbalseEnMano& e, float T, Buscador busca)
{
    Siro& s = c.s;
    const float* entra = s.Resultados.QEntra.Fila(e.fila);
    float* sale = s.Resultados.QSale.Fila(e.fila);
    float* H = e.H.Fila(e.numero);
    float* S = e.S.Fila(e.numero);
    for (int k = 1; k <= s.Resultados.NroPasosQ; ++k) {
        const auto I = static_cast<float>(double{entra[k]} + entra[k - 1]);
        const auto W = static_cast<float>(double{T} + I);
        const Nodo& n = busca.Busca(W);
        H[k] = n.h;
        S[k] = n.s;
        sale[k] = n.q;
        T = static_cast<float>(W - 2.0 * n.q);
        if (!c.ConTexto) continue;
        s.Resultados.HActual = n.h;
        s.Resultados.SActual = n.s;
        EscribeDetalle(c, e, static_cast<std::int16_t>(k), {I, T, n.u});
    }
    s.Resultados.IndPaso = s.Resultados.NroPasosQ;
    s.Resultados.HActual = H[s.Resultados.NroPasosQ];
    s.Resultados.SActual = S[s.Resultados.NroPasosQ];
}

bool ArreglosAlcanzan(const Corrida& c, const EmbalseEnMano& e)
{
    const Siro& s = c.s;
    const int n = s.Resultados.NroPasosQ;
    return s.Pasos.PasoQ >= 1 && n >= 1 && n * s.Pasos.PasoQ <= INT16_MAX &&
           e.fila >= s.Resultados.QEntra.PrimeraFila() && e.fila <= s.Resultados.QEntra.UltimaFila() &&
           e.fila <= s.Resultados.QSale.UltimaFila() && s.Resultados.QEntra.TopeColumna() >= n &&
           s.Resultados.QSale.TopeColumna() >= n && e.H.UltimaFila() >= e.numero && e.H.TopeColumna() >= n &&
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

/// Works out all midpoints. Returns whether they can stand for the bisection.
bool TablaNodos(NodosPiscina& nodos, Curvas& curvas, float base, float tope, double paso)
{
    const std::vector<float> alturas = PuntosMedios(base, tope);
    const std::size_t n = alturas.size();
    nodos.nodo.resize(n);
    nodos.U.resize(n);
    for (std::size_t i = 1; i < n; ++i) {
        nodos.nodo[i] = curvas.En(alturas[i], paso);
        nodos.U[i] = nodos.nodo[i].u;
    }
    return n > 1 && std::is_sorted(nodos.U.begin() + 1, nodos.U.end());
}

/// Appends the rows of a column of a table behind their count, unless the array is too short for them.
void AgregaColumna(std::vector<float>& clave, const auto& columna, int numero,
                   const model::Arreglo<std::int16_t>& filas)
{
    const int n = numero <= filas.Tope() ? filas(numero) : 0;
    clave.push_back(static_cast<float>(n));
    if (n < 1 || numero > columna.UltimaFila() || n > columna.TopeColumna()) return;
    const auto* primera = columna.Fila(numero) + 1;
    clave.insert(clave.end(), primera, primera + n);
}

/// All that the midpoints of the component in hand are worked out from, and whether they may be.
void ArmaClave(const Siro& s, const EmbalseEnMano& e, std::vector<float>& clave)
{
    clave.assign({static_cast<float>(s.Pasos.PasoQ), s.Resultados.SActual});
    AgregaColumna(clave, e.tablaH, e.numero, e.filasTabla);
    AgregaColumna(clave, e.tablaS, e.numero, e.filasTabla);
    if (s.CompActual.clase == model::ComponenteActual::Clase::Lago) {
        AgregaColumna(clave, s.Red.LagoQ, e.numero, s.Red.LagoFilas);
        return;
    }
    const model::Represa& r = s.Red.ColRepresas.Item(s.CompActual.item);
    if (r.optTabla) {
        AgregaColumna(clave, s.Red.RepresaQH, e.numero, s.Red.RepresaFilasHQ);
        AgregaColumna(clave, s.Red.RepresaQQ, e.numero, s.Red.RepresaFilasHQ);
        return;
    }
    for (const auto* coeficientes : {&r.FQa, &r.FQb, &r.FQc, &r.FQmin, &r.FQMax})
        clave.insert(clave.end(), coeficientes->begin(), coeficientes->end());
    clave.insert(clave.end(), r.chkFQ.begin(), r.chkFQ.end());
}

/// The table of midpoints of the component in hand, from the memory where its curves are still the same.
const NodosPiscina& NodosDe(Corrida& c, const EmbalseEnMano& e, float base, float tope)
{
    auto& tablas = c.memoria.piscinas;
    if (tablas.size() < c.s.Resultados.Secuencia.size()) tablas.resize(c.s.Resultados.Secuencia.size());
    NodosPiscina& nodos = tablas[static_cast<std::size_t>(e.fila)];
    ArmaClave(c.s, e, c.memoria.clave);
    if (nodos.clave == c.memoria.clave) return nodos;
    nodos.clave = c.memoria.clave;
    Curvas curvas;
    nodos.sirve =
        curvas.Prepara(c.s, e, base, tope) && TablaNodos(nodos, curvas, base, tope, c.s.Pasos.PasoQ);
    if (nodos.sirve) nodos.cotaDescarga = curvas.CotaDescarga(base, tope);
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
    if (!((s.Resultados.NroPasosQ + 1) *
              double{MayorAbsoluto(s.Resultados.QEntra.Fila(e.fila), 0, s.Resultados.NroPasosQ)} <
          CaudalModerado))
        return false;
    // T falls by twice the outflow in every step.
    const auto moderada = [&](double cota) {
        return std::fabs(T) + s.Resultados.NroPasosQ * 2 * cota < CaudalModerado;
    };
    if (c.memoria.VariasCorridas) {
        const NodosPiscina& nodos = NodosDe(c, e, base, tope);
        if (nodos.sirve) {
            if (!moderada(nodos.cotaDescarga)) return false;
            Recorre(c, e, T, PorNodos(nodos));
            return true;
        }
    }
    Curvas curvas;
    if (!curvas.Prepara(s, e, base, tope) || !moderada(curvas.CotaDescarga(base, tope))) return false;
    Recorre(c, e, T, PorCamino(curvas, base, tope, s.Pasos.PasoQ));
    return true;
}

}  // namespace engine
