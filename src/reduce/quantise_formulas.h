// SPDX-License-Identifier: MIT
// A sample to the level below it or to the one above. Single precision throughout, products and sums in the order in
// which they are written.
#pragma once

#include "reduce/samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Where source and destination differ in scale a level's value is the integer quotient of level * white by intervals.
template <class Src, class Dst> inline constexpr bool sameScale = white<Src> == white<Dst>;

// Exact for levels of up to 256: level * white has 24 bits, so the product is exact, and its quotient is no integer
// unless it is exact, too: it is at least 1/256 away from one, more than half of the last place of numbers below 65536.
template <class Dst> ZORCC_INLINE s32v levelValue(f32v level, f32v intervals)
{
    return truncate(level * white<Dst> / intervals);
}

// Keeps float samples, which may be anything, NaN included, where products with a number of levels fit an integer. What
// is cut off is beyond black and white by more than any threshold.
template <class Src> ZORCC_INLINE f32v limited(f32v v)
{
    if constexpr (sizeof(Src) == sizeof(float))
        return min(max(v, fillFloat(-2)), fillFloat(2));
    else
        return v;
}

// The nearest level; exactly between two the lower one. Thresholds play no part.
template <class Src, class Dst> struct Nearest {
    f32v intervals, step, half;

    explicit Nearest(int count)
        : intervals(fillFloat(static_cast<float>(count))), step(fillFloat(1.0f / static_cast<float>(count))),
          half(fillFloat(0.5f / static_cast<float>(count)))
    {
    }

    [[gnu::always_inline]] s32v operator()(f32v v, f32v = f32v{}) const
    {
        constexpr float unit = white<Src> == 1 ? 1.0f : 1.0f / white<Src>;
        const f32v x = limited<Src>(v) * unit;
        const f32v base = toFloat(truncate(x * intervals)) * step;
        return truncate(select(x - base > half, base + step, base) * white<Dst>);
    }
};

// The level above where the sample exceeds the one below by more than the threshold, which is in the source's scale.
template <class Src, class Dst> struct AboveThreshold {
    f32v intervals, step, inverse;

    AboveThreshold(int count, StepSize size)
        : intervals(fillFloat(static_cast<float>(count))), step(fillFloat(size.step)), inverse(fillFloat(size.inverse))
    {
    }

    [[gnu::always_inline]] s32v operator()(f32v v, f32v threshold) const
    {
        v = limited<Src>(v);
        const s32v level = truncate(v * inverse);
        const f32v below = toFloat(level) * step;
        const s32v up = v - below > threshold;
        if constexpr (sameScale<Src, Dst>)
            return truncate(select(up, below + step, below));
        else
            return levelValue<Dst>(toFloat(level - up), intervals); // true is -1
    }
};

// The same with a table of thresholds, one for each sample of a row.
template <class Src, class Dst> struct AboveThresholds {
    AboveThreshold<Src, Dst> formula;
    const float* threshold;

    [[gnu::always_inline]] AboveThresholds at(int x) const { return {formula, threshold + x}; }
    [[gnu::always_inline]] s32v operator()(f32v v) const { return formula(v, load<f32v>(threshold)); }
};

// ---- thresholds of ordered dithering --------------------------------------------------------------------------------

constexpr int bayerSide = 4;

// Of one quantisation step. By fifteenths, not sixteenths: the greatest is a whole step, which no sample exceeds.
constexpr float bayer_thresh[bayerSide][bayerSide] = {
    {0.0f / 15.0f, 8.0f / 15.0f, 2.0f / 15.0f, 10.0f / 15.0f},
    {12.0f / 15.0f, 4.0f / 15.0f, 14.0f / 15.0f, 6.0f / 15.0f},
    {3.0f / 15.0f, 11.0f / 15.0f, 1.0f / 15.0f, 9.0f / 15.0f},
    {15.0f / 15.0f, 7.0f / 15.0f, 13.0f / 15.0f, 5.0f / 15.0f},
};

// All samples of a pixel have one threshold; a row repeats its thresholds after `period` pixels.
template <int period> struct RowThresholds {
    alignas(64) float of[4 * period]; // of up to four samples a pixel

    template <class Pixel> void fill(int pixels, int channels, Pixel thresholdOf)
    {
        float* next = of;
        for (int x = 0; x < pixels; ++x) {
            const float threshold = thresholdOf(x);
            for (int c = 0; c < channels; ++c) *next++ = threshold;
        }
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
