// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Reemplazo.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "model/Camino.h"
#include "model/RestosDeReemplazo.h"

namespace model {

namespace {

namespace fs = std::filesystem;

Falla FallaDe(const fs::path& camino)
{
    return HayDirectorioDe(camino) ? FallaDeAcceso(camino) : Falla{NumeroFalla::RutaNoEsta};
}

/// The file that a path leads to: through links as long as they stay inside the folder of the first one.
fs::path Destino(const std::string& ruta)
{
    constexpr int MaxSaltos = 40;
    const fs::path camino = Camino(ruta);
    std::error_code error;
    fs::path meta = camino;
    for (int saltos = 0; fs::is_symlink(fs::symlink_status(meta, error)); ++saltos) {
        const fs::path salto = fs::read_symlink(meta, error);
        if (error || saltos == MaxSaltos) throw Falla{NumeroFalla::AccesoRuta};
        meta = salto.is_absolute() ? salto : meta.parent_path() / salto;
    }
    if (meta == camino) return camino;
    const auto carpetaDe = [&](const fs::path& archivo) {
        return fs::canonical(archivo.has_parent_path() ? archivo.parent_path() : fs::path("."), error);
    };
    const fs::path carpeta = carpetaDe(camino), carpetaMeta = carpetaDe(meta);
    if (carpeta.empty() || carpetaMeta.empty()) throw FallaDe(camino);
    if (!EstaDentro(carpetaMeta, carpeta)) throw Falla{NumeroFalla::AccesoRuta, NotaEnlace};
    return carpetaMeta / meta.filename();
}

struct Pieza {
    fs::path destino{};
    std::string_view bytes{};
    fs::path temporal{};
    std::optional<std::string> viejo{};  ///< what it holds before; nothing where it isn't there
    bool puesta = false;                 ///< it holds the new bytes
};

/// The files of one folder that are replaced together.
class Grupo {
  public:
    Grupo(const LlamadasDisco& unasLlamadas, fs::path unaCarpeta)
        : llamadas(unasLlamadas), carpeta(std::move(unaCarpeta))
    {
    }
    [[nodiscard]] const fs::path& Carpeta() const { return carpeta; }
    void Agrega(const fs::path& destino, std::string_view bytes) { piezas.push_back({destino, bytes}); }
    /// Replaces them; `conVuelta`: so that Vuelve can take it back. Throws Falla 76, 75 and leaves them as
    /// they were.
    void Cumple(bool conVuelta);
    /// Puts back what Cumple has replaced.
    void Vuelve();

  private:
    bool Examina(bool conVuelta);
    bool Prepara();
    std::error_code CreaTemporales();
    void EscribeLista();
    void Pone();
    void CumpleEnSitio();
    void Limpia();
    void Olvida() const;
    fs::path EnCarpeta(const std::string& nombre) const { return carpeta / Camino(nombre); }

