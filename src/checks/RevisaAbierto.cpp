// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/RevisaAbierto.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "checks/AvisosDeCorrida.h"
#include "checks/ProyectoAparte.h"
#include "checks/Revisa.h"
#include "engine/modProceso0.h"
#include "hydraulics/mdlFQs.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"

namespace checks {

using model::Siro;

namespace {

/// The project, storm and steps in hand, with nothing loaded.
Siro Aparte(const Siro& s)
{
    Siro otra;
    otra.Disco = SoloLectura(s.Disco);
    otra.Proyecto = s.Proyecto;
    otra.Configuracion = s.Configuracion;
    otra.frmConfigura = s.frmConfigura;
    otra.Tormenta = s.Tormenta;
    otra.Pasos = s.Pasos;
    otra.Serie = s.Serie;
    otra.TablasDeLluvia = s.TablasDeLluvia;
    return otra;
}

/// Components that aren't saved in place of the saved ones, and their tables by their names. One that has
/// none yet is told by the check itself, not by the readers.
void PonDibujo(Siro& s, const model::Colecciones& dibujo)
{
    const model::Anfitrion oyente = std::exchange(s.Anfitrion, model::Anfitrion{});
    static_cast<model::Colecciones&>(s.Red) = dibujo;
    model::CadaClase(s.Red, [](auto& coleccion) { coleccion.Recuenta(); });
    model::LeeTablaHQRepresa(s);
    model::LeeTablaHSVRepresa(s);
    model::LeeTablaHSVQLago(s);
    s.Anfitrion = oyente;
    model::Sentencia([&] { hydraulics::CargaFQs(s.Red); }, model::AvisaMotor(s));
}

void RevisaLugarDeTrabajo(const Siro& s, std::vector<Hallazgo>& hallazgos)
{
    const std::size_t antes = hallazgos.size();
    RevisaDirTrabajo(s, hallazgos);
    for (std::size_t k = antes; k < hallazgos.size(); ++k)
        hallazgos[k].remedio = "Deje libre ese lugar: allí quedan los resultados de cada corrida.";
}

}  // namespace

model::Anfitrion Oyente(std::vector<Hallazgo>& hallazgos)
{
    const auto anota = [&hallazgos](const model::Mensaje& m) {
        const Hallazgo h = DeApertura(m);
        if (std::find(hallazgos.begin(), hallazgos.end(), h) == hallazgos.end()) hallazgos.push_back(h);
    };
    model::Anfitrion puerta;
    puerta.Avisa = anota;
    puerta.Pregunta = puerta.Confirma = [anota](const model::Mensaje& m) {
        anota(m);
        return true;
    };
    return puerta;
}

void CargaEntera(Siro& s)
{
    engine::CargaProyecto(s);
    if (s.Tormenta.DistriPp >= model::PrimeraPersonal && s.Tormenta.FormaPp != model::FormaLluvia::Real)
        model::LeeTablaDisTemPer(s);
}

bool CargaAparte(const Siro& s, const model::Colecciones* dibujo, Siro& otra,
                 std::vector<Hallazgo>& hallazgos)
{
    otra = Aparte(s);
    otra.Anfitrion = Oyente(hallazgos);
    try {
        CargaEntera(otra);
        if (dibujo != nullptr) PonDibujo(otra, *dibujo);
    } catch (const model::FinDelPrograma&) {
        otra.Anfitrion = {};
        return false;
    }
    otra.Anfitrion = {};
    return true;
}

std::vector<Hallazgo> RevisaAbierto(const Siro& s, const model::Colecciones* dibujo, double areaCuenca)
{
    std::vector<Hallazgo> hallazgos;
    Siro otra;
    if (!CargaAparte(s, dibujo, otra, hallazgos)) {
        hallazgos.push_back({Gravedad::Error, 200, "", "La carga del proyecto no llega a su fin",
                             s.Proyecto.NombreProyecto, "Abra otro proyecto, o restaure una copia."});
        return hallazgos;
    }
    otra.Anfitrion = Oyente(hallazgos);
    RevisaLugarDeTrabajo(otra, hallazgos);
    const auto delProyecto = Revisa(otra, areaCuenca);
    hallazgos.insert(hallazgos.end(), delProyecto.begin(), delProyecto.end());
    OrdenaPorGravedad(hallazgos);
    return hallazgos;
}

}  // namespace checks
