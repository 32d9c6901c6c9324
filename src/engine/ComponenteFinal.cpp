// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ComponenteFinal.h"

#include <string_view>
#include <unordered_set>

#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "model/Resultados.h"
#include "model/Siro.h"

namespace engine {

using model::Falla;
using model::Siro;

namespace {

constexpr std::string_view TituloSinSalida = "Error, Verifique Componente final del sistema";
constexpr std::string_view TextoSinSalida =
    "Error, ningun componente ingresado es una sección final de control o de salida del sistema. Al menos un "
    "componente debe tener el campo <Drena a< = <0> o <cadena nula>. ¿Desea volver a la ventana de edición  "
    "(SI) o continuar (No) ?";
constexpr std::string_view TituloAportes = "Advertencia !!!";
constexpr std::string_view CaucesSinAporte =
    "Hay tramos de Cauces sin aportes de UEHs. Verifique los tramos siguientes y asigne sus UEH o "
    "componentes de aportes: ";
constexpr std::string_view RepresasSinAporte =
    "Hay represas sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o componentes de "
    "aportes: ";
// "represas" is kept as it stands
constexpr std::string_view LagosSinAporte =
    "Hay Lagos/Mallines sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o "
    "componentes de aportes: ";
constexpr std::string_view VariasSalidas =
    "Hay más de un componente de descarga para el sistema (sección final de control). El sistema admite esta "
    "posibilidad para el cálculo para un máximo de 10 componentes, pero si el sistema es de salida final "
    "única debe verificar los campos <Drena a> de los siguientes componentes:";
constexpr std::string_view Cola = "         ¿Desea volver a la ventana de edición  (SI) o continuar (No) ?";
constexpr std::string_view Separacion = "    ";

/// Names that may be drained into, and names that something drains into.
struct Destinos {
    std::unordered_set<std::string_view> posibles;
    std::unordered_set<std::string_view> alimentados;
};

Destinos BuscaDestinos(const model::Red& red)
{
    Destinos d;
    model::CadaReceptor(red, [&](const auto& c) { d.posibles.insert(model::Nombre(c)); });
    model::CadaComponente(red, [&](const auto& c) { d.alimentados.insert(c.Cauce_aa); });
    return d;
}

void AnotaSalida(Siro& s, const std::string& nombre)
{
    model::Resultados& r = s.Resultados;
    r.NroSalidas = model::Suma16(r.NroSalidas, 1);
    model::Sentencia(
        [&] {
            if (r.NroSalidas > model::MaxSalidas) throw Falla{model::NumeroFalla::Subindice};
            r.Salidas[static_cast<std::size_t>(r.NroSalidas)] = nombre;
        },
        model::AvisaMotor(s));
}

void BuscaSalidas(Siro& s, const Destinos& d)
{
    s.Resultados.NroSalidas = 0;
    model::CadaComponente(s.Red, [&](const auto& c) {
        if (!model::EsDestino(c.Cauce_aa) || !d.posibles.contains(c.Cauce_aa))
            AnotaSalida(s, model::Nombre(c));
    });
}

/// `lista`: what stands behind the words of the question, the names of components first.
void PreguntaPorLaRed(Siro& s, std::string_view texto, const std::string& lista, std::string_view titulo)
{
    std::string palabras(texto);
    if (!model::Consulta(s, palabras + lista, titulo, palabras)) s.Control.ContinuarSinCorregir = true;
}

/// Asks about the components of one kind that nothing drains into.
template <typename T>
void CompruebaAportes(Siro& s, const Destinos& d, std::string_view texto)
{
    std::string lista;
    for (const T& c : model::Todos<T>(s.Red))
        if (!model::EsDestino(model::Nombre(c)) || !d.alimentados.contains(model::Nombre(c)))
            lista.append(model::Nombre(c)).append(Separacion);
    if (lista.empty()) return;
    PreguntaPorLaRed(s, texto, lista.append(Cola), TituloAportes);
    s.Control.ErrorRed = true;
}

void PreguntaPorSalidas(Siro& s)
{
    std::string lista;
    for (int i = 1; i <= s.Resultados.NroSalidas && i <= model::MaxSalidas; ++i)
        lista.append(s.Resultados.Salidas[static_cast<std::size_t>(i)]).append(Separacion);
    PreguntaPorLaRed(s, VariasSalidas, lista.append(Cola), TituloAportes);
}

}  // namespace

void RehaceSecuencia(Siro& s)
{
    int cuenta = 0;
    model::CadaClase(s.Red, [&](const auto& coleccion) { cuenta += coleccion.Cuenta(); });
    s.Resultados.NroComponentes = model::Entero16(cuenta);
    s.Resultados.Secuencia.assign(1, {});
    model::CadaComponente(s.Red, [&](const auto& c) { s.Resultados.Secuencia.push_back(model::Nombre(c)); });
}

void ComponenteFinal(Siro& s)
{
    s.Control.ErrorRed = false;
    s.Control.ContinuarSinCorregir = false;
    s.Control.RedOk = false;
    RehaceSecuencia(s);
    const Destinos d = BuscaDestinos(s.Red);
    BuscaSalidas(s, d);

    if (s.Resultados.NroSalidas == 0 && s.Resultados.NroComponentes > 0) {
        PreguntaPorLaRed(s, TextoSinSalida, {}, TituloSinSalida);
        s.Control.ErrorRed = true;
    }
    CompruebaAportes<model::Cauce>(s, d, CaucesSinAporte);
    CompruebaAportes<model::Represa>(s, d, RepresasSinAporte);
    CompruebaAportes<model::Lago>(s, d, LagosSinAporte);
    if (s.Resultados.NroSalidas == 1) {
        s.Control.RedOk = !s.Control.ContinuarSinCorregir;
        return;
    }
    if (s.Resultados.NroComponentes < 2) return;
    if (!s.Control.AvisoDescargasVisto) PreguntaPorSalidas(s);
}

}  // namespace engine
