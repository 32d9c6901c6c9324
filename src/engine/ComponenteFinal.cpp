// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ComponenteFinal.h"

#include <string_view>
#include <unordered_set>

#include "model/Avisos.h"
#include "model/Numeros.h"

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

bool EsDestino(std::string_view nombre)
{
    return !nombre.empty() && nombre != "0";
}

/// Names that may be drained into, and names that something drains into.
struct Destinos {
    std::unordered_set<std::string_view> posibles;
    std::unordered_set<std::string_view> alimentados;
};

Destinos BuscaDestinos(const Siro& s)
{
    Destinos d;
    for (const auto& c : s.Red.ColCauces)
        d.posibles.insert(c.NombreCauce);
    for (const auto& l : s.Red.ColLagos)
        d.posibles.insert(l.NombreLAGO);
    for (const auto& r : s.Red.ColRepresas)
        d.posibles.insert(r.NombreRepresa);
    for (const auto& u : s.Red.ColUEHs)
        d.alimentados.insert(u.Cauce_aa);
    for (const auto& c : s.Red.ColCauces)
        d.alimentados.insert(c.Cauce_aa);
    for (const auto& l : s.Red.ColLagos)
        d.alimentados.insert(l.Cauce_aa);
    for (const auto& r : s.Red.ColRepresas)
        d.alimentados.insert(r.Cauce_aa);
    return d;
}

void AnotaSalida(Siro& s, const Destinos& d, const std::string& nombre, const std::string& Cauce_aa)
{
    if (EsDestino(Cauce_aa) && d.posibles.contains(Cauce_aa)) return;
    s.Resultados.NroSalidas = model::Suma16(s.Resultados.NroSalidas, 1);
    model::Sentencia(
        [&] {
            if (s.Resultados.NroSalidas > model::MaxSalidas) throw Falla{model::NumeroFalla::Subindice};
            s.Resultados.Salidas[static_cast<std::size_t>(s.Resultados.NroSalidas)] = nombre;
        },
        model::AvisaMotor(s));
}

void BuscaSalidas(Siro& s, const Destinos& d)
{
    s.Resultados.NroSalidas = 0;
    for (const auto& u : s.Red.ColUEHs)
        AnotaSalida(s, d, u.NombreUEH, u.Cauce_aa);
    for (const auto& c : s.Red.ColCauces)
        AnotaSalida(s, d, c.NombreCauce, c.Cauce_aa);
    for (const auto& l : s.Red.ColLagos)
        AnotaSalida(s, d, l.NombreLAGO, l.Cauce_aa);
    for (const auto& r : s.Red.ColRepresas)
        AnotaSalida(s, d, r.NombreRepresa, r.Cauce_aa);
}

/// `lista`: what stands behind the words of the question, the names of components first.
void PreguntaPorLaRed(Siro& s, std::string_view texto, const std::string& lista, std::string_view titulo)
{
    std::string palabras(texto);
    if (!model::Consulta(s, palabras + lista, titulo, palabras)) s.Control.ContinuarSinCorregir = true;
}

/// Asks about the components of one kind that nothing drains into.
template <typename Componentes, typename Nombre>
void CompruebaAportes(Siro& s, const Destinos& d, const Componentes& componentes, Nombre nombre,
                      std::string_view texto)
{
    std::string lista;
    for (const auto& c : componentes)
        if (!EsDestino(nombre(c)) || !d.alimentados.contains(nombre(c)))
            lista.append(nombre(c)).append(Separacion);
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

bool DrenaA(const std::string& Cauce_aa, const std::string& nombre)
{
    return EsDestino(Cauce_aa) && Cauce_aa == nombre;
}

void RehaceSecuencia(Siro& s)
{
    const int cuenta = s.Red.ColUEHs.Cuenta() + s.Red.ColCauces.Cuenta() + s.Red.ColLagos.Cuenta() +
                       s.Red.ColRepresas.Cuenta();
    s.Resultados.NroComponentes = model::Entero16(cuenta);
    s.Resultados.Secuencia.assign(1, {});
    for (const auto& u : s.Red.ColUEHs)
        s.Resultados.Secuencia.push_back(u.NombreUEH);
    for (const auto& c : s.Red.ColCauces)
        s.Resultados.Secuencia.push_back(c.NombreCauce);
    for (const auto& l : s.Red.ColLagos)
        s.Resultados.Secuencia.push_back(l.NombreLAGO);
    for (const auto& r : s.Red.ColRepresas)
        s.Resultados.Secuencia.push_back(r.NombreRepresa);
}

void ComponenteFinal(Siro& s)
{
    s.Control.ErrorRed = false;
    s.Control.ContinuarSinCorregir = false;
    s.Control.RedOk = false;
    RehaceSecuencia(s);
    const Destinos d = BuscaDestinos(s);
    BuscaSalidas(s, d);

    if (s.Resultados.NroSalidas == 0 && s.Resultados.NroComponentes > 0) {
        PreguntaPorLaRed(s, TextoSinSalida, {}, TituloSinSalida);
        s.Control.ErrorRed = true;
    }
    CompruebaAportes(
        s, d, s.Red.ColCauces, [](const auto& c) -> const auto& { return c.NombreCauce; }, CaucesSinAporte);
    CompruebaAportes(
        s, d, s.Red.ColRepresas, [](const auto& r) -> const auto& { return r.NombreRepresa; },
        RepresasSinAporte);
    CompruebaAportes(
        s, d, s.Red.ColLagos, [](const auto& l) -> const auto& { return l.NombreLAGO; }, LagosSinAporte);
    if (s.Resultados.NroSalidas == 1) {
        s.Control.RedOk = !s.Control.ContinuarSinCorregir;
        return;
    }
    if (s.Resultados.NroComponentes < 2) return;
    if (!s.Control.AvisoDescargasVisto) PreguntaPorSalidas(s);
}

}  // namespace engine
