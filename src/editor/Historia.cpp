// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Historia.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "editor/frmUEHs.h"

namespace editor {

using model::Siro;

namespace {

/// A copy of a part of the network, or the one that the present network has already where they are equal.
template <typename T>
std::shared_ptr<const T> Comparte(const std::shared_ptr<const T>& presente, const T& parte)
{
    if (presente && *presente == parte) return presente;
    return std::make_shared<const T>(parte);
}

template <typename T>
bool Iguales(const std::shared_ptr<const T>& a, const std::shared_ptr<const T>& b)
{
    return a == b || (a && b && *a == *b);
}

VerticesDeRed TomaVertices(const Siro& s)
{
    VerticesDeRed v;
    const int cauces =
        std::clamp(std::max<int>(s.Red.NroCauces, s.Red.ColCauces.Cuenta()), 0, model::MaxCauces);
    const int columnas = std::max(0, std::min(s.Red.XVertice.TopeColumna(), s.Red.YVertice.TopeColumna()));
    for (int i = 1; i <= cauces; ++i) {
        const int vertices = std::clamp<int>(s.Red.NroVertices(i), 0, columnas);
        v.cuentas.push_back(static_cast<std::int16_t>(vertices));
        if (vertices == 0) continue;
        const float* x = s.Red.XVertice.Fila(i);
        const float* y = s.Red.YVertice.Fila(i);
        v.X.insert(v.X.end(), x + 1, x + 1 + vertices);
        v.Y.insert(v.Y.end(), y + 1, y + 1 + vertices);
    }
    return v;
}

void PonVertices(Siro& s, const VerticesDeRed& v)
{
    int mayor = 0;
    for (const std::int16_t cuenta : v.cuentas)
        mayor = std::max<int>(mayor, cuenta);
    s.Red.NroVertices.Dimensiona(s.Red.NroVertices.Tope());
    s.Red.XVertice.Dimensiona(model::MaxCauces, mayor);
    s.Red.YVertice.Dimensiona(model::MaxCauces, mayor);
    std::size_t desde = 0;
    for (std::size_t k = 0; k < v.cuentas.size(); ++k) {
        const int i = static_cast<int>(k) + 1;
        s.Red.NroVertices(i) = v.cuentas[k];
        std::copy_n(v.X.data() + desde, v.cuentas[k], s.Red.XVertice.Fila(i) + 1);
        std::copy_n(v.Y.data() + desde, v.cuentas[k], s.Red.YVertice.Fila(i) + 1);
        desde += static_cast<std::size_t>(v.cuentas[k]);
    }
}

RedGuardada Toma(const frmUEHs& f, const Siro& s)
{
    const RedGuardada& presente = f.historia.presente;
    return {.UEHs = Comparte(presente.UEHs, s.Red.ColUEHs),
            .Cauces = Comparte(presente.Cauces, s.Red.ColCauces),
            .Lagos = Comparte(presente.Lagos, s.Red.ColLagos),
            .Represas = Comparte(presente.Represas, s.Red.ColRepresas),
            .vertices = Comparte(presente.vertices, TomaVertices(s)),
            .NroUEHs = s.Red.NroUEHs,
            .NroCauces = s.Red.NroCauces,
            .NroLagos = s.Red.NroLagos,
            .NroRepresas = s.Red.NroRepresas,
            .ClicsCauce = f.ClicsCauce,
            .marcaCauce = f.marcaCauce};
}

void Pon(frmUEHs& f, Siro& s, const RedGuardada& red)
{
    s.Red.ColUEHs = *red.UEHs;
    s.Red.ColCauces = *red.Cauces;
    s.Red.ColLagos = *red.Lagos;
    s.Red.ColRepresas = *red.Represas;
    PonVertices(s, *red.vertices);
    s.Red.NroUEHs = red.NroUEHs;
    s.Red.NroCauces = red.NroCauces;
    s.Red.NroLagos = red.NroLagos;
    s.Red.NroRepresas = red.NroRepresas;
    f.ClicsCauce = red.ClicsCauce;
    f.marcaCauce = red.marcaCauce;
    LimpiaSeleccion(s);
    Redibuja(f, s);
}

bool MismosComponentes(const RedGuardada& a, const RedGuardada& b)
{
    return Iguales(a.UEHs, b.UEHs) && Iguales(a.Cauces, b.Cauces) && Iguales(a.Lagos, b.Lagos) &&
           Iguales(a.Represas, b.Represas);
}

/// The network to go back to from the end of a reach's drawing: the one before the clicks that led here.
RedGuardada AntesDelTrazo(Historia& h)
{
    RedGuardada red = h.presente;
    while (red.ClicsCauce > 0 && !h.anteriores.empty() && MismosComponentes(h.anteriores.back(), red)) {
        red = std::move(h.anteriores.back());
        h.anteriores.pop_back();
    }
    return red;
}

bool Pasa(frmUEHs& f, Siro& s, std::vector<RedGuardada>& de, std::vector<RedGuardada>& a)
{
    if (de.empty()) return false;
    a.push_back(std::move(f.historia.presente));
    f.historia.presente = std::move(de.back());
    de.pop_back();
    Pon(f, s, f.historia.presente);
    Asienta(f, s);
    f.cambiada = true;
    return true;
}

}  // namespace

bool RedGuardada::operator==(const RedGuardada& otra) const
{
    return MismosComponentes(*this, otra) && Iguales(vertices, otra.vertices) && NroUEHs == otra.NroUEHs &&
           NroCauces == otra.NroCauces && NroLagos == otra.NroLagos && NroRepresas == otra.NroRepresas &&
           ClicsCauce == otra.ClicsCauce && marcaCauce == otra.marcaCauce;
}

void EmpiezaHistoria(frmUEHs& f, const Siro& s)
{
    f.historia = {};
    f.historia.proyecto = s.Proyecto.NombreProyecto;
    f.historia.presente = Toma(f, s);
}

bool Anota(frmUEHs& f, const Siro& s)
{
    Historia& h = f.historia;
    if (!h.presente.UEHs) EmpiezaHistoria(f, s);
    RedGuardada ahora = Toma(f, s);
    if (ahora == h.presente) return false;
    h.anteriores.push_back(ahora.ClicsCauce == 0 ? AntesDelTrazo(h) : h.presente);
    h.presente = std::move(ahora);
    h.siguientes.clear();
    return true;
}

void Asienta(frmUEHs& f, const Siro& s)
{
    f.historia.presente = Toma(f, s);
}

void Repone(frmUEHs& f, Siro& s)
{
    if (f.historia.presente.UEHs) Pon(f, s, f.historia.presente);
}

bool Deshace(frmUEHs& f, Siro& s)
{
    return Pasa(f, s, f.historia.anteriores, f.historia.siguientes);
}

bool Rehace(frmUEHs& f, Siro& s)
{
    return Pasa(f, s, f.historia.siguientes, f.historia.anteriores);
}

}  // namespace editor
