// SPDX-License-Identifier: MIT
#include "tests/reference/yuv.h"

#include <algorithm>

namespace zorcc::reference {

namespace {

int clamp(int value) { return std::clamp(value, 0, 255); }

// Sums of channels over the pixels that share chroma.
struct Sums {
    int s = 0, red = 0, blue = 0;
};

void putYuv(Pixels& destination, int x, int y, int yValue, int u, int v)
{
    destination.put(luma, x, y, yValue);
    destination.put(chromaU, x, y, u);
    destination.put(chromaV, x, y, v);
}

int sumQ16(const Pixels& source, int x, int y)
{
    return 19595 * source.get(red, x, y) + 38470 * source.get(green, x, y) + 7471 * source.get(blue, x, y);
}

int sumQ14(const Pixels& source, int x, int y)
{
    return 4899 * source.get(red, x, y) + 9617 * source.get(green, x, y) + 1868 * source.get(blue, x, y);
}

// Writes the luma of the pixels from (x, y), `columns` by `rows` of them, and gives their sums.
template <int shift>
Sums lumaOfBlock(int (*sum)(const Pixels&, int, int), const Pixels& source, Pixels& destination, int x, int y,
                 int columns, int rows)
{
    Sums sums;
    for (int j = y; j < y + rows; ++j)
        for (int i = x; i < x + columns; ++i) {
            const int s = sum(source, i, j);
            destination.put(luma, i, j, s >> shift);
            sums.s += s;
            sums.red += source.get(red, i, j);
            sums.blue += source.get(blue, i, j);
        }
    return sums;
}

int chromaUOfPixel(int b, int s) { return ((((b << 16) - s + 32767) >> 16) * 32244 >> 16) + 128; }
int chromaVOfPixel(int r, int s) { return clamp(((((r << 16) - s + 32767) >> 16) * 57475 >> 16) + 128); }

struct Weights {
    int redV, greenU, greenV, blueU;
};
constexpr Weights weights = {74711, 25821, 38076, 133169};
constexpr Weights planarWeights = {74710, 25820, 38075, 133168};

void putRgb(Pixels& destination, int x, int y, int yValue, int u, int v, const Weights& w, int offset)
{
    u -= 128;
    v -= 128;
    const int scaled = (yValue << 16) + offset;
    destination.put(red, x, y, clamp((scaled + w.redV * v) >> 16));
    destination.put(green, x, y, clamp((scaled - w.greenU * u - w.greenV * v) >> 16));
    destination.put(blue, x, y, clamp((scaled + w.blueU * u) >> 16));
}

void fullChromaToRgb(const Pixels& source, Pixels& destination, const Weights& w)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x)
            putRgb(destination, x, y, source.get(luma, x, y), source.get(chromaU, x, y), source.get(chromaV, x, y), w,
                   0);
}

void repeatedChromaToRgb(const Pixels& source, Pixels& destination, int offset)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) {
            // The last pixel of an odd row has no chroma of its own (planar) or no V (packed).
            const int u = source.has(chromaU, x, y) ? source.get(chromaU, x, y)
                          : x > 0                   ? source.get(chromaU, x - 1, y)
                                                    : 128;
            const int v = source.has(chromaV, x, y) ? source.get(chromaV, x, y)
                          : x > 0                   ? source.get(chromaV, x - 1, y)
                                                    : u;
            putRgb(destination, x, y, source.get(luma, x, y), u, v, weights, offset);
        }
}

} // namespace

void rgbToYuv(const Pixels& source, Pixels& destination)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) {
            const int s = sumQ16(source, x, y);
            putYuv(destination, x, y, s >> 16, chromaUOfPixel(source.get(blue, x, y), s),
                   chromaVOfPixel(source.get(red, x, y), s));
        }
}

void rgbToYuvMatrix(const Pixels& source, Pixels& destination)
{
    const int inBlocks = source.width() / 16 * 16;
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) {
            const int r = source.get(red, x, y), g = source.get(green, x, y), b = source.get(blue, x, y);
            const int lumaOfBlocks =
                std::min(((r << 8) * 19595 >> 16) + static_cast<int>((static_cast<unsigned>(g) << 8) * 38469u >> 16) +
                             ((b << 8) * 7471 >> 16),
                         65535) >>
                8;
            const int lumaOfRest = (19595 * r + 38469 * g + 7471 * b) >> 16;
            putYuv(destination, x, y, x < inBlocks ? lumaOfBlocks : lumaOfRest,
                   ((-4816 * r - 9469 * g + 14286 * b) >> 15) + 128,
                   clamp(((20152 * r - 16875 * g - 3276 * b) >> 15) + 128));
        }
}

void yuvToRgb(const Pixels& source, Pixels& destination) { fullChromaToRgb(source, destination, weights); }

void yuvToRgbPlanarWeights(const Pixels& source, Pixels& destination)
{
    fullChromaToRgb(source, destination, planarWeights);
}

void rgbToYuvPairs(const Pixels& source, Pixels& destination)
{
    const int even = source.width() & ~1;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < even; x += 2) {
            const Sums sum = lumaOfBlock<16>(sumQ16, source, destination, x, y, 2, 1);
            destination.put(chromaU, x, y, ((((sum.blue << 16) - sum.s + 65535) >> 16) * 32244 >> 17) + 128);
            destination.put(chromaV, x, y, clamp(((((sum.red << 16) - sum.s + 65535) >> 16) * 57475 >> 17) + 128));
        }
        if (even == source.width()) continue;
        const int s = sumQ16(source, even, y);
        destination.put(luma, even, y, s >> 16);
        if (destination.has(chromaU, even, y))
            destination.put(chromaU, even, y, chromaUOfPixel(source.get(blue, even, y), s));
    }
}

void rgbToYuvBlocksQ14(const Pixels& source, Pixels& destination)
{
    for (int y = 0; y + 1 < source.height(); y += 2)
        for (int x = 0; x + 1 < source.width(); x += 2) {
            const Sums sum = lumaOfBlock<14>(sumQ14, source, destination, x, y, 2, 2);
            destination.put(chromaU, x, y, ((((sum.blue << 14) - sum.s) >> 14) * 8061 >> 16) + 128);
            destination.put(chromaV, x, y, clamp(((((sum.red << 14) - sum.s) >> 14) * 14369 >> 16) + 128));
        }
}

void rgbToYuvBlocksQ16(const Pixels& source, Pixels& destination)
{
    for (int y = 0; y + 1 < source.height(); y += 2)
        for (int x = 0; x + 1 < source.width(); x += 2) {
            const Sums sum = lumaOfBlock<16>(sumQ16, source, destination, x, y, 2, 2);
            destination.put(chromaU, x, y, ((((sum.blue << 16) - sum.s + 131071) >> 16) * 32244 >> 18) + 128);
            destination.put(chromaV, x, y, clamp(((((sum.red << 16) - sum.s + 131071) >> 16) * 57475 >> 18) + 128));
        }
}

void subsampledYuvToRgb(const Pixels& source, Pixels& destination) { repeatedChromaToRgb(source, destination, 0); }

void subsampledYuvToRgbRounded(const Pixels& source, Pixels& destination)
{
    repeatedChromaToRgb(source, destination, 32768);
}

} // namespace zorcc::reference
