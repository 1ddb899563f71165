// SPDX-License-Identifier: MIT
// Pictures, the mosaics made from them, and how close a result comes to a picture.
#pragma once

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "zorcc/types.h"

namespace zorcc::bench {

struct Picture {
    ZorSize size;
    std::vector<std::uint8_t> rgb;

    explicit Picture(ZorSize s) : size(s), rgb(3 * static_cast<std::size_t>(s.width) * s.height) {}
    double at(int x, int y, int c) const { return rgb[3 * (static_cast<std::size_t>(y) * size.width + x) + c]; }
};

inline Picture readPng(const std::string& path)
{
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str())) throw std::runtime_error(path + ": " + png.message);
    png.format = PNG_FORMAT_RGBA; // so that colours are not blended with a background
    std::vector<std::uint8_t> rgba(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, rgba.data(), 0, nullptr))
        throw std::runtime_error(path + ": " + png.message);
    Picture picture({static_cast<int>(png.width), static_cast<int>(png.height)});
    for (std::size_t i = 0; i < picture.rgb.size(); ++i) picture.rgb[i] = rgba[i / 3 * 4 + i % 3];
    return picture;
}

inline void writePng(const std::string& path, const Picture& picture)
{
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(picture.size.width);
    png.height = static_cast<png_uint_32>(picture.size.height);
    png.format = PNG_FORMAT_RGB;
    if (!png_image_write_to_file(&png, path.c_str(), 0, picture.rgb.data(), 0, nullptr))
        throw std::runtime_error(path + ": " + png.message);
}

// Without that many columns on the left and rows at the top, which moves the mosaic against the picture.
inline Picture without(const Picture& picture, int columns, int rows)
{
    Picture rest({picture.size.width - columns, picture.size.height - rows});
    for (int y = 0; y < rest.size.height; ++y)
        std::copy_n(picture.rgb.begin() + 3 * (static_cast<std::ptrdiff_t>(y + rows) * picture.size.width + columns),
                    3 * rest.size.width, rest.rgb.begin() + 3 * static_cast<std::ptrdiff_t>(y) * rest.size.width);
    return rest;
}

// One colour of each pixel, RGGB, with noise of that deviation, the same in every run.
inline std::vector<std::uint8_t> mosaicOf(const Picture& picture, double noise)
{
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    std::vector<std::uint8_t> mosaic;
    for (int y = 0; y < picture.size.height; ++y)
        for (int x = 0; x < picture.size.width; ++x) {
            const double sample = picture.at(x, y, (x & 1) + (y & 1)) + (noise > 0 ? noise * normal(random) : 0);
            mosaic.push_back(static_cast<std::uint8_t>(std::clamp(std::floor(sample + 0.5), 0., 255.)));
        }
    return mosaic;
}

struct Quality {
    double all = 0, detail = 0; // PSNR in dB over red, green and blue: of all pixels, and of those in detail
    double falseColours = 0;    // per cent of pixels
};

// Without five pixels on each side. In detail, green varies by 32 or more within 3 x 3 pixels of the picture. A colour
// is false where red or blue less green is wrong by more than 16. result(x, y, c) is on the scale of 8 bits.
template <class Result> Quality qualityOf(const Picture& picture, Result result)
{
    constexpr int frame = 5;
    double squares = 0, detailSquares = 0, pixels = 0, detailPixels = 0, falsePixels = 0;
    for (int y = frame; y < picture.size.height - frame; ++y)
        for (int x = frame; x < picture.size.width - frame; ++x) {
            double error[3], square = 0, low = 255, high = 0;
            for (int c = 0; c < 3; ++c) {
                error[c] = result(x, y, c) - picture.at(x, y, c);
                square += error[c] * error[c];
            }
            for (int i = 0; i < 9; ++i) {
                const double green = picture.at(x + i % 3 - 1, y + i / 3 - 1, 1);
                low = std::min(low, green);
                high = std::max(high, green);
            }
            const bool inDetail = high - low >= 32;
            squares += square;
            ++pixels;
            detailSquares += inDetail ? square : 0;
            detailPixels += inDetail;
            falsePixels += std::abs(error[0] - error[1]) > 16 || std::abs(error[2] - error[1]) > 16;
        }
    const auto psnr = [](double sum, double count) { return 10 * std::log10(255. * 255. * 3 * count / sum); };
    return {psnr(squares, pixels), psnr(detailSquares, detailPixels), 100 * falsePixels / pixels};
}

} // namespace zorcc::bench
