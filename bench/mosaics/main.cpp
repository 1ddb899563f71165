// SPDX-License-Identifier: MIT
// How close demosaicing comes to the pictures that Bayer mosaics were made from.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "bench/mosaics/picture.h"
#include "zorcc.h"
#ifdef ZORCC_PEER_LIBRAW
    #include "bench/mosaics/libraw_ahd.h"
#endif

namespace {

using namespace zorcc::bench;
using Bytes = std::vector<std::uint8_t>;
using Words = std::vector<std::uint16_t>;

void check(ZorStatus status)
{
    if (status != zorStatusOk) throw std::runtime_error("status " + std::to_string(status));
}

// Quality of a result in memory, whose samples are `unit` times as large as the picture's, to which they are rounded.
template <class Sample> Quality qualityOf(const Picture& picture, const std::vector<Sample>& result, int unit)
{
    return zorcc::bench::qualityOf(picture, [&](int x, int y, int c) {
        return (result[3 * (static_cast<std::size_t>(y) * picture.size.width + x) + c] + unit / 2) / unit;
    });
}

Bytes gradientMethod(const Picture& picture, const Bytes& mosaic)
{
    const auto [width, height] = picture.size;
    Bytes result(picture.rgb.size());
    check(zoriCFAToRGB_8u_C1C3R(mosaic.data(), {0, 0, width, height}, picture.size, width, result.data(), 3 * width,
                                zorBayerRGGB, 0));
    return result;
}

template <class Sample, class Function>
std::vector<Sample> adaptiveMethod(Function function, const Picture& picture, const std::vector<Sample>& mosaic)
{
    constexpr int sampleBytes = sizeof(Sample);
    const auto [width, height] = picture.size;
    const int scratchStep = 32 * (width + 32);
    std::vector<Sample> scratch(static_cast<std::size_t>(64) * scratchStep / sampleBytes), result(picture.rgb.size());
    check(function(mosaic.data(), {0, 0, width, height}, picture.size, width * sampleBytes, result.data(),
                   3 * width * sampleBytes, zorBayerRGGB, scratch.data(), scratchStep));
    return result;
}

#ifdef ZORCC_PEER_LIBRAW
Quality libRaw(const Picture& picture, const Words& mosaic)
{
    LibRawAhd libRaw(picture.size,
                     [&](int x, int y) { return mosaic[static_cast<std::size_t>(y) * picture.size.width + x]; });
    libRaw.process();
    return zorcc::bench::qualityOf(picture, [&](int x, int y, int c) { return libRaw.at(x, y, c) / 257.; });
}
#endif

// What the adaptive method must gain over the gradient method, in dB; on any other picture it must lose nothing.
struct Gain {
    std::string_view picture;
    double least;
};
constexpr Gain gains[] = {{"astronaut_512x512", 6.6}, {"chelsea_451x300", 7.8},      {"coffee_599x399", 5.9},
                          {"parrots_768x512", 8.4},   {"tulips_alpha_500x500", 1.3}, {"canyon_1920x1080", 7.5}};

double leastGain(const std::string& name)
{
    for (const Gain& gain : gains)
        if (gain.picture == name) return gain.least;
    return 0;
}

struct Method {
    const char* name;
    Quality quality;
};

std::vector<Method> methodsOn(const Picture& picture, double noise)
{
    const Bytes mosaic = mosaicOf(picture, noise);
    Words words;
    for (const std::uint8_t sample : mosaic) words.push_back(static_cast<std::uint16_t>(sample * 257));
    return {{"gradient", qualityOf(picture, gradientMethod(picture, mosaic), 1)},
            {"adaptive", qualityOf(picture, adaptiveMethod(zoriDemosaicAHD_8u_C1C3R, picture, mosaic), 1)},
            {"adaptive, 16 bits", qualityOf(picture, adaptiveMethod(zoriDemosaicAHD_16u_C1C3R, picture, words), 257)},
#ifdef ZORCC_PEER_LIBRAW
            {"LibRaw", libRaw(picture, words)}
#endif
    };
}

constexpr double mostBetween8And16Bits = 0.02; // in dB

bool reached(const std::string& name, const std::vector<Method>& methods)
{
    const double gradient = methods[0].quality.all, ours = methods[1].quality.all;
    const bool agree = std::abs(ours - methods[2].quality.all) <= mostBetween8And16Bits;
    return agree && ours >= gradient + leastGain(name) && (methods.size() < 4 || ours > methods[3].quality.all);
}

void print(const std::string& name, const std::vector<Quality>& qualities, const char* remark)
{
    std::printf("%-21s", name.c_str());
    for (const Quality& q : qualities) std::printf("   %6.2f %6.2f %5.2f%%", q.all, q.detail, q.falseColours);
    std::printf("%s\n", remark);
}

// A quarter of a zone plate, whose rings become finer to the right and downwards, up to the limit of a mosaic's green
// at the edges; beside it what the gradient method and the adaptive method make of its mosaic. Each pixel is 2 x 2.
void drawZonePlates(const std::string& path)
{
    constexpr int side = 160, zoom = 2;
    Picture plate({side, side});
    for (std::size_t i = 0; i < plate.rgb.size(); ++i) {
        const double x = static_cast<double>(i / 3 % side), y = static_cast<double>(i / 3 / side);
        plate.rgb[i] =
            static_cast<std::uint8_t>(std::lround(127.5 + 120 * std::cos((x * x + y * y) * 2.2 / (2 * side))));
    }
    const Bytes mosaic = mosaicOf(plate, 0);
    const Bytes panels[] = {plate.rgb, gradientMethod(plate, mosaic),
                            adaptiveMethod(zoriDemosaicAHD_8u_C1C3R, plate, mosaic)};
    Picture all({3 * side * zoom, side * zoom});
    for (std::size_t i = 0; i < all.rgb.size(); ++i) {
        const std::size_t x = i / 3 % all.size.width / zoom, y = i / 3 / all.size.width / zoom;
        all.rgb[i] = panels[x / side][3 * (y * side + x % side) + i % 3];
    }
    writePng(path, all);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("PSNR in dB of RGGB mosaics of pictures, without 5 pixels on each side: of all pixels, and of those "
                 "where green varies by 32 within 3 x 3 pixels; and the share of pixels whose red or blue less green "
                 "is wrong by more than 16.");
    std::vector<std::string> paths;
    bool targets = false;
    int columns = 0, rows = 0;
    double noise = 0;
    std::string zonePlates;
    app.add_option("PNG", paths, "Pictures");
    app.add_option("--draw", zonePlates, "PNG to write: a zone plate, and what both methods make of it");
    app.add_option("--columns", columns, "Columns to leave out on the left, which moves the mosaic");
    app.add_option("--rows", rows, "Rows to leave out at the top");
    app.add_option("--noise", noise, "Deviation of noise that is added to the mosaic");
    app.add_flag("--check", targets, "Exit with 1 if the adaptive method does not do as well as it should");
    CLI11_PARSE(app, argc, argv);
    try {
        if (!zonePlates.empty()) drawZonePlates(zonePlates);
        bool ok = true;
        std::vector<Quality> sums;
        for (const std::string& path : paths) {
            const std::string name = std::filesystem::path(path).stem();
            const std::vector<Method> methods = methodsOn(without(readPng(path), columns, rows), noise);
            if (sums.empty()) {
                std::printf("%-21s", "");
                for (const Method& m : methods) std::printf("   %-20s", m.name);
                std::printf("\n");
                sums.resize(methods.size());
            }
            std::vector<Quality> qualities;
            for (std::size_t i = 0; i < methods.size(); ++i) {
                const Quality& q = methods[i].quality;
                qualities.push_back(q);
                sums[i].all += q.all / static_cast<double>(paths.size());
                sums[i].detail += q.detail / static_cast<double>(paths.size());
                sums[i].falseColours += q.falseColours / static_cast<double>(paths.size());
            }
            const bool good = reached(name, methods);
            print(name, qualities, good ? "" : "  MISSED");
            ok = ok && good;
        }
        if (!paths.empty()) print("mean", sums, "");
        return ok || !targets ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zorcc_mosaics: %s\n", error.what());
        return 2;
    }
}
