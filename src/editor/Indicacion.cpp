// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Indicacion.h"

#include <algorithm>

#include "editor/frmUEHs.h"

namespace editor {

using model::Siro;

namespace {

constexpr int ClicsAntesDelUltimo = 20;  // the click after them finishes the reach

std::string_view DeSeleccion(const Siro& s)
{
    if (RedVacia(s))
        return "La red está vacía: elija en la barra qué dibujar. Para salir, cierre la ventana (Alt+F4).";
    const bool icono = s.Seleccion.UEHSel > 0 || s.Seleccion.RepresaSel > 0 || s.Seleccion.LagoSel > 0;
    if (s.Seleccion.CauceSel > 0 && icono)
        return "Dos componentes elegidos: clic derecho o F2 para acoplarlos.";
    if (s.Seleccion.CauceSel > 0 && s.Seleccion.VerticeSel > 0)
        return "Arrastre el vértice para moverlo; clic derecho o F2 para dividir el cauce en ese punto.";
    if (s.Seleccion.CauceSel > 0 && s.Seleccion.CauceAnterior > 0 &&
        s.Seleccion.CauceAnterior != s.Seleccion.CauceSel)
        return "Dos cauces elegidos: clic derecho o F2 para acoplar el primero al segundo.";
    if (s.Seleccion.CauceSel > 0)
        return "Clic en un vértice del cauce: lo toma; clic en otro componente: lo elige para acoplarlos.";
    if (icono)
        return "Arrastre el ícono para moverlo, o la marca debajo de él hasta el destino para acoplarlo.";
    return "Clic sobre un componente: lo elige; doble clic: edita sus propiedades.";
}

bool HayMarcas(const frmUEHs& f)
{
    const auto& primitivas = f.dibujo.Primitivas();
    return std::any_of(primitivas.begin(), primitivas.end(),
                       [](const Primitiva& p) { return p.papel == Papel::SinAcople; });
}

std::string_view DeTrazo(const frmUEHs& f)
{
    const int clics = f.ClicsCauce;
    if (clics == 0 && HayMarcas(f))
        return "Clic: primer vértice, aguas abajo. Marca naranja: extremos que se tocan sin estar acoplados.";
    if (clics == 0) return "Clic: primer vértice del cauce, en su extremo aguas abajo.";
    if (clics == 1) return "Clic: vértice siguiente del cauce, hacia aguas arriba.";
    if (clics < ClicsAntesDelUltimo)
        return "Clic: vértice siguiente, hacia aguas arriba; doble clic o Enter: termina el cauce.";
    return "Clic: último vértice; el cauce queda terminado.";
}

std::string_view DeMedicion(int puntos)
{
    if (puntos == 0) return "Clic: primer punto de la línea que se mide.";
    if (puntos < 3) return "Clic: punto siguiente; doble clic: termina y calcula.";
    return "Clic: punto siguiente; doble clic o Enter: termina y calcula.";
}

}  // namespace

std::string_view Indicacion(const frmUEHs& f, const Siro& s)
{
    switch (Modo(f)) {
    case Boton::UEH:
        return "Clic: agrega una UHE en ese punto.";
    case Boton::Represa:
        return "Clic: agrega una Represa en ese punto.";
    case Boton::LAGO:
        return "Clic: agrega un Lago/Laguna en ese punto.";
    case Boton::Cauce:
        return DeTrazo(f);
    case Boton::LongArea:
        return DeMedicion(f.NroPuntosMedida);
    default:
        return DeSeleccion(s);
    }
}

}  // namespace editor
