// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

// Samples as their books print them.
namespace frequency::casos {

/// Annual maxima of the sea level at Port Pirie [m], 1923 to 1987: Stuart Coles, "An Introduction to
/// Statistical Modeling of Extreme Values", Springer 2001, example 1.1.
inline const std::vector<double> PortPirie{
    4.03, 3.83, 3.65, 3.88, 4.01, 4.08, 4.18, 3.80, 4.36, 3.96, 3.98, 4.69, 3.85, 3.96, 3.85, 3.93, 3.75,
    3.63, 3.57, 4.25, 3.97, 4.05, 4.24, 4.22, 3.73, 4.37, 4.06, 3.71, 3.96, 4.06, 4.55, 3.79, 3.89, 4.11,
    3.85, 3.86, 3.86, 4.21, 4.01, 4.11, 4.24, 3.96, 4.21, 3.74, 3.85, 3.88, 3.66, 4.11, 3.71, 4.18, 3.90,
    3.78, 3.91, 3.72, 4.00, 3.66, 3.62, 4.33, 4.55, 3.75, 4.08, 3.90, 3.88, 3.94, 4.33};

}  // namespace frequency::casos
