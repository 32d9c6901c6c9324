// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modCalculoLongArea.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

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
double SumaDeLados(const Medicion& m, F lado)
{
    double suma = 0;
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(m.NroPuntosMedida); ++i)
        suma += lado(m.En(i), m.En(i + 1));
    return suma;
}

double DobleTrapecio(Punto a, Punto b)
{
    return (double{1} * b.Y - a.Y) * (double{1} * b.X + a.X);
}

}  // namespace

void AgregaPuntoMedida(Medicion& m, Punto p)
{
    m.NroPuntosMedida = model::Suma16(m.NroPuntosMedida, 1);
    const auto n = static_cast<std::size_t>(m.NroPuntosMedida);
    m.XMedida.resize(n + 1);
    m.YMedida.resize(n + 1);
    m.XMedida[n] = p.X;
    m.YMedida[n] = p.Y;
}

void CalculaLongArea(Medicion& m, const Siro& s)
{
    if (m.NroPuntosMedida < 1) return;
    const bool cerrada = model::Consulta(s, std::string(PreguntaCierre), TituloCierre);
    if (cerrada) {
        AgregaPuntoMedida(m, m.En(1));
        s.Anfitrion.RedibujaEditor();  // the box stands over the closed figure
    }
    const double escala = model::Val(s.Configuracion.EscalaDibujo);  // [m per drawing unit]
    m.LongitudMedida = Simple(SumaDeLados(m, Largo) * escala);
    m.AreaMedida = cerrada ? Simple(escala * escala * SumaDeLados(m, DobleTrapecio) / 2 / M2PorHa) : 0;
    m.NroPuntosMedida = 0;

    // "Perímetro=" of an open line too: kept as it stands.
    m.lblLongArea = "Perímetro=" + NumeroATexto(std::floor(double{m.LongitudMedida})) + " metros";
    if (cerrada) m.lblLongArea += "    -    Area = " + NumeroATexto(m.AreaMedida) + " Has";
    s.Anfitrion.Avisa(
        {m.lblLongArea, std::string(cerrada ? TituloCerrada : TituloAbierta), model::Icono::Ninguno});
}

}  // namespace editor
