// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"

/// A disk on which every file holds the same bytes: those of the fuzzer at first, then what was written last.
/// Its one directory is there. It shares its bytes with its copies.
struct DiscoDeUnArchivo {
    std::shared_ptr<std::string> bytes = std::make_shared<std::string>();

    [[nodiscard]] model::Disco Disco() const
    {
        const auto b = bytes;
        model::Disco disco;
        disco.Lee = [b](const std::string&) { return *b; };
        disco.Escribe = [b](const std::string&, std::string_view nuevos) { *b = nuevos; };
        disco.Reemplaza = [b](const std::vector<model::CambioArchivo>& cambios) {
            *b = cambios.back().bytes;
        };
        disco.Recupera = [](const std::string&) { return model::Recuperacion{}; };
        disco.Agrega = [b](const std::string&, std::string_view nuevos) { b->append(nuevos); };
        disco.HayDirectorio = [](const std::string&) { return true; };
        disco.CreaDirectorio = [](const std::string&) {};
        disco.Lista = [](const std::string&) { return std::vector<std::string>{}; };
        disco.Borra = [](const std::string&) {};
        disco.Copia = [](const std::string&, const std::string&) {};
        return disco;
    }
};

/// Ends the fuzzer where what it holds to be true isn't.
inline void Exige(bool cierto)
{
    if (!cierto) __builtin_trap();
}
