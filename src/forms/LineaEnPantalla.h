// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <optional>

// Lines on a canvas: what is reckoned in its pixels.
namespace forms {

/// A place on the canvas [pixels].
struct Pixel {
    double x = 0, y = 0;
    bool operator==(const Pixel&) const = default;
};

inline double Largo(Pixel a, Pixel b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

/// The middle of a reach on the canvas, and the direction of its water there, of length 1.
struct MedioDeLinea {
    Pixel en{};
    double dx = 0, dy = 0;
};

/// The middle of a line of vertices 1..vertices that `lugar` places; they run upstream, the water against
/// them. Nothing for one shorter than `largoMinimo`, above 0 [pixels], or of places that aren't finite.
template <typename Lugar>
std::optional<MedioDeLinea> MedioDe(int vertices, Lugar&& lugar, double largoMinimo)
{
    const auto tramo = [&](int j) { return Largo(lugar(j - 1), lugar(j)); };
    double largo = 0;
    for (int j = 2; j <= vertices; ++j)
        largo += tramo(j);
    if (!std::isfinite(largo) || largo < largoMinimo) return {};
    double queda = largo / 2;
    for (int j = 2; j <= vertices; ++j) {
        const double este = tramo(j);
        if (este < queda) {
            queda -= este;
            continue;
        }
        const Pixel a = lugar(j - 1), b = lugar(j);
        const double dx = (a.x - b.x) / este, dy = (a.y - b.y) / este;
        return MedioDeLinea{{a.x - dx * queda, a.y - dy * queda}, dx, dy};
    }
    return {};
}

}  // namespace forms
