// SPDX-License-Identifier: GPL-3.0-or-later
//
// How well each method of search finds twins again: CSV, a row for each network, method, budget, seed. Or,
// with the word "parametros", what one search says of each parameter.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Calibra.h"
#include "tests/calibration/Gemelos.h"

namespace {

using namespace calibration;

constexpr int Semillas = 12;

struct Red {
    const char* nombre;
    pruebas::Gemelo (*hace)(double ruido);
};
constexpr Red Redes[] = {{"7", pruebas::UnaUnidad}, {"12", pruebas::VariasUnidades}};

Calibrado Corre(PedidoDeCalibracion pedido, std::string_view metodo, int corridas, std::uint64_t semilla)
{
    pedido.como.metodo = metodo;
    pedido.como.corridas = corridas;
    pedido.como.semilla = semilla;
    return *Calibra(pedido);
}

void TablaDeEficiencia()
{
    std::puts("parametros,ruido,metodo,corridas,semilla,nse,hechas,segundos");
    for (const Red& red : Redes)
        for (const double ruido : {0.0, 0.05})
            for (const MetodoDeBusqueda& metodo : MetodosDeBusqueda())
                for (const int corridas : {500, 2000, 5000, 20000})
                    for (int semilla = 1; semilla <= Semillas; ++semilla) {
                        const auto antes = std::chrono::steady_clock::now();
                        const Calibrado c = Corre(red.hace(ruido).pedido, metodo.clave, corridas,
                                                  static_cast<std::uint64_t>(semilla));
                        const double s =
                            std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
                        std::printf("%s,%g,%s,%d,%d,%.6f,%zu,%.2f\n", red.nombre, ruido, metodo.clave.data(),
                                    corridas, semilla, c.Puntaje(), c.corridas.size(), s);
                        std::fflush(stdout);
                    }
}

void Parametros(const char* metodo, double ruido, int corridas, int semilla)
{
    for (const Red& red : Redes) {
        const pruebas::Gemelo g = red.hace(ruido);
        const Calibrado c = Corre(g.pedido, metodo, corridas, static_cast<std::uint64_t>(semilla));
        std::printf("NSE %.6f, %zu corridas\n", c.Puntaje(), c.corridas.size());
        for (std::size_t i = 0; i < c.parametros.size(); ++i) {
            const Hallado& h = c.parametros[i];
            std::printf("%-32s %9.4g %9.4g  error %6.2f %%  cerca %.4g a %.4g (%.2f)%s%s\n", h.nombre.c_str(),
                        g.verdad[i], h.mejor, 100 * (h.mejor / g.verdad[i] - 1), h.cercaMinimo, h.cercaMaximo,
                        h.parte, h.identificable ? "" : " no identificable",
                        h.sinEfecto ? " sin efecto" : "");
        }
        for (const std::string& dicho : c.dichos)
            std::printf("  %s\n", dicho.c_str());
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::string_view(argv[1]) == "parametros")
        Parametros(argc > 2 ? argv[2] : "sce", argc > 3 ? std::atof(argv[3]) : 0,
                   argc > 4 ? std::atoi(argv[4]) : 5000, argc > 5 ? std::atoi(argv[5]) : 1);
    else
        TablaDeEficiencia();
    return 0;
}
