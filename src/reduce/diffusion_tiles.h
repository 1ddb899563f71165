// SPDX-License-Identifier: MIT
// Bands of rows to tiles of the wavefront and back: row r of a tile has the columns that begin r * lag columns to the
// left of those of row 0.
#pragma once

#include "reduce/diffusion_formulas.h"
#include "simd/order.h"

namespace zorcc::ZORCC_TIER {
namespace {

using TileRows = float[bandRows][tileSamples];
using TileSteps = float[tileSamples][bandRows]; // step by step, channel by channel

// The first `count` rows and `columns` columns, multiples of the lanes.
template <int height, int width>
void transpose(const float (&from)[height][width], float (&to)[width][height], int count, int columns)
{
    for (int y = 0; y < count; y += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(from[y + i] + x);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(to[x + i] + y, v[i]);
        }
}

// Neighbouring channels of a pixel, and how tiles hold them: pixel by pixel as in memory, with what channels there are
// beside them, or channel by channel.
struct Channels {
    int first, count, perPixel;
    bool apart;
    int inTile = apart ? count : perPixel;  // of a pixel
    int steps = tileSamples / inTile & -16; // of a tile: whole pixels and whole vectors

    int sample(int step, int channel) const { return apart ? channel * steps + step : step * perPixel + channel; }
};

// The columns of a tile's row that lie in the image.
struct Span {
    int begin, end;

    Span(int64_t x, int width, int steps) : begin(within(-x, steps)), end(within(width - x, steps)) {}

private:
    static int within(int64_t j, int steps) { return static_cast<int>(j < 0 ? 0 : j > steps ? steps : j); }
};

// Of interleaved floats those of some channels.
template <int perPixel> ZORCC_INLINE void takeApart(const float* pixels, const Channels& channels, float* row)
{
    for (int s = 0; s < channels.steps; s += lanes) {
        f32v v[perPixel];
        deinterleave((const uint8_t*)(pixels + perPixel * s), v);
        for (int c = 0; c < channels.count; ++c) store(row + channels.sample(s, c), v[channels.first + c]);
    }
}

// The columns of a row as floats from 0 to white; those that are not in the image are `outside`.
template <class Src> ZORCC_INLINE void loadRow(const Src* src, const Channels& channels, Span in, float* row)
{
    const int perPixel = channels.perPixel, samples = channels.steps * perPixel, begin = in.begin * perPixel,
              end = in.end * perPixel;
    Src staged[maxChannels * tileSamples];
    alignas(64) float all[maxChannels * tileSamples];
    if (end - begin == samples) {
        // Samples of the next tiles: processors do not foresee this many rows at a time. They may lie beyond the row.
        const int bytes = samples * int{sizeof(Src)}, distance = bytes > 128 ? bytes : 128;
        for (int b = distance; b < distance + bytes; b += 64) __builtin_prefetch((const char*)src + b);
    } else {
        __builtin_memset(staged, 0, samples * sizeof(Src));
        if (begin < end) __builtin_memcpy(staged + begin, src + begin, (end - begin) * sizeof(Src));
        src = staged;
    }
    float* const floats = channels.apart ? all : row;
    for (int i = 0; i < samples; i += lanes) store(floats + i, loadFloats(src + i));
    for (int i = 0; i < begin; ++i) floats[i] = outside;
    for (int i = end; i < samples; ++i) floats[i] = outside;
    if (!channels.apart) return;
    if (perPixel == 3)
        takeApart<3>(all, channels, row);
    else
        takeApart<4>(all, channels, row);
}

// `count` levels to the samples begin .. end - 1 of `dst`.
template <bool keepsAlpha, class Src, class Dst>
ZORCC_INLINE void storeLevels(const AboveThreshold<Src, Dst>& formula, const float* levels, int count, Dst* dst,
                              int begin, int end)
{
    if (begin == end) return;
    Dst staged[tileSamples];
    const size_t bytes = (end - begin) * sizeof(Dst);
    const bool whole = end - begin == count;
    if (!whole) {
        __builtin_memset(staged, 0, sizeof staged);
        __builtin_memcpy(staged + begin, dst + begin, bytes);
    }
    SampleRow<Dst, keepsAlpha> to;
    to.start[0] = (uint8_t*)(whole ? dst : staged);
    for (int i = 0; i < count; i += lanes) to.store(i, formula.sample(load<f32v>(levels + i)));
    if (!whole) __builtin_memcpy(dst + begin, staged + begin, bytes);
}

// Levels to the columns that are in the image, of pixels or of planes, from row y and column x on.
template <class Src, class Dst>
ZORCC_INLINE void storeRow(const AboveThreshold<Src, Dst>& formula, const float* row, const Channels& channels, Span in,
                           const Image& to, ptrdiff_t y, int64_t x)
{
    const int perPixel = channels.perPixel, steps = channels.steps;
    if (channels.apart) {
        for (int c = 0; c < channels.count; ++c)
            storeLevels<false>(formula, row + channels.sample(0, c), steps, (Dst*)to.row(channels.first + c, y) + x,
                               in.begin, in.end);
        return;
    }
    const auto store = channels.count < perPixel ? storeLevels<true, Src, Dst> : storeLevels<false, Src, Dst>;
    store(formula, row, steps * perPixel, (Dst*)to.row(0, y) + x * perPixel, in.begin * perPixel, in.end * perPixel);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
