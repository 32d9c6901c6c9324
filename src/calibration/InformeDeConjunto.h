// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calibration/Incertidumbre.h"

// A set of members as text, JSON, CSV, and its parts on the way to one whole.
namespace calibration {

/// What a set was asked for, as its texts tell it.
struct EncabezadoDeConjunto {
    std::string proyecto{};
    std::string huella{};  ///< of all that the members depend on, 64 digits; parts of one set have the same
    study::Incertidumbre como{};
};
EncabezadoDeConjunto EncabezadoDe(std::string proyecto, const PedidoDeIncertidumbre& pedido);

/// Lines that end in LF; numbers with a point and every digit. In the CSV a row for each measure and each
/// output step, with a unit, the weight that counts, mean, extremes and quantiles.
std::string TextoDe(const EncabezadoDeConjunto& e, const Conjunto& c);
std::string JsonDe(const EncabezadoDeConjunto& e, const Conjunto& c);
std::string CsvDe(const Conjunto& c);

/// A part of a set: i of n, from 1.
struct ParteDeConjunto {
    EncabezadoDeConjunto encabezado{};
    int cual = 1, de = 1;
    Conjunto conjunto{};
};

/// The text of a file that holds a part, and back.
std::string EscribeParte(const ParteDeConjunto& parte);
struct LecturaDeParte {
    ParteDeConjunto parte{};
    std::string motivo{};  ///< why the text is none, without capital and full stop; empty: it is one
};
LecturaDeParte LeeParte(std::string_view texto);

/// The parts of one set put together, one after another in any order, to the bits of the whole.
class Union {
  public:
    /// Returns why it isn't one of those, without capital and full stop; empty: it is.
    std::string Agrega(ParteDeConjunto parte);
    /// Which part is missing, without capital and full stop; empty: none.
    [[nodiscard]] std::string Falta() const;
    [[nodiscard]] const EncabezadoDeConjunto& Encabezado() const { return encabezado; }
    [[nodiscard]] const Conjunto& Todo() const { return todo; }

  private:
    EncabezadoDeConjunto encabezado{};
    std::vector<bool> estan{};  ///< by part; none: there is no part yet
    Conjunto todo{};
};

}  // namespace calibration
