// SPDX-License-Identifier: MIT
// Bands of rows to tiles of the wavefront and back: row r of a tile has the columns that begin r * lag columns to the
// left of those of row 0.
#pragma once

#include "reduce/diffusion_formulas.h"

namespace zorcc::ZORCC_TIER {
namespace {

using TileRows = float[bandRows][tileSamples];
using TileColumns = float[tileSamples][bandRows];

// The first `columns` columns, a multiple of the lanes.
void transposeRows(const TileRows& rows, TileColumns& steps, int columns)
{
    for (int r = 0; r < bandRows; r += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(rows[r + i] + x);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(steps[x + i] + r, v[i]);
        }
}

void transposeSteps(const TileColumns& steps, TileRows& rows, int columns)
{
    for (int r = 0; r < bandRows; r += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(steps[x + i] + r);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(rows[r + i] + x, v[i]);
        }
}

// Neighbouring channels of a pixel.
struct Channels {
    int first, count, perPixel;
};

// The part of a tile's columns that lies in the image.
struct Span {
    int begin, end;
};

// The columns of a tile's row, for some neighbouring channels of an image.
template <class Src, class Dst> class TileRow {
public:
    TileRow(const Image& source, const Image& destination, int imageWidth, Channels c)
        : from(source), to(destination), width(imageWidth), channels(c), steps(tileSteps(c.count))
    {
    }

    // Of the columns from x on.
    Span inImage(int64_t x) const
    {
        const auto clamped = [&](int64_t j) { return static_cast<int>(j < 0 ? 0 : j > steps ? steps : j); };
        return {clamped(-x), clamped(width - x)};
    }

    // Loads the part `in` of the columns from x on of row y, as floats from 0 to white. The others are `outside`.
    [[gnu::always_inline]] void load(int y, int64_t x, Span in, float* row) const
    {
        const auto [first, count, perPixel] = channels;
        const Src* const src = reinterpret_cast<const Src*>(from.row(0, y)) + x * perPixel;
        if (count == perPixel) {
            loadPixels<tileSamples>(src, in, row);
        } else {
            alignas(64) float all[maxChannels * tileSamples];
            loadPixels<maxChannels * tileSamples>(src, in, all);
            for (int c = 0; c < count; ++c)
                for (int j = 0; j < steps; ++j) row[j * count + c] = all[j * perPixel + first + c];
        }
        for (int i = 0; i < in.begin * count; ++i) row[i] = outside;
        for (int i = in.end * count; i < steps * count; ++i) row[i] = outside;
    }

    // Stores it; fromFloats(row, samples, dst) converts.
    template <class FromFloats>
    [[gnu::always_inline]] void store(int y, int64_t x, Span in, const float* row, FromFloats fromFloats) const
    {
        const auto [first, count, perPixel] = channels;
        Dst* const dst = reinterpret_cast<Dst*>(to.row(0, y));
        const int samples = steps * count, begin = in.begin * count, end = in.end * count;
        if (end == begin) return;
        if (end - begin == steps * perPixel) return fromFloats(row, samples, dst + x * perPixel);
        Dst copy[tileSamples];
        fromFloats(row, samples, copy);
        if (count == perPixel) {
            __builtin_memcpy(dst + x * count + begin, copy + begin, (end - begin) * sizeof(Dst));
            return;
        }
        for (int c = 0; c < count; ++c)
            for (int j = in.begin; j < in.end; ++j) dst[(x + j) * perPixel + first + c] = copy[j * count + c];
    }

private:
    const Image& from;
    const Image& to;
    const int width;
    const Channels channels;
    const int steps;

    // All channels of the tile's columns, of which only the part `in` is there to be read.
    template <int maxSamples> void loadPixels(const Src* src, Span in, float* row) const
    {
        const int samples = steps * channels.perPixel;
        if (in.end - in.begin == steps) {
            // Samples of the next tiles: processors do not foresee this many rows at a time. They may lie beyond the
            // row.
            const int bytes = samples * int{sizeof(Src)}, ahead = bytes > 128 ? bytes : 128;
            for (int b = ahead; b < ahead + bytes; b += 64) __builtin_prefetch(reinterpret_cast<const char*>(src) + b);
            toFloats(src, samples, row);
        } else {
            Src copy[maxSamples] = {};
            const int begin = in.begin * channels.perPixel, end = in.end * channels.perPixel;
            if (end > begin)
                __builtin_memcpy(copy + begin, src + begin, static_cast<size_t>(end - begin) * sizeof(Src));
            toFloats(copy, samples, row);
        }
    }

    static void toFloats(const Src* src, int samples, float* row)
    {
        for (int i = 0; i < samples; i += lanes) zorcc::ZORCC_TIER::store(row + i, loadFloats(src + i));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
