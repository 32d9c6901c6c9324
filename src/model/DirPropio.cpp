// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/DirPropio.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/Avisos.h"
#include "model/RestosDeReemplazo.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace model {
namespace {

constexpr std::string_view ArchivoDePrueba = "siro_prueba.tmp";
/// Empty file that stands in the program's directory while not all that is delivered has been copied there.
constexpr std::string_view MarcaDeEntrega = "siro_entrega.tmp";
constexpr std::string_view CarpetaDeAyuda = "Ayuda";
constexpr std::string_view AvisoEntrega =
    "No se pudieron copiar todos los archivos que trae el programa, tal vez por falta de lugar en el disco. "
    "Se "
    "intentará otra vez en el próximo arranque. Carpeta: ";
constexpr std::string_view CarpetaDeProyectos = "Proyectos";

/// Sample projects of observed floods, apart from the sample whose storms would stand among theirs.
std::string CarpetaDeCrecidas()
{
    return Ruta(CarpetaDeProyectos, "Crecidas");
}

bool SePuedeEscribir(const Disco& disco, const std::string& directorio)
{
    const std::string prueba = Ruta(directorio, ArchivoDePrueba);
    if (!Sentencia([&] { disco.Escribe(prueba, ""); })) return false;
    // Gone already where another program that starts at the same time has tried the same.
    Sentencia([&] { disco.Borra(prueba); });
    return true;
}

bool Esta(const Disco& disco, const std::string& directorio, std::string_view nombre)
{
    bool esta = false;
    Sentencia([&] {
        const auto nombres = disco.Lista(directorio);
        esta = std::find(nombres.begin(), nombres.end(), nombre) != nombres.end();
    });
    return esta;
}

/// Removes what a copy that was cut short has left. A save that was cut short waits for the opening of its
/// project, which tells.
void QuitaRestosDeCopia(const Disco& disco, const std::string& directorio)
{
    Sentencia([&] {
        const auto nombres = disco.Lista(directorio);
        const auto esLista = [](const std::string& nombre) {
            const auto resto = LeeNombreResto(nombre);
            return resto && resto->pieza < 0;
        };
        if (std::none_of(nombres.begin(), nombres.end(), esLista)) disco.Recupera(directorio);
    });
}

/// Copies each file whole or not at all. Returns whether nothing is missing afterwards.
bool CopiaLoQueFalta(const Disco& disco, const std::string& origen, const std::string& destino)
{
    std::vector<std::string> entregados;
    bool hayCarpeta = true;  // not every delivery has each
    const bool leida =
        Sentencia([&] { entregados = disco.Lista(origen); },
                  [&](const Falla& falla) { hayCarpeta = falla.numero != NumeroFalla::RutaNoEsta; });
    if (!leida) return !hayCarpeta;
    CreaCamino(disco, destino);
    QuitaRestosDeCopia(disco, destino);
    bool todo = true;
    const bool listado = Sentencia([&] {
        const auto propios = disco.Lista(destino);
        for (const std::string& nombre : entregados)
            if (std::find(propios.begin(), propios.end(), nombre) == propios.end())
                todo = Sentencia([&] { disco.Copia(Ruta(origen, nombre), Ruta(destino, nombre)); }) && todo;
    });
    return listado && todo;
}

/// Copies what is delivered and missing. The mark stands meanwhile, and for as long as something is missing.
void Entrega(const Disco& disco, const std::string& dirEntregado, const std::string& directorio)
{
    const std::string marca = Ruta(directorio, MarcaDeEntrega);
    Sentencia([&] { disco.Escribe(marca, ""); });
    bool todo = true;
    // The root first, a folder behind the one that it lies in.
    for (const std::string& carpeta :
         {std::string(), std::string(CarpetaDeProyectos), CarpetaDeCrecidas(), std::string(CarpetaDeAyuda)}) {
        const bool raiz = carpeta.empty();
        const bool toda = CopiaLoQueFalta(disco, raiz ? dirEntregado : Ruta(dirEntregado, carpeta),
                                          raiz ? directorio : Ruta(directorio, carpeta));
        todo = toda && todo;
    }
    if (todo) Sentencia([&] { disco.Borra(marca); });
}

/// What is delivered since the first start: the folder of floods, where there is none yet. Whoever doesn't
/// want them leaves it empty.
void EntregaCrecidas(const Disco& disco, const std::string& dirEntregado, const std::string& directorio)
{
    const std::string origen = Ruta(dirEntregado, CarpetaDeCrecidas()),
                      destino = Ruta(directorio, CarpetaDeCrecidas());
    if (!disco.HayDirectorio(origen) || disco.HayDirectorio(destino)) return;
    if (disco.HayDirectorio(Ruta(directorio, CarpetaDeProyectos))) CopiaLoQueFalta(disco, origen, destino);
}

/// Where an installation puts the data beside the programs.
std::string Compartido(const std::string& dirEjecutable)
{
    return Ruta(Ruta(Ruta(dirEjecutable, ".."), "share"), "siro");
}

/// Whether the program stands in the folder of all programs, where nobody's data belong, root's neither.
bool EsInstalacion(const std::string& dirEjecutable, const std::string& dirEntregado)
{
    return dirEjecutable.ends_with(std::string{Separador}.append("bin")) &&
           dirEntregado == Compartido(dirEjecutable);
}

}  // namespace

