// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QSettings>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/Recogida.h"
#include "model/Falla.h"
#include "model/SiroDeclarado.h"

class QDialog;
class QMdiArea;
class QPrinter;
class QWidget;

namespace forms {

/// A dialog of the program's own that is a box to the other windows, as Qt's are: it belongs to the one that
/// was active before it.
struct ComoCaja {};

/// What every window is handed: the run-wide state, the edge at which an event ends, and what the program as
/// a whole does for its windows. Lives as long as the windows do.
class Entorno : public QObject {
  public:
    explicit Entorno(model::Siro& estado);

    model::Siro& s;

    /// Runs the handler of an event. Where it ends the program, the event loops are left, those of boxes and
    /// dialogs included, and no further event is handled. A fault that got this far is told, and so is that
    /// the system had no memory for it.
    ///
    /// One event of the user's is one command: what it calls in its turn belongs to it, what happens in a
    /// dialog that it opens doesn't. Messages that it has gathered are shown when it ends.
    void Atiende(const std::function<void()>& cuerpo);

    /// Shows a dialog until it is closed and returns its result; the keyboard goes back to the window that
    /// had it. Messages that have been gathered are shown first. Throws FinDelPrograma where the program was
    /// ended meanwhile, so that nothing after it runs.
    int Ejecuta(QDialog& dialogo);

    /// Messages and questions of the command in hand; nothing outside of any.
    Recogida* Recoge() { return orden == nullptr ? nullptr : &orden->recogida; }

    /// Leaves every event loop with this status.
    void Termina(int estado);
    [[nodiscard]] bool Terminando() const { return terminando; }
    [[nodiscard]] int Estado() const { return estado; }

    /// Opens a window beside the others and brings it to the front. Asked for from a modal form, it opens as
    /// that form's own child. Until the main window is there it opens on the desktop.
    std::function<void(QWidget& ventana)> Presenta;

    /// Runs a routine after each event, once those of the moment are over, for as long as `quien` lives: what
    /// shows the state in memory beside the form in hand is shown anew.
    void AlTerminarSuceso(QObject& quien, std::function<void()> rutina);

    /// Opens the page of help of a window, by the window's object name.
    std::function<void(const std::string& ventana)> AbreAyuda;

    /// Shows the messages that a command has gathered until they are closed; who gathers them fills it in.
    std::function<void(const std::vector<Recogido>& recogidos)> ListaMensajes;

    /// The default printer, nothing where none is installed.
    std::function<std::unique_ptr<QPrinter>()> Impresora;

    /// Runs a routine whenever the window becomes active coming from another window of this program that
    /// isn't its own box or child. Coming from another program is no activation.
    void AlActivarse(QWidget& ventana, std::function<void()> rutina);

    /// The windows that stand in this room become active too: the one at the front, whenever the room's own
    /// window is active.
    void VigilaHijas(QMdiArea& area);

    /// What is remembered from one session to the next.
    QSettings& Ajustes() { return ajustes; }

  protected:
    /// Every label, tooltips and those of boxes included, shows its text as it stands: what a user or a file
    /// calls itself is no mark-up, whatever it looks like.
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

  private:
    struct Orden {
        int dialogos = 0;  ///< on show when it began
        Recogida recogida{};
    };
    void Informa(const model::Falla& falla);
    std::optional<int> Corre(const std::function<void()>& cuerpo);
    void MuestraRecogidos();
    void CambioDeVentana(QWidget* activa);
    void AvisaTrasSuceso();

    struct Vigilada {
        QPointer<QWidget> ventana;
        std::function<void()> rutina;
    };
    std::vector<Vigilada> vigiladas;
    struct Oyente {
        QPointer<QObject> quien;
        std::function<void()> rutina;
    };
    std::vector<Oyente> oyentes;
    bool avisado = false;                   ///< they run once the events of the moment are over
    std::vector<QPointer<QWidget>> ultima;  ///< the window active last and those that it belongs to
    QSettings ajustes;
    Orden* orden = nullptr;  ///< the command in hand
    int dialogos = 0;        ///< on show
    bool terminando = false;
    int estado = 0;
};

}  // namespace forms
