// SPDX-License-Identifier: MIT
// Error diffusion as a wavefront: the rows of a band are the lanes of vectors. Each row is as many columns later than
// the row above as it takes to find all errors that it gathers, so that many samples are quantised at once. Every
// sample takes the operations that it would take row by row, in the same order.
//
// Column x of a band's row r is quantised in step x + lag * r. Where a row has no such column the wavefront meets
// samples so dark that they saturate and leave no error, which is what margins of zeros around the rows of errors would
// do.
#pragma once

#include <iterator>

#include "reduce/quantise_formulas.h"

namespace zorcc::ZORCC_TIER {
namespace {

static_assert(bandRows % 16 == 0); // several vectors, which do not wait for each other, on every tier
constexpr int tileSamples = 64;    // samples of a row in a tile, at most
constexpr float outside = -1e9f;

// Weights of the errors that a sample gathers: of its own row, one column back and so on; of the row above and of the
// one above that, from `ahead` columns to the left to as many to the right.
struct FloydSteinberg {
    static constexpr float own[] = {7}, above[][3] = {{1, 5, 3}}, reciprocal = 1.0f / 16;
};
struct JarvisJudiceNinke {
    static constexpr float own[] = {7, 5}, above[][5] = {{3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}}, reciprocal = 1.0f / 48;
};
struct Stucki {
    static constexpr float own[] = {8, 4}, above[][5] = {{2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}, reciprocal = 1.0f / 42;
};
template <class Weights> inline constexpr int ahead = int{std::size(Weights::own)};
template <class Weights> inline constexpr int rowsAbove = int{std::size(Weights::above)};
template <class Weights> inline constexpr int lag = ahead<Weights> + 1;

// The errors of one channel around the steps of a tile.
template <class Weights> class Errors {
public:
    // `rows` are those that bands hand on: what the last rows of the band above have left, the last one first, with
    // errorMargin columns before and after each.
    void startBand(float* rows, int width)
    {
        __builtin_memset(own, 0, sizeof own);
        __builtin_memset(above, 0, sizeof above);
        for (int n = 0; n < rowsUp; ++n) {
            handedOn[n] = rows + n * (width + ptrdiff_t{2} * errorMargin) + errorMargin;
            for (int x = 0; x < reach; ++x) above[n][reach + x][0] = handedOn[n][x];
        }
    }

    // Step s of the tile that begins with step `first` of the band, for the lanes from `lane` on. What they gather:
    [[gnu::always_inline]] f32v gather(int64_t first, int s, int lane)
    {
        passDown(first, s, lane);
        f32v sum = Weights::own[0] * load<f32v>(own[reach + s - 1] + lane);
        for (int x = 1; x < reach; ++x) sum += Weights::own[x] * load<f32v>(own[reach + s - 1 - x] + lane);
        for (int n = 0; n < rowsUp; ++n)
            for (int x = 0; x < 2 * reach + 1; ++x) sum += Weights::above[n][x] * load<f32v>(above[n][s + x] + lane);
        return sum * Weights::reciprocal;
    }
    // What they leave:
    [[gnu::always_inline]] void leave(f32v error, int s, int lane) { store(own[reach + s] + lane, error); }

    // After the `steps` steps of the tile. The next band reads what is handed on much later.
    void endTile(int64_t first, int steps)
    {
        for (int n = 0; n < rowsUp; ++n) {
            const int r = bandRows - 1 - n;
            float* const row = handedOn[n] + first - lag<Weights> * r;
            for (int s = 0; s < steps; ++s) row[s] = own[reach + s][r];
            __builtin_memcpy(above[n][0], above[n][steps], sizeof above[n][0] * 2 * reach);
        }
        __builtin_memcpy(own[0], own[steps], sizeof own[0] * reach);
    }

private:
    static constexpr int reach = ahead<Weights>, rowsUp = rowsAbove<Weights>;
    static_assert(errorMargin >= lag<Weights> * (bandRows - 1) + tileSamples + reach);

    // The errors of the samples of step s, from -reach on, are own[reach + s].
    alignas(64) float own[reach + tileSamples][bandRows];
    // What row n + 1 above has left `reach` columns to the right of the samples of step s, from -2 * reach on:
    // above[n][2 * reach + s].
    alignas(64) float above[rowsUp][2 * reach + tileSamples][bandRows];
    float* handedOn[rowsUp];

    // Every row passes its latest error to the row below, and the one that it was passed `lag` steps ago.
    [[gnu::always_inline]] void passDown(int64_t first, int s, int lane)
    {
        for (int n = 0; n < rowsUp; ++n) {
            const float* const errors = n == 0 ? own[reach + s - 1] : above[0][2 * reach + s - lag<Weights>];
            const f32v before =
                lane > 0 ? load<f32v>(errors + lane - lanes) : fillFloat(handedOn[n][first + s + reach]);
            store(above[n][2 * reach + s] + lane, leftOf(before, load<f32v>(errors + lane)));
        }
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
