// SPDX-License-Identifier: MIT
//
// The bright streaks of ejecta around young craters.
#pragma once

#include <array>
#include <string_view>

namespace moonpicture {

/// A feathery system spreading on all sides of its crater, save in the sector it avoids.
struct RaySystem {
    std::string_view name;
    double latitude;      ///< degrees north
    double longitude;     ///< degrees east
    double apron;         ///< radius of the continuous bright ground, kilometres
    double reach;         ///< length of the longest rays, kilometres
    double strength;      ///< 0 to 1
    double fineness;      ///< how many rays: noise features per radian of bearing
    double avoidedCentre; ///< bearing of the empty sector, degrees from north through east
    double avoidedHalf;   ///< its half width, degrees; 0 for none
};

// clang-format off
inline constexpr auto raySystems = std::to_array<RaySystem>({
    // name                 lat    lon  apron  reach  strength  fineness  avoided  half
    {"Tycho",             -43.3, -11.2,  380, 1700,    0.55,     4.2,      0,    0},
    {"Copernicus",          9.6, -20.1,  215,  720,    0.56,     3.6,      0,    0},
    {"Kepler",              8.1, -38.0,  160,  480,    0.66,     3.4,      0,    0},
    {"Aristarchus",        23.7, -47.4,  120,  430,    0.85,     3.0,    330,   60},
    {"Proclus",            16.1,  46.8,   90,  340,    0.95,     2.6,    245,   65},
    {"Langrenus",          -8.9,  61.1,  170,  560,    0.50,     3.4,      0,    0},
    {"Stevinus A",        -31.8,  51.6,  120,  600,    1.00,     3.2,      0,    0},
    {"Furnerius A",       -33.5,  59.0,  110,  520,    0.85,     3.2,      0,    0},
    {"Petavius B",        -19.9,  57.1,   60,  360,    0.42,     3.0,    180,   50},
    {"Byrgius A",         -24.5, -63.7,  110,  480,    0.70,     3.2,      0,    0},
    {"Glushko",             8.1, -77.6,   90,  460,    0.50,     3.0,      0,    0},
    {"Anaxagoras",         73.4, -10.1,  140,  600,    0.60,     3.0,      0,    0},
    {"Thales",             61.8,  50.3,   80,  460,    0.45,     3.0,      0,    0},
    {"Manilius",           14.5,   9.1,   45,  160,    0.30,     3.0,      0,    0},
    {"Menelaus",           16.3,  16.0,   40,  170,    0.30,     3.0,      0,    0},
    {"Aristillus",         33.9,   1.2,   60,  300,    0.28,     3.2,      0,    0},
    {"Timocharis",         26.7, -13.1,   40,  170,    0.26,     3.0,      0,    0},
    {"Euler",              23.3, -29.2,   35,  150,    0.26,     3.0,      0,    0},
    {"Lalande",            -4.4,  -8.6,   45,  230,    0.32,     3.0,      0,    0},
    {"Euclides",           -7.4, -29.5,   45,   90,    0.30,     2.6,      0,    0},
    {"Theophilus",        -11.4,  26.4,   90,  360,    0.22,     3.0,      0,    0},
    {"Taruntius",           5.6,  46.5,   60,  240,    0.26,     3.0,      0,    0},
    {"Dionysius",           2.8,  17.3,   35,  130,    0.36,     3.0,      0,    0},
    {"Censorinus",         -0.4,  32.7,   35,   90,    0.46,     3.0,      0,    0},
    {"Geminus",            34.5,  56.7,   80,  330,    0.30,     3.0,      0,    0},
    {"Zuchius",           -61.4, -50.3,   70,  360,    0.34,     3.0,      0,    0},
    {"Werner",            -28.0,   3.3,   50,  140,    0.22,     3.0,      0,    0},
    {"Hell bright plain", -32.0,  -5.8,   45,   70,    0.40,     3.0,      0,    0},
    {"Linne",              27.7,  11.8,   18,   30,    0.50,     3.0,      0,    0},
    {"Bullialdus",        -20.7, -22.2,   55,  170,    0.12,     3.0,      0,    0},
    {"Mairan hills",       44.0, -41.0,   60,  130,    0.16,     3.0,      0,    0},
});
// clang-format on

/// One long streak along a great circle.
struct LongRay {
    std::string_view name;
    double fromLatitude;  ///< degrees north
    double fromLongitude; ///< degrees east
    double toLatitude;    ///< degrees north
    double toLongitude;   ///< degrees east
    double halfWidth;     ///< kilometres, half way along
    double strength;      ///< 0 to 1
};

// clang-format off
inline constexpr auto longRays = std::to_array<LongRay>({
    // name                          lat    lon  to lat  to lon  width  strength
    {"Tycho - Serenitatis",        -43.3, -11.2,  36.0,  22.5,   26,     0.50},
    {"Tycho - Nectaris",           -43.3, -11.2,  -9.0,  47.0,   33,     0.68},
    {"Tycho - Piccolomini",        -43.3, -11.2, -33.0,  34.0,   33,     0.37},
    {"Tycho - Nubium west, outer", -43.3, -11.2, -12.0, -28.5,   23,     0.42},
    {"Tycho - Nubium west, inner", -43.3, -11.2,  -9.0, -23.5,   25,     0.36},
    {"Tycho - Nubium east",        -43.3, -11.2, -15.0,  -9.0,   22,     0.33},
    {"Tycho - Werner",             -43.3, -11.2, -20.0,   6.5,   29,     0.40},
    {"Tycho - Humorum",            -43.3, -11.2, -26.0, -44.0,   24,     0.33},
    {"Tycho - Schickard",          -43.3, -11.2, -40.0, -60.0,   35,     0.51},
    {"Tycho - Phocylides",         -43.3, -11.2, -57.0, -62.0,   33,     0.46},
    {"Tycho - Clavius",            -43.3, -11.2, -76.0, -36.0,   37,     0.48},
    {"Tycho - Moretus",            -43.3, -11.2, -80.0,  20.0,   33,     0.44},
    {"Tycho - Manzinus",           -43.3, -11.2, -66.0,  48.0,   40,     0.51},
    {"Tycho - Janssen",            -43.3, -11.2, -47.0,  55.0,   42,     0.55},
    {"Menelaus - Bessel",           16.3,  16.0,  38.0,  20.5,   19,     0.18},
    {"Copernicus - Imbrium",         9.6, -20.1,  26.0, -17.0,   20,     0.34},
    {"Copernicus - Euler",           9.6, -20.1,  22.0, -27.0,   20,     0.29},
    {"Copernicus - Aestuum",         9.6, -20.1,  11.5,  -6.0,   22,     0.29},
    {"Copernicus - Kepler",          9.6, -20.1,   8.6, -36.0,   26,     0.32},
    {"Copernicus - Fra Mauro",       9.6, -20.1,  -5.0, -14.0,   23,     0.31},
    {"Copernicus - Lansberg",        9.6, -20.1,  -4.0, -26.0,   23,     0.29},
    {"Kepler - Marius",              8.1, -38.0,  12.0, -51.0,   17,     0.31},
    {"Kepler - Flamsteed",           8.1, -38.0,  -2.5, -43.0,   19,     0.31},
    {"Kepler - Aristarchus",         8.1, -38.0,  22.0, -44.0,   17,     0.31},
    {"Aristarchus - south",         23.7, -47.4,  13.0, -46.0,   17,     0.29},
    {"Messier, north tail",         -1.9,  47.6,  -1.3,  42.4,    6,     0.34},
    {"Messier, south tail",         -1.9,  47.6,  -2.6,  42.6,    6,     0.34},
    {"Proclus - Crisium north",     16.1,  46.8,  20.5,  58.0,   14,     0.31},
    {"Proclus - Crisium south",     16.1,  46.8,  14.0,  58.0,   13,     0.24},
    {"Proclus - Macrobius",         16.1,  46.8,  26.0,  44.0,   14,     0.34},
    {"Proclus - Taruntius",         16.1,  46.8,   8.0,  49.5,   14,     0.34},
    {"Stevinus - Rheita",          -31.8,  51.6, -36.0,  36.0,   23,     0.34},
    {"Stevinus - Fracastorius",    -31.8,  51.6, -22.0,  40.0,   22,     0.36},
    {"Furnerius - Petavius",       -33.5,  59.0, -18.0,  57.0,   19,     0.31},
    {"Langrenus - Fecunditatis",    -8.9,  61.1,  -4.0,  47.0,   17,     0.19},
    {"Langrenus - Spumans",         -8.9,  61.1,   4.0,  60.0,   17,     0.19},
    {"Anaxagoras - Frigoris",       73.4, -10.1,  55.0,  -2.0,   26,     0.29},
    {"Anaxagoras - Plato",          73.4, -10.1,  54.0, -18.0,   23,     0.24},
    {"Thales - Endymion",           61.8,  50.3,  45.0,  54.0,   20,     0.26},
    {"Thales - Frigoris",           61.8,  50.3,  53.0,  26.0,   20,     0.24},
});
// clang-format on

/// A ring of dark glass between the bright walls of a crater and its bright rays.
struct DarkCollar {
    double latitude;  ///< degrees north
    double longitude; ///< degrees east
    double radius;    ///< kilometres, to the middle of the ring
    double halfWidth; ///< kilometres
    double strength;  ///< how much tone it takes away
};

inline constexpr DarkCollar tychoCollar{-43.3, -11.2, 72, 30, 0.17};

} // namespace moonpicture
