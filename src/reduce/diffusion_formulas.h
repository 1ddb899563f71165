// SPDX-License-Identifier: MIT
// Error diffusion as a wavefront: the rows of a band are the lanes of vectors. Each row is as many columns behind the
// row above as it takes to find all errors that it gathers, so that many samples are quantised at once. Every sample
// takes the operations that it would take row by row, in the same order.
//
// Column x of a band's row r is quantised in step x + lag * r. Where a row has no such column the wavefront meets
// samples so dark that they saturate and leave no error, which is what margins of zeros around the rows of errors would
// do.
#pragma once

#include "reduce/quantise_formulas.h"
#include "simd/order.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int bandRows = 32; // several vectors, which do not wait for each other, on every tier
constexpr int maxChannels = 4;
constexpr int tileSamples = 64;                                                // samples of a row in a tile, at most
constexpr int tileSteps(int channels) { return tileSamples / channels & -16; } // whole pixels and whole vectors
constexpr float outside = -1e9f;

// The errors of one channel around the steps of a tile.
template <class Weights> struct Errors {
    static constexpr int ahead = Weights::ahead, rowsAbove = Weights::rowsAbove;
    static constexpr int lag = ahead + 1;

    // Of the samples of step s, from -2 on: own[s + 2].
    alignas(64) float own[2 + tileSamples][bandRows];
    // What the row n + 1 rows above has left `ahead` columns to the right of the samples of step s, from -2 * ahead on:
    // above[n][s + 2 * ahead].
    alignas(64) float above[rowsAbove][2 * ahead + tileSamples][bandRows];
    float incoming[rowsAbove][tileSamples]; // likewise, from the rows above the band, for its first row

    void clear()
    {
        __builtin_memset(own, 0, sizeof own);
        __builtin_memset(above, 0, sizeof above);
    }

    // After a tile of `steps` steps.
    void nextTile(int steps)
    {
        __builtin_memcpy(own[0], own[steps], sizeof own[0] * 2);
        for (auto& row : above) __builtin_memcpy(row[0], row[steps], sizeof row[0] * 2 * ahead);
    }

    // The errors that the lanes from `lane` on gather in step s: those of their own row, some columns back ...
    [[gnu::always_inline]] f32v back(int columns, int s, int lane) const
    {
        return load<f32v>(own[s + 2 - columns] + lane);
    }
    // ... and those of the row above and of the one above it, dx columns to the right.
    [[gnu::always_inline]] f32v up(int dx, int s, int lane) const
    {
        return load<f32v>(above[0][s + ahead + dx] + lane);
    }
    [[gnu::always_inline]] f32v upTwo(int dx, int s, int lane) const
    {
        return load<f32v>(above[1][s + ahead + dx] + lane);
    }

    // Every row passes its latest error to the row below, and the one that it was passed `lag` steps ago.
    [[gnu::always_inline]] void passDown(int s, int lane)
    {
        const auto fromAbove = [&](const float* errors, float first) {
            return leftOf(lane > 0 ? load<f32v>(errors + lane - lanes) : fillFloat(first), load<f32v>(errors + lane));
        };
        store(above[0][s + 2 * ahead] + lane, fromAbove(own[s + 1], incoming[0][s]));
        if constexpr (rowsAbove > 1)
            store(above[1][s + 2 * ahead] + lane, fromAbove(above[0][s + 2 * ahead - lag], incoming[1][s]));
    }
};

struct FloydSteinberg {
    static constexpr int rowsAbove = 1, ahead = 1;

    [[gnu::always_inline]] f32v operator()(const Errors<FloydSteinberg>& e, int s, int at) const
    {
        return (7.0f * e.back(1, s, at) + e.up(-1, s, at) + 5.0f * e.up(0, s, at) + 3.0f * e.up(1, s, at)) * 0.0625f;
    }
};

// Jarvis-Judice-Ninke and Stucki.
struct FiveColumns {
    static constexpr int rowsAbove = 2, ahead = 2;

    float own[2];          // one column back, two columns back
    float up[3], upTwo[3]; // of the same column, its neighbours, the next ones
    float reciprocal;

    [[gnu::always_inline]] f32v operator()(const Errors<FiveColumns>& e, int s, int at) const
    {
        return (own[0] * e.back(1, s, at) + own[1] * e.back(2, s, at) + up[2] * e.up(-2, s, at) +
                up[1] * e.up(-1, s, at) + up[0] * e.up(0, s, at) + up[1] * e.up(1, s, at) + up[2] * e.up(2, s, at) +
                upTwo[2] * e.upTwo(-2, s, at) + upTwo[1] * e.upTwo(-1, s, at) + upTwo[0] * e.upTwo(0, s, at) +
                upTwo[1] * e.upTwo(1, s, at) + upTwo[2] * e.upTwo(2, s, at)) *
               reciprocal;
    }
};

constexpr FloydSteinberg floydSteinberg;
constexpr FiveColumns jarvisJudiceNinke = {{7, 5}, {7, 5, 3}, {5, 3, 1}, 1.0f / 48};
constexpr FiveColumns stucki = {{8, 4}, {8, 4, 2}, {4, 2, 1}, 1.0f / 42};

// The samples of some steps, and what becomes of them: values in the source's scale, or numbers of levels.
struct Tile {
    alignas(64) float samples[tileSamples][bandRows]; // step by step, channel by channel
    alignas(64) float thresholds[tileSamples][bandRows];
};

struct Quantiser {
    f32v white, step, inverse, intervals;

    // Replaces the sample by its output; returns its error. A sample that saturates leaves none.
    template <bool levelNumbers> [[gnu::always_inline]] f32v operator()(f32v v, f32v threshold, float* output) const
    {
        const f32v level = toFloat(truncate(v * inverse));
        const f32v below = level * step, above = below + step;
        const f32v rest = v - below;
        const s32v up = rest > threshold;
        const s32v bright = v >= white, inside = (v >= 0.0f) & (v < white); // neither for NaN
        const f32v value = levelNumbers ? select(up, level + 1.0f, level) : select(up, above, below);
        const f32v most = levelNumbers ? intervals : white;
        store(output, select(inside, value, select(bright, most, f32v{})));
        return select(inside, select(up, v - above, rest), f32v{});
    }
};

template <bool levelNumbers, class Weights>
void diffuse(Tile& tile, int steps, int channels, Errors<Weights>* errors, const Weights& weights,
             const Quantiser& quantise)
{
    for (int s = 0; s < steps; ++s)
        for (int c = 0; c < channels; ++c)
            for (int lane = 0; lane < bandRows; lane += lanes) {
                Errors<Weights>& e = errors[c];
                e.passDown(s, lane);
                float* const sample = tile.samples[s * channels + c] + lane;
                const f32v v = load<f32v>(sample) + weights(e, s, lane);
                store(e.own[s + 2] + lane,
                      quantise.template operator()<levelNumbers>(v, load<f32v>(tile.thresholds[s] + lane), sample));
            }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
