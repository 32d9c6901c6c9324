// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <limits>
#include <utility>

#include "model/LlamadasDisco.h"

namespace model {

namespace {

using Camino = LlamadasDisco::Camino;

std::error_code Error(int numero)
{
    return {numero, std::generic_category()};
}

/// An open file that closes itself.
class Abierto {
  public:
    Abierto(const Camino& camino, int modo, mode_t derechos = 0)
        : numero(open(camino.c_str(), modo | O_CLOEXEC, derechos))
    {
    }
    ~Abierto()
    {
        if (numero >= 0) close(numero);
    }
    Abierto(const Abierto&) = delete;
    Abierto& operator=(const Abierto&) = delete;
    [[nodiscard]] int Numero() const { return numero; }
    /// Closes it: some disks tell only here that they are full.
    std::error_code Cierra() { return close(std::exchange(numero, -1)) == 0 ? Error(0) : Error(errno); }

  private:
    int numero;
};

std::error_code EscribeTodo(int archivo, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = write(archivo, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return Error(errno);
        if (n == 0) return Error(ENOSPC);
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return {};
}

/// Devices and some network disks know no flushing: there is nothing to wait for.
std::error_code Descarga(int archivo)
{
    if (fsync(archivo) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS) return {};
    return Error(errno);
}

/// Owner first, since a change of owner takes rights away; where it may not be given the rights still are.
void TomaDerechos(int archivo, const Camino& modelo)
{
    struct stat estado {};
    if (stat(modelo.c_str(), &estado) != 0) return;
    const bool conDuenno = fchown(archivo, estado.st_uid, estado.st_gid) == 0;
    constexpr mode_t Derechos = 07777, DeTodos = 0777;
    const mode_t derechos = estado.st_mode & (conDuenno ? Derechos : DeTodos);
    // A disk without rights of its own, that of a camera for one, refuses and loses nothing by it.
    static_cast<void>(fchmod(archivo, derechos));
}

std::error_code Llena(Abierto& archivo, std::string_view bytes)
{
    if (auto error = EscribeTodo(archivo.Numero(), bytes)) return error;
    if (auto error = Descarga(archivo.Numero())) return error;
    return archivo.Cierra();
}

std::error_code Crea(const Camino& camino, std::string_view bytes, const Camino& modelo)
{
    constexpr mode_t DeNuevo = 0666;  // less what the user's mask takes away
    Abierto archivo(camino, O_WRONLY | O_CREAT | O_EXCL, DeNuevo);
    if (archivo.Numero() < 0) return Error(errno);
    TomaDerechos(archivo.Numero(), modelo);
    const std::error_code error = Llena(archivo, bytes);
    if (error) unlink(camino.c_str());
    return error;
}

std::error_code Sobrescribe(const Camino& camino, std::string_view bytes)
{
    Abierto archivo(camino, O_WRONLY);
    if (archivo.Numero() < 0) return Error(errno);
    struct stat estado {};
    if (fstat(archivo.Numero(), &estado) != 0) return Error(errno);
    const auto largo = static_cast<off_t>(bytes.size());
    const bool comun = S_ISREG(estado.st_mode);
    if (comun && largo > estado.st_size) {
        const int sinLugar = posix_fallocate(archivo.Numero(), 0, largo);
        if (sinLugar != 0 && sinLugar != EINVAL && sinLugar != EOPNOTSUPP) {
            static_cast<void>(ftruncate(archivo.Numero(), estado.st_size));
            return Error(sinLugar);
        }
    }
    if (auto error = EscribeTodo(archivo.Numero(), bytes)) return error;
    if (comun && ftruncate(archivo.Numero(), largo) != 0) return Error(errno);
    if (auto error = Descarga(archivo.Numero())) return error;
    return archivo.Cierra();
}

std::error_code Asienta(const Camino& directorio)
{
    const Abierto carpeta(directorio, O_RDONLY | O_DIRECTORY);
    return carpeta.Numero() < 0 ? Error(errno) : Descarga(carpeta.Numero());
}

}  // namespace

std::string_view MotivoDelSistema(const Camino& /*archivo*/)
{
    return {};  // here the error tells all
}

LlamadasDisco LlamadasDelSistema()
{
    // Where the user's shell limits the size of files, a write beyond must be refused and not end the
    // program.
    static_cast<void>(signal(SIGXFSZ, SIG_IGN));
    const auto deLlamada = [](int salida) { return salida == 0 ? Error(0) : Error(errno); };
    LlamadasDisco llamadas;
    llamadas.Crea = Crea;
    llamadas.Sobrescribe = Sobrescribe;
    llamadas.Renombra = [deLlamada](const Camino& de, const Camino& a) {
        return deLlamada(rename(de.c_str(), a.c_str()));
    };
    llamadas.Borra = [deLlamada](const Camino& archivo) { return deLlamada(unlink(archivo.c_str())); };
    llamadas.Asienta = Asienta;
    llamadas.DejaEscribir = [](const Camino& archivo) {
        return faccessat(AT_FDCWD, archivo.c_str(), W_OK, AT_EACCESS) == 0;
    };
    llamadas.Vive = [](long proceso) {
        if (proceso <= 0 || proceso > std::numeric_limits<pid_t>::max()) return false;  // stands for others
        return kill(static_cast<pid_t>(proceso), 0) == 0 || errno == EPERM;
    };
    llamadas.proceso = getpid();
    return llamadas;
}

}  // namespace model
