// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "runs/dlgCorridas.h"
#include "study/Vigilada_ventana.h"

namespace forms {
class TablaCuadro;
}

namespace runs {

/// Window of the kept runs. It stands beside the others; the ledger is read beside it.
class dlgCorridas_ventana : public forms::Ventana {
  public:
    dlgCorridas_ventana(forms::Entorno& alrededor, dlgCorridas& registro, QWidget* padre = nullptr);

    /// Reads the ledger of the project in hand and comes to the front.
    void Abre();
    /// Reads it again, where the window is open: another row may have come.
    void Refresca();
    /// A run couldn't be kept: a sentence; empty: one was.
    void TrasGuardar(const std::string& motivo);

    // What stands above this room; all run inside an event.
    /// Puts a kept run into the windows.
    std::function<void(const Libro& libro, const std::string& archivo)> Trae = [](const Libro&,
                                                                                  const std::string&) {};
    /// A kept run has been written as a project of its own: `conf`, the path of its configuration.
    std::function<void(const Libro& libro, const std::string& archivo, const std::string& conf)> TrasAparte =
        [](const Libro&, const std::string&, const std::string&) {};
    /// Compares two or more.
    std::function<void(const Libro& libro, const std::vector<std::string>& archivos)> Compara;
    /// Asks for a folder; the empty text where the user cancels.
    std::function<std::string()> EligeCarpeta;

  protected:
    void AlCerrar() override;

  private:
    struct Leido {
        Libro libro;
        std::vector<RenglonDeLibro> renglones;
        std::string motivo;
    };
    QLayout* Arriba();
    QLayout* DeLaElegida();
    QLayout* Botones();
    void PonTabla();
    void Lee();
    void Toma(study::Vigilada<Leido>::Mirada& mirada);
    void VeALaElegida();
    void Aparte();
    void Imprime();
    [[nodiscard]] std::optional<Libro> DelProyecto() const;

    dlgCorridas& f;
    forms::TablaCuadro* tabla = nullptr;
    bool poniendo = false;  ///< the cursor moves by the program, not by the user
    study::Vigilada<Leido> lectura{[this](auto& mirada) { Toma(mirada); }};
};

/// The bound on size that the user has set [MiB].
int TopeDeCorridas(forms::Entorno& entorno);

}  // namespace runs
