// SPDX-License-Identifier: MIT
#include "tests/reference/ycbcr.h"

#include <algorithm>

namespace zorcc::reference {

namespace {

int clamp(int value) { return std::clamp(value, 0, 255); }

struct Rgb {
    int r = 0, g = 0, b = 0;
};

Rgb colour(const Pixels& source, int x, int y)
{
    return {source.get(red, x, y), source.get(green, x, y), source.get(blue, x, y)};
}

struct Row {
    int r, g, b;

    int operator()(const Rgb& c) const { return r * c.r + g * c.g + b * c.b; }
};

struct Matrix {
    Row y, cb, cr;
};

constexpr Matrix bt601 = {{16843, 33030, 6423}, {-9699, -19071, 28770}, {28770, -24117, -4653}};
constexpr Matrix bt709 = {{11993, 40239, 4063}, {-6619, -22151, 28770}, {28770, -26149, -2621}};
constexpr Matrix bt709Full = {{13959, 46858, 4719}, {-7668, -25821, 33489}, {33489, -30409, -3080}};

// Writes the luma of columns x and x + 1 in `rows` rows from y, and gives the sum of their colours.
Rgb putLuma(const Pixels& source, Pixels& destination, int x, int y, int rows, const Row& luma601, int even, int odd)
{
    Rgb sum;
    for (int j = y; j < y + rows; ++j)
        for (int i = x; i < x + 2; ++i) {
            const Rgb c = colour(source, i, j);
            destination.put(luma, i, j, (luma601(c) + (i % 2 == 0 ? even : odd)) >> 16);
            sum = {sum.r + c.r, sum.g + c.g, sum.b + c.b};
        }
    return sum;
}

// Stores without a clamp unless asked for one: a value that needed it would be refused.
void blocks(const Pixels& source, Pixels& destination, const Matrix& m, int lumaOffset, bool clamped)
{
    for (int y = 0; y + 1 < source.height(); y += 2)
        for (int x = 0; x + 1 < source.width(); x += 2) {
            const Rgb sum = putLuma(source, destination, x, y, 2, m.y, lumaOffset, lumaOffset);
            const int cb = (m.cb(sum) + 33587200) >> 18, cr = (m.cr(sum) + 33587200) >> 18;
            destination.put(chromaU, x, y, clamped ? clamp(cb) : cb);
            destination.put(chromaV, x, y, clamped ? clamp(cr) : cr);
        }
}

struct Inverse {
    int y, rCr, gCb, gCr, bCb, r, g, b; // a channel is its weighted sum plus a constant, / 65536
};

constexpr Inverse centred(int y, int rCr, int gCb, int gCr, int bCb, int offset)
{
    return {y, rCr, gCb, gCr, bCb, offset - 128 * rCr, offset + 128 * gCb + 128 * gCr, offset - 128 * bCb};
}

void putRgb(Pixels& destination, int x, int y, int yValue, int cb, int cr, const Inverse& k)
{
    destination.put(red, x, y, clamp((k.y * yValue + k.rCr * cr + k.r) >> 16));
    destination.put(green, x, y, clamp((k.y * yValue - k.gCb * cb - k.gCr * cr + k.g) >> 16));
    destination.put(blue, x, y, clamp((k.y * yValue + k.bCb * cb + k.b) >> 16));
}

// The chroma sample of the pixel or, at the end of a row that has none for it, the last one before it.
int chromaAt(const Pixels& source, int channel, int x, int y, int ifNone)
{
    for (; x >= 0; --x)
        if (source.has(channel, x, y)) return source.get(channel, x, y);
    return ifNone;
}

void toRgb(const Pixels& source, Pixels& destination, const Inverse& k)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) {
            const int cb = chromaAt(source, chromaU, x, y, 128);
            putRgb(destination, x, y, source.get(luma, x, y), cb, chromaAt(source, chromaV, x, y, cb), k);
        }
}

constexpr Inverse inverse601 = centred(76284, 104595, 25690, 53281, 132186, -1220544);

} // namespace

void rgbToBt601(const Pixels& source, Pixels& destination)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) {
            const Rgb c = colour(source, x, y);
            destination.put(luma, x, y, (bt601.y(c) + 1081344) >> 16);
            destination.put(chromaU, x, y, (bt601.cb(c) + 8421376) >> 16);
            destination.put(chromaV, x, y, (bt601.cr(c) + 8421376) >> 16);
        }
}

