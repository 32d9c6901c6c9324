// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Hallazgos.h"

#include <algorithm>
#include <optional>
#include <type_traits>

#include "checks/Arregla.h"
#include "editor/EnMano.h"
#include "editor/frmUEHs.h"
#include "model/Clases.h"

namespace editor {

using model::Siro;

namespace {

/// Where a component stands: its icon, or the vertex in the middle of a reach.
std::optional<Punto> LugarEnElDibujo(const model::Red& red, const auto& c)
{
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(c)>, model::Cauce>) {
        const int n = model::NumeroDe<model::Cauce>(red, c.NombreCauce);
        if (n > CaucesEnteros(red)) return {};
        const std::vector<Punto> linea = Linea(red, n);
        if (linea.empty()) return {};
        return linea[linea.size() / 2];
    } else {
        return Punto{static_cast<float>(model::IconoX(c)), static_cast<float>(model::IconoY(c))};
    }
}

/// A point near the edge of the canvas, or outside, comes into its middle.
void PonALaVista(Vista& v, Punto p)
{
    constexpr double Orilla = 0.1;  // share of the canvas
    const double ancho = AnchoLogico(v), margen = Orilla * ancho;
    const auto dentro = [&](double x, double desde) {
        return x >= desde + margen && x <= desde + ancho - margen;
    };
    if (dentro(p.X, v.origen.X) && dentro(p.Y, v.origen.Y)) return;
    v.origen = {static_cast<float>(p.X - ancho / 2), static_cast<float>(p.Y - ancho / 2)};
    v.recentra = false;
}

template <typename T>
Pedido FichaDe()
{
    if constexpr (std::is_same_v<T, model::UEH>) return Pedido::FormaUEH;
    if constexpr (std::is_same_v<T, model::Cauce>) return Pedido::FormaCauce;
    if constexpr (std::is_same_v<T, model::Lago>) return Pedido::FormaLago;
    return Pedido::FormaRepresa;
}

/// The form that shows a finding of a component of kind T; nothing where the drawing does.
template <typename T>
std::optional<Pedido> PedidoDe(checks::Lugar lugar)
{
    constexpr bool ConTabla = std::is_same_v<T, model::Lago> || std::is_same_v<T, model::Represa>;
    if (ConTabla && lugar == checks::Lugar::TablaHAS) return Pedido::TablaHAS;
    if (std::is_same_v<T, model::Represa> && lugar == checks::Lugar::TablaHQ) return Pedido::TablaHQ;
    if (ConTabla && lugar == checks::Lugar::TablaHQ) return Pedido::TablaHAS;
    if (lugar == checks::Lugar::Dibujo || lugar == checks::Lugar::Editor) return {};
    return FichaDe<T>();
}

}  // namespace

bool VaA(frmUEHs& f, Siro& s, std::string_view nombre, checks::Lugar lugar)
{
    bool esta = false;
    model::CadaComponente(s.Red, [&](auto& c) {
        using T = std::remove_cvref_t<decltype(c)>;
        if (esta || model::Nombre(c) != nombre) return;
        esta = true;
        Orden(f, s, [&] {
            LimpiaSeleccion(s);
            Elegido<T>(s.Seleccion) = static_cast<std::int16_t>(model::NumeroDe<T>(s.Red, nombre));
            if (const auto punto = LugarEnElDibujo(s.Red, c)) PonALaVista(f.vista, *punto);
            Redibuja(f, s);
            if (const auto pedido = PedidoDe<T>(lugar)) f.pedidos.push_back(*pedido);
        });
    });
    return esta;
}

void Aplica(frmUEHs& f, Siro& s, const std::function<void(model::Red&)>& cambio)
{
    Orden(f, s, [&] {
        cambio(s.Red);
        Redibuja(f, s);
    });
}

int Corrige(frmUEHs& f, Siro& s, const std::vector<checks::Hallazgo>& hallazgos)
{
    int hechos = 0;
    Aplica(f, s, [&](model::Red& red) {
        for (const checks::Hallazgo& h : hallazgos)
            if (h.arreglo != checks::Arreglo::OrdenaTabla && checks::Arregla(red, h, s.Pasos.PasoQ)) ++hechos;
    });
    return hechos;
}

}  // namespace editor
