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

// Neighbouring channels of a pixel.
struct Channels {
    int first, count, perPixel;
    int steps = tileSamples / count & -16; // of a tile: whole pixels and whole vectors
};

// The columns of a tile's row that lie in the image.
struct Span {
    int begin, end;

    Span(int64_t x, int width, int steps) : begin(within(-x, steps)), end(within(width - x, steps)) {}

private:
    static int within(int64_t j, int steps) { return static_cast<int>(j < 0 ? 0 : j > steps ? steps : j); }
};

// Copies `count` samples at given distances.
template <class Sample>
ZORCC_INLINE void copySpaced(const Sample* from, int fromStep, Sample* to, int toStep, int count)
{
    const Sample* const end = to + count * toStep;
    for (; to != end; to += toStep, from += fromStep) *to = *from;
}

// The columns of a row as floats from 0 to white; those that are not in the image are `outside`.
template <class Src> ZORCC_INLINE void loadRow(const Src* src, Channels channels, Span in, float* row)
{
    const auto [first, count, perPixel, steps] = channels;
    const int samples = steps * perPixel, begin = in.begin * perPixel;
    Src staged[maxChannels * tileSamples];
    alignas(64) float all[maxChannels * tileSamples];
    if (in.end - in.begin == steps) {
        // Samples of the next tiles: processors do not foresee this many rows at a time. They may lie beyond the row.
        const int bytes = samples * int{sizeof(Src)}, distance = bytes > 128 ? bytes : 128;
        for (int b = distance; b < distance + bytes; b += 64) __builtin_prefetch((const char*)src + b);
    } else {
        __builtin_memset(staged, 0, samples * sizeof(Src));
        if (in.begin < in.end)
            __builtin_memcpy(staged + begin, src + begin, (in.end - in.begin) * perPixel * sizeof(Src));
        src = staged;
    }
    float* const floats = count < perPixel ? all : row;
    for (int i = 0; i < samples; i += lanes) store(floats + i, loadFloats(src + i));
    if (count < perPixel)
        for (int c = 0; c < count; ++c) copySpaced(all + first + c, perPixel, row + c, count, steps);
    for (int i = 0; i < in.begin * count; ++i) row[i] = outside;
    for (int i = in.end * count; i < steps * count; ++i) row[i] = outside;
}

// Levels to the columns that are in the image.
template <class Src, class Dst>
ZORCC_INLINE void storeRow(const AboveThreshold<Src, Dst>& formula, const float* row, Channels channels, Span in,
                           Dst* dst)
{
    const auto [first, count, perPixel, steps] = channels;
    const int begin = in.begin * count, end = in.end * count;
    if (begin == end) return;
    const bool whole = end - begin == steps * perPixel;
    Dst staged[tileSamples];
    Dst* const samples = whole ? dst : staged;
    for (int i = 0; i < steps * count; i += lanes) storeSamples(samples + i, formula.sample(load<f32v>(row + i)));
    if (whole) return;
    if (count == perPixel) {
        __builtin_memcpy(dst + begin, staged + begin, (end - begin) * sizeof(Dst));
        return;
    }
    for (int c = 0; c < count; ++c)
        copySpaced(staged + begin + c, count, dst + in.begin * perPixel + first + c, perPixel, in.end - in.begin);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
