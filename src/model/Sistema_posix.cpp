// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "model/Camino.h"
#include "model/Sistema.h"

namespace model {

namespace fs = std::filesystem;

Ambiente AmbienteDelProceso()
{
    return [](const std::string& nombre) {
        const char* const valor = std::getenv(nombre.c_str());
        return std::string(valor == nullptr ? "" : valor);
    };
}

std::string DatosDelUsuario(const Ambiente& ambiente)
{
    const std::string hogar = ambiente("HOME");
#if defined(__APPLE__)
    return hogar.empty() ? hogar : hogar + "/Library/Application Support";
#else
    // A relative path there is void by the rules of the desktops.
    std::string datos = ambiente("XDG_DATA_HOME");
    if (EsRutaAbsoluta(datos)) return datos;
    return hogar.empty() ? hogar : hogar + "/.local/share";
#endif
}

std::vector<std::string> PalabrasDelProceso(int argc, const char* const* argv)
{
    return {argv, argv + argc};
}

std::string RutaDelPrograma()
{
    std::error_code error;
    return TextoDe(fs::read_symlink("/proc/self/exe", error));
}

std::string RutaAbsoluta(const std::string& ruta)
{
    if (EsRutaAbsoluta(ruta)) return ruta;
    std::error_code error;
    fs::path absoluta = fs::absolute(Camino(ruta), error).lexically_normal();
    if (!absoluta.has_filename() && absoluta.has_relative_path()) absoluta = absoluta.parent_path();
    return TextoDe(absoluta);
}

bool EsRutaAbsoluta(const std::string& ruta)
{
    return ruta.starts_with('/');
}

std::tm HoraLocal(std::time_t momento)
{
    std::tm campos{};
    localtime_r(&momento, &campos);
    return campos;
}

bool EsTerminal(std::FILE* archivo)
{
    return isatty(fileno(archivo)) != 0;
}

void PreparaSalidas()
{
    // They are so from the beginning.
}

}  // namespace model
