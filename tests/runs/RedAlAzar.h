// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "runs/Corredor.h"

namespace pruebas {

/// Networks that move through all that a run reads: units into reaches of both kinds, a Lago, a Represa with
/// functions or a table, one behind the other, and one or two storms.
class RedAlAzar {
  public:
    explicit RedAlAzar(std::uint32_t semilla) : motor(semilla)
    {
        PonEmbalses();
        const int unidades = Entero(1, 5);
        for (int i = 1; i <= unidades; ++i)
            PonUEH(i);
        PonCauces();
        for (int i = Entero(1, 2); i > 0; --i)
            PonLluvia();
    }
    int Entero(int a, int b) { return std::uniform_int_distribution<int>(a, b)(motor); }
    float Real(double a, double b)
    {
        return static_cast<float>(std::uniform_real_distribution<double>(a, b)(motor));
    }
    template <std::size_t N>
    const char* Uno(const std::array<const char*, N>& de)
    {
        return de[static_cast<std::size_t>(Entero(0, static_cast<int>(N) - 1))];
    }
    /// A parameter of any mode: from `minimo` to `maximo` as a value, by a fifth as a factor, by a tenth of
    /// the lower bound as a sum.
    study::Parametro Parametro(const char* componentes, const char* campo, double minimo, double maximo)
    {
        study::Parametro p{.componentes = componentes, .campo = campo};
        p.modo = Uno(std::array{"valor", "factor", "suma"});
        p.minimo = p.modo == "factor" ? 0.8 : p.modo == "suma" ? 0 : minimo;
        p.maximo = p.modo == "factor" ? 1.2 : p.modo == "suma" ? minimo / 10 : maximo;
        return p;
    }

    std::mt19937 motor;
    runs::Modelo m{};

  private:
    void PonUEH(int i)
    {
        m.red.ColUEHs.Agrega({.NombreUEH = "u-" + std::to_string(i),
                              .Area = Real(5, 300),
                              .LongitudMax = Real(100, 3000),
                              .VelMedia = Real(0.1, 2),
                              .numUEH = static_cast<std::int16_t>(i),
                              .Cauce_aa = i == 1 ? "c-1" : Uno(std::array{"c-1", "c-2", "l-1", "r-1"}),
                              .KostiakovA = Real(0.5, 6),
                              .KostiakovB = Real(0.2, 0.8),
                              .RetensionZ = Real(0, 8),
                              .Q0Recesion = Real(-0.1, 1),
                              .KRecesion = Real(1, 20),
                              .KostiakovI = Real(0, 60)});
    }
    void PonCauces()
    {
        const auto pon = [&](const char* nombre, const char* destino) {
            m.red.ColCauces.Agrega({.numCauce = static_cast<std::int16_t>(m.red.ColCauces.Cuenta() + 1),
                                    .NombreCauce = nombre,
                                    .Cauce_aa = destino,
                                    .LongCauce = Real(100, 5000),
                                    .VelMediaCauce = Real(0.3, 3),
                                    .Cauce_k_Musk = 10,  // whose coefficients add up to 1 with both steps
                                    .Cauce_n_Musk = 0.25F,
                                    .optDirMusk = Entero(0, 1) == 1});
        };
        pon("c-1", "l-1");
        pon("c-2", "r-1");
        pon("c-3", "0");
    }
    void PonEmbalses()
    {
        constexpr std::array metodos{"Piscina Nivelada", "Piscina Nivelada", "Runge Kutta", "Muskingum"};
        m.red.ColLagos.Agrega({.NombreLAGO = "l-1",
                               .numLAGO = 1,
                               .Metodo = Uno(metodos),
                               .Cauce_aa = "c-2",
                               .Lago_k_Musk = Real(8, 40),
                               .HInicialEmb = Real(100, 101)});
        model::Represa& r = m.red.ColRepresas.Agrega({.NombreRepresa = "r-1",
                                                      .numRepresa = 1,
                                                      .Metodo = Uno(metodos),
                                                      .Cauce_aa = "c-3",
                                                      .Represa_k_Musk = Real(8, 40),
                                                      .optTabla = Entero(0, 3) == 0,
                                                      .HInicialEmb = Real(100, 101)});
        for (const std::size_t f : {std::size_t{0}, std::size_t{4}}) {
            r.chkFQ[f] = 1;
            r.FQa[f] = Real(1, 20);
            r.FQb[f] = Real(0.5, 1.5);
            r.FQc[f] = Real(0, 0.5);
            r.FQmin[f] = f == 0 ? 100 : 103;
            r.FQMax[f] = 120;
        }
        model::Red& red = m.red;
        for (auto* filas : {&red.LagoFilas, &red.RepresaFilasHAS, &red.RepresaFilasHQ})
            filas->Dimensiona(1);
        for (auto* t : {&red.LagoH, &red.LagoA, &red.LagoQ, &red.RepresaH, &red.RepresaA, &red.RepresaQH,
                        &red.RepresaQQ})
            t->Dimensiona(1, 4);
        red.LagoS.Dimensiona(1, 4);
        red.RepresaS.Dimensiona(1, 4);
        red.LagoFilas(1) = red.RepresaFilasHAS(1) = red.RepresaFilasHQ(1) = 3;
        for (int k = 1; k <= 3; ++k) {
            for (auto* t : {&red.LagoH, &red.RepresaH, &red.RepresaQH})
                (*t)(1, k) = 90.0F + 10.0F * static_cast<float>(k);
            for (auto* t : {&red.LagoA, &red.RepresaA})
                (*t)(1, k) = 10;
            for (auto* t : {&red.LagoQ, &red.RepresaQQ})
                (*t)(1, k) = 80.0F * static_cast<float>(k - 1);
            red.LagoS(1, k) = red.RepresaS(1, k) = 1000000 * (k - 1);
        }
    }
    void PonLluvia()
    {
        runs::Lluvia l{.nombre = "Evento " + std::to_string(m.lluvias.size() + 1)};
        l.tormenta.PpTormenta = Real(20, 90);
        l.tormenta.DurTormenta = static_cast<std::int16_t>(Entero(3, 20) * 10);
        l.tormenta.DistriPp = static_cast<std::int16_t>(Entero(0, 4));
        l.pasos = {.PasoPp = 10, .PasoQ = static_cast<std::int16_t>(Entero(0, 1) ? 10 : 5), .N0Dur = 240};
        m.lluvias.push_back(l);
    }
};

}  // namespace pruebas
