// SPDX-License-Identifier: MIT
//
// The bright streaks of ejecta around young craters.
#pragma once

#include <array>
#include <string_view>

namespace moonpicture {

/// The bright ground around a young crater, and rays on all sides save in the sector they avoid.
struct RaySystem {
    std::string_view name;
    double latitude;      ///< degrees north
    double longitude;     ///< degrees east
    double apron;         ///< radius of the continuous bright ground, kilometres
    double reach;         ///< length of the longest rays, kilometres
    double strength;      ///< 0 to 1
    int rays;             ///< how many, those in the empty sector too; 0 for bright ground alone
    double avoidedCentre; ///< bearing of the empty sector, degrees from north through east
    double avoidedHalf;   ///< its half width, degrees; 0 for none
};

// clang-format off
inline constexpr auto raySystems = std::to_array<RaySystem>({
    // name                 lat    lon  apron  reach  strength  rays  avoided  half
    {"Tycho",             -43.3, -11.2,  330, 1600,    0.58,    30,      0,    0},
    {"Copernicus",          9.6, -20.1,  185,  700,    0.41,    34,      0,    0},
    {"Kepler",              8.1, -38.0,  130,  460,    0.49,    26,      0,    0},
    {"Aristarchus",        23.7, -47.4,  120,  430,    0.75,    20,    330,   60},
    {"Proclus",            16.1,  46.8,   90,  340,    0.95,    14,    245,   65},
    {"Langrenus",          -8.9,  61.1,  170,  560,    0.50,    18,      0,    0},
    {"Stevinus A",        -31.8,  51.6,  120,  600,    1.00,    18,      0,    0},
    {"Furnerius A",       -33.5,  59.0,  110,  520,    0.85,    16,      0,    0},
    {"Petavius B",        -19.9,  57.1,   60,  360,    0.42,    12,    180,   50},
    {"Byrgius A",         -24.5, -63.7,  110,  480,    0.70,    18,      0,    0},
    {"Glushko",             8.1, -77.6,   90,  460,    0.50,    12,      0,    0},
    {"Anaxagoras",         73.4, -10.1,  140,  600,    0.60,    18,      0,    0},
    {"Thales",             61.8,  50.3,   80,  460,    0.45,    12,      0,    0},
    {"Manilius",           14.5,   9.1,   45,  160,    0.22,    12,      0,    0},
    {"Menelaus",           16.3,  16.0,   40,  170,    0.22,    12,      0,    0},
    {"Aristillus",         33.9,   1.2,   60,  300,    0.17,    12,      0,    0},
    {"Timocharis",         26.7, -13.1,   40,  170,    0.14,    12,      0,    0},
    {"Euler",              23.3, -29.2,   35,  150,    0.13,    12,      0,    0},
    {"Lalande",            -4.4,  -8.6,   45,  230,    0.32,    12,      0,    0},
    {"Euclides",           -7.4, -29.5,   45,   90,    0.24,     0,      0,    0},
    {"Theophilus",        -11.4,  26.4,   90,  360,    0.22,    12,      0,    0},
    {"Taruntius",           5.6,  46.5,   60,  240,    0.26,    12,      0,    0},
    {"Dionysius",           2.8,  17.3,   35,  130,    0.36,    12,      0,    0},
    {"Censorinus",         -0.4,  32.7,   35,   90,    0.34,     0,      0,    0},
    {"Geminus",            34.5,  56.7,   80,  330,    0.30,    12,      0,    0},
    {"Zuchius",           -61.4, -50.3,   70,  360,    0.34,    12,      0,    0},
    {"Werner",            -28.0,   3.3,   50,  140,    0.22,    12,      0,    0},
    {"Hell bright plain", -32.0,  -5.8,   45,   70,    0.40,     0,      0,    0},
    {"Linne",              27.7,  11.8,   18,   30,    0.50,     0,      0,    0},
    {"Bullialdus",        -20.7, -22.2,   55,  170,    0.12,    12,      0,    0},
    {"Mairan hills",       44.0, -41.0,   60,  130,    0.16,     0,      0,    0},
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
    {"Tycho - Serenitatis",        -43.3, -11.2,  35.0,  22.3,   26,     0.54},
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
    {"Menelaus - Bessel",           16.3,  16.0,  38.0,  20.5,   19,     0.13},
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

} // namespace moonpicture
