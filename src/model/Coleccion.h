// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
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
    /// The n-th component of the collection, n from 1 to Cuenta(); the array's limit plays no part.
    T& Item(int n) { return componentes[static_cast<std::size_t>(n) - 1]; }
    const T& Item(int n) const { return componentes[static_cast<std::size_t>(n) - 1]; }
    T& Agrega(T componente) { return componentes.emplace_back(std::move(componente)); }
    void Quita(int n) { componentes.erase(componentes.begin() + (n - 1)); }
    void Vacia() { componentes.clear(); }
    bool operator==(const Coleccion&) const = default;

  private:
    [[nodiscard]] std::size_t Lugar(int n) const
    {
        if (n < 0 || n > Limite) throw Falla{NumeroFalla::Subindice};
        if (n == 0 || n > Cuenta()) throw Falla{NumeroFalla::ObjetoNoEstablecido};
        return static_cast<std::size_t>(n) - 1;
    }
    std::vector<T> componentes;
};

}  // namespace model
