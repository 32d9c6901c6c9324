// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "calibration/taller/dlgAjuste.h"
#include "checks/ProyectoDePrueba.h"
#include "study/Abierto.h"

namespace pruebas {

/// The workshop's record on a project on a disk in memory: u-1 and u-2 -> c-1 -> c-2, which is the outfall.
struct TallerDeAjuste : ProyectoDePrueba {
    TallerDeAjuste()
    {
        s.Pasos = {.PasoPp = 5, .PasoQ = 5, .N0Dur = 300};
        model::UEH otra = s.Red.ColUEHs.Ranura(1);
        otra.NombreUEH = "u-2";
        otra.numUEH = 2;
        otra.Area = 50;
        s.Red.ColUEHs.Agrega(otra);
        PonRed([](model::Red& red) {
            for (const int n : {1, 2}) {
                model::UEH& u = red.ColUEHs.Ranura(n);
                u.KostiakovA = static_cast<float>(n);
                u.KostiakovB = 0.6F;
                u.RetensionZ = n == 1 ? 5 : 0;
                u.VelMedia = 0.2F;
                u.Q0Recesion = n == 1 ? 0.5F : 0;
                u.KRecesion = 10;
            }
        });
        study::Toma(f);
        f.abierta = true;
    }
    /// Changes the network in memory and in its files.
    void PonRed(const std::function<void(model::Red&)>& cambio)
    {
        cambio(s.Red);
        Guarda();
        estudio.Sigue();
        study::Toma(f);
    }

    study::Abierto estudio{s};
    calibration::dlgAjuste f{estudio, s};
};

}  // namespace pruebas
