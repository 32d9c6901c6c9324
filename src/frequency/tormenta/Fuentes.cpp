// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Fuentes.h"

#include <memory>
#include <string>
#include <utility>

#include "frequency/idf/Curvas.h"
#include "frequency/idf/EscribeIdf.h"
#include "frequency/tormenta/EscribeLluvia.h"

namespace frequency {
namespace {

/// "curvas Sherman (k 822, a 0.2, b 10, c 0.8), coeficientes escritos"
std::string DeDonde(const study::Idf& pedido, const idf::Curvas& curvas)
{
    const idf::Familia* const familia = idf::FamiliaDeClave(pedido.familia);
    std::string t = familia == nullptr ? "láminas" : "curvas " + std::string(familia->nombre);
    if (familia != nullptr && !familia->porRecurrencia && !curvas.ajuste.coeficientes.empty())
        t += " (" + idf::TextoDeCoeficientes(*familia, curvas.ajuste.coeficientes.front().c) + ")";
    if (pedido.origen == "coeficientes") return t + ", coeficientes escritos";
    if (curvas.desagregacion != nullptr) t += ", " + std::string(curvas.desagregacion->nombre);
    return pedido.estacion.empty() ? t : t + ", " + pedido.estacion;
}

}  // namespace

void PonCurvas(FuentesDeTormenta& fuentes, const study::Idf& pedido,
               const std::vector<study::Estacion>& estaciones)
{
    const auto curvas = std::make_shared<const idf::Curvas>(idf::Calcula(pedido, estaciones));
    fuentes.curvas = {};
    fuentes.deDonde.clear();
    fuentes.sinCurvas.clear();
    for (const std::string& error : curvas->errores)
        fuentes.sinCurvas += (fuentes.sinCurvas.empty() ? "" : " ") + error;
    if (!curvas->errores.empty()) return;
    fuentes.curvas = [curvas](double minutos, double anios) { return idf::Lamina(*curvas, minutos, anios); };
    fuentes.deDonde = DeDonde(pedido, *curvas);
}

void PonGrabada(FuentesDeTormenta& fuentes, const study::TormentaDeDiseno& t, const model::Siro& s)
{
    fuentes.grabada.clear();
    fuentes.sinGrabada.clear();
    if (PatronDeClave(t.patron) != &Registrada) return;
    if (t.archivo.empty()) {
        fuentes.sinGrabada = "Falta elegir la tormenta registrada.";
        return;
    }
    Grabada g = LeeGrabada(s, t.archivo);
    fuentes.grabada = std::move(g.laminas);
    fuentes.sinGrabada = g.error;
}

}  // namespace frequency
