// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Grilla.h"
#include "forms/NumerosDeBloque.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

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
constexpr std::string_view EsNegativo = "es negativo";
constexpr std::string_view TituloLectura = "Números pegados";
constexpr std::string_view UnaFilaPegada = "Se pegó 1 fila. ";
constexpr std::string_view FilasPegadas1 = "Se pegaron ";
constexpr std::string_view FilasPegadas2 = " filas. ";
constexpr std::string_view ConEncabezado =
    "La primera fila del bloque no tiene números: se tomó como encabezado y no se pegó.";

using Filas = std::vector<std::vector<std::string_view>>;

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

/// A text of a block and the cell that it comes to.
struct Pedido {
    Celda celda;
    std::string_view texto;
};

/// Whether a cell holds the text already.
bool EsElMismo(const Grilla& g, const Pedido& p)
{
    return g.Esta(p.celda) && SinBlancos(g.Texto(p.celda)) == p.texto;
}

std::string EntreComillas(std::string_view texto, std::string_view queEs)
{
    return '"' + std::string(texto) + "\" " + std::string(queEs);
}

/// Why a text can't come to a cell; nothing where it can. What a cell holds already may stay in it, and one
/// that can't be edited is passed over.
std::optional<std::string> PorQueNoCabe(const Grilla& g, const Pedido& p, LecturaNumeros lectura)
{
    if (p.celda.fila > g.NroFilas()) return std::string(FilaNoEsta);
    if (p.celda.columna >= g.NroColumnas()) return std::string(ColumnaNoEsta);
    if (p.texto.empty() || !g.SePuedeEditar(p.celda)) return {};
    const auto numero = LeeNumero(p.texto, lectura);
    if (EsElMismo(g, p) && numero.value_or(std::string(p.texto)) == p.texto) return {};
    if (!numero) return EntreComillas(p.texto, NoEsNumero);
    if (const ColumnaEditable* limite = LimiteRoto(*g.reglas, p.celda.columna, *numero))
        return std::string(limite->mensaje);
    if (model::Val(*numero) < 0) return EntreComillas(p.texto, EsNegativo);
    return {};
}

Filas FilasDeBloque(std::string_view bloque)
{
    if (bloque.ends_with('\n')) bloque.remove_suffix(1);
    Filas filas;
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

/// Whether the first of several rows has texts and no number where the columns can be edited.
bool TieneEncabezado(const Grilla& g, const Filas& filas, int columna)
{
    if (filas.size() < 2) return false;
    bool conTexto = false;
    for (std::size_t j = 0; j < filas.front().size(); ++j) {
        const std::size_t c = static_cast<std::size_t>(columna) + j;
        const std::string_view texto = filas.front()[j];
        if (c >= g.columnas.size() || !g.columnas[c].editable || texto.empty()) continue;
        const std::string_view textos[] = {texto};
        if (LeeNumero(texto, LecturasPosibles(textos).front())) return false;
        conTexto = true;
    }
    return conTexto;
}

std::vector<Pedido> PedidosDe(const Filas& filas, Celda desde)
{
    std::vector<Pedido> pedidos;
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (std::size_t j = 0; j < filas[i].size(); ++j)
            pedidos.push_back(
                {{desde.fila + static_cast<int>(i), desde.columna + static_cast<int>(j)}, filas[i][j]});
    return pedidos;
}

/// Tells the first text that fits in none of the readings. Returns whether there is one.
bool Rechaza(const Grilla& g, const Siro& s, const std::vector<Pedido>& pedidos,
             const std::vector<LecturaNumeros>& lecturas)
{
    for (const Pedido& p : pedidos) {
        const auto motivo = PorQueNoCabe(g, p, lecturas.front());
        const bool cabe = std::any_of(lecturas.begin(), lecturas.end(),
                                      [&](LecturaNumeros l) { return !PorQueNoCabe(g, p, l); });
        if (cabe) continue;
        model::Advierte(s, Rechazo(g, p.celda, *motivo));
        return true;
    }
    return false;
}

/// The readings of what comes to cells that can be edited; this program's own numbers have one.
std::vector<LecturaNumeros> LecturasDe(const Grilla& g, const std::vector<Pedido>& pedidos,
                                       OrigenBloque origen, std::vector<std::string_view>& textos)
{
    if (origen == OrigenBloque::Propio) return {LecturaNumeros::SinMiles};
    for (const Pedido& p : pedidos)
        if (g.SePuedeEditar(p.celda)) textos.push_back(p.texto);
    return LecturasPosibles(textos);
}

/// The block is to be pasted whole: settles how its numbers are read, which may take a question. Nothing
/// where it is refused, which is told.
std::optional<LecturaNumeros> Acepta(const Grilla& g, const Siro& s, const std::vector<Pedido>& pedidos,
                                     OrigenBloque origen)
{
    const auto seEdita = [&](const Pedido& p) { return g.SePuedeEditar(p.celda); };
    std::vector<std::string_view> textos;
    std::vector<LecturaNumeros> lecturas = LecturasDe(g, pedidos, origen, textos);
    if (Rechaza(g, s, pedidos, lecturas)) return {};
    if (std::none_of(pedidos.begin(), pedidos.end(), seEdita)) {
        const auto otro =
            std::find_if(pedidos.begin(), pedidos.end(), [&](const Pedido& p) { return !EsElMismo(g, p); });
        if (otro != pedidos.end()) model::Advierte(s, Rechazo(g, otro->celda, NoSeModifica));
        return {};
    }
    if (lecturas.size() == 1) return lecturas.front();
    const bool laPrimera = s.Anfitrion.Pregunta(
        {PreguntaLectura(textos, lecturas), std::string(TituloLectura), model::Icono::Pregunta});
    const LecturaNumeros elegida = laPrimera ? lecturas.front() : lecturas.back();
    return Rechaza(g, s, pedidos, {elegida}) ? std::nullopt : std::optional(elegida);
}

void CuentaEncabezado(const Siro& s, std::size_t filas)
{
    const std::string pegadas =
        filas == 1 ? std::string(UnaFilaPegada)
                   : std::string(FilasPegadas1) + std::to_string(filas) + std::string(FilasPegadas2);
    model::Informa(s, pegadas + std::string(ConEncabezado));
}

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

Efecto Pega(Grilla& g, const Siro& s, std::string_view bloque, OrigenBloque origen)
{
    if (bloque.empty()) return {};
    Filas filas = FilasDeBloque(bloque);
    const Celda desde = Seleccion(g).desde;
    const bool conEncabezado = TieneEncabezado(g, filas, desde.columna);
    if (conEncabezado) filas.erase(filas.begin());
    const std::vector<Pedido> pedidos = PedidosDe(filas, desde);
    const auto lectura = Acepta(g, s, pedidos, origen);
    if (!lectura) return {};

    Efecto efecto = Deja(g);
    Celda hasta = desde;
    std::vector<TextoAnterior> paso;
    for (const Pedido& p : pedidos) {
        hasta = {std::max(hasta.fila, p.celda.fila), std::max(hasta.columna, p.celda.columna)};
        if (!g.SePuedeEditar(p.celda)) continue;
        paso.push_back({p.celda, g.Texto(p.celda)});
        g.Pon(p.celda, LeeNumero(p.texto, *lectura).value_or(std::string(p.texto)));
        efecto.asentadas.push_back(p.celda);
    }
    Anota(g, std::move(paso));
    g.actual = desde;
    g.ancla = hasta;
    if (conEncabezado) CuentaEncabezado(s, filas.size());
    return efecto;
}

}  // namespace forms
