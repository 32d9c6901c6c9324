// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/SucesionDeSobol.h"

#include <algorithm>
#include <bit>

#include "study/Philox.h"

namespace calibration {
namespace {

/// A primitive polynomial over two elements, the bit of its constant term the lowest, and the first numbers
/// of its recurrence, as many as its degree.
struct Inicio {
    std::uint32_t polinomio;
    std::array<std::uint32_t, 9> m;
};

/// Dimensions 2 to 64: S. Joe, F. Y. Kuo (2008), Constructing Sobol sequences with better two-dimensional
/// projections, SIAM J. Sci. Comput. 30, 2635-2654, the table of their page.
constexpr std::array<Inicio, DimensionesDeSobol - 1> Inicios{{
    {3, {1}},
    {7, {1, 3}},
    {11, {1, 3, 1}},
    {13, {1, 1, 1}},
    {19, {1, 1, 3, 3}},
    {25, {1, 3, 5, 13}},
    {37, {1, 1, 5, 5, 17}},
    {41, {1, 1, 5, 5, 5}},
    {47, {1, 1, 7, 11, 19}},
    {55, {1, 1, 5, 1, 1}},
    {59, {1, 1, 1, 3, 11}},
    {61, {1, 3, 5, 5, 31}},
    {67, {1, 3, 3, 9, 7, 49}},
    {91, {1, 1, 1, 15, 21, 21}},
    {97, {1, 3, 1, 13, 27, 49}},
    {103, {1, 1, 1, 15, 7, 5}},
    {109, {1, 3, 1, 15, 13, 25}},
    {115, {1, 1, 5, 5, 19, 61}},
    {131, {1, 3, 7, 11, 23, 15, 103}},
    {137, {1, 3, 7, 13, 13, 15, 69}},
    {143, {1, 1, 3, 13, 7, 35, 63}},
    {145, {1, 3, 5, 9, 1, 25, 53}},
    {157, {1, 3, 1, 13, 9, 35, 107}},
    {167, {1, 3, 1, 5, 27, 61, 31}},
    {171, {1, 1, 5, 11, 19, 41, 61}},
    {185, {1, 3, 5, 3, 3, 13, 69}},
    {191, {1, 1, 7, 13, 1, 19, 1}},
    {193, {1, 3, 7, 5, 13, 19, 59}},
    {203, {1, 1, 3, 9, 25, 29, 41}},
    {211, {1, 3, 5, 13, 23, 1, 55}},
    {213, {1, 3, 7, 3, 13, 59, 17}},
    {229, {1, 3, 1, 3, 5, 53, 69}},
    {239, {1, 1, 5, 5, 23, 33, 13}},
    {241, {1, 1, 7, 7, 1, 61, 123}},
    {247, {1, 1, 7, 9, 13, 61, 49}},
    {253, {1, 3, 3, 5, 3, 55, 33}},
    {285, {1, 3, 1, 15, 31, 13, 49, 245}},
    {299, {1, 3, 5, 15, 31, 59, 63, 97}},
    {301, {1, 3, 1, 11, 11, 11, 77, 249}},
    {333, {1, 3, 1, 11, 27, 43, 71, 9}},
    {351, {1, 1, 7, 15, 21, 11, 81, 45}},
    {355, {1, 3, 7, 3, 25, 31, 65, 79}},
    {357, {1, 3, 1, 1, 19, 11, 3, 205}},
    {361, {1, 1, 5, 9, 19, 21, 29, 157}},
    {369, {1, 3, 7, 11, 1, 33, 89, 185}},
    {391, {1, 3, 3, 3, 15, 9, 79, 71}},
    {397, {1, 3, 7, 11, 15, 39, 119, 27}},
    {425, {1, 1, 3, 1, 11, 31, 97, 225}},
    {451, {1, 1, 1, 3, 23, 43, 57, 177}},
    {463, {1, 3, 7, 7, 17, 17, 37, 71}},
    {487, {1, 3, 1, 5, 27, 63, 123, 213}},
    {501, {1, 1, 3, 5, 11, 43, 53, 133}},
    {529, {1, 3, 5, 5, 29, 17, 47, 173, 479}},
    {539, {1, 3, 3, 11, 3, 1, 109, 9, 69}},
    {545, {1, 1, 1, 5, 17, 39, 23, 5, 343}},
    {557, {1, 3, 1, 5, 25, 15, 31, 103, 499}},
    {563, {1, 1, 1, 11, 11, 17, 63, 105, 183}},
    {601, {1, 1, 5, 11, 9, 29, 97, 231, 363}},
    {607, {1, 1, 5, 15, 19, 45, 41, 7, 383}},
    {617, {1, 3, 7, 7, 31, 19, 83, 137, 221}},
    {623, {1, 1, 1, 3, 23, 15, 111, 223, 83}},
    {631, {1, 1, 5, 13, 31, 15, 55, 25, 161}},
    {637, {1, 1, 3, 13, 25, 47, 39, 87, 257}},
}};

/// Direction numbers of a dimension, P. Bratley and B. L. Fox (1988), Algorithm 659, ACM Trans. Math. Softw.
/// 14(1), 88-100: m(i) = 2 c1 m(i-1) + ... + 2^s m(i-s) + m(i-s), sums without carry, each as a fraction of
/// 2^i.
std::array<std::uint32_t, 32> Direcciones(std::size_t dimension)
{
    std::array<std::uint32_t, 32> v{};
    const std::size_t bits = v.size();
    if (dimension == 0) {
        for (std::size_t i = 0; i < bits; ++i)
            v[i] = 1U << (bits - 1 - i);
        return v;
    }
    const Inicio& inicio = Inicios[dimension - 1];
    const auto grado = static_cast<std::size_t>(std::bit_width(inicio.polinomio)) - 1;
    for (std::size_t i = 0; i < bits; ++i) {
        if (i < grado) {
            v[i] = inicio.m[i] << (bits - 1 - i);
            continue;
        }
        v[i] = v[i - grado] ^ (v[i - grado] >> grado);
        for (std::size_t k = 1; k < grado; ++k)
            if ((inicio.polinomio >> (grado - k) & 1U) != 0) v[i] ^= v[i - k];
    }
    return v;
}

// Words of their own for what the seed is asked for: shifts by dimension, points beyond the table.
constexpr std::uint32_t DeCorrimientos = 1, DePuntos = 2;

std::uint32_t Palabra(std::uint64_t semilla, std::array<std::uint32_t, 4> lugar)
{
    return study::Philox4x32(
        lugar, {static_cast<std::uint32_t>(semilla), static_cast<std::uint32_t>(semilla >> 32U)})[0];
}

}  // namespace

SucesionDeSobol::SucesionDeSobol(std::size_t dimensiones, std::uint64_t unaSemilla) : semilla(unaSemilla)
{
    const std::size_t suyas = std::min(dimensiones, DimensionesDeSobol);
    for (std::size_t i = 0; i < suyas; ++i) {
        direcciones.push_back(Direcciones(i));
        corrimientos.push_back(Palabra(semilla, {static_cast<std::uint32_t>(i), 0, 0, DeCorrimientos}));
    }
}

double SucesionDeSobol::operator()(std::uint32_t k, std::size_t dimension) const
{
    std::uint32_t palabra = 0;
    if (dimension < direcciones.size()) {
        palabra = corrimientos[dimension];
        for (std::size_t bit = 0; bit < Bits && k >> bit != 0; ++bit)
            if ((k >> bit & 1U) != 0) palabra ^= direcciones[dimension][bit];
    } else {
        palabra = Palabra(semilla, {k, static_cast<std::uint32_t>(dimension), 0, DePuntos});
    }
    constexpr double Rango = 4294967296.0;
    return (palabra + 0.5) / Rango;
}

}  // namespace calibration
