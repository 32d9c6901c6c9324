// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "hydraulics/CompActual.h"
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
            s.Red.ColRepresas.Agrega({.NombreRepresa = "r-" + nombre, .numRepresa = n});
            s.Red.ColLagos.Agrega({.NombreLAGO = "l-" + nombre, .numLAGO = n});
        }
        for (auto* filas : {&s.Red.RepresaFilasHAS, &s.Red.RepresaFilasHQ, &s.Red.LagoFilas})
            filas->Dimensiona(2);
        for (auto* tabla : {&s.Red.RepresaH, &s.Red.RepresaA, &s.Red.RepresaQH, &s.Red.RepresaQQ,
                            &s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
            tabla->Dimensiona(2, 10);
        s.Red.RepresaS.Dimensiona(2, 10);
        s.Red.LagoS.Dimensiona(2, 10);
    }

    void EligeRepresa(int item) { Elige(false, item); }
    void EligeLago(int item) { Elige(true, item); }
    void Elige(bool unLago, int item = 1)
    {
        enLago = unLago;
        elegido = item;
    }
    /// The one chosen last, as the lookups see it now.
    [[nodiscard]] hydraulics::CompActual Elegido() const
    {
        return enLago ? hydraulics::EnMano(s.Anfitrion, s.Red, s.Red.ColLagos.Item(elegido))
                      : hydraulics::EnMano(s.Anfitrion, s.Red, s.Red.ColRepresas.Item(elegido));
    }

    /// H-A-S table of the Represa and of the Lago with that number.
    void PonHAS(const std::vector<RenglonHAS>& renglones, int numero = 1)
    {
        const auto n = static_cast<std::int16_t>(renglones.size());
        s.Red.RepresaFilasHAS(numero) = s.Red.LagoFilas(numero) = n;
        for (auto* tabla : {&s.Red.RepresaH, &s.Red.RepresaA, &s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        for (auto* tabla : {&s.Red.RepresaS, &s.Red.LagoS})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        int k = 0;
        for (const RenglonHAS& r : renglones) {
            ++k;
            s.Red.RepresaH(numero, k) = s.Red.LagoH(numero, k) = r.H;
            s.Red.RepresaA(numero, k) = s.Red.LagoA(numero, k) = r.A;
            s.Red.RepresaS(numero, k) = s.Red.LagoS(numero, k) = r.S;
        }
    }

    /// H-Q table of the Represa, which is set to use it, and of the Lago with that number.
    void PonHQ(const std::vector<RenglonHQ>& renglones, int numero = 1)
    {
        const auto n = static_cast<std::int16_t>(renglones.size());
        s.Red.RepresaFilasHQ(numero) = s.Red.LagoFilas(numero) = n;
        for (auto* tabla : {&s.Red.RepresaQH, &s.Red.RepresaQQ, &s.Red.LagoH, &s.Red.LagoQ})
            if (tabla->TopeColumna() <= n) tabla->Redimensiona(n + 1);
        int k = 0;
        for (const RenglonHQ& r : renglones) {
            ++k;
            s.Red.RepresaQH(numero, k) = s.Red.LagoH(numero, k) = r.H;
            s.Red.RepresaQQ(numero, k) = s.Red.LagoQ(numero, k) = r.Q;
        }
        s.Red.Represas(numero).optTabla = true;
    }

    /// Outflow function i, from 1, of the first Represa, in use.
    void PonFuncion(std::size_t i, float a, float b, float c, float minimo, float maximo)
    {
        model::Represa& r = s.Red.Represas(1);
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
    bool enLago = false;
    int elegido = 1;
};

}  // namespace pruebas
