// SPDX-License-Identifier: MIT
//
// The dark plains, each built from one or more ellipses drawn on the sphere, and the lighter ground
// that interrupts them. Centres and sizes follow the IAU gazetteer where a plain is one ellipse;
// the pieces of the larger ones were fitted to its outlines by hand.
#pragma once

#include <array>
#include <string_view>

namespace moonpicture {

/// Tones run from 0 (black) to 1 (white) as they shall look in the picture.
struct Patch {
    std::string_view name;
    double latitude;  ///< of the centre, degrees north
    double longitude; ///< of the centre, degrees east
    double semiMajor; ///< degrees of arc
    double semiMinor; ///< degrees of arc
    double bearing;   ///< of the major axis, degrees from north through east
    double tone;
    double tint = 0.0; ///< -1 bluish to 1 reddish
};

// clang-format off
inline constexpr auto mariaPatches = std::to_array<Patch>({
    // name                       lat    lon  major  minor  bearing  tone  tint
    {"Imbrium",                  33.8, -16.5, 17.0, 16.4,     90, 0.43,  0.05},
    {"Imbrium west",             25.0, -32.0, 10.0,  7.5,     20, 0.40, -0.25},
    {"Imbrium north-east",       40.5,  -6.0,  7.0,  6.0,     60, 0.48,  0.35},
    {"Palus Putredinis",         28.0,  -0.5,  4.2,  3.4,     40, 0.44,  0.15},
    {"Sinus Lunicus",            32.5,   1.2,  4.0,  4.6,      0, 0.48},
    {"Imbrium gate",             32.0,   7.0,  2.6,  1.2,     90, 0.52},
    {"Sinus Iridum",             44.6, -31.6,  4.1,  3.8,     60, 0.43,  0.10},
    {"Serenitatis",              27.8,  18.4, 10.4,  9.9,     90, 0.37, -0.35},
    {"Serenitatis north",        34.5,  15.5,  6.0,  4.6,     80, 0.39, -0.20},
    {"Serenitatis east",         27.0,  26.5,  4.2,  6.0,    170, 0.36, -0.50},
    {"Plinius strait",           17.0,  24.4,  4.4,  3.4,     80, 0.33, -0.90},
    {"Lacus Somniorum",          37.8,  30.5,  5.6,  3.0,    105, 0.55,  0.30},
    {"Lacus Somniorum east",     36.0,  37.0,  3.2,  1.6,    110, 0.58},
    {"Lacus Mortis",             45.0,  27.2,  2.4,  2.2,      0, 0.56},
    {"Tranquillitatis west",     10.0,  24.5,  7.2,  6.4,     20, 0.34, -1.00},
    {"Tranquillitatis centre",    7.0,  31.0,  8.6,  7.2,     90, 0.34, -0.95},
    {"Tranquillitatis north",    14.0,  32.0,  6.2,  4.6,     60, 0.34, -0.90},
    {"Tranquillitatis east",     10.0,  37.5,  5.6,  5.2,      0, 0.36, -0.80},
    {"Tranquillitatis south",     1.8,  25.0,  5.2,  3.6,     60, 0.35, -0.90},
    {"Tranquillitatis foot",      1.0,  36.5,  4.4,  2.6,    100, 0.42, -0.60},
    {"Sinus Honoris",            11.8,  18.0,  1.8,  1.2,    120, 0.42, -0.60},
    {"Sinus Amoris",             19.5,  37.3,  2.2,  3.8,     20, 0.46},
    {"Sinus Concordiae",         10.8,  43.0,  2.6,  1.6,     90, 0.45},
    {"Tranquillitatis link",      0.5,  43.0,  3.6,  1.8,    120, 0.46, -0.40},
    {"Sinus Asperitatis",        -4.6,  27.2,  3.4,  3.6,      0, 0.47},
    {"Theophilus east",         -10.0,  30.8,  2.6,  2.4,      0, 0.52},
    {"Nectaris",                -15.3,  34.6,  5.6,  5.3,      0, 0.42},
    {"Crisium",                  17.0,  59.4,  8.9,  6.7,     88, 0.34,  0.05},
    {"Fecunditatis north",       -2.4,  51.0,  8.6,  6.0,     95, 0.41, -0.35},
    {"Fecunditatis middle",      -8.0,  52.6,  6.6,  6.8,      0, 0.42, -0.30},
    {"Fecunditatis south",      -14.2,  49.6,  4.2,  5.0,    170, 0.47},
    {"Fecunditatis bay",          3.4,  52.5,  3.6,  3.0,     40, 0.43},
    {"Undarum north",             8.0,  67.6,  2.8,  1.2,    120, 0.43},
    {"Undarum south",             5.2,  70.4,  2.2,  1.2,     80, 0.43},
    {"Spumans",                   1.2,  65.0,  1.6,  2.2,     10, 0.42},
    {"Anguis",                   22.4,  67.6,  2.6,  0.9,    160, 0.42},
    {"Marginis",                 13.0,  86.0,  6.0,  3.6,     70, 0.52},
    {"Smythii",                  -0.8,  87.0,  6.2,  5.6,      0, 0.51},
    {"Humboldtianum",            56.8,  81.5,  3.9,  3.4,      0, 0.53},
    {"Australe north",          -38.0,  86.0,  4.4,  3.0,     20, 0.50},
    {"Australe south",          -47.0,  86.0,  5.0,  2.6,     10, 0.51},
    {"Vaporum",                  13.4,   3.9,  4.0,  3.3,     60, 0.42,  0.10},
    {"Hyginus",                   8.8,   6.0,  3.2,  1.4,     95, 0.46},
    {"Lacus Odii",               18.8,   6.6,  1.8,  0.8,     70, 0.52},
    {"Lacus Doloris",            17.0,   9.2,  1.6,  0.8,     60, 0.52},
    {"Lacus Lenitatis",          14.2,  12.4,  1.8,  0.9,    100, 0.54},
    {"Sinus Medii",               1.8,   0.8,  3.8,  1.7,     80, 0.55},
    {"Sinus Medii west",          4.2,  -3.6,  2.8,  1.6,    130, 0.54},
    {"Sinus Aestuum",            11.6,  -8.2,  4.0,  3.6,      0, 0.43},
    {"Bode",                      7.6,  -5.2,  1.6,  1.1,    140, 0.46},
    {"Frigoris far west",        55.4, -44.0,  5.6,  2.8,     80, 0.50,  0.40},
    {"Frigoris west",            57.4, -29.0,  5.8,  2.6,     85, 0.50,  0.40},
    {"Frigoris north of Plato",  57.2, -12.0,  6.0,  2.6,     90, 0.50,  0.40},
    {"Frigoris middle",          57.6,   3.0,  5.2,  2.6,     95, 0.50,  0.40},
    {"Frigoris east",            55.2,  16.0,  5.4,  3.3,    100, 0.50,  0.40},
    {"Frigoris far east",        53.6,  28.0,  5.0,  3.0,    105, 0.50,  0.40},
    {"Frigoris end",             51.8,  37.0,  3.6,  2.0,    120, 0.57},
    {"Sinus Roris",              50.0, -53.5,  8.2,  5.6,    100, 0.45,  0.20},
    {"Procellarum north",        38.5, -54.0, 11.5, 10.0,      0, 0.42,  0.10},
    {"Procellarum middle",       22.0, -53.0, 15.5, 13.0,     90, 0.39, -0.35},
    {"Procellarum south",         8.0, -50.5, 12.6, 11.0,     90, 0.39, -0.35},
    {"Procellarum foot",         -4.0, -46.5,  9.6,  7.6,    100, 0.39, -0.45},
    {"Letronne",                -10.4, -42.8,  2.4,  2.2,      0, 0.42},
    {"Insularum west",            6.0, -33.0,  9.0,  8.0,     90, 0.44, -0.30},
    {"Insularum east",            2.6, -19.5,  8.4,  4.0,     95, 0.50},
    {"Copernicus plain",         11.5, -17.0,  7.0,  5.0,     90, 0.53},
    {"Carpatus foot",            15.5, -29.0,  4.6,  3.0,     60, 0.50},
    {"Hortensius plain",         12.0, -27.5,  5.0,  3.4,     90, 0.50},
    {"Kepler plain",             14.5, -37.0,  5.4,  4.4,     90, 0.43},
    {"Insularum south",          -3.0, -25.0,  5.6,  4.6,      0, 0.46},
    {"Aestuum link",              6.5, -11.5,  4.0,  3.6,    120, 0.55},
    {"Cognitum",                 -9.4, -23.2,  5.4,  4.8,      0, 0.42, -0.15},
    {"Cognitum west",            -5.4, -33.0,  7.0,  5.6,    110, 0.41, -0.30},
    {"Herigonius",              -13.6, -33.0,  4.2,  3.6,      0, 0.43},
    {"Nubium north",            -13.2, -12.4,  4.4,  3.6,      0, 0.47},
    {"Nubium",                  -19.0, -14.6,  7.6,  6.6,    110, 0.44,  0.05},
    {"Nubium west",             -20.4, -22.5,  5.2,  6.0,      0, 0.45},
    {"Nubium south",            -25.6, -18.6,  7.4,  3.6,    105, 0.44},
    {"Nubium link",             -14.2, -20.0,  4.6,  3.4,     60, 0.46},
    {"Humorum",                 -24.3, -38.7,  6.5,  6.2,      0, 0.40, -0.20},
    {"Humorum north-east",      -19.0, -34.6,  2.8,  2.4,     40, 0.45},
    {"Palus Epidemiarum",       -32.0, -28.0,  4.2,  1.6,     92, 0.49},
    {"Lacus Excellentiae",      -35.0, -43.5,  2.8,  1.2,     80, 0.58},
    {"Lacus Veris",             -13.0, -86.5,  5.0,  0.9,     20, 0.52},
    {"Lacus Autumni",           -10.5, -82.5,  2.6,  0.8,     20, 0.54},
});
// clang-format on

/// Mountains and plateaus standing in the plains.
// clang-format off
inline constexpr auto highlandIslands = std::to_array<Patch>({
    // name                     lat    lon  major  minor  bearing  tone
    {"Montes Carpatus",        14.9, -24.5,  4.8,  0.8,     88, 0.60},
    {"Gruithuisen hills",      38.6, -41.4,  2.6,  1.0,    160, 0.55},
    {"Montes Caucasus",        36.6,   9.4,  5.0,  1.2,    165, 0.70},
    {"Montes Archimedes",      26.2,  -5.2,  1.7,  1.0,     60, 0.53},
    {"Montes Spitzbergen",     35.0,  -5.0,  0.7,  0.2,    160, 0.54},
    {"Montes Recti",           48.1, -19.7,  1.3,  0.4,     90, 0.66},
    {"Montes Teneriffe",       47.6, -13.0,  1.3,  0.4,     60, 0.64},
    {"Montes Harbinger",       27.0, -41.0,  1.7,  1.2,      0, 0.53},
    {"Aristarchus plateau",    26.2, -51.0,  2.6,  2.2,     45, 0.49,  1.0},
    {"Mons Ruemker",           40.8, -58.3,  1.1,  1.0,      0, 0.50},
    {"Montes Riphaeus",        -7.6, -28.0,  2.6,  0.4,     20, 0.57},
    {"Fra Mauro",              -5.6, -17.2,  3.4,  2.6,    160, 0.55},
    {"Bonpland",               -9.0, -17.0,  2.0,  1.6,      0, 0.57},
    {"Bullialdus hills",      -16.2, -26.4,  2.6,  1.1,     10, 0.58},
    {"Agatharchides",         -21.0, -29.6,  3.4,  1.5,    170, 0.62},
    {"Gambart hills",           3.0, -13.6,  2.4,  1.8,      0, 0.57},
    {"Flamsteed ring",         -3.2, -44.2,  0.9,  0.5,      0, 0.52},
    {"Lamont hills",            3.2,  31.0,  1.1,  0.7,     60, 0.50},
    {"Secchi hills",            2.8,  43.2,  2.0,  0.8,     30, 0.62},
    {"Lacus Somniorum south",  34.4,  31.2,  1.8,  0.8,    110, 0.66},
    {"Argaeus",                19.4,  29.0,  1.2,  0.7,    150, 0.64},
    {"Vitruvius hills",        17.0,  31.5,  1.8,  0.8,    100, 0.58},
    {"Crisium cape",           14.0,  66.6,  1.4,  0.6,     40, 0.62},
});
// clang-format on

/// Floods of lava of another tone within the plains, where one has covered another.
// clang-format off
inline constexpr auto lavaFlows = std::to_array<Patch>({
    // name                       lat    lon  major  minor  bearing  tone  tint
    {"Serenitatis middle",       28.2,  17.6,  8.0,  7.6,     90, 0.485,  0.45},
    {"Serenitatis north-west",   33.0,  14.0,  5.0,  3.4,     60, 0.46,  0.40},
    {"Imbrium north",            41.5, -12.0, 10.5,  6.6,    100, 0.475, 0.45},
    {"Imbrium east",             36.0,  -1.5,  4.6,  4.2,      0, 0.45,  0.25},
    {"Imbrium young flow",       27.5, -27.0,  9.6,  4.6,     50, 0.375,-0.55},
    {"Imbrium flow, north end",  33.0, -21.5,  5.6,  2.0,     45, 0.39, -0.45},
    {"Imbrium south shore",      20.5, -18.0,  5.0,  3.0,     80, 0.43,  0.00},
    {"Procellarum dark west",    17.0, -59.0,  7.0,  8.0,      0, 0.36, -0.40},
    {"Procellarum dark north",   33.0, -60.0,  5.0,  6.5,      0, 0.38, -0.20},
    {"Procellarum dark south",    0.0, -45.0,  8.5,  4.6,     80, 0.355,-0.55},
    {"Procellarum pale north",   41.0, -50.0,  6.0,  4.6,     30, 0.455, 0.30},
    {"Humorum pale middle",     -23.6, -38.4,  4.2,  4.0,      0, 0.425, 0.05},
    {"Nubium pale south",       -25.0, -17.0,  5.0,  3.0,    100, 0.46,  0.10},
    {"Nubium dark east",        -19.0, -10.5,  2.8,  4.4,      0, 0.40,  0.00},
    {"Fecunditatis dark north",   0.5,  50.0,  5.6,  3.6,     90, 0.385,-0.40},
    {"Crisium pale middle",      17.2,  59.0,  6.0,  3.8,     88, 0.37,  0.10},
    {"Frigoris dark east",       55.5,  20.0,  6.0,  1.6,    100, 0.47,  0.30},
    {"Tranquillitatis dark west", 8.6,  22.6,  5.0,  5.4,      0, 0.32, -1.00},
});
// clang-format on

/// Wide, soft differences of tone, added where they lie; `tone` is what is added at the centre.
// clang-format off
inline constexpr auto toneShades = std::to_array<Patch>({
    // name                         lat    lon  major  minor  bearing   tone
    {"Serenitatis dark south",     18.6,  21.5,  6.5,  2.6,     70, -0.050},
    {"Imbrium dark east",          37.0,   0.0,  5.0,  3.5,      0, -0.030},
    {"Humorum dark rim",          -27.0, -40.0,  4.0,  3.0,     90, -0.030},
    {"Copernicus ground",           8.0, -19.0,  9.0,  7.0,     90,  0.050},
    {"Palus Somni",                14.5,  45.0,  4.2,  4.0,      0, -0.060},
    {"Apennines",                  19.5,   0.5,  3.0,  8.5,    130,  0.045},
    {"Haemus",                     17.0,  12.5,  5.0,  2.8,    110, -0.040},
    {"Alps",                       47.5,   1.5,  6.5,  3.0,    120,  0.015},
    {"Central highlands",          -6.0,   4.0,  9.0,  9.0,      0, -0.045},
    {"Ptolemaeus plains",         -11.0,  -1.0,  6.0,  6.0,      0, -0.035},
    {"Moesting ground",            -2.0, -11.0,  9.0,  7.5,    120, -0.100},
    {"Descartes",                  -9.0,  15.5,  6.0,  6.0,      0,  0.030},
    {"Southern highlands",        -45.0,  -5.0, 24.0, 20.0,     90,  0.040},
    {"South-eastern highlands",   -32.0,  22.0, 16.0, 14.0,     90,  0.025},
    {"Janssen",                   -47.0,  42.0, 10.0,  8.0,      0, -0.035},
    {"Fecunditatis south shore",  -20.0,  45.0,  7.0,  5.0,      0, -0.030},
    {"Eastern limb",                5.0,  74.0,  9.0, 16.0,      0, -0.020},
    {"Crisium collar",             18.0,  60.0, 14.0, 12.0,     90,  0.030},
    {"Schickard ground",          -44.0, -50.0, 10.0,  9.0,      0, -0.070},
    {"Humorum collar",            -26.0, -47.0,  6.0,  8.0,      0, -0.030},
    {"Western limb",              -18.0, -70.0, 12.0, 16.0,      0, -0.030},
    {"North-western limb",         40.0, -76.0,  8.0, 14.0,      0, -0.030},
    {"Northern highlands",         68.0,   0.0, 22.0,  9.0,     90, -0.045},
    {"North-eastern highlands",    42.0,  50.0, 12.0, 12.0,      0, -0.030},
});
// clang-format on

/// Highlands in the form of a bow, as the walls of a broken ring are.
struct Bow {
    std::string_view name;
    double latitude;  ///< of the ring's centre, degrees north
    double longitude; ///< of the ring's centre, degrees east
    double inner;     ///< radius, degrees of arc
    double outer;     ///< radius, degrees of arc
    double gap;       ///< bearing of the middle of its opening, degrees from north through east
    double gapHalf;   ///< half width of the opening, degrees, at most 90
    double tone;
};

inline constexpr auto highlandBows = std::to_array<Bow>({
    {"Montes Jura", 44.6, -31.2, 3.9, 6.4, 131, 58, 0.67},
});

} // namespace moonpicture
