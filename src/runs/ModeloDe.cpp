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

constexpr std::int16_t DistribucionReal = 7;  // what the desktop ticks for a recorded storm
constexpr int TopeMinutos = 32767;

/// How a sentence names the storm of an event.
std::string LaLluviaDe(const Evento& e)
{
    return "La tormenta del evento «" + e.nombre + "»";
}

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

/// Takes the recorded storm of an event; why it can't be, as a sentence.
std::string TomaRegistrada(const Siro& s, const Evento& e, Lluvia& lluvia)
{
    const std::string& archivo = e.lluvia.archivo;
    if (!archivo.ends_with(model::TerminacionTormenta) || archivo.find_first_of("/\\") != std::string::npos)
        return LaLluviaDe(e) + " no nombra una tormenta registrada del proyecto, _pt.vlm: «" + archivo + "».";
    Siro aparte = Aparte(s);
    model::TormentaReal real;
    real.nombre = archivo;
    model::LeePpReal(aparte, real);
    if (aparte.Tormenta.NroPpReal < 1 || real.PasoPpReal < 1)
        return "El archivo de la tormenta del evento «" + e.nombre + "» no se puede leer: «" + archivo + "».";
    lluvia.tormenta = aparte.Tormenta;
    lluvia.tormenta.FormaPp = FormaLluvia::Real;
    lluvia.tormenta.DistriPp = DistribucionReal;
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

bool Llueve(const model::Tormenta& t)
{
    if (t.DurTormenta < 1) return false;
    if (t.FormaPp != FormaLluvia::PorUEH) return t.PpTormenta > 0;
    for (int i = 1; i <= t.PpUEH.Tope(); ++i)
        if (t.PpUEH(i) > 0) return true;
    return false;
}

/// Lengthens the time behind the storm to the last observation; why it can't reach so far.
std::string Alcanza(const Evento& e, Lluvia& lluvia)
{
    double ultimo = 0;
    for (const study::Observacion& o : e.observaciones)
        for (const study::Punto& p : o.puntos)
            ultimo = std::max(ultimo, p.minuto);
    const double falta = std::ceil(ultimo) - lluvia.tormenta.DurTormenta;
    if (falta + lluvia.tormenta.DurTormenta + 2.0 * lluvia.pasos.PasoPp > TopeMinutos)
        return "Las observaciones del evento «" + e.nombre + "» pasan de lo que una corrida dura, " +
               std::to_string(TopeMinutos) + " minutos.";
    lluvia.pasos.N0Dur = std::max(lluvia.pasos.N0Dur, static_cast<float>(falta));
    return {};
}

std::string ArmaLluvia(const Siro& s, const Evento& e, Lluvia& lluvia)
{
    lluvia = {.nombre = e.nombre, .tormenta = s.Tormenta, .pasos = s.Pasos};
    std::string reparo;
    if (e.lluvia.origen == "registrada")
        reparo = TomaRegistrada(s, e, lluvia);
    else if (e.lluvia.origen == "lamina")
        TomaLamina(e.lluvia, lluvia);
    else if (e.lluvia.origen != "proyecto")
        reparo = LaLluviaDe(e) + " es de un origen que no se conoce: «" + e.lluvia.origen + "».";
    if (!reparo.empty()) return reparo;
    if (!Llueve(lluvia.tormenta)) return LaLluviaDe(e) + " no tiene lámina o no tiene duración.";
    lluvia.pasos.PasoQ = PasoQueDivide(lluvia.pasos.PasoQ, lluvia.pasos.PasoPp);
    return Alcanza(e, lluvia);
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

ModeloDeProyecto ModeloDe(const Siro& s, const study::Ajuste& ajuste)
{
    ModeloDeProyecto m;
    m.modelo.red = s.Red;
    std::ranges::copy_if(ajuste.parametros, std::back_inserter(m.modelo.parametros),
                         &study::Parametro::activo);
    for (std::size_t i = 0; i < ajuste.eventos.size(); ++i) {
        if (ajuste.eventos[i].papel == "fuera") continue;
        Lluvia lluvia;
        std::string reparo = ArmaLluvia(s, ajuste.eventos[i], lluvia);
        if (!reparo.empty()) m.reparos.push_back(std::move(reparo));
        m.modelo.lluvias.push_back(std::move(lluvia));
        m.eventos.push_back(i);
    }
    if (m.modelo.lluvias.empty()) {
        m.modelo.lluvias.push_back({.tormenta = s.Tormenta, .pasos = s.Pasos});
        if (!Llueve(s.Tormenta))
            m.reparos.emplace_back("La tormenta en mano no tiene lámina o no tiene duración.");
    }
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
