// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsTabla.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "forms/Evento.h"
#include "hydraulics/mdlFQs.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"

namespace editor {

using model::NumeroATexto;
using model::Siro;

namespace {

using Textos = std::vector<std::string>;

/// Five columns alike in all blocks, nine whose meaning changes along the grid.
constexpr forms::ReglasGrilla Reglas{
    .encabezado = "^Componente|^Nro.|^       Nombre   |^     Afluente de|^    Método    |||||||||"};
constexpr std::size_t ColumnasComunes = 5;

std::string Texto(float x)
{
    return NumeroATexto(x);
}

std::string Texto(std::int16_t n)
{
    return NumeroATexto(std::int32_t{n});
}

std::string Texto(bool b)
{
    return b ? "Verdadero" : "Falso";
}

/// Adds a row; columns that it doesn't tell are empty.
void AgregaFila(forms::Grilla& g, Textos textos, bool esTitulo = false)
{
    textos.resize(g.columnas.size());
    g.filas.push_back({std::move(textos), esTitulo});
}

/// Adds the grey row that gives the columns beyond the common ones their titles.
void AgregaTitulos(forms::Grilla& g, Textos titulos)
{
    titulos.insert(titulos.begin(), ColumnasComunes, {});
    AgregaFila(g, std::move(titulos), true);
}

void AgregaCauces(forms::Grilla& g, const Siro& s)
{
    AgregaTitulos(g, {"Vértices", "Ind.Vért.", "Vel.Media", "Longitud", "Orden", "k Musk.", "x Musk."});
    for (const model::Cauce& c : s.Red.ColCauces)
        AgregaFila(
            g, {"Cauce", Texto(c.numCauce), c.NombreCauce, c.Cauce_aa, c.optDirMusk ? "Directo" : "Muskingum",
                Texto(c.numVertices), Texto(c.IndiceParInicial), Texto(c.VelMediaCauce), Texto(c.LongCauce),
                Texto(c.OrdenCauce), Texto(c.Cauce_k_Musk), Texto(c.Cauce_n_Musk)});
}

void AgregaUEHs(forms::Grilla& g, const Siro& s)
{
    AgregaTitulos(g, {"Area", "Long. Máx", "Vel.Media", "Infil.'a'", "Infil.'b'", "Humd", "Q ini", "'K' Rec.",
                      "Retens.Z"});
    for (const model::UEH& u : s.Red.ColUEHs)
        AgregaFila(g, {"UEH", Texto(u.numUEH), u.NombreUEH, u.Cauce_aa, u.Metodo, Texto(u.Area),
                       Texto(u.LongitudMax), Texto(u.VelMedia), Texto(u.KostiakovA), Texto(u.KostiakovB),
                       Texto(u.KostiakovI), Texto(u.Q0Recesion), Texto(u.KRecesion), Texto(u.RetensionZ)});
}

void AgregaLagos(forms::Grilla& g, const Siro& s)
{
    AgregaTitulos(g, {"k Musk.", "Hmin", "HMáx", "HInicio"});
    for (const model::Lago& l : s.Red.ColLagos)
        AgregaFila(g, {"Lag./Mallin", Texto(l.numLAGO), l.NombreLAGO, l.Cauce_aa, l.Metodo,
                       Texto(l.Lago_k_Musk), Texto(s.Red.LagoH(l.numLAGO, 1)),
                       Texto(s.Red.LagoH(l.numLAGO, s.Red.LagoFilas(l.numLAGO))), Texto(l.HInicialEmb)});
}

/// On or off, a, b, c, H min and H Máx of an outflow function, as the run-wide arrays have them.
Textos Funcion(const Siro& s, int numero, int funcion)
{
    Textos textos = {Texto(s.Red.FQActiva(numero, funcion))};
    const auto& coeficientes =
        s.Red.FQCoef.at(static_cast<std::size_t>(numero))[static_cast<std::size_t>(funcion)];
    for (std::size_t clase = 1; clase < coeficientes.size(); ++clase)
        textos.push_back(Texto(coeficientes[clase]));
    return textos;
}

void AgregaRepresa(forms::Grilla& g, const Siro& s, const model::Represa& r)
{
    const std::string numero = Texto(r.numRepresa);
    for (int funcion = 1; funcion <= model::NroFuncionesFQ; ++funcion) {
        Textos fila = funcion == 1 ? Textos{"Represa",        numero,   r.NombreRepresa,
                                            r.Cauce_aa,       r.Metodo, Texto(r.Represa_k_Musk),
                                            Texto(r.optTabla)}
                                   : Textos{"Represa", numero, {}, {}, {}, {}, {}};
        Textos valores = Funcion(s, r.numRepresa, funcion);
        fila.insert(fila.end(), valores.begin(), valores.end());
        if (funcion == 1) fila.push_back(Texto(r.HInicialEmb));
        AgregaFila(g, std::move(fila));
    }
}

void AgregaRepresas(forms::Grilla& g, const Siro& s)
{
    AgregaTitulos(g, {"k Musk.", "Opc.Tabla", "Función", "a", "b", "c", "Hmin", "HMáx", "HInicio"});
    for (const model::Represa& r : s.Red.ColRepresas)
        AgregaRepresa(g, s, r);
}

/// What a run would load.
void LeeTodo(Siro& s)
{
    model::LeeUEHs(s);
    if (s.Red.NroRepresas() > 0) {
        model::LeeTablaHQRepresa(s);
        model::LeeTablaHSVRepresa(s);
    }
    if (s.Red.NroLagos() > 0) model::LeeTablaHSVQLago(s);
    hydraulics::CargaFQs(s.Red);
}

void Llena(dlgUEHsTabla& f, Siro& s)
{
    forms::Grilla& g = f.MSFlexGridTablaUEHs;
    g = forms::NuevaGrilla(Reglas);
    forms::Evento(s, [&] { LeeTodo(s); });
    f.lblProyecto = s.Proyecto.NombreProyecto;
    f.lblTitulo = s.Configuracion.TituloProyecto;
    f.lblFileProyecto = model::ArchivoConf(s.Proyecto.NombreProyecto);
    for (const auto agrega : {AgregaCauces, AgregaUEHs, AgregaLagos, AgregaRepresas})
        forms::Evento(s, [&] { agrega(g, s); });
}

}  // namespace

void Abre(dlgUEHsTabla& f, Siro& s)
{
    if (!s.Anfitrion.ResguardaDibujo(model::Riesgo::ReleeRed)) return;
    f.abierta = true;
    Llena(f, s);
}

void cmdActualizar(dlgUEHsTabla& f, Siro& s)
{
    if (s.Anfitrion.ResguardaDibujo(model::Riesgo::ReleeRed)) Llena(f, s);
}

void OKButton(dlgUEHsTabla& f)
{
    f.abierta = false;
}

}  // namespace editor
