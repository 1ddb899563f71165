// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <climits>
#include <cstring>

#include "../error.h"
#include "../formats.h"
#include "codecs.h"

namespace zorcc::tool {

namespace {

// The next word of a header or of text samples; takes the one blank after it, too, since binary samples may follow.
std::string word(InputFile& file)
{
    constexpr std::size_t longest = 64;
    std::string text;
    int c = file.get();
    while (std::isspace(c) || c == '#') {
        while (c == '#') do
                c = file.get();
            while (c != '\n' && c != EOF);
        c = file.get();
    }
    for (; c != EOF && !std::isspace(c) && text.size() < longest; c = file.get()) text += static_cast<char>(c);
    if (text.empty()) throw Cause("the file ends early");
    return text;
}

int number(InputFile& file, int low, int high)
{
    const std::string text = word(file);
    long long value = 0;
    for (char c : text) {
        if (!std::isdigit(static_cast<unsigned char>(c))) throw Cause(quoted(text) + " where a number should be");
        value = std::min(value * 10 + (c - '0'), INT_MAX + 1ll);
    }
    if (value < low || value > high)
        throw Cause(text + " is not in " + std::to_string(low) + ".." + std::to_string(high));
    return static_cast<int>(value);
}

// Big-endian samples in the file, or text, to samples in memory, scaled from 0..maximum to the full range. Rows are
// read into their place: a header may promise any row, and memory costs nothing before it is touched.
template <class T> void readSamples(InputFile& file, const Picture& picture, int maximum, bool text)
{
    constexpr int full = sizeof(T) == 1 ? 255 : 65535;
    const std::size_t rowBytes = picture.visibleRowBytes(0);
    for (int y = 0; y < picture.size().height; ++y) {
        std::uint8_t* const row = picture.row(0, y);
        if (!text) file.read(row, rowBytes);
        if (!text && sizeof(T) == 1 && maximum == full) continue;
        for (std::size_t i = 0; i < rowBytes; i += sizeof(T)) {
            const int value = text ? number(file, 0, maximum) : sizeof(T) == 1 ? row[i] : row[i] << 8 | row[i + 1];
            if (value > maximum) throw Cause("a sample is above the maximum of the header");
            const auto scaled = static_cast<T>((static_cast<std::int64_t>(value) * full + maximum / 2) / maximum);
            std::memcpy(row + i, &scaled, sizeof scaled);
        }
    }
}

Picture decodePfm(InputFile& file, bool grey, ZorSize size)
{
    const std::string scale = word(file);
    char* end = nullptr;
    const double value = std::strtod(scale.c_str(), &end);
    if (*end != 0 || value == 0) throw Cause(quoted(scale) + " where the scale should be");
    const Format& format = pictureFormat(grey, false, Sample::f32);
    checkRowBytes(format, size);
    file.expect(interface::rowBytes(format, 0, size.width) * size.height);
    checkPixels(size);
    Picture picture(format, size);
    const std::size_t rowBytes = picture.visibleRowBytes(0);
    for (int y = size.height - 1; y >= 0; --y) { // the lowest row comes first
        std::uint8_t* const row = picture.row(0, y);
        file.read(row, rowBytes);
        if (value > 0) // most significant byte first
            for (std::size_t i = 0; i < rowBytes; i += sizeof(float)) std::reverse(row + i, row + i + sizeof(float));
    }
    return picture;
}

void encodeIntegers(AtomicFile& file, Picture given, bool grey)
{
    const bool deep = isDeep(given.format());
    const ZorSize size = given.visible();
    const Picture picture =
        toEncode(file, std::move(given), pictureFormat(grey, false, deep ? Sample::u16 : Sample::u8));
    file.print(std::string(grey ? "P5\n" : "P6\n") + std::to_string(size.width) + " " + std::to_string(size.height) +
               (deep ? "\n65535\n" : "\n255\n"));
    const std::size_t rowBytes = picture.visibleRowBytes(0);
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* const row = picture.row(0, y);
        if (deep) // most significant byte first
            for (std::size_t i = 0; i < rowBytes; i += 2) std::swap(row[i], row[i + 1]);
        file.write(row, rowBytes);
    }
}

} // namespace

Picture decodePnm(InputFile& file)
{
    const std::string magic = word(file);
    const bool grey = magic == "P2" || magic == "P5" || magic == "Pf", text = magic == "P2" || magic == "P3";
    if (!grey && !text && magic != "P6" && magic != "PF") throw Cause(quoted(magic) + " is no kind of PGM, PPM or PFM");
    ZorSize size;
    size.width = number(file, 1, INT_MAX);
    size.height = number(file, 1, INT_MAX);
    if (magic[1] == 'f' || magic[1] == 'F') return decodePfm(file, grey, size);

    const int maximum = number(file, 1, 65535);
    const bool deep = maximum > 255;
    const Format& format = pictureFormat(grey, false, deep ? Sample::u16 : Sample::u8);
    checkRowBytes(format, size);
    // As text every sample takes a digit and, but for the last, a blank.
    const std::uint64_t bytes = static_cast<std::uint64_t>(interface::rowBytes(format, 0, size.width)) * size.height;
    file.expect(text ? bytes / (deep ? 2 : 1) * 2 - 1 : bytes);
    checkPixels(size);
    Picture picture(format, size);
    if (deep)
        readSamples<std::uint16_t>(file, picture, maximum, text);
    else
        readSamples<std::uint8_t>(file, picture, maximum, text);
    return picture;
}

void encodePgm(AtomicFile& file, Picture picture)
{
    if (!isGrey(picture.format())) throw Cause("PGM holds grey, and the picture has colours: use .ppm or .png");
    encodeIntegers(file, std::move(picture), true);
}

void encodePpm(AtomicFile& file, Picture picture) { encodeIntegers(file, std::move(picture), false); }

void encodePfm(AtomicFile& file, Picture given)
{
    const bool grey = isGrey(given.format());
    const ZorSize size = given.visible();
    const Picture picture = toEncode(file, std::move(given), pictureFormat(grey, false, Sample::f32));
    file.print(std::string(grey ? "Pf\n" : "PF\n") + std::to_string(size.width) + " " + std::to_string(size.height) +
               "\n-1.0\n"); // least significant byte first
    for (int y = size.height - 1; y >= 0; --y) file.write(picture.row(0, y), picture.visibleRowBytes(0));
}

} // namespace zorcc::tool
