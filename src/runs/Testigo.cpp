// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Testigo.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>

#include "model/Configuracion.h"

namespace runs {

namespace {

using Reloj = std::chrono::steady_clock;
constexpr std::string_view TerminacionModelo = ".vlm";

}  // namespace

struct Testigo::Estado {
    std::mutex cerrojo{};
    ArchivosLeidos leidos{};
    std::optional<Reloj::time_point> desde{};

    void Anota(const std::string& ruta, const std::string& bytes)
    {
        if (!ruta.ends_with(TerminacionModelo)) return;
        const std::lock_guard guarda(cerrojo);
        if (ruta.ends_with(model::TerminacionConf)) {
            leidos.clear();
            desde = Reloj::now();
        }
        leidos[ruta] = std::make_shared<const std::string>(bytes);
    }
};

Testigo::Testigo() : estado(std::make_shared<Estado>()) {}

model::Disco Testigo::Sobre(model::Disco disco) const
{
    disco.Lee = [suyo = estado, lee = std::move(disco.Lee)](const std::string& ruta) {
        std::string bytes = lee(ruta);
        suyo->Anota(ruta, bytes);
        return bytes;
    };
    return disco;
}

ArchivosLeidos Testigo::Leidos() const
{
    const std::lock_guard guarda(estado->cerrojo);
    return estado->leidos;
}

double Testigo::Segundos() const
{
    const std::lock_guard guarda(estado->cerrojo);
    return estado->desde ? std::chrono::duration<double>(Reloj::now() - *estado->desde).count() : 0;
}

}  // namespace runs
