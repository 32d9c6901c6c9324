// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QString>
#include <QTest>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "forms/Entorno_ventana.h"
#include "model/Siro.h"

// Windows under test. They are shown on a screen that nobody sees; keys and clicks are real ones, controls
// are found by their object names. A warning of the toolkit fails the test that caused it.
namespace apoyo {

/// The control of this name inside a window; the test fails where there is none of this type.
template <typename T = QWidget>
T& Control(QWidget& ventana, const char* nombre)
{
    T* const control = ventana.findChild<T*>(QString::fromUtf8(nombre));
    if (control == nullptr) {
        ADD_FAILURE() << "no control " << nombre;
        throw std::runtime_error(nombre);
    }
    return *control;
}

/// Shows a window and waits until it has the focus.
void Muestra(QWidget& ventana);

/// Types a text, accents and all, into whatever has the focus inside a control.
void Teclea(QWidget& control, const char* texto);

/// Empties a field with the keyboard and types a text into it.
void Escribe(QWidget& campo, const char* texto);

/// Clicks with the left button on the middle of a control.
void Pulsa(QWidget& control);

/// Waits, at most five seconds, until something holds, events going on.
bool Espera(const std::function<bool()>& vale);

/// A user who answers real boxes: acts on each modal window as it opens, in the order given. Windows beyond
/// the last answer are closed and fail the test, and so do answers that were never needed.
class Usuario {
  public:
    using Accion = std::function<void(QWidget& caja)>;
    Usuario();
    ~Usuario();
    Usuario(const Usuario&) = delete;
    Usuario& operator=(const Usuario&) = delete;

    /// Presses the button of this text, "&" and accents as shown.
    Usuario& Elige(const char* boton);
    /// Does anything else with the window.
    Usuario& Hace(Accion accion);

    /// "title|text" of the message boxes so far.
    [[nodiscard]] const std::vector<std::string>& Cajas() const { return cajas; }

  private:
    void Mira();

    std::deque<Accion> acciones;
    std::vector<std::string> cajas;
    std::unique_ptr<QObject> reloj;
    QWidget* atendida = nullptr;
};

/// State, scripted host and surroundings of a window under test.
struct Mundo {
    Mundo() { s.Anfitrion = anfitrion.Puerta(); }
    model::Siro s{};
    AnfitrionPrueba anfitrion{};
    forms::Entorno entorno{s};
};

/// Every field, list, button and table of a window has an object name, and what a reader of the screen says
/// of each field isn't empty. Returns those that fail.
std::vector<std::string> SinNombre(QWidget& ventana);

}  // namespace apoyo
