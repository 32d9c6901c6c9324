// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/CuadroDePuntajes.h"

#include <optional>
#include <utility>

#include "model/Numeros.h"

namespace calibration {
namespace {

forms::Planilla Encabezada(const std::string& tema)
{
    return {{"Puntajes", tema},
            {{"Puntaje", true}, {"Valor"}, {"Unidad", true}, {"Mejor"}, {"Fórmula", true}, {"Fuente", true}},
            {}};
}

/// A letter of Spanish words as a sentence begins; they begin without accents.
std::string ComoFrase(std::string palabras)
{
    if (palabras.empty()) return palabras;
    palabras[0] = static_cast<char>(palabras[0] - 'a' + 'A');
    return palabras + ". ";
}

}  // namespace

void Pon(CuadroDePuntajes& c, const Emparejados& emparejados, const std::string& tema)
{
    forms::Planilla p = Encabezada(tema);
    for (const Puntaje& puntaje : Puntajes()) {
        const std::optional<double> valor = puntaje.valor(emparejados.pares);
        p.filas.push_back({std::string(puntaje.nombre), Texto(puntaje, valor), std::string(puntaje.unidad),
                           model::NumeroATexto(puntaje.mejor), std::string(puntaje.formula),
                           std::string(puntaje.fuente)});
    }
    c.lblPuntajes = ComoFrase(EnPalabras(emparejados.pares)) + CuantosPares(emparejados);
    p.titulos.push_back(c.lblPuntajes);
    forms::PonFilas(c.tblPuntajes, std::move(p));
}

void Vacia(CuadroDePuntajes& c, const std::string& motivo)
{
    c.lblPuntajes = motivo;
    forms::PonFilas(c.tblPuntajes, Encabezada(""));
}

}  // namespace calibration
