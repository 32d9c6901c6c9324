// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Camino.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <system_error>

#include "model/LlamadasDisco.h"
#include "model/NombresDeWindows.h"
#include "model/RutaProyecto.h"

namespace model {

namespace fs = std::filesystem;

fs::path Camino(const std::string& ruta)
{
    // The system would take such a path only as far as its NUL, hence for another file.
    if (ruta.find('\0') != std::string::npos) throw Falla{NumeroFalla::AccesoRuta};
    if constexpr (HayUnidades)
        if (const auto motivo = MotivoDeWindows(ruta); !motivo.empty())
            throw Falla{NumeroFalla::AccesoRuta, motivo};
    try {
        return {std::u8string(ruta.begin(), ruta.end())};
    } catch (const fs::filesystem_error&) {
        throw Falla{NumeroFalla::AccesoRuta};  // bytes that are no text have no name where names are texts
    }
}

std::string TextoDe(const fs::path& camino)
{
    try {
        const std::u8string utf8 = camino.u8string();
        return {utf8.begin(), utf8.end()};
    } catch (const fs::filesystem_error&) {
        return {};
    }
}

std::string DirectorioDe(const std::string& ruta)
{
    return TextoDe(Camino(ruta).parent_path());
}

Falla FallaDeAcceso(const fs::path& camino)
{
    return {NumeroFalla::AccesoRuta, MotivoDelSistema(camino)};
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

bool EstaDentro(const fs::path& dentro, const fs::path& carpeta)
{
    return std::mismatch(carpeta.begin(), carpeta.end(), dentro.begin(), dentro.end()).first == carpeta.end();
}

void ExigeArchivo(const fs::path& camino)
{
    std::error_code error;
    const fs::file_status estado = fs::status(camino, error);
    if (estado.type() == fs::file_type::not_found)
        throw Falla{HayDirectorioDe(camino) ? NumeroFalla::ArchivoNoEsta : NumeroFalla::RutaNoEsta};
    if (!fs::is_regular_file(estado)) throw Falla{NumeroFalla::AccesoRuta};
}

std::string LeeArchivo(const fs::path& camino, std::uintmax_t maximo)
{
    ExigeArchivo(camino);
    std::error_code error;
    const std::uintmax_t largo = fs::file_size(camino, error);
    if (error || largo > maximo) throw Falla{NumeroFalla::AccesoRuta};

    std::ifstream archivo(camino, std::ios::binary);
    if (!archivo) throw FallaDeAcceso(camino);
    std::string bytes(static_cast<std::size_t>(largo), '\0');
    archivo.read(bytes.data(), static_cast<std::streamsize>(largo));
    if (archivo.bad()) throw Falla{NumeroFalla::AccesoRuta};
    bytes.resize(static_cast<std::size_t>(archivo.gcount()));
    return bytes;
}

}  // namespace model
