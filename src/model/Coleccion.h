// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "model/Falla.h"

namespace model {

/// The components of one kind in file order, and at once the array of the same components by number:
/// number n is the n-th of the collection, slot 0 is unused, and no slot above `Limite` exists.
template <typename T, int LimiteRanuras>
class Coleccion {
  public:
    static constexpr int Limite = LimiteRanuras;

    /// The component in slot n of the array. Throws Falla 9 outside 0..Limite, Falla 91 for an empty slot.
    T& Ranura(int n) { return componentes[Lugar(n)]; }
    const T& Ranura(int n) const { return componentes[Lugar(n)]; }

    auto begin() { return componentes.begin(); }
    auto end() { return componentes.end(); }
    auto begin() const { return componentes.begin(); }
    auto end() const { return componentes.end(); }
    [[nodiscard]] int Cuenta() const { return static_cast<int>(componentes.size()); }
    /// How many the network counts: those that are there, unless another number has been announced.
    [[nodiscard]] std::int16_t Nro() const { return nro; }
    /// Makes another number count until a component comes or goes: a reach is being drawn, a file breaks off.
    void Anuncia(std::int16_t n) { nro = n; }
    /// Makes those count that are there, and returns how many.
    std::int16_t Recuenta() { return nro = static_cast<std::int16_t>(componentes.size()); }
    /// The n-th component of the collection, n from 1 to Cuenta(); the array's limit plays no part.
    T& Item(int n) { return componentes[static_cast<std::size_t>(n) - 1]; }
    const T& Item(int n) const { return componentes[static_cast<std::size_t>(n) - 1]; }
    T& Agrega(T componente)
    {
        componentes.push_back(std::move(componente));
        Recuenta();
        return componentes.back();
    }
    void Quita(int n)
    {
        componentes.erase(componentes.begin() + (n - 1));
        Recuenta();
    }
    void Vacia() { *this = {}; }
    bool operator==(const Coleccion&) const = default;

  private:
    [[nodiscard]] std::size_t Lugar(int n) const
    {
        if (n < 0 || n > Limite) throw Falla{NumeroFalla::Subindice};
        if (n == 0 || n > Cuenta()) throw Falla{NumeroFalla::ObjetoNoEstablecido};
        return static_cast<std::size_t>(n) - 1;
    }
    std::vector<T> componentes{};
    std::int16_t nro = 0;
};

}  // namespace model
