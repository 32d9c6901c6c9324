// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <functional>
#include <set>

#include "report/Filas.h"

// What a series left: depths and peaks by duration and recurrence.
namespace report {
namespace {

/// Row of a component in the series' results; 0: none.
int FilaDe(const Fuente& f, const std::string& nombre)
{
    const auto& secuencia = f.serie->r().Secuencia;
    const auto hallada = std::find(secuencia.begin() + 1, secuencia.end(), nombre);
    return hallada == secuencia.end() ? 0 : static_cast<int>(hallada - secuencia.begin());
}

using Valor = std::function<std::string(int tormenta)>;

/// A row per storm, where two of them have the same duration and recurrence.
Tabla Listada(const Fuente& f, std::string titulo, const ColumnaDeTabla& columna, const Valor& valor)
{
    Tabla t{.titulo = std::move(titulo),
            .columnas = {Encabezado("Tormenta", "", false), Encabezado("P", "mm", false),
                         Encabezado("D", "min", false), Encabezado("R", "años", false), columna}};
    const model::Serie& s = f.serie->serie;
    for (const int k : f.tormentas)
        t.filas.push_back({f.n.Con(k, 0), f.n.Escrita(s.SerieP(k)), f.n.Con(s.SerieD(k), 0),
                           f.n.Con(s.SerieR(k), 0), valor(k)});
    return t;
}

/// A row per duration, a column per recurrence.
Tabla Cruzada(const Fuente& f, std::string titulo, const ColumnaDeTabla& columna, const Valor& valor)
{
    const model::Serie& s = f.serie->serie;
    std::set<int> duraciones, recurrencias;
    std::set<std::pair<int, int>> pares;
    for (const int k : f.tormentas) {
        duraciones.insert(s.SerieD(k));
        recurrencias.insert(s.SerieR(k));
        if (!pares.insert({s.SerieD(k), s.SerieR(k)}).second)
            return Listada(f, std::move(titulo), columna, valor);
    }
    Tabla t{.titulo = std::move(titulo), .columnas = {Encabezado("Duración", "min", false)}};
    for (const int R : recurrencias)
        t.columnas.push_back(
            Encabezado(R > 0 ? "R " + f.n.Con(R, 0) + " años" : "sin R", columna.unidad, false));
    for (const int D : duraciones) {
        std::vector<std::string>& fila = t.filas.emplace_back();
        fila.push_back(f.n.Con(D, 0));
        for (const int R : recurrencias) {
            const auto k = std::find_if(f.tormentas.begin(), f.tormentas.end(),
                                        [&](int i) { return s.SerieD(i) == D && s.SerieR(i) == R; });
            fila.push_back(k == f.tormentas.end() ? "-" : valor(*k));
        }
    }
    return t;
}

std::vector<Tabla> Laminas(const Fuente& f)
{
    if (f.serie == nullptr) return {};
    return Sola(Cruzada(f, "Láminas de las tormentas de la serie", Encabezado("P", "mm", false),
                        [&](int k) { return f.n.Escrita(f.serie->serie.SerieP(k)); }));
}

std::vector<Tabla> Picos(const Fuente& f)
{
    std::vector<Tabla> tablas;
    if (f.serie == nullptr) return tablas;
    for (const std::string& nombre : f.elegidosDeSerie) {
        const int fila = FilaDe(f, nombre);
        Tabla t = Cruzada(f, "Caudales máximos de " + nombre + ", por duración y recurrencia",
                          Encabezado("Q_{p}", "m3/s", false), [&](int k) {
                              const auto& Q = f.serie->r().QMax;
                              return Q.Alcanza(fila, k) ? f.n.Con(Q(fila, k), 3, false) : "-";
                          });
        t.nota = f.NotaDeVejez();
        if (!t.filas.empty()) tablas.push_back(std::move(t));
    }
    return tablas;
}

std::vector<Tabla> Mayores(const Fuente& f)
{
    if (f.serie == nullptr) return {};
    const checks::Resumen r = checks::ResumenDe(*f.serie);
    Tabla t{.titulo = "La mayor crecida de la serie en cada componente"};
    const auto columnas = checks::ColumnasDeResumen(true);
    t.columnas.push_back(Encabezado("Componente", "", true));
    for (const checks::ColumnaDeResumen& c : columnas)
        t.columnas.push_back(Encabezado(c.titulo, c.unidad, false));
    for (std::size_t i = 0; i < r.planilla.filas.size(); ++i) {
        if (!r.nombres[i].empty() && FilaDe(f, r.nombres[i]) == 0) continue;
        std::vector<std::string>& fila = t.filas.emplace_back();
        for (const std::string& celda : r.planilla.filas[i])
            fila.push_back(fila.empty() ? celda : ONada(f.n.De(celda)));
    }
    t.nota = f.NotaDeVejez();
    return Sola(std::move(t));
}

constexpr auto Filas = std::to_array<FilaDeTabla>({
    {"serie_laminas", "las láminas de la serie, por duración y recurrencia", "No hay una serie corrida.",
     Laminas},
    {"serie_picos", "los caudales máximos de los componentes elegidos, por duración y recurrencia",
     "No hay una serie corrida.", Picos},
    {"serie_mayores", "de cada componente, la mayor crecida de la serie y la tormenta que la da",
     "No hay una serie corrida.", Mayores},
});

}  // namespace

std::span<const FilaDeTabla> TablasDeSerie()
{
    return Filas;
}

}  // namespace report
