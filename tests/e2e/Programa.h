// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// The real program, started from outside as a script does.
namespace e2e {

/// What a process leaves behind.
struct Salida {
    int estado = -1;  ///< exit status; -1 where a signal ended it
    std::string estandar;
    std::string errores;
};

/// Starts a program in a directory and waits for its end. Standard input is empty.
Salida Ejecuta(const std::string& programa, const std::vector<std::string>& argumentos,
               const std::string& directorio);

/// siro-lote as it was built.
Salida Lote(const std::vector<std::string>& argumentos, const std::string& directorio);

}  // namespace e2e
