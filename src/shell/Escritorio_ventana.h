// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "forms/Entorno_ventana.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "rainfall/dlgPp.h"
#include "results/dlgChart1.h"
#include "results/dlgChart2.h"
#include "shell/Arranque.h"
#include "shell/MDIForm1.h"
#include "shell/MDIForm1_ventana.h"
#include "shell/frmPp2.h"
#include "shell/frmPp2_ventana.h"

namespace shell {

/// The whole program at a desktop: the run-wide state, the record of every form, which outlives its window,
/// and the windows. A window is made at its first use.
class Escritorio {
  public:
    /// `dirTrabajo`: the program's own directory.
    explicit Escritorio(const std::string& dirTrabajo);
    ~Escritorio();
    Escritorio(const Escritorio&) = delete;
    Escritorio& operator=(const Escritorio&) = delete;

    /// Splash, main window, and the project of a configuration file where one is named.
    void Arranca(double segundosPortada, const std::string& archivoConf);
    /// Handles events until the program ends. Returns its exit status.
    int Atiende();

    model::Siro s{};
    forms::Entorno entorno{s};
    MDIForm1 principal{};
    frmPp2 avance{};
    model::dlgEliminarProyecto eliminar{};
    rainfall::dlgPp lluvia{};
    results::dlgChart1 hietograma{};
    results::dlgChart2 hidrograma{};

    MDIForm1_ventana& Principal() { return *ventanaPrincipal; }

  private:
    void PonAnfitrion();
    void PonPizarra();
    void PonAvance();
    void PonMandos();
    void Abre(Ventana ventana, bool espera);
    void Cierra(Ventana ventana);
    void Presenta(QWidget& ventana);

    std::string pizarra{};  ///< text in the Slate's box
    Mandos mandos{};

    // The windows below the main one go first.
    std::unique_ptr<MDIForm1_ventana> ventanaPrincipal;
    std::unique_ptr<frmPp2_ventana> ventanaAvance;
};

}  // namespace shell
