// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grilla.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "forms/CampoNumerico.h"
#include "model/Avisos.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace forms {

using model::Siro;

namespace {

/// Changes the cell in hand. All of the typing in it is one step.
void Cambia(Grilla& g, std::string texto)
{
    if (!g.editada) Anota(g, {{g.actual, g.Texto(g.actual)}});
    g.Pon(g.actual, std::move(texto));
    g.editada = true;
}

}  // namespace

// --- cells ---

const std::string& Grilla::Texto(Celda c) const
{
    const bool enEncabezado = c.fila == 0 && c.columna >= 0 && c.columna < NroColumnas();
    if (enEncabezado) return columnas[static_cast<std::size_t>(c.columna)].titulo;
    if (!Esta(c)) throw model::Falla{model::NumeroFalla::Subindice};
    return filas[static_cast<std::size_t>(c.fila) - 1].celdas[static_cast<std::size_t>(c.columna)];
}

double Grilla::Numero(Celda c) const
{
    return model::Val(Texto(c));
}

bool Grilla::EsNumero(Celda c) const
{
    return NumeroDeCampo(Texto(c)).has_value();
}

bool Grilla::SePuedeEditar(Celda c) const
{
    return Esta(c) && columnas[static_cast<std::size_t>(c.columna)].editable &&
           !filas[static_cast<std::size_t>(c.fila) - 1].esTitulo;
}

void Grilla::Pon(Celda c, std::string texto)
{
    if (!Esta(c)) throw model::Falla{model::NumeroFalla::Subindice};
    filas[static_cast<std::size_t>(c.fila) - 1].celdas[static_cast<std::size_t>(c.columna)] =
        std::move(texto);
}

std::vector<ColumnaGrilla> ColumnasDeEncabezado(std::string_view encabezado)
{
    std::vector<ColumnaGrilla> columnas;
    for (std::string_view titulo : Pedazos(encabezado, '|')) {
        ColumnaGrilla columna;
        if (titulo.starts_with('^')) columna.alineacion = Alineacion::Centro;
        if (titulo.starts_with('>')) columna.alineacion = Alineacion::Derecha;
        if (columna.alineacion != Alineacion::Izquierda) titulo.remove_prefix(1);
        columna.titulo = titulo;
        columnas.push_back(std::move(columna));
    }
    return columnas;
}

Grilla NuevaGrilla(const ReglasGrilla& reglas)
{
    Grilla g;
    g.reglas = &reglas;
    g.columnas = ColumnasDeEncabezado(reglas.encabezado);
    for (const ColumnaEditable& editable : reglas.editables)
        PonEditable(g, editable.columna, true);
    const int primera = reglas.editables.empty() ? reglas.columnasFijas : reglas.editables.front().columna;
    g.actual = g.ancla = {1, primera};
    return g;
}

void PonNroFilas(Grilla& g, int n)
{
    const FilaGrilla vacia{std::vector<std::string>(g.columnas.size()), false};
    g.filas.resize(static_cast<std::size_t>(std::max(n, 0)), vacia);
    g.hechos.clear();
    g.deshechos.clear();
    const int ultima = std::max(1, g.NroFilas());
    if (g.actual.fila > ultima) g.agrega = g.editada = false;
    g.actual.fila = std::min(g.actual.fila, ultima);
    g.ancla.fila = std::min(g.ancla.fila, ultima);
}

void PonEditable(Grilla& g, int columna, bool editable)
{
    if (columna >= 0 && columna < g.NroColumnas())
        g.columnas[static_cast<std::size_t>(columna)].editable = editable;
}

void VaciaDatos(Grilla& g)
{
    std::vector<TextoAnterior> paso;
    for (int fila = 1; fila <= g.NroFilas(); ++fila)
        for (int columna = 0; columna < g.NroColumnas(); ++columna)
            if (const Celda c{fila, columna}; g.SePuedeEditar(c)) {
                paso.push_back({c, g.Texto(c)});
                g.Pon(c, {});
            }
    Anota(g, std::move(paso));
    g.agrega = g.editada = false;
}

// --- cursor and selection ---

Efecto Deja(Grilla& g)
{
    Efecto efecto;
    if (g.editada && g.Esta(g.actual)) efecto.asentadas.push_back(g.actual);
    g.agrega = g.editada = false;
    return efecto;
}

