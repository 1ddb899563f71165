// SPDX-License-Identifier: MIT
// How close demosaicing comes to the pictures that Bayer mosaics were made from.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <png.h>

#include "zorcc.h"
#ifdef ZORCC_PEER_LIBRAW
    #include "bench/mosaics/libraw_ahd.h"
#endif

namespace {

constexpr int frame = 5; // pixels on each side that are not counted

struct Picture {
    ZorSize size;
    std::vector<std::uint8_t> rgb;

    explicit Picture(ZorSize s) : size(s), rgb(3 * static_cast<std::size_t>(s.width) * s.height) {}
    double at(int x, int y, int c) const { return rgb[3 * (static_cast<std::size_t>(y) * size.width + x) + c]; }
};

Picture readPng(const std::string& path)
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

// One colour of each pixel, RGGB.
std::vector<std::uint8_t> mosaicOf(const Picture& picture)
{
    std::vector<std::uint8_t> mosaic;
    for (int y = 0; y < picture.size.height; ++y)
        for (int x = 0; x < picture.size.width; ++x)
            mosaic.push_back(static_cast<std::uint8_t>(picture.at(x, y, (x & 1) + (y & 1))));
    return mosaic;
}

// In dB over all three channels.
template <class Result> double psnr(const Picture& picture, Result result)
{
    double squares = 0, count = 0;
    for (int y = frame; y < picture.size.height - frame; ++y)
        for (int x = frame; x < picture.size.width - frame; ++x)
            for (int c = 0; c < 3; ++c, ++count) {
                const double difference = picture.at(x, y, c) - result(x, y, c);
                squares += difference * difference;
            }
    return 10 * std::log10(255. * 255. * count / squares);
}

void check(ZorStatus status)
{
    if (status != zorStatusOk) throw std::runtime_error("status " + std::to_string(status));
}

double gradientMethod(const Picture& picture)
{
    const auto mosaic = mosaicOf(picture);
    const auto [width, height] = picture.size;
    Picture result(picture.size);
    check(zoriCFAToRGB_8u_C1C3R(mosaic.data(), {0, 0, width, height}, picture.size, width, result.rgb.data(), 3 * width,
                                zorBayerRGGB, 0));
    return psnr(picture, [&](int x, int y, int c) { return result.at(x, y, c); });
}

double adaptiveMethod(const Picture& picture)
{
    const auto mosaic = mosaicOf(picture);
    const auto [width, height] = picture.size;
    const int scratchStep = 32 * (width + 32);
    std::vector<std::uint8_t> scratch(static_cast<std::size_t>(64) * scratchStep);
    Picture result(picture.size);
    check(zoriDemosaicAHD_8u_C1C3R(mosaic.data(), {0, 0, width, height}, picture.size, width, result.rgb.data(),
                                   3 * width, zorBayerRGGB, scratch.data(), scratchStep));
    return psnr(picture, [&](int x, int y, int c) { return result.at(x, y, c); });
}

#ifdef ZORCC_PEER_LIBRAW
double libRaw(const Picture& picture)
{
    const auto mosaic = mosaicOf(picture);
    zorcc::bench::LibRawAhd libRaw(picture.size, [&](int x, int y) {
        return static_cast<std::uint16_t>(mosaic[static_cast<std::size_t>(y) * picture.size.width + x] * 257);
    });
    libRaw.process();
    return psnr(picture, [&](int x, int y, int c) { return libRaw.at(x, y, c) / 257.; });
}
#endif

// What the adaptive method must gain over the gradient method, in dB; on any other picture it must lose nothing.
struct Gain {
    std::string_view picture;
    double least;
};
constexpr Gain gains[] = {
    {"astronaut_512x512", 4.5}, {"chelsea_451x300", 4.5}, {"coffee_599x399", 4.5}, {"parrots_768x512", 4.5}};

double leastGain(const std::string& path)
{
    const std::string name = std::filesystem::path(path).stem();
    for (const Gain& gain : gains)
        if (gain.picture == name) return gain.least;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("PSNR in dB, over red, green and blue without 5 pixels on each side, of RGGB mosaics of pictures.");
    std::vector<std::string> pictures;
    bool targets = false;
    app.add_option("PNG", pictures, "Pictures")->required();
    app.add_flag("--check", targets, "Exit with 1 if the adaptive method does not do as well as it should");
    CLI11_PARSE(app, argc, argv);
    try {
        bool ok = true;
        std::printf("%-28s %9s %9s %9s\n", "", "gradient", "adaptive", "LibRaw");
        for (const std::string& path : pictures) {
            const Picture picture = readPng(path);
            const double gradient = gradientMethod(picture), adaptive = adaptiveMethod(picture);
            bool reached = adaptive >= gradient + leastGain(path);
            std::printf("%-28s %9.2f %9.2f", std::filesystem::path(path).stem().c_str(), gradient, adaptive);
#ifdef ZORCC_PEER_LIBRAW
            const double other = libRaw(picture);
            reached = reached && adaptive > other;
            std::printf(" %9.2f", other);
#endif
            std::printf("%s\n", reached ? "" : "  MISSED");
            ok = ok && reached;
        }
        return ok || !targets ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zorcc_mosaics: %s\n", error.what());
        return 2;
    }
}
