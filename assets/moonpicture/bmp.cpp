// SPDX-License-Identifier: MIT
#include "bmp.hpp"

#include <fstream>
#include <stdexcept>
#include <string>

namespace moonpicture {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t fileHeaderSize = 14;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::uint32_t paletteEntries = 256;
constexpr std::uint32_t pixelOffset = fileHeaderSize + infoHeaderSize + 4 * paletteEntries;

/// Appends the low `count` bytes of a number, lowest first, as the format wants them.
void append(Bytes& out, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void append16(Bytes& out, std::uint32_t value) {
    append(out, value, 2);
}
void append32(Bytes& out, std::uint32_t value) {
    append(out, value, 4);
}

/// The format pads every row to a multiple of four bytes.
std::uint32_t paddedRow(int width) {
    return (static_cast<std::uint32_t>(width) + 3U) / 4U * 4U;
}

std::uint32_t imageSize(const IndexedPicture& picture) {
    return paddedRow(picture.width) * static_cast<std::uint32_t>(picture.height);
}

void appendFileHeader(Bytes& out, const IndexedPicture& picture) {
    out.push_back('B');
    out.push_back('M');
    append32(out, pixelOffset + imageSize(picture));
    append32(out, 0); // reserved
    append32(out, pixelOffset);
}

void appendInfoHeader(Bytes& out, const IndexedPicture& picture) {
    constexpr std::uint32_t pixelsPerMetre = 2835; // 72 dots per inch
    append32(out, infoHeaderSize);
    append32(out, static_cast<std::uint32_t>(picture.width));
    append32(out, static_cast<std::uint32_t>(picture.height));
    append16(out, 1); // planes
    append16(out, 8); // bits a pixel
    append32(out, 0); // uncompressed
    append32(out, imageSize(picture));
    append32(out, pixelsPerMetre);
    append32(out, pixelsPerMetre);
    append32(out, paletteEntries);
    append32(out, 0); // every entry matters
}

void appendPalette(Bytes& out, std::span<const Colour, paletteEntries> palette) {
    for (const Colour& colour : palette)
        out.insert(out.end(), {colour.blue, colour.green, colour.red, std::uint8_t{0}});
}

/// Rows go from the bottom up, as a positive height announces.
void appendPixels(Bytes& out, const IndexedPicture& picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    const std::size_t padding = paddedRow(picture.width) - width;
    const std::span<const std::uint8_t> pixels(picture.pixels);
    for (auto row = static_cast<std::size_t>(picture.height); row-- > 0;) {
        const auto line = pixels.subspan(row * width, width);
        out.insert(out.end(), line.begin(), line.end());
        out.insert(out.end(), padding, std::uint8_t{0});
    }
}

void writeFile(const std::filesystem::path& file, const Bytes& bytes) {
    std::ofstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot open " + file.string() + " for writing");
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

void writeBmp(const std::filesystem::path& file, const IndexedPicture& picture,
              std::span<const Colour, 256> palette) {
    Bytes bytes;
    bytes.reserve(pixelOffset + imageSize(picture));
    appendFileHeader(bytes, picture);
    appendInfoHeader(bytes, picture);
    appendPalette(bytes, palette);
    appendPixels(bytes, picture);
    writeFile(file, bytes);
}

} // namespace moonpicture
