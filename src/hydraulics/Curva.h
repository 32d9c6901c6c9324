// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "hydraulics/CompActual.h"
#include "hydraulics/FuncionesFQ.h"

// The lookups of one component worked out beforehand, for loops that read them thousands of times. They hold
// copies, ask nothing and can't fault; each tells for which arguments that has been proved. There they give
// bit for bit what the plain lookups give.
namespace hydraulics {

/// Arguments, ends included. Empty where the lower end is above the upper one.
struct Intervalo {
    double minimo = 0;
    double maximo = -1;
    /// Whether another interval lies wholly inside this one.
    [[nodiscard]] bool Abarca(double desde, double hasta) const { return minimo <= desde && hasta <= maximo; }
    bool operator==(const Intervalo&) const = default;
};

/// A table of strictly rising heights with the slope of each row worked out once.
class CurvaLineal {
  public:
    /// Serves for nothing.
    CurvaLineal() = default;
    /// Row k of the table is element k-1 of both columns, of the same length. Left empty where the heights
    /// don't rise strictly, or where the difference of two whole numbers is outside 32 bits.
    CurvaLineal(std::span<const float> alturas, std::span<const std::int32_t> valores);
    CurvaLineal(std::span<const float> alturas, std::span<const float> valores);

    /// Number of rows; 0: it serves for nothing.
    [[nodiscard]] int Filas() const { return static_cast<int>(tramos.size()); }
    /// Heights that Valor takes.
    [[nodiscard]] Intervalo Alturas() const;

    /// The reading at height x. Requires x within Alturas(). `fila` is a row, from 0, near that of x, and
    /// becomes that of x: the greatest height that isn't above it.
    [[nodiscard]] double Valor(float x, int& fila) const
    {
        const float* base = alturas.data() + fila;
        while (base[1] <= x)
            ++base;  // a row above all heights ends the table
        while (base[0] > x)
            --base;
        fila = static_cast<int>(base - alturas.data());
        const Tramo& tramo = tramos[static_cast<std::size_t>(fila)];
        return tramo.pendiente * (double{x} - *base) + tramo.valor;
    }

  private:
    struct Tramo {
        double valor = 0;      ///< reading at the row
        double pendiente = 0;  ///< of the line to the next row; 0 at the last
    };
    template <typename T>
    void Prepara(std::span<const float> columnaX, std::span<const T> columnaY);

    std::vector<float> alturas;  ///< of the rows, and one above all heights
    std::vector<Tramo> tramos;
};

/// Storage by height, as SdeH gives it. Empty where the component's table can't be prepared.
CurvaLineal CurvaAlmacenamiento(const CompActual& c);

/// Storages for which HdeS neither asks nor faults.
Intervalo AlmacenamientosSinPreguntas(const CompActual& c);

/// Outflow by height of one component, as QdeH gives it.
class CurvaDescarga {
  public:
    /// Serves for nothing.
    CurvaDescarga() = default;
    /// Serves for nothing where its table can't be prepared.
    explicit CurvaDescarga(const CompActual& c);

    /// Whether no height from one to the other, ends included, can bring about a question or a fault.
    [[nodiscard]] bool SinPreguntas(float minimo, float maximo) const;

    /// Outflow at height h [m3/s]. Requires h within a range that SinPreguntas has proved. `fila` is a row
    /// near that of h, at first 0, and becomes that of h; functions don't use it.
    [[nodiscard]] float Valor(float h, int& fila) const
    {
        if (const auto* tabla = std::get_if<CurvaLineal>(&forma))
            return static_cast<float>(tabla->Valor(h, fila));
        if (const auto* funciones = std::get_if<FuncionesEnUso>(&forma)) return funciones->Descarga(h);
        return 0;
    }

  private:
    struct Ninguna {};   ///< nothing is known
    struct SinTabla {};  ///< a table without rows: 0 at every height, without a question
    std::variant<Ninguna, SinTabla, CurvaLineal, FuncionesEnUso> forma;
};

}  // namespace hydraulics
