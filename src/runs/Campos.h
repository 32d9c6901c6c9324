// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Red.h"
#include "model/Tormenta.h"
#include "study/Ajuste.h"

// The quantities that a run may move: fields of components and of the storm, a row each.
namespace runs {

/// A field by its key. The prefix of the components that have it is 'u', 'c', 'r' or 'l'; 't' is the storm.
struct Campo {
    std::string_view clave;   ///< "kostiakov_a"
    char clase;               ///< prefix
    std::string_view nombre;  ///< "Kostiakov a"
    std::string_view unidad;  ///< "mm/min^b"; "-" where it has none
    double minimo, maximo;    ///< what the editor admits
};

/// All of them, in the order of the components' sheets.
std::span<const Campo> Campos();
/// Null where there is none of that key.
const Campo* CampoDe(std::string_view clave, char clase);

/// Whether a component is named: a name, or a pattern in which * stands for any letters and ? for one.
/// Capitals count.
bool Nombra(std::string_view patron, std::string_view nombre);

/// What a parameter moves in a network: the value of each field that it names, as the network has it.
struct Movido {
    const Campo* campo = nullptr;
    std::vector<int> numeros{};    ///< of the components, by number; none for the storm
    std::vector<double> actual{};  ///< of each, in the field's unit
    std::string motivo{};          ///< why it moves nothing, a sentence; empty: it moves something
};
Movido Resuelve(const study::Parametro& p, const model::Red& red, const model::Tormenta& tormenta);

/// How a parameter names itself: "u-*.kostiakov_a (factor)".
std::string NombreDe(const study::Parametro& p);
/// The same as the study keeps it beside its sets: "u-*.kostiakov_a.factor".
std::string ClaveDe(const study::Parametro& p);

}  // namespace runs
