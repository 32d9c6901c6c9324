// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The rain workshop's part of a study: maxima, what was chosen of their fits, curves of intensity, storm.
// Laws, families, patterns stand here by the keys that the command line names them by: what the keys mean is
// frequency's to know.
namespace study {

struct Maximo {
    int anio = 0;
    double valor = 0;           ///< [mm], 0 or more
    std::optional<int> dias{};  ///< days of the year with record, 0..366, where it is known
    bool operator==(const Maximo&) const = default;
};

/// Annual maxima of one duration, and the law that the user took for them.
struct SerieDeMaximos {
    double duracion = 1440;         ///< [min], above 0
    bool lecturaDiaria = false;     ///< read once a day: a day's maximum, not yet that of any 24 hours
    std::vector<Maximo> maximos{};  ///< by year
    std::string ley{}, metodo{};    ///< chosen; empty: none yet
    std::string motivo{};           ///< why, in the user's words
    std::string bajos{};            ///< how log-Pearson III by moments takes low values: 17b, 17c; empty: as
                                    ///< the others
    std::optional<double> asimetria{};  ///< of the region's logarithms, -3 to 3; none: the sample's alone
    double ecmAsimetria = 0.302;        ///< its mean square error, above 0
    std::string resto{};                ///< as in Estudio.h
    bool operator==(const SerieDeMaximos&) const = default;
};

struct Estacion {
    std::string nombre{};
    std::optional<double> latitud{}, longitud{};  ///< [degrees], north and east positive
    std::optional<double> altitud{};              ///< [m]
    std::string fuente{}, notas{};
    std::vector<SerieDeMaximos> series{};  ///< by duration
    std::string resto{};                   ///< as in Estudio.h
    bool operator==(const Estacion&) const = default;
};

/// Part of the rain of 24 hours that falls within a duration.
struct Razon {
    double duracion = 0;  ///< [min], above 0
    double razon = 0;     ///< above 0
    bool operator==(const Razon&) const = default;
};

/// A coefficient by its symbol.
struct Coeficiente {
    std::string simbolo{};
    double valor = 0;
    double recurrencia = 0;  ///< [years] that it holds for, where a family has its own for each; 0: all
    bool operator==(const Coeficiente&) const = default;
};

/// How intensities are had for every duration and recurrence.
struct Idf {
    std::string origen = "diaria";    ///< "series": maxima of several durations; "diaria": daily ones,
                                      ///< disaggregated; "coeficientes": typed
    std::string estacion{};           ///< by its name; empty: the first
    std::string familia = "sherman";  ///< empty: none, daily maxima as they are disaggregated
    std::string desagregacion = "dick-peschke";
    bool errorRelativo = false;  ///< the family is fitted to relative errors, not to logarithms
    double factorDiario = 1.13;  ///< of a day's maximum to that of 24 hours, applied to daily readings only
    std::vector<Coeficiente> coeficientes{};  ///< typed, or of the disaggregation
    std::vector<Razon> razones{};
    std::string reduccion{};  ///< areal; empty: none
    double area = 0;          ///< [km2]
    std::string resto{};      ///< as in Estudio.h
    bool operator==(const Idf&) const = default;
};

/// The storm that is made of them.
struct TormentaDeDiseno {
    std::string patron = "bloques";
    double duracion = 120;           ///< [min]
    double recurrencia = 50;         ///< [years]
    std::optional<double> lamina{};  ///< depth, where it isn't that of the curves [mm]
    double paso = 10;                ///< [min]
    double avance = 0.375;           ///< time of the peak as a part of the duration
    int cuartil = 1;                 ///< that most of the rain falls in
    int probabilidad = 50;           ///< that more has fallen, 10, 20, ... 90 [%]
    std::string periodos{};  ///< parts of a pattern of the user's own, with blanks or semicolons between
    std::string archivo{};   ///< of the recorded storm that is made dimensionless
    int tabla = 1;           ///< of storms, 1..3
    int distribucion = 1;    ///< personal one, 1..3
    std::string resto{};     ///< as in Estudio.h
    bool operator==(const TormentaDeDiseno&) const = default;
};

/// What was written into the tables that a run reads, and from what.
struct Derivado {
    std::string fecha{}, destino{}, origen{};
    bool operator==(const Derivado&) const = default;
};

struct Taller {
    std::vector<Estacion> estaciones{};
    std::uint64_t semilla = 1;  ///< of the samples that bands and p-values are drawn from
    int remuestras = 1000;      ///< of them; 0: none
    double posicion = 0.4;      ///< a of the plotting position (i-a)/(n+1-2a)
    Idf idf{};
    TormentaDeDiseno tormenta{};
    std::vector<Derivado> derivados{};
    std::string resto{};  ///< as in Estudio.h
    bool operator==(const Taller&) const = default;
};

}  // namespace study
