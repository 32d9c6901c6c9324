// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "checks/UltimaCorrida.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/ArchivoConf.h"
#include "model/ArchivosTormenta.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"
#include "runs/CorridaGuardada.h"
#include "runs/RedAlAzar.h"

namespace pruebas {

/// A project in "/proy" of a disk in memory, with its shared tables in "/trabajo", run as the desktop runs
/// it.
class ProyectoCorrido {
  public:
    ProyectoCorrido()
    {
        disco.PonDirectorio("/proy");
        disco.PonDirectorio("/trabajo");
        s.Disco = testigo.Sobre(disco.Puerta());
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        s.Proyecto.DirTrabajo = "/trabajo";
    }
    ProyectoCorrido(const ProyectoCorrido&) = delete;
    ProyectoCorrido& operator=(const ProyectoCorrido&) = delete;

    /// The delivered project.
    void PonMuestra()
    {
        const std::filesystem::path datos(SIRO_DATA_DIR);
        for (const auto& entrada : std::filesystem::directory_iterator(datos / "Proyectos"))
            if (entrada.is_regular_file())
                disco.Pon("/proy/" + entrada.path().filename().string(),
                          apoyo::BytesDeArchivo(entrada.path()));
        for (const char* const tabla : {"distriPp_dpt.vlm", "TablasPDRs_pdr.vlm"})
            disco.Pon(std::string("/trabajo/") + tabla, apoyo::BytesDeArchivo(datos / tabla));
        Nombra("Quelmar");
        model::leoConf(s);
    }
    /// A network as the project "Azar", by the project's own writers.
    void PonRed(const model::Red& red)
    {
        Nombra("Azar");
        s.frmConfigura.TextProyecto = "Azar";
        s.frmConfigura.TextOpera = "Operadora";
        s.frmConfigura.txtN0Dur = "240";
        model::EscribeConf(s);
        s.Red = red;
        std::vector<model::CambioArchivo> escritos;
        ASSERT_TRUE(model::EscribeRed(s, escritos));
        ASSERT_TRUE(model::GuardaTablaHSVRepresa(s) && model::GuardaTablaHQRepresa(s) &&
                    model::GuardaTablaHSVQLago(s));
    }
    /// Null where the run doesn't come to its end.
    std::shared_ptr<const checks::UltimaCorrida> CorreUna()
    {
        const model::Tormenta entrada = s.Tormenta;
        if (!engine::CorreUnaTormenta(s)) return nullptr;
        return checks::UltimaCorrida::DeUna(s, entrada, true);
    }
    std::shared_ptr<const checks::UltimaCorrida> CorreSerie(std::int16_t tabla)
    {
        s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        s.Tormenta.TablaPDR = tabla;
        model::LeeTablaPDRs(s);
        if (engine::CorreSeriePDR(s, 1) == engine::FinSerie::SinTormentas) return nullptr;
        return checks::UltimaCorrida::DeSerie(s, 1);
    }
    [[nodiscard]] runs::Circunstancias Circunstancias() const
    {
        return {.dirProyecto = "/proy",
                .proyecto = s.Proyecto.NombreProyecto,
                .dirTrabajo = "/trabajo",
                .quien = s.Configuracion.Operador,
                .segundos = 0.25,
                .archivos = testigo.Leidos()};
    }
    [[nodiscard]] runs::Libro Libro() const
    {
        return {.dirProyecto = "/proy",
                .proyecto = s.Proyecto.NombreProyecto,
                .disco = disco.Puerta(),
                .puntas = model::PuntasPorEntero(disco.Puerta())};
    }
    std::string Guarda(const checks::UltimaCorrida& u) const
    {
        return runs::Guarda(Libro(), runs::PorGuardar(u, Circunstancias()));
    }

    apoyo::DiscoPrueba disco{};
    runs::Testigo testigo{};
    model::Siro s{};

  private:
    void Nombra(const std::string& proyecto)
    {
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = proyecto;
        s.frmConfigura.lblMiArchivoConf = model::ArchivoConf(proyecto);
    }
};

/// Whether two runs left the same, bit for bit.
inline void EsperaLoMismo(const checks::UltimaCorrida& a, const checks::UltimaCorrida& b)
{
    EXPECT_EQ(a.huella, b.huella);
    const model::Resultados &x = a.r(), &y = b.r();
    EXPECT_EQ(x.Secuencia, y.Secuencia);
    EXPECT_EQ(x.NroPasosQ, y.NroPasosQ);
    EXPECT_TRUE(x.QMax == y.QMax);
    EXPECT_TRUE(x.EscUEH == y.EscUEH);
    EXPECT_TRUE(x.EscTotal == y.EscTotal);
    EXPECT_EQ(a.avisos, b.avisos);
    if (a.esSerie) return;
    EXPECT_TRUE(x.QSale == y.QSale);
    EXPECT_TRUE(x.QEntra == y.QEntra);
    EXPECT_TRUE(x.HRepresa == y.HRepresa);
    EXPECT_TRUE(x.SLago == y.SLago);
}

}  // namespace pruebas
