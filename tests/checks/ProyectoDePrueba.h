// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"

namespace pruebas {

/// A project on a disk in memory, open: u-1 -> c-1 -> c-2, which is the outfall, and nothing to be said of
/// any of it. Its files are written by Guarda.
class ProyectoDePrueba : public testing::Test {
  protected:
    ProyectoDePrueba()
    {
        disco.PonDirectorio("/proy");
        disco.PonDirectorio("/trabajo");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        s.Proyecto.DirTrabajo = "/trabajo";
        model::cmdAplicar(s);
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 60;
        model::UEH u;
        u.NombreUEH = "u-1";
        u.Metodo = "Directo";
        u.numUEH = 1;
        u.IconoUEHx = 300;
        u.IconoUEHy = 100;
        u.Cauce_aa = "c-1";
        u.Area = 100;
        u.LongitudMax = 1200;
        u.VelMedia = 1;
        s.Red.ColUEHs.Agrega(u);
        Cauce(1, "c-1", "c-2");
        Cauce(2, "c-2", "0");
        Guarda();
    }
    void Cauce(std::int16_t n, const std::string& nombre, const std::string& destino)
    {
        model::Cauce c;
        c.numCauce = n;
        c.numVertices = 2;
        c.IndiceParInicial = static_cast<std::int16_t>(2 * n - 1);
        c.NombreCauce = nombre;
        c.Cauce_aa = destino;
        c.LongCauce = 1200;
        c.VelMediaCauce = 2;
        c.Cauce_k_Musk = 10;
        c.Cauce_n_Musk = 0.25F;
        c.optDirMusk = true;
        s.Red.ColCauces.Agrega(c);
        s.Red.NroVertices(n) = 2;
        for (auto* v : {&s.Red.XVertice, &s.Red.YVertice})
            if (v->UltimaFila() < model::MaxCauces) v->Dimensiona(model::MaxCauces, 2);
        for (int k = 1; k <= 2; ++k) {
            s.Red.XVertice(n, k) = s.Red.YVertice(n, k) = static_cast<float>(100 * (n + k));
        }
    }
    /// Makes a reach one of Muskingum's, with K and x that no run takes: the sum of the coefficients isn't
    /// exactly 1 in 32 bits.
    void RechazaMuskingum(int n)
    {
        s.Pasos.PasoQ = s.Pasos.PasoPp = 30;
        model::Cauce& c = s.Red.ColCauces.Item(n);
        c.optDirMusk = false;
        c.Cauce_k_Musk = 70;
        c.Cauce_n_Musk = 0.2F;
    }
    void Guarda()
    {
        ASSERT_TRUE(model::GuardaRed(s));
        anfitrion->sucesos.clear();
    }
    /// Bytes of all files, to see that none has changed.
    [[nodiscard]] std::string Archivos() const
    {
        std::string todo;
        for (const std::string& ruta : disco.Archivos())
            todo += ruta + "\n" + disco.Bytes(ruta) + "\n";
        return todo;
    }

    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
};

}  // namespace pruebas
