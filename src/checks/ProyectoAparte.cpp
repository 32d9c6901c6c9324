// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/ProyectoAparte.h"

#include <string_view>
#include <vector>

#include "model/ArchivoConf.h"
#include "model/CambioArchivo.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace checks {

model::Disco SoloLectura(model::Disco disco)
{
    disco.Escribe = disco.Agrega = [](const std::string&, std::string_view) {};
    disco.Reemplaza = [](const std::vector<model::CambioArchivo>&) {};
    disco.Borra = disco.CreaDirectorio = [](const std::string&) {};
    disco.Copia = [](const std::string&, const std::string&) {};
    disco.Recupera = [](const std::string&) { return model::Recuperacion{}; };
    return disco;
}

bool AbreProyecto(model::Siro& s, const std::string& conf)
{
    model::TomaRutaProyecto(s, conf);
    model::RecuperaGuardado(s, s.Proyecto.DirProyecto);
    s.Anfitrion.carga_lbl_proyecto();
    model::leoConf(s);
    return !s.Proyecto.NombreProyecto.empty() && !s.Proyecto.DirProyecto.empty();
}

}  // namespace checks
