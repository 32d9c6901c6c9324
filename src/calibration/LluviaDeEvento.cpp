// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/LluviaDeEvento.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "model/ArchivosTormenta.h"
#include "model/Siro.h"
#include "model/Tormenta.h"

namespace calibration {
namespace {

using model::FormaLluvia;

constexpr double MaximoSimulado = 30'000;  // [min], within 16 bits with a step to spare

constexpr std::int16_t PorBloques = 7;  // the temporal distribution that a recorded storm is run with

/// The output step next to the one asked for that divides the model step: a run counts whole ones in it.
std::int16_t PasoQEn(std::int16_t PasoPp, std::int16_t PasoQ)
{
    std::int16_t paso = std::clamp<std::int16_t>(PasoQ, 1, PasoPp);
    while (PasoPp % paso != 0)
        --paso;
    return paso;
}

/// A recorded storm in its own step, by the routine that reads it into the storm in hand, which is put back.
model::Tormenta Registrada(model::Siro& s, const std::string& archivo, model::Pasos& pasos)
{
    model::Tormenta enMano = s.Tormenta;
    model::TormentaReal leida{.nombre = archivo};
    s.Tormenta.NroPpReal = 0;
    model::LeePpReal(s, leida);
    std::swap(s.Tormenta, enMano);
    enMano.FormaPp = FormaLluvia::Real;
    enMano.DistriPp = PorBloques;
    enMano.RecTormenta = 0;
    if (leida.PasoPpReal > 0) {
        pasos.PasoPp = leida.PasoPpReal;
        pasos.PasoQ = PasoQEn(pasos.PasoPp, pasos.PasoQ);
    }
    return enMano;
}

model::Tormenta DeLamina(model::Tormenta t, const study::LluviaDeEvento& lluvia)
{
    t.PpTormenta = static_cast<float>(lluvia.lamina);
    t.DurTormenta = static_cast<std::int16_t>(lluvia.duracion);
    t.DistriPp = static_cast<std::int16_t>(lluvia.distribucion);
    t.FormaPp = FormaLluvia::Escrita;
    t.RecTormenta = 0;
    return t;
}

/// The last minute that something was observed at.
double UltimaObservacion(const study::Evento& evento)
{
    double ultima = 0;
    for (const study::Observacion& o : evento.observaciones)
        if (!o.puntos.empty()) ultima = std::max(ultima, o.puntos.back().minuto);
    return ultima;
}

std::string MotivoDe(const study::Evento& evento, const model::Tormenta& t)
{
    const std::string de = "El evento \"" + evento.nombre + "\": ";
    if (evento.lluvia.origen == "registrada" && t.NroPpReal < 1)
        return de + (evento.lluvia.archivo.empty()
                         ? std::string("falta elegir la tormenta registrada.")
                         : "la tormenta registrada " + evento.lluvia.archivo + " no se pudo leer.");
    if (t.DurTormenta < 1)
        return de + (evento.lluvia.origen == "proyecto" ? "no hay ninguna tormenta en mano."
                                                        : "la lluvia no tiene duración.");
    return {};
}

}  // namespace

LluviaPuesta LluviaDe(model::Siro& s, const study::Evento& evento)
{
    LluviaPuesta p;
    p.lluvia.nombre = evento.nombre;
    p.lluvia.pasos = s.Pasos;
    p.lluvia.tormenta = evento.lluvia.origen == "registrada"
                            ? Registrada(s, evento.lluvia.archivo, p.lluvia.pasos)
                        : evento.lluvia.origen == "lamina" ? DeLamina(s.Tormenta, evento.lluvia)
                                                           : s.Tormenta;
    p.motivo = MotivoDe(evento, p.lluvia.tormenta);
    const double duracion = p.lluvia.tormenta.DurTormenta,
                 hasta = std::min(std::ceil(UltimaObservacion(evento)) + s.Pasos.PasoQ, MaximoSimulado);
    p.lluvia.pasos.N0Dur = std::max(s.Pasos.N0Dur, static_cast<float>(hasta - duracion));
    return p;
}

}  // namespace calibration
