// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/ModeloDe.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

namespace runs {

using model::FormaLluvia;
using model::Siro;
using study::Evento;

namespace {

constexpr std::int16_t PorBloques = 7;    // the temporal distribution that a recorded storm is run with
constexpr double MaximoSimulado = 30000;  // [min], within 16 bits with a step to spare

/// The greatest step that isn't above `paso` and goes into the model step a whole number of times.
std::int16_t PasoQueDivide(std::int16_t paso, std::int16_t PasoPp)
{
    paso = std::clamp(paso, std::int16_t{1}, std::max(PasoPp, std::int16_t{1}));
    while (PasoPp % paso != 0)
        --paso;
    return paso;
}

/// A state with the project's place on the disk and nothing else.
Siro Aparte(const Siro& s)
{
    Siro aparte;
    aparte.Disco = s.Disco;
    aparte.Proyecto = s.Proyecto;
    return aparte;
}

/// Takes the recorded storm of an event; why it can't be, without a capital.
std::string TomaRegistrada(const Siro& s, const std::string& archivo, Lluvia& lluvia)
{
    if (archivo.empty()) return "falta elegir la tormenta registrada.";
    Siro aparte = Aparte(s);
    model::TormentaReal real;
    real.nombre = archivo;
    const bool deTormenta =
        archivo.ends_with(model::TerminacionTormenta) && archivo.find_first_of("/\\") == std::string::npos;
    if (deTormenta) model::LeePpReal(aparte, real);
    if (aparte.Tormenta.NroPpReal < 1 || real.PasoPpReal < 1)
        return "la tormenta registrada " + archivo + " no se pudo leer.";
    lluvia.tormenta = aparte.Tormenta;
    lluvia.tormenta.FormaPp = FormaLluvia::Real;
    lluvia.tormenta.DistriPp = PorBloques;
    lluvia.pasos.PasoPp = real.PasoPpReal;
    return {};
}

void TomaLamina(const study::LluviaDeEvento& l, Lluvia& lluvia)
{
    lluvia.tormenta = {};
    lluvia.tormenta.PpTormenta = static_cast<float>(l.lamina);
    lluvia.tormenta.DurTormenta = static_cast<std::int16_t>(l.duracion);
    lluvia.tormenta.DistriPp = static_cast<std::int16_t>(l.distribucion);
    if (l.duracion > 0) lluvia.pasos.PasoPp = std::min(lluvia.pasos.PasoPp, lluvia.tormenta.DurTormenta);
}

/// Why a storm can't be run, without a capital; empty: it can.
std::string SinLluvia(const Evento& e, const model::Tormenta& t)
{
    if (t.DurTormenta < 1)
        return e.lluvia.origen == "proyecto" ? "no hay ninguna tormenta en mano."
                                             : "la lluvia no tiene duración.";
    bool llueve = t.FormaPp != FormaLluvia::PorUEH && t.PpTormenta > 0;
    for (int i = 1; t.FormaPp == FormaLluvia::PorUEH && i <= t.PpUEH.Tope(); ++i)
        llueve = llueve || t.PpUEH(i) > 0;
    return llueve ? "" : "la lluvia no tiene lámina.";
}

/// The last minute that something was observed at.
double UltimaObservacion(const Evento& evento)
{
    double ultima = 0;
    for (const study::Observacion& o : evento.observaciones)
        for (const study::Punto& p : o.puntos)
            ultima = std::max(ultima, p.minuto);
    return ultima;
}

/// The personal distributions, where a storm is spread by one: a run reads them anew as well.
void TomaTablas(const Siro& s, Modelo& modelo)
{
    modelo.tablas = s.TablasDeLluvia;
    const bool personal = std::ranges::any_of(modelo.lluvias, [](const Lluvia& l) {
        return l.tormenta.FormaPp != FormaLluvia::Real && l.tormenta.DistriPp >= model::PrimeraPersonal;
    });
    if (!personal) return;
    Siro aparte = Aparte(s);
    if (model::LeeTablaDisTemPer(aparte)) modelo.tablas = std::move(aparte.TablasDeLluvia);
}

}  // namespace

LluviaPuesta LluviaDe(const Siro& s, const Evento& e)
{
    LluviaPuesta p{.lluvia = {.nombre = e.nombre, .tormenta = s.Tormenta, .pasos = s.Pasos}};
    Lluvia& lluvia = p.lluvia;
    if (e.lluvia.origen == "registrada")
        p.motivo = TomaRegistrada(s, e.lluvia.archivo, lluvia);
    else if (e.lluvia.origen == "lamina")
        TomaLamina(e.lluvia, lluvia);
    else if (e.lluvia.origen != "proyecto")
        p.motivo = "no se conoce el origen de la lluvia «" + e.lluvia.origen + "».";
    if (p.motivo.empty()) p.motivo = SinLluvia(e, lluvia.tormenta);
    if (!p.motivo.empty())
        p.motivo = (e.nombre.empty() ? "La corrida: " : "El evento \"" + e.nombre + "\": ") + p.motivo;
    lluvia.pasos.PasoQ = PasoQueDivide(lluvia.pasos.PasoQ, lluvia.pasos.PasoPp);
    const double hasta = std::min(std::ceil(UltimaObservacion(e)) + lluvia.pasos.PasoQ, MaximoSimulado);
    lluvia.pasos.N0Dur =
        std::max(lluvia.pasos.N0Dur, static_cast<float>(hasta - lluvia.tormenta.DurTormenta));
    return p;
}

ModeloDeProyecto ModeloDe(const Siro& s, const study::Ajuste& ajuste)
{
    ModeloDeProyecto m;
    m.modelo.red = s.Red;
    std::ranges::copy_if(ajuste.parametros, std::back_inserter(m.modelo.parametros),
                         &study::Parametro::activo);
    const auto agrega = [&](const Evento& e) {
        LluviaPuesta p = LluviaDe(s, e);
        if (!p.motivo.empty()) m.reparos.push_back(std::move(p.motivo));
        m.modelo.lluvias.push_back(std::move(p.lluvia));
    };
    for (std::size_t i = 0; i < ajuste.eventos.size(); ++i) {
        if (ajuste.eventos[i].papel == "fuera") continue;
        agrega(ajuste.eventos[i]);
        m.eventos.push_back(i);
    }
    if (m.eventos.empty()) agrega({});
    TomaTablas(s, m.modelo);
    if (s.Red.ColUEHs.Cuenta() == 0)
        m.reparos.emplace_back("El proyecto no tiene ninguna UEH.");
    else
        std::ranges::move(ReparosDe(m.modelo), std::back_inserter(m.reparos));
    return m;
}

std::size_t LluviaDe(const Modelo& modelo, const std::string& evento)
{
    if (evento.empty()) return 0;
    const auto l = std::ranges::find(modelo.lluvias, evento, &Lluvia::nombre);
    return static_cast<std::size_t>(l - modelo.lluvias.begin());
}

}  // namespace runs
