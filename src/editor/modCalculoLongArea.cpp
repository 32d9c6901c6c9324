// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modCalculoLongArea.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Numeros.h"

namespace editor {

using model::NumeroATexto;
using model::Simple;
using model::Siro;

namespace {

constexpr double M2PorHa = 10000;

constexpr std::string_view TituloCierre =
    "Cálculo de Longitud de Poligonal Abierta o de Polígono y Area de Poligonal Cerrada";
constexpr std::string_view PreguntaCierre =
    "¿Forzar el cierre del polígono para el cálculo de Perímetro y Area de la figura ? (No, para cálculo de "
    "longitud de la poligonal abierta)";
constexpr std::string_view TituloCerrada = "Perímetro y Area de Poligonal Cerrada";
constexpr std::string_view TituloAbierta = "Longitud de Poligonal Abierta";

/// Sum over the sides of the figure, each from one point to the next [drawing units, or their square].
template <typename F>
double SumaDeLados(const frmUEHs& f, F lado)
{
    double suma = 0;
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(f.NroPuntosMedida); ++i)
        suma += lado(Punto{f.XMedida[i], f.YMedida[i]}, Punto{f.XMedida[i + 1], f.YMedida[i + 1]});
    return suma;
}

double Largo(Punto a, Punto b)
{
    const double dx = double{1} * b.X - a.X;
    const double dy = double{1} * b.Y - a.Y;
    return std::sqrt(dx * dx + dy * dy);
}

double DobleTrapecio(Punto a, Punto b)
{
    return (double{1} * b.Y - a.Y) * (double{1} * b.X + a.X);
}

}  // namespace

void AgregaPuntoMedida(frmUEHs& f, Punto p)
{
    f.NroPuntosMedida = model::Suma16(f.NroPuntosMedida, 1);
    const auto n = static_cast<std::size_t>(f.NroPuntosMedida);
    f.XMedida.resize(n + 1);
    f.YMedida.resize(n + 1);
    f.XMedida[n] = p.X;
    f.YMedida[n] = p.Y;
}

void CalculaLongArea(frmUEHs& f, Siro& s)
{
    if (f.NroPuntosMedida < 1) return;
    const bool cerrada = model::Consulta(s, std::string(PreguntaCierre), TituloCierre);
    if (cerrada) {
        AgregaPuntoMedida(f, {f.XMedida[1], f.YMedida[1]});
        s.Anfitrion.RedibujaEditor();  // the box stands over the closed figure
    }
    const double escala = model::Val(s.Configuracion.EscalaDibujo);  // [m per drawing unit]
    f.LongitudMedida = Simple(SumaDeLados(f, Largo) * escala);
    f.AreaMedida = cerrada ? Simple(escala * escala * SumaDeLados(f, DobleTrapecio) / 2 / M2PorHa) : 0;
    f.NroPuntosMedida = 0;

    // "Perímetro=" of an open line too: kept as it stands.
    f.lblLongArea = "Perímetro=" + NumeroATexto(std::floor(double{f.LongitudMedida})) + " metros";
    if (cerrada) f.lblLongArea += "    -    Area = " + NumeroATexto(f.AreaMedida) + " Has";
    s.Anfitrion.Avisa(
        {f.lblLongArea, std::string(cerrada ? TituloCerrada : TituloAbierta), model::Icono::Ninguno});
}

}  // namespace editor
