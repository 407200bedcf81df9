// SPDX-License-Identifier: MIT
//
// Named craters. Positions and diameters are those of the IAU gazetteer, rounded.
#pragma once

#include <array>
#include <string_view>

namespace moonpicture {

/// How a crater looks under the high sun of a full moon.
enum class Look {
    Brilliant, ///< young: white walls and floor, white apron
    Fresh,     ///< bright walls, somewhat bright apron
    Worn,      ///< just a pale ring around a faintly grey floor
    Flooded,   ///< a floor greyed by lava within a pale ring
    Dark,      ///< a floor of lava as dark as any plain
};

struct Crater {
    std::string_view name;
    double latitude;  ///< degrees north
    double longitude; ///< degrees east
    double diameter;  ///< kilometres
    Look look;
};

// clang-format off
inline constexpr auto namedCraters = std::to_array<Crater>({
    // name                     lat    lon  diameter  look
    // The south.
    {"Tycho",                 -43.3, -11.2,      85, Look::Brilliant},
    {"Clavius",               -58.8, -14.1,     231, Look::Worn},
    {"Longomontanus",         -49.6, -21.8,     146, Look::Worn},
    {"Maginus",               -50.5,  -6.3,     156, Look::Worn},
    {"Wilhelm",               -43.4, -20.4,     101, Look::Worn},
    {"Moretus",               -70.6,  -5.8,     114, Look::Worn},
    {"Blancanus",             -63.8, -21.4,     106, Look::Worn},
    {"Scheiner",              -60.5, -27.5,     110, Look::Worn},
    {"Zuchius",               -61.4, -50.3,      64, Look::Fresh},
    {"Bailly",                -66.5, -69.1,     300, Look::Worn},
    {"Schiller",              -51.9, -39.0,     110, Look::Worn},
    {"Phocylides",            -52.7, -57.0,     121, Look::Worn},
    {"Schickard",             -44.3, -55.3,     206, Look::Worn},
    {"Schickard north floor", -42.8, -54.6,      80, Look::Flooded},
    {"Pitatus",               -29.9, -13.5,     100, Look::Flooded},
    {"Deslandres",            -33.1,  -4.8,     227, Look::Worn},
    {"Hell",                  -32.4,  -7.8,      33, Look::Fresh},
    {"Walther",               -33.1,   1.0,     134, Look::Worn},
    {"Regiomontanus",         -28.3,  -1.0,     117, Look::Worn},
    {"Purbach",               -25.5,  -2.0,     115, Look::Worn},
    {"Werner",                -28.0,   3.3,      70, Look::Fresh},
    {"Aliacensis",            -30.6,   5.2,      79, Look::Worn},
    {"Stoefler",              -41.1,   6.0,     126, Look::Worn},
    {"Maurolycus",            -42.0,  14.0,     114, Look::Worn},
    {"Gemma Frisius",         -34.2,  13.3,      87, Look::Worn},
    {"Sacrobosco",            -23.7,  16.7,      98, Look::Worn},
    {"Piccolomini",           -29.7,  32.2,      88, Look::Worn},
    {"Janssen",               -44.9,  40.8,     190, Look::Worn},
    {"Metius",                -40.3,  43.3,      87, Look::Worn},
    {"Rosenberger",           -55.4,  43.1,      95, Look::Worn},
    // The middle.
    {"Ptolemaeus",             -9.3,  -1.9,     154, Look::Worn},
    {"Alphonsus",             -13.4,  -2.8,     111, Look::Worn},
    {"Arzachel",              -18.3,  -1.9,      97, Look::Worn},
    {"Albategnius",           -11.7,   4.3,     131, Look::Worn},
    {"Hipparchus",             -5.1,   5.2,     144, Look::Worn},
    {"Herschel",               -5.7,  -2.1,      39, Look::Worn},
    {"Lalande",                -4.4,  -8.6,      24, Look::Brilliant},
    {"Moesting",               -0.7,  -5.9,      24, Look::Fresh},
    {"Moesting A",             -3.2,  -5.2,      13, Look::Brilliant},
    {"Triesnecker",             4.2,   3.6,      25, Look::Brilliant},
    {"Agrippa",                 4.1,  10.5,      44, Look::Fresh},
    {"Godin",                   1.8,  10.2,      34, Look::Fresh},
    {"Dionysius",               2.8,  17.3,      18, Look::Brilliant},
    {"Delambre",               -1.9,  17.5,      51, Look::Worn},
    {"Julius Caesar",           9.2,  15.2,      66, Look::Flooded},
    {"Boscovich",               9.7,  11.0,      43, Look::Worn},
    {"Abulfeda",              -13.8,  13.9,      65, Look::Worn},
    {"Manilius",               14.5,   9.1,      38, Look::Brilliant},
    {"Menelaus",               16.3,  16.0,      27, Look::Brilliant},
    {"Plinius",                15.4,  23.7,      41, Look::Fresh},
    {"Dawes",                  17.2,  26.4,      17, Look::Fresh},
    {"Bessel",                 21.8,  17.9,      16, Look::Fresh},
    {"Linne",                  27.7,  11.8,       8, Look::Brilliant},
    // The south-east.
    {"Theophilus",            -11.4,  26.4,      99, Look::Fresh},
    {"Cyrillus",              -13.2,  24.0,      98, Look::Worn},
    {"Catharina",             -18.1,  23.4,      99, Look::Worn},
    {"Maedler",               -11.0,  29.8,      27, Look::Fresh},
    {"Fracastorius",          -21.5,  33.2,     112, Look::Flooded},
    {"Rosse",                 -17.9,  35.0,      12, Look::Fresh},
    {"Censorinus",             -0.4,  32.7,       9, Look::Brilliant},
    {"Isidorus",               -8.0,  33.5,      42, Look::Worn},
    {"Capella",                -7.5,  35.0,      45, Look::Worn},
    {"Gutenberg",              -8.6,  41.2,      74, Look::Worn},
    {"Goclenius",             -10.0,  45.0,      62, Look::Worn},
    {"Messier",                -1.9,  47.6,      12, Look::Brilliant},
    {"Taruntius",               5.6,  46.5,      57, Look::Fresh},
    {"Langrenus",              -8.9,  61.1,     132, Look::Fresh},
    {"Vendelinus",            -16.4,  61.6,     141, Look::Worn},
    {"Petavius",              -25.1,  60.4,     184, Look::Worn},
    {"Petavius B",            -19.9,  57.1,      33, Look::Brilliant},
    {"Snellius",              -29.3,  55.7,      86, Look::Worn},
    {"Stevinus",              -32.5,  54.2,      72, Look::Fresh},
    {"Stevinus A",            -31.8,  51.6,      12, Look::Brilliant},
    {"Furnerius",             -36.0,  60.6,     135, Look::Worn},
    {"Furnerius A",           -33.5,  59.0,      14, Look::Brilliant},
    {"Humboldt",              -27.0,  80.9,     199, Look::Worn},
    {"Firmicus",                7.3,  63.4,      50, Look::Flooded},
    // The north-east.
    {"Proclus",                16.1,  46.8,      27, Look::Brilliant},
    {"Macrobius",              21.3,  46.0,      63, Look::Worn},
    {"Picard",                 14.6,  54.7,      22, Look::Fresh},
    {"Peirce",                 18.3,  53.5,      18, Look::Fresh},
    {"Condorcet",              12.1,  69.6,      70, Look::Flooded},
    {"Cleomedes",              27.7,  55.5,     131, Look::Worn},
    {"Burckhardt",             31.1,  56.5,      54, Look::Fresh},
    {"Geminus",                34.5,  56.7,      82, Look::Fresh},
    {"Messala",                39.2,  60.5,     122, Look::Worn},
    {"Gauss",                  35.9,  79.1,     177, Look::Worn},
    {"Endymion",               53.6,  56.5,     118, Look::Flooded},
    {"Thales",                 61.8,  50.3,      31, Look::Brilliant},
    {"Atlas",                  46.7,  44.4,      87, Look::Worn},
    {"Atlas dark spot",        46.4,  45.0,      26, Look::Flooded},
    {"Hercules",               46.7,  39.1,      62, Look::Flooded},
    {"Franklin",               38.8,  47.7,      56, Look::Worn},
    {"Posidonius",             31.8,  29.9,      95, Look::Worn},
    {"Le Monnier",             26.6,  30.6,      60, Look::Flooded},
    {"Roemer",                 25.4,  36.4,      40, Look::Fresh},
    {"Buerg",                  45.0,  28.2,      41, Look::Fresh},
    {"Eudoxus",                44.3,  16.3,      67, Look::Fresh},
    {"Aristoteles",            50.2,  17.4,      87, Look::Fresh},
    {"Archytas",               58.7,   5.0,      31, Look::Fresh},
    {"W. Bond",                65.4,   4.5,     156, Look::Worn},
    {"Meton",                  73.6,  18.8,     122, Look::Worn},
    // The north-west.
    {"Plato",                  51.6,  -9.4,     104, Look::Dark},
    {"Anaxagoras",             73.4, -10.1,      50, Look::Brilliant},
    {"Goldschmidt",            73.2,  -3.8,     113, Look::Worn},
    {"Philolaus",              72.1, -32.4,      70, Look::Fresh},
    {"J. Herschel",            62.3, -41.2,     156, Look::Worn},
    {"Pythagoras",             63.5, -62.8,     142, Look::Worn},
    {"Harpalus",               52.6, -43.4,      39, Look::Fresh},
    {"Bianchini",              48.7, -34.3,      38, Look::Worn},
    {"Sharp",                  45.7, -40.2,      40, Look::Worn},
    {"Mairan",                 41.6, -43.4,      40, Look::Worn},
    {"Cassini",                40.2,   4.6,      57, Look::Worn},
    {"Aristillus",             33.9,   1.2,      54, Look::Fresh},
    {"Autolycus",              30.7,   1.5,      39, Look::Fresh},
    {"Archimedes",             29.7,  -4.0,      81, Look::Worn},
    {"Piazzi Smyth",           41.9,  -3.2,      13, Look::Fresh},
    {"Pico",                   45.7,  -8.9,      14, Look::Fresh},
    {"Timocharis",             26.7, -13.1,      34, Look::Fresh},
    {"Lambert",                25.8, -21.0,      30, Look::Fresh},
    {"Pytheas",                20.5, -20.6,      19, Look::Brilliant},
    {"Euler",                  23.3, -29.2,      26, Look::Fresh},
    {"Helicon",                40.4, -23.1,      24, Look::Worn},
    {"Le Verrier",             40.3, -20.6,      20, Look::Worn},
    {"Delisle",                29.9, -34.6,      25, Look::Fresh},
    {"Eratosthenes",           14.5, -11.3,      59, Look::Worn},
    {"Copernicus",              9.6, -20.1,      96, Look::Brilliant},
    {"Reinhold",                3.3, -22.8,      42, Look::Worn},
    {"Kepler",                  8.1, -38.0,      30, Look::Brilliant},
    {"Encke",                   4.7, -36.6,      28, Look::Worn},
    {"Marius",                 11.9, -50.8,      40, Look::Worn},
    {"Reiner",                  7.0, -54.9,      29, Look::Worn},
    {"Reiner Gamma",            7.4, -59.0,      24, Look::Fresh},
    {"Aristarchus",            23.7, -47.4,      40, Look::Brilliant},
    {"Herodotus",              23.2, -49.8,      35, Look::Worn},
    {"Seleucus",               21.1, -66.7,      43, Look::Fresh},
    {"Glushko",                 8.1, -77.6,      40, Look::Brilliant},
    // The south-west.
    {"Grimaldi",               -5.4, -68.4,     165, Look::Dark},
    {"Riccioli",               -2.9, -74.4,     156, Look::Worn},
    {"Riccioli north floor",   -1.6, -74.2,      60, Look::Dark},
    {"Hevelius",                2.2, -67.5,     114, Look::Worn},
    {"Cavalerius",              5.1, -66.8,      60, Look::Fresh},
    {"Lansberg",               -0.3, -26.6,      38, Look::Fresh},
    {"Euclides",               -7.4, -29.5,      12, Look::Brilliant},
    {"Flamsteed",              -4.5, -44.3,      20, Look::Fresh},
    {"Hansteen",              -11.5, -52.0,      45, Look::Worn},
    {"Hansteen mount",        -12.2, -50.2,      24, Look::Brilliant},
    {"Billy",                 -13.8, -50.1,      45, Look::Dark},
    {"Crueger",               -16.7, -66.8,      46, Look::Dark},
    {"Gassendi",              -17.6, -40.1,     108, Look::Worn},
    {"Mersenius",             -21.5, -49.3,      84, Look::Worn},
    {"Byrgius A",             -24.5, -63.7,      19, Look::Brilliant},
    {"Vieta",                 -29.2, -56.3,      87, Look::Worn},
    {"Vitello",               -30.4, -37.5,      42, Look::Worn},
    {"Doppelmayer",           -28.5, -41.4,      64, Look::Worn},
    {"Campanus",              -28.0, -27.8,      48, Look::Worn},
    {"Mercator",              -29.3, -26.1,      46, Look::Worn},
    {"Capuanus",              -34.1, -26.7,      52, Look::Worn},
    {"Kies",                  -26.3, -22.5,      44, Look::Worn},
    {"Bullialdus",            -20.7, -22.2,      61, Look::Fresh},
    {"Birt",                  -22.4,  -8.5,      17, Look::Brilliant},
    {"Guericke",              -11.5, -14.1,      63, Look::Worn},
});
// clang-format on

} // namespace moonpicture
