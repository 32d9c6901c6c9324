// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "checks/Sello.h"
#include "checks/dlgAvisos.h"
#include "checks/dlgAvisos_ventana.h"
#include "checks/dlgRevisar.h"
#include "checks/dlgRevisar_ventana.h"
#include "checks/dlgVerificar.h"
#include "checks/dlgVerificar_ventana.h"
#include "forms/Entorno_ventana.h"
#include "results/dlgComparar.h"
#include "results/dlgComparar_ventana.h"
#include "results/dlgResumen.h"
#include "results/dlgResumen_ventana.h"
#include "shell/Corridas_ventana.h"
#include "shell/JuicioDeCorrida_ventana.h"
#include "shell/LineaDeEstado_ventana.h"
#include "shell/MDIForm1.h"
#include "shell/MDIForm1_ventana.h"
#include "shell/MapaDeEstudio_ventana.h"
#include "shell/Talleres_ventana.h"

namespace shell {

/// The last run and what speaks of it: the windows of the menu Estudio, the line of the status bar.
class VentanasDeEstudio {
  public:
    VentanasDeEstudio(forms::Entorno& alrededor, MDIForm1_ventana& laPrincipal);
    VentanasDeEstudio(const VentanasDeEstudio&) = delete;
    VentanasDeEstudio& operator=(const VentanasDeEstudio&) = delete;

    /// A storm has been run; Mandos tells of the others.
    /// `seGuarda`: it goes into the ledger of runs.
    void TrasCorrer(const model::Tormenta& entrada, bool completa, bool seGuarda);
    void TrasSerie();
    /// A kept run has taken the place of the last one.
    void TrasTraer(const JuicioDeCorrida::Corrida& corrida);
    /// What the results in memory are of; of the state in memory before the first run.
    [[nodiscard]] checks::Sello SelloDeResultados() const;
    /// Whether a run has been made in this session, and when the last one was.
    [[nodiscard]] bool HayCorrida() const { return corrido; }
    [[nodiscard]] const std::string& Cuando() const { return cuando; }
    /// Names of the components whose hydrographs there are, of the project in hand.
    [[nodiscard]] std::vector<std::string> ComponentesCorridos() const;
    JuicioDeCorrida& Juicio() { return juicio; }
    MapaDeEstudio& Mapa() { return mapa; }
    class Talleres& Talleres() { return talleres; }
    Corridas& CorridasGuardadas() { return corridas; }
    /// The list of findings; where they lead and what its button does is set from outside.
    checks::dlgAvisos_ventana& VentanaAvisos() { return ventanaAvisos; }
    /// The check before a run; what it asks of the editor is set from outside.
    checks::dlgRevisar_ventana& VentanaRevisar() { return ventanaRevisar; }
    results::dlgResumen_ventana& VentanaResumen() { return ventanaResumen; }
    results::dlgComparar_ventana& VentanaComparar() { return ventanaComparar; }

    /// Brings one of the windows up, that of a run once it has been looked over. Runs inside an event.
    void Abre(Ventana ventana);

    /// Goes to a component: the form of its properties; empty: the project's configuration. Runs inside an
    /// event.
    std::function<void(const std::string& componente)> VeAComponente = [](const std::string&) {};
    /// Opens the hydrograph of a component. Runs inside an event.
    std::function<void(const std::string& componente)> AbreHidrograma = [](const std::string&) {};

  private:
    void MuestraEstado();
    void PonResumen();
    void PonMemoria();

    forms::Entorno& entorno;
    checks::Sello sello{};
    bool corrido = false;  ///< a run has been made
    JuicioDeCorrida::Corrida ultimaTormenta{}, ultimaSerie{};
    std::optional<Ventana> pedida{};  ///< opens once the run has been looked over
    std::string cuando{};             ///< date and time of the last run
    Corridas corridas;                // which outlives those that wait to be looked over
    JuicioDeCorrida juicio{};
    MapaDeEstudio mapa{entorno, juicio};
    LineaDeEstado linea;
    class Talleres talleres;
    checks::dlgAvisos avisos{};
    checks::dlgRevisar revisar{};
    checks::dlgVerificar verificar{};
    checks::dlgAvisos_ventana ventanaAvisos;
    checks::dlgRevisar_ventana ventanaRevisar;
    checks::dlgVerificar_ventana ventanaVerificar;
    results::dlgResumen resumen{};
    results::dlgComparar comparar{};
    results::dlgResumen_ventana ventanaResumen;
    results::dlgComparar_ventana ventanaComparar;
};

}  // namespace shell
