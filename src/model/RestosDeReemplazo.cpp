// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/RestosDeReemplazo.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <set>
#include <system_error>
#include <tuple>
#include <utility>

#include "model/Camino.h"
#include "model/Falla.h"

namespace model {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Prefijo = ".siro-";
constexpr std::string_view FinTemporal = ".tmp";
constexpr std::string_view FinLista = ".lista";
constexpr std::string_view UltimoRenglon = "fin\n";

/// Takes a number and the mark behind it from the front of a text.
std::optional<long> Corta(std::string_view& texto, std::string_view marca)
{
    long numero = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    texto.remove_prefix(static_cast<std::size_t>(fin - texto.data()));
    if (error != std::errc() || numero < 0 || !texto.starts_with(marca)) return {};
    texto.remove_prefix(marca.size());
    return numero;
}

bool EsNombreDeArchivo(std::string_view nombre)
{
    const auto ajena = [](char c) { return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' '; };
    return !nombre.empty() && nombre != "." && nombre != ".." && !nombre.starts_with(Prefijo) &&
           std::none_of(nombre.begin(), nombre.end(), ajena);
}

/// Numbers of the replacements that threads of this process are at, in whatever folder; 0: a free place.
/// Nobody waits for anybody here, a process that is begun meanwhile neither.
constexpr std::size_t MaximoEnObra = 64;
std::array<std::atomic<long>, MaximoEnObra>& EnObra()
{
    static std::array<std::atomic<long>, MaximoEnObra> turnos{};
    return turnos;
}

/// Looks through a folder in which a program may have been killed.
class Recuperador {
  public:
    Recuperador(const LlamadasDisco& unasLlamadas, fs::path unaCarpeta)
        : llamadas(unasLlamadas), carpeta(std::move(unaCarpeta))
    {
    }
    Recuperacion Hace()
    {
        Busca();
        DejaLosQueSeEscriben();
        for (const NombreResto& resto : restos)
            if (resto.pieza < 0) Termina(resto);
        // A temporary without its list was never meant to take anything's place.
        for (const NombreResto& resto : restos)
            if (resto.pieza >= 0 && !EstaPendiente(resto)) llamadas.Borra(EnCarpeta(resto));
        return hecho;
    }

    void Olvida(const std::vector<std::string>& nombres)
    {
        Busca();
        for (const NombreResto& resto : restos)
            if (resto.pieza < 0) Olvida(resto, nombres);
    }

  private:
    fs::path EnCarpeta(const NombreResto& resto) const { return carpeta / Camino(resto.Texto()); }

    void Busca()
    {
        if (!EsDirectorio(carpeta)) throw Falla{NumeroFalla::RutaNoEsta};
        std::error_code error;
        for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
            const auto resto = LeeNombreResto(TextoDe(i->path().filename()));
            if (resto && !EsDeOtro(*resto, i->path())) restos.push_back(*resto);
        }
        if (error) throw Falla{NumeroFalla::AccesoRuta};
        std::sort(restos.begin(), restos.end(), [](const NombreResto& a, const NombreResto& b) {
            return std::tie(a.proceso, a.turno, a.pieza) < std::tie(b.proceso, b.turno, b.pieza);
        });
    }

    /// Whether the program that left it is still at work: no save lasts an hour, but numbers come again.
    bool EsDeOtro(const NombreResto& resto, const fs::path& camino) const
    {
        if (resto.proceso == llamadas.proceso || !llamadas.Vive(resto.proceso)) return false;
        std::error_code error;
        const auto hora = fs::last_write_time(camino, error);
        return !error && fs::file_time_type::clock::now() - hora < std::chrono::hours(1);
    }

    /// Another thread of this process may be at work in the folder.
    void DejaLosQueSeEscriben()
    {
        const auto& enObra = EnObra();
        std::erase_if(restos, [&](const NombreResto& resto) {
            return resto.proceso == llamadas.proceso &&
                   std::find(enObra.begin(), enObra.end(), resto.turno) != enObra.end();
        });
    }

