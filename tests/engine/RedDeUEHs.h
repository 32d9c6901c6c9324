// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

// Small networks of UEHs and reaches whose results can be worked out by hand.
namespace pruebas {

/// 60 mm in 30 min at constant intensity on UEHs of 6 ha that take in nothing: 20 mm a step of 10 min give
/// 20/10·0.166667·6 = 2.000004 m3/s. A slope of 600 m at 1 m/s takes T = 10 min, one step: the flow of a step
/// arrives whole at the end of that step.
class RedDeUEHs {
  public:
    RedDeUEHs()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = "/trabajo";
        s.Proyecto.DirProyecto = "/proyectos";
        s.frmConfigura.Drive1 = model::UnidadDe("/proyectos");
        s.Proyecto.NombreProyecto = "Prueba";
        disco.PonDirectorio("/trabajo");
        disco.PonDirectorio("/proyectos");
        s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 30;
        s.Pasos.N0Dur = 20;
    }
    model::UEH& PonUEH(const std::string& nombre, const std::string& destino)
    {
        return s.Red.ColUEHs.Agrega({.NombreUEH = nombre,
                                     .Area = 6,
                                     .LongitudMax = 600,
                                     .VelMedia = 1,
                                     .Metodo = "Directo",
                                     .numUEH = static_cast<std::int16_t>(s.Red.ColUEHs.Cuenta() + 1),
                                     .Cauce_aa = destino});
    }
    /// Direct, 600 m at 1 m/s: a delay of one step of 10 min.
    model::Cauce& PonCauce(const std::string& nombre, const std::string& destino)
    {
        return s.Red.ColCauces.Agrega({.numCauce = static_cast<std::int16_t>(s.Red.ColCauces.Cuenta() + 1),
                                       .NombreCauce = nombre,
                                       .Cauce_aa = destino,
                                       .LongCauce = 600,
                                       .VelMediaCauce = 1,
                                       .optDirMusk = true});
    }
    /// Writes the project that is in memory to the disk, with all recurrences and durations selected.
    void GuardaProyecto()
    {
        s.frmConfigura.Dir1 = s.Proyecto.DirProyecto;
        s.frmConfigura.CheckR.fill(1);
        s.frmConfigura.CheckD.fill(1);
        model::cmdAplicar(s);
        model::GuardaRed(s);
        anfitrion->sucesos.clear();
    }

    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
};

}  // namespace pruebas
