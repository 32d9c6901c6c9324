// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/AvisosDeSerie.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <iterator>
#include <string>
#include <utility>

#include "checks/AvisosDeCorrida.h"
#include "checks/ReglasDeAvisos.h"
#include "engine/Hilos.h"
#include "engine/mdlSeriePDR.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace checks {

namespace {

constexpr int NumeroDePico = 101;

std::string Entero(int n)
{
    return std::to_string(n);
}

/// "12: 1, 4, 7, ...": how many storms, and the first ones.
std::string Lista(const std::vector<int>& numeros)
{
    constexpr std::size_t Mostradas = 12;
    std::string texto = Entero(static_cast<int>(numeros.size())) + ": ";
    for (std::size_t i = 0; i < numeros.size() && i < Mostradas; ++i)
        texto.append(i > 0 ? ", " : "").append(Entero(numeros[i]));
    return texto + (numeros.size() > Mostradas ? ", ..." : "");
}

/// A reason why a series leaves storms out, and those that it leaves out for it.
struct Salteadas {
    Hallazgo hallazgo;
    std::vector<int> numeros{};
};

template <std::size_t N>
bool SinTilde(const std::array<std::int16_t, N>& valores, const std::array<std::int16_t, N>& marcas,
              int valor)
{
    const auto v = std::find(valores.begin(), valores.end(), valor);
    return v != valores.end() && marcas[static_cast<std::size_t>(v - valores.begin())] == 0;
}

/// Runs `hace(memory, i)` for i = 0..cuantos-1 on several threads, this one among them. Throws std::bad_alloc
/// where a thread met it.
void EnHilos(std::size_t cuantos, int hilos, const std::function<void(engine::Memoria&, std::size_t)>& hace)
{
    std::atomic<std::size_t> siguiente{0};
    engine::EnHilos(hilos, cuantos, [&](bool) {
        engine::Memoria memoria;
        memoria.VariasCorridas = cuantos > 1;
        for (std::size_t i = siguiente++; i < cuantos; i = siguiente++)
            hace(memoria, i);
    });
}

model::Tormenta Tormenta(const model::Siro& s, int numero)
{
    model::Tormenta t = s.Tormenta;
    model::TomaTormenta(t, s.Serie, numero);
    return t;
}

/// A finding over the storms that have it.
struct Junto {
    HallazgoMedido peor;
    int tormenta;       ///< in which it is worst
    int veces = 1;      ///< storms that have it
    bool igual = true;  ///< it is the same in all of them
};

void Junta(std::vector<Junto>& juntos, HallazgoMedido h, int tormenta)
{
    const auto mismo = std::find_if(juntos.begin(), juntos.end(), [&](const Junto& j) {
        return j.peor.hallazgo.numero == h.hallazgo.numero &&
               j.peor.hallazgo.componente == h.hallazgo.componente;
    });
    if (mismo == juntos.end()) {
        juntos.push_back({std::move(h), tormenta});
        return;
    }
    ++mismo->veces;
    mismo->igual = mismo->igual && mismo->peor.hallazgo == h.hallazgo;
    if (h.magnitud <= mismo->peor.magnitud) return;
    mismo->peor = std::move(h);
    mismo->tormenta = tormenta;
}

Hallazgo Resumen(const model::Siro& s, const Junto& j, std::size_t tormentas)
{
    Hallazgo h = j.peor.hallazgo;
    if (j.igual && j.veces == static_cast<int>(tormentas)) return h;
    const int k = j.tormenta;
    h.cuanto += " en la tormenta " + Entero(k) + " (P=" + model::NumeroATexto(s.Serie.SerieP(k)) +
                " mm, D=" + Entero(s.Serie.SerieD(k)) + " min, R=" + Entero(s.Serie.SerieR(k)) +
                " años); en " + Entero(j.veces) + " de " + Entero(static_cast<int>(tormentas)) + " tormentas";
    return h;
}

/// An added time that suffices for several storms: that of the longest one, and longer where another asks for
/// it.
TiempoAgregado TiempoParaTodas(const model::Siro& s, std::vector<int> numeros, int hilos)
{
    const auto larga = std::max_element(numeros.begin(), numeros.end(),
                                        [&](int a, int b) { return s.Serie.SerieD(a) < s.Serie.SerieD(b); });
    engine::Memoria suya;
    TiempoAgregado mejor = TiempoQueAlcanza(s.Red, Tormenta(s, *larga), s.Pasos, s.TablasDeLluvia, suya);
    if (!mejor.alcanza) return mejor;
    model::Pasos pasos = s.Pasos;
    pasos.N0Dur = mejor.minutos;
    std::vector<TiempoAgregado> tiempos(numeros.size(), mejor);
    EnHilos(numeros.size(), hilos, [&](engine::Memoria& memoria, std::size_t i) {
        const model::Tormenta t = Tormenta(s, numeros[i]);
        const engine::Calculo c = engine::Calcula(s.Red, t, pasos, s.TablasDeLluvia, memoria);
        if (HayPicoAlFinal(c.Resultados))
            tiempos[i] = TiempoQueAlcanza(s.Red, t, pasos, s.TablasDeLluvia, memoria);
    });
    for (const TiempoAgregado& t : tiempos)
        if (!t.alcanza || t.minutos > mejor.minutos) mejor = t;
    return mejor;
}

/// What a storm has, but for the time that would help.
std::vector<HallazgoMedido> Juzga(const model::Siro& s, int numero, const engine::Calculo& calculo)
{
    const model::Tormenta t = Tormenta(s, numero);
    const Corrido c(s.Red, t, s.Pasos, calculo);
    return BuscaAvisos(c, c.TieneResultados() ? BalanceDe(c) : Balance{}, {});
}

}  // namespace

