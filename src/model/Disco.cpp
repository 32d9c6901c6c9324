// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Disco.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "model/Falla.h"

namespace model {

namespace {

namespace fs = std::filesystem;

/// No file of a project comes near; a larger one is read as little as a directory is.
constexpr std::uintmax_t MaximoBytes = std::uintmax_t{256} << 20;

fs::path Camino(const std::string& ruta)
{
    // The system would take such a path only as far as its NUL, hence for another file.
    if (ruta.find('\0') != std::string::npos) throw Falla{NumeroFalla::AccesoRuta};
    return {std::u8string(ruta.begin(), ruta.end())};
}

std::string TextoDe(const fs::path& camino)
{
    const std::u8string utf8 = camino.u8string();
    return {utf8.begin(), utf8.end()};
}

bool EsDirectorio(const fs::path& camino)
{
    std::error_code error;
    return fs::is_directory(camino, error);
}

bool HayDirectorioDe(const fs::path& camino)
{
    const fs::path padre = camino.parent_path();
    return padre.empty() || EsDirectorio(padre);
}

/// Throws unless there is a plain file to be read or deleted.
void ExigeArchivo(const fs::path& camino)
{
    std::error_code error;
    const fs::file_status estado = fs::status(camino, error);
    if (estado.type() == fs::file_type::not_found)
        throw Falla{HayDirectorioDe(camino) ? NumeroFalla::ArchivoNoEsta : NumeroFalla::RutaNoEsta};
    if (!fs::is_regular_file(estado)) throw Falla{NumeroFalla::AccesoRuta};
}

std::string LeeArchivo(const fs::path& camino)
{
    ExigeArchivo(camino);
    std::error_code error;
    const std::uintmax_t largo = fs::file_size(camino, error);
    if (error || largo > MaximoBytes) throw Falla{NumeroFalla::AccesoRuta};

    std::ifstream archivo(camino, std::ios::binary);
    if (!archivo) throw Falla{NumeroFalla::AccesoRuta};
    std::string bytes(static_cast<std::size_t>(largo), '\0');
    archivo.read(bytes.data(), static_cast<std::streamsize>(largo));
    if (archivo.bad()) throw Falla{NumeroFalla::AccesoRuta};
    bytes.resize(static_cast<std::size_t>(archivo.gcount()));
    return bytes;
}

void Vuelca(const fs::path& camino, std::string_view bytes, std::ios::openmode modo)
{
    if (!HayDirectorioDe(camino)) throw Falla{NumeroFalla::RutaNoEsta};
    std::ofstream archivo(camino, modo | std::ios::binary);
    archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    archivo.close();  // a full disk tells so here at the latest
    if (!archivo) throw Falla{NumeroFalla::AccesoRuta};
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

void CopiaArchivo(const fs::path& origen, const fs::path& destino)
{
    // By way of the contents: the copy of a write-protected file can be written.
    const std::string bytes = LeeArchivo(origen);
    std::error_code error;
    if (fs::equivalent(origen, destino, error)) throw Falla{NumeroFalla::AccesoRuta};
    Vuelca(destino, bytes, std::ios::trunc);
}

void BorraArchivo(const fs::path& camino)
{
    ExigeArchivo(camino);
    std::error_code error;
    if (!fs::remove(camino, error)) throw Falla{NumeroFalla::AccesoRuta};
}

void CreaUnDirectorio(const fs::path& camino)
{
    std::error_code error;
    if (!fs::create_directory(camino, error)) throw Falla{NumeroFalla::AccesoRuta};
}

}  // namespace

Disco DiscoDelSistema()
{
    Disco disco;
    disco.Lee = [](const std::string& ruta) { return LeeArchivo(Camino(ruta)); };
    disco.Escribe = [](const std::string& ruta, std::string_view bytes) {
        Vuelca(Camino(ruta), bytes, std::ios::trunc);
    };
    disco.Agrega = [](const std::string& ruta, std::string_view bytes) {
        Vuelca(Camino(ruta), bytes, std::ios::app);
    };
    disco.HayDirectorio = [](const std::string& ruta) {
        return ruta.find('\0') == std::string::npos && EsDirectorio(Camino(ruta));
    };
    disco.CreaDirectorio = [](const std::string& ruta) { CreaUnDirectorio(Camino(ruta)); };
    disco.Lista = [](const std::string& directorio) { return ListaDirectorio(Camino(directorio)); };
    disco.Borra = [](const std::string& ruta) { BorraArchivo(Camino(ruta)); };
    disco.Copia = [](const std::string& origen, const std::string& destino) {
        CopiaArchivo(Camino(origen), Camino(destino));
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
