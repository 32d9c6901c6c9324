// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "model/Ancho_windows.h"
#include "model/Camino.h"
#include "model/Disco.h"
#include "model/NombresDeWindows.h"
#include "model/RutaProyecto.h"
#include "model/Sistema.h"

namespace model {

namespace {

/// What a function of the system writes to a buffer. `escribe` is handed buffer and size and returns how many
/// characters it wrote, or, where they are too few, how many it needs at least; 0 where there is nothing.
template <typename F>
std::wstring Recibe(F&& escribe)
{
    std::wstring texto(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = escribe(texto.data(), static_cast<DWORD>(texto.size()));
        if (n < texto.size()) return texto.substr(0, n);
        texto.resize(std::size_t{2} * std::max<std::size_t>(n, texto.size()));
    }
}

}  // namespace

std::wstring Ancho(std::string_view utf8)
{
    const int largo = static_cast<int>(utf8.size());
    std::wstring ancho(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), largo, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), largo, ancho.data(), static_cast<int>(ancho.size()));
    return ancho;
}

std::string Utf8(std::wstring_view ancho)
{
    const int largo = static_cast<int>(ancho.size());
    std::string utf8(static_cast<std::size_t>(
                         WideCharToMultiByte(CP_UTF8, 0, ancho.data(), largo, nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, ancho.data(), largo, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                        nullptr);
    return utf8;
}

Ambiente AmbienteDelProceso()
{
    return [](const std::string& nombre) {
        const std::wstring ancho = Ancho(nombre);
        return Utf8(Recibe([&](wchar_t* texto, DWORD largo) {
            return GetEnvironmentVariableW(ancho.c_str(), texto, largo);
        }));
    };
}

std::string DatosDelUsuario(const Ambiente& ambiente)
{
    return ambiente("LOCALAPPDATA");
}

std::vector<std::string> PalabrasDelProceso(int argc, const char* const* argv)
{
    // Those of main have gone through the code page of the machine, which lacks most of the letters that a
    // path may hold.
    int cuantas = 0;
    const auto suelta = [](wchar_t** palabras) { LocalFree(static_cast<void*>(palabras)); };
    const std::unique_ptr<wchar_t*, decltype(suelta)> anchas(CommandLineToArgvW(GetCommandLineW(), &cuantas));
    if (!anchas) return {argv, argv + argc};
    std::vector<std::string> palabras;
    for (int i = 0; i < cuantas; ++i)
        palabras.push_back(Utf8(anchas.get()[i]));
    return palabras;
}

std::string RutaDelPrograma()
{
    return Utf8(
        Recibe([](wchar_t* texto, DWORD largo) { return GetModuleFileNameW(nullptr, texto, largo); }));
}

std::string RutaAbsoluta(const std::string& ruta)
{
    std::string propia = ConBarrasInversas(ruta);
    // What the system takes for a device it would turn into the path of one.
    if (EsRutaAbsoluta(propia) || !MotivoDeWindows(propia).empty()) return propia;
    const std::wstring ancha = Ancho(propia);
    std::string absoluta = Utf8(Recibe(
        [&](wchar_t* texto, DWORD largo) { return GetFullPathNameW(ancha.c_str(), largo, texto, nullptr); }));
    constexpr std::size_t LargoRaiz = 3;  // of "C:\"
    if (absoluta.size() > LargoRaiz && absoluta.back() == Separador) absoluta.pop_back();
    return absoluta;
}

bool EsRutaAbsoluta(const std::string& ruta)
{
    return EsAbsolutaEnWindows(ruta);
}

std::tm HoraLocal(std::time_t momento)
{
    std::tm campos{};
    localtime_s(&campos, &momento);
    return campos;
}

bool EsTerminal(std::FILE* archivo)
{
    // To the library a printer and the null device are terminals too. One that doesn't know the sequences
    // that erase a line would show them as letters.
    const auto salida = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(archivo)));
    DWORD modo = 0;
    return GetConsoleMode(salida, &modo) != 0 &&
           SetConsoleMode(salida, modo | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

void PreparaSalidas()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    // The code page is the terminal's, and stays with it when the process ends. Without a terminal it is
    // none.
    static UINT anterior = 0;
    anterior = GetConsoleOutputCP();
    if (anterior == 0 || SetConsoleOutputCP(CP_UTF8) == 0) return;
    std::atexit([] { SetConsoleOutputCP(anterior); });
}

}  // namespace model
