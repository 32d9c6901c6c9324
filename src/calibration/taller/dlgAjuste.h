// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Rotulo.h"
#include "model/Red.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "study/Ajuste.h"
#include "study/Pasos.h"

// Rules of the fitting workshop's window: the study and the network that it stands on, the event and the
// observation in hand. Each step has a page with rules of its own.
namespace calibration {

inline constexpr std::string_view TituloDlgAjuste = "Taller de ajuste";

inline constexpr auto RotulosDlgAjuste = study::ConRotulosDePasos(std::to_array<forms::FilaRotulo>({
    {"pasos", "Pasos del taller", "Los pasos, de las crecidas observadas a la incertidumbre"},
    {"cmbEvento", "&Evento:", "Crecida en mano; sus datos están en el paso 1"},
    {"cmbObservacion", "O&bservación:", "Lo que se midió en un componente durante el evento"},
}));

/// What Aplicar does: runs::Aplica with a set of values.
using CambioDeProyecto = std::function<void(model::Red& red, model::Tormenta& tormenta)>;

/// What was asked of many runs and has come to its end.
struct CorridasHechas {
    std::string clase{};                  ///< "ajuste", "sensibilidad", "conjunto"
    study::Ajuste ajuste{};               ///< what was asked
    double segundos = 0;                  ///< that it took
    std::string resumen{};                ///< what came out, a sentence
    std::function<std::string()> json{};  ///< the same as siro-lote writes it; may run on another thread
};

struct dlgAjuste : study::Pasos {
    dlgAjuste(study::Abierto& suEstudio, const model::Siro& unSiro) : Pasos(suEstudio), s(unSiro) {}
    void TomaEnMano() override;

    const model::Siro& s;

    // --- what the desktop fills in ---
    /// Components in memory that aren't saved; none: nullptr.
    std::function<const model::Colecciones*()> DibujoSinGuardar = [] { return nullptr; };
    /// Changes the network in the editor, as one step of its undo, and the storm in hand; nothing is saved.
    /// Returns whether it did. Runs inside an event.
    std::function<bool(const CambioDeProyecto& cambio)> Aplica = [](const CambioDeProyecto&) {
        return false;
    };

    /// Keeps it in the ledger of runs.
    std::function<void(CorridasHechas hechas)> GuardaCorridas = [](CorridasHechas) {};

    // --- in hand ---
    int evento = 0, observacion = 0;                      ///< from 0; 0 where there is none
    std::vector<std::string> eventos{}, observaciones{};  ///< by name

    // --- the project: see ProyectoDe ---
    model::Siro proyecto{};
    std::string noCarga{};  ///< why there is no network, a sentence
    int cargas = 0;         ///< another number, another network or storm
    std::string huella{};   ///< of what it was read under
    std::optional<model::Colecciones> dibujo{};
};

const study::Ajuste& AjusteDe(const dlgAjuste& f);
/// What the pages are made of.
struct EnManoDeAjuste {
    study::Ajuste ajuste{};
    int evento = 0, observacion = 0, cargas = 0;
    bool operator==(const EnManoDeAjuste&) const = default;
};
EnManoDeAjuste EnManoDe(const dlgAjuste& f);
/// What is in hand; none: null.
const study::Evento* EventoEnMano(const dlgAjuste& f);
const study::Observacion* ObservacionEnMano(const dlgAjuste& f);
/// The same within a change, made where there is none.
study::Evento& EventoDe(const dlgAjuste& f, study::Ajuste& a);
study::Observacion& ObservacionDe(const dlgAjuste& f, study::Ajuste& a);

/// A change that undoing takes back; the caption says what it was, "Quitar el evento". Nothing without a
/// project.
void Cambia(dlgAjuste& f, std::string_view leyenda, const std::function<void(study::Ajuste&)>& cambio);

void cmbEvento_Click(dlgAjuste& f, int cual);
void cmbObservacion_Click(dlgAjuste& f, int cual);

/// The project in hand as a run would read it, with what the editor holds unsaved: its network with tables
/// (Red), the storm and the steps in memory (Tormenta, Pasos), its tables of rain. A state apart, which no
/// run changes; read anew, by `Toma`, whenever one of them has changed.
const model::Siro& ProyectoDe(const dlgAjuste& f);
/// Reads it anew at the next `Toma`: somebody else may have written its files.
void OlvidaProyecto(dlgAjuste& f);
/// Why there is no network to run, a sentence; empty: there is one.
std::string FaltaRed(const dlgAjuste& f);

/// "Evento 2 (sin nombre)"; "r-Quelmar, nivel".
std::string NombreDe(const study::Evento& e, std::size_t numero);
std::string NombreDe(const study::Observacion& o);
/// Project and event, as charts and tables name what is in hand.
std::string TemaDe(const dlgAjuste& f);

}  // namespace calibration
