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

}  // namespace

Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas, Memoria& memoria)
{
    Oyente oyente;
    model::Siro s;
    s.Anfitrion = oyente.Puerta();
    s.Red = red;
    s.Tormenta = tormenta;
    s.Pasos = pasos;
    s.TablasDeLluvia = tablas;
    s.Control.AvisoDescargasVisto = true;  // several outfalls are no notice of a run
    if (s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR) s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
    FinCalculo fin = FinCalculo::Terminado;
    try {
        ConstruyeHietograma(s, TablasPersonales::EnMemoria);
        const bool completo = ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = false}, memoria);
        fin = completo ? FinCalculo::Completo : FinCalculo::Rechazado;
    } catch (const model::FinDelPrograma&) {
    }
    return {fin, std::move(oyente.avisos), std::move(s.Resultados), std::move(s.Tormenta),
            std::move(s.Hietograma)};
}

Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas)
{
    Memoria memoria;
    return Calcula(red, tormenta, pasos, tablas, memoria);
}

}  // namespace engine
