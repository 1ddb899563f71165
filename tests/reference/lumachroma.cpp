// SPDX-License-Identifier: MIT
#include "tests/reference/lumachroma.h"

#include <algorithm>
#include <optional>

namespace zorcc::reference {

namespace {

int clamp(int value) { return std::clamp(value, 0, 255); }

// The sums of channels over one pixel, or over the 2 or 4 that share chroma.
struct Sums {
    int count = 0, r = 0, g = 0, b = 0;

    int log2() const { return count / 2; }
    Sums reversed() const { return {count, b, g, r}; }
};

struct Row {
    int r, g, b;

    int operator()(const Sums& s) const { return r * s.r + g * s.g + b * s.b; }
};

// Stores lumaOf(pixel, x) for every pixel, and u(pixels) and v(pixels) where the destination has a sample for them: the
// last of an odd row shares it with none, or has none. Values that need a clamp and get none are refused.
template <class Luma, class ChromaU, class ChromaV>
void fromRgb(const Pixels& source, Pixels& destination, Luma lumaOf, ChromaU u, ChromaV v, bool wholeGroups = false)
{
    const ZorSize shared = destination.shared(chromaU);
    for (int y0 = 0; y0 < source.height(); y0 += shared.height)
        for (int x0 = 0; x0 < source.width(); x0 += shared.width) {
            Sums sums;
            for (int y = y0; y < std::min(y0 + shared.height, source.height()); ++y)
                for (int x = x0; x < std::min(x0 + shared.width, source.width()); ++x) {
                    const Sums pixel{1, source.get(red, x, y), source.get(green, x, y), source.get(blue, x, y)};
                    destination.put(luma, x, y, lumaOf(pixel, x));
                    sums = {sums.count + 1, sums.r + pixel.r, sums.g + pixel.g, sums.b + pixel.b};
                }
            if (wholeGroups && sums.count < shared.width * shared.height) continue;
            if (destination.has(chromaU, x0, y0)) destination.put(chromaU, x0, y0, u(sums));
            if (destination.has(chromaV, x0, y0)) destination.put(chromaV, x0, y0, v(sums));
        }
}

// ---- Y'UV -----------------------------------------------------------------------------------------------------------

// Chroma is weighted blue and red less luma; all weights have `bits` bits.
void rgbToYuv(const Pixels& source, Pixels& destination, int bits, const Row& y, int weightU, int weightV, bool rounded)
{
    const auto chroma = [=](const Sums& s, int channel, int weight) {
        const int bias = rounded ? (s.count << (bits - 1)) - 1 : 0;
        return ((((channel << bits) - y(s) + bias) >> bits) * weight >> (bits + s.log2())) + 128;
    };
    fromRgb(
        source, destination, [=](const Sums& pixel, int) { return y(pixel) >> bits; },
        [=](const Sums& s) { return chroma(s, s.b, weightU); },
        [=](const Sums& s) { return clamp(chroma(s, s.r, weightV)); });
}

// ---- Y'CbCr ---------------------------------------------------------------------------------------------------------

struct Matrix {
    Row y, cb, cr;
};

constexpr Matrix bt601 = {{16843, 33030, 6423}, {-9699, -19071, 28770}, {28770, -24117, -4653}};
constexpr Matrix bt709 = {{11993, 40239, 4063}, {-6619, -22151, 28770}, {28770, -26149, -2621}};
constexpr Matrix bt709Full = {{13959, 46858, 4719}, {-7668, -25821, 33489}, {33489, -30409, -3080}};
constexpr int half = 32768;

// One pixel and two are rounded to nearest; four get what one gets, an eighth.
int chroma(const Row& row, const Sums& s, int roundingOfTwo = 2 * half)
{
    return ((row(s) + (s.count == 2 ? roundingOfTwo : half)) >> (16 + s.log2())) + 128;
}

void putRgb(Pixels& destination, int x, int y, int yValue, int cb, int cr, const Weights& k)
{
    destination.put(red, x, y, clamp((k.y * yValue + k.rCr * cr + k.r) >> 16));
    destination.put(green, x, y, clamp((k.y * yValue - k.gCb * cb - k.gCr * cr + k.g) >> 16));
    destination.put(blue, x, y, clamp((k.y * yValue + k.bCb * cb + k.b) >> 16));
}

// The chroma sample of the pixel or, at the end of a row that has none for it, the last one before it.
std::optional<int> chromaAt(const Pixels& source, int channel, int x, int y)
{
    for (; x >= 0; --x)
        if (source.has(channel, x, y)) return source.get(channel, x, y);
    return {};
}

} // namespace

void rgbToYuv(const Pixels& source, Pixels& destination)
{
    rgbToYuv(source, destination, 16, {19595, 38470, 7471}, 32244, 57475, true);
}

void rgbToYuvQ14(const Pixels& source, Pixels& destination)
{
    rgbToYuv(source, destination, 14, {4899, 9617, 1868}, 8061, 14369, false);
}

void rgbToYuvMatrix(const Pixels& source, Pixels& destination)
{
    const auto scaled = [](int c, int weight) { return static_cast<int>((std::int64_t{c} << 8) * weight >> 16); };
    fromRgb(
        source, destination,
        [&](const Sums& p, int x) {
            if (x >= source.width() / 16 * 16) return Row{19595, 38469, 7471}(p) >> 16;
            return std::min(scaled(p.r, 19595) + scaled(p.g, 38469) + scaled(p.b, 7471), 65535) >> 8;
        },
        [](const Sums& p) {
            return (Row{-4816, -9469, 14286}(p) >> 15) + 128;
        },
        [](const Sums& p) {
            return clamp((Row{20152, -16875, -3276}(p) >> 15) + 128);
        });
}

void rgbToBt601(const Pixels& source, Pixels& destination)
{
    const ZorSize shared = destination.shared(chromaU);
    const int roundingOfOdd = shared.width > shared.height ? 0 : half; // columns of 4:2:2
    fromRgb(
        source, destination,
        [=](const Sums& p, int x) { return ((bt601.y(p) + (x % 2 == 0 ? half : roundingOfOdd)) >> 16) + 16; },
        [](const Sums& s) { return chroma(bt601.cb, s); }, [](const Sums& s) { return chroma(bt601.cr, s); });
}

void rgbToBt601By8ths(const Pixels& source, Pixels& destination)
{
    fromRgb(
        source, destination, [](const Sums& p, int) { return ((bt601.y(p) + half) >> 16) + 16; },
        [](const Sums& s) { return chroma(bt601.cb, s, half / 2); },
        [](const Sums& s) { return chroma(bt601.cr, s, half / 2); }, true);
}

void rgbToBt709(const Pixels& source, Pixels& destination)
{
    fromRgb(
        source, destination, [](const Sums& p, int) { return ((bt709.y(p) + half) >> 16) + 16; },
        [](const Sums& s) { return chroma(bt709.cb, s); }, [](const Sums& s) { return chroma(bt709.cr, s); });
}

void rgbToBt709Full(const Pixels& source, Pixels& destination)
{
    const int least = destination.shared(chromaU).height == 1;
    const auto limited = [=](int value) { return std::clamp(value, least, 255 - least); };
    fromRgb(
        source, destination, [=](const Sums& p, int) { return limited((bt709Full.y(p) + half) >> 16); },
        [=](const Sums& s) { return limited(chroma(bt709Full.cb, s)); },
        [=](const Sums& s) { return limited(chroma(bt709Full.cr, s, 2 * half - 2)); });
}

void toRgb(const Pixels& source, Pixels& destination, const Weights& weights)
{
    eachPixel(source.size(), [&](int x, int y) {
        const std::optional<int> cb = chromaAt(source, chromaU, x, y), cr = chromaAt(source, chromaV, x, y);
        putRgb(destination, x, y, source.get(luma, x, y), cb.value_or(cr.value_or(128)), cr.value_or(cb.value_or(128)),
               weights);
    });
}

void copyRgb(const Pixels& source, Pixels& destination)
{
    eachPixel(source.size(), [&](int x, int y) {
        for (const int c : {red, green, blue}) destination.put(c, x, y, source.get(c, x, y));
    });
}

void bt601ToRgbFiltered(const Pixels& source, Pixels& destination)
{
    const int columns = source.width() / 2, rows = source.height() / 2;
    eachPixel({2 * columns, 2 * rows}, [&](int x, int y) {
        const int column = x / 2, beside = column + (x % 2 == 0 ? -1 : 1);
        const int row = y / 2, besideRow = row + (y % 2 == 0 ? -1 : 1);
        const auto filtered = [&](int channel) {
            const auto sample = [&](int i, int j) {
                return source.get(channel, 2 * std::clamp(i, 0, columns - 1), 2 * std::clamp(j, 0, rows - 1));
            };
            return (9 * sample(column, row) + 3 * sample(beside, row) + 3 * sample(column, besideRow) +
                    sample(beside, besideRow) + 8) >>
                   4;
        };
        putRgb(destination, x, y, source.get(luma, x, y), filtered(chromaU), filtered(chromaV), bt601Weights);
    });
}

} // namespace zorcc::reference