    bool EstaPendiente(const NombreResto& resto) const
    {
        return std::any_of(pendientes.begin(), pendientes.end(), [&](const NombreResto& lista) {
            return lista.proceso == resto.proceso && lista.turno == resto.turno;
        });
    }

    /// Puts the temporaries of a list in place. What isn't there any more has been put before.
    void Termina(const NombreResto& lista)
    {
        std::optional<std::vector<std::string>> nombres;
        bool completa = Lee(lista, nombres);
        for (std::size_t i = 0; nombres && i < nombres->size(); ++i) {
            const fs::path temporal = EnCarpeta({lista.proceso, lista.turno, static_cast<long>(i)});
            std::error_code error;
            if (!fs::is_regular_file(fs::symlink_status(temporal, error))) continue;
            const std::string& nombre = (*nombres)[i];
            const bool puesto = !PoneTemporal(llamadas, temporal, carpeta / Camino(nombre));
            (puesto ? hecho.completados : hecho.pendientes).push_back(nombre);
            completa = completa && puesto;
        }
        if (!completa) {
            pendientes.push_back(lista);
            return;
        }
        if (nombres) llamadas.Asienta(carpeta);
        llamadas.Borra(EnCarpeta(lista));
    }

    /// Removes the temporaries of such names, and the list with the last one.
    void Olvida(const NombreResto& lista, const std::vector<std::string>& nombres) const
    {
        std::optional<std::vector<std::string>> suyos;
        Lee(lista, suyos);
        if (!suyos) return;
        bool queda = false;
        for (std::size_t i = 0; i < suyos->size(); ++i) {
            const fs::path temporal = EnCarpeta({lista.proceso, lista.turno, static_cast<long>(i)});
            std::error_code error;
            if (!fs::exists(fs::symlink_status(temporal, error))) continue;
            const bool olvida = std::find(nombres.begin(), nombres.end(), (*suyos)[i]) != nombres.end();
            queda = !olvida || llamadas.Borra(temporal) || queda;
        }
        if (!queda) llamadas.Borra(EnCarpeta(lista));
    }

    /// Takes the names of a list; none where its program was killed while it wrote it. Returns false where it
    /// can't be read.
    bool Lee(const NombreResto& lista, std::optional<std::vector<std::string>>& nombres) const
    {
        return Sentencia([&] { nombres = LeeLista(LeeArchivo(EnCarpeta(lista))); });
    }

    const LlamadasDisco& llamadas;
    fs::path carpeta;
    std::vector<NombreResto> restos{};
    std::vector<NombreResto> pendientes{};  ///< lists that couldn't be finished
    Recuperacion hecho{};
};

/// Folders inside a folder where files stand that links of it lead to: they are replaced there.
std::set<fs::path> CarpetasDeEnlaces(const fs::path& carpeta)
{
    std::set<fs::path> otras;
    std::error_code error;
    const fs::path raiz = fs::canonical(carpeta, error);
    for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
        std::error_code sinMeta;
        if (!i->is_symlink(sinMeta)) continue;
        const fs::path otra = fs::weakly_canonical(i->path(), sinMeta).parent_path();
        if (!sinMeta && otra != raiz && EstaDentro(otra, raiz)) otras.insert(otra);
    }
    return otras;
}

/// Adds to what was found what is found in a folder, if it can be looked through.
void RecuperaTambien(const LlamadasDisco& llamadas, const fs::path& carpeta, Recuperacion& hecha)
{
    Sentencia([&] {
        const Recuperacion otra = Recuperador(llamadas, carpeta).Hace();
        hecha.completados.insert(hecha.completados.end(), otra.completados.begin(), otra.completados.end());
        hecha.pendientes.insert(hecha.pendientes.end(), otra.pendientes.begin(), otra.pendientes.end());
    });
}

}  // namespace

