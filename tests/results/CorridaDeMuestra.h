// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "checks/UltimaCorrida.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace pruebas {

/// The delivered sample project, run once with 80 mm in 120 min in steps of 10 and 5 min, or by its series.
class CorridaDeMuestra {
  public:
    using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

    explicit CorridaDeMuestra(model::Siro& estado) : s(estado)
    {
        namespace fs = std::filesystem;
        fs::copy(SIRO_DATA_DIR, carpeta.Camino(), fs::copy_options::recursive);
        s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = carpeta.Camino().string();
        model::AbreProyectoDe(s, model::Ruta(carpeta.Ruta("Proyectos"), "Quelmar_Conf.vlm"));
    }
    Corrida Una(float pp = 80)
    {
        s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
        s.Tormenta.PpTormenta = pp;
        s.Tormenta.DurTormenta = 120;
        s.Pasos.PasoPp = 10;
        s.Pasos.PasoQ = 5;
        const model::Tormenta entrada = s.Tormenta;
        EXPECT_TRUE(engine::CorreUnaTormenta(s));
        return checks::UltimaCorrida::DeUna(s, entrada, true);
    }
    Corrida Serie()
    {
        s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        s.Serie.NroSeriePDR = NroTormentas;
        s.Serie.SerieP.Dimensiona(NroTormentas);
        s.Serie.SerieD.Dimensiona(NroTormentas);
        s.Serie.SerieR.Dimensiona(NroTormentas);
        for (std::int16_t n = 1; n <= NroTormentas; ++n) {
            s.Serie.SerieP(n) = static_cast<float>(n == 2 ? 80 : 20 * n);
            s.Serie.SerieD(n) = static_cast<std::int16_t>(60 * n);
            s.Serie.SerieR(n) = static_cast<std::int16_t>(10 * n);
        }
        EXPECT_EQ(engine::CorreSeriePDR(s), engine::FinSerie::Completa);
        return checks::UltimaCorrida::DeSerie(s, 1);
    }
    /// A run that was refused: without depth.
    Corrida Rechazada()
    {
        s.Tormenta.PpTormenta = 0;
        return checks::UltimaCorrida::DeUna(s, s.Tormenta, false);
    }

    static constexpr std::int16_t NroTormentas = 3;  ///< of the series: 20, 80, 60 mm in 60, 120, 180 min

  private:
    model::Siro& s;
    apoyo::CarpetaTemporal carpeta{};
};

}  // namespace pruebas
