// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "DiscoPorTerminacion.h"
#include "model/Componentes.h"
#include "model/Siro.h"

namespace {

using Bytes = std::pair<std::string, std::string>;

// More vertices than any file of a fuzzer holds: a save would write them all for nothing.
constexpr int VerticesDeSobra = 1000;

/// Saves and reads once more and returns both files.
Bytes OtraVuelta(model::Siro& s, const DiscoPorTerminacion& disco)
{
    model::GuardaRed(s);
    return {(*disco.archivos)["UEHs.vlm"], (*disco.archivos)["VerCau.vlm"]};
}

}  // namespace

// The bytes are the component file, up to "\0" the vertices. A network that was read without a box comes back
// the same once it has been written in the program's own hand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    const std::size_t corte = bytes.find('\0');
    const DiscoPorTerminacion disco;
    (*disco.archivos)["UEHs.vlm"] = bytes.substr(0, corte);
    if (corte != std::string::npos) (*disco.archivos)["VerCau.vlm"] = bytes.substr(corte + 1);
    int avisos = 0;
    model::Siro s;
    s.Disco = disco.Disco();
    s.Anfitrion.Avisa = [&](const model::Mensaje&) { ++avisos; };
    s.Proyecto.NombreProyecto = "A";
    s.Proyecto.DirProyecto = "/proy";
    model::LeeUEHs(s);
    Exige(s.Red.ColUEHs.Cuenta() <= 32767 && s.Red.ColCauces.Cuenta() <= 32767);
    if (s.Red.XVertice.TopeColumna() > VerticesDeSobra) return 0;
    if (avisos > 0) {
        // A save of what was read in part may fail in many places, none of them with harm.
        if (s.Red.NroCauces() <= model::MaxCauces) OtraVuelta(s, disco);
        return 0;
    }
    // The first round may lose what follows a double quote inside a text.
    OtraVuelta(s, disco);
    const Bytes segunda = OtraVuelta(s, disco);
    Exige(OtraVuelta(s, disco) == segunda);
    return 0;
}
