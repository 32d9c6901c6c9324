// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "model/Falla.h"

// Arrays whose every index is checked: an index outside its bounds is Falla 9. Hot loops that have proved
// their bounds beforehand take a plain pointer to a row instead.
namespace model {

/// One-dimensional array with bounds 0..Tope().
template <typename T>
class Arreglo {
  public:
    /// Allocates 0..tope afresh, all zero. Throws Falla 9 for a negative bound; the array then stays as it
    /// was.
    void Dimensiona(int tope)
    {
        Comprueba(tope);
        datos.assign(static_cast<std::size_t>(tope) + 1, T{});
    }
    /// Changes the upper bound and keeps the contents; new elements are 0. Throws Falla 9 for a negative
    /// bound.
    void Redimensiona(int tope)
    {
        Comprueba(tope);
        datos.resize(static_cast<std::size_t>(tope) + 1);
    }
    T& operator()(int i) { return datos[Ranura(i)]; }
    const T& operator()(int i) const { return datos[Ranura(i)]; }
    /// Upper bound; -1 before the first allocation.
    [[nodiscard]] int Tope() const { return static_cast<int>(datos.size()) - 1; }
    [[nodiscard]] T* Datos() { return datos.data(); }
    [[nodiscard]] const T* Datos() const { return datos.data(); }
    bool operator==(const Arreglo&) const = default;

  private:
    static void Comprueba(int tope)
    {
        if (tope < 0) throw Falla{NumeroFalla::Subindice};
    }
    [[nodiscard]] std::size_t Ranura(int i) const
    {
        if (i < 0 || static_cast<std::size_t>(i) >= datos.size()) throw Falla{NumeroFalla::Subindice};
        return static_cast<std::size_t>(i);
    }
    std::vector<T> datos;
};

/// An array with bounds 0..tope, all zero.
template <typename T>
Arreglo<T> Ceros(int tope)
{
    Arreglo<T> a;
    a.Dimensiona(tope);
    return a;
}

/// Two-dimensional array: rows PrimeraFila()..UltimaFila(), columns 0..TopeColumna(). A row is contiguous.
template <typename T>
class Matriz {
  public:
    /// Allocates rows 0..filas and columns 0..columnas afresh, all zero. Throws Falla 9 for a bound that
    /// makes no element; the array then stays as it was.
    void Dimensiona(int filas, int columnas) { Dimensiona(0, filas, columnas); }
    /// The same with a lower bound of the rows of its own.
    void Dimensiona(int primera, int ultima, int columnas)
    {
        Comprueba(primera, ultima, columnas);
        const auto paso = static_cast<std::size_t>(columnas) + 1;
        datos.assign((static_cast<std::size_t>(ultima - primera) + 1) * paso, T{});
        primeraFila = primera;
        ultimaFila = ultima;
        topeColumna = columnas;
        pasoFila = paso;
    }
    /// Changes the upper bound of the columns and keeps the contents; new elements are 0. Throws Falla 9
    /// for a negative bound or an array never allocated.
    void Redimensiona(int columnas)
    {
        Comprueba(primeraFila, ultimaFila, columnas);
        if (static_cast<std::size_t>(columnas) >= pasoFila) Ensancha(columnas);
        if (columnas < topeColumna) Borra(columnas + 1, topeColumna);
        topeColumna = columnas;
    }
    T& operator()(int fila, int columna) { return datos[Ranura(fila, columna)]; }
    const T& operator()(int fila, int columna) const { return datos[Ranura(fila, columna)]; }

    [[nodiscard]] int PrimeraFila() const { return primeraFila; }
    [[nodiscard]] int UltimaFila() const { return ultimaFila; }
    [[nodiscard]] int TopeColumna() const { return topeColumna; }
    /// Whether a row is there and has the columns 0..columna.
    [[nodiscard]] bool Alcanza(int fila, int columna) const
    {
        return fila >= primeraFila && fila <= ultimaFila && columna <= topeColumna;
    }
    /// Column 0 of a row, TopeColumna()+1 elements in one run. Throws Falla 9 for a row outside the bounds.
    [[nodiscard]] T* Fila(int fila) { return &datos[Ranura(fila, 0)]; }
    [[nodiscard]] const T* Fila(int fila) const { return &datos[Ranura(fila, 0)]; }

    /// Same bounds and same elements.
    bool operator==(const Matriz& otra) const
    {
        if (primeraFila != otra.primeraFila || ultimaFila != otra.ultimaFila ||
            topeColumna != otra.topeColumna)
            return false;
        for (int f = primeraFila; f <= ultimaFila && topeColumna >= 0; ++f)
            if (!std::equal(Fila(f), Fila(f) + topeColumna + 1, otra.Fila(f))) return false;
        return true;
    }

  private:
    static void Comprueba(int primera, int ultima, int columnas)
    {
        if (ultima < primera || columnas < 0) throw Falla{NumeroFalla::Subindice};
    }
    [[nodiscard]] std::size_t Ranura(int fila, int columna) const
    {
        if (fila < primeraFila || fila > ultimaFila || columna < 0 || columna > topeColumna)
            throw Falla{NumeroFalla::Subindice};
        return static_cast<std::size_t>(fila - primeraFila) * pasoFila + static_cast<std::size_t>(columna);
    }
    // Rows get spare columns, so that a run whose last step moves on by one at a time copies seldom.
    void Ensancha(int columnas)
    {
        const auto nuevoPaso =
            static_cast<std::size_t>(columnas) + 1 + static_cast<std::size_t>(columnas) / 2;
        const auto filas = static_cast<std::size_t>(ultimaFila - primeraFila) + 1;
        std::vector<T> nuevos(filas * nuevoPaso);
        for (std::size_t f = 0; f < filas; ++f)
            std::copy_n(datos.begin() + static_cast<std::ptrdiff_t>(f * pasoFila), topeColumna + 1,
                        nuevos.begin() + static_cast<std::ptrdiff_t>(f * nuevoPaso));
        datos.swap(nuevos);
        pasoFila = nuevoPaso;
    }
    void Borra(int desde, int hasta)
    {
        for (int f = primeraFila; f <= ultimaFila; ++f)
            for (int c = desde; c <= hasta; ++c)
                datos[Ranura(f, c)] = T{};
    }
    std::vector<T> datos;
    int primeraFila = 0;
    int ultimaFila = -1;
    int topeColumna = -1;
    std::size_t pasoFila = 0;
};

}  // namespace model
