// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "model/Siro.h"

// A run of three steps written by hand.
namespace pruebas {

struct CorridaDelMapa {
    CorridaDelMapa()
    {
        red.XVertice.Dimensiona(model::MaxCauces, model::MaxNroVertices);
        red.YVertice.Dimensiona(model::MaxCauces, model::MaxNroVertices);
        // Its mouth was drawn ten units off the head of c-1.
        Agrega("c-1", "", {{0, 100}, {100, 100}});
        Agrega("c-2", "c-1", {{90, 90}, {150, 100}, {200, 100}});
        red.ColUEHs.Agrega({.NombreUEH = "u-1",
                            .numUEH = 1,
                            .IconoUEHx = 50,
                            .IconoUEHy = 50,
                            .XCauce = 50,
                            .YCauce = 100,
                            .Cauce_aa = "c-1"});
        red.ColUEHs.Agrega(
            {.NombreUEH = "u-2", .numUEH = 2, .IconoUEHx = 220, .IconoUEHy = 20, .Cauce_aa = "r-1"});
        model::Represa r;
        r.NombreRepresa = "r-1";
        r.numRepresa = 1;
        r.IconoRepresaX = 200;
        r.IconoRepresaY = 80;
        r.XCauce = 200;
        r.YCauce = 100;
        r.Cauce_aa = "c-2";
        red.ColRepresas.Agrega(std::move(r));
        model::Lago l;
        l.NombreLAGO = "l-1";
        l.numLAGO = 1;
        l.IconoLAGOx = 100;
        l.IconoLAGOy = 160;
        red.ColLagos.Agrega(std::move(l));

        pasos.PasoPp = pasos.PasoQ = 10;
        tormenta.PpTormenta = 80;
        tormenta.DurTormenta = 120;
        // The Lago joins nothing and has no row.
        resultados.Secuencia = {"", "u-1", "u-2", "c-2", "c-1", "r-1"};
        resultados.NroComponentes = 5;
        resultados.NroPasosQ = 3;
        resultados.QSale.Dimensiona(5, 4);
        Pon(1, {1, 4, 2});
        Pon(2, {0, 0, 0});
        Pon(3, {5, 9, 9});
        Pon(4, {10, 20, 36});
        Pon(5, {3, 3, 1});
    }

    model::Red red{};
    model::Tormenta tormenta{};
    model::Pasos pasos{};
    model::Resultados resultados{};

  private:
    struct Vertice {
        float x, y;
    };
    void Agrega(const char* nombre, const char* destino, std::initializer_list<Vertice> linea)
    {
        model::Cauce c;
        c.NombreCauce = nombre;
        c.Cauce_aa = destino;
        c.numCauce = static_cast<std::int16_t>(red.ColCauces.Cuenta() + 1);
        int j = 0;
        for (const Vertice v : linea) {
            red.XVertice(c.numCauce, ++j) = v.x;
            red.YVertice(c.numCauce, j) = v.y;
        }
        c.numVertices = red.NroVertices(c.numCauce) = static_cast<std::int16_t>(j);
        red.ColCauces.Agrega(std::move(c));
    }
    void Pon(int fila, std::initializer_list<float> caudales)
    {
        int i = 0;
        for (const float q : caudales)
            resultados.QSale(fila, ++i) = q;
    }
};

}  // namespace pruebas
