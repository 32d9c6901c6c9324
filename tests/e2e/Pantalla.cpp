// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/Pantalla.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <utility>

#include "e2e/Programa.h"

namespace e2e {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds Paciencia{20};
constexpr std::chrono::milliseconds EntreMiradas{20};
constexpr std::chrono::milliseconds ParaPintarse{600};

/// Descriptor through which the server tells the number of its screen.
constexpr int DescriptorDeNumero = 9;

std::vector<char*> Punteros(std::vector<std::string>& palabras)
{
    std::vector<char*> punteros;
    for (std::string& palabra : palabras)
        punteros.push_back(palabra.data());
    punteros.push_back(nullptr);
    return punteros;
}

[[noreturn]] void Convierte(std::vector<std::string> palabras, const std::vector<std::string>& entorno,
                            const std::string& diario)
{
    setpgid(0, 0);
    const int salida =
        open(diario.empty() ? "/dev/null" : diario.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    if (salida < 0 || dup2(salida, STDOUT_FILENO) < 0 || dup2(salida, STDERR_FILENO) < 0) _exit(126);
    for (const std::string& variable : entorno) {
        const std::size_t igual = variable.find('=');
        setenv(variable.substr(0, igual).c_str(), variable.substr(igual + 1).c_str(), 1);
    }
    std::vector<char*> argv = Punteros(palabras);
    execvp(argv[0], argv.data());
    _exit(127);
}

std::string SinSaltoFinal(std::string texto)
{
    while (!texto.empty() && texto.back() == '\n')
        texto.pop_back();
    return texto;
}

}  // namespace

bool Espera(const std::function<bool()>& vale)
{
    const auto limite = std::chrono::steady_clock::now() + Paciencia;
    while (!vale()) {
        if (std::chrono::steady_clock::now() > limite) return false;
        std::this_thread::sleep_for(EntreMiradas);
    }
    return true;
}

// --- processes

Proceso::Proceso(const std::vector<std::string>& palabras, const std::vector<std::string>& entorno,
                 const std::string& diario)
    : hijo(fork()), terminado(false)
{
    if (hijo < 0) throw std::runtime_error("no process");
    if (hijo == 0) Convierte(palabras, entorno, diario);
}

Proceso::~Proceso()
{
    if (Termino()) return;
    kill(-hijo, SIGTERM);
    if (!Espera([this] { return Termino(); })) kill(-hijo, SIGKILL);
}

Proceso::Proceso(Proceso&& otro) noexcept
{
    *this = std::move(otro);
}

Proceso& Proceso::operator=(Proceso&& otro) noexcept
{
    std::swap(hijo, otro.hijo);
    std::swap(terminado, otro.terminado);
    std::swap(estado, otro.estado);
    return *this;
}

bool Proceso::Termino()
{
    int fin = 0;
    if (!terminado && waitpid(hijo, &fin, WNOHANG) == hijo) {
        terminado = true;
        estado = WIFEXITED(fin) ? WEXITSTATUS(fin) : -1;
    }
    return terminado;
}

void Proceso::Mata()
{
    if (!Termino()) kill(hijo, SIGKILL);
    Espera([this] { return Termino(); });
}

// --- screen

Pantalla::Pantalla(const std::string& directorio, const std::string& tamano)
    : casa(directorio), diario(directorio + "/diario.txt")
{
    fs::create_directories(casa);
    fs::permissions(casa, fs::perms::owner_all);
    std::array<int, 2> tubo{};
    if (pipe(tubo.data()) != 0 || dup2(tubo[1], DescriptorDeNumero) < 0) throw std::runtime_error("no pipe");
    servidor = Proceso({"Xvfb", "-displayfd", std::to_string(DescriptorDeNumero), "-screen", "0", tamano,
                        "-nolisten", "tcp", "-noreset"},
                       {}, diario);
    close(tubo[1]);
    close(DescriptorDeNumero);
    std::string numero;
    for (char c = 0; read(tubo[0], &c, 1) == 1 && c != '\n';)
        numero += c;
    close(tubo[0]);
    if (numero.empty()) throw std::runtime_error("the screen doesn't start");

    entorno = {"DISPLAY=:" + numero,    "QT_QPA_PLATFORM=xcb",     "HOME=" + casa,  "XDG_CONFIG_HOME=" + casa,
               "XDG_DATA_HOME=" + casa, "XDG_RUNTIME_DIR=" + casa, "LC_ALL=C.UTF-8"};
    gestor = Proceso({"openbox", "--sm-disable"}, entorno, diario);
    if (!Espera([this] { return !Xdotool({"get_num_desktops"}).empty(); }))
        throw std::runtime_error("the window manager doesn't start");
}

std::string Pantalla::Xdotool(std::vector<std::string> palabras) const
{
    palabras.insert(palabras.begin(), {entorno[0], "xdotool"});
    return SinSaltoFinal(Ejecuta("/usr/bin/env", palabras, "/").estandar);
}

void Pantalla::Arranca(const std::string& ruta, const std::vector<std::string>& argumentos)
{
    std::vector<std::string> palabras{ruta};
    palabras.insert(palabras.end(), argumentos.begin(), argumentos.end());
    programa = Proceso(palabras, entorno, diario);
}

std::string Pantalla::Activa() const
{
    return Xdotool({"getactivewindow", "getwindowname"});
}

void Pantalla::EsperaA(const std::string& que, const std::function<bool()>& vale)
{
    if (Espera(vale)) return;
    const std::string foto = (fs::temp_directory_path() / "siro-e2e.png").string();
    Foto(foto);
    FAIL() << "waited in vain for " << que << "; the active window is \"" << Activa() << "\"; see " << foto;
}

void Pantalla::EsperaVentana(const std::string& titulo)
{
    // When two boxes close at once, the window manager of a busy machine may leave nobody with the focus. A
    // user would click on the window that there is.
    constexpr int MiradasSinNadie = 25;
    int sinNadie = 0;
    EsperaA("the window \"" + titulo + '"', [&] {
        const std::string activa = Activa();
        sinNadie = activa.empty() ? sinNadie + 1 : 0;
        if (sinNadie == MiradasSinNadie) {
            Xdotool({"search", "--onlyvisible", "--name", '^' + titulo + "[*]?$", "windowactivate"});
            sinNadie = 0;
        }
        return activa == titulo || activa == titulo + '*';
    });
}

void Pantalla::Teclas(const std::vector<std::string>& teclas)
{
    std::vector<std::string> palabras{"key", "--clearmodifiers", "--delay", "30"};
    palabras.insert(palabras.end(), teclas.begin(), teclas.end());
    Xdotool(palabras);
}

void Pantalla::Teclea(const std::string& texto)
{
    Xdotool({"type", "--clearmodifiers", "--delay", "15", "--", texto});
}

void Pantalla::Pulsa(int x, int y, int boton)
{
    const std::string ventana = Xdotool({"getactivewindow"});
    Xdotool({"mousemove", "--window", ventana, std::to_string(x), std::to_string(y), "click",
             std::to_string(boton)});
}

void Pantalla::Arrastra(int x, int y, int hastaX, int hastaY)
{
    const std::string ventana = Xdotool({"getactivewindow"});
    const auto mueve = [&](int aX, int aY) {
        Xdotool({"mousemove", "--window", ventana, std::to_string(aX), std::to_string(aY)});
    };
    mueve(x, y);
    Xdotool({"mousedown", "1"});
    constexpr int Tramos = 4;
    for (int i = 1; i <= Tramos; ++i)
        mueve(x + (hastaX - x) * i / Tramos, y + (hastaY - y) * i / Tramos);
}

void Pantalla::Suelta()
{
    Xdotool({"mouseup", "1"});
}

void Pantalla::Mide(int ancho, int alto)
{
    const std::string ventana = Xdotool({"getactivewindow"});
    const std::string medida = std::to_string(ancho) + 'x' + std::to_string(alto);
    Xdotool({"windowsize", ventana, std::to_string(ancho), std::to_string(alto), "windowmove", ventana, "40",
             "40"});
    EsperaA("a window of " + medida, [&] {
        return Xdotool({"getwindowgeometry", ventana}).find(" " + medida) != std::string::npos;
    });
}

void Pantalla::FotoDeVentana(const std::string& archivo) const
{
    const std::string ventana = Xdotool({"getactivewindow"});
    std::this_thread::sleep_for(ParaPintarse);
    Ejecuta("/usr/bin/env", {entorno[0], "import", "-frame", "-window", ventana, archivo}, "/");
}

void Pantalla::Foto(const std::string& archivo) const
{
    Ejecuta("/usr/bin/env", {entorno[0], "import", "-window", "root", archivo}, "/");
}

}  // namespace e2e
