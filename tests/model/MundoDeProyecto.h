// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

// A program whose disk is in memory and whose user is scripted, for the tests of storms and projects. All
// that the user gets to see is a line of text, in the order in which it came.

std::string SucesoAviso(const std::string& texto, const std::string& titulo = "",
                        model::Icono icono = model::Icono::Ninguno);
std::string SucesoPregunta(const std::string& texto, const std::string& titulo, model::Icono icono);
std::string SucesoPide(const std::string& texto, const std::string& titulo, const std::string& defecto);
std::string SucesoElige(const std::string& titulo, const std::string& filtro);
/// The labels were refreshed: what they show of the project's name and title.
std::string SucesoEtiquetas(const std::string& proyecto, const std::string& titulo);
std::string SucesoHabilitaGuardarComo();
std::string SucesoTermina();

class MundoDeProyecto {
  public:
    MundoDeProyecto();
    MundoDeProyecto(const MundoDeProyecto&) = delete;
    MundoDeProyecto& operator=(const MundoDeProyecto&) = delete;
    model::Siro s;

    apoyo::DiscoPrueba disco{};

    // --- the user ---
    void Responde(const std::string& texto) { respuesta = texto; }
    void RespondeSi(bool si) { respondeSi = si; }
    void EligeRuta(const std::string& ruta) { rutaElegida = ruta; }
    /// What happens to the world while the user looks at the prompt or at the chooser.
    void AlPedirTexto(std::function<void()> que) { alPedir = std::move(que); }
    void AlElegirArchivo(std::function<void()> que) { alElegir = std::move(que); }
    /// The end of the program returns, as a host that was left as it is does.
    void TerminaVuelve() { terminaVuelve = true; }

    /// What the user got to see since the last call.
    std::vector<std::string> TomaSucesos() { return std::exchange(sucesos, {}); }
    /// The boxes alone.
    const std::vector<model::Mensaje>& Cajas() const { return cajas; }
    std::vector<model::Mensaje> TomaCajas() { return std::exchange(cajas, {}); }

  private:
    model::Anfitrion Anfitrion();

    std::string respuesta, rutaElegida;
    bool respondeSi = true;
    bool terminaVuelve = false;
    std::function<void()> alPedir = [] {};
    std::function<void()> alElegir = [] {};
    std::vector<std::string> sucesos;
    std::vector<model::Mensaje> cajas;
};
