// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Disco_comienzos.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "model/Camino.h"
#include "model/Falla.h"

namespace model {
namespace {

Puntas LeePuntas(const std::string& ruta, std::size_t comienzo, std::size_t fin)
{
    const std::filesystem::path camino = Camino(ruta);
    Puntas puntas;
    std::error_code error;
    puntas.bytes = std::filesystem::file_size(camino, error);
    if (error) {
        ExigeArchivo(camino);
        throw FallaDeAcceso(camino);
    }
    if (comienzo == 0 && fin == 0) return puntas;
    std::ifstream archivo;
    archivo.rdbuf()->pubsetbuf(nullptr, 0);  // two reads, each as long as what is wanted
    archivo.open(camino, std::ios::binary);
    const auto lee = [&](std::string& texto, std::uint64_t desde, std::size_t hasta) {
        texto.resize(static_cast<std::size_t>(std::min<std::uint64_t>(hasta, puntas.bytes)));
        archivo.seekg(static_cast<std::streamoff>(desde));
        archivo.read(texto.data(), static_cast<std::streamsize>(texto.size()));
    };
    lee(puntas.comienzo, 0, comienzo);
    lee(puntas.fin, puntas.bytes - std::min<std::uint64_t>(fin, puntas.bytes), fin);
    if (!archivo) throw FallaDeAcceso(camino);
    return puntas;
}

}  // namespace

LectorDePuntas PuntasDelSistema()
{
    return LeePuntas;
}

LectorDePuntas PuntasPorEntero(const Disco& disco)
{
    return [lee = disco.Lee](const std::string& ruta, std::size_t comienzo, std::size_t fin) {
        const std::string todo = lee(ruta);
        return Puntas{todo.size(), todo.substr(0, comienzo),
                      todo.substr(todo.size() - std::min(fin, todo.size()))};
    };
}

}  // namespace model
