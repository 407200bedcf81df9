// SPDX-License-Identifier: MIT
#include "bmp.hpp"

#include <fstream>
#include <span>
#include <stdexcept>
#include <string>

namespace moonpicture {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t fileHeaderSize = 14;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::uint32_t pixelSize = 3;
constexpr std::uint32_t pixelOffset = fileHeaderSize + infoHeaderSize;

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
    return (pixelSize * static_cast<std::uint32_t>(width) + 3U) / 4U * 4U;
}

std::uint32_t imageSize(const Picture& picture) {
    return paddedRow(picture.width) * static_cast<std::uint32_t>(picture.height);
}

void appendFileHeader(Bytes& out, const Picture& picture) {
    out.push_back('B');
    out.push_back('M');
    append32(out, pixelOffset + imageSize(picture));
    append32(out, 0); // reserved
    append32(out, pixelOffset);
}

void appendInfoHeader(Bytes& out, const Picture& picture) {
    constexpr std::uint32_t pixelsPerMetre = 2835; // 72 dots per inch
    append32(out, infoHeaderSize);
    append32(out, static_cast<std::uint32_t>(picture.width));
    append32(out, static_cast<std::uint32_t>(picture.height));
    append16(out, 1); // planes
    append16(out, 8 * pixelSize);
    append32(out, 0); // uncompressed
    append32(out, imageSize(picture));
    append32(out, pixelsPerMetre);
    append32(out, pixelsPerMetre);
    append32(out, 0); // no palette
    append32(out, 0); // nor any colour in it that matters more
}

/// Rows go from the bottom up, as a positive height announces.
void appendPixels(Bytes& out, const Picture& picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    const std::size_t padding = paddedRow(picture.width) - pixelSize * width;
    const std::span<const Colour> pixels(picture.pixels);
    for (auto row = static_cast<std::size_t>(picture.height); row-- > 0;) {
        for (const Colour& pixel : pixels.subspan(row * width, width))
            out.insert(out.end(), {pixel.blue, pixel.green, pixel.red});
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

void writeBmp(const std::filesystem::path& file, const Picture& picture) {
    Bytes bytes;
    bytes.reserve(pixelOffset + imageSize(picture));
    appendFileHeader(bytes, picture);
    appendInfoHeader(bytes, picture);
    appendPixels(bytes, picture);
    writeFile(file, bytes);
}

} // namespace moonpicture
