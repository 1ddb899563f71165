// SPDX-License-Identifier: MIT
// A sample to the level below it or to the one above. Single precision throughout, products and sums in the order in
// which they are written.
#pragma once

#include "reduce/samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Keeps float samples, which may be anything, NaN included, where products with a number of levels fit an integer. What
// is cut off is beyond black and white by more than any threshold.
template <class Src> ZORCC_INLINE f32v limited(f32v v)
{
    if constexpr (sizeof(Src) == sizeof(float))
        return min(max(v, fillFloat(-2)), fillFloat(2));
    else
        return v;
}

// The nearest level; exactly between two the lower one. The threshold is not looked at.
template <class Src, class Dst> struct Nearest {
    f32v intervals, step, half;

    [[gnu::always_inline]] explicit Nearest(const Reduction& r)
        : intervals(fillFloat(r.stepsPerUnit(1))), step(fillFloat(r.step(1))), half(fillFloat(r.step(0.5f)))
    {
    }

    [[gnu::always_inline]] s32v operator()(f32v v, f32v = f32v{}) const
    {
        const f32v x = limited<Src>(v) * (1 / white<Src>);
        const f32v base = toFloat(truncate(x * intervals)) * step;
        return truncate(select(x - base > half, base + step, base) * white<Dst>);
    }
};

// The level above where the sample exceeds the one below by more than the threshold, which is in the source's scale.
template <class Src, class Dst> struct AboveThreshold {
    static constexpr bool sameScale = white<Src> == white<Dst>;

    f32v intervals, step, inverse;

    [[gnu::always_inline]] explicit AboveThreshold(const Reduction& r)
        : intervals(fillFloat(r.stepsPerUnit(1))), step(fillFloat(r.step(white<Src>))),
          inverse(fillFloat(r.stepsPerUnit(white<Src>)))
    {
    }

    // A level is its value where source and destination have the same scale, otherwise its number. The error is what
    // the sample has more than the level's value.
    struct Choice {
        f32v level, error;
        s32v number;
    };
    [[gnu::always_inline]] Choice choose(f32v v, f32v threshold) const
    {
        const s32v whole = truncate(v * inverse);
        const f32v number = toFloat(whole), below = number * step, above = below + step, rest = v - below;
        const s32v up = rest > threshold; // true is -1
        return {sameScale ? select(up, above, below) : select(up, number + 1.0f, number), select(up, v - above, rest),
                whole - up};
    }

    f32v whiteLevel() const { return sameScale ? fillFloat(white<Src>) : intervals; }

    // In the destination's scale: the value, or the integer quotient of number * white by the intervals. That is exact
    // for up to 256 levels: number * white has 24 bits, so the product is exact, and its quotient is no integer unless
    // it is exact, too: it is at least 1/256 away from one, more than half of the last place of numbers below 65536.
    [[gnu::always_inline]] s32v sample(f32v level) const
    {
        return truncate(sameScale ? level : level * white<Dst> / intervals);
    }

    [[gnu::always_inline]] s32v operator()(f32v v, f32v threshold) const
    {
        const Choice choice = choose(limited<Src>(v), threshold);
        return sample(sameScale ? choice.level : toFloat(choice.number)); // 256 bits convert faster than they select
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

// In quantisation steps. By fifteenths, not sixteenths: the greatest is a whole step, which no sample exceeds.
constexpr float bayerMatrix[bayerSide][bayerSide] = {
    {0.0f / 15.0f, 8.0f / 15.0f, 2.0f / 15.0f, 10.0f / 15.0f},
    {12.0f / 15.0f, 4.0f / 15.0f, 14.0f / 15.0f, 6.0f / 15.0f},
    {3.0f / 15.0f, 11.0f / 15.0f, 1.0f / 15.0f, 9.0f / 15.0f},
    {15.0f / 15.0f, 7.0f / 15.0f, 13.0f / 15.0f, 5.0f / 15.0f},
};

} // namespace
} // namespace zorcc::ZORCC_TIER
