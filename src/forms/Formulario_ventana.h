// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QWidget>
#include <span>
#include <string_view>

#include "forms/Constructor_ventana.h"

// What dialogs and windows have in common: title, place on the screen, closing, work that isn't applied yet.
namespace forms {

/// Shows in a window's title, by the desktop's own mark, that it holds unsaved work; without any it bears its
/// title and nothing else.
void MarcaTitulo(QWidget& ventana, bool conTrabajo);

/// What tells one window from another.
struct DescripcionDeVentana {
    std::string_view nombre;  ///< object name, by which tests find the window and
                              ///< its place is remembered
    std::string_view titulo{};
    std::span<const FilaRotulo> rotulos{};
};

/// A dialog: modal while `Entorno::Ejecuta` shows it. Where the window was and how large, it is again at its
/// next opening, as far as the screen has room for it. Esc and the frame do what `AlCerrar` says, by default
/// close it; work that wasn't applied is asked about first, and the title marks it.
class Formulario : public QDialog, protected Constructor {
  public:
    Formulario(Entorno& alrededor, const DescripcionDeVentana& descripcion, QWidget* padre = nullptr);
    void Muestra() override;

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
class Ventana : public QWidget, protected Constructor {
  public:
    Ventana(Entorno& alrededor, const DescripcionDeVentana& descripcion, QWidget* padre = nullptr);
    void Muestra() override;

    void setVisible(bool visible) override;

  protected:
    /// The frame's button, or the program closes the window.
    virtual void AlCerrar() {}
    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

  private:
    bool enSuLugar = false;  ///< since it was opened; it comes and goes as its
                             ///< frame takes another state too
};

/// Puts a window where it was when it was last closed, inside the screens that there are now; the first time
/// it keeps the size that it has. `Guarda` remembers it, unless it fills the main window or is an icon there.
void RecuperaLugar(QWidget& ventana, QSettings& ajustes);
void GuardaLugar(const QWidget& ventana, QSettings& ajustes);
/// The same for all forms and windows on show, as the program ends.
void GuardaLugares(QSettings& ajustes);

}  // namespace forms
