// SPDX-License-Identifier: GPL-3.0-or-later
#include "RedMeandrosa.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "ProyectoLimite.h"
#include "model/OrdenCauces.h"

namespace bench {

using model::Siro;

namespace {

constexpr int Vertices = 100;
constexpr int Lado = 10;                         // nodes in a row of the drawing
constexpr float Celda = AnchoDeMeandros / Lado;  // a node's square [drawing units]

struct Punto {
    float X, Y;
};

Punto Esquina(int nudo)
{
    return {static_cast<float>(nudo % Lado) * Celda, static_cast<float>(nudo / Lado) * Celda};
}

/// A meandering reach across its node's square.
void TrazaCauce(Siro& s, int n)
{
    const Punto e = Esquina(n - 1);
    s.Red.NroVertices(n) = Vertices;
    for (int v = 1; v <= Vertices; ++v) {
        const double avance = static_cast<double>(v) / Vertices;
        s.Red.XVertice(n, v) = static_cast<float>(e.X + Celda * (0.5 + 0.2 * std::sin(avance * 25)));
        s.Red.YVertice(n, v) = static_cast<float>(e.Y + Celda * (0.95 - 0.9 * avance));
    }
}

void Alarga(std::string& nombre)
{
    if (!nombre.empty()) nombre += "-aguasarrib";  // 15 characters
}

}  // namespace

Siro RedMeandrosa()
{
    Siro s;
    ArmaRed(s, {});
    s.Red.XVertice.Dimensiona(model::MaxCauces, Vertices);
    s.Red.YVertice.Dimensiona(model::MaxCauces, Vertices);
    for (auto& c : s.Red.ColCauces) {
        c.numVertices = Vertices;
        TrazaCauce(s, c.numCauce);
        Alarga(c.NombreCauce);
        Alarga(c.Cauce_aa);
    }
    for (auto& u : s.Red.ColUEHs) {
        const Punto e = Esquina(u.numUEH - 1);
        u.IconoUEHx = e.X + 10;
        u.IconoUEHy = e.Y + 20;
        u.XCauce = s.Red.XVertice(u.numUEH, Vertices);
        u.YCauce = s.Red.YVertice(u.numUEH, Vertices);
        Alarga(u.NombreUEH);
        Alarga(u.Cauce_aa);
    }
    for (auto& l : s.Red.ColLagos) {
        const Punto e = Esquina(l.numLAGO - 1);
        const int aguasAbajo = std::max<int>(1, l.numLAGO / 2);
        l.IconoLAGOx = e.X + 0.7F * Celda;
        l.IconoLAGOy = e.Y + 0.9F * Celda;
        l.XCauce = s.Red.XVertice(aguasAbajo, Vertices);
        l.YCauce = s.Red.YVertice(aguasAbajo, Vertices);
        Alarga(l.NombreLAGO);
        Alarga(l.Cauce_aa);
    }
    for (auto& r : s.Red.ColRepresas) {
        const int nudo = model::MaxUEHs - model::MaxRepresas + r.numRepresa;
        const Punto e = Esquina(nudo - 1);
        r.IconoRepresaX = e.X + 0.7F * Celda;
        r.IconoRepresaY = e.Y + 0.3F * Celda;
        r.XCauce = s.Red.XVertice(nudo, Vertices);
        r.YCauce = s.Red.YVertice(nudo, Vertices);
        Alarga(r.NombreRepresa);
        Alarga(r.Cauce_aa);
    }
    model::CalculaOrdenCauces(s.Red);
    return s;
}

}  // namespace bench
