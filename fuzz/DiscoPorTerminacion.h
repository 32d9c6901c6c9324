// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "model/Falla.h"

/// A disk that tells the files of a project apart by what follows their last "_", whatever the project's name
/// and directory, so that a name found inside a file leads to the same files. It shares them with its copies.
struct DiscoPorTerminacion {
    using Archivos = std::map<std::string, std::string, std::less<>>;
    std::shared_ptr<Archivos> archivos = std::make_shared<Archivos>();

    static std::string Clave(std::string_view ruta) { return std::string(ruta.substr(ruta.rfind('_') + 1)); }

    [[nodiscard]] model::Disco Disco() const
    {
        const auto a = archivos;
        model::Disco disco;
        disco.Lee = [a](const std::string& ruta) {
            const auto archivo = a->find(Clave(ruta));
            if (archivo == a->end()) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
            return archivo->second;
        };
        disco.Escribe = [a](const std::string& ruta, std::string_view bytes) { (*a)[Clave(ruta)] = bytes; };
        disco.Reemplaza = [a](const std::vector<model::CambioArchivo>& cambios) {
            for (const model::CambioArchivo& cambio : cambios)
                (*a)[Clave(cambio.ruta)] = cambio.bytes;
        };
        disco.Recupera = [](const std::string&) { return model::Recuperacion{}; };
        disco.Agrega = [a](const std::string& ruta, std::string_view bytes) { (*a)[Clave(ruta)] += bytes; };
        disco.HayDirectorio = [](const std::string&) { return true; };
        disco.Borra = [a](const std::string& ruta) {
            if (a->erase(Clave(ruta)) == 0) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
        };
        return disco;
    }
};

/// Ends the fuzzer where what it holds to be true isn't.
inline void Exige(bool cierto)
{
    if (!cierto) __builtin_trap();
}
