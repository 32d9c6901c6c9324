// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "apoyo/Compara.h"
#include "apoyo/Proceso.h"
#include "model/Disco.h"
#include "model/LlamadasDisco.h"

// The calls of the real system, one of which goes wrong: it is refused, or the process dies at it.

namespace fallas {

namespace fs = std::filesystem;

/// Which call goes wrong, from 1, and how.
struct Golpe {
    int llamada = 0;
    std::errc error{};   ///< none: the process is killed
    double hecha = 0;    ///< part of the bytes that are on the disk when it is killed
    bool sigue = false;  ///< all later calls are refused too
    std::shared_ptr<int> cuenta = std::make_shared<int>(0);

    /// Whether the call at hand goes wrong.
    [[nodiscard]] bool Da() const
    {
        ++*cuenta;
        return sigue ? *cuenta >= llamada : *cuenta == llamada;
    }
    /// How the call ends.
    [[nodiscard]] std::error_code Fin() const
    {
        if (error == std::errc{}) apoyo::Muere();
        return std::make_error_code(error);
    }
};

inline std::string_view Parte(std::string_view bytes, double hecha)
{
    return bytes.substr(0, static_cast<std::size_t>(static_cast<double>(bytes.size()) * hecha));
}

/// A call about to be killed writes a part of its bytes, as the system may have done by then.
inline model::LlamadasDisco Llamadas(const Golpe& golpe)
{
    const model::LlamadasDisco reales = model::LlamadasDelSistema();
    model::LlamadasDisco l = reales;
    const bool mata = golpe.error == std::errc{};
    l.Crea = [=](const fs::path& archivo, std::string_view bytes, const fs::path& modelo) {
        if (!golpe.Da()) return reales.Crea(archivo, bytes, modelo);
        if (mata && golpe.hecha > 0) std::ofstream(archivo, std::ios::binary) << Parte(bytes, golpe.hecha);
        return golpe.Fin();
    };
    l.Sobrescribe = [=](const fs::path& archivo, std::string_view bytes) {
        return golpe.Da() ? golpe.Fin() : reales.Sobrescribe(archivo, bytes);
    };
    const auto entera = [=](const auto& llamada) {
        return [=](const auto&... argumentos) {
            if (!golpe.Da()) return llamada(argumentos...);
            if (mata && golpe.hecha == 1) llamada(argumentos...);
            return golpe.Fin();
        };
    };
    l.Renombra = entera(reales.Renombra);
    l.Borra = entera(reales.Borra);
    l.Asienta = entera(reales.Asienta);
    return l;
}

inline model::Disco Disco(const Golpe& golpe)
{
    return model::DiscoDelSistema(std::make_shared<const model::LlamadasDisco>(Llamadas(golpe)));
}

using apoyo::EnOtroProceso;
using apoyo::Fin;

/// All that a folder holds: the files by name, each with its bytes.
using Contenido = std::map<std::string, std::string>;

inline Contenido ContenidoDe(const fs::path& carpeta)
{
    Contenido contenido;
    for (const auto& entrada : fs::directory_iterator(carpeta))
        if (entrada.is_regular_file())
            contenido[entrada.path().filename().string()] = apoyo::BytesDeArchivo(entrada.path());
    return contenido;
}

inline void PonContenido(const fs::path& carpeta, const Contenido& contenido)
{
    for (const auto& entrada : fs::directory_iterator(carpeta))
        fs::remove_all(entrada.path());
    for (const auto& [nombre, bytes] : contenido)
        std::ofstream(carpeta / nombre, std::ios::binary) << bytes;
}

}  // namespace fallas
