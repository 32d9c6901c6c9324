// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/GuardaLote.h"

#include <utility>

#include "checks/UltimaCorrida.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "runs/CorridaGuardada.h"
#include "runs/LibroDeCorridas.h"
#include "runs/Testigo.h"

namespace batch {

bool EscribeEnLibro(const runs::Libro& libro, runs::CorridaPorGuardar corrida, const std::string& nombre,
                    const Salidas& salidas)
{
    corrida.ficha.nombre = nombre;
    return model::Sentencia([&] { runs::Guarda(libro, std::move(corrida)); },
                            [&](const model::Falla& falla) {
                                salidas.Errores("siro-lote: la corrida no se pudo guardar en " +
                                                libro.Carpeta() + ": " +
                                                std::string(model::DescripcionFalla(falla.numero)) + "\n");
                            });
}

struct Guardadora::Partes {
    model::Siro& s;
    const Opciones& o;
    runs::Testigo testigo{};
};

Guardadora::Guardadora(model::Siro& s, const Opciones& opciones)
    : partes(opciones.guarda.empty() ? nullptr : new Partes{.s = s, .o = opciones})
{
    if (partes != nullptr) s.Disco = partes->testigo.Sobre(s.Disco);
}

Guardadora::~Guardadora() = default;

bool Guardadora::Guarda(const model::Tormenta& entrada, const Salidas& salidas)
{
    if (partes == nullptr) return true;
    const model::Siro& s = partes->s;
    runs::Circunstancias c{.dirProyecto = s.Proyecto.DirProyecto,
                           .proyecto = s.Proyecto.NombreProyecto,
                           .dirTrabajo = s.Proyecto.DirTrabajo,
                           .quien = s.Configuracion.Operador,
                           .segundos = partes->testigo.Segundos(),
                           .archivos = partes->testigo.Leidos()};
    const auto u = partes->o.orden == Opciones::Orden::Serie
                       ? checks::UltimaCorrida::DeSerie(s, partes->o.hilos)
                       : checks::UltimaCorrida::DeUna(s, entrada, true);
    return EscribeEnLibro({.dirProyecto = c.dirProyecto, .proyecto = c.proyecto}, runs::PorGuardar(*u, c),
                          partes->o.guarda, salidas);
}

}  // namespace batch
