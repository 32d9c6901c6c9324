// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The power of 64-bit floats. A mathematical library may be off by a unit of the last place and each one errs
// elsewhere, also the same one on another processor; what is rounded correctly is the same everywhere.
namespace model {

/// base^exponente, the 64-bit float nearest to it, a tie going to the even one. Zeros, infinities, what is no
/// number, a negative base, what is too large or too small: as pow of C (ISO/IEC 9899, Annex F), without its
/// flags and errno. Holds in the rounding mode to nearest, which nothing here changes.
double PotenciaRedondeada(double base, double exponente);

// --- what it is made of, each part with its own tests ---

/// base^exponente = (alto + bajo + error)·2^escala with |error| <= cota, alto within 1 and 2 or little below.
struct PotenciaAproximada {
    double alto, bajo, cota;
    int escala;
};

/// Some 66 bits of a power whose logarithm is at most 708 in magnitude. x: positive, finite, not 1; y: 2^-65
/// to 2^63 in magnitude; `escala` is out of range where the logarithm is beyond it.
PotenciaAproximada AproximaPotencia(double x, double y);

/// The power of x, positive, finite and not 1, to y, 2^-65 to 2^63 in magnitude, where its logarithm is at
/// most 746 in magnitude: correctly rounded by whole-number arithmetic of as many bits as it takes;
/// microseconds.
double PotenciaLenta(double x, double y);

}  // namespace model
