// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Disco.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "model/Camino.h"
#include "model/Falla.h"
#include "model/LlamadasDisco.h"
#include "model/Reemplazo.h"
#include "model/RestosDeReemplazo.h"
#include "model/RutaProyecto.h"

namespace model {

namespace {

namespace fs = std::filesystem;

void Vuelca(const fs::path& camino, std::string_view bytes, std::ios::openmode modo)
{
    if (!HayDirectorioDe(camino)) throw Falla{NumeroFalla::RutaNoEsta};
    std::ofstream archivo(camino, modo | std::ios::binary);
    archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    archivo.close();  // a full disk tells so here at the latest
    if (!archivo) throw FallaDeAcceso(camino);
}

std::vector<std::string> ListaDirectorio(const fs::path& camino)
{
    if (!EsDirectorio(camino)) throw Falla{NumeroFalla::RutaNoEsta};
    std::vector<std::string> nombres;
    std::error_code error;
    for (fs::directory_iterator i(camino, error), fin; !error && i != fin; i.increment(error)) {
        std::error_code sinEstado;  // a link to nowhere, a file gone meanwhile: no plain file
        if (i->is_regular_file(sinEstado)) nombres.push_back(TextoDe(i->path().filename()));
    }
    if (error) throw Falla{NumeroFalla::AccesoRuta};
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

void CopiaArchivo(const LlamadasDisco& llamadas, const std::string& origen, const std::string& destino)
{
    // By way of the contents: the copy of a write-protected file can be written.
    std::string bytes = LeeArchivo(Camino(origen));
    std::error_code error;
    if (fs::equivalent(Camino(origen), Camino(destino), error)) throw Falla{NumeroFalla::AccesoRuta};
    ReemplazaArchivos(llamadas, {{destino, std::move(bytes)}});
}

void BorraArchivo(const LlamadasDisco& llamadas, const fs::path& camino)
{
    ExigeArchivo(camino);
    std::error_code error;
    if (!fs::remove(camino, error)) throw FallaDeAcceso(camino);
    OlvidaPendientes(llamadas, camino.parent_path(), {TextoDe(camino.filename())});
}

void CreaUnDirectorio(const fs::path& camino)
{
    std::error_code error;
    if (!fs::create_directory(camino, error)) throw Falla{NumeroFalla::AccesoRuta};
}

}  // namespace

Disco DiscoDelSistema()
{
    return DiscoDelSistema(std::make_shared<const LlamadasDisco>(LlamadasDelSistema()));
}

Disco DiscoDelSistema(std::shared_ptr<const LlamadasDisco> llamadas)
{
    Disco disco;
    disco.Lee = [](const std::string& ruta) { return LeeArchivo(Camino(ruta), MaximoLeido); };
    disco.Escribe = [](const std::string& ruta, std::string_view bytes) {
        Vuelca(Camino(ruta), bytes, std::ios::trunc);
    };
    disco.Reemplaza = [llamadas](const std::vector<CambioArchivo>& cambios) {
        ReemplazaArchivos(*llamadas, cambios);
    };
    disco.Recupera = [llamadas](const std::string& directorio) {
        return RecuperaCarpeta(*llamadas, directorio);
    };
    disco.Agrega = [](const std::string& ruta, std::string_view bytes) {
        Vuelca(Camino(ruta), bytes, std::ios::app);
    };
    disco.HayDirectorio = [](const std::string& ruta) {
        try {
            return EsDirectorio(Camino(ruta));
        } catch (const Falla&) {
            return false;
        }
    };
    disco.CreaDirectorio = [](const std::string& ruta) { CreaUnDirectorio(Camino(ruta)); };
    disco.Lista = [](const std::string& directorio) { return ListaDirectorio(Camino(directorio)); };
    disco.Borra = [llamadas](const std::string& ruta) { BorraArchivo(*llamadas, Camino(ruta)); };
    disco.Copia = [llamadas](const std::string& origen, const std::string& destino) {
        CopiaArchivo(*llamadas, origen, destino);
    };
    return disco;
}

std::string Ruta(std::string_view directorio, std::string_view nombre)
{
    std::string ruta(directorio);
    ruta += Separador;
    ruta += nombre;
    return ruta;
}

}  // namespace model
