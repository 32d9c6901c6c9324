// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Componentes.h"
#include "model/Siro.h"

namespace pruebas {

/// The project "Arroyo", open in "/proy" on a disk in memory, for forms that read a saved network.
class ProyectoGuardado {
  public:
    ProyectoGuardado()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        disco.PonDirectorio("/proy");
        s.Red.XVertice.Dimensiona(model::MaxCauces, model::MaxNroVertices);
        s.Red.YVertice.Dimensiona(model::MaxCauces, model::MaxNroVertices);
    }
    /// Adds a reach of two vertices.
    void Agrega(model::Cauce c)
    {
        const auto n = static_cast<std::int16_t>(s.Red.ColCauces.Cuenta() + 1);
        c.numCauce = n;
        c.numVertices = s.Red.NroVertices(n) = 2;
        c.IndiceParInicial = static_cast<std::int16_t>(2 * n - 1);
        s.Red.ColCauces.Agrega(std::move(c));
    }
    void Agrega(model::UEH u)
    {
        u.numUEH = static_cast<std::int16_t>(s.Red.ColUEHs.Cuenta() + 1);
        s.Red.ColUEHs.Agrega(std::move(u));
    }
    void Agrega(model::Represa r)
    {
        r.numRepresa = static_cast<std::int16_t>(s.Red.ColRepresas.Cuenta() + 1);
        s.Red.ColRepresas.Agrega(std::move(r));
    }
    void Agrega(model::Lago l)
    {
        l.numLAGO = static_cast<std::int16_t>(s.Red.ColLagos.Cuenta() + 1);
        s.Red.ColLagos.Agrega(std::move(l));
    }
    /// Puts the network on the disk and forgets what was said about it.
    void Guarda()
    {
        model::GuardaRed(s);
        anfitrion->sucesos.clear();
    }

    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    model::Siro s{};
};

}  // namespace pruebas
