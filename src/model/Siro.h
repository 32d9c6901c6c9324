// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/Anfitrion.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Red.h"
#include "model/Resultados.h"
#include "model/Tormenta.h"
#include "model/Vigilancia.h"

// The run-wide state of the program, by subject.
namespace model {

/// Numbers of the components selected in the drawing; 0: none.
struct Seleccion {
    std::int16_t CauceSel = 0, CauceAnterior = 0, UEHSel = 0, RepresaSel = 0, LagoSel = 0;
    std::int16_t VerticeSel = 0;  ///< grabbed vertex of CauceSel
};

/// What steers a run and its windows.
struct Control {
    bool SalidaPizarra = false;  ///< the Slate is on
    std::string TextoPizarra{};  ///< the Slate's text while a run builds it; UTF-8, CR LF
    bool ErrorRed = false;       ///< the validation of the network found a problem
    bool AvisoDescargasVisto = false;
    bool CargaFallida = false;  ///< the network isn't all that its files hold: their reading was at fault
    bool ContinuarSinCorregir = false;
    bool RedOk = false;
    std::int16_t IndComp = 0, IndUEH = 0;
};

/// Run-wide state of the program, by subject. A plain value: a copy is a second, independent program.
///
/// Counts and minutes are 16-bit, model values 32-bit floats: their rounding and overflow are behaviour.
/// A routine takes the subjects that it reads, or all of it where it drives a run or shows a form.
struct Siro {
    model::Anfitrion Anfitrion{};
    model::Disco Disco = DiscoDelSistema();
    model::Vigilancia Vigilancia{};  ///< what is known of the project's files on disk

    model::Proyecto Proyecto{};
    model::Configuracion Configuracion{};
    ControlesConfigura frmConfigura{};
    model::Red Red{};
    model::Seleccion Seleccion{};

    model::Tormenta Tormenta{};
    model::Pasos Pasos{};
    model::Serie Serie{};
    model::TablasDeLluvia TablasDeLluvia{};
    model::Hietograma Hietograma{};
    model::Resultados Resultados{};
    model::Control Control{};

    /// A routine that only tells or asks something takes the host alone.
    operator const model::Anfitrion&() const { return Anfitrion; }
};

}  // namespace model
