// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace moonpicture {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// A picture of palette indices, rows from the top down.
struct IndexedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Writes an uncompressed Windows bitmap of 8 bits a pixel; throws std::runtime_error, naming the
/// file, if that fails.
void writeBmp(const std::filesystem::path& file, const IndexedPicture& picture,
              std::span<const Colour, 256> palette);

} // namespace moonpicture
