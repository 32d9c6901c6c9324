// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Arranque.h"

#include <algorithm>
#include <array>

#include "model/Avisos.h"
#include "model/Disco.h"
#include "model/VidaProyecto.h"

namespace shell {

using model::Disco;
using model::Falla;
using model::Siro;

namespace {

constexpr std::string_view ArchivoDePrueba = "siro_prueba.tmp";
/// Folders of what is delivered, the root first.
constexpr auto CarpetasEntregadas = std::to_array<std::string_view>({"", "Proyectos", "Ayuda"});

bool Intenta(const std::function<void()>& cuerpo)
{
    return model::Sentencia(cuerpo, [](const Falla&) {});
}

bool SePuedeEscribir(const Disco& disco, const std::string& directorio)
{
    const std::string prueba = model::Ruta(directorio, ArchivoDePrueba);
    return Intenta([&] {
        disco.Escribe(prueba, "");
        disco.Borra(prueba);
    });
}

bool Esta(const Disco& disco, const std::string& directorio, std::string_view nombre)
{
    bool esta = false;
    Intenta([&] {
        const auto nombres = disco.Lista(directorio);
        esta = std::find(nombres.begin(), nombres.end(), nombre) != nombres.end();
    });
    return esta;
}

void CopiaLoQueFalta(const Disco& disco, const std::string& origen, const std::string& destino)
{
    if (!disco.HayDirectorio(origen)) return;
    if (!disco.HayDirectorio(destino)) Intenta([&] { disco.CreaDirectorio(destino); });
    Intenta([&] {
        for (const std::string& nombre : disco.Lista(origen))
            if (!Esta(disco, destino, nombre))
                Intenta([&] { disco.Copia(model::Ruta(origen, nombre), model::Ruta(destino, nombre)); });
    });
}

}  // namespace

std::string TextoVersion(std::string_view version)
{
    return std::string("Version ").append(version);
}

void Prepara(Siro& s, const Portada& portada, std::string_view version, double segundosPortada)
{
    s.SalidaPizarra = false;
    s.ErrorRed = s.RedOk = s.SaltarTormenta = false;
    s.AvisoDescargasVisto = s.ContinuarSinCorregir = false;
    s.ProyectoNuevo = s.ConfPendiente = false;
    model::LimpiaProyecto(s);
    s.NombreProyecto = ProyectoPorDefecto;

    portada.Abre(TextoVersion(version));
    const double desde = s.Anfitrion.Reloj();
    do {
        portada.AtiendeSucesos();
    } while (s.Anfitrion.Reloj() - desde < segundosPortada);
    portada.Cierra();

    model::LeePuntero(s);
}

void AlAbrirse(MDIForm1& f, Siro& s)
{
    Abre(f);
    if (s.NombreProyecto.empty()) return;
    f.Estado(Variable::mnu_ultimoarchivo1).leyenda =
        model::Ruta(s.DirProyecto, s.NombreProyecto).append(model::TerminacionConf);
    s.ConfPendiente = true;
    s.NombreProyecto.clear();
}

std::string PreparaDirTrabajo(const Disco& disco, const std::string& dirEjecutable,
                              const std::string& dirUsuario, const std::string& dirEntregado)
{
    std::string directorio = SePuedeEscribir(disco, dirEjecutable) ? dirEjecutable : dirUsuario;
    if (dirEntregado.empty() || Esta(disco, directorio, model::ArchivoPuntero)) return directorio;
    for (const std::string_view carpeta : CarpetasEntregadas) {
        if (carpeta.empty())
            CopiaLoQueFalta(disco, dirEntregado, directorio);
        else
            CopiaLoQueFalta(disco, model::Ruta(dirEntregado, carpeta), model::Ruta(directorio, carpeta));
    }
    return directorio;
}

}  // namespace shell
