// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/CorreAparte.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "checks/Hallazgo.h"
#include "checks/ProyectoAparte.h"
#include "checks/RevisaAbierto.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/Avisos.h"
#include "model/Configuracion.h"
#include "model/Siro.h"
#include "runs/CorridaGuardada.h"

namespace runs {

using checks::Hallazgo;
using checks::UltimaCorrida;
using model::Siro;

namespace {

constexpr std::size_t Cien = 100;

/// Opens the project and reads it whole, so that its readers are heard. Returns whether it is open.
bool Abre(Siro& s, const ProyectoAparte& p, std::vector<std::string>& reparos)
{
    if (!model::Sentencia([&] { s.Disco.Lee(p.conf); })) {
        reparos.push_back("No se puede abrir " + p.conf + ".");
        return false;
    }
    std::vector<Hallazgo> hallazgos;
    s.Anfitrion = checks::Oyente(hallazgos);
    const bool abierto = checks::AbreProyecto(s, p.conf);
    if (abierto) {
        p.ponTormenta(s);
        checks::CargaEntera(s);
    }
    const std::string archivo = model::ArchivoConf(s.Proyecto.NombreProyecto);
    if (abierto && !p.conf.ends_with(archivo))
        reparos.push_back(p.conf + " dice que su proyecto es " + s.Proyecto.NombreProyecto +
                          ": se corre ese.");
    for (const Hallazgo& h : hallazgos)
        if (h.gravedad == checks::Gravedad::Error) reparos.push_back(h.que + ": " + h.cuanto);
    if (!abierto) reparos.push_back("El proyecto no se abre: " + p.conf + ".");
    return abierto;
}

std::shared_ptr<const UltimaCorrida> CorreTormenta(Siro& s, std::vector<std::string>& reparos)
{
    const model::Tormenta entrada = s.Tormenta;
    const bool completa = engine::CorreUnaTormenta(s);
    auto u = UltimaCorrida::DeUna(s, entrada, completa);
    if (!completa)
        reparos.push_back("La corrida no llegó a su fin: " + (u->calculo.avisos.empty()
                                                                  ? std::string("no se sabe por qué")
                                                                  : u->calculo.avisos.back().mensaje.texto));
    return u;
}

std::shared_ptr<const UltimaCorrida> CorreSerie(Siro& s, int hilos, std::vector<std::string>& reparos)
{
    if (engine::CorreSeriePDR(s, hilos) != engine::FinSerie::Completa) {
        reparos.emplace_back(
            "La serie no se corrió: no tiene tormentas, o alguna no tiene lámina o duración.");
        return nullptr;
    }
    return UltimaCorrida::DeSerie(s, hilos);
}

}  // namespace

CorridaAparte CorreAparte(const ProyectoAparte& p, const study::Avance& avance)
{
    CorridaAparte hecha;
    Siro s;
    s.Disco = checks::SoloLectura(p.disco);
    s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = p.dirTrabajo;
    const auto sigue = [&](std::size_t porCiento) { return !avance || avance(porCiento, Cien); };
    try {
        if (!Abre(s, p, hecha.reparos)) return hecha;
        s.Anfitrion = {};
        s.Anfitrion.FechaHora = [&] { return p.cuando; };
        s.Anfitrion.BarraAvance = [&](int porCiento) {
            if (!sigue(static_cast<std::size_t>(porCiento))) throw model::FinDelPrograma{};
        };
        if (!sigue(0)) return {};
        const bool serie = s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR;
        hecha.corrida = serie ? CorreSerie(s, p.hilos, hecha.reparos) : CorreTormenta(s, hecha.reparos);
    } catch (const model::FinDelPrograma&) {
        if (!sigue(0)) return {};
        hecha.reparos.emplace_back("La corrida no llegó a su fin: un mensaje grave la terminó.");
    }
    return hecha;
}

CorridaAparte CorreGuardada(const Libro& libro, const std::string& nombre)
{
    CorridaAparte hecha;
    std::vector<RenglonDeLibro> renglones;
    model::Sentencia([&] { renglones = ListaDe(libro); });
    const auto cual = std::ranges::find_if(renglones, [&](const RenglonDeLibro& r) {
        return r.archivo == nombre || (r.reparo.empty() && r.ficha.nombre == nombre);
    });
    if (cual == renglones.end()) {
        hecha.reparos.push_back(libro.Carpeta() + " no tiene ninguna corrida de nombre " + nombre + ".");
        return hecha;
    }
    Rehecha rehecha = Rehace(libro, cual->archivo);
    hecha.corrida = std::move(rehecha.corrida);
    for (std::string* const texto : {&rehecha.reparo, &rehecha.aviso})
        if (!texto->empty()) hecha.reparos.push_back(std::move(*texto));
    return hecha;
}

}  // namespace runs
