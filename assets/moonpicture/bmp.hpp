// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace moonpicture {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// Rows from the top down.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels;
};

/// Writes an uncompressed Windows bitmap of 24 bits a pixel; throws std::runtime_error, naming the
/// file, if that fails.
void writeBmp(const std::filesystem::path& file, const Picture& picture);

} // namespace moonpicture
