// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/SerieRapida.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>

#include "engine/Hilos.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "model/Anfitrion.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Tormenta.h"

namespace engine {

using model::FinDelPrograma;
using model::Siro;

namespace {

/// A host without a user: whatever would be shown or asked ends the storm.
model::Anfitrion AnfitrionMudo()
{
    model::Anfitrion mudo;
    mudo.Avisa = [](const model::Mensaje&) { throw FinDelPrograma{}; };
    mudo.Pregunta = [](const model::Mensaje&) -> bool { throw FinDelPrograma{}; };
    mudo.Termina = [] { throw FinDelPrograma{}; };
    return mudo;
}

/// A storm of the series and its hyetograph, in which earlier ones may have left something.
struct TormentaLista {
    int numero = 0;
    model::Tormenta Tormenta{};
    model::Hietograma Hietograma{};
};

/// Asks for the rain of each model step, as the run does: that can cut or lengthen the hyetograph's arrays.
void GastaLluvia(Siro& s)
{
    const double x = model::Cociente(s.Tormenta.DurTormenta + double{s.Pasos.N0Dur}, s.Pasos.PasoPp);
    const double pasos = std::min(std::ceil(x), 32767.0);
    for (std::int16_t k = 1; k < pasos && k * s.Pasos.PasoPp < s.Tormenta.DurTormenta + s.Pasos.PasoPp; ++k)
        PpDelPaso(s, k);
}

/// The storms in order, up to the first whose hyetograph can't be built in silence.
std::vector<TormentaLista> Prepara(Siro s, const std::vector<int>& numeros)
{
    s.Anfitrion = AnfitrionMudo();
    std::vector<TormentaLista> listas;
    try {
        for (const int numero : numeros) {
            model::TomaTormenta(s.Tormenta, s.Serie, numero);
            ConstruyeHietograma(s);
            listas.push_back({numero, s.Tormenta, s.Hietograma});
            GastaLluvia(s);
        }
    } catch (const FinDelPrograma&) {
    } catch (const model::Falla&) {
        listas.pop_back();  // the run itself would report it
    }
    return listas;
}

/// Runs a storm as a function and takes over what a series keeps of it. Returns false where it has something
/// to say, or there is no memory for it.
bool Corre(Siro& s, Calculadora& calculadora, const TormentaLista& lista, const MiraTormenta& mira)
{
    try {
        const Calculo& calculo = calculadora.Corre(lista.Tormenta, lista.Hietograma);
        if (calculo.fin != FinCalculo::Completo || !calculo.avisos.empty()) return false;
        s.Resultados.TraeTormenta(calculo.Resultados, 1, lista.numero);
        if (mira) mira(lista.numero, &calculo);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void Baja(std::atomic<std::size_t>& tope, std::size_t hasta)
{
    std::size_t antes = tope;
    while (hasta < antes && !tope.compare_exchange_weak(antes, hasta)) {
    }
}

/// Leaves in `s` what a storm leaves behind in a run one after another.
void PonEstadoTras(Siro& s, const TormentaLista& t)
{
    s.Serie.IndSerie = static_cast<std::int16_t>(t.numero);
    s.Tormenta = t.Tormenta;
    s.Hietograma = t.Hietograma;
    Memoria memoria;
    ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = false}, memoria);
}

}  // namespace

std::size_t CorreTormentasSinAvisos(Siro& s, const std::vector<int>& numeros, int hilos,
                                    const std::function<void(int)>& avisa, const MiraTormenta& mira)
{
    if (numeros.size() < 2 || s.Serie.NroSeriePDR < 2) return 0;
    const std::vector<TormentaLista> listas = Prepara(s, numeros);
    const std::size_t cuantas = std::min(listas.size(), numeros.size() - 1);
    std::atomic<std::size_t> siguiente{0};
    std::atomic<std::size_t> tope{cuantas};  // place of the first storm that isn't silent
    EnHilos(hilos, cuantas, [&](bool aparte) {
        try {
            // Who looks wants heights and storages too, which storms that are only summed up leave out.
            Calculadora calculadora(s.Red, s.Pasos, {.VariasCorridas = cuantas > 1 && !mira});
            for (std::size_t i = siguiente++; i < tope; i = siguiente++) {
                if (avisa && !aparte) avisa(listas[i].numero);
                if (!Corre(s, calculadora, listas[i], mira)) Baja(tope, i);
            }
        } catch (const std::bad_alloc&) {  // ahead of its first storm: the others take them
            if (!aparte) throw;
        }
    });
    model::Resultados nada;
    nada.NroComponentes = s.Resultados.NroComponentes;
    nada.DimensionaTormentas(s.Red.NroUEHs(), 1);
    for (std::size_t i = tope; i < cuantas; ++i)
        s.Resultados.TraeTormenta(nada, 1, listas[i].numero);
    if (tope > 0) PonEstadoTras(s, listas[tope - 1]);
    return tope;
}

}  // namespace engine