void CreaCamino(const Disco& disco, const std::string& directorio)
{
    if (directorio.empty() || disco.HayDirectorio(directorio)) return;
    const std::size_t separador = directorio.rfind(Separador);
    if (separador != std::string::npos) CreaCamino(disco, directorio.substr(0, separador));
    Sentencia([&] { disco.CreaDirectorio(directorio); });
}

std::string DirDelUsuario(const Ambiente& ambiente)
{
    const std::string datos = DatosDelUsuario(ambiente);
    return datos.empty() ? datos : Ruta(Ruta(datos, "SIRO"), "siro");
}

std::string DirEntregado(const Disco& disco, const std::string& dirEjecutable)
{
    for (const std::string& lugar : {Ruta(dirEjecutable, "data"), Compartido(dirEjecutable), dirEjecutable})
        if (disco.HayDirectorio(Ruta(lugar, CarpetaDeAyuda))) return lugar;
    return {};
}

std::string PreparaDirTrabajo(const Disco& disco, const std::string& dirEjecutable,
                              const std::string& dirUsuario, const std::string& dirEntregado)
{
    const bool instalado = EsInstalacion(dirEjecutable, dirEntregado);
    const bool propio = dirUsuario.empty() || (!instalado && SePuedeEscribir(disco, dirEjecutable));
    std::string directorio = propio ? dirEjecutable : dirUsuario;
    CreaCamino(disco, directorio);
    const bool entregado = Esta(disco, directorio, ArchivoPuntero) && !EntregaPendiente(disco, directorio);
    if (dirEntregado.empty() || (instalado && propio)) return directorio;
    if (entregado)
        EntregaCrecidas(disco, dirEntregado, directorio);
    else
        Entrega(disco, dirEntregado, directorio);
    return directorio;
}

bool EntregaPendiente(const Disco& disco, const std::string& dirTrabajo)
{
    return Esta(disco, dirTrabajo, MarcaDeEntrega);
}

void AvisaEntregaPendiente(const Siro& s)
{
    if (EntregaPendiente(s.Disco, s.Proyecto.DirTrabajo))
        Advierte(s, std::string(AvisoEntrega) + s.Proyecto.DirTrabajo);
}

void RenuevaAyuda(const Disco& disco, const std::string& dirTrabajo, const std::string& dirEntregado)
{
    if (dirEntregado.empty() || dirEntregado == dirTrabajo) return;
    const std::string origen = Ruta(dirEntregado, CarpetaDeAyuda);
    const std::string destino = Ruta(dirTrabajo, CarpetaDeAyuda);
    if (!disco.HayDirectorio(origen) || !disco.HayDirectorio(destino)) return;
    QuitaRestosDeCopia(disco, destino);
    Sentencia([&] {
        for (const std::string& nombre : disco.Lista(origen)) {
            const std::string entregada = Ruta(origen, nombre), propia = Ruta(destino, nombre);
            bool igual = false;
            Sentencia([&] { igual = disco.Lee(propia) == disco.Lee(entregada); });
            if (!igual) Sentencia([&] { disco.Copia(entregada, propia); });
        }
    });
}

std::string DirTrabajoDe(const std::string& dirEjecutable)
{
    const Disco disco = DiscoDelSistema();
    return PreparaDirTrabajo(disco, dirEjecutable, DirDelUsuario(AmbienteDelProceso()),
                             DirEntregado(disco, dirEjecutable));
}

std::string DirTrabajoConAyuda(const std::string& dirEjecutable)
{
    const Disco disco = DiscoDelSistema();
    std::string directorio = DirTrabajoDe(dirEjecutable);
    RenuevaAyuda(disco, directorio, DirEntregado(disco, dirEjecutable));
    return directorio;
}

}  // namespace model
