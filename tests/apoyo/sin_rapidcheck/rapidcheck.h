// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// The few words of RapidCheck that the tests use, for a system that it hasn't been built for: random values,
// the same ones at each run, and nothing that makes a failing case small. That is what the system that the
// tests are written on is for.
namespace rc {

/// A case that its property says nothing about.
struct Descartado {};
/// A case that its property doesn't hold for.
struct Fallido {
    const char* texto;
};

inline std::mt19937_64& Azar()
{
    static std::mt19937_64 azar;
    return azar;
}

template <typename T>
class Gen {
  public:
    explicit Gen(std::function<T()> unaFuncion) : funcion(std::move(unaFuncion)) {}
    T operator*() const { return funcion(); }

  private:
    std::function<T()> funcion;
};

namespace gen {

/// From the first to below the second.
template <std::integral T>
Gen<T> inRange(T desde, T hasta)
{
    return Gen<T>([desde, hasta] {
        const auto ancho = static_cast<std::uint64_t>(hasta) - static_cast<std::uint64_t>(desde);
        return static_cast<T>(static_cast<std::uint64_t>(desde) + (ancho == 0 ? 0 : Azar()() % ancho));
    });
}

template <typename C, typename T>
Gen<C> container(Gen<T> elemento)
{
    return Gen<C>([elemento] {
        constexpr std::uint64_t Largo = 100;
        C todos;
        for (std::uint64_t n = Azar()() % Largo; n > 0; --n)
            todos.push_back(*elemento);
        return todos;
    });
}

/// Numbers small and large, texts and lists of any elements.
template <typename T>
Gen<T> arbitrary()
{
    if constexpr (std::is_same_v<T, bool>) {
        return Gen<T>([] { return Azar()() % 2 == 1; });
    } else if constexpr (std::is_integral_v<T>) {
        return Gen<T>([] { return static_cast<T>(Azar()() >> Azar()() % 64); });
    } else if constexpr (std::is_floating_point_v<T>) {
        return Gen<T>([] {
            constexpr int Exponente = 60;
            const auto cifras = static_cast<T>(static_cast<std::int64_t>(Azar()()));
            return std::ldexp(cifras, *inRange(-2 * Exponente, 0));
        });
    } else {
        return container<T>(arbitrary<typename T::value_type>());
    }
}

template <typename T, typename F>
Gen<T> suchThat(Gen<T> todos, F vale)
{
    return Gen<T>([todos, vale] {
        for (;;)
            if (const T uno = *todos; vale(uno)) return uno;
    });
}

template <typename C>
Gen<typename C::value_type> elementOf(C todos)
{
    return Gen<typename C::value_type>([todos] { return todos[Azar()() % todos.size()]; });
}

template <typename T, typename... Otros>
Gen<T> element(T uno, Otros... otros)
{
    return elementOf(std::vector<T>{uno, otros...});
}

template <typename... T>
Gen<std::tuple<T...>> tuple(Gen<T>... todos)
{
    return Gen<std::tuple<T...>>([todos...] { return std::tuple<T...>{*todos...}; });
}

template <typename T, typename F>
auto map(Gen<T> todos, F cambia)
{
    return Gen<std::invoke_result_t<F, T>>([todos, cambia] { return cambia(*todos); });
}

}  // namespace gen

/// Tries a property on a hundred cases. Returns what doesn't hold; nothing where all of it does, "no case"
/// where it said nothing about any.
template <typename... Args>
std::string Prueba(const std::function<void(Args...)>& propiedad)
{
    constexpr int Casos = 100, Intentos = 2000;
    Azar().seed();
    int hechos = 0;
    for (int i = 0; i < Intentos && hechos < Casos; ++i) {
        try {
            propiedad(*gen::arbitrary<std::remove_cvref_t<Args>>()...);
            ++hechos;
        } catch (const Descartado&) {
            continue;
        } catch (const Fallido& falla) {
            return "case " + std::to_string(i) + ": " + falla.texto;
        }
    }
    return hechos == 0 ? "no case" : "";
}

template <typename F>
bool check(F propiedad)
{
    return Prueba(std::function<void()>(propiedad)).empty();
}

}  // namespace rc

#define RC_ASSERT(...)                                       \
    do {                                                     \
        if (!(__VA_ARGS__)) throw rc::Fallido{#__VA_ARGS__}; \
    } while (false)
#define RC_PRE(...)                                 \
    do {                                            \
        if (!(__VA_ARGS__)) throw rc::Descartado{}; \
    } while (false)
#define RC_CLASSIFY(condicion, ...) static_cast<void>(condicion)
#define RC_LOG(...) static_cast<void>(__VA_ARGS__)
