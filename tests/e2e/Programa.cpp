// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/Programa.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace e2e {
namespace {

namespace fs = std::filesystem;

/// A new file that goes with the object.
class ArchivoTemporal {
  public:
    ArchivoTemporal()
    {
        std::string plantilla = (fs::temp_directory_path() / "siro-e2e-XXXXXX").string();
        descriptor = mkstemp(plantilla.data());
        if (descriptor < 0) throw std::runtime_error("no file for what a program writes");
        camino = plantilla;
    }
    ~ArchivoTemporal()
    {
        close(descriptor);
        std::error_code error;
        fs::remove(camino, error);
    }
    ArchivoTemporal(const ArchivoTemporal&) = delete;
    ArchivoTemporal& operator=(const ArchivoTemporal&) = delete;
    [[nodiscard]] int Descriptor() const { return descriptor; }
    [[nodiscard]] std::string Lee() const
    {
        std::ifstream archivo(camino, std::ios::binary);
        return {std::istreambuf_iterator<char>(archivo), {}};
    }

  private:
    int descriptor = -1;
    std::string camino;
};

[[noreturn]] void Convierte(const std::string& programa, std::vector<char*>& argv,
                            const std::string& directorio, const std::array<int, 2>& salidas)
{
    const int nada = open("/dev/null", O_RDONLY);
    if (nada < 0 || dup2(nada, STDIN_FILENO) < 0 || dup2(salidas[0], STDOUT_FILENO) < 0 ||
        dup2(salidas[1], STDERR_FILENO) < 0 || chdir(directorio.c_str()) != 0)
        _exit(126);
    execv(programa.c_str(), argv.data());
    _exit(127);
}

}  // namespace

Salida Ejecuta(const std::string& programa, const std::vector<std::string>& argumentos,
               const std::string& directorio)
{
    std::vector<std::string> palabras{programa};
    palabras.insert(palabras.end(), argumentos.begin(), argumentos.end());
    std::vector<char*> argv;
    for (std::string& palabra : palabras)
        argv.push_back(palabra.data());
    argv.push_back(nullptr);

    const ArchivoTemporal estandar, errores;
    const pid_t hijo = fork();
    if (hijo < 0) throw std::runtime_error("no process");
    if (hijo == 0) Convierte(programa, argv, directorio, {estandar.Descriptor(), errores.Descriptor()});
    int fin = 0;
    if (waitpid(hijo, &fin, 0) != hijo) throw std::runtime_error("the process was lost");
    return {WIFEXITED(fin) ? WEXITSTATUS(fin) : -1, estandar.Lee(), errores.Lee()};
}

Salida Lote(const std::vector<std::string>& argumentos, const std::string& directorio)
{
    return Ejecuta(SIRO_LOTE, argumentos, directorio);
}

}  // namespace e2e
