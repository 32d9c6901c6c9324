// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/ImportaMaximos.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

#include "forms/Calendario.h"
#include "forms/RegistroLluvia.h"
#include "frequency/Maximos.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

using forms::LecturaLluvia;

constexpr std::int64_t SegundosPorMinuto = 60, SegundosPorDia = forms::MinutosPorDia * SegundosPorMinuto;
constexpr double UnDia = 1440, MayorDuracion = 14400;  // [min]
constexpr double MayorLluvia = 1e5;                    // [mm]
constexpr double PorMilimetro = 1e6;                   // depths are summed in whole millionths, in any order
constexpr std::size_t DudososMostrados = 5;
constexpr std::array Usuales{5.0, 10.0, 15.0, 20.0, 30.0, 60.0, 120.0, 180.0, 360.0, 720.0, 1440.0};

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

/// Day, from 01/01/0001, on which what a reading tells came to its end.
std::int64_t DiaDe(const LecturaLluvia& lectura)
{
    return (lectura.segundo - 1) / SegundosPorDia;
}

std::string Fecha(std::int64_t dia)
{
    return forms::TextoFecha(dia * forms::MinutosPorDia);
}

/// A record with what its maxima need.
struct Registro {
    std::vector<LecturaLluvia> lecturas{};
    std::vector<int> anios{};             ///< of each reading
    std::vector<std::int64_t> laminas{};  ///< [1e-6 mm]
    std::map<int, int> dias{};            ///< days with record, by year
    std::int64_t paso = 0;                ///< [s]
    bool regular = false;                 ///< a reading a step; else each stands for its moment
    bool conCeros = false;                ///< dry steps are told, so that what isn't there is missing
};

void PonAnios(Registro& r, int mesInicial)
{
    namespace crono = std::chrono;
    constexpr crono::sys_days PrimerDia = crono::year{1} / crono::January / 1;
    constexpr double ParteDelDia = 0.9;  // of its steps, for a day to count
    const auto hacenFalta = static_cast<std::int64_t>(ParteDelDia * static_cast<double>(SegundosPorDia));
    std::int64_t dia = -1, medido = 0;
    int anio = 0;
    for (const LecturaLluvia& lectura : r.lecturas) {
        if (const std::int64_t suyo = DiaDe(lectura); suyo != std::exchange(dia, suyo)) {
            const crono::year_month_day fecha{PrimerDia + crono::days{dia}};
            anio = static_cast<int>(fecha.year()) -
                   (static_cast<unsigned>(fecha.month()) < static_cast<unsigned>(mesInicial) ? 1 : 0);
            medido = 0;
        }
        r.anios.push_back(anio);
        const bool completo = medido >= hacenFalta;
        medido += r.paso;
        r.dias[anio] += !completo && medido >= hacenFalta ? 1 : 0;
    }
}

/// Returns why a depth can't be taken; empty: all can.
std::string PonLaminas(Registro& r)
{
    for (const LecturaLluvia& lectura : r.lecturas) {
        if (lectura.lamina > MayorLluvia)
            return "Hay una lámina de más de 100000 mm, el " + Fecha(DiaDe(lectura)) + ".";
        r.laminas.push_back(std::llround(lectura.lamina * PorMilimetro));
    }
    return {};
}

void PonPaso(Registro& r)
{
    constexpr double ParteRegular = 0.9;
    r.paso = std::int64_t{forms::PasoHabitual(r.lecturas)} * SegundosPorMinuto;
    std::size_t enteros = 0;
    for (std::size_t i = 1; i < r.lecturas.size(); ++i)
        enteros += (r.lecturas[i].segundo - r.lecturas[i - 1].segundo) % r.paso == 0 ? 1U : 0U;
    const auto pasos = static_cast<double>(r.lecturas.size() - 1);
    r.regular = r.lecturas.size() > 1 && static_cast<double>(enteros) >= ParteRegular * pasos;
    if (r.lecturas.size() == 1) r.paso = SegundosPorDia;
    r.conCeros = r.regular && std::any_of(r.lecturas.begin(), r.lecturas.end(),
                                          [](const LecturaLluvia& l) { return l.lamina == 0; });
}

/// What keeps the durations from being had of the record; those that are, where none were asked for.
std::string PonDuraciones(const Registro& r, std::vector<double>& duraciones)
{
    const double paso = static_cast<double>(r.paso) / static_cast<double>(SegundosPorMinuto);
    const auto cabe = [&](double d) { return !r.regular || std::fmod(d, paso) == 0; };
    if (paso > UnDia)
        return "Entre lecturas pasa más de un día: hacen falta lecturas diarias o más seguidas.";
    if (duraciones.empty())
        std::copy_if(Usuales.begin(), Usuales.end(), std::back_inserter(duraciones), cabe);
    std::sort(duraciones.begin(), duraciones.end());
    duraciones.erase(std::unique(duraciones.begin(), duraciones.end()), duraciones.end());
    for (const double d : duraciones) {
        if (!(d >= 1 && d <= MayorDuracion))
            return "La duración " + Numero(d) + " min no está entre 1 y 14400 min.";
        if (!cabe(d))
            return "La duración " + Numero(d) + " min no es un múltiplo del paso del registro, " +
                   Numero(paso) + " min.";
    }
    return duraciones.empty() ? "Ninguna de las duraciones usuales es un múltiplo del paso del registro, " +
                                    Numero(paso) + " min: diga cuáles."
                              : std::string{};
}

