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
    model::Siro& s = estado->s;
    Calculo& c = estado->calculo;
    std::vector<AvisoDeCalculo>& avisos = estado->oyente.avisos;
    const auto corre = [&] {
        avisos.clear();
        s.Serie = {};
        PonTormenta(s, tormenta);
        s.Hietograma = hietograma;
        c.fin = engine::Corre(s, false, estado->memoria);
    };
    std::swap(s.Resultados, c.Resultados);
    corre();
    if (c.fin != FinCalculo::Completo || !avisos.empty()) {
        s.Resultados = {};  // a fault goes on with what stands there
        corre();
    }
    std::swap(s.Resultados, c.Resultados);
    std::swap(s.Tormenta, c.Tormenta);
    std::swap(s.Hietograma, c.Hietograma);
    avisos.swap(c.avisos);
    return c;
}

}  // namespace engine