Efecto Mueve(Grilla& g, Celda c, bool extiende)
{
    if (!g.Esta(c) || c.columna < g.reglas->columnasFijas) return {};
    Efecto efecto;
    if (c != g.actual) efecto = Deja(g);
    g.actual = c;
    if (!extiende) g.ancla = c;
    return efecto;
}

void SeleccionaTodo(Grilla& g)
{
    if (g.filas.empty()) return;
    g.ancla = {g.NroFilas(), g.NroColumnas() - 1};
    Mueve(g, {1, g.reglas->columnasFijas}, true);
}

Bloque Seleccion(const Grilla& g)
{
    const auto [filaA, filaB] = std::minmax(g.ancla.fila, g.actual.fila);
    const auto [columnaA, columnaB] = std::minmax(g.ancla.columna, g.actual.columna);
    return {{filaA, columnaA}, {filaB, columnaB}};
}

// --- keys ---

namespace {

Efecto TecleaEnter(Grilla& g)
{
    if (!g.SePuedeEditar(g.actual)) return {};
    Efecto efecto = Deja(g);  // a grid of one row is left and come to again
    const int siguiente = g.actual.fila < g.NroFilas() ? g.actual.fila + 1 : 1;
    Mueve(g, {siguiente, g.actual.columna});
    if (g.reglas->enterPoneCero && !g.EsNumero(g.actual)) Cambia(g, "0");
    return efecto;
}

Efecto TecleaSuprimir(Grilla& g)
{
    if (g.SePuedeEditar(g.actual)) Cambia(g, {});
    return {};
}

/// The next cell in order of reading, or the one before; the cursor's own one at an end of the grid.
Celda PorTab(const Grilla& g, int paso)
{
    const int primera = g.reglas->columnasFijas;
    const int ultima = g.NroColumnas() - 1;
    Celda c = {g.actual.fila, g.actual.columna + paso};
    if (c.columna > ultima) c = {c.fila + 1, primera};
    if (c.columna < primera) c = {c.fila - 1, ultima};
    return g.Esta(c) ? c : g.actual;
}

Efecto TecleaTab(Grilla& g, int paso)
{
    const Celda c = PorTab(g, paso);
    const bool enElBorde = c == g.actual;
    Efecto efecto = enElBorde ? Deja(g) : Mueve(g, c);
    efecto.sale = enElBorde;
    return efecto;
}

/// No text, or the one that toolkits give for keys such as Backspace and Ctrl+C.
bool EsControl(std::string_view caracter)
{
    constexpr char Suprimido = 0x7F;
    return caracter.empty() || (caracter[0] >= 0 && caracter[0] < ' ') || caracter[0] == Suprimido;
}

}  // namespace

Efecto Teclea(Grilla& g, Tecla tecla, bool extiende)
{
    const auto [fila, columna] = g.actual;
    switch (tecla) {
    case Tecla::Enter:
        return TecleaEnter(g);
    case Tecla::Suprimir:
        return TecleaSuprimir(g);
    case Tecla::Arriba:
        return Mueve(g, {fila - 1, columna}, extiende);
    case Tecla::Abajo:
        return Mueve(g, {fila + 1, columna}, extiende);
    case Tecla::Izquierda:
        return Mueve(g, {fila, columna - 1}, extiende);
    case Tecla::Derecha:
        return Mueve(g, {fila, columna + 1}, extiende);
    case Tecla::Tab:
        return TecleaTab(g, 1);
    case Tecla::TabAtras:
        return TecleaTab(g, -1);
    }
    return {};
}

namespace {

/// Puts what a key has made of the cell's text, as far as the description lets it.
void PonTecleado(Grilla& g, const Siro& s, std::string texto)
{
    g.agrega = true;
    if (g.reglas->sinNumero == SinNumero::SeVacia && !NumeroDeCampo(texto)) texto.clear();
    if (const ColumnaEditable* limite = LimiteRoto(*g.reglas, g.actual.columna, texto)) {
        model::Advierte(s, std::string(limite->mensaje));
        texto = "0";
    }
    Cambia(g, std::move(texto));
}

}  // namespace

