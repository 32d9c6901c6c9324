// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Calcula.h"
#include "hydraulics/CompActual.h"
#include "model/Anfitrion.h"
#include "model/Cauce.h"
#include "model/Red.h"
#include "model/Tormenta.h"
#include "model/UEH.h"

// A run that is over, as whoever judges it looks at it.
namespace checks {

enum class MetodoEmbalse : std::uint8_t { Muskingum, Piscina, RungeKutta, Ninguno };

/// A Represa or a Lago of a run.
struct EmbalseCorrido {
    hydraulics::CompActual tablas;  ///< whose questions nobody hears: they are answered with Yes
    MetodoEmbalse metodo;
    float K;         ///< Muskingum K [min]
    float HInicial;  ///< [m]
    const model::Matriz<float>& H;
    const model::Matriz<float>& S;

    [[nodiscard]] bool TieneTabla() const;
    /// Top of its heights [m]. Requires a table.
    [[nodiscard]] float Tope() const { return tablas.tablaH(tablas.numero, tablas.filas(tablas.numero)); }
    /// Storage [m3] at a height; above the top, that of the top. Requires a table.
    [[nodiscard]] double Almacenamiento(float h) const;
    /// Outflow [m3/s] and area [m2] at a height by the lookups of the run, 0 where these are at fault.
    [[nodiscard]] double Descarga(float h) const;
    [[nodiscard]] double Superficie(float h) const;
};

/// A component of a run. Exactly one of the three kinds is there.
struct ComponenteCorrido {
    std::string_view nombre;
    std::string_view destino;  ///< name that it drains into
    int fila = 0;              ///< in QEntra, QSale, QMax; 0: the run has no row for it
    const model::UEH* ueh = nullptr;
    const model::Cauce* cauce = nullptr;
    std::optional<EmbalseCorrido> embalse{};
};

/// What a run was about, and what it left: views, good as long as all four stay as they are.
class Corrido {
  public:
    Corrido(const model::Red& unaRed, const model::Tormenta& unaTormenta, const model::Pasos& unosPasos,
            const engine::Calculo& unCalculo);
    Corrido(const Corrido&) = delete;
    Corrido& operator=(const Corrido&) = delete;

    const model::Red& red;
    const model::Tormenta& tormenta;
    const model::Pasos& pasos;
    const engine::Calculo& calculo;
    /// UEHs, Cauces, Lagos, Represas, each kind in file order.
    std::vector<ComponenteCorrido> componentes{};

    [[nodiscard]] const model::Resultados& r() const { return calculo.Resultados; }
    /// The run went to its end and its results reach as far as its steps.
    [[nodiscard]] bool TieneResultados() const;
    [[nodiscard]] int UltimoPaso() const { return r().NroPasosQ; }
    [[nodiscard]] double Segundos() const { return pasos.PasoQ * 60.0; }  ///< of an output step
    /// Volume [m3] of the output steps desde..hasta, each flow for a whole step: sum of Q·PasoQ·60.
    [[nodiscard]] double Volumen(const model::Matriz<float>& Q, int fila, int desde, int hasta) const;
    /// Travel time [min] on the slope of a UEH, as the run rounds it; nothing where that is at fault.
    [[nodiscard]] static std::optional<int> Traslado(const model::UEH& u);
    /// Travel time [min] of a Direct reach and its delay [output steps], the same way.
    [[nodiscard]] static std::optional<int> Viaje(const model::Cauce& c);
    [[nodiscard]] static std::optional<int> Retardo(const model::Cauce& c, std::int16_t PasoQ);
    [[nodiscard]] std::optional<int> Retardo(const model::Cauce& c) const { return Retardo(c, pasos.PasoQ); }
    /// Whether a receptor bears this name, so that what drains into it isn't an outfall.
    [[nodiscard]] bool HayReceptor(std::string_view nombre) const;
    [[nodiscard]] bool EsSalida(const ComponenteCorrido& c) const { return !HayReceptor(c.destino); }

  private:
    template <typename T>
    void AgregaEmbalses(const model::Matriz<float>& H, const model::Matriz<float>& S);
    [[nodiscard]] int FilaDe(std::string_view nombre, int desde, int hasta) const;

    model::Anfitrion sordo{};  ///< who is asked: says Yes
};

}  // namespace checks
