// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/Documento.h"
#include "report/Fuente.h"

// The marks of a template, a row each: what is written, what it means, what works it out. To add one is to
// add its row; the help is held to the rows.
namespace report {

/// {{nombre}}: a text, with its unit where it is a number.
struct FilaDeValor {
    std::string_view nombre, explica;
    std::string (*valor)(const Fuente& f);  ///< empty: there is none, and the document says so
};

/// [[si nombre]]
struct FilaDeCondicion {
    std::string_view nombre, explica;
    bool (*vale)(const Fuente& f);
};

/// [[tabla nombre]]: one table or several, or none and a sentence instead.
struct FilaDeTabla {
    std::string_view nombre, explica;
    std::string_view sinDatos;
    std::vector<Tabla> (*hace)(const Fuente& f);
};

/// [[figura nombre]]: the same of figures.
struct FilaDeFigura {
    std::string_view nombre, explica;
    std::string_view sinDatos;
    std::vector<FiguraPuesta> (*hace)(const Fuente& f);
};

/// [[formula nombre]]: a formula of the study.
struct FilaDeFormula {
    std::string_view nombre, explica;
    std::string_view sinDatos;
    std::string_view (*formula)(const Fuente& f);  ///< as frequency's rows have it; empty: none
};

std::span<const FilaDeValor> FilasDeValor();
std::span<const FilaDeCondicion> FilasDeCondicion();
std::span<const FilaDeTabla> TablasDeRed();
std::span<const FilaDeTabla> TablasDeCorrida();
std::span<const FilaDeTabla> TablasDeSerie();
std::span<const FilaDeTabla> TablasDeEstudio();
std::span<const FilaDeFigura> FilasDeFigura();
std::span<const FilaDeFormula> FilasDeFormula();

// --- what the rows share ---

/// A column of a table of rows of one kind.
template <typename T>
struct ColumnaDe {
    std::string_view titulo;  ///< with ^{} and _{}
    std::string_view unidad;
    bool izquierda;
    std::string (*celda)(const Fuente& f, const T& fila);
};

/// A heading with ^{} and _{}.
ColumnaDeTabla Encabezado(std::string_view titulo, std::string_view unidad, bool izquierda);

/// A table with a row for each of `filas`.
template <typename T, typename Filas>
Tabla TablaDe(const Fuente& f, std::string titulo, std::span<const ColumnaDe<T>> columnas, const Filas& filas)
{
    Tabla tabla{.titulo = std::move(titulo)};
    for (const ColumnaDe<T>& c : columnas)
        tabla.columnas.push_back(Encabezado(c.titulo, c.unidad, c.izquierda));
    for (const T& fila : filas) {
        std::vector<std::string>& celdas = tabla.filas.emplace_back();
        for (const ColumnaDe<T>& c : columnas)
            celdas.push_back(c.celda(f, fila));
    }
    return tabla;
}

/// The one table, or none where it has no rows.
inline std::vector<Tabla> Sola(Tabla tabla)
{
    if (tabla.filas.empty()) return {};
    return {std::move(tabla)};
}

/// "-" for an empty text.
inline std::string ONada(std::string_view texto)
{
    return texto.empty() ? "-" : std::string(texto);
}

}  // namespace report
