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
        s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
    }

    /// `inicial`: flow when the storm begins [m3/s].
    void PonUEH(const std::string& nombre, const std::string& destino, float inicial = 0)
    {
        const auto numero = static_cast<std::int16_t>(s.Red.ColUEHs.Cuenta() + 1);
        s.Red.ColUEHs.Agrega(
            {.NombreUEH = nombre, .numUEH = numero, .Cauce_aa = destino, .Q0Recesion = inicial});
    }
    model::Cauce& PonCauce(const std::string& nombre, const std::string& destino)
    {
        const auto numero = static_cast<std::int16_t>(s.Red.ColCauces.Cuenta() + 1);
        return s.Red.ColCauces.Agrega({.numCauce = numero, .NombreCauce = nombre, .Cauce_aa = destino});
    }
    /// Outflow by table, on the heights of the other columns.
    model::Represa& PonRepresa(const std::string& nombre, const std::string& metodo,
                               const std::vector<RenglonHASQ>& tabla)
    {
        const auto numero = static_cast<std::int16_t>(s.Red.ColRepresas.Cuenta() + 1);
        tablasRepresas.push_back(tabla);
        return s.Red.ColRepresas.Agrega(
            {.NombreRepresa = nombre, .numRepresa = numero, .Metodo = metodo, .optTabla = true});
    }
    model::Lago& PonLago(const std::string& nombre, const std::string& metodo,
                         const std::vector<RenglonHASQ>& tabla)
    {
        const auto numero = static_cast<std::int16_t>(s.Red.ColLagos.Cuenta() + 1);
        tablasLagos.push_back(tabla);
        return s.Red.ColLagos.Agrega({.NombreLAGO = nombre, .numLAGO = numero, .Metodo = metodo});
    }

    /// Sizes tables and results for `pasos` output steps, as the main process does ahead of the routing.
    void Dimensiona(int pasos)
    {
        s.Resultados.NroPasosQ = static_cast<std::int16_t>(pasos);
        s.Serie.IndSerie = 1;
        s.Resultados.Secuencia = {""};
        for (const auto& u : s.Red.ColUEHs)
            s.Resultados.Secuencia.push_back(u.NombreUEH);
        for (const auto& c : s.Red.ColCauces)
            s.Resultados.Secuencia.push_back(c.NombreCauce);
        for (const auto& l : s.Red.ColLagos)
            s.Resultados.Secuencia.push_back(l.NombreLAGO);
        for (const auto& r : s.Red.ColRepresas)
            s.Resultados.Secuencia.push_back(r.NombreRepresa);
        s.Resultados.NroComponentes = static_cast<std::int16_t>(s.Resultados.Secuencia.size() - 1);
        CuentaComponentes();
        LlenaTablas();
        s.Resultados.QSale.Dimensiona(s.Resultados.NroComponentes, pasos + 1);
        s.Resultados.QEntra.Dimensiona(s.Red.NroUEHs() + 1, s.Resultados.NroComponentes + 1, pasos + 1);
        s.Resultados.QMax.Dimensiona(s.Resultados.NroComponentes, 1);
        for (auto* m : {&s.Resultados.HRepresa, &s.Resultados.SRepresa})
            m->Dimensiona(s.Red.NroRepresas(), pasos + 1);
        for (auto* m : {&s.Resultados.HLago, &s.Resultados.SLago})
            m->Dimensiona(s.Red.NroLagos(), pasos + 1);
        aportes = engine::Aportes(s);
        corrida.Afluentes = &aportes;
    }
    void CuentaComponentes() {}
    /// The tables given so far into the run-wide arrays.
    void LlenaTablas()
    {
        int filas = 10;
        for (const auto* tablas : {&tablasRepresas, &tablasLagos})
            for (const auto& t : *tablas)
                filas = std::max(filas, static_cast<int>(t.size()) + 1);
        const int r = s.Red.ColRepresas.Cuenta(), l = s.Red.ColLagos.Cuenta();
        for (auto* m : {&s.Red.RepresaH, &s.Red.RepresaA, &s.Red.RepresaQH, &s.Red.RepresaQQ})
            m->Dimensiona(r, filas);
        for (auto* m : {&s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
            m->Dimensiona(l, filas);
        s.Red.RepresaS.Dimensiona(r, filas);
        s.Red.LagoS.Dimensiona(l, filas);
        s.Red.RepresaFilasHAS.Dimensiona(r);
        s.Red.RepresaFilasHQ.Dimensiona(r);
        s.Red.LagoFilas.Dimensiona(l);
        for (int n = 1; n <= r; ++n) {
            const auto& t = tablasRepresas[static_cast<std::size_t>(n) - 1];
            s.Red.RepresaFilasHAS(n) = s.Red.RepresaFilasHQ(n) = static_cast<std::int16_t>(t.size());
            for (int k = 1; k <= static_cast<int>(t.size()); ++k) {
                const RenglonHASQ& renglon = t[static_cast<std::size_t>(k) - 1];
                s.Red.RepresaH(n, k) = s.Red.RepresaQH(n, k) = renglon.H;
                s.Red.RepresaA(n, k) = renglon.A;
                s.Red.RepresaS(n, k) = renglon.S;
                s.Red.RepresaQQ(n, k) = renglon.Q;
            }
        }
        for (int n = 1; n <= l; ++n) {
            const auto& t = tablasLagos[static_cast<std::size_t>(n) - 1];
            s.Red.LagoFilas(n) = static_cast<std::int16_t>(t.size());
            for (int k = 1; k <= static_cast<int>(t.size()); ++k) {
                const RenglonHASQ& renglon = t[static_cast<std::size_t>(k) - 1];
                s.Red.LagoH(n, k) = renglon.H;
                s.Red.LagoA(n, k) = renglon.A;
                s.Red.LagoS(n, k) = renglon.S;
                s.Red.LagoQ(n, k) = renglon.Q;
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
        if (s.Red.ColRepresas.Cuenta() == 0) return;
        for (auto* coeficientes : {&s.Red.Represas(1).FQa, &s.Red.Represas(1).FQb, &s.Red.Represas(1).FQc})
            for (std::size_t i = 0; i < coeficientes->size(); ++i)
                if (i >= 4 || coeficientes != &s.Red.Represas(1).FQb) (*coeficientes)[i] *= factor;
    }

    /// Row of a component in Secuencia.
    [[nodiscard]] int Fila(const std::string& nombre) const
    {
        const auto lugar =
            std::find(s.Resultados.Secuencia.begin() + 1, s.Resultados.Secuencia.end(), nombre);
        return static_cast<int>(lugar - s.Resultados.Secuencia.begin());
    }
    /// Hydrograph of a component from step 1 [m3/s].
    void PonCaudales(const std::string& nombre, const std::vector<float>& caudales)
    {
        std::copy(caudales.begin(), caudales.end(), s.Resultados.QSale.Fila(Fila(nombre)) + 1);
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
