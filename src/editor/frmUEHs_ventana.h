// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "editor/frmUEHs.h"
#include "editor/lienzo/Lienzo_ventana.h"
#include "editor/lienzo/PintaDibujo_ventana.h"
#include "forms/Formulario_ventana.h"

class QAction;
class QMenu;
class QScrollBar;
class QSlider;
class QToolBar;

namespace editor {

/// The graphic editor of the network, a window of its own.
class frmUEHs_ventana : public forms::Ventana {
  public:
    frmUEHs_ventana(forms::Entorno& alrededor, frmUEHs& reglas, QWidget* padre = nullptr);

    /// Reads the project's network and shows it.
    void Abre();
    void Muestra() override;
    /// An event from outside, as one of its own: the forms that it asks for open, the record is shown.
    void Suceda(const std::function<void()>& rutina) { Hace(rutina); }

    /// Opens the form of a component; whoever has the forms sets it.
    std::function<void(Pedido forma)> AbreForma = [](Pedido) {};
    /// Shows the main window or hides it.
    std::function<void(bool visible)> MuestraPrincipal = [](bool) {};

  protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    /// An event of the window: the rules handle it, the forms that they ask for open, the record is shown.
    template <typename Rutina>
    void Hace(Rutina&& rutina)
    {
        entorno.Atiende([&] {
            std::forward<Rutina>(rutina)();
            AtiendePedidos();
        });
        if (!entorno.Terminando()) Muestra();
    }
    QToolBar* HazBarra();
    /// Keys that the toolbar has beside those of its table: undo, redo, export.
    void AgregaPropias(QToolBar& barra);
    QMenu* HazDestinos();
    /// A button that Ctrl and a key press too, wherever the focus is.
    QPushButton* BotonConTecla(std::string_view control, Qt::Key tecla, std::function<void()> rutina);
    QWidget* HazMandos();
    QWidget* HazPie();
    QAction* HazAccion(const char* nombre, const char* leyenda, const char* icono);
    void ConectaLienzo();
    bool TeclaDeLienzo(const QKeyEvent& evento);
    void AtiendePedidos();
    void AbreMenu();
    /// Into a file of a type, "PNG", "SVG" or "PDF", that the user names.
    void DejaVentana();

    frmUEHs& f;
    PintorDibujo pintor{};
    Lienzo* picDibujo = nullptr;
    std::array<QAction*, NroBotones> botones{};
    QAction *deshace = nullptr, *rehace = nullptr, *nombres = nullptr;
    QSlider* sldEscala = nullptr;
    QScrollBar *ScrEscalaHor = nullptr, *ScrEscalaVer = nullptr;
    QPushButton* cmdImagenUEHs = nullptr;
    bool enPedidos = false;
};

}  // namespace editor
