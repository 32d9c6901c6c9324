// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "checks/AvisosDeCorrida.h"
#include "engine/Calcula.h"
#include "engine/EmbalseSolo.h"

namespace pruebas {

/// u-1 -> c-1, with which nothing is wrong: 60 mm in 60 min, all of it excess, on 100 ha that it takes 60 min
/// to leave: 10/10·0.166667·100 = 16.6667 m3/s from minute 60 on. c-1 brings it 10 min later; 120 min are
/// added.
class CorridaDePrueba : public RedAMano {
  public:
    CorridaDePrueba()
    {
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 60;
        s.Pasos.N0Dur = 120;
        UEH("u-1", "c-1");
        Directo("c-1", "0");
    }
    model::UEH& UEH(const std::string& nombre, const std::string& destino)
    {
        PonUEH(nombre, destino);
        model::UEH& u = s.Red.ColUEHs.Item(s.Red.ColUEHs.Cuenta());
        u.Area = 100;
        u.LongitudMax = 3600;
        u.VelMedia = 1;
        return u;
    }
    model::Cauce& Directo(const std::string& nombre, const std::string& destino)
    {
        model::Cauce& c = PonCauce(nombre, destino);
        c.optDirMusk = true;
        c.LongCauce = 600;
        c.VelMediaCauce = 1;
        return c;
    }
    model::Cauce& Muskingum(model::Cauce& c, float K, float x)
    {
        c.optDirMusk = false;
        c.Cauce_k_Musk = K;
        c.Cauce_n_Musk = x;
        return c;
    }
    /// Walls: S = 10000·area·d [m3], Q = q·d [m3/s] at d metres above 100 m, in rows of 1 m.
    static std::vector<RenglonHASQ> Prisma(float area, float q, int metros)
    {
        std::vector<RenglonHASQ> tabla;
        for (int k = 0; k <= metros; ++k) {
            const auto d = static_cast<float>(k);
            tabla.push_back({100 + d, area, static_cast<std::int32_t>(10000 * area * d), q * d});
        }
        return tabla;
    }
    /// A Represa in the place of the outfall, with water up to its lowest row.
    model::Represa& Represa(const std::string& metodo, const std::vector<RenglonHASQ>& tabla)
    {
        model::Represa& r = PonRepresa("r-1", metodo, tabla);
        r.HInicialEmb = 100;
        r.Cauce_aa = "0";
        s.Red.ColCauces.Item(1).Cauce_aa = "r-1";
        return r;
    }
    engine::Calculo Corre()
    {
        LlenaTablas();
        return engine::Calcula(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia);
    }
    std::vector<checks::Hallazgo> Avisos()
    {
        return checks::AvisosDeCorrida(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia, Corre());
    }
};

inline const checks::Hallazgo* Busca(const std::vector<checks::Hallazgo>& avisos, int numero,
                                     std::string_view componente)
{
    const auto hallado = std::find_if(avisos.begin(), avisos.end(), [&](const checks::Hallazgo& h) {
        return h.numero == numero && h.componente == componente;
    });
    return hallado != avisos.end() ? &*hallado : nullptr;
}

inline std::string Lista(const std::vector<checks::Hallazgo>& avisos)
{
    std::string texto;
    for (const checks::Hallazgo& h : avisos)
        texto += std::to_string(h.numero) + " " + h.componente + ": " + h.que + " (" + h.cuanto + "). " +
                 h.remedio + "\n";
    return texto;
}

}  // namespace pruebas
