// SPDX-License-Identifier: MIT
// Bytes to a few levels by comparisons alone. For one threshold the output is a staircase over the 256 inputs; where
// its steps are is found by asking the formula about every input, so the bytes are the formula's, however it rounds.
#pragma once

#include "reduce/quantise_formulas.h"

namespace zorcc::ZORCC_TIER {
namespace {

// For thresholds that repeat after `side` rows and columns.
template <int side> class Staircases {
public:
    // False where there are too many outputs, or one that is less than that of a lesser input: then the formula itself
    // must be used. The output for input 0 must not depend on the threshold.
    template <class Formula>
    bool build(const Formula& formula, const float (&thresholds)[side][side], int samplesPerPixel)
    {
        alignas(64) uint8_t outputs[side][side][256];
        evaluate(formula, thresholds, outputs);
        Staircase stairs[side][side];
        uint64_t present[256 / 64] = {}; // a bit for each output
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                if (!stairs[y][x].climb(outputs[y][x])) return false;
                for (int k = 0; k < stairs[y][x].steps; ++k) {
                    const int v = stairs[y][x].value[k];
                    present[v / 64] |= uint64_t{1} << v % 64;
                }
            }
        int count = 0;
        for (int base = 0; base < 256; base += 64)
            for (uint64_t rest = present[base / 64]; rest; rest &= rest - 1) {
                if (count == maxValues) return false;
                values.byte[count++] = static_cast<uint8_t>(base + __builtin_ctzll(rest));
            }
        rises = count - 1;
        static constexpr Columns columns;
        const uint8_t* const column = columns.of[samplesPerPixel];
        for (int y = 0; y < side; ++y) {
            int stair[side] = {};
            for (int r = 0; r < rises; ++r) {
                Block last = {}; // input whose output is not above value r; less 128
                for (int x = 0; x < side; ++x) {
                    stair[x] += stairs[y][x].endsBefore(stair[x], values.byte[r]);
                    last.byte[x] = static_cast<uint8_t>(stairs[y][x].end[stair[x]] - 129);
                }
                const u8v lasts = fillBlock(last);
                for (int i = 0; i < rowBytes; i += vectorBytes)
                    store((uint8_t*)below[y][r] + i, shuffle(lasts, load(column + i)));
            }
        }
        return true;
    }

    // The formula of row y.
    struct Row {
        const Staircases& staircases;
        int y, phase;

        [[gnu::always_inline]] Row at(int x) const { return {staircases, y, x % period}; }

        [[gnu::always_inline]] Vectors<3> operator()(const Vectors<3>& bytes) const
        {
            const u8v value = fillBlock(staircases.values);
            u8v count[3] = {};
            s8v v[3];
            for (int k = 0; k < 3; ++k) v[k] = (s8v)(bytes.v[k] ^ 0x80); // signed comparison
            for (int r = 0; r < staircases.rises; ++r)
                for (int k = 0; k < 3; ++k)
                    count[k] = addOneWhere(count[k], v[k], load<s8v>(staircases.below[y][r] + phase + k * vectorBytes));
            return collect<3>([&](auto k) { return shuffle(value, count[k]); });
        }
    };
    [[gnu::always_inline]] Row row(int y) const { return {*this, y % side, 0}; }

private:
    static constexpr int maxValues = 16;         // what one shuffle can look up
    static constexpr int period = 48;            // samples after which all layouts repeat their thresholds
    static constexpr int step = 3 * vectorBytes; // a multiple of it
    static constexpr int rowBytes = (period + step + vectorBytes - 1) / vectorBytes * vectorBytes;

    Block values = {}; // the outputs, ascending
    int rises;
    alignas(64) int8_t below[side][maxValues - 1][rowBytes];

    // Columns of the matrix, for the samples of a row.
    struct Columns {
        alignas(64) uint8_t of[5][rowBytes] = {}; // by the samples of a pixel, at least 1

        constexpr Columns()
        {
            for (int samples = 1; samples <= 4; ++samples)
                for (int i = 0; i < rowBytes; ++i) of[samples][i] = static_cast<uint8_t>(i / samples % side);
        }
    };

    // The outputs for one threshold, ascending, and the first input beyond each.
    struct Staircase {
        int steps = 0;
        uint8_t value[maxValues];
        short end[maxValues];

        // False where there are too many, or an output falls.
        bool climb(const uint8_t* output)
        {
            u8v fall = {};
            value[0] = output[0];
            for (int i = 1; i < 256; i += vectorBytes) {
                const int first = i + vectorBytes > 256 ? 256 - vectorBytes : i;
                const u8v before = load(output + first - 1), here = load(output + first);
                fall |= subSaturate(before, here);
                for (uint64_t rest = differences(before, here) >> (i - first); rest; rest &= rest - 1) {
                    const int input = i + __builtin_ctzll(rest);
                    end[steps] = static_cast<short>(input);
                    if (++steps == maxValues) return false;
                    value[steps] = output[input];
                }
            }
            end[steps++] = 256;
            return differences(fall, u8v{}) == 0;
        }

        // Whether the step after this one is not above `limit`.
        bool endsBefore(int k, uint8_t limit) const { return k + 1 < steps && value[k + 1] <= limit; }
    };

    // All thresholds for one vector of inputs after the other: most of the formula does not depend on them.
    template <class Formula>
    static void evaluate(const Formula& formula, const float (&thresholds)[side][side], uint8_t (&to)[side][side][256])
    {
        f32v input;
        for (int j = 0; j < lanes; ++j) input[j] = static_cast<float>(j);
        for (int i = 0; i < 256; i += lanes, input += lanes)
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) storeSamples(to[y][x] + i, formula(input, fillFloat(thresholds[y][x])));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
