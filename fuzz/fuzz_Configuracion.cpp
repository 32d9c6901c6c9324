// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "model/ArchivoConf.h"
#include "model/Configuracion.h"
#include "model/Siro.h"

namespace {

// Its text of 15 digits may be a number beyond the type: not expected to come back.
constexpr double EscalaSegura = 1E308;

/// Reads and writes once more and returns what is written.
std::string OtraVuelta(model::Siro& s, const DiscoPorTerminacion& disco)
{
    model::leoConf(s);
    model::cmdAplicar(s);
    return disco.archivos->at("Conf.vlm");
}

}  // namespace

// One box at most for a reading that fails; what was read whole comes back the same once it has been written
// in the program's own hand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoPorTerminacion disco;
    (*disco.archivos)["Conf.vlm"].assign(datos, datos + largo);
    int avisos = 0;
    model::Siro s;
    s.Disco = disco.Disco();
    s.Anfitrion.Avisa = [&](const model::Mensaje&) { ++avisos; };
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = "/proy";
    model::leoConf(s);
    Exige(avisos <= 1);
    Exige(!s.Configuracion.ListaRec.empty() && !s.Configuracion.ListaDur.empty());
    const bool mudado =
        avisos == 1 && s.Proyecto.NombreProyecto == "A" && (*disco.archivos)["Conf.vlm"].size() != largo;
    if ((avisos > 0 && !mudado) || s.Proyecto.NombreProyecto.empty() ||
        std::fabs(s.Configuracion.EscalaImagen) > EscalaSegura)
        return 0;

    // The first round may lose what follows a double quote inside a text.
    OtraVuelta(s, disco);
    if (s.Proyecto.NombreProyecto.empty()) return 0;
    const std::string segunda = OtraVuelta(s, disco);
    Exige(OtraVuelta(s, disco) == segunda);
    return 0;
}
