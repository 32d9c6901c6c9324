// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

// Results of a series written by hand.
namespace pruebas {

struct Tormenta {
    float P;
    std::int16_t D, R;
};

/// Two UEHs and the reach that they drain into, four storms: 60 and 120 min, 10 and 25 years. Every box is
/// ticked. Component c and storm n: peak 10c + n + 1/8, runoff 1000c + n, coefficient 40 + c + n/8; basin:
/// runoff 5000 + n, coefficient 50 + n/8.
class SerieDePrueba : public testing::Test {
  protected:
    SerieDePrueba()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.NombreProyecto = "Prueba";
        s.Proyecto.DirProyecto = "/proyectos";
        s.Configuracion.TituloProyecto = "Un título";
        s.Configuracion.Ubicacion = "Un lugar";
        s.Configuracion.Cuenca = "Un río";
        s.Configuracion.Subcuenca = "Un arroyo";
        s.Configuracion.Operador = "Yo";
        s.Tormenta.FormaPp = 2;
        s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
        s.Resultados.Secuencia = {"", "u-1", "u-2", "c-1"};
        s.Resultados.NroComponentes = 3;
        s.Red.ColUEHs.Anuncia(2);
        s.Red.ColCauces.Anuncia(1);
        s.Resultados.Salidas[1] = "c-1";
        s.Resultados.NroSalidas = 1;
        s.frmConfigura.CheckD.fill(1);
        s.frmConfigura.CheckR.fill(1);
        Carga({{20, 60, 10}, {30, 120, 10}, {25, 60, 25}, {35, 120, 25}});
        LlenaResultados();
    }
    void Carga(const std::vector<Tormenta>& tormentas)
    {
        const auto n = static_cast<std::int16_t>(tormentas.size());
        s.Serie.NroSeriePDR = n;
        s.Serie.SerieP.Dimensiona(n);
        s.Serie.SerieD.Dimensiona(n);
        s.Serie.SerieR.Dimensiona(n);
        for (int i = 1; i <= n; ++i) {
            const Tormenta& t = tormentas[static_cast<std::size_t>(i) - 1];
            s.Serie.SerieP(i) = t.P;
            s.Serie.SerieD(i) = t.D;
            s.Serie.SerieR(i) = t.R;
        }
    }
    void LlenaResultados()
    {
        s.Resultados.QMax.Dimensiona(s.Resultados.NroComponentes, s.Serie.NroSeriePDR);
        s.Resultados.EscUEH.Dimensiona(s.Red.NroUEHs(), s.Serie.NroSeriePDR);
        s.Resultados.CoefEscUEH.Dimensiona(s.Red.NroUEHs(), s.Serie.NroSeriePDR);
        s.Resultados.EscTotal.Dimensiona(s.Serie.NroSeriePDR);
        s.Resultados.CoefEscTotal.Dimensiona(s.Serie.NroSeriePDR);
        for (int n = 1; n <= s.Serie.NroSeriePDR; ++n) {
            const auto octavos = static_cast<float>(n) / 8;
            for (int c = 1; c <= s.Resultados.NroComponentes; ++c)
                s.Resultados.QMax(c, n) = static_cast<float>(10 * c + n) + 0.125F;
            for (int c = 1; c <= s.Red.NroUEHs(); ++c) {
                s.Resultados.EscUEH(c, n) = 1000 * c + n;
                s.Resultados.CoefEscUEH(c, n) = static_cast<float>(40 + c) + octavos;
            }
            s.Resultados.EscTotal(n) = 5000 + n;
            s.Resultados.CoefEscTotal(n) = 50 + octavos;
        }
    }
    /// The box of a duration or a recurrence, by its place in the configuration.
    void DestildaD(std::size_t lugar) { s.frmConfigura.CheckD.at(lugar) = 0; }
    void DestildaR(std::size_t lugar) { s.frmConfigura.CheckR.at(lugar) = 0; }

    static constexpr std::size_t D60 = 5, D120 = 7, R10 = 2, R25 = 4;

    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
};

}  // namespace pruebas
