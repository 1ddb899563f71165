// SPDX-License-Identifier: MIT
#include "tests/reference/cbycr422.h"

#include <algorithm>
#include <cmath>

namespace zorcc::reference {

namespace {

struct Rgb {
    int r = 0, g = 0, b = 0;

    Rgb operator+(const Rgb& other) const { return {r + other.r, g + other.g, b + other.b}; }
    Rgb reversed() const { return {b, g, r}; }
};

Rgb at(const Pixels& source, int x, int y)
{
    return {source.get(red, x, y), source.get(green, x, y), source.get(blue, x, y)};
}

constexpr int half = 1 << 15, grey = 128 << 16;

int lumaOf(const Rgb& p) { return 16843 * p.r + 33030 * p.g + 6423 * p.b + (16 << 16); }
int cbOf(const Rgb& p) { return -9699 * p.r - 19071 * p.g + 28770 * p.b; }
int crOf(const Rgb& p) { return 28770 * p.r - 24117 * p.g - 4653 * p.b; }

// Calls ofPair(x, y) for the first pixel of every pair, single(x, y) for an odd last one.
template <class OfPair, class Single> void eachPair(ZorSize size, OfPair ofPair, Single single)
{
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x + 1 < size.width; x += 2) ofPair(x, y);
        if (size.width % 2) single(size.width - 1, y);
    }
}

template <class LevelOf> void filtered(const Pixels& source, Pixels& destination, LevelOf levelOf)
{
    const auto pixel = [&](int x, int y) {
        const Rgb p = x < 0 ? Rgb{} : at(source, x, y);
        return Rgb{levelOf(p.r), levelOf(p.g), levelOf(p.b)};
    };
    eachPair(
        source.size(),
        [&](int x, int y) {
            const Rgb centre = pixel(x, y), sides = pixel(x - 1, y) + pixel(x + 1, y);
            const int cb = -2426 * centre.r - 4769 * centre.g + 7193 * centre.b //
                           - 1213 * sides.r - 2385 * sides.g + 3596 * sides.b;
            const int cr = 7193 * centre.r - 6030 * centre.g - 1164 * centre.b //
                           + 3596 * sides.r - 3015 * sides.g - 582 * sides.b;
            destination.put(chromaU, x, y, std::clamp((cb + 0x403fff) >> 15, 0, 255));
            destination.put(chromaV, x, y, std::clamp((cr + 0x403fff) >> 15, 0, 255));
            for (int i : {x, x + 1}) {
                const Rgb p = pixel(i, y);
                destination.put(luma, i, y, (8422 * p.r + 16515 * p.g + 3212 * p.b + 0x84000) >> 15);
            }
        },
        [&](int x, int y) {
            destination.put(luma, x, y, (lumaOf(pixel(x, y)) + half) >> 16);
            destination.put(chromaU, x, y, (cbOf(pixel(x, y)) + grey + half) >> 16);
        });
}

} // namespace

void rgbToCbYCr(const Pixels& source, Pixels& destination)
{
    eachPair(
        source.size(),
        [&](int x, int y) {
            const Rgb sum = at(source, x, y) + at(source, x + 1, y);
            destination.put(chromaU, x, y, (cbOf(sum) + 2 * grey + 2 * half) >> 17);
            destination.put(chromaV, x, y, (crOf(sum) + 2 * grey + 2 * half - 2) >> 17);
            for (int i : {x, x + 1}) destination.put(luma, i, y, (lumaOf(at(source, i, y)) + half) >> 16);
        },
        [&](int x, int y) {
            const Rgb swapped = at(source, x, y).reversed();
            destination.put(luma, x, y, (lumaOf(swapped) + half) >> 16);
            destination.put(chromaU, x, y, (cbOf(swapped) + grey + half) >> 16);
        });
}

void rgbToYCrCb(const Pixels& source, Pixels& destination)
{
    const int blocks = source.width() / 4 * 4;
    eachPair(
        source.size(),
        [&](int x, int y) {
            const Rgb sum = at(source, x, y) + at(source, x + 1, y);
            destination.put(chromaU, x, y, (cbOf(sum) + 0x1010000) >> 17);
            destination.put(chromaV, x, y, (crOf(sum) + 0x1010000) >> 17);
            destination.put(luma, x, y, (lumaOf(at(source, x, y)) + half) >> 16);
            destination.put(luma, x + 1, y, (lumaOf(at(source, x + 1, y)) + (x < blocks ? half : 0)) >> 16);
        },
        [&](int x, int y) {
            destination.put(luma, x, y, (lumaOf(at(source, x, y)) + half) >> 16);
            destination.put(chromaV, x, y, (crOf(at(source, x, y)) + grey + half) >> 16);
        });
}

void rgbToBt601Filtered(const Pixels& source, Pixels& destination)
{
    filtered(source, destination, [](int level) { return level; });
}

void linearRgbToBt601Filtered(const Pixels& source, Pixels& destination)
{
    filtered(source, destination, [](int level) {
        const double x = level / 255.0, linear = 4.5 * level;
        return static_cast<int>(std::nearbyint(x < 0.018 ? linear : 255 * (1.099 * std::pow(x, 0.45) - 0.099)));
    });
}

} // namespace zorcc::reference
