// SPDX-License-Identifier: GPL-3.0-or-later
#include <aclapi.h>
#include <windows.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "model/LlamadasDisco.h"

namespace model {

namespace {

using Camino = LlamadasDisco::Camino;

constexpr std::string_view SoloLectura = "El archivo es de solo lectura.";
constexpr std::string_view Ocupado = "Otro programa tiene abierto el archivo. Ciérrelo y vuelva a intentar.";

constexpr DWORD DeTodos = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// As the rest of the program knows errors. A file that another program has open is busy, and not forbidden:
/// it isn't to be written in place either.
std::error_code Error(DWORD numero)
{
    switch (numero) {
    case ERROR_SUCCESS:
        return {};
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return std::make_error_code(std::errc::text_file_busy);
    case ERROR_ACCESS_DENIED:
        return std::make_error_code(std::errc::permission_denied);
    case ERROR_WRITE_PROTECT:
        return std::make_error_code(std::errc::read_only_file_system);
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return std::make_error_code(std::errc::file_exists);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return std::make_error_code(std::errc::no_space_on_device);
    default:
        return {static_cast<int>(numero), std::system_category()};
    }
}

/// Of a call that tells only whether it went well.
std::error_code Error(BOOL bien)
{
    return bien != 0 ? std::error_code() : Error(GetLastError());
}

/// What looks through files as they are written, a search or a virus scanner, holds one for a moment.
template <typename F>
std::error_code ConPaciencia(F&& llamada)
{
    constexpr int Intentos = 10;
    constexpr DWORD Pausa = 30;  // [ms]
    std::error_code error = Error(llamada());
    for (int i = 1; i < Intentos && error == std::errc::text_file_busy; ++i) {
        Sleep(Pausa);
        error = Error(llamada());
    }
    return error;
}

/// An open file that closes itself.
class Abierto {
  public:
    Abierto(const Camino& camino, DWORD acceso, DWORD compartido, DWORD modo)
        : manija(
              CreateFileW(camino.c_str(), acceso, compartido, nullptr, modo, FILE_ATTRIBUTE_NORMAL, nullptr)),
          error(Esta() ? std::error_code() : Error(GetLastError()))
    {
    }
    ~Abierto()
    {
        if (Esta()) CloseHandle(manija);
    }
    Abierto(const Abierto&) = delete;
    Abierto& operator=(const Abierto&) = delete;
    [[nodiscard]] bool Esta() const { return manija != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Manija() const { return manija; }
    [[nodiscard]] std::error_code AlAbrir() const { return error; }
    std::error_code Cierra() { return Error(CloseHandle(std::exchange(manija, INVALID_HANDLE_VALUE))); }

  private:
    HANDLE manija;
    std::error_code error;
};

std::error_code EscribeTodo(HANDLE archivo, std::string_view bytes)
{
    constexpr std::size_t MaxTrozo = std::size_t{1} << 24;
    while (!bytes.empty()) {
        DWORD n = 0;
        const auto trozo = static_cast<DWORD>(std::min(bytes.size(), MaxTrozo));
        if (WriteFile(archivo, bytes.data(), trozo, &n, nullptr) == 0) return Error(GetLastError());
        if (n == 0) return Error(DWORD{ERROR_DISK_FULL});
        bytes.remove_prefix(n);
    }
    return {};
}

/// Devices and some network disks know no flushing: there is nothing to wait for.
std::error_code Descarga(HANDLE archivo)
{
    if (FlushFileBuffers(archivo) != 0) return {};
    const DWORD numero = GetLastError();
    const bool noSabe =
        numero == ERROR_INVALID_FUNCTION || numero == ERROR_INVALID_HANDLE || numero == ERROR_NOT_SUPPORTED;
    return noSabe ? std::error_code() : Error(numero);
}

/// Rights, owner where it may be given, and whether it is hidden. A disk without rights of its own, that of a
/// camera for one, refuses and loses nothing by it.
void TomaDerechos(const Camino& archivo, const Camino& modelo)
{
    const DWORD atributos = GetFileAttributesW(modelo.c_str());
    if (atributos == INVALID_FILE_ATTRIBUTES) return;
    constexpr DWORD Propios =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    if ((atributos & Propios) != 0) SetFileAttributesW(archivo.c_str(), atributos & Propios);

    PSID duenno = nullptr;
    PACL derechos = nullptr;
    PSECURITY_DESCRIPTOR todo = nullptr;
    if (GetNamedSecurityInfoW(modelo.c_str(), SE_FILE_OBJECT,
                              OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &duenno, nullptr,
                              &derechos, nullptr, &todo) != ERROR_SUCCESS)
        return;
    const std::unique_ptr<void, decltype(&LocalFree)> suelta(todo, &LocalFree);
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    GetSecurityDescriptorControl(todo, &control, &revision);
    const DWORD herencia = (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                              : UNPROTECTED_DACL_SECURITY_INFORMATION;
    std::wstring nombre = archivo.native();
    SetNamedSecurityInfoW(nombre.data(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, duenno, nullptr, nullptr,
                          nullptr);
    SetNamedSecurityInfoW(nombre.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | herencia, nullptr,
                          nullptr, derechos, nullptr);
}

std::error_code Llena(Abierto& archivo, std::string_view bytes)
{
    if (auto error = EscribeTodo(archivo.Manija(), bytes)) return error;
    if (auto error = Descarga(archivo.Manija())) return error;
    return archivo.Cierra();
}

std::error_code Crea(const Camino& camino, std::string_view bytes, const Camino& modelo)
{
    std::error_code error;
    {
        Abierto archivo(camino, GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
        if (!archivo.Esta()) return archivo.AlAbrir();
        error = Llena(archivo, bytes);
    }
    if (error)
        DeleteFileW(camino.c_str());
    else if (!modelo.empty())
        TomaDerechos(camino, modelo);
    return error;
}

/// Puts the end of a file, and the place of writing, there. Room up to it is the file's from then on.
std::error_code PonFin(HANDLE archivo, std::int64_t lugar)
{
    LARGE_INTEGER fin;
    fin.QuadPart = lugar;
    return Error(SetFilePointerEx(archivo, fin, nullptr, FILE_BEGIN) != 0 && SetEndOfFile(archivo) != 0);
}

std::error_code Sobrescribe(const Camino& camino, std::string_view bytes)
{
    Abierto archivo(camino, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    if (!archivo.Esta()) return archivo.AlAbrir();
    const HANDLE manija = archivo.Manija();
    LARGE_INTEGER antes;
    antes.QuadPart = 0;
    const bool comun = GetFileType(manija) == FILE_TYPE_DISK && GetFileSizeEx(manija, &antes) != 0;
    const auto largo = static_cast<std::int64_t>(bytes.size());
    if (comun && largo > antes.QuadPart) {
        if (const auto sinLugar = PonFin(manija, largo)) {
            PonFin(manija, antes.QuadPart);
            return sinLugar;
        }
        SetFilePointer(manija, 0, nullptr, FILE_BEGIN);
    }
    if (auto error = EscribeTodo(manija, bytes)) return error;
    if (comun && SetEndOfFile(manija) == 0) return Error(GetLastError());
    if (auto error = Descarga(manija)) return error;
    return archivo.Cierra();
}

bool DejaEscribir(const Camino& archivo)
{
    constexpr DWORD Ajenos = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    if ((GetFileAttributesW(archivo.c_str()) & Ajenos) != 0) return false;
    return !ConPaciencia(
        [&] { return BOOL{Abierto(archivo, GENERIC_WRITE, DeTodos, OPEN_EXISTING).Esta()}; });
}

bool Vive(long proceso)
{
    if (proceso <= 0) return false;
    const HANDLE manija = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(proceso));
    if (manija == nullptr) return GetLastError() == ERROR_ACCESS_DENIED;
    const bool vive = WaitForSingleObject(manija, 0) == WAIT_TIMEOUT;
    CloseHandle(manija);
    return vive;
}

}  // namespace

std::string_view MotivoDelSistema(const Camino& archivo)
{
    const DWORD atributos = GetFileAttributesW(archivo.c_str());
    if (atributos == INVALID_FILE_ATTRIBUTES || (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0) return {};
    if ((atributos & FILE_ATTRIBUTE_READONLY) != 0) return SoloLectura;
    const Abierto abierto(archivo, GENERIC_READ | DELETE, DeTodos, OPEN_EXISTING);
    return abierto.AlAbrir() == std::errc::text_file_busy ? Ocupado : std::string_view();
}

LlamadasDisco LlamadasDelSistema()
{
    LlamadasDisco llamadas;
    llamadas.Crea = Crea;
    llamadas.Sobrescribe = Sobrescribe;
    llamadas.Renombra = [](const Camino& de, const Camino& a) {
        return ConPaciencia([&] {
            return MoveFileExW(de.c_str(), a.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        });
    };
    llamadas.Borra = [](const Camino& archivo) {
        return ConPaciencia([&] { return DeleteFileW(archivo.c_str()); });
    };
    // Names are on the disk when Renombra comes back; a folder can't be waited for.
    llamadas.Asienta = [](const Camino&) { return std::error_code(); };
    llamadas.DejaEscribir = DejaEscribir;
    llamadas.Vive = Vive;
    llamadas.proceso = static_cast<long>(GetCurrentProcessId());
    return llamadas;
}

}  // namespace model
