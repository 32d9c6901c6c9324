// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoria/CorreMemoria.h"

#include <string_view>
#include <vector>

#include "batch/CorridaLote.h"
#include "checks/AvisosDeSerie.h"
#include "checks/Hallazgo.h"
#include "checks/ProyectoAparte.h"
#include "checks/RevisaAbierto.h"
#include "checks/UltimaCorrida.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "frequency/tormenta/Diseno.h"
#include "frequency/tormenta/Fuentes.h"
#include "model/Camino.h"
#include "model/Companeros.h"
#include "model/DirPropio.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "study/ArchivoEstudio.h"
#include "study/Series.h"

namespace memoria {
namespace {

using model::Siro;
using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

/// A run that writes nothing: what memorias are made of, several at a time, stays as it is.
class Corredor {
  public:
    Corredor(const std::string& unDirEjecutable, const batch::Salidas& unasSalidas)
        : dirEjecutable(unDirEjecutable), salidas(unasSalidas)
    {
    }

    bool Abre(Siro& s, const batch::Opciones& o)
    {
        const std::string conf = model::RutaAbsoluta(o.conf);
        if (!model::Sentencia([&] { s.Disco.Lee(conf); })) return Niega("no se puede abrir " + conf);
        s.Disco = checks::SoloLectura(s.Disco);
        const std::string fecha = batch::FechaHoraLocal();
        s.Anfitrion = checks::Oyente(hallazgos);
        s.Anfitrion.FechaHora = [fecha] { return fecha; };
        s.Proyecto.DirEjecutable = dirEjecutable;
        s.Proyecto.DirTrabajo =
            o.trabajo.empty() ? model::DirTrabajoDe(dirEjecutable) : model::RutaAbsoluta(o.trabajo);
        if (!checks::AbreProyecto(s, conf)) return Niega("el proyecto no se abre: " + conf);
        batch::FijaTormenta(s, o);
        return true;
    }
    Corrida Una(Siro& s)
    {
        const model::Tormenta entrada = s.Tormenta;
        const bool completa = engine::CorreUnaTormenta(s);
        if (!completa) Niega("la corrida no llegó a su fin");
        return completa ? checks::UltimaCorrida::DeUna(s, entrada, completa) : nullptr;
    }
    Corrida Serie(Siro& s, int hilos)
    {
        checks::VigiaDeSerie vigia(s);
        if (engine::CorreSeriePDR(s, hilos, vigia.Ojo()) == engine::FinSerie::Completa)
            return checks::UltimaCorrida::DeSerie(s, hilos, &vigia);
        Niega("la serie no llegó a su fin");
        return nullptr;
    }
    /// What the project and the run have told, errors alone.
    void DiceErrores() const
    {
        for (const checks::Hallazgo& h : hallazgos)
            if (h.gravedad == checks::Gravedad::Error) Dice(salidas, h.que + ": " + h.cuanto);
    }
    bool Niega(const std::string& motivo) const
    {
        DiceErrores();
        Dice(salidas, motivo);
        return false;
    }

  private:
    const std::string& dirEjecutable;
    const batch::Salidas& salidas;
    std::vector<checks::Hallazgo> hallazgos{};
};

/// The study beside the project; a damaged one is told, and the memoria made without.
void LeeSuEstudio(const Siro& s, const batch::Salidas& salidas, study::Estudio& estudio)
{
    const std::string base = model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto);
    const std::string ruta = base + std::string(model::TerminacionEstudio);
    std::string bytes;
    if (!model::Sentencia([&] { bytes = s.Disco.Lee(ruta); })) return;
    study::LecturaDeEstudio l = study::LeeEstudio(bytes);
    if (!l.motivo.empty())
        return Dice(salidas, ruta + ", renglón " + std::to_string(l.renglon) + ": " + l.motivo);
    estudio = std::move(l.estudio);
    const auto lee = [&](const std::string& cual) { return s.Disco.Lee(cual); };
    for (const study::SerieDanada& d : study::LeeSeries(estudio.ajuste, base, lee))
        Dice(salidas, d.texto);
}

bool CorreTodo(const Orden& o, Corredor& corredor, Siro& s, report::Datos& datos)
{
    if (o.conTormenta) {
        if (!corredor.Abre(s, o.tormenta)) return false;
        datos.tormenta = corredor.Una(s);
        if (datos.tormenta == nullptr) return false;
        if (o.tormenta.forma == model::FormaLluvia::Real) datos.tormentaReal = o.tormenta.tormenta;
    }
    if (o.conSerie) {
        Siro otra;
        Siro& suya = o.conTormenta ? otra : s;
        if (!corredor.Abre(suya, o.serie)) return false;
        datos.serie = corredor.Serie(suya, o.serie.hilos);
        if (datos.serie == nullptr) return false;
    }
    return true;
}

}  // namespace

void Dice(const batch::Salidas& salidas, const std::string& texto)
{
    salidas.Errores("siro-memoria: " + texto + "\n");
}

int Corre(const Orden& o, const std::string& dirEjecutable, const batch::Salidas& salidas, Siro& s,
          report::Datos& datos)
{
    Corredor corredor(dirEjecutable, salidas);
    try {
        if (!CorreTodo(o, corredor, s, datos)) return batch::EstadoInterrumpido;
    } catch (const model::FinDelPrograma& terminada) {
        corredor.DiceErrores();
        return terminada.estado != 0 ? terminada.estado : batch::EstadoTerminado;
    }
    datos.configuracion = s.Configuracion;
    datos.archivoConf = model::RutaAbsoluta(o.tormenta.conf);
    LeeSuEstudio(s, salidas, datos.estudio);
    frequency::FuentesDeTormenta fuentes;
    model::Sentencia([&] { frequency::PonGrabada(fuentes, datos.estudio.taller.tormenta, s); });
    datos.grabada = std::move(fuentes.grabada);
    return batch::EstadoCompleto;
}

}  // namespace memoria
