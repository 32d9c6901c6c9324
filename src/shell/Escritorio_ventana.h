// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "editor/VentanasDelEditor_ventana.h"
#include "empirical/dlgEmpiricas.h"
#include "empirical/dlgEmpiricas_ventana.h"
#include "forms/Entorno_ventana.h"
#include "model/Anteriores.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "rainfall/dlgPp.h"
#include "rainfall/dlgPp_ventana.h"
#include "results/VentanasDeSerie_ventana.h"
#include "results/dlgChart1.h"
#include "results/dlgChart1_ventana.h"
#include "results/dlgChart2.h"
#include "results/dlgChart2_ventana.h"
#include "results/frmPp.h"
#include "results/frmPp_ventana.h"
#include "shell/Arranque.h"
#include "shell/Ayuda_ventana.h"
#include "shell/Candado_ventana.h"
#include "shell/GuardaDeDiario_ventana.h"
#include "shell/Inicio_ventana.h"
#include "shell/MDIForm1.h"
#include "shell/MDIForm1_ventana.h"
#include "shell/VentanasDeEstudio_ventana.h"
#include "shell/dlgAnteriores.h"
#include "shell/dlgBusca_ventana.h"
#include "shell/dlgRecuperar.h"
#include "shell/frmConfigura.h"
#include "shell/frmConfigura_ventana.h"
#include "shell/frmPp2.h"
#include "shell/frmPp2_ventana.h"

namespace shell {

/// The whole program at a desktop: the run-wide state, the record of every form, which outlives its window,
/// and the windows. A window is made at its first use.
class Escritorio {
  public:
    /// `dirTrabajo`: the program's own directory. `dirUsuario`: the user's, where the files that a save takes
    /// the place of are kept, and journals of what isn't saved; empty: nowhere.
    explicit Escritorio(const std::string& dirTrabajo, const std::string& dirUsuario = {});
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
    dlgAnteriores versiones{};
    rainfall::dlgPp lluvia{};
    results::frmPp pizarra{};
    frmConfigura configura{};
    results::dlgChart1 hietograma{};
    results::dlgChart1 hietogramaDeLluvia{};  ///< the storm dialog's own
    results::dlgChart2 hidrograma{};
    empirical::dlgEmpiricas empiricas{};
    dlgRecuperar recuperar{};

    MDIForm1_ventana& Principal() { return *ventanaPrincipal; }
    VentanasDeEstudio& Estudio() { return *ventanasEstudio; }
    editor::VentanasDelEditor& Editor() { return *ventanasEditor; }
    /// Brings a window up; a modal one is waited for where `espera` says so.
    void Abre(Ventana ventana, bool espera = true);

  private:
    void PonAnteriores(const std::string& dirUsuario);
    void PonAnfitrion();
    void PonVentanas();
    void PonLluvia();
    void PonEstudio();
    void PonCorridas();
    void PonInicio();
    void PonBusca();
    void VeAHallazgo(const checks::Hallazgo& hallazgo, bool ordenada);
    void ConLaListaALaVista(const std::function<void()>& cuerpo);
    void TraePrincipal();
    void PonFranjas();
    void PonAvance();
    void PonMandos();
    void PonDiario(const std::string& dirUsuario);
    void OfreceRecuperar(const std::string& soloConf);
    bool Recupera(const TrabajoHallado& trabajo);
    void Cierra(Ventana ventana);
    void Presenta(QWidget& ventana);
    void PonBajo(QWidget& ventana, QWidget& dueno);

    model::Anteriores anteriores{};
    Mandos mandos{};
    bool principalQueda = false;  ///< the editor that comes up doesn't hide the main window
    Candado candado{};
    bool tablaDeSerie = false;  ///< the series under way has shown its table

    // The windows below the main one go first.
    std::unique_ptr<MDIForm1_ventana> ventanaPrincipal;
    std::unique_ptr<frmPp2_ventana> ventanaAvance;
    std::unique_ptr<frmConfigura_ventana> ventanaConfigura;
    std::unique_ptr<rainfall::dlgPp_ventana> ventanaLluvia;
    std::unique_ptr<results::frmPp_ventana> ventanaPizarra;
    std::unique_ptr<results::dlgChart1_ventana> ventanaHietograma, ventanaHietogramaDeLluvia;
    std::unique_ptr<results::dlgChart2_ventana> ventanaHidrograma;
    std::unique_ptr<results::VentanasDeSerie> ventanasSerie;
    std::unique_ptr<VentanasDeEstudio> ventanasEstudio;
    std::unique_ptr<empirical::dlgEmpiricas_ventana> ventanaEmpiricas;
    std::unique_ptr<Ayuda_ventana> ventanaAyuda;
    std::unique_ptr<editor::VentanasDelEditor> ventanasEditor;
    std::unique_ptr<dlgBusca_ventana> ventanaBusca;
    std::unique_ptr<GuardaDeDiario> guarda;
    std::string ofrecido{};  ///< configuration file of the project whose unsaved work has been offered
};

}  // namespace shell