std::string NombreResto::Texto() const
{
    std::string texto(Prefijo);
    texto += std::to_string(proceso) + '-' + std::to_string(turno);
    if (pieza < 0) return texto.append(FinLista);
    return texto.append("-").append(std::to_string(pieza)).append(FinTemporal);
}

std::optional<NombreResto> LeeNombreResto(std::string_view nombre)
{
    if (!nombre.starts_with(Prefijo)) return {};
    std::string_view texto = nombre.substr(Prefijo.size());
    NombreResto resto;
    const auto proceso = Corta(texto, "-");
    if (!proceso) return {};
    resto.proceso = *proceso;
    const bool esLista = nombre.ends_with(FinLista);
    const auto turno = Corta(texto, esLista ? FinLista : "-");
    if (!turno) return {};
    resto.turno = *turno;
    if (!esLista) {
        const auto pieza = Corta(texto, FinTemporal);
        if (!pieza) return {};
        resto.pieza = *pieza;
    }
    return texto.empty() ? std::optional(resto) : std::nullopt;
}

std::string TextoDeLista(const std::vector<std::string>& nombres)
{
    std::string texto;
    for (const std::string& nombre : nombres)
        texto += nombre + '\n';
    return texto.append(UltimoRenglon);
}

std::optional<std::vector<std::string>> LeeLista(std::string_view bytes)
{
    if (!bytes.ends_with(UltimoRenglon)) return {};
    bytes.remove_suffix(UltimoRenglon.size());
    std::vector<std::string> nombres;
    while (!bytes.empty()) {
        const std::size_t fin = bytes.find('\n');
        if (fin == std::string_view::npos || !EsNombreDeArchivo(bytes.substr(0, fin))) return {};
        nombres.emplace_back(bytes.substr(0, fin));
        bytes.remove_prefix(fin + 1);
    }
    return nombres;
}

std::error_code PoneTemporal(const LlamadasDisco& llamadas, const fs::path& temporal, const fs::path& destino)
{
    const std::error_code error = llamadas.Renombra(temporal, destino);
    const bool nombreFijo = error == std::errc::operation_not_permitted ||
                            error == std::errc::permission_denied ||
                            error == std::errc::device_or_resource_busy;
    std::error_code sinEstado;
    if (!nombreFijo || !fs::is_regular_file(fs::symlink_status(destino, sinEstado)) ||
        !llamadas.DejaEscribir(destino))
        return error;
    try {
        const std::string viejo = LeeArchivo(destino), nuevo = LeeArchivo(temporal);
        if (const std::error_code fallo = llamadas.Sobrescribe(destino, nuevo)) {
            llamadas.Sobrescribe(destino, viejo);
            return fallo;
        }
    } catch (const Falla&) {
        return error;
    }
    llamadas.Borra(temporal);
    return {};
}

void ReemplazoEnObra::Toma(long turno)
{
    if (lugar != nullptr) lugar->store(turno);
    if (turno == 0) lugar = nullptr;
    if (turno == 0 || lugar != nullptr) return;
    for (std::atomic<long>& otro : EnObra()) {
        long libre = 0;
        if (!otro.compare_exchange_strong(libre, turno)) continue;
        lugar = &otro;
        return;
    }
}

void OlvidaPendientes(const LlamadasDisco& llamadas, const fs::path& carpeta,
                      const std::vector<std::string>& nombres)
{
    // A folder that can't be looked through keeps nothing that could be finished.
    Sentencia([&] { Recuperador(llamadas, carpeta).Olvida(nombres); });
}

Recuperacion RecuperaCarpeta(const LlamadasDisco& llamadas, const std::string& directorio)
{
    const fs::path carpeta = Camino(directorio);
    Recuperacion hecha = Recuperador(llamadas, carpeta).Hace();
    for (const fs::path& otra : CarpetasDeEnlaces(carpeta))
        RecuperaTambien(llamadas, otra, hecha);
    return hecha;
}

}  // namespace model
