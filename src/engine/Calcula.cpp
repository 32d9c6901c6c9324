// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Calcula.h"

#include <algorithm>
#include <utility>

#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "model/Siro.h"

namespace engine {

namespace {

/// A host that writes down what it is told, and says Yes.
class Oyente {
  public:
    [[nodiscard]] model::Anfitrion Puerta()
    {
        model::Anfitrion puerta;  // which ends a run by FinDelPrograma
        puerta.Avisa = [this](const model::Mensaje& m) { Anota(m, false); };
        puerta.Pregunta = [this](const model::Mensaje& m) {
            Anota(m, true);
            return true;
        };
        return puerta;
    }
    std::vector<AvisoDeCalculo> avisos{};

  private:
    void Anota(const model::Mensaje& m, bool esPregunta)
    {
        const auto igual = std::find_if(avisos.begin(), avisos.end(), [&](const AvisoDeCalculo& a) {
            if (a.esPregunta != esPregunta) return false;
            return m.repetida.empty() ? a.mensaje == m : a.mensaje.repetida == m.repetida;
        });
        if (igual != avisos.end())
            ++igual->veces;
        else
            avisos.push_back({m, esPregunta});
    }
};

/// A state of a run's own, but for its storm. `oyente` outlives it.
model::Siro EstadoDe(const model::Red& red, const model::Pasos& pasos, Oyente& oyente)
{
    model::Siro s;
    s.Anfitrion = oyente.Puerta();
    s.Red = red;
    s.Pasos = pasos;
    s.Control.AvisoDescargasVisto = true;  // several outfalls are no notice of a run
    return s;
}

void PonTormenta(model::Siro& s, const model::Tormenta& tormenta)
{
    s.Tormenta = tormenta;
    if (s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR) s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
}

/// A storm that is spread over time, and what was told meanwhile.
struct Repartida {
    model::Tormenta tormenta{};
    model::Hietograma hietograma{};
    std::vector<AvisoDeCalculo> avisos{};
};

FinCalculo Corre(model::Siro& s, bool conVolumenes, Memoria& memoria)
{
    try {
        const ModoCorrida modo{.GuardaTexto = false, .ConTexto = false, .ConVolumenes = conVolumenes};
        return ProcesoPrincipal(s, modo, memoria) ? FinCalculo::Completo : FinCalculo::Rechazado;
    } catch (const model::FinDelPrograma&) {
        return FinCalculo::Terminado;
    }
}

}  // namespace

Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas, Memoria& memoria)
{
    Oyente oyente;
    model::Siro s = EstadoDe(red, pasos, oyente);
    PonTormenta(s, tormenta);
    s.TablasDeLluvia = tablas;
    ConstruyeHietograma(s, TablasPersonales::EnMemoria);
    const FinCalculo fin = Corre(s, true, memoria);
    return {fin, std::move(oyente.avisos), std::move(s.Resultados), std::move(s.Tormenta),
            std::move(s.Hietograma)};
}

Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas)
{
    Memoria memoria;
    return Calcula(red, tormenta, pasos, tablas, memoria);
}

struct Calculadora::Estado {
    Oyente oyente{};
    model::Siro s{};
    Memoria memoria{};
    Calculo calculo{};
    Repartida tomada{};

    /// Runs a storm in the arrays of the run before.
    const Calculo& Corre(const model::Tormenta& tormenta, const model::Hietograma& hietograma,
                         const std::vector<AvisoDeCalculo>& previos, bool conVolumenes)
    {
        const auto corre = [&] {
            oyente.avisos = previos;
            s.Serie = {};
            PonTormenta(s, tormenta);
            s.Hietograma = hietograma;
            calculo.fin = engine::Corre(s, conVolumenes, memoria);
        };
        std::swap(s.Resultados, calculo.Resultados);
        corre();
        if (calculo.fin != FinCalculo::Completo || !oyente.avisos.empty()) {
            s.Resultados = {};  // a fault goes on with what stands there
            corre();
        }
        std::swap(s.Resultados, calculo.Resultados);
        std::swap(s.Tormenta, calculo.Tormenta);
        std::swap(s.Hietograma, calculo.Hietograma);
        oyente.avisos.swap(calculo.avisos);
        return calculo;
    }
};

Calculadora::Calculadora(const model::Red& red, const model::Pasos& pasos, Memoria memoria)
    : estado(std::make_unique<Estado>())
{
    estado->s = EstadoDe(red, pasos, estado->oyente);
    estado->memoria = std::move(memoria);
}

Calculadora::~Calculadora() = default;

const Calculo& Calculadora::Corre(const model::Tormenta& tormenta, const model::Hietograma& hietograma)
{
    return estado->Corre(tormenta, hietograma, {}, false);
}

model::Red& Calculadora::Red()
{
    return estado->s.Red;
}

void Calculadora::Toma(const model::Tormenta& tormenta, const model::TablasDeLluvia& tablas)
{
    model::Siro& s = estado->s;
    estado->oyente.avisos.clear();
    PonTormenta(s, tormenta);
    s.Hietograma = {};
    if (tormenta.DistriPp >= model::PrimeraPersonal && tormenta.FormaPp != model::FormaLluvia::Real)
        s.TablasDeLluvia = tablas;
    ConstruyeHietograma(s, TablasPersonales::EnMemoria);
    estado->tomada = {s.Tormenta, s.Hietograma, estado->oyente.avisos};
}

const Calculo& Calculadora::Corre()
{
    const Repartida& r = estado->tomada;
    return estado->Corre(r.tormenta, r.hietograma, r.avisos, true);
}

}  // namespace engine
