// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Procedencia.h"
#include "forms/Rotulo.h"
#include "results/mapa/EscalaDeCaudal.h"
#include "results/mapa/RedDeCorrida.h"
#include "results/mapa/VistaDeMapa.h"

// Rules of the map of a run: what it shows at a time, how the time goes on, what a component says.
namespace results {

inline constexpr std::string_view TituloMapaDeCorrida = "Mapa de la corrida";

// clang-format off
inline constexpr auto RotulosDelMapa = std::to_array<forms::FilaRotulo>({
    {"lienzo",        "", "", "Mapa de la corrida"},
    {"sldTiempo",     "", "Tiempo desde el comienzo de la tormenta", "Tiempo"},
    {"cmdInicio",     "I&nicio", "Vuelve al primer paso"},
    {"cmdPico",       "&Pico", "Va al paso del mayor caudal de la corrida"},
    {"cmdReproducir", "", "Reproduce la corrida o la detiene (Espacio)"},
    {"cmbVelocidad",  "&Velocidad:", "Pasos por segundo", "Velocidad"},
    {"chkPicos",      "Pi&cos", "Caudal máximo y su hora junto a cada componente"},
    {"chkNombres",    "N&ombres", "Nombre de cada componente"},
    {"chkImagen",     "Imagen de &fondo", "La imagen sobre la que se dibujó la red"},
    {"cmdVerTodo",    "Ver &todo", "Toda la red (doble clic o tecla 0)"},
    {"cmdGuardar",    "&Guardar como"},
    {"cmdImprimir",   "&Imprimir"},
    {"OKButton",      "&Cerrar"},
});
// clang-format on

/// Steps that go by in a second.
inline constexpr auto VelocidadesDelMapa = std::to_array<int>({1, 2, 5, 10, 30, 60});

struct MapaDeCorrida {
    bool abierta = false;
    RedDeCorrida red{};
    EscalaDeCaudal escala{};
    forms::Procedencia procedencia{};  ///< title, storm and project of the run on show

    int paso = 1;  ///< on show, from 1
    bool corriendo = false;
    double deMas = 0;                        ///< part of the next step that has gone by
    int velocidad = 3;                       ///< place in VelocidadesDelMapa
    std::vector<std::string> velocidades{};  ///< as the list shows them
    bool chkPicos = true, chkNombres = true, chkImagen = true;
    char decimal = '.';  ///< of the legend's flows
    int elegido = -1;    ///< component read by the keyboard, from 0; -1: none

    std::string lblTitulo{}, lblTiempo{}, cmdReproducir{};
};

/// Shows a run, at the step of its greatest flow; one that is open keeps its options. Without a step the
/// window closes.
void Muestra(MapaDeCorrida& f, RedDeCorrida red, const forms::Procedencia& procedencia);

/// Time and number of a step: "2:20 h   paso 14 de 60".
std::string TextoDePaso(const MapaDeCorrida& f, int paso);
/// Goes to a step, the nearest where there is none.
void PonPaso(MapaDeCorrida& f, int paso);
/// The step of the greatest flow of the run, the first one of a run without any.
int PasoDelPico(const RedDeCorrida& red);
/// Plays on, from the first step where the last one is on show; or stops.
void cmdReproducir(MapaDeCorrida& f);
/// So many seconds of playing have gone by [s]. Steps that a slow machine didn't come to are left out; at the
/// last one the playing ends. Returns whether another step is on show.
bool Avanza(MapaDeCorrida& f, double segundos);
/// Reads the next component, or with -1 the one before it, round and round.
void Recorre(MapaDeCorrida& f, int cuantos);

/// Name, flow at the step on show, peak and when, a line each.
std::string Lectura(const MapaDeCorrida& f, int componente);
/// The same of the whole map, for a reader of the screen: time, and the component read.
std::string Descripcion(const MapaDeCorrida& f);

/// What the label of a component says, from the fullest text to the shortest; nothing where it has none.
std::vector<std::string> TextosDeRotulo(const MapaDeCorrida& f, const ComponenteDelMapa& c);
/// Components in the order in which their labels take their places: reaches first, then the others, those of
/// the greatest peak first.
std::vector<int> OrdenDeRotulos(const MapaDeCorrida& f);

/// Place on the scale at the step on show, 0 to 1.
double ParteDe(const MapaDeCorrida& f, const ComponenteDelMapa& c);
/// Middle of a component's symbol or, of a reach, of its line [pixels]; nothing for what isn't drawn.
std::optional<forms::Pixel> CentroDe(const ComponenteDelMapa& c, const VistaDeMapa& v);
/// Number of the component under a pixel, from 0, that painted last before others; -1: none.
int Bajo(const MapaDeCorrida& f, const VistaDeMapa& v, forms::Pixel en);

}  // namespace results
