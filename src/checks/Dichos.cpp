// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cstddef>

#include "checks/Reglas.h"
#include "model/Clases.h"

namespace checks {

namespace {

/// A box of a run, known by some of its words. Not told again where a rule has found one of the numbers from
/// `desde` to `numero`.
struct FilaDicho {
    std::string_view palabras;
    int desde, numero;
    const char* que;
    const char* remedio;
};

// clang-format off
constexpr auto Dichos = std::to_array<FilaDicho>({
    {"Debe haber al menos una Unidad", 201, 201, "No hay ninguna UEH", "Cargue al menos una en el editor."},
    {"no ha cargado correctamente las superficies", 202, 202, "La superficie de las UEHs suma 0", "Corrija las superficies."},
    {"Velocidad media de la gota", 203, 203, "La velocidad media en ladera de una UEH es 0", "Corríjala."},
    {"Longitud máxima de la gota", 204, 204, "La longitud máxima en ladera de una UEH es 0", "Corríjala."},
    {"debe ser múltiplo del paso de cálculo", 205, 205, "El paso del modelo no es múltiplo del paso de salida", "Elija pasos de los que uno contenga al otro un número entero de veces."},
    {"es una sección final de control", 207, 207, "Ningún componente es salida de la cuenca", "Deje Drena a en 0 en el componente final."},
    {"sin aportes de UEHs", 209, 209, "Hay componentes en los que nada drena", "Enlácelos o bórrelos."},
    {"Error en la carga de datos de UEHS. Revise", 207, 210, "La red no se puede ordenar", "Revise los enlaces de la red."},
    {"El parámetro de Longitud de Cauce", 211, 211, "La longitud de un tramo es 0", "Corríjala."},
    {"El parámetro de Velocidad Media", 212, 212, "La velocidad de un tramo es 0", "Corríjala."},
    {"Los parámetros de Muskingum", 213, 213, "La corrida rechaza los parámetros de Muskingum", "Cambie K o x."},
    {"Seleccione el método de propagación", 214, 214, "Un lago o una represa no tiene método de propagación", "Elíjalo en sus propiedades."},
    {"El parámetro de Singh", 215, 215, "La constante de recesión de una UEH es incorrecta", "Corríjala."},
    {"supera el máximo", 260, 260, "El agua pasa por encima de la tabla y la corrida sigue con 0", "Amplíe la tabla hacia arriba, o revise la descarga."},
    {"más elevado que el de cálculo", 261, 261, "El agua queda por debajo de la tabla y la corrida sigue con 0", "Amplíe la tabla hacia abajo, o revise la altura inicial."},
    {"es CERO. ¿Desea continuar?", 262, 262, "La superficie del embalse es 0 y la corrida sigue sin variación de altura", "Corrija las superficies de la tabla."},
    {"cálculo de H=f(Q)", 263, 263, "No se halla la altura para un caudal y la corrida termina", "Amplíe las alturas y los caudales."},
    {"cálculo de <2S/dt + Q>", 264, 264, "La piscina nivelada no converge y la corrida termina", "Amplíe las tablas."},
    {"Error Nro.", 265, 265, "Un número se sale de lo que la corrida puede llevar", "Busque entre los hallazgos un valor desmedido, o acorte la simulación."},
});
// clang-format on

const FilaDicho* Busca(std::string_view texto)
{
    const auto fila = std::find_if(Dichos.begin(), Dichos.end(), [&](const FilaDicho& d) {
        return texto.find(d.palabras) != std::string_view::npos;
    });
    return fila == Dichos.end() ? nullptr : &*fila;
}

/// Whether the rules, whose findings are the first `reglas` ones, or an earlier box have told it.
bool YaEsta(const Hallazgos& l, std::size_t reglas, const FilaDicho& d, std::string_view componente)
{
    for (std::size_t i = 0; i < l.size(); ++i) {
        const bool deRegla = i < reglas && l[i].gravedad == Gravedad::Error && l[i].numero >= d.desde;
        if (deRegla && l[i].numero <= d.numero) return true;
        if (l[i].numero == d.numero && l[i].componente == componente) return true;
    }
    return false;
}

/// The longest name of a component that stands in a text.
std::string Nombrado(const model::Red& red, std::string_view texto)
{
    std::string nombre;
    model::CadaComponente(red, [&](const auto& c) {
        if (model::Nombre(c).size() > nombre.size() && texto.find(model::Nombre(c)) != std::string_view::npos)
            nombre = model::Nombre(c);
    });
    return nombre;
}

}  // namespace

void TraduceDichos(const model::Red& red, const engine::Calculo& corrida, Hallazgos& l)
{
    const std::size_t reglas = l.size();
    for (const engine::AvisoDeCalculo& a : corrida.avisos) {
        const std::string &texto = a.mensaje.texto, componente = Nombrado(red, texto);
        const FilaDicho* const d = Busca(texto);
        const std::string veces = a.veces == 1 ? "" : std::to_string(a.veces) + " veces";
        if (d == nullptr)
            l.push_back({Gravedad::Error, 299, componente, "La corrida dice: " + EnUnaLinea(texto), veces,
                         "Verifique."});
        else if (!YaEsta(l, reglas, *d, componente))
            l.push_back({Gravedad::Error, d->numero, componente, d->que, veces, d->remedio});
    }
}

}  // namespace checks
