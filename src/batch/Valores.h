// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/Taller.h"

// The values of options, out of the words of a command line. Each throws ValorErroneo for a word that isn't
// one.
namespace batch {

inline constexpr double TopeEntero = 32767;

/// A value that an option can't take, with the reason as the user reads it.
struct ValorErroneo {
    std::string motivo;
};

/// The number that a text is as a whole.
double Numero(std::string_view texto);
/// A whole one between two bounds, themselves included.
double NumeroEnteroEntre(std::string_view texto, double menor, double mayor);
std::int16_t Entero(std::string_view texto, double menor, double mayor);
/// A depth, 0 or more.
float Lamina(std::string_view texto);
/// "10,12.5": a depth for each UEH.
std::vector<float> Laminas(std::string_view texto);
/// An input form of the rain, but for a series.
std::int16_t Forma(std::string_view texto);
/// "a=1,b=2" as pairs of texts.
std::vector<std::pair<std::string, std::string>> Pares(std::string_view texto);
/// "60=a.csv,1440=b.csv": duration and file.
std::vector<std::pair<double, std::string>> Series(std::string_view texto);
/// "60=0.4,120=0.5": duration and share of the 24-hour depth.
std::vector<study::Razon> Razones(std::string_view texto);
/// "k=822,a=0.2"; "a@10=900" is that of the recurrence of 10 years.
std::vector<study::Coeficiente> Coeficientes(std::string_view texto);
bool EsDiaria(std::string_view texto);
bool EsRelativo(std::string_view texto);
double Positivo(std::string_view texto);
/// "3,1.5,4" as the study keeps it.
std::string ConBlancos(std::string texto);
/// Numbers of a list, in its order.
std::vector<std::int16_t> DeLaLista(std::string_view texto, std::span<const std::int16_t> lista);
bool RespondeSi(std::string_view texto);
int Hilos(std::string_view texto);
std::string Metodo(const std::string& texto);
std::string Bajos(const std::string& texto);
/// A name that a run is kept under: not empty.
std::string NombreDeCorrida(const std::string& texto);
double NumeroEntre(std::string_view texto, double menor, double mayor);
int Remuestras(std::string_view texto);

/// A part of several, "3/10": 3 of 10, both from 1.
struct Parte {
    int cual = 1, de = 1;
    bool operator==(const Parte&) const = default;
};
Parte ParteDe(std::string_view texto);

}  // namespace batch
