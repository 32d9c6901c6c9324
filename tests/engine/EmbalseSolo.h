// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "engine/Aportes.h"
#include "engine/Corrida.h"
#include "engine/Embalses.h"

// A network made by hand whose UEHs already have their hydrographs, so that a test sees one component alone.
namespace pruebas {

/// Row of a table of Represa or Lago.
struct RenglonHASQ {
    float H = 0;         ///< [m]
    float A = 0;         ///< [ha]
    std::int32_t S = 0;  ///< [m3]
    float Q = 0;         ///< [m3/s]
};

class RedAMano {
  public:
    RedAMano()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.PasoPp = s.PasoQ = 10;
    }

    /// `inicial`: flow when the storm begins [m3/s].
    void PonUEH(const std::string& nombre, const std::string& destino, float inicial = 0)
    {
        const auto numero = static_cast<std::int16_t>(s.ColUEHs.Cuenta() + 1);
        s.ColUEHs.Agrega({.NombreUEH = nombre, .numUEH = numero, .Cauce_aa = destino, .Q0Recesion = inicial});
    }
    model::Cauce& PonCauce(const std::string& nombre, const std::string& destino)
    {
        const auto numero = static_cast<std::int16_t>(s.ColCauces.Cuenta() + 1);
        return s.ColCauces.Agrega({.numCauce = numero, .NombreCauce = nombre, .Cauce_aa = destino});
    }
    /// Outflow by table, on the heights of the other columns.
    model::Represa& PonRepresa(const std::string& nombre, const std::string& metodo,
                               const std::vector<RenglonHASQ>& tabla)
    {
        const auto numero = static_cast<std::int16_t>(s.ColRepresas.Cuenta() + 1);
        tablasRepresas.push_back(tabla);
        return s.ColRepresas.Agrega(
            {.NombreRepresa = nombre, .numRepresa = numero, .Metodo = metodo, .optTabla = true});
    }
    model::Lago& PonLago(const std::string& nombre, const std::string& metodo,
                         const std::vector<RenglonHASQ>& tabla)
    {
        const auto numero = static_cast<std::int16_t>(s.ColLagos.Cuenta() + 1);
        tablasLagos.push_back(tabla);
        return s.ColLagos.Agrega({.NombreLAGO = nombre, .numLAGO = numero, .Metodo = metodo});
    }

