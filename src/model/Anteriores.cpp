// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Anteriores.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

#include "model/Configuracion.h"
#include "model/DirPropio.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

namespace model {

namespace {

constexpr std::string_view Carpeta = "Anteriores";
constexpr std::string_view NotaDeOtra = "El archivo de la versión anterior no es el que dice su nombre.";
constexpr std::string_view NoSeGuarda1 = "No se pudo guardar la versión anterior del proyecto ";
constexpr std::string_view NoSeGuarda2 = ". Lo demás se guardó. Carpeta: ";

const CambioArchivo* Busca(const VersionAnterior& version, std::string_view archivo)
{
    const auto suyo = std::find_if(version.archivos.begin(), version.archivos.end(),
                                   [&](const CambioArchivo& a) { return a.ruta == archivo; });
    return suyo == version.archivos.end() ? nullptr : &*suyo;
}

/// The names in a directory; none where it can't be read.
std::vector<std::string> Nombres(const Disco& disco, const std::string& directorio)
{
    std::vector<std::string> nombres;
    Sentencia([&] { nombres = disco.Lista(directorio); });
    return nombres;
}

/// Those of a project among the files of the folder, the newest first.
std::vector<FichaDeVersion> DeEstas(const std::vector<std::string>& nombres, const std::string& proyecto)
{
    std::vector<FichaDeVersion> versiones;
    const std::uint64_t clave = HuellaFnv(proyecto);
    for (const std::string& nombre : nombres)
        if (const auto ficha = LeeFicha(nombre); ficha && ficha->clave == clave) versiones.push_back(*ficha);
    std::sort(versiones.begin(), versiones.end(), [](const FichaDeVersion& x, const FichaDeVersion& y) {
        return std::tie(x.turno, x.momento, x.huella) > std::tie(y.turno, y.momento, y.huella);
    });
    return versiones;
}

/// A write that is about to be made.
struct Escritura {
    std::string ruta{};
    const std::string* bytes =
        nullptr;  ///< what the file is to hold; nothing where that isn't known or it goes
};

/// Whether a name can be that of a project's file: all that most writes are asked.
bool PuedeSer(std::string_view nombre)
{
    return nombre.ends_with(".vlm") || EsDeEstudio(nombre);
}

bool HaceFalta(const Anteriores& a, const std::string& proyecto, bool soloEstudio)
{
    const std::vector<FichaDeVersion> versiones = VersionesDe(a, proyecto);
    if (versiones.empty()) return true;
    const std::int64_t pasado = a.ahora() - versiones.front().momento;
    return pasado < 0 || pasado >= (soloEstudio ? PausaDelEstudio : MismoGuardado);
}

/// Keeps a project's files ahead of writes to some of them. Throws Falla.
void GuardaLaDe(const Anteriores& a, const std::string& proyecto, const std::vector<Escritura>& escrituras)
{
    const bool soloEstudio = std::all_of(escrituras.begin(), escrituras.end(), [](const Escritura& e) {
        return EsDeEstudio(NombreDeProyecto(e.ruta)) && (e.bytes != nullptr || !e.ruta.ends_with(".json"));
    });
    if (!HaceFalta(a, proyecto, soloEstudio)) return;
    const VersionAnterior presente = VersionPresente(a.disco, proyecto);
    const bool cambia = std::any_of(escrituras.begin(), escrituras.end(), [&](const Escritura& e) {
        const CambioArchivo* const viejo = Busca(presente, NombreDeProyecto(e.ruta));
        return e.bytes == nullptr ? viejo != nullptr : viejo == nullptr || viejo->bytes != *e.bytes;
    });
    if (cambia) GuardaVersion(a, presente);
}

/// Keeps what writes are about to take the place of. Returns what is to be told where that fails.
std::string GuardaAntesDe(const Anteriores& a, const std::vector<Escritura>& escrituras)
{
    std::vector<std::pair<std::string, std::vector<Escritura>>> porProyecto;
    for (const Escritura& escritura : escrituras) {
        const std::string directorio = DirectorioDeProyecto(escritura.ruta),
                          nombre = NombreDeProyecto(escritura.ruta);
        if (a.carpeta.empty() || !PuedeSer(nombre)) continue;
        const std::string suyo = ProyectoDeArchivo(nombre, Nombres(a.disco, directorio));
        if (suyo.empty()) continue;
        const std::string proyecto = Ruta(directorio, suyo);
        auto lugar = std::find_if(porProyecto.begin(), porProyecto.end(),
                                  [&](const auto& uno) { return uno.first == proyecto; });
        if (lugar == porProyecto.end()) lugar = porProyecto.insert(lugar, {proyecto, {}});
        lugar->second.push_back(escritura);
    }
    std::string aviso;
    for (const auto& [proyecto, suyas] : porProyecto)
        Sentencia([&, &deEste = proyecto, &escritas = suyas] { GuardaLaDe(a, deEste, escritas); },
                  [&, &deEste = proyecto](const Falla& falla) {
                      const std::string_view motivo =
                          falla.nota.empty() ? DescripcionFalla(falla.numero) : falla.nota;
                      aviso = std::string(NoSeGuarda1) + NombreDeProyecto(deEste) + ": " +
                              std::string(motivo.substr(0, motivo.find_last_not_of('.') + 1)) +
                              std::string(NoSeGuarda2) + a.carpeta;
                  });
    return aviso;
}

/// What the door remembers: one notice is enough.
struct Puerta {
    Anteriores a{};
    std::function<void(const std::string&)> avisa{};
    bool dicho = false;

