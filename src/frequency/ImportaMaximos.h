// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frequency/Remuestreo.h"
#include "study/Taller.h"

// Annual maxima out of a record of rain, daily or of a logger.
//
// A reading is the depth that fell during the record's step, the usual time between readings, that ends at
// its time; a date alone, or a reading a day, is the depth of that day. The depth of a duration is that of a
// window that ends with a reading: a moving one, of as many readings as the duration has steps. A window
// belongs to the year in which it ends, and a year that doesn't begin in January bears the number of the
// calendar year in which it begins: with July, 1987 goes from 01/07/1987 to 30/06/1988.
namespace frequency {

struct PedidoDeImportacion {
    int mesInicial = 1;                ///< of the year, 1..12
    std::vector<double> duraciones{};  ///< [min]; empty: the usual ones that are multiples of the step, up to
                                       ///< a day; a day alone where the record has a reading a day
};

struct Importacion {
    std::vector<study::SerieDeMaximos> series{};  ///< by duration, in whole years of the record; its days are
                                                  ///< told where the record has readings of 0
    std::vector<std::string> errores{};           ///< why there are none, with the line; empty: there are
    std::vector<std::string> avisos{};            ///< coverage, gaps, doubtful lines
    double paso = 0;                              ///< of the record [min]
};

/// Reads the bytes of a record as forms::LeeRegistroLluvia does, with or without times of day, and takes the
/// maxima. A year within the record that has no reading has no maximum; one with readings of 0 alone has 0.
/// `avance` is told of bytes read. Nothing where it stops the import.
std::optional<Importacion> ImportaMaximos(std::string_view bytes, const PedidoDeImportacion& pedido,
                                          const Avance& avance = {});

}  // namespace frequency
