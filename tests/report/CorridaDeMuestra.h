// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "checks/ProyectoAparte.h"
#include "checks/UltimaCorrida.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/Siro.h"
#include "report/Datos.h"

namespace report {

/// The delivered sample project in a folder of its own, a storm and the series run.
class CorridaDeMuestra {
  public:
    CorridaDeMuestra()
    {
        std::filesystem::copy(SIRO_DATA_DIR, dir.Camino(), std::filesystem::copy_options::recursive);
        datos.tormenta = Corre({.pp = 80, .dur = 120, .rec = 50, .distribucion = 2});
        datos.serie = Corre({.orden = batch::Opciones::Orden::Serie});
        datos.archivoConf = Conf();
        datos.version = "1.0.0";
    }
    [[nodiscard]] std::string Conf() const { return dir.Ruta("Proyectos") + "/Quelmar_Conf.vlm"; }

    apoyo::CarpetaTemporal dir{};
    Datos datos{};

  private:
    std::shared_ptr<const checks::UltimaCorrida> Corre(const batch::Opciones& o)
    {
        apoyo::AnfitrionPrueba anfitrion;
        model::Siro s;
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.DirTrabajo = dir.Camino().string();
        EXPECT_TRUE(checks::AbreProyecto(s, Conf()));
        batch::FijaTormenta(s, o);
        datos.configuracion = s.Configuracion;
        if (o.orden == batch::Opciones::Orden::Serie) {
            EXPECT_EQ(engine::CorreSeriePDR(s), engine::FinSerie::Completa);
            return checks::UltimaCorrida::DeSerie(s, 1);
        }
        const model::Tormenta entrada = s.Tormenta;
        const bool completa = engine::CorreUnaTormenta(s);
        EXPECT_TRUE(completa);
        return checks::UltimaCorrida::DeUna(s, entrada, completa);
    }
};

}  // namespace report