    template <typename Escribe>
    void Hace(const std::vector<Escritura>& escrituras, Escribe&& escribe)
    {
        const std::string aviso = GuardaAntesDe(a, escrituras);
        escribe();
        if (aviso.empty() || std::exchange(dicho, true)) return;
        avisa(aviso);
    }
};

/// Whether a version's file holds what its name tells.
bool EstaEntera(const Anteriores& a, const FichaDeVersion& ficha)
{
    return Sentencia([&] { static_cast<void>(LeeVersion(a, ficha)); });
}

/// Deletes the oldest whole ones beyond the number; the newest stays.
void Poda(const Anteriores& a, const std::string& proyecto)
{
    std::vector<FichaDeVersion> versiones = VersionesDe(a, proyecto);
    while (versiones.size() > MaximoDeVersiones) {
        const auto vieja = std::find_if(versiones.rbegin(), versiones.rend() - 1,
                                        [&](const FichaDeVersion& f) { return EstaEntera(a, f); });
        if (vieja == versiones.rend() - 1) return;
        if (!Sentencia([&] { a.disco.Borra(Ruta(a.carpeta, vieja->Archivo())); }, [](const Falla&) {}))
            return;
        versiones.erase(std::next(vieja).base());
    }
}

/// Keeps a version and takes none away but one that holds the same. Throws Falla.
void Agrega(const Anteriores& a, const VersionAnterior& version)
{
    const std::string bytes = EscribeVersion(version);
    CreaCamino(a.disco, a.carpeta);
    a.disco.Recupera(a.carpeta);
    const std::vector<FichaDeVersion> versiones = DeEstas(a.disco.Lista(a.carpeta), version.proyecto);
    FichaDeVersion nueva{HuellaFnv(version.proyecto), versiones.empty() ? 1 : versiones.front().turno + 1,
                         a.ahora(), HuellaFnv(bytes)};
    const auto igual = std::find_if(versiones.begin(), versiones.end(), [&](const FichaDeVersion& f) {
        return f.huella == nueva.huella && EstaEntera(a, f);
    });
    if (igual != versiones.end() && igual == versiones.begin()) return;
    a.disco.Reemplaza({{Ruta(a.carpeta, nueva.Archivo()), bytes}});
    if (igual != versiones.end()) Sentencia([&] { a.disco.Borra(Ruta(a.carpeta, igual->Archivo())); });
}

}  // namespace

std::string CarpetaDeAnteriores(const std::string& dirDelUsuario)
{
    return dirDelUsuario.empty() ? dirDelUsuario : Ruta(dirDelUsuario, Carpeta);
}

Disco ConAnteriores(const Anteriores& a, std::function<void(const std::string&)> avisa)
{
    const auto puerta = std::make_shared<Puerta>(Puerta{a, std::move(avisa)});
    Disco disco = a.disco;
    disco.Reemplaza = [puerta](const std::vector<CambioArchivo>& cambios) {
        std::vector<Escritura> escrituras;
        for (const CambioArchivo& cambio : cambios)
            escrituras.push_back({cambio.ruta, &cambio.bytes});
        puerta->Hace(escrituras, [&] { puerta->a.disco.Reemplaza(cambios); });
    };
    disco.Borra = [puerta](const std::string& ruta) {
        puerta->Hace({{ruta}}, [&] { puerta->a.disco.Borra(ruta); });
    };
    disco.Copia = [puerta](const std::string& origen, const std::string& destino) {
        puerta->Hace({{destino}}, [&] { puerta->a.disco.Copia(origen, destino); });
    };
    return disco;
}

void GuardaAntesDe(const Anteriores& a, const std::string& ruta)
{
    static_cast<void>(GuardaAntesDe(a, std::vector<Escritura>{{ruta}}));
}

std::vector<FichaDeVersion> VersionesDe(const Anteriores& a, const std::string& proyecto)
{
    return DeEstas(Nombres(a.disco, a.carpeta), proyecto);
}

std::vector<std::string> ProyectosConVersiones(const Anteriores& a)
{
    std::set<std::uint64_t> vistas;
    std::vector<std::string> proyectos;
    for (const std::string& nombre : Nombres(a.disco, a.carpeta)) {
        const auto ficha = LeeFicha(nombre);
        if (!ficha || vistas.contains(ficha->clave)) continue;
        Sentencia([&] {
            proyectos.push_back(LeeVersion(a, *ficha).proyecto);
            vistas.insert(ficha->clave);
        });
    }
    std::sort(proyectos.begin(), proyectos.end());
    return proyectos;
}

VersionAnterior LeeVersion(const Anteriores& a, const FichaDeVersion& ficha)
{
    const std::string bytes = a.disco.Lee(Ruta(a.carpeta, ficha.Archivo()));
    VersionAnterior version = LeeVersion(bytes);
    if (HuellaFnv(version.proyecto) != ficha.clave || HuellaFnv(bytes) != ficha.huella)
        throw Falla{NumeroFalla::AccesoRuta, NotaDeOtra};
    return version;
}

VersionAnterior VersionPresente(const Disco& disco, const std::string& proyecto)
{
    const std::string directorio = DirectorioDeProyecto(proyecto), nombre = NombreDeProyecto(proyecto);
    const std::vector<std::string> todos = disco.Lista(directorio);
    VersionAnterior presente{proyecto, {}};
    for (const std::string& archivo : todos)
        if (ProyectoDeArchivo(archivo, todos) == nombre)
            Sentencia(
                [&] {
                    presente.archivos.push_back({archivo, disco.Lee(Ruta(directorio, archivo))});
                },
                SalvoQueFalte);
    return presente;
}

void GuardaVersion(const Anteriores& a, const VersionAnterior& version)
{
    Agrega(a, version);
    Poda(a, version.proyecto);
}

CambiosDeVuelta CambiosDe(const VersionAnterior& presente, const VersionAnterior& version,
                          const std::vector<std::string>& delDirectorio)
{
    const std::string nombre = NombreDeProyecto(version.proyecto);
    std::vector<std::string> todos = delDirectorio;  // the project's own configuration may be gone
    todos.push_back(ArchivoConf(nombre));
    std::sort(todos.begin(), todos.end());
    todos.erase(std::unique(todos.begin(), todos.end()), todos.end());
    CambiosDeVuelta cambios;
    for (const CambioArchivo& archivo : version.archivos) {
        const CambioArchivo* const esta = Busca(presente, archivo.ruta);
        const bool igual = esta != nullptr && esta->bytes == archivo.bytes;
        if (!igual && ProyectoDeArchivo(archivo.ruta, todos) == nombre) cambios.reemplaza.push_back(archivo);
    }
    for (const CambioArchivo& archivo : presente.archivos)
        if (Busca(version, archivo.ruta) == nullptr && archivo.ruta.starts_with(nombre + '_'))
            cambios.borra.push_back(archivo.ruta);
    return cambios;
}

void TraeDeVuelta(const Anteriores& a, const VersionAnterior& version)
{
    const std::string directorio = DirectorioDeProyecto(version.proyecto);
    const VersionAnterior presente = VersionPresente(a.disco, version.proyecto);
    // The oldest goes at the end: it may be the one that is brought back.
    if (!presente.archivos.empty()) Agrega(a, presente);
    CambiosDeVuelta cambios = CambiosDe(presente, version, a.disco.Lista(directorio));
    for (CambioArchivo& cambio : cambios.reemplaza)
        cambio.ruta = Ruta(directorio, cambio.ruta);
    if (!cambios.reemplaza.empty()) a.disco.Reemplaza(cambios.reemplaza);
    for (const std::string& archivo : cambios.borra)
        Sentencia([&] { a.disco.Borra(Ruta(directorio, archivo)); });
    Poda(a, version.proyecto);
}

std::string EscribeAparte(const Disco& disco, const VersionAnterior& version, const std::string& directorio)
{
    const std::vector<std::string> hay = disco.Lista(directorio);
    std::vector<CambioArchivo> cambios = version.archivos;
    for (CambioArchivo& cambio : cambios) {
        if (std::find(hay.begin(), hay.end(), cambio.ruta) != hay.end()) return {};
        cambio.ruta = Ruta(directorio, cambio.ruta);
    }
    disco.Reemplaza(cambios);
    return Ruta(directorio, ArchivoConf(NombreDeProyecto(version.proyecto)));
}

}  // namespace model