    const LlamadasDisco& llamadas;
    fs::path carpeta;
    std::vector<Pieza> piezas{};
    NombreResto turno{};
    ReemplazoEnObra enObra{};
    fs::path lista{};
};

/// Looks whether each may be written and, where there may be a way back, takes what it holds. Returns whether
/// all are plain files.
bool Grupo::Examina(bool conVuelta)
{
    bool comunes = true;
    for (Pieza& pieza : piezas) {
        if (!HayDirectorioDe(pieza.destino)) throw Falla{NumeroFalla::RutaNoEsta};
        std::error_code error;
        const fs::file_type clase = fs::status(pieza.destino, error).type();
        if (clase == fs::file_type::not_found) continue;
        if (clase == fs::file_type::directory || !llamadas.DejaEscribir(pieza.destino))
            throw FallaDeAcceso(pieza.destino);
        if (clase != fs::file_type::regular)
            comunes = false;
        else if (conVuelta)
            pieza.viejo = LeeArchivo(pieza.destino);
    }
    return comunes;
}

std::error_code Grupo::CreaTemporales()
{
    for (Pieza& pieza : piezas) {
        NombreResto resto = turno;
        resto.pieza = static_cast<long>(&pieza - piezas.data());
        const fs::path temporal = EnCarpeta(resto.Texto());
        if (const auto error = llamadas.Crea(temporal, pieza.bytes, pieza.destino)) return error;
        pieza.temporal = temporal;
    }
    return {};
}

/// Writes the temporaries. Returns false where the folder takes no new file.
bool Grupo::Prepara()
{
    turno.proceso = llamadas.proceso;
    std::error_code error = std::make_error_code(std::errc::file_exists);
    while (error == std::errc::file_exists) {
        ++turno.turno;
        std::error_code sinEstado;
        if (fs::exists(EnCarpeta(turno.Texto()), sinEstado)) continue;
        enObra.Toma(turno.turno);
        error = CreaTemporales();
        if (error) Limpia();
    }
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return false;
    if (error) throw FallaDe(piezas.front().destino);
    return true;
}

void Grupo::EscribeLista()
{
    std::vector<std::string> nombres;
    for (const Pieza& pieza : piezas)
        nombres.push_back(TextoDe(pieza.destino.filename()));
    const fs::path camino = EnCarpeta(turno.Texto());
    if (llamadas.Crea(camino, TextoDeLista(nombres), {})) throw FallaDe(camino);
    lista = camino;
    llamadas.Asienta(carpeta);
}

void Grupo::Pone()
{
    for (Pieza& pieza : piezas) {
        if (PoneTemporal(llamadas, pieza.temporal, pieza.destino)) throw FallaDe(pieza.destino);
        pieza.temporal.clear();
        pieza.puesta = true;
    }
    llamadas.Asienta(carpeta);
    Limpia();
    Olvida();
}

void Grupo::Cumple(bool conVuelta)
{
    if (!Examina(conVuelta) || !Prepara()) {
        CumpleEnSitio();
        return;
    }
    try {
        if (piezas.size() > 1) EscribeLista();
        Pone();
    } catch (const Falla&) {
        Vuelve();
        throw;
    }
}

/// The list goes first: without it a temporary means nothing.
void Grupo::Limpia()
{
    if (!lista.empty()) llamadas.Borra(std::exchange(lista, {}));
    for (Pieza& pieza : piezas)
        if (!pieza.temporal.empty()) llamadas.Borra(std::exchange(pieza.temporal, {}));
}

void Grupo::Olvida() const
{
    std::vector<std::string> nombres;
    for (const Pieza& pieza : piezas)
        nombres.push_back(TextoDe(pieza.destino.filename()));
    OlvidaPendientes(llamadas, carpeta, nombres);
}

void Grupo::Vuelve()
{
    Grupo anterior(llamadas, carpeta);
    anterior.turno = turno;
    const bool hayPuestas =
        std::any_of(piezas.begin(), piezas.end(), [](const Pieza& pieza) { return pieza.puesta; });
    // Those not replaced as well: whoever finds both lists finishes the one, and then goes all the way back.
    for (const Pieza& pieza : piezas)
        if (hayPuestas && pieza.viejo) anterior.Agrega(pieza.destino, *pieza.viejo);
    if (!anterior.piezas.empty()) {
        try {
            if (!anterior.Prepara()) {
                anterior.CumpleEnSitio();
                return Limpia();
            }
            anterior.EscribeLista();
        } catch (const Falla&) {
            anterior.Limpia();
            return;  // the list stays: the next one to open the folder finishes the replacement
        }
    }
    Limpia();
    for (const Pieza& pieza : piezas)
        if (pieza.puesta && !pieza.viejo) llamadas.Borra(pieza.destino);
    // Where this fails as well, the other list stays and the next one to open the folder goes back.
    Sentencia([&] { anterior.Pone(); });
}

void Grupo::CumpleEnSitio()
{
    Examina(true);
    for (Pieza& pieza : piezas) {
        const auto error = llamadas.Sobrescribe(pieza.destino, pieza.bytes);
        pieza.puesta = true;
        if (!error) continue;
        for (const Pieza& escrita : piezas)
            if (escrita.puesta && escrita.viejo) llamadas.Sobrescribe(escrita.destino, *escrita.viejo);
        throw FallaDe(pieza.destino);
    }
    Olvida();
}

}  // namespace

void ReemplazaArchivos(const LlamadasDisco& llamadas, const std::vector<CambioArchivo>& cambios)
{
    std::vector<Grupo> grupos;
    for (const CambioArchivo& cambio : cambios) {
        const fs::path destino = Destino(cambio.ruta);
        const fs::path carpeta = destino.parent_path();
        const auto grupo = std::find_if(grupos.begin(), grupos.end(),
                                        [&](const Grupo& g) { return g.Carpeta() == carpeta; });
        Grupo& suyo = grupo == grupos.end() ? grupos.emplace_back(llamadas, carpeta) : *grupo;
        suyo.Agrega(destino, cambio.bytes);
    }
    for (auto grupo = grupos.begin(); grupo != grupos.end(); ++grupo) {
        try {
            grupo->Cumple(cambios.size() > 1);
        } catch (const Falla&) {
            while (grupo != grupos.begin())
                (--grupo)->Vuelve();
            throw;
        }
    }
}

}  // namespace model
