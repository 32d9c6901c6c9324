// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Verifica.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <stdexcept>
#include <utility>

#include "checks/Json.h"
#include "checks/casos/Familias.h"

namespace checks {

namespace {

constexpr std::array<casos::Familia, 6> Familias{
    casos::EmbalsesDeLibro, casos::Tramos,       casos::UEHs,
    casos::Almacenamiento,  casos::Convergencia, casos::BalanceDeRedes};

/// Finds where the two columns differ most, where the source has a figure. What isn't a number of ours
/// differs more than anything.
void Compara(Caso& c)
{
    const Serie& s = c.serie;
    bool primera = true;
    for (std::size_t k = 0; k < s.x.size(); ++k) {
        if (std::isnan(s.impreso[k])) continue;
        const double desvio = std::abs(s.nuestro[k] - s.impreso[k]);
        if (!std::exchange(primera, false) && !(desvio > c.desvio) && !std::isnan(desvio)) continue;
        c.x = s.x[k];
        c.impreso = s.impreso[k];
        c.nuestro = s.nuestro[k];
        c.desvio = desvio;
        if (std::isnan(desvio)) return;
    }
}

Caso Corre(const casos::FilaDeCaso& f)
{
    Caso c{.nombre = f.nombre,
           .fuente = f.fuente,
           .entrada = f.entrada,
           .magnitud = f.magnitud,
           .porque = f.porque,
           .tolerancia = f.tolerancia,
           .recalculado = f.recalculado};
    c.serie.eje = f.eje;
    c.desvio = c.nuestro = std::numeric_limits<double>::quiet_NaN();
    try {
        casos::Comparacion comparacion = f.corre();
        c.serie.x = std::move(comparacion.x);
        c.serie.impreso = std::move(comparacion.impreso);
        c.serie.nuestro = std::move(comparacion.nuestro);
        Compara(c);
    } catch (const std::runtime_error&) {  // a run broke off: there is no distance
    }
    return c;
}

// --- text ---

constexpr int Cifras = 6, CifrasDeDesvio = 2;

/// A number with so many digits; "-" where there is none.
std::string Numero(double x, int cifras = Cifras)
{
    if (std::isnan(x)) return "-";
    std::array<char, 32> lugar{};
    const auto fin =
        std::to_chars(lugar.data(), lugar.data() + lugar.size(), x, std::chars_format::general, cifras);
    return {lugar.data(), fin.ptr};
}

/// Columns that a UTF-8 text takes.
std::size_t Ancho(std::string_view texto)
{
    return static_cast<std::size_t>(std::count_if(
        texto.begin(), texto.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Izquierda(std::string_view texto, std::size_t ancho)
{
    return std::string(texto).append(ancho > Ancho(texto) ? ancho - Ancho(texto) : 0, ' ');
}

std::string Derecha(std::string_view texto, std::size_t ancho)
{
    return std::string(ancho > Ancho(texto) ? ancho - Ancho(texto) : 0, ' ').append(texto);
}

constexpr std::size_t AnchoNumero = 11, AnchoOrden = 2;

std::string Renglon(std::string_view orden, std::string_view nombre, std::size_t anchoNombre,
                    std::initializer_list<std::string> numeros, std::string_view estado)
{
    std::string texto = Derecha(orden, AnchoOrden) + "  " + Izquierda(nombre, anchoNombre);
    for (const std::string& n : numeros)
        texto += Derecha(n, AnchoNumero + 1);
    return texto.append("  ").append(estado) + "\n";
}

std::string Tabla(const std::vector<Caso>& casos)
{
    std::size_t ancho = 0;
    for (const Caso& c : casos)
        ancho = std::max(ancho, Ancho(c.nombre));
    std::string texto =
        Renglon("N.", "Caso", ancho, {"Impreso", "Nuestro", "Desvío", "Tolerancia"}, "Estado");
    for (std::size_t k = 0; k < casos.size(); ++k) {
        const Caso& c = casos[k];
        texto += Renglon(
            std::to_string(k + 1), c.nombre, ancho,
            {Numero(c.impreso), Numero(c.nuestro), Numero(c.desvio, CifrasDeDesvio), Numero(c.tolerancia)},
            c.Fuera() ? "FUERA" : "bien");
    }
    return texto;
}

std::string Notas(const Caso& c, std::size_t orden)
{
    const auto nota = [](std::string_view rotulo, const std::string& dice) {
        return "    " + Izquierda(rotulo, 12) + dice + "\n";
    };
    std::string cifras = std::string(c.magnitud) + ", ";
    if (CuantasCifras(c) > 1)
        cifras += std::to_string(CuantasCifras(c)) + " cifras; la peor en ";
    else
        cifras += "una cifra, en ";
    cifras += std::string(c.serie.eje) + " = " + Numero(c.x);
    return Derecha(std::to_string(orden), AnchoOrden) + "  " + std::string(c.nombre) + "\n" +
           nota("Fuente:", std::string(c.fuente)) + nota("Entrada:", std::string(c.entrada)) +
           nota("Se compara:", cifras) +
           nota("La cifra:",
                c.recalculado ? "recalculada, no está impresa en la fuente" : "impresa en la fuente") +
           nota("Tolerancia:", Numero(c.tolerancia) + ": " + std::string(c.porque));
}

// --- JSON ---

/// A number as short as it reads back.
std::string NumeroJson(double x)
{
    if (!std::isfinite(x)) return "null";
    std::array<char, 32> lugar{};
    return {lugar.data(), std::to_chars(lugar.data(), lugar.data() + lugar.size(), x).ptr};
}

std::string ListaJson(const std::vector<double>& valores)
{
    std::string texto = "[";
    for (const double v : valores)
        texto.append(texto.size() > 1 ? "," : "").append(NumeroJson(v));
    return texto + "]";
}

std::string CasoJson(const Caso& c)
{
    std::string texto = "{";
    const auto campo = [&](std::string_view nombre, const std::string& valor) {
        texto.append(texto.size() > 1 ? "," : "").append(Citado(nombre)).append(":").append(valor);
    };
    campo("nombre", Citado(c.nombre));
    campo("fuente", Citado(c.fuente));
    campo("entrada", Citado(c.entrada));
    campo("magnitud", Citado(c.magnitud));
    campo("recalculado", c.recalculado ? "true" : "false");
    campo("impreso", NumeroJson(c.impreso));
    campo("nuestro", NumeroJson(c.nuestro));
    campo("desvio", NumeroJson(c.desvio));
    campo("tolerancia", NumeroJson(c.tolerancia));
    campo("porque", Citado(c.porque));
    campo("fuera", c.Fuera() ? "true" : "false");
    campo("eje", Citado(c.serie.eje));
    campo("x", ListaJson(c.serie.x));
    campo("impresos", ListaJson(c.serie.impreso));
    campo("nuestros", ListaJson(c.serie.nuestro));
    return texto + "}";
}

}  // namespace

std::size_t CuantasCifras(const Caso& caso)
{
    return static_cast<std::size_t>(std::count_if(caso.serie.impreso.begin(), caso.serie.impreso.end(),
                                                  [](double cifra) { return !std::isnan(cifra); }));
}

std::vector<casos::Familia> Junta(std::initializer_list<std::span<const casos::Familia>> cuartos)
{
    std::vector<casos::Familia> juntas;
    for (const std::span<const casos::Familia> cuarto : cuartos)
        juntas.insert(juntas.end(), cuarto.begin(), cuarto.end());
    return juntas;
}

std::vector<Caso> Verifica(const AvanceDeVerifica& avance, std::span<const casos::Familia> mas)
{
    const std::vector<casos::Familia> familias = Junta({Familias, mas});
    std::size_t total = 0;
    for (const auto familia : familias)
        total += familia().size();
    std::vector<Caso> casos;
    for (const auto familia : familias)
        for (const casos::FilaDeCaso& fila : familia()) {
            if (avance && !avance(casos.size(), total)) return casos;
            casos.push_back(Corre(fila));
        }
    return casos;
}

int CuantosFuera(const std::vector<Caso>& casos)
{
    return static_cast<int>(
        std::count_if(casos.begin(), casos.end(), [](const Caso& c) { return c.Fuera(); }));
}

std::string TextoDeVerifica(const std::vector<Caso>& casos)
{
    std::string texto = Tabla(casos) + "\n";
    for (std::size_t k = 0; k < casos.size(); ++k)
        texto += Notas(casos[k], k + 1) + "\n";
    return texto + std::to_string(casos.size()) + " casos, " + std::to_string(CuantosFuera(casos)) +
           " fuera de tolerancia\n";
}

std::string JsonDeVerifica(const std::vector<Caso>& casos)
{
    std::string texto = "{\"version\":1,\"casos\":[\n";
    for (std::size_t k = 0; k < casos.size(); ++k)
        texto += CasoJson(casos[k]) + (k + 1 < casos.size() ? ",\n" : "\n");
    return texto + "],\"fuera\":" + std::to_string(CuantosFuera(casos)) + "}\n";
}

}  // namespace checks
