// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Indicacion.h"

#include <algorithm>

#include "editor/EnMano.h"

namespace editor {

using model::Siro;

namespace {

std::string_view DeSeleccion(const Siro& s)
{
    const model::Seleccion& sel = s.Seleccion;
    if (RedVacia(s.Red))
        return "La red está vacía: elija en la barra qué dibujar. Para salir, cierre la ventana (Alt+F4).";
    const bool icono = CuantosElegidos(sel) > (sel.CauceSel > 0);
    if (sel.CauceSel > 0 && icono) return "Dos componentes elegidos: clic derecho o F2 para acoplarlos.";
    if (sel.CauceSel > 0 && sel.VerticeSel > 0)
        return "Arrastre el vértice para moverlo; clic derecho o F2 para dividir el cauce en ese punto.";
    if (sel.CauceSel > 0 && sel.CauceAnterior > 0 && sel.CauceAnterior != sel.CauceSel)
        return "Dos cauces elegidos: clic derecho o F2 para acoplar el primero al segundo.";
    if (sel.CauceSel > 0)
        return "Clic en un vértice del cauce: lo toma; clic en otro componente: lo elige para acoplarlos.";
    if (icono)
        return "Arrastre el ícono para moverlo, o la marca debajo de él hasta el destino para acoplarlo.";
    return "Clic sobre un componente: lo elige; doble clic: edita sus propiedades.";
}

bool HayMarcas(const Dibujo& dibujo)
{
    const auto& primitivas = dibujo.Primitivas();
    return std::any_of(primitivas.begin(), primitivas.end(),
                       [](const Primitiva& p) { return p.papel == Papel::SinAcople; });
}

std::string_view DeTrazo(int clics, const Dibujo& dibujo)
{
    if (clics == 0 && HayMarcas(dibujo))
        return "Clic: primer vértice, aguas abajo. Marca naranja: extremos que se tocan sin estar acoplados.";
    if (clics == 0) return "Clic: primer vértice del cauce, en su extremo aguas abajo.";
    if (clics == 1) return "Clic: vértice siguiente del cauce, hacia aguas arriba.";
    if (clics < ClicsDeUnTrazo)
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

std::string_view Indicacion(Boton modo, std::int16_t clics, std::int16_t medidos, const Dibujo& dibujo,
                            const Siro& s)
{
    switch (modo) {
    case Boton::UEH:
        return "Clic: agrega una UHE en ese punto.";
    case Boton::Represa:
        return "Clic: agrega una Represa en ese punto.";
    case Boton::LAGO:
        return "Clic: agrega un Lago/Laguna en ese punto.";
    case Boton::Cauce:
        return DeTrazo(clics, dibujo);
    case Boton::LongArea:
        return DeMedicion(medidos);
    default:
        return DeSeleccion(s);
    }
}

}  // namespace editor
