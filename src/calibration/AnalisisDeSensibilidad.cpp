// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/AnalisisDeSensibilidad.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "model/Numeros.h"
#include "runs/Campos.h"

namespace calibration {

std::vector<std::string> ReparosDeSensibilidad(const runs::Modelo& modelo, const study::Ajuste& ajuste)
{
    const study::Sensibilidad& s = ajuste.sensibilidad;
    std::vector<std::string> reparos = runs::ReparosDe(modelo);
    if (modelo.parametros.empty()) reparos.emplace_back("No hay ningún parámetro activo.");
    const MetodoDeSensibilidad* const metodo = MetodoDeSensibilidadDe(s.metodo);
    const std::string delMetodo =
        metodo == nullptr ? "No hay ningún método de sensibilidad \"" + s.metodo + "\"." : metodo->reparo(s);
    if (!delMetodo.empty()) reparos.push_back(delMetodo);
    const MedidaPuesta medida = PonMedida(s.medida, modelo, ajuste.eventos);
    if (!medida.motivo.empty()) reparos.push_back(medida.motivo);
    return reparos;
}

std::size_t CorridasDeSensibilidad(std::size_t parametros, const study::Sensibilidad& pedido)
{
    const MetodoDeSensibilidad* const metodo = MetodoDeSensibilidadDe(pedido.metodo);
    if (metodo == nullptr || !metodo->reparo(pedido).empty()) return 0;
    return metodo->plan(std::vector<Rango>(parametros), pedido).cuantos;
}

std::vector<Rango> RangosDe(const runs::Modelo& modelo, std::size_t lluvia)
{
    std::vector<Rango> rangos;
    for (const study::Parametro& p : modelo.parametros) {
        Rango r{p.minimo, p.maximo, p.logaritmica, 0};
        if (p.modo == "factor") r.actual = 1;
        if (p.modo == "valor") {
            const auto actual = runs::Resuelve(p, modelo.red, modelo.lluvias[lluvia].tormenta).actual;
            r.actual = std::accumulate(actual.begin(), actual.end(), 0.0) /
                       static_cast<double>(std::max<std::size_t>(1, actual.size()));
        }
        rangos.push_back(r);
    }
    return rangos;
}

namespace {

std::vector<double> Actuales(const std::vector<Rango>& rangos)
{
    std::vector<double> punto;
    for (const Rango& r : rangos)
        punto.push_back(r.actual);
    return punto;
}

/// The measure of a run, or why there is none.
struct Medido {
    double valor = std::numeric_limits<double>::quiet_NaN();
    std::string motivo{};
};

Medido Corre(const MedidaPuesta& medida, const std::vector<double>& punto, runs::Corredor& corredor)
{
    Medido medido;
    const engine::Calculo& calculo = corredor.Corre(punto, medida.lluvia);
    medido.motivo = runs::MotivoDe(calculo);
    if (!medido.motivo.empty()) return medido;
    const std::optional<double> valor = Mide(medida, calculo);
    if (valor)
        medido.valor = *valor;
    else
        medido.motivo = "La medida no está definida.";
    return medido;
}

void Cuenta(std::vector<MotivoDeFalla>& fallas, std::size_t corrida, const std::string& motivo)
{
    if (motivo.empty()) return;
    const auto suya = std::ranges::find(fallas, motivo, &MotivoDeFalla::motivo);
    if (suya == fallas.end())
        fallas.push_back({motivo, 1, corrida});
    else
        ++suya->veces;
}

/// Parameters that several components share, where those differ by now.
void DiceComunes(const runs::Modelo& modelo, AnalisisDeSensibilidad& a)
{
    for (const study::Parametro& p : modelo.parametros) {
        const auto actual = runs::Resuelve(p, modelo.red, modelo.lluvias[a.medida.lluvia].tormenta).actual;
        if (p.modo != "valor" || actual.empty()) continue;
        const auto [menor, mayor] = std::ranges::minmax(actual);
        if (menor != mayor)
            a.notas.push_back(runs::NombreDe(p) + " da a varios componentes un valor común: hoy van de " +
                              model::NumeroATexto(menor) + " a " + model::NumeroATexto(mayor) + ".");
    }
}

}  // namespace

double SegundosPorCorrida(const runs::Modelo& modelo, const study::Ajuste& ajuste)
{
    using Reloj = std::chrono::steady_clock;
    constexpr double Bastante = 0.05;
    if (!ReparosDeSensibilidad(modelo, ajuste).empty()) return 0;
    const MedidaPuesta medida = PonMedida(ajuste.sensibilidad.medida, modelo, ajuste.eventos);
    const std::vector<double> punto = Actuales(RangosDe(modelo, medida.lluvia));
    runs::Corredor corredor(modelo);
    (void)Corre(medida, punto, corredor);  // the first one fills what later ones find
    const auto desde = Reloj::now();
    const auto van = [desde] { return std::chrono::duration<double>(Reloj::now() - desde).count(); };
    int corridas = 0;
    do {
        (void)Corre(medida, punto, corredor);
        ++corridas;
    } while (van() < Bastante && corridas < 100);
    return van() / corridas;
}

std::optional<AnalisisDeSensibilidad> AnalizaSensibilidad(const runs::Modelo& modelo,
                                                          const study::Ajuste& ajuste, int hilos,
                                                          const study::Avance& avance)
{
    AnalisisDeSensibilidad a{.pedido = ajuste.sensibilidad};
    a.reparos = ReparosDeSensibilidad(modelo, ajuste);
    if (!a.reparos.empty()) return a;
    a.medida = PonMedida(a.pedido.medida, modelo, ajuste.eventos);
    for (const study::Parametro& p : modelo.parametros)
        a.parametros.push_back(runs::NombreDe(p));
    const MetodoDeSensibilidad& metodo = *MetodoDeSensibilidadDe(a.pedido.metodo);
    const std::vector<Rango> rangos = RangosDe(modelo, a.medida.lluvia);
    const Plan plan = metodo.plan(rangos, a.pedido);
    a.corridas = plan.cuantos;
    // One more than the method wants: all parameters as they are.
    std::vector<Medido> medidos(plan.cuantos + 1);
    const auto haz = [&](std::size_t k, runs::Corredor& corredor) {
        medidos[k] = Corre(a.medida, k < plan.cuantos ? plan.punto(k) : Actuales(rangos), corredor);
    };
    if (!runs::CorreMiembros(modelo, medidos.size(), hilos, haz, avance)) return {};
    if (medidos.back().motivo.empty()) a.actual = medidos.back().valor;
    medidos.pop_back();
    std::vector<double> valores;
    for (std::size_t k = 0; k < medidos.size(); ++k) {
        valores.push_back(medidos[k].valor);
        Cuenta(a.fallas, k, medidos[k].motivo);
    }
    a.filas = metodo.calcula(rangos.size(), a.pedido, valores);
    DiceComunes(modelo, a);
    return a;
}

namespace {

std::string Junta(const std::vector<std::string>& partes)
{
    std::string t;
    for (std::size_t i = 0; i < partes.size(); ++i)
        t += (i == 0 ? "" : i + 1 == partes.size() ? " y " : ", ") + partes[i];
    return t;
}

std::string Mayuscula(std::string t)
{
    if (!t.empty() && t[0] >= 'a' && t[0] <= 'z') t[0] = static_cast<char>(t[0] - 'a' + 'A');
    return t;
}

std::string TresCifras(double x)
{
    std::array<char, 32> texto{};
    const auto fin = std::to_chars(texto.begin(), texto.end(), x, std::chars_format::general, 3);
    return {texto.begin(), fin.ptr};
}

/// "u-1.area (61 %)", "u-1.area (12.3 m3/s)".
std::string ConIndice(const AnalisisDeSensibilidad& a, const MetodoDeSensibilidad& metodo, std::size_t i)
{
    const double x = a.filas[i][metodo.importancia];
    const bool parte = metodo.indices[metodo.importancia].unidad == '-';
    const std::string unidad = parte ? " %" : (a.medida.unidad == "-" ? "" : " " + a.medida.unidad);
    const double porCiento = std::round(100 * x);
    return a.parametros[i] + " (" + (parte ? model::NumeroATexto(porCiento) : TresCifras(x)) + unidad + ")";
}

}  // namespace

std::vector<std::string> EnPalabras(const AnalisisDeSensibilidad& a)
{
    if (!a.reparos.empty()) return a.reparos;
    const MetodoDeSensibilidad& metodo = *MetodoDeSensibilidadDe(a.pedido.metodo);
    const std::vector<std::size_t> orden = PorImportancia(metodo, a.filas), sin = SinEfecto(metodo, a.filas);
    std::vector<std::string> frases;
    std::vector<std::string> importan, noImportan;
    const double mayor = orden.empty() ? 0 : a.filas[orden[0]][metodo.importancia];
    constexpr double Mucho = 0.5;  // of the largest one
    for (const std::size_t i : orden)
        if (const double x = a.filas[i][metodo.importancia]; x > 0 && x >= Mucho * mayor)
            importan.push_back(ConIndice(a, metodo, i));
    for (const std::size_t i : sin)
        noImportan.push_back(a.parametros[i]);
    const std::string medida = Mayuscula(a.medida.nombre);
    const bool hay = mayor >= 0;
    if (!hay)
        frases.push_back(medida + " no se pudo comparar.");
    else if (importan.empty())
        frases.push_back(medida + " no cambia con ningún parámetro.");
    else
        frases.push_back(medida + " depende sobre todo de " + Junta(importan) + ".");
    if (!importan.empty() && !noImportan.empty()) frases.push_back("Sin efecto: " + Junta(noImportan) + ".");
    for (const MotivoDeFalla& f : a.fallas)
        frases.push_back((f.veces == 1 ? "Falló " : "Fallaron ") + std::to_string(f.veces) + " de " +
                         std::to_string(a.corridas) + " corridas (la primera, la " +
                         std::to_string(f.primera + 1) + "), que la cuenta deja afuera: " + f.motivo);
    frases.insert(frases.end(), a.notas.begin(), a.notas.end());
    return frases;
}

}  // namespace calibration
