// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What a study keeps of observed floods, and what is asked of many runs: which parameters of the network
// move and how far, how sensitive the results are to them, which ones fit, how sure the results are.
// Fields, scores, methods, distributions stand here by the keys that the command line names them by: what the
// keys mean is for the rooms runs and calibration to know. The same text is a task of siro-lote.
namespace study {

// --- observed floods ---

/// A value at a time [min since the storm's start].
struct Punto {
    double minuto = 0;
    double valor = 0;
    bool operator==(const Punto&) const = default;
};

/// A part of the time, and what its readings weigh.
struct Ventana {
    double desde = 0, hasta = 0;  ///< [min], both included
    double peso = 1;              ///< 0: these readings don't count
    bool operator==(const Ventana&) const = default;
};

/// A point of a rating curve.
struct PuntoDeCurva {
    double nivel = 0;   ///< [m]
    double caudal = 0;  ///< [m3/s], 0 or more
    bool operator==(const PuntoDeCurva&) const = default;
};

/// What was measured at a component during an event.
struct Observacion {
    std::string componente{};
    std::string magnitud = "caudal";  ///< "caudal" [m3/s] or "nivel" [m], by the rating curve
    double promedio = 0;  ///< each value is the mean of so many minutes before it; 0: of its instant
    double peso = 1;      ///< among those of the event, 0 or more
    std::vector<Ventana> ventanas{};    ///< none: all counts
    std::vector<PuntoDeCurva> curva{};  ///< by level
    std::string interpolacion = "log";  ///< between its points: "log", of level and flow, or "lineal"
    std::string fuente{}, notas{};
    std::string archivo{};        ///< of its values, beside the study: "1" for P_serie_1.csv; empty: none yet
    std::vector<Punto> puntos{};  ///< by time, as measured; they stand in that file
    std::string resto{};          ///< as in Estudio.h
    bool operator==(const Observacion&) const = default;
};

/// What it rained during an event.
struct LluviaDeEvento {
    std::string origen = "proyecto";  ///< "proyecto": the storm in hand; "registrada": a recorded one, by its
                                      ///< file; "lamina": depth, duration, distribution
    std::string archivo{};            ///< of the recorded storm, in the project's directory
    double lamina = 60;               ///< [mm], 0 or more
    int duracion = 60;                ///< [min]
    int distribucion = 0;             ///< 0..7
    bool operator==(const LluviaDeEvento&) const = default;
};

struct Evento {
    std::string nombre{};
    std::string inicio{};           ///< of the storm, "2019-03-04 12:00"; empty: not known
    std::string papel = "calibra";  ///< "calibra", "valida" or "fuera"
    double peso = 1;                ///< among the events, 0 or more
    LluviaDeEvento lluvia{};
    std::vector<Observacion> observaciones{};
    std::string resto{};  ///< as in Estudio.h
    bool operator==(const Evento&) const = default;
};

// --- parameters ---

/// A value and its weight.
struct ValorPosible {
    double valor = 0;
    double peso = 1;
    bool operator==(const ValorPosible&) const = default;
};

/// A quantity that moves: a field of one component, or of all that a pattern names, together.
struct Parametro {
    std::string componentes = "u-*";        ///< a name or a pattern; "tormenta": the storm's own fields
    std::string campo{};                    ///< by its key
    std::string modo = "valor";             ///< "valor", "factor" or "suma" to what the network says
    double minimo = 0, maximo = 1;          ///< range of the search, bounds of the distribution
    bool logaritmica = false;               ///< it is searched and drawn by its logarithm
    bool activo = true;                     ///< it takes part
    std::string distribucion = "uniforme";  ///< uniforme, triangular, normal, lognormal, discreta, cercanos
    std::optional<double> centro{};         ///< mode, mean, median; none: the middle of the range
    std::optional<double> dispersion{};     ///< standard deviation, of the logarithm of a lognormal one
    std::vector<ValorPosible> valores{};    ///< of a discrete one
    std::string resto{};                    ///< as in Estudio.h
    bool operator==(const Parametro&) const = default;
};

// --- what is asked ---

/// A number that a run is looked at for.
struct Medida {
    std::string que = "pico";  ///< pico [m3/s], tiempo [min], volumen [m3], nivel [m], puntaje
    std::string componente{};  ///< empty: the first outfall
    std::string evento{};      ///< by its name; empty: the first
    std::string puntaje = "nse";
    bool operator==(const Medida&) const = default;
};

struct Sensibilidad {
    std::string metodo = "morris";  ///< tornado, morris, sobol
    Medida medida{};
    int trayectorias = 20;  ///< of Morris
    int niveles = 4;        ///< of Morris, even
    int base = 1024;        ///< of Sobol: N, a power of two
    std::uint64_t semilla = 1;
    std::string resto{};  ///< as in Estudio.h
    bool operator==(const Sensibilidad&) const = default;
};

/// A set of values of the active parameters, in their order, and its score.
struct Juego {
    std::vector<double> valores{};
    double puntaje = 0;
    bool operator==(const Juego&) const = default;
};

struct Calibracion {
    std::string metodo = "sce";  ///< sce, subplex, dds
    std::string puntaje = "nse";
    int corridas = 5000;     ///< at most
    int complejos = 5;       ///< of SCE-UA
    double cercania = 0.01;  ///< a set is near the best one where its score is so close to it
    std::uint64_t semilla = 1;
    std::vector<std::string>
        campos{};                   ///< that the sets below are of, "u-*.kostiakov_a.factor", in their order
    std::vector<Juego> cercanos{};  ///< sets near the best one, the best first
    std::string fecha{};            ///< when they were found
    std::string resto{};            ///< as in Estudio.h
    bool operator==(const Calibracion&) const = default;
};

struct Incertidumbre {
    int miembros = 1000;
    std::string muestreo = "lhs";  ///< lhs or simple
    Medida medida{};
    bool glue = false;    ///< members are weighted by max(0, score - threshold)
    double umbral = 0.5;  ///< of the score
    std::uint64_t semilla = 1;
    std::string resto{};  ///< as in Estudio.h
    bool operator==(const Incertidumbre&) const = default;
};

struct Ajuste {
    std::vector<Evento> eventos{};
    std::vector<Parametro> parametros{};
    Sensibilidad sensibilidad{};
    Calibracion calibracion{};
    Incertidumbre incertidumbre{};
    std::string resto{};  ///< as in Estudio.h
    bool operator==(const Ajuste&) const = default;
};

}  // namespace study
