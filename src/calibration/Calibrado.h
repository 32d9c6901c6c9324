// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "calibration/Busqueda.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

// A calibration as it is asked for, and what comes of it.
namespace calibration {

/// What is fitted, by what, and how.
struct PedidoDeCalibracion {
    runs::Modelo modelo{};                 ///< with the active parameters alone
    std::vector<study::Evento> eventos{};  ///< event i is of storm i of the model; "fuera" takes no part
    study::Calibracion como{};
    int hilos = 0;  ///< 0: one per core
};

/// What a parameter was found to be.
struct Hallado {
    std::string nombre{}, clave{}, unidad{};
    double minimo = 0, maximo = 0;  ///< of the search
    std::optional<double> antes{};  ///< in the network; none where its components differ
    double mejor = 0;
    double cercaMinimo = 0, cercaMaximo = 0;  ///< of all sets near the best one
    double parte = 0;           ///< of the range of the search that those take, in its scale, 0 to 1
    int borde = 0;              ///< -1: the best lies on the lower bound; 1: on the upper one
    bool sinEfecto = false;     ///< no value of its range changes the score
    bool identificable = true;  ///< otherwise values far apart are as good
};

/// Two parameters that move together among the sets near the best one.
struct Atados {
    std::size_t a = 0, b = 0;
    double r = 0;  ///< coefficient of correlation, in the scales of the search
};

/// The score at an observation.
struct PuntajeDeSitio {
    std::string evento{}, componente{}, papel{};
    double peso = 0;                           ///< of the event by that of the observation
    std::optional<double> antes{}, despues{};  ///< none: not defined, or no such run
    std::string palabras{};                    ///< what the best set does, without a full stop
    std::string pares{};                       ///< how many are compared, a sentence
};

/// A set of values that was run.
struct CorridaHecha {
    std::vector<double> valores{};
    double puntaje = 0;  ///< the objective: mean score, or mean distance from the best; not finite: no score
};

struct Calibrado {
    std::vector<Hallado> parametros{};
    std::vector<PuntajeDeSitio> sitios{};
    std::vector<CorridaHecha> corridas{};                            ///< as the search made them
    std::size_t cualEsMejor = 0;                                     ///< among them
    std::optional<double> antes{}, validacion{}, validacionAntes{};  ///< objective
    std::vector<study::Juego> cercanos{};                            ///< the best first, 200 at most
    std::size_t cuantosCercanos = 0;
    std::vector<Atados> atados{};
    std::vector<std::vector<double>> correlacion{};  ///< of each with each; 0 where there is none
    std::size_t fallidas = 0;                        ///< runs without a score
    std::vector<std::string> motivos{};              ///< of theirs, each once, ten at most
    FinDeBusqueda fin = FinDeBusqueda::Presupuesto;
    std::vector<std::string> dichos{};  ///< what is to be known of all that, a sentence each

    [[nodiscard]] double Puntaje() const { return corridas.at(cualEsMejor).puntaje; }
    [[nodiscard]] const std::vector<double>& Mejor() const { return corridas.at(cualEsMejor).valores; }
};

}  // namespace calibration
