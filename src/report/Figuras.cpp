// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "report/Filas.h"

// What is shown as pictures.
namespace report {
namespace {

using Clase = Figura::Clase;

FiguraPuesta De(Clase clase, std::string titulo, std::vector<std::string> componentes = {})
{
    return {.titulo = std::move(titulo), .figura = {clase, std::move(componentes)}};
}

std::vector<std::string> Elegidos(const Fuente& f)
{
    std::vector<std::string> nombres;
    for (const auto* const c : f.elegidos)
        nombres.emplace_back(c->nombre);
    return nombres;
}

std::vector<FiguraPuesta> Red(const Fuente& f)
{
    if (f.red.ColUEHs.Cuenta() + f.red.ColCauces.Cuenta() + f.red.ColRepresas.Cuenta() +
            f.red.ColLagos.Cuenta() ==
        0)
        return {};
    return {De(Clase::Red, "La cuenca y su red")};
}

std::vector<FiguraPuesta> Hietograma(const Fuente& f)
{
    if (f.una == nullptr) return {};
    return {De(Clase::Hietograma, "Hietograma de la tormenta")};
}

std::vector<FiguraPuesta> Hidrogramas(const Fuente& f)
{
    std::vector<FiguraPuesta> figuras;
    for (const std::string& nombre : Elegidos(f))
        figuras.push_back(De(Clase::Hidrograma, "Hidrograma de " + nombre, {nombre}));
    return figuras;
}

std::vector<FiguraPuesta> Juntos(const Fuente& f)
{
    if (f.elegidos.size() < 2) return {};
    return {De(Clase::Hidrograma, "Hidrogramas de salida de " + Enumera(Elegidos(f)), Elegidos(f))};
}

std::vector<FiguraPuesta> DeEmbalses(const Fuente& f, Clase clase, const std::string& titulo, bool conAlturas)
{
    std::vector<FiguraPuesta> figuras;
    for (const auto* const c : f.elegidos)
        if (c->embalse && c->embalse->TieneTabla() && (!conAlturas || f.ConAlturas(*c)))
            figuras.push_back(De(clase, titulo + std::string(c->nombre), {std::string(c->nombre)}));
    return figuras;
}

std::vector<FiguraPuesta> Abacos(const Fuente& f)
{
    std::vector<FiguraPuesta> figuras;
    for (const std::string& nombre : f.elegidosDeSerie)
        figuras.push_back(
            De(Clase::Abaco, "Caudal máximo de " + nombre + " por duración y recurrencia", {nombre}));
    return figuras;
}

constexpr auto Filas = std::to_array<FilaDeFigura>({
    {"red", "el mapa con la red", "La red no tiene componentes.", Red},
    {"hietograma", "el hietograma de la tormenta", "No hay una tormenta corrida.", Hietograma},
    {"hidrogramas", "los hidrogramas de los componentes elegidos, uno por figura", "No hay hidrogramas.",
     Hidrogramas},
    {"hidrogramas_juntos", "los mismos en una figura, si son dos o más",
     "No hay dos hidrogramas para comparar.", Juntos},
    {"alturas", "la altura del agua en las represas y los lagos elegidos",
     "No hay alturas de represas ni de lagos.",
     [](const Fuente& f) { return DeEmbalses(f, Clase::Embalse, "Altura del agua en ", true); }},
    {"curvas", "almacenamiento y descarga de las represas y los lagos elegidos, por altura",
     "No hay tablas de represas ni de lagos.",
     [](const Fuente& f) {
         return DeEmbalses(f, Clase::CurvasHASQ, "Almacenamiento y descarga de ", false);
     }},
    {"abacos", "los ábacos de los componentes elegidos", "No hay una serie corrida.", Abacos},
    {"frecuencia", "los máximos anuales y la ley, en papel de probabilidad",
     "No hay máximos anuales analizados.",
     [](const Fuente& f) {
         return f.estudio.analisis ? std::vector{De(Clase::Frecuencia, "Máximos anuales y ley tomada")}
                                   : std::vector<FiguraPuesta>{};
     }},
    {"idf", "las curvas de intensidad", "No hay curvas de intensidad.",
     [](const Fuente& f) {
         return f.estudio.curvas ? std::vector{De(Clase::Idf, "Curvas de intensidad, duración y recurrencia")}
                                 : std::vector<FiguraPuesta>{};
     }},
});

}  // namespace

std::span<const FilaDeFigura> FilasDeFigura()
{
    return Filas;
}

}  // namespace report
