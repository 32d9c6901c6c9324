// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <vector>

#include "engine/Piscina.h"
#include "hydraulics/Curva.h"
#include "model/Siro.h"

namespace engine {

using hydraulics::PuntoMedio;
using hydraulics::SigueAbierto;

namespace {

/// Storage and outflow of a component by height, for heights in which neither can ask or fault.
class Curvas {
  public:
    explicit Curvas(std::int16_t paso) : PasoQ(paso) {}
    /// Whether the level pool of an embalse that begins with storage S0 can be routed with them.
    bool Prepara(const EmbalseEnMano& e, float S0)
    {
        rango = e.Alturas();
        almacenamiento = hydraulics::CurvaAlmacenamiento(e);
        if (almacenamiento.Filas() == 0) return false;
        descarga = hydraulics::CurvaDescarga(e);
        if (!descarga.SinPreguntas(rango.minimo, rango.maximo)) return false;
        const std::int32_t* S = e.tablaS.Fila(e.numero) + 1;
        const auto [menor, mayor] = std::minmax_element(S, S + almacenamiento.Filas());
        const auto menorS = static_cast<float>(*menor), mayorS = static_cast<float>(*mayor);
        return hydraulics::AlmacenamientosSinPreguntas(e).Abarca(std::min(menorS, S0), std::max(mayorS, S0));
    }
    Nodo En(float h)
    {
        const auto S = static_cast<float>(almacenamiento.Valor(h, filaS));
        return NodoEn(h, S, descarga.Valor(h, filaQ), PasoQ);
    }
    [[nodiscard]] hydraulics::RangoAlturas Rango() const { return rango; }

  private:
    hydraulics::CurvaLineal almacenamiento;
    hydraulics::CurvaDescarga descarga;
    hydraulics::RangoAlturas rango;
    std::int16_t PasoQ;
    int filaS = 0, filaQ = 0;
};

/// Bisections that go on where their way leaves that of the one before: what a midpoint gives doesn't change
/// with time.
class PorCamino {
  public:
    PorCamino(const EmbalseEnMano& embalse, Curvas& lasCurvas, const Nodo& nodo)
        : e(embalse), curvas(lasCurvas), inicial(nodo)
    {
    }
    Nodo operator()(float W)
    {
        std::size_t n = 0;
        while (n < hondo && (camino[n].medio.u > W) == camino[n].encima)
            ++n;
        hydraulics::RangoAlturas queda = n > 0 ? camino[n - 1].queda : curvas.Rango();
        Nodo medio = n > 0 ? camino[n - 1].medio : inicial;
        const auto sigue = [&] {
            const bool encima = medio.u > W;
            (encima ? queda.maximo : queda.minimo) = medio.h;
            if (n < camino.size()) camino[n++] = {medio, encima, queda};
        };
        if (n < hondo) {
            medio = camino[n].medio;
            sigue();
        }
        BisecaPiscina(e, queda, W, [&](float h) {
            medio = curvas.En(h);
            sigue();
            return medio.u;
        });
        hondo = n;
        return medio;
    }

  private:
    struct Vuelta {
        Nodo medio{};
        bool encima = false;               ///< it is above the target
        hydraulics::RangoAlturas queda{};  ///< the bracket that it leaves
    };
    const EmbalseEnMano& e;
    Curvas& curvas;
    Nodo inicial;
    std::array<Vuelta, 32> camino{};  ///< of the last bisection, as far as there is room for it
    std::size_t hondo = 0;            ///< rounds in it
};

/// Bisections looked up among all midpoints, worked out beforehand: U rises with them, so that a walk from
/// the place of the step before finds the last one that isn't above the target.
class PorNodos {
  public:
    explicit PorNodos(const NodosPiscina& losNodos)
        : nivel(losNodos.nivel.data()),
          embalsado(losNodos.embalsado.data()),
          ultimo(static_cast<int>(losNodos.nivel.size()) - 1)
    {
    }
    Nodo operator()(float W)
    {
        // The level goes on as it went in the step before, more or less.
        const int antes = lugar;
        lugar = std::clamp(lugar + recorrido, 0, ultimo);
        if (lugar < ultimo && !(nivel[lugar + 1].u > W))
            Sube(W);
        else if (lugar > 0 && nivel[lugar].u > W)
            Baja(W);
        recorrido = lugar - antes;
        const int medio = lugar | 1;  // the bracket's last midpoint stands at its odd end
        return {embalsado[medio].h, embalsado[medio].s, nivel[medio].q, nivel[medio].u};
    }

