// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "batch/Valores.h"
#include "study/Taller.h"

namespace batch {

/// What a command line asks for. Numbers are within the bounds told here; paths stand as they were typed.
struct Opciones {
    enum class Orden {
        Una,
        Serie,
        Revisa,
        Verifica,
        Frecuencia,
        Idf,
        Tormenta,
        Ajusta,
        Sensibilidad,
        Conjunto,
        Une,
        Compara,
        Corridas
    };

    Orden orden = Orden::Una;
    std::string conf{};             ///< path of the project's configuration file, ends in _Conf.vlm
    std::string trabajo{};          ///< directory of shared tables and result files; empty: the executable's
    std::int16_t forma = 0;         ///< input form of the rain: 0, 1, 3, 4
    float pp = 60;                  ///< depth [mm], not negative
    std::int16_t dur = 60;          ///< duration [min], not negative
    std::int16_t rec = 0;           ///< recurrence [years], not negative
    std::int16_t distribucion = 0;  ///< temporal distribution 0..7
    std::int16_t pasoPp = 10;       ///< model step [min], from 1
    std::int16_t pasoQ = 10;        ///< output step [min], from 1
    std::vector<float> ppUEH{};     ///< depth of each UEH in file order [mm], not negative, 70 at most
    std::string tormenta{};         ///< file name of the real storm, in the project's directory
    std::int16_t tabla = 0;         ///< P-D-R table 0..3
    bool pizarra = false;           ///< the Slate is on
    bool avisos = false;            ///< the findings of the run are written
    std::string guarda{};           ///< name that the run is kept under; empty: it isn't kept
    bool respondeSi = true;         ///< answer to every question
    int hilos = 0;                  ///< threads of a series, 1024 at most; 0: all cores
    std::string resultados{};       ///< path of the CSV file; empty: none
    bool json = false;              ///< findings as JSON, not as lines
    std::string archivo{};          ///< path of the annual maxima
    std::string registro{};         ///< path of a record that they are taken out of, in place of `archivo`
    int mesInicial = 1;             ///< of its years, 1..12
    std::optional<double> duracion{};  ///< of the maxima [min], where there are several
    int diasMinimos = 0;               ///< of record: years with less are left out, 0..366
    std::string metodo = "l";          ///< of the fits: momentos, l, mv
    std::string ley{};                 ///< the only law to fit; empty: all
    int remuestras = 1000;             ///< samples of the bootstrap, 0 or 100 to 100000
    std::uint32_t semilla = 1;         ///< of their numbers
    std::string bajos{};  ///< how log-Pearson III takes low values: 17b, 17c; empty: as the others
    std::optional<double> asimetria{};                     ///< of the region's logarithms, -3 to 3
    double ecmAsimetria = 0.302;                           ///< its mean square error, above 0
    double posicion = 0.4;                                 ///< a of the plotting positions, 0 to 0.5
    bool csv = false;                                      ///< quantiles as CSV, not as text
    study::Idf idf{};                                      ///< what curves are made of, and how
    std::vector<std::pair<double, std::string>> series{};  ///< duration [min] and path of its maxima
    bool lecturaDiaria = true;                      ///< maxima of a day are of readings, not of any 24 hours
    study::TormentaDeDiseno diseno{};               ///< the storm that is made; `archivo` is a path
    int escribeDistribucion = 0, escribeTabla = 0;  ///< personal table 1..3 that is written; 0: none
    std::vector<std::int16_t> duraciones{}, recurrencias{};  ///< of that table of storms; empty: all
    bool reemplaza = false;                                  ///< what is there may be written over
    float cuenca = 0;  ///< the basin as measured [ha], not negative; 0: not known

    std::string corridas{};  ///< path of the CSV of every run of a search; empty: none
    std::string tarea{};     ///< path of what is asked of many runs; empty: the project's study
    Parte parte{};           ///< of the members of a set
    std::string parcial{};   ///< path that this part is written to; empty: all is written as results
    std::vector<std::string> archivos{};  ///< paths of the parts that are put together
    std::vector<std::string> lados{};     ///< what is compared: CONF, or CONF#RUN for a run that is kept
    bool serie = false;                   ///< what is compared are series, of `tabla`

    bool operator==(const Opciones&) const = default;
};

/// A command line as it was understood: what to do, or what to say in its place.
struct Lectura {
    std::optional<Opciones> opciones{};
    std::string motivo{};  ///< why the command line is wrong; empty where help was asked for
};

/// How to call the program, in lines that end in LF.
std::string_view Uso();

/// Reads a command line as main gets it, the program's own name first: una or serie.
Lectura LeeOpciones(int argc, const char* const* argv);

/// The same of the check before a run, whose storm is that of una.
std::string_view UsoRevisa();
Lectura LeeOpcionesRevisa(int argc, const char* const* argv);

/// The same of the published cases, which take no project.
std::string_view UsoVerifica();
Lectura LeeOpcionesVerifica(int argc, const char* const* argv);

/// The same of the frequency of annual maxima, which takes their file and no project.
std::string_view UsoFrecuencia();
Lectura LeeOpcionesFrecuencia(int argc, const char* const* argv);

/// The same of the curves of intensity, which take maxima or coefficients and no project.
std::string_view UsoIdf();
Lectura LeeOpcionesIdf(int argc, const char* const* argv);

/// The same of a design storm, which takes a depth or what curves are made of, and no project.
std::string_view UsoTormenta();
Lectura LeeOpcionesTormenta(int argc, const char* const* argv);
/// The same of two or more runs side by side, whose storm is that of una, or whose table that of serie.
std::string_view UsoCompara();
Lectura LeeOpcionesCompara(int argc, const char* const* argv);
/// The same of what is asked of many runs of a project, whose storm in hand is that of una: a search, the
/// sensitivity, a set of members; and of the parts of a set.
std::string_view UsoAjusta();
Lectura LeeOpcionesAjusta(int argc, const char* const* argv);
std::string_view UsoSensibilidad();
Lectura LeeOpcionesSensibilidad(int argc, const char* const* argv);
std::string_view UsoConjunto();
Lectura LeeOpcionesConjunto(int argc, const char* const* argv);
std::string_view UsoUne();
Lectura LeeOpcionesUne(int argc, const char* const* argv);
/// The same of the list of kept runs.
std::string_view UsoCorridas();
Lectura LeeOpcionesCorridas(int argc, const char* const* argv);

/// Whether it was told what curves are made of.
bool HayDeDonde(const Opciones& opciones);

}  // namespace batch
