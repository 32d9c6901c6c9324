// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgAjuste.h"

#include <cstddef>

#include "checks/Hallazgo.h"
#include "checks/RevisaAbierto.h"
#include "checks/Sello.h"

namespace calibration {

using study::Dentro;
using study::Item;
using study::ItemPuesto;

namespace {

std::string HuellaDe(const model::Siro& s)
{
    const checks::Sello sello = checks::SelloDe(s);
    return sello.proyecto + '\n' + sello.red + '\n' + sello.lluvia;
}

/// Whether what the project was last read under still holds; takes it for what it is read under next.
bool SigueIgual(dlgAjuste& f)
{
    const std::string huella = HuellaDe(f.s);
    const model::Colecciones* const dibujo = f.DibujoSinGuardar();
    const bool mismo = dibujo == nullptr ? !f.dibujo : f.dibujo == *dibujo;
    if (mismo && huella == f.huella) return true;
    f.huella = huella;
    f.dibujo = dibujo == nullptr ? std::nullopt : std::optional(*dibujo);
    return false;
}

void Carga(dlgAjuste& f)
{
    std::vector<checks::Hallazgo> hallazgos;
    const std::string antes = HuellaDe(f.proyecto) + f.noCarga;
    f.proyecto = {};
    f.noCarga.clear();
    if (!checks::CargaAparte(f.s, f.dibujo ? &*f.dibujo : nullptr, f.proyecto, hallazgos))
        f.noCarga = "La carga del proyecto no llega a su fin: revíselo con Estudio, Revisar proyecto.";
    else if (f.proyecto.Red.NroUEHs() < 1)
        f.noCarga = "La red del proyecto no tiene ninguna UEH: dibújela en el editor y guárdela.";
    if (f.cargas == 0 || HuellaDe(f.proyecto) + f.noCarga != antes) ++f.cargas;
}

}  // namespace

void dlgAjuste::TomaEnMano()
{
    if (FaltaProyecto(*this).empty() && !SigueIgual(*this)) Carga(*this);
    const std::vector<study::Evento>& todos = AjusteDe(*this).eventos;
    evento = Dentro(evento, todos.size());
    eventos.clear();
    for (const study::Evento& e : todos)
        eventos.push_back(NombreDe(e, eventos.size() + 1));
    observaciones.clear();
    if (const study::Evento* const e = EventoEnMano(*this))
        for (const study::Observacion& o : e->observaciones)
            observaciones.push_back(NombreDe(o));
    observacion = Dentro(observacion, observaciones.size());
}

const study::Ajuste& AjusteDe(const dlgAjuste& f)
{
    return f.estudio.EnMano().ajuste;
}

EnManoDeAjuste EnManoDe(const dlgAjuste& f)
{
    return {AjusteDe(f), f.evento, f.observacion, f.cargas};
}

const study::Evento* EventoEnMano(const dlgAjuste& f)
{
    return Item(AjusteDe(f).eventos, f.evento);
}

const study::Observacion* ObservacionEnMano(const dlgAjuste& f)
{
    const study::Evento* const e = EventoEnMano(f);
    return e == nullptr ? nullptr : Item(e->observaciones, f.observacion);
}

study::Evento& EventoDe(const dlgAjuste& f, study::Ajuste& a)
{
    return ItemPuesto(a.eventos, f.evento);
}

study::Observacion& ObservacionDe(const dlgAjuste& f, study::Ajuste& a)
{
    return ItemPuesto(EventoDe(f, a).observaciones, f.observacion);
}

void Cambia(dlgAjuste& f, std::string_view leyenda, const std::function<void(study::Ajuste&)>& cambio)
{
    study::CambiaEstudio(f, leyenda, [&cambio](study::Estudio& e) { cambio(e.ajuste); });
}

void cmbEvento_Click(dlgAjuste& f, int cual)
{
    f.evento = cual;
    f.observacion = 0;
    Toma(f);
}

void cmbObservacion_Click(dlgAjuste& f, int cual)
{
    f.observacion = cual;
    Toma(f);
}

const model::Siro& ProyectoDe(const dlgAjuste& f)
{
    return f.proyecto;
}

void OlvidaProyecto(dlgAjuste& f)
{
    f.huella.clear();
}

std::string FaltaRed(const dlgAjuste& f)
{
    return f.noCarga;
}

std::string NombreDe(const study::Evento& e, std::size_t numero)
{
    return e.nombre.empty() ? "Evento " + std::to_string(numero) + " (sin nombre)" : e.nombre;
}

std::string NombreDe(const study::Observacion& o)
{
    return (o.componente.empty() ? std::string("(sin componente)") : o.componente) + ", " + o.magnitud;
}

std::string TemaDe(const dlgAjuste& f)
{
    const study::Evento* const e = EventoEnMano(f);
    const std::string nombre = f.proyecto.Proyecto.NombreProyecto;
    return e == nullptr ? nombre : nombre + ", " + NombreDe(*e, static_cast<std::size_t>(f.evento) + 1);
}

}  // namespace calibration
