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

/// Annual maxima of the rain of 10 minutes at Chicago [inches], 1913 to 1947: Chow, Maidment and Mays 1988,
/// table 12.2.1.
inline const std::vector<double> LluviasDeChicago{0.49, 0.66, 0.36, 0.58, 0.41, 0.47, 0.74, 0.53, 0.76,
                                                  0.57, 0.80, 0.66, 0.68, 0.68, 0.61, 0.88, 0.49, 0.33,
                                                  0.96, 0.94, 0.80, 0.62, 0.71, 1.11, 0.64, 0.52, 0.64,
                                                  0.34, 0.70, 0.57, 0.92, 0.66, 0.65, 0.63, 0.60};

/// Annual maxima of the discharge of the Guadalupe river near Victoria, Texas [cfs], 1935 to 1978: the same,
/// table 12.1.1.
inline const std::vector<double> Guadalupe{
    38500, 179000, 17200, 25400, 4940,  55800, 58000, 56000, 7710,  12300, 22000, 17900, 46000, 6970, 20600,
    13300, 12300,  28400, 11600, 8560,  4950,  1730,  25300, 58300, 10100, 23700, 55800, 10800, 4100, 5720,
    15000, 9790,   70000, 44300, 15200, 9190,  9740,  58500, 33100, 25200, 30200, 14100, 54500, 12700};

/// Annual peak flows of the Moose River at Victory, Vermont [cfs], 1947 to 2014: Bulletin 17C, table 10-2.
inline const std::vector<double> MooseRiver{
    2080, 1670, 1480, 2940, 1560, 2380, 2720, 2860, 2620, 1710, 1370, 2180, 1160, 2780, 1580, 2110, 2160,
    2750, 1190, 1560, 1800, 1600, 2400, 3010, 1490, 2920, 4940, 2550, 1250, 2670, 2020, 1460, 1620, 1460,
    1570, 2890, 1840, 2950, 1380, 2350, 4180, 1700, 2200, 3430, 2270, 2180, 1900, 2760, 4536, 2160, 1860,
    2680, 1540, 2110, 2950, 2410, 2230, 1980, 1610, 2640, 1930, 1940, 1810, 1900, 3140, 1370, 2180, 4250};

/// The same of the Orestimba Creek near Newman, California [cfs], 1932 to 2013: Bulletin 17C, table 10-6. Its
/// first 42 years are example 4 of Bulletin 17B.
inline const std::vector<double> Orestimba{
    4260, 345,  516,  1320, 1200, 2180, 3230, 115,  3440, 3070,  1880, 6450, 1290,  5970, 782,  0,    0,
    335,  175,  2920, 3660, 147,  0,    16,   5620, 1440, 10200, 5380, 448,  0,     1740, 8300, 156,  560,
    128,  4200, 0,    5080, 1010, 584,  0,    1510, 922,  1010,  0,    0,    4360,  1270, 5210, 1130, 5550,
    6360, 991,  50,   6990, 112,  0,    0,    4,    1260, 888,   4190, 12,   12000, 3130, 3320, 9470, 833,
    2550, 958,  425,  2790, 2990, 1820, 1630, 0,    2110, 310,   4400, 4440, 0,     6250};

}  // namespace frequency::casos
