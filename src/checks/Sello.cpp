// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Sello.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "checks/Huella.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace checks {

namespace {

using model::FormaLluvia;
using model::NumeroATexto;

/// By DistriPp.
constexpr auto Distribuciones = std::to_array<std::string_view>({
    "intensidad constante",
    "López Cadenas",
    "Ruvera 12/5/92 (1)",
    "Ruvera 12/5/92 (2)",
    "Ruvera 23-24/4/98",
    "personalizada 1",
    "personalizada 2",
    "personalizada 3",
});

std::string PorUEH(const model::Siro& s)
{
    float menor = 0, mayor = 0;
    const int n = std::min<int>(s.Red.NroUEHs(), s.Tormenta.PpUEH.Tope());
    for (int i = 1; i <= n; ++i) {
        const float P = s.Tormenta.PpUEH(i);
        menor = i == 1 ? P : std::min(menor, P);
        mayor = i == 1 ? P : std::max(mayor, P);
    }
    return "Lluvia por UEH: P de " + NumeroATexto(menor) + " a " + NumeroATexto(mayor) + " mm, D " +
           NumeroATexto(s.Tormenta.DurTormenta) + " min";
}

std::string Lamina(const model::Tormenta& t)
{
    std::string texto = "P " + NumeroATexto(t.PpTormenta) + " mm, D " + NumeroATexto(t.DurTormenta) + " min";
    if (t.RecTormenta > 0) texto += ", R " + NumeroATexto(t.RecTormenta) + " años";
    return texto;
}

}  // namespace

std::string TormentaEnMano(const model::Siro& s)
{
    const model::Tormenta& t = s.Tormenta;
    std::string texto;
    if (t.FormaPp == FormaLluvia::SeriePDR)
        texto = s.Serie.NroSeriePDR < 1 ? "Serie sin tormentas"
                                        : "Serie de " + NumeroATexto(s.Serie.NroSeriePDR) +
                                              " tormentas, tabla " + NumeroATexto(t.TablaPDR);
    else if (t.DurTormenta == 0 || (t.PpTormenta == 0 && t.FormaPp != FormaLluvia::PorUEH))
        return "Sin tormenta";
    else if (t.FormaPp == FormaLluvia::PorUEH)
        texto = PorUEH(s);
    else if (t.FormaPp == FormaLluvia::Real)
        texto = "Tormenta real: " + Lamina(t);
    else
        texto = std::string(t.FormaPp == FormaLluvia::DeLista ? "De la lista: " : "Tormenta: ") + Lamina(t);
    if (t.FormaPp != FormaLluvia::Real) texto += ", " + NombreDeDistribucion(t.DistriPp);
    return texto + ", pasos " + NumeroATexto(s.Pasos.PasoPp) + "/" + NumeroATexto(s.Pasos.PasoQ) + " min";
}

std::string NombreDeDistribucion(std::int16_t indice)
{
    const bool esta = indice >= 0 && static_cast<std::size_t>(indice) < Distribuciones.size();
    return esta ? std::string(Distribuciones[static_cast<std::size_t>(indice)])
                : "distribución " + NumeroATexto(indice);
}

Sello SelloDe(const model::Siro& s)
{
    const bool serie = s.Tormenta.FormaPp == FormaLluvia::SeriePDR;
    return {
        .proyecto = model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto),
        .nombre = s.Proyecto.NombreProyecto,
        .red = HuellaDeRed(s.Red),
        .lluvia = HuellaDeLluvia(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia, serie ? &s.Serie : nullptr),
        .tormenta = TormentaEnMano(s),
        .serie = serie};
}

std::string QueDifiere(const Sello& mostrado, const Sello& ahora, Alcance alcance)
{
    if (mostrado.proyecto != ahora.proyecto) return "es del proyecto " + mostrado.nombre;
    if (alcance == Alcance::Serie && !mostrado.serie) return "no es de una serie (" + mostrado.tormenta + ")";
    std::string texto;
    const auto agrega = [&](const std::string& que) { texto += (texto.empty() ? "" : "; ") + que; };
    if (alcance != Alcance::Red && mostrado.lluvia != ahora.lluvia)
        agrega(mostrado.tormenta == ahora.tormenta ? "la lluvia ha cambiado"
                                                   : "la lluvia era otra (" + mostrado.tormenta + ")");
    if (alcance != Alcance::Tormenta && mostrado.red != ahora.red) agrega("la red ha cambiado");
    return texto;
}

}  // namespace checks
