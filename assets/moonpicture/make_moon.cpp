// SPDX-License-Identifier: MIT
//
// Computes the picture of the full moon that the calendar shows: make_moon OUTPUT.bmp
#include "bmp.hpp"
#include "moon.hpp"

#include <exception>
#include <iostream>

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: make_moon OUTPUT.bmp\n";
        return 1;
    }
    try {
        constexpr int pictureSize = 960; // more than the calendar shows at three times its size
        moonpicture::writeBmp(argv[1], moonpicture::fullMoon(pictureSize));
    } catch (const std::exception& error) {
        std::cerr << "make_moon: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