Seleccionadas TormentasDeSerie(const model::Siro& s)
{
    enum Motivo : std::uint8_t { Corta, SinDuracion, SinRecurrencia, Nula };
    std::array<Salteadas, 4> motivos{};
    for (std::size_t i = 0; i < motivos.size(); ++i) {
        const ReglaDeAviso& regla = ReglasDeAvisos[ReglasDeAvisos.size() - motivos.size() + i];
        motivos[i].hallazgo = {regla.gravedad,         regla.numero, {},
                               std::string(regla.que), {},           std::string(regla.remedio)};
    }
    Seleccionadas elegidas;
    model::Siro copia;
    copia.Serie = s.Serie;
    copia.Pasos = s.Pasos;
    copia.Configuracion = s.Configuracion;
    for (int k = 1; k <= s.Serie.NroSeriePDR; ++k) {
        const int D = s.Serie.SerieD(k);
        if (D == 0 || s.Serie.SerieP(k) == 0 || !motivos[Nula].numeros.empty()) {
            motivos[Nula].numeros.push_back(k);
            continue;
        }
        copia.Serie.IndSerie = static_cast<std::int16_t>(k);
        engine::SaltaTormenta(copia);
        if (!copia.Serie.SaltarTormenta) {
            elegidas.numeros.push_back(k);
            continue;
        }
        const bool sinDuracion = SinTilde(model::Duraciones, s.Configuracion.CheckD, D);
        motivos[D < s.Pasos.PasoPp ? Corta : sinDuracion ? SinDuracion : SinRecurrencia].numeros.push_back(k);
    }
    for (Salteadas& m : motivos) {
        if (m.numeros.empty()) continue;
        m.hallazgo.cuanto = Lista(m.numeros);
        elegidas.avisos.push_back(std::move(m.hallazgo));
    }
    return elegidas;
}

void VigiaDeSerie::Mira(int numero, const engine::Calculo* calculo)
{
    std::vector<HallazgoMedido> suyos;
    if (calculo != nullptr) suyos = Juzga(s, numero, *calculo);
    const std::scoped_lock uno(candado);
    if (calculo == nullptr)
        porTormenta.erase(numero);
    else
        porTormenta[numero] = std::move(suyos);
}

std::vector<Hallazgo> VigiaDeSerie::Avisos(int hilos)
{
    const Seleccionadas elegidas = TormentasDeSerie(s);
    const std::vector<int>& numeros = elegidas.numeros;
    std::vector<int> faltan;
    std::copy_if(numeros.begin(), numeros.end(), std::back_inserter(faltan),
                 [&](int numero) { return !porTormenta.contains(numero); });
    EnHilos(faltan.size(), hilos, [&](engine::Memoria& memoria, std::size_t i) {
        const model::Tormenta t = Tormenta(s, faltan[i]);
        const engine::Calculo calculo = engine::Calcula(s.Red, t, s.Pasos, s.TablasDeLluvia, memoria);
        Mira(faltan[i], &calculo);
    });

    std::vector<Junto> juntos;
    std::vector<int> conPicoAlFinal;
    for (const int numero : numeros)
        for (const HallazgoMedido& h : porTormenta[numero]) {
            if (h.hallazgo.numero == NumeroDePico &&
                (conPicoAlFinal.empty() || conPicoAlFinal.back() != numero))
                conPicoAlFinal.push_back(numero);
            Junta(juntos, h, numero);
        }
    std::string remedio;
    if (!conPicoAlFinal.empty())
        remedio = RemedioDePico(TiempoParaTodas(s, conPicoAlFinal, hilos), s.Pasos.N0Dur);
    std::vector<Hallazgo> avisos;
    for (const Junto& j : juntos) {
        avisos.push_back(Resumen(s, j, numeros.size()));
        if (j.peor.hallazgo.numero == NumeroDePico) avisos.back().remedio = remedio;
    }
    avisos.insert(avisos.end(), elegidas.avisos.begin(), elegidas.avisos.end());
    std::stable_sort(avisos.begin(), avisos.end(),
                     [](const Hallazgo& a, const Hallazgo& b) { return a.numero < b.numero; });
    OrdenaPorGravedad(avisos);
    return avisos;
}

std::vector<Hallazgo> AvisosDeSerie(const model::Siro& s, int hilos)
{
    return VigiaDeSerie(s).Avisos(hilos);
}

}  // namespace checks