void Escribe(Grilla& g, const Siro& s, std::string_view caracter)
{
    if (EsControl(caracter) || !g.SePuedeEditar(g.actual) || !TomaTodos(*g.reglas, caracter)) return;
    std::string texto = g.agrega ? g.Texto(g.actual) : std::string{};
    PonTecleado(g, s, texto += model::ComasAPuntos(caracter));
}

void Retrocede(Grilla& g, const Siro& s)
{
    if (!g.SePuedeEditar(g.actual) || g.Texto(g.actual).empty()) return;
    const std::string& texto = g.Texto(g.actual);
    PonTecleado(g, s, model::PrimerosCaracteres(texto, model::CuentaCaracteres(texto) - 1));
}

// --- undo ---

void Anota(Grilla& g, std::vector<TextoAnterior> celdas)
{
    if (celdas.empty()) return;
    g.hechos.push_back({std::move(celdas), {}});
    g.deshechos.clear();
}

namespace {

/// Whether rows are as many as the grid's and hold the same where they can be edited.
bool SonLasMismas(const Grilla& g, const std::vector<FilaGrilla>& filas)
{
    if (filas.size() != g.filas.size()) return false;
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (int c = 0; c < g.NroColumnas(); ++c) {
            const Celda celda{static_cast<int>(i) + 1, c};
            const auto lugar = static_cast<std::size_t>(c);
            if (g.SePuedeEditar(celda) && g.Texto(celda) != filas[i].celdas.at(lugar)) return false;
        }
    return true;
}

/// Puts all rows back that a step keeps. The cursor stays as far as there is a row for it.
void CambiaFilas(Grilla& g, PasoEdicion& paso, Efecto& efecto)
{
    std::swap(g.filas, *paso.filas);
    const int ultima = std::max(1, g.NroFilas());
    g.actual.fila = std::min(g.actual.fila, ultima);
    g.ancla = g.actual;
    efecto.otrasFilas = true;
    efecto.asentadas.clear();
    for (int fila = 1; fila <= g.NroFilas(); ++fila)
        for (int columna = 0; columna < g.NroColumnas(); ++columna)
            if (const Celda c{fila, columna}; g.SePuedeEditar(c)) efecto.asentadas.push_back(c);
}

void CambiaCeldas(Grilla& g, PasoEdicion& paso, Efecto& efecto)
{
    for (auto& [celda, texto] : paso.celdas) {
        std::string ahora = g.Texto(celda);
        g.Pon(celda, std::move(texto));
        texto = std::move(ahora);
        efecto.asentadas.push_back(celda);
    }
    g.actual = paso.celdas.front().celda;
    g.ancla = paso.celdas.back().celda;
}

/// Goes a step from one pile to the other; steps that changed nothing are dropped on the way.
Efecto Camina(Grilla& g, std::vector<PasoEdicion>& de, std::vector<PasoEdicion>& a)
{
    Efecto efecto = Deja(g);
    const auto esInutil = [&](const PasoEdicion& paso) {
        return paso.filas ? SonLasMismas(g, *paso.filas)
                          : std::all_of(paso.celdas.begin(), paso.celdas.end(),
                                        [&](const TextoAnterior& t) { return g.Texto(t.celda) == t.texto; });
    };
    while (!de.empty() && esInutil(de.back()))
        de.pop_back();
    if (de.empty()) return efecto;
    PasoEdicion paso = std::move(de.back());
    de.pop_back();
    paso.filas ? CambiaFilas(g, paso, efecto) : CambiaCeldas(g, paso, efecto);
    a.push_back(std::move(paso));
    return efecto;
}

}  // namespace

void AnotaFilas(Grilla& g, Grilla antes, bool sigue)
{
    if (antes.columnas.size() != g.columnas.size()) return;  // rows of another grid are none of this one
    g.hechos = std::move(antes.hechos);
    g.deshechos = std::move(antes.deshechos);
    if (SonLasMismas(g, antes.filas)) return;
    const bool esDelMismo = sigue && !g.hechos.empty() && g.hechos.back().filas && g.deshechos.empty();
    if (!esDelMismo) g.hechos.push_back({{}, std::move(antes.filas)});
    g.deshechos.clear();
}

Efecto Deshace(Grilla& g)
{
    return Camina(g, g.hechos, g.deshechos);
}

Efecto Rehace(Grilla& g)
{
    return Camina(g, g.deshechos, g.hechos);
}

}  // namespace forms
