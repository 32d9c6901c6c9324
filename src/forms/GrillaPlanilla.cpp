// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Grilla.h"
#include "forms/ReglasDeCelda.h"
#include "model/Avisos.h"
#include "model/Texto.h"

// The way of a grid's cells to a spreadsheet and back.
namespace forms {

using model::Siro;

namespace {

constexpr std::string_view NadaPegado = "No se pegó ningún dato. Fila ";
constexpr std::string_view YColumna = ", columna ";
constexpr std::string_view FilaNoEsta = "la tabla no tiene esa fila";
constexpr std::string_view ColumnaNoEsta = "la tabla no tiene esa columna";
constexpr std::string_view NoSeModifica = "la celda no puede modificarse";
constexpr std::string_view NoEsNumero = "no es un número";

/// Text of a cell between tabs.
std::string EnPlanilla(std::string texto)
{
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return texto;
}

std::string NombreDeColumna(const Grilla& g, int columna)
{
    std::string numero = std::to_string(columna);
    if (columna >= g.NroColumnas()) return numero;
    const std::string_view titulo = SinBlancos(g.columnas[static_cast<std::size_t>(columna)].titulo);
    return titulo.empty() ? numero : '"' + std::string(titulo) + '"';
}

/// Why a text can't come to a cell; nothing where it can.
std::optional<std::string> PorQueNoCabe(const Grilla& g, Celda c, std::string_view texto)
{
    if (c.fila > g.NroFilas()) return std::string(FilaNoEsta);
    if (c.columna >= g.NroColumnas()) return std::string(ColumnaNoEsta);
    if (!SePuedeEditar(g, c)) {
        // So that whole rows can go to a spreadsheet and come back.
        const bool esElMismo = SinBlancos(g.Texto(c)) == texto;
        return esElMismo ? std::nullopt : std::optional(std::string(NoSeModifica));
    }
    if (texto.empty()) return {};
    const bool esNumero = NumeroDeCampo(texto).has_value();
    const bool pasa = esNumero || g.reglas->sinNumero == SinNumero::Queda;
    if (!pasa || !TomaTodos(*g.reglas, texto))
        return '"' + std::string(texto) + "\" " + std::string(NoEsNumero);
    const LimiteColumna* limite = LimiteRoto(*g.reglas, c.columna, texto);
    if (limite != nullptr) return std::string(limite->mensaje);
    return {};
}

std::vector<std::vector<std::string_view>> FilasDeBloque(std::string_view bloque)
{
    if (bloque.ends_with('\n')) bloque.remove_suffix(1);
    std::vector<std::vector<std::string_view>> filas;
    for (std::string_view renglon : Pedazos(bloque, '\n')) {
        std::vector<std::string_view> textos = Pedazos(renglon, '\t');
        for (std::string_view& texto : textos)
            texto = SinBlancos(texto);
        filas.push_back(std::move(textos));
    }
    return filas;
}

std::string Rechazo(const Grilla& g, Celda c, std::string_view motivo)
{
    return std::string(NadaPegado) + std::to_string(c.fila) + std::string(YColumna) +
           NombreDeColumna(g, c.columna) + ": " + std::string(motivo);
}

struct Pegado {
    Celda celda;
    std::string texto;
};

}  // namespace

std::string Copia(const Grilla& g, bool conTitulos)
{
    std::string texto;
    if (g.filas.empty()) return texto;
    const Bloque bloque = Seleccion(g);
    const auto agregaFila = [&](int fila) {
        for (int columna = bloque.desde.columna; columna <= bloque.hasta.columna; ++columna) {
            const std::string celda = EnPlanilla(g.Texto({fila, columna}));
            texto += fila == 0 ? std::string(SinBlancos(celda)) : celda;
            texto += columna < bloque.hasta.columna ? '\t' : '\n';
        }
    };
    if (conTitulos) agregaFila(0);
    for (int fila = bloque.desde.fila; fila <= bloque.hasta.fila; ++fila)
        agregaFila(fila);
    return texto;
}

Efecto Pega(Grilla& g, const Siro& s, std::string_view bloque)
{
    if (bloque.empty()) return {};
    const auto filas = FilasDeBloque(bloque);
    const Celda desde = Seleccion(g).desde;
    Celda hasta = desde;
    std::vector<Pegado> pegados;
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (std::size_t j = 0; j < filas[i].size(); ++j) {
            const Celda c = {desde.fila + static_cast<int>(i), desde.columna + static_cast<int>(j)};
            if (const auto motivo = PorQueNoCabe(g, c, filas[i][j])) {
                model::Advierte(s, Rechazo(g, c, *motivo));
                return {};
            }
            hasta = {std::max(hasta.fila, c.fila), std::max(hasta.columna, c.columna)};
            if (SePuedeEditar(g, c)) pegados.push_back({c, model::ComasAPuntos(filas[i][j])});
        }
    Efecto efecto = Deja(g);
    for (Pegado& pegado : pegados) {
        g.Pon(pegado.celda, std::move(pegado.texto));
        efecto.asentadas.push_back(pegado.celda);
    }
    g.actual = desde;
    g.ancla = hasta;
    return efecto;
}

}  // namespace forms