    /// Sizes tables and results for `pasos` output steps, as the main process does ahead of the routing.
    void Dimensiona(int pasos)
    {
        s.NroPasosQ = static_cast<std::int16_t>(pasos);
        s.IndSerie = 1;
        s.Secuencia = {""};
        for (const auto& u : s.ColUEHs)
            s.Secuencia.push_back(u.NombreUEH);
        for (const auto& c : s.ColCauces)
            s.Secuencia.push_back(c.NombreCauce);
        for (const auto& l : s.ColLagos)
            s.Secuencia.push_back(l.NombreLAGO);
        for (const auto& r : s.ColRepresas)
            s.Secuencia.push_back(r.NombreRepresa);
        s.NroComponentes = static_cast<std::int16_t>(s.Secuencia.size() - 1);
        CuentaComponentes();
        LlenaTablas();
        s.QSale.Dimensiona(s.NroComponentes, pasos + 1);
        s.QEntra.Dimensiona(s.NroUEHs + 1, s.NroComponentes + 1, pasos + 1);
        s.QMax.Dimensiona(s.NroComponentes, 1);
        for (auto* m : {&s.HRepresa, &s.SRepresa})
            m->Dimensiona(s.NroRepresas, pasos + 1);
        for (auto* m : {&s.HLago, &s.SLago})
            m->Dimensiona(s.NroLagos, pasos + 1);
        aportes = engine::Aportes(s);
        corrida.Afluentes = &aportes;
    }
    void CuentaComponentes()
    {
        s.NroUEHs = static_cast<std::int16_t>(s.ColUEHs.Cuenta());
        s.NroCauces = static_cast<std::int16_t>(s.ColCauces.Cuenta());
        s.NroLagos = static_cast<std::int16_t>(s.ColLagos.Cuenta());
        s.NroRepresas = static_cast<std::int16_t>(s.ColRepresas.Cuenta());
    }
    /// The tables given so far into the run-wide arrays.
    void LlenaTablas()
    {
        int filas = 10;
        for (const auto* tablas : {&tablasRepresas, &tablasLagos})
            for (const auto& t : *tablas)
                filas = std::max(filas, static_cast<int>(t.size()) + 1);
        const int r = s.ColRepresas.Cuenta(), l = s.ColLagos.Cuenta();
        for (auto* m : {&s.RepresaH, &s.RepresaA, &s.RepresaQH, &s.RepresaQQ})
            m->Dimensiona(r, filas);
        for (auto* m : {&s.LagoH, &s.LagoA, &s.LagoQ})
            m->Dimensiona(l, filas);
        s.RepresaS.Dimensiona(r, filas);
        s.LagoS.Dimensiona(l, filas);
        s.RepresaFilasHAS.Dimensiona(r);
        s.RepresaFilasHQ.Dimensiona(r);
        s.LagoFilas.Dimensiona(l);
        for (int n = 1; n <= r; ++n) {
            const auto& t = tablasRepresas[static_cast<std::size_t>(n) - 1];
            s.RepresaFilasHAS(n) = s.RepresaFilasHQ(n) = static_cast<std::int16_t>(t.size());
            for (int k = 1; k <= static_cast<int>(t.size()); ++k) {
                const RenglonHASQ& renglon = t[static_cast<std::size_t>(k) - 1];
                s.RepresaH(n, k) = s.RepresaQH(n, k) = renglon.H;
                s.RepresaA(n, k) = renglon.A;
                s.RepresaS(n, k) = renglon.S;
                s.RepresaQQ(n, k) = renglon.Q;
            }
        }
        for (int n = 1; n <= l; ++n) {
            const auto& t = tablasLagos[static_cast<std::size_t>(n) - 1];
            s.LagoFilas(n) = static_cast<std::int16_t>(t.size());
            for (int k = 1; k <= static_cast<int>(t.size()); ++k) {
                const RenglonHASQ& renglon = t[static_cast<std::size_t>(k) - 1];
                s.LagoH(n, k) = renglon.H;
                s.LagoA(n, k) = renglon.A;
                s.LagoS(n, k) = renglon.S;
                s.LagoQ(n, k) = renglon.Q;
            }
        }
    }

    /// Multiplies every outflow of the first Represa and the first Lago.
    void EscalaDescarga(float factor)
    {
        for (auto* tablas : {&tablasRepresas, &tablasLagos})
            if (!tablas->empty())
                for (RenglonHASQ& r : tablas->front())
                    r.Q *= factor;
        if (s.ColRepresas.Cuenta() == 0) return;
        for (auto* coeficientes : {&s.Represas(1).FQa, &s.Represas(1).FQb, &s.Represas(1).FQc})
            for (std::size_t i = 0; i < coeficientes->size(); ++i)
                if (i >= 4 || coeficientes != &s.Represas(1).FQb) (*coeficientes)[i] *= factor;
    }

    /// Row of a component in Secuencia.
    [[nodiscard]] int Fila(const std::string& nombre) const
    {
        const auto lugar = std::find(s.Secuencia.begin() + 1, s.Secuencia.end(), nombre);
        return static_cast<int>(lugar - s.Secuencia.begin());
    }
    /// Hydrograph of a component from step 1 [m3/s].
    void PonCaudales(const std::string& nombre, const std::vector<float>& caudales)
    {
        std::copy(caudales.begin(), caudales.end(), s.QSale.Fila(Fila(nombre)) + 1);
    }
    void Propaga(const std::string& nombre)
    {
        if (nombre.starts_with("l-"))
            engine::Proceso_en_Lago(corrida, Fila(nombre));
        else
            engine::Proceso_en_Represa(corrida, Fila(nombre));
    }

    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    engine::Memoria memoria{};
    engine::Corrida corrida{s, memoria};

  private:
    std::vector<std::vector<RenglonHASQ>> tablasRepresas, tablasLagos;
    engine::Aportes aportes;
};

}  // namespace pruebas
