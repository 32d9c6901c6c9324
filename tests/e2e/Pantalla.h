// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

// The desktop program in a real window: a screen of its own in memory, a window manager, a user's hands.
namespace e2e {

/// A process that ends with the object, if not before.
class Proceso {
  public:
    Proceso() = default;
    /// Starts a program found in PATH, or by its path. `entorno`: "NAME=value", beside what is inherited.
    /// What it writes goes to a file, where one is named.
    Proceso(const std::vector<std::string>& palabras, const std::vector<std::string>& entorno,
            const std::string& diario = {});
    ~Proceso();
    Proceso(Proceso&& otro) noexcept;
    Proceso& operator=(Proceso&& otro) noexcept;
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;

    /// Whether it has ended, and its exit status then; -1 where a signal ended it.
    bool Termino();
    [[nodiscard]] int Estado() const { return estado; }
    /// Kills it, as a power cut would, and waits.
    void Mata();

  private:
    pid_t hijo = -1;
    bool terminado = true;
    int estado = 0;
};

/// Waits, at most twenty seconds, until something holds.
bool Espera(const std::function<bool()>& vale);

/// Keys and names as xdotool knows them: "ctrl+o", "Tab", "Return".
class Pantalla {
  public:
    /// `casa`: directory of its own for settings and what the programs say.
    explicit Pantalla(const std::string& casa, const std::string& tamano = "1366x768x24");

    /// Starts the desktop program.
    void Arranca(const std::string& programa, const std::vector<std::string>& argumentos = {});
    Proceso& Programa() { return programa; }
    /// Variables with which programs find this screen.
    [[nodiscard]] const std::vector<std::string>& Entorno() const { return entorno; }

    /// Title of the window that has the focus; empty where none has.
    [[nodiscard]] std::string Activa() const;
    /// Waits for the window of this title, be it marked for unsaved work; the test fails, with a picture,
    /// where it doesn't come.
    void EsperaVentana(const std::string& titulo);
    /// Waits until something holds; the test fails, with a picture, where it doesn't come to hold.
    void EsperaA(const std::string& que, const std::function<bool()>& vale);

    /// Presses keys one after another in the window that has the focus.
    void Teclas(const std::vector<std::string>& teclas);
    void Teclea(const std::string& texto);
    /// Clicks at a point of the active window.
    void Pulsa(int x, int y, int boton = 1);

    /// Presses the left button at a point of the active window and moves, the button held, to another.
    void Arrastra(int x, int y, int hastaX, int hastaY);
    void Suelta();
    /// Gives the active window a place near the screen's corner and this size, and waits for it.
    void Mide(int ancho, int alto);

    /// Picture of the whole screen.
    void Foto(const std::string& archivo) const;
    /// Picture of the active window in its frame, and of what stands over it.
    void FotoDeVentana(const std::string& archivo) const;
    [[nodiscard]] const std::string& Diario() const { return diario; }

  private:
    std::string Xdotool(std::vector<std::string> palabras) const;

    std::string casa, diario;
    Proceso servidor, gestor, programa;
    std::vector<std::string> entorno;
};

}  // namespace e2e
