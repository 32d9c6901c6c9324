// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "model/Componentes.h"
#include "model/Siro.h"

namespace {

/// Three reaches of 4, 0 and 9 vertices.
std::string RedDeTresCauces()
{
    std::string bytes = "\"A\"\r\n3\r\n";
    for (const char* const vertices : {"4", "0", "9"})
        bytes +=
            "1\r\n\"c\"\r\n" + std::string(vertices) + "\r\n1\r\n\"\"\r\n1\r\n1\r\n1\r\n1\r\n1\r\n#TRUE#\r\n";
    return bytes + "0\r\n0\r\n0\r\n";
}

}  // namespace

// Vertices that were read without a box are written and read back the same; nothing leaves the rows and
// columns of the drawing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoPorTerminacion disco;
    (*disco.archivos)["UEHs.vlm"] = RedDeTresCauces();
    (*disco.archivos)["VerCau.vlm"].assign(datos, datos + largo);
    int avisos = 0;
    model::Siro s;
    s.Disco = disco.Disco();
    s.Anfitrion.Avisa = [&](const model::Mensaje&) { ++avisos; };
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = "/proy";
    model::LeeUEHs(s);
    Exige(avisos <= 13 + 1);  // a box for each pair, and that of the end
    Exige(s.Red.NroCauces() == 3 && s.Red.XVertice.UltimaFila() == 70 && s.Red.XVertice.TopeColumna() <= 9);
    if (avisos > 0) return 0;

    // Seven digits tell a number; from then on it is the same.
    model::GuardaRed(s);
    const auto x = s.Red.XVertice;
    const auto y = s.Red.YVertice;
    model::GuardaRed(s);
    Exige(s.Red.XVertice == x && s.Red.YVertice == y);
    return 0;
}
