// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/SerieRapida.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

#include "engine/Memoria.h"
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

void Pone(Siro& s, const TormentaLista& t)
{
    s.Serie.IndSerie = static_cast<std::int16_t>(t.numero);
    s.Tormenta = t.Tormenta;
    s.Hietograma = t.Hietograma;
}

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

/// What the threads share: storms are taken in order, the first that isn't silent stops the rest.
struct Reparto {
    const std::vector<TormentaLista>& listas;
    std::size_t cuantas;  ///< storms to run
    std::atomic<std::size_t> siguiente{0};
    std::atomic<std::size_t> tope{cuantas};  ///< place of the first storm that isn't silent
};

/// Runs one storm in a state of its own. Returns false where it isn't silent, or there is no memory for it.
bool CorreEnSilencio(Siro& s, Memoria& memoria, const TormentaLista& tormenta)
{
    Pone(s, tormenta);
    try {
        ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = false, .ConVolumenes = false}, memoria);
        return true;
    } catch (const FinDelPrograma&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// One thread's work. Returns the places of the storms that it ran, in order.
std::vector<std::size_t> Trabaja(Siro& s, Reparto& reparto, const std::function<void(int)>& avisa)
{
    Memoria memoria;
    memoria.VariasCorridas = reparto.cuantas > 1;
    std::vector<std::size_t> hechas;
    hechas.reserve(reparto.cuantas);
    for (std::size_t i = reparto.siguiente++; i < reparto.tope; i = reparto.siguiente++) {
        if (avisa) avisa(reparto.listas[i].numero);
        if (CorreEnSilencio(s, memoria, reparto.listas[i])) {
            hechas.push_back(i);
            continue;
        }
        std::size_t tope = reparto.tope;
        while (i < tope && !reparto.tope.compare_exchange_weak(tope, i)) {
        }
    }
    return hechas;
}

/// A state of its own to run storms in, and the places of those that it ran.
struct Obrero {
    Siro estado;
    std::vector<std::size_t> hechas{};
};

void Contrata(std::deque<Obrero>& obreros, const Siro& s)
{
    obreros.push_back({s});
    obreros.back().estado.Anfitrion = AnfitrionMudo();
}

/// One more thread. Returns false where the system has none, or no memory for its state: those that run
/// already do the work.
bool EmpiezaOtro(std::deque<Obrero>& obreros, const Siro& s, std::vector<std::jthread>& ayudantes,
                 Reparto& reparto)
{
    const std::size_t antes = obreros.size();
    try {
        Contrata(obreros, s);
        Obrero& nuevo = obreros.back();
        ayudantes.emplace_back([&nuevo, &reparto] {
            try {
                nuevo.hechas = Trabaja(nuevo.estado, reparto, {});
            } catch (const std::bad_alloc&) {  // ahead of its first storm: the others take them
            }
        });
        return true;
    } catch (const std::system_error&) {
    } catch (const std::bad_alloc&) {
    }
    if (obreros.size() > antes) obreros.pop_back();
    return false;
}

/// Leaves in `s` what a storm leaves behind in a run one after another.
void PonEstadoTras(Siro& s, const TormentaLista& tormenta)
{
    Pone(s, tormenta);
    const model::Anfitrion anfitrion = std::exchange(s.Anfitrion, AnfitrionMudo());
    Memoria memoria;
    ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = false, .ConVolumenes = true}, memoria);
    s.Anfitrion = anfitrion;
}

}  // namespace

std::size_t CorreTormentasSinAvisos(Siro& s, const std::vector<int>& numeros, int hilos,
                                    const std::function<void(int)>& avisa)
{
    if (numeros.size() < 2 || s.Serie.NroSeriePDR < 2) return 0;
    const std::vector<TormentaLista> listas = Prepara(s, numeros);
    Reparto reparto{listas, std::min(listas.size(), numeros.size() - 1)};
    const auto cuantos = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(hilos, 1)), 1,
                                                 std::max<std::size_t>(reparto.cuantas, 1));
    std::deque<Obrero> obreros;
    {
        std::vector<std::jthread> ayudantes;
        ayudantes.reserve(cuantos);
        Contrata(obreros, s);
        while (obreros.size() < cuantos && EmpiezaOtro(obreros, s, ayudantes, reparto)) {
        }
        obreros.front().hechas = Trabaja(obreros.front().estado, reparto, avisa);
    }
    const std::size_t completas = reparto.tope;
    for (const Obrero& obrero : obreros)
        for (const std::size_t i : obrero.hechas)
            if (i < completas) s.Resultados.TraeTormenta(obrero.estado.Resultados, listas[i].numero);
    if (completas > 0) PonEstadoTras(s, listas[completas - 1]);
    return completas;
}

}  // namespace engine
