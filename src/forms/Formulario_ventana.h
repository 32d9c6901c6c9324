// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QWidget>
#include <functional>
#include <string_view>
#include <utility>

#include "forms/Campos_ventana.h"
#include "forms/Entorno_ventana.h"

namespace forms {

/// What all windows have in common: each event of the user is handed to the form's rules, then the window
/// shows the record anew. F1 opens the window's page of help where none of its controls takes that key.
class Sucesos {
  public:
    Sucesos(const Sucesos&) = delete;
    Sucesos& operator=(const Sucesos&) = delete;

    /// Shows what the record holds. Sets only what differs, and calls no handler.
    virtual void Muestra() = 0;

  protected:
    explicit Sucesos(Entorno& alrededor) : entorno(alrededor), campos(alrededor)
    {
        campos.AlRevisar = [this] { Muestra(); };
    }
    virtual ~Sucesos() = default;

    /// Handles an event. A field that is being left is checked first, and where it refuses its text nothing
    /// else happens.
    template <typename Cuerpo>
    void Suceso(Cuerpo&& cuerpo)
    {
        if (!campos.Compromete()) {
            if (!entorno.Terminando()) Muestra();
            return;
        }
        SucesoSinRevisar(std::forward<Cuerpo>(cuerpo));
    }

    /// The same without looking at the fields: for leaving the window without an effect.
    template <typename Cuerpo>
    void SucesoSinRevisar(Cuerpo&& cuerpo)
    {
        campos.Olvida();
        entorno.Atiende(std::forward<Cuerpo>(cuerpo));
        if (!entorno.Terminando()) Muestra();
    }

    /// `rutina` runs at each click of the button.
    template <typename Rutina>
    void AlPulsar(QAbstractButton& boton, Rutina rutina)
    {
        QObject::connect(&boton, &QAbstractButton::clicked, &boton, [this, rutina] { Suceso(rutina); });
    }

    /// Takes F1 in whatever the window's controls let pass. Returns whether the event was that key.
    bool AtiendeF1(const QWidget& ventana, QEvent& evento);

    Entorno& entorno;
    Campos campos;
};

/// Shows in a window's title, by the desktop's own mark, that it holds unsaved work; without any it bears its
/// title and nothing else.
void MarcaTitulo(QWidget& ventana, bool conTrabajo);

/// A dialog: modal while `Entorno::Ejecuta` shows it. Where the window was and how large, it is again at its
/// next opening, as far as the screen has room for it. Esc and the frame do what `AlCerrar` says, by default
/// close it; work that wasn't applied is asked about first, and the title marks it.
class Formulario : public QDialog, protected Sucesos {
  public:
    /// `nombre`: object name, by which tests find the window and its place is remembered.
    Formulario(Entorno& alrededor, std::string_view nombre, QWidget* padre = nullptr);
    using Sucesos::Muestra;

    void reject() override;
    void setVisible(bool visible) override;

  protected:
    virtual void AlCerrar() { done(QDialog::Rejected); }
    /// Whether it holds what was typed and not applied. May throw Falla.
    virtual bool SinAplicar() { return false; }
    bool event(QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

  private:
    bool HayTrabajo();
};

/// A window that stands beside the others.
class Ventana : public QWidget, protected Sucesos {
  public:
    Ventana(Entorno& alrededor, std::string_view nombre, QWidget* padre = nullptr);
    using Sucesos::Muestra;

    void setVisible(bool visible) override;

  protected:
    /// The frame's button, or the program closes the window.
    virtual void AlCerrar() {}
    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

  private:
    bool enSuLugar = false;  ///< since it was opened; it comes and goes as its frame takes another state too
};

/// Puts a window where it was when it was last closed, inside the screens that there are now; the first time
/// it keeps the size that it has. `Guarda` remembers it, unless it fills the main window or is an icon there.
void RecuperaLugar(QWidget& ventana, QSettings& ajustes);
void GuardaLugar(const QWidget& ventana, QSettings& ajustes);
/// The same for all forms and windows on show, as the program ends.
void GuardaLugares(QSettings& ajustes);

}  // namespace forms