  private:
    bool Alcanza(int i, float W) const { return i <= ultimo && !(nivel[i].u > W); }
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
        for (; encima - salto > 0 && nivel[encima - salto].u > W; salto *= 2)
            encima -= salto;
        int debajo = std::max(0, encima - salto);
        while (encima - debajo > 1) {
            const int medio = (encima + debajo) / 2;
            (nivel[medio].u > W ? encima : debajo) = medio;
        }
        lugar = debajo;
    }
    const NodosPiscina::Nivel* nivel;
    const NodosPiscina::Embalsado* embalsado;
    int ultimo;         ///< greatest place of a midpoint
    int lugar = 0;      ///< last midpoint that isn't above the target; 0: none
    int recorrido = 0;  ///< places that the last search moved on
};

/// The midpoints that a bisection can visit, in rising height behind a slot 0.
/// Empty where two halvings of one level don't end alike, so that they are no full tree.
std::vector<float> PuntosMedios(hydraulics::RangoAlturas rango)
{
    constexpr std::size_t MaximoNodos = 1 << 15;
    std::vector<float> puntos{rango.minimo, rango.maximo};
    while (true) {
        std::size_t abiertos = 0;
        for (std::size_t i = 0; i + 1 < puntos.size(); ++i)
            abiertos += SigueAbierto(puntos[i + 1], puntos[i], AnchoFinal) ? 1 : 0;
        if (abiertos == 0) break;
        if (abiertos != puntos.size() - 1 || puntos.size() > MaximoNodos) return {};
        std::vector<float> finos;
        finos.reserve(2 * puntos.size());
        for (std::size_t i = 0; i + 1 < puntos.size(); ++i) {
            finos.push_back(puntos[i]);
            finos.push_back(PuntoMedio(puntos[i + 1], puntos[i]));
        }
        finos.push_back(rango.maximo);
        puntos.swap(finos);
    }
    puntos.pop_back();
    return puntos;
}

/// Works out all midpoints. Returns whether they can stand for the bisection.
bool TablaNodos(NodosPiscina& nodos, Curvas& curvas, hydraulics::RangoAlturas rango)
{
    const std::vector<float> alturas = PuntosMedios(rango);
    const std::size_t n = alturas.size();
    nodos.nivel.resize(n);
    nodos.embalsado.resize(n);
    for (std::size_t i = 1; i < n; ++i) {
        const Nodo nodo = curvas.En(alturas[i]);
        nodos.nivel[i] = {nodo.u, nodo.q};
        nodos.embalsado[i] = {nodo.h, nodo.s};
    }
    return n > 1 && std::is_sorted(nodos.nivel.begin() + 1, nodos.nivel.end(),
                                   [](const auto& a, const auto& b) { return a.u < b.u; });
}

/// Appends the rows of a column of a table behind their count, unless the array is too short for them.
void AgregaColumna(std::vector<float>& clave, const auto& columna, int numero,
                   const model::Arreglo<std::int16_t>& filas)
{
    const int n = numero <= filas.Tope() ? filas(numero) : 0;
    clave.push_back(static_cast<float>(n));
    if (n < 1 || !columna.Alcanza(numero, n)) return;
    const auto* primera = columna.Fila(numero) + 1;
    clave.insert(clave.end(), primera, primera + n);
}

/// All that the midpoints of a component are worked out from, and whether they may be.
void ArmaClave(const Corrida& c, const EmbalseEnMano& e, std::vector<float>& clave)
{
    clave.assign({static_cast<float>(c.s.Pasos.PasoQ), c.SActual});
    AgregaColumna(clave, e.tablaH, e.numero, e.filas);
    AgregaColumna(clave, e.tablaS, e.numero, e.filas);
    if (e.funciones == nullptr) {
        if (&e.tablaHQ != &e.tablaH) AgregaColumna(clave, e.tablaHQ, e.numero, e.filasQ);
        AgregaColumna(clave, e.tablaQ, e.numero, e.filasQ);
        return;
    }
    const model::Represa& r = *e.funciones;
    for (const auto* coeficientes : {&r.FQa, &r.FQb, &r.FQc, &r.FQmin, &r.FQMax})
        clave.insert(clave.end(), coeficientes->begin(), coeficientes->end());
    clave.insert(clave.end(), r.chkFQ.begin(), r.chkFQ.end());
}

/// The table of midpoints of a component, from the memory where its curves are still the same. Where they
/// have changed it waits for a second run with the same ones: it wouldn't pay for curves that change with
/// every run.
const NodosPiscina& NodosDe(Corrida& c, const EmbalseEnMano& e)
{
    auto& tablas = c.memoria.piscinas;
    if (tablas.size() < c.s.Resultados.Secuencia.size()) tablas.resize(c.s.Resultados.Secuencia.size());
    NodosPiscina& nodos = tablas[static_cast<std::size_t>(e.fila)];
    ArmaClave(c, e, c.memoria.clave);
    const bool cambia = !nodos.clave.empty() && nodos.clave != c.memoria.clave;
    if (cambia) nodos.armados = nodos.sirve = false;
    nodos.clave = c.memoria.clave;
    if (cambia || nodos.armados) return nodos;
    nodos.armados = true;
    Curvas curvas(c.s.Pasos.PasoQ);
    nodos.sirve = curvas.Prepara(e, c.SActual) && TablaNodos(nodos, curvas, e.Alturas());
    return nodos;
}

}  // namespace

bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T, const Nodo& inicial)
{
    const int pasos = c.s.Resultados.NroPasosQ;
    if (!c.Alcanzan() || !e.H.Alcanza(e.numero, pasos) || !e.S.Alcanza(e.numero, pasos)) return false;
    if (c.memoria.VariasCorridas) {
        const NodosPiscina& nodos = NodosDe(c, e);
        if (nodos.sirve) {
            PorNodos busca(nodos);
            if (!c.ConVolumenes) {
                RecorrePiscina<FilasSinEmbalse>(c, e, T, busca);
                return true;
            }
            RecorrePiscina<FilasProbadas>(c, e, T, busca);
            c.SActual = e.S(e.numero, pasos);
            return true;
        }
    }
    Curvas curvas(c.s.Pasos.PasoQ);
    if (!curvas.Prepara(e, c.SActual)) return false;
    PorCamino busca(e, curvas, inicial);
    RecorrePiscina<FilasProbadas>(c, e, T, busca);
    c.SActual = e.S(e.numero, pasos);
    return true;
}

}  // namespace engine