study::SerieDeMaximos SerieDe(const Registro& r, double duracion)
{
    study::SerieDeMaximos serie{.duracion = duracion,
                                .lecturaDiaria = duracion == UnDia && r.paso == SegundosPorDia};
    const auto ancho =
        static_cast<std::int64_t>(std::llround(duracion * static_cast<double>(SegundosPorMinuto)));
    std::int64_t suma = 0, mayor = 0;
    std::size_t desde = 0;
    for (std::size_t i = 0; i < r.lecturas.size(); ++i) {
        suma += r.laminas[i];
        for (; r.lecturas[desde].segundo <= r.lecturas[i].segundo - ancho; ++desde)
            suma -= r.laminas[desde];
        mayor = std::max(mayor, suma);
        const int anio = r.anios[i];
        if (i + 1 < r.anios.size() && r.anios[i + 1] == anio) continue;
        study::Maximo& maximo = serie.maximos.emplace_back();
        maximo.anio = anio;
        maximo.valor = static_cast<double>(std::exchange(mayor, 0)) / PorMilimetro;
        if (r.conCeros) maximo.dias = r.dias.at(anio);
    }
    return serie;
}

// --- what is told ---

void DiceHuecos(const Registro& r, std::vector<std::string>& avisos)
{
    std::int64_t faltan = 0, tramos = 0, mayor = 0, desde = 0;
    std::string sinRegistro;
    for (std::size_t i = 1; i < r.lecturas.size(); ++i) {
        const std::int64_t antes = DiaDe(r.lecturas[i - 1]), hueco = DiaDe(r.lecturas[i]) - antes - 1;
        if (hueco <= 0) continue;
        faltan += hueco;
        ++tramos;
        if (hueco > mayor) {
            mayor = hueco;
            desde = antes + 1;
        }
        for (int anio = r.anios[i - 1] + 1; anio < r.anios[i]; ++anio)
            sinRegistro += (sinRegistro.empty() ? "" : ", ") + std::to_string(anio);
    }
    if (faltan > 0 && r.conCeros)
        avisos.push_back("Faltan " + std::to_string(faltan) + " días, en " + std::to_string(tramos) +
                         (tramos == 1 ? " tramo" : " tramos") + "; el más largo va del " + Fecha(desde) +
                         " al " + Fecha(desde + mayor - 1) + ".");
    if (!sinRegistro.empty())
        avisos.push_back("Años sin ninguna lectura, que quedan sin máximo: " + sinRegistro + ".");
}

std::vector<std::string> AvisosDe(const Registro& r, const forms::RegistroLluvia& leido, int mesInicial)
{
    std::vector<std::string> avisos{
        "Registro del " + Fecha(DiaDe(r.lecturas.front())) + " al " + Fecha(DiaDe(r.lecturas.back())) + ": " +
        std::to_string(r.lecturas.size()) + " lecturas" +
        (r.regular ? " cada " + std::to_string(r.paso / SegundosPorMinuto) + " min."
                   : std::string(" sin paso fijo."))};
    if (mesInicial != 1)
        avisos.push_back("Cada año comienza en el mes " + std::to_string(mesInicial) +
                         " y lleva el número del año en que comienza.");
    DiceHuecos(r, avisos);
    if (!r.conCeros)
        avisos.emplace_back(
            "El registro no tiene lecturas de 0 a un paso fijo: lo que no está se toma por seco, y no se "
            "sabe cuántos "
            "días de cada año se midieron.");
    for (std::size_t i = 0; i < leido.dudosos.size(); ++i)
        avisos.push_back("Renglón " + std::to_string(leido.dudosos[i].nro) + ": " + leido.dudosos[i].hecho +
                         ".");
    if (leido.masDudosos > 0)
        avisos.push_back("Y " + std::to_string(leido.masDudosos) + " renglones dudosos más.");
    return avisos;
}

}  // namespace

std::optional<Importacion> ImportaMaximos(std::string_view bytes, const PedidoDeImportacion& pedido,
                                          const Avance& avance)
{
    Importacion importacion;
    forms::RegistroLluvia leido = forms::LeeRegistroLluvia(
        bytes, {.soloFecha = true, .maximoDudosos = DudososMostrados, .avance = avance});
    if (leido.motivo == forms::LecturaCancelada) return {};
    const auto niega = [&](const std::string& motivo) {
        if (!motivo.empty()) importacion.errores.push_back(motivo);
        return !motivo.empty();
    };
    if (pedido.mesInicial < 1 || pedido.mesInicial > 12) niega("El mes inicial no está entre 1 y 12.");
    if (niega(leido.motivo) || !importacion.errores.empty()) return importacion;
    Registro r;
    r.lecturas = std::move(leido.lecturas);
    PonPaso(r);
    importacion.paso = static_cast<double>(r.paso) / static_cast<double>(SegundosPorMinuto);
    std::vector<double> duraciones = pedido.duraciones;
    if (niega(PonDuraciones(r, duraciones)) || niega(PonLaminas(r))) return importacion;
    PonAnios(r, pedido.mesInicial);
    for (const double duracion : duraciones) {
        if (avance && !avance(bytes.size(), bytes.size())) return {};
        importacion.series.push_back(SerieDe(r, duracion));
    }
    importacion.avisos = AvisosDe(r, leido, pedido.mesInicial);
    return importacion;
}

}  // namespace frequency
