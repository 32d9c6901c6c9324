// SPDX-License-Identifier: GPL-3.0-or-later
//
//   proyecto_limite DIR [--base] [--metodo METHOD] [--nudos N] [--vertices N]
//
// Writes the project Limite, as large as the program admits, and its table of storms to a directory, and says
// on standard output how siro-lote runs it.

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "ProyectoLimite.h"

namespace {

constexpr std::string_view Uso =
    "proyecto_limite DIR [--base] [--metodo METHOD] [--nudos N] [--vertices N]\n";

bool Lee(int argc, char** argv, std::string& dir, bench::Medidas& medidas)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view palabra = argv[i];
        if (palabra == "--base")
            medidas.base = true;
        else if (palabra == "--metodo" && i + 1 < argc)
            medidas.metodo = argv[++i];
        else if (palabra == "--nudos" && i + 1 < argc)
            medidas.nudos = std::stoi(argv[++i]);
        else if (palabra == "--vertices" && i + 1 < argc)
            medidas.vertices = std::stoi(argv[++i]);
        else if (dir.empty() && !palabra.starts_with("--"))
            dir = palabra;
        else
            return false;
    }
    return !dir.empty();
}

}  // namespace

int main(int argc, char** argv)
{
    std::string dir;
    bench::Medidas medidas;
    try {
        if (!Lee(argc, argv, dir, medidas)) {
            std::cerr << Uso;
            return 2;
        }
        bench::GuardaProyecto(dir, medidas);
    } catch (const std::exception& error) {
        std::cerr << "proyecto_limite: " << error.what() << '\n';
        return 1;
    }
    const bench::TormentaLimite t;
    const std::string conf = dir + "/" + bench::NombreProyecto + "_Conf.vlm --trabajo " + dir;
    const std::string pasos = " --distribucion " + std::to_string(t.distribucion) + " --paso-pp " +
                              std::to_string(t.pasoPp) + " --paso-q " + std::to_string(t.pasoQ);
    std::cout << "siro-lote una " << conf << " --pp " << t.pp << " --dur " << t.dur << pasos << '\n'
              << "siro-lote serie " << conf << pasos << '\n';
}
