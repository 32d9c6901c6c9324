// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "e2e/Pantalla.h"

namespace e2e {

inline constexpr const char* Principal = "SIRO - Modelo Hidrológico de  simulación de crecidas";
inline constexpr const char* Editor = "Diagrama de Unidades Hidrológicas de Estudio y sus componentes";

/// The Slate tells when it was written; two runs tell it differently.
std::string SinHora(const std::string& texto);

/// The desktop program beside a copy of the delivered data, on a screen of its own.
class EscritorioDePrueba : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    [[nodiscard]] std::string Proyectos() const { return dir + "/Proyectos"; }

    /// Presses Enter in the window of this title.
    void Acepta(const char* titulo);
    /// A storm as deep and as long, from the main window and back to it.
    void FijaTormenta(const char* pp, const char* dur);
    /// Saves by an entry of the menu of what has the focus.
    void GuardaDelMenu(const char* entrada, const char* titulo, const std::string& ruta);
    /// Types a path into the dialog of this title, confirms it and waits for the file.
    void GuardaEn(const char* titulo, const std::string& ruta, const char* vuelve = Principal);
    void Termina();

    /// Where the data, the program and what the test writes lie; an empty text before SetUp takes a new
    /// directory.
    std::string raiz;
    std::string dir;  ///< the program's own directory in it
    std::string tamano = "1366x768x24";
    std::unique_ptr<Pantalla> pantalla;
};

}  // namespace e2e
