// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

// A Represa and a Lago with tables of a few rows, for the tests of the lookups.
namespace pruebas {

struct RenglonHAS {
    float H = 0;         ///< [m]
    float A = 0;         ///< [ha]
    std::int32_t S = 0;  ///< [m3]
};

struct RenglonHQ {
    float H = 0;  ///< [m]
    float Q = 0;  ///< [m3/s]
};

/// State with the Represas "r-uno", "r-dos" and the Lagos "l-uno", "l-dos", numbered 1 and 2, all tables
/// without rows but with room for ten, as a load leaves them.
class EstadoConEmbalses {
  public:
    EstadoConEmbalses()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        for (std::int16_t n = 1; n <= 2; ++n) {
            const std::string nombre = n == 1 ? "uno" : "dos";
            s.ColRepresas.Agrega({.NombreRepresa = "r-" + nombre, .numRepresa = n});
            s.ColLagos.Agrega({.NombreLAGO = "l-" + nombre, .numLAGO = n});
        }
        s.NroRepresas = s.NroLagos = 2;
        for (auto* filas : {&s.RepresaFilasHAS, &s.RepresaFilasHQ, &s.LagoFilas})
            filas->Dimensiona(2);
        for (auto* tabla :
             {&s.RepresaH, &s.RepresaA, &s.RepresaQH, &s.RepresaQQ, &s.LagoH, &s.LagoA, &s.LagoQ})
            tabla->Dimensiona(2, 10);
        s.RepresaS.Dimensiona(2, 10);
        s.LagoS.Dimensiona(2, 10);
        EligeRepresa(1);
    }

    void EligeRepresa(int item) { s.CompActual = {model::ComponenteActual::Clase::Represa, item}; }
    void EligeLago(int item) { s.CompActual = {model::ComponenteActual::Clase::Lago, item}; }

    /// H-A-S table of the Represa and of the Lago with that number.
    void PonHAS(const std::vector<RenglonHAS>& renglones, int numero = 1)
    {
        const auto n = static_cast<std::int16_t>(renglones.size());
        s.RepresaFilasHAS(numero) = s.LagoFilas(numero) = n;
        for (auto* tabla : {&s.RepresaH, &s.RepresaA, &s.LagoH, &s.LagoA, &s.LagoQ})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        for (auto* tabla : {&s.RepresaS, &s.LagoS})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        int k = 0;
        for (const RenglonHAS& r : renglones) {
            ++k;
            s.RepresaH(numero, k) = s.LagoH(numero, k) = r.H;
            s.RepresaA(numero, k) = s.LagoA(numero, k) = r.A;
            s.RepresaS(numero, k) = s.LagoS(numero, k) = r.S;
        }
    }

    /// H-Q table of the Represa, which is set to use it, and of the Lago with that number.
    void PonHQ(const std::vector<RenglonHQ>& renglones, int numero = 1)
    {
        const auto n = static_cast<std::int16_t>(renglones.size());
        s.RepresaFilasHQ(numero) = s.LagoFilas(numero) = n;
        for (auto* tabla : {&s.RepresaQH, &s.RepresaQQ, &s.LagoH, &s.LagoQ})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        int k = 0;
        for (const RenglonHQ& r : renglones) {
            ++k;
            s.RepresaQH(numero, k) = s.LagoH(numero, k) = r.H;
            s.RepresaQQ(numero, k) = s.LagoQ(numero, k) = r.Q;
        }
        s.Represas(numero).optTabla = true;
    }

    /// Outflow function i, from 1, of the first Represa, in use.
    void PonFuncion(std::size_t i, float a, float b, float c, float minimo, float maximo)
    {
        model::Represa& r = s.Represas(1);
        r.chkFQ[i - 1] = 1;
        r.FQa[i - 1] = a;
        r.FQb[i - 1] = b;
        r.FQc[i - 1] = c;
        r.FQmin[i - 1] = minimo;
        r.FQMax[i - 1] = maximo;
    }

    /// Nothing has been said nor asked.
    [[nodiscard]] bool Callado() const { return anfitrion->sucesos.empty(); }

    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    model::Siro s{};
};

}  // namespace pruebas
