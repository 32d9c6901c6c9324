// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Red.h"
#include "model/Tormenta.h"
#include "study/Ajuste.h"

// The quantities that a run may move: fields of components and of the storm, a row each.
namespace runs {

/// Who has the storm's own fields.
inline constexpr std::string_view LaTormenta = "tormenta";

/// A field by its key. The prefix of the components that have it is 'u', 'c', 'r' or 'l'; 't' is the storm.
struct Campo {
    std::string_view clave;   ///< "kostiakov_a"
    char clase;               ///< prefix
    std::string_view nombre;  ///< "Kostiakov a"
    std::string_view unidad;  ///< "mm/min^b"; "-" where it has none
    double minimo, maximo;    ///< what the editor admits; of a field that it doesn't bound, a wide range
    /// Where the component with a number keeps it; null of the storm's. Throw Falla 9, 91.
    struct Lugar {
        const float* (*lee)(const model::Red& red, int numero);
        float* (*pone)(model::Red& red, int numero);
    } lugar;
    /// Whether a run of that component reads it at all: the K of a reach that is routed directly moves
    /// nothing.
    bool (*cuenta)(const model::Red& red, int numero);
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
    std::vector<double> actual{};  ///< of each, in the field's unit; of the storm, its own
    std::string motivo{};          ///< why it moves nothing, a sentence; empty: it moves something
};
Movido Resuelve(const study::Parametro& p, const model::Red& red, const model::Tormenta& tormenta);

/// What a mode, "valor", "factor" or "suma", makes of a value of the network.
double Movida(std::string_view modo, double actual, double valor);

/// Puts a value of a parameter, resolved against `original`, into a network, into a storm. All that a pattern
/// names moves by the same mode. Each field is rounded to 32 bits, a duration to whole minutes from 1 on. A
/// depth other than the storm's own moves that of each UEH, of each recorded block, in proportion.
void Pon(const Movido& movido, const study::Parametro& p, double valor, model::Red& red);
void Pon(const Movido& movido, const study::Parametro& p, double valor, const model::Tormenta& original,
         model::Tormenta& tormenta);

/// A run refuses Muskingum's K and x where rounding alone keeps the coefficients from adding up to 1: each K
/// that has been moved, or whose x has, goes to the nearest one, up to 64 units in the last place away, with
/// which they do in an output step [min].
void AfinaMuskingum(std::span<const Movido> movidos, std::int16_t PasoQ, model::Red& red);

/// All of it for a whole set of values, one per parameter: what Aplicar does. Those that move nothing are
/// passed over.
void Aplica(std::span<const study::Parametro> parametros, std::span<const double> valores,
            const model::Pasos& pasos, model::Red& red, model::Tormenta& tormenta);

/// How a parameter names itself: "u-*.kostiakov_a (factor)".
std::string NombreDe(const study::Parametro& p);
/// The same as the study keeps it beside its sets: "u-*.kostiakov_a.factor".
std::string ClaveDe(const study::Parametro& p);
/// Unit of its values: that of the field, "-" of a factor.
std::string_view UnidadDe(const study::Parametro& p);

}  // namespace runs
