// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "hydraulics/FuncionesFQ.h"
#include "model/Siro.h"

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
    /// The greatest absolute reading of any row, and so of any height; 0 without rows.
    [[nodiscard]] double MayorAbsoluto() const;

    /// Row, from 0, whose height is the greatest that isn't above x. Requires x within Alturas().
    [[nodiscard]] int Fila(float x) const
    {
        const float* base = alturas.data();
        std::size_t largo = tramos.size();
        while (largo > 1) {  // written so that no branch depends on x
            const std::size_t mitad = largo / 2;
            base += base[mitad] <= x ? mitad : 0;
            largo -= mitad;
        }
        return static_cast<int>(base - alturas.data());
    }
    /// The same from a row in 0..Filas()-1 near the one looked for.
    [[nodiscard]] int Fila(float x, int cerca) const
    {
        const float* base = alturas.data() + cerca;
        while (base[1] <= x)
            ++base;  // a row above all heights ends the table
        while (base[0] > x)
            --base;
        return static_cast<int>(base - alturas.data());
    }
    /// The line from a row, at height x. Requires the row to be that of x.
    [[nodiscard]] double ValorEn(int fila, float x) const
    {
        const auto f = static_cast<std::size_t>(fila);
        return tramos[f].pendiente * (double{x} - alturas[f]) + tramos[f].valor;
    }
    /// The reading at height x. Requires x within Alturas().
    [[nodiscard]] double Valor(float x) const { return ValorEn(Fila(x), x); }
    /// The same; `fila` is a row near that of x, at first 0, and becomes that of x.
    [[nodiscard]] double Valor(float x, int& fila) const
    {
        fila = Fila(x, fila);
        return ValorEn(fila, x);
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

/// Storage by height of the component in hand, as SdeHRepresa and SdeHLago give it. Empty where their table
/// can't be prepared, and where there is no such component.
CurvaLineal CurvaAlmacenamiento(const model::Siro& s);

/// Area by height, in 64 bits: AdeHRepresa and AdeHLago give it rounded to 32. Empty as above.
CurvaLineal CurvaArea(const model::Siro& s);

/// Storages for which HdeSRepresa and HdeSLago neither ask nor fault, for the component in hand.
Intervalo AlmacenamientosSinPreguntas(const model::Siro& s);

/// Outflow by height of one component, as QdeHRepresa and QdeHLago give it.
class CurvaDescarga {
  public:
    /// Serves for nothing.
    CurvaDescarga() = default;
    /// That of the component in hand. Serves for nothing where there is none, or its table can't be prepared.
    explicit CurvaDescarga(const model::Siro& s);

    /// Whether no height from one to the other, ends included, can bring about a question or a fault.
    [[nodiscard]] bool SinPreguntas(float minimo, float maximo) const;

    /// A bound of the absolute outflow at any height from one to the other, ends included [m3/s]; infinite
    /// where a function can fault. Requires SinPreguntas for a table.
    [[nodiscard]] double Cota(float minimo, float maximo) const;

    /// Outflow at height h [m3/s]. Requires h within a range that SinPreguntas has proved.
    [[nodiscard]] float Valor(float h) const
    {
        if (const auto* tabla = std::get_if<CurvaLineal>(&forma)) return static_cast<float>(tabla->Valor(h));
        return SinFila(h);
    }
    /// The same; `fila` is a row near that of h, at first 0, and becomes that of h. Functions don't use it.
    [[nodiscard]] float Valor(float h, int& fila) const
    {
        if (const auto* tabla = std::get_if<CurvaLineal>(&forma))
            return static_cast<float>(tabla->Valor(h, fila));
        return SinFila(h);
    }

  private:
    [[nodiscard]] float SinFila(float h) const
    {
        if (const auto* funciones = std::get_if<FuncionesEnUso>(&forma)) return funciones->Descarga(h);
        return 0;
    }
    struct Ninguna {};   ///< nothing is known
    struct SinTabla {};  ///< a table without rows: 0 at every height, without a question
    std::variant<Ninguna, SinTabla, CurvaLineal, FuncionesEnUso> forma;
};

/// Height that gives an outflow, as HdeQalmaRepresa and HdeQalmaLago find it. It serves only where a
/// question, a fault and the end of the program are ruled out for every outflow; else the plain function has
/// to be called.
class CurvaInversa {
  public:
    /// Serves for nothing.
    CurvaInversa() = default;
    /// That of the component in hand.
    explicit CurvaInversa(const model::Siro& s);
    /// Whether Valor may be called.
    [[nodiscard]] bool Sirve() const { return sirve; }
    /// Height for the outflow q [m]. Requires Sirve().
    [[nodiscard]] float Valor(float q) const;

  private:
    CurvaDescarga descarga{};
    float minimo = 0, maximo = 0;  ///< bracket that the bisection starts from [m]
    bool sirve = false;
};

}  // namespace hydraulics
