// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "LlamadasQueFallan.h"
#include "model/Reemplazo.h"
#include "model/RestosDeReemplazo.h"

namespace fallas {

/// A folder of the real disk whose files are replaced.
struct ReemplazoReal : ::testing::Test {
    fs::path En(const std::string& nombre) const { return carpeta.Camino() / nombre; }
    void Reemplaza(const Contenido& nuevo, const model::LlamadasDisco& llamadas) const
    {
        std::vector<model::CambioArchivo> cambios;
        for (const auto& [nombre, bytes] : nuevo)
            cambios.push_back({En(nombre).string(), bytes});
        model::ReemplazaArchivos(llamadas, cambios);
    }
    Contenido Queda() const { return ContenidoDe(carpeta.Camino()); }
    void Recupera() const { model::RecuperaCarpeta(model::LlamadasDelSistema(), carpeta.Camino().string()); }
    apoyo::CarpetaTemporal carpeta;
};

}  // namespace fallas