void rgbToBt601Pairs(const Pixels& source, Pixels& destination)
{
    const int even = source.width() & ~1;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < even; x += 2) {
            const Rgb sum = putLuma(source, destination, x, y, 1, bt601.y, 1081344, 1048576);
            destination.put(chromaU, x, y, (bt601.cb(sum) + 16842752) >> 17);
            destination.put(chromaV, x, y, (bt601.cr(sum) + 16842752) >> 17);
        }
        if (even == source.width()) continue;
        const Rgb c = colour(source, even, y);
        destination.put(luma, even, y, (bt601.y(c) + 1081344) >> 16);
        destination.put(chromaU, even, y, (bt601.cb(c) + 8421376) >> 16);
    }
}

void rgbToBt601Blocks(const Pixels& source, Pixels& destination) { blocks(source, destination, bt601, 1081344, false); }

void bt601ToRgb(const Pixels& source, Pixels& destination) { toRgb(source, destination, inverse601); }

void bt601ToRgbPlanarWeights(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, centred(76282, 104593, 25689, 53279, 132184, -1220512));
}

void bt601ToRgbPackedConstants(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, {76284, 104595, 25690, 53281, 132186, -14608761, 8887730, -18140365});
}

void bt601ToRgb411(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, centred(76294, 104595, 25625, 53281, 132186, -1220704));
}

void bt601ToRgbFiltered(const Pixels& source, Pixels& destination)
{
    const int columns = source.width() / 2, rows = source.height() / 2;
    for (int y = 0; y < 2 * rows; ++y)
        for (int x = 0; x < 2 * columns; ++x) {
            const auto sample = [&](int channel, int column, int row) {
                return source.get(channel, 2 * std::clamp(column, 0, columns - 1), 2 * std::clamp(row, 0, rows - 1));
            };
            const int near = x / 2, nearRow = y / 2;
            const int beside = x % 2 == 0 ? near - 1 : near + 1, besideRow = y % 2 == 0 ? nearRow - 1 : nearRow + 1;
            int chroma[2];
            for (const int channel : {chromaU, chromaV})
                chroma[channel - chromaU] =
                    (9 * sample(channel, near, nearRow) + 3 * sample(channel, beside, nearRow) +
                     3 * sample(channel, near, besideRow) + sample(channel, beside, besideRow) + 8) >>
                    4;
            putRgb(destination, x, y, source.get(luma, x, y), chroma[0], chroma[1], inverse601);
        }
}

void rgbToBt709Blocks(const Pixels& source, Pixels& destination) { blocks(source, destination, bt709, 1081344, false); }

void bt709ToRgb(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, centred(76284, 117506, 13959, 34996, 138609, 32768 - 1220544));
}

void rgbToBt709FullPairs(const Pixels& source, Pixels& destination)
{
    const auto limited = [](int value) { return std::clamp(value, 1, 254); };
    const int even = source.width() & ~1;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < even; x += 2) {
            const Rgb c[2] = {colour(source, x, y), colour(source, x + 1, y)};
            for (int i = 0; i < 2; ++i) destination.put(luma, x + i, y, limited((bt709Full.y(c[i]) + 32768) >> 16));
            const Rgb sum = {c[0].r + c[1].r, c[0].g + c[1].g, c[0].b + c[1].b};
            destination.put(chromaU, x, y, limited((bt709Full.cb(sum) + 16842752) >> 17));
            destination.put(chromaV, x, y, limited((bt709Full.cr(sum) + 16842750) >> 17));
        }
        if (even == source.width()) continue;
        const Rgb c = colour(source, even, y);
        destination.put(luma, even, y, limited((bt709Full.y(c) + 32768) >> 16));
        destination.put(chromaU, even, y, limited((bt709Full.cb(c) + 8421376) >> 16));
    }
}

void rgbToBt709FullBlocks(const Pixels& source, Pixels& destination)
{
    blocks(source, destination, bt709Full, 32768, true);
}

void bt709FullToRgb(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, centred(65536, 100925, 11993, 30081, 119013, 32768));
}

} // namespace zorcc::reference
