// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoDeUnArchivo.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

// Whatever the pointer holds, there is a project directory afterwards, and the pointer that was written in
// its place is read as the same. The bytes are tried as a path to be opened and as a name too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoDeUnArchivo archivo;
    archivo.bytes->assign(datos, datos + largo);
    const std::string texto = *archivo.bytes;
    model::Siro s;
    s.Disco = archivo.Disco();
    s.Proyecto.DirEjecutable = "siro";
    model::LimpiaProyecto(s);
    Exige(!s.Proyecto.DirProyecto.empty() && s.Proyecto.DirTrabajo == "siro");
    if ((s.Proyecto.DirProyecto + s.Proyecto.NombreProyecto).find('"') == std::string::npos) {
        model::Siro otro = s;
        model::LeePuntero(otro);
        Exige(otro.Proyecto.DirProyecto == s.Proyecto.DirProyecto &&
              otro.Proyecto.NombreProyecto == s.Proyecto.NombreProyecto);
    }

    if (model::NombreProyectoValido(texto)) Exige(texto.find_first_of(" _/\\.") == std::string::npos);
    if (model::TomaRutaProyecto(s, texto)) {
        Exige(texto.ends_with(s.Proyecto.NombreProyecto + "_Conf.vlm"));
    } else {
        Exige(s.Proyecto.NombreProyecto.empty() && s.Proyecto.ArchivoTemp.empty());
    }
    return 0;
}
