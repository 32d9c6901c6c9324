// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Arregla.h"
#include "checks/Reglas.h"
#include "engine/Embalses.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

using model::NumeroATexto;

namespace {

void RevisaUEH(const model::UEH& u, Hallazgos& l)
{
    constexpr const char* Remedio = "Corríjala en las propiedades de la UEH.";
    if (!(u.Area > 0))
        l.push_back({Gravedad::Error, 202, u.NombreUEH, "La superficie no es mayor que 0",
                     NumeroATexto(u.Area) + " ha", Remedio});
    if (!(u.VelMedia > 0))
        l.push_back({Gravedad::Error, 203, u.NombreUEH, "La velocidad media en ladera no es mayor que 0",
                     NumeroATexto(u.VelMedia) + " m/s", Remedio});
    if (!(u.LongitudMax > 0))
        l.push_back({Gravedad::Error, 204, u.NombreUEH, "La longitud máxima en ladera no es mayor que 0",
                     NumeroATexto(u.LongitudMax) + " m", Remedio});
}

/// K and x that a run would refuse, by the run's own test, and the nearest ones that it takes.
void RevisaMuskingum(const std::string& componente, ParMuskingum par, std::int16_t PasoQ, bool conX,
                     Hallazgos& l)
{
    if (PasaMuskingum(par, PasoQ)) return;
    const auto texto = [&](ParMuskingum p) {
        return "K " + NumeroATexto(p.K) + " min" + (conX ? ", x " + NumeroATexto(p.x) : "");
    };
    Hallazgo h{Gravedad::Error,
               213,
               componente,
               "La suma de los coeficientes de Muskingum no da 1 exacto y la corrida se detiene",
               texto(par) + ", paso " + NumeroATexto(std::int32_t{PasoQ}) + " min",
               conX ? "Cambie K o x, o la propagación a Directa." : "Cambie K, o el método de propagación."};
    if (const auto cercano = MuskingumCercano(par, PasoQ, conX)) {
        h.remedio = "El más cercano que pasa es " + texto(*cercano) + ".";
        h.arreglo = Arreglo::MuskingumCercano;
    }
    l.push_back(h);
}

void RevisaCauce(const model::Cauce& c, std::int16_t PasoQ, Hallazgos& l)
{
    constexpr const char* Remedio = "Corríjala en las propiedades del tramo.";
    if (!c.optDirMusk)
        return RevisaMuskingum(c.NombreCauce, {c.Cauce_k_Musk, c.Cauce_n_Musk}, PasoQ, true, l);
    if (!(c.LongCauce > 0))
        l.push_back({Gravedad::Error, 211, c.NombreCauce, "La longitud del tramo no es mayor que 0",
                     NumeroATexto(c.LongCauce) + " m", Remedio});
    if (!(c.VelMediaCauce > 0))
        l.push_back({Gravedad::Error, 212, c.NombreCauce,
                     "La velocidad de la propagación directa no es mayor que 0",
                     NumeroATexto(c.VelMediaCauce) + " m/s", Remedio});
}

void RevisaEmbalse(const auto& e, float K, std::int16_t PasoQ, Hallazgos& l)
{
    if (!engine::MetodoConocido(e.Metodo))
        l.push_back({Gravedad::Error, 214, model::Nombre(e), "No tiene método de propagación",
                     e.Metodo.empty() ? "" : "\"" + e.Metodo + "\"", "Elíjalo en sus propiedades."});
    else if (e.Metodo == engine::MetodoMuskingum)
        RevisaMuskingum(model::Nombre(e), {K, 0}, PasoQ, false, l);
}

}  // namespace

void RevisaComponentes(const model::Red& red, std::int16_t PasoQ, Hallazgos& l)
{
    if (red.ColUEHs.Cuenta() == 0)
        l.push_back(
            {Gravedad::Error, 201, "", "No hay ninguna UEH", "", "Cargue al menos una en el editor."});
    for (const model::UEH& u : red.ColUEHs)
        RevisaUEH(u, l);
    for (const model::Cauce& c : red.ColCauces)
        RevisaCauce(c, PasoQ, l);
    for (const model::Lago& e : red.ColLagos)
        RevisaEmbalse(e, e.Lago_k_Musk, PasoQ, l);
    for (const model::Represa& e : red.ColRepresas)
        RevisaEmbalse(e, e.Represa_k_Musk, PasoQ, l);
}

}  // namespace checks
