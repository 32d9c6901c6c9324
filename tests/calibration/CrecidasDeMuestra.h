// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "model/ArchivosTormenta.h"
#include "model/Componentes.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "runs/Corredor.h"
#include "study/ArchivoEstudio.h"
#include "study/Series.h"

namespace pruebas {

/// One of the delivered projects of observed floods, as it lies there: nothing is written.
struct CrecidasDeMuestra {
    explicit CrecidasDeMuestra(const std::string& proyecto)
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = model::DiscoDelSistema();
        s.Proyecto.DirProyecto = SIRO_DATA_DIR "/Proyectos/Crecidas";
        s.Proyecto.NombreProyecto = proyecto;
        model::LeeUEHs(s);
        const std::string base = model::Ruta(s.Proyecto.DirProyecto, proyecto);
        const study::LecturaDeEstudio lectura = study::LeeEstudio(s.Disco.Lee(base + "_Estudio.json"));
        EXPECT_EQ(lectura.motivo, "") << "line " << lectura.renglon;
        ajuste = lectura.estudio.ajuste;
        const auto danadas = study::LeeSeries(ajuste, base, s.Disco.Lee);
        EXPECT_TRUE(danadas.empty()) << danadas.front().texto;
    }
    /// The recorded storm of an event, in hand.
    model::TormentaReal Tormenta(const study::Evento& evento)
    {
        model::TormentaReal tormenta{.nombre = evento.lluvia.archivo};
        model::LeePpReal(s, tormenta);
        s.Tormenta.FormaPp = model::FormaLluvia::Real;
        s.Tormenta.DistriPp = 7;
        s.Pasos.PasoPp = tormenta.PasoPpReal;
        return tormenta;
    }

    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    study::Ajuste ajuste{};
};

}  // namespace pruebas
