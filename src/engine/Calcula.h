// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "engine/Memoria.h"
#include "model/Anfitrion.h"
#include "model/Red.h"
#include "model/Resultados.h"
#include "model/Tormenta.h"

// A run as a function of what it is about: a network, a storm, steps. Nothing
// is read from the disk or written to it, nothing is shown, nothing is left
// over from an earlier run, and no text is built.
namespace engine {

/// How a run ended.
enum class FinCalculo : std::uint8_t {
    Completo,   ///< at its end; a statement at fault was passed over and stands among the notices
    Rechazado,  ///< at a check that refuses the data: the last notice says which
    Terminado,  ///< where the program itself ends: the last notice says why
};

/// What a run had to say. Notices that differ in nothing but the component or
/// the number that they are about, and faults of one kind, are one.
struct AvisoDeCalculo {
    model::Mensaje mensaje{};  ///< the first of them
    bool esPregunta = false;   ///< it asked; the answer was Yes
    int veces = 1;
};

struct Calculo {
    FinCalculo fin = FinCalculo::Completo;
    std::vector<AvisoDeCalculo> avisos{};  ///< in the order of their first time
    model::Resultados Resultados{};        ///< of storm 1; what a run that ended early didn't get to is 0
    model::Tormenta Tormenta{};            ///< what it rained on each UEH (PpUEH) and in each block (PpReal)
    model::Hietograma Hietograma{};
};

/// Runs a storm through a network. Results have the bits of CorreUnaTormenta's
/// for the same project, if the depth and the duration aren't 0; with a depth
/// of 0 it doesn't rain. A storm of a series counts as one typed in. `tablas`:
/// the personal distributions, for a storm that is spread by one of them.
///
/// May be called from any number of threads at once. Throws std::bad_alloc and
/// nothing else.
Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas = {});

/// The same for whoever makes several runs: what doesn't depend on the storm is
/// kept in `memoria`, which belongs to one thread and may see another network
/// at any time.
Calculo Calcula(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas, Memoria& memoria);

/// Storms one after another through one network, for whoever looks at each and lets it go: the bits of
/// `Calcula`, in arrays that are made once. Belongs to one thread.
class Calculadora {
  public:
    Calculadora(const model::Red& red, const model::Pasos& pasos, Memoria memoria);
    ~Calculadora();
    Calculadora(const Calculadora&) = delete;
    Calculadora& operator=(const Calculadora&) = delete;

    /// Runs a storm that is spread over time already. What it returns holds until the next one; volumes of
    /// the component routed last aren't in it. Throws std::bad_alloc and nothing else.
    const Calculo& Corre(const model::Tormenta& tormenta, const model::Hietograma& hietograma);

    /// The network that it runs: its numbers may be changed from one run to the next.
    model::Red& Red();
    /// Takes a storm and spreads it over time, by `tablas` where a personal distribution does.
    void Toma(const model::Tormenta& tormenta, const model::TablasDeLluvia& tablas);
    /// Runs the storm that was taken last: all that `Calcula` gives, notices included, until the next one.
    /// Throws std::bad_alloc and nothing else.
    const Calculo& Corre();

  private:
    struct Estado;
    std::unique_ptr<Estado> estado;
};

/// Who looks at the storms of a series as they are run, on several threads at once: the number of each, and
/// its run, which holds until the call ends. None: the storm has something to show or ask and is run as a
/// single one is; what was seen of it before doesn't stand.
using MiraTormenta = std::function<void(int numero, const Calculo* calculo)>;

}  // namespace engine
