// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/frmPp.h"

class QPlainTextEdit;

namespace results {

/// Window of the Slate. Its text is a view of the record's: what was appended since is appended here, once
/// the events of the moment are over.
class frmPp_ventana : public forms::Ventana {
  public:
    frmPp_ventana(forms::Entorno& alrededor, frmPp& registro, QWidget* padre = nullptr);

    /// Opens the window, or brings it to the front.
    void Abre();
    using forms::Ventana::Muestra;
    void Muestra() override;
    /// Shows the record as soon as the events of the moment are over. A run that writes line by line costs
    /// one look at the text.
    void MuestraLuego();

    /// The text is of the run that the results in memory are of.
    void TrasCorrer();
    /// Says when the text is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    void AlCerrar() override;
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* donde, QEvent* evento) override;

  private:
    void ConstruyeTexto();
    QWidget* LineaDeBusqueda();
    QLayout* Botones();
    void ConectaTeclas();
    /// F3 goes on with the search while its line is on show; otherwise it is the main window's, whose
    /// shortcut a second one of this window's would only get in the way of. Returns whether it was that key.
    bool AtiendeF3(QEvent& evento);
    /// A long text is shown piece by piece, what the user sees first of all, with the events between two
    /// pieces handled; whoever needs it whole asks for the rest.
    void MuestraTexto();
    void MuestraTrozo();
    void MuestraElResto();
    void MuestraBusqueda();
    void MenuDelTexto(const QPoint& lugar);
    void Busca();
    void Imprime();

    frmPp& f;
    QPlainTextEdit* Text1;
    QWidget* lineaDeBusqueda;
    QLineEdit* txtBuscar;

    std::size_t mostrado = 0;      ///< bytes of the record's text on show
    std::size_t deUnaVez = 0;      ///< bytes that came together: the view stays at their beginning
    std::uint64_t reemplazos = 0;  ///< of the record, as of the text on show
    std::uint64_t veces = 0;       ///< searches shown so far
    bool pendiente = false, faltaResto = false;

    /// Lets the strip go where the text isn't that of the run any more.
    void VigilaTexto();
    checks::Franja* franja;
    std::size_t textoDeCorrida = 0, largoDeCorrida = 0;  ///< hash and bytes of the text of the last run
    std::optional<checks::Sello> selloDeTexto{};
    std::pair<std::uint64_t, std::size_t> mirado{};  ///< replacements and length of the text looked at last
};

/// Fills in the host's part of the Slate: its window, the text in its box, and the tick of the menu entry,
/// which stands in `marca`. Record, window and tick live as long as the host.
/// alMarcar: the tick has changed, and whoever shows it may do so anew.
void PonPizarra(
    model::Anfitrion& anfitrion, frmPp& registro, frmPp_ventana& ventana, bool& marca,
    std::function<void()> alMarcar = [] {});

}  // namespace results
